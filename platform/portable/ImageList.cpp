#include <algorithm>
#include <cstdint>
#include <unordered_set>
#include <utility>

#include "platform/portable/Gdi.h"
#include "platform/portable/StandardIcons.h"
#include "platform/portable/commctrl.h"

// Each image is a surface with transparency.
struct _IMAGELIST {
    int Width = 0;
    int Height = 0;
    UINT Flags = 0;
    COLORREF Back = CLR_NONE;
    std::vector<std::shared_ptr<cairo_surface_t>> Images;
};

namespace {
using TImage = std::shared_ptr<cairo_surface_t>;

std::unordered_set<HIMAGELIST>& Lists()
{
    static auto& Only = *new std::unordered_set<HIMAGELIST>;
    return Only;
}

bool Known(HIMAGELIST List)
{
    return Lists().count(List) != 0;
}

bool HasIndex(HIMAGELIST List, int Index)
{
    return Known(List) && Index >= 0 && Index < static_cast<int>(List->Images.size());
}

TImage NewImage(int Width, int Height)
{
    return {cairo_image_surface_create(CAIRO_FORMAT_ARGB32, Width, Height), cairo_surface_destroy};
}

std::uint32_t& PixelAt(cairo_surface_t* Surface, int X, int Y)
{
    return reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(Surface) +
                                            std::ptrdiff_t{Y} * cairo_image_surface_get_stride(Surface))[X];
}

std::uint32_t Rgb(COLORREF Color)
{
    return static_cast<std::uint32_t>(GetRValue(Color) << 16 | GetGValue(Color) << 8 | GetBValue(Color));
}

// The part of Bitmap from Left on; Opaque tells of each pixel whether it shows.
template<class T>
TImage CutImage(const _IMAGELIST& List, TGdiBitmap& Bitmap, int Left, T Opaque)
{
    const auto Image = NewImage(List.Width, List.Height);
    cairo_surface_flush(Image.get());
    for (int Y = 0; Y < std::min(List.Height, Bitmap.Info.bmHeight); ++Y)
        for (int X = 0; X < List.Width && Left + X < Bitmap.Info.bmWidth; ++X) {
            const std::uint32_t Color = PixelAt(Bitmap.Surface, Left + X, Y) & 0xFFFFFF;
            if (Opaque(Left + X, Y, Color))
                PixelAt(Image.get(), X, Y) = Color | 0xFF000000;
        }
    cairo_surface_mark_dirty(Image.get());
    return Image;
}

template<class T>
int AddParts(HIMAGELIST List, HBITMAP Handle, T Opaque)
{
    auto* const Bitmap = FindGdi<TGdiBitmap>(Handle);
    if (!Known(List) || !Bitmap)
        return -1;
    ReadBitmapBits(*Bitmap);
    const int First = static_cast<int>(List->Images.size());
    for (int Left = 0; Left + List->Width <= Bitmap->Info.bmWidth; Left += List->Width)
        List->Images.push_back(CutImage(*List, *Bitmap, Left, Opaque));
    return First;
}

template<class T>
int WithMask(HBITMAP Mask, T Work)
{
    auto* const Bitmap = FindGdi<TGdiBitmap>(Mask);
    if (Bitmap)
        ReadBitmapBits(*Bitmap);
    return Work([Bitmap](int X, int Y, std::uint32_t) {
        if (!Bitmap || X >= Bitmap->Info.bmWidth || Y >= Bitmap->Info.bmHeight)
            return true;
        return (PixelAt(Bitmap->Surface, X, Y) & 0xFFFFFF) == 0;
    });
}
} // namespace

HIMAGELIST ImageList_Create(int Width, int Height, UINT Flags, int, int)
{
    if (Width <= 0 || Height <= 0)
        return nullptr;
    auto* const List = new _IMAGELIST;
    List->Width = Width;
    List->Height = Height;
    List->Flags = Flags;
    Lists().insert(List);
    return List;
}

BOOL ImageList_Destroy(HIMAGELIST List)
{
    if (Lists().erase(List) == 0)
        return FALSE;
    delete List;
    return TRUE;
}

HIMAGELIST ImageList_Duplicate(HIMAGELIST List)
{
    if (!Known(List))
        return nullptr;
    auto* const Copy = new _IMAGELIST(*List);
    Lists().insert(Copy);
    return Copy;
}

int ImageList_GetImageCount(HIMAGELIST List)
{
    return Known(List) ? static_cast<int>(List->Images.size()) : 0;
}

BOOL ImageList_SetImageCount(HIMAGELIST List, UINT Count)
{
    if (!Known(List) || Count > 0xFFFF)
        return FALSE;
    const auto Old = List->Images.size();
    List->Images.resize(Count);
    for (auto Index = Old; Index < Count; ++Index)
        List->Images[Index] = NewImage(List->Width, List->Height);
    return TRUE;
}

int ImageList_Add(HIMAGELIST List, HBITMAP Image, HBITMAP Mask)
{
    return WithMask(Mask, [&](auto Opaque) { return AddParts(List, Image, Opaque); });
}

int ImageList_AddMasked(HIMAGELIST List, HBITMAP Image, COLORREF Mask)
{
    std::uint32_t Hidden = Rgb(Mask);
    if (auto* const Bitmap = FindGdi<TGdiBitmap>(Image); Bitmap && Mask == CLR_DEFAULT) {
        ReadBitmapBits(*Bitmap);
        Hidden = PixelAt(Bitmap->Surface, 0, 0) & 0xFFFFFF;
    }
    return AddParts(List, Image, [Hidden](int, int, std::uint32_t Color) { return Color != Hidden; });
}

BOOL ImageList_Replace(HIMAGELIST List, int Index, HBITMAP Image, HBITMAP Mask)
{
    auto* const Bitmap = FindGdi<TGdiBitmap>(Image);
    if (!HasIndex(List, Index) || !Bitmap)
        return FALSE;
    ReadBitmapBits(*Bitmap);
    WithMask(Mask, [&](auto Opaque) {
        List->Images[static_cast<std::size_t>(Index)] = CutImage(*List, *Bitmap, 0, Opaque);
        return 0;
    });
    return TRUE;
}

int ImageList_ReplaceIcon(HIMAGELIST List, int Index, HICON Icon)
{
    ICONINFO Info{};
    if (!Known(List) || (Index >= 0 && !HasIndex(List, Index)) || !GetIconInfo(Icon, &Info))
        return -1;
    if (Index < 0) {
        Index = static_cast<int>(List->Images.size());
        List->Images.push_back(NewImage(List->Width, List->Height));
    }
    if (Info.hbmColor)
        ImageList_Replace(List, Index, Info.hbmColor, Info.hbmMask);
    DeleteObject(Info.hbmColor);
    DeleteObject(Info.hbmMask);
    return Index;
}

BOOL ImageList_Remove(HIMAGELIST List, int Index)
{
    if (Known(List) && Index == -1) {
        List->Images.clear();
        return TRUE;
    }
    if (!HasIndex(List, Index))
        return FALSE;
    List->Images.erase(List->Images.begin() + Index);
    return TRUE;
}

BOOL ImageList_GetIconSize(HIMAGELIST List, int* Width, int* Height)
{
    if (!Known(List) || !Width || !Height)
        return FALSE;
    *Width = List->Width;
    *Height = List->Height;
    return TRUE;
}

BOOL ImageList_SetIconSize(HIMAGELIST List, int Width, int Height)
{
    if (!Known(List) || Width <= 0 || Height <= 0)
        return FALSE;
    List->Width = Width;
    List->Height = Height;
    List->Images.clear();
    return TRUE;
}

COLORREF ImageList_SetBkColor(HIMAGELIST List, COLORREF Color)
{
    return Known(List) ? std::exchange(List->Back, Color) : CLR_NONE;
}

COLORREF ImageList_GetBkColor(HIMAGELIST List)
{
    return Known(List) ? List->Back : CLR_NONE;
}

BOOL ImageList_Draw(HIMAGELIST List, int Index, HDC Dc, int X, int Y, UINT Style)
{
    return ImageList_DrawEx(List, Index, Dc, X, Y, 0, 0, CLR_DEFAULT, CLR_DEFAULT, Style);
}

BOOL ImageList_DrawEx(HIMAGELIST List, int Index, HDC Dc, int X, int Y, int Width, int Height, COLORREF Back,
                      COLORREF, UINT Style)
{
    if (!HasIndex(List, Index) || !FindGdi<TGdiContext>(Dc))
        return FALSE;
    const TDrawing Draw(Dc);
    if (!Draw)
        return TRUE;
    cairo_rectangle(Draw, X, Y, Width > 0 ? std::min(Width, List->Width) : List->Width,
                    Height > 0 ? std::min(Height, List->Height) : List->Height);
    cairo_clip(Draw);
    const COLORREF Behind = Back == CLR_DEFAULT ? List->Back : Back;
    if (Behind != CLR_NONE && !(Style & ILD_TRANSPARENT)) {
        Draw.SetColor(Behind);
        cairo_paint(Draw);
    }
    cairo_set_source_surface(Draw, List->Images[static_cast<std::size_t>(Index)].get(), X, Y);
    cairo_paint_with_alpha(Draw, Style & (ILD_BLEND25 | ILD_BLEND50) ? 0.5 : 1.0);
    return TRUE;
}

BOOL DrawIconEx(HDC Dc, int X, int Y, HICON Icon, int Width, int Height, UINT, HBRUSH, UINT)
{
    ICONINFO Info{};
    if (DrawStandardIcon(Dc, X, Y, Icon, Width, Height))
        return TRUE;
    if (!GetIconInfo(Icon, &Info))
        return FALSE;
    const auto* const Bitmap = FindGdi<TGdiBitmap>(Info.hbmColor);
    bool Done = false;
    if (Bitmap) {
        const auto List =
            ImageList_Create(Bitmap->Info.bmWidth, Bitmap->Info.bmHeight, ILC_COLOR32 | ILC_MASK, 1, 1);
        ImageList_Add(List, Info.hbmColor, Info.hbmMask);
        const TDrawing Draw(Dc);
        if (Draw && ImageList_GetImageCount(List) > 0) {
            cairo_translate(Draw, X, Y);
            cairo_scale(Draw, Width > 0 ? double(Width) / List->Width : 1,
                        Height > 0 ? double(Height) / List->Height : 1);
            cairo_set_source_surface(Draw, List->Images[0].get(), 0, 0);
            cairo_paint(Draw);
        }
        ImageList_Destroy(List);
        Done = true;
    }
    DeleteObject(Info.hbmColor);
    DeleteObject(Info.hbmMask);
    return Done;
}

BOOL DrawIcon(HDC Dc, int X, int Y, HICON Icon)
{
    return DrawIconEx(Dc, X, Y, Icon, 0, 0, 0, nullptr, DI_NORMAL);
}
