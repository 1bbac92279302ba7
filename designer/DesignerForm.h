// The designer's main window: menu, palette, the project's files, the component tree
// and the inspector of the form that is being designed.
#pragma once

#include "designer/Inspector.h"
#include "designer/Packages.h"
#include "designer/Workspace.h"
#include "framework/forms/ComCtrls.h"
#include "framework/forms/Dialogs.h"
#include "framework/forms/ExtCtrls.h"
#include "framework/forms/Forms.h"
#include "framework/forms/GlyphButtons.h"
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
    TScrollBox* PaletteBar = nullptr;
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
    void PaletteChange(TObject* Sender);
    void InspectorTabsChange(TObject* Sender);
    void ProjectListDblClick(TObject* Sender);
    void ProjectListKeyDown(TObject* Sender, uint16_t& Key, TShiftState Shift);
    void TreeChange(TObject* Sender, TTreeNode* Node);
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
    void MnuDeleteClick(TObject* Sender);
    void MnuSelectAllClick(TObject* Sender);
    void MnuInspectorClick(TObject* Sender);
    void MnuTreeClick(TObject* Sender);
    void MnuLoadPackageClick(TObject* Sender);
    void MnuAboutClick(TObject* Sender);

protected:
    void DoCreate() override;

private:
    void FindParts();
    void ConnectWorkspace();
    // Runs a command; an error is shown, and everything stays usable.
    void Try(const std::function<void()>& Act);
    void WithActive(const std::function<void(TFormModel&)>& Act);
    void ShowError(const std::string& Text);
    void ShowProject();
    void ShowActive();
    void ShowTree();
    void ShowTreeSelection();
    std::string TreeShape(TComponent& Component);
    void AddTreeNode(TTreeNode* Parent, TComponent& Component);
    void ShowSelection();
    void ShowStatus();
    void ShowPalette();
    void ShowPalettePage();
    void ShowExperts();
    void PopupVerbs(const TPoint& Point);
    void PaletteButtonClick(TObject* Sender);
    void ExpertClick(TObject* Sender);
    void VerbClick(TObject* Sender);
    void AppMessage(MSG& Message, bool& Handled);

    TWorkspace FWorkspace;
    TPackages* FPackages = nullptr;
    TInspector* FInspector = nullptr;
    std::vector<TSpeedButton*> FButtons; // by the page's classes; the first is the arrow
    std::string FTreeShape;              // what the tree shows
    bool FShowing = false;
};
