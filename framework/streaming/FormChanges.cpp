#include "framework/streaming/FormChanges.h"

#include <algorithm>

#include "framework/streaming/FormNames.h"

namespace {

// The property of that name, which mostly stands at the same place in both.
const TFormProperty* FindNear(const TFormProperties& Properties, size_t Index, const std::string& Name)
{
    const auto& All = Properties.Properties();
    if (Index < All.size() && All[Index].Name() == Name)
        return &All[Index];
    return Properties.Find(Name);
}

bool SameCount(const TFormValue& A, const TFormValue& B)
{
    if (A.Kind() != B.Kind())
        return false;
    if (A.Is(TFormValueKind::Collection))
        return A.AsCollection().size() == B.AsCollection().size();
    return A.Is(TFormValueKind::List) && A.AsList().size() == B.AsList().size();
}

// Only the items and lines that differ are replaced.
void ApplyValue(TFormValue& Target, const TFormValue& Before, const TFormValue& After)
{
    if (!SameCount(Target, Before) || !SameCount(Before, After)) {
        Target = After;
    } else if (Target.Is(TFormValueKind::Collection)) {
        auto& Items = Target.EditCollection();
        for (size_t I = 0; I < Items.size(); ++I)
            ApplyChanges(Items[I], Before.AsCollection()[I], After.AsCollection()[I]);
    } else {
        auto& Values = Target.EditList();
        for (size_t I = 0; I < Values.size(); ++I)
            if (!Before.AsList()[I].SameAs(After.AsList()[I]))
                Values[I] = After.AsList()[I];
    }
}

// Behind the nearest property before After's Index that Target has.
void Insert(TFormProperties& Target, const TFormProperties& After, size_t Index)
{
    auto& Present = Target.Properties();
    auto Place = Present.end();
    for (size_t I = Index; I-- > 0 && Place == Present.end();)
        if (const TFormProperty* const Earlier = Target.Find(After.Properties()[I].Name()))
            Place = Present.begin() + (Earlier - Present.data()) + 1;
    Present.insert(Place, TFormProperty(After.Properties()[Index].Name(), After.Properties()[Index].Value));
}

} // namespace

void ApplyChanges(TFormProperties& Target, const TFormProperties& Before, const TFormProperties& After)
{
    for (const TFormProperty& Old : Before.Properties())
        if (!After.Find(Old.Name()))
            std::erase_if(Target.Properties(),
                          [&](const TFormProperty& Each) { return SameName(Each.Name(), Old.Name()); });
    for (size_t I = 0; I < After.Properties().size(); ++I) {
        const TFormProperty& New = After.Properties()[I];
        const TFormProperty* const Old = FindNear(Before, I, New.Name());
        if (Old && Old->Value.SameAs(New.Value))
            continue;
        TFormProperty* const Present = Target.Find(New.Name());
        if (!Present)
            Insert(Target, After, I);
        else if (Old)
            ApplyValue(Present->Value, Old->Value, New.Value);
        else
            Present->Value = New.Value;
    }
}
