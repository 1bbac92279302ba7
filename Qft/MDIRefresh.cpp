#include "Qft/MDIRefresh.h"

#include "framework/forms/Form.h"
#include "framework/forms/MenuItems.h"
#include "platform/winapi.h"

namespace {

void RefreshFrame(const TForm& Form)
{
    const HWND Client = Form.ClientHandle();
    if (TMenuItem* const Menu = Form.WindowMenu())
        SendMessageA(Client, WM_MDISETMENU, 1, MAKELPARAM(0, reinterpret_cast<UINT_PTR>(Menu->Handle())));
    SendMessageA(Client, WM_MDIREFRESHMENU, 1, 0);
}

// A handler of the first message may destroy the form.
void RefreshDocument(const TForm& Form)
{
    const HWND Window = Form.WindowHandle();
    const LPARAM Size = Form.ClientWidth() + LPARAM{Form.ClientHeight()} * 65536;
    SendMessageA(Window, WM_SIZE, SIZE_RESTORED, Size);
    SendMessageA(Window, WM_SIZE, SIZE_MAXIMIZED, Size);
}

} // namespace

void RefreshMDI(const TComponent* Owner)
{
    const auto* const Form = dynamic_cast<const TForm*>(Owner);
    if (!Form || !Form->HandleAllocated())
        return;
    if (Form->FormStyle() == fsMDIForm)
        RefreshFrame(*Form);
    else if (Form->FormStyle() == fsMDIChild && Form->WindowState() == wsMaximized)
        RefreshDocument(*Form);
}
