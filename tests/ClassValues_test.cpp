// Every value that an enumeration, a boolean or a set can have, in every
// published property of every registered class: it is kept, with a window and
// without, and a form file brings it back.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <set>

#include "framework/forms/Forms.h"
#include "framework/forms/StandardClasses.h"
#include "framework/rtl/Collection.h"
#include "framework/streaming/ComponentReader.h"
#include "framework/streaming/ComponentWriter.h"
#include "framework/streaming/FormText.h"

namespace {

// A form with one component of a class, or a form of that class.
class TSample {
public:
    explicit TSample(const TMetaClass& Class)
    {
        if (Class.InheritsFrom(TCustomForm::MetaClass())) {
            FForm.reset(dynamic_cast<TCustomForm*>(Class.Create(nullptr)));
            FInstance = FForm.get();
        } else {
            FForm = std::make_unique<TForm>(nullptr);
            FInstance = dynamic_cast<TComponent*>(Class.Create(FForm.get()));
            if (FInstance)
                FInstance->SetName("Sample");
            if (auto* const Control = dynamic_cast<TControl*>(FInstance))
                Control->SetParent(FForm.get());
        }
        FForm->SetName("Form");
    }
    explicit TSample(const TFormDocument& Document, const TMetaClass& Class)
    {
        const bool IsForm = Class.InheritsFrom(TCustomForm::MetaClass());
        FForm.reset(IsForm ? dynamic_cast<TCustomForm*>(Class.Create(nullptr)) : new TForm(nullptr));
        TComponentReader(Document, TUnknownClasses::Refuse).ReadRoot(*FForm);
        FInstance = IsForm ? FForm.get() : FForm->FindComponent("Sample");
    }

    TComponent* Instance() const { return FInstance; }
    TCustomForm& Form() const { return *FForm; }
    std::string Text(TWrittenProperties Written) const { return WriteFormText(Document(Written)); }
    TFormDocument Document(TWrittenProperties Written) const
    {
        TFormDocument Result;
        Result.Root = TComponentWriter(*FForm, Written).WriteRoot();
        return Result;
    }

private:
    std::unique_ptr<TCustomForm> FForm;
    TComponent* FInstance = nullptr;
};
bool HasListedValues(const TPropInfo& Prop)
{
    return Prop.Kind() == tkEnumeration || Prop.Kind() == tkSet;
}

// Calls Visit for each property of Instance that can be written and has a simple
// value, those of its sub-objects and of an item of each collection included.
using TVisit = std::function<void(TPersistent& Instance, const TPropInfo& Prop, const std::string& Path)>;

void VisitValues(TPersistent& Instance, const std::string& Path, const TVisit& Visit)
{
    for (const TPropInfo* const Prop : GetPropList(Instance)) {
        const std::string Name = Path + "." + Prop->Name;
        if (Prop->Kind() != tkClass) {
            if (Prop->CanWrite() && Prop->Kind() != tkMethod && Prop->Name != "Name")
                Visit(Instance, *Prop, Name);
            continue;
        }
        auto* const Part = dynamic_cast<TPersistent*>(GetObjectProp(Instance, *Prop));
        if (!Part || dynamic_cast<TComponent*>(Part))
            continue;
        VisitValues(*Part, Name, Visit);
        if (auto* const Collection = dynamic_cast<TCollection*>(Part))
            VisitValues(Collection->Count() ? *Collection->Items(0) : *Collection->Add(), Name + "[]", Visit);
    }
}

std::vector<int64_t> ValuesOf(const TPropInfo& Prop)
{
    std::vector<int64_t> Result;
    const bool IsSet = Prop.Kind() == tkSet;
    const size_t Count = (IsSet ? *Prop.PropType->Element : *Prop.PropType).Names.size();
    for (size_t I = 0; I < Count; ++I)
        Result.push_back(IsSet ? int64_t{1} << I : static_cast<int64_t>(I));
    if (IsSet) {
        Result.push_back((int64_t{1} << Count) - 1);
        Result.push_back(0);
    }
    return Result;
}

std::vector<const TMetaClass*> ComponentClasses()
{
    RegisterStandardClasses();
    std::vector<const TMetaClass*> Result;
    for (const TMetaClass* const Class : RegisteredClasses())
        if (Class->InheritsFrom(TComponent::MetaClass()))
            Result.push_back(Class);
    return Result;
}

enum class TWindows { No, Yes };

// A child of a frame needs a frame, and a button that is down needs a group.
const std::set<std::string> RefusedForAReason = {"TForm.FormStyle", "TSpeedButton.Down"};

// Gives one property of a new instance each of its values in turn, and a new
// window after each; false when a value is not kept.
bool KeepsValues(const TMetaClass& Class, const std::string& Wanted, TWindows Windows)
{
    const TSample Sample(Class);
    auto* const Window = dynamic_cast<TWinControl*>(Sample.Instance());
    bool Result = true;
    VisitValues(*Sample.Instance(), Class.ClassName(),
                [&](TPersistent& Instance, const TPropInfo& Prop, const std::string& Path) {
                    if (Path != Wanted)
                        return;
                    for (const int64_t Value : ValuesOf(Prop)) {
                        if (Window && Windows == TWindows::Yes)
                            Window->HandleNeeded();
                        SetOrdProp(Instance, Prop, Value);
                        if (Window && Windows == TWindows::Yes)
                            Window->Perform(CM_RECREATEWND, 0, 0);
                        Result &= GetOrdProp(Instance, Prop) == Value;
                    }
                });
    return Result;
}

// The properties that refuse a value.
std::set<std::string> Refusing(TWindows Windows)
{
    std::set<std::string> Result;
    for (const TMetaClass* const Class : ComponentClasses()) {
        std::vector<std::string> Names;
        const TSample Sample(*Class);
        VisitValues(*Sample.Instance(), Class->ClassName(),
                    [&](TPersistent&, const TPropInfo& Prop, const std::string& Path) {
                        if (HasListedValues(Prop))
                            Names.push_back(Path);
                    });
        for (const std::string& Name : Names)
            try {
                if (!KeepsValues(*Class, Name, Windows))
                    Result.insert(Name);
            } catch (const EInvalidOperation&) {
                Result.insert(Name);
            }
    }
    return Result;
}

// A value other than the default, another one in each round; nothing happens
// where the component refuses it.
void SetOther(TPersistent& Instance, const TPropInfo& Prop, size_t Round)
{
    const auto Number = static_cast<int64_t>(Round);
    try {
        if (HasListedValues(Prop)) {
            const std::vector<int64_t> Values = ValuesOf(Prop);
            SetOrdProp(Instance, Prop, Values[Round % Values.size()]);
        } else if (Prop.Kind() == tkInteger || Prop.Kind() == tkInt64 || Prop.Kind() == tkChar) {
            SetOrdProp(Instance, Prop,
                       std::clamp(Number * 31 + 1, Prop.PropType->MinValue, Prop.PropType->MaxValue));
        } else if (Prop.Kind() == tkFloat) {
            SetFloatProp(Instance, Prop, 40000.25 + static_cast<double>(Round));
        } else {
            SetStrProp(Instance, Prop, Round % 2 ? "a &b\n\xE6\x97\xA5'" : "x");
        }
    } catch (const Exception&) { // out of range, or not possible here
    }
}

} // namespace

TEST(ClassValues, AreKept)
{
    const TApplicationScope Scope;
    EXPECT_EQ(Refusing(TWindows::No), RefusedForAReason);
}

TEST(ClassValues, AreKeptWithAWindow)
{
    const TApplicationScope Scope;
    EXPECT_EQ(Refusing(TWindows::Yes), RefusedForAReason);
}

// Each round gives every property another value.
TEST(ClassValues, AreBroughtBackByAFormFile)
{
    const TApplicationScope Scope;
    for (const TMetaClass* const Class : ComponentClasses())
        for (size_t Round = 0; Round < 6; ++Round) {
            SCOPED_TRACE(Class->ClassName() + ", round " + std::to_string(Round));
            const TSample Sample(*Class);
            VisitValues(*Sample.Instance(), Class->ClassName(),
                        [&](TPersistent& Instance, const TPropInfo& Prop, const std::string&) {
                            SetOther(Instance, Prop, Round);
                        });
            const std::string Written = Sample.Text(TWrittenProperties::Changed);
            try {
                const TSample Copy(ReadFormText(Written), *Class);
                EXPECT_EQ(Copy.Text(TWrittenProperties::All), Sample.Text(TWrittenProperties::All))
                    << Written;
            } catch (const std::exception& Error) {
                ADD_FAILURE() << Error.what() << "\n" << Written;
            }
        }
}
