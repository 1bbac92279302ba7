#include "wizard/ObxWizard.h"

#include "editors/EditorLanguage.h"
#include "framework/design/Help.h"
#include "framework/forms/ComboBoxes.h"
#include "framework/forms/Dialogs.h"
#include "framework/forms/Edits.h"
#include "framework/forms/FormParts.h"
#include "framework/forms/Labels.h"
#include "framework/forms/ListViews.h"
#include "framework/forms/Notebooks.h"
#include "framework/forms/PageControls.h"
#include "framework/forms/Panels.h"
#include "framework/forms/PushButtons.h"
#include "framework/forms/RangeControls.h"
#include "framework/rtl/FileNames.h"

const TMetaClass& TObxWizard::MetaClass()
{
    using T = TObxWizard;
    static const TMetaClass Class(
        "TObxWizard", &TForm::MetaClass(), CreateComponent<T>, {},
        {Published<&T::BtnProjectClick>("BtnProjectClick"), Published<&T::BtnFolderClick>("BtnFolderClick"),
         Published<&T::CbxMainFormChange>("CbxMainFormChange"),
         Published<&T::RadioStorage1Click>("RadioStorage1Click"),
         Published<&T::LstLocalesClickCheck>("LstLocalesClickCheck"),
         Published<&T::EdtFolderChange>("EdtFolderChange"), Published<&T::BtnAddClick>("BtnAddClick"),
         Published<&T::BtnHelpClick>("BtnHelpClick"), Published<&T::BtnBackClick>("BtnBackClick"),
         Published<&T::BtnNextClick>("BtnNextClick"), Published<&T::BtnFinishClick>("BtnFinishClick"),
         Published<&T::BtnCancelClick>("BtnCancelClick")});
    return Class;
}

void TObxWizard::DoCreate()
{
    FindPart(*this, "Notebook", Notebook);
    FindPart(*this, "StartNote", StartNote);
    FindPart(*this, "TabStart", TabStart);
    FindPart(*this, "TabChoices", TabChoices);
    FindPart(*this, "TabStorage", TabStorage);
    FindPart(*this, "PnlProjectName", PnlProjectName);
    FindPart(*this, "BtnProject", BtnProject);
    FindPart(*this, "BtnFolder", BtnFolder);
    FindPart(*this, "Radio1", Radio1);
    FindPart(*this, "Radio2", Radio2);
    FindPart(*this, "Radio3", Radio3);
    FindPart(*this, "CkxForms", CkxForms);
    FindPart(*this, "CkxScanForms", CkxScanForms);
    FindPart(*this, "CkxResources", CkxResources);
    FindPart(*this, "CkxCommonDlg", CkxCommonDlg);
    FindPart(*this, "CbxMainForm", CbxMainForm);
    FindPart(*this, "CbxSelector", CbxSelector);
    FindPart(*this, "RadioStorage1", RadioStorage1);
    FindPart(*this, "RadioStorage2", RadioStorage2);
    FindPart(*this, "EdtFormStorage", EdtFormStorage);
    FindPart(*this, "LvwFound", LvwFound);
    FindPart(*this, "PanErrors", PanErrors);
    FindPart(*this, "MemErrors", MemErrors);
    FindPart(*this, "LblFound", LblFound);
    FindPart(*this, "CbxOwnLocale", CbxOwnLocale);
    FindPart(*this, "LstLocales", LstLocales);
    FindPart(*this, "LblChosen", LblChosen);
    FindPart(*this, "EdtFolder", EdtFolder);
    FindPart(*this, "LblExport", LblExport);
    FindPart(*this, "LblImport", LblImport);
    FindPart(*this, "LstDictionaries", LstDictionaries);
    FindPart(*this, "BtnAdd", BtnAdd);
    FindPart(*this, "LblProgress", LblProgress);
    FindPart(*this, "PrgWork", PrgWork);
    FindPart(*this, "MemResult", MemResult);
    FindPart(*this, "BtnBack", BtnBack);
    FindPart(*this, "BtnNext", BtnNext);
    FindPart(*this, "BtnFinish", BtnFinish);
    FindPart(*this, "BtnCancel", BtnCancel);
    FindPart(*this, "DlgProject", DlgProject);
    FindPart(*this, "DlgDictionaries", DlgDictionaries);
    TranslateEditor(*this);
    inherited::DoCreate();
}

// Without a project that can be read the user may open another one.
void TObxWizard::DoShow()
{
    try {
        OpenEnvironmentProject();
    } catch (const Exception&) {
        Application->HandleException(this);
    }
    ShowMain();
    inherited::DoShow();
}

TObxWizard::TPageKind TObxWizard::ShownPage() const
{
    return static_cast<TPageKind>(Notebook->PageIndex());
}

void TObxWizard::ShowMain()
{
    TurnTo(wpMain);
    ReadSettings();
    CbxMainFormChange(CbxMainForm);
    StartNote->SetActivePage(TabStart);
    SetActiveControl(&FirstControl(wpMain));
}

void TObxWizard::ShowPage(TPageKind Page)
{
    TurnTo(Page);
    SetActiveControl(&FirstControl(Page));
}

void TObxWizard::TurnTo(TPageKind Page)
{
    // What has the focus is about to be hidden.
    SetActiveControl(nullptr);
    Notebook->SetPageIndex(Page);
    UpdateButtons();
}

void TObxWizard::UpdateButtons()
{
    const TPageKind Page = ShownPage();
    BtnProject->SetEnabled(!IsOpen());
    BtnFolder->SetEnabled(!IsOpen());
    BtnBack->SetEnabled(Page != wpMain && Page != wpProgress);
    BtnNext->SetEnabled(IsOpen() && Page != wpProgress && (Page != wpFound || FScan.Errors.empty()));
    BtnNext->SetVisible(Page != wpResult);
    BtnFinish->SetVisible(Page == wpResult);
    BtnFinish->SetDefault(Page == wpResult);
    BtnCancel->SetEnabled(Page != wpResult);
}

TWinControl& TObxWizard::FirstControl(TPageKind Page) const
{
    switch (Page) {
    case wpMain:
        if (!IsOpen())
            return *BtnProject;
        return Radio3->Checked() ? *Radio3 : Radio2->Checked() ? *Radio2 : *Radio1;
    case wpFound:
        return *LvwFound;
    case wpLanguages:
        return *LstLocales;
    case wpDictionaries:
        return *EdtFolder;
    case wpProgress:
        return *BtnCancel;
    default:
        return *BtnFinish;
    }
}

void TObxWizard::Refuse(TWinControl& Control, const std::string& Message)
{
    for (TTabSheet* const Tab : {TabStart, TabChoices, TabStorage})
        if (Control.Parent() == Tab)
            StartNote->SetActivePage(Tab);
    SetActiveControl(&Control);
    throw EInvalidOperation(Message);
}

void TObxWizard::RadioStorage1Click(TObject* Sender)
{
    // Whoever goes to the name wants a file.
    if (Sender == EdtFormStorage)
        RadioStorage2->SetChecked(true);
    const bool InFile = RadioStorage2->Checked();
    EdtFormStorage->SetColor(InFile ? clWindow : clBtnFace);
    EdtFormStorage->SetTabStop(InFile);
}

void TObxWizard::BtnNextClick(TObject*)
{
    switch (ShownPage()) {
    case wpMain:
        CheckMain();
        if (Radio1->Checked() || !FScan.Errors.empty()) {
            FillFound();
            ShowPage(wpFound);
        } else {
            FAdded.clear();
            EdtFolder->SetText(ExtractFileDir(FScan.Project.FileName));
            FillDictionaries();
            ShowPage(wpDictionaries);
        }
        break;
    case wpFound:
        FillLanguages();
        ShowPage(wpLanguages);
        break;
    case wpLanguages:
        Globalize();
        break;
    case wpDictionaries:
        ExchangeDictionaries();
        break;
    default:
        break;
    }
}

void TObxWizard::BtnBackClick(TObject*)
{
    if (ShownPage() == wpLanguages) {
        ShowPage(wpFound);
        return;
    }
    if (ShownPage() == wpResult)
        Open(FProjectPath);
    ShowMain();
}

void TObxWizard::BtnFinishClick(TObject*)
{
    SetModalResult(mrOk);
}

void TObxWizard::BtnCancelClick(TObject*)
{
    if (FWorking)
        FStopped = true;
    else
        SetModalResult(mrCancel);
}

void TObxWizard::BtnHelpClick(TObject*)
{
    ShowHelpContents("OBX");
}
