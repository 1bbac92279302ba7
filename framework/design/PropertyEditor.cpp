#include "framework/design/PropertyEditor.h"

#include <algorithm>

#include "framework/design/StandardEditors.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/SysUtils.h"

namespace {

struct TRegistration {
    const TTypeInfo* Type;
    const TMetaClass* Component;
    std::string PropertyName;
    TPropertyEditorMaker Maker;
};

std::vector<TRegistration>& Registrations()
{
    static std::vector<TRegistration> Instance;
    return Instance;
}

// How many classes lie between, from 1; 0 when Class does not descend from Ancestor.
int Distance(const TMetaClass* Class, const TMetaClass& Ancestor)
{
    for (int Steps = 1; Class; Class = Class->ClassParent(), ++Steps)
        if (Class == &Ancestor)
            return Steps;
    return 0;
}

bool IsOfType(const TTypeInfo& Type, const TTypeInfo& Wanted)
{
    if (&Type == &Wanted)
        return true;
    if (Type.Kind != Wanted.Kind)
        return false;
    if (Type.Kind == tkClass)
        return Type.Class && Wanted.Class && Type.Class().InheritsFrom(Wanted.Class());
    return !Type.Name.empty() && Type.Name == Wanted.Name;
}

TPropertyEditorMaker FindMaker(const TPropertyEditor::TTarget& Target)
{
    TPropertyEditorMaker Result = nullptr;
    std::pair<int, bool> Best{};
    for (const TRegistration& Each : Registrations()) {
        const int Steps = Each.Component ? Distance(&Target.Instance->ClassType(), *Each.Component) : 0;
        const bool Named = !Each.PropertyName.empty();
        if ((Each.Component && Steps == 0) || !IsOfType(*Target.Prop->PropType, *Each.Type) ||
            (Named && !SameText(Each.PropertyName, Target.Prop->Name)))
            continue;
        // The nearest class first; without a class it is the farthest.
        const std::pair<int, bool> Rank{Steps == 0 ? INT_MIN : -Steps, Named};
        if (Result && Rank < Best)
            continue;
        Best = Rank;
        Result = Each.Maker;
    }
    return Result;
}

// Events of classes that the program does not have are told by their names.
bool IsEvent(const TPropInfo& Prop)
{
    return Prop.Kind() == tkMethod ||
           (Prop.Kind() == tkUnknown && Prop.Name.size() > 2 && Prop.Name.starts_with("On") &&
            Prop.Name[2] >= 'A' && Prop.Name[2] <= 'Z');
}

bool AreAlike(const TPropInfo& One, const TPropInfo& Other)
{
    if (IsEvent(One) || IsEvent(Other))
        return IsEvent(One) && IsEvent(Other);
    return One.Kind() == Other.Kind() && One.PropType->Name == Other.PropType->Name;
}

std::unique_ptr<TPropertyEditor> MakeEditor(TFormDesigner& Designer, TPropertyEditor::TTargets Targets)
{
    const auto Make = FindMaker(Targets.front());
    if (Make)
        return Make(Designer, std::move(Targets));
    return IsEvent(*Targets.front().Prop) ? MakeEventEditor(Designer, std::move(Targets))
                                          : MakeStandardEditor(Designer, std::move(Targets));
}

} // namespace

TPropertyEditor::TPropertyEditor(TFormDesigner& Designer, TTargets Targets)
    : FDesigner(Designer), FTargets(std::move(Targets))
{
}

TPropertyAttributes TPropertyEditor::GetAttributes() const
{
    return {paMultiSelect};
}

std::string TPropertyEditor::GetValue() const
{
    return "(" + Type().Name + ")";
}

void TPropertyEditor::SetValue(const std::string&)
{
    throw EPropertyError(SReadOnlyProperty);
}

void TPropertyEditor::GetValues(const std::function<void(const std::string&)>&) const {}

// Steps through the values to choose from, as the double click does.
void TPropertyEditor::Edit()
{
    if (!GetAttributes().Contains(paValueList))
        return;
    std::vector<std::string> Values;
    GetValues([&](const std::string& Each) { Values.push_back(Each); });
    if (Values.empty())
        return;
    const auto Present = std::ranges::find(Values, GetValue());
    SetValue(Present == Values.end() || Present + 1 == Values.end() ? Values.front() : *(Present + 1));
}

bool TPropertyEditor::AllEqual() const
{
    if (FTargets.size() == 1)
        return true;
    const auto TextOf = [this](const TTarget& Target) { return MakeEditor(FDesigner, {Target})->GetValue(); };
    const std::string First = TextOf(FTargets.front());
    return std::ranges::all_of(FTargets, [&](const TTarget& Each) { return TextOf(Each) == First; });
}

void TPropertyEditor::ForEachTarget(const std::function<void(TPersistent&, const TPropInfo&)>& Set)
{
    for (const TTarget& Each : FTargets)
        Set(*Each.Instance, *Each.Prop);
    FDesigner.Modified();
}

void TPropertyEditor::SetOrdinals(int64_t Value)
{
    ForEachTarget([Value](TPersistent& Object, const TPropInfo& Prop) { SetOrdProp(Object, Prop, Value); });
}

void TPropertyEditor::RaiseInvalid() const
{
    throw EPropertyError(SInvalidPropertyValue);
}

void RegisterPropertyEditor(const TTypeInfo& PropertyType, const TMetaClass* Component,
                            const std::string& PropertyName, TPropertyEditorMaker Maker)
{
    Registrations().push_back({&PropertyType, Component, PropertyName, Maker});
}

void UnregisterPropertyEditors(TPropertyEditorMaker Maker)
{
    std::erase_if(Registrations(), [Maker](const TRegistration& Each) { return Each.Maker == Maker; });
}

TPropertyEditors GetPropertyEditors(TFormDesigner& Designer, const std::vector<TPersistent*>& Objects,
                                    bool Events)
{
    TPropertyEditors Result;
    if (Objects.empty())
        return Result;
    for (const TPropInfo* const Prop : GetPropList(*Objects.front())) {
        if (IsEvent(*Prop) != Events)
            continue;
        TPropertyEditor::TTargets Targets;
        for (TPersistent* const Object : Objects) {
            const TPropInfo* const Same = GetPropInfo(*Object, Prop->Name);
            if (Same && AreAlike(*Same, *Prop))
                Targets.push_back({Object, Same});
        }
        if (Targets.size() != Objects.size())
            continue;
        auto Editor = MakeEditor(Designer, std::move(Targets));
        if (Editor && (Objects.size() == 1 || Editor->GetAttributes().Contains(paMultiSelect)))
            Result.push_back(std::move(Editor));
    }
    return Result;
}
