#include "platform/portable/Fonts.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <map>
#include <set>
#include <strings.h>

namespace {
constexpr int DefaultEm = 16;
constexpr int TabCharacters = 8;

// The typefaces that stand for those of the other system, in order of trial.
struct TSubstitute {
    const char* Face;
    const char* Families;
};
constexpr const char* Sans = "Liberation Sans,DejaVu Sans,VL Gothic";
constexpr const char* WideSans = "DejaVu Sans,VL Gothic";
constexpr const char* Serif = "Liberation Serif,DejaVu Serif,VL Gothic";
constexpr const char* Mono = "Liberation Mono,DejaVu Sans Mono,VL Gothic";
constexpr const char* Japanese = "VL Gothic,DejaVu Sans";
constexpr TSubstitute Substitutes[] = {
    {"Arial", Sans},
    {"Helvetica", Sans},
    {"MS Sans Serif", Sans},
    {"Microsoft Sans Serif", Sans},
    {"MS Shell Dlg", Sans},
    {"MS Shell Dlg 2", Sans},
    {"Segoe UI", Sans},
    {"System", Sans},
    {"Tahoma", Sans},
    {"Verdana", WideSans},
    {"MS Serif", Serif},
    {"Times New Roman", Serif},
    {"Courier", Mono},
    {"Courier New", Mono},
    {"Consolas", Mono},
    {"Fixedsys", Mono},
    {"Lucida Console", Mono},
    {"Terminal", Mono},
    {"MS Gothic", Japanese},
    {"MS PGothic", Japanese},
    {"MS UI Gothic", Japanese},
    {"Meiryo", Japanese},
};

const char* KnownFamilies(const char* Face)
{
    for (const auto& Row : Substitutes)
        if (strcasecmp(Row.Face, Face) == 0)
            return Row.Families;
    return nullptr;
}

struct TFontSystem {
    PangoFontMap* Map = pango_cairo_font_map_new();
    PangoContext* Contexts[2] = {NewMapContext(PANGO_DIRECTION_LTR), NewMapContext(PANGO_DIRECTION_RTL)};
    std::map<std::string, std::weak_ptr<TFontFace>> Faces;
    std::set<std::string, bool (*)(const std::string&, const std::string&)> Families{
        [](const std::string& A, const std::string& B) { return strcasecmp(A.c_str(), B.c_str()) < 0; }};

    TFontSystem()
    {
        PangoFontFamily** Found = nullptr;
        int Count = 0;
        pango_font_map_list_families(Map, &Found, &Count);
        for (int Index = 0; Index < Count; ++Index)
            Families.insert(pango_font_family_get_name(Found[Index]));
        g_free(Found);
    }

    PangoContext* NewMapContext(PangoDirection Direction)
    {
        PangoContext* const Context = pango_font_map_create_context(Map);
        cairo_font_options_t* const Options = cairo_font_options_create();
        cairo_font_options_set_hint_style(Options, CAIRO_HINT_STYLE_SLIGHT);
        cairo_font_options_set_hint_metrics(Options, CAIRO_HINT_METRICS_ON);
        cairo_font_options_set_antialias(Options, CAIRO_ANTIALIAS_GRAY);
        pango_cairo_context_set_font_options(Context, Options);
        cairo_font_options_destroy(Options);
        pango_cairo_context_set_resolution(Context, 96);
        pango_context_set_language(Context, pango_language_from_string("en"));
        pango_context_set_base_dir(Context, Direction);
        return Context;
    }
};

// Lives as long as the process: contexts may be freed by static destructors.
TFontSystem& Fonts()
{
    static TFontSystem& Only = *new TFontSystem;
    return Only;
}

std::string FamiliesFor(const LOGFONTA& Font)
{
    const std::string Face(Font.lfFaceName, strnlen(Font.lfFaceName, LF_FACESIZE));
    if (const char* const Known = KnownFamilies(Face.c_str()))
        return Known;
    const char* General = Sans;
    if ((Font.lfPitchAndFamily & 3) == FIXED_PITCH || (Font.lfPitchAndFamily & 0xF0) == FF_MODERN)
        General = Mono;
    else if ((Font.lfPitchAndFamily & 0xF0) == FF_ROMAN)
        General = Serif;
    return !Face.empty() && Fonts().Families.count(Face) ? Face + "," + General : General;
}

std::string DescriptionKey(const LOGFONTA& Font)
{
    return std::to_string(Font.lfHeight) + ' ' + std::to_string(Font.lfWeight) +
           (Font.lfItalic ? " i" : " ") + (Font.lfUnderline ? "u" : "") + (Font.lfStrikeOut ? "s " : " ") +
           FamiliesFor(Font);
}

double UnitsToPixels(int Units)
{
    return static_cast<double>(Units) / PANGO_SCALE;
}

void SetMetrics(TFontFace& Face, double Em)
{
    pango_font_description_set_absolute_size(Face.Description, Em * PANGO_SCALE);
    PangoFont* const Font = pango_context_load_font(Fonts().Contexts[0], Face.Description);
    PangoFontMetrics* const Metrics = pango_font_get_metrics(Font, pango_language_from_string("en"));
    Face.Em = static_cast<int>(std::lround(Em));
    Face.Ascent = static_cast<int>(std::lround(UnitsToPixels(pango_font_metrics_get_ascent(Metrics))));
    Face.Descent = static_cast<int>(std::lround(UnitsToPixels(pango_font_metrics_get_descent(Metrics))));
    pango_font_metrics_unref(Metrics);
    g_object_unref(Font);
}

PangoAttrList* MakeAttributes(const LOGFONTA& Font)
{
    PangoAttrList* const List = pango_attr_list_new();
    pango_attr_list_insert(List, pango_attr_font_features_new("kern=0, liga=0, clig=0"));
    if (Font.lfUnderline)
        pango_attr_list_insert(List, pango_attr_underline_new(PANGO_UNDERLINE_SINGLE));
    if (Font.lfStrikeOut)
        pango_attr_list_insert(List, pango_attr_strikethrough_new(TRUE));
    return List;
}

std::shared_ptr<TFontFace> MakeFace(const LOGFONTA& Font)
{
    auto Face = std::make_shared<TFontFace>();
    Face->Description = pango_font_description_new();
    pango_font_description_set_family(Face->Description, FamiliesFor(Font).c_str());
    pango_font_description_set_style(Face->Description,
                                     Font.lfItalic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    if (Font.lfWeight > 0)
        pango_font_description_set_weight(Face->Description,
                                          static_cast<PangoWeight>(std::clamp(Font.lfWeight, 100, 1000)));
    Face->Attributes = MakeAttributes(Font);
    const int Height = std::clamp(Font.lfHeight, -4000, 4000);
    if (Height > 0) {
        constexpr int Probe = 1000;
        SetMetrics(*Face, Probe);
        SetMetrics(*Face, std::max(1.0, static_cast<double>(Height) * Probe / Face->Height()));
    } else {
        SetMetrics(*Face, Height < 0 ? -Height : DefaultEm);
    }
    std::fill(std::begin(Face->AsciiWidths), std::end(Face->AsciiWidths), -1);
    Face->AverageWidth = std::max(1, TextWidth(*Face, "abcdefghijklmnopqrstuvwxyz") / 26);
    Face->MaximumWidth = std::max(Face->Em, TextWidth(*Face, "W"));
    Face->FixedPitch = TextWidth(*Face, "i") == TextWidth(*Face, "W");
    return Face;
}

std::shared_ptr<TFontFace> SharedFace(const LOGFONTA& Font)
{
    auto& Known = Fonts().Faces[DescriptionKey(Font)];
    auto Face = Known.lock();
    if (!Face) {
        Face = MakeFace(Font);
        Known = Face;
    }
    return Face;
}

bool PlainAscii(std::string_view Text)
{
    return std::all_of(Text.begin(), Text.end(), [](char C) { return C >= ' ' && C < 127; });
}

int LayoutWidth(const TFontFace& Face, std::string_view Text)
{
    const auto Layout = MakeLayout(Face, Text, TDirection::LeftToRight);
    int Width = 0;
    pango_layout_get_pixel_size(Layout.get(), &Width, nullptr);
    return Width;
}

void SetTabs(PangoLayout* Layout, int Width)
{
    PangoTabArray* const Tabs = pango_tab_array_new(1, TRUE);
    pango_tab_array_set_tab(Tabs, 0, PANGO_TAB_LEFT, Width);
    pango_layout_set_tabs(Layout, Tabs);
    pango_tab_array_free(Tabs);
}
} // namespace

// The font library keeps what it read of the installed fonts until the process
// ends, in a way that the leak checker takes for lost. Nothing else is passed over.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig\n";
}

TFontFace::~TFontFace()
{
    pango_attr_list_unref(Attributes);
    pango_font_description_free(Description);
}

std::shared_ptr<TFontFace> FaceOf(HFONT Handle)
{
    auto* Font = FindGdi<TGdiFont>(Handle);
    if (!Font)
        Font = FindGdi<TGdiFont>(GetStockObject(SYSTEM_FONT));
    if (!Font->Face)
        Font->Face = SharedFace(Font->Font);
    return Font->Face;
}

std::shared_ptr<TFontFace> FaceOf(HDC Dc)
{
    const auto* const Context = FindGdi<TGdiContext>(Dc);
    return FaceOf(Context ? Context->State.Font : nullptr);
}

std::string DrawableText(std::string_view Text)
{
    std::string Result;
    if (g_utf8_validate(Text.data(), static_cast<gssize>(Text.size()), nullptr)) {
        Result = Text;
    } else {
        char* const Valid = g_utf8_make_valid(Text.data(), static_cast<gssize>(Text.size()));
        Result = Valid;
        g_free(Valid);
    }
    std::erase_if(Result, [](char C) { return static_cast<unsigned char>(C) < ' ' && C != '\t'; });
    return Result;
}

TLayout MakeLayout(const TFontFace& Face, std::string_view Text, TDirection Direction)
{
    TLayout Layout(pango_layout_new(Fonts().Contexts[Direction == TDirection::RightToLeft ? 1 : 0]));
    pango_layout_set_font_description(Layout.get(), Face.Description);
    pango_layout_set_attributes(Layout.get(), Face.Attributes);
    pango_layout_set_auto_dir(Layout.get(), FALSE);
    pango_layout_set_single_paragraph_mode(Layout.get(), TRUE);
    SetTabs(Layout.get(), Face.AverageWidth * TabCharacters);
    pango_layout_set_text(Layout.get(), Text.data(), static_cast<int>(Text.size()));
    return Layout;
}

int TextWidth(TFontFace& Face, std::string_view Text)
{
    if (!PlainAscii(Text))
        return LayoutWidth(Face, DrawableText(Text));
    int Width = 0;
    for (const char C : Text) {
        int& Known = Face.AsciiWidths[static_cast<unsigned char>(C)];
        if (Known < 0)
            Known = LayoutWidth(Face, {&C, 1});
        Width += Known;
    }
    return Width;
}

HFONT CreateFontIndirectA(const LOGFONTA* Font)
{
    if (!Font)
        return nullptr;
    auto Object = std::make_unique<TGdiFont>();
    Object->Font = *Font;
    Object->Font.lfFaceName[LF_FACESIZE - 1] = '\0';
    return static_cast<HFONT>(AddGdiObject(std::move(Object)));
}

HFONT CreateFontA(int Height, int Width, int Escapement, int Orientation, int Weight, DWORD Italic,
                  DWORD Underline, DWORD StrikeOut, DWORD CharSet, DWORD OutPrecision, DWORD ClipPrecision,
                  DWORD Quality, DWORD PitchAndFamily, LPCSTR FaceName)
{
    const auto Byte = [](DWORD Value) { return static_cast<BYTE>(Value); };
    LOGFONTA Font{Height,
                  Width,
                  Escapement,
                  Orientation,
                  Weight,
                  Byte(Italic),
                  Byte(Underline),
                  Byte(StrikeOut),
                  Byte(CharSet),
                  Byte(OutPrecision),
                  Byte(ClipPrecision),
                  Byte(Quality),
                  Byte(PitchAndFamily),
                  {}};
    if (FaceName)
        std::memcpy(Font.lfFaceName, FaceName, strnlen(FaceName, LF_FACESIZE - 1));
    return CreateFontIndirectA(&Font);
}

BOOL GetTextMetricsA(HDC Dc, TEXTMETRICA* Metrics)
{
    const auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context || !Metrics)
        return FALSE;
    const auto Face = FaceOf(Dc);
    const auto& Font = FindGdi<TGdiFont>(Context->State.Font)->Font;
    *Metrics = {};
    Metrics->tmHeight = Face->Height();
    Metrics->tmAscent = Face->Ascent;
    Metrics->tmDescent = Face->Descent;
    Metrics->tmInternalLeading = Face->Height() - Face->Em;
    Metrics->tmAveCharWidth = Face->AverageWidth;
    Metrics->tmMaxCharWidth = Face->MaximumWidth;
    Metrics->tmWeight = Font.lfWeight > 0 ? Font.lfWeight : FW_NORMAL;
    Metrics->tmDigitizedAspectX = Metrics->tmDigitizedAspectY = 96;
    Metrics->tmFirstChar = ' ';
    Metrics->tmLastChar = 255;
    Metrics->tmDefaultChar = '?';
    Metrics->tmBreakChar = ' ';
    Metrics->tmItalic = Font.lfItalic;
    Metrics->tmUnderlined = Font.lfUnderline;
    Metrics->tmStruckOut = Font.lfStrikeOut;
    // The pitch bit is set for a font whose widths vary.
    Metrics->tmPitchAndFamily = static_cast<BYTE>((Font.lfPitchAndFamily & 0xF0) | TMPF_TRUETYPE |
                                                  TMPF_VECTOR | (Face->FixedPitch ? 0 : TMPF_FIXED_PITCH));
    Metrics->tmCharSet = Font.lfCharSet;
    return TRUE;
}

int GetTextFaceA(HDC Dc, int Count, LPSTR Name)
{
    const auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context)
        return 0;
    const auto* const Font = FindGdi<TGdiFont>(Context->State.Font);
    std::string Face = Font->Font.lfFaceName;
    if (!KnownFamilies(Face.c_str()) && !Fonts().Families.count(Face))
        Face = "Arial";
    if (!Name)
        return static_cast<int>(Face.size()) + 1;
    if (Count <= 0)
        return 0;
    const auto Bytes = std::min(Face.size(), static_cast<std::size_t>(Count) - 1);
    std::memcpy(Name, Face.data(), Bytes);
    Name[Bytes] = '\0';
    return static_cast<int>(Bytes) + 1;
}

int GetTextCharset(HDC Dc)
{
    TEXTMETRICA Metrics;
    return GetTextMetricsA(Dc, &Metrics) ? Metrics.tmCharSet : DEFAULT_CHARSET;
}

int EnumFontFamiliesExA(HDC Dc, LOGFONTA* Wanted, FONTENUMPROCA Proc, LPARAM Param, DWORD)
{
    if (!FindGdi<TGdiContext>(Dc) || !Proc)
        return 0;
    const std::string Only = Wanted ? Wanted->lfFaceName : "";
    std::set<std::string> Names(Fonts().Families.begin(), Fonts().Families.end());
    for (const auto& Row : Substitutes)
        Names.insert(Row.Face);
    int Result = 1;
    for (const auto& Name : Names) {
        if ((!Only.empty() && strcasecmp(Only.c_str(), Name.c_str()) != 0) || Name.size() >= LF_FACESIZE)
            continue;
        ENUMLOGFONTEXA Entry{};
        Entry.elfLogFont.lfHeight = -DefaultEm;
        Entry.elfLogFont.lfWeight = FW_NORMAL;
        Entry.elfLogFont.lfCharSet =
            Wanted && Wanted->lfCharSet != DEFAULT_CHARSET ? Wanted->lfCharSet : ANSI_CHARSET;
        std::memcpy(Entry.elfLogFont.lfFaceName, Name.data(), Name.size());
        std::memcpy(Entry.elfFullName, Name.data(), Name.size());
        std::memcpy(Entry.elfStyle, "Regular", 8);
        const bool Fixed = FamiliesFor(Entry.elfLogFont) == Mono || Name.find("Mono") != Name.npos;
        Entry.elfLogFont.lfPitchAndFamily =
            static_cast<BYTE>(Fixed ? FIXED_PITCH | FF_MODERN : VARIABLE_PITCH | FF_SWISS);
        TEXTMETRICA Metrics{};
        Metrics.tmHeight = DefaultEm;
        Metrics.tmWeight = FW_NORMAL;
        Metrics.tmCharSet = Entry.elfLogFont.lfCharSet;
        Metrics.tmPitchAndFamily = static_cast<BYTE>(TMPF_TRUETYPE | (Fixed ? 0 : TMPF_FIXED_PITCH));
        Result = Proc(&Entry.elfLogFont, &Metrics, TRUETYPE_FONTTYPE, Param);
        if (!Result)
            break;
    }
    return Result;
}
