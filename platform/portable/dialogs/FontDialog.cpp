// The font dialog.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "platform/portable/Control.h"
#include "platform/portable/dialogs/StandardDialog.h"
#include "platform/portable/winbase.h"

namespace {

constexpr int Sizes[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72};
constexpr int DotsPerInch = 96;

constexpr struct {
    const char* Name;
    LONG Weight;
    BYTE Italic;
    WORD Type;
} Styles[] = {{"Regular", FW_NORMAL, FALSE, REGULAR_FONTTYPE},
              {"Italic", FW_NORMAL, TRUE, ITALIC_FONTTYPE},
              {"Bold", FW_BOLD, FALSE, BOLD_FONTTYPE},
              {"Bold Italic", FW_BOLD, TRUE, BOLD_FONTTYPE | ITALIC_FONTTYPE}};

constexpr struct {
    const char* Name;
    COLORREF Value;
} Colors[] = {{"Black", RGB(0, 0, 0)},      {"Maroon", RGB(128, 0, 0)},    {"Green", RGB(0, 128, 0)},
              {"Olive", RGB(128, 128, 0)},  {"Navy", RGB(0, 0, 128)},      {"Purple", RGB(128, 0, 128)},
              {"Teal", RGB(0, 128, 128)},   {"Gray", RGB(128, 128, 128)},  {"Silver", RGB(192, 192, 192)},
              {"Red", RGB(255, 0, 0)},      {"Lime", RGB(0, 255, 0)},      {"Yellow", RGB(255, 255, 0)},
              {"Blue", RGB(0, 0, 255)},     {"Fuchsia", RGB(255, 0, 255)}, {"Aqua", RGB(0, 255, 255)},
              {"White", RGB(255, 255, 255)}};

constexpr struct {
    const char* Name;
    BYTE CharSet;
} Scripts[] = {{"Western", ANSI_CHARSET},
               {"Hebrew", HEBREW_CHARSET},
               {"Arabic", ARABIC_CHARSET},
               {"Greek", GREEK_CHARSET},
               {"Turkish", TURKISH_CHARSET},
               {"Baltic", BALTIC_CHARSET},
               {"Cyrillic", RUSSIAN_CHARSET},
               {"Central European", EASTEUROPE_CHARSET},
               {"Thai", THAI_CHARSET},
               {"Japanese", SHIFTJIS_CHARSET},
               {"Vietnamese", VIETNAMESE_CHARSET}};

class TFontDialog final : public TStandardDialog {
public:
    explicit TFontDialog(CHOOSEFONTA& Data)
        : TStandardDialog(FontTemplate, Data.Flags & CF_ENABLEHOOK ? Data.lpfnHook : nullptr, &Data),
          FData(Data)
    {
    }

protected:
    void Init() override;
    bool Command(int Id, int Code) override;
    INT_PTR Message(UINT Message, WPARAM WParam, LPARAM LParam) override;

private:
    bool Has(DWORD Flag) const { return (FData.Flags & Flag) != 0; }
    void FillLists();
    void ShowFont(const LOGFONTA& Font);
    void ShowParts();
    void SelectItem(int Id, int Index) const;
    int ListIndex(int Id) const;
    int TenthsOfPoint() const;
    LOGFONTA CurrentFont() const;
    COLORREF CurrentColor() const;
    void Accept();
    void PaintSample() const;
    void DrawEntry(const DRAWITEMSTRUCT& Item) const;

    CHOOSEFONTA& FData;
};

void TFontDialog::Init()
{
    ShowParts();
    FillLists();
    LOGFONTA Font{};
    if (Has(CF_INITTOLOGFONTSTRUCT) && FData.lpLogFont)
        Font = *FData.lpLogFont;
    ShowFont(Font);
    if (Has(CF_USESTYLE) && FData.lpszStyle)
        Send(cmb2, CB_SELECTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(FData.lpszStyle));
    const auto Color = std::find_if(std::begin(Colors), std::end(Colors),
                                    [&](const auto& Each) { return Each.Value == FData.rgbColors; });
    SelectItem(cmb4, Color == std::end(Colors) ? 0 : static_cast<int>(Color - Colors));
    for (const int Id : {int{cmb1}, int{cmb2}, int{cmb3}, int{cmb5}})
        SendMessageA(Window(), WM_COMMAND, MAKEWPARAM(Id, CBN_SELCHANGE), reinterpret_cast<LPARAM>(Item(Id)));
}

void TFontDialog::ShowParts()
{
    if (!Has(CF_EFFECTS))
        for (const int Id : {grp1, chx1, chx2, stc4, cmb4})
            Show(Id, false);
    if (Has(CF_APPLY))
        Show(psh3, true);
    if (Has(CF_SHOWHELP))
        Show(pshHelp, true);
    if (Has(CF_NOSCRIPTSEL))
        for (const int Id : {stc7, cmb5})
            Enable(Id, false);
}

void TFontDialog::FillLists()
{
    const HDC Dc = GetDC(nullptr);
    LOGFONTA Any{};
    Any.lfCharSet = DEFAULT_CHARSET;
    const auto Add = [](const LOGFONTA* Font, const TEXTMETRICA*, DWORD, LPARAM Param) -> int {
        const auto& Self = *reinterpret_cast<const TFontDialog*>(Param);
        if (!Self.Has(CF_FIXEDPITCHONLY) || (Font->lfPitchAndFamily & 3) == FIXED_PITCH)
            Self.AddString(cmb1, Font->lfFaceName);
        return 1;
    };
    EnumFontFamiliesExA(Dc, &Any, Add, reinterpret_cast<LPARAM>(this), 0);
    ReleaseDC(nullptr, Dc);
    for (const auto& Style : Styles)
        AddString(cmb2, Style.Name);
    for (const int Size : Sizes)
        if (!Has(CF_LIMITSIZE) || (Size >= FData.nSizeMin && Size <= FData.nSizeMax))
            Send(cmb3, CB_INSERTSTRING, static_cast<WPARAM>(-1),
                 reinterpret_cast<LPARAM>(std::to_string(Size).c_str()));
    for (const auto& Color : Colors)
        AddString(cmb4, Color.Name, static_cast<LPARAM>(Color.Value));
    for (const auto& Script : Scripts)
        AddString(cmb5, Script.Name, Script.CharSet);
}

void TFontDialog::SelectItem(int Id, int Index) const
{
    Send(Id, CB_SETCURSEL, static_cast<WPARAM>(Index));
}

// The item that the field names, even when it was typed; -1 without one.
int TFontDialog::ListIndex(int Id) const
{
    return static_cast<int>(
        Send(Id, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(Text(Id).c_str())));
}

void TFontDialog::ShowFont(const LOGFONTA& Font)
{
    const LRESULT Face =
        Send(cmb1, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(Font.lfFaceName));
    if (!Has(CF_NOFACESEL))
        SelectItem(cmb1, std::max(static_cast<int>(Face), 0));
    const bool Bold = Font.lfWeight > FW_MEDIUM;
    if (!Has(CF_NOSTYLESEL))
        SelectItem(cmb2, (Bold ? 2 : 0) + (Font.lfItalic ? 1 : 0));
    const int Points = Font.lfHeight ? MulDiv(std::abs(Font.lfHeight), 72, DotsPerInch) : 10;
    if (!Has(CF_NOSIZESEL)) {
        SetText(cmb3, std::to_string(Points));
        SelectItem(cmb3, ListIndex(cmb3));
        SetText(cmb3, std::to_string(Points)); // whether or not it is listed
    }
    Check(chx1, Font.lfStrikeOut != 0);
    Check(chx2, Font.lfUnderline != 0);
    const auto Script = std::find_if(std::begin(Scripts), std::end(Scripts),
                                     [&](const auto& Each) { return Each.CharSet == Font.lfCharSet; });
    SelectItem(cmb5, Script == std::end(Scripts) ? 0 : static_cast<int>(Script - Scripts));
}

int TFontDialog::TenthsOfPoint() const
{
    constexpr double Largest = 2000;
    const double Points = std::strtod(Text(cmb3).c_str(), nullptr);
    return Points > 0 ? static_cast<int>(std::lround(std::min(Points, Largest) * 10)) : 0;
}

LOGFONTA TFontDialog::CurrentFont() const
{
    LOGFONTA Font{};
    if (FData.lpLogFont)
        Font = *FData.lpLogFont;
    const int Style = std::max(ListIndex(cmb2), 0);
    Font.lfHeight = -MulDiv(TenthsOfPoint(), DotsPerInch, 720);
    Font.lfWidth = 0;
    Font.lfWeight = Styles[Style].Weight;
    Font.lfItalic = Styles[Style].Italic;
    Font.lfStrikeOut = Has(CF_EFFECTS) && Checked(chx1);
    Font.lfUnderline = Has(CF_EFFECTS) && Checked(chx2);
    Font.lfCharSet = static_cast<BYTE>(
        Send(cmb5, CB_GETITEMDATA, static_cast<WPARAM>(std::max<LRESULT>(Send(cmb5, CB_GETCURSEL), 0))));
    CopyText(Text(cmb1), Font.lfFaceName, LF_FACESIZE);
    return Font;
}

COLORREF TFontDialog::CurrentColor() const
{
    const LRESULT Index = Send(cmb4, CB_GETCURSEL);
    return Has(CF_EFFECTS) && Index >= 0
               ? static_cast<COLORREF>(Send(cmb4, CB_GETITEMDATA, static_cast<WPARAM>(Index)))
               : FData.rgbColors;
}

void TFontDialog::Accept()
{
    const int Tenths = TenthsOfPoint();
    if (Has(CF_LIMITSIZE) && (Tenths < FData.nSizeMin * 10 || Tenths > FData.nSizeMax * 10))
        return Tell("Select a font size between " + std::to_string(FData.nSizeMin) + " and " +
                    std::to_string(FData.nSizeMax) + " points.");
    if (Has(CF_FORCEFONTEXIST) && (ListIndex(cmb1) < 0 || ListIndex(cmb2) < 0))
        return Tell("There is no font with that name or style.\nChoose one from the lists.");
    if (FData.lpLogFont)
        *FData.lpLogFont = CurrentFont();
    FData.iPointSize = Tenths;
    FData.rgbColors = CurrentColor();
    FData.nFontType = static_cast<WORD>(SCREEN_FONTTYPE | Styles[std::max(ListIndex(cmb2), 0)].Type);
    if (Has(CF_USESTYLE) && FData.lpszStyle)
        CopyText(Text(cmb2), FData.lpszStyle, LF_FACESIZE);
    End(true);
}

bool TFontDialog::Command(int Id, int Code)
{
    switch (Id) {
    case IDOK:
        Accept();
        return true;
    case IDCANCEL:
        End(false);
        return true;
    case pshHelp:
        TellOwner(HELPMSGSTRINGA, reinterpret_cast<WPARAM>(Window()), reinterpret_cast<LPARAM>(&FData));
        return true;
    case cmb1:
    case cmb2:
    case cmb3:
    case cmb4:
    case cmb5:
    case chx1:
    case chx2:
        if (Code == CBN_SELCHANGE || Code == CBN_EDITCHANGE || Code == BN_CLICKED)
            InvalidateRect(Window(), nullptr, TRUE);
        return true;
    default:
        return false;
    }
}

void TFontDialog::PaintSample() const
{
    PAINTSTRUCT Paint;
    const HDC Dc = BeginPaint(Window(), &Paint);
    RECT Rect;
    GetWindowRect(Item(stc5), &Rect);
    MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&Rect), 2);
    DrawEdge(Dc, &Rect, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    const LOGFONTA Description = CurrentFont();
    const HFONT Font = CreateFontIndirectA(&Description);
    const HGDIOBJ Old = SelectObject(Dc, Font);
    SetTextColor(Dc, CurrentColor());
    SetBkMode(Dc, TRANSPARENT);
    DrawTextA(Dc, "AaBbYyZz", -1, &Rect, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
    SelectObject(Dc, Old);
    DeleteObject(Font);
    EndPaint(Window(), &Paint);
}

void TFontDialog::DrawEntry(const DRAWITEMSTRUCT& Item) const
{
    constexpr int Margin = 2;
    const auto Id = static_cast<int>(Item.CtlID);
    const auto Index = static_cast<int>(Item.itemID);
    const std::string Text = Index >= 0 ? ItemText(Id, Index) : "";
    if (Id != cmb4 || Index < 0)
        return DrawListItem(Item, Text, Margin);
    RECT Swatch = Item.rcItem;
    InflateRect(&Swatch, -Margin, -Margin);
    Swatch.right = Swatch.left + 2 * (Swatch.bottom - Swatch.top);
    DrawListItem(Item, Text, Swatch.right - Item.rcItem.left + 2 * Margin);
    const HBRUSH Brush = CreateSolidBrush(static_cast<COLORREF>(Item.itemData));
    FillRect(Item.hDC, &Swatch, Brush);
    DeleteObject(Brush);
    FrameRect(Item.hDC, &Swatch, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
}

INT_PTR TFontDialog::Message(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case WM_PAINT:
        PaintSample();
        return TRUE;
    case WM_DRAWITEM:
        DrawEntry(Structure<DRAWITEMSTRUCT>(LParam));
        return TRUE;
    case WM_CHOOSEFONT_GETLOGFONT:
        Structure<LOGFONTA>(LParam) = CurrentFont();
        return TRUE;
    case WM_CHOOSEFONT_SETLOGFONT:
        ShowFont(Structure<LOGFONTA>(LParam));
        InvalidateRect(Window(), nullptr, TRUE);
        return TRUE;
    case WM_CHOOSEFONT_SETFLAGS:
        FData.Flags = Structure<CHOOSEFONTA>(LParam).Flags;
        return TRUE;
    default:
        return TStandardDialog::Message(Message, WParam, LParam);
    }
}

} // namespace

BOOL ChooseFontA(CHOOSEFONTA* Choose)
{
    DialogError(0);
    if (!Choose)
        return DialogError(CDERR_INITIALIZATION);
    if (Choose->lStructSize != sizeof(CHOOSEFONTA))
        return DialogError(CDERR_STRUCTSIZE);
    if ((Choose->Flags & CF_ENABLEHOOK) && !Choose->lpfnHook)
        return DialogError(CDERR_NOHOOK);
    if (Choose->Flags & (CF_ENABLETEMPLATE | CF_ENABLETEMPLATEHANDLE))
        return DialogError(CDERR_NOTEMPLATE);
    if ((Choose->Flags & CF_LIMITSIZE) && Choose->nSizeMax < Choose->nSizeMin)
        return DialogError(CFERR_MAXLESSTHANMIN);
    return TFontDialog(*Choose).Run(Choose->hwndOwner);
}
