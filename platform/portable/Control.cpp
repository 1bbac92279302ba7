#include "platform/portable/Control.h"

#include <cstring>
#include <unicode/uchar.h>

namespace {
constexpr char32_t Replacement = 0xFFFD;

// Reads the character at Text[At] and moves At behind it.
char32_t NextCharacter(const std::string& Text, std::size_t& At)
{
    const auto Byte = [&](std::size_t Index) { return static_cast<unsigned char>(Text[Index]); };
    const unsigned First = Byte(At++);
    const int Following = First < 0x80         ? 0
                          : (First >> 5) == 6  ? 1
                          : (First >> 4) == 14 ? 2
                          : (First >> 3) == 30 ? 3
                                               : -1;
    if (Following < 0)
        return Replacement;
    char32_t Result = Following ? First & (0x3Fu >> Following) : First;
    for (int Index = 0; Index < Following; ++Index) {
        if (At >= Text.size() || (Byte(At) & 0xC0) != 0x80)
            return Replacement;
        Result = Result << 6 | (Byte(At++) & 0x3F);
    }
    return Result;
}

void AppendCharacter(std::string& Text, char32_t Character)
{
    const auto Add = [&](char32_t Byte) { Text += static_cast<char>(Byte); };
    if (Character < 0x80) {
        Add(Character);
    } else if (Character < 0x800) {
        Add(0xC0 | Character >> 6);
        Add(0x80 | (Character & 0x3F));
    } else if (Character < 0x10000) {
        Add(0xE0 | Character >> 12);
        Add(0x80 | (Character >> 6 & 0x3F));
        Add(0x80 | (Character & 0x3F));
    } else {
        Add(0xF0 | Character >> 18);
        Add(0x80 | (Character >> 12 & 0x3F));
        Add(0x80 | (Character >> 6 & 0x3F));
        Add(0x80 | (Character & 0x3F));
    }
}
} // namespace

std::u16string Widen(const std::string& Text)
{
    std::u16string Result;
    for (std::size_t At = 0; At < Text.size();) {
        const char32_t Character = NextCharacter(Text, At);
        if (Character < 0x10000) {
            Result += static_cast<char16_t>(Character);
        } else {
            Result += static_cast<char16_t>(0xD7C0 + (Character >> 10));
            Result += static_cast<char16_t>(0xDC00 + (Character & 0x3FF));
        }
    }
    return Result;
}

std::string Narrow(const std::u16string& Text)
{
    std::string Result;
    for (std::size_t At = 0; At < Text.size(); ++At) {
        char32_t Character = Text[At];
        const bool High = Character >= 0xD800 && Character < 0xDC00;
        if (High && At + 1 < Text.size() && Text[At + 1] >= 0xDC00 && Text[At + 1] < 0xE000)
            Character = ((Character - 0xD7C0) << 10) + (Text[++At] - 0xDC00u);
        else if (Character >= 0xD800 && Character < 0xE000)
            Character = Replacement;
        AppendCharacter(Result, Character);
    }
    return Result;
}

namespace {

std::u16string WithoutCase(const std::string& Text)
{
    std::u16string Result = Widen(Text);
    for (char16_t& Unit : Result)
        Unit = static_cast<char16_t>(u_foldCase(Unit, U_FOLD_CASE_DEFAULT));
    return Result;
}

} // namespace

bool SortsBefore(const std::string& First, const std::string& Second)
{
    const int Order = WithoutCase(First).compare(WithoutCase(Second));
    return Order ? Order < 0 : First < Second;
}

bool StartsWithText(const std::string& Text, const std::string& Start)
{
    return WithoutCase(Text).starts_with(WithoutCase(Start));
}

bool SameText(const std::string& First, const std::string& Second)
{
    return WithoutCase(First) == WithoutCase(Second);
}

TMeasure::TMeasure(HWND Window, HFONT Font) : FWindow(Window), FDc(GetDC(Window))
{
    FOld = SelectObject(FDc, Font ? static_cast<HGDIOBJ>(Font) : GetStockObject(SYSTEM_FONT));
}

TMeasure::~TMeasure()
{
    SelectObject(FDc, FOld);
    ReleaseDC(FWindow, FDc);
}

LRESULT TSystemControl::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case WM_SETFONT:
        FFont = reinterpret_cast<HFONT>(WParam);
        FontChanged();
        Invalidate();
        return 0;
    case WM_GETFONT:
        return reinterpret_cast<LRESULT>(FFont);
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        FFocused = Message == WM_SETFOCUS;
        Invalidate();
        return 0;
    case WM_SETTEXT: {
        const LRESULT Result = Default(Message, WParam, LParam);
        Invalidate();
        return Result;
    }
    case WM_ENABLE:
        Invalidate();
        return 0;
    case WM_PAINT:
    case WM_PRINTCLIENT: {
        PAINTSTRUCT PaintStruct;
        const HDC Given = reinterpret_cast<HDC>(WParam);
        const HDC Dc = Given ? Given : BeginPaint(FWindow, &PaintStruct);
        const int Saved = SaveDC(Dc);
        if (FFont)
            SelectObject(Dc, FFont);
        SetBkMode(Dc, TRANSPARENT);
        Paint(Dc);
        RestoreDC(Dc, Saved);
        if (!Given)
            EndPaint(FWindow, &PaintStruct);
        return 0;
    }
    default:
        return Default(Message, WParam, LParam);
    }
}

LRESULT TSystemControl::SetRedraw(bool On)
{
    if (TWindow* const Known = WindowOf(FWindow))
        Known->Redraw = On;
    if (On)
        Invalidate();
    return 0;
}

RECT TSystemControl::ClientRect() const
{
    RECT Rect{};
    GetClientRect(FWindow, &Rect);
    return Rect;
}

std::string TSystemControl::Text() const
{
    TWindow* const Known = WindowOf(FWindow);
    return Known ? Known->Text : std::string();
}

LRESULT TSystemControl::Command(int Code)
{
    return SendMessageA(GetParent(FWindow), WM_COMMAND, MAKEWPARAM(Id(), Code),
                        reinterpret_cast<LPARAM>(FWindow));
}

LRESULT TSystemControl::Notify(UINT Code)
{
    NMHDR Header{};
    return NotifyWith(Header, Code);
}

LRESULT TSystemControl::NotifyWith(NMHDR& Header, UINT Code)
{
    Header = {FWindow, static_cast<UINT_PTR>(Id()), Code};
    return SendMessageA(GetParent(FWindow), WM_NOTIFY, Header.idFrom, reinterpret_cast<LPARAM>(&Header));
}

HBRUSH TSystemControl::ParentColors(HDC Dc, UINT Message) const
{
    const auto Answer = SendMessageA(GetParent(FWindow), Message, reinterpret_cast<WPARAM>(Dc),
                                     reinterpret_cast<LPARAM>(FWindow));
    if (Answer)
        return reinterpret_cast<HBRUSH>(Answer);
    const bool Field = Message == WM_CTLCOLOREDIT || Message == WM_CTLCOLORLISTBOX;
    return GetSysColorBrush(Field ? COLOR_WINDOW : COLOR_BTNFACE);
}

UINT TSystemControl::TextFlags(UINT Format) const
{
    const DWORD Extended = ExStyle();
    if (RightToLeft())
        Format |= DT_RTLREADING;
    const bool Flip = ((Extended & WS_EX_RIGHT) != 0) != ((Extended & WS_EX_LAYOUTRTL) != 0);
    if (Flip && !(Format & DT_CENTER))
        Format ^= DT_RIGHT;
    return Format;
}

void TSystemControl::DrawItemText(HDC Dc, const std::string& Text, RECT Rect, UINT Format) const
{
    DrawTextA(Dc, Text.c_str(), static_cast<int>(Text.size()), &Rect, TextFlags(Format));
}

int TSystemControl::LineHeight() const
{
    TEXTMETRICA Metrics{};
    GetTextMetricsA(TMeasure(FWindow, FFont), &Metrics);
    return Metrics.tmHeight;
}

int TSystemControl::WidthOf(const std::string& Text) const
{
    SIZE Size{};
    GetTextExtentPoint32A(TMeasure(FWindow, FFont), Text.c_str(), static_cast<int>(Text.size()), &Size);
    return Size.cx;
}

int TSystemControl::MnemonicWidthOf(const std::string& Text) const
{
    RECT Rect{};
    DrawTextA(TMeasure(FWindow, FFont), Text.c_str(), static_cast<int>(Text.size()), &Rect,
              DT_SINGLELINE | DT_CALCRECT);
    return Rect.right;
}

void RegisterBuiltInClasses()
{
    RegisterSystemButtons();
    RegisterSystemStatics();
    RegisterSystemEdits();
    RegisterSystemListBoxes();
    RegisterSystemComboBoxes();
    RegisterSystemComboBoxesEx();
    RegisterSystemScrollBars();
    RegisterSystemStatusBars();
    RegisterSystemTabs();
    RegisterSystemHeaders();
    RegisterSystemListViews();
    RegisterSystemTreeViews();
    RegisterSystemToolBars();
    RegisterSystemProgressBars();
    RegisterSystemTrackBars();
    RegisterSystemUpDowns();
    RegisterSystemDates();
    RegisterShellViews();
}

void InitCommonControls() {}

// Every class is registered from the start.
BOOL InitCommonControlsEx(const INITCOMMONCONTROLSEX* Controls)
{
    return Controls && Controls->dwSize == sizeof(INITCOMMONCONTROLSEX);
}
