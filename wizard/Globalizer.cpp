#include "wizard/Globalizer.h"

#include <algorithm>
#include <set>

#include "Qlt/LocaleEntries.h"
#include "Qlt/LocaleValues.h"
#include "WizardTexts.h"
#include "core/KeyLines.h"
#include "core/Literals.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/FormNames.h"
#include "wizard/DialogTexts.h"
#include "wizard/Languages.h"
#include "wizard/TranslatorObjects.h"

namespace {

class TGlobalization {
public:
    TGlobalization(TProjectScan Scan, const TGlobalizeChoices& Choices)
        : FEdit(std::move(Scan)), FScan(FEdit.Scan()), FChoices(Choices)
    {
    }

    TProjectChanges Plan()
    {
        CheckChoices();
        FDialogTexts = DialogTextsOf(FScan);
        std::vector<bool> Done(FScan.Forms.size());
        for (size_t I = 0; I < FScan.Forms.size(); ++I)
            GlobalizeForm(I, Done);
        if (FChoices.Resources)
            PlaceResourceTranslators();
        if (FChoices.CommonDialogs)
            PlaceButtonTranslator();
        PlaceLocaleTranslator();
        return FEdit.Changes();
    }

private:
    [[noreturn]] static void Refuse(const std::string& Message) { throw EInvalidOperation(Message); }

    void CheckChoices();
    void GlobalizeForm(size_t Index, std::vector<bool>& Done);
    void TranslateForm(TFoundForm& Form);
    void TranslateDialogs(TFoundForm& Form);
    void FillDialogs(const TPlacedTranslator& Translator);
    void AddMissing(const TPlacedTranslator& Translator, const TLineMap& Originals);
    void PlaceResourceTranslators();
    void PlaceButtonTranslator();
    void PlaceLocaleTranslator();
    void FillForm(const TPlacedTranslator& Translator);
    TLineMap InheritedLines(const TPlacedTranslator& Translator);
    void FillResources(const TPlacedTranslator& Translator);
    void FillLocales(const TPlacedTranslator& Translator);

    bool HasLocale(const std::vector<TPlacedTranslator>& Translators, int Locale) const
    {
        return std::any_of(Translators.begin(), Translators.end(),
                           [&](const TPlacedTranslator& Each) { return Each.Locale == Locale; });
    }
    TPlacedTranslator PlaceNew(TFoundForm& Form, TTranslatorObject Object,
                               const std::vector<std::string>& Names);
    TPlacedTranslator PlaceForLanguage(TFoundForm& Form, const char* ClassName, const char* NameStart,
                                       int Locale);
    const TFormObject* InheritedTranslator(const TFoundForm& Form, const char* ClassName, int Locale);

    TProjectEdit FEdit;
    TProjectScan& FScan;
    const TGlobalizeChoices& FChoices;
    std::vector<int> FLocales;
    TLineMap FDialogTexts;
    TFoundForm* FMainForm = nullptr;
};

void TGlobalization::CheckChoices()
{
    std::set<int> Locales;
    for (const int Locale : FChoices.Locales) {
        if (Locale <= 0)
            Refuse(Format(SNoLocaleIdentifier, {Locale}));
        if (Locale != FChoices.OwnLocale && Locales.insert(Locale).second)
            FLocales.push_back(Locale);
    }
    if (FLocales.empty())
        Refuse(SNoLanguage);
    if (FScan.Forms.empty())
        Refuse(Format(SNoForms, {FScan.Project.Name}));
    const TFoundForm* const Main =
        FChoices.MainForm.empty() ? FScan.MainForm() : FScan.FindForm(FChoices.MainForm);
    if (!Main)
        Refuse(FChoices.MainForm.empty() ? Format(SNoMainForm, {FScan.Project.Name})
                                         : Format(SNoSuchForm, {FChoices.MainForm}));
    if (Main->Kind != TFoundKind::Form)
        Refuse(Format(SNotAForm, {Main->Name}));
    FMainForm = &FScan.Forms[static_cast<size_t>(Main - FScan.Forms.data())];
    const bool CanSelect =
        std::any_of(Main->Selectors.begin(), Main->Selectors.end(),
                    [&](const std::string& Name) { return SameName(Name, FChoices.Selector); });
    if (!FChoices.Selector.empty() && !CanSelect)
        Refuse(Format(SNoSuchSelector, {FChoices.Selector, Main->Name}));
}

// Ancestors first: their descendants have the same translators.
void TGlobalization::GlobalizeForm(size_t Index, std::vector<bool>& Done)
{
    if (Done[Index])
        return;
    Done[Index] = true;
    TFoundForm& Form = FScan.Forms[Index];
    if (Form.Ancestor >= 0)
        GlobalizeForm(static_cast<size_t>(Form.Ancestor), Done);
    std::vector<std::string>& Notes = FEdit.ChangeOf(Form).Notes;
    if (Form.Kind == TFoundKind::Frame) {
        Notes.push_back(SFrameLeftAlone);
        return;
    }
    const bool IsEmptyModule = Form.Kind == TFoundKind::DataModule && Form.Texts.empty();
    if (IsEmptyModule && Form.Dialogs.empty())
        Notes.push_back(SModuleWithoutTexts);
    if (FChoices.Forms && !IsEmptyModule)
        TranslateForm(Form);
    if (FChoices.CommonDialogs && !Form.Dialogs.empty())
        TranslateDialogs(Form);
}

void TGlobalization::TranslateForm(TFoundForm& Form)
{
    const auto Present = FEdit.Translators(Form, FormTranslatorClass);
    for (const int Locale : FLocales)
        if (!HasLocale(Present, Locale))
            PlaceForLanguage(Form, FormTranslatorClass, "FormTranslator", Locale);
    if (!FChoices.ScanForms)
        return;
    for (const TPlacedTranslator& Each : FEdit.Translators(Form, FormTranslatorClass))
        if (std::find(FLocales.begin(), FLocales.end(), Each.Locale) != FLocales.end())
            FillForm(Each);
}

void TGlobalization::FillForm(const TPlacedTranslator& Translator)
{
    TLineMap Originals;
    for (const std::string& Text : Translator.Form->Texts) {
        const std::string Key(KeyOf(Text));
        Originals[Key] = Text.substr(Key.size() + 1);
    }
    AddMissing(Translator, Originals);
    if (const TTranslatorStorage Storage = FEdit.StorageOf(Translator); Storage.File)
        TTranslatorLines(Storage).PutOriginals(Originals);
}

// Lines for the originals that have none yet.
void TGlobalization::AddMissing(const TPlacedTranslator& Translator, const TLineMap& Originals)
{
    TTranslatorLines Lines(FEdit.StorageOf(Translator));
    const TLineMap Present = Lines.All();
    const TLineMap Inherited = InheritedLines(Translator);
    TLineMap Missing;
    for (const auto& [Key, Original] : Originals) {
        if (Present.contains(Key))
            continue;
        const auto Known = Inherited.find(Key);
        Missing[Key] = Known == Inherited.end() ? ToLiterals("") : Known->second;
    }
    TFileChange& Change = FEdit.ChangeOf(*Translator.Form);
    Change.Added += static_cast<int>(Missing.size());
    Change.Kept += static_cast<int>(Originals.size() - Missing.size());
    Lines.Put(Missing);
}

// A descendant's list takes the place of its ancestor's.
TLineMap TGlobalization::InheritedLines(const TPlacedTranslator& Translator)
{
    if (Translator.Form->Ancestor < 0)
        return {};
    TFoundForm& Ancestor = FScan.Forms[static_cast<size_t>(Translator.Form->Ancestor)];
    for (const TPlacedTranslator& Each : FEdit.Translators(Ancestor, Translator.Object().ClassName()))
        if (Each.Locale == Translator.Locale)
            return TTranslatorLines(FEdit.StorageOf(Each)).All();
    return {};
}

void TGlobalization::TranslateDialogs(TFoundForm& Form)
{
    const auto Present = FEdit.Translators(Form, DialogTranslatorClass);
    bool IsNew = false;
    for (const int Locale : FLocales)
        if (!HasLocale(Present, Locale)) {
            PlaceForLanguage(Form, DialogTranslatorClass, "DialogTranslator", Locale);
            IsNew = true;
        }
    for (const TPlacedTranslator& Each : FEdit.Translators(Form, DialogTranslatorClass))
        if (std::find(FLocales.begin(), FLocales.end(), Each.Locale) != FLocales.end())
            FillDialogs(Each);
    const bool IsKnown = std::none_of(Form.Dialogs.begin(), Form.Dialogs.end(),
                                      [](const std::string& Dialog) { return DialogTexts(Dialog).empty(); });
    if (IsNew && !IsKnown)
        FEdit.ChangeOf(Form).Notes.push_back(SDialogTexts);
}

// What the system's own dialogs were found to say stays.
void TGlobalization::FillDialogs(const TPlacedTranslator& Translator)
{
    TLineMap Originals = FDialogTexts;
    AddMissing(Translator, Originals);
    TTranslatorLines Lines(FEdit.StorageOf(Translator));
    for (const auto& Known : Lines.Originals())
        Originals.erase(Known.first);
    Lines.PutOriginals(Originals);
}

void TGlobalization::PlaceResourceTranslators()
{
    if (FScan.ResourceStrings().empty())
        return;
    const auto Present = FEdit.Translators(ResourceTranslatorClass);
    for (const int Locale : FLocales)
        if (!HasLocale(Present, Locale))
            PlaceForLanguage(*FMainForm, ResourceTranslatorClass, "ResourceTranslator", Locale);
    for (const TPlacedTranslator& Each : FEdit.Translators(ResourceTranslatorClass))
        if (std::find(FLocales.begin(), FLocales.end(), Each.Locale) != FLocales.end())
            FillResources(Each);
}

void TGlobalization::FillResources(const TPlacedTranslator& Translator)
{
    TResourceLines Lines(FEdit.StorageOf(Translator));
    const TLineMap Present = Lines.All();
    const std::vector<std::string> Sources = FScan.ResourceStrings();
    TLineMap Missing;
    for (const std::string& Source : Sources)
        if (!Present.contains(Source))
            Missing[Source] = "";
    TFileChange& Change = FEdit.ChangeOf(*Translator.Form);
    Change.Added += static_cast<int>(Missing.size());
    Change.Kept += static_cast<int>(Sources.size() - Missing.size());
    Lines.Put(Missing);
}

// An application has one, and its captions are those of one language at a time.
void TGlobalization::PlaceButtonTranslator()
{
    if (!FEdit.Translators(ButtonTranslatorClass).empty())
        return;
    const int Only =
        FLocales.size() == 1 && ButtonLanguage(FLocales.front()) != lnUser ? FLocales.front() : 0;
    PlaceNew(*FMainForm, ButtonTranslatorObject(Only), {"ButtonTranslator"});
    if (Only == 0)
        FEdit.ChangeOf(*FMainForm).Notes.push_back(SButtonLanguage);
}

void TGlobalization::PlaceLocaleTranslator()
{
    if (FEdit.Translators(LocaleTranslatorClass).empty())
        PlaceNew(
            *FMainForm,
            LocaleTranslatorObject(LocaleValue(LanguageAndCountry(FChoices.OwnLocale), FChoices.OwnLocale),
                                   FChoices.TranslationsFile),
            {"LocaleTranslator"});
    for (const TPlacedTranslator& Each : FEdit.Translators(LocaleTranslatorClass)) {
        FillLocales(Each);
        if (Each.Form == FMainForm && !FChoices.Selector.empty())
            Each.Object().SetValue("AdoptOn", TFormValue::Ident(FChoices.Selector));
    }
}

void TGlobalization::FillLocales(const TPlacedTranslator& Translator)
{
    TTranslatorLines Lines(FEdit.StorageOf(Translator));
    const TLineMap Present = Lines.All();
    std::vector<int> Wanted = FLocales;
    Wanted.push_back(FChoices.OwnLocale);
    TLineMap Missing;
    for (const int Locale : Wanted) {
        const auto First = Present.lower_bound(EntryPrefix(Locale));
        if (First != Present.end() && First->first.starts_with(EntryPrefix(Locale)))
            continue;
        for (const std::string& Entry : LocaleTranslatorEntries(Locale))
            Missing[std::string(KeyOf(Entry))] = ValueOf(Entry);
        FEdit.ChangeOf(*Translator.Form)
            .Notes.push_back(Format(SLocaleOffered, {LanguageAndCountry(Locale)}));
    }
    Lines.Put(Missing);
}

TPlacedTranslator TGlobalization::PlaceNew(TFoundForm& Form, TTranslatorObject Object,
                                           const std::vector<std::string>& Names)
{
    const int Locale = Object.Locale;
    return FEdit.Place(
        Form, MakeFormObject(std::move(Object), FreeName(FScan, Form, Names), Form.Document.Root), Locale);
}

TPlacedTranslator TGlobalization::PlaceForLanguage(TFoundForm& Form, const char* ClassName,
                                                   const char* NameStart, int Locale)
{
    if (const TFormObject* const Ancestor = InheritedTranslator(Form, ClassName, Locale))
        return FEdit.Place(Form, InheritedObject(*Ancestor), Locale);
    // What the ancestors of a form have that is not in the project cannot be seen.
    const bool HasUnknown = Form.Document.Root.Kind() == TFormObjectKind::Inherited && Form.Ancestor < 0;
    return PlaceNew(Form, TranslatorObject(ClassName, Locale, FChoices.TranslationsFile),
                    NamesWithLanguage((HasUnknown ? Form.Name : std::string()) + NameStart, Locale));
}

const TFormObject* TGlobalization::InheritedTranslator(const TFoundForm& Form, const char* ClassName,
                                                       int Locale)
{
    if (Form.Ancestor < 0)
        return nullptr;
    for (const TPlacedTranslator& Each :
         FEdit.Translators(FScan.Forms[static_cast<size_t>(Form.Ancestor)], ClassName))
        if (Each.Locale == Locale)
            return &Each.Object();
    return nullptr;
}

} // namespace

TProjectChanges PlanGlobalization(TProjectScan Scan, const TGlobalizeChoices& Choices)
{
    return TGlobalization(std::move(Scan), Choices).Plan();
}

void WriteChanges(const TProjectChanges& Changes, const TProjectProgress& Progress)
{
    const std::vector<TProjectFile> Files = Changes.ToWrite();
    // Three steps a file, and four for the journal.
    const int Total = static_cast<int>(Files.size()) * 5 + 4;
    int Done = 0;
    bool IsDecided = false;
    WriteProjectFiles(Changes.ProjectFileName, Files, [&](const std::string& What) {
        IsDecided = IsDecided || What == "done";
        const bool GoOn = !Progress || Progress(What, Done++, Total);
        if (!GoOn && !IsDecided)
            throw EAbort();
    });
}
