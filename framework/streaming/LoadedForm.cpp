#include "framework/streaming/LoadedForm.h"

#include <algorithm>

#include "framework/streaming/ComponentWriter.h"

namespace {

// The property of that name, which mostly stands at the same place in both.
const TFormProperty* FindNear(const TFormProperties& Properties, size_t Index, const std::string& Name)
{
    const auto& All = Properties.Properties();
    if (Index < All.size() && All[Index].Name() == Name)
        return &All[Index];
    return Properties.Find(Name);
}

void ApplyChanges(TFormProperties& Target, const TFormProperties& Before, const TFormProperties& After);

bool SameCount(const TFormValue& A, const TFormValue& B)
{
    if (A.Kind() != B.Kind())
        return false;
    if (A.Is(TFormValueKind::Collection))
        return A.AsCollection().size() == B.AsCollection().size();
    return A.Is(TFormValueKind::List) && A.AsList().size() == B.AsList().size();
}

// Only the items and lines that differ are replaced, so that the others keep
// their spelling and what the components do not know of them.
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

void ApplyChanges(TFormProperties& Target, const TFormProperties& Before, const TFormProperties& After)
{
    for (size_t I = 0; I < After.Properties().size(); ++I) {
        const TFormProperty& New = After.Properties()[I];
        const TFormProperty* const Old = FindNear(Before, I, New.Name());
        if (Old && Old->Value.SameAs(New.Value))
            continue;
        TFormProperty* const Present = Target.Find(New.Name());
        if (!Present)
            Target.Add(New.Name(), New.Value);
        else if (Old)
            ApplyValue(Present->Value, Old->Value, New.Value);
        else
            Present->Value = New.Value;
    }
}

void CollectObjects(TFormObject& Object, std::vector<TFormObject*>& Objects)
{
    Objects.push_back(&Object);
    for (TFormObject& Child : Object.Children())
        CollectObjects(Child, Objects);
}

void CollectComponents(TComponent& Owner, std::vector<const TComponent*>& Components)
{
    Components.push_back(&Owner);
    for (int I = 0; I < Owner.ComponentCount(); ++I)
        CollectComponents(*Owner.Components(I), Components);
}

} // namespace

TLoadedForm::TLoadedForm(TFormDocument Document, TUnknownClasses UnknownClasses, const TRootMaker& MakeRoot)
    : FDocument(std::move(Document))
{
    FRoot = MakeRoot(FDocument.Root);
    TComponentReader Reader(FDocument, UnknownClasses);
    Reader.ReadRoot(*FRoot);
    TComponentWriter Writer(*FRoot, TWrittenProperties::All);
    FEntries.reserve(Reader.Components().size());
    for (TComponent* const Component : Reader.Components())
        FEntries.push_back({Component, Writer.WriteComponent(*Component)});
}

TFormDocument TLoadedForm::Save() const
{
    TFormDocument Result = FDocument;
    std::vector<TFormObject*> Objects;
    CollectObjects(Result.Root, Objects);
    std::vector<const TComponent*> Alive;
    CollectComponents(*FRoot, Alive);
    std::sort(Alive.begin(), Alive.end());
    TComponentWriter Writer(*FRoot, TWrittenProperties::All);
    for (size_t I = 0; I < FEntries.size(); ++I) {
        const TEntry& Entry = FEntries[I];
        if (std::binary_search(Alive.begin(), Alive.end(), Entry.Component))
            ApplyChanges(*Objects[I], Entry.Before, Writer.WriteComponent(*Entry.Component));
    }
    return Result;
}
