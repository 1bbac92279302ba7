#include "designer/DesignerForm.h"

#include <algorithm>

#include "designer/WindowPlace.h"
#include "framework/forms/FormParts.h"
#include "framework/forms/MessageForms.h"
#include "framework/rtl/SysUtils.h"

const TMetaClass& TDesignerForm::MetaClass()
{
    using T = TDesignerForm;
    static const TMetaClass Class("TDesignerForm", &TForm::MetaClass(), CreateComponent<T>, {},
                                  {Published<&T::InspectorTabsChange>("InspectorTabsChange"),
                                   Published<&T::ProjectListDblClick>("ProjectListDblClick"),
                                   Published<&T::ProjectListKeyDown>("ProjectListKeyDown"),
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
                                   Published<&T::MnuCutClick>("MnuCutClick"),
                                   Published<&T::MnuCopyClick>("MnuCopyClick"),
                                   Published<&T::MnuPasteClick>("MnuPasteClick"),
                                   Published<&T::MnuDeleteClick>("MnuDeleteClick"),
                                   Published<&T::MnuSelectAllClick>("MnuSelectAllClick"),
                                   Published<&T::MnuToFrontClick>("MnuToFrontClick"),
                                   Published<&T::MnuToBackClick>("MnuToBackClick"),
                                   Published<&T::MnuInspectorClick>("MnuInspectorClick"),
                                   Published<&T::MnuTreeClick>("MnuTreeClick"),
                                   Published<&T::MnuLoadPackageClick>("MnuLoadPackageClick"),
                                   Published<&T::MnuContentsClick>("MnuContentsClick"),
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
    FTree = std::make_unique<TComponentTree>(*Tree);
    FPalette = std::make_unique<TPaletteBar>(*Palette, *PaletteBar);
    FPalette->OnChoose = [this](const TMetaClass* Class) { Choose(Class); };
    FPalette->Rebuild();
    RestoreWindowPlace(*this);
    ShowExperts();
    ShowActive();
    inherited::DoCreate();
}

void TDesignerForm::DoClose(TCloseAction& Action)
{
    Try([this] { KeepWindowPlace(*this); });
    inherited::DoClose(Action);
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
        FTree->Refresh();
        ShowStatus();
        FInspector->Refresh();
    };
    FWorkspace.OnSelection = [this] { ShowSelection(); };
    FWorkspace.OnPlaced = [this] { FPalette->Release(); };
    FWorkspace.OnFirstPlace = [this] { return BesideWindow(); };
    FWorkspace.OnContextMenu = [this](const TPoint& Point) { PopupVerbs(Point); };
    FWorkspace.OnKey = [this](const MSG& Message) { PassOn(Message); };
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

// Right of this window, or where there is little room, at its right edge's left.
TPoint TDesignerForm::BesideWindow()
{
    constexpr int Enough = 240;
    const int Most = static_cast<int>(Screen->WorkAreaRect().right) - Enough;
    return {std::min(Left() + Width(), Most), Top()};
}

// Keys that mean nothing on a form may be short cuts of the menu.
void TDesignerForm::PassOn(const MSG& Key)
{
    TMessage Message{};
    Message.Msg = Key.message;
    Message.WParam = Key.wParam;
    Message.LParam = Key.lParam;
    IsShortCut(Message);
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
    Try([&] { FWorkspace.Open(Path); });
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
    FTree->SetModel(Active ? Active->Model.get() : nullptr);
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

void TDesignerForm::ShowSelection()
{
    FInspector->Refresh();
    FTree->ShowSelection();
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

void TDesignerForm::Choose(const TMetaClass* Class)
{
    for (const auto& Each : FWorkspace.Designs())
        Each->Surface.Placing = Class;
}

void TDesignerForm::InspectorTabsChange(TObject*)
{
    FInspector->SetEvents(InspectorTabs->TabIndex() == 1);
}
