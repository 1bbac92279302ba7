// The clipboard of this process, and the memory blocks that it takes.
#include <cstdlib>
#include <cstring>
#include <map>

#include "platform/portable/Window.h"
#include "platform/portable/winbase.h"

namespace {

struct TClipboard {
    bool Open = false;
    HWND Owner = nullptr;
    HWND Opener = nullptr;
    std::map<UINT, HANDLE> Data;
};

TClipboard& Board()
{
    static auto& Only = *new TClipboard;
    return Only;
}

// Every block starts with its size, in front of the address that is handed out.
struct TBlock {
    SIZE_T Size;
    SIZE_T Reserved;
};

TBlock* BlockOf(HGLOBAL Handle)
{
    return static_cast<TBlock*>(Handle) - 1;
}

bool NeedOpen()
{
    if (!Board().Open)
        SetLastError(ERROR_CLIPBOARD_NOT_OPEN);
    return Board().Open;
}

void Release()
{
    for (const auto& [Format, Handle] : Board().Data)
        if (Format != CF_BITMAP && Handle)
            GlobalFree(Handle);
    Board().Data.clear();
}

} // namespace

HGLOBAL GlobalAlloc(UINT, SIZE_T Size)
{
    auto* const Block = static_cast<TBlock*>(std::calloc(1, sizeof(TBlock) + Size));
    if (!Block)
        return nullptr;
    Block->Size = Size;
    return Block + 1;
}

HGLOBAL GlobalReAlloc(HGLOBAL Handle, SIZE_T Size, UINT Flags)
{
    const HGLOBAL New = GlobalAlloc(Flags, Size);
    if (New && Handle) {
        std::memcpy(New, Handle, std::min(Size, GlobalSize(Handle)));
        GlobalFree(Handle);
    }
    return New;
}

LPVOID GlobalLock(HGLOBAL Handle)
{
    return Handle;
}

BOOL GlobalUnlock(HGLOBAL)
{
    return FALSE;
}

SIZE_T GlobalSize(HGLOBAL Handle)
{
    return Handle ? BlockOf(Handle)->Size : 0;
}

HGLOBAL GlobalFree(HGLOBAL Handle)
{
    if (Handle)
        std::free(BlockOf(Handle));
    return nullptr;
}

BOOL OpenClipboard(HWND Window)
{
    TStateLock Lock;
    if (Board().Open) {
        SetLastError(ERROR_ACCESS_DENIED);
        return FALSE;
    }
    Board().Open = true;
    Board().Opener = Window;
    return TRUE;
}

BOOL CloseClipboard()
{
    TStateLock Lock;
    if (!NeedOpen())
        return FALSE;
    Board().Open = false;
    return TRUE;
}

BOOL EmptyClipboard()
{
    HWND Owner = nullptr;
    {
        TStateLock Lock;
        if (!NeedOpen())
            return FALSE;
        Owner = Board().Owner;
    }
    if (Owner && IsWindow(Owner))
        SendMessageA(Owner, WM_DESTROYCLIPBOARD, 0, 0);
    TStateLock Lock;
    Release();
    Board().Owner = Board().Opener;
    return TRUE;
}

HANDLE SetClipboardData(UINT Format, HANDLE Data)
{
    TStateLock Lock;
    if (!NeedOpen())
        return nullptr;
    HANDLE& Slot = Board().Data[Format];
    if (Slot && Slot != Data && Format != CF_BITMAP)
        GlobalFree(Slot);
    Slot = Data;
    return Data;
}

HANDLE GetClipboardData(UINT Format)
{
    TStateLock Lock;
    if (!NeedOpen())
        return nullptr;
    const auto Found = Board().Data.find(Format);
    return Found == Board().Data.end() ? nullptr : Found->second;
}

BOOL IsClipboardFormatAvailable(UINT Format)
{
    TStateLock Lock;
    return Board().Data.contains(Format);
}

UINT EnumClipboardFormats(UINT Format)
{
    TStateLock Lock;
    const auto Next = Board().Data.upper_bound(Format);
    return Next == Board().Data.end() ? 0 : Next->first;
}

int CountClipboardFormats()
{
    TStateLock Lock;
    return static_cast<int>(Board().Data.size());
}

HWND GetClipboardOwner()
{
    TStateLock Lock;
    return Board().Owner && IsWindow(Board().Owner) ? Board().Owner : nullptr;
}
