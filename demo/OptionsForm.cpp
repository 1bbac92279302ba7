#include "demo/OptionsForm.h"

#include "demo/AboutForm.h"
#include "framework/forms/ComboBoxes.h"
#include "framework/forms/FormParts.h"
#include "framework/forms/PageControls.h"
#include "framework/forms/PushButtons.h"

TOptionsForm* OptionsForm = nullptr;

const TMetaClass& TOptionsForm::MetaClass()
{
    static const TMetaClass Class("TOptionsForm", &TForm::MetaClass(), CreateComponent<TOptionsForm>, {},
                                  {Published<&TOptionsForm::FormCreate>("FormCreate"),
                                   Published<&TOptionsForm::BtnHelpClick>("BtnHelpClick")});
    return Class;
}

void TOptionsForm::Loaded()
{
    inherited::Loaded();
    FindPart(*this, "PageControl1", PageControl1);
    FindPart(*this, "CkxToolBar", CkxToolBar);
    FindPart(*this, "CkxStatusBar", CkxStatusBar);
    FindPart(*this, "CkxHints", CkxHints);
    FindPart(*this, "CkxAsk", CkxAsk);
    FindPart(*this, "CbxCurrency", CbxCurrency);
    FindPart(*this, "CbxPaper", CbxPaper);
}

void TOptionsForm::FormCreate(TObject*)
{
    CbxCurrency->SetItemIndex(0);
    CbxPaper->SetItemIndex(0);
}

void TOptionsForm::BtnHelpClick(TObject*)
{
    AboutForm->ShowModal();
}
