#include "framework/forms/Canvas.h"

#include "framework/forms/Pictures.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/Utf8.h"

namespace {

constexpr int RasterOperations[] = {R2_BLACK,       R2_WHITE,      R2_NOP,         R2_NOT,
                                    R2_COPYPEN,     R2_NOTCOPYPEN, R2_MERGEPENNOT, R2_MASKPENNOT,
                                    R2_MERGENOTPEN, R2_MASKNOTPEN, R2_MERGEPEN,    R2_NOTMERGEPEN,
                                    R2_MASKPEN,     R2_NOTMASKPEN, R2_XORPEN,      R2_NOTXORPEN};

// A text for the drawing functions of the W kind: those of the A kind read it in
// the code page of the font, whatever the program's is.
class TWideText {
public:
    explicit TWideText(const std::string& Text) : FText(Utf8ToUtf16(Text)) {}
    LPCWSTR Data() const { return reinterpret_cast<LPCWSTR>(FText.c_str()); }
    int Length() const { return static_cast<int>(FText.size()); }

private:
    std::u16string FText;
};

} // namespace

const TMetaClass& TCanvas::MetaClass()
{
    static const TMetaClass Class("TCanvas", &TPersistent::MetaClass(), nullptr);
    return Class;
}

TCanvas::TCanvas()
{
    FFont.OnChange = {this, &TCanvas::FontChanged};
    FPen.OnChange = {this, &TCanvas::PenChanged};
    FBrush.OnChange = {this, &TCanvas::BrushChanged};
}

TCanvas::~TCanvas()
{
    Deselect();
}

HDC TCanvas::Handle()
{
    NeedTools();
    return FHandle;
}

void TCanvas::SetHandle(HDC Value)
{
    if (FHandle == Value)
        return;
    Deselect();
    FHandle = Value;
    if (FHandle)
        NeedTools();
}

void TCanvas::RequireHandle()
{
    if (!FHandle)
        CreateHandle();
    if (!FHandle)
        throw EInvalidOperation(SNoCanvasHandle);
}

void TCanvas::NeedTools()
{
    RequireHandle();
    if (!FFontValid)
        NeedFont();
    if (!FPenValid)
        NeedPen();
    if (!FBrushValid)
        NeedBrush();
}

// The context gets its own tools back before ours are destroyed.
void TCanvas::Deselect()
{
    if (FHandle) {
        if (FOldFont)
            SelectObject(FHandle, FOldFont);
        if (FOldPen)
            SelectObject(FHandle, FOldPen);
        if (FOldBrush)
            SelectObject(FHandle, FOldBrush);
    }
    FOldFont = FOldPen = FOldBrush = nullptr;
    FFontValid = FPenValid = FBrushValid = false;
}

void TCanvas::NeedFont()
{
    const HGDIOBJ Old = SelectObject(FHandle, FFont.Handle());
    if (!FOldFont)
        FOldFont = Old;
    SetTextColor(FHandle, ColorToRGB(FFont.Color()));
    FFontValid = true;
}

void TCanvas::NeedPen()
{
    const HGDIOBJ Old = SelectObject(FHandle, FPen.Handle());
    if (!FOldPen)
        FOldPen = Old;
    SetROP2(FHandle, RasterOperations[FPen.Mode()]);
    FPenValid = true;
}

void TCanvas::NeedBrush()
{
    const HGDIOBJ Old = SelectObject(FHandle, FBrush.Handle());
    if (!FOldBrush)
        FOldBrush = Old;
    // The background of texts and hatches follows the brush.
    if (FBrush.Style() == bsSolid) {
        SetBkColor(FHandle, ColorToRGB(FBrush.Color()));
        SetBkMode(FHandle, OPAQUE);
    } else {
        SetBkColor(FHandle, ~ColorToRGB(FBrush.Color()) & 0xFFFFFF);
        SetBkMode(FHandle, TRANSPARENT);
    }
    FBrushValid = true;
}

// A tool that changed has destroyed its handle: the context may not keep it.
void TCanvas::FontChanged(TObject*)
{
    if (FFontValid && FOldFont)
        SelectObject(FHandle, FOldFont);
    FFontValid = false;
}

void TCanvas::PenChanged(TObject*)
{
    if (FPenValid && FOldPen)
        SelectObject(FHandle, FOldPen);
    FPenValid = false;
}

void TCanvas::BrushChanged(TObject*)
{
    if (FBrushValid && FOldBrush)
        SelectObject(FHandle, FOldBrush);
    FBrushValid = false;
}

void TCanvas::Changed()
{
    if (OnChange)
        OnChange(this);
}

void TCanvas::Changing()
{
    NeedTools();
    if (OnChanging)
        OnChanging(this);
}

void TCanvas::TextOut(int X, int Y, const std::string& Text)
{
    Changing();
    const TWideText Wide(Text);
    TextOutW(FHandle, X, Y, Wide.Data(), Wide.Length());
    MoveToEx(FHandle, X + TextWidth(Text), Y, nullptr);
    Changed();
}

void TCanvas::TextRect(const TRect& Rect, int X, int Y, const std::string& Text)
{
    Changing();
    UINT Options = ETO_CLIPPED;
    if (FBrush.Style() != bsClear)
        Options |= ETO_OPAQUE;
    const TWideText Wide(Text);
    ExtTextOutW(FHandle, X, Y, Options, &Rect, Wide.Data(), static_cast<UINT>(Wide.Length()), nullptr);
    Changed();
}

TSize TCanvas::TextExtent(const std::string& Text)
{
    NeedTools();
    TSize Result{};
    const TWideText Wide(Text);
    GetTextExtentPoint32W(FHandle, Wide.Data(), Wide.Length(), &Result);
    return Result;
}

int TCanvas::DrawText(const std::string& Text, TRect& Rect, UINT Flags)
{
    if (Flags & DT_CALCRECT)
        NeedTools();
    else
        Changing();
    const TWideText Wide(Text);
    const int Result = DrawTextW(FHandle, Wide.Data(), Wide.Length(), &Rect, Flags);
    if (!(Flags & DT_CALCRECT))
        Changed();
    return Result;
}

void TCanvas::MoveTo(int X, int Y)
{
    NeedTools();
    MoveToEx(FHandle, X, Y, nullptr);
}

void TCanvas::LineTo(int X, int Y)
{
    Changing();
    ::LineTo(FHandle, X, Y);
    Changed();
}

void TCanvas::Rectangle(int Left, int Top, int Right, int Bottom)
{
    Changing();
    ::Rectangle(FHandle, Left, Top, Right, Bottom);
    Changed();
}

void TCanvas::Rectangle(const TRect& Rect)
{
    Rectangle(static_cast<int>(Rect.left), static_cast<int>(Rect.top), static_cast<int>(Rect.right),
              static_cast<int>(Rect.bottom));
}

void TCanvas::RoundRect(int Left, int Top, int Right, int Bottom, int Width, int Height)
{
    Changing();
    ::RoundRect(FHandle, Left, Top, Right, Bottom, Width, Height);
    Changed();
}

void TCanvas::Ellipse(int Left, int Top, int Right, int Bottom)
{
    Changing();
    ::Ellipse(FHandle, Left, Top, Right, Bottom);
    Changed();
}

void TCanvas::Ellipse(const TRect& Rect)
{
    Ellipse(static_cast<int>(Rect.left), static_cast<int>(Rect.top), static_cast<int>(Rect.right),
            static_cast<int>(Rect.bottom));
}

void TCanvas::Polygon(const TPoint* Points, int Count)
{
    Changing();
    ::Polygon(FHandle, Points, Count);
    Changed();
}

void TCanvas::Polyline(const TPoint* Points, int Count)
{
    Changing();
    ::Polyline(FHandle, Points, Count);
    Changed();
}

void TCanvas::FillRect(const TRect& Rect)
{
    Changing();
    ::FillRect(FHandle, &Rect, FBrush.Handle());
    Changed();
}

void TCanvas::FrameRect(const TRect& Rect)
{
    Changing();
    ::FrameRect(FHandle, &Rect, FBrush.Handle());
    Changed();
}

void TCanvas::DrawFocusRect(const TRect& Rect)
{
    Changing();
    ::DrawFocusRect(FHandle, &Rect);
    Changed();
}

void TCanvas::Draw(int X, int Y, TGraphic* Graphic)
{
    if (Graphic)
        StretchDraw(Bounds(X, Y, Graphic->Width(), Graphic->Height()), Graphic);
}

void TCanvas::StretchDraw(const TRect& Rect, TGraphic* Graphic)
{
    if (!Graphic || Graphic->Empty())
        return;
    Changing();
    Graphic->Draw(*this, Rect);
    Changed();
}

void TCanvas::CopyRect(const TRect& Dest, TCanvas& Source, const TRect& From)
{
    Changing();
    StretchBlt(FHandle, static_cast<int>(Dest.left), static_cast<int>(Dest.top), RectWidth(Dest),
               RectHeight(Dest), Source.Handle(), static_cast<int>(From.left), static_cast<int>(From.top),
               RectWidth(From), RectHeight(From), SRCCOPY);
    Changed();
}

TColor TCanvas::Pixels(int X, int Y)
{
    NeedTools();
    return static_cast<TColor>(GetPixel(FHandle, X, Y));
}

void TCanvas::SetPixels(int X, int Y, TColor Value)
{
    Changing();
    SetPixel(FHandle, X, Y, ColorToRGB(Value));
    Changed();
}

TRect TCanvas::ClipRect()
{
    NeedTools();
    TRect Result{};
    GetClipBox(FHandle, &Result);
    return Result;
}

TScreenCanvas::TScreenCanvas() : FScreen(GetDC(nullptr))
{
    SetHandle(FScreen);
}

TScreenCanvas::~TScreenCanvas()
{
    SetHandle(nullptr);
    ReleaseDC(nullptr, FScreen);
}
