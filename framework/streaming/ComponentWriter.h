// Makes the tree of a form file from components.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "framework/rtl/Component.h"
#include "framework/rtl/Filer.h"
#include "framework/streaming/FormDocument.h"

enum class TWrittenProperties {
    Changed, // those that differ from their class's defaults, as form files have them
    All      // every stored one, to compare two states of a component
};

// Visits what form files nest in Parent, in their order: first the components inside
// it, then, for the root, those without a parent of their own.
void ForEachWrittenChild(TComponent& Parent, TComponent& Root, const std::function<void(TComponent*)>& Visit);

// Writes a form or single components. The tree holds copies of everything.
class TComponentWriter : public TWriter {
public:
    explicit TComponentWriter(TComponent& Root, TWrittenProperties Written = TWrittenProperties::Changed);

    // Root with the components inside it.
    TFormObject WriteRoot();
    // The properties of one component, without children.
    TFormObject WriteComponent(const TComponent& Component);

    void DefineProperty(const std::string& Name, const std::function<void(TReader&)>& Read,
                        const std::function<void(TWriter&)>& Write, bool HasData) override;
    void DefineBinaryProperty(const std::string& Name, const std::function<void(TStream&)>& Read,
                              const std::function<void(TStream&)>& Write, bool HasData) override;
    void WriteBoolean(bool Value) override;
    void WriteInteger(int64_t Value) override;
    void WriteFloat(double Value) override;
    void WriteString(const std::string& Value) override;
    void WriteIdent(const std::string& Value) override;
    void WriteListBegin() override;
    void WriteListEnd() override;
    void WriteCollection(const TCollection& Collection) override;
    TComponent* Root() const override { return &FRoot; }

private:
    void WriteChildren(TComponent& Parent, TFormObject& Target);
    void WriteProperties(const TPersistent& Instance, const std::string& Prefix, TFormProperties& Target);
    void WriteProperty(const TPersistent& Instance, const TPropInfo& Prop, const std::string& Name,
                       TFormProperties& Target);
    void WriteObject(const TPersistent& Instance, const TPropInfo& Prop, const std::string& Name,
                     TFormProperties& Target);
    bool IsDefault(const TPersistent& Instance, const TPropInfo& Prop) const;
    TFormValue SimpleValue(const TPersistent& Instance, const TPropInfo& Prop) const;
    TFormValue CollectionValue(const TCollection& Collection);
    std::string NameOf(const TComponent& Component) const;
    std::string MethodName(const TMethod& Method) const;

    TComponent& FRoot;
    TWrittenProperties FWritten;
    TFormProperties* FTarget = nullptr; // what DefineProperties adds to
    std::string FPrefix;
    std::vector<std::vector<TFormValue>> FLevels;
};
