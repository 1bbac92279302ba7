#include "framework/forms/Dialogs.h"

void RegisterDialogClasses()
{
    for (const TMetaClass* const Class :
         {&TOpenDialog::MetaClass(), &TSaveDialog::MetaClass(), &TOpenPictureDialog::MetaClass(),
          &TSavePictureDialog::MetaClass(), &TColorDialog::MetaClass(), &TFontDialog::MetaClass(),
          &TPrinterSetupDialog::MetaClass(), &TPrintDialog::MetaClass(), &TFindDialog::MetaClass(),
          &TReplaceDialog::MetaClass()})
        RegisterClass(*Class);
}
