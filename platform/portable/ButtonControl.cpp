#include <algorithm>
#include <utility>

#include "platform/portable/Control.h"

// Push buttons, check boxes, radio buttons and group boxes.
namespace {
constexpr int BoxSide = 13;
constexpr int BoxGap = 4;

bool IsAuto(DWORD Kind)
{
    return Kind == BS_AUTOCHECKBOX || Kind == BS_AUTO3STATE || Kind == BS_AUTORADIOBUTTON;
}

class TButton final : public TSystemControl {
public:
    using TSystemControl::TSystemControl;
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override;

protected:
    void Paint(HDC Dc) override;

private:
    DWORD Kind() const { return Style() & BS_TYPEMASK; }
    bool IsRadio() const { return Kind() == BS_RADIOBUTTON || Kind() == BS_AUTORADIOBUTTON; }
    bool IsThreeState() const { return Kind() == BS_3STATE || Kind() == BS_AUTO3STATE; }
    bool IsPush() const { return Kind() == BS_PUSHBUTTON || Kind() == BS_DEFPUSHBUTTON; }
    bool LooksPush() const { return IsPush() || (Style() & BS_PUSHLIKE); }

    LRESULT SetCheck(UINT Value);
    void SetPushed(bool Value);
    void Press();
    void Release(bool Inside);
    void Clicked();
    void UncheckGroup();
    LRESULT DialogCode() const;
    UINT FrameState() const;
    UINT TextFormat() const;
    void PaintPush(HDC Dc, RECT Rect);
    void PaintBox(HDC Dc, RECT Rect);
    void PaintGroup(HDC Dc, RECT Rect);
    void PaintOwner(HDC Dc, RECT Rect);
    void PaintText(HDC Dc, RECT Rect, UINT Format) const;

    UINT FCheck = BST_UNCHECKED;
    bool FPushed = false;
    bool FCaptured = false;
    HANDLE FImage = nullptr;
};

LRESULT TButton::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case WM_GETDLGCODE:
        return DialogCode();
    case WM_ERASEBKGND:
        return TRUE;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        if (Kind() == BS_GROUPBOX)
            return 0;
        if (Message == WM_LBUTTONDBLCLK &&
            ((Style() & BS_NOTIFY) || Kind() == BS_OWNERDRAW || Kind() == BS_RADIOBUTTON)) {
            Command(BN_DOUBLECLICKED);
            return 0;
        }
        SetCapture(Window());
        FCaptured = true;
        SetFocus(Window());
        if (Alive())
            Press();
        return 0;
    case WM_MOUSEMOVE: {
        const RECT Rect = ClientRect();
        if (FCaptured)
            SetPushed(PtInRect(&Rect, PointOf(LParam)));
        return 0;
    }
    case WM_LBUTTONUP: {
        if (!FCaptured)
            return 0;
        const RECT Rect = ClientRect();
        FCaptured = false;
        const bool Pushed = FPushed;
        ReleaseCapture(); // takes the pushed state away
        FPushed = Pushed;
        if (Alive())
            Release(PtInRect(&Rect, PointOf(LParam)));
        return 0;
    }
    case WM_CAPTURECHANGED:
        FCaptured = false;
        SetPushed(false);
        return 0;
    case WM_KEYDOWN:
        if (WParam == VK_SPACE)
            Press();
        return 0;
    case WM_KEYUP:
        if (WParam == VK_SPACE && FPushed)
            Release(true);
        return 0;
    case WM_SETFOCUS:
        TSystemControl::Handle(Message, WParam, LParam);
        if (Style() & BS_NOTIFY)
            Command(BN_SETFOCUS);
        return 0;
    case WM_KILLFOCUS:
        SetPushed(false);
        TSystemControl::Handle(Message, WParam, LParam);
        if (Style() & BS_NOTIFY)
            Command(BN_KILLFOCUS);
        return 0;
    case BM_GETCHECK:
        return FCheck;
    case BM_SETCHECK:
        return SetCheck(static_cast<UINT>(WParam));
    case BM_GETSTATE:
        return FCheck | (FPushed ? BST_PUSHED : 0) | (Focused() ? BST_FOCUS : 0);
    case BM_SETSTATE:
        SetPushed(WParam != 0);
        return 0;
    case BM_SETSTYLE:
        SetWindowLongA(Window(), GWL_STYLE,
                       static_cast<LONG>((Style() & ~DWORD{BS_TYPEMASK}) | (WParam & BS_TYPEMASK)));
        Invalidate();
        return 0;
    case BM_CLICK:
        SendMessageA(Window(), WM_LBUTTONDOWN, 0, 0);
        SendMessageA(Window(), WM_LBUTTONUP, 0, 0);
        return 0;
    case BM_SETIMAGE:
        Invalidate();
        return reinterpret_cast<LRESULT>(std::exchange(FImage, reinterpret_cast<HANDLE>(LParam)));
    case BM_GETIMAGE:
        return reinterpret_cast<LRESULT>(FImage);
    case BCM_GETIDEALSIZE: {
        auto& Size = Structure<SIZE>(LParam);
        Size = {MnemonicWidthOf(Text()) + (LooksPush() ? 12 : BoxSide + BoxGap + 2), LineHeight() + 8};
        return TRUE;
    }
    case WM_NCHITTEST:
        return Kind() == BS_GROUPBOX ? HTTRANSPARENT : Default(Message, WParam, LParam);
    default:
        return TSystemControl::Handle(Message, WParam, LParam);
    }
}

LRESULT TButton::DialogCode() const
{
    switch (Kind()) {
    case BS_DEFPUSHBUTTON:
        return DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
    case BS_PUSHBUTTON:
        return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
        return DLGC_BUTTON | DLGC_RADIOBUTTON;
    case BS_GROUPBOX:
        return DLGC_STATIC;
    default:
        return DLGC_BUTTON;
    }
}

LRESULT TButton::SetCheck(UINT Value)
{
    const DWORD ButtonKind = Kind();
    if (IsPush() || ButtonKind == BS_GROUPBOX || ButtonKind == BS_OWNERDRAW)
        return 0;
    const UINT Limit = IsThreeState() ? BST_INDETERMINATE : BST_CHECKED;
    FCheck = std::min(Value, Limit);
    if (IsRadio()) {
        // Only the checked button of a group is reached by the tab key.
        DWORD NewStyle = Style() & ~DWORD{WS_TABSTOP};
        if (FCheck != BST_UNCHECKED)
            NewStyle |= WS_TABSTOP;
        SetWindowLongA(Window(), GWL_STYLE, static_cast<LONG>(NewStyle));
        if (FCheck != BST_UNCHECKED && ButtonKind == BS_AUTORADIOBUTTON)
            UncheckGroup();
    }
    Invalidate();
    return 0;
}

void TButton::UncheckGroup()
{
    const HWND Parent = GetParent(Window());
    HWND Other = GetNextDlgGroupItem(Parent, Window(), FALSE);
    for (int Count = 0; Other && Other != Window() && Count < 1000; ++Count) {
        const auto Code = SendMessageA(Other, WM_GETDLGCODE, 0, 0);
        if ((Code & DLGC_RADIOBUTTON) &&
            (GetWindowLongA(Other, GWL_STYLE) & BS_TYPEMASK) == BS_AUTORADIOBUTTON &&
            SendMessageA(Other, BM_GETCHECK, 0, 0))
            SendMessageA(Other, BM_SETCHECK, BST_UNCHECKED, 0);
        Other = GetNextDlgGroupItem(Parent, Other, FALSE);
    }
}

void TButton::SetPushed(bool Value)
{
    if (FPushed == Value)
        return;
    FPushed = Value;
    Invalidate();
}

void TButton::Press()
{
    if (Enabled())
        SetPushed(true);
}

void TButton::Release(bool Inside)
{
    const bool Was = FPushed;
    SetPushed(false);
    if (Was && Inside && Enabled())
        Clicked();
}

void TButton::Clicked()
{
    if (IsAuto(Kind())) {
        if (Kind() == BS_AUTORADIOBUTTON)
            SetCheck(BST_CHECKED);
        else
            SetCheck((FCheck + 1) % (IsThreeState() ? 3 : 2));
    }
    Command(BN_CLICKED);
}

UINT TButton::FrameState() const
{
    UINT State = 0;
    if (FPushed)
        State |= DFCS_PUSHED;
    if (FCheck != BST_UNCHECKED)
        State |= DFCS_CHECKED;
    if (!Enabled())
        State |= DFCS_INACTIVE;
    if (Style() & BS_FLAT)
        State |= DFCS_FLAT;
    return State;
}

UINT TButton::TextFormat() const
{
    const DWORD Flags = Style();
    UINT Format = DT_LEFT;
    const DWORD Horizontal = Flags & BS_CENTER;
    if (Horizontal == BS_CENTER || (Horizontal == 0 && LooksPush()))
        Format = DT_CENTER;
    else if (Horizontal == BS_RIGHT)
        Format = DT_RIGHT;
    if (Flags & BS_MULTILINE)
        return Format | DT_WORDBREAK;
    const DWORD Vertical = Flags & BS_VCENTER;
    Format |= DT_SINGLELINE;
    return Format | (Vertical == BS_TOP ? DT_TOP : Vertical == BS_BOTTOM ? DT_BOTTOM : DT_VCENTER);
}

void TButton::Paint(HDC Dc)
{
    const RECT Rect = ClientRect();
    if (Kind() == BS_OWNERDRAW)
        PaintOwner(Dc, Rect);
    else if (Kind() == BS_GROUPBOX)
        PaintGroup(Dc, Rect);
    else if (LooksPush())
        PaintPush(Dc, Rect);
    else
        PaintBox(Dc, Rect);
}

void TButton::PaintText(HDC Dc, RECT Rect, UINT Format) const
{
    if (Format & DT_WORDBREAK) {
        RECT Needed = Rect;
        DrawTextA(Dc, Text().c_str(), -1, &Needed, Format | DT_CALCRECT);
        Rect.top += std::max(0, (Rect.bottom - Rect.top - (Needed.bottom - Needed.top)) / 2);
    }
    if (!Enabled()) {
        RECT Light = Rect;
        OffsetRect(&Light, 1, 1);
        SetTextColor(Dc, GetSysColor(COLOR_BTNHIGHLIGHT));
        DrawItemText(Dc, Text(), Light, Format);
        SetTextColor(Dc, GetSysColor(COLOR_GRAYTEXT));
    }
    DrawItemText(Dc, Text(), Rect, Format);
}

void TButton::PaintPush(HDC Dc, RECT Rect)
{
    FillRect(Dc, &Rect, ParentColors(Dc, WM_CTLCOLORBTN));
    SetTextColor(Dc, GetSysColor(COLOR_BTNTEXT));
    SetBkMode(Dc, TRANSPARENT);
    if (Kind() == BS_DEFPUSHBUTTON || (IsPush() && Focused())) {
        FrameRect(Dc, &Rect, GetSysColorBrush(COLOR_WINDOWFRAME));
        InflateRect(&Rect, -1, -1);
    }
    DrawFrameControl(Dc, &Rect, DFC_BUTTON, DFCS_BUTTONPUSH | FrameState());
    InflateRect(&Rect, -3, -3);
    RECT Inner = Rect;
    if (FPushed)
        OffsetRect(&Inner, 1, 1);
    if (FImage && (Style() & BS_ICON))
        DrawIcon(Dc, Inner.left, Inner.top, static_cast<HICON>(FImage));
    else
        PaintText(Dc, Inner, TextFormat());
    if (Focused())
        DrawFocusRect(Dc, &Rect);
}

void TButton::PaintBox(HDC Dc, RECT Rect)
{
    FillRect(Dc, &Rect, ParentColors(Dc, WM_CTLCOLORSTATIC));
    SetBkMode(Dc, TRANSPARENT);
    const bool BoxRight = ((Style() & BS_LEFTTEXT) != 0) != ((ExStyle() & WS_EX_LAYOUTRTL) != 0);
    RECT Box = Rect;
    const UINT Format = TextFormat();
    Box.top = Format & DT_BOTTOM                     ? Rect.bottom - BoxSide - 1
              : Format & (DT_VCENTER | DT_WORDBREAK) ? Rect.top + (Rect.bottom - Rect.top - BoxSide) / 2
                                                     : Rect.top + 1;
    Box.bottom = Box.top + BoxSide;
    RECT Label = Rect;
    if (BoxRight) {
        Box.left = Rect.right - BoxSide;
        Label.right = Box.left - BoxGap;
    } else {
        Box.right = Rect.left + BoxSide;
        Label.left = Box.right + BoxGap;
    }
    const UINT Shape = IsRadio()                                       ? DFCS_BUTTONRADIO
                       : IsThreeState() && FCheck == BST_INDETERMINATE ? DFCS_BUTTON3STATE
                                                                       : DFCS_BUTTONCHECK;
    DrawFrameControl(Dc, &Box, DFC_BUTTON, Shape | FrameState());
    PaintText(Dc, Label, Format);
    if (Focused() && !Text().empty()) {
        RECT Needed = Label;
        DrawTextA(Dc, Text().c_str(), -1, &Needed, Format | DT_CALCRECT);
        const int Height = Needed.bottom - Needed.top;
        Needed.top = Label.top + (Label.bottom - Label.top - Height) / 2;
        Needed.bottom = Needed.top + Height;
        Needed.right = std::min(Needed.right + 1, Label.right);
        Needed.left = std::max(Needed.left - 1, 0);
        DrawFocusRect(Dc, &Needed);
    }
}

void TButton::PaintGroup(HDC Dc, RECT Rect)
{
    const HBRUSH Back = ParentColors(Dc, WM_CTLCOLORSTATIC);
    RECT Frame = Rect;
    Frame.top += LineHeight() / 2 - 1;
    DrawEdge(Dc, &Frame, EDGE_ETCHED, BF_RECT);
    if (Text().empty())
        return;
    constexpr int Indent = 9;
    const int Width = std::min(MnemonicWidthOf(Text()), Rect.right - 2 * Indent);
    RECT Label = {Rect.left + Indent, Rect.top, Rect.left + Indent + Width, Rect.top + LineHeight()};
    if (TextFlags(DT_LEFT) & DT_RIGHT || (Style() & BS_CENTER) == BS_RIGHT)
        OffsetRect(&Label, Rect.right - Indent - Label.right, 0);
    RECT Gap = Label;
    InflateRect(&Gap, 2, 0);
    FillRect(Dc, &Gap, Back);
    SetBkMode(Dc, TRANSPARENT);
    PaintText(Dc, Label, DT_SINGLELINE);
}

void TButton::PaintOwner(HDC Dc, RECT Rect)
{
    DRAWITEMSTRUCT Item{};
    Item.CtlType = ODT_BUTTON;
    Item.CtlID = static_cast<UINT>(Id());
    Item.itemAction = ODA_DRAWENTIRE;
    Item.itemState =
        (FPushed ? ODS_SELECTED : 0u) | (Focused() ? ODS_FOCUS : 0u) | (Enabled() ? 0u : ODS_DISABLED);
    Item.hwndItem = Window();
    Item.hDC = Dc;
    Item.rcItem = Rect;
    SendMessageA(GetParent(Window()), WM_DRAWITEM, Item.CtlID, reinterpret_cast<LPARAM>(&Item));
}
} // namespace

void RegisterSystemButtons()
{
    RegisterControl<TButton>("Button");
}

BOOL CheckDlgButton(HWND Dialog, int Id, UINT Check)
{
    const HWND Button = GetDlgItem(Dialog, Id);
    if (!Button)
        return FALSE;
    SendMessageA(Button, BM_SETCHECK, Check, 0);
    return TRUE;
}

UINT IsDlgButtonChecked(HWND Dialog, int Id)
{
    return static_cast<UINT>(SendDlgItemMessageA(Dialog, Id, BM_GETCHECK, 0, 0));
}

BOOL CheckRadioButton(HWND Dialog, int First, int Last, int Checked)
{
    for (int Id = First; Id <= Last; ++Id)
        CheckDlgButton(Dialog, Id, Id == Checked ? BST_CHECKED : BST_UNCHECKED);
    return TRUE;
}
