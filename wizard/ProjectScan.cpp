#include "wizard/ProjectScan.h"

#include <algorithm>
#include <set>

#include "Qlt/Qlt.h"
#include "core/KeyLines.h"
#include "core/VisibleTexts.h"
#include "framework/forms/CommonDialog.h"
#include "framework/forms/Forms.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/FormFile.h"
#include "framework/streaming/FormNames.h"
#include "platform/FileSystem.h"
#include "wizard/TranslatableForm.h"
#include "wizard/UnitTexts.h"

namespace {

void RemoveTranslators(TFormObject& Object)
{
    std::erase_if(Object.Children(),
                  [](const TFormObject& Child) { return IsTranslatorClass(Child.ClassName()); });
    for (TFormObject& Child : Object.Children())
        RemoveTranslators(Child);
}

// The form that Derived makes of the one it descends from.
TFormObject Merged(TFormObject Ancestor, const TFormObject& Derived)
{
    Ancestor.SetName(Derived.Name());
    Ancestor.SetClassName(Derived.ClassName());
    for (const TFormProperty& Property : Derived.Properties())
        Ancestor.SetValue(Property.Name(), Property.Value);
    for (const TFormObject& Child : Derived.Children())
        if (TFormObject* const Present = Ancestor.FindChild(Child.Name());
            Present && Child.Kind() == TFormObjectKind::Inherited)
            *Present = Merged(std::move(*Present), Child);
        else
            Ancestor.Children().push_back(Child);
    return Ancestor;
}

void CollectTranslators(const TFormObject& Object, std::vector<TFoundTranslator>& Translators)
{
    for (const TFormObject& Child : Object.Children()) {
        const TFormValue* const FileName = Child.FindValue("FileName");
        if (IsTranslatorClass(Child.ClassName()))
            Translators.push_back(
                {Child.Name(), Child.ClassName(), LocaleOf(Child),
                 FileName && FileName->Is(TFormValueKind::String) ? FileName->AsString() : std::string()});
        CollectTranslators(Child, Translators);
    }
}

class TScanner {
public:
    TScanner(const TProject& Project, int CodePage, const TProjectProgress& Progress)
        : FCodePage(CodePage), FProgress(Progress)
    {
        FScan.Project = Project;
    }

    TProjectScan Scan()
    {
        const TProject& Project = FScan.Project;
        // Forms are read, and then loaded.
        FTotal = static_cast<int>(Project.Units.size() + 2 * Project.Forms.size());
        for (const std::string& File : Project.Units)
            Try(File, [&] { ReadUnit(File); });
        for (const std::string& File : Project.Forms)
            Try(File, [&] { ReadForm(File); });
        FindAncestors();
        for (TFoundForm& Form : FScan.Forms)
            Try(Form.File, [&] { LoadForm(Form); });
        return std::move(FScan);
    }

private:
    template<class TWork>
    void Try(const std::string& File, const TWork& Work)
    {
        if (FProgress && !FProgress(File, FDone++, FTotal))
            throw EAbort();
        const std::string Name = FScan.Project.FullName(File);
        try {
            Work();
        } catch (const std::exception& Error) {
            const std::string Message = Error.what();
            FScan.Errors.push_back(Message.find(Name) == Message.npos ? Name + ": " + Message : Message);
        }
    }

    void ReadUnit(const std::string& File)
    {
        TUnitTexts Unit = ReadUnitTexts(ReadWholeFile(FScan.Project.FullName(File)), FCodePage);
        FParents.merge(Unit.Parents);
        FScan.Units.push_back({File, std::move(Unit.ResourceStrings)});
    }

    void ReadForm(const std::string& File)
    {
        TFoundForm Form;
        TFormFileOptions Options;
        Options.CodePage = FCodePage;
        Options.FileName = FScan.Project.FullName(File);
        if (!FRead.insert(FileIdentity(Options.FileName)).second)
            throw EReadError(Options.FileName + ": the form is in the project twice");
        Form.File = File;
        Form.Bytes = ReadWholeFile(Options.FileName);
        Form.Document = ::ReadForm(Form.Bytes, Options);
        const TFormObject& Root = Form.Document.Root;
        Form.Name = Root.Name().empty() ? Root.ClassName().substr(1) : Root.Name();
        CollectTranslators(Root, Form.Translators);
        FScan.Forms.push_back(std::move(Form));
    }

    void FindAncestors()
    {
        for (TFoundForm& Form : FScan.Forms) {
            const auto Parent = std::find_if(FParents.begin(), FParents.end(), [&](const auto& Each) {
                return SameName(Each.first, Form.Document.Root.ClassName());
            });
            if (Form.Document.Root.Kind() != TFormObjectKind::Inherited || Parent == FParents.end())
                continue;
            for (size_t I = 0; I < FScan.Forms.size(); ++I)
                if (SameName(FScan.Forms[I].Document.Root.ClassName(), Parent->second))
                    Form.Ancestor = static_cast<int>(I);
        }
        for (TFoundForm& Form : FScan.Forms)
            if (IsInCircle(Form))
                Form.Ancestor = -1;
    }

    bool IsInCircle(const TFoundForm& Form) const
    {
        const TFoundForm* Each = &Form;
        for (size_t Steps = 0; Each->Ancestor >= 0; ++Steps) {
            if (Steps > FScan.Forms.size())
                return true;
            Each = &FScan.Forms[static_cast<size_t>(Each->Ancestor)];
        }
        return false;
    }

    // With what it has from its ancestors, and without translators: loading those
    // could read files, and translate.
    TFormObject Complete(const TFoundForm& Form) const
    {
        TFormObject Root = Form.Document.Root;
        if (Form.Ancestor >= 0)
            Root = Merged(Complete(FScan.Forms[static_cast<size_t>(Form.Ancestor)]), Root);
        RemoveTranslators(Root);
        return Root;
    }

    void LoadForm(TFoundForm& Form) const
    {
        TFormDocument Document = Form.Document;
        Document.Root = Complete(Form);
        const TTranslatableForm Loaded(std::move(Document));
        TComponent& Root = Loaded.Root();
        if (dynamic_cast<TDataModule*>(&Root))
            Form.Kind = TFoundKind::DataModule;
        else if (dynamic_cast<TCustomFrame*>(&Root))
            Form.Kind = TFoundKind::Frame;
        CollectTexts(*Loaded.Translators().front(), Form);
        std::set<std::string> Dialogs;
        for (int I = 0; I < Root.ComponentCount(); ++I) {
            TComponent* const Component = Root.Components(I);
            if (dynamic_cast<TCommonDialog*>(Component))
                Dialogs.insert(Component->ClassName());
            if (!Component->Name().empty() && CanBeLanguageSelector(Component))
                Form.Selectors.push_back(Component->Name());
        }
        Form.Dialogs.assign(Dialogs.begin(), Dialogs.end());
    }

    static void CollectTexts(TFormTranslator& Translator, TFoundForm& Form)
    {
        TStringList Lines;
        Translator.TranslateForm(&Lines, true);
        std::set<std::string> Keys;
        for (int I = 0; I < Lines.Count(); ++I) {
            const std::string& Line = Lines.Get(I);
            const std::string Key(KeyOf(Line));
            const bool IsText = Key.find('%') == Key.npos && IsVisibleText(Key, Line.substr(Key.size() + 1));
            if (IsText && Keys.insert(Key).second)
                Form.Texts.push_back(Line);
        }
    }

    int FCodePage;
    const TProjectProgress& FProgress;
    TProjectScan FScan;
    std::map<std::string, std::string> FParents;
    std::set<std::string> FRead; // forms, by the identity of their files
    int FDone = 0;
    int FTotal = 0;
};

} // namespace

const TFoundForm* TProjectScan::FindForm(const std::string& Name) const
{
    const auto Found = std::find_if(Forms.begin(), Forms.end(),
                                    [&](const TFoundForm& Form) { return SameName(Form.Name, Name); });
    return Found == Forms.end() ? nullptr : &*Found;
}

const TFoundForm* TProjectScan::MainForm() const
{
    if (const TFoundForm* const Named = FindForm(Project.MainForm))
        return Named;
    const auto Found = std::find_if(Forms.begin(), Forms.end(),
                                    [](const TFoundForm& Form) { return Form.Kind == TFoundKind::Form; });
    return Found == Forms.end() ? nullptr : &*Found;
}

std::vector<int> TProjectScan::Locales() const
{
    std::set<int> Result;
    for (const TFoundForm& Form : Forms)
        for (const TFoundTranslator& Translator : Form.Translators)
            if (Translator.Locale != 0 && Translator.ClassName != LocaleTranslatorClass &&
                Translator.ClassName != ButtonTranslatorClass)
                Result.insert(Translator.Locale);
    return {Result.begin(), Result.end()};
}

std::vector<std::string> TProjectScan::ResourceStrings() const
{
    std::set<std::string> Result;
    for (const TFoundUnit& Unit : Units)
        Result.insert(Unit.ResourceStrings.begin(), Unit.ResourceStrings.end());
    return {Result.begin(), Result.end()};
}

TProjectScan ScanProject(const TProject& Project, int CodePage, const TProjectProgress& Progress)
{
    return TScanner(Project, CodePage, Progress).Scan();
}

bool IsTranslatorClass(const std::string& ClassName)
{
    constexpr const char* Classes[] = {FormTranslatorClass, ResourceTranslatorClass, DialogTranslatorClass,
                                       ButtonTranslatorClass, LocaleTranslatorClass};
    return std::any_of(std::begin(Classes), std::end(Classes),
                       [&](const char* Class) { return SameName(ClassName, Class); });
}

int LocaleOf(const TFormObject& Translator)
{
    const TFormValue* const Locale = Translator.FindValue("Locale");
    return Locale && Locale->Is(TFormValueKind::Integer) ? static_cast<int>(Locale->AsInteger()) : 0;
}
