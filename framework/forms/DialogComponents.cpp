#include "framework/forms/DialogComponents.h"

namespace {

// The kinds of pictures that TPicture reads.
constexpr char PictureFilter[] =
    "All (*.bmp;*.ico;*.emf;*.wmf)|*.bmp;*.ico;*.emf;*.wmf|Bitmaps (*.bmp)|*.bmp|"
    "Icons (*.ico)|*.ico|Enhanced Metafiles (*.emf)|*.emf|Metafiles (*.wmf)|*.wmf";

} // namespace

const TMetaClass& TOpenDialog::MetaClass()
{
    static const TMetaClass Class(
        "TOpenDialog", &TCommonDialog::MetaClass(), CreateComponent<TOpenDialog>,
        {
            OBX_ROW(TOpenDialog, DefaultExt),
            OBX_ROW(TOpenDialog, FileName),
            OBX_ROW(TOpenDialog, Filter),
            OBX_ROW(TOpenDialog, FilterIndex).Default(1),
            OBX_ROW(TOpenDialog, InitialDir),
            OBX_ROW(TOpenDialog, Options).Default(TOpenOptions{ofHideReadOnly, ofEnableSizing}),
            OBX_ROW(TOpenDialog, OptionsEx).Default(TOpenOptionsEx{}),
            OBX_ROW(TOpenDialog, Title),
            Prop<&TOpenDialog::OnCanClose>("OnCanClose"),
            Prop<&TOpenDialog::OnFolderChange>("OnFolderChange"),
            Prop<&TOpenDialog::OnSelectionChange>("OnSelectionChange"),
            Prop<&TOpenDialog::OnTypeChange>("OnTypeChange"),
        });
    return Class;
}

const TMetaClass& TSaveDialog::MetaClass()
{
    static const TMetaClass Class("TSaveDialog", &TOpenDialog::MetaClass(), CreateComponent<TSaveDialog>);
    return Class;
}

const TMetaClass& TOpenPictureDialog::MetaClass()
{
    static const TMetaClass Class(
        "TOpenPictureDialog", &TOpenDialog::MetaClass(), CreateComponent<TOpenPictureDialog>,
        {OBX_ROW(TOpenPictureDialog, Filter).Stored<&TOpenPictureDialog::IsFilterStored>()});
    return Class;
}

const TMetaClass& TSavePictureDialog::MetaClass()
{
    static const TMetaClass Class(
        "TSavePictureDialog", &TSaveDialog::MetaClass(), CreateComponent<TSavePictureDialog>,
        {OBX_ROW(TSavePictureDialog, Filter).Stored<&TSavePictureDialog::IsFilterStored>()});
    return Class;
}

const TMetaClass& TColorDialog::MetaClass()
{
    static const TMetaClass Class("TColorDialog", &TCommonDialog::MetaClass(), CreateComponent<TColorDialog>,
                                  {
                                      OBX_ROW(TColorDialog, Color).Default(clBlack),
                                      OBX_ROW(TColorDialog, CustomColors),
                                      OBX_ROW(TColorDialog, Options).Default(TColorDialogOptions{}),
                                  });
    return Class;
}

const TMetaClass& TFontDialog::MetaClass()
{
    static const TMetaClass Class("TFontDialog", &TCommonDialog::MetaClass(), CreateComponent<TFontDialog>,
                                  {
                                      OBX_ROW(TFontDialog, Font),
                                      OBX_ROW(TFontDialog, Device).Default(fdScreen),
                                      OBX_ROW(TFontDialog, MinFontSize).Default(0),
                                      OBX_ROW(TFontDialog, MaxFontSize).Default(0),
                                      OBX_ROW(TFontDialog, Options).Default(TFontDialogOptions{fdEffects}),
                                      Prop<&TFontDialog::OnApply>("OnApply"),
                                  });
    return Class;
}

const TMetaClass& TPrinterSetupDialog::MetaClass()
{
    static const TMetaClass Class("TPrinterSetupDialog", &TCommonDialog::MetaClass(),
                                  CreateComponent<TPrinterSetupDialog>);
    return Class;
}

const TMetaClass& TPrintDialog::MetaClass()
{
    static const TMetaClass Class("TPrintDialog", &TCommonDialog::MetaClass(), CreateComponent<TPrintDialog>,
                                  {
                                      OBX_ROW(TPrintDialog, Collate).Default(false),
                                      OBX_ROW(TPrintDialog, Copies).Default(0),
                                      OBX_ROW(TPrintDialog, FromPage).Default(0),
                                      OBX_ROW(TPrintDialog, MinPage).Default(0),
                                      OBX_ROW(TPrintDialog, MaxPage).Default(0),
                                      OBX_ROW(TPrintDialog, Options).Default(TPrintDialogOptions{}),
                                      OBX_ROW(TPrintDialog, PrintToFile).Default(false),
                                      OBX_ROW(TPrintDialog, PrintRange).Default(prAllPages),
                                      OBX_ROW(TPrintDialog, ToPage).Default(0),
                                  });
    return Class;
}

const TMetaClass& TFindDialog::MetaClass()
{
    static const TMetaClass Class("TFindDialog", &TCommonDialog::MetaClass(), CreateComponent<TFindDialog>,
                                  {
                                      OBX_ROW(TFindDialog, FindText),
                                      OBX_ROW(TFindDialog, Options).Default(TFindOptions{frDown}),
                                      Prop<&TFindDialog::OnFind>("OnFind"),
                                  });
    return Class;
}

const TMetaClass& TReplaceDialog::MetaClass()
{
    static const TMetaClass Class("TReplaceDialog", &TFindDialog::MetaClass(),
                                  CreateComponent<TReplaceDialog>,
                                  {
                                      OBX_ROW(TReplaceDialog, ReplaceText),
                                      Prop<&TReplaceDialog::OnReplace>("OnReplace"),
                                  });
    return Class;
}

TOpenPictureDialog::TOpenPictureDialog(TComponent* Owner) : TOpenDialog(Owner)
{
    SetFilter(PictureFilter);
}

bool TOpenPictureDialog::IsFilterStored() const
{
    return Filter() != PictureFilter;
}

TSavePictureDialog::TSavePictureDialog(TComponent* Owner) : TSaveDialog(Owner)
{
    SetFilter(PictureFilter);
}

bool TSavePictureDialog::IsFilterStored() const
{
    return Filter() != PictureFilter;
}

void RegisterDialogComponents()
{
    for (const TMetaClass* const Class :
         {&TOpenDialog::MetaClass(), &TSaveDialog::MetaClass(), &TOpenPictureDialog::MetaClass(),
          &TSavePictureDialog::MetaClass(), &TColorDialog::MetaClass(), &TFontDialog::MetaClass(),
          &TPrinterSetupDialog::MetaClass(), &TPrintDialog::MetaClass(), &TFindDialog::MetaClass(),
          &TReplaceDialog::MetaClass()})
        RegisterClass(*Class);
}
