// How a row of a published table is made from member pointers. Included by
// TypInfo.h only.
#pragma once

#include <utility>

#include "framework/rtl/Utf8.h"

namespace TypInfoRows {

template<class T>
struct TMember;
template<class C, class R>
struct TMember<R (C::*)() const> {
    using Class = C;
    using Value = std::remove_cvref_t<R>;
    static constexpr bool IsField = false;
};
template<class C, class R>
struct TMember<R (C::*)() const noexcept> : TMember<R (C::*)() const> {
};
template<class C, class F>
struct TMember<F C::*> {
    using Class = C;
    using Value = F;
    static constexpr bool IsField = true;
};

template<auto Reader>
decltype(auto) Read(const TObject& Object)
{
    const auto& Self = static_cast<const typename TMember<decltype(Reader)>::Class&>(Object);
    if constexpr (TMember<decltype(Reader)>::IsField)
        return (Self.*Reader);
    else
        return (Self.*Reader)();
}

template<auto Reader, auto Writer, class TValue>
void Write(TObject& Object, TValue&& Value)
{
    auto& Self = static_cast<typename TMember<decltype(Reader)>::Class&>(Object);
    if constexpr (!std::is_same_v<decltype(Writer), std::nullptr_t>)
        (Self.*Writer)(std::forward<TValue>(Value));
    else if constexpr (TMember<decltype(Reader)>::IsField)
        Self.*Reader = std::forward<TValue>(Value);
}

template<class T>
concept TEventType = requires(T Event)
{
    {
        Event.Method()
        } -> std::same_as<const TMethod&>;
};

template<class T>
inline const TTypeInfo& EventTypeInfo()
{
    static const TTypeInfo Info = TTypeInfo::Simple(tkMethod, T::TypeName());
    return Info;
}

template<class T>
inline const TTypeInfo& ObjectTypeInfo()
{
    static const TTypeInfo Info = [] {
        // Without the name: the class may be the one whose table is being built.
        TTypeInfo Result = TTypeInfo::Simple(tkClass, "");
        Result.Class = &T::MetaClass;
        return Result;
    }();
    return Info;
}

// Raises EPropertyError "Invalid property value".
[[noreturn]] void RaiseInvalidValue();

template<auto Reader, auto Writer, class V>
void AddAccess(TPropAccess& Access, bool CanWrite)
{
    if constexpr (std::is_pointer_v<V>) {
        using T = std::remove_pointer_t<V>;
        Access.GetObj = [](const TPropInfo&, const TObject& Object) -> TObject* {
            return Read<Reader>(Object);
        };
        if (CanWrite)
            Access.SetObj = [](const TPropInfo&, TObject& Object, TObject* Value) {
                auto* const Typed = dynamic_cast<T*>(Value);
                if (Value && !Typed)
                    RaiseInvalidValue();
                Write<Reader, Writer>(Object, Typed);
            };
    } else if constexpr (TEventType<V>) {
        Access.GetMethod = [](const TPropInfo&, const TObject& Object) {
            return Read<Reader>(Object).Method();
        };
        if (CanWrite)
            Access.SetMethod = [](const TPropInfo&, TObject& Object, const TMethod& Value) {
                Write<Reader, Writer>(Object, V(Value));
            };
    } else if constexpr (std::is_same_v<V, std::string>) {
        Access.GetStr = [](const TPropInfo&, const TObject& Object) {
            return std::string(Read<Reader>(Object));
        };
        if (CanWrite)
            Access.SetStr = [](const TPropInfo&, TObject& Object, const std::string& Value) {
                Write<Reader, Writer>(Object, Value);
            };
    } else if constexpr (std::is_same_v<V, std::u16string>) {
        Access.GetStr = [](const TPropInfo&, const TObject& Object) {
            return Utf16ToUtf8(Read<Reader>(Object));
        };
        if (CanWrite)
            Access.SetStr = [](const TPropInfo&, TObject& Object, const std::string& Value) {
                Write<Reader, Writer>(Object, Utf8ToUtf16(Value));
            };
    } else if constexpr (std::is_same_v<V, TShortString>) {
        Access.GetStr = [](const TPropInfo&, const TObject& Object) { return Read<Reader>(Object).Text; };
        if (CanWrite)
            Access.SetStr = [](const TPropInfo&, TObject& Object, const std::string& Value) {
                Write<Reader, Writer>(Object, TShortString{std::string(CutAtCharacter(Value, 255))});
            };
    } else if constexpr (std::is_same_v<V, char16_t>) {
        // A wide character is an ordinal to form files and a text to translators.
        Access.GetStr = [](const TPropInfo&, const TObject& Object) {
            return Utf16ToUtf8(std::u16string(1, Read<Reader>(Object)));
        };
        Access.GetOrd = [](const TPropInfo&, const TObject& Object) -> int64_t {
            return Read<Reader>(Object);
        };
        if (CanWrite) {
            Access.SetStr = [](const TPropInfo&, TObject& Object, const std::string& Value) {
                const std::u16string Wide = Utf8ToUtf16(Value);
                Write<Reader, Writer>(Object, Wide.empty() ? char16_t{0} : Wide[0]);
            };
            Access.SetOrd = [](const TPropInfo&, TObject& Object, int64_t Value) {
                Write<Reader, Writer>(Object, static_cast<char16_t>(Value));
            };
        }
    } else if constexpr (std::is_floating_point_v<V>) {
        Access.GetFloat = [](const TPropInfo&, const TObject& Object) -> double {
            return Read<Reader>(Object);
        };
        if (CanWrite)
            Access.SetFloat = [](const TPropInfo&, TObject& Object, double Value) {
                Write<Reader, Writer>(Object, static_cast<V>(Value));
            };
    } else if constexpr (requires(V Set) { Set.Bits(); }) {
        Access.GetOrd = [](const TPropInfo&, const TObject& Object) {
            return static_cast<int64_t>(Read<Reader>(Object).Bits());
        };
        if (CanWrite)
            Access.SetOrd = [](const TPropInfo&, TObject& Object, int64_t Value) {
                Write<Reader, Writer>(Object, V::FromBits(static_cast<uint64_t>(Value)));
            };
    } else {
        Access.GetOrd = [](const TPropInfo&, const TObject& Object) {
            if constexpr (std::is_same_v<V, char>)
                return static_cast<int64_t>(static_cast<unsigned char>(Read<Reader>(Object)));
            else
                return static_cast<int64_t>(Read<Reader>(Object));
        };
        if (CanWrite)
            Access.SetOrd = [](const TPropInfo&, TObject& Object, int64_t Value) {
                Write<Reader, Writer>(Object, static_cast<V>(Value));
            };
    }
}

} // namespace TypInfoRows

template<auto Reader, auto Writer>
TPropInfo Prop(const char* Name)
{
    using namespace TypInfoRows;
    using TReader = TMember<decltype(Reader)>;
    using V = typename TReader::Value;
    TPropInfo Result;
    Result.Name = Name;
    if constexpr (std::is_pointer_v<V>)
        Result.PropType = &ObjectTypeInfo<std::remove_pointer_t<V>>();
    else if constexpr (TEventType<V>)
        Result.PropType = &EventTypeInfo<V>();
    else
        Result.PropType = &TypeInfoFor(TTypeTag<V>{});
    AddAccess<Reader, Writer, V>(Result.Access,
                                 TReader::IsField || !std::is_same_v<decltype(Writer), std::nullptr_t>);
    return Result;
}

template<auto Question>
TPropInfo TPropInfo::Stored() &&
{
    StoredIf = [](const TObject& Object) -> bool { return TypInfoRows::Read<Question>(Object); };
    return std::move(*this);
}

template<auto Handler>
TPublishedMethod Published(const char* Name)
{
    return {Name, EraseMethod(Handler)};
}
