#include "framework/forms/Clipboard.h"

#include <algorithm>

#include "framework/rtl/Utf8.h"

void SetClipboardText(HWND Owner, const std::string& Text)
{
    if (!OpenClipboard(Owner))
        return;
    EmptyClipboard();
    const std::u16string Wide = Utf8ToUtf16(Text);
    const size_t Size = (Wide.size() + 1) * sizeof(char16_t);
    if (const HGLOBAL Block = GlobalAlloc(GMEM_MOVEABLE, Size)) {
        std::copy_n(reinterpret_cast<const char*>(Wide.c_str()), Size, static_cast<char*>(GlobalLock(Block)));
        GlobalUnlock(Block);
        if (!SetClipboardData(CF_UNICODETEXT, Block))
            GlobalFree(Block);
    }
    CloseClipboard();
}

std::string ClipboardText(HWND Owner)
{
    std::string Result;
    if (!OpenClipboard(Owner))
        return Result;
    if (const HGLOBAL Block = GetClipboardData(CF_UNICODETEXT))
        if (const void* const Text = GlobalLock(Block)) {
            Result = Utf16ToUtf8(static_cast<const char16_t*>(Text));
            GlobalUnlock(Block);
        }
    CloseClipboard();
    return Result;
}
