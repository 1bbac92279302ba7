#include "Qft/FormWalk.h"

#include <algorithm>
#include <utility>

#include "Qft/FormWalkScope.h"
#include "Qft/PropertyText.h"
#include "core/KeyLines.h"
#include "core/Literals.h"
#include "framework/rtl/Utf8.h"

TFormWalk::TFormWalk(TFormTranslator& Translator, TStrings& List, bool ReadMode)
    : FTranslator(Translator), FList(List), FOrdered(dynamic_cast<TSortList*>(&List)), FReadMode(ReadMode),
      FOuter(Translator.FWalk), FOuterLookup(Translator.FLookup)
{
    FTranslator.FWalk = this;
    FTranslator.FLookup = &List;
}

TFormWalk::~TFormWalk()
{
    if (FIsOver)
        return;
    FTranslator.FWalk = FOuter;
    if (FOuter)
        FTranslator.FLookup = FOuterLookup;
    if (!FTranslator.FMovedDefaults)
        FTranslator.FlushDefaults();
}

void TFormWalk::NoteFormerValues()
{
    if (!ChangesMaySpread())
        return;
    FNoted.resize(static_cast<size_t>(FList.Count()));
    FNoting = true;
    WalkOwner();
    WalkComponents();
    FComponents.clear();
    FNoting = false;
}

// Texts of ordinary components are seen nowhere else. An action's are taken over
// by its controls, and fonts, colours and directions by the controls inside;
// longer paths may lead to another component that has lines of its own.
bool TFormWalk::ChangesMaySpread() const
{
    for (int I = 0; I < FList.Count(); ++I) {
        const std::string_view Line = FList.Get(I);
        const size_t Equals = Line.find('=');
        if (Equals == Line.npos)
            continue;
        const bool IsText = Equals + 1 == Line.size() || Line[Equals + 1] == '\'' || Line[Equals + 1] == '#';
        const std::string_view Key = Line.substr(0, Equals);
        if (!IsText || std::count(Key.begin(), Key.end(), '.') > 1)
            return true;
    }
    const TComponent* const Owner = FTranslator.Owner();
    for (int I = 0; Owner && I < Owner->ComponentCount(); ++I)
        if (Owner->Components(I)->ChangesOthers())
            return true;
    return false;
}

void TFormWalk::WalkOwner()
{
    TComponent* const Owner = FTranslator.Owner();
    if (!Owner)
        return;
    Prepare();
    FKey.clear();
    const TEntered Entered(*this, *Owner);
    if (FIsOrdered)
        DescendRoot(*Owner);
    else
        WalkProperties(*Owner, 0);
}

void TFormWalk::WalkComponents()
{
    const TComponent* const Owner = FTranslator.Owner();
    if (!Owner)
        return;
    for (int I = 0; I < Owner->ComponentCount(); ++I)
        FComponents.push_back(Owner->Components(I));
    for (size_t I = 0; I < FComponents.size(); ++I) {
        TComponent* const Component = FComponents[I];
        if (!Component || Component == &FTranslator || Component->Name().empty())
            continue;
        bool Skip = false;
        if (FTranslator.OnTranslateComponent && !FNoting) {
            FTranslator.OnTranslateComponent(&FTranslator, Component, &FList, Skip);
            if (FIsOver)
                return;
        }
        if (!Skip && FComponents[I])
            WalkComponent(*Component);
        if (FIsOver)
            return;
    }
}

void TFormWalk::WalkComponent(TComponent& Component)
{
    if (IsStale())
        Prepare();
    const TNamedLines* const Lines = FIsOrdered ? FIndex.Find(Component.Name()) : nullptr;
    if (FIsOrdered && (!Lines || Lines->Dot.Empty()))
        return;
    FKey = Component.Name();
    const TEntered Entered(*this, Component);
    if (Lines)
        Descend(Component, Lines->Dot);
    else
        WalkProperties(Component, 0);
}

void TFormWalk::WalkObject(TObject* Object, const std::string& Key)
{
    if (!Object)
        return;
    FKey = Key;
    const TEntered Entered(*this, *Object, nullptr, -1);
    WalkProperties(*Object, 0);
}

void TFormWalk::WalkStrings(TStrings& Lines, const std::string& Key)
{
    FKey = Key;
    const TEntered Entered(*this, Lines, nullptr, -1);
    WalkLines(Lines, 0, Lines.Count());
}

void TFormWalk::WalkCollection(TCollection& Items, const std::string& Key)
{
    FKey = Key;
    const TEntered Entered(*this, Items, nullptr, -1);
    WalkItems(Items, 0, Items.Count());
}

bool TFormWalk::WalkOne(TObject& Object, const TPropInfo& Prop, int Index)
{
    const std::string& Line = FList.Get(Index);
    if (Line.find('=') == Line.npos)
        return false;
    FKey = KeyOf(Line);
    const TEntered Entered(*this, Object, nullptr, -1);
    return ApplyTo(Object, Prop, Index);
}

// The list is descended as it is now; until it changes.
void TFormWalk::Prepare()
{
    FIsOrdered = !FReadMode && FOrdered && FOrdered->IsInOrder();
    if (!FIsOrdered)
        return;
    FVersion = FOrdered->Version();
    FIndex.Build(*FOrdered);
}

bool TFormWalk::IsWalked(const TObject& Object) const
{
    return std::any_of(FEntries.begin(), FEntries.end(),
                       [&](const TEntry& Entry) { return Entry.Object == &Object; });
}

// Whether every object being walked is still there and where it was.
bool TFormWalk::IsIntact() const
{
    if (FEntries.front().IsGone)
        return false;
    for (size_t I = 1; I < FEntries.size(); ++I) {
        const TEntry& Entry = FEntries[I];
        if (Entry.IsGone)
            return false;
        TObject& Before = *FEntries[I - 1].Object;
        if (Entry.Prop) {
            if (GetObjectProp(Before, *Entry.Prop) != Entry.Object)
                return false;
        } else {
            const auto& Items = static_cast<const TCollection&>(Before);
            if (Entry.Item >= Items.Count() || Items.Items(Entry.Item) != Entry.Object)
                return false;
        }
    }
    return true;
}

void TFormWalk::ForgetComponent(const TComponent* Component)
{
    std::replace(FComponents.begin(), FComponents.end(), const_cast<TComponent*>(Component),
                 static_cast<TComponent*>(nullptr));
    bool IsGone = false;
    for (TEntry& Entry : FEntries)
        Entry.IsGone = IsGone = IsGone || Entry.IsGone || Entry.Object == Component;
}

void TFormWalk::WalkProperties(TObject& Object, size_t From)
{
    const auto Published = GetPropList(Object);
    // A copy: objects with properties of their own may get more of them meanwhile.
    const std::vector<const TPropInfo*> Props(Published.begin(), Published.end());
    for (size_t I = From; I < Props.size(); ++I) {
        WalkProperty(Object, *Props[I]);
        if (!FReadMode && IsStopped())
            return;
    }
}

void TFormWalk::WalkProperty(TObject& Object, const TPropInfo& Prop)
{
    if (Prop.Kind() == tkUnknown || Prop.Kind() == tkMethod)
        return;
    const TKey Key(*this, Prop.Name);
    int Index = 0;
    if (Prop.Kind() == tkClass)
        WalkHeld(Object, Prop);
    else if (FReadMode)
        FList.Add(FKey + "=" + GetPropertyText(Object, Prop));
    else if (FindKeyLine(FList, FKey, Index))
        ApplyTo(Object, Prop, Index);
}

// An object that is being walked already is not entered again: components may
// refer to each other in a circle.
void TFormWalk::WalkHeld(TObject& Holder, const TPropInfo& Prop)
{
    TObject* const Held = GetObjectProp(Holder, Prop);
    if (!Held || IsWalked(*Held))
        return;
    const TEntered Entered(*this, *Held, &Prop, -1);
    if (auto* const Lines = dynamic_cast<TStrings*>(Held))
        WalkLines(*Lines, 0, Lines->Count());
    else if (auto* const Items = dynamic_cast<TCollection*>(Held))
        WalkItems(*Items, 0, Items->Count());
    else
        WalkProperties(*Held, 0);
}

void TFormWalk::WalkLines(TStrings& Lines, int From, int Count)
{
    for (int I = From; I < std::min(Count, Lines.Count()); ++I) {
        const TKey Key(*this, I);
        int Index = 0;
        if (FReadMode)
            FList.Add(FKey + "=" + ToLiterals(Lines.Get(I)));
        else if (FindKeyLine(FList, FKey, Index))
            ApplyToLine(Lines, I, Index);
        if (!FReadMode && IsStopped())
            return;
    }
}

void TFormWalk::WalkItems(TCollection& Items, int From, int Count)
{
    for (int I = From; I < std::min(Count, Items.Count()); ++I) {
        TCollectionItem* const Item = Items.Items(I);
        if (IsWalked(*Item))
            continue;
        {
            const TKey Key(*this, I);
            const TEntered Entered(*this, *Item, nullptr, I);
            WalkProperties(*Item, 0);
        }
        if (!FReadMode && IsStopped())
            return;
    }
}

void TFormWalk::Note(int Index, std::string Value)
{
    FNoted[static_cast<size_t>(Index)] = {FKey, std::move(Value)};
}

bool TFormWalk::ApplyTo(TObject& Object, const TPropInfo& Prop, int Index)
{
    const bool AsLiteral = IsLiteralKind(Prop.Kind());
    const auto Present = [&] { return AsLiteral ? GetStrProp(Object, Prop) : GetPropertyText(Object, Prop); };
    if (FNoting) {
        Note(Index, Present());
        return true;
    }
    if (FTranslator.OnTranslateProperty) {
        bool Skip = false;
        FTranslator.OnTranslateProperty(&FTranslator, std::string(), &Prop, &FList, Skip);
        if (Skip || IsStopped() || !FindAgain(Index))
            return false;
    }
    const std::string_view Raw = Value(Index);
    AssignFromLiterals(FText, Raw);
    if (!FTranslator.FTranslated)
        Remember(Present(), AsLiteral, Index);
    if (FText.empty() && !FTranslator.FTranslateEmpty)
        return true;
    return SetPropertyText(Object, Prop, Raw, FText);
}

void TFormWalk::ApplyToLine(TStrings& Lines, int Line, int Index)
{
    if (FNoting) {
        Note(Index, Lines.Get(Line));
        return;
    }
    if (FTranslator.OnTranslateProperty) {
        bool Skip = false;
        FTranslator.OnTranslateProperty(&FTranslator, FKey, nullptr, &FList, Skip);
        if (Skip || IsStopped() || !FindAgain(Index) || Line >= Lines.Count())
            return;
    }
    if (!FTranslator.FTranslated)
        Remember(Lines.Get(Line), true, Index);
    AssignFromLiterals(FText, Value(Index));
    if (!FText.empty() || FTranslator.FTranslateEmpty)
        Lines.Put(Line, FText);
}

// A handler may have changed the list. Its line may have a new value.
bool TFormWalk::FindAgain(int& Index) const
{
    return (Index < FList.Count() && BeginsWithKey(FList.Get(Index), FKey)) ||
           FindKeyLine(FList, FKey, Index);
}

std::string_view TFormWalk::Value(int Index) const
{
    const std::string_view Line = FOrdered ? FOrdered->TSortList::Get(Index) : FList.Get(Index);
    return CutAtCharacter(Line.substr(FKey.size() + 1), MaxListValueBytes);
}

void TFormWalk::Remember(std::string_view Former, bool AsLiteral, int Index)
{
    // The line may be another one by now.
    if (const size_t Line = static_cast<size_t>(Index); Line < FNoted.size() && FNoted[Line].Key == FKey)
        Former = FNoted[Line].Value;
    FTranslator.FPending.Add(FKey, Former, AsLiteral, Index, FList.Objects(Index));
}
