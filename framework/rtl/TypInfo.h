// Run-time type information: the types of published properties, the rows that
// describe the properties of a class, and reading and writing them by name.
//
// A class publishes its properties in one table beside its code:
//
//     const TMetaClass& TLabel::MetaClass()
//     {
//         static const TMetaClass Class("TLabel", &TCustomLabel::MetaClass(), CreateComponent<TLabel>,
//             {
//                 Prop<&TLabel::Align, &TLabel::SetAlign>("Align").Default(alNone),
//                 Prop<&TLabel::Caption, &TLabel::SetCaption>("Caption").Stored<&TLabel::IsCaptionStored>(),
//                 Prop<&TLabel::OnClick>("OnClick"),
//             });
//         return Class;
//     }
#pragma once

#include <cstdint>
#include <initializer_list>
#include <type_traits>

#include "framework/rtl/Method.h"
#include "framework/rtl/Object.h"

enum TTypeKind {
    tkUnknown,
    tkInteger,
    tkChar,
    tkEnumeration,
    tkFloat,
    tkString,
    tkSet,
    tkClass,
    tkMethod,
    tkWChar,
    tkLString,
    tkWString,
    tkVariant,
    tkInt64
};

// Names for values of an integer type, such as clRed or crHourGlass.
struct TIntegerIdents {
    bool (*IdentToInt)(std::string_view Ident, int& Value);
    bool (*IntToIdent)(int Value, std::string& Ident);
};

// One published type. Instances live as long as the program, or, for types
// made up while reading a form, as long as the property that has them.
struct TTypeInfo {
    TTypeKind Kind = tkUnknown;
    std::string Name;

    // Enumerations: the value names from ordinal 0. Sets use their element's.
    // An open type, made up while reading a form, takes up every new name.
    mutable std::vector<std::string> Names;
    bool IsOpen = false;
    const TTypeInfo* Element = nullptr;

    // Integers and characters: the range of the type.
    int64_t MinValue = 0;
    int64_t MaxValue = 0;
    const TIntegerIdents* Idents = nullptr;

    // Classes: the declared class, which has the name.
    const TMetaClass& (*Class)() = nullptr;

    // Names: the enumerators separated by commas.
    static TTypeInfo Enumeration(std::string Name, std::string_view Names);
    static TTypeInfo Set(std::string Name, const TTypeInfo& Element);
    static TTypeInfo Integer(std::string Name, int64_t Min, int64_t Max,
                             const TIntegerIdents* Idents = nullptr);
    static TTypeInfo Simple(TTypeKind Kind, std::string Name);
};

template<class T>
struct TTypeTag {
};

// Declares an enumeration together with its published type.
#define OBX_ENUM(Type, ...)                                                                                  \
    enum Type : int { __VA_ARGS__ };                                                                         \
    inline const TTypeInfo& TypeInfoFor(TTypeTag<Type>)                                                      \
    {                                                                                                        \
        static const TTypeInfo Info = TTypeInfo::Enumeration(#Type, #__VA_ARGS__);                           \
        return Info;                                                                                         \
    }

// A set of enumerators with ordinals 0 to 63.
template<class TElement>
class TSet {
public:
    constexpr TSet() = default;
    constexpr TSet(std::initializer_list<TElement> Elements)
    {
        for (const TElement Element : Elements)
            Include(Element);
    }
    static constexpr TSet FromBits(uint64_t Bits)
    {
        TSet Result;
        Result.FBits = Bits;
        return Result;
    }
    constexpr uint64_t Bits() const { return FBits; }
    constexpr bool Contains(TElement Element) const { return (FBits >> Element & 1) != 0; }
    constexpr void Include(TElement Element) { FBits |= uint64_t{1} << Element; }
    constexpr void Exclude(TElement Element) { FBits &= ~(uint64_t{1} << Element); }
    constexpr bool Empty() const { return FBits == 0; }
    friend constexpr bool operator==(TSet, TSet) = default;

private:
    uint64_t FBits = 0;
};

// Declares Type as the set of Element together with its published type.
#define OBX_SET(Type, ElementType)                                                                           \
    using Type = TSet<ElementType>;                                                                          \
    inline const TTypeInfo& TypeInfoFor(TTypeTag<Type>)                                                      \
    {                                                                                                        \
        static const TTypeInfo Info = TTypeInfo::Set(#Type, TypeInfoFor(TTypeTag<ElementType>{}));           \
        return Info;                                                                                         \
    }

// Declares the published type of an integer-like C++ type with a name of its own.
#define OBX_INTEGER(Type, Min, Max, Idents)                                                                  \
    inline const TTypeInfo& TypeInfoFor(TTypeTag<Type>)                                                      \
    {                                                                                                        \
        static const TTypeInfo Info = TTypeInfo::Integer(#Type, Min, Max, Idents);                           \
        return Info;                                                                                         \
    }

const TTypeInfo& TypeInfoFor(TTypeTag<bool>);
const TTypeInfo& TypeInfoFor(TTypeTag<char>);
const TTypeInfo& TypeInfoFor(TTypeTag<char16_t>);
const TTypeInfo& TypeInfoFor(TTypeTag<int8_t>);
const TTypeInfo& TypeInfoFor(TTypeTag<uint8_t>);
const TTypeInfo& TypeInfoFor(TTypeTag<int16_t>);
const TTypeInfo& TypeInfoFor(TTypeTag<uint16_t>);
const TTypeInfo& TypeInfoFor(TTypeTag<int32_t>);
const TTypeInfo& TypeInfoFor(TTypeTag<uint32_t>);
const TTypeInfo& TypeInfoFor(TTypeTag<int64_t>);
const TTypeInfo& TypeInfoFor(TTypeTag<float>);
const TTypeInfo& TypeInfoFor(TTypeTag<double>);
const TTypeInfo& TypeInfoFor(TTypeTag<std::string>);
const TTypeInfo& TypeInfoFor(TTypeTag<std::u16string>);

// A text of at most 255 bytes.
struct TShortString {
    std::string Text;
    friend bool operator==(const TShortString&, const TShortString&) = default;
};
const TTypeInfo& TypeInfoFor(TTypeTag<TShortString>);

// How one property is read and written; the members for its kind are set.
struct TPropAccess {
    int64_t (*GetOrd)(const TPropInfo&, const TObject&) = nullptr;
    void (*SetOrd)(const TPropInfo&, TObject&, int64_t) = nullptr;
    double (*GetFloat)(const TPropInfo&, const TObject&) = nullptr;
    void (*SetFloat)(const TPropInfo&, TObject&, double) = nullptr;
    std::string (*GetStr)(const TPropInfo&, const TObject&) = nullptr;
    void (*SetStr)(const TPropInfo&, TObject&, const std::string&) = nullptr;
    TObject* (*GetObj)(const TPropInfo&, const TObject&) = nullptr;
    void (*SetObj)(const TPropInfo&, TObject&, TObject*) = nullptr;
    TMethod (*GetMethod)(const TPropInfo&, const TObject&) = nullptr;
    void (*SetMethod)(const TPropInfo&, TObject&, const TMethod&) = nullptr;
};

// One published property.
struct TPropInfo {
    std::string Name;
    const TTypeInfo* PropType = nullptr;
    TPropAccess Access;
    bool HasDefault = false;
    int64_t DefaultValue = 0; // ordinal kinds; a value equal to it is not written
    bool StoredAlways = true;
    bool (*StoredIf)(const TObject&) = nullptr;
    bool IsDynamic = false; // made from a form file (DynamicProps.h)

    TTypeKind Kind() const { return PropType->Kind; }
    bool CanWrite() const;

    template<class T>
    TPropInfo Default(T Value) &&
    {
        HasDefault = true;
        if constexpr (requires { Value.Bits(); })
            DefaultValue = static_cast<int64_t>(Value.Bits());
        else
            DefaultValue = static_cast<int64_t>(Value);
        return std::move(*this);
    }
    // Always written, even where an ancestor declares a default.
    TPropInfo NoDefault() &&
    {
        HasDefault = false;
        return std::move(*this);
    }
    TPropInfo Stored(bool Value) &&
    {
        StoredAlways = Value;
        return std::move(*this);
    }
    // A const member function without parameters that tells whether to write.
    template<auto Question>
    TPropInfo Stored() &&;
    // A type of its own name, such as TDateTime for a double.
    TPropInfo Type(const TTypeInfo& Info) &&
    {
        PropType = &Info;
        return std::move(*this);
    }
};

// A row for a property with a reader and a writer, a reader alone, or a public
// field (events are fields). Members may be named through the publishing class
// although an ancestor declares them.
template<auto Reader, auto Writer = nullptr>
TPropInfo Prop(const char* Name);

// A published method, named by form files as an event's handler.
struct TPublishedMethod {
    std::string Name;
    TMethodCode Code = nullptr;
};
template<auto Handler>
TPublishedMethod Published(const char* Name);

template<class T>
TObject* CreateComponent(TComponent* Owner)
{
    return new T(Owner);
}

// The published properties of an object: its class's, and those that it got
// from a form file (DynamicProps.h). The span holds until the next property is
// added to the object.
std::span<const TPropInfo* const> GetPropList(const TObject& Object);

// The property of that name, letter case ignored; null if there is none.
const TPropInfo* GetPropInfo(const TObject& Object, std::string_view Name);

bool IsStoredProp(const TObject& Object, const TPropInfo& Prop);

// Ordinals (integers, characters, enumerations, sets as bits), 64-bit integers.
// Getters of the wrong kind, and setters of a property that cannot be written,
// raise EPropertyError.
int64_t GetOrdProp(const TObject& Object, const TPropInfo& Prop);
void SetOrdProp(TObject& Object, const TPropInfo& Prop, int64_t Value);
double GetFloatProp(const TObject& Object, const TPropInfo& Prop);
void SetFloatProp(TObject& Object, const TPropInfo& Prop, double Value);
// Every string and wide-character kind, in UTF-8.
std::string GetStrProp(const TObject& Object, const TPropInfo& Prop);
void SetStrProp(TObject& Object, const TPropInfo& Prop, const std::string& Value);
TObject* GetObjectProp(const TObject& Object, const TPropInfo& Prop);
void SetObjectProp(TObject& Object, const TPropInfo& Prop, TObject* Value);
TMethod GetMethodProp(const TObject& Object, const TPropInfo& Prop);
void SetMethodProp(TObject& Object, const TPropInfo& Prop, const TMethod& Value);

// The name of an enumerator; its number in decimal when the type has none for it.
std::string GetEnumName(const TTypeInfo& Type, int64_t Value);
// The ordinal of an enumerator, letter case ignored; -1 when there is none.
int64_t GetEnumValue(const TTypeInfo& Type, std::string_view Name);

// Makes the value names of an integer type (Idents) known to the readers of form
// files, so that they recognise clRed in a property whose type is not known.
void RegisterIntegerConsts(const TTypeInfo& Type);
// The registered type that has this value name; null if there is none.
const TTypeInfo* FindIntegerConst(std::string_view Ident, int& Value);

#include "framework/rtl/TypInfoRows.h"
