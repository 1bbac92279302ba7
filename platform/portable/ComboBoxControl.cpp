#include <algorithm>
#include <utility>

#include "platform/portable/Control.h"

// A field with a list that drops down. The items are kept by a list box window
// of its own, which stays hidden unless the combo box is a simple one; the field
// is an edit control or, in a plain list, drawn by the combo box.
namespace {
constexpr int EditId = 1001;
constexpr int Edge = 2;
constexpr int ButtonWidth = 17;
constexpr int Frame = 3 * Edge;    // height of the combo box without its field
constexpr int FieldMargin = 2 * 4; // and with the field's own room about a line

class TComboBox final : public TSystemControl {
public:
    using TSystemControl::TSystemControl;
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override;

protected:
    void Paint(HDC Dc) override;
    void FontChanged() override;

private:
    DWORD Kind() const { return Style() & 3; }
    bool Simple() const { return Kind() == CBS_SIMPLE; }
    bool HasEdit() const { return Kind() != CBS_DROPDOWNLIST; }
    bool OwnerDrawn() const { return (Style() & (CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE)) != 0; }
    LRESULT List(UINT Message, WPARAM WParam = 0, LPARAM LParam = 0) const;
    LRESULT Edit(UINT Message, WPARAM WParam = 0, LPARAM LParam = 0) const;
    int Current() const { return static_cast<int>(List(LB_GETCURSEL)); }
    std::string ItemText(int Index) const;

    void Start();
    void MeasureField();
    LRESULT PassOn(UINT Message, LPARAM LParam) const;
    void Stop();
    LRESULT HandleItems(UINT Message, WPARAM WParam, LPARAM LParam);
    LRESULT HandleField(UINT Message, WPARAM WParam, LPARAM LParam);
    LRESULT HandleText(UINT Message, WPARAM WParam, LPARAM LParam);
    void EditCommand(int Code);
    int ClosedHeight() const;
    void Place();
    void SetCurrent(int Index);
    void ShowCurrent();
    std::string FieldText() const;
    void ChooseTyped();
    void Drop(bool Show, bool Chosen);
    bool HandleKey(UINT Message, WPARAM WParam, LPARAM LParam);
    void Key(WPARAM Key);
    void TypeCharacter(char Typed);
    void Choose(int Index);
    int PageSize() const;
    void ListCommand(int Code);
    void Leave();
    void PaintList(HDC Dc, RECT Rect);
    void PaintField(HDC Dc, RECT Rect);
    void PaintItem(HDC Dc, int Index, RECT Rect, bool Selected);
    BOOL GetInfo(COMBOBOXINFO& Info) const;

    HWND FList = nullptr;
    HWND FEdit = nullptr;
    int FFieldHeight = 0; // 0: from the font
    int FDropHeight = 0;
    int FDroppedWidth = 0;
    bool FDropped = false;
    bool FQuiet = false; // the field is being set by the combo box itself
    bool FExtendedInterface = false;
};

LRESULT TComboBox::List(UINT Message, WPARAM WParam, LPARAM LParam) const
{
    return FList ? SendMessageA(FList, Message, WParam, LParam) : CB_ERR;
}

LRESULT TComboBox::Edit(UINT Message, WPARAM WParam, LPARAM LParam) const
{
    return FEdit ? SendMessageA(FEdit, Message, WParam, LParam) : 0;
}

LRESULT TComboBox::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    if (Message >= CB_GETEDITSEL && Message <= CB_MSGMAX)
        return HandleItems(Message, WParam, LParam);
    switch (Message) {
    case WM_CREATE:
        Start();
        return 0;
    case WM_DESTROY:
        Stop();
        return 0;
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_SETTEXT:
    case WM_GETTEXT:
    case WM_GETTEXTLENGTH:
        return HandleText(Message, WParam, LParam);
    case WM_WINDOWPOSCHANGING: {
        auto& Pos = Structure<WINDOWPOS>(LParam);
        if (!(Pos.flags & SWP_NOSIZE) && !Simple() && FList) {
            FDropHeight = std::max(FDropHeight, Pos.cy);
            Pos.cy = ClosedHeight();
        }
        return 0;
    }
    case WM_SETREDRAW:
        return SetRedraw(WParam != 0);
    case WM_SIZE:
        Place();
        return 0;
    case WM_COMMAND:
        if (FEdit && reinterpret_cast<HWND>(LParam) == FEdit)
            EditCommand(HIWORD(WParam));
        else if (reinterpret_cast<HWND>(LParam) == FList)
            ListCommand(HIWORD(WParam));
        return 0;
    case WM_MEASUREITEM:
    case WM_DRAWITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
        return PassOn(Message, LParam);
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORLISTBOX:
        return SendMessageA(GetParent(Window()), Message, WParam, LParam);
    case WM_SETFOCUS:
        TSystemControl::Handle(Message, WParam, LParam);
        if (FEdit)
            SetFocus(FEdit);
        else
            Command(CBN_SETFOCUS);
        return 0;
    case WM_KILLFOCUS:
        TSystemControl::Handle(Message, WParam, LParam);
        if (!FEdit)
            Leave();
        return 0;
    case WM_ENABLE:
        if (FEdit)
            EnableWindow(FEdit, WParam != 0);
        return TSystemControl::Handle(Message, WParam, LParam);
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        if (!FEdit || GetFocus() != FEdit)
            SetFocus(Window());
        if (Alive() && !Simple())
            Drop(!FDropped, true);
        return 0;
    case WM_MOUSEWHEEL:
        Key(static_cast<short>(HIWORD(WParam)) < 0 ? VK_DOWN : VK_UP);
        return TRUE;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_CHAR:
        if (HandleKey(Message, WParam, LParam))
            return HasEdit() ? TRUE : 0;
        return TSystemControl::Handle(Message, WParam, LParam);
    case WM_CUT:
    case WM_COPY:
    case WM_PASTE:
    case WM_CLEAR:
        return Edit(Message, WParam, LParam);
    default:
        return TSystemControl::Handle(Message, WParam, LParam);
    }
}

LRESULT TComboBox::HandleItems(UINT Message, WPARAM WParam, LPARAM LParam)
{
    static constexpr struct {
        UINT Combo, List;
    } Same[] = {
        {CB_ADDSTRING, LB_ADDSTRING},
        {CB_INSERTSTRING, LB_INSERTSTRING},
        {CB_GETCOUNT, LB_GETCOUNT},
        {CB_GETCURSEL, LB_GETCURSEL},
        {CB_GETLBTEXT, LB_GETTEXT},
        {CB_GETLBTEXTLEN, LB_GETTEXTLEN},
        {CB_FINDSTRING, LB_FINDSTRING},
        {CB_FINDSTRINGEXACT, LB_FINDSTRINGEXACT},
        {CB_GETITEMDATA, LB_GETITEMDATA},
        {CB_SETITEMDATA, LB_SETITEMDATA},
        {CB_GETTOPINDEX, LB_GETTOPINDEX},
        {CB_SETTOPINDEX, LB_SETTOPINDEX},
        {CB_GETHORIZONTALEXTENT, LB_GETHORIZONTALEXTENT},
        {CB_SETHORIZONTALEXTENT, LB_SETHORIZONTALEXTENT},
    };
    for (const auto& Row : Same)
        if (Row.Combo == Message) {
            if (Message == CB_ADDSTRING || Message == CB_INSERTSTRING || Message == CB_SETITEMDATA)
                Invalidate(); // a question must not: who draws the items may ask it
            return List(Row.List, WParam, LParam);
        }
    switch (Message) {
    case CB_DELETESTRING: {
        const int Before = Current();
        const LRESULT Result = List(LB_DELETESTRING, WParam);
        if (Before >= 0 && Current() < 0 && !FEdit)
            ShowCurrent(); // a field keeps its text
        return Result;
    }
    case CB_RESETCONTENT:
        List(LB_RESETCONTENT);
        ShowCurrent();
        return TRUE;
    case CB_SETCURSEL: {
        const LRESULT Result = List(LB_SETCURSEL, WParam);
        ShowCurrent();
        return Result;
    }
    case CB_SELECTSTRING: {
        const LRESULT Found = List(LB_FINDSTRING, WParam, LParam);
        if (Found >= 0)
            SetCurrent(static_cast<int>(Found));
        return Found;
    }
    default:
        return HandleField(Message, WParam, LParam);
    }
}

LRESULT TComboBox::HandleField(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case CB_GETEDITSEL:
        return Edit(EM_GETSEL, WParam, LParam);
    case CB_SETEDITSEL:
        if (!FEdit)
            return CB_ERR;
        return Edit(EM_SETSEL, static_cast<WPARAM>(static_cast<short>(LOWORD(LParam))),
                    static_cast<short>(HIWORD(LParam)));
    case CB_LIMITTEXT:
        Edit(EM_SETLIMITTEXT, WParam, LParam);
        return TRUE;
    case CB_SHOWDROPDOWN:
        Drop(WParam != 0, false);
        return TRUE;
    case CB_GETDROPPEDSTATE:
        return FDropped;
    case CB_GETDROPPEDCONTROLRECT: {
        auto& Rect = Structure<RECT>(LParam);
        GetWindowRect(Window(), &Rect);
        Rect.bottom = std::max(Rect.bottom, Rect.top + FDropHeight);
        return TRUE;
    }
    case CB_GETDROPPEDWIDTH:
        return std::max(FDroppedWidth, ClientRect().right);
    case CB_SETDROPPEDWIDTH:
        FDroppedWidth = static_cast<int>(WParam);
        return std::max(FDroppedWidth, ClientRect().right);
    case CB_GETITEMHEIGHT:
        if (static_cast<int>(WParam) == -1)
            return ClosedHeight() - Frame;
        return List(LB_GETITEMHEIGHT, WParam);
    case CB_SETITEMHEIGHT:
        if (static_cast<int>(WParam) != -1)
            return List(LB_SETITEMHEIGHT, WParam, LParam);
        FFieldHeight = static_cast<int>(LParam);
        FontChanged();
        return 0;
    case CB_GETEXTENDEDUI:
        return FExtendedInterface;
    case CB_SETEXTENDEDUI:
        FExtendedInterface = WParam != 0;
        return 0;
    case CB_GETCOMBOBOXINFO:
        return GetInfo(Structure<COMBOBOXINFO>(LParam));
    default:
        return Default(Message, WParam, LParam);
    }
}

LRESULT TComboBox::HandleText(UINT Message, WPARAM WParam, LPARAM LParam)
{
    if (FEdit) {
        FQuiet = true;
        const LRESULT Result = Edit(Message, WParam, LParam);
        FQuiet = false;
        return Result;
    }
    const std::string Value = ItemText(Current());
    if (Message == WM_GETTEXTLENGTH)
        return static_cast<LRESULT>(Value.size());
    if (Message == WM_GETTEXT)
        return CopyText(Value, reinterpret_cast<LPSTR>(LParam), static_cast<int>(WParam));
    return CB_ERR;
}

void TComboBox::Start()
{
    // The scroll bar that the style asks for is the list's.
    SetWindowLongA(Window(), GWL_STYLE,
                   static_cast<LONG>(Style() & ~static_cast<DWORD>(WS_VSCROLL | WS_HSCROLL)));
    SetWindowPos(Window(), nullptr, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    DWORD ListStyle = WS_POPUP | WS_BORDER | LBS_HASSTRINGS * (!OwnerDrawn() || (Style() & CBS_HASSTRINGS));
    if (Style() & CBS_SORT)
        ListStyle |= LBS_SORT;
    if (Style() & CBS_OWNERDRAWVARIABLE)
        ListStyle |= LBS_OWNERDRAWVARIABLE;
    else if (OwnerDrawn())
        ListStyle |= LBS_OWNERDRAWFIXED;
    const RECT Rect = ClientRect();
    FDropHeight = Rect.bottom;
    if (OwnerDrawn())
        MeasureField();
    FList = CreateWindowExA(WS_EX_TOOLWINDOW, "ComboLBox", "", ListStyle, 0, 0, Rect.right, Rect.bottom,
                            nullptr, nullptr, nullptr, Window());
    if (HasEdit()) {
        DWORD EditStyle = WS_CHILD | WS_VISIBLE | ES_NOHIDESEL | ES_AUTOHSCROLL;
        if (!Enabled())
            EditStyle |= WS_DISABLED;
        if (Style() & CBS_UPPERCASE)
            EditStyle |= ES_UPPERCASE;
        if (Style() & CBS_LOWERCASE)
            EditStyle |= ES_LOWERCASE;
        FQuiet = true;
        FEdit = CreateWindowExA(ExStyle() & (WS_EX_RTLREADING | WS_EX_RIGHT), "Edit", Text().c_str(),
                                EditStyle, 0, 0, 0, 0, Window(),
                                reinterpret_cast<HMENU>(static_cast<INT_PTR>(EditId)), nullptr, nullptr);
        FQuiet = false;
    }
    FontChanged();
}

void TComboBox::MeasureField()
{
    MEASUREITEMSTRUCT Size{};
    Size.itemID = static_cast<UINT>(-1);
    Size.itemHeight = static_cast<UINT>(LineHeight() + FieldMargin - Frame);
    PassOn(WM_MEASUREITEM, reinterpret_cast<LPARAM>(&Size));
    FFieldHeight = static_cast<int>(Size.itemHeight);
}

// The items of the list are drawn by the combo box's parent, which knows the
// combo box only.
LRESULT TComboBox::PassOn(UINT Message, LPARAM LParam) const
{
    const auto As = [&](auto& Item) {
        Item.CtlType = ODT_COMBOBOX;
        Item.CtlID = static_cast<UINT>(Id());
        if constexpr (requires { Item.hwndItem; })
            Item.hwndItem = Window();
    };
    switch (Message) {
    case WM_MEASUREITEM:
        As(Structure<MEASUREITEMSTRUCT>(LParam));
        break;
    case WM_DRAWITEM:
        As(Structure<DRAWITEMSTRUCT>(LParam));
        break;
    case WM_DELETEITEM:
        As(Structure<DELETEITEMSTRUCT>(LParam));
        break;
    default:
        As(Structure<COMPAREITEMSTRUCT>(LParam));
        break;
    }
    return SendMessageA(GetParent(Window()), Message, static_cast<WPARAM>(Id()), LParam);
}

void TComboBox::Stop()
{
    if (FList)
        DestroyWindow(std::exchange(FList, nullptr));
}

void TComboBox::FontChanged()
{
    if (!FList)
        return;
    List(WM_SETFONT, reinterpret_cast<WPARAM>(Font()));
    Edit(WM_SETFONT, reinterpret_cast<WPARAM>(Font()));
    if (!Simple()) {
        const RECT Rect = ClientRect();
        SetWindowPos(Window(), nullptr, 0, 0, Rect.right, ClosedHeight(),
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    Place();
}

int TComboBox::ClosedHeight() const
{
    return FFieldHeight ? FFieldHeight + Frame : LineHeight() + FieldMargin;
}

void TComboBox::Place()
{
    if (!FEdit)
        return;
    const RECT Rect = ClientRect();
    const int Right = Simple() ? Rect.right - Edge : Rect.right - Edge - ButtonWidth;
    SetWindowPos(FEdit, nullptr, Edge + 1, Edge + 1, std::max(0, Right - Edge - 2),
                 std::max(0, ClosedHeight() - 2 * Edge - 2), SWP_NOZORDER | SWP_NOACTIVATE);
}

std::string TComboBox::ItemText(int Index) const
{
    const LRESULT Length = Index < 0 ? LB_ERR : List(LB_GETTEXTLEN, static_cast<WPARAM>(Index));
    if (Length < 0 || (OwnerDrawn() && !(Style() & CBS_HASSTRINGS)))
        return {};
    std::string Result(static_cast<std::size_t>(Length) + 1, '\0');
    List(LB_GETTEXT, static_cast<WPARAM>(Index), reinterpret_cast<LPARAM>(Result.data()));
    Result.pop_back();
    return Result;
}

void TComboBox::SetCurrent(int Index)
{
    List(LB_SETCURSEL, static_cast<WPARAM>(Index));
    ShowCurrent();
}

void TComboBox::ShowCurrent()
{
    if (FEdit) {
        FQuiet = true;
        Edit(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(ItemText(Current()).c_str()));
        if (Focused() || GetFocus() == FEdit)
            Edit(EM_SETSEL, 0, -1);
        FQuiet = false;
    }
    Invalidate();
}

void TComboBox::EditCommand(int Code)
{
    if (FQuiet)
        return;
    switch (Code) {
    case EN_UPDATE:
        Command(CBN_EDITUPDATE);
        break;
    case EN_CHANGE:
        Command(CBN_EDITCHANGE);
        break;
    case EN_SETFOCUS:
        Command(CBN_SETFOCUS);
        break;
    case EN_KILLFOCUS:
        Leave();
        break;
    default:
        break;
    }
}

std::string TComboBox::FieldText() const
{
    std::string Result(static_cast<std::size_t>(Edit(WM_GETTEXTLENGTH)), '\0');
    Edit(WM_GETTEXT, Result.size() + 1, reinterpret_cast<LPARAM>(Result.data()));
    return Result;
}

// The list opens at the item that begins with what the field holds.
void TComboBox::ChooseTyped()
{
    const std::string Typed = FieldText();
    if (Typed.empty())
        return;
    const LRESULT Found =
        List(LB_FINDSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(Typed.c_str()));
    if (Found >= 0)
        List(LB_SETCURSEL, static_cast<WPARAM>(Found));
}

void TComboBox::Drop(bool Show, bool Chosen)
{
    if (Simple() || FDropped == Show)
        return;
    if (Show) {
        FDropped = true;
        ChooseTyped();
        Command(CBN_DROPDOWN);
        return;
    }
    Command(Chosen ? CBN_SELENDOK : CBN_SELENDCANCEL);
    if (!Alive())
        return;
    FDropped = false;
    Command(CBN_CLOSEUP);
}

// The focus goes: what was looked at in the list is not taken.
void TComboBox::Leave()
{
    if (FDropped)
        Drop(false, false);
    else
        Command(CBN_SELENDCANCEL);
    if (Alive())
        Command(CBN_KILLFOCUS);
}

// A click into the list that is dropped takes the item under the mouse.
void TComboBox::ListCommand(int Code)
{
    if (Code != LBN_SELCHANGE)
        return;
    ShowCurrent();
    Drop(false, true);
    if (Alive())
        Command(CBN_SELCHANGE);
}

bool TComboBox::HandleKey(UINT Message, WPARAM WParam, LPARAM LParam)
{
    const bool Moves = WParam == VK_UP || WParam == VK_DOWN;
    if (Message == WM_SYSKEYDOWN) {
        if (Moves)
            Drop(!FDropped, false);
        return Moves;
    }
    if (Message == WM_KEYDOWN && Moves && FExtendedInterface && !FDropped) {
        Drop(true, false);
        return true;
    }
    if (Message == WM_CHAR) {
        if (FEdit)
            Edit(Message, WParam, LParam);
        else
            TypeCharacter(static_cast<char>(WParam));
        return true;
    }
    const bool InField = WParam == VK_HOME || WParam == VK_END || WParam == VK_LEFT || WParam == VK_RIGHT ||
                         WParam == VK_DELETE || WParam == VK_INSERT;
    if (FEdit && InField)
        Edit(Message, WParam, LParam);
    else
        Key(WParam);
    return true;
}

int TComboBox::PageSize() const
{
    const int Height = std::max(1, static_cast<int>(List(LB_GETITEMHEIGHT)));
    return std::max(1, (FDropHeight - ClosedHeight()) / Height - 1);
}

// The next item that begins with what was typed is chosen.
void TComboBox::TypeCharacter(char Typed)
{
    const std::string Start(1, Typed);
    const LRESULT Found =
        static_cast<unsigned char>(Typed) <= ' '
            ? LB_ERR
            : List(LB_FINDSTRING, static_cast<WPARAM>(Current()), reinterpret_cast<LPARAM>(Start.c_str()));
    if (Found >= 0)
        Choose(static_cast<int>(Found));
}

void TComboBox::Key(WPARAM Key)
{
    const int Count = static_cast<int>(List(LB_GETCOUNT));
    int Target = Current();
    switch (Key) {
    case VK_UP:
    case VK_LEFT:
        --Target;
        break;
    case VK_DOWN:
    case VK_RIGHT:
        ++Target;
        break;
    case VK_HOME:
        Target = 0;
        break;
    case VK_END:
        Target = Count - 1;
        break;
    case VK_PRIOR:
        Target -= PageSize();
        break;
    case VK_NEXT:
        Target += PageSize();
        break;
    case VK_F4:
        return FExtendedInterface ? void() : Drop(!FDropped, false);
    case VK_RETURN:
        return Drop(false, true);
    case VK_ESCAPE:
        return Drop(false, false);
    default:
        return;
    }
    if (Count > 0)
        Choose(std::clamp(Target, 0, Count - 1));
}

void TComboBox::Choose(int Index)
{
    const bool Moved = Index != Current();
    if (Moved || FEdit)
        SetCurrent(Index);
    if (!Moved)
        return;
    if (!FDropped && !Simple())
        Command(CBN_SELENDOK);
    if (Alive())
        Command(CBN_SELCHANGE);
}

void TComboBox::Paint(HDC Dc)
{
    RECT Rect = ClientRect();
    RECT Field = Rect;
    Field.bottom = std::min(Rect.bottom, Rect.top + ClosedHeight());
    FillRect(Dc, &Field, ParentColors(Dc, Enabled() ? WM_CTLCOLOREDIT : WM_CTLCOLORSTATIC));
    SetBkMode(Dc, TRANSPARENT);
    DrawEdge(Dc, &Field, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    if (Simple()) {
        Rect.top = Field.bottom + Edge;
        return PaintList(Dc, Rect);
    }
    RECT Button = Field;
    const bool Mirrored = (ExStyle() & WS_EX_LAYOUTRTL) != 0;
    if (Mirrored)
        Field.left = Button.right = Field.left + ButtonWidth;
    else
        Field.right = Button.left = Field.right - ButtonWidth;
    DrawFrameControl(Dc, &Button, DFC_SCROLL,
                     DFCS_SCROLLCOMBOBOX | (FDropped ? DFCS_PUSHED : 0u) | (Enabled() ? 0u : DFCS_INACTIVE));
    if (!FEdit)
        PaintField(Dc, Field);
}

void TComboBox::PaintField(HDC Dc, RECT Rect)
{
    InflateRect(&Rect, -1, -1);
    PaintItem(Dc, Current(), Rect, Focused() && !FDropped);
    if (Focused() && !FDropped)
        DrawFocusRect(Dc, &Rect);
}

void TComboBox::PaintItem(HDC Dc, int Index, RECT Rect, bool Selected)
{
    if (OwnerDrawn() && Index >= 0) {
        DRAWITEMSTRUCT Item{};
        Item.CtlType = ODT_COMBOBOX;
        Item.CtlID = static_cast<UINT>(Id());
        Item.itemID = static_cast<UINT>(Index);
        Item.itemAction = ODA_DRAWENTIRE;
        Item.itemState = ODS_COMBOBOXEDIT | (Selected ? ODS_SELECTED | ODS_FOCUS : 0u);
        Item.hwndItem = Window();
        Item.hDC = Dc;
        Item.rcItem = Rect;
        Item.itemData = static_cast<ULONG_PTR>(List(LB_GETITEMDATA, static_cast<WPARAM>(Index)));
        SendMessageA(GetParent(Window()), WM_DRAWITEM, Item.CtlID, reinterpret_cast<LPARAM>(&Item));
        return;
    }
    if (Selected) {
        FillRect(Dc, &Rect, GetSysColorBrush(COLOR_HIGHLIGHT));
        SetTextColor(Dc, GetSysColor(COLOR_HIGHLIGHTTEXT));
    } else {
        SetTextColor(Dc, GetSysColor(Enabled() ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT));
    }
    InflateRect(&Rect, -2, 0);
    DrawItemText(Dc, ItemText(Index), Rect, DT_NOPREFIX | DT_SINGLELINE | DT_VCENTER);
}

void TComboBox::PaintList(HDC Dc, RECT Rect)
{
    FillRect(Dc, &Rect, GetSysColorBrush(COLOR_WINDOW));
    DrawEdge(Dc, &Rect, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    const int Height = LineHeight(), Count = static_cast<int>(List(LB_GETCOUNT));
    for (int Index = 0; Index < Count && Rect.top < Rect.bottom; ++Index) {
        RECT Row = {Rect.left, Rect.top, Rect.right, std::min(Rect.top + Height, Rect.bottom)};
        PaintItem(Dc, Index, Row, Index == Current());
        Rect.top += Height;
    }
}

BOOL TComboBox::GetInfo(COMBOBOXINFO& Info) const
{
    if (Info.cbSize != sizeof(COMBOBOXINFO))
        return FALSE;
    const RECT Rect = ClientRect();
    Info.rcItem = {Edge, Edge, Rect.right - Edge - ButtonWidth, Rect.bottom - Edge};
    Info.rcButton = {Rect.right - Edge - ButtonWidth, Edge, Rect.right - Edge, Rect.bottom - Edge};
    Info.stateButton = 0;
    Info.hwndCombo = Window();
    Info.hwndItem = FEdit;
    Info.hwndList = FList;
    return TRUE;
}
} // namespace

void RegisterSystemComboBoxes()
{
    RegisterControl<TComboBox>("ComboBox", CS_DBLCLKS | CS_PARENTDC);
}

BOOL GetComboBoxInfo(HWND Combo, COMBOBOXINFO* Info)
{
    return Info && SendMessageA(Combo, CB_GETCOMBOBOXINFO, 0, reinterpret_cast<LPARAM>(Info));
}
