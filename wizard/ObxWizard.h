// The globalization wizard: a dialog that leads through what Globalizer.h and
// Dictionaries.h do. Its form file is forms/ObxWizard.dfm.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "framework/forms/Forms.h"
#include "wizard/Dictionaries.h"
#include "wizard/ProjectScan.h"

class TButton;
class TCheckBox;
class TCheckListBox;
class TComboBox;
class TEdit;
class TLabel;
class TListView;
class TMemo;
class TNotebook;
class TOpenDialog;
class TPageControl;
class TPanel;
class TProgressBar;
class TRadioButton;
class TTabSheet;

// Works on the project that is open in the environment, which saves it first and reads
// it again afterwards; without one the user opens a project.
//
// The pages, in the order of Notebook:
//     Main          what to do: globalize, prepare, apply; what to translate; where
//                   translations are kept
//     Found         the forms and units with texts, and what is wrong with them
//     Languages     of the project, and those to translate it into
//     Dictionaries  to be written for translators, or to be taken over
//     Progress      while files are read and written; Cancel leaves all as it was
//     Result        what was changed, file by file
// Errors are shown, and the page stays.
class TObxWizard : public TForm {
    OBX_CLASS(TForm)
public:
    explicit TObxWizard(TComponent* Owner) : TForm(Owner) {}

    // The choices that the user made when a project was globalized last, in the
    // registry: section OrbilexDesigner of Software\Quillmark.
    //
    // Restores the controls of page Main when the values are those of the project that
    // is named in PnlProjectName; otherwise they stay as they are.
    void ReadSettings();
    // Throws ERegistryException.
    void WriteSettings();
    // In bytes; 0 when there is no such file. Throws EFOpenError for one that cannot be
    // opened.
    static int GetFileSize(const std::string& FileName);

    // Published.
    TNotebook* Notebook = nullptr;
    TPageControl* StartNote = nullptr;
    TTabSheet* TabStart = nullptr;
    TTabSheet* TabChoices = nullptr;
    TTabSheet* TabStorage = nullptr;
    TPanel* PnlProjectName = nullptr;
    TButton* BtnProject = nullptr;
    TButton* BtnFolder = nullptr;
    TRadioButton* Radio1 = nullptr; // globalize
    TRadioButton* Radio2 = nullptr; // write dictionaries
    TRadioButton* Radio3 = nullptr; // take dictionaries over
    TCheckBox* CkxForms = nullptr;
    TCheckBox* CkxScanForms = nullptr;
    TCheckBox* CkxResources = nullptr;
    TCheckBox* CkxCommonDlg = nullptr;
    TComboBox* CbxMainForm = nullptr;
    TComboBox* CbxSelector = nullptr;
    TRadioButton* RadioStorage1 = nullptr; // in the forms
    TRadioButton* RadioStorage2 = nullptr; // in a file
    TEdit* EdtFormStorage = nullptr;
    TListView* LvwFound = nullptr;
    TPanel* PanErrors = nullptr;
    TMemo* MemErrors = nullptr;
    TLabel* LblFound = nullptr;
    TComboBox* CbxOwnLocale = nullptr;
    TCheckListBox* LstLocales = nullptr;
    TLabel* LblChosen = nullptr;
    TEdit* EdtFolder = nullptr;
    TLabel* LblExport = nullptr;
    TLabel* LblImport = nullptr;
    TCheckListBox* LstDictionaries = nullptr;
    TButton* BtnAdd = nullptr;
    TLabel* LblProgress = nullptr;
    TProgressBar* PrgWork = nullptr;
    TMemo* MemResult = nullptr;
    TButton* BtnBack = nullptr;
    TButton* BtnNext = nullptr;
    TButton* BtnFinish = nullptr;
    TButton* BtnCancel = nullptr;
    TOpenDialog* DlgProject = nullptr;
    TOpenDialog* DlgDictionaries = nullptr;
    void BtnProjectClick(TObject* Sender);
    void BtnFolderClick(TObject* Sender);
    void CbxMainFormChange(TObject* Sender);
    void RadioStorage1Click(TObject* Sender);
    void LstLocalesClickCheck(TObject* Sender);
    void EdtFolderChange(TObject* Sender);
    void BtnAddClick(TObject* Sender);
    void BtnHelpClick(TObject* Sender);
    void BtnBackClick(TObject* Sender);
    void BtnNextClick(TObject* Sender);
    void BtnFinishClick(TObject* Sender);
    void BtnCancelClick(TObject* Sender);

protected:
    void DoCreate() override;
    void DoShow() override;

private:
    enum TPageKind { wpMain, wpFound, wpLanguages, wpDictionaries, wpProgress, wpResult };

    TPageKind ShownPage() const;
    void ShowPage(TPageKind Page);
    void ShowMain();
    void TurnTo(TPageKind Page);
    void UpdateButtons();
    TWinControl& FirstControl(TPageKind Page) const;
    // Shows where something is missing, and says it.
    [[noreturn]] void Refuse(TWinControl& Control, const std::string& Message);

    // The project.
    bool IsOpen() const { return !FScan.Project.FileName.empty(); }
    void OpenEnvironmentProject();
    void Open(const std::string& FileOrFolder);
    void Scan(const TProjectProgress& Progress = {});
    void FillMainForms();
    void CheckMain();
    void FillFound();

    // Languages and dictionaries.
    void FillLanguages();
    std::vector<int> ChosenLocales() const;
    int OwnLocale() const;
    void FillDictionaries();
    std::vector<TDictionaryInput> ChosenDictionaries() const;

    // The work.
    void Globalize();
    void ExchangeDictionaries();
    void Work(const std::function<TProjectChanges()>& Plan);
    bool ShowProgress(const std::string& File, int Done, int Total);
    void ShowResult(const TProjectChanges& Changes);

    std::string FProjectPath; // as it was opened
    TProjectScan FScan;
    int FCodePage = 0; // of FScan; 0: not read yet
    bool FIsEnvironmentProject = false;
    std::vector<TDictionaryInput> FAdded;        // by the user
    std::vector<TDictionaryInput> FDictionaries; // of LstDictionaries
    bool FWorking = false;
    bool FStopped = false;
};
