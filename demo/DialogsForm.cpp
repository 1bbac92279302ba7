#include "demo/DialogsForm.h"

#include "framework/forms/Dialogs.h"
#include "framework/forms/Edits.h"
#include "framework/forms/FormParts.h"
#include "framework/forms/PushButtons.h"
#include "framework/rtl/Texts.h"
#include "framework/rtl/Utf8.h"

TDialogsForm* DialogsForm = nullptr;

namespace {

std::u16string Searchable(const std::string& Text, bool MatchCase)
{
    return Utf8ToUtf16(MatchCase ? Text : AnsiUpperCase(Text));
}

// Selects the next place, behind or before the selection; false when there is none.
bool SelectFound(TMemo& Memo, const TFindDialog& Find)
{
    const bool MatchCase = Find.Options().Contains(frMatchCase);
    const std::u16string Text = Searchable(Memo.Text(), MatchCase);
    const std::u16string Wanted = Searchable(Find.FindText(), MatchCase);
    const auto Start = static_cast<size_t>(Memo.SelStart());
    const auto Length = static_cast<size_t>(Memo.SelLength());
    size_t Place = std::u16string::npos;
    if (Find.Options().Contains(frDown))
        Place = Text.find(Wanted, Start + Length);
    else if (Start > 0)
        Place = Text.rfind(Wanted, Start - 1);
    if (Place == std::u16string::npos || Wanted.empty())
        return false;
    Memo.SetSelStart(static_cast<int>(Place));
    Memo.SetSelLength(static_cast<int>(Wanted.size()));
    return true;
}

} // namespace

const TMetaClass& TDialogsForm::MetaClass()
{
    static const TMetaClass Class("TDialogsForm", &TForm::MetaClass(), CreateComponent<TDialogsForm>, {},
                                  {Published<&TDialogsForm::BtnOpenClick>("BtnOpenClick"),
                                   Published<&TDialogsForm::BtnSaveClick>("BtnSaveClick"),
                                   Published<&TDialogsForm::BtnFontClick>("BtnFontClick"),
                                   Published<&TDialogsForm::BtnColorClick>("BtnColorClick"),
                                   Published<&TDialogsForm::BtnPrintClick>("BtnPrintClick"),
                                   Published<&TDialogsForm::BtnSetupClick>("BtnSetupClick"),
                                   Published<&TDialogsForm::BtnFindClick>("BtnFindClick"),
                                   Published<&TDialogsForm::BtnReplaceClick>("BtnReplaceClick"),
                                   Published<&TDialogsForm::DlgFindFind>("DlgFindFind"),
                                   Published<&TDialogsForm::DlgReplaceReplace>("DlgReplaceReplace")});
    return Class;
}

TDialogsForm::~TDialogsForm()
{
    DialogsForm = nullptr;
}

void TDialogsForm::Loaded()
{
    inherited::Loaded();
    FindPart(*this, "MemText", MemText);
    FindPart(*this, "DlgOpen", DlgOpen);
    FindPart(*this, "DlgSave", DlgSave);
    FindPart(*this, "DlgFont", DlgFont);
    FindPart(*this, "DlgColor", DlgColor);
    FindPart(*this, "DlgPrint", DlgPrint);
    FindPart(*this, "DlgSetup", DlgSetup);
    FindPart(*this, "DlgFind", DlgFind);
    FindPart(*this, "DlgReplace", DlgReplace);
}

void TDialogsForm::BtnOpenClick(TObject*)
{
    if (DlgOpen->Execute())
        MemText->Lines()->LoadFromFile(DlgOpen->FileName());
}

void TDialogsForm::BtnSaveClick(TObject*)
{
    if (DlgSave->Execute())
        MemText->Lines()->SaveToFile(DlgSave->FileName());
}

void TDialogsForm::BtnFontClick(TObject*)
{
    DlgFont->SetFont(MemText->Font());
    if (DlgFont->Execute())
        MemText->SetFont(DlgFont->Font());
}

void TDialogsForm::BtnColorClick(TObject*)
{
    DlgColor->SetColor(MemText->Color());
    if (DlgColor->Execute())
        MemText->SetColor(DlgColor->Color());
}

// The program prints nothing; what is chosen stays in the dialogs.

void TDialogsForm::BtnPrintClick(TObject*)
{
    DlgPrint->Execute();
}

void TDialogsForm::BtnSetupClick(TObject*)
{
    DlgSetup->Execute();
}

void TDialogsForm::BtnFindClick(TObject*)
{
    DlgFind->Execute();
}

void TDialogsForm::BtnReplaceClick(TObject*)
{
    DlgReplace->Execute();
}

void TDialogsForm::DlgFindFind(TObject* Sender)
{
    if (!SelectFound(*MemText, dynamic_cast<TFindDialog&>(*Sender)))
        MessageBeep(MB_ICONASTERISK);
}

void TDialogsForm::DlgReplaceReplace(TObject*)
{
    const bool All = DlgReplace->Options().Contains(frReplaceAll);
    if (All)
        MemText->SetSelStart(0);
    while (SelectFound(*MemText, *DlgReplace)) {
        MemText->SetSelText(DlgReplace->ReplaceText());
        if (!All)
            break;
    }
}
