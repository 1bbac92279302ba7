#include "Qft/PropertyText.h"

#include <cstdint>
#include <limits>

#include "core/Literals.h"
#include "framework/rtl/SysUtils.h"

namespace {

bool IsColor(const TTypeInfo& Type)
{
    return Type.Name == "TColor";
}

std::string IntegerText(const TTypeInfo& Type, int64_t Value)
{
    if (!IsColor(Type))
        return IntToStr(Value);
    std::string Ident;
    if (Type.Idents)
        Type.Idents->IntToIdent(static_cast<int>(Value), Ident);
    return Ident;
}

int64_t IntegerValue(const TTypeInfo& Type, std::string_view Raw)
{
    int Result = 0;
    if (IsColor(Type)) {
        if (Type.Idents && Type.Idents->IdentToInt(Raw, Result))
            return Result;
    } else if (Raw.empty()) {
        return 0;
    }
    const bool Wide = Type.MaxValue > std::numeric_limits<int>::max();
    return Wide ? StrToInt64(Raw) : StrToInt(Raw);
}

} // namespace

bool IsLiteralKind(TTypeKind Kind)
{
    return Kind == tkString || Kind == tkLString || Kind == tkWChar || Kind == tkWString;
}

std::string GetPropertyText(const TObject& Object, const TPropInfo& Prop)
{
    switch (Prop.Kind()) {
    case tkString:
    case tkLString:
    case tkWChar:
    case tkWString:
        return ToLiterals(GetStrProp(Object, Prop));
    case tkChar:
        return std::string(1, static_cast<char>(GetOrdProp(Object, Prop)));
    case tkInteger:
        return IntegerText(*Prop.PropType, GetOrdProp(Object, Prop));
    case tkSet:
        return IntToStr(GetOrdProp(Object, Prop));
    case tkFloat:
        return FloatToStr(GetFloatProp(Object, Prop));
    case tkEnumeration:
        return GetEnumName(*Prop.PropType, GetOrdProp(Object, Prop));
    case tkMethod:
        return Prop.PropType->Name;
    default:
        return {};
    }
}

namespace {

// A list may have been written, and defaults noted, under another locale.
double FloatValue(std::string_view Raw)
{
    TExtended Result = 0;
    if (TryStrToFloat(Raw, Result))
        return static_cast<double>(Result);
    std::string Localized(Raw);
    if (const size_t Separator = Localized.find_first_of(".,"); Separator != std::string::npos)
        Localized.replace(Separator, 1, DecimalSeparator);
    return static_cast<double>(TryStrToFloat(Localized, Result) ? Result : StrToFloat(Raw));
}

} // namespace

bool SetPropertyText(TObject& Object, const TPropInfo& Prop, std::string_view Raw, const std::string& Text)
{
    switch (Prop.Kind()) {
    case tkString:
    case tkLString:
    case tkWChar:
    case tkWString:
        SetStrProp(Object, Prop, Text);
        return true;
    case tkChar:
        SetOrdProp(Object, Prop, Raw.empty() ? 0 : static_cast<unsigned char>(Raw[0]));
        return true;
    case tkInteger:
        SetOrdProp(Object, Prop, IntegerValue(*Prop.PropType, Raw));
        return true;
    case tkSet:
        SetOrdProp(Object, Prop, StrToInt64(Raw));
        return true;
    case tkFloat:
        SetFloatProp(Object, Prop, FloatValue(Raw));
        return true;
    case tkEnumeration:
        SetOrdProp(Object, Prop, GetEnumValue(*Prop.PropType, Raw));
        return true;
    default:
        return false;
    }
}
