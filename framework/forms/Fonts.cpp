#include "framework/forms/Fonts.h"

#include <algorithm>
#include <cstring>
#include <map>

#include "framework/forms/Idents.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/Utf8.h"

namespace {

constexpr TIdentMapEntry CharsetNames[] = {
    {ANSI_CHARSET, "ANSI_CHARSET"},
    {DEFAULT_CHARSET, "DEFAULT_CHARSET"},
    {SYMBOL_CHARSET, "SYMBOL_CHARSET"},
    {MAC_CHARSET, "MAC_CHARSET"},
    {SHIFTJIS_CHARSET, "SHIFTJIS_CHARSET"},
    {HANGEUL_CHARSET, "HANGEUL_CHARSET"},
    {JOHAB_CHARSET, "JOHAB_CHARSET"},
    {GB2312_CHARSET, "GB2312_CHARSET"},
    {CHINESEBIG5_CHARSET, "CHINESEBIG5_CHARSET"},
    {GREEK_CHARSET, "GREEK_CHARSET"},
    {TURKISH_CHARSET, "TURKISH_CHARSET"},
    {VIETNAMESE_CHARSET, "VIETNAMESE_CHARSET"},
    {HEBREW_CHARSET, "HEBREW_CHARSET"},
    {ARABIC_CHARSET, "ARABIC_CHARSET"},
    {BALTIC_CHARSET, "BALTIC_CHARSET"},
    {RUSSIAN_CHARSET, "RUSSIAN_CHARSET"},
    {THAI_CHARSET, "THAI_CHARSET"},
    {EASTEUROPE_CHARSET, "EASTEUROPE_CHARSET"},
    {OEM_CHARSET, "OEM_CHARSET"},
};

constexpr int PointsPerInch = 72;
constexpr int DefaultPoints = 8;

// Value * Numerator / Denominator, halves rounded away from zero.
int Scale(int Value, int Numerator, int Denominator)
{
    const int64_t Product = int64_t{Value} * Numerator;
    const int64_t Half = Denominator / 2;
    return static_cast<int>((Product < 0 ? Product - Half : Product + Half) / Denominator);
}

LOGFONTA LogFont(const TFontData& Data)
{
    LOGFONTA Result{};
    Result.lfHeight = Data.Height;
    Result.lfEscapement = Data.Orientation;
    Result.lfOrientation = Data.Orientation;
    Result.lfWeight = Data.Style.Contains(fsBold) ? FW_BOLD : FW_NORMAL;
    Result.lfItalic = Data.Style.Contains(fsItalic);
    Result.lfUnderline = Data.Style.Contains(fsUnderline);
    Result.lfStrikeOut = Data.Style.Contains(fsStrikeOut);
    Result.lfCharSet = Data.Charset;
    Result.lfQuality = static_cast<BYTE>(std::min<int>(Data.Quality, CLEARTYPE_QUALITY));
    Result.lfPitchAndFamily = static_cast<BYTE>(Data.Pitch == fpFixed      ? FIXED_PITCH
                                                : Data.Pitch == fpVariable ? VARIABLE_PITCH
                                                                           : DEFAULT_PITCH);
    const std::string_view Name = CutAtCharacter(Data.Name, LF_FACESIZE - 1);
    std::memcpy(Result.lfFaceName, Name.data(), Name.size());
    return Result;
}

// Controls mostly share a few fonts; the system's are made once for each kind
// and live as long as a font uses them.
std::shared_ptr<void> SharedFont(const LOGFONTA& Font)
{
    static std::map<std::string, std::weak_ptr<void>> Fonts;
    const std::string Key(reinterpret_cast<const char*>(&Font), sizeof Font);
    if (const auto Found = Fonts.find(Key); Found != Fonts.end())
        if (auto Existing = Found->second.lock())
            return Existing;
    std::erase_if(Fonts, [](const auto& Entry) { return Entry.second.expired(); });
    std::shared_ptr<void> Result(CreateFontIndirectA(&Font), [](void* Handle) {
        if (Handle)
            DeleteObject(static_cast<HGDIOBJ>(Handle));
    });
    Fonts[Key] = Result;
    return Result;
}

} // namespace

const TIntegerIdents CharsetIdents{&IdentToCharset, &CharsetToIdent};

bool CharsetToIdent(int Charset, std::string& Ident)
{
    return ValueToIdent(std::begin(CharsetNames), std::end(CharsetNames), Charset, Ident);
}

bool IdentToCharset(std::string_view Ident, int& Charset)
{
    return IdentToValue(std::begin(CharsetNames), std::end(CharsetNames), Ident, Charset);
}

int ScreenPixelsPerInch()
{
    static const int Result = [] {
        const HDC Dc = GetDC(nullptr);
        const int Pixels = GetDeviceCaps(Dc, LOGPIXELSY);
        ReleaseDC(nullptr, Dc);
        return Pixels > 0 ? Pixels : 96;
    }();
    return Result;
}

const TMetaClass& TGraphicsObject::MetaClass()
{
    static const TMetaClass Class("TGraphicsObject", &TPersistent::MetaClass(), nullptr);
    return Class;
}

void TGraphicsObject::Changed()
{
    if (OnChange)
        OnChange(this);
}

const TMetaClass& TFont::MetaClass()
{
    static const TMetaClass Class("TFont", &TGraphicsObject::MetaClass(), nullptr,
                                  {
                                      OBX_ROW(TFont, Charset),
                                      OBX_ROW(TFont, Color),
                                      OBX_ROW(TFont, Height),
                                      OBX_ROW(TFont, Name),
                                      OBX_ROW(TFont, Orientation).Default(0),
                                      OBX_ROW(TFont, Pitch).Default(fpDefault),
                                      OBX_ROW(TFont, Quality).Default(fqDefault),
                                      OBX_ROW(TFont, Size).Stored(false),
                                      OBX_ROW(TFont, Style),
                                  });
    return Class;
}

TFont::TFont() : FPixelsPerInch(ScreenPixelsPerInch())
{
    FData.Charset = static_cast<TFontCharset>(DEFAULT_CHARSET);
    FData.Name = "MS Sans Serif";
    FData.Height = -Scale(DefaultPoints, FPixelsPerInch, PointsPerInch);
}

TFont::~TFont() = default;

void TFont::Assign(const TPersistent* Source)
{
    const auto* const Other = dynamic_cast<const TFont*>(Source);
    if (!Other)
        return inherited::Assign(Source);
    TFontData Data = Other->FData;
    if (Other->FPixelsPerInch != FPixelsPerInch)
        Data.Height = -Scale(Other->Size(), FPixelsPerInch, PointsPerInch);
    if (Data == FData && FColor == Other->FColor)
        return;
    FData = std::move(Data);
    FColor = Other->FColor;
    Changed();
}

HFONT TFont::Handle() const
{
    if (!FHandle)
        FHandle = SharedFont(LogFont(FData));
    return static_cast<HFONT>(FHandle.get());
}

void TFont::SetHandle(HFONT Value)
{
    LOGFONTA Font{};
    if (!GetObjectA(Value, sizeof Font, &Font))
        return;
    TFontData Data;
    Data.Height = static_cast<int>(Font.lfHeight);
    Data.Orientation = static_cast<int>(Font.lfOrientation);
    Data.Pitch = (Font.lfPitchAndFamily & 3) == FIXED_PITCH      ? fpFixed
                 : (Font.lfPitchAndFamily & 3) == VARIABLE_PITCH ? fpVariable
                                                                 : fpDefault;
    if (Font.lfWeight >= FW_BOLD)
        Data.Style.Include(fsBold);
    if (Font.lfItalic)
        Data.Style.Include(fsItalic);
    if (Font.lfUnderline)
        Data.Style.Include(fsUnderline);
    if (Font.lfStrikeOut)
        Data.Style.Include(fsStrikeOut);
    Data.Charset = static_cast<TFontCharset>(Font.lfCharSet);
    Data.Quality = static_cast<TFontQuality>(Font.lfQuality);
    Data.Name = Font.lfFaceName;
    if (Data == FData)
        return;
    FData = std::move(Data);
    Changed();
}

template<class T>
void TFont::Set(T TFontData::*Member, const T& Value)
{
    if (FData.*Member == Value)
        return;
    FData.*Member = Value;
    Changed();
}

void TFont::Changed()
{
    // A canvas that has it selected lets go of it in OnChange.
    const std::shared_ptr<void> Old = std::move(FHandle);
    FHandle.reset();
    inherited::Changed();
}

void TFont::SetCharset(TFontCharset Value)
{
    Set(&TFontData::Charset, Value);
}

void TFont::SetColor(TColor Value)
{
    if (FColor == Value)
        return;
    FColor = Value;
    Changed();
}

void TFont::SetHeight(int Value)
{
    Set(&TFontData::Height, Value);
}

void TFont::SetName(const TFontName& Value)
{
    if (!Value.empty())
        Set(&TFontData::Name, Value);
}

void TFont::SetOrientation(int Value)
{
    Set(&TFontData::Orientation, Value);
}

void TFont::SetPitch(TFontPitch Value)
{
    Set(&TFontData::Pitch, Value);
}

void TFont::SetQuality(TFontQuality Value)
{
    Set(&TFontData::Quality, Value);
}

int TFont::Size() const
{
    return -Scale(FData.Height, PointsPerInch, FPixelsPerInch);
}

void TFont::SetSize(int Value)
{
    SetHeight(-Scale(Value, FPixelsPerInch, PointsPerInch));
}

void TFont::SetStyle(TFontStyles Value)
{
    Set(&TFontData::Style, Value);
}
