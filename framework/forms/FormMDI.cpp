// Several documents in one frame: the frame's client window and the children.
#include "framework/forms/Application.h"
#include "framework/forms/Menus.h"
#include "framework/rtl/SysUtils.h"

namespace {

constexpr UINT FirstChildId = 0xFF00;

} // namespace

void TCustomForm::CreateMDIClient()
{
    CLIENTCREATESTRUCT Create{};
    Create.idFirstChild = FirstChildId;
    if (FWindowMenu)
        Create.hWindowMenu = FWindowMenu->Handle();
    TRect Inside{};
    GetClientRect(WindowHandle(), &Inside);
    FClientHandle = CreateWindowExA(WS_EX_CLIENTEDGE, "MDICLIENT", nullptr,
                                    WS_CHILD | WS_VISIBLE | WS_GROUP | WS_TABSTOP | WS_CLIPCHILDREN |
                                        WS_HSCROLL | WS_VSCROLL | WS_CLIPSIBLINGS,
                                    0, 0, RectWidth(Inside), RectHeight(Inside), WindowHandle(), nullptr,
                                    ModuleInstance(), &Create);
}

void TCustomForm::CreateMDIChild(const TCreateParams& Params)
{
    TForm* const Frame = Application ? Application->MainForm() : nullptr;
    if (!Frame || !Frame->FClientHandle)
        throw EInvalidOperation(SNoMDIForm);
    MDICREATESTRUCTA Create{};
    Create.szClass = Params.WinClassName.c_str();
    Create.szTitle = Params.Caption.c_str();
    Create.hOwner = Params.WindowClass.hInstance;
    Create.x = Params.X;
    Create.y = Params.Y;
    Create.cx = Params.Width;
    Create.cy = Params.Height;
    Create.style = Params.Style;
    SendMessageA(Frame->FClientHandle, WM_MDICREATE, 0, reinterpret_cast<LPARAM>(&Create));
    FFormState.Include(fsCreatedMDIChild);
}

void TCustomForm::ShowMDIChild()
{
    const HWND Client = ::GetParent(WindowHandle());
    SendMessageA(Client, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(WindowHandle()), 0);
    SendMessageA(Client, WM_MDIREFRESHMENU, 0, 0);
}

int TCustomForm::MDIChildCount() const
{
    int Result = 0;
    if (FFormStyle != fsMDIForm || !FClientHandle)
        return Result;
    for (int Index = 0; Index < Screen->FormCount(); ++Index)
        if (Screen->Forms(Index)->FormStyle() == fsMDIChild && !Screen->Forms(Index)->IsEmbedded())
            ++Result;
    return Result;
}

TCustomForm* TCustomForm::MDIChildren(int Index) const
{
    if (FFormStyle == fsMDIForm && FClientHandle)
        for (int Form = 0; Form < Screen->FormCount(); ++Form)
            if (Screen->Forms(Form)->FormStyle() == fsMDIChild && !Screen->Forms(Form)->IsEmbedded() &&
                Index-- == 0)
                return Screen->Forms(Form);
    return nullptr;
}

TCustomForm* TCustomForm::ActiveMDIChild() const
{
    if (!FClientHandle)
        return nullptr;
    const LRESULT Window = SendMessageA(FClientHandle, WM_MDIGETACTIVE, 0, 0);
    return dynamic_cast<TCustomForm*>(FindControl(reinterpret_cast<HWND>(Window)));
}

void TCustomForm::Next()
{
    if (FClientHandle)
        SendMessageA(FClientHandle, WM_MDINEXT, 0, 0);
}

void TCustomForm::Previous()
{
    if (FClientHandle)
        SendMessageA(FClientHandle, WM_MDINEXT, 0, 1);
}

void TCustomForm::Cascade()
{
    if (FClientHandle)
        SendMessageA(FClientHandle, WM_MDICASCADE, 0, 0);
}

void TCustomForm::Tile()
{
    constexpr WPARAM Styles[] = {MDITILE_HORIZONTAL, MDITILE_VERTICAL};
    if (FClientHandle)
        SendMessageA(FClientHandle, WM_MDITILE, Styles[FTileMode], 0);
}

void TCustomForm::ArrangeIcons()
{
    if (FClientHandle)
        SendMessageA(FClientHandle, WM_MDIICONARRANGE, 0, 0);
}

// The client window fills what the controls of the frame leave.
void TCustomForm::AlignControls(TControl* AControl, TRect& Rect)
{
    inherited::AlignControls(AControl, Rect);
    if (FClientHandle)
        SetWindowPos(FClientHandle, HWND_BOTTOM, static_cast<int>(Rect.left), static_cast<int>(Rect.top),
                     RectWidth(Rect), RectHeight(Rect), SWP_NOZORDER | SWP_NOACTIVATE);
}

void TCustomForm::DefaultHandler(TMessage& Message)
{
    if (HandleAllocated() && FClientHandle && !IsEmbedded()) {
        // The frame's own answer to WM_SIZE would put the client window over the
        // aligned controls.
        if (Message.Msg == WM_SIZE)
            Message.Result = DefWindowProcA(WindowHandle(), Message.Msg, Message.WParam, Message.LParam);
        else
            Message.Result =
                DefFrameProcA(WindowHandle(), FClientHandle, Message.Msg, Message.WParam, Message.LParam);
        return;
    }
    inherited::DefaultHandler(Message);
}
