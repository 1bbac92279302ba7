#include "framework/forms/DibFile.h"
#include "framework/forms/Pictures.h"
#include "framework/rtl/Streams.h"
#include "framework/rtl/SysUtils.h"

#include <vector>

// Selects the bitmap into a context of its own while somebody draws into it.
class TBitmap::TBitmapCanvas : public TCanvas {
public:
    explicit TBitmapCanvas(TBitmap& Bitmap)
    {
        const HDC Screen = GetDC(nullptr);
        FDc = CreateCompatibleDC(Screen);
        ReleaseDC(nullptr, Screen);
        FOldBitmap = SelectObject(FDc, Bitmap.Handle());
        SetHandle(FDc);
    }
    ~TBitmapCanvas() override
    {
        SetHandle(nullptr);
        SelectObject(FDc, FOldBitmap);
        DeleteDC(FDc);
    }

private:
    HDC FDc = nullptr;
    HGDIOBJ FOldBitmap = nullptr;
};

const TMetaClass& TBitmap::MetaClass()
{
    static const TMetaClass Class("TBitmap", &TGraphic::MetaClass(), nullptr);
    return Class;
}

TBitmap::TBitmap() = default;

TBitmap::~TBitmap()
{
    FreeHandle();
}

void TBitmap::FreeCanvas()
{
    FCanvas.reset();
}

void TBitmap::FreeHandle()
{
    FreeCanvas();
    if (FHandle)
        DeleteObject(FHandle);
    FHandle = nullptr;
}

void TBitmap::SetBytes(std::string Value)
{
    FreeHandle();
    FBytes = std::move(Value);
    TDibSize Size;
    ReadDibFileSize(FBytes, Size);
    FWidth = Size.Width;
    FHeight = Size.Height;
    Changed();
}

void TBitmap::Assign(const TPersistent* Source)
{
    const auto* const Other = dynamic_cast<const TBitmap*>(Source);
    if (Source && !Other)
        return inherited::Assign(Source);
    TMemoryStream Stream;
    if (Other)
        Other->SaveToStream(Stream);
    FHasLength = true;
    SetBytes(Stream.Bytes());
}

HBITMAP TBitmap::Handle()
{
    if (!FHandle && !FBytes.empty())
        FHandle = BitmapFromDibFile(FBytes);
    return FHandle;
}

void TBitmap::SetHandle(HBITMAP Value)
{
    FreeHandle();
    FBytes.clear();
    FHandle = Value;
    BITMAP Info{};
    if (Value)
        GetObjectA(Value, sizeof Info, &Info);
    FWidth = static_cast<int>(Info.bmWidth);
    FHeight = static_cast<int>(Info.bmHeight);
    Changed();
}

void TBitmap::SetSize(int NewWidth, int NewHeight)
{
    if (NewWidth == FWidth && NewHeight == FHeight)
        return;
    TBitmap Old;
    Old.Assign(this);
    HBITMAP Fresh = nullptr;
    if (NewWidth > 0 && NewHeight > 0) {
        const HDC Screen = GetDC(nullptr);
        Fresh = CreateCompatibleBitmap(Screen, NewWidth, NewHeight);
        ReleaseDC(nullptr, Screen);
    }
    SetHandle(Fresh);
    if (!Fresh)
        return;
    Canvas()->FillRect(Bounds(0, 0, NewWidth, NewHeight));
    Canvas()->Draw(0, 0, &Old);
}

TCanvas* TBitmap::Canvas()
{
    if (!FCanvas && Handle()) {
        FCanvas = std::make_unique<TBitmapCanvas>(*this);
        FCanvas->OnChange = {this, &TBitmap::CanvasChanged};
    }
    if (!FCanvas)
        throw EInvalidGraphicOperation(SInvalidBitmap);
    return FCanvas.get();
}

void TBitmap::CanvasChanged(TObject*)
{
    FBytes.clear();
    Changed();
}

// The lower left pixel, as glyphs have it.
TColor TBitmap::TransparentColor()
{
    if (!Handle() || FHeight == 0)
        return clNone;
    return Canvas()->Pixels(0, FHeight - 1);
}

void TBitmap::Draw(TCanvas& Target, const TRect& Rect)
{
    if (!Handle() || &Target == FCanvas.get())
        return;
    const bool SameSize = RectWidth(Rect) == FWidth && RectHeight(Rect) == FHeight;
    if (Transparent() && SameSize)
        DrawTransparent(Target, static_cast<int>(Rect.left), static_cast<int>(Rect.top));
    else
        StretchBlt(Target.Handle(), static_cast<int>(Rect.left), static_cast<int>(Rect.top), RectWidth(Rect),
                   RectHeight(Rect), Canvas()->Handle(), 0, 0, FWidth, FHeight, SRCCOPY);
    FreeCanvas();
}

void TBitmap::DrawTransparent(TCanvas& Target, int X, int Y)
{
    const HDC From = Canvas()->Handle();
    const HDC To = Target.Handle();
    const COLORREF Background = GetPixel(From, 0, FHeight - 1);
    for (int Row = 0; Row < FHeight; ++Row)
        for (int Column = 0; Column < FWidth; ++Column)
            if (const COLORREF Pixel = GetPixel(From, Column, Row); Pixel != Background)
                SetPixelV(To, X + Column, Y + Row, Pixel);
}

void TBitmap::LoadFromStream(TStream& Stream)
{
    std::string Bytes = Stream.ReadRest();
    TDibSize Size;
    if (!Bytes.empty() && !ReadDibFileSize(Bytes, Size))
        throw EInvalidGraphic(SInvalidBitmap);
    FHasLength = true;
    SetBytes(std::move(Bytes));
}

void TBitmap::SaveToStream(TStream& Stream) const
{
    if (FBytes.empty() && FHandle) {
        // Bits are read only from a bitmap that no context has.
        const_cast<TBitmap*>(this)->FreeCanvas();
        Stream.WriteBytes(DibFileFromBitmap(FHandle));
    } else {
        Stream.WriteBytes(FBytes);
    }
}

// The length in four bytes, then the file. Data of other frameworks that lack the
// length are kept as they are.
void TBitmap::ReadData(TStream& Stream)
{
    std::string Bytes = Stream.ReadRest();
    FHasLength = false;
    if (Bytes.size() >= 4) {
        uint32_t Length = 0;
        for (int Index = 3; Index >= 0; --Index)
            Length = Length << 8 | static_cast<unsigned char>(Bytes[static_cast<size_t>(Index)]);
        FHasLength = Length == Bytes.size() - 4;
    }
    if (FHasLength)
        Bytes.erase(0, 4);
    SetBytes(std::move(Bytes));
}

void TBitmap::WriteData(TStream& Stream) const
{
    TMemoryStream Bytes;
    SaveToStream(Bytes);
    if (FHasLength) {
        const auto Length = static_cast<uint32_t>(Bytes.Size());
        for (int Shift = 0; Shift < 32; Shift += 8) {
            const auto Byte = static_cast<unsigned char>(Length >> Shift);
            Stream.WriteBuffer(&Byte, 1);
        }
    }
    Stream.WriteBytes(Bytes.Bytes());
}
