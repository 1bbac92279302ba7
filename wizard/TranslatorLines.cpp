#include "wizard/TranslatorLines.h"

#include <algorithm>
#include <charconv>

#include "core/Bisection.h"
#include "core/KeyLines.h"
#include "core/Literals.h"
#include "framework/rtl/Exceptions.h"
#include "framework/streaming/FormNames.h"

namespace {

constexpr const char* Translations = "Translations.Strings";
constexpr const char* DialogOriginals = "Storage";
constexpr const char* ResourceSources = "ResStrings";

const std::vector<TFormValue>& ListOf(const TFormObject& Object, const char* Name)
{
    static const std::vector<TFormValue> None;
    const TFormValue* const Value = Object.FindValue(Name);
    return Value && Value->Is(TFormValueKind::List) ? Value->AsList() : None;
}

// A new property goes before those that the designer adds.
std::vector<TFormValue>& EditListOf(TFormObject& Object, const char* Name)
{
    if (TFormProperty* const Present = Object.Find(Name)) {
        if (!Present->Value.Is(TFormValueKind::List))
            Present->Value = TFormValue::List({});
        return Present->Value.EditList();
    }
    auto& Properties = Object.Properties();
    const auto Place = std::find_if(Properties.begin(), Properties.end(), [](const TFormProperty& Each) {
        return SameName(Each.Name(), "Left") || SameName(Each.Name(), "Top") ||
               SameName(Each.Name(), "Storage") || SameName(Each.Name(), "ResStrings");
    });
    return Properties.insert(Place, TFormProperty(Name, TFormValue::List({})))->Value.EditList();
}

std::string_view TextOf(const TFormValue& Value)
{
    return Value.Is(TFormValueKind::String) ? std::string_view(Value.AsString()) : std::string_view();
}

TLineMap LinesIn(const TFormObject& Object, const char* Name)
{
    TLineMap Result;
    for (const TFormValue& Value : ListOf(Object, Name))
        if (const std::string_view Key = KeyOf(TextOf(Value)); !Key.empty())
            Result.emplace(Key, TextOf(Value).substr(Key.size() + 1));
    return Result;
}

void PutLinesIn(TFormObject& Object, const char* Name, TLineMap Lines)
{
    const TLineMap Present = LinesIn(Object, Name);
    std::erase_if(Lines, [&](const auto& Line) {
        const auto Found = Present.find(Line.first);
        return Found != Present.end() && Found->second == Line.second;
    });
    if (Lines.empty())
        return;
    std::vector<TFormValue>& List = EditListOf(Object, Name);
    for (TFormValue& Value : List) {
        const auto Changed = Lines.find(std::string(KeyOf(TextOf(Value))));
        if (Changed == Lines.end())
            continue;
        Value = TFormValue::String(Changed->first + "=" + Changed->second);
        Lines.erase(Changed);
    }
    for (const auto& [Key, Value] : Lines) {
        std::string Line = Key + "=" + Value;
        const int Place = Bisect(Line, static_cast<int>(List.size()), [&](int I) {
                              return TextOf(List[static_cast<size_t>(I)]);
                          }).Position;
        List.insert(List.begin() + Place, TFormValue::String(std::move(Line)));
    }
}

TLineMap LinesIn(const TTranslationsText& File, const TTranslationsOwner& Owner)
{
    TLineMap Result;
    File.ForEach(Owner, [&](std::string_view Key, const std::string& Value) { Result.emplace(Key, Value); });
    return Result;
}

void PutLinesIn(TTranslationsText& File, const TTranslationsOwner& Owner, const TLineMap& Lines)
{
    for (const auto& [Key, Value] : Lines)
        File.Put(Owner, Key, Value);
}

} // namespace

std::string PlainText(const TTranslationsOwner& Owner, std::string_view Key, const std::string& Value)
{
    try {
        return FromLiterals(Value);
    } catch (const EConvertError& Error) {
        throw EConvertError(Owner.Section + "." + std::string(Key) + "%" + std::to_string(Owner.Locale) +
                            ": " + Error.Message());
    }
}

TLineMap TTranslatorLines::All() const
{
    return FStorage.File ? LinesIn(*FStorage.File, FStorage.Owner)
                         : LinesIn(FStorage.Translator, Translations);
}

void TTranslatorLines::Put(const TLineMap& Lines)
{
    if (FStorage.File)
        PutLinesIn(*FStorage.File, FStorage.Owner, Lines);
    else
        PutLinesIn(FStorage.Translator, Translations, Lines);
}

TLineMap TTranslatorLines::Originals() const
{
    return FStorage.File ? LinesIn(*FStorage.File, OriginalsOwner())
                         : LinesIn(FStorage.Translator, DialogOriginals);
}

void TTranslatorLines::PutOriginals(const TLineMap& Lines)
{
    if (FStorage.File)
        PutLinesIn(*FStorage.File, OriginalsOwner(), Lines);
    else
        PutLinesIn(FStorage.Translator, DialogOriginals, Lines);
}

TLineMap TResourceLines::All() const
{
    TLineMap Result;
    if (FStorage.File) {
        FStorage.File->ForEach(SourcesOwner(), [&](std::string_view Key, const std::string& Source) {
            const std::string* const Translation = FStorage.File->Find(FStorage.Owner, Key);
            if (Translation)
                Result.emplace(PlainText(SourcesOwner(), Key, Source),
                               PlainText(FStorage.Owner, Key, *Translation));
        });
        return Result;
    }
    const auto& Texts = ListOf(FStorage.Translator, Translations);
    const auto& Sources = ListOf(FStorage.Translator, ResourceSources);
    for (size_t I = 0; I + 1 < Sources.size(); I += 2) {
        const TFormValue& Number = Sources[I + 1];
        const auto Index =
            Number.Is(TFormValueKind::Integer) ? static_cast<size_t>(Number.AsInteger()) : Texts.size();
        Result.emplace(TextOf(Sources[I]), Index < Texts.size() ? TextOf(Texts[Index]) : std::string_view());
    }
    return Result;
}

void TResourceLines::Put(const TLineMap& Pairs)
{
    if (FStorage.File)
        PutInFile(Pairs);
    else
        PutInForm(Pairs);
}

// The numbers of the sources, which all languages share, stay.
void TResourceLines::PutInFile(const TLineMap& Pairs)
{
    constexpr std::string_view NumberStart = "Res";
    std::map<std::string, std::string> Keys; // by source
    int Next = 0;                            // number
    FStorage.File->ForEach(SourcesOwner(), [&](std::string_view Key, const std::string& Source) {
        Keys[PlainText(SourcesOwner(), Key, Source)] = Key;
        int Number = 0;
        if (Key.starts_with(NumberStart))
            std::from_chars(Key.data() + NumberStart.size(), Key.data() + Key.size(), Number);
        Next = std::max(Next, Number + 1);
    });
    for (const auto& [Source, Translation] : Pairs) {
        std::string& Key = Keys[Source];
        if (Key.empty()) {
            Key = std::string(NumberStart) + std::to_string(Next++);
            FStorage.File->Put(SourcesOwner(), Key, ToLiterals(Source));
        }
        FStorage.File->Put(FStorage.Owner, Key, ToLiterals(Translation));
    }
}

void TResourceLines::PutInForm(const TLineMap& Pairs)
{
    const TLineMap Present = All();
    for (const auto& [Source, Translation] : Pairs) {
        const auto Found = Present.find(Source);
        if (Found != Present.end() && Found->second == Translation)
            continue;
        EditListOf(FStorage.Translator, ResourceSources);
        auto& Texts = EditListOf(FStorage.Translator, Translations);
        auto& Sources = EditListOf(FStorage.Translator, ResourceSources);
        const auto LineAt = [&](int I) { return TextOf(Sources[static_cast<size_t>(I) * 2]); };
        const TBisection Place = Bisect(Source, static_cast<int>(Sources.size() / 2), LineAt);
        const size_t At = static_cast<size_t>(Place.Position) * 2;
        const auto Last = static_cast<std::int64_t>(Texts.size());
        const bool IsUsable = Place.Found && Sources[At + 1].Is(TFormValueKind::Integer) &&
                              Sources[At + 1].AsInteger() >= 0 && Sources[At + 1].AsInteger() < Last;
        if (IsUsable) {
            Texts[static_cast<size_t>(Sources[At + 1].AsInteger())] = TFormValue::String(Translation);
            continue;
        }
        Texts.push_back(TFormValue::String(Translation));
        if (Place.Found)
            Sources[At + 1] = TFormValue::Integer(Last);
        else
            Sources.insert(Sources.begin() + static_cast<std::ptrdiff_t>(At),
                           {TFormValue::String(Source), TFormValue::Integer(Last)});
    }
}
