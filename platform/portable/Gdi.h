// Drawing objects and device contexts behind the handles of wingdi.h.
// Inner interface of platform/portable: only its own sources include it.
// User-interface thread only.
#pragma once

#include <cairo.h>
#include <memory>
#include <vector>

#include "platform/portable/wingdi.h"

struct TFontFace;

struct TGdiObject {
    TGdiObject() = default;
    TGdiObject(const TGdiObject&) = delete;
    TGdiObject& operator=(const TGdiObject&) = delete;
    virtual ~TGdiObject() = default;
    virtual DWORD Kind() const = 0;

    bool Stock = false;
    bool Doomed = false; // deleted while selected; goes when the last context lets go
    int Selected = 0;    // contexts that hold it
};

struct TGdiPen final : TGdiObject {
    DWORD Kind() const override { return OBJ_PEN; }
    LOGPEN Pen{};
};

struct TGdiBrush final : TGdiObject {
    ~TGdiBrush() override;
    DWORD Kind() const override { return OBJ_BRUSH; }
    LOGBRUSH Brush{};
    cairo_surface_t* Pattern = nullptr;
};

struct TGdiFont final : TGdiObject {
    DWORD Kind() const override { return OBJ_FONT; }
    LOGFONTA Font{};
    std::shared_ptr<TFontFace> Face; // made on first use
};

// The surface holds the picture from top to bottom; a device independent bitmap
// also has Bits in its own layout, which its user may read and write directly.
struct TGdiBitmap final : TGdiObject {
    ~TGdiBitmap() override;
    DWORD Kind() const override { return OBJ_BITMAP; }
    BITMAP Info{};
    BITMAPINFOHEADER Header{};
    std::vector<RGBQUAD> Palette;
    std::vector<BYTE> Bits;
    cairo_surface_t* Surface = nullptr;
};

struct TGdiRegion final : TGdiObject {
    TGdiRegion();
    ~TGdiRegion() override;
    DWORD Kind() const override { return OBJ_REGION; }
    cairo_region_t* Region = nullptr;
};

struct TDcState {
    HFONT Font = nullptr;
    HBRUSH Brush = nullptr;
    HPEN Pen = nullptr;
    COLORREF TextColor = 0;
    COLORREF BkColor = 0xFFFFFF;
    COLORREF BrushColor = 0xFFFFFF;
    COLORREF PenColor = 0;
    int BkMode = OPAQUE;
    int Rop2 = R2_COPYPEN;
    int StretchMode = BLACKONWHITE;
    UINT TextAlign = 0;
    DWORD Layout = 0;
    POINT Viewport{};
    POINT WindowOrg{};
    POINT Position{};
    std::shared_ptr<cairo_region_t> Clip; // device coordinates; none: everything
};

// A context draws on Surface; without one (the context of a window that is not
// being painted) it only measures.
struct TGdiContext final : TGdiObject {
    ~TGdiContext() override;
    DWORD Kind() const override { return Memory ? OBJ_MEMDC : OBJ_DC; }
    bool Memory = false;
    HWND Window = nullptr;
    cairo_surface_t* Surface = nullptr;      // referenced
    POINT Origin{};                          // device (0, 0) on the surface
    SIZE Size{};                             // of the drawable part, from device (0, 0)
    std::shared_ptr<cairo_region_t> Visible; // device coordinates; none: all of Size
    HBITMAP Bitmap = nullptr;
    TDcState State;
    std::vector<TDcState> Saved;
};

// Puts Object into the table and returns its handle.
HGDIOBJ AddGdiObject(std::unique_ptr<TGdiObject> Object);
TGdiObject* FindGdiObject(const void* Handle);
template<class T>
T* FindGdi(const void* Handle)
{
    return dynamic_cast<T*>(FindGdiObject(Handle));
}
void SelectGdiObject(const void* Handle);
void DeselectGdiObject(const void* Handle);
// From now on Handle belongs to the system: never deleted and not counted.
void KeepAsStock(const void* Handle);
int CountGdiObjects();

// A context that draws on Surface (referenced) from Origin on, or only measures
// when Surface is null. Freed with FreeContext.
HDC NewContext(HWND Window, cairo_surface_t* Surface, POINT Origin, SIZE Size);
void FreeContext(HDC Dc);

std::shared_ptr<cairo_region_t> MakeRegion(cairo_region_t* Region);
cairo_region_t* RectRegion(int Left, int Top, int Right, int Bottom);

// A bitmap of a file or resource as the surface that it shows, top row first.
// Null when Info is not a layout of 1, 4, 8, 16, 24 or 32 bits without compression.
cairo_surface_t* SurfaceOfDib(const BITMAPINFO& Info, const void* Bits);

// Copies between a bitmap's own bits and its surface; nothing to do for others.
void ReadBitmapBits(TGdiBitmap& Bitmap);
void WriteBitmapBits(TGdiBitmap& Bitmap);

struct TGdiColor {
    double Red, Green, Blue;
};
TGdiColor ColorOf(COLORREF Color);

// While it lives, a Cairo context on the device context's surface, in logical
// coordinates and clipped as the device context is. False when there is nothing
// to draw on.
class TDrawing {
public:
    explicit TDrawing(HDC Dc);
    ~TDrawing();
    TDrawing(const TDrawing&) = delete;
    TDrawing& operator=(const TDrawing&) = delete;
    explicit operator bool() const { return FCairo != nullptr; }
    operator cairo_t*() const { return FCairo; }
    TGdiContext& Context() const { return *FContext; }
    void SetColor(COLORREF Color) const;
    // Fills the current path with Brush; false for a hollow brush.
    bool FillWith(HBRUSH Brush) const;
    // Draws the current path with the selected pen.
    void StrokeWithPen() const;

private:
    TGdiContext* FContext;
    cairo_t* FCairo = nullptr;
};
