#include "framework/forms/StdCtrls.h"

void RegisterStdCtrls()
{
    for (const TMetaClass* const Class :
         {&TLabel::MetaClass(), &TStaticText::MetaClass(), &TEdit::MetaClass(), &TButtonedEdit::MetaClass(),
          &TMemo::MetaClass(), &TButton::MetaClass(), &TCheckBox::MetaClass(), &TRadioButton::MetaClass(),
          &TGroupBox::MetaClass(), &TRadioGroup::MetaClass(), &TBitBtn::MetaClass(),
          &TSpeedButton::MetaClass(), &TListBox::MetaClass(), &TCheckListBox::MetaClass(),
          &TComboBox::MetaClass(), &TColorBox::MetaClass(), &TScrollBar::MetaClass()})
        RegisterClass(*Class);
}
