// Makes components from the tree of a form file.
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "framework/rtl/Component.h"
#include "framework/rtl/Filer.h"
#include "framework/streaming/FormDocument.h"

enum class TUnknownClasses {
    Refuse, // a class, property or value that the program does not know is an error
    Accept  // stand-ins are made from the file, so that every form can be loaded
};

// Makes the stand-in, owned by Owner, for a component of a class that the program does
// not have; null for the usual one.
using TStandInMaker = std::function<TComponent*(const TFormObject& Source, TComponent& Owner)>;

// A property that names a component is set when all components are there.
struct TComponentReference {
    TPersistent* Instance;
    const TPropInfo* Prop;
    const TFormProperty* Source;
    TComponent* Lookup; // where the name is looked up first
};

// Reads one form. Errors are EFormFileError with the place in the file, or
// EClassNotFound for an unknown class; after an error the components made so far
// are gone. The document must outlive the reader.
class TComponentReader : public TReader {
public:
    TComponentReader(const TFormDocument& Document, TUnknownClasses UnknownClasses,
                     TStandInMaker MakeStandIn = {});

    // Reads the file's root into Root, which exists already, and makes the
    // components inside it, owned by Root. A Root without a name gets the file's, with a
    // number when its owner has a component of that name: Order_1.
    void ReadRoot(TComponent& Root);

    // The components in the order of the file, the root first: one for each
    // object of the tree.
    const std::vector<TComponent*>& Components() const { return FComponents; }

    void DefineProperty(const std::string& Name, const std::function<void(TReader&)>& Read,
                        const std::function<void(TWriter&)>& Write, bool HasData) override;
    void DefineBinaryProperty(const std::string& Name, const std::function<void(TStream&)>& Read,
                              const std::function<void(TStream&)>& Write, bool HasData) override;
    bool ReadBoolean() override;
    int64_t ReadInteger() override;
    double ReadFloat() override;
    std::string ReadString() override;
    std::string ReadIdent() override;
    void ReadListBegin() override;
    void ReadListEnd() override;
    bool EndOfList() const override;
    void ReadCollection(TCollection& Collection) override;
    TComponent* Root() const override { return FRoot; }

private:
    struct TLevel {
        std::span<const TFormValue> Values;
        size_t Next = 0;
    };

    void ReadAll();
    void ReadObject(TComponent& Component, const TFormObject& Source, TComponent& Owner);
    TComponent* MakeStandIn(const TFormObject& Source, TComponent& Owner) const;
    TComponent* MakeChild(const TFormObject& Source, TComponent& Parent, TComponent& Owner);
    void NameChild(TComponent& Child, const TFormObject& Source, const TComponent& Owner);
    void ReadProperties(TPersistent& Instance, const TFormProperties& Source);
    void ReadProperty(TPersistent& Instance, const TFormProperty& Source);
    bool ReadKnown(TPersistent& Instance, std::string_view Path, const TFormProperty& Source);
    bool ReadDefined(TPersistent& Instance, std::string_view Name, const TFormValue& Value);
    void SetPublished(TPersistent& Instance, const TPropInfo& Prop, const TFormProperty& Source);
    void SetObject(TPersistent& Instance, const TPropInfo& Prop, const TFormProperty& Source);
    void SetMethod(TPersistent& Instance, const TPropInfo& Prop, const TFormValue& Value);
    void ReadUnknown(TPersistent& Instance, std::string_view Path, const TFormValue& Value);
    void ResolveReferences();
    TComponent* FindReferenced(const TComponentReference& Reference) const;
    const TFormValue& NextValue();
    void DiscardNew() noexcept;

    const TFormDocument& FDocument;
    TUnknownClasses FUnknownClasses;
    TStandInMaker FMakeStandIn;
    TComponent* FRoot = nullptr;
    TComponent* FOwner = nullptr;
    std::vector<TComponent*> FComponents;
    std::vector<TComponent*> FMade;
    std::vector<TComponentReference> FReferences;
    std::vector<TLevel> FLevels;
    std::string_view FWanted; // the property that DefineProperties is asked for
    bool FTaken = false;
    const TFormValue* FWantedValue = nullptr;
};

// Where dotted names of components on other forms are looked up ("DataModule1.
// Source"); null, the default, finds none.
extern TComponent* (*FindGlobalComponent)(std::string_view Name);
