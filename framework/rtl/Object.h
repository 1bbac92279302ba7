// The root of the object model: objects that know their class, and classes
// that can be compared, named, registered and asked for their published
// properties (TypInfo.h).
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class TComponent;
class TMetaClass;
struct TPropInfo;
struct TPublishedMethod;

class TObject {
public:
    TObject() = default;
    TObject(const TObject&) = delete;
    TObject& operator=(const TObject&) = delete;
    virtual ~TObject() = default;

    static const TMetaClass& MetaClass();

    // The class of the C++ type, and the class that the object stands for: they
    // differ only for stand-ins of classes that the program does not have.
    virtual const TMetaClass& DeclaredClass() const { return MetaClass(); }
    virtual const TMetaClass& ClassType() const { return DeclaredClass(); }

    // The name that form files use for this object's class: "TButton".
    const std::string& ClassName() const;
    bool InheritsFrom(const TMetaClass& Class) const;
};

// Every class with published properties, and every class that a form file may
// name, carries this in its declaration and defines MetaClass() in its source.
#define OBX_CLASS(Parent)                                                                                    \
public:                                                                                                      \
    using inherited = Parent;                                                                                \
    static const TMetaClass& MetaClass();                                                                    \
    const TMetaClass& DeclaredClass() const override                                                         \
    {                                                                                                        \
        return MetaClass();                                                                                  \
    }                                                                                                        \
                                                                                                             \
private:

// A class reference. There is one for each class, so that references are
// compared by address; they live as long as the program.
class TMetaClass {
public:
    // Makes an instance for a form file; Owner may be null. Null for classes
    // that no file can create.
    using TFactory = TObject* (*)(TComponent* Owner);

    TMetaClass(std::string Name, const TMetaClass* Parent, TFactory Factory);
    TMetaClass(std::string Name, const TMetaClass* Parent, TFactory Factory,
               std::vector<TPropInfo> Published);
    TMetaClass(std::string Name, const TMetaClass* Parent, TFactory Factory, std::vector<TPropInfo> Published,
               std::vector<TPublishedMethod> Methods);
    ~TMetaClass();
    TMetaClass(const TMetaClass&) = delete;
    TMetaClass& operator=(const TMetaClass&) = delete;

    const std::string& ClassName() const { return FName; }
    const TMetaClass* ClassParent() const { return FParent; }
    bool InheritsFrom(const TMetaClass& Class) const;

    bool CanCreate() const { return FFactory != nullptr; }
    // Requires CanCreate().
    TObject* Create(TComponent* Owner) const { return FFactory(Owner); }

    // All published properties, the ancestors' first, each class's in the order
    // of its declaration. A property declared again keeps its first place.
    std::span<const TPropInfo* const> Properties() const { return FProperties; }

    // The published property of that name, letter case ignored; null if none.
    const TPropInfo* FindProperty(std::string_view Name) const;

    // The position in Properties() of the property with exactly that name; -1 if none.
    int PropertyIndex(std::string_view Name) const;

    // A published method (an event handler that form files can name), letter
    // case ignored, this class's before the ancestors'; null if none.
    const TPublishedMethod* FindMethod(std::string_view Name) const;
    const std::vector<TPublishedMethod>& OwnMethods() const { return FMethods; }

private:
    std::string FName;
    const TMetaClass* FParent;
    TFactory FFactory;
    std::vector<TPropInfo> FOwn;
    std::vector<TPublishedMethod> FMethods;
    std::vector<const TPropInfo*> FProperties;
    std::unordered_map<std::string_view, int> FIndex;
};

// Makes Class known to form files under its name. Registering again is harmless;
// another class of the same name raises EFilerError.
void RegisterClass(const TMetaClass& Class);
void UnRegisterClass(const TMetaClass& Class);

// The registered class of that name (letter case ignored), or null.
const TMetaClass* GetClass(std::string_view Name);

// The same, or EClassNotFound "Class TName not found".
const TMetaClass& FindClass(std::string_view Name);

// All registered classes, by name.
std::vector<const TMetaClass*> RegisteredClasses();

// The class reference that stands for a class the program does not have. The
// same name and parent always give the same reference.
const TMetaClass& GenericClass(const std::string& Name, const TMetaClass& Parent);
