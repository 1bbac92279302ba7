// What the menus do.
#include "designer/DesignerForm.h"
#include "designer/FormClipboard.h"
#include "framework/design/ComponentEditor.h"
#include "framework/design/Experts.h"
#include "framework/design/Help.h"
#include "framework/forms/Clipboard.h"
#include "framework/forms/InputForms.h"
#include "framework/forms/MessageForms.h"
#include "framework/rtl/SysUtils.h"

namespace {

// How many items of the Tools menu stand before those of the experts.
constexpr int OwnTools = 2;

} // namespace

void TDesignerForm::ShowExperts()
{
    while (MnuTools->Count() > OwnTools)
        delete MnuTools->Items(MnuTools->Count() - 1);
    int Number = 0;
    for (TIExpert* const Expert : LibraryExperts()) {
        auto* const Item = new TMenuItem(this);
        Item->SetCaption(Expert->GetMenuText());
        Item->SetEnabled(Expert->GetState().Contains(esEnabled));
        Item->SetTag(Number++);
        Item->OnClick = {this, &TDesignerForm::ExpertClick};
        MnuTools->Add(Item);
    }
}

void TDesignerForm::ExpertClick(TObject* Sender)
{
    Try([&] { LibraryExperts()[static_cast<size_t>(static_cast<TMenuItem*>(Sender)->Tag())]->Execute(); });
    Try([&] { FWorkspace.Settle(); });
}

void TDesignerForm::MnuLoadPackageClick(TObject*)
{
    if (!FPackages || !DlgOpenPackage->Execute())
        return;
    Try([&] {
        FPackages->Load(DlgOpenPackage->FileName());
        TPackages::Remember(DlgOpenPackage->FileName());
    });
    FPalette->Rebuild();
    ShowExperts();
}

void TDesignerForm::PopupVerbs(const TPoint& Point)
{
    WithActive([&](TFormModel& Model) {
        const auto Editor = GetComponentEditor(Model, *Model.Selection().front());
        VerbMenu->Items()->Clear();
        using T = TDesignerForm;
        for (int I = 0; I < Editor->GetVerbCount(); ++I)
            AddVerb(Editor->GetVerb(I), I, {this, &T::VerbClick});
        if (Editor->GetVerbCount() > 0)
            AddVerb("-", 0, {});
        AddVerb("Cu&t", 0, {this, &T::MnuCutClick});
        AddVerb("&Copy", 0, {this, &T::MnuCopyClick});
        AddVerb("&Paste", 0, {this, &T::MnuPasteClick});
        AddVerb("&Delete", 0, {this, &T::MnuDeleteClick});
        AddVerb("-", 0, {});
        AddVerb("Bring to &front", 0, {this, &T::MnuToFrontClick});
        AddVerb("Send to &back", 0, {this, &T::MnuToBackClick});
        VerbMenu->Popup(static_cast<int>(Point.x), static_cast<int>(Point.y));
    });
}

void TDesignerForm::AddVerb(const std::string& Caption, int Tag, const TNotifyEvent& Handler)
{
    auto* const Item = new TMenuItem(this);
    Item->SetCaption(Caption);
    Item->SetTag(Tag);
    Item->OnClick = Handler;
    VerbMenu->Items()->Add(Item);
}

void TDesignerForm::VerbClick(TObject* Sender)
{
    const int Verb = static_cast<TMenuItem*>(Sender)->Tag();
    WithActive(
        [&](TFormModel& Model) { GetComponentEditor(Model, *Model.Selection().front())->ExecuteVerb(Verb); });
}

void TDesignerForm::WithActive(const std::function<void(TFormModel&)>& Act)
{
    FInspector->Commit();
    if (TDesign* const Active = FWorkspace.Active())
        Try([&] { Act(*Active->Model); });
}

void TDesignerForm::ProjectListDblClick(TObject*)
{
    const int Index = ProjectList->ItemIndex();
    if (Index < 0)
        return;
    const std::string File = FWorkspace.Project().FullName(ProjectList->Items()->Get(Index));
    if (IsFormFileName(File))
        Open(File);
}

void TDesignerForm::ProjectListKeyDown(TObject* Sender, uint16_t& Key, TShiftState)
{
    if (Key == VK_RETURN)
        ProjectListDblClick(Sender);
}

void TDesignerForm::MnuNewProjectClick(TObject*)
{
    if (DlgSaveProject->Execute())
        Try([&] { FWorkspace.NewProject(DlgSaveProject->FileName()); });
}

void TDesignerForm::MnuNewFormClick(TObject*)
{
    if (DlgSaveForm->Execute())
        Try([&] { FWorkspace.NewForm(DlgSaveForm->FileName()); });
}

void TDesignerForm::MnuOpenProjectClick(TObject*)
{
    if (DlgOpenProject->Execute())
        Open(DlgOpenProject->FileName());
}

void TDesignerForm::MnuOpenFolderClick(TObject*)
{
    std::string Folder = ExtractFilePath(FWorkspace.Project().FileName);
    if (InputQuery("Open folder", "Folder with forms and units:", Folder))
        Open(Folder);
}

void TDesignerForm::MnuOpenFormClick(TObject*)
{
    if (DlgOpenForm->Execute())
        Try([&] { FWorkspace.OpenForm(DlgOpenForm->FileName()); });
}

void TDesignerForm::MnuSaveClick(TObject*)
{
    FInspector->Commit();
    if (TDesign* const Active = FWorkspace.Active())
        Try([&] { FWorkspace.Save(*Active); });
}

void TDesignerForm::MnuSaveAllClick(TObject*)
{
    FInspector->Commit();
    Try([&] { FWorkspace.SaveAll(); });
}

void TDesignerForm::MnuCloseClick(TObject*)
{
    FInspector->Commit();
    if (TDesign* const Active = FWorkspace.Active())
        Try([&] { FWorkspace.CloseForm(*Active); });
}

void TDesignerForm::MnuExitClick(TObject*)
{
    Close();
}

// Where a value is being typed the commands of the clipboard mean its text.
bool TDesignerForm::IsForEdit(UINT Message) const
{
    const TEdit& Edit = *FInspector->Editor();
    if (!Edit.Focused())
        return false;
    SendMessageA(Edit.WindowHandle(), Message, 0, 0);
    return true;
}

void TDesignerForm::MnuUndoClick(TObject*)
{
    if (FInspector->Editor()->Modified() && IsForEdit(WM_UNDO))
        return;
    WithActive([](TFormModel& Model) { Model.Undo(); });
}

void TDesignerForm::MnuRedoClick(TObject*)
{
    WithActive([](TFormModel& Model) { Model.Redo(); });
}

void TDesignerForm::MnuCutClick(TObject*)
{
    if (IsForEdit(WM_CUT))
        return;
    MnuCopyClick(nullptr);
    MnuDeleteClick(nullptr);
}

void TDesignerForm::MnuCopyClick(TObject*)
{
    if (IsForEdit(WM_COPY))
        return;
    WithActive([this](TFormModel& Model) {
        if (const std::string Text = SelectedAsText(Model); !Text.empty())
            SetClipboardText(Handle(), Text);
    });
}

void TDesignerForm::MnuPasteClick(TObject*)
{
    if (IsForEdit(WM_PASTE))
        return;
    WithActive([this](TFormModel& Model) { PasteText(Model, ClipboardText(Handle())); });
}

void TDesignerForm::MnuDeleteClick(TObject*)
{
    WithActive([](TFormModel& Model) { Model.DeleteSelected(); });
}

void TDesignerForm::MnuSelectAllClick(TObject*)
{
    WithActive([](TFormModel& Model) { Model.SelectAll(); });
}

void TDesignerForm::MnuToFrontClick(TObject*)
{
    WithActive([](TFormModel& Model) { Model.OrderSelected(true); });
}

void TDesignerForm::MnuToBackClick(TObject*)
{
    WithActive([](TFormModel& Model) { Model.OrderSelected(false); });
}

void TDesignerForm::MnuInspectorClick(TObject*)
{
    InspectorPanel->SetVisible(!InspectorPanel->Visible());
}

void TDesignerForm::MnuTreeClick(TObject*)
{
    LeftPanel->SetVisible(!LeftPanel->Visible());
}

void TDesignerForm::MnuContentsClick(TObject*)
{
    Try([] { ShowHelpContents("Designer"); });
}

void TDesignerForm::MnuAboutClick(TObject*)
{
    MessageDlg("Orbilex Designer", mtInformation, {mbOK}, 0);
}
