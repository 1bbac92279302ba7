// The tree of a form file. Start here; FormFile.h reads and writes files,
// FormText.h and FormBinary.h one format each, docs/form-files.md shows both.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "framework/streaming/FormFileError.h"
#include "framework/streaming/FormProfile.h"
#include "framework/streaming/FormValue.h"

// A property as the file has it: `Font.Name = 'Tahoma'`.
class TFormProperty {
public:
    TFormProperty(std::string Name, TFormValue AValue) : Value(std::move(AValue)), FName(std::move(Name)) {}

    const std::string& Name() const { return FName; } // with its dots
    TFormValue Value;

    // For the readers and writers: the name with what precedes it and, in a text
    // form file, the equals sign.
    const TFormSpan& NameSpan() const { return FNameSpan; }
    void SetNameSpan(TFormSpan Span) { FNameSpan = std::move(Span); }

private:
    std::string FName;
    TFormSpan FNameSpan;
};

// Properties in the order of the file. A name may occur twice; the last one
// counts. Names are compared without regard to case.
class TFormProperties {
public:
    const std::vector<TFormProperty>& Properties() const { return FProperties; }
    std::vector<TFormProperty>& Properties() { return FProperties; }

    // Null when there is none. Valid until properties are added or removed.
    const TFormProperty* Find(std::string_view Name) const;
    TFormProperty* Find(std::string_view Name);
    const TFormValue* FindValue(std::string_view Name) const;

    // Gives a property its value, appending the property when it is new. A value
    // that means the same as the present one leaves it and its spelling alone.
    void SetValue(std::string_view Name, TFormValue Value);
    TFormProperty& Add(std::string Name, TFormValue Value);

private:
    std::vector<TFormProperty> FProperties;
};

// An item of a collection.
class TFormItem : public TFormProperties {
public:
    std::optional<std::int64_t> Index() const { return FIndex; } // `item [3]`; rare
    void SetIndex(std::optional<std::int64_t> Value);

    // For the readers and writers, as in TFormObject.
    const TFormSpan& Span() const { return FSpan; }
    void SetSpan(TFormSpan Span) { FSpan = std::move(Span); }
    bool HeaderChanged() const { return FHeaderChanged; }
    void InitHeader(std::optional<std::int64_t> Index);

private:
    std::optional<std::int64_t> FIndex;
    bool FHeaderChanged = false;
    TFormSpan FSpan;
};

enum class TFormObjectKind : std::uint8_t { Object, Inherited, Inline };

// An object with its properties and its child objects, both in file order.
class TFormObject : public TFormProperties {
public:
    TFormObject() = default;
    TFormObject(TFormObjectKind Kind, std::string Name, std::string ClassName);

    TFormObjectKind Kind() const { return FKind; }
    void SetKind(TFormObjectKind Value);
    const std::string& Name() const { return FName; } // may be empty
    void SetName(std::string Value);
    const std::string& ClassName() const { return FClassName; }
    void SetClassName(std::string Value);
    std::optional<std::int64_t> Position() const { return FPosition; } // `object X: T [3]`
    void SetPosition(std::optional<std::int64_t> Value);

    const std::vector<TFormObject>& Children() const { return FChildren; }
    std::vector<TFormObject>& Children() { return FChildren; }

    // The direct child of that name, without regard to case; null when there is none.
    const TFormObject* FindChild(std::string_view Name) const;
    TFormObject* FindChild(std::string_view Name);

    // For the readers and writers. A changed header loses its spelling and keeps
    // what precedes it.
    const TFormSpan& Span() const { return FSpan; }
    void SetSpan(TFormSpan Span) { FSpan = std::move(Span); }
    bool HeaderChanged() const { return FHeaderChanged; }
    // For the readers: sets the header without counting it as a change.
    void InitHeader(TFormObjectKind Kind, std::string Name, std::string ClassName,
                    std::optional<std::int64_t> Position);

private:
    TFormObjectKind FKind = TFormObjectKind::Object;
    bool FHeaderChanged = false;
    std::string FName, FClassName;
    std::optional<std::int64_t> FPosition;
    std::vector<TFormObject> FChildren;
    TFormSpan FSpan;
};

// A form file: its tree and the profile of its file. Copies share the bytes
// that were read and are otherwise independent.
class TFormDocument {
public:
    TFormObject Root;

    TFormFormat Format = TFormFormat::Text; // in which the document is saved
    TFormTextProfile Text;                  // how it looks as text
    TFormBinaryProfile Binary;              // how it looks in binary

    // The bytes that the document was read from; null when made from scratch.
    std::shared_ptr<const TFormSource> Source;
    // What stands in the source around the root: a byte order mark or resource
    // header before it (Begin..Open), the rest of the file after it (Close..End).
    TFormSpan Frame;

    // The same tree, whatever spelling and profile.
    bool SameTree(const TFormDocument& Other) const;

    // Takes over spelling and layout from Original wherever this document means
    // the same: objects are matched by name below the same parent, properties by
    // name. The way to save a form that was loaded into components: write them
    // into a fresh document, keep the spelling of the file, write that.
    void KeepSpelling(const TFormDocument& Original);

    // An error at the place where a part was read, or at the start of the file
    // for a part made from scratch.
    EFormFileError ErrorAt(const TFormSpan& Place, const std::string& Message) const;
    EFormFileError ErrorAt(const TFormProperty& Property, const std::string& Message) const
    {
        return ErrorAt(Property.NameSpan(), Message);
    }
    EFormFileError ErrorAt(const TFormObject& Object, const std::string& Message) const
    {
        return ErrorAt(Object.Span(), Message);
    }
};

bool SameTree(const TFormObject& One, const TFormObject& Other);
