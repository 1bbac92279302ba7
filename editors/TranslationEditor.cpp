#include "editors/TranslationEditor.h"

#include <utility>

#include "EditorTexts.h"
#include "core/Hourglass.h"
#include "editors/EditorLanguage.h"
#include "framework/forms/Dialogs.h"
#include "framework/forms/Edits.h"
#include "framework/forms/ExtCtrls.h"
#include "framework/forms/FormParts.h"
#include "framework/forms/GroupBoxes.h"
#include "framework/forms/Labels.h"
#include "framework/forms/MessageForms.h"
#include "framework/forms/PageControls.h"
#include "framework/forms/PushButtons.h"
#include "framework/rtl/FormatText.h"
#include "framework/rtl/Texts.h"

namespace {

// With the line ends LineEnd, whichever the text has.
std::string WithLineEnds(const std::string& Text, const char* LineEnd)
{
    const std::string Plain = StringReplace(Text, "\r\n", "\n", TReplaceExtent::All);
    return StringReplace(Plain, "\n", LineEnd, TReplaceExtent::All);
}

// As edits need it.
std::string InLines(const std::string& Text)
{
    return WithLineEnds(Text, "\r\n");
}

} // namespace

const TMetaClass& TTranslationEditor::MetaClass()
{
    using T = TTranslationEditor;
    static const TMetaClass Class(
        "TTranslationEditor", &TForm::MetaClass(), nullptr, {},
        {Published<&T::NotebookChange>("NotebookChange"), Published<&T::PropListClick>("PropListClick"),
         Published<&T::PropListDrawItem>("PropListDrawItem"), Published<&T::BtnRemoveClick>("BtnRemoveClick"),
         Published<&T::BtnNewClick>("BtnNewClick"), Published<&T::EdtTranslationExit>("EdtTranslationExit"),
         Published<&T::EdtTranslationKeyDown>("EdtTranslationKeyDown"),
         Published<&T::CkxMoveClick>("CkxMoveClick"), Published<&T::BtnEditFontClick>("BtnEditFontClick"),
         Published<&T::BtnDisplayFontClick>("BtnDisplayFontClick"),
         Published<&T::RgpReadingClick>("RgpReadingClick"),
         Published<&T::BtnTranslateClick>("BtnTranslateClick"), Published<&T::BtnLoadClick>("BtnLoadClick"),
         Published<&T::BtnSaveClick>("BtnSaveClick"), Published<&T::BtnExportClick>("BtnExportClick"),
         Published<&T::BtnOKClick>("BtnOKClick")});
    return Class;
}

TTranslationEditor::TTranslationEditor(TComponent* Owner, const std::string& Section)
    : TForm(Owner), FSettings(Section)
{
}

void TTranslationEditor::DoCreate()
{
    FindPart(*this, "Notebook", Notebook);
    FindPart(*this, "TabTranslations", TabTranslations);
    FindPart(*this, "TabOptions", TabOptions);
    FindPart(*this, "LblList", LblList);
    FindPart(*this, "PropList", PropList);
    FindPart(*this, "EdtTranslation", EdtTranslation);
    FindPart(*this, "EdtOrgTranslation", EdtOrgTranslation);
    FindPart(*this, "BtnRemove", BtnRemove);
    FindPart(*this, "BtnNew", BtnNew);
    FindPart(*this, "LblTotalNr", LblTotalNr);
    FindPart(*this, "LblLocalizedNr", LblLocalizedNr);
    FindPart(*this, "CkxMove", CkxMove);
    FindPart(*this, "GrpEditFont", GrpEditFont);
    FindPart(*this, "LblEditFont", LblEditFont);
    FindPart(*this, "LblDisplayFont", LblDisplayFont);
    FindPart(*this, "RgpReading", RgpReading);
    FindPart(*this, "LblTranslate", LblTranslate);
    FindPart(*this, "LblLoad", LblLoad);
    FindPart(*this, "LblSave", LblSave);
    FindPart(*this, "LblExport", LblExport);
    FindPart(*this, "DlgOpen", DlgOpen);
    FindPart(*this, "DlgSave", DlgSave);
    FindPart(*this, "DlgFont", DlgFont);
    FSearch = std::make_unique<TListSearch>(*PropList);
    TranslateEditor(*this);
    inherited::DoCreate();
}

bool TTranslationEditor::Run(TTranslatorFrame& Translator)
{
    FTranslator = &Translator;
    Translator.FreeNotification(this);
    // May need another window, which a form that is being shown cannot get.
    FSettings.RestorePlace(*this);
    if (ShowModal() != mrOk || !HasTranslator())
        return false;
    Accepted();
    return true;
}

// An editor without its translator has nothing to do.
void TTranslationEditor::Notification(TComponent* Component, TOperation Operation)
{
    inherited::Notification(Component, Operation);
    if (Operation != opRemove || Component != FTranslator || !FTranslator)
        return;
    FTranslator = nullptr;
    FModified = false;
    SetModalResult(mrCancel);
}

void TTranslationEditor::DoShow()
{
    try {
        const THourglass Hourglass;
        Notebook->SetActivePage(TabTranslations);
        ReadSettings();
        TakeTranslations();
        SetActiveControl(PropList);
    } catch (...) {
        // Lists that are filled in part must not be edited.
        PostMessageA(Handle(), WM_CLOSE, 0, 0);
        throw;
    }
    inherited::DoShow();
}

void TTranslationEditor::DoHide()
{
    FSettings.SavePlace(*this);
    inherited::DoHide();
}

void TTranslationEditor::ReadSettings()
{
    CkxMove->SetChecked(FSettings.Flag("MoveNextUntranslated", CkxMove->Checked()));
    EdtTranslation->Font()->SetName(FSettings.Text("EditFontName", EdtTranslation->Font()->Name()));
    PropList->Font()->SetName(FSettings.Text("DisplayFontName", PropList->Font()->Name()));
    RgpReading->SetItemIndex(FSettings.Number("ReadingOrderIndex", RgpReading->ItemIndex()));
    StyleLists();
}

// The display font is that of PropList; a line that is drawn is as high as the font.
void TTranslationEditor::StyleLists()
{
    EdtOrgTranslation->SetFont(PropList->Font());
    Canvas()->Font()->Assign(PropList->Font());
    const int LineHeight = Canvas()->TextHeight("Ág") + 2;
    PropList->SetItemHeight(LineHeight);
    for (TWinControl* const List : DisplayLists()) {
        List->SetFont(PropList->Font());
        if (auto* const Box = dynamic_cast<TListBox*>(List); Box && Box->Style() == lbOwnerDrawFixed)
            Box->SetItemHeight(LineHeight);
    }
    LblEditFont->SetCaption(EdtTranslation->Font()->Name());
    LblDisplayFont->SetCaption(PropList->Font()->Name());
}

void TTranslationEditor::NotebookChange(TObject*)
{
    LeaveBox();
    if (Notebook->ActivePage() != TabOptions)
        return;
    LblTotalNr->SetCaption(std::to_string(PropList->Items()->Count()));
    LblLocalizedNr->SetCaption(std::to_string(LocalizedCount()));
}

void TTranslationEditor::PropListClick(TObject*)
{
    LeaveBox();
    const int Item = ChosenItem();
    SetBoxEnabled(Item >= 0);
    BtnRemove->SetEnabled(PropList->SelCount() > 0);
    if (Item < 0) {
        EmptyBox();
        return;
    }
    FRemembered = Translation(Item);
    EdtTranslation->SetText(InLines(FRemembered));
    EdtOrgTranslation->SetText(InLines(Original(Item)));
    FShown = EdtTranslation->Text();
    FItem = Item;
}

int TTranslationEditor::ChosenItem() const
{
    return PropList->SelCount() > 0 ? PropList->ItemIndex() : -1;
}

void TTranslationEditor::SetBoxEnabled(bool Value)
{
    EdtTranslation->SetEnabled(Value);
    EdtTranslation->SetColor(Value ? clWindow : clBtnFace);
}

void TTranslationEditor::EmptyBox()
{
    FItem = -1;
    FRemembered.clear();
    EdtTranslation->SetText("");
    EdtOrgTranslation->SetText("");
    FShown.clear();
}

void TTranslationEditor::ChooseItem(int Item)
{
    PropList->ClearSelection();
    PropList->SetItemIndex(Item);
    if (Item >= 0)
        PropList->SetSelected(Item, true);
    PropListClick(PropList);
}

// Untranslated items have a dot in front, and the place for it stays free in front
// of the others.
void TTranslationEditor::PropListDrawItem(TWinControl*, int Index, TRect Rect, TOwnerDrawState State)
{
    TCanvas& Canvas = *PropList->Canvas();
    Canvas.FillRect(Rect);
    const bool FromRight = PropList->UseRightToLeftAlignment();
    const int Dot = 5;
    const int Place = Dot + 6;
    const int Middle = (Rect.top + Rect.bottom) / 2;
    if (!IsTranslated(Index)) {
        const int Left = FromRight ? Rect.right - Dot - 3 : Rect.left + 3;
        const TColor Background = Canvas.Brush()->Color();
        const TColor Mark = State.Contains(odSelected) ? clHighlightText : clRed;
        Canvas.Brush()->SetColor(Mark);
        Canvas.Pen()->SetColor(Mark);
        Canvas.Ellipse(Left, Middle - Dot / 2, Left + Dot, Middle - Dot / 2 + Dot);
        Canvas.Brush()->SetColor(Background);
    }
    TRect Text = Rect;
    (FromRight ? Text.right : Text.left) += FromRight ? -Place : Place;
    DrawInOneLine(*PropList, PropList->Items()->Get(Index), Text);
}

void TTranslationEditor::DrawInOneLine(TListBox& List, const std::string& Text, TRect Area)
{
    const std::string Line = StringReplace(WithLineEnds(Text, "\u00B6"), "\t", " ", TReplaceExtent::All);
    List.Canvas()->DrawText(Line, Area, List.DrawTextBiDiModeFlags(DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX));
}

void TTranslationEditor::BtnRemoveClick(TObject*)
{
    LeaveBox();
    if (PropList->SelCount() == 0 || !Confirmed(RemoveQuestion()))
        return;
    const THourglass Hourglass;
    EmptyBox();
    RemoveSelected();
    GoOnIn(*PropList);
}

void TTranslationEditor::BtnNewClick(TObject*)
{
    LeaveBox();
    AddItem();
}

void TTranslationEditor::EdtTranslationExit(TObject*)
{
    LeaveBox();
}

void TTranslationEditor::LeaveBox()
{
    if (FItem < 0 || EdtTranslation->Text() == FShown)
        return;
    FShown = EdtTranslation->Text();
    SetTranslation(FItem, FShown);
    SetModified();
    PropList->Invalidate();
}

void TTranslationEditor::UndoBox()
{
    if (FItem < 0)
        return;
    if (Translation(FItem) != FRemembered)
        SetTranslation(FItem, FRemembered);
    EdtTranslation->SetText(InLines(FRemembered));
    FShown = EdtTranslation->Text();
    PropList->Invalidate();
}

void TTranslationEditor::EdtTranslationKeyDown(TObject*, uint16_t& Key, TShiftState)
{
    switch (Key) {
    case VK_ESCAPE:
        UndoBox();
        break;
    case VK_NEXT:
        Step(1);
        break;
    case VK_PRIOR:
        Step(-1);
        break;
    default:
        FollowCodePage();
        return;
    }
    Key = 0;
}

// To the next item in a direction; on to the next untranslated one when the user
// wants that, as far as there are items.
void TTranslationEditor::Step(int Direction)
{
    LeaveBox();
    const int Last = PropList->Items()->Count() - 1;
    int Item = ChosenItem();
    if (Last < 0)
        return;
    const auto IsThereNext = [&] { return Direction > 0 ? Item < Last : Item > 0; };
    do
        Item += Direction;
    while (CkxMove->Checked() && IsThereNext() && IsTranslated(Item));
    ChooseItem(std::clamp(Item, 0, Last));
}

// On systems that write Hebrew or Arabic what is typed may begin at the right.
void TTranslationEditor::FollowCodePage()
{
    if (RgpReading->ItemIndex() != 0 || EdtTranslation->BiDiMode() == bdRightToLeft)
        return;
    DWORD CodePage = 0;
    GetLocaleInfoA(LOCALE_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                   reinterpret_cast<char*>(&CodePage), sizeof CodePage);
    if (CodePage == 1255 || CodePage == 1256)
        EdtTranslation->SetBiDiMode(bdRightToLeft);
}

void TTranslationEditor::CkxMoveClick(TObject*)
{
    FSettings.SetFlag("MoveNextUntranslated", CkxMove->Checked());
}

bool TTranslationEditor::ChooseFont(TFont& Font)
{
    DlgFont->SetFont(&Font);
    if (!DlgFont->Execute())
        return false;
    Font.Assign(DlgFont->Font());
    StyleLists();
    return true;
}

void TTranslationEditor::BtnEditFontClick(TObject*)
{
    if (ChooseFont(*EdtTranslation->Font()))
        FSettings.SetText("EditFontName", EdtTranslation->Font()->Name());
}

void TTranslationEditor::BtnDisplayFontClick(TObject*)
{
    if (ChooseFont(*PropList->Font()))
        FSettings.SetText("DisplayFontName", PropList->Font()->Name());
}

void TTranslationEditor::RgpReadingClick(TObject*)
{
    const bool RightToLeft = RgpReading->ItemIndex() == 0;
    EdtTranslation->SetAlignment(RightToLeft ? taRightJustify : taLeftJustify);
    EdtTranslation->SetBiDiMode(bdLeftToRight);
    FSettings.SetNumber("ReadingOrderIndex", RgpReading->ItemIndex());
}

void TTranslationEditor::ReadFrom(const TLabel& Title, bool (TTranslationEditor::*Read)(const std::string&))
{
    LeaveBox();
    DlgOpen->SetTitle(Title.Caption());
    if (!DlgOpen->Execute() || !HasTranslator())
        return;
    const THourglass Hourglass;
    if (!(this->*Read)(DlgOpen->FileName()))
        throw EFOpenError(Format(SNoSuchFile, {DlgOpen->FileName()}));
    SetModified();
    EmptyBox();
    RefreshLists();
}

void TTranslationEditor::WriteTo(const TLabel& Title, void (TTranslationEditor::*Write)(const std::string&))
{
    LeaveBox();
    DlgSave->SetTitle(Title.Caption());
    if (!DlgSave->Execute() || !HasTranslator())
        return;
    const THourglass Hourglass;
    (this->*Write)(DlgSave->FileName());
}

void TTranslationEditor::BtnTranslateClick(TObject*)
{
    ReadFrom(*LblTranslate, &TTranslationEditor::TranslateFrom);
}

void TTranslationEditor::BtnLoadClick(TObject*)
{
    ReadFrom(*LblLoad, &TTranslationEditor::LoadFrom);
}

void TTranslationEditor::BtnSaveClick(TObject*)
{
    WriteTo(*LblSave, &TTranslationEditor::SaveTo);
}

void TTranslationEditor::BtnExportClick(TObject*)
{
    WriteTo(*LblExport, &TTranslationEditor::ExportTo);
}

// Without changes the caller is to see that there are none.
void TTranslationEditor::BtnOKClick(TObject*)
{
    LeaveBox();
    if (FModified && FTranslator)
        GiveTranslations();
    SetModalResult(std::exchange(FModified, false) ? mrOk : mrCancel);
}

// However the user closes it: Cancel, Escape or the window's own button.
bool TTranslationEditor::CloseQuery()
{
    if (ModalResult() != mrOk)
        LeaveBox();
    const bool MayClose = !FModified || Confirmed(SDiscardChanges) || !FTranslator;
    return MayClose && inherited::CloseQuery();
}

void TTranslationEditor::GoOnIn(TWinControl& Control)
{
    if (Control.CanFocus())
        Control.SetFocus();
}

bool TTranslationEditor::Confirmed(const std::string& Question)
{
    return MessageDlg(Question, mtWarning, mbYesNo, 0) == mrYes;
}

// Escape belongs to the box while the user is in it.
void TTranslationEditor::Dispatch(TMessage& Message)
{
    if (Message.Msg == CM_DIALOGKEY && Message.WParam == VK_ESCAPE && EdtTranslation &&
        EdtTranslation->Focused())
        return;
    inherited::Dispatch(Message);
}
