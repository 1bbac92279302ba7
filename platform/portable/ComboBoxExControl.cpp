// The extended combo box: a window around a plain one, to which it passes on what
// it is asked, and whose notifications it sends to its parent as its own.
#include "platform/portable/Control.h"

namespace {

class TComboBoxEx final : public TSystemControl {
public:
    using TSystemControl::TSystemControl;
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override;

private:
    void Start();
    void Place();
    HWND EditOf() const { return FindWindowExA(FCombo, nullptr, "Edit", nullptr); }

    HWND FCombo = nullptr;
};

LRESULT TComboBoxEx::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    if (Message >= CB_GETEDITSEL && Message <= CB_MSGMAX)
        return SendMessageA(FCombo, Message, WParam, LParam);
    switch (Message) {
    case WM_CREATE:
        Start();
        return 0;
    case CBEM_GETCOMBOCONTROL:
        return reinterpret_cast<LRESULT>(FCombo);
    case CBEM_GETEDITCONTROL:
        return reinterpret_cast<LRESULT>(EditOf());
    case WM_SETFONT:
        SendMessageA(FCombo, Message, WParam, LParam);
        Place();
        return TSystemControl::Handle(Message, WParam, LParam);
    case WM_SETTEXT:
    case WM_GETTEXT:
    case WM_GETTEXTLENGTH:
        return FCombo ? SendMessageA(FCombo, Message, WParam, LParam) : Default(Message, WParam, LParam);
    case WM_SIZE:
        Place();
        return 0;
    case WM_ENABLE:
        EnableWindow(FCombo, WParam != 0);
        return 0;
    case WM_SETFOCUS:
        SetFocus(FCombo);
        return 0;
    case WM_COMMAND:
        return reinterpret_cast<HWND>(LParam) == FCombo ? Command(HIWORD(WParam)) : 0;
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS | DLGC_WANTCHARS;
    default:
        return TSystemControl::Handle(Message, WParam, LParam);
    }
}

void TComboBoxEx::Start()
{
    constexpr DWORD ComboStyles = 0xFFF;
    const RECT Rect = ClientRect();
    FCombo = CreateWindowExA(0, "ComboBox", "", (Style() & ComboStyles) | WS_CHILD | WS_VISIBLE | WS_VSCROLL,
                             0, 0, Rect.right, Rect.bottom, Window(),
                             reinterpret_cast<HMENU>(static_cast<INT_PTR>(Id())), nullptr, nullptr);
    Place();
}

// As wide as this window, which is as high as the closed combo box.
void TComboBoxEx::Place()
{
    if (!FCombo)
        return;
    RECT Combo;
    GetWindowRect(FCombo, &Combo);
    const int Height = Combo.bottom - Combo.top;
    const RECT Rect = ClientRect();
    if (Combo.right - Combo.left != Rect.right) {
        RECT Dropped;
        SendMessageA(FCombo, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&Dropped));
        SetWindowPos(FCombo, nullptr, 0, 0, Rect.right, Dropped.bottom - Dropped.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (Rect.bottom != Height)
        SetWindowPos(Window(), nullptr, 0, 0, Rect.right, Height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace

void RegisterSystemComboBoxesEx()
{
    RegisterControl<TComboBoxEx>(WC_COMBOBOXEXA);
}
