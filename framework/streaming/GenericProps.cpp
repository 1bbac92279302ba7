#include "framework/streaming/GenericProps.h"

#include <algorithm>

#include "framework/rtl/Collection.h"
#include "framework/rtl/Component.h"
#include "framework/rtl/DynamicProps.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/FormDocument.h"

const TMetaClass& TFormValueHolder::MetaClass()
{
    static const TMetaClass Class("TFormValueHolder", &TPersistent::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TFormListTexts::MetaClass()
{
    static const TMetaClass Class("TFormListTexts", &TStringList::MetaClass(), nullptr);
    return Class;
}

TFormListTexts::TFormListTexts(TFormValue List) : FList(std::move(List))
{
    for (const TFormValue& Value : FList.AsList())
        if (Value.Is(TFormValueKind::String))
            Add(Value.AsString());
}

TFormValue TFormListTexts::Value() const
{
    std::vector<TFormValue> Values;
    int Line = 0;
    for (const TFormValue& Value : FList.AsList())
        if (Value.Is(TFormValueKind::String) && Line < Count())
            Values.push_back(TFormValue::String(Get(Line++)));
        else
            Values.push_back(Value);
    return TFormValue::List(std::move(Values));
}

namespace {

bool IsEventName(std::string_view Name)
{
    return Name.size() > 2 && Name.starts_with("On") && Name[2] >= 'A' && Name[2] <= 'Z';
}

void KeepOpaque(TDynamicProperties& Props, const std::string& Name, const TFormValue& Value)
{
    Props.AddOpaque(Name, std::make_unique<TFormValueHolder>(Value));
}

// An identifier is a Boolean, the name of an integer such as clRed, an
// enumerator, or the name of a method or component; only the last two need the
// program's declarations, and are kept as they are.
void AddIdent(TDynamicProperties& Props, const std::string& Name, const TFormValue& Value)
{
    const std::string& Ident = Value.AsIdent();
    int Number = 0;
    if (Value.IsBoolean())
        Props.AddBoolean(Name, Value.IsIdent("True"));
    else if (const TTypeInfo* const Type = FindIntegerConst(Ident, Number))
        Props.AddInteger(Name, Number, Type);
    else if (IsEventName(Name) || Ident.empty() || !(Ident[0] >= 'a' && Ident[0] <= 'z') || Value.IsNil() ||
             Ident.find('.') != Ident.npos)
        KeepOpaque(Props, Name, Value);
    else
        Props.AddEnumeration(Name, Ident);
}

void AddCollection(TPersistent& Instance, const std::string& Name, const TFormValue& Value)
{
    auto Collection = std::make_unique<TGenericCollection>(&Instance);
    for (const TFormItem& Item : Value.AsCollection()) {
        TCollectionItem* const New = Collection->Add();
        for (const TFormProperty& Property : Item.Properties())
            AddGenericProperty(*New, Property.Name(), Property.Value);
    }
    Instance.NeedDynamicProperties().AddObject(Name, std::move(Collection));
}

void AddList(TDynamicProperties& Props, const std::string& Name, const TFormValue& Value)
{
    const auto& Values = Value.AsList();
    const bool HasText = std::any_of(Values.begin(), Values.end(),
                                     [](const TFormValue& Each) { return Each.Is(TFormValueKind::String); });
    if (HasText)
        Props.AddObject(Name, std::make_unique<TFormListTexts>(Value));
    else
        KeepOpaque(Props, Name, Value);
}

void AddValue(TPersistent& Instance, const std::string& Name, const TFormValue& Value)
{
    TDynamicProperties& Props = Instance.NeedDynamicProperties();
    switch (Value.Kind()) {
    case TFormValueKind::Integer:
        if (Value.AsInteger() >= INT32_MIN && Value.AsInteger() <= INT32_MAX)
            Props.AddInteger(Name, Value.AsInteger());
        else
            Props.AddInt64(Name, Value.AsInteger());
        break;
    case TFormValueKind::Float:
        if (Value.FloatType() == TFormFloatType::Extended || Value.FloatType() == TFormFloatType::Double)
            Props.AddFloat(Name, Value.AsFloat());
        else
            KeepOpaque(Props, Name, Value);
        break;
    case TFormValueKind::String:
        Props.AddString(Name, Value.AsString());
        break;
    case TFormValueKind::Ident:
        AddIdent(Props, Name, Value);
        break;
    case TFormValueKind::Set:
        if (Value.AsSet().size() <= 63)
            Props.AddSet(Name, Value.AsSet());
        else
            KeepOpaque(Props, Name, Value);
        break;
    case TFormValueKind::List:
        AddList(Props, Name, Value);
        break;
    case TFormValueKind::Collection:
        AddCollection(Instance, Name, Value);
        break;
    case TFormValueKind::Binary:
        KeepOpaque(Props, Name, Value);
        break;
    }
}

// The sub-object Name of Instance; made when there is none. Null when something
// else has that name.
TPersistent* NeedSubObject(TPersistent& Instance, const std::string& Name)
{
    if (const TPropInfo* const Prop = GetPropInfo(Instance, Name)) {
        auto* const Held =
            Prop->Kind() == tkClass ? dynamic_cast<TPersistent*>(GetObjectProp(Instance, *Prop)) : nullptr;
        // What is stored under the name of another component belongs to this one.
        const auto* const Component = dynamic_cast<const TComponent*>(Held);
        return Component && !Component->IsSubComponent() ? nullptr : Held;
    }
    TDynamicProp& Added =
        Instance.NeedDynamicProperties().AddObject(Name, std::make_unique<TGenericPersistent>());
    return std::get<std::unique_ptr<TPersistent>>(Added.Value).get();
}

} // namespace

void AddGenericProperty(TPersistent& Instance, std::string_view Path, const TFormValue& Value)
{
    const size_t Dot = Path.find('.');
    if (Dot == Path.npos) {
        AddValue(Instance, std::string(Path), Value);
        return;
    }
    const std::string First(Path.substr(0, Dot));
    const std::string_view Rest = Path.substr(Dot + 1);
    const auto Texts = SameText(Rest, "Strings") ? Value.AsStringList() : std::nullopt;
    if (Texts && !GetPropInfo(Instance, First)) {
        auto Lines = std::make_unique<TStringList>();
        for (const std::string& Line : *Texts)
            Lines->Add(Line);
        Instance.NeedDynamicProperties().AddObject(First, std::move(Lines));
    } else if (TPersistent* const Sub = NeedSubObject(Instance, First)) {
        AddGenericProperty(*Sub, Rest, Value);
    } else {
        KeepOpaque(Instance.NeedDynamicProperties(), std::string(Path), Value);
    }
}
