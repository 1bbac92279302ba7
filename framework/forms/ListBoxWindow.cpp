// What the window of a list box holds, and the control while the window does not.
#include <algorithm>

#include "framework/forms/ListBoxes.h"

namespace {

// So many changes of a group are made in the window; with one more it is quicker
// to fill it anew when the group ends.
constexpr int MaxDirectChanges = 8;

LRESULT Send(const TWinControl& Control, UINT Message, WPARAM WParam = 0, LPARAM LParam = 0)
{
    return SendMessageA(Control.WindowHandle(), Message, WParam, LParam);
}

void AddLines(const TWinControl& Control, const TStrings& Lines)
{
    const int Count = Lines.Count();
    LPARAM Bytes = 0;
    for (int I = 0; I < Count; ++I)
        Bytes += static_cast<LPARAM>(Lines.Get(I).size()) + 1;
    Send(Control, LB_INITSTORAGE, static_cast<WPARAM>(Count), Bytes);
    for (int I = 0; I < Count; ++I)
        Send(Control, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Lines.Get(I).c_str()));
}

// Items that follow each other are chosen together: the caret and what is in view
// stay.
void SelectRanges(const TWinControl& Control, const TChunkedList<char>& Selected)
{
    size_t First = 0;
    while (First < Selected.Count()) {
        size_t Behind = First;
        while (Behind < Selected.Count() && Selected[Behind])
            ++Behind;
        if (Behind > First)
            Send(Control, LB_SELITEMRANGEEX, First, static_cast<LPARAM>(Behind) - 1);
        First = Behind + 1;
    }
}

} // namespace

void TCustomListBox::CreateWnd()
{
    TWinControl::CreateWnd();
    if (IsOwnerDrawn() && FStyle != lbOwnerDrawVariable)
        Send(*this, LB_SETITEMHEIGHT, 0, FItemHeight);
    if (FTabWidth > 0)
        Send(*this, LB_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&FTabWidth));
    if (FColumns > 0)
        Send(*this, LB_SETCOLUMNWIDTH, static_cast<WPARAM>(std::max(1, (Width() + FColumns - 3) / FColumns)));
    Send(*this, WM_SETREDRAW, FALSE);
    PutIntoWindow();
    Send(*this, WM_SETREDRAW, TRUE);
    if (FScrollWidth > 0)
        Send(*this, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(FScrollWidth));
}

void TCustomListBox::DestroyWnd()
{
    if (InWindow())
        TakeFromWindow();
    TWinControl::DestroyWnd();
}

// A style that has just changed is not the window's yet.
void TCustomListBox::TakeFromWindow()
{
    FItemIndex = ItemIndex();
    FTopIndex = static_cast<int>(Send(*this, LB_GETTOPINDEX));
    FReveals = false;
    if (!FMultiSelect)
        return;
    for (size_t I = 0; I < FSelected.Count(); ++I)
        FSelected[I] = false;
    std::vector<int> Chosen(static_cast<size_t>(std::max<LRESULT>(0, Send(*this, LB_GETSELCOUNT))));
    if (Chosen.empty() && Send(*this, LB_GETSEL, static_cast<WPARAM>(FItemIndex)) > 0)
        Chosen.push_back(FItemIndex);
    else
        Send(*this, LB_GETSELITEMS, Chosen.size(), reinterpret_cast<LPARAM>(Chosen.data()));
    for (const int I : Chosen)
        FSelected[static_cast<size_t>(I)] = true;
    FAnchor = static_cast<int>(Send(*this, LB_GETANCHORINDEX));
}

void TCustomListBox::PutIntoWindow()
{
    FBehind = false;
    AddLines(*this, *FItems);
    if (FMultiSelect) {
        SelectRanges(*this, FSelected);
        if (FAnchor >= 0 && FAnchor < FItems->Count())
            Send(*this, LB_SETANCHORINDEX, static_cast<WPARAM>(FAnchor));
    }
    if (FItemIndex >= 0)
        SetItemIndex(FItemIndex);
}

// Asked before a change: whether it is to be made in the window as well.
bool TCustomListBox::ChangesWindow()
{
    if (InWindow() && FItems->Updating() && ++FDirectChanges > MaxDirectChanges) {
        TakeFromWindow();
        FBehind = true;
    }
    return InWindow();
}

// Gives the window what it lacks.
void TCustomListBox::CatchUp()
{
    if (!FBehind || !HandleAllocated())
        return;
    Send(*this, LB_RESETCONTENT);
    PutIntoWindow();
    if (FItems->Count() > 0)
        Send(*this, LB_SETTOPINDEX, static_cast<WPARAM>(std::min(FTopIndex, FItems->Count() - 1)));
    if (FReveals)
        SetItemIndex(FItemIndex);
    // A program that asks for the window after every change is not to fill it each time.
    FDirectChanges = -FItems->Count();
}

// Moves what the window would move. The caret of a list with MultiSelect stays.
void TCustomListBox::ShiftItemIndex(int Index, int By)
{
    const int Count = FItems->Count();
    if (Count == 0)
        FTopIndex = 0;
    if (FBehind && FMultiSelect)
        FItemIndex = std::clamp(FItemIndex, 0, std::max(0, Count - 1));
    else if (FItemIndex >= Index && (FBehind || !IsLoading()))
        FItemIndex = By < 0 && FItemIndex == Index ? -1 : FItemIndex + By;
}

void TCustomListBox::ItemInserted(int Index)
{
    const bool Direct = ChangesWindow();
    FSelected.Insert(static_cast<size_t>(Index), false);
    if (Direct)
        Send(*this, LB_INSERTSTRING, static_cast<WPARAM>(Index),
             reinterpret_cast<LPARAM>(FItems->Get(Index).c_str()));
    else
        ShiftItemIndex(Index, 1);
}

void TCustomListBox::ItemDeleted(int Index)
{
    const bool Direct = ChangesWindow();
    FSelected.Erase(static_cast<size_t>(Index));
    if (Direct)
        Send(*this, LB_DELETESTRING, static_cast<WPARAM>(Index));
    else
        ShiftItemIndex(Index, -1);
}

void TCustomListBox::ItemChanged(int Index)
{
    if (!ChangesWindow())
        return;
    const int Chosen = ItemIndex();
    const int Top = TopIndex();
    const bool WasSelected = Selected(Index);
    Send(*this, LB_DELETESTRING, static_cast<WPARAM>(Index));
    Send(*this, LB_INSERTSTRING, static_cast<WPARAM>(Index),
         reinterpret_cast<LPARAM>(FItems->Get(Index).c_str()));
    if (FMultiSelect && WasSelected)
        Send(*this, LB_SETSEL, 1, Index);
    SetItemIndex(Chosen);
    SetTopIndex(Top);
}

void TCustomListBox::ItemsReordered()
{
    if (InWindow()) {
        Send(*this, LB_RESETCONTENT);
        AddLines(*this, *FItems);
    } else if (FBehind) {
        ClearSelection();
        FItemIndex = FMultiSelect ? 0 : -1;
    }
}

void TCustomListBox::ItemsUpdating(bool Updating)
{
    FDirectChanges = 0;
    if (!Updating)
        CatchUp();
    FBehind = false;
    if (!HandleAllocated())
        return;
    Send(*this, WM_SETREDRAW, !Updating);
    if (!Updating)
        Invalidate();
}
