// Measures, colours and fonts of the system.
#include <array>
#include <cstring>

#include "platform/portable/Lifetime.h"
#include "platform/portable/winbase.h"

namespace {

constexpr int ScreenWidth = 1280;
constexpr int ScreenHeight = 1024;

// By SM_ number, for a screen of 96 dots per inch.
constexpr auto Metrics = [] {
    std::array<int, 97> Values{};
    const int Pairs[][2] = {{SM_CXSCREEN, ScreenWidth},
                            {SM_CYSCREEN, ScreenHeight},
                            {SM_CXVSCROLL, 17},
                            {SM_CYHSCROLL, 17},
                            {SM_CYCAPTION, 19},
                            {SM_CXBORDER, 1},
                            {SM_CYBORDER, 1},
                            {SM_CXDLGFRAME, 3},
                            {SM_CYDLGFRAME, 3},
                            {SM_CYVTHUMB, 17},
                            {SM_CXHTHUMB, 17},
                            {SM_CXICON, 32},
                            {SM_CYICON, 32},
                            {SM_CXCURSOR, 32},
                            {SM_CYCURSOR, 32},
                            {SM_CYMENU, 19},
                            {SM_CXFULLSCREEN, ScreenWidth},
                            {SM_CYFULLSCREEN, ScreenHeight + 11},
                            {SM_MOUSEPRESENT, 1},
                            {SM_CYVSCROLL, 17},
                            {SM_CXHSCROLL, 17},
                            {SM_CXMIN, 112},
                            {SM_CYMIN, 27},
                            {SM_CXSIZE, 18},
                            {SM_CYSIZE, 18},
                            {SM_CXFRAME, 4},
                            {SM_CYFRAME, 4},
                            {SM_CXMINTRACK, 112},
                            {SM_CYMINTRACK, 27},
                            {SM_CXDOUBLECLK, 4},
                            {SM_CYDOUBLECLK, 4},
                            {SM_CXICONSPACING, 75},
                            {SM_CYICONSPACING, 75},
                            {SM_CMOUSEBUTTONS, 3},
                            {SM_CXEDGE, 2},
                            {SM_CYEDGE, 2},
                            {SM_CXMINSPACING, 160},
                            {SM_CYMINSPACING, 24},
                            {SM_CXSMICON, 16},
                            {SM_CYSMICON, 16},
                            {SM_CYSMCAPTION, 16},
                            {SM_CXSMSIZE, 15},
                            {SM_CYSMSIZE, 15},
                            {SM_CXMENUSIZE, 18},
                            {SM_CYMENUSIZE, 18},
                            {SM_ARRANGE, 8},
                            {SM_CXMINIMIZED, 160},
                            {SM_CYMINIMIZED, 24},
                            {SM_CXMAXTRACK, ScreenWidth + 12},
                            {SM_CYMAXTRACK, ScreenHeight + 12},
                            {SM_CXMAXIMIZED, ScreenWidth + 8},
                            {SM_CYMAXIMIZED, ScreenHeight + 8},
                            {SM_NETWORK, 3},
                            {SM_CXDRAG, 4},
                            {SM_CYDRAG, 4},
                            {SM_CXMENUCHECK, 11},
                            {SM_CYMENUCHECK, 11},
                            {SM_MOUSEWHEELPRESENT, 1},
                            {SM_CXVIRTUALSCREEN, ScreenWidth},
                            {SM_CYVIRTUALSCREEN, ScreenHeight},
                            {SM_CMONITORS, 1},
                            {SM_SAMEDISPLAYFORMAT, 1}};
    for (const auto& [Index, Value] : Pairs)
        Values[static_cast<std::size_t>(Index)] = Value;
    return Values;
}();

// By COLOR_ number, as 0xBBGGRR: the standard scheme of the classic desktop.
constexpr COLORREF Colors[] = {0xC8D0D4, 0xA56E3A, 0x6A240A, 0x808080, 0xC8D0D4, 0xFFFFFF, 0x000000, 0x000000,
                               0x000000, 0xFFFFFF, 0xC8D0D4, 0xC8D0D4, 0x808080, 0x6A240A, 0xFFFFFF, 0xC8D0D4,
                               0x808080, 0x808080, 0x000000, 0xC8D0D4, 0xFFFFFF, 0x404040, 0xC8D0D4, 0x000000,
                               0xE1FFFF, 0xB5B5B5, 0x800000, 0xF0CAA6, 0xC0C0C0, 0x6A240A, 0xC8D0D4};

LOGFONTA SystemFont(LONG Weight = 400)
{
    LOGFONTA Font{};
    Font.lfHeight = -11;
    Font.lfWeight = Weight;
    Font.lfPitchAndFamily = 34; // variable pitch, without serifs
    std::strcpy(Font.lfFaceName, "MS Shell Dlg");
    return Font;
}

void FillNonClient(NONCLIENTMETRICSA& Data)
{
    const UINT Size = Data.cbSize;
    Data = {};
    Data.cbSize = Size;
    Data.iBorderWidth = 1;
    Data.iScrollWidth = Data.iScrollHeight = 17;
    Data.iCaptionWidth = Data.iCaptionHeight = 18;
    Data.iSmCaptionWidth = Data.iSmCaptionHeight = 15;
    Data.iMenuWidth = Data.iMenuHeight = 18;
    Data.lfCaptionFont = SystemFont(700);
    Data.lfSmCaptionFont = Data.lfMenuFont = Data.lfStatusFont = Data.lfMessageFont = SystemFont();
}

void FillIcon(ICONMETRICSA& Data)
{
    Data.iHorzSpacing = Data.iVertSpacing = 75;
    Data.iTitleWrap = TRUE;
    Data.lfFont = SystemFont();
}

} // namespace

int GetSystemMetrics(int Index)
{
    return Index >= 0 && Index < static_cast<int>(Metrics.size()) ? Metrics[static_cast<std::size_t>(Index)]
                                                                  : 0;
}

DWORD GetSysColor(int Index)
{
    return Index >= 0 && Index < static_cast<int>(std::size(Colors)) ? Colors[Index] : 0;
}

BOOL SystemParametersInfoA(UINT Action, UINT, LPVOID Data, UINT)
{
    const auto Number = static_cast<UINT*>(Data);
    switch (Action) {
    case SPI_GETWORKAREA:
        *static_cast<RECT*>(Data) = {0, 0, ScreenWidth, ScreenHeight};
        return TRUE;
    case SPI_GETNONCLIENTMETRICS:
        FillNonClient(*static_cast<NONCLIENTMETRICSA*>(Data));
        return TRUE;
    case SPI_GETICONMETRICS:
        FillIcon(*static_cast<ICONMETRICSA*>(Data));
        return TRUE;
    case SPI_GETICONTITLELOGFONT:
        *static_cast<LOGFONTA*>(Data) = SystemFont();
        return TRUE;
    case SPI_GETWHEELSCROLLLINES:
        *Number = 3;
        return TRUE;
    case SPI_GETMENUSHOWDELAY:
    case SPI_GETMOUSEHOVERTIME:
        *Number = 400;
        return TRUE;
    case SPI_GETKEYBOARDCUES:
    case SPI_GETICONTITLEWRAP:
    case SPI_GETDRAGFULLWINDOWS:
    case SPI_GETBEEP:
        *Number = TRUE;
        return TRUE;
    case SPI_GETMENUDROPALIGNMENT:
    case SPI_GETSCREENREADER:
    case SPI_GETFLATMENU:
    case SPI_GETMENUANIMATION:
    case SPI_GETCOMBOBOXANIMATION:
    case SPI_GETHOTTRACKING:
    case SPI_GETSNAPTODEFBUTTON:
    case SPI_GETGRADIENTCAPTIONS:
        *Number = FALSE;
        return TRUE;
    default:
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
}

namespace {

HMONITOR OnlyMonitor()
{
    return reinterpret_cast<HMONITOR>(static_cast<ULONG_PTR>(0x10001));
}

HMONITOR MonitorAt(const RECT& Rect, DWORD Flags)
{
    const RECT Screen{0, 0, ScreenWidth, ScreenHeight};
    RECT Common;
    return Flags != MONITOR_DEFAULTTONULL || IntersectRect(&Common, &Screen, &Rect) ? OnlyMonitor() : nullptr;
}

} // namespace

HMONITOR MonitorFromWindow(HWND Window, DWORD Flags)
{
    RECT Rect{};
    GetWindowRect(Window, &Rect);
    return MonitorAt(Rect, Flags);
}

HMONITOR MonitorFromPoint(POINT Point, DWORD Flags)
{
    return MonitorAt({Point.x, Point.y, Point.x + 1, Point.y + 1}, Flags);
}

HMONITOR MonitorFromRect(LPCRECT Rect, DWORD Flags)
{
    return MonitorAt(*Rect, Flags);
}

BOOL GetMonitorInfoA(HMONITOR Monitor, LPMONITORINFO Info)
{
    if (Monitor != OnlyMonitor() || !Info)
        return FALSE;
    Info->rcMonitor = Info->rcWork = {0, 0, ScreenWidth, ScreenHeight};
    Info->dwFlags = 1;
    return TRUE;
}

BOOL EnumDisplayMonitors(HDC Dc, LPCRECT, MONITORENUMPROC Proc, LPARAM Param)
{
    RECT Rect{0, 0, ScreenWidth, ScreenHeight};
    return Proc(OnlyMonitor(), Dc, &Rect, Param);
}

// Help files have no reader here.
BOOL WinHelpA(HWND, LPCSTR, UINT Command, ULONG_PTR)
{
    return Command == HELP_QUIT;
}

BOOL MessageBeep(UINT)
{
    return TRUE;
}
