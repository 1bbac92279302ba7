// Published properties that an object has from its form file and not from its
// class: those of stand-ins for unknown classes, and those that a known class
// does not declare or cannot take. They answer run-time type information like
// any others.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "framework/rtl/TypInfo.h"

class TPersistent;

// The value lives in the property; its type is made for it.
struct TDynamicProp : TPropInfo {
    TTypeInfo OwnType;
    // Ordinals, floats, texts, and owned objects.
    mutable std::variant<int64_t, double, std::string, std::unique_ptr<TPersistent>> Value;
};

class TDynamicProperties {
public:
    explicit TDynamicProperties(const TPersistent& Object);
    ~TDynamicProperties();

    // The class that the object stands for; null for its own.
    const TMetaClass* Class() const { return FClass; }
    void SetClass(const TMetaClass* Value);

    TDynamicProp& AddInteger(const std::string& Name, int64_t Value, const TTypeInfo* Type = nullptr);
    TDynamicProp& AddInt64(const std::string& Name, int64_t Value);
    TDynamicProp& AddFloat(const std::string& Name, double Value);
    TDynamicProp& AddString(const std::string& Name, const std::string& Value);
    // An enumeration whose names are taken up as they are met.
    TDynamicProp& AddEnumeration(const std::string& Name, const std::string& Ident);
    TDynamicProp& AddBoolean(const std::string& Name, bool Value);
    TDynamicProp& AddSet(const std::string& Name, const std::vector<std::string>& Idents);
    TDynamicProp& AddObject(const std::string& Name, std::unique_ptr<TPersistent> Value);
    // Anything else (binary data, names of methods and of other components), kept
    // as it is: its kind is tkUnknown, so that no translator and no list reaches it.
    TDynamicProp& AddOpaque(const std::string& Name, std::unique_ptr<TPersistent> Value);

    // Takes one away; that of the class comes back.
    void Remove(std::string_view Name);

    // Letter case ignored; null if none.
    TDynamicProp* Find(std::string_view Name) const;

    const std::vector<std::unique_ptr<TDynamicProp>>& Own() const { return FOwn; }

    // The class's properties, those of the same name replaced, then the others
    // in the order they were added.
    std::span<const TPropInfo* const> All() const { return FAll; }
    // The position in All() of the property with exactly that name; -1 if none.
    int IndexOf(std::string_view Name) const;

private:
    TDynamicProp& Add(const std::string& Name, TTypeInfo Type);
    void Rebuild();

    const TPersistent& FObject;
    const TMetaClass* FClass = nullptr;
    std::vector<std::unique_ptr<TDynamicProp>> FOwn;
    std::vector<const TPropInfo*> FAll;
};
