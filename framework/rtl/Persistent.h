// Objects with published properties that can be assigned and streamed.
#pragma once

#include <memory>
#include <type_traits>

#include "framework/rtl/TypInfo.h"

class TDynamicProperties;
class TFiler;

class TPersistent : public TObject {
    OBX_CLASS(TObject)
public:
    TPersistent();
    ~TPersistent() override;

    const TMetaClass& ClassType() const override;

    // Copies what Source holds. The default raises EConvertError
    // "Cannot assign a TSource to a TDest".
    virtual void Assign(const TPersistent* Source);

    // Declares the stream properties beyond the published ones.
    virtual void DefineProperties(TFiler& Filer);

    // The object that owns this one without being its component owner (a font's
    // control), or null.
    virtual TPersistent* GetOwner() const { return nullptr; }

    // Properties made from a form file; null for most objects.
    TDynamicProperties* DynamicProperties() const { return FDynamic.get(); }
    // The same, made empty when there are none.
    TDynamicProperties& NeedDynamicProperties();

protected:
    // Called by the plain property writers (OBX_PROPERTY) after a change.
    virtual void PropertyChanged() {}

private:
    std::unique_ptr<TDynamicProperties> FDynamic;
};

// How a property's value is handed around: texts by reference, the rest by value.
template<class T>
using TPropertyValue = std::conditional_t<std::is_class_v<T> && (sizeof(T) > sizeof(void*)), const T&, T>;

// A property with nothing but a field behind it: the reader Name(), the writer
// SetName(Value), which calls PropertyChanged() after a change, and FName.
#define OBX_PROPERTY(Type, Name, Initial)                                                                    \
public:                                                                                                      \
    TPropertyValue<Type> Name() const                                                                        \
    {                                                                                                        \
        return F##Name;                                                                                      \
    }                                                                                                        \
    void Set##Name(TPropertyValue<Type> Value)                                                               \
    {                                                                                                        \
        if (F##Name == Value)                                                                                \
            return;                                                                                          \
        F##Name = Value;                                                                                     \
        PropertyChanged();                                                                                   \
    }                                                                                                        \
                                                                                                             \
protected:                                                                                                   \
    Type F##Name = Initial;

// The table row of such a property.
#define OBX_ROW(Class, Name) Prop<&Class::Name, &Class::Set##Name>(#Name)
