#include <windows.h>

// gdiplus.h needs these two and min/max by their bare names.
#include <objidl.h>

#include <algorithm>

namespace Gdiplus {
using std::max;
using std::min;
} // namespace Gdiplus

#include <gdiplus.h>

#include "platform/Picture.h"

namespace {

constexpr CLSID PngEncoder = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

class TGdiplus {
public:
    TGdiplus()
    {
        const Gdiplus::GdiplusStartupInput Input;
        FStarted = Gdiplus::GdiplusStartup(&FToken, &Input, nullptr) == Gdiplus::Ok;
    }
    ~TGdiplus()
    {
        if (FStarted)
            Gdiplus::GdiplusShutdown(FToken);
    }
    TGdiplus(const TGdiplus&) = delete;
    TGdiplus& operator=(const TGdiplus&) = delete;
    bool Started() const { return FStarted; }

private:
    ULONG_PTR FToken = 0;
    bool FStarted = false;
};

std::wstring Wide(const std::string& Text)
{
    const int Size = MultiByteToWideChar(CP_UTF8, 0, Text.data(), static_cast<int>(Text.size()), nullptr, 0);
    std::wstring Result(static_cast<std::size_t>(Size), 0);
    MultiByteToWideChar(CP_UTF8, 0, Text.data(), static_cast<int>(Text.size()), Result.data(), Size);
    return Result;
}

// Brings the window to the front with everything in it drawn, so that it can be
// taken from the screen. (PrintWindow leaves out child windows under Wine.)
void ShowWhole(HWND Window)
{
    const HWND Root = GetAncestor(Window, GA_ROOT);
    SetWindowPos(Root, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    RedrawWindow(Root, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW | RDW_ALLCHILDREN);
    GdiFlush();
    // What is drawn reaches the screen while the program waits for messages.
    const DWORD End = GetTickCount() + 150;
    while (GetTickCount() < End) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 30, QS_PAINT);
        MSG Message;
        while (PeekMessageA(&Message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE))
            DispatchMessageA(&Message);
    }
}

} // namespace

bool SaveWindowPicture(HWND Window, const std::string& FileName)
{
    RECT Rect;
    if (!GetWindowRect(Window, &Rect) || IsRectEmpty(&Rect))
        return false;
    const int Width = Rect.right - Rect.left;
    const int Height = Rect.bottom - Rect.top;
    const HDC Screen = GetDC(nullptr);
    const HDC Memory = CreateCompatibleDC(Screen);
    const HBITMAP Bitmap = CreateCompatibleBitmap(Screen, Width, Height);
    const HGDIOBJ Old = SelectObject(Memory, Bitmap);
    ShowWhole(Window);
    const bool Drawn = BitBlt(Memory, 0, 0, Width, Height, Screen, Rect.left, Rect.top, SRCCOPY);
    SelectObject(Memory, Old);
    bool Saved = false;
    if (const TGdiplus Gdi; Drawn && Gdi.Started()) {
        Gdiplus::Bitmap Image(Bitmap, nullptr);
        Saved = Image.Save(Wide(FileName).c_str(), &PngEncoder, nullptr) == Gdiplus::Ok;
    }
    DeleteObject(Bitmap);
    DeleteDC(Memory);
    ReleaseDC(nullptr, Screen);
    return Saved;
}
