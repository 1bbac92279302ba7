// Drawing on a device context with a font, a pen and a brush.
#pragma once

#include <string>

#include "framework/forms/PensBrushes.h"
#include "framework/forms/Types.h"

class TGraphic;

// Coordinates are pixels; right and bottom are exclusive. Whoever owns the canvas
// gives it a handle before drawing; without one, drawing raises
// EInvalidOperation "Canvas does not allow drawing".
class TCanvas : public TPersistent {
    OBX_CLASS(TPersistent)
public:
    TCanvas();
    ~TCanvas() override;

    TFont* Font() { return &FFont; }
    TPen* Pen() { return &FPen; }
    TBrush* Brush() { return &FBrush; }

    // The device context; not owned. Null takes it away.
    HDC Handle();
    void SetHandle(HDC Value);
    bool HandleAllocated() const { return FHandle != nullptr; }

    void TextOut(int X, int Y, const std::string& Text);
    // Only what lies inside Rect is drawn; the brush fills it first.
    void TextRect(const TRect& Rect, int X, int Y, const std::string& Text);
    TSize TextExtent(const std::string& Text);
    int TextWidth(const std::string& Text) { return static_cast<int>(TextExtent(Text).cx); }
    int TextHeight(const std::string& Text) { return static_cast<int>(TextExtent(Text).cy); }
    // DT_ flags; DT_CALCRECT changes Rect only. Returns the text's height.
    int DrawText(const std::string& Text, TRect& Rect, UINT Flags);

    void MoveTo(int X, int Y);
    void LineTo(int X, int Y);
    void Rectangle(int Left, int Top, int Right, int Bottom);
    void Rectangle(const TRect& Rect);
    void RoundRect(int Left, int Top, int Right, int Bottom, int Width, int Height);
    void Ellipse(int Left, int Top, int Right, int Bottom);
    void Ellipse(const TRect& Rect);
    void Polygon(const TPoint* Points, int Count);
    void Polyline(const TPoint* Points, int Count);
    void FillRect(const TRect& Rect);
    void FrameRect(const TRect& Rect);
    void DrawFocusRect(const TRect& Rect);
    void Draw(int X, int Y, TGraphic* Graphic);
    void StretchDraw(const TRect& Rect, TGraphic* Graphic);
    // Copies from another canvas, stretched when the sizes differ.
    void CopyRect(const TRect& Dest, TCanvas& Source, const TRect& From);
    TColor Pixels(int X, int Y);
    void SetPixels(int X, int Y, TColor Value);
    TRect ClipRect();

    TNotifyEvent OnChange;
    TNotifyEvent OnChanging;

protected:
    // Called when something is drawn while there is no handle; may set one.
    virtual void CreateHandle() {}
    virtual void Changed();
    virtual void Changing();

private:
    void RequireHandle();
    void NeedTools();
    void NeedFont();
    void NeedPen();
    void NeedBrush();
    void Deselect();
    void FontChanged(TObject* Sender);
    void PenChanged(TObject* Sender);
    void BrushChanged(TObject* Sender);

    HDC FHandle = nullptr;
    TFont FFont;
    TPen FPen;
    TBrush FBrush;
    HGDIOBJ FOldFont = nullptr;
    HGDIOBJ FOldPen = nullptr;
    HGDIOBJ FOldBrush = nullptr;
    bool FFontValid = false;
    bool FPenValid = false;
    bool FBrushValid = false;
};

// A context of the whole screen's kind to measure texts with, no window needed.
class TScreenCanvas : public TCanvas {
public:
    TScreenCanvas();
    ~TScreenCanvas() override;

private:
    HDC FScreen;
};
