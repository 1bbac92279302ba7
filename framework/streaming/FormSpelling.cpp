// Takes the spelling of one document over into another: TFormDocument::KeepSpelling.
#include "framework/streaming/FormDocument.h"

#include <algorithm>
#include <deque>
#include <unordered_map>

#include "framework/streaming/FormNames.h"

namespace {

void KeepValue(TFormValue& Value, const TFormValue& Old);

// For each property the place of the old one of its name. Of several with one
// name the last ones are paired first: the last is the one that counts.
std::vector<std::optional<std::size_t>> OldPlaces(const std::vector<TFormProperty>& Properties,
                                                  const std::vector<TFormProperty>& Old)
{
    std::unordered_map<std::string, std::vector<std::size_t>> Places;
    for (std::size_t Index = 0; Index < Old.size(); ++Index)
        Places[LowerName(Old[Index].Name())].push_back(Index);
    std::vector<std::optional<std::size_t>> Result(Properties.size());
    for (std::size_t Index = Properties.size(); Index-- > 0;) {
        const auto Found = Places.find(LowerName(Properties[Index].Name()));
        if (Found == Places.end() || Found->second.empty())
            continue;
        Result[Index] = Found->second.back();
        Found->second.pop_back();
    }
    return Result;
}

// Besides the spelling, the properties get the order of the old ones; a new
// property stays behind the one that it follows.
void KeepProperties(TFormProperties& Owner, const TFormProperties& Old)
{
    struct TPlaced {
        std::size_t Place;
        TFormProperty Property;
    };
    std::vector<TPlaced> Placed;
    auto& Properties = Owner.Properties();
    const auto Places = OldPlaces(Properties, Old.Properties());
    Placed.reserve(Properties.size());
    std::size_t Place = 0;
    for (std::size_t Index = 0; Index < Properties.size(); ++Index) {
        TFormProperty& Property = Properties[Index];
        if (Places[Index]) {
            const TFormProperty& OldProperty = Old.Properties()[*Places[Index]];
            if (OldProperty.Name() == Property.Name())
                Property.SetNameSpan(OldProperty.NameSpan());
            KeepValue(Property.Value, OldProperty.Value);
            Place = *Places[Index] + 1;
        }
        Placed.push_back({Place, std::move(Property)});
    }
    std::stable_sort(Placed.begin(), Placed.end(),
                     [](const TPlaced& One, const TPlaced& Other) { return One.Place < Other.Place; });
    for (std::size_t Index = 0; Index < Placed.size(); ++Index)
        Properties[Index] = std::move(Placed[Index].Property);
}

void KeepItem(TFormItem& Item, const TFormItem& Old)
{
    if (!Old.HeaderChanged()) {
        const auto Index = Item.Index();
        Item.InitHeader(Old.Index());
        Item.SetIndex(Index);
        Item.SetSpan(Old.Span());
    }
    KeepProperties(Item, Old);
}

bool SameItem(const TFormItem& One, const TFormItem& Other)
{
    return TFormValue::Collection({One}).SameAs(TFormValue::Collection({Other}));
}

// Pairs the equal parts at the start and at the end; calls Same for those and
// Changed for the pairs in between.
template<class TPart, class TSame, class TKeepSame, class TKeepChanged>
void KeepParts(std::vector<TPart>& Parts, const std::vector<TPart>& Old, TSame Same, TKeepSame KeepSame,
               TKeepChanged KeepChanged)
{
    const std::size_t Common = std::min(Parts.size(), Old.size());
    std::size_t First = 0, Last = 0;
    while (First < Common && Same(Parts[First], Old[First])) {
        KeepSame(Parts[First], Old[First]);
        ++First;
    }
    while (Last < Common - First && Same(Parts.rbegin()[static_cast<std::ptrdiff_t>(Last)],
                                         Old.rbegin()[static_cast<std::ptrdiff_t>(Last)])) {
        KeepSame(Parts.rbegin()[static_cast<std::ptrdiff_t>(Last)],
                 Old.rbegin()[static_cast<std::ptrdiff_t>(Last)]);
        ++Last;
    }
    for (std::size_t Index = First; Index < Common - Last; ++Index)
        KeepChanged(Parts[Index], Old[Index]);
}

void KeepValue(TFormValue& Value, const TFormValue& Old)
{
    if (Value.SameAs(Old)) {
        Value = Old;
    } else if (Value.Is(TFormValueKind::List) && Old.Is(TFormValueKind::List)) {
        Value.SetSpan(Old.Span());
        KeepParts(
            Value.EditList(), Old.AsList(),
            [](const TFormValue& One, const TFormValue& Other) { return One.SameAs(Other); },
            [](TFormValue& One, const TFormValue& Other) { One = Other; },
            [](TFormValue& One, const TFormValue& Other) { KeepValue(One, Other); });
    } else if (Value.Is(TFormValueKind::Collection) && Old.Is(TFormValueKind::Collection)) {
        Value.SetSpan(Old.Span());
        KeepParts(
            Value.EditCollection(), Old.AsCollection(), SameItem,
            [](TFormItem& One, const TFormItem& Other) { One = Other; }, KeepItem);
    }
}

// Children are known by their names, nameless ones by their class and order.
std::string ChildKey(const TFormObject& Child)
{
    return Child.Name().empty() ? ":" + LowerName(Child.ClassName()) : LowerName(Child.Name());
}

void KeepObject(TFormObject& Object, const TFormObject& Old)
{
    const TFormObject Wanted(Object.Kind(), Object.Name(), Object.ClassName());
    const auto Position = Object.Position();
    if (!Old.HeaderChanged()) {
        Object.InitHeader(Old.Kind(), Old.Name(), Old.ClassName(), Old.Position());
        Object.SetKind(Wanted.Kind());
        Object.SetName(Wanted.Name());
        Object.SetClassName(Wanted.ClassName());
        Object.SetPosition(Position);
        Object.SetSpan(Old.Span());
    }
    KeepProperties(Object, Old);

    std::unordered_map<std::string, std::deque<const TFormObject*>> OldChildren;
    for (const auto& Child : Old.Children())
        OldChildren[ChildKey(Child)].push_back(&Child);
    for (auto& Child : Object.Children()) {
        const auto Found = OldChildren.find(ChildKey(Child));
        if (Found == OldChildren.end() || Found->second.empty())
            continue;
        KeepObject(Child, *Found->second.front());
        Found->second.pop_front();
    }
}

} // namespace

void TFormDocument::KeepSpelling(const TFormDocument& Original)
{
    KeepObject(Root, Original.Root);
    Format = Original.Format;
    Text = Original.Text;
    Binary = Original.Binary;
    Source = Original.Source;
    Frame = Original.Frame;
}
