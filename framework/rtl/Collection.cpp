#include "framework/rtl/Collection.h"

#include <algorithm>

#include "framework/rtl/SysUtils.h"

const TMetaClass& TCollectionItem::MetaClass()
{
    static const TMetaClass Class("TCollectionItem", &TPersistent::MetaClass(), nullptr);
    return Class;
}

TCollectionItem::TCollectionItem(TCollection* Collection)
{
    if (Collection)
        Collection->InsertItem(this);
}

TCollectionItem::~TCollectionItem()
{
    if (FCollection)
        FCollection->RemoveItem(this);
}

int TCollectionItem::Index() const
{
    if (!FCollection)
        return -1;
    const auto& Items = FCollection->FItems;
    return static_cast<int>(std::find(Items.begin(), Items.end(), this) - Items.begin());
}

void TCollectionItem::SetIndex(int Value)
{
    const int Old = Index();
    if (Old < 0 || Old == Value)
        return;
    auto& Items = FCollection->FItems;
    Items.erase(Items.begin() + Old);
    Items.insert(Items.begin() + std::clamp(Value, 0, static_cast<int>(Items.size())), this);
    Changed(true);
}

TPersistent* TCollectionItem::GetOwner() const
{
    return FCollection;
}

void TCollectionItem::Changed(bool AllItems)
{
    if (FCollection)
        FCollection->ItemChanged(AllItems ? nullptr : this);
}

const TMetaClass& TCollection::MetaClass()
{
    static const TMetaClass Class("TCollection", &TPersistent::MetaClass(), nullptr);
    return Class;
}

TCollection::TCollection(TPersistent* Owner, const TMetaClass& ItemClass, TItemFactory Factory)
    : FOwner(Owner), FItemClass(ItemClass), FFactory(Factory)
{
}

TCollection::~TCollection()
{
    ++FUpdateCount;
    Clear();
}

TCollectionItem* TCollection::Items(int Index) const
{
    if (Index < 0 || Index >= Count())
        throw EListError(Format(SListIndexError, {Index}));
    return FItems[static_cast<size_t>(Index)];
}

TCollectionItem* TCollection::Add()
{
    return FFactory(*this);
}

TCollectionItem* TCollection::Insert(int Index)
{
    TCollectionItem* const Item = Add();
    Item->SetIndex(Index);
    return Item;
}

void TCollection::Delete(int Index)
{
    delete Items(Index);
}

void TCollection::Clear()
{
    if (FItems.empty())
        return;
    BeginUpdate();
    while (!FItems.empty())
        delete FItems.back();
    EndUpdate();
}

void TCollection::Assign(const TPersistent* Source)
{
    const auto* const Other = dynamic_cast<const TCollection*>(Source);
    if (!Other) {
        TPersistent::Assign(Source);
        return;
    }
    if (Other == this)
        return;
    BeginUpdate();
    Clear();
    for (const TCollectionItem* const Item : Other->FItems)
        Add()->Assign(Item);
    EndUpdate();
}

TCollectionItem* TCollection::FindItemID(int ID) const
{
    for (TCollectionItem* const Item : FItems)
        if (Item->ID() == ID)
            return Item;
    return nullptr;
}

void TCollection::EndUpdate()
{
    if (--FUpdateCount == 0)
        Update(nullptr);
}

void TCollection::InsertItem(TCollectionItem* Item)
{
    FItems.push_back(Item);
    Item->FCollection = this;
    Item->FID = FNextID++;
    ItemChanged(nullptr);
}

void TCollection::RemoveItem(TCollectionItem* Item)
{
    std::erase(FItems, Item);
    Item->FCollection = nullptr;
    ItemChanged(nullptr);
}

void TCollection::ItemChanged(TCollectionItem* Item)
{
    if (FUpdateCount == 0)
        Update(Item);
}

const TMetaClass& TGenericItem::MetaClass()
{
    static const TMetaClass Class("TGenericItem", &TCollectionItem::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TGenericCollection::MetaClass()
{
    static const TMetaClass Class("TGenericCollection", &TCollection::MetaClass(), nullptr);
    return Class;
}

TGenericCollection::TGenericCollection(TPersistent* Owner)
    : TCollection(Owner, TGenericItem::MetaClass(), CreateItem<TGenericItem>)
{
}

const TMetaClass& TGenericPersistent::MetaClass()
{
    static const TMetaClass Class("TGenericPersistent", &TPersistent::MetaClass(), nullptr);
    return Class;
}
