#include <gtest/gtest.h>

#include <set>

#include "framework/forms/Forms.h"
#include "framework/forms/StandardClasses.h"
#include "framework/rtl/Collection.h"

namespace {

// Each registered class gives an instance; its sub-objects and a new item of each
// of its collections are checked with it.
struct TClassWalk {
    // Defaults are compared before anything is written: a property may change
    // others, as the range of a scroll bar ends automatic scrolling.
    bool Writing;
    std::set<const TPersistent*> Seen = {};

    void Check(TPersistent& Instance, const std::string& Path)
    {
        if (!Seen.insert(&Instance).second)
            return;
        for (const TPropInfo* const Prop : GetPropList(Instance)) {
            SCOPED_TRACE(Path + "." + Prop->Name);
            try {
                CheckRow(Instance, *Prop, Path);
            } catch (const std::exception& Error) {
                ADD_FAILURE() << Error.what();
            }
        }
        if (auto* const Collection = dynamic_cast<TCollection*>(&Instance))
            Check(*Collection->Add(), Path + "[]");
    }

    void CheckRow(TPersistent& Instance, const TPropInfo& Prop, const std::string& Path)
    {
        const bool Stored = IsStoredProp(Instance, Prop);
        switch (Prop.Kind()) {
        case tkInteger:
        case tkChar:
        case tkEnumeration:
        case tkSet:
        case tkInt64: {
            const int64_t Value = GetOrdProp(Instance, Prop);
            if (!Writing && Prop.HasDefault && Stored) {
                EXPECT_EQ(Value, Prop.DefaultValue) << "a new instance has another value than its default";
            }
            if (Writing && Prop.CanWrite()) {
                SetOrdProp(Instance, Prop, Value);
                EXPECT_EQ(GetOrdProp(Instance, Prop), Value);
            }
            break;
        }
        case tkFloat: {
            const double Value = GetFloatProp(Instance, Prop);
            if (Writing && Prop.CanWrite()) {
                SetFloatProp(Instance, Prop, Value);
                EXPECT_EQ(GetFloatProp(Instance, Prop), Value);
            }
            break;
        }
        case tkString:
        case tkLString:
        case tkWString:
        case tkWChar: {
            const std::string Value = GetStrProp(Instance, Prop);
            if (Writing && Prop.CanWrite()) {
                SetStrProp(Instance, Prop, Value);
                EXPECT_EQ(GetStrProp(Instance, Prop), Value);
            }
            break;
        }
        case tkClass:
            CheckObject(Instance, Prop, Path);
            break;
        case tkMethod: {
            const TMethod Value = GetMethodProp(Instance, Prop);
            EXPECT_EQ(Value.Code, nullptr);
            if (Writing && Prop.CanWrite())
                SetMethodProp(Instance, Prop, Value);
            break;
        }
        default:
            ADD_FAILURE() << "a kind that form files do not have";
        }
    }

    void CheckObject(TPersistent& Instance, const TPropInfo& Prop, const std::string& Path)
    {
        TObject* const Value = GetObjectProp(Instance, Prop);
        ASSERT_TRUE(Prop.PropType->Class) << "the declared class is missing";
        if (Value) {
            EXPECT_TRUE(Value->InheritsFrom(Prop.PropType->Class()));
        }
        if (Writing && Prop.CanWrite())
            SetObjectProp(Instance, Prop, Value);
        EXPECT_EQ(GetObjectProp(Instance, Prop), Value) << "a sub-object is kept, its values are taken over";
        if (auto* const Part = dynamic_cast<TPersistent*>(Value); Part && !dynamic_cast<TComponent*>(Part))
            Check(*Part, Path + "." + Prop.Name);
    }
};

} // namespace

TEST(Classes, EveryPublishedRowReadsAndWritesItsDefault)
{
    const TApplicationScope Scope;
    RegisterStandardClasses();
    RegisterStandardClasses();
    const std::vector<const TMetaClass*> All = RegisteredClasses();
    EXPECT_GT(All.size(), 80u);
    for (const TMetaClass* const Class : All) {
        SCOPED_TRACE(Class->ClassName());
        ASSERT_TRUE(Class->CanCreate());
        TComponent Owner(nullptr);
        auto* const Instance = dynamic_cast<TPersistent*>(Class->Create(&Owner));
        ASSERT_TRUE(Instance);
        EXPECT_EQ(&Instance->ClassType(), Class) << "MetaClass() or OBX_CLASS is missing";
        for (const bool Writing : {false, true})
            TClassWalk{Writing}.Check(*Instance, Class->ClassName());
    }
}

// A property that two levels publish under different letter case, or twice, would be
// read into one and written from the other.
TEST(Classes, PropertyNamesAreUnique)
{
    const TApplicationScope Scope;
    RegisterStandardClasses();
    for (const TMetaClass* const Class : RegisteredClasses())
        for (const TPropInfo* const Prop : Class->Properties())
            EXPECT_EQ(Class->FindProperty(Prop->Name), Prop) << Class->ClassName() << "." << Prop->Name;
}

TEST(Classes, NamesOfIntegerValuesAreKnown)
{
    RegisterStandardClasses();
    const struct {
        const char* Ident;
        const char* Type;
    } Cases[] = {{"clBtnFace", "TColor"}, {"crHourGlass", "TCursor"}, {"RUSSIAN_CHARSET", "TFontCharset"}};
    for (const auto& Case : Cases) {
        int Value = 0;
        const TTypeInfo* const Type = FindIntegerConst(Case.Ident, Value);
        ASSERT_TRUE(Type) << Case.Ident;
        EXPECT_EQ(Type->Name, Case.Type);
    }
}
