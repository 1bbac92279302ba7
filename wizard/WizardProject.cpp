// The pages Main and Found.
#include <algorithm>

#include "WizardTexts.h"
#include "core/Hourglass.h"
#include "framework/design/ProjectWriter.h"
#include "framework/design/ToolServices.h"
#include "framework/forms/ComboBoxes.h"
#include "framework/forms/Dialogs.h"
#include "framework/forms/Edits.h"
#include "framework/forms/InputForms.h"
#include "framework/forms/Labels.h"
#include "framework/forms/ListViews.h"
#include "framework/forms/MessageForms.h"
#include "framework/forms/Panels.h"
#include "framework/forms/PushButtons.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/FormNames.h"
#include "wizard/ChangeReport.h"
#include "wizard/ObxWizard.h"
#include "wizard/SourceParser.h"

namespace {

// The component on a form that its locale translator makes the language selector;
// empty for none.
std::string SelectorOf(const TFoundForm& Form)
{
    for (const TFormObject& Child : Form.Document.Root.Children()) {
        const TFormValue* const Value =
            SameName(Child.ClassName(), LocaleTranslatorClass) ? Child.FindValue("AdoptOn") : nullptr;
        if (Value && Value->Is(TFormValueKind::Ident))
            return Value->AsIdent();
    }
    return "";
}

std::string KindName(TFoundKind Kind)
{
    if (Kind == TFoundKind::Frame)
        return SKindFrame;
    return Kind == TFoundKind::DataModule ? SKindModule : SKindForm;
}

void AddLine(TListView& List, const std::vector<std::string>& Texts)
{
    TListItem& Item = *List.Items()->Add();
    Item.SetCaption(Texts.front());
    for (size_t I = 1; I < Texts.size(); ++I)
        Item.SubItems()->Add(Texts[I]);
}

} // namespace

void TObxWizard::OpenEnvironmentProject()
{
    const std::string FileName = ToolServices ? ToolServices->GetProjectName() : "";
    PnlProjectName->SetCaption(FileName.empty() ? SNoProject : FileName);
    if (FileName.empty())
        return;
    if (!ToolServices->SaveProject()) {
        // What the user has not saved would be lost.
        PostMessageA(Handle(), WM_CLOSE, 0, 0);
        return;
    }
    FIsEnvironmentProject = true;
    Open(FileExists(FileName) ? FileName : ExtractFileDir(FileName));
}

void TObxWizard::Open(const std::string& FileOrFolder)
{
    const THourglass Hourglass;
    const bool WasPutRight = RecoverProject(OpenProject(FileOrFolder).FileName);
    FScan.Project = OpenProject(FileOrFolder);
    FProjectPath = FileOrFolder;
    FCodePage = 0;
    Scan();
    if (!FIsEnvironmentProject)
        PnlProjectName->SetCaption(FScan.Project.FileName);
    FillMainForms();
    if (WasPutRight)
        ShowMessage(SProjectRecovered);
}

void TObxWizard::BtnProjectClick(TObject*)
{
    if (!DlgProject->Execute())
        return;
    Open(DlgProject->FileName());
    ShowMain();
}

void TObxWizard::BtnFolderClick(TObject*)
{
    std::string Folder;
    if (!InputQuery(SOpenFolder, SFolderPrompt, Folder))
        return;
    Open(Folder);
    ShowMain();
}

// What is chosen already stays chosen.
void TObxWizard::FillMainForms()
{
    const std::string Chosen = CbxMainForm->Text();
    CbxMainForm->Items()->Clear();
    for (const TFoundForm& Form : FScan.Forms)
        if (Form.Kind == TFoundKind::Form)
            CbxMainForm->Items()->Add(Form.Name);
    const TFoundForm* const Main = Chosen.empty() ? FScan.MainForm() : FScan.FindForm(Chosen);
    CbxMainForm->SetItemIndex(Main ? CbxMainForm->Items()->IndexOf(Main->Name) : -1);
    CbxMainFormChange(CbxMainForm);
}

void TObxWizard::CbxMainFormChange(TObject*)
{
    CbxSelector->Items()->Clear();
    CbxSelector->Items()->Add(SNoSelector);
    const TFoundForm* const Form = FScan.FindForm(CbxMainForm->Text());
    if (Form)
        for (const std::string& Each : Form->Selectors)
            CbxSelector->Items()->Add(Each);
    CbxSelector->SetItemIndex(std::max(0, CbxSelector->Items()->IndexOf(Form ? SelectorOf(*Form) : "")));
}

void TObxWizard::CheckMain()
{
    // The user may have put right what was wrong.
    if (!FScan.Errors.empty()) {
        const THourglass Hourglass;
        FCodePage = 0;
        Scan();
        FillMainForms();
    }
    if (!Radio1->Checked() || !FScan.Errors.empty())
        return;
    if (CbxMainForm->ItemIndex() < 0)
        Refuse(*CbxMainForm, SChooseMainForm);
    if (RadioStorage2->Checked() && EdtFormStorage->Text().empty())
        Refuse(*EdtFormStorage, SNameStorage);
}

void TObxWizard::FillFound()
{
    LvwFound->Items()->BeginUpdate();
    LvwFound->Clear();
    int Texts = 0;
    for (const TFoundForm& Form : FScan.Forms) {
        AddLine(*LvwFound, {Form.Name, KindName(Form.Kind), std::to_string(Form.Texts.size()),
                            ListOf(Form.Dialogs), Form.File});
        Texts += static_cast<int>(Form.Texts.size());
    }
    int Units = 0;
    for (const TFoundUnit& Unit : FScan.Units) {
        // A unit of which nothing could be read is shown, with no texts.
        if (Unit.ResourceStrings.empty() && !DeclaresResourceStrings(FScan.Project.FullName(Unit.File)))
            continue;
        ++Units;
        AddLine(*LvwFound, {ChangeFileExt(ExtractFileName(Unit.File), ""), SKindUnit,
                            std::to_string(Unit.ResourceStrings.size()), "", Unit.File});
    }
    LvwFound->Items()->EndUpdate();
    LblFound->SetCaption(
        Format(SFoundCounts, {FScan.Forms.size(), Texts, Units, FScan.ResourceStrings().size()}));
    std::string Errors;
    for (const std::string& Each : FScan.Errors)
        Errors += Each + "\r\n";
    MemErrors->SetText(Errors);
    PanErrors->SetVisible(!Errors.empty());
}
