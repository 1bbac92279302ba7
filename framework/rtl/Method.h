// Method pointers: an object and one of its member functions. Events of
// components are such pointers; they can be compared, assigned and cleared.
#pragma once

#include <string>
#include <utility>

#include "framework/rtl/Object.h"

// A member function whatever its class and parameters. It may only be called
// after it has been turned back into its own type.
using TMethodCode = void (TObject::*)();

template<class TClass, class... TArgs>
TMethodCode EraseMethod(void (TClass::*Code)(TArgs...))
{
    return reinterpret_cast<TMethodCode>(static_cast<void (TObject::*)(TArgs...)>(Code));
}

struct TMethod {
    TObject* Data = nullptr;
    TMethodCode Code = nullptr;
    friend bool operator==(const TMethod&, const TMethod&) = default;
};

// An event with the parameters TArgs. TTag gives it a type name of its own:
//     struct TNotifyEventName { static constexpr const char* Name = "TNotifyEvent"; };
//     using TNotifyEvent = TEvent<TNotifyEventName, TObject*>;
template<class TTag, class... TArgs>
class TEvent {
public:
    TEvent() = default;
    explicit TEvent(const TMethod& Method) : FMethod(Method) {}
    template<class TClass, class TDeclaring>
    TEvent(TClass* Object, void (TDeclaring::*Code)(TArgs...)) : FMethod{Object, EraseMethod(Code)}
    {
    }

    explicit operator bool() const { return FMethod.Code != nullptr; }

    // Requires an assigned handler. The handler may assign the event anew.
    void operator()(TArgs... Args) const
    {
        const TMethod Method = FMethod;
        (Method.Data->*reinterpret_cast<void (TObject::*)(TArgs...)>(Method.Code))(
            std::forward<TArgs>(Args)...);
    }
    void Clear() { FMethod = {}; }
    const TMethod& Method() const { return FMethod; }
    static std::string TypeName() { return TTag::Name; }
    friend bool operator==(const TEvent&, const TEvent&) = default;

private:
    TMethod FMethod;
};

// Declares the event type Type with the given parameters.
#define OBX_EVENT(Type, ...)                                                                                 \
    struct Type##Name {                                                                                      \
        static constexpr const char* Name = #Type;                                                           \
    };                                                                                                       \
    using Type = TEvent<Type##Name, __VA_ARGS__>;

OBX_EVENT(TNotifyEvent, TObject*)
