#include "Qft/MDIRefresh.h"

#include "framework/forms/Form.h"
#include "framework/forms/MenuItems.h"
#include "platform/winapi.h"

void RefreshMDI(TComponent* Owner)
{
    auto* const Form = dynamic_cast<TForm*>(Owner);
    if (!Form)
        return;
    if (Form->FormStyle() == fsMDIForm) {
        const HWND Client = Form->ClientHandle();
        if (TMenuItem* const Menu = Form->WindowMenu())
            SendMessageA(Client, WM_MDISETMENU, 1, MAKELPARAM(0, reinterpret_cast<UINT_PTR>(Menu->Handle())));
        SendMessageA(Client, WM_MDIREFRESHMENU, 1, 0);
    } else if (Form->FormStyle() == fsMDIChild && Form->WindowState() == wsMaximized) {
        const LPARAM Size = Form->ClientWidth() + Form->ClientHeight() * 65536;
        SendMessageA(Form->Handle(), WM_SIZE, SIZE_RESTORED, Size);
        SendMessageA(Form->Handle(), WM_SIZE, SIZE_MAXIMIZED, Size);
    }
}
