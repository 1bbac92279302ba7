// The items and columns of list views.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "framework/forms/Types.h"
#include "framework/rtl/Collection.h"
#include "framework/rtl/Strings.h"

class TCustomListView;
class TListItem;
class TListItems;
class TStream;

OBX_ENUM(TWidthType, wtDefault, wtContent, wtHeader)

class TListColumn : public TCollectionItem {
    OBX_CLASS(TCollectionItem)
public:
    using TCollectionItem::TCollectionItem;
    std::string DisplayName() const override { return FCaption.empty() ? ClassName() : FCaption; }

    // Published.
    OBX_PROPERTY(TAlignment, Alignment, taLeftJustify)
    OBX_PROPERTY(bool, AutoSize, false)
    OBX_PROPERTY(std::string, Caption, {})
    OBX_PROPERTY(int, ImageIndex, -1)
    OBX_PROPERTY(int, MaxWidth, 0)
    OBX_PROPERTY(int, MinWidth, 0)
    OBX_PROPERTY(int, Tag, 0)
    // Pixels; ColumnTextWidth fits the items, ColumnHeaderWidth the caption too.
    OBX_PROPERTY(int, Width, 50)

private:
    friend class TCustomListView;
};

constexpr int ColumnTextWidth = -1;
constexpr int ColumnHeaderWidth = -2;

class TListColumns : public TCollection {
    OBX_CLASS(TCollection)
public:
    explicit TListColumns(TCustomListView* ListView);
    TListColumn* Items(int Index) const { return static_cast<TListColumn*>(TCollection::Items(Index)); }
    TListColumn* Add() { return static_cast<TListColumn*>(TCollection::Add()); }

protected:
    void Update(TCollectionItem* Item) override;

private:
    TCustomListView* FListView;
};

// A line of a list view. Owned by its TListItems.
class TListItem : public TPersistent {
    OBX_CLASS(TPersistent)
public:
    explicit TListItem(TListItems* Owner);
    ~TListItem() override;

    TListItems* Owner() const { return FOwner; }
    int Index() const;
    const std::string& Caption() const { return FCaption; }
    void SetCaption(const std::string& Value);
    // The texts of the second column and those behind it.
    TStrings* SubItems() const { return const_cast<TStringList*>(&FSubItems); }
    bool Checked() const { return FChecked; }
    void SetChecked(bool Value);
    bool Selected() const { return FSelected; }
    void SetSelected(bool Value);
    bool Focused() const { return FFocused; }
    void SetFocused(bool Value);
    int ImageIndex() const { return FImageIndex; }
    void SetImageIndex(int Value);
    int StateIndex() const { return FStateIndex; }
    void SetStateIndex(int Value);
    int GroupID() const { return FGroupID; }
    void SetGroupID(int Value) { FGroupID = Value; }
    // The program's own.
    void* Data = nullptr;
    void Delete();
    void MakeVisible();

private:
    friend class TListItems;
    friend class TCustomListView;
    void SubItemsChanged(TObject* Sender);
    template<class T>
    void Set(T& Field, const T& Value);

    TListItems* FOwner;
    std::string FCaption;
    TStringList FSubItems;
    bool FChecked = false;
    bool FSelected = false;
    bool FFocused = false;
    int FImageIndex = 0;
    int FStateIndex = -1;
    int FGroupID = -1;
};

// The items, kept with and without a window. Form files carry them as the binary
// property "Data" or, newer, "ItemData"; as long as nothing changes, the bytes
// are written as they were read.
class TListItems : public TPersistent {
    OBX_CLASS(TPersistent)
public:
    explicit TListItems(TCustomListView* Owner) : FListView(Owner) {}
    ~TListItems() override;

    int Count() const { return static_cast<int>(FItems.size()); }
    // An index outside raises EListError.
    TListItem* Item(int Index) const;
    TListItem* operator[](int Index) const { return Item(Index); }
    TListItem* Add() { return Insert(Count()); }
    TListItem* Insert(int Index);
    void Delete(int Index);
    void Clear();
    int IndexOf(const TListItem* Item) const;
    void BeginUpdate();
    void EndUpdate();
    TCustomListView* ListView() const { return FListView; }
    TPersistent* GetOwner() const override;
    void Assign(const TPersistent* Source) override;
    void DefineProperties(TFiler& Filer) override;

private:
    friend class TListItem;
    friend class TCustomListView;
    void Read(TStream& Stream, const char* Property);
    bool Decode(const std::string& Bytes, bool Wide);
    std::string Encode() const;
    // Called with each change: the form file's bytes do not say it any more.
    void Changed() { FStored.clear(); }
    void ItemChanged(TListItem& Item);

    TCustomListView* FListView;
    std::vector<std::unique_ptr<TListItem>> FItems;
    std::string FStored;
    std::string FStoredAs; // the property that FStored was read from
};
