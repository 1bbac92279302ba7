#include "Qct/DialogProps.h"

#include <algorithm>
#include <climits>
#include <cstdint>

#include "Qct/DialogFonts.h"
#include "core/Literals.h"
#include "framework/forms/Types.h"
#include "framework/rtl/Strings.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/Utf8.h"

namespace {

constexpr size_t MaxTextBytes = 239;

// Not GetWindowTextA, which does not ask the window's procedure in each case.
std::string TextOf(HWND Window)
{
    // Negative answers are errors of some controls.
    const LRESULT Most = std::max<LRESULT>(SendMessageA(Window, WM_GETTEXTLENGTH, 0, 0), 0);
    std::string Result(static_cast<size_t>(Most) + 1, '\0');
    const LRESULT Length =
        SendMessageA(Window, WM_GETTEXT, Result.size(), reinterpret_cast<LPARAM>(Result.data()));
    Result.resize(static_cast<size_t>(std::clamp<LRESULT>(Length, 0, Most)));
    return Result;
}

// Writing the same text again would make edits tell that they changed.
void SetTextOf(HWND Window, const std::string& Text)
{
    if (TextOf(Window) != Text)
        SendMessageA(Window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Text.c_str()));
}

HFONT FontOf(HWND Window)
{
    return reinterpret_cast<HFONT>(SendMessageA(Window, WM_GETFONT, 0, 0));
}

RECT PlaceOnScreen(HWND Window)
{
    RECT Place{};
    GetWindowRect(Window, &Place);
    return Place;
}

RECT PlaceInDialog(HWND Dialog, HWND Control)
{
    RECT Place = PlaceOnScreen(Control);
    POINT Corner{Place.left, Place.top};
    ScreenToClient(Dialog, &Corner);
    OffsetRect(&Place, Corner.x - Place.left, Corner.y - Place.top);
    return Place;
}

void Place(HWND Window, int Left, int Top, int Width, int Height)
{
    MoveWindow(Window, Left, Top, Width, Height, FALSE);
}

// Writes the lines of one dialog.
class TLister {
public:
    TLister(const std::string& DialogClass, TStrings& Lines) : FFront(DialogClass + "."), FLines(Lines) {}

    void Add(const std::string& Name, const std::string& Value) { FLines.Add(FFront + Name + "=" + Value); }
    void AddText(const std::string& Name, HWND Window)
    {
        const std::string Text(CutAtCharacter(TextOf(Window), MaxTextBytes));
        if (!Text.empty())
            Add(Name, "'" + Text + "'");
    }
    void AddSize(const std::string& Suffix, const RECT& Place)
    {
        Add("Width" + Suffix, IntToStr(Place.right - Place.left + 1));
        Add("Height" + Suffix, IntToStr(Place.bottom - Place.top + 1));
    }

private:
    std::string FFront;
    TStrings& FLines;
};

int IdentifierOf(HWND Control, int Ordinal)
{
    const int Identifier = GetDlgCtrlID(Control);
    return Identifier == -1 || Identifier == 0 || Identifier == 0xFFFF ? -Ordinal : Identifier;
}

// The number between Start and the first "]".
int IdentifierIn(std::string_view Name, size_t Start)
{
    const size_t End = Name.find(']');
    const bool Possible = End != Name.npos && End >= Start;
    return StrToInt(Possible ? Name.substr(Start, End - Start) : std::string_view());
}

void SetCaption(HWND Dialog, int Identifier, const std::string& Text)
{
    if (Identifier < 0)
        SetDlgTextOfChild(GetWindow(Dialog, GW_CHILD), -std::max(Identifier, -INT_MAX), Text);
    else if (const HWND Control = GetDlgItem(Dialog, Identifier))
        SetTextOf(Control, Text);
}

void SetFont(HWND Dialog, std::string_view Name, const std::string& Value, TDialogFonts& Fonts)
{
    const HFONT Own = FontOf(Dialog);
    HFONT Font = Own;
    if (Name == "Font.Name")
        Font = SetFontName(Own, Value);
    else if (Name == "Font.Charset")
        Font = SetFontCharset(Own, static_cast<uint8_t>(StrToInt(Value)));
    if (!Font)
        return;
    if (Font != Own)
        Font = Fonts.Keep(Dialog, Font);
    SetFontOfChildren(GetWindow(Dialog, GW_CHILD), Font);
}

void SetSize(HWND Dialog, bool IsWidth, int Value)
{
    const RECT Now = PlaceOnScreen(Dialog);
    Place(Dialog, Now.left, Now.top, IsWidth ? Value : RectWidth(Now), IsWidth ? RectHeight(Now) : Value);
}

// Null for a control without an identifier, even if the dialog has one with that number.
HWND ControlWith(HWND Dialog, int Identifier)
{
    return Identifier < 0 ? nullptr : GetDlgItem(Dialog, Identifier);
}

enum class TEdge { Left, Top, Width };

void SetEdge(HWND Dialog, int Identifier, TEdge Edge, int Value)
{
    const HWND Control = ControlWith(Dialog, Identifier);
    if (!Control)
        return;
    const RECT Now = PlaceInDialog(Dialog, Control);
    Place(Control, Edge == TEdge::Left ? Value : Now.left, Edge == TEdge::Top ? Value : Now.top,
          Edge == TEdge::Width ? Value : RectWidth(Now), RectHeight(Now));
}

// Where no other rule applies, in the screen's coordinates.
void SetControlHeight(HWND Dialog, int Identifier, int Value)
{
    const HWND Control = ControlWith(Dialog, Identifier);
    if (!Control)
        return;
    const RECT Now = PlaceOnScreen(Control);
    Place(Control, Now.left, Now.top, RectWidth(Now), Value);
}

} // namespace

void ListDialog(HWND Dialog, const std::string& DialogClass, TStrings& Lines)
{
    TLister Lister(DialogClass, Lines);
    Lister.AddText("Caption", Dialog);
    const HFONT Font = FontOf(Dialog);
    Lister.Add("Font.Name", ToLiterals(GetFontName(Font)));
    Lister.Add("Font.Charset", IntToStr(GetFontCharset(Font)));
    Lister.AddSize("", PlaceOnScreen(Dialog));
    int Ordinal = 0;
    for (HWND Each = GetWindow(Dialog, GW_CHILD); Each; Each = GetWindow(Each, GW_HWNDNEXT)) {
        const std::string Suffix = "[" + IntToStr(IdentifierOf(Each, ++Ordinal)) + "]";
        Lister.AddText("Caption" + Suffix, Each);
        const RECT Place = PlaceInDialog(Dialog, Each);
        Lister.AddSize(Suffix, Place);
        Lister.Add("Left" + Suffix, IntToStr(Place.left));
        Lister.Add("Top" + Suffix, IntToStr(Place.top));
    }
}

void SetDialogProp(HWND Dialog, std::string_view Name, const std::string& Value, TDialogFonts& Fonts)
{
    struct TEdgeName {
        std::string_view Front;
        TEdge Edge;
    };
    static constexpr TEdgeName EdgeNames[] = {
        {"Left[", TEdge::Left}, {"Top[", TEdge::Top}, {"Width[", TEdge::Width}};
    constexpr std::string_view CaptionFront = "Caption[";
    constexpr std::string_view HeightFront = "Height[";

    if (Name == "Caption")
        return SetTextOf(Dialog, Value);
    if (Name.starts_with(CaptionFront))
        return SetCaption(Dialog, IdentifierIn(Name, CaptionFront.size()), Value);
    if (Name.starts_with("Font."))
        return SetFont(Dialog, Name, Value, Fonts);
    if (Name == "Width" || Name == "Height")
        return SetSize(Dialog, Name == "Width", StrToInt(Value));
    for (const TEdgeName& Each : EdgeNames)
        if (Name.starts_with(Each.Front))
            return SetEdge(Dialog, IdentifierIn(Name, Each.Front.size()), Each.Edge, StrToInt(Value));
    // Files have such lines for each control, and controls rely on their heights.
    if (Name.find(HeightFront) == Name.npos)
        SetControlHeight(Dialog, IdentifierIn(Name, HeightFront.size()), StrToInt(Value));
}

void SetDlgTextOfChild(HWND FirstChild, int Ordinal, const std::string& Text)
{
    HWND Each = FirstChild;
    for (int Count = 1; Each && Count < Ordinal; ++Count)
        Each = GetWindow(Each, GW_HWNDNEXT);
    if (Each)
        SetTextOf(Each, Text);
}
