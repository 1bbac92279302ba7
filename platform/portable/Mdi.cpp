// The client window that holds document windows, and the documents.
#include "platform/portable/Mdi.h"

#include <algorithm>

#include "platform/portable/Lifetime.h"
#include "platform/portable/MdiState.h"
#include "platform/portable/MenuBar.h"
#include "platform/portable/Position.h"
#include "platform/portable/Thread.h"

TMdiClient* MdiClientOf(HWND Client)
{
    return StateOf<TMdiClient>(Client);
}

std::vector<HWND> DocumentsOf(HWND Client)
{
    std::vector<HWND> Result;
    if (const TMdiClient* const State = MdiClientOf(Client))
        for (const HWND Child : State->Documents)
            if (IsWindow(Child))
                Result.push_back(Child);
    return Result;
}

bool PrepareMdiChild(HWND ClientHandle, DWORD& Style, DWORD& ExStyle, int& X, int& Y, int& Width, int& Height)
{
    const TWindow* const Client = WindowOf(ClientHandle);
    TMdiClient* const State = MdiClientOf(ClientHandle);
    if (!Client || !State) {
        SetLastError(ERROR_NON_MDICHILD_WINDOW);
        return false;
    }
    ExStyle |= WS_EX_MDICHILD;
    if (!Client->Has(MDIS_ALLCHILDSTYLES)) {
        Style &= WS_MINIMIZE | WS_MAXIMIZE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | WS_DISABLED | WS_VSCROLL |
                 WS_HSCROLL;
        Style |= WS_CHILD | WS_VISIBLE | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX |
                 WS_MAXIMIZEBOX | WS_CLIPSIBLINGS;
    }
    const int Step = GetSystemMetrics(SM_CYCAPTION) + GetSystemMetrics(SM_CYFRAME);
    const bool NoSize = Width == CW_USEDEFAULT || Width == 0;
    if (X == CW_USEDEFAULT) {
        const int Steps = std::max(1, Client->ClientHeight() / (4 * std::max(1, Step)));
        X = Y = static_cast<int>(State->Created) % (Steps + 1) * Step;
    }
    if (NoSize)
        Width = Client->ClientWidth() * 3 / 4;
    if (NoSize || Height == CW_USEDEFAULT || Height == 0)
        Height = Client->ClientHeight() * 3 / 4;
    ++State->Created;
    return true;
}

HWND ActiveDocument(HWND Client)
{
    const TMdiClient* const State = MdiClientOf(Client);
    return State && State->Active && IsWindow(State->Active) ? State->Active : nullptr;
}

namespace {

HWND FrameOf(HWND Client)
{
    return GetParent(Client);
}

// The document that follows in the order of the client's children.
HWND NextDocument(HWND Client, HWND From, bool Backwards)
{
    HWND Result = nullptr;
    std::vector<HWND> Order;
    if (const TWindow* const Window = WindowOf(Client))
        Order = ChildrenOf(*Window);
    std::erase_if(Order, [](HWND Child) {
        const LONG Style = GetWindowLongA(Child, GWL_STYLE);
        return !(Style & WS_VISIBLE) || (Style & WS_DISABLED) ||
               !(GetWindowLongA(Child, GWL_EXSTYLE) & WS_EX_MDICHILD);
    });
    const auto Here = std::find(Order.begin(), Order.end(), From);
    if (Order.empty())
        return nullptr;
    if (Here == Order.end())
        return Order.front();
    if (Backwards)
        Result = Here == Order.begin() ? Order.back() : *(Here - 1);
    else
        Result = Here + 1 == Order.end() ? Order.front() : *(Here + 1);
    return Result == From ? nullptr : Result;
}

void ActivateDocument(HWND Client, HWND Next)
{
    TMdiClient* State = MdiClientOf(Client);
    const HWND Previous = ActiveDocument(Client);
    if (!State || Previous == Next || (Next && !IsWindow(Next)))
        return;
    const bool Maximized = Previous && IsZoomed(Previous);
    const bool FrameActive = GetActiveWindow() == FrameOf(Client);
    if (Previous) {
        SendMessageA(Previous, WM_NCACTIVATE, FALSE, 0);
        SendMessageA(Previous, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(Previous),
                     reinterpret_cast<LPARAM>(Next));
    }
    State = MdiClientOf(Client);
    if (!State)
        return;
    if (Maximized && Next && Next != Previous) {
        SendMessageA(Next, WM_SYSCOMMAND, SC_MAXIMIZE, 0);
        if (IsWindow(Previous))
            ShowWindow(Previous, SW_SHOWNORMAL);
    }
    State->Active = Next;
    RefreshWindowList(Client);
    ShowDocumentInTitle(Client);
    if (!Next) {
        if (FrameActive)
            SetFocus(Client);
        return;
    }
    SetWindowPos(Next, HWND_TOP, 0, 0, 0, 0, SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE);
    if (FrameActive) {
        SendMessageA(Next, WM_NCACTIVATE, TRUE, 0);
        if (GetFocus() == Client)
            SendMessageA(Client, WM_SETFOCUS, reinterpret_cast<WPARAM>(Client), 0);
        else
            SetFocus(Client);
    }
    SendMessageA(Next, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(Previous), reinterpret_cast<LPARAM>(Next));
}

void RemoveDocument(HWND Client, HWND Child)
{
    if (!IsWindow(Child))
        return;
    if (Child == ActiveDocument(Client)) {
        const HWND Next = NextDocument(Client, Child, false);
        if (Next) {
            ActivateDocument(Client, Next);
        } else {
            ShowWindow(Child, SW_HIDE);
            ActivateDocument(Client, nullptr);
        }
    }
    DestroyWindow(Child);
}

void Forget(HWND Client, HWND Child)
{
    if (TMdiClient* const State = MdiClientOf(Client)) {
        std::erase(State->Documents, Child);
        if (State->Active == Child)
            State->Active = nullptr;
        RefreshWindowList(Client);
    }
}

HWND CreateDocument(HWND Client, const MDICREATESTRUCTA& Data)
{
    const HWND Active = ActiveDocument(Client);
    DWORD Style = Data.style;
    if (Active && IsZoomed(Active) && !(Style & WS_MINIMIZE))
        Style |= WS_MAXIMIZE;
    return CreateWindowExA(WS_EX_MDICHILD, Data.szClass, Data.szTitle, Style, Data.x, Data.y, Data.cx,
                           Data.cy, Client, nullptr, static_cast<HINSTANCE>(Data.hOwner),
                           reinterpret_cast<LPVOID>(Data.lParam));
}

LRESULT SetFrameMenu(HWND Client, HMENU Menu, HMENU WindowMenu)
{
    TMdiClient* const State = MdiClientOf(Client);
    const HWND Frame = FrameOf(Client);
    const HMENU Old = GetMenu(Frame);
    if ((Menu && !IsMenu(Menu)) || (WindowMenu && !IsMenu(WindowMenu)))
        return 0;
    if (WindowMenu && WindowMenu != State->WindowMenu) {
        ClearWindowList(Client);
        State->WindowMenu = WindowMenu;
        RefreshWindowList(Client);
    }
    if (Menu && Menu != Old)
        SetMenu(Frame, Menu);
    return reinterpret_cast<LRESULT>(Old);
}

bool CreateClient(HWND Client, const CREATESTRUCTA& Data)
{
    TWindow* const Window = WindowOf(Client);
    auto State = std::make_unique<TMdiClient>();
    if (const auto* const Info = static_cast<const CLIENTCREATESTRUCT*>(Data.lpCreateParams)) {
        // A client that is itself a document gets its data wrapped once more.
        State->WindowMenu = static_cast<HMENU>(Info->hWindowMenu);
        State->FirstId = Info->idFirstChild;
    }
    Window->State = std::move(State);
    Window->IsMdiClient = true;
    return true;
}

void FollowNotification(HWND Client, WPARAM WParam, LPARAM LParam)
{
    TMdiClient* const State = MdiClientOf(Client);
    const auto Child = reinterpret_cast<HWND>(LParam);
    if (!State)
        return;
    if (LOWORD(WParam) == WM_CREATE) {
        const TWindow* const Window = WindowOf(Child);
        if (Window && (Window->ExStyle & WS_EX_MDICHILD) &&
            std::find(State->Documents.begin(), State->Documents.end(), Child) == State->Documents.end())
            State->Documents.push_back(Child);
    } else if (LOWORD(WParam) == WM_DESTROY) {
        Forget(Client, Child);
    }
}

LRESULT MdiClientProc(HWND Client, UINT Message, WPARAM WParam, LPARAM LParam)
{
    const auto Child = reinterpret_cast<HWND>(WParam);
    if (Message == WM_NCCREATE) {
        CreateClient(Client, *reinterpret_cast<const CREATESTRUCTA*>(LParam));
        // Its scroll bars are there only while a document reaches out of it.
        SetWindowLongPtrA(Client, GWL_STYLE,
                          GetWindowLongPtrA(Client, GWL_STYLE) & ~LONG_PTR{WS_HSCROLL | WS_VSCROLL});
        return DefWindowProcA(Client, Message, WParam, LParam);
    }
    if (!MdiClientOf(Client))
        return DefWindowProcA(Client, Message, WParam, LParam);
    switch (Message) {
    case WM_MDICREATE:
        return reinterpret_cast<LRESULT>(
            CreateDocument(Client, *reinterpret_cast<const MDICREATESTRUCTA*>(LParam)));
    case WM_MDIDESTROY:
        RemoveDocument(Client, Child);
        return 0;
    case WM_MDIACTIVATE:
        if (ActiveDocument(Client) != Child)
            SetWindowPos(Child, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
        return 0;
    case WM_MDIGETACTIVE: {
        const HWND Active = ActiveDocument(Client);
        if (LParam)
            *reinterpret_cast<BOOL*>(LParam) = Active && IsZoomed(Active);
        return reinterpret_cast<LRESULT>(Active);
    }
    case WM_MDIMAXIMIZE:
        ShowWindow(Child, SW_MAXIMIZE);
        return 0;
    case WM_MDIRESTORE:
        ShowWindow(Child, SW_SHOWNORMAL);
        return 0;
    case WM_MDINEXT:
        if (const HWND Next = NextDocument(Client, Child ? Child : ActiveDocument(Client), LParam != 0))
            SendMessageA(Client, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(Next), 0);
        return 0;
    case WM_MDICASCADE:
        return CascadeWindows(Client, static_cast<UINT>(WParam), nullptr, 0, nullptr) > 0;
    case WM_MDITILE:
        return TileWindows(Client, static_cast<UINT>(WParam), nullptr, 0, nullptr) > 0;
    case WM_MDIICONARRANGE:
        return static_cast<LRESULT>(ArrangeIconicWindows(Client));
    case WM_MDISETMENU:
        return SetFrameMenu(Client, reinterpret_cast<HMENU>(WParam), reinterpret_cast<HMENU>(LParam));
    case WM_MDIREFRESHMENU:
        RefreshWindowList(Client);
        return 0;
    case WM_PARENTNOTIFY:
        FollowNotification(Client, WParam, LParam);
        return 0;
    case WM_SETFOCUS:
        if (const HWND Active = ActiveDocument(Client); Active && !IsIconic(Active))
            SetFocus(Active);
        return 0;
    case WM_NCACTIVATE:
        if (const HWND Active = ActiveDocument(Client))
            SendMessageA(Active, Message, WParam, LParam);
        return TRUE;
    case WM_SIZE:
        if (const HWND Active = ActiveDocument(Client); Active && IsZoomed(Active)) {
            RECT Rect{0, 0, LOWORD(LParam), HIWORD(LParam)};
            AdjustWindowRectEx(&Rect, static_cast<DWORD>(GetWindowLongA(Active, GWL_STYLE)), FALSE,
                               static_cast<DWORD>(GetWindowLongA(Active, GWL_EXSTYLE)));
            MoveWindow(Active, Rect.left, Rect.top, Rect.right - Rect.left, Rect.bottom - Rect.top, TRUE);
        }
        return 0;
    case WM_DESTROY:
        ClearWindowList(Client);
        return 0;
    default:
        return DefWindowProcA(Client, Message, WParam, LParam);
    }
}

} // namespace

void RegisterMdiClass()
{
    RegisterBuiltInClass("MDICLIENT", 0, MdiClientProc, 2 * sizeof(void*), IDC_ARROW,
                         reinterpret_cast<HBRUSH>(static_cast<LONG_PTR>(COLOR_APPWORKSPACE + 1)));
}

LRESULT DefMDIChildProcA(HWND Handle, UINT Message, WPARAM WParam, LPARAM LParam)
{
    const HWND Client = GetParent(Handle);
    if (!MdiClientOf(Client))
        return DefWindowProcA(Handle, Message, WParam, LParam);
    switch (Message) {
    case WM_SETTEXT:
        DefWindowProcA(Handle, Message, WParam, LParam);
        ShowDocumentInTitle(Client);
        return 1;
    case WM_GETMINMAXINFO: {
        auto& Info = *reinterpret_cast<MINMAXINFO*>(LParam);
        RECT Rect;
        GetClientRect(Client, &Rect);
        AdjustWindowRectEx(&Rect, static_cast<DWORD>(GetWindowLongA(Handle, GWL_STYLE)), FALSE,
                           static_cast<DWORD>(GetWindowLongA(Handle, GWL_EXSTYLE)));
        Info.ptMaxSize = {Rect.right - Rect.left, Rect.bottom - Rect.top};
        Info.ptMaxPosition = {Rect.left, Rect.top};
        return 0;
    }
    case WM_CLOSE:
        SendMessageA(Client, WM_MDIDESTROY, reinterpret_cast<WPARAM>(Handle), 0);
        return 0;
    case WM_CHILDACTIVATE:
        if (IsWindowEnabled(Handle))
            ActivateDocument(Client, Handle);
        return 0;
    case WM_SETFOCUS:
        if (ActiveDocument(Client) != Handle)
            ActivateDocument(Client, Handle);
        return 0;
    case WM_SIZE:
        ShowDocumentInTitle(Client);
        return DefWindowProcA(Handle, Message, WParam, LParam);
    case WM_SYSCOMMAND:
        if ((WParam & 0xFFF0) == SC_NEXTWINDOW || (WParam & 0xFFF0) == SC_PREVWINDOW) {
            SendMessageA(Client, WM_MDINEXT, reinterpret_cast<WPARAM>(ActiveDocument(Client)),
                         (WParam & 0xFFF0) == SC_PREVWINDOW);
            return 0;
        }
        break;
    case WM_MENUCHAR:
        PostMessageA(Handle, WM_SYSCOMMAND, SC_KEYMENU, LOWORD(WParam));
        return 0x00010000;
    default:
        break;
    }
    return DefWindowProcA(Handle, Message, WParam, LParam);
}
