// A component that publishes every kind of property, for tests of translators.
#pragma once

#include <string>

#include "framework/rtl/Collection.h"
#include "framework/rtl/Component.h"
#include "framework/rtl/Strings.h"

OBX_ENUM(TSampleAlign, saNone, saLeft, saRight)
OBX_SET(TSampleAligns, TSampleAlign)

inline bool SampleIdentToColor(std::string_view Ident, int& Value)
{
    if (Ident != "clRed")
        return false;
    Value = 255;
    return true;
}
inline bool SampleColorToIdent(int Value, std::string& Ident)
{
    if (Value == 255)
        Ident = "clRed";
    return Value == 255;
}

class TSampleFont : public TPersistent {
    OBX_CLASS(TPersistent)
public:
    OBX_PROPERTY(std::string, Name, "Sans")
    OBX_PROPERTY(int, Size, 8)
};

class TSampleItem : public TCollectionItem {
    OBX_CLASS(TCollectionItem)
public:
    using TCollectionItem::TCollectionItem;
    TSampleFont* Font() const { return &FFont; }
    OBX_PROPERTY(std::string, Text, "")
    OBX_PROPERTY(int, Width, 0)

private:
    mutable TSampleFont FFont;
};

class TSample : public TComponent {
    OBX_CLASS(TComponent)
public:
    explicit TSample(TComponent* Owner, const std::string& AName = {}) : TComponent(Owner) { SetName(AName); }

    TSampleFont* Font() const { return &FFont; }
    TStrings* Lines() const { return &FLines; }
    TCollection* Items() const { return &FItems; }
    TComponent* Buddy() const { return FBuddy; }
    void SetBuddy(TComponent* Value) { FBuddy = Value; }
    int Color() const { return FColor; }
    void SetColor(int Value) { FColor = Value; }
    const std::string& Caption() const { return FCaption; }
    void SetCaption(const std::string& Value)
    {
        FCaption = Value;
        if (OnCaption)
            OnCaption(this);
    }
    TNotifyEvent OnCaption;

    OBX_PROPERTY(std::string, Caption1, "second")
    OBX_PROPERTY(TShortString, Short, {"s"})
    OBX_PROPERTY(std::u16string, Wide, u"w")
    OBX_PROPERTY(char, Mark, '*')
    OBX_PROPERTY(double, Factor, 1.5)
    OBX_PROPERTY(TSampleAlign, Align, saLeft)
    OBX_PROPERTY(TSampleAligns, Aligns, {saRight})
    OBX_PROPERTY(bool, Visible, true)
    OBX_PROPERTY(uint32_t, Big, 4000000000U)
    OBX_PROPERTY(int64_t, Huge, 1)

    void Notification(TComponent* Component, TOperation Operation) override
    {
        TComponent::Notification(Component, Operation);
        if (Operation == opRemove && Component == FBuddy)
            FBuddy = nullptr;
    }

private:
    std::string FCaption = "text";
    mutable TSampleFont FFont;
    mutable TStringList FLines;
    mutable TCollection FItems{this, TSampleItem::MetaClass(), CreateItem<TSampleItem>};
    TComponent* FBuddy = nullptr;
    int FColor = 255;
};

inline const TMetaClass& TSampleFont::MetaClass()
{
    static const TMetaClass Class("TSampleFont", &TPersistent::MetaClass(), nullptr,
                                  {OBX_ROW(TSampleFont, Name), OBX_ROW(TSampleFont, Size)});
    return Class;
}

inline const TMetaClass& TSampleItem::MetaClass()
{
    static const TMetaClass Class(
        "TSampleItem", &TCollectionItem::MetaClass(), nullptr,
        {OBX_ROW(TSampleItem, Text), Prop<&TSampleItem::Font>("Font"), OBX_ROW(TSampleItem, Width)});
    return Class;
}

inline const TMetaClass& TSample::MetaClass()
{
    static const TIntegerIdents Idents{SampleIdentToColor, SampleColorToIdent};
    static const TTypeInfo Color = TTypeInfo::Integer("TColor", INT32_MIN, INT32_MAX, &Idents);
    static const TMetaClass Class("TSample", &TComponent::MetaClass(), nullptr,
                                  {
                                      Prop<&TSample::Font>("Font"),
                                      Prop<&TSample::Caption, &TSample::SetCaption>("Caption"),
                                      Prop<&TSample::Lines>("Lines"),
                                      Prop<&TSample::Items>("Items"),
                                      Prop<&TSample::OnCaption>("OnCaption"),
                                      OBX_ROW(TSample, Caption1),
                                      OBX_ROW(TSample, Short),
                                      OBX_ROW(TSample, Wide),
                                      OBX_ROW(TSample, Mark),
                                      OBX_ROW(TSample, Factor),
                                      Prop<&TSample::Buddy, &TSample::SetBuddy>("Buddy"),
                                      OBX_ROW(TSample, Align),
                                      OBX_ROW(TSample, Aligns),
                                      OBX_ROW(TSample, Visible),
                                      Prop<&TSample::Color, &TSample::SetColor>("Color").Type(Color),
                                      OBX_ROW(TSample, Big),
                                      OBX_ROW(TSample, Huge),
                                  });
    return Class;
}
