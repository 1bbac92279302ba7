#include "wizard/TranslatorObjects.h"

#include <algorithm>
#include <cstdlib>

#include "Qlt/LocaleValues.h"
#include "framework/streaming/FormNames.h"
#include "wizard/Languages.h"

namespace {

TFormProperty FileNameProperty(const std::string& FileName)
{
    return {"FileName", TFormValue::String(FileName)};
}

TFormProperty LocaleProperty(int Locale)
{
    return {"Locale", TFormValue::Integer(Locale)};
}

TFormProperty TranslateProperty(bool Value)
{
    return {"Translate", TFormValue::Boolean(Value)};
}

// Reading it loads the translations file.
TFormProperty StorageProperty(const std::string& ClassName)
{
    if (SameName(ClassName, ResourceTranslatorClass))
        return {"ResStrings", TFormValue::List({})};
    const bool IsList =
        SameName(ClassName, DialogTranslatorClass) || SameName(ClassName, ButtonTranslatorClass);
    return {"Storage", IsList ? TFormValue::List({}) : TFormValue::Integer(0)};
}

struct TPlace {
    std::int64_t Left;
    std::int64_t Top;
};

// Where the designer shows the icons of components that are no controls.
std::vector<TPlace> TakenPlaces(const TFormObject& Root)
{
    std::vector<TPlace> Result;
    for (const TFormObject& Child : Root.Children()) {
        const TFormValue* const Left = Child.FindValue("Left");
        const TFormValue* const Top = Child.FindValue("Top");
        const bool IsIcon = Left && Top && Left->Is(TFormValueKind::Integer) &&
                            Top->Is(TFormValueKind::Integer) && !Child.Find("Width") && !Child.Find("Height");
        if (IsIcon)
            Result.push_back({Left->AsInteger(), Top->AsInteger()});
    }
    return Result;
}

TPlace FreePlace(const TFormObject& Root)
{
    constexpr int Columns = 8;
    constexpr TPlace First{24, 8};
    constexpr TPlace Step{64, 56};
    constexpr int IconSize = 32;
    const std::vector<TPlace> Taken = TakenPlaces(Root);
    for (int I = 0;; ++I) {
        const TPlace Place{First.Left + Step.Left * (I % Columns), First.Top + Step.Top * (I / Columns)};
        const bool IsFree = std::none_of(Taken.begin(), Taken.end(), [&](const TPlace& Each) {
            return std::llabs(Each.Left - Place.Left) < IconSize &&
                   std::llabs(Each.Top - Place.Top) < IconSize;
        });
        if (IsFree)
            return Place;
    }
}

bool HasName(const TFormObject& Object, const std::string& Name)
{
    return SameName(Object.Name(), Name) ||
           std::any_of(Object.Children().begin(), Object.Children().end(),
                       [&](const TFormObject& Child) { return HasName(Child, Name); });
}

bool IsTaken(const TProjectScan& Scan, const TFoundForm& Form, const std::string& Name)
{
    return HasName(Form.Document.Root, Name) ||
           (Form.Ancestor >= 0 && IsTaken(Scan, Scan.Forms[static_cast<size_t>(Form.Ancestor)], Name));
}

} // namespace

TTranslatorObject TranslatorObject(const std::string& ClassName, int Locale, const std::string& FileName)
{
    TTranslatorObject Result{ClassName,
                             Locale,
                             {FileNameProperty(FileName), LocaleProperty(Locale), TranslateProperty(false)},
                             {}};
    if (!SameName(ClassName, ResourceTranslatorClass))
        Result.Before.emplace_back("TranslateEmpty", TFormValue::Boolean(false));
    Result.After.push_back(StorageProperty(ClassName));
    return Result;
}

TTranslatorObject ButtonTranslatorObject(int Locale)
{
    const TLangName Language = Locale == 0 ? lnUser : ButtonLanguage(Locale);
    return {ButtonTranslatorClass,
            Locale,
            {LocaleProperty(Locale), TranslateProperty(Locale == 0),
             TFormProperty("Language",
                           TFormValue::Ident(GetEnumName(TypeInfoFor(TTypeTag<TLangName>{}), Language)))},
            {StorageProperty(ButtonTranslatorClass)}};
}

TTranslatorObject LocaleTranslatorObject(const std::string& OwnLocale, const std::string& FileName)
{
    return {
        LocaleTranslatorClass,
        0,
        {TFormProperty("DesignLocale", TFormValue::String(OwnLocale)), FileNameProperty(FileName),
         // The language and country in the language itself.
         TFormProperty("ListFormat", TFormValue::String("%2:s (%3:s)")), LocaleProperty(0),
         TFormProperty("StartupLocale", TFormValue::String(LocaleValue(UserDefaultName, UserDefaultLocale))),
         TranslateProperty(true)},
        {StorageProperty(LocaleTranslatorClass)}};
}

TFormObject MakeFormObject(TTranslatorObject Object, const std::string& Name, const TFormObject& Root)
{
    TFormObject Result(TFormObjectKind::Object, Name, Object.ClassName);
    const TPlace Place = FreePlace(Root);
    auto& Properties = Result.Properties();
    Properties = std::move(Object.Before);
    Result.Add("Left", TFormValue::Integer(Place.Left));
    Result.Add("Top", TFormValue::Integer(Place.Top));
    Properties.insert(Properties.end(), Object.After.begin(), Object.After.end());
    return Result;
}

TFormObject InheritedObject(const TFormObject& Ancestor)
{
    TFormObject Result(TFormObjectKind::Inherited, Ancestor.Name(), Ancestor.ClassName());
    const TFormProperty Storage = StorageProperty(Ancestor.ClassName());
    Result.Add(Storage.Name(), Storage.Value);
    return Result;
}

std::string FreeName(const TProjectScan& Scan, const TFoundForm& Form, const std::vector<std::string>& Names)
{
    for (const std::string& Name : Names)
        if (!IsTaken(Scan, Form, Name))
            return Name;
    for (int Number = 2;; ++Number) {
        const std::string Name = Names.back() + "_" + std::to_string(Number);
        if (!IsTaken(Scan, Form, Name))
            return Name;
    }
}
