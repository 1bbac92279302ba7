#include "framework/forms/DibFile.h"

#include <cstring>
#include <optional>
#include <vector>

namespace {

constexpr size_t FileHeaderSize = 14;
constexpr size_t InfoHeaderSize = 40;
constexpr size_t IconHeaderSize = 6;
constexpr size_t IconEntrySize = 16;
constexpr int MaxSide = 32767;
constexpr DWORD WithPixels = 4; // CreateDIBitmap fills the bitmap

uint32_t Number(std::string_view Bytes, size_t Offset, size_t Count)
{
    uint32_t Result = 0;
    for (size_t Index = 0; Index < Count; ++Index)
        Result |= static_cast<uint32_t>(static_cast<unsigned char>(Bytes[Offset + Index])) << (8 * Index);
    return Result;
}

size_t RowSize(size_t Width, size_t Bits)
{
    return (Width * Bits + 31) / 32 * 4;
}

// One image whose counts have all been checked against the bytes there are.
struct TDib {
    std::vector<uint32_t> Info; // BITMAPINFO, aligned
    std::vector<uint32_t> Pixels;
    int Width = 0;
    int Height = 0;
    size_t ColorsEnd = 0; // from the start of the info header

    const BITMAPINFO* Header() const { return reinterpret_cast<const BITMAPINFO*>(Info.data()); }
};

bool IsKnownDepth(uint32_t Bits)
{
    return Bits == 1 || Bits == 4 || Bits == 8 || Bits == 16 || Bits == 24 || Bits == 32;
}

// Dib begins with the info header. PixelsAt is the offset of the pixels, 0 for
// directly after the colours. Icons give the height of image and mask together.
std::optional<TDib> ParseDib(std::string_view Bytes, size_t PixelsAt, bool IsIcon)
{
    if (Bytes.size() < InfoHeaderSize || Number(Bytes, 0, 4) < InfoHeaderSize)
        return std::nullopt;
    const size_t HeaderSize = Number(Bytes, 0, 4);
    TDib Result;
    Result.Width = static_cast<int>(Number(Bytes, 4, 4));
    const int Height = static_cast<int>(Number(Bytes, 8, 4)) / (IsIcon ? 2 : 1);
    if (Height < -MaxSide || Height > MaxSide)
        return std::nullopt;
    Result.Height = Height < 0 ? -Height : Height;
    const uint32_t Bits = Number(Bytes, 14, 2);
    const uint32_t Compression = Number(Bytes, 16, 4);
    const uint32_t Used = Number(Bytes, 32, 4);
    if (Result.Width <= 0 || Result.Width > MaxSide || Result.Height == 0 || !IsKnownDepth(Bits) ||
        Used > 256 || (Compression != BI_RGB && Compression != BI_BITFIELDS))
        return std::nullopt;
    size_t Colors = Bits <= 8 ? (Used ? Used : size_t{1} << Bits) : Used;
    if (Compression == BI_BITFIELDS && HeaderSize == InfoHeaderSize)
        Colors += 3;
    if (HeaderSize > Bytes.size() || Colors * 4 > Bytes.size() - HeaderSize)
        return std::nullopt;
    Result.ColorsEnd = HeaderSize + Colors * 4;
    if (PixelsAt == 0)
        PixelsAt = Result.ColorsEnd;
    const size_t Size = RowSize(static_cast<size_t>(Result.Width), Bits) * static_cast<size_t>(Result.Height);
    if (PixelsAt < Result.ColorsEnd || PixelsAt > Bytes.size() || Size > Bytes.size() - PixelsAt)
        return std::nullopt;
    Result.Info.resize((Result.ColorsEnd + 3) / 4 + 256);
    std::memcpy(Result.Info.data(), Bytes.data(), Result.ColorsEnd);
    reinterpret_cast<BITMAPINFO*>(Result.Info.data())->bmiHeader.biHeight = Height;
    Result.Pixels.resize(Size / 4);
    std::memcpy(Result.Pixels.data(), Bytes.data() + PixelsAt, Size);
    return Result;
}

HBITMAP MakeBitmap(const TDib& Dib)
{
    const HDC Screen = GetDC(nullptr);
    const HBITMAP Result = CreateDIBitmap(Screen, &Dib.Header()->bmiHeader, WithPixels, Dib.Pixels.data(),
                                          Dib.Header(), DIB_RGB_COLORS);
    ReleaseDC(nullptr, Screen);
    return Result;
}

// The bytes of the first image; empty when the directory is damaged.
std::string_view FirstIconImage(std::string_view File)
{
    TDibSize Size;
    if (!ReadIconFileSize(File, Size))
        return {};
    const size_t Length = Number(File, IconHeaderSize + 8, 4);
    const size_t Offset = Number(File, IconHeaderSize + 12, 4);
    if (Offset > File.size() || Length > File.size() - Offset)
        return {};
    return File.substr(Offset, Length);
}

// The mask below the image: one bit a pixel, bottom row first, turned around
// for CreateBitmap, whose rows have an even number of bytes.
HBITMAP MakeMask(std::string_view Image, const TDib& Dib)
{
    const auto Width = static_cast<size_t>(Dib.Width);
    const auto Height = static_cast<size_t>(Dib.Height);
    const size_t Row = RowSize(Width, 1);
    const size_t At = Dib.ColorsEnd + Dib.Pixels.size() * 4;
    const size_t TargetRow = (Width + 15) / 16 * 2;
    std::vector<uint8_t> Bits(TargetRow * Height, 0);
    if (At <= Image.size() && Row * Height <= Image.size() - At)
        for (size_t Y = 0; Y < Height; ++Y)
            std::memcpy(&Bits[Y * TargetRow], Image.data() + At + (Height - 1 - Y) * Row, TargetRow);
    return CreateBitmap(Dib.Width, Dib.Height, 1, 1, Bits.data());
}

template<class T>
void Append(std::string& Bytes, const T& Value)
{
    Bytes.append(reinterpret_cast<const char*>(&Value), sizeof Value);
}

} // namespace

bool ReadDibFileSize(std::string_view File, TDibSize& Size)
{
    if (File.size() < FileHeaderSize + InfoHeaderSize || File.substr(0, 2) != "BM")
        return false;
    const int Width = static_cast<int>(Number(File, FileHeaderSize + 4, 4));
    const int Height = static_cast<int>(Number(File, FileHeaderSize + 8, 4));
    if (Width < 0 || Width > MaxSide || Height < -MaxSide || Height > MaxSide)
        return false;
    Size = {Width, Height < 0 ? -Height : Height};
    return true;
}

HBITMAP BitmapFromDibFile(std::string_view File)
{
    TDibSize Size;
    if (!ReadDibFileSize(File, Size))
        return nullptr;
    const size_t PixelsAt = Number(File, 10, 4);
    if (PixelsAt < FileHeaderSize)
        return nullptr;
    const auto Dib = ParseDib(File.substr(FileHeaderSize), PixelsAt - FileHeaderSize, false);
    return Dib ? MakeBitmap(*Dib) : nullptr;
}

std::string DibFileFromBitmap(HBITMAP Bitmap)
{
    BITMAP Info{};
    if (!GetObjectA(Bitmap, sizeof Info, &Info) || Info.bmWidth <= 0 || Info.bmHeight <= 0)
        return {};
    BITMAPINFO Header{};
    Header.bmiHeader.biSize = InfoHeaderSize;
    Header.bmiHeader.biWidth = Info.bmWidth;
    Header.bmiHeader.biHeight = Info.bmHeight;
    Header.bmiHeader.biPlanes = 1;
    Header.bmiHeader.biBitCount = 24;
    const size_t Size = RowSize(static_cast<size_t>(Info.bmWidth), 24) * static_cast<size_t>(Info.bmHeight);
    Header.bmiHeader.biSizeImage = static_cast<DWORD>(Size);
    std::string Pixels(Size, '\0');
    const HDC Screen = GetDC(nullptr);
    GetDIBits(Screen, Bitmap, 0, static_cast<UINT>(Info.bmHeight), Pixels.data(), &Header, DIB_RGB_COLORS);
    ReleaseDC(nullptr, Screen);
    std::string Result = "BM";
    Append(Result, static_cast<uint32_t>(FileHeaderSize + InfoHeaderSize + Size));
    Append(Result, uint32_t{0});
    Append(Result, static_cast<uint32_t>(FileHeaderSize + InfoHeaderSize));
    Append(Result, Header.bmiHeader);
    return Result + Pixels;
}

bool ReadIconFileSize(std::string_view File, TDibSize& Size)
{
    if (File.size() < IconHeaderSize + IconEntrySize || Number(File, 0, 4) != 0x10000 ||
        Number(File, 4, 2) == 0)
        return false;
    const auto Side = [&](size_t Offset) {
        const int Value = static_cast<int>(Number(File, Offset, 1));
        return Value == 0 ? 256 : Value;
    };
    Size = {Side(IconHeaderSize), Side(IconHeaderSize + 1)};
    return true;
}

HICON IconFromFile(std::string_view File)
{
    const std::string_view Image = FirstIconImage(File);
    const auto Dib = ParseDib(Image, 0, true);
    if (!Dib)
        return nullptr;
    ICONINFO Info{};
    Info.fIcon = TRUE;
    Info.hbmColor = MakeBitmap(*Dib);
    Info.hbmMask = MakeMask(Image, *Dib);
    const HICON Result = Info.hbmColor && Info.hbmMask ? CreateIconIndirect(&Info) : nullptr;
    if (Info.hbmColor)
        DeleteObject(Info.hbmColor);
    if (Info.hbmMask)
        DeleteObject(Info.hbmMask);
    return Result;
}
