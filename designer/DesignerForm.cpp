#include "designer/DesignerForm.h"

#include "framework/design/ComponentEditor.h"
#include "framework/design/Experts.h"
#include "framework/design/Palette.h"
#include "framework/forms/FormParts.h"
#include "framework/forms/InputForms.h"
#include "framework/forms/MessageForms.h"
#include "framework/rtl/SysUtils.h"

namespace {

// How many items of the Tools menu stand before those of the experts.
constexpr int OwnTools = 2;

} // namespace

const TMetaClass& TDesignerForm::MetaClass()
{
    using T = TDesignerForm;
    static const TMetaClass Class("TDesignerForm", &TForm::MetaClass(), CreateComponent<T>, {},
                                  {Published<&T::PaletteChange>("PaletteChange"),
                                   Published<&T::InspectorTabsChange>("InspectorTabsChange"),
                                   Published<&T::ProjectListDblClick>("ProjectListDblClick"),
                                   Published<&T::ProjectListKeyDown>("ProjectListKeyDown"),
                                   Published<&T::TreeChange>("TreeChange"),
                                   Published<&T::MnuNewProjectClick>("MnuNewProjectClick"),
                                   Published<&T::MnuNewFormClick>("MnuNewFormClick"),
                                   Published<&T::MnuOpenProjectClick>("MnuOpenProjectClick"),
                                   Published<&T::MnuOpenFolderClick>("MnuOpenFolderClick"),
                                   Published<&T::MnuOpenFormClick>("MnuOpenFormClick"),
                                   Published<&T::MnuSaveClick>("MnuSaveClick"),
                                   Published<&T::MnuSaveAllClick>("MnuSaveAllClick"),
                                   Published<&T::MnuCloseClick>("MnuCloseClick"),
                                   Published<&T::MnuExitClick>("MnuExitClick"),
                                   Published<&T::MnuUndoClick>("MnuUndoClick"),
                                   Published<&T::MnuRedoClick>("MnuRedoClick"),
                                   Published<&T::MnuDeleteClick>("MnuDeleteClick"),
                                   Published<&T::MnuSelectAllClick>("MnuSelectAllClick"),
                                   Published<&T::MnuInspectorClick>("MnuInspectorClick"),
                                   Published<&T::MnuTreeClick>("MnuTreeClick"),
                                   Published<&T::MnuLoadPackageClick>("MnuLoadPackageClick"),
                                   Published<&T::MnuAboutClick>("MnuAboutClick")});
    return Class;
}

TDesignerForm::~TDesignerForm()
{
    if (Application)
        Application->OnMessage.Clear();
    if (FInspector)
        FInspector->SetModel(nullptr);
}

void TDesignerForm::DoCreate()
{
    FindParts();
    FInspector = new TInspector(this);
    FInspector->SetAlign(alClient);
    FInspector->SetParent(InspectorTabs);
    FInspector->OnError = [this](const std::string& Text) { ShowError(Text); };
    ConnectWorkspace();
    Application->OnMessage = {this, &TDesignerForm::AppMessage};
    ShowPalette();
    ShowExperts();
    ShowActive();
    inherited::DoCreate();
}

void TDesignerForm::FindParts()
{
    FindPart(*this, "Palette", Palette);
    FindPart(*this, "PaletteBar", PaletteBar);
    FindPart(*this, "LeftPanel", LeftPanel);
    FindPart(*this, "InspectorPanel", InspectorPanel);
    FindPart(*this, "ProjectList", ProjectList);
    FindPart(*this, "Tree", Tree);
    FindPart(*this, "LblSelected", LblSelected);
    FindPart(*this, "InspectorTabs", InspectorTabs);
    FindPart(*this, "StatusBar", StatusBar);
    FindPart(*this, "MnuTools", MnuTools);
    FindPart(*this, "VerbMenu", VerbMenu);
    FindPart(*this, "DlgOpenForm", DlgOpenForm);
    FindPart(*this, "DlgSaveForm", DlgSaveForm);
    FindPart(*this, "DlgOpenProject", DlgOpenProject);
    FindPart(*this, "DlgSaveProject", DlgSaveProject);
    FindPart(*this, "DlgOpenPackage", DlgOpenPackage);
}

void TDesignerForm::ConnectWorkspace()
{
    FWorkspace.OnProject = [this] { ShowProject(); };
    FWorkspace.OnActive = [this] { ShowActive(); };
    FWorkspace.OnChanged = [this] {
        ShowTree();
        ShowStatus();
        FInspector->Refresh();
    };
    FWorkspace.OnSelection = [this] { ShowSelection(); };
    FWorkspace.OnPlaced = [this] { Choose(nullptr); };
    FWorkspace.OnContextMenu = [this](const TPoint& Point) { PopupVerbs(Point); };
    FWorkspace.OnKey = [this](const MSG& Message) {
        TMessage Key{};
        Key.Msg = Message.message;
        Key.WParam = Message.wParam;
        Key.LParam = Message.lParam;
        IsShortCut(Key);
    };
    FWorkspace.OnAsk = [](const TFormModel& Model) {
        switch (MessageDlg("Save changes to " + ExtractFileName(Model.FileName()) + "?", mtConfirmation,
                           {mbYes, mbNo, mbCancel}, 0)) {
        case mrYes:
            return TWorkspace::TAnswer::Save;
        case mrNo:
            return TWorkspace::TAnswer::Discard;
        default:
            return TWorkspace::TAnswer::Cancel;
        }
    };
}

void TDesignerForm::Try(const std::function<void()>& Act)
{
    try {
        Act();
    } catch (const EAbort&) {
    } catch (const Exception& Error) {
        ShowError(Error.Message());
    }
}

void TDesignerForm::ShowError(const std::string& Text)
{
    MessageDlg(Text, mtError, {mbOK}, 0);
}

void TDesignerForm::Open(const std::string& Path)
{
    Try([&] {
        if (IsFormFileName(Path))
            FWorkspace.OpenForm(Path);
        else
            FWorkspace.OpenProject(Path);
    });
}

bool TDesignerForm::CloseQuery()
{
    bool Result = false;
    FInspector->Commit();
    Try([&] { Result = FWorkspace.CloseAll(); });
    return Result && inherited::CloseQuery();
}

void TDesignerForm::AppMessage(MSG& Message, bool& Handled)
{
    // The focus may stay where a value is being typed.
    const bool IsInput = Message.message == WM_LBUTTONDOWN || Message.message == WM_RBUTTONDOWN ||
                         Message.message == WM_KEYDOWN;
    if (IsInput && Message.hwnd != Handle() && !IsChild(Handle(), Message.hwnd))
        FInspector->Commit();
    Try([&] { Handled = FWorkspace.HandleMessage(Message); });
}

void TDesignerForm::ShowProject()
{
    const TProject& Project = FWorkspace.Project();
    ProjectList->Items()->Clear();
    for (const std::string& Each : Project.Forms)
        ProjectList->Items()->Add(Each);
    for (const std::string& Each : Project.Units)
        ProjectList->Items()->Add(Each);
    ShowStatus();
}

void TDesignerForm::ShowActive()
{
    TDesign* const Active = FWorkspace.Active();
    FInspector->SetModel(Active ? Active->Model.get() : nullptr);
    ShowTree();
    ShowSelection();
    ShowStatus();
}

void TDesignerForm::ShowStatus()
{
    const TDesign* const Active = FWorkspace.Active();
    std::string Title = "Orbilex Designer";
    if (!FWorkspace.Project().Name.empty())
        Title += " - " + FWorkspace.Project().Name;
    if (Active)
        Title +=
            " - " + ExtractFileName(Active->Model->FileName()) + (Active->Model->IsModified() ? " *" : "");
    SetCaption(Title);
    StatusBar->SetSimpleText(Active ? Active->Model->FileName() : "");
}

// Only when components came, went or changed their names: the nodes' state is lost.
void TDesignerForm::ShowTree()
{
    TDesign* const Active = FWorkspace.Active();
    const std::string Shape = Active ? TreeShape(Active->Model->Root()) : "";
    if (Shape == FTreeShape)
        return;
    FTreeShape = Shape;
    FShowing = true;
    Tree->Items()->BeginUpdate();
    Tree->Items()->Clear();
    if (Active)
        AddTreeNode(nullptr, Active->Model->Root());
    if (Tree->Items()->Count() > 0)
        Tree->Items()->Item(0)->Expand(true);
    Tree->Items()->EndUpdate();
    FShowing = false;
    ShowTreeSelection();
}

std::string TDesignerForm::TreeShape(TComponent& Component)
{
    std::string Result = Component.Name() + ":" + IntToStr(reinterpret_cast<intptr_t>(&Component)) + "(";
    for (TComponent* const Each : FWorkspace.Active()->Model->ChildrenOf(Component))
        Result += TreeShape(*Each);
    return Result + ")";
}

void TDesignerForm::AddTreeNode(TTreeNode* Parent, TComponent& Component)
{
    const std::string Text = Component.Name() + ": " + Component.ClassName();
    TTreeNode* const Node =
        Parent ? Tree->Items()->AddChild(Parent, Text) : Tree->Items()->Add(nullptr, Text);
    Node->Data = &Component;
    for (TComponent* const Each : FWorkspace.Active()->Model->ChildrenOf(Component))
        AddTreeNode(Node, *Each);
}

void TDesignerForm::ShowSelection()
{
    FInspector->Refresh();
    ShowTreeSelection();
    const TDesign* const Active = FWorkspace.Active();
    if (!Active) {
        LblSelected->SetCaption("");
        return;
    }
    const auto& Selected = Active->Model->Selection();
    LblSelected->SetCaption(Selected.size() == 1
                                ? Selected.front()->Name() + ": " + Selected.front()->ClassName()
                                : IntToStr(static_cast<int64_t>(Selected.size())) + " components");
}

void TDesignerForm::ShowTreeSelection()
{
    const TDesign* const Active = FWorkspace.Active();
    if (!Active)
        return;
    FShowing = true;
    for (int I = 0; I < Tree->Items()->Count(); ++I)
        if (TTreeNode* const Node = Tree->Items()->Item(I);
            Node->Data == Active->Model->Selection().front()) {
            Node->MakeVisible();
            Tree->SetSelected(Node);
        }
    FShowing = false;
}

void TDesignerForm::TreeChange(TObject*, TTreeNode* Node)
{
    if (!FShowing && Node && FWorkspace.Active())
        FWorkspace.Active()->Model->SelectComponent(static_cast<TComponent*>(Node->Data));
}

void TDesignerForm::ShowPalette()
{
    Palette->Tabs()->Clear();
    for (const TPalettePage& Page : PalettePages())
        Palette->Tabs()->Add(Page.Name);
    if (!PalettePages().empty())
        Palette->SetTabIndex(0);
    ShowPalettePage();
}

void TDesignerForm::PaletteChange(TObject*)
{
    ShowPalettePage();
}

void TDesignerForm::ShowPalettePage()
{
    Choose(nullptr);
    for (TSpeedButton* const Each : FButtons)
        delete Each;
    FButtons.clear();
    const auto Index = static_cast<size_t>(std::max(Palette->TabIndex(), 0));
    int Left = 2;
    const auto Add = [&](const std::string& Caption, int Tag) {
        auto* const Button = new TSpeedButton(this);
        Button->SetFlat(true);
        Button->SetGroupIndex(1);
        Button->SetCaption(Caption);
        Button->SetHint(Caption);
        Button->SetTag(Tag);
        Button->OnClick = {this, &TDesignerForm::PaletteButtonClick};
        const int Wide = Canvas()->TextWidth(Caption) + 14;
        Button->SetBounds(Left, 2, Wide, 24);
        Button->SetParent(PaletteBar);
        Left += Wide + 2;
        FButtons.push_back(Button);
    };
    Add("Select", -1);
    if (Index < PalettePages().size())
        for (size_t I = 0; I < PalettePages()[Index].Classes.size(); ++I)
            Add(PalettePages()[Index].Classes[I]->ClassName().substr(1), static_cast<int>(I));
    FButtons.front()->SetDown(true);
}

void TDesignerForm::PaletteButtonClick(TObject* Sender)
{
    const int Tag = static_cast<TSpeedButton*>(Sender)->Tag();
    const auto Page = static_cast<size_t>(std::max(Palette->TabIndex(), 0));
    Choose(Tag < 0 ? nullptr : PalettePages()[Page].Classes[static_cast<size_t>(Tag)]);
}

void TDesignerForm::Choose(const TMetaClass* Class)
{
    for (const auto& Each : FWorkspace.Designs())
        Each->Surface.Placing = Class;
    if (!Class && !FButtons.empty())
        FButtons.front()->SetDown(true);
}

void TDesignerForm::InspectorTabsChange(TObject*)
{
    FInspector->SetEvents(InspectorTabs->TabIndex() == 1);
}

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
        FPackages->Remember();
    });
    ShowPalette();
    ShowExperts();
}

void TDesignerForm::PopupVerbs(const TPoint& Point)
{
    WithActive([&](TFormModel& Model) {
        const auto Editor = GetComponentEditor(Model, *Model.Selection().front());
        VerbMenu->Items()->Clear();
        for (int I = 0; I < Editor->GetVerbCount(); ++I) {
            auto* const Item = new TMenuItem(this);
            Item->SetCaption(Editor->GetVerb(I));
            Item->SetTag(I);
            Item->OnClick = {this, &TDesignerForm::VerbClick};
            VerbMenu->Items()->Add(Item);
        }
        if (Editor->GetVerbCount() > 0)
            VerbMenu->Popup(static_cast<int>(Point.x), static_cast<int>(Point.y));
    });
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

void TDesignerForm::MnuUndoClick(TObject*)
{
    WithActive([](TFormModel& Model) { Model.Undo(); });
}

void TDesignerForm::MnuRedoClick(TObject*)
{
    WithActive([](TFormModel& Model) { Model.Redo(); });
}

void TDesignerForm::MnuDeleteClick(TObject*)
{
    WithActive([](TFormModel& Model) { Model.DeleteSelected(); });
}

void TDesignerForm::MnuSelectAllClick(TObject*)
{
    WithActive([](TFormModel& Model) { Model.SelectAll(); });
}

void TDesignerForm::MnuInspectorClick(TObject*)
{
    InspectorPanel->SetVisible(!InspectorPanel->Visible());
}

void TDesignerForm::MnuTreeClick(TObject*)
{
    LeftPanel->SetVisible(!LeftPanel->Visible());
}

void TDesignerForm::MnuAboutClick(TObject*)
{
    MessageDlg("Orbilex Designer", mtInformation, {mbOK}, 0);
}
