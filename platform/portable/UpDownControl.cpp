#include <algorithm>
#include <cstdlib>
#include <utility>

#include "platform/portable/Control.h"

namespace {
class TUpDown final : public TSystemControl {
public:
    using TSystemControl::TSystemControl;
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override;

protected:
    void Paint(HDC Dc) override;

private:
    int Lowest() const { return std::min(FLower, FUpper); }
    int Highest() const { return std::max(FLower, FUpper); }
    void Step(int Clicks);
    int SetPosition(int Value);
    bool ReadBuddy();
    void WriteBuddy();
    void FindBuddy();
    void Attach();

    HWND FBuddy = nullptr;
    int FLower = 100;
    int FUpper = 0;
    int FPosition = 0;
    int FBase = 10;
};

LRESULT TUpDown::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case WM_CREATE:
        if (Style() & UDS_AUTOBUDDY)
            FindBuddy();
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    case UDM_SETBUDDY: {
        const HWND Old = std::exchange(FBuddy, reinterpret_cast<HWND>(WParam));
        Attach();
        return reinterpret_cast<LRESULT>(Old);
    }
    case UDM_GETBUDDY:
        return reinterpret_cast<LRESULT>(FBuddy);
    case UDM_SETRANGE:
        FUpper = static_cast<short>(LOWORD(LParam));
        FLower = static_cast<short>(HIWORD(LParam));
        return 0;
    case UDM_GETRANGE:
        return static_cast<LRESULT>(static_cast<DWORD>(MAKELONG(FUpper, FLower)));
    case UDM_SETRANGE32:
        FLower = static_cast<int>(WParam);
        FUpper = static_cast<int>(LParam);
        return 0;
    case UDM_GETRANGE32:
        if (WParam)
            *reinterpret_cast<int*>(WParam) = FLower;
        if (LParam)
            *reinterpret_cast<int*>(LParam) = FUpper;
        return 0;
    case UDM_SETPOS:
        return SetPosition(static_cast<short>(LOWORD(LParam)));
    case UDM_SETPOS32:
        return SetPosition(static_cast<int>(LParam));
    case UDM_GETPOS: {
        const bool Read = ReadBuddy();
        return static_cast<LRESULT>(static_cast<DWORD>(MAKELONG(FPosition, Read ? 0 : 1)));
    }
    case UDM_GETPOS32: {
        const bool Read = ReadBuddy();
        if (LParam)
            Structure<BOOL>(LParam) = !Read;
        return FPosition;
    }
    case UDM_SETBASE:
        return WParam == 10 || WParam == 16 ? std::exchange(FBase, static_cast<int>(WParam)) : 0;
    case UDM_GETBASE:
        return FBase;
    case WM_LBUTTONDOWN: {
        const RECT Rect = ClientRect();
        const POINT Point = PointOf(LParam);
        Step(Style() & UDS_HORZ ? (Point.x < Rect.right / 2 ? -1 : 1) : (Point.y < Rect.bottom / 2 ? 1 : -1));
        return 0;
    }
    case WM_KEYDOWN:
        if (Style() & UDS_ARROWKEYS && (WParam == VK_UP || WParam == VK_DOWN))
            Step(WParam == VK_UP ? 1 : -1);
        return 0;
    default:
        return TSystemControl::Handle(Message, WParam, LParam);
    }
}

void TUpDown::FindBuddy()
{
    FBuddy = GetWindow(Window(), GW_HWNDPREV);
    Attach();
}

// A buddy gives room for the buttons at its side.
void TUpDown::Attach()
{
    if (!FBuddy || !(Style() & (UDS_ALIGNLEFT | UDS_ALIGNRIGHT)))
        return;
    RECT Buddy{};
    GetWindowRect(FBuddy, &Buddy);
    MapWindowPoints(nullptr, GetParent(Window()), reinterpret_cast<POINT*>(&Buddy), 2);
    const int Width = GetSystemMetrics(SM_CXVSCROLL);
    const bool Right = (Style() & UDS_ALIGNRIGHT) != 0;
    SetWindowPos(FBuddy, nullptr, Right ? Buddy.left : Buddy.left + Width, Buddy.top,
                 Buddy.right - Buddy.left - Width, Buddy.bottom - Buddy.top, SWP_NOZORDER | SWP_NOACTIVATE);
    SetWindowPos(Window(), nullptr, Right ? Buddy.right - Width : Buddy.left, Buddy.top, Width,
                 Buddy.bottom - Buddy.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

bool TUpDown::ReadBuddy()
{
    if (!FBuddy || !(Style() & UDS_SETBUDDYINT))
        return true;
    char Buffer[32];
    GetWindowTextA(FBuddy, Buffer, sizeof Buffer);
    std::string Digits;
    for (const char* At = Buffer; *At; ++At)
        if (*At != ',' && *At != '.')
            Digits += *At;
    char* End = nullptr;
    const long Value = std::strtol(Digits.c_str(), &End, FBase);
    if (Digits.empty() || *End || Value < Lowest() || Value > Highest())
        return false;
    FPosition = static_cast<int>(Value);
    return true;
}

void TUpDown::WriteBuddy()
{
    if (!FBuddy || !(Style() & UDS_SETBUDDYINT))
        return;
    std::string Value = std::to_string(FPosition);
    if (!(Style() & UDS_NOTHOUSANDS))
        for (int At = static_cast<int>(Value.size()) - 3; At > (FPosition < 0 ? 1 : 0); At -= 3)
            Value.insert(static_cast<std::size_t>(At), 1, ',');
    SetWindowTextA(FBuddy, Value.c_str());
}

int TUpDown::SetPosition(int Value)
{
    const int Old = std::exchange(FPosition, std::clamp(Value, Lowest(), Highest()));
    WriteBuddy();
    return Old;
}

void TUpDown::Step(int Clicks)
{
    ReadBuddy();
    NMUPDOWN Change{};
    Change.iPos = FPosition;
    Change.iDelta = FUpper >= FLower ? Clicks : -Clicks;
    if (NotifyWith(Change.hdr, UDN_DELTAPOS) || !Alive())
        return;
    int Next = FPosition + Change.iDelta;
    if (Style() & UDS_WRAP)
        Next = Next > Highest() ? Lowest() : Next < Lowest() ? Highest() : Next;
    SetPosition(Next);
    SendMessageA(GetParent(Window()), Style() & UDS_HORZ ? WM_HSCROLL : WM_VSCROLL,
                 static_cast<WPARAM>(static_cast<DWORD>(MAKELONG(SB_THUMBPOSITION, FPosition))),
                 reinterpret_cast<LPARAM>(Window()));
}

void TUpDown::Paint(HDC Dc)
{
    const RECT Rect = ClientRect();
    RECT First = Rect, Second = Rect;
    const bool Across = (Style() & UDS_HORZ) != 0;
    if (Across)
        First.right = Second.left = Rect.right / 2;
    else
        First.bottom = Second.top = Rect.bottom / 2;
    const UINT Dull = Enabled() ? 0u : DFCS_INACTIVE;
    DrawFrameControl(Dc, &First, DFC_SCROLL, (Across ? DFCS_SCROLLLEFT : DFCS_SCROLLUP) | Dull);
    DrawFrameControl(Dc, &Second, DFC_SCROLL, (Across ? DFCS_SCROLLRIGHT : DFCS_SCROLLDOWN) | Dull);
}
} // namespace

void RegisterSystemUpDowns()
{
    RegisterControl<TUpDown>(UPDOWN_CLASSA);
}
