// The pages Progress and Result.
#include <algorithm>
#include <utility>

#include "WizardTexts.h"
#include "framework/design/ToolServices.h"
#include "framework/forms/ComboBoxes.h"
#include "framework/forms/Edits.h"
#include "framework/forms/Labels.h"
#include "framework/forms/ListBoxes.h"
#include "framework/forms/MessageForms.h"
#include "framework/forms/PushButtons.h"
#include "framework/forms/RangeControls.h"
#include "framework/rtl/SysUtils.h"
#include "wizard/ChangeReport.h"
#include "wizard/Globalizer.h"
#include "wizard/ObxWizard.h"

namespace {

constexpr int WesternCodePage = 1252;

// That of texts in forms and units which do not tell: the one that systems of the
// language have. Languages without one are written in Unicode.
int CodePageOf(int Locale)
{
    DWORD Result = 0;
    GetLocaleInfoA(static_cast<LCID>(Locale), LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                   reinterpret_cast<char*>(&Result), sizeof Result);
    return Result == 0 ? WesternCodePage : static_cast<int>(Result);
}

} // namespace

// A globalized project tells its language when it has been read.
void TObxWizard::Scan(const TProjectProgress& Progress)
{
    if (FCodePage == 0) {
        FCodePage = WesternCodePage;
        FScan = ScanProject(FScan.Project, FCodePage, Progress);
    }
    const int CodePage = CodePageOf(OwnLocale());
    if (CodePage == FCodePage)
        return;
    FScan = ScanProject(FScan.Project, CodePage, Progress);
    FCodePage = CodePage;
}

void TObxWizard::Globalize()
{
    TGlobalizeChoices Choices;
    Choices.OwnLocale = OwnLocale();
    Choices.Locales = ChosenLocales();
    std::erase(Choices.Locales, Choices.OwnLocale);
    if (Choices.Locales.empty())
        Refuse(*LstLocales, SChooseLanguage);
    Choices.Forms = CkxForms->Checked();
    Choices.ScanForms = CkxScanForms->Checked();
    Choices.Resources = CkxResources->Checked();
    Choices.CommonDialogs = CkxCommonDlg->Checked();
    Choices.MainForm = CbxMainForm->Text();
    if (RadioStorage2->Checked())
        Choices.TranslationsFile = EdtFormStorage->Text();
    if (CbxSelector->ItemIndex() > 0)
        Choices.Selector = CbxSelector->Text();
    Work([&] {
        Scan(
            [this](const std::string& File, int Done, int Total) { return ShowProgress(File, Done, Total); });
        return PlanGlobalization(FScan, Choices);
    });
    if (ShownPage() == wpResult)
        WriteSettings();
}

void TObxWizard::ExchangeDictionaries()
{
    const std::vector<TDictionaryInput> Chosen = ChosenDictionaries();
    if (Chosen.empty())
        Refuse(*LstDictionaries, SChooseDictionary);
    if (Radio3->Checked()) {
        Work([&] { return PlanImport(FScan, Chosen); });
        return;
    }
    std::vector<int> Locales;
    for (const TDictionaryInput& Each : Chosen)
        Locales.push_back(Each.Locale);
    Work([&] { return PlanExport(FScan, Locales, EdtFolder->Text()); });
}

// Shows the result, or, when there is none, the page that was there before.
void TObxWizard::Work(const std::function<TProjectChanges()>& Plan)
{
    const TPageKind Before = ShownPage();
    const auto GoBack = [&] {
        FWorking = false;
        ShowPage(Before);
    };
    FStopped = false;
    FWorking = true;
    ShowPage(wpProgress);
    try {
        const TCursorGuard Cursor(crAppStart);
        const TProjectChanges Changes = Plan();
        WriteChanges(Changes, [this](const std::string& What, int Done, int Total) {
            // "replace Main.dfm", or a step for all files.
            return ShowProgress(What.substr(std::min(What.find(' '), What.size() - 1) + 1), Done, Total);
        });
        FWorking = false;
        ShowResult(Changes);
    } catch (const EAbort&) {
        GoBack();
        ShowMessage(SWorkStopped);
    } catch (...) {
        GoBack();
        throw;
    }
}

bool TObxWizard::ShowProgress(const std::string& File, int Done, int Total)
{
    LblProgress->SetCaption(NameInProject(File, FScan.Project.FileName));
    PrgWork->SetMax(Total);
    PrgWork->SetPosition(Done);
    Application->ProcessMessages();
    // Closing the window is a wish to stop, too.
    if (ModalResult() != mrNone) {
        SetModalResult(mrNone);
        FStopped = true;
    }
    return !FStopped;
}

void TObxWizard::ShowResult(const TProjectChanges& Changes)
{
    MemResult->SetText(ReportOf(Changes, &GetFileSize));
    ShowPage(wpResult);
    if (FIsEnvironmentProject && ToolServices)
        ToolServices->ReloadProject();
}
