// Fonts of controls and canvases.
#pragma once

#include <memory>
#include <string>

#include "framework/forms/Colors.h"
#include "framework/rtl/Persistent.h"

OBX_ENUM(TFontPitch, fpDefault, fpVariable, fpFixed)
OBX_ENUM(TFontQuality, fqDefault, fqDraft, fqProof, fqNonAntialiased, fqAntialiased, fqClearType,
         fqClearTypeNatural)
OBX_ENUM(TFontStyle, fsBold, fsItalic, fsUnderline, fsStrikeOut)
OBX_SET(TFontStyles, TFontStyle)

// The values are DEFAULT_CHARSET, RUSSIAN_CHARSET and so on.
enum TFontCharset : uint8_t {};
bool CharsetToIdent(int Charset, std::string& Ident);
bool IdentToCharset(std::string_view Ident, int& Charset);
extern const TIntegerIdents CharsetIdents;
OBX_INTEGER(TFontCharset, 0, 255, &CharsetIdents)

using TFontName = std::string;

// A drawing tool that tells its owner when it changes.
class TGraphicsObject : public TPersistent {
    OBX_CLASS(TPersistent)
public:
    TNotifyEvent OnChange;

protected:
    virtual void Changed();
};

// What a font is made of.
struct TFontData {
    int Height = 0;
    int Orientation = 0; // tenths of a degree, counter-clockwise
    TFontPitch Pitch = fpDefault;
    TFontStyles Style;
    TFontCharset Charset{};
    TFontQuality Quality = fqDefault;
    TFontName Name;
    friend bool operator==(const TFontData&, const TFontData&) = default;
};

// New fonts are "MS Sans Serif", 8 points, in clWindowText.
class TFont : public TGraphicsObject {
    OBX_CLASS(TGraphicsObject)
public:
    TFont();
    ~TFont() override;

    // Takes another font.
    void Assign(const TPersistent* Source) override;

    // The system's font; belongs to the TFont and holds until it changes. Fonts
    // that are alike share one.
    HFONT Handle() const;
    // Takes over what a font of the system is made of; Value stays the caller's.
    void SetHandle(HFONT Value);

    // Pixels to the inch for Size; that of the screen at first.
    int PixelsPerInch() const { return FPixelsPerInch; }
    void SetPixelsPerInch(int Value) { FPixelsPerInch = Value; }

    // Published.
    TFontCharset Charset() const { return FData.Charset; }
    void SetCharset(TFontCharset Value);
    TColor Color() const { return FColor; }
    void SetColor(TColor Value);
    // Pixels: negative for the characters, positive for the line.
    int Height() const { return FData.Height; }
    void SetHeight(int Value);
    const TFontName& Name() const { return FData.Name; }
    void SetName(const TFontName& Value);
    int Orientation() const { return FData.Orientation; }
    void SetOrientation(int Value);
    TFontPitch Pitch() const { return FData.Pitch; }
    void SetPitch(TFontPitch Value);
    TFontQuality Quality() const { return FData.Quality; }
    void SetQuality(TFontQuality Value);
    // Points; Height in another unit.
    int Size() const;
    void SetSize(int Value);
    TFontStyles Style() const { return FData.Style; }
    void SetStyle(TFontStyles Value);

    const TFontData& Data() const { return FData; }

protected:
    void Changed() override;

private:
    template<class T>
    void Set(T TFontData::*Member, const T& Value);

    TFontData FData;
    TColor FColor = clWindowText;
    int FPixelsPerInch;
    mutable std::shared_ptr<void> FHandle;
};

// Pixels to the inch of the screen.
int ScreenPixelsPerInch();
