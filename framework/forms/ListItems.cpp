#include "framework/forms/ListItems.h"

#include <algorithm>

#include "framework/forms/ItemBytes.h"
#include "framework/forms/ListViews.h"
#include "framework/rtl/Filer.h"
#include "framework/rtl/Streams.h"
#include "framework/rtl/SysUtils.h"

namespace {

constexpr const char* NarrowProperty = "Data";
constexpr const char* WideProperty = "ItemData";
constexpr int WideVersion = 3;

} // namespace

const TMetaClass& TListColumn::MetaClass()
{
    static const TMetaClass Class("TListColumn", &TCollectionItem::MetaClass(), nullptr,
                                  {
                                      OBX_ROW(TListColumn, Alignment).Default(taLeftJustify),
                                      OBX_ROW(TListColumn, AutoSize).Default(false),
                                      OBX_ROW(TListColumn, Caption),
                                      OBX_ROW(TListColumn, ImageIndex).Default(-1),
                                      OBX_ROW(TListColumn, MaxWidth).Default(0),
                                      OBX_ROW(TListColumn, MinWidth).Default(0),
                                      OBX_ROW(TListColumn, Tag).Default(0),
                                      OBX_ROW(TListColumn, Width).Default(50),
                                  });
    return Class;
}

const TMetaClass& TListColumns::MetaClass()
{
    static const TMetaClass Class("TListColumns", &TCollection::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TListItem::MetaClass()
{
    static const TMetaClass Class("TListItem", &TPersistent::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TListItems::MetaClass()
{
    static const TMetaClass Class("TListItems", &TPersistent::MetaClass(), nullptr);
    return Class;
}

TListColumns::TListColumns(TCustomListView* ListView)
    : TCollection(ListView, TListColumn::MetaClass(), CreateItem<TListColumn>), FListView(ListView)
{
}

void TListColumns::Update(TCollectionItem* Item)
{
    if (Item)
        FListView->UpdateColumn(Item->Index());
    else
        FListView->RebuildColumns();
}

TListItem::TListItem(TListItems* Owner) : FOwner(Owner)
{
    FSubItems.OnChange = {this, &TListItem::SubItemsChanged};
}

TListItem::~TListItem()
{
    FSubItems.OnChange.Clear();
}

int TListItem::Index() const
{
    return FOwner->IndexOf(this);
}

template<class T>
void TListItem::Set(T& Field, const T& Value)
{
    if (Field == Value)
        return;
    Field = Value;
    FOwner->Changed();
    FOwner->ItemChanged(*this);
}

void TListItem::SetCaption(const std::string& Value)
{
    Set(FCaption, Value);
}

void TListItem::SetImageIndex(int Value)
{
    Set(FImageIndex, Value);
}

void TListItem::SetStateIndex(int Value)
{
    Set(FStateIndex, Value);
}

void TListItem::SetChecked(bool Value)
{
    if (FChecked == Value)
        return;
    FChecked = Value;
    FOwner->ListView()->UpdateItemState(*this);
}

void TListItem::SetSelected(bool Value)
{
    if (FSelected == Value)
        return;
    TCustomListView& View = *FOwner->ListView();
    if (Value && !View.MultiSelect())
        for (const auto& Other : FOwner->FItems)
            if (Other.get() != this)
                Other->SetSelected(false);
    FSelected = Value;
    View.UpdateItemState(*this);
}

void TListItem::SetFocused(bool Value)
{
    if (FFocused == Value)
        return;
    if (Value)
        for (const auto& Other : FOwner->FItems)
            Other->FFocused = false;
    FFocused = Value;
    FOwner->ListView()->UpdateItemState(*this);
}

void TListItem::SubItemsChanged(TObject*)
{
    FOwner->Changed();
    FOwner->ItemChanged(*this);
}

void TListItem::Delete()
{
    FOwner->Delete(Index());
}

void TListItem::MakeVisible()
{
    const TCustomListView& View = *FOwner->ListView();
    if (View.HandleAllocated())
        SendMessageA(View.WindowHandle(), LVM_ENSUREVISIBLE, static_cast<WPARAM>(Index()), 0);
}

TListItems::~TListItems() = default;

TPersistent* TListItems::GetOwner() const
{
    return FListView;
}

TListItem* TListItems::Item(int Index) const
{
    if (Index < 0 || Index >= Count())
        throw EListError(Format(SListIndexError, {Index}));
    return FItems[static_cast<size_t>(Index)].get();
}

int TListItems::IndexOf(const TListItem* Item) const
{
    const auto Found =
        std::find_if(FItems.begin(), FItems.end(), [&](const auto& Known) { return Known.get() == Item; });
    return Found == FItems.end() ? -1 : static_cast<int>(Found - FItems.begin());
}

TListItem* TListItems::Insert(int Index)
{
    if (Index < 0 || Index > Count())
        throw EListError(Format(SListIndexError, {Index}));
    FItems.insert(FItems.begin() + Index, std::make_unique<TListItem>(this));
    Changed();
    FListView->InsertWindowItem(Index);
    TListItem* const Result = Item(Index);
    if (FListView->OnInsert && !FListView->HasState(csLoading))
        FListView->OnInsert(FListView, Result);
    return Result;
}

void TListItems::Delete(int Index)
{
    TListItem* const Gone = Item(Index);
    if (FListView->OnDeletion && !FListView->HasState(csLoading))
        FListView->OnDeletion(FListView, Gone);
    // The object leaves first: the window reports the deletion.
    const std::unique_ptr<TListItem> Kept = std::move(FItems[static_cast<size_t>(Index)]);
    FItems.erase(FItems.begin() + Index);
    Changed();
    if (FListView->Live())
        SendMessageA(FListView->Handle(), LVM_DELETEITEM, static_cast<WPARAM>(Index), 0);
}

void TListItems::Clear()
{
    while (!FItems.empty())
        Delete(Count() - 1);
    Changed();
}

void TListItems::BeginUpdate()
{
    if (FListView->Live())
        SendMessageA(FListView->Handle(), WM_SETREDRAW, 0, 0);
}

void TListItems::EndUpdate()
{
    if (FListView->Live())
        SendMessageA(FListView->Handle(), WM_SETREDRAW, 1, 0);
}

void TListItems::ItemChanged(TListItem& Item)
{
    const int Index = IndexOf(&Item);
    if (Index < 0)
        return;
    FListView->UpdateItemTexts(Index);
    FListView->UpdateItemState(Item);
}

void TListItems::Assign(const TPersistent* Source)
{
    const auto* const Others = dynamic_cast<const TListItems*>(Source);
    if (!Others) {
        TPersistent::Assign(Source);
        return;
    }
    if (Others == this)
        return;
    Clear();
    for (const auto& Other : Others->FItems) {
        TListItem* const Copy = Add();
        Copy->SetCaption(Other->FCaption);
        Copy->SetImageIndex(Other->FImageIndex);
        Copy->SetStateIndex(Other->FStateIndex);
        Copy->SubItems()->Assign(&Other->FSubItems);
        Copy->Data = Other->Data;
    }
    FStored = Others->FStored;
    FStoredAs = Others->FStoredAs;
}

void TListItems::DefineProperties(TFiler& Filer)
{
    TPersistent::DefineProperties(Filer);
    const bool HasStored = !FStored.empty();
    const std::string WriteAs = HasStored ? FStoredAs : WideProperty;
    for (const char* const Property : {NarrowProperty, WideProperty})
        Filer.DefineBinaryProperty(
            Property, [this, Property](TStream& Stream) { Read(Stream, Property); },
            [this](TStream& Stream) { Stream.WriteBytes(FStored.empty() ? Encode() : FStored); },
            WriteAs == Property && (HasStored || !FItems.empty()));
}

void TListItems::Read(TStream& Stream, const char* Property)
{
    const std::string Bytes = Stream.ReadRest();
    Clear();
    // What cannot be taken apart is kept all the same.
    if (!Decode(Bytes, SameText(Property, WideProperty)))
        Clear();
    FStored = Bytes;
    FStoredAs = Property;
}

// Size and count, then the items, then the picture of each sub-item. Wide: after
// a version byte, with 16-bit characters and a group number; each sub-item may be
// followed by four bytes of no meaning.
bool TListItems::Decode(const std::string& Bytes, bool Wide)
{
    for (const size_t Filler : {size_t{0}, size_t{4}}) {
        TItemBytesReader Reader(Bytes);
        Clear();
        if (Wide)
            Reader.Byte();
        Reader.Integer();
        const int Total = Reader.Integer();
        size_t SubItemTotal = 0;
        for (int I = 0; I < Total && Reader.Ok(); ++I) {
            TListItem* const Item = Add();
            Item->FImageIndex = Reader.Integer();
            Item->FStateIndex = Reader.Integer();
            Reader.Integer();
            const int SubItemCount = Reader.Integer();
            if (Wide)
                Item->FGroupID = Reader.Integer();
            Reader.Integer();
            Item->SetCaption(Reader.Text(Wide));
            for (int Sub = 0; Sub < SubItemCount && Reader.Ok(); ++Sub) {
                Item->SubItems()->Add(Reader.Text(Wide));
                Reader.Seek(Reader.Position() + Filler);
                ++SubItemTotal;
            }
        }
        if (Reader.Ok() && (Reader.Left() == 0 || Reader.Left() == 2 * SubItemTotal))
            return true;
        if (!Wide)
            return false;
    }
    return false;
}

std::string TListItems::Encode() const
{
    std::string Items;
    size_t SubItemTotal = 0;
    for (const auto& Item : FItems) {
        for (const int Number :
             {Item->FImageIndex, Item->FStateIndex, -1, Item->FSubItems.Count(), Item->FGroupID, 0})
            PutInteger(Items, Number);
        PutWideText(Items, Item->FCaption);
        for (int I = 0; I < Item->FSubItems.Count(); ++I) {
            PutWideText(Items, Item->FSubItems.Get(I));
            ++SubItemTotal;
        }
    }
    Items.append(2 * SubItemTotal, '\xFF');
    std::string Result(1, static_cast<char>(WideVersion));
    PutInteger(Result, static_cast<int32_t>(Items.size() + 9));
    PutInteger(Result, Count());
    return Result + Items;
}
