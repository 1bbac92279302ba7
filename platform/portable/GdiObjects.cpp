#include "platform/portable/Gdi.h"

#include <algorithm>
#include <cstring>
#include <unordered_map>

#include "platform/portable/winuser.h"

namespace {
constexpr std::uintptr_t FirstHandle = 0x20010;
constexpr std::uintptr_t HandleStep = 0x10;
constexpr int StockCount = 20;

struct TTable {
    std::unordered_map<std::uintptr_t, std::unique_ptr<TGdiObject>> Objects;
    std::uintptr_t Next = FirstHandle;
    HGDIOBJ Stock[StockCount] = {};
    std::unordered_map<int, HGDIOBJ> SystemBrushes;
    int StockMade = 0;
};

// Lives as long as the process: objects are deleted from static destructors too.
TTable& Table()
{
    static TTable& Only = *new TTable;
    return Only;
}

std::uintptr_t Key(const void* Handle)
{
    return reinterpret_cast<std::uintptr_t>(Handle);
}

HGDIOBJ MakeBrush(UINT Style, COLORREF Color, ULONG_PTR Hatch = 0)
{
    auto Brush = std::make_unique<TGdiBrush>();
    Brush->Brush = {Style, Color, Hatch};
    return AddGdiObject(std::move(Brush));
}

HGDIOBJ MakePen(UINT Style, int Width, COLORREF Color)
{
    auto Pen = std::make_unique<TGdiPen>();
    Pen->Pen = {Style, {Width, 0}, Color};
    return AddGdiObject(std::move(Pen));
}

HGDIOBJ MakeStockFont(const char* Face, int Height, int Weight, int Pitch)
{
    LOGFONTA Font{};
    Font.lfHeight = Height;
    Font.lfWeight = Weight;
    Font.lfCharSet = DEFAULT_CHARSET;
    Font.lfPitchAndFamily = static_cast<BYTE>(Pitch);
    std::strncpy(Font.lfFaceName, Face, LF_FACESIZE - 1);
    return CreateFontIndirectA(&Font);
}

HGDIOBJ MakeStock(int Index)
{
    switch (Index) {
    case WHITE_BRUSH:
    case DC_BRUSH:
        return MakeBrush(BS_SOLID, 0xFFFFFF);
    case LTGRAY_BRUSH:
        return MakeBrush(BS_SOLID, 0xC0C0C0);
    case GRAY_BRUSH:
        return MakeBrush(BS_SOLID, 0x808080);
    case DKGRAY_BRUSH:
        return MakeBrush(BS_SOLID, 0x404040);
    case BLACK_BRUSH:
        return MakeBrush(BS_SOLID, 0);
    case NULL_BRUSH:
        return MakeBrush(BS_NULL, 0);
    case WHITE_PEN:
        return MakePen(PS_SOLID, 0, 0xFFFFFF);
    case BLACK_PEN:
    case DC_PEN:
        return MakePen(PS_SOLID, 0, 0);
    case NULL_PEN:
        return MakePen(PS_NULL, 0, 0);
    case OEM_FIXED_FONT:
    case ANSI_FIXED_FONT:
    case SYSTEM_FIXED_FONT:
        return MakeStockFont("Courier New", -13, FW_NORMAL, FIXED_PITCH | FF_MODERN);
    case SYSTEM_FONT:
    case DEVICE_DEFAULT_FONT:
        return MakeStockFont("System", -13, FW_BOLD, VARIABLE_PITCH | FF_SWISS);
    case ANSI_VAR_FONT:
    case DEFAULT_GUI_FONT:
        return MakeStockFont("MS Shell Dlg", -11, FW_NORMAL, 0);
    default:
        return nullptr;
    }
}

template<class T>
int CopyOut(const T& Value, int Size, LPVOID Data)
{
    if (!Data)
        return static_cast<int>(sizeof(T));
    if (Size < static_cast<int>(sizeof(T)))
        return 0;
    std::memcpy(Data, &Value, sizeof(T));
    return static_cast<int>(sizeof(T));
}

int GetBitmap(const TGdiBitmap& Bitmap, int Size, LPVOID Data)
{
    if (!Bitmap.Bits.empty() && Size >= static_cast<int>(sizeof(DIBSECTION))) {
        DIBSECTION Section{};
        Section.dsBm = Bitmap.Info;
        Section.dsBmih = Bitmap.Header;
        return CopyOut(Section, Size, Data);
    }
    return CopyOut(Bitmap.Info, Size, Data);
}

int GetFont(const TGdiFont& Font, int Size, LPVOID Data)
{
    if (!Data)
        return static_cast<int>(sizeof(LOGFONTA));
    const auto Bytes = std::min<std::size_t>(static_cast<std::size_t>(std::max(Size, 0)), sizeof(LOGFONTA));
    std::memcpy(Data, &Font.Font, Bytes);
    return static_cast<int>(Bytes);
}
} // namespace

TGdiBrush::~TGdiBrush()
{
    if (Pattern)
        cairo_surface_destroy(Pattern);
}

HGDIOBJ AddGdiObject(std::unique_ptr<TGdiObject> Object)
{
    auto& All = Table();
    const auto Handle = All.Next;
    All.Next += HandleStep;
    All.Objects.emplace(Handle, std::move(Object));
    return reinterpret_cast<HGDIOBJ>(Handle);
}

TGdiObject* FindGdiObject(const void* Handle)
{
    const auto Found = Table().Objects.find(Key(Handle));
    return Found == Table().Objects.end() ? nullptr : Found->second.get();
}

void SelectGdiObject(const void* Handle)
{
    if (auto* const Object = FindGdiObject(Handle))
        ++Object->Selected;
}

void DeselectGdiObject(const void* Handle)
{
    auto* const Object = FindGdiObject(Handle);
    if (Object && --Object->Selected == 0 && Object->Doomed)
        Table().Objects.erase(Key(Handle));
}

void KeepAsStock(const void* Handle)
{
    FindGdiObject(Handle)->Stock = true;
    ++Table().StockMade;
}

int CountGdiObjects()
{
    return static_cast<int>(Table().Objects.size()) - Table().StockMade;
}

DWORD GetGuiResources(HANDLE, DWORD Kind)
{
    return Kind == GR_GDIOBJECTS ? static_cast<DWORD>(CountGdiObjects()) : 0;
}

HGDIOBJ GetStockObject(int Index)
{
    if (Index < 0 || Index >= StockCount)
        return nullptr;
    auto& All = Table();
    if (!All.Stock[Index]) {
        const auto Handle = MakeStock(Index);
        if (!Handle)
            return nullptr;
        KeepAsStock(Handle);
        All.Stock[Index] = Handle;
    }
    return All.Stock[Index];
}

HBRUSH GetSysColorBrush(int Index)
{
    auto& All = Table();
    auto& Known = All.SystemBrushes[Index];
    if (!Known) {
        Known = CreateSolidBrush(GetSysColor(Index));
        KeepAsStock(Known);
    }
    return static_cast<HBRUSH>(Known);
}

BOOL DeleteObject(HGDIOBJ Handle)
{
    auto* const Object = FindGdiObject(Handle);
    if (!Object || Object->Doomed)
        return FALSE;
    if (Object->Stock)
        return TRUE;
    if (dynamic_cast<TGdiContext*>(Object))
        return DeleteDC(static_cast<HDC>(Handle));
    if (Object->Selected > 0)
        Object->Doomed = true;
    else
        Table().Objects.erase(Key(Handle));
    return TRUE;
}

void FreeContext(HDC Dc)
{
    Table().Objects.erase(Key(Dc));
}

DWORD GetObjectType(HGDIOBJ Handle)
{
    const auto* const Object = FindGdiObject(Handle);
    return Object ? Object->Kind() : 0;
}

int GetObjectA(HANDLE Handle, int Size, LPVOID Data)
{
    auto* const Object = FindGdiObject(Handle);
    if (const auto* const Font = dynamic_cast<TGdiFont*>(Object))
        return GetFont(*Font, Size, Data);
    if (const auto* const Bitmap = dynamic_cast<TGdiBitmap*>(Object))
        return GetBitmap(*Bitmap, Size, Data);
    if (const auto* const Brush = dynamic_cast<TGdiBrush*>(Object))
        return CopyOut(Brush->Brush, Size, Data);
    if (const auto* const Pen = dynamic_cast<TGdiPen*>(Object))
        return CopyOut(Pen->Pen, Size, Data);
    return 0;
}

HBRUSH CreateSolidBrush(COLORREF Color)
{
    return static_cast<HBRUSH>(MakeBrush(BS_SOLID, Color));
}

HBRUSH CreateHatchBrush(int Hatch, COLORREF Color)
{
    return static_cast<HBRUSH>(MakeBrush(BS_HATCHED, Color, static_cast<ULONG_PTR>(Hatch)));
}

HBRUSH CreatePatternBrush(HBITMAP Handle)
{
    auto* const Bitmap = FindGdi<TGdiBitmap>(Handle);
    if (!Bitmap)
        return nullptr;
    ReadBitmapBits(*Bitmap);
    auto Brush = std::make_unique<TGdiBrush>();
    Brush->Brush.lbStyle = BS_PATTERN;
    Brush->Pattern =
        cairo_image_surface_create(CAIRO_FORMAT_RGB24, Bitmap->Info.bmWidth, Bitmap->Info.bmHeight);
    cairo_t* const Copy = cairo_create(Brush->Pattern);
    cairo_set_source_surface(Copy, Bitmap->Surface, 0, 0);
    cairo_paint(Copy);
    cairo_destroy(Copy);
    return static_cast<HBRUSH>(AddGdiObject(std::move(Brush)));
}

HBRUSH CreateBrushIndirect(const LOGBRUSH* Brush)
{
    if (!Brush)
        return nullptr;
    if (Brush->lbStyle == BS_PATTERN)
        return CreatePatternBrush(reinterpret_cast<HBITMAP>(Brush->lbHatch));
    return static_cast<HBRUSH>(MakeBrush(Brush->lbStyle, Brush->lbColor, Brush->lbHatch));
}

HPEN CreatePen(int Style, int Width, COLORREF Color)
{
    return static_cast<HPEN>(MakePen(static_cast<UINT>(Style), Width, Color));
}

HPEN CreatePenIndirect(const LOGPEN* Pen)
{
    return Pen ? CreatePen(static_cast<int>(Pen->lopnStyle), Pen->lopnWidth.x, Pen->lopnColor) : nullptr;
}
