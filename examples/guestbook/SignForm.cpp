#include "SignForm.h"

#include "GuestbookTexts.h"
#include "framework/forms/Edits.h"
#include "framework/forms/FormParts.h"
#include "framework/forms/MessageForms.h"

TSignForm* SignForm = nullptr;

const TMetaClass& TSignForm::MetaClass()
{
    static const TMetaClass Class("TSignForm", &TForm::MetaClass(), CreateComponent<TSignForm>, {},
                                  {Published<&TSignForm::BtnSignClick>("BtnSignClick")});
    return Class;
}

void TSignForm::Loaded()
{
    inherited::Loaded();
    FindPart(*this, "EdtName", EdtName);
    FindPart(*this, "MemMessage", MemMessage);
}

bool TSignForm::Ask()
{
    EdtName->SetText("");
    MemMessage->SetText("");
    SetActiveControl(EdtName);
    return ShowModal() == mrOk;
}

std::string TSignForm::Guest() const
{
    return EdtName->Text();
}

std::string TSignForm::Message() const
{
    return MemMessage->Text();
}

void TSignForm::BtnSignClick(TObject*)
{
    if (EdtName->Text().empty())
        MessageDlg(SNoName, mtInformation, {mbOK}, 0);
    else
        SetModalResult(mrOk);
}
