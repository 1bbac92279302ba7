// The lines that describe a dialog, on a dialog of our own.
#include "Qct/DialogProps.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "Qct/DialogFonts.h"
#include "framework/forms/Types.h"
#include "framework/rtl/Exceptions.h"
#include "framework/rtl/Strings.h"
#include "framework/rtl/SysUtils.h"

namespace {

INT_PTR CALLBACK DialogProc(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

// Controls, in order: a button 1, a label 65535, an empty edit 1090, a label -1, a
// button 1024 with another one inside it.
struct DialogProps : testing::Test {
    DialogProps()
    {
        struct {
            DLGTEMPLATE Template;
            WORD MenuClassTitle[3];
            WORD PointSize;
            WCHAR Face[12];
        } Data{};
        Data.Template.style = WS_POPUP | WS_CAPTION | WS_VISIBLE | DS_SETFONT;
        Data.PointSize = 8;
        std::copy_n(u"Courier New", 12, Data.Face);
        Data.Template.cx = Data.Template.cy = 100;
        Dialog = CreateDialogIndirectParamA(nullptr, &Data.Template, nullptr, DialogProc, 0);
        MoveWindow(Dialog, 40, 50, 300, 200, TRUE);
        Open = Add(Dialog, "Button", "&Öppna", 1, 10);
        Label = Add(Dialog, "Static", "It's", 65535, 40);
        Edit = Add(Dialog, "Edit", "", 1090, 70);
        Last = Add(Dialog, "Static", "Last", -1, 100);
        More = Add(Dialog, "Button", "More", 1024, 130);
        Inner = Add(More, "Button", "Inner", 7, 2);
    }
    ~DialogProps() override { DestroyWindow(Dialog); }

    static HWND Add(HWND Parent, const char* Class, const char* Text, int Id, int Top)
    {
        return CreateWindowExA(0, Class, Text, WS_CHILD | WS_VISIBLE, 20, Top, 60, 20, Parent,
                               reinterpret_cast<HMENU>(static_cast<INT_PTR>(Id)), nullptr, nullptr);
    }
    std::string List() const
    {
        TStringList Lines;
        ListDialog(Dialog, "TTest", Lines);
        std::string Result;
        for (int I = 0; I < Lines.Count(); ++I)
            Result += Lines.Get(I).substr(6) + "\n";
        return Result;
    }
    void Set(const std::string& Name, const std::string& Value) { SetDialogProp(Dialog, Name, Value, Fonts); }

    static std::string FontName(HWND Window)
    {
        return GetFontName(reinterpret_cast<HFONT>(SendMessageA(Window, WM_GETFONT, 0, 0)));
    }

    TDialogFonts Fonts;
    HWND Dialog = nullptr;
    HWND Open = nullptr, Label = nullptr, Edit = nullptr, Last = nullptr, More = nullptr, Inner = nullptr;
};

std::string SizeLines(const std::string& Id, int Top)
{
    return "Width[" + Id + "]=61\nHeight[" + Id + "]=21\nLeft[" + Id + "]=20\nTop[" + Id +
           "]=" + IntToStr(Top) + "\n";
}

} // namespace

TEST_F(DialogProps, ListsEveryControl)
{
    const std::string Front = "Font.Name='Courier New'\nFont.Charset=1\nWidth=301\nHeight=201\n";
    const std::string Controls = "Caption[1]='&Öppna'\n" + SizeLines("1", 10) + "Caption[-2]='It's'\n" +
                                 SizeLines("-2", 40) + SizeLines("1090", 70) + "Caption[-4]='Last'\n" +
                                 SizeLines("-4", 100) + "Caption[1024]='More'\n" + SizeLines("1024", 130);
    EXPECT_EQ(List(), Front + Controls);
    SetWindowTextA(Dialog, "Titel");
    EXPECT_EQ(List(), "Caption='Titel'\n" + Front + Controls);
}

// A text is cut at 239 bytes, and never within a character.
TEST_F(DialogProps, LongTextsAreCut)
{
    const std::string Long = std::string(238, 'x') + "ö" + std::string(5000, 'y');
    SetWindowTextA(Dialog, Long.c_str());
    EXPECT_EQ(List().substr(0, 250), "Caption='" + std::string(238, 'x') + "'\nF");
}

LRESULT CALLBACK NoTextProc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam)
{
    if (Msg == WM_GETTEXTLENGTH || Msg == WM_GETTEXT)
        return -1;
    return DefWindowProcA(Window, Msg, WParam, LParam);
}

// Some controls answer the question for their text with an error.
TEST_F(DialogProps, ControlsWithoutText)
{
    SetWindowLongPtrA(Open, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&NoTextProc));
    EXPECT_EQ(List().find("Caption[1]"), std::string::npos);
    EXPECT_NE(List().find("Width[1]=61"), std::string::npos);
}

// What each line changes in the list of lines.
TEST_F(DialogProps, LinesAreApplied)
{
    const struct {
        const char *Name, *Value;
        const char* Changed; // empty: nothing
    } Cases[] = {
        {"Caption", "Öppna fil", "Caption='Öppna fil'"},
        {"Caption[1]", "Ja", "Caption[1]='Ja'"},
        {"Caption[1090]", "file", "Caption[1090]='file'"},
        {"Caption[-2]", "second", "Caption[-2]='second'"},
        {"Caption[-4]", "fourth", "Caption[-4]='fourth'"},
        {"Caption[-9]", "nobody", ""},
        {"Caption[-2147483648]", "nobody", ""},
        {"Caption[77]", "nobody", ""},
        {"caption[1]x", "", nullptr},
        {"Width", "320", "Width=321"},
        {"Height", "210", "Height=211"},
        {"Width", "320", ""},
        {"Left[1]", "25", "Left[1]=25"},
        {"Top[1]", "-3", "Top[1]=-3"},
        {"Width[1]", "99", "Width[1]=100"},
        {"Height[1]", "50", ""},
        {"Left[-1]", "5", ""}, // the system would find the label -1
        {"Left[-2]", "5", ""},
        {"Left[77]", "5", ""},
        {"Width[x]", "5", nullptr},
        {"Left[1", "5", nullptr},
        {"Left[1]", "five", nullptr},
        {"Width", "", nullptr},
        {"Unknown", "5", nullptr},
        {"Tallness[1024]", "5", nullptr},
        {"Font.Size", "5", ""},
    };
    for (const auto& Case : Cases) {
        const std::string Before = List();
        if (!Case.Changed) {
            EXPECT_THROW(Set(Case.Name, Case.Value), EConvertError) << Case.Name;
            EXPECT_EQ(List(), Before);
            continue;
        }
        Set(Case.Name, Case.Value);
        std::string Changed;
        size_t Start = 0;
        const std::string After = List();
        for (size_t End; (End = After.find('\n', Start)) != After.npos; Start = End + 1)
            if (const std::string Line = After.substr(Start, End - Start);
                ("\n" + Before).find("\n" + Line + "\n") == Before.npos)
                Changed += Line;
        EXPECT_EQ(Changed, Case.Changed) << Case.Name;
    }
}

// Heights of controls are set by names that only look like the listed ones.
TEST_F(DialogProps, NamesLikeHeight)
{
    const auto HeightOf = [](HWND Window) {
        RECT Place{};
        GetWindowRect(Window, &Place);
        return RectHeight(Place);
    };
    EXPECT_THROW(Set("heights[1024]", "55"), EConvertError);
    Set("heigh[1024]", "55"); // the control 24
    EXPECT_EQ(HeightOf(More), 20);
    Set("height[1024]", "55");
    EXPECT_EQ(HeightOf(More), 55);
}

TEST_F(DialogProps, FontsReachAllControlsButNotTheDialog)
{
    Set("Font.Name", "DejaVu Serif");
    for (const HWND Each : {Open, Label, Edit, Last, More, Inner})
        EXPECT_EQ(FontName(Each), "DejaVu Serif");
    EXPECT_EQ(FontName(Dialog), "Courier New");
    Set("Font.Charset", "204");
    const auto Font = reinterpret_cast<HFONT>(SendMessageA(Inner, WM_GETFONT, 0, 0));
    EXPECT_EQ(GetFontCharset(Font), 204);
    EXPECT_EQ(GetFontName(Font), "Courier New") << "made from the dialog's font each time";
    EXPECT_THROW(Set("Font.Charset", "many"), EConvertError);
    const std::string Long = std::string(30, 'x') + "ö";
    Set("Font.Name", Long);
    EXPECT_EQ(FontName(Open), std::string(30, 'x'));
}

// A dialog is painted many times, and takes its fonts with it.
TEST_F(DialogProps, FontsAreMadeOnceAndReleased)
{
    Set("Font.Name", "DejaVu Serif");
    const auto Font = SendMessageA(Open, WM_GETFONT, 0, 0);
    Set("Font.Charset", "1");
    Set("Font.Name", "DejaVu Serif");
    EXPECT_EQ(SendMessageA(Open, WM_GETFONT, 0, 0), Font);
    EXPECT_EQ(GetObjectType(reinterpret_cast<HGDIOBJ>(Font)), static_cast<DWORD>(OBJ_FONT));
    DestroyWindow(Dialog);
    Fonts.Release();
    EXPECT_EQ(GetObjectType(reinterpret_cast<HGDIOBJ>(Font)), 0U);
}

TEST(DialogFonts, ADialogWithoutFont)
{
    EXPECT_EQ(GetFontName(nullptr), "System");
    EXPECT_EQ(GetFontCharset(nullptr), 1);
    EXPECT_EQ(SetFontName(nullptr, "Courier New"), nullptr);
    EXPECT_EQ(SetFontCharset(nullptr, 1), nullptr);
}
