#include "framework/rtl/DynamicProps.h"

#include <algorithm>

#include "framework/rtl/Persistent.h"
#include "framework/rtl/SysUtils.h"

namespace {

const TDynamicProp& Self(const TPropInfo& Prop)
{
    return static_cast<const TDynamicProp&>(Prop);
}

TPropAccess AccessFor(TTypeKind Kind)
{
    TPropAccess Access;
    switch (Kind) {
    case tkInteger:
    case tkInt64:
    case tkEnumeration:
    case tkSet:
        Access.GetOrd = [](const TPropInfo& Prop, const TObject&) {
            return std::get<int64_t>(Self(Prop).Value);
        };
        Access.SetOrd = [](const TPropInfo& Prop, TObject&, int64_t Value) { Self(Prop).Value = Value; };
        break;
    case tkFloat:
        Access.GetFloat = [](const TPropInfo& Prop, const TObject&) {
            return std::get<double>(Self(Prop).Value);
        };
        Access.SetFloat = [](const TPropInfo& Prop, TObject&, double Value) { Self(Prop).Value = Value; };
        break;
    case tkClass:
        Access.GetObj = [](const TPropInfo& Prop, const TObject&) -> TObject* {
            return std::get<std::unique_ptr<TPersistent>>(Self(Prop).Value).get();
        };
        break;
    case tkUnknown:
        break;
    default:
        Access.GetStr = [](const TPropInfo& Prop, const TObject&) {
            return std::get<std::string>(Self(Prop).Value);
        };
        Access.SetStr = [](const TPropInfo& Prop, TObject&, const std::string& Value) {
            Self(Prop).Value = Value;
        };
    }
    return Access;
}

} // namespace

TDynamicProperties::TDynamicProperties(const TPersistent& Object) : FObject(Object)
{
    Rebuild();
}

TDynamicProperties::~TDynamicProperties() = default;

void TDynamicProperties::SetClass(const TMetaClass* Value)
{
    FClass = Value;
    Rebuild();
}

TDynamicProp& TDynamicProperties::AddInteger(const std::string& Name, int64_t Value, const TTypeInfo* Type)
{
    TDynamicProp& Result = Add(Name, Type ? *Type : TTypeInfo::Integer("Integer", INT32_MIN, INT32_MAX));
    Result.Value = Value;
    return Result;
}

TDynamicProp& TDynamicProperties::AddInt64(const std::string& Name, int64_t Value)
{
    TDynamicProp& Result = Add(Name, TTypeInfo::Simple(tkInt64, "Int64"));
    Result.Value = Value;
    return Result;
}

TDynamicProp& TDynamicProperties::AddFloat(const std::string& Name, double Value)
{
    TDynamicProp& Result = Add(Name, TTypeInfo::Simple(tkFloat, "Double"));
    Result.Value = Value;
    return Result;
}

TDynamicProp& TDynamicProperties::AddString(const std::string& Name, const std::string& Value)
{
    TDynamicProp& Result = Add(Name, TTypeInfo::Simple(tkLString, "String"));
    Result.Value = Value;
    return Result;
}

TDynamicProp& TDynamicProperties::AddEnumeration(const std::string& Name, const std::string& Ident)
{
    TTypeInfo Type = TTypeInfo::Enumeration(Name, Ident);
    Type.IsOpen = true;
    TDynamicProp& Result = Add(Name, std::move(Type));
    Result.Value = int64_t{0};
    return Result;
}

TDynamicProp& TDynamicProperties::AddBoolean(const std::string& Name, bool Value)
{
    TDynamicProp& Result = Add(Name, TypeInfoFor(TTypeTag<bool>{}));
    Result.Value = int64_t{Value};
    return Result;
}

TDynamicProp& TDynamicProperties::AddSet(const std::string& Name, const std::vector<std::string>& Idents)
{
    // The names in the file get the bits 0, 1, 2...: the declaration that would
    // tell their real places is not known.
    TTypeInfo Type = TTypeInfo::Simple(tkSet, Name);
    Type.Names = Idents;
    TDynamicProp& Result = Add(Name, std::move(Type));
    Result.Value =
        static_cast<int64_t>(Idents.size() >= 64 ? ~uint64_t{0} : (uint64_t{1} << Idents.size()) - 1);
    return Result;
}

TDynamicProp& TDynamicProperties::AddObject(const std::string& Name, std::unique_ptr<TPersistent> Value)
{
    TDynamicProp& Result = Add(Name, TTypeInfo::Simple(tkClass, Value->ClassName()));
    Result.Value = std::move(Value);
    return Result;
}

TDynamicProp& TDynamicProperties::AddOpaque(const std::string& Name, std::unique_ptr<TPersistent> Value)
{
    TDynamicProp& Result = Add(Name, TTypeInfo::Simple(tkUnknown, ""));
    Result.Value = std::move(Value);
    return Result;
}

void TDynamicProperties::Remove(std::string_view Name)
{
    // All() still names it.
    std::vector<std::unique_ptr<TDynamicProp>> Leaving;
    for (auto& Prop : FOwn)
        if (SameText(Prop->Name, Name))
            Leaving.push_back(std::move(Prop));
    std::erase(FOwn, nullptr);
    Rebuild();
}

TDynamicProp* TDynamicProperties::Find(std::string_view Name) const
{
    for (const auto& Prop : FOwn)
        if (SameText(Prop->Name, Name))
            return Prop.get();
    return nullptr;
}

int TDynamicProperties::IndexOf(std::string_view Name) const
{
    for (size_t I = 0; I < FAll.size(); ++I)
        if (FAll[I]->Name == Name)
            return static_cast<int>(I);
    return -1;
}

TDynamicProp& TDynamicProperties::Add(const std::string& Name, TTypeInfo Type)
{
    TDynamicProp* Prop = Find(Name);
    if (!Prop) {
        FOwn.push_back(std::make_unique<TDynamicProp>());
        Prop = FOwn.back().get();
        Prop->Name = Name;
    }
    Prop->IsDynamic = true;
    Prop->OwnType = std::move(Type);
    Prop->PropType = &Prop->OwnType;
    Prop->Access = AccessFor(Prop->OwnType.Kind);
    Rebuild();
    return *Prop;
}

void TDynamicProperties::Rebuild()
{
    const auto Declared = (FClass ? *FClass : FObject.DeclaredClass()).Properties();
    FAll.assign(Declared.begin(), Declared.end());
    for (const auto& Prop : FOwn) {
        const auto Same = std::find_if(FAll.begin(), FAll.end(), [&](const TPropInfo* Other) {
            return SameText(Other->Name, Prop->Name);
        });
        if (Same != FAll.end())
            *Same = Prop.get();
        else
            FAll.push_back(Prop.get());
    }
}
