// Cursors, icons, carets and the position of the mouse. They have handles and
// are remembered; only icons are ever drawn (DrawIconEx).
#include <utility>

#include "platform/portable/Gdi.h"
#include "platform/portable/Handles.h"
#include "platform/portable/Window.h"
#include "platform/portable/winbase.h"

namespace {

// Its bitmaps are its own; who gives or asks for some keeps or gets copies.
struct TIcon {
    TIcon() = default;
    TIcon(const TIcon&) = delete;
    TIcon& operator=(const TIcon&) = delete;
    ~TIcon()
    {
        DeleteObject(Info.hbmColor);
        DeleteObject(Info.hbmMask);
    }

    ICONINFO Info{};
    bool Shared = false;
    WORD Id = 0;
};

using TIconTable = THandleTable<TIcon, THandleKind::Icon>;

TIconTable& Table()
{
    static auto& Icons = *new TIconTable;
    return Icons;
}

HBITMAP CopyBitmap(HBITMAP Source)
{
    auto* const From = FindGdi<TGdiBitmap>(Source);
    if (!From)
        return nullptr;
    ReadBitmapBits(*From);
    const HBITMAP Result =
        CreateBitmap(From->Info.bmWidth, From->Info.bmHeight, 1, From->Info.bmBitsPixel, nullptr);
    if (auto* const To = FindGdi<TGdiBitmap>(Result)) {
        cairo_t* const Cairo = cairo_create(To->Surface);
        cairo_set_operator(Cairo, CAIRO_OPERATOR_SOURCE);
        cairo_set_source_surface(Cairo, From->Surface, 0, 0);
        cairo_paint(Cairo);
        cairo_destroy(Cairo);
    }
    return Result;
}

ICONINFO CopyInfo(const ICONINFO& Source)
{
    ICONINFO Result = Source;
    Result.hbmColor = CopyBitmap(Source.hbmColor);
    Result.hbmMask = CopyBitmap(Source.hbmMask);
    return Result;
}

HICON Add(const ICONINFO& Info, bool Shared, WORD Id)
{
    auto Icon = std::make_unique<TIcon>();
    Icon->Info = CopyInfo(Info);
    Icon->Shared = Shared;
    Icon->Id = Id;
    return reinterpret_cast<HICON>(Table().Add(std::move(Icon)));
}

// A predefined cursor or icon is one object for the whole program.
HICON LoadShared(HINSTANCE Instance, LPCSTR Name, bool IsIcon)
{
    if (Instance || !IS_INTRESOURCE(Name) || LOWORD(Name) < 32512 || LOWORD(Name) > 32672) {
        SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
        return nullptr;
    }
    TStateLock Lock;
    static auto& Loaded = *new std::map<std::pair<WORD, bool>, HICON>;
    HICON& Slot = Loaded[{LOWORD(Name), IsIcon}];
    if (!Slot) {
        ICONINFO Info{};
        Info.fIcon = IsIcon;
        Slot = Add(Info, true, LOWORD(Name));
    }
    return Slot;
}

BOOL Destroy(HICON Handle)
{
    TStateLock Lock;
    const TIcon* const Icon = Table().Find(Handle);
    if (!Icon) {
        SetLastError(ERROR_INVALID_CURSOR_HANDLE);
        return FALSE;
    }
    if (!Icon->Shared)
        Table().Take(Handle);
    return TRUE;
}

struct TPointer {
    HCURSOR Cursor = nullptr;
    int Shown = 0;
    POINT Place{};
};

TPointer& Pointer()
{
    static TPointer Only;
    return Only;
}

struct TCaret {
    HWND Window = nullptr;
    POINT Place{};
};

TCaret& Caret()
{
    thread_local TCaret Only;
    return Only;
}

} // namespace

HCURSOR LoadCursorA(HINSTANCE Instance, LPCSTR Name)
{
    return LoadShared(Instance, Name, false);
}

HICON LoadIconA(HINSTANCE Instance, LPCSTR Name)
{
    return LoadShared(Instance, Name, true);
}

HANDLE LoadImageA(HINSTANCE Instance, LPCSTR Name, UINT Kind, int, int, UINT)
{
    if (Kind == IMAGE_BITMAP) {
        SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
        return nullptr;
    }
    return LoadShared(Instance, Name, Kind == IMAGE_ICON);
}

HICON CreateIcon(HINSTANCE, int Width, int Height, BYTE Planes, BYTE BitsPixel, const BYTE* AndBits,
                 const BYTE* XorBits)
{
    ICONINFO Info{};
    Info.fIcon = TRUE;
    Info.hbmMask = CreateBitmap(Width, Height, 1, 1, AndBits);
    Info.hbmColor = CreateBitmap(Width, Height, Planes, BitsPixel, XorBits);
    TStateLock Lock;
    const HICON Result = Add(Info, false, 0);
    DeleteObject(Info.hbmColor);
    DeleteObject(Info.hbmMask);
    return Result;
}

HICON CreateIconIndirect(ICONINFO* Info)
{
    TStateLock Lock;
    return Info ? Add(*Info, false, 0) : nullptr;
}

HICON CopyIcon(HICON Handle)
{
    TStateLock Lock;
    const TIcon* const Icon = Table().Find(Handle);
    return Icon ? Add(Icon->Info, false, Icon->Id) : nullptr;
}

BOOL GetIconInfo(HICON Handle, ICONINFO* Info)
{
    TStateLock Lock;
    const TIcon* const Icon = Table().Find(Handle);
    if (!Icon || !Info)
        return FALSE;
    *Info = CopyInfo(Icon->Info);
    return TRUE;
}

BOOL DestroyIcon(HICON Icon)
{
    return Destroy(Icon);
}

BOOL DestroyCursor(HCURSOR Cursor)
{
    return Destroy(Cursor);
}

HCURSOR SetCursor(HCURSOR Cursor)
{
    TStateLock Lock;
    return std::exchange(Pointer().Cursor, Cursor);
}

HCURSOR GetCursor()
{
    TStateLock Lock;
    return Pointer().Cursor;
}

int ShowCursor(BOOL Show)
{
    TStateLock Lock;
    return Pointer().Shown += Show ? 1 : -1;
}

BOOL GetCursorPos(LPPOINT Point)
{
    TStateLock Lock;
    *Point = Pointer().Place;
    return TRUE;
}

BOOL SetCursorPos(int X, int Y)
{
    TStateLock Lock;
    Pointer().Place = {X, Y};
    return TRUE;
}

BOOL ClipCursor(const RECT*)
{
    return TRUE;
}

BOOL CreateCaret(HWND Window, HBITMAP, int, int)
{
    if (!IsWindow(Window))
        return FALSE;
    Caret() = {Window, {}};
    return TRUE;
}

BOOL DestroyCaret()
{
    const bool Had = Caret().Window != nullptr;
    Caret() = {};
    return Had;
}

BOOL SetCaretPos(int X, int Y)
{
    Caret().Place = {X, Y};
    return Caret().Window != nullptr;
}

BOOL GetCaretPos(LPPOINT Point)
{
    *Point = Caret().Place;
    return TRUE;
}

BOOL ShowCaret(HWND Window)
{
    return Caret().Window != nullptr && (!Window || Window == Caret().Window);
}

BOOL HideCaret(HWND Window)
{
    return ShowCaret(Window);
}

UINT GetCaretBlinkTime()
{
    return 500;
}

UINT GetDoubleClickTime()
{
    return 500;
}
