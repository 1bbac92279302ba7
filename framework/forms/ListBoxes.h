// Lists to choose from.
#pragma once

#include "framework/forms/ItemStrings.h"
#include "framework/forms/OwnerDraw.h"
#include "framework/forms/PushButtons.h"

OBX_ENUM(TListBoxStyle, lbStandard, lbOwnerDrawFixed, lbOwnerDrawVariable, lbVirtual, lbVirtualOwnerDraw)

OBX_EVENT(TDrawItemEvent, TWinControl*, int, TRect, TOwnerDrawState)
OBX_EVENT(TMeasureItemEvent, TWinControl*, int, int&)
OBX_EVENT(TLBGetDataEvent, TWinControl*, int, std::string&)

// Items and selection are kept with and without a window. Long lists: between
// BeginUpdate and EndUpdate of Items() also the selection can be changed without
// any cost for the window, which gets everything at once in the end.
class TCustomListBox : public TWinControl, public TItemsClient {
    OBX_CLASS(TWinControl)
public:
    explicit TCustomListBox(TComponent* Owner);
    ~TCustomListBox() override;

    TStrings* Items() const;
    void SetItems(TStrings* Value) { Items()->Assign(Value); }
    // The chosen item, with MultiSelect the one with the focus; -1 for none.
    int ItemIndex() const;
    void SetItemIndex(int Value);
    int SelCount() const;
    // With MultiSelect; otherwise the same as ItemIndex.
    bool Selected(int Index) const;
    void SetSelected(int Index, bool Value);
    void SelectAll();
    void ClearSelection();
    void Clear() { Items()->Clear(); }
    // The first item that is in view.
    int TopIndex();
    void SetTopIndex(int Value);
    // The item at a point of the client area; -1 for none.
    int ItemAtPos(const TPoint& Pos, bool Existing);
    TRect ItemRect(int Index);
    TCanvas* Canvas() { return FCanvas.get(); }

    // Published by those that want it.
    OBX_PROPERTY(bool, AutoComplete, true)
public:
    TBorderStyle BorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle Value) { SetStyled(FBorderStyle, Value); }
    int Columns() const { return FColumns; }
    void SetColumns(int Value) { SetStyled(FColumns, Value); }
    bool ExtendedSelect() const { return FExtendedSelect; }
    void SetExtendedSelect(bool Value) { SetStyled(FExtendedSelect, Value); }
    bool IntegralHeight() const { return FIntegralHeight; }
    void SetIntegralHeight(bool Value) { SetStyled(FIntegralHeight, Value); }
    // Pixels, of lists that the program draws.
    int ItemHeight() const { return FItemHeight; }
    void SetItemHeight(int Value);
    bool MultiSelect() const { return FMultiSelect; }
    void SetMultiSelect(bool Value) { SetStyled(FMultiSelect, Value); }
    // Pixels that can be scrolled to sideways; 0 for no scroll bar.
    int ScrollWidth() const { return FScrollWidth; }
    void SetScrollWidth(int Value) { SetStyled(FScrollWidth, Value); }
    bool Sorted() const { return FItems->KeepsSorted(); }
    void SetSorted(bool Value);
    TListBoxStyle Style() const { return FStyle; }
    void SetStyle(TListBoxStyle Value) { SetStyled(FStyle, Value); }
    // Dialog units between tab stops; 0 for none.
    int TabWidth() const { return FTabWidth; }
    void SetTabWidth(int Value) { SetStyled(FTabWidth, Value); }

    TLBGetDataEvent OnData;
    TDrawItemEvent OnDrawItem;
    TMeasureItemEvent OnMeasureItem;

    void Loaded() override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void DestroyWnd() override;
    void Dispatch(TMessage& Message) override;
    virtual void DrawItem(int Index, const TRect& Area, TOwnerDrawState State);
    virtual void MeasureItem(int Index, int& Height);
    virtual bool IsOwnerDrawn() const { return FStyle != lbStandard && FStyle != lbVirtual; }

    void ItemInserted(int Index) override;
    void ItemDeleted(int Index) override;
    void ItemChanged(int Index) override;
    void ItemsReordered() override;
    void ItemsUpdating(bool Updating) override;

    std::unique_ptr<TItemStrings> FItems;

private:
    // A property that is part of the window's style.
    template<class T>
    void SetStyled(T& Field, T Value)
    {
        if (Field == Value)
            return;
        Field = Value;
        RecreateWnd();
    }
    // The window has the present items and selection; a group of many changes
    // leaves it behind.
    bool InWindow() const { return HandleAllocated() && !FBehind; }
    bool ChangesWindow();
    void TakeFromWindow();
    void PutIntoWindow();
    void CatchUp();
    void ShiftItemIndex(int Index, int By);
    void SetAllSelected(bool Value);
    void DrawItemMessage(const DRAWITEMSTRUCT& Item);

    std::unique_ptr<TCanvas> FCanvas;
    TBorderStyle FBorderStyle = bsSingle;
    int FColumns = 0;
    bool FExtendedSelect = true;
    bool FIntegralHeight = false;
    int FItemHeight = 16;
    bool FMultiSelect = false;
    int FScrollWidth = 0;
    TListBoxStyle FStyle = lbStandard;
    int FTabWidth = 0;
    // While the window does not have them:
    int FItemIndex = -1;
    int FAnchor = -1; // where a range of items that the user chooses begins
    TChunkedList<char> FSelected;
    int FTopIndex = 0;
    bool FReveals = false; // an item is to be in view
    bool FBehind = false;
    int FDirectChanges = 0; // of the present group, in the window
};

class TListBox : public TCustomListBox {
    OBX_CLASS(TCustomListBox)
public:
    using TCustomListBox::TCustomListBox;
};

// A list box with a check box in front of each item.
class TCheckListBox : public TCustomListBox {
    OBX_CLASS(TCustomListBox)
public:
    explicit TCheckListBox(TComponent* Owner);

    TCheckBoxState State(int Index) const { return FChecks[Check(Index)].State; }
    void SetState(int Index, TCheckBoxState Value);
    bool Checked(int Index) const { return State(Index) == cbChecked; }
    void SetChecked(int Index, bool Value) { SetState(Index, Value ? cbChecked : cbUnchecked); }
    bool ItemEnabled(int Index) const { return FChecks[Check(Index)].Enabled; }
    void SetItemEnabled(int Index, bool Value);

    OBX_PROPERTY(bool, AllowGrayed, false)
    OBX_PROPERTY(bool, Flat, true)

public:
    TNotifyEvent OnClickCheck;

protected:
    void Dispatch(TMessage& Message) override;
    void DrawItem(int Index, const TRect& Area, TOwnerDrawState ItemState) override;
    bool IsOwnerDrawn() const override { return true; }
    void KeyPress(char& Key) override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void ItemInserted(int Index) override;
    void ItemDeleted(int Index) override;

private:
    struct TCheck {
        TCheckBoxState State = cbUnchecked;
        bool Enabled = true;
    };

    size_t Check(int Index) const;
    void Toggle(int Index);

    TChunkedList<TCheck> FChecks;
};
