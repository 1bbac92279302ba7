// The designer's main window: menu, palette, the project's files, the component tree
// and the inspector of the form that is being designed.
#pragma once

#include <memory>

#include "designer/ComponentTree.h"
#include "designer/Inspector.h"
#include "designer/Packages.h"
#include "designer/PaletteBar.h"
#include "designer/Workspace.h"
#include "framework/forms/ComCtrls.h"
#include "framework/forms/Dialogs.h"
#include "framework/forms/ExtCtrls.h"
#include "framework/forms/Forms.h"
#include "framework/forms/StdCtrls.h"

class TDesignerForm : public TForm {
    OBX_CLASS(TForm)
public:
    explicit TDesignerForm(TComponent* Owner) : TForm(Owner) {}
    ~TDesignerForm() override;

    TWorkspace& Workspace() { return FWorkspace; }
    TInspector* Inspector() const { return FInspector; }
    // Where packages are loaded into; it outlives the form.
    void SetPackages(TPackages& Packages) { FPackages = &Packages; }
    // A project file, a folder, or a form; errors are shown.
    void Open(const std::string& Path);
    // The class that the next click on a form places; null for none.
    void Choose(const TMetaClass* Class);
    bool CloseQuery() override;

    // Published.
    TTabControl* Palette = nullptr;
    TPanel* PaletteBar = nullptr;
    TPanel* LeftPanel = nullptr;
    TPanel* InspectorPanel = nullptr;
    TListBox* ProjectList = nullptr;
    TTreeView* Tree = nullptr;
    TLabel* LblSelected = nullptr;
    TTabControl* InspectorTabs = nullptr;
    TStatusBar* StatusBar = nullptr;
    TMenuItem* MnuTools = nullptr;
    TPopupMenu* VerbMenu = nullptr;
    TOpenDialog* DlgOpenForm = nullptr;
    TSaveDialog* DlgSaveForm = nullptr;
    TOpenDialog* DlgOpenProject = nullptr;
    TSaveDialog* DlgSaveProject = nullptr;
    TOpenDialog* DlgOpenPackage = nullptr;
    void InspectorTabsChange(TObject* Sender);
    void ProjectListDblClick(TObject* Sender);
    void ProjectListKeyDown(TObject* Sender, uint16_t& Key, TShiftState Shift);
    void MnuNewProjectClick(TObject* Sender);
    void MnuNewFormClick(TObject* Sender);
    void MnuOpenProjectClick(TObject* Sender);
    void MnuOpenFolderClick(TObject* Sender);
    void MnuOpenFormClick(TObject* Sender);
    void MnuSaveClick(TObject* Sender);
    void MnuSaveAllClick(TObject* Sender);
    void MnuCloseClick(TObject* Sender);
    void MnuExitClick(TObject* Sender);
    void MnuUndoClick(TObject* Sender);
    void MnuRedoClick(TObject* Sender);
    void MnuCutClick(TObject* Sender);
    void MnuCopyClick(TObject* Sender);
    void MnuPasteClick(TObject* Sender);
    void MnuDeleteClick(TObject* Sender);
    void MnuSelectAllClick(TObject* Sender);
    void MnuToFrontClick(TObject* Sender);
    void MnuToBackClick(TObject* Sender);
    void MnuInspectorClick(TObject* Sender);
    void MnuTreeClick(TObject* Sender);
    void MnuLoadPackageClick(TObject* Sender);
    void MnuContentsClick(TObject* Sender);
    void MnuAboutClick(TObject* Sender);

protected:
    void DoCreate() override;
    void DoClose(TCloseAction& Action) override;

private:
    void FindParts();
    void ConnectWorkspace();
    // Runs a command; an error is shown, and everything stays usable.
    void Try(const std::function<void()>& Act);
    void WithActive(const std::function<void(TFormModel&)>& Act);
    void ShowError(const std::string& Text);
    void ShowProject();
    void ShowActive();
    void ShowSelection();
    void ShowStatus();
    TPoint BesideWindow();
    void PassOn(const MSG& Key);
    bool IsForEdit(UINT Message) const;
    void ShowExperts();
    void PopupVerbs(const TPoint& Point);
    void AddVerb(const std::string& Caption, int Tag, const TNotifyEvent& Handler);
    void ExpertClick(TObject* Sender);
    void VerbClick(TObject* Sender);
    void AppMessage(MSG& Message, bool& Handled);

    TWorkspace FWorkspace;
    TPackages* FPackages = nullptr;
    TInspector* FInspector = nullptr;
    std::unique_ptr<TPaletteBar> FPalette;
    std::unique_ptr<TComponentTree> FTree;
};
