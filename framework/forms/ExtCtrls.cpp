#include "framework/forms/ExtCtrls.h"

void RegisterExtCtrls()
{
    for (const TMetaClass* const Class :
         {&TPanel::MetaClass(),      &TFlowPanel::MetaClass(),      &TControlBar::MetaClass(),
          &TScrollBox::MetaClass(),  &TBevel::MetaClass(),          &TShape::MetaClass(),
          &TImage::MetaClass(),      &TPaintBox::MetaClass(),       &TTimer::MetaClass(),
          &TSplitter::MetaClass(),   &TLabeledEdit::MetaClass(),    &TMaskEdit::MetaClass(),
          &TSpinButton::MetaClass(), &TSpinEdit::MetaClass(),       &TGauge::MetaClass(),
          &TNotebook::MetaClass(),   &TPage::MetaClass(),           &TTabSet::MetaClass(),
          &TTabPage::MetaClass(),    &TTabbedNotebook::MetaClass(), &THeader::MetaClass(),
          &TDrawGrid::MetaClass(),   &TStringGrid::MetaClass(),     &TApplicationEvents::MetaClass()})
        RegisterClass(*Class);
}
