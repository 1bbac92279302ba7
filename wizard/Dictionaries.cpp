#include "wizard/Dictionaries.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <set>

#include "WizardTexts.h"
#include "core/DictionaryFile.h"
#include "core/DictionaryText.h"
#include "core/KeyLines.h"
#include "core/LineSplitter.h"
#include "core/Literals.h"
#include "core/TextFile.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"

namespace {

constexpr const char* TranslatorClasses[] = {FormTranslatorClass, ResourceTranslatorClass,
                                             DialogTranslatorClass};

// A source text as a dictionary gives it back: not all texts survive the way.
std::string AsRead(const std::string& Text)
{
    return ReadString(WriteString(Text));
}

// The texts of one translator: key, source and translation, all plain.
class TTranslatorTexts {
public:
    TTranslatorTexts(TProjectEdit& Edit, const TPlacedTranslator& Translator)
        : FTranslator(Translator), FStorage(Edit.StorageOf(Translator)),
          FIsResource(FStorage.Translator.ClassName() == ResourceTranslatorClass)
    {
        if (FIsResource)
            FLines = TResourceLines(FStorage).All();
        else
            ReadLines();
    }

    void
    ForEach(const std::function<void(const std::string& Source, const std::string& Translation)>& Visit) const
    {
        for (const auto& [Key, Value] : FLines)
            if (const std::string* const Source = SourceOf(Key))
                Visit(*Source, FIsResource ? Value : FromLiterals(Value));
    }

    // Returns how many texts got another translation.
    int Translate(const TLineMap& Dictionary)
    {
        TLineMap Changed;
        for (const auto& [Key, Value] : FLines) {
            const std::string* const Source = SourceOf(Key);
            const auto Found = Source ? Dictionary.find(AsRead(*Source)) : Dictionary.end();
            if (Found == Dictionary.end())
                continue;
            const std::string New = FIsResource ? Found->second : ToLiterals(Found->second);
            if (New != Value)
                Changed[Key] = New;
        }
        if (FIsResource)
            TResourceLines(FStorage).Put(Changed);
        else
            TTranslatorLines(FStorage).Put(Changed);
        return static_cast<int>(Changed.size());
    }

private:
    void ReadLines()
    {
        FLines = TTranslatorLines(FStorage).All();
        TLineMap Originals;
        if (FStorage.Translator.ClassName() == FormTranslatorClass)
            for (const std::string& Text : FTranslator.Form->Texts)
                Originals.emplace(KeyOf(Text), ValueOf(Text, std::string::npos));
        else
            Originals = TTranslatorLines(FStorage).Originals();
        // Numbers and names of fonts are no texts.
        for (const auto& [Key, Value] : Originals)
            if (Value.starts_with('\'') || Value.starts_with('#'))
                FSources.emplace(Key, FromLiterals(Value));
    }

    const std::string* SourceOf(const std::string& Key) const
    {
        if (FIsResource)
            return &Key;
        const auto Found = FSources.find(Key);
        return Found == FSources.end() ? nullptr : &Found->second;
    }

    TPlacedTranslator FTranslator;
    TTranslatorStorage FStorage;
    bool FIsResource;
    TLineMap FLines;
    TLineMap FSources;
};

std::vector<TPlacedTranslator> TranslatorsOf(TProjectEdit& Edit, int Locale)
{
    std::vector<TPlacedTranslator> Result;
    for (const char* const ClassName : TranslatorClasses)
        for (const TPlacedTranslator& Each : Edit.Translators(ClassName))
            if (Each.Locale == Locale)
                Result.push_back(Each);
    if (Result.empty())
        throw EInvalidOperation(Format(SNoTranslatorsOf, {Locale}));
    return Result;
}

TLineMap PairsOf(TProjectEdit& Edit, int Locale)
{
    TLineMap Result;
    for (const TPlacedTranslator& Each : TranslatorsOf(Edit, Locale))
        TTranslatorTexts(Edit, Each).ForEach([&](const std::string& Source, const std::string& Translation) {
            std::string& Present = Result[Source];
            if (Present.empty())
                Present = Translation;
        });
    return Result;
}

// The dictionary Text, with the pairs of a project.
std::string WithPairs(const std::string& Text, const TLineMap& Pairs, TFileChange& Change)
{
    TLineMap Lines; // by the source as it is written, with the TAB
    TLineSplitter Splitter(Text);
    std::string_view Line;
    while (Splitter.Next(Line)) {
        const size_t End = std::min(Line.find('\t'), Line.size() - 1) + 1;
        Lines.insert_or_assign(std::string(Line.substr(0, End)), std::string(Line.substr(End)));
    }
    for (const auto& [Source, Translation] : Pairs) {
        const auto [Place, IsNew] = Lines.try_emplace(WriteString(Source) + "\t", WriteString(Translation));
        ++(IsNew ? Change.Added : Change.Kept);
        if (!Translation.empty())
            Place->second = WriteString(Translation);
    }
    std::set<std::string> Sorted;
    for (const auto& [Front, Rest] : Lines)
        Sorted.insert(Front + Rest);
    std::string Result;
    for (const std::string& Each : Sorted)
        Result += Each + "\r\n";
    return Result;
}

} // namespace

std::string DictionaryName(const TProject& Project, int Locale, const std::string& Folder)
{
    const std::string Name =
        ChangeFileExt(ExtractFileName(Project.FileName), "") + "." + IntToStr(Locale) + ".txt";
    if (Folder.empty())
        return ExtractFilePath(Project.FileName) + Name;
    return Folder + (ExtractFileName(Folder).empty() ? "" : "/") + Name;
}

int LocaleOfDictionary(const std::string& FileName)
{
    const std::string Digits = ExtractFileExt(ChangeFileExt(ExtractFileName(FileName), ""));
    int Result = 0;
    const auto [Stop, Error] = std::from_chars(Digits.data() + std::min<size_t>(1, Digits.size()),
                                               Digits.data() + Digits.size(), Result);
    return Error == std::errc() && Stop == Digits.data() + Digits.size() && Result > 0 ? Result : 0;
}

TProjectChanges PlanExport(TProjectScan Scan, const std::vector<int>& Locales, const std::string& Folder)
{
    const std::vector<int> Wanted = Locales.empty() ? Scan.Locales() : Locales;
    if (Wanted.empty())
        throw EInvalidOperation(SNoTranslators);
    TProjectEdit Edit(std::move(Scan));
    TProjectChanges Result;
    Result.ProjectFileName = Edit.Scan().Project.FileName;
    for (const int Locale : Wanted) {
        TFileChange& Change = Result.Files.emplace_back();
        Change.Name = DictionaryName(Edit.Scan().Project, Locale, Folder);
        std::string Text;
        if (FileExists(Change.Name)) {
            Change.Before = ReadWholeFile(Change.Name);
            Text = ReadTextFile(Change.Name);
        }
        Change.After = WithPairs(Text, PairsOf(Edit, Locale), Change);
    }
    return Result;
}

TProjectChanges PlanImport(TProjectScan Scan, const std::vector<TDictionaryInput>& Dictionaries)
{
    TProjectEdit Edit(std::move(Scan));
    for (const TDictionaryInput& Input : Dictionaries) {
        TLineMap Dictionary;
        for (const auto& [Source, Translation] : ReadDictionaryPairs(Input.FileName))
            if (!Translation.empty())
                Dictionary[Source] = Translation;
        for (const TPlacedTranslator& Each : TranslatorsOf(Edit, Input.Locale)) {
            TTranslatorTexts Texts(Edit, Each);
            Edit.ChangeOf(*Each.Form).Translated += Texts.Translate(Dictionary);
        }
    }
    return Edit.Changes();
}
