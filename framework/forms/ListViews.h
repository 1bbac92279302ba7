// Lists with columns, icons and check boxes.
#pragma once

#include "framework/forms/CommonControls.h"
#include "framework/forms/CustomControl.h"
#include "framework/forms/ListItems.h"

OBX_ENUM(TViewStyle, vsIcon, vsSmallIcon, vsList, vsReport)
OBX_ENUM(TSortType, stNone, stData, stText, stBoth)
OBX_ENUM(TItemChange, ctText, ctImage, ctState)
OBX_ENUM(TIconArrangement, iaTop, iaLeft)
OBX_ENUM(TListHotTrackStyle, htHandPoint, htUnderlineCold, htUnderlineHot)
OBX_SET(TListHotTrackStyles, TListHotTrackStyle)
OBX_ENUM(TCustomDrawStateFlag, cdsSelected, cdsGrayed, cdsDisabled, cdsChecked, cdsFocused, cdsDefault,
         cdsHot, cdsMarked, cdsIndeterminate)
OBX_SET(TCustomDrawState, TCustomDrawStateFlag)

OBX_EVENT(TLVChangeEvent, TObject*, TListItem*, TItemChange)
OBX_EVENT(TLVChangingEvent, TObject*, TListItem*, TItemChange, bool&)
OBX_EVENT(TLVColumnClickEvent, TObject*, TListColumn*)
OBX_EVENT(TLVColumnRClickEvent, TObject*, TListColumn*, const TPoint&)
OBX_EVENT(TLVCompareEvent, TObject*, TListItem*, TListItem*, int, int&)
OBX_EVENT(TLVNotifyEvent, TObject*, TListItem*)
OBX_EVENT(TLVSelectItemEvent, TObject*, TListItem*, bool)
OBX_EVENT(TLVCheckedItemEvent, TObject*, TListItem*)
OBX_EVENT(TLVEditingEvent, TObject*, TListItem*, bool&)
OBX_EVENT(TLVEditedEvent, TObject*, TListItem*, std::string&)
OBX_EVENT(TLVInfoTipEvent, TObject*, TListItem*, std::string&)
OBX_EVENT(TLVDrawItemEvent, TObject*, TListItem*, const TRect&, TOwnerDrawState)
OBX_EVENT(TLVCustomDrawEvent, TObject*, const TRect&, bool&)
OBX_EVENT(TLVCustomDrawItemEvent, TObject*, TListItem*, TCustomDrawState, bool&)
OBX_EVENT(TLVCustomDrawSubItemEvent, TObject*, TListItem*, int, TCustomDrawState, bool&)

class TCustomListView : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TCustomListView(TComponent* Owner);
    ~TCustomListView() override;

    TCanvas* Canvas() { return FCanvas.get(); }
    // The first selected item; null if none.
    TListItem* Selected() const;
    void SetSelected(TListItem* Value);
    TListItem* ItemFocused() const;
    int SelCount() const;
    int ItemIndex() const;
    void SetItemIndex(int Value);
    void Clear() { Items()->Clear(); }
    void ClearSelection();
    void SelectAll();
    // Sorts by OnCompare, or by the captions.
    void AlphaSort();
    // The item whose caption is Value, letter case ignored; null if none.
    TListItem* FindCaption(int StartIndex, const std::string& Value, bool Partial = false) const;

    // Published by list views.
    TListColumns* Columns() const { return const_cast<TListColumns*>(&FColumns); }
    void SetColumns(TListColumns* Value) { FColumns.Assign(Value); }
    TListItems* Items() const { return const_cast<TListItems*>(&FItems); }
    void SetItems(TListItems* Value) { FItems.Assign(Value); }
    TBorderStyle BorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle Value) { SetFlag(FBorderStyle, Value); }
    bool Checkboxes() const { return FCheckboxes; }
    void SetCheckboxes(bool Value) { SetFlag(FCheckboxes, Value); }
    bool ColumnClick() const { return FColumnClick; }
    void SetColumnClick(bool Value) { SetFlag(FColumnClick, Value); }
    bool FlatScrollBars() const { return FFlatScrollBars; }
    void SetFlatScrollBars(bool Value) { SetFlag(FFlatScrollBars, Value); }
    bool FullDrag() const { return FFullDrag; }
    void SetFullDrag(bool Value) { SetFlag(FFullDrag, Value); }
    bool GridLines() const { return FGridLines; }
    void SetGridLines(bool Value) { SetFlag(FGridLines, Value); }
    bool GroupView() const { return FGroupView; }
    void SetGroupView(bool Value) { FGroupView = Value; }
    bool HideSelection() const { return FHideSelection; }
    void SetHideSelection(bool Value) { SetFlag(FHideSelection, Value); }
    bool HotTrack() const { return FHotTrack; }
    void SetHotTrack(bool Value) { SetFlag(FHotTrack, Value); }
    TListHotTrackStyles HotTrackStyles() const { return FHotTrackStyles; }
    void SetHotTrackStyles(TListHotTrackStyles Value) { SetFlag(FHotTrackStyles, Value); }
    int HoverTime() const { return FHoverTime; }
    void SetHoverTime(int Value) { FHoverTime = Value; }
    bool MultiSelect() const { return FMultiSelect; }
    void SetMultiSelect(bool Value) { SetFlag(FMultiSelect, Value); }
    // The program gives the items' texts in OnData.
    bool OwnerData() const { return FOwnerData; }
    void SetOwnerData(bool Value) { SetFlag(FOwnerData, Value); }
    bool OwnerDraw() const { return FOwnerDraw; }
    void SetOwnerDraw(bool Value) { SetFlag(FOwnerDraw, Value); }
    bool ReadOnly() const { return FReadOnly; }
    void SetReadOnly(bool Value) { SetFlag(FReadOnly, Value); }
    bool RowSelect() const { return FRowSelect; }
    void SetRowSelect(bool Value) { SetFlag(FRowSelect, Value); }
    bool ShowColumnHeaders() const { return FShowColumnHeaders; }
    void SetShowColumnHeaders(bool Value) { SetFlag(FShowColumnHeaders, Value); }
    bool ShowWorkAreas() const { return FShowWorkAreas; }
    void SetShowWorkAreas(bool Value) { FShowWorkAreas = Value; }
    TSortType SortType() const { return FSortType; }
    void SetSortType(TSortType Value);
    TViewStyle ViewStyle() const { return FViewStyle; }
    void SetViewStyle(TViewStyle Value) { SetFlag(FViewStyle, Value); }
    TCustomImageList* LargeImages() const { return FLargeImages; }
    void SetLargeImages(TCustomImageList* Value) { SetImageList(FLargeImages, Value); }
    TCustomImageList* SmallImages() const { return FSmallImages; }
    void SetSmallImages(TCustomImageList* Value) { SetImageList(FSmallImages, Value); }
    TCustomImageList* StateImages() const { return FStateImages; }
    void SetStateImages(TCustomImageList* Value) { SetImageList(FStateImages, Value); }

    TLVCustomDrawEvent OnCustomDraw;
    TLVCustomDrawItemEvent OnCustomDrawItem;
    TLVCustomDrawSubItemEvent OnCustomDrawSubItem;
    TLVChangeEvent OnChange;
    TLVChangingEvent OnChanging;
    TLVColumnClickEvent OnColumnClick;
    TLVColumnRClickEvent OnColumnRightClick;
    TLVCompareEvent OnCompare;
    TLVNotifyEvent OnData;
    TLVNotifyEvent OnDeletion;
    TLVDrawItemEvent OnDrawItem;
    TLVEditedEvent OnEdited;
    TLVEditingEvent OnEditing;
    TLVNotifyEvent OnGetImageIndex;
    TLVInfoTipEvent OnInfoTip;
    TLVNotifyEvent OnInsert;
    TLVCheckedItemEvent OnItemChecked;
    TLVSelectItemEvent OnSelectItem;

    void Notification(TComponent* Component, TOperation Operation) override;

protected:
    friend class TListColumns;
    friend class TListColumn;
    friend class TListItem;
    friend class TListItems;
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void DestroyWnd() override;
    void Dispatch(TMessage& Message) override;
    virtual bool CanEdit(TListItem* Item);
    virtual void Edited(TListItem* Item, std::string& Text);

private:
    template<class T>
    void SetFlag(T& Flag, T Value)
    {
        if (Flag == Value)
            return;
        Flag = Value;
        RecreateWnd();
    }
    void SetImageList(TCustomImageList*& List, TCustomImageList* Value);
    void UpdateImages();
    bool Live() const { return HandleAllocated() && !HasState(csDestroying); }
    void RebuildColumns();
    void UpdateColumn(int Index);
    void FillColumn(int Index, LVCOLUMNA& Column, std::string& Text);
    void RebuildItems();
    void InsertWindowItem(int Index);
    void UpdateItemTexts(int Index);
    void UpdateItemState(TListItem& Item);
    void Notify(const NMHDR& Header, TMessage& Message);
    void WindowItemChanged(const NMLISTVIEW& Notice);
    void WindowWantsText(NMLVDISPINFOA& Info);

    TListColumns FColumns;
    TListItems FItems;
    std::unique_ptr<TControlCanvas> FCanvas;
    std::string FShownText; // what the window was last given by OnData
    int FUpdating = 0;      // above 0 while the program changes the window
    TBorderStyle FBorderStyle = bsSingle;
    bool FCheckboxes = false;
    bool FColumnClick = true;
    bool FFlatScrollBars = false;
    bool FFullDrag = false;
    bool FGridLines = false;
    bool FGroupView = false;
    bool FHideSelection = true;
    bool FHotTrack = false;
    TListHotTrackStyles FHotTrackStyles;
    int FHoverTime = -1;
    bool FMultiSelect = false;
    bool FOwnerData = false;
    bool FOwnerDraw = false;
    bool FReadOnly = false;
    bool FRowSelect = false;
    bool FShowColumnHeaders = true;
    bool FShowWorkAreas = false;
    TSortType FSortType = stNone;
    TViewStyle FViewStyle = vsIcon;
    TCustomImageList* FLargeImages = nullptr;
    TCustomImageList* FSmallImages = nullptr;
    TCustomImageList* FStateImages = nullptr;
};

class TListView : public TCustomListView {
    OBX_CLASS(TCustomListView)
public:
    using TCustomListView::TCustomListView;
};

void RegisterListViewClasses();
