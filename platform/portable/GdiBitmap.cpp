#include <algorithm>
#include <cmath>
#include <cstring>
#include <optional>

#include "platform/portable/Gdi.h"

// Bitmaps with their own bits: rows padded to four bytes, the last row of the
// picture first unless the height is negative, colours as blue, green, red.
namespace {
constexpr int LargestSide = 32767;

int RowBytes(int Width, int BitCount)
{
    return (Width * BitCount + 31) / 32 * 4;
}

// Bitmaps that CreateBitmap takes have rows padded to two bytes.
int ShortRowBytes(int Width, int BitCount)
{
    return (Width * BitCount + 15) / 16 * 2;
}

bool Usable(const BITMAPINFOHEADER& Header)
{
    const int Bits = Header.biBitCount;
    const bool KnownBits = Bits == 1 || Bits == 4 || Bits == 8 || Bits == 16 || Bits == 24 || Bits == 32;
    return Header.biSize >= sizeof(BITMAPINFOHEADER) && KnownBits && Header.biWidth > 0 &&
           Header.biHeight != 0 && Header.biWidth <= LargestSide && Header.biHeight >= -LargestSide &&
           Header.biHeight <= LargestSide &&
           (Header.biCompression == BI_RGB || (Header.biCompression == BI_BITFIELDS && Bits == 32));
}

int PaletteSize(const BITMAPINFOHEADER& Header)
{
    if (Header.biBitCount > 8)
        return 0;
    const int Full = 1 << Header.biBitCount;
    return Header.biClrUsed ? std::min<int>(static_cast<int>(Header.biClrUsed), Full) : Full;
}

std::vector<RGBQUAD> ReadPalette(const BITMAPINFO& Info)
{
    const int Count = PaletteSize(Info.bmiHeader);
    const auto* const Start = reinterpret_cast<const BYTE*>(&Info) + Info.bmiHeader.biSize;
    std::vector<RGBQUAD> Result(static_cast<std::size_t>(Count));
    if (Count > 0)
        std::memcpy(Result.data(), Start, Result.size() * sizeof(RGBQUAD));
    return Result;
}

std::uint32_t ColorAt(const std::vector<RGBQUAD>& Palette, unsigned Index)
{
    if (Index >= Palette.size())
        return 0;
    const auto& Entry = Palette[Index];
    return static_cast<std::uint32_t>(Entry.rgbRed << 16 | Entry.rgbGreen << 8 | Entry.rgbBlue);
}

std::uint32_t ReadPixel(const BYTE* Row, int X, int BitCount, const std::vector<RGBQUAD>& Palette)
{
    switch (BitCount) {
    case 1:
        return ColorAt(Palette, static_cast<unsigned>(Row[X / 8] >> (7 - X % 8)) & 1u);
    case 4:
        return ColorAt(Palette, static_cast<unsigned>(Row[X / 2] >> (X % 2 ? 0 : 4)) & 15u);
    case 8:
        return ColorAt(Palette, Row[X]);
    case 16: {
        const unsigned Pixel = Row[X * 2] | static_cast<unsigned>(Row[X * 2 + 1]) << 8;
        const auto Wide = [](unsigned Five) { return (Five << 3) | (Five >> 2); };
        return Wide(Pixel >> 10 & 31) << 16 | Wide(Pixel >> 5 & 31) << 8 | Wide(Pixel & 31);
    }
    case 24:
        return static_cast<std::uint32_t>(Row[X * 3 + 2] << 16 | Row[X * 3 + 1] << 8 | Row[X * 3]);
    default:
        return static_cast<std::uint32_t>(Row[X * 4 + 2] << 16 | Row[X * 4 + 1] << 8 | Row[X * 4]);
    }
}

unsigned Nearest(const std::vector<RGBQUAD>& Palette, std::uint32_t Color)
{
    unsigned Best = 0;
    int BestDistance = 1 << 30;
    for (unsigned Index = 0; Index < Palette.size(); ++Index) {
        const std::uint32_t Entry = ColorAt(Palette, Index);
        int Distance = 0;
        for (const int Shift : {0, 8, 16}) {
            const int Difference =
                static_cast<int>(Entry >> Shift & 255) - static_cast<int>(Color >> Shift & 255);
            Distance += Difference * Difference;
        }
        if (Distance < BestDistance) {
            Best = Index;
            BestDistance = Distance;
        }
    }
    return Best;
}

void WritePixel(BYTE* Row, int X, int BitCount, const std::vector<RGBQUAD>& Palette, std::uint32_t Color)
{
    const auto Part = [](unsigned Value) { return static_cast<BYTE>(Value); };
    switch (BitCount) {
    case 1:
    case 4: {
        const int PerByte = 8 / BitCount, Shift = (PerByte - 1 - X % PerByte) * BitCount;
        const unsigned Mask = ((1u << BitCount) - 1) << Shift;
        Row[X / PerByte] = Part((Row[X / PerByte] & ~Mask) | (Nearest(Palette, Color) << Shift & Mask));
        break;
    }
    case 8:
        Row[X] = Part(Nearest(Palette, Color));
        break;
    case 16: {
        const unsigned Pixel = (Color >> 19 & 31) << 10 | (Color >> 11 & 31) << 5 | (Color >> 3 & 31);
        Row[X * 2] = Part(Pixel);
        Row[X * 2 + 1] = Part(Pixel >> 8);
        break;
    }
    default: {
        BYTE* const Pixel = Row + X * (BitCount / 8);
        Pixel[0] = Part(Color);
        Pixel[1] = Part(Color >> 8);
        Pixel[2] = Part(Color >> 16);
        if (BitCount == 32)
            Pixel[3] = 0;
    }
    }
}

std::uint32_t* SurfaceRow(cairo_surface_t* Surface, int Y)
{
    return reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(Surface) +
                                            std::ptrdiff_t{Y} * cairo_image_surface_get_stride(Surface));
}

// A picture in a surface and in rows of bits. Start is the first row that Bits
// holds, counted in the order of the bits.
struct TTransfer {
    const BITMAPINFOHEADER& Header;
    const std::vector<RGBQUAD>& Palette;
    cairo_surface_t* Surface;
    int Start;
    int Lines;

    int SurfaceY(int Line) const
    {
        const int Height = std::abs(Header.biHeight);
        return Header.biHeight > 0 ? Height - 1 - (Start + Line) : Start + Line;
    }

    template<class T>
    void ForRows(T Work) const
    {
        const int Width = std::min(Header.biWidth, cairo_image_surface_get_width(Surface));
        const int Stride = RowBytes(Header.biWidth, Header.biBitCount);
        cairo_surface_flush(Surface);
        for (int Line = 0; Line < Lines; ++Line)
            if (const int Y = SurfaceY(Line); Y >= 0 && Y < cairo_image_surface_get_height(Surface))
                Work(SurfaceRow(Surface, Y), std::ptrdiff_t{Line} * Stride, Width);
        cairo_surface_mark_dirty(Surface);
    }

    void ToSurface(const BYTE* Bits) const
    {
        ForRows([&](std::uint32_t* Row, std::ptrdiff_t Offset, int Width) {
            for (int X = 0; X < Width; ++X)
                Row[X] = 0xFF000000 | ReadPixel(Bits + Offset, X, Header.biBitCount, Palette);
        });
    }

    void FromSurface(BYTE* Bits) const
    {
        ForRows([&](const std::uint32_t* Row, std::ptrdiff_t Offset, int Width) {
            for (int X = 0; X < Width; ++X)
                WritePixel(Bits + Offset, X, Header.biBitCount, Palette, Row[X] & 0xFFFFFF);
        });
    }
};

std::unique_ptr<TGdiBitmap> NewBitmap(int Width, int Height, int BitCount)
{
    if (Width <= 0 || Height <= 0 || Width > LargestSide || Height > LargestSide)
        return nullptr;
    auto Bitmap = std::make_unique<TGdiBitmap>();
    Bitmap->Info = {0,      Width, Height, ShortRowBytes(Width, BitCount), 1, static_cast<WORD>(BitCount),
                    nullptr};
    Bitmap->Surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, Width, Height);
    if (cairo_surface_status(Bitmap->Surface) != CAIRO_STATUS_SUCCESS)
        return nullptr;
    return Bitmap;
}

std::vector<RGBQUAD> BlackAndWhite()
{
    return {{0, 0, 0, 0}, {255, 255, 255, 0}};
}

std::vector<RGBQUAD> DefaultPalette(int BitCount)
{
    if (BitCount == 1)
        return BlackAndWhite();
    std::vector<RGBQUAD> Result;
    if (BitCount > 8)
        return Result;
    const int Count = 1 << BitCount;
    for (int Index = 0; Index < Count; ++Index) {
        const auto Grey = static_cast<BYTE>(Index * 255 / (Count - 1));
        Result.push_back({Grey, Grey, Grey, 0});
    }
    return Result;
}
} // namespace

TGdiBitmap::~TGdiBitmap()
{
    if (Surface)
        cairo_surface_destroy(Surface);
}

void ReadBitmapBits(TGdiBitmap& Bitmap)
{
    if (!Bitmap.Bits.empty())
        TTransfer{Bitmap.Header, Bitmap.Palette, Bitmap.Surface, 0, Bitmap.Info.bmHeight}.ToSurface(
            Bitmap.Bits.data());
}

void WriteBitmapBits(TGdiBitmap& Bitmap)
{
    if (!Bitmap.Bits.empty())
        TTransfer{Bitmap.Header, Bitmap.Palette, Bitmap.Surface, 0, Bitmap.Info.bmHeight}.FromSurface(
            Bitmap.Bits.data());
}

cairo_surface_t* SurfaceOfDib(const BITMAPINFO& Info, const void* Bits)
{
    if (!Usable(Info.bmiHeader) || !Bits)
        return nullptr;
    const int Height = std::abs(Info.bmiHeader.biHeight);
    auto* const Surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, Info.bmiHeader.biWidth, Height);
    const auto Palette = ReadPalette(Info);
    TTransfer{Info.bmiHeader, Palette, Surface, 0, Height}.ToSurface(static_cast<const BYTE*>(Bits));
    return Surface;
}

HBITMAP CreateBitmap(int Width, int Height, UINT, UINT BitCount, const void* Bits)
{
    auto Bitmap = NewBitmap(Width, Height, static_cast<int>(BitCount));
    if (!Bitmap)
        return nullptr;
    if (Bits) {
        const auto Palette = DefaultPalette(static_cast<int>(BitCount));
        for (int Y = 0; Y < Height; ++Y) {
            const auto* const From =
                static_cast<const BYTE*>(Bits) + std::ptrdiff_t{Y} * Bitmap->Info.bmWidthBytes;
            for (int X = 0; X < Width; ++X)
                SurfaceRow(Bitmap->Surface, Y)[X] =
                    0xFF000000 | ReadPixel(From, X, static_cast<int>(BitCount), Palette);
        }
        cairo_surface_mark_dirty(Bitmap->Surface);
    }
    return static_cast<HBITMAP>(AddGdiObject(std::move(Bitmap)));
}

HBITMAP CreateCompatibleBitmap(HDC Dc, int Width, int Height)
{
    return FindGdi<TGdiContext>(Dc) ? CreateBitmap(std::max(Width, 1), std::max(Height, 1), 1, 32, nullptr)
                                    : nullptr;
}

HBITMAP CreateDIBSection(HDC, const BITMAPINFO* Info, UINT, void** Bits, HANDLE, DWORD)
{
    if (Bits)
        *Bits = nullptr;
    if (!Info || !Usable(Info->bmiHeader))
        return nullptr;
    const auto& Header = Info->bmiHeader;
    const int Height = std::abs(Header.biHeight);
    auto Bitmap = NewBitmap(Header.biWidth, Height, Header.biBitCount);
    if (!Bitmap)
        return nullptr;
    Bitmap->Header = Header;
    Bitmap->Palette = ReadPalette(*Info);
    Bitmap->Info.bmWidthBytes = RowBytes(Header.biWidth, Header.biBitCount);
    Bitmap->Bits.resize(static_cast<std::size_t>(Bitmap->Info.bmWidthBytes) *
                        static_cast<std::size_t>(Height));
    Bitmap->Info.bmBits = Bitmap->Bits.data();
    if (Bits)
        *Bits = Bitmap->Bits.data();
    return static_cast<HBITMAP>(AddGdiObject(std::move(Bitmap)));
}

HBITMAP CreateDIBitmap(HDC Dc, const BITMAPINFOHEADER* Header, DWORD Init, const void* Bits,
                       const BITMAPINFO* Info, UINT Usage)
{
    constexpr DWORD InitFromBits = 4;
    if (!Header)
        return nullptr;
    const HBITMAP Result = CreateBitmap(Header->biWidth, std::abs(Header->biHeight), 1, 32, nullptr);
    if (Result && (Init & InitFromBits) && Bits && Info)
        SetDIBits(Dc, Result, 0, static_cast<UINT>(std::abs(Header->biHeight)), Bits, Info, Usage);
    return Result;
}

int SetDIBits(HDC, HBITMAP Handle, UINT Start, UINT Lines, const void* Bits, const BITMAPINFO* Info, UINT)
{
    auto* const Bitmap = FindGdi<TGdiBitmap>(Handle);
    if (!Bitmap || !Info || !Bits || !Usable(Info->bmiHeader))
        return 0;
    const int Height = std::abs(Info->bmiHeader.biHeight);
    if (Start >= static_cast<UINT>(Height))
        return 0;
    const int Count = static_cast<int>(std::min(Lines, static_cast<UINT>(Height) - Start));
    const auto Palette = ReadPalette(*Info);
    TTransfer{Info->bmiHeader, Palette, Bitmap->Surface, static_cast<int>(Start), Count}.ToSurface(
        static_cast<const BYTE*>(Bits));
    WriteBitmapBits(*Bitmap);
    return Count;
}

int GetDIBits(HDC, HBITMAP Handle, UINT Start, UINT Lines, LPVOID Bits, BITMAPINFO* Info, UINT)
{
    auto* const Bitmap = FindGdi<TGdiBitmap>(Handle);
    if (!Bitmap || !Info || Info->bmiHeader.biSize < sizeof(BITMAPINFOHEADER))
        return 0;
    auto& Header = Info->bmiHeader;
    if (Header.biBitCount == 0) { // only asks what the bitmap is like
        Header.biWidth = Bitmap->Info.bmWidth;
        Header.biHeight = Bitmap->Info.bmHeight;
        Header.biPlanes = 1;
        Header.biBitCount = Bitmap->Info.bmBitsPixel;
        Header.biCompression = BI_RGB;
        Header.biSizeImage =
            static_cast<DWORD>(RowBytes(Header.biWidth, Header.biBitCount) * Header.biHeight);
        return 1;
    }
    if (!Usable(Header))
        return 0;
    const int Height = std::abs(Header.biHeight);
    Header.biSizeImage = static_cast<DWORD>(RowBytes(Header.biWidth, Header.biBitCount) * Height);
    const bool OwnPalette = !Bitmap->Palette.empty() && Bitmap->Header.biBitCount == Header.biBitCount;
    const auto Palette = OwnPalette ? Bitmap->Palette : DefaultPalette(Header.biBitCount);
    if (!Palette.empty()) {
        Header.biClrUsed = 0;
        std::memcpy(reinterpret_cast<BYTE*>(Info) + Header.biSize, Palette.data(),
                    Palette.size() * sizeof(RGBQUAD));
    }
    if (!Bits)
        return Height;
    ReadBitmapBits(*Bitmap);
    const int Count = static_cast<int>(
        std::min<UINT>(Lines, static_cast<UINT>(Height) - std::min<UINT>(Start, static_cast<UINT>(Height))));
    TTransfer{Header, Palette, Bitmap->Surface, static_cast<int>(Start), Count}.FromSurface(
        static_cast<BYTE*>(Bits));
    return Count;
}
