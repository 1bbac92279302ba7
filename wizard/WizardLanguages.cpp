// The pages Languages and Dictionaries.
#include <algorithm>
#include <set>

#include "Qlt/LocaleValues.h"
#include "WizardTexts.h"
#include "core/Hourglass.h"
#include "editors/LocaleLists.h"
#include "framework/forms/ComboBoxes.h"
#include "framework/forms/Dialogs.h"
#include "framework/forms/Edits.h"
#include "framework/forms/Labels.h"
#include "framework/forms/ListBoxes.h"
#include "framework/forms/PushButtons.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/FormNames.h"
#include "wizard/Languages.h"
#include "wizard/ObxWizard.h"

namespace {

constexpr int English = 1033;

// The language that a project was written in when it was globalized.
int OwnLocaleOf(const TProjectScan& Scan)
{
    for (const TFoundForm& Form : Scan.Forms)
        for (const TFormObject& Child : Form.Document.Root.Children()) {
            const TFormValue* const Value = SameName(Child.ClassName(), LocaleTranslatorClass)
                                                ? Child.FindValue("DesignLocale")
                                                : nullptr;
            if (Value && Value->Is(TFormValueKind::String) && IsLocaleValue(Value->AsString()))
                return LocaleOfValue(Value->AsString());
        }
    return English;
}

// By name; those that the system does not know, too.
std::vector<TNamedLocale> LocalesToOffer(std::set<int> Wanted)
{
    TSortList Entries;
    ReadSystemLocales(Entries);
    std::vector<TNamedLocale> Result = NamedLocales(Entries);
    for (const TNamedLocale& Each : Result)
        Wanted.erase(Each.Lcid);
    for (const int Each : Wanted)
        Result.push_back({LanguageAndCountry(Each) + " " + IntToStr(Each), Each});
    std::sort(Result.begin(), Result.end(),
              [](const TNamedLocale& Left, const TNamedLocale& Right) { return Left.Name < Right.Name; });
    return Result;
}

} // namespace

int TObxWizard::OwnLocale() const
{
    const int Item = CbxOwnLocale->ItemIndex();
    return Item < 0 ? OwnLocaleOf(FScan) : ObjectInteger(CbxOwnLocale->Items()->Objects(Item));
}

// Languages that the project has stay in it. What the user has chosen before stays
// chosen.
void TObxWizard::FillLanguages()
{
    const THourglass Hourglass;
    const std::vector<int> Present = FScan.Locales();
    const std::vector<int> Before = ChosenLocales();
    std::set<int> Chosen(Present.begin(), Present.end());
    Chosen.insert(Before.begin(), Before.end());
    const int Own = OwnLocale();
    std::set<int> Needed = Chosen;
    Needed.insert(Own);
    LstLocales->Items()->BeginUpdate();
    LstLocales->Clear();
    CbxOwnLocale->Items()->Clear();
    for (const TNamedLocale& Each : LocalesToOffer(Needed)) {
        CbxOwnLocale->Items()->AddObject(Each.Name, IntegerObject(Each.Lcid));
        const int Item = LstLocales->Items()->AddObject(Each.Name, IntegerObject(Each.Lcid));
        LstLocales->SetChecked(Item, Chosen.contains(Each.Lcid));
        LstLocales->SetItemEnabled(Item,
                                   std::find(Present.begin(), Present.end(), Each.Lcid) == Present.end());
    }
    LstLocales->Items()->EndUpdate();
    CbxOwnLocale->SetItemIndex(CbxOwnLocale->Items()->IndexOfObject(IntegerObject(Own)));
    LstLocales->SetItemIndex(0);
    LstLocalesClickCheck(LstLocales);
}

std::vector<int> TObxWizard::ChosenLocales() const
{
    std::vector<int> Result;
    for (int I = 0; I < LstLocales->Items()->Count(); ++I)
        if (LstLocales->Checked(I))
            Result.push_back(ObjectInteger(LstLocales->Items()->Objects(I)));
    return Result;
}

void TObxWizard::LstLocalesClickCheck(TObject*)
{
    std::string Names;
    for (int I = 0; I < LstLocales->Items()->Count(); ++I)
        if (LstLocales->Checked(I))
            Names += (Names.empty() ? "" : "; ") + LstLocales->Items()->Get(I);
    LblChosen->SetCaption(Names.empty() ? "" : Format(SChosenLanguages, {Names}));
}

void TObxWizard::EdtFolderChange(TObject*)
{
    FillDictionaries();
}

// To be written: one for each language. To be taken over: those that are in the folder,
// and those that the user has added.
void TObxWizard::FillDictionaries()
{
    const bool IsImport = Radio3->Checked();
    LblImport->SetVisible(IsImport);
    LblExport->SetVisible(!IsImport);
    BtnAdd->SetVisible(IsImport);
    FDictionaries.clear();
    for (const int Locale : FScan.Locales()) {
        const std::string FileName = DictionaryName(FScan.Project, Locale, EdtFolder->Text());
        if (!IsImport || FileExists(FileName))
            FDictionaries.push_back({FileName, Locale});
    }
    FDictionaries.insert(FDictionaries.end(), FAdded.begin(), FAdded.end());
    LstDictionaries->Items()->BeginUpdate();
    LstDictionaries->Clear();
    for (const TDictionaryInput& Each : FDictionaries)
        LstDictionaries->SetChecked(
            LstDictionaries->Items()->Add(LanguageAndCountry(Each.Locale) + ": " + Each.FileName), true);
    LstDictionaries->Items()->EndUpdate();
}

std::vector<TDictionaryInput> TObxWizard::ChosenDictionaries() const
{
    std::vector<TDictionaryInput> Result;
    for (size_t I = 0; I < FDictionaries.size(); ++I)
        if (LstDictionaries->Checked(static_cast<int>(I)))
            Result.push_back(FDictionaries[I]);
    return Result;
}

void TObxWizard::BtnAddClick(TObject*)
{
    if (!DlgDictionaries->Execute())
        return;
    for (int I = 0; I < DlgDictionaries->Files()->Count(); ++I) {
        const std::string& FileName = DlgDictionaries->Files()->Get(I);
        const int Locale = LocaleOfDictionary(FileName);
        if (Locale == 0)
            throw EInvalidOperation(Format(
                SNoLocaleInName, {FileName, ExtractFileName(DictionaryName(FScan.Project, English + 20))}));
        FAdded.push_back({FileName, Locale});
    }
    FillDictionaries();
}
