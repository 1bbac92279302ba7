// Collections: lists of items with published properties, such as the panels of
// a status bar.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "framework/rtl/Persistent.h"

class TCollection;

// Owned by its collection.
class TCollectionItem : public TPersistent {
    OBX_CLASS(TPersistent)
public:
    // Adds itself to Collection, which may be null.
    explicit TCollectionItem(TCollection* Collection);
    // Leaves its collection.
    ~TCollectionItem() override;

    TCollection* Collection() const { return FCollection; }
    // The position from 0; -1 outside a collection.
    int Index() const;
    void SetIndex(int Value);
    // A number no other item of the collection had before.
    int ID() const { return FID; }
    virtual std::string DisplayName() const { return ClassName(); }
    TPersistent* GetOwner() const override;

protected:
    // Tells the collection; AllItems when more than this item changes its look.
    void Changed(bool AllItems);
    void PropertyChanged() override { Changed(false); }

private:
    friend class TCollection;
    TCollection* FCollection = nullptr;
    int FID = -1;
};

class TCollection : public TPersistent {
    OBX_CLASS(TPersistent)
public:
    using TItemFactory = TCollectionItem* (*)(TCollection& Collection);

    TCollection(TPersistent* Owner, const TMetaClass& ItemClass, TItemFactory Factory);
    ~TCollection() override;

    int Count() const { return static_cast<int>(FItems.size()); }
    // An index outside the collection raises EListError.
    TCollectionItem* Items(int Index) const;
    TCollectionItem* Add();
    TCollectionItem* Insert(int Index);
    void Delete(int Index);
    void Clear();
    void Assign(const TPersistent* Source) override;
    const TMetaClass& ItemClass() const { return FItemClass; }
    TPersistent* GetOwner() const override { return FOwner; }
    TCollectionItem* FindItemID(int ID) const;
    void BeginUpdate() { ++FUpdateCount; }
    void EndUpdate();

protected:
    // After a change of Item, or of several items when it is null.
    virtual void Update(TCollectionItem*) {}

private:
    friend class TCollectionItem;
    void InsertItem(TCollectionItem* Item);
    void RemoveItem(TCollectionItem* Item);
    void ItemChanged(TCollectionItem* Item);

    TPersistent* FOwner;
    const TMetaClass& FItemClass;
    TItemFactory FFactory;
    std::vector<TCollectionItem*> FItems;
    int FNextID = 0;
    int FUpdateCount = 0;
};

template<class T>
TCollectionItem* CreateItem(TCollection& Collection)
{
    return new T(&Collection);
}

// Items of a collection whose class the program does not have: their properties
// come from the form file.
class TGenericItem : public TCollectionItem {
    OBX_CLASS(TCollectionItem)
public:
    using TCollectionItem::TCollectionItem;
};

class TGenericCollection : public TCollection {
    OBX_CLASS(TCollection)
public:
    explicit TGenericCollection(TPersistent* Owner);
};

// A sub-object, such as EditLabel of an unknown class, likewise.
class TGenericPersistent : public TPersistent {
    OBX_CLASS(TPersistent)
};
