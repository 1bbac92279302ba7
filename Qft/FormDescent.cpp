// The walk along a list that is in order.
#include <algorithm>
#include <charconv>

#include "Qft/FormWalk.h"
#include "Qft/FormWalkScope.h"
#include "core/KeyLines.h"
#include "framework/rtl/DynamicProps.h"

namespace {

// The index that begins Text, as keys write it, with "]" and End behind it.
bool ReadIndex(std::string_view Text, char End, int& Index)
{
    const char* const Last = Text.data() + Text.size();
    const auto [Stop, Error] = std::from_chars(Text.data(), Last, Index);
    const bool IsPlain =
        Error == std::errc() && Text[0] != '-' && (Text[0] != '0' || Stop == Text.data() + 1);
    return IsPlain && Last - Stop >= 2 && Stop[0] == ']' && Stop[1] == End;
}

TLineRange FirstOf(TLineRange A, TLineRange B)
{
    return A.Empty() ? B : A;
}

} // namespace

std::span<const TPropInfo* const> TFormWalk::PublishedHere() const
{
    const TEntry& Entry = FEntries.back();
    const auto* const Dynamic = Entry.Persistent ? Entry.Persistent->DynamicProperties() : nullptr;
    return Dynamic ? Dynamic->All() : Entry.Object->ClassType().Properties();
}

// The place of the property with exactly that name among PublishedHere().
int TFormWalk::PropertyHere(std::string_view Name)
{
    const TEntry& Entry = FEntries.back();
    if (Entry.Persistent)
        if (const auto* const Dynamic = Entry.Persistent->DynamicProperties())
            return Dynamic->IndexOf(Name);
    const TMetaClass& Class = Entry.Object->ClassType();
    if (&Class == FLastClass && Name == *FLastName)
        return FLastProp;
    const int Result = Class.PropertyIndex(Name);
    if (Result >= 0) {
        FLastClass = &Class;
        FLastName = &Class.Properties()[static_cast<size_t>(Result)]->Name;
        FLastProp = Result;
    }
    return Result;
}

// Properties made from a form file may have names that do not end where the
// names in keys do.
bool TFormWalk::HasOddNames() const
{
    const TPersistent* const Persistent = FEntries.back().Persistent;
    const auto* const Dynamic = Persistent ? Persistent->DynamicProperties() : nullptr;
    return Dynamic && std::any_of(Dynamic->Own().begin(), Dynamic->Own().end(), [](const auto& Prop) {
               return Prop->Name.find_first_of(".=[") != std::string::npos;
           });
}

void TFormWalk::DescendRoot(TObject& Root)
{
    if (HasOddNames()) {
        WalkProperties(Root, 0);
        return;
    }
    const size_t First = FNamed.size();
    const auto Props = PublishedHere();
    if (FIndex.Names().size() < Props.size()) {
        for (const TNamedLines& Lines : FIndex.Names())
            if (const int Prop = PropertyHere(Lines.Name); Prop >= 0)
                FNamed.push_back({Prop, Lines});
        SortNamed(First);
    } else {
        for (size_t I = 0; I < Props.size(); ++I)
            if (const TNamedLines* const Lines = FIndex.Find(Props[I]->Name))
                FNamed.push_back({static_cast<int>(I), *Lines});
    }
    DescendNamed(Root, First);
}

// Range: the lines whose keys begin with that of Object and a ".".
void TFormWalk::Descend(TObject& Object, TLineRange Range)
{
    if (HasOddNames()) {
        WalkProperties(Object, 0);
        return;
    }
    const size_t First = FNamed.size();
    CollectNamed(Range);
    SortNamed(First);
    DescendNamed(Object, First);
}

void TFormWalk::CollectNamed(TLineRange Range)
{
    const size_t Skip = FKey.size() + 1;
    const size_t First = FNamed.size();
    for (int Line = Range.First; Line < Range.Last; ++Line) {
        char End = 0;
        const std::string_view Name = FirstName(std::string_view(FOrdered->Get(Line)).substr(Skip), End);
        if (End == 0)
            continue;
        if (FNamed.size() == First || FNamed.back().Lines.Name != Name) {
            const int Prop = PropertyHere(Name);
            if (Prop < 0)
                continue;
            FNamed.push_back({Prop, {Name, {}, {}, {}}});
        }
        FNamed.back().Lines.Add(Line, End);
    }
}

// By property, and what is known of one property together: the lines of "Font."
// and of "Font=" do not follow each other when there is a "Font1".
void TFormWalk::SortNamed(size_t First)
{
    const auto Begin = FNamed.begin() + static_cast<std::ptrdiff_t>(First);
    if (FNamed.end() - Begin < 2)
        return;
    std::stable_sort(Begin, FNamed.end(), [](const TNamed& A, const TNamed& B) { return A.Prop < B.Prop; });
    auto Kept = Begin;
    for (auto Next = Begin + 1; Next != FNamed.end(); ++Next) {
        if (Next->Prop != Kept->Prop) {
            *++Kept = *Next;
            continue;
        }
        Kept->Lines.Equal = FirstOf(Kept->Lines.Equal, Next->Lines.Equal);
        Kept->Lines.Dot = FirstOf(Kept->Lines.Dot, Next->Lines.Dot);
        Kept->Lines.Bracket = FirstOf(Kept->Lines.Bracket, Next->Lines.Bracket);
    }
    FNamed.erase(Kept + 1, FNamed.end());
}

// Visits the properties that were collected from First on, and forgets them.
void TFormWalk::DescendNamed(TObject& Object, size_t First)
{
    for (size_t I = First; I < FNamed.size(); ++I) {
        const TNamed Named = FNamed[I];
        DescendProperty(Object, *PublishedHere()[static_cast<size_t>(Named.Prop)], Named.Lines);
        if (IsStopped())
            break;
        if (IsStale()) {
            WalkProperties(Object, static_cast<size_t>(Named.Prop) + 1);
            break;
        }
    }
    FNamed.resize(First);
}

void TFormWalk::DescendProperty(TObject& Object, const TPropInfo& Prop, const TNamedLines& Lines)
{
    if (Prop.Kind() == tkUnknown || Prop.Kind() == tkMethod)
        return;
    const TKey Key(*this, Prop.Name);
    int Index = 0;
    if (Prop.Kind() == tkClass)
        DescendHeld(Object, Prop, Lines);
    else if (!Lines.Equal.Empty() && FindOrdered(Lines.Equal.First, Index))
        ApplyTo(Object, Prop, Index);
}

void TFormWalk::DescendHeld(TObject& Holder, const TPropInfo& Prop, const TNamedLines& Lines)
{
    if (Lines.Dot.Empty() && Lines.Bracket.Empty())
        return;
    TObject* const Held = GetObjectProp(Holder, Prop);
    if (!Held || IsWalked(*Held))
        return;
    const TEntered Entered(*this, *Held, &Prop, -1);
    if (auto* const Strings = dynamic_cast<TStrings*>(Held))
        DescendLines(*Strings, Lines.Bracket);
    else if (auto* const Items = dynamic_cast<TCollection*>(Held))
        DescendItems(*Items, Lines.Bracket);
    else if (!Lines.Dot.Empty())
        Descend(*Held, Lines.Dot);
}

void TFormWalk::DescendLines(TStrings& Lines, TLineRange Range)
{
    const int Count = Lines.Count();
    for (const TIndexed& Each : CollectIndexed(Range, '=')) {
        if (Each.Item >= std::min(Count, Lines.Count()))
            return;
        {
            const TKey Key(*this, Each.Item);
            int Index = 0;
            if (FindOrdered(Each.Lines.First, Index))
                ApplyToLine(Lines, Each.Item, Index);
        }
        if (IsStopped())
            return;
        if (IsStale()) {
            WalkLines(Lines, Each.Item + 1, Count);
            return;
        }
    }
}

void TFormWalk::DescendItems(TCollection& Items, TLineRange Range)
{
    const int Count = Items.Count();
    for (const TIndexed& Each : CollectIndexed(Range, '.')) {
        if (Each.Item >= std::min(Count, Items.Count()))
            return;
        TCollectionItem* const Item = Items.Items(Each.Item);
        if (IsWalked(*Item))
            continue;
        {
            const TKey Key(*this, Each.Item);
            const TEntered Entered(*this, *Item, nullptr, Each.Item);
            Descend(*Item, Each.Lines);
        }
        if (IsStopped())
            return;
        if (IsStale()) {
            WalkItems(Items, Each.Item + 1, Count);
            return;
        }
    }
}

// The indexes that the lines of Range have behind FKey, each with the lines that
// go on with End, in the order of the indexes.
std::vector<TFormWalk::TIndexed> TFormWalk::CollectIndexed(TLineRange Range, char End) const
{
    std::vector<TIndexed> Result;
    for (int Line = Range.First; Line < Range.Last; ++Line) {
        const std::string_view Rest = std::string_view(FOrdered->Get(Line)).substr(FKey.size() + 1);
        int Item = 0;
        if (!ReadIndex(Rest, End, Item))
            continue;
        if (!Result.empty() && Result.back().Item == Item)
            Result.back().Lines.Last = Line + 1;
        else
            Result.push_back({Item, {Line, Line + 1}});
    }
    std::sort(Result.begin(), Result.end(),
              [](const TIndexed& A, const TIndexed& B) { return A.Item < B.Item; });
    return Result;
}

// The line that a search for FKey finds, when First is the first one of that key.
// Two lines before it that begin with the key, too, hide it from the search, but
// for the luck of the bisection among several that equal the key.
bool TFormWalk::FindOrdered(int First, int& Index) const
{
    const auto BeginsAlike = [&](int Line) {
        return Line >= 0 && std::string_view(FOrdered->Get(Line)).starts_with(FKey);
    };
    if (BeginsAlike(First - 1) && BeginsAlike(First - 2))
        return FindKeyLine(*FOrdered, FKey, Index);
    Index = First;
    return true;
}
