#include <algorithm>
#include <limits>

#include "editors/EditorSettings.h"
#include "framework/forms/ComboBoxes.h"
#include "framework/forms/Edits.h"
#include "framework/forms/Panels.h"
#include "framework/forms/PushButtons.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/SysUtils.h"
#include "platform/FileSystem.h"
#include "wizard/ObxWizard.h"

namespace {

constexpr char Section[] = "OrbilexDesigner";

} // namespace

void TObxWizard::ReadSettings()
{
    TEditorSettings Settings(Section);
    if (Settings.Text("Project") != PnlProjectName->Caption())
        return;
    Radio2->SetEnabled(true);
    Radio3->SetEnabled(true);
    Radio2->SetChecked(true);
    CkxResources->SetChecked(Settings.Flag("Resources", CkxResources->Checked()));
    CkxCommonDlg->SetChecked(Settings.Flag("CommonDlg", CkxCommonDlg->Checked()));
    CbxMainForm->SetItemIndex(CbxMainForm->Items()->IndexOf(Settings.Text("MainForm", CbxMainForm->Text())));
    CkxScanForms->SetChecked(Settings.Flag("ScanForms", CkxScanForms->Checked()));
    CkxForms->SetChecked(Settings.Flag("Forms", CkxForms->Checked()));
    EdtFormStorage->SetText(Settings.Text("StoreInFile", EdtFormStorage->Text()));
    if (Settings.Flag("StoreInForm", RadioStorage1->Checked()))
        return;
    if (RadioStorage2->Checked())
        RadioStorage1Click(RadioStorage2);
    else
        RadioStorage2->SetChecked(true); // a click, too
}

void TObxWizard::WriteSettings()
{
    TEditorSettings Settings(Section);
    Settings.SetText("Project", PnlProjectName->Caption());
    Settings.SetFlag("Resources", CkxResources->Checked());
    Settings.SetFlag("CommonDlg", CkxCommonDlg->Checked());
    Settings.SetText("MainForm", CbxMainForm->Text());
    Settings.SetFlag("ScanForms", CkxScanForms->Checked());
    Settings.SetFlag("Forms", CkxForms->Checked());
    Settings.SetFlag("StoreInForm", RadioStorage1->Checked());
    Settings.SetText("StoreInFile", EdtFormStorage->Text());
}

int TObxWizard::GetFileSize(const std::string& FileName)
{
    if (!FileExists(FileName))
        return 0;
    try {
        const size_t Size = TReadableFile(FileName).Size();
        return static_cast<int>(std::min<size_t>(Size, std::numeric_limits<int>::max()));
    } catch (const TFileSystemError& Error) {
        throw EFOpenError(Format(SFOpenErrorEx, {FileName, Error.what()}));
    }
}
