// Published properties, ownership, collections and string lists.
#include <gtest/gtest.h>

#include "framework/rtl/Collection.h"
#include "framework/rtl/Component.h"
#include "framework/rtl/DynamicProps.h"
#include "framework/rtl/Strings.h"
#include "framework/rtl/SysUtils.h"

namespace {

OBX_ENUM(TFruit, frApple, frPear, frPlum)
OBX_SET(TFruits, TFruit)

class TBasket : public TComponent {
    OBX_CLASS(TComponent)
public:
    explicit TBasket(TComponent* Owner) : TComponent(Owner) {}
    ~TBasket() override { Destroyed.push_back(Name()); }

    OBX_PROPERTY(TFruit, Fruit, frPear)
    OBX_PROPERTY(TFruits, Fruits, {})
    OBX_PROPERTY(std::string, Title, "")
    OBX_PROPERTY(std::u16string, WideTitle, u"")
    OBX_PROPERTY(char16_t, Wide, u'x')
    OBX_PROPERTY(TShortString, Short, {})
    OBX_PROPERTY(char, Letter, 'a')
    OBX_PROPERTY(int64_t, Big, 0)
    OBX_PROPERTY(double, Weight, 0)

public:
    TBasket* Next() const { return FNext; }
    void SetNext(TBasket* Value)
    {
        FNext = Value;
        if (Value)
            Value->FreeNotification(this);
    }
    void Notification(TComponent* Component, TOperation Operation) override
    {
        TComponent::Notification(Component, Operation);
        if (Operation == opRemove && Component == FNext)
            FNext = nullptr;
    }
    TNotifyEvent OnPick;
    void Pick(TObject* Sender) { Picked = Sender; }
    TObject* Picked = nullptr;
    static inline std::vector<std::string> Destroyed;

private:
    TBasket* FNext = nullptr;
};

const TMetaClass& TBasket::MetaClass()
{
    static const TMetaClass Class("TBasket", &TComponent::MetaClass(), CreateComponent<TBasket>,
                                  {
                                      OBX_ROW(TBasket, Fruit).Default(frPear),
                                      OBX_ROW(TBasket, Fruits),
                                      OBX_ROW(TBasket, Title),
                                      OBX_ROW(TBasket, WideTitle),
                                      OBX_ROW(TBasket, Wide),
                                      OBX_ROW(TBasket, Short),
                                      OBX_ROW(TBasket, Letter),
                                      OBX_ROW(TBasket, Big),
                                      OBX_ROW(TBasket, Weight),
                                      Prop<&TBasket::Next, &TBasket::SetNext>("Next"),
                                      Prop<&TBasket::OnPick>("OnPick"),
                                      Prop<&TComponent::Tag, &TComponent::SetTag>("Tag").Default(5),
                                  },
                                  {Published<&TBasket::Pick>("Pick")});
    return Class;
}

const TPropInfo& PropOf(const TObject& Object, const char* Name)
{
    const TPropInfo* const Prop = GetPropInfo(Object, Name);
    if (!Prop)
        throw EPropertyError(Name);
    return *Prop;
}

// A property declared again must keep its ancestor's place, or forms written by
// others come out in another order.
TEST(PropList, AncestorsFirstAndRedeclaredInPlace)
{
    const TBasket Basket(nullptr);
    std::vector<std::string> Names;
    for (const TPropInfo* const Prop : GetPropList(Basket))
        Names.push_back(Prop->Name);
    EXPECT_EQ(Names[0], "Name");
    EXPECT_EQ(Names[1], "Tag");
    EXPECT_EQ(Names[2], "Fruit");
    EXPECT_EQ(Names.size(), 13u);
    EXPECT_EQ(PropOf(Basket, "tag").DefaultValue, 5);
}

TEST(PropAccess, EveryKindReadsBackWhatWasWritten)
{
    TBasket Basket(nullptr);
    SetOrdProp(Basket, PropOf(Basket, "Fruit"), frPlum);
    EXPECT_EQ(Basket.Fruit(), frPlum);
    SetOrdProp(Basket, PropOf(Basket, "Fruits"), 5);
    EXPECT_EQ(Basket.Fruits(), (TFruits{frApple, frPlum}));
    SetStrProp(Basket, PropOf(Basket, "WideTitle"), "Grün 😀");
    EXPECT_EQ(Basket.WideTitle(), u"Grün 😀");
    EXPECT_EQ(GetStrProp(Basket, PropOf(Basket, "WideTitle")), "Grün 😀");
    SetStrProp(Basket, PropOf(Basket, "Wide"), "é!");
    EXPECT_EQ(Basket.Wide(), u'é');
    SetStrProp(Basket, PropOf(Basket, "Wide"), "");
    EXPECT_EQ(Basket.Wide(), u'\0');
    SetOrdProp(Basket, PropOf(Basket, "Letter"), 0xE9);
    EXPECT_EQ(GetOrdProp(Basket, PropOf(Basket, "Letter")), 0xE9);
    SetOrdProp(Basket, PropOf(Basket, "Big"), INT64_MIN);
    EXPECT_EQ(GetOrdProp(Basket, PropOf(Basket, "Big")), INT64_MIN);
    SetFloatProp(Basket, PropOf(Basket, "Weight"), 0.1);
    EXPECT_EQ(GetFloatProp(Basket, PropOf(Basket, "Weight")), 0.1);
}

// A short string holds 255 bytes; cutting inside a character leaves bytes that
// no reader can decode.
TEST(PropAccess, ShortStringsAreCutAtWholeCharacters)
{
    TBasket Basket(nullptr);
    std::string Long;
    for (int I = 0; I < 100; ++I)
        Long += "語";
    SetStrProp(Basket, PropOf(Basket, "Short"), Long + "x");
    EXPECT_EQ(GetStrProp(Basket, PropOf(Basket, "Short")), Long.substr(0, 255));
    SetStrProp(Basket, PropOf(Basket, "Short"), "a" + Long);
    EXPECT_EQ(GetStrProp(Basket, PropOf(Basket, "Short")).size(), 253u);
}

TEST(PropAccess, WrongKindsAndClassesAreRefused)
{
    TBasket Basket(nullptr);
    EXPECT_THROW(GetStrProp(Basket, PropOf(Basket, "Fruit")), EPropertyError);
    EXPECT_THROW(SetFloatProp(Basket, PropOf(Basket, "Title"), 1), EPropertyError);
    TComponent Other(nullptr);
    EXPECT_THROW(SetObjectProp(Basket, PropOf(Basket, "Next"), &Other), EPropertyError);
}

TEST(Events, CallTheMethodOfTheirObject)
{
    TBasket Basket(nullptr);
    TBasket Handler(nullptr);
    const TPublishedMethod* const Method = Handler.ClassType().FindMethod("PICK");
    ASSERT_NE(Method, nullptr);
    SetMethodProp(Basket, PropOf(Basket, "OnPick"), {&Handler, Method->Code});
    EXPECT_EQ(Basket.OnPick, (TNotifyEvent{&Handler, &TBasket::Pick}));
    Basket.OnPick(&Basket);
    EXPECT_EQ(Handler.Picked, &Basket);
}

TEST(Ownership, OwnedComponentsGoLastFirst)
{
    TBasket::Destroyed.clear();
    {
        TComponent Owner(nullptr);
        for (const char* const Name : {"A", "B", "C"})
            (new TBasket(&Owner))->SetName(Name);
        delete Owner.FindComponent("b");
        EXPECT_EQ(Owner.ComponentCount(), 2);
        EXPECT_EQ(Owner.FindComponent("B"), nullptr);
    }
    EXPECT_EQ(TBasket::Destroyed, (std::vector<std::string>{"B", "C", "A"}));
}

TEST(Ownership, NamesAreUniqueAndValid)
{
    TComponent Owner(nullptr);
    auto* const A = new TComponent(&Owner);
    auto* const B = new TComponent(&Owner);
    A->SetName("Label1");
    EXPECT_THROW(B->SetName("LABEL1"), EComponentError);
    EXPECT_EQ(B->Name(), "");
    for (const char* const Bad : {"1a", "a b", "a.b", "a-b", " "})
        EXPECT_THROW(B->SetName(Bad), EComponentError) << Bad;
    B->SetName("Zusätze");
    A->SetName("label1");
    EXPECT_EQ(Owner.FindComponent("Label1"), A);
    A->SetName("");
    B->SetName("Label1");
    EXPECT_EQ(Owner.FindComponent("label1"), B);
}

// A reference left behind after its component is gone crashes the next walk.
TEST(Ownership, WatchersHearOfTheEnd)
{
    TComponent OwnerA(nullptr);
    TBasket Watcher(nullptr);
    {
        TComponent OwnerB(nullptr);
        auto* const Watched = new TBasket(&OwnerB);
        Watcher.SetNext(Watched);
        EXPECT_EQ(Watcher.Next(), Watched);
    }
    EXPECT_EQ(Watcher.Next(), nullptr);
    auto* const Sibling = new TBasket(&OwnerA);
    (new TBasket(&OwnerA))->SetNext(Sibling);
    delete Sibling;
    EXPECT_EQ(static_cast<TBasket*>(OwnerA.Components(0))->Next(), nullptr);
}

TEST(DynamicProps, StandBesideAndInPlaceOfDeclaredOnes)
{
    TBasket Basket(nullptr);
    TDynamicProperties& Dynamic = Basket.NeedDynamicProperties();
    Dynamic.AddString("TextHint", "type here");
    Dynamic.AddEnumeration("Fruit", "frQuince");
    EXPECT_EQ(GetStrProp(Basket, PropOf(Basket, "TEXTHINT")), "type here");
    const TPropInfo& Fruit = PropOf(Basket, "Fruit");
    EXPECT_EQ(GetEnumName(*Fruit.PropType, GetOrdProp(Basket, Fruit)), "frQuince");
    SetOrdProp(Basket, Fruit, GetEnumValue(*Fruit.PropType, "frFig"));
    EXPECT_EQ(GetEnumName(*Fruit.PropType, GetOrdProp(Basket, Fruit)), "frFig");
    EXPECT_EQ(GetPropList(Basket)[2], &Fruit);
    EXPECT_EQ(GetPropList(Basket).back()->Name, "TextHint");
}

TEST(EnumNames, UnknownOnesAreMinusOne)
{
    const TTypeInfo& Type = TypeInfoFor(TTypeTag<TFruit>{});
    EXPECT_EQ(GetEnumValue(Type, "FRPLUM"), 2);
    EXPECT_EQ(GetEnumValue(Type, "frFig"), -1);
    EXPECT_EQ(GetEnumName(Type, 1), "frPear");
    EXPECT_EQ(GetEnumName(Type, 9), "9");
}

TEST(Strings, TextIsSplitAtEveryKindOfLineEnd)
{
    const struct {
        const char* Name;
        const char* Text;
        std::vector<std::string> Lines;
    } Cases[] = {
        {"empty", "", {}},
        {"one line end", "\r\n", {""}},
        {"all three", "a\r\nb\nc\rd", {"a", "b", "c", "d"}},
        {"blank lines", "a\n\n\r\rb", {"a", "", "", "", "b"}},
        {"no end", "a\r\nb", {"a", "b"}},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        TStringList List;
        List.SetText(Case.Text);
        std::vector<std::string> Lines;
        for (int I = 0; I < List.Count(); ++I)
            Lines.push_back(List[I]);
        EXPECT_EQ(Lines, Case.Lines);
    }
}

TEST(Strings, IndexesOutsideAreRefused)
{
    TStringList List;
    List.Add("a");
    EXPECT_THROW(List.Get(1), EStringListError);
    EXPECT_THROW(List.Put(-1, ""), EStringListError);
    EXPECT_THROW(List.Insert(2, ""), EStringListError);
    EXPECT_THROW(List.Delete(1), EStringListError);
    EXPECT_EQ(List.Count(), 1);
}

TEST(Strings, SortedListsStaySorted)
{
    TStringList List;
    for (const char* const Text : {"pear", "Apple", "plum"})
        List.Add(Text);
    List.SetSorted(true);
    EXPECT_EQ(List.Add("banana"), 1);
    EXPECT_EQ(List.Add("APPLE"), 0);
    EXPECT_EQ(List.Count(), 4);
    List.Duplicates = dupError;
    EXPECT_THROW(List.Add("Plum"), EStringListError);
    EXPECT_THROW(List.Insert(0, "x"), EStringListError);
    EXPECT_EQ(List.IndexOf("PLUM"), 3);
}

TEST(Collections, ItemsKnowTheirPlace)
{
    TGenericCollection Collection(nullptr);
    TCollectionItem* const A = Collection.Add();
    TCollectionItem* const B = Collection.Add();
    TCollectionItem* const C = Collection.Insert(0);
    EXPECT_EQ(C->Index(), 0);
    EXPECT_EQ(B->Index(), 2);
    A->SetIndex(2);
    EXPECT_EQ(A->Index(), 2);
    delete C;
    EXPECT_EQ(Collection.Count(), 2);
    EXPECT_EQ(Collection.Items(0), B);
    EXPECT_THROW(Collection.Items(2), EListError);
    EXPECT_EQ(Collection.FindItemID(0), A);
}

} // namespace
