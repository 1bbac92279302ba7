#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "platform/winapi.h"

namespace {
class TMemoryDc {
public:
    TMemoryDc(int Width, int Height) : FDc(CreateCompatibleDC(nullptr))
    {
        BITMAPINFO Info{};
        Info.bmiHeader.biSize = sizeof Info.bmiHeader;
        Info.bmiHeader.biWidth = Width;
        Info.bmiHeader.biHeight = -Height;
        Info.bmiHeader.biPlanes = 1;
        Info.bmiHeader.biBitCount = 32;
        void* Bits = nullptr;
        FBitmap = CreateDIBSection(nullptr, &Info, DIB_RGB_COLORS, &Bits, nullptr, 0);
        FPixels = static_cast<DWORD*>(Bits);
        FOld = SelectObject(FDc, FBitmap);
        PatBlt(FDc, 0, 0, Width, Height, WHITENESS);
    }
    ~TMemoryDc()
    {
        SelectObject(FDc, FOld);
        DeleteObject(FBitmap);
        DeleteDC(FDc);
    }
    TMemoryDc(const TMemoryDc&) = delete;
    TMemoryDc& operator=(const TMemoryDc&) = delete;
    operator HDC() const { return FDc; }
    DWORD Pixel(int Index) const
    {
        GdiFlush();
        return FPixels[Index] & 0xFFFFFF;
    }

private:
    HDC FDc;
    HBITMAP FBitmap;
    HGDIOBJ FOld;
    DWORD* FPixels;
};

class TFont {
public:
    TFont(HDC Dc, const char* Face, int Height, int Weight = FW_NORMAL) : FDc(Dc)
    {
        LOGFONTA Font{};
        Font.lfHeight = Height;
        Font.lfWeight = Weight;
        Font.lfCharSet = DEFAULT_CHARSET;
        if (std::strcmp(Face, "Courier New") == 0)
            Font.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
        std::strncpy(Font.lfFaceName, Face, LF_FACESIZE - 1);
        FFont = CreateFontIndirectA(&Font);
        FOld = SelectObject(Dc, FFont);
    }
    ~TFont()
    {
        SelectObject(FDc, FOld);
        DeleteObject(FFont);
    }
    TFont(const TFont&) = delete;
    TFont& operator=(const TFont&) = delete;

private:
    HDC FDc;
    HFONT FFont;
    HGDIOBJ FOld;
};

int Width(HDC Dc, const std::string& Text)
{
    RECT Rect{};
    DrawTextA(Dc, Text.c_str(), -1, &Rect, DT_SINGLELINE | DT_NOPREFIX | DT_CALCRECT);
    return Rect.right;
}

int Extent(HDC Dc, const std::string& Text)
{
    SIZE Size{};
    EXPECT_TRUE(GetTextExtentPoint32A(Dc, Text.c_str(), static_cast<int>(Text.size()), &Size));
    return Size.cx;
}

RECT Calculate(HDC Dc, const std::string& Text, int Room, UINT Format)
{
    RECT Rect = {0, 0, Room, 10};
    DrawTextA(Dc, Text.c_str(), -1, &Rect, Format | DT_CALCRECT);
    return Rect;
}

const std::string Japanese = "\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E";
} // namespace

// A form that looks right at one size and breaks at another.
TEST(Fonts, HeightIsOfTheCharactersWhenNegativeAndOfTheLineWhenPositive)
{
    const TMemoryDc Dc(4, 4);
    TEXTMETRICA Characters{}, Line{};
    {
        const TFont Font(Dc, "Arial", -20);
        GetTextMetricsA(Dc, &Characters);
    }
    const TFont Font(Dc, "Arial", 20);
    GetTextMetricsA(Dc, &Line);
    EXPECT_EQ(Characters.tmHeight - Characters.tmInternalLeading, 20);
    EXPECT_GT(Characters.tmHeight, 20);
    EXPECT_NEAR(Line.tmHeight, 20, 1);
    EXPECT_EQ(Characters.tmHeight, Characters.tmAscent + Characters.tmDescent);
}

TEST(Fonts, WidthsFollowTextSizeAndWeight)
{
    const TMemoryDc Dc(4, 4);
    const TFont Small(Dc, "Arial", -11);
    const WCHAR Ideographs[] = {0x65E5, 0x672C, 0x8A9E, 0};
    SIZE Size{};
    EXPECT_TRUE(GetTextExtentPoint32W(Dc, Ideographs, 3, &Size));
    const int Plain = Width(Dc, "Translation"), Wide = Size.cx;
    EXPECT_EQ(Extent(Dc, ""), 0);
    EXPECT_EQ(Extent(Dc, "Translation"), Plain);
    EXPECT_GT(Width(Dc, "Translation "), Plain);
    // Counted as three characters, not as nine bytes; how wide one is depends on
    // the typefaces that are there.
    EXPECT_GT(Wide, 0);
    EXPECT_LE(Wide, 3 * 14);
    {
        const TFont Bold(Dc, "Arial", -11, FW_BOLD);
        EXPECT_GT(Width(Dc, "Translation"), Plain);
    }
    const TFont Mono(Dc, "Courier New", -13);
    EXPECT_EQ(Width(Dc, "iiii"), Width(Dc, "WWWW"));
}

TEST(Fonts, GiveBackWhatTheyWereMadeFrom)
{
    LOGFONTA Font{}, Back{};
    Font.lfHeight = -13;
    Font.lfItalic = 1;
    Font.lfCharSet = SHIFTJIS_CHARSET;
    std::strcpy(Font.lfFaceName, "Tahoma");
    const HFONT Handle = CreateFontIndirectA(&Font);
    EXPECT_EQ(GetObjectA(Handle, 0, nullptr), static_cast<int>(sizeof Font));
    EXPECT_GT(GetObjectA(Handle, sizeof Back, &Back), 0);
    EXPECT_STREQ(Back.lfFaceName, "Tahoma");
    EXPECT_EQ(Back.lfCharSet, SHIFTJIS_CHARSET);
    EXPECT_EQ(Back.lfHeight, -13);
    DeleteObject(Handle);
}

// A mark that is measured makes every button look too narrow.
TEST(DrawText, MeasuresWhatItDraws)
{
    const TMemoryDc Dc(4, 4);
    const TFont Font(Dc, "Arial", -11);
    TEXTMETRICA Metrics{};
    GetTextMetricsA(Dc, &Metrics);
    const struct {
        const char* Name;
        const char* Text;
        UINT Format;
        const char* Shown;
        int Lines;
    } Cases[] = {
        {"plain", "Open", DT_SINGLELINE, "Open", 1},
        {"mnemonic", "&Open", DT_SINGLELINE, "Open", 1},
        {"doubled", "A&&B", DT_SINGLELINE, "A&B", 1},
        {"no prefix", "&Open", DT_SINGLELINE | DT_NOPREFIX, "&Open", 1},
        {"two lines", "Open\r\nWide text", 0, "Wide text", 2},
        {"line feed alone", "Wide text\nOpen", 0, "Wide text", 2},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        const RECT Rect = Calculate(Dc, Case.Text, 500, Case.Format);
        EXPECT_EQ(Rect.right, Width(Dc, Case.Shown));
        EXPECT_EQ(Rect.bottom, Case.Lines * Metrics.tmHeight);
    }
}

TEST(DrawText, BreaksBetweenWordsAndBetweenIdeographs)
{
    const TMemoryDc Dc(4, 4);
    const TFont Font(Dc, "Arial", -11);
    TEXTMETRICA Metrics{};
    GetTextMetricsA(Dc, &Metrics);
    const int Room = Width(Dc, "some words ") + 2;
    const RECT Words = Calculate(Dc, "some words some words", Room, DT_WORDBREAK);
    EXPECT_EQ(Words.bottom, 2 * Metrics.tmHeight);
    EXPECT_LE(Words.right, Room);
    const std::string Long = Japanese + Japanese + Japanese + Japanese;
    EXPECT_GE(Calculate(Dc, Long, Width(Dc, Long) / 2 + 2, DT_WORDBREAK).bottom, 2 * Metrics.tmHeight);
}

// Fitting must never stop inside a character.
TEST(Text, FitsWholeCharacters)
{
    const TMemoryDc Dc(4, 4);
    const TFont Font(Dc, "Arial", -11);
    // The byte functions of Windows take the code page of the font's character
    // set instead of UTF-8; there the text counts as more than four characters.
    const WCHAR Wide[] = {u'a', 0x65E5, 0x672C, 0x8A9E, 0};
    SIZE WideSize{};
    GetTextExtentPoint32W(Dc, Wide, 4, &WideSize);
    if (Extent(Dc, "a" + Japanese) != WideSize.cx)
        GTEST_SKIP() << "the byte functions of this system do not take UTF-8";
    const std::string Text = "a" + Japanese;
    for (int Room = 0; Room < 60; ++Room) {
        int Fit = 0;
        SIZE Size{};
        ASSERT_TRUE(GetTextExtentExPointA(Dc, Text.c_str(), static_cast<int>(Text.size()), Room, &Fit,
                                          nullptr, &Size));
        if (Fit > 1) {
            EXPECT_EQ((Fit - 1) % 3, 0) << Room;
        }
    }
}

TEST(Shapes, FillExactlyTheirPixels)
{
    const TMemoryDc Dc(4, 4);
    const RECT Rect = {1, 1, 3, 3};
    const HBRUSH Brush = CreateSolidBrush(RGB(0x12, 0x34, 0x56));
    FillRect(Dc, &Rect, Brush);
    DeleteObject(Brush);
    for (int Index = 0; Index < 16; ++Index) {
        const int X = Index % 4, Y = Index / 4;
        const bool Inside = X >= 1 && X < 3 && Y >= 1 && Y < 3;
        EXPECT_EQ(Dc.Pixel(Index), Inside ? 0x123456u : 0xFFFFFFu) << Index;
    }
    MoveToEx(Dc, 0, 0, nullptr);
    LineTo(Dc, 3, 0); // leaves the last point out
    EXPECT_EQ(GetPixel(Dc, 2, 0), 0u);
    EXPECT_EQ(GetPixel(Dc, 3, 0), 0xFFFFFFu);
    EXPECT_EQ(GetPixel(Dc, 4, 0), CLR_INVALID);
}

TEST(Clipping, IsRestoredWithTheContext)
{
    const TMemoryDc Dc(8, 8);
    const int Saved = SaveDC(Dc);
    SetViewportOrgEx(Dc, 2, 2, nullptr);
    IntersectClipRect(Dc, 0, 0, 2, 2);
    ExcludeClipRect(Dc, 1, 1, 2, 2);
    const RECT All = {-9, -9, 9, 9};
    FillRect(Dc, &All, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    EXPECT_TRUE(RestoreDC(Dc, Saved));
    EXPECT_EQ(GetPixel(Dc, 2, 2), 0u);
    EXPECT_EQ(GetPixel(Dc, 3, 3), 0xFFFFFFu);
    EXPECT_EQ(GetPixel(Dc, 4, 2), 0xFFFFFFu);
    RECT Box{};
    EXPECT_EQ(GetClipBox(Dc, &Box), SIMPLEREGION);
    EXPECT_EQ(Box.right, 8);
    EXPECT_FALSE(RestoreDC(Dc, 9));
}

TEST(Bitmaps, OfEveryDepthAreReadBottomUp)
{
    // Two by two: red below, blue above, each left one black.
    struct {
        BITMAPINFOHEADER Header;
        RGBQUAD Colors[256];
    } Info{};
    Info.Header.biSize = sizeof Info.Header;
    Info.Header.biWidth = Info.Header.biHeight = 2;
    Info.Header.biPlanes = 1;
    Info.Colors[1] = {0, 0, 255, 0};
    const struct {
        WORD Depth;
        BYTE Bits[16];
        COLORREF Lower;
    } Cases[] = {
        {1, {0x40, 0, 0, 0, 0x40}, RGB(255, 0, 0)},
        {4, {0x01, 0, 0, 0, 0x01}, RGB(255, 0, 0)},
        {8, {0, 1, 0, 0, 0, 1}, RGB(255, 0, 0)},
        {24, {0, 0, 0, 0, 0, 255, 0, 0, 0, 0, 0, 255, 0, 0, 0, 0}, RGB(255, 0, 0)},
        {32, {0, 0, 0, 0, 0, 0, 255, 0, 0, 0, 0, 0, 255, 0, 0, 0}, RGB(255, 0, 0)},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Depth);
        Info.Header.biBitCount = Case.Depth;
        const TMemoryDc Dc(2, 2);
        StretchDIBits(Dc, 0, 0, 2, 2, 0, 0, 2, 2, Case.Bits, reinterpret_cast<const BITMAPINFO*>(&Info),
                      DIB_RGB_COLORS, SRCCOPY);
        EXPECT_EQ(GetPixel(Dc, 0, 1), 0u);
        EXPECT_EQ(GetPixel(Dc, 1, 1), Case.Lower);
        EXPECT_EQ(GetPixel(Dc, 0, 0), 0u);
    }
}

TEST(Blit, CombinesAsItsOperationSays)
{
    const struct {
        const char* Name;
        DWORD Operation;
        COLORREF Result;
    } Cases[] = {
        {"copy", SRCCOPY, RGB(0x0F, 0, 0xFF)},
        {"paint", SRCPAINT, RGB(0xFF, 0, 0xFF)},
        {"and", SRCAND, RGB(0, 0, 0x0F)},
        {"invert", SRCINVERT, RGB(0xFF, 0, 0xF0)},
        {"target", DSTINVERT, RGB(0x0F, 0xFF, 0xF0)},
        {"black", BLACKNESS, 0},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        const TMemoryDc To(1, 1), From(1, 1);
        SetPixel(To, 0, 0, RGB(0xF0, 0, 0x0F));
        SetPixel(From, 0, 0, RGB(0x0F, 0, 0xFF));
        EXPECT_TRUE(BitBlt(To, 0, 0, 1, 1, From, 0, 0, Case.Operation));
        EXPECT_EQ(GetPixel(To, 0, 0), Case.Result);
    }
}

namespace {
bool IsWine()
{
    HKEY Key = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, "Software\\Wine", 0, KEY_READ, &Key) != ERROR_SUCCESS)
        return false;
    RegCloseKey(Key);
    return true;
}
} // namespace

// Objects that a long running program loses one by one.
TEST(Objects, AreCountedAndFreed)
{
    {
        const TMemoryDc WarmUp(1, 1);
    }
    const DWORD Before = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    {
        const TMemoryDc Dc(2, 2);
        const TFont Font(Dc, "Arial", -11);
        const DWORD During = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
        if (During == 0 && IsWine())
            GTEST_SKIP() << "Wine does not count drawing objects";
        EXPECT_EQ(During, Before + 3);
    }
    EXPECT_EQ(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS), Before);
    EXPECT_FALSE(DeleteObject(nullptr));
    EXPECT_TRUE(DeleteObject(GetStockObject(WHITE_BRUSH)));
    LOGBRUSH Brush{};
    EXPECT_GT(GetObjectA(GetStockObject(WHITE_BRUSH), sizeof Brush, &Brush), 0);
}

TEST(ImageLists, CutBitmapsAndHideTheMaskedColour)
{
    const HIMAGELIST List = ImageList_Create(2, 2, ILC_COLOR24 | ILC_MASK, 1, 1);
    const TMemoryDc Source(4, 2);
    const RECT Left = {0, 0, 2, 2}, Right = {2, 0, 4, 2};
    const HBRUSH Magenta = CreateSolidBrush(RGB(255, 0, 255));
    FillRect(Source, &Right, Magenta);
    DeleteObject(Magenta);
    FillRect(Source, &Left, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    const HBITMAP Strip = CreateCompatibleBitmap(Source, 4, 2);
    const HDC Copy = CreateCompatibleDC(Source);
    const HGDIOBJ Old = SelectObject(Copy, Strip);
    BitBlt(Copy, 0, 0, 4, 2, Source, 0, 0, SRCCOPY);
    SelectObject(Copy, Old);
    DeleteDC(Copy);
    EXPECT_EQ(ImageList_AddMasked(List, Strip, RGB(255, 0, 255)), 0);
    DeleteObject(Strip);
    EXPECT_EQ(ImageList_GetImageCount(List), 2);
    const TMemoryDc Target(4, 2);
    SetPixel(Target, 2, 0, RGB(0, 255, 0));
    ImageList_Draw(List, 0, Target, 0, 0, ILD_TRANSPARENT);
    ImageList_Draw(List, 1, Target, 2, 0, ILD_TRANSPARENT);
    EXPECT_EQ(GetPixel(Target, 0, 0), 0u);
    EXPECT_EQ(GetPixel(Target, 2, 0), RGB(0, 255, 0));
    EXPECT_TRUE(ImageList_Destroy(List));
}
