// The windows of forms: style, place, showing and hiding.
#include <algorithm>

#include "framework/forms/Application.h"
#include "framework/forms/Menus.h"
#include "framework/rtl/SysUtils.h"

namespace {

constexpr UINT NotInDialogs[] = {SC_TASKLIST, SC_RESTORE, SC_SIZE, SC_MINIMIZE, SC_MAXIMIZE};
constexpr int ShowCommands[] = {SW_SHOWNORMAL, SW_SHOWMINNOACTIVE, SW_SHOWMAXIMIZED};

// The window that becomes active when Hidden goes: the next visible, enabled one
// of the program.
HWND NextTopWindow(HWND Hidden)
{
    for (int Index = 0; Index < Screen->CustomFormCount(); ++Index) {
        const HWND Window = Screen->CustomForms(Index)->WindowHandle();
        if (Window && Window != Hidden && IsWindowVisible(Window) && IsWindowEnabled(Window) &&
            !(GetWindowLongPtrA(Window, GWL_STYLE) & WS_CHILD))
            return Window;
    }
    return nullptr;
}

} // namespace

void TCustomForm::WindowStyle(TCreateParams& Params) const
{
    struct TBorder {
        DWORD Style;
        DWORD ExStyle;
    };
    static constexpr TBorder Borders[] = {
        {WS_POPUP, 0},
        {WS_CAPTION | WS_BORDER, 0},
        {WS_CAPTION | WS_THICKFRAME, 0},
        {WS_POPUP | WS_CAPTION, WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE},
        {WS_CAPTION | WS_BORDER, WS_EX_TOOLWINDOW},
        {WS_CAPTION | WS_THICKFRAME, WS_EX_TOOLWINDOW},
    };
    const bool NeedsFrame = HasState(csDesigning) || (ShownStyle() == fsMDIChild &&
                                                      (FBorderStyle == bsNone || FBorderStyle == bsDialog));
    const TFormBorderStyle Border = NeedsFrame ? bsSizeable : FBorderStyle;
    Params.Style |= Borders[Border].Style;
    Params.ExStyle |= Borders[Border].ExStyle;
    if (Border == bsNone)
        return;
    TBorderIcons Icons = FBorderIcons;
    if (Border == bsDialog || Border == bsToolWindow || Border == bsSizeToolWin) {
        Icons.Exclude(biMinimize);
        Icons.Exclude(biMaximize);
    }
    if (Icons.Contains(biSystemMenu))
        Params.Style |= WS_SYSMENU;
    if (Icons.Contains(biMinimize))
        Params.Style |= WS_MINIMIZEBOX;
    if (Icons.Contains(biMaximize))
        Params.Style |= WS_MAXIMIZEBOX;
    if (Icons.Contains(biHelp))
        Params.ExStyle |= WS_EX_CONTEXTHELP;
}

void TCustomForm::MDIStyle(TCreateParams& Params) const
{
    Params.WindowClass.lpfnWndProc = DefMDIChildProcA;
    Params.Style |= WS_CHILD;
    Params.WndParent =
        Application && Application->MainForm() ? Application->MainForm()->ClientHandle() : nullptr;
}

void TCustomForm::CreateParams(TCreateParams& Params)
{
    inherited::CreateParams(Params);
    if (IsEmbedded())
        return;
    Params.Style &= ~static_cast<DWORD>(WS_CHILD | WS_GROUP | WS_TABSTOP);
    Params.ExStyle |= WS_EX_CONTROLPARENT;
    Params.WindowClass.style = CS_DBLCLKS;
    Params.WndParent = Application ? Application->Handle() : nullptr;
    WindowStyle(Params);
    if (ShownStyle() == fsMDIChild)
        MDIStyle(Params);
    if (ShownStyle() == fsStayOnTop)
        Params.ExStyle |= WS_EX_TOPMOST;
    if (HasState(csDesigning))
        return;
    if (FPosition == poDefault || FPosition == poDefaultPosOnly)
        Params.X = Params.Y = CW_USEDEFAULT;
    if (FPosition == poDefault || FPosition == poDefaultSizeOnly)
        Params.Width = Params.Height = CW_USEDEFAULT;
}

// A menu without items takes no room.
bool TCustomForm::HasMenuBar() const
{
    return FMenu && FMenu->Items()->Count() > 0 && ShownStyle() != fsMDIChild && !IsEmbedded() &&
           !HasState(csDesigning);
}

TSize TCustomForm::FrameSize() const
{
    TCreateParams Params;
    const_cast<TCustomForm*>(this)->CreateParams(Params);
    TRect Frame{};
    AdjustWindowRectEx(&Frame, Params.Style, HasMenuBar(), Params.ExStyle);
    return {RectWidth(Frame) + 2 * BorderWidth(), RectHeight(Frame) + 2 * BorderWidth()};
}

void TCustomForm::CreateWindowHandle(const TCreateParams& Params)
{
    if (ShownStyle() == fsMDIChild && !IsEmbedded()) {
        CreateMDIChild(Params);
    } else {
        inherited::CreateWindowHandle(Params);
        if (ShownStyle() == fsMDIForm)
            CreateMDIClient();
    }
}

void TCustomForm::CompleteWindow()
{
    if (FIcon->Handle())
        SendMessageA(WindowHandle(), WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(FIcon->Handle()));
    // The system menu of a form that cannot be minimized offers only what works.
    if (FBorderStyle == bsDialog) {
        const HMENU Menu = GetSystemMenu(WindowHandle(), FALSE);
        for (const UINT Command : NotInDialogs)
            DeleteMenu(Menu, Command, MF_BYCOMMAND);
    }
    for (const auto& [Command, Text] : FSystemMenuTexts)
        ModifyMenuA(GetSystemMenu(WindowHandle(), FALSE), Command, MF_BYCOMMAND | MF_STRING, Command,
                    Text.c_str());
    RefreshMenu();
}

std::string TCustomForm::SystemMenuText(UINT Command)
{
    const auto Kept = FSystemMenuTexts.find(Command);
    if (!HandleAllocated() && Kept != FSystemMenuTexts.end())
        return Kept->second;
    const bool IsMissing =
        std::find(std::begin(NotInDialogs), std::end(NotInDialogs), Command) != std::end(NotInDialogs);
    if (FBorderStyle == bsDialog && IsMissing)
        return {};
    // Only an MDI child in its frame has commands that other windows do not have.
    const TForm* const Frame = Application ? Application->MainForm() : nullptr;
    const bool NeedsWindow = ShownStyle() == fsMDIChild && Frame && Frame->ClientHandle();
    const bool AskOther = Application && Application->Handle() && !HandleAllocated() && !NeedsWindow;
    const HWND Window = AskOther ? Application->Handle() : Handle();
    char Text[1024];
    const int Size = GetMenuStringA(GetSystemMenu(Window, FALSE), Command, Text, sizeof Text, MF_BYCOMMAND);
    return {Text, static_cast<size_t>(std::max(Size, 0))};
}

void TCustomForm::SetSystemMenuText(UINT Command, const std::string& Text)
{
    FSystemMenuTexts[Command] = Text;
    if (HandleAllocated())
        ModifyMenuA(GetSystemMenu(WindowHandle(), FALSE), Command, MF_BYCOMMAND | MF_STRING, Command,
                    Text.c_str());
}

void TCustomForm::CreateWnd()
{
    // A form made for another resolution grows before anybody sees it.
    if (Scaled() && FPixelsPerInchRead && FPixelsPerInch > 0 && FPixelsPerInch != ScreenPixelsPerInch() &&
        !HasState(csDesigning)) {
        const int From = FPixelsPerInch;
        FPixelsPerInch = ScreenPixelsPerInch();
        ScaleForm(FPixelsPerInch, From);
    }
    const int WantedWidth = ClientWidth();
    const int WantedHeight = ClientHeight();
    inherited::CreateWnd();
    if (!IsEmbedded())
        CompleteWindow();
    // After the menu, which takes its height from the client area.
    if (FSizeKind == SizeOfClient && FPosition != poDefault && FPosition != poDefaultSizeOnly) {
        TControl::SetClientWidth(WantedWidth);
        TControl::SetClientHeight(WantedHeight);
    }
}

void TCustomForm::DestroyHandle()
{
    if (FMenu)
        FMenu->SetWindowHandle(nullptr);
    inherited::DestroyHandle();
}

void TCustomForm::DestroyWindowHandle()
{
    if (HandleAllocated() && GetMenu(WindowHandle()))
        ::SetMenu(WindowHandle(), nullptr); // the menu belongs to the component
    if (FFormState.Contains(fsCreatedMDIChild)) {
        FControlState.Include(csDestroyingHandle);
        SendMessageA(::GetParent(WindowHandle()), WM_MDIDESTROY, reinterpret_cast<WPARAM>(WindowHandle()), 0);
        FFormState.Exclude(fsCreatedMDIChild);
        FControlState.Exclude(csDestroyingHandle);
    }
    inherited::DestroyWindowHandle();
    FClientHandle = nullptr;
}

void TCustomForm::RefreshMenu()
{
    if (HasState(csLoading) || !HandleAllocated() || ShownStyle() == fsMDIChild || IsEmbedded() ||
        HasState(csDestroying))
        return;
    const HMENU Bar = HasMenuBar() ? FMenu->Handle() : nullptr;
    if (FClientHandle) {
        const HMENU Window = FWindowMenu ? FWindowMenu->Handle() : nullptr;
        SendMessageA(FClientHandle, WM_MDISETMENU, reinterpret_cast<WPARAM>(Bar),
                     reinterpret_cast<LPARAM>(Window));
    }
    if (GetMenu(WindowHandle()) != Bar)
        ::SetMenu(WindowHandle(), Bar);
    if (FMenu)
        FMenu->SetWindowHandle(WindowHandle());
    DrawMenuBar(WindowHandle());
}

// The place that Position asks for; taken once, when the form is first shown.
void TCustomForm::ApplyPosition()
{
    if (IsEmbedded() || FWindowState == wsMaximized || HasState(csDesigning))
        return;
    const TCustomForm* Center = nullptr;
    if (FPosition == poMainFormCenter)
        Center = Application->MainForm();
    else if (FPosition == poOwnerFormCenter)
        Center = dynamic_cast<TCustomForm*>(Owner());
    TRect Area = Screen->WorkAreaRect();
    if (Center && Center != this && ShownStyle() != fsMDIChild)
        Area = Center->BoundsRect();
    else if (FPosition != poScreenCenter && FPosition != poDesktopCenter && FPosition != poMainFormCenter &&
             FPosition != poOwnerFormCenter)
        return;
    FPosition = poDesigned;
    const TRect Work = Screen->WorkAreaRect();
    const int X = static_cast<int>(Area.left) + (RectWidth(Area) - Width()) / 2;
    const int Y = static_cast<int>(Area.top) + (RectHeight(Area) - Height()) / 2;
    SetBounds(std::max(X, static_cast<int>(Work.left)), std::max(Y, static_cast<int>(Work.top)), Width(),
              Height());
}

void TCustomForm::MakeFullyVisible()
{
    const TRect Work = Screen->WorkAreaRect();
    const auto Inside = [](int Place, int Size, LONG From, LONG To) {
        return std::max(std::min(Place, static_cast<int>(To) - Size), static_cast<int>(From));
    };
    SetBounds(Inside(Left(), Width(), Work.left, Work.right), Inside(Top(), Height(), Work.top, Work.bottom),
              Width(), Height());
}

void TCustomForm::ShowingChanged()
{
    if (FFormState.Contains(fsShowing))
        throw EInvalidOperation(SVisibleChanged);
    FFormState.Include(fsShowing);
    try {
        if (FShowing)
            ShowWindowNow();
        else
            HideWindowNow();
    } catch (...) {
        FFormState.Exclude(fsShowing);
        throw;
    }
    FFormState.Exclude(fsShowing);
}

void TCustomForm::ShowWindowNow()
{
    try {
        DoShow();
    } catch (...) {
        Application->HandleException(this);
    }
    ApplyPosition();
    if (IsEmbedded()) {
        ShowWindow(WindowHandle(), SW_SHOWNA);
        return;
    }
    ShowWindow(WindowHandle(), ShowCommands[HasState(csDesigning) ? wsNormal : FWindowState]);
    if (ShownStyle() == fsMDIChild)
        ShowMDIChild();
}

void TCustomForm::HideWindowNow()
{
    try {
        DoHide();
    } catch (...) {
        Application->HandleException(this);
    }
    if (ShownStyle() == fsMDIChild && !IsEmbedded()) {
        DestroyHandle();
        return;
    }
    constexpr UINT Flags = SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;
    const HWND Next =
        GetActiveWindow() == WindowHandle() && !IsModal() ? NextTopWindow(WindowHandle()) : nullptr;
    if (IsModal() || Next) {
        SetWindowPos(WindowHandle(), nullptr, 0, 0, 0, 0, Flags);
        if (Next)
            SetActiveWindow(Next);
    } else {
        ShowWindow(WindowHandle(), SW_HIDE);
    }
}

void TCustomForm::DoShow()
{
    if (OnShow)
        OnShow(this);
}

void TCustomForm::DoHide()
{
    if (OnHide)
        OnHide(this);
}

void TCustomForm::Resizing(TWindowState State)
{
    if (FShowing && !HasState(csDesigning) && !IsEmbedded())
        FWindowState = State;
}

void TCustomForm::PaintWindow(HDC Dc)
{
    FCanvas->FreeHandle();
    FCanvas->SetHandle(Dc);
    try {
        Paint();
    } catch (...) {
        FCanvas->SetHandle(nullptr);
        throw;
    }
    FCanvas->SetHandle(nullptr);
}

void TCustomForm::Paint()
{
    if (OnPaint)
        OnPaint(this);
}

void TCustomForm::IconChanged(TObject*)
{
    if (HandleAllocated() && !IsEmbedded() && !HasState(csDestroying))
        SendMessageA(WindowHandle(), WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(FIcon->Handle()));
}
