#include "framework/rtl/TypInfo.h"

#include <algorithm>
#include <cctype>
#include <limits>

#include "framework/rtl/DynamicProps.h"
#include "framework/rtl/Exceptions.h"
#include "framework/rtl/Persistent.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/SysUtils.h"

namespace {

template<class T>
TTypeInfo RangeOf(const char* Name)
{
    return TTypeInfo::Integer(Name, std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
}

std::vector<const TTypeInfo*>& IntegerConstTypes()
{
    static std::vector<const TTypeInfo*> Types;
    return Types;
}

// A pointer to the accessor, or EPropertyError when the property lacks it.
template<class T>
T Need(T Accessor)
{
    if (!Accessor)
        TypInfoRows::RaiseInvalidValue();
    return Accessor;
}

} // namespace

TTypeInfo TTypeInfo::Enumeration(std::string Name, std::string_view Names)
{
    TTypeInfo Result = Simple(tkEnumeration, std::move(Name));
    while (!Names.empty()) {
        const size_t Comma = std::min(Names.find(','), Names.size());
        Result.Names.push_back(Trim(std::string(Names.substr(0, Comma))));
        Names.remove_prefix(std::min(Comma + 1, Names.size()));
    }
    Result.MaxValue = static_cast<int64_t>(Result.Names.size()) - 1;
    return Result;
}

TTypeInfo TTypeInfo::Set(std::string Name, const TTypeInfo& Element)
{
    TTypeInfo Result = Simple(tkSet, std::move(Name));
    Result.Element = &Element;
    return Result;
}

TTypeInfo TTypeInfo::Integer(std::string Name, int64_t Min, int64_t Max, const TIntegerIdents* Idents)
{
    TTypeInfo Result = Simple(tkInteger, std::move(Name));
    Result.MinValue = Min;
    Result.MaxValue = Max;
    Result.Idents = Idents;
    return Result;
}

TTypeInfo TTypeInfo::Simple(TTypeKind Kind, std::string Name)
{
    TTypeInfo Result;
    Result.Kind = Kind;
    Result.Name = std::move(Name);
    return Result;
}

#define OBX_BUILT_IN(Type, Expression)                                                                       \
    const TTypeInfo& TypeInfoFor(TTypeTag<Type>)                                                             \
    {                                                                                                        \
        static const TTypeInfo Info = Expression;                                                            \
        return Info;                                                                                         \
    }

OBX_BUILT_IN(bool, TTypeInfo::Enumeration("Boolean", "False,True"))
OBX_BUILT_IN(char, TTypeInfo::Simple(tkChar, "Char"))
OBX_BUILT_IN(char16_t, TTypeInfo::Simple(tkWChar, "WideChar"))
OBX_BUILT_IN(int8_t, RangeOf<int8_t>("Shortint"))
OBX_BUILT_IN(uint8_t, RangeOf<uint8_t>("Byte"))
OBX_BUILT_IN(int16_t, RangeOf<int16_t>("Smallint"))
OBX_BUILT_IN(uint16_t, RangeOf<uint16_t>("Word"))
OBX_BUILT_IN(int32_t, RangeOf<int32_t>("Integer"))
OBX_BUILT_IN(uint32_t, RangeOf<uint32_t>("Cardinal"))
OBX_BUILT_IN(int64_t, TTypeInfo::Simple(tkInt64, "Int64"))
OBX_BUILT_IN(float, TTypeInfo::Simple(tkFloat, "Single"))
OBX_BUILT_IN(double, TTypeInfo::Simple(tkFloat, "Double"))
OBX_BUILT_IN(std::string, TTypeInfo::Simple(tkLString, "String"))
OBX_BUILT_IN(std::u16string, TTypeInfo::Simple(tkWString, "WideString"))
OBX_BUILT_IN(TShortString, TTypeInfo::Simple(tkString, "ShortString"))

void TypInfoRows::RaiseInvalidValue()
{
    throw EPropertyError(SInvalidPropertyValue);
}

bool TPropInfo::CanWrite() const
{
    return Access.SetOrd || Access.SetFloat || Access.SetStr || Access.SetObj || Access.SetMethod;
}

std::span<const TPropInfo* const> GetPropList(const TObject& Object)
{
    if (const auto* const Persistent = dynamic_cast<const TPersistent*>(&Object))
        if (const TDynamicProperties* const Dynamic = Persistent->DynamicProperties())
            return Dynamic->All();
    return Object.ClassType().Properties();
}

const TPropInfo* GetPropInfo(const TObject& Object, std::string_view Name)
{
    if (const auto* const Persistent = dynamic_cast<const TPersistent*>(&Object))
        if (const TDynamicProperties* const Dynamic = Persistent->DynamicProperties())
            if (const TPropInfo* const Found = Dynamic->Find(Name))
                return Found;
    return Object.ClassType().FindProperty(Name);
}

bool IsStoredProp(const TObject& Object, const TPropInfo& Prop)
{
    return Prop.StoredIf ? Prop.StoredIf(Object) : Prop.StoredAlways;
}

int64_t GetOrdProp(const TObject& Object, const TPropInfo& Prop)
{
    return Need(Prop.Access.GetOrd)(Prop, Object);
}

void SetOrdProp(TObject& Object, const TPropInfo& Prop, int64_t Value)
{
    Need(Prop.Access.SetOrd)(Prop, Object, Value);
}

double GetFloatProp(const TObject& Object, const TPropInfo& Prop)
{
    return Need(Prop.Access.GetFloat)(Prop, Object);
}

void SetFloatProp(TObject& Object, const TPropInfo& Prop, double Value)
{
    Need(Prop.Access.SetFloat)(Prop, Object, Value);
}

std::string GetStrProp(const TObject& Object, const TPropInfo& Prop)
{
    return Need(Prop.Access.GetStr)(Prop, Object);
}

void SetStrProp(TObject& Object, const TPropInfo& Prop, const std::string& Value)
{
    Need(Prop.Access.SetStr)(Prop, Object, Value);
}

TObject* GetObjectProp(const TObject& Object, const TPropInfo& Prop)
{
    return Need(Prop.Access.GetObj)(Prop, Object);
}

void SetObjectProp(TObject& Object, const TPropInfo& Prop, TObject* Value)
{
    Need(Prop.Access.SetObj)(Prop, Object, Value);
}

TMethod GetMethodProp(const TObject& Object, const TPropInfo& Prop)
{
    return Need(Prop.Access.GetMethod)(Prop, Object);
}

void SetMethodProp(TObject& Object, const TPropInfo& Prop, const TMethod& Value)
{
    Need(Prop.Access.SetMethod)(Prop, Object, Value);
}

std::string GetEnumName(const TTypeInfo& Type, int64_t Value)
{
    if (Value >= 0 && Value < static_cast<int64_t>(Type.Names.size()))
        return Type.Names[static_cast<size_t>(Value)];
    return std::to_string(Value);
}

int64_t GetEnumValue(const TTypeInfo& Type, std::string_view Name)
{
    for (size_t I = 0; I < Type.Names.size(); ++I)
        if (SameText(Type.Names[I], Name))
            return static_cast<int64_t>(I);
    if (!Type.IsOpen || Name.empty() || !std::isalpha(static_cast<unsigned char>(Name[0])))
        return -1;
    Type.Names.emplace_back(Name);
    return static_cast<int64_t>(Type.Names.size()) - 1;
}

void RegisterIntegerConsts(const TTypeInfo& Type)
{
    auto& Types = IntegerConstTypes();
    if (Type.Idents && std::find(Types.begin(), Types.end(), &Type) == Types.end())
        Types.push_back(&Type);
}

const TTypeInfo* FindIntegerConst(std::string_view Ident, int& Value)
{
    for (const TTypeInfo* const Type : IntegerConstTypes())
        if (Type->Idents->IdentToInt(Ident, Value))
            return Type;
    return nullptr;
}
