#include <gtest/gtest.h>

#include <atomic>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include "platform/winapi.h"

namespace {

using TLines = std::vector<std::string>;

TLines Log;
std::map<HWND, std::string> Names;
std::map<UINT, LRESULT> Answers; // of the recording procedure, in place of the default

// Messages that depend on drawing, on the window manager or on input methods
// are not compared.
const std::map<UINT, std::string> Known = {{WM_NCCREATE, "nccreate"},
                                           {WM_CREATE, "create"},
                                           {WM_NCCALCSIZE, "nccalcsize"},
                                           {WM_SIZE, "size"},
                                           {WM_MOVE, "move"},
                                           {WM_SHOWWINDOW, "show"},
                                           {WM_GETMINMAXINFO, "minmax"},
                                           {WM_WINDOWPOSCHANGING, "changing"},
                                           {WM_WINDOWPOSCHANGED, "changed"},
                                           {WM_ACTIVATE, "activate"},
                                           {WM_NCACTIVATE, "ncactivate"},
                                           {WM_SETFOCUS, "setfocus"},
                                           {WM_KILLFOCUS, "killfocus"},
                                           {WM_DESTROY, "destroy"},
                                           {WM_NCDESTROY, "ncdestroy"},
                                           {WM_CLOSE, "close"},
                                           {WM_ENABLE, "enable"},
                                           {WM_CANCELMODE, "cancelmode"},
                                           {WM_STYLECHANGING, "stylechanging"},
                                           {WM_STYLECHANGED, "stylechanged"},
                                           {WM_PARENTNOTIFY, "parentnotify"},
                                           {WM_CHILDACTIVATE, "childactivate"},
                                           {WM_SYSCOMMAND, "syscommand"},
                                           {WM_COMMAND, "command"},
                                           {WM_SETTEXT, "settext"},
                                           {WM_USER, "user"},
                                           {WM_CAPTURECHANGED, "capturechanged"},
                                           {WM_MDIACTIVATE, "mdiactivate"},
                                           {WM_CHAR, "char"},
                                           {WM_SYSCHAR, "syschar"}};

std::string NameOf(HWND Window)
{
    const auto Found = Names.find(Window);
    return Found == Names.end() ? "?" : Found->second;
}

std::string Detail(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case WM_ACTIVATE:
        return LOWORD(WParam) ? "+" : "-";
    case WM_NCACTIVATE:
    case WM_ENABLE:
    case WM_SHOWWINDOW:
        return WParam ? "+" : "-";
    case WM_SIZE:
        return ":" + std::to_string(WParam);
    case WM_PARENTNOTIFY:
        return LOWORD(WParam) == WM_CREATE ? ":create" : LOWORD(WParam) == WM_DESTROY ? ":destroy" : ":?";
    case WM_SYSCOMMAND:
        return WParam == SC_CLOSE ? ":close" : ":?";
    case WM_COMMAND:
        return ":" + std::to_string(LOWORD(WParam));
    case WM_CHAR:
    case WM_SYSCHAR:
        return std::string(":") + static_cast<char>(WParam);
    case WM_STYLECHANGING:
    case WM_STYLECHANGED:
        return static_cast<int>(WParam) == GWL_STYLE ? ":style" : ":exstyle";
    default:
        static_cast<void>(LParam);
        return "";
    }
}

LRESULT CALLBACK Recorder(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam)
{
    if (Message == WM_NCCREATE || Message == WM_GETMINMAXINFO)
        if (!Names.contains(Window))
            Names[Window] = std::string(1, static_cast<char>('A' + Names.size()));
    const auto Found = Known.find(Message);
    if (Found != Known.end())
        Log.push_back(NameOf(Window) + "." + Found->second + Detail(Message, WParam, LParam));
    if (const auto Answer = Answers.find(Message); Answer != Answers.end())
        return Answer->second;
    return DefWindowProcA(Window, Message, WParam, LParam);
}

void RegisterRecorder()
{
    WNDCLASSEXA Class{};
    Class.cbSize = sizeof(Class);
    Class.lpfnWndProc = Recorder;
    Class.cbWndExtra = 2 * sizeof(LONG_PTR);
    Class.hInstance = GetModuleHandleA(nullptr);
    Class.lpszClassName = "Recorder";
    RegisterClassExA(&Class);
}

HWND Make(DWORD Style, HWND Parent = nullptr, int Id = 0, DWORD ExStyle = 0)
{
    return CreateWindowExA(ExStyle, "Recorder", "Title", Style, 10, 20, 300, 200, Parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(Id)), GetModuleHandleA(nullptr),
                           nullptr);
}

TLines Take()
{
    return std::exchange(Log, {});
}

// Lets what is waiting arrive.
void Drain()
{
    MSG Message;
    while (PeekMessageA(&Message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageA(&Message);
}

class Windows : public testing::Test {
protected:
    void SetUp() override { RegisterRecorder(); }
    void TearDown() override
    {
        EnumThreadWindows(
            GetCurrentThreadId(),
            [](HWND Window, LPARAM) {
                char Name[40];
                GetClassNameA(Window, Name, sizeof(Name));
                if (std::string(Name) == "Recorder")
                    DestroyWindow(Window);
                return TRUE;
            },
            0);
        Drain();
        Log.clear();
        Names.clear();
        Answers.clear();
    }
};

TEST_F(Windows, AreCreatedWithTheSystemsMessages)
{
    Make(WS_OVERLAPPEDWINDOW);
    EXPECT_EQ(Take(), (TLines{"A.minmax", "A.nccreate", "A.nccalcsize", "A.create"}));
    Make(WS_POPUP);
    EXPECT_EQ(Take(), (TLines{"B.nccreate", "B.nccalcsize", "B.create", "B.size:0", "B.move"}));
    const HWND Parent = Make(WS_POPUP);
    Take();
    Make(WS_CHILD | WS_VISIBLE, Parent, 5);
    EXPECT_EQ(Take(), (TLines{"D.nccreate", "D.nccalcsize", "D.create", "D.size:0", "D.move",
                              "C.parentnotify:create", "D.show+"}));
}

TEST_F(Windows, AreShownAndActivatedInOrder)
{
    const HWND First = Make(WS_OVERLAPPEDWINDOW);
    Take();
    ShowWindow(First, SW_SHOW);
    Drain();
    EXPECT_EQ(Take(), (TLines{"A.show+", "A.changing", "A.ncactivate+", "A.activate+", "A.setfocus",
                              "A.changed", "A.size:0", "A.move"}));
    const HWND Second = Make(WS_POPUP);
    Take();
    ShowWindow(Second, SW_SHOW);
    Drain();
    EXPECT_EQ(Take(), (TLines{"B.show+", "B.changing", "A.ncactivate-", "A.activate-", "B.ncactivate+",
                              "B.activate+", "A.killfocus", "B.setfocus", "B.changed"}));
    SetActiveWindow(First);
    EXPECT_EQ(GetFocus(), First);
    DestroyWindow(Second);
    EXPECT_EQ(GetActiveWindow(), First);
}

TEST_F(Windows, AreDestroyedFromTheParentDown)
{
    const HWND Parent = Make(WS_POPUP);
    const HWND Child = Make(WS_CHILD, Parent, 1);
    const HWND Grandchild = Make(WS_CHILD, Child, 2, WS_EX_NOPARENTNOTIFY);
    Take();
    DestroyWindow(Parent);
    EXPECT_EQ(Take(),
              (TLines{"A.destroy", "B.destroy", "C.destroy", "C.ncdestroy", "B.ncdestroy", "A.ncdestroy"}));
    EXPECT_FALSE(IsWindow(Parent) || IsWindow(Child) || IsWindow(Grandchild));
    EXPECT_EQ(SendMessageA(Child, WM_USER, 0, 0), 0);
    EXPECT_FALSE(SetWindowTextA(Child, "x"));
    EXPECT_FALSE(DestroyWindow(Parent));
}

TEST_F(Windows, MoveAndSizeSendWhatChanged)
{
    const HWND Window = Make(WS_POPUP);
    const struct {
        const char* Name;
        int X, Y, Width, Height;
        TLines Expected;
    } Cases[] = {
        {"move", 30, 40, 300, 200, {"A.changing", "A.changed", "A.move"}},
        {"size", 30, 40, 310, 210, {"A.changing", "A.nccalcsize", "A.changed", "A.size:0"}},
        {"both", 0, 0, 100, 50, {"A.changing", "A.nccalcsize", "A.changed", "A.move", "A.size:0"}},
        {"nothing", 0, 0, 100, 50, {"A.changing"}},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        Take();
        MoveWindow(Window, Case.X, Case.Y, Case.Width, Case.Height, FALSE);
        EXPECT_EQ(Take(), Case.Expected);
        RECT Rect;
        GetWindowRect(Window, &Rect);
        EXPECT_EQ(Rect.left, Case.X);
        EXPECT_EQ(Rect.bottom, Case.Y + Case.Height);
    }
}

TEST_F(Windows, ARefusedCreationLeavesNothing)
{
    for (const UINT Refusing : {WM_NCCREATE, WM_CREATE}) {
        Answers = {{Refusing, Refusing == WM_CREATE ? -1 : 0}};
        EXPECT_EQ(Make(WS_POPUP), nullptr);
        EXPECT_FALSE(IsWindow(Names.begin()->first));
        Names.clear();
    }
    EXPECT_EQ(CreateWindowExA(0, "No such class", "", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr),
              nullptr);
    EXPECT_EQ(Make(WS_CHILD), nullptr);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_TLW_WITH_WSCHILD));
}

TEST_F(Windows, FramesHaveTheSystemsWidths)
{
    const struct {
        DWORD Style, ExStyle;
        RECT Frame;
    } Cases[] = {
        {WS_OVERLAPPEDWINDOW, 0, {-4, -23, 4, 4}},
        {WS_OVERLAPPEDWINDOW, WS_EX_TOOLWINDOW, {-4, -20, 4, 4}},
        {WS_CAPTION, WS_EX_DLGMODALFRAME, {-3, -22, 3, 3}},
        {WS_POPUP | WS_BORDER, 0, {-1, -1, 1, 1}},
        {WS_CHILD, WS_EX_CLIENTEDGE, {-2, -2, 2, 2}},
        {WS_CHILD, WS_EX_STATICEDGE, {-1, -1, 1, 1}},
        {WS_CHILD | WS_THICKFRAME, 0, {-3, -3, 3, 3}},
        {WS_OVERLAPPEDWINDOW, WS_EX_STATICEDGE, {-3, -22, 3, 3}},
    };
    for (const auto& Case : Cases) {
        RECT Rect{};
        AdjustWindowRectEx(&Rect, Case.Style, FALSE, Case.ExStyle);
        EXPECT_TRUE(EqualRect(&Rect, &Case.Frame)) << std::hex << Case.Style << " " << Case.ExStyle;
    }
    const HWND Window = Make(WS_OVERLAPPEDWINDOW | WS_VSCROLL);
    RECT Client;
    GetClientRect(Window, &Client);
    EXPECT_EQ(Client.right, 300 - 8 - GetSystemMetrics(SM_CXVSCROLL));
    EXPECT_EQ(Client.bottom, 200 - 27);
}

TEST_F(Windows, TheTreeIsWalkedInOrder)
{
    const HWND Top = Make(WS_POPUP);
    const HWND One = Make(WS_CHILD, Top, 1);
    const HWND Two = Make(WS_CHILD, Top, 2);
    const HWND Owned = Make(WS_POPUP, One);
    EXPECT_EQ(GetWindow(Top, GW_CHILD), One);
    EXPECT_EQ(GetWindow(One, GW_HWNDNEXT), Two);
    EXPECT_EQ(GetDlgItem(Top, 2), Two);
    EXPECT_EQ(GetDlgCtrlID(One), 1);
    EXPECT_EQ(GetWindow(Owned, GW_OWNER), Top) << "a child cannot own: its root does";
    EXPECT_EQ(GetParent(Owned), Top);
    EXPECT_EQ(GetAncestor(Owned, GA_ROOT), Owned);
    EXPECT_EQ(GetAncestor(Owned, GA_ROOTOWNER), Top);
    EXPECT_TRUE(IsChild(Top, Two));
    EXPECT_FALSE(IsChild(Top, Owned));
    SetWindowPos(Two, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EXPECT_EQ(GetTopWindow(Top), Two);
    SetWindowPos(Two, One, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EXPECT_EQ(GetTopWindow(Top), One);
    EXPECT_EQ(FindWindowExA(Top, One, "recorder", "TITLE"), Two);
    EXPECT_EQ(SetParent(Two, One), Top);
    EXPECT_EQ(GetParent(Two), One);
    POINT Point{0, 0};
    MapWindowPoints(Two, Top, &Point, 1);
    EXPECT_EQ(Point.x, 20);
    EXPECT_EQ(Point.y, 40);
    DestroyWindow(Top);
    EXPECT_FALSE(IsWindow(Owned));
}

TEST_F(Windows, TextsAreCutBetweenCharacters)
{
    const HWND Window = Make(WS_POPUP);
    SetWindowTextA(Window, "a\xC3\xA4\xE4\xBD\xA0");
    char Text[8];
    EXPECT_EQ(GetWindowTextA(Window, Text, 8), 6);
    EXPECT_STREQ(Text, "a\xC3\xA4\xE4\xBD\xA0");
    EXPECT_EQ(GetWindowTextLengthA(Window), 6);
}

TEST_F(Windows, StylesAreAnnouncedAndValuesKept)
{
    const HWND Window = Make(WS_POPUP);
    Take();
    const LONG_PTR Old =
        SetWindowLongPtrA(Window, GWL_STYLE, static_cast<LONG_PTR>(WS_POPUP | WS_DISABLED | WS_CLIPSIBLINGS));
    EXPECT_EQ(static_cast<DWORD>(Old), WS_POPUP | WS_CLIPSIBLINGS);
    EXPECT_EQ(Take(), (TLines{"A.stylechanging:style", "A.stylechanged:style"}));
    EXPECT_FALSE(IsWindowEnabled(Window));
    SetWindowLongPtrA(Window, sizeof(LONG_PTR), 42);
    EXPECT_EQ(GetWindowLongPtrA(Window, sizeof(LONG_PTR)), 42);
    EXPECT_EQ(GetWindowLongPtrA(Window, 2 * sizeof(LONG_PTR)), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_INDEX));
    SetPropA(Window, "Name", reinterpret_cast<HANDLE>(static_cast<INT_PTR>(7)));
    EXPECT_EQ(RemovePropA(Window, "NAME"), reinterpret_cast<HANDLE>(static_cast<INT_PTR>(7)));
    EXPECT_EQ(GetPropA(Window, "Name"), nullptr);
}

TEST_F(Windows, DisablingTakesTheFocus)
{
    const HWND Window = Make(WS_POPUP | WS_VISIBLE);
    const HWND Child = Make(WS_CHILD | WS_VISIBLE, Window, 1);
    SetFocus(Child);
    Take();
    EXPECT_FALSE(EnableWindow(Child, FALSE));
    EXPECT_EQ(Take(), (TLines{"B.cancelmode", "B.killfocus", "B.enable-"}));
    EXPECT_EQ(SetFocus(Child), nullptr);
    EXPECT_TRUE(EnableWindow(Child, TRUE));
    EXPECT_EQ(Take(), (TLines{"B.enable+"}));
}

TEST_F(Windows, CloseTakesTheLongWay)
{
    const HWND Window = Make(WS_OVERLAPPEDWINDOW);
    Take();
    SendMessageA(Window, WM_SYSCOMMAND, SC_CLOSE, 0);
    EXPECT_EQ(Take(), (TLines{"A.syscommand:close", "A.close", "A.destroy", "A.ncdestroy"}));
}

// A window that destroys itself while it is being called must not be touched
// again by what called it.
LRESULT CALLBACK SelfDestroyer(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam)
{
    const auto Trigger = static_cast<UINT>(GetWindowLongPtrA(Window, GWLP_USERDATA));
    if (Trigger && Message == Trigger) {
        SetWindowLongPtrA(Window, GWLP_USERDATA, 0);
        DestroyWindow(Window);
        return 0;
    }
    return DefWindowProcA(Window, Message, WParam, LParam);
}

TEST_F(Windows, MayDestroyThemselvesInAnyMessage)
{
    for (const UINT Trigger :
         {WM_SHOWWINDOW, WM_WINDOWPOSCHANGING, WM_WINDOWPOSCHANGED, WM_NCACTIVATE, WM_ACTIVATE, WM_SETFOCUS,
          WM_SIZE, WM_NCCALCSIZE, WM_SETTEXT, WM_CLOSE, WM_GETMINMAXINFO}) {
        SCOPED_TRACE(Trigger);
        const HWND Window = Make(WS_OVERLAPPEDWINDOW);
        SetWindowLongPtrA(Window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(SelfDestroyer));
        SetWindowLongPtrA(Window, GWLP_USERDATA, static_cast<LONG_PTR>(Trigger));
        ShowWindow(Window, SW_SHOW);
        SetWindowPos(Window, nullptr, 5, 5, 200, 150, SWP_NOZORDER | SWP_FRAMECHANGED);
        SetWindowTextA(Window, "x");
        SendMessageA(Window, WM_CLOSE, 0, 0);
        EXPECT_FALSE(IsWindow(Window));
        Drain();
    }
}

// Messages

TEST_F(Windows, PostedMessagesKeepTheirOrderAndQuitComesLast)
{
    const HWND Window = Make(WS_POPUP);
    PostQuitMessage(7);
    PostMessageA(Window, WM_USER, 1, 0);
    PostMessageA(Window, WM_USER, 2, 0);
    MSG Message;
    EXPECT_TRUE(GetMessageA(&Message, nullptr, 0, 0));
    EXPECT_EQ(Message.wParam, 1u);
    EXPECT_TRUE(GetMessageA(&Message, nullptr, 0, 0));
    EXPECT_EQ(Message.wParam, 2u);
    EXPECT_FALSE(GetMessageA(&Message, nullptr, 0, 0));
    EXPECT_EQ(Message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(Message.wParam, 7u);
    PostMessageA(Window, WM_USER, 3, 0);
    DestroyWindow(Window);
    EXPECT_FALSE(PeekMessageA(&Message, nullptr, WM_USER, WM_USER, PM_REMOVE)) << "went with its window";
}

TEST_F(Windows, AnotherThreadsMessageRunsInTheOwnersThread)
{
    static std::atomic<DWORD> Receiver;
    static DWORD Quit;
    Quit = GetCurrentThreadId();
    WNDCLASSEXA Class{};
    Class.cbSize = sizeof(Class);
    Class.hInstance = GetModuleHandleA(nullptr);
    Class.lpszClassName = "Threaded";
    Class.lpfnWndProc = [](HWND Window, UINT Message, WPARAM WParam, LPARAM LParam) -> LRESULT {
        if (Message != WM_USER)
            return DefWindowProcA(Window, Message, WParam, LParam);
        Receiver = GetCurrentThreadId();
        return static_cast<LRESULT>(WParam) * 2;
    };
    RegisterClassExA(&Class);
    const HWND Window =
        CreateWindowExA(0, "Threaded", "Text", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    LRESULT Answer = 0;
    std::string Seen(10, 0);
    std::thread Other([&] {
        Answer = SendMessageA(Window, WM_USER, 21, 0);
        GetWindowTextA(Window, Seen.data(), 10);
        EXPECT_FALSE(DestroyWindow(Window)) << "only the owner's thread may";
        PostThreadMessageA(Quit, WM_QUIT, 0, 0);
    });
    MSG Message;
    while (GetMessageA(&Message, nullptr, 0, 0) > 0)
        DispatchMessageA(&Message);
    Other.join();
    EXPECT_EQ(Answer, 42);
    EXPECT_EQ(Receiver, GetCurrentThreadId());
    EXPECT_STREQ(Seen.c_str(), "Text");
    DestroyWindow(Window);
    UnregisterClassA("Threaded", GetModuleHandleA(nullptr));
}

TEST_F(Windows, TimersArriveThroughTheLoop)
{
    static int Calls;
    Calls = 0;
    const HWND Window = Make(WS_POPUP);
    EXPECT_NE(SetTimer(Window, 3, 10, nullptr), 0u);
    const UINT_PTR Other = SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR, DWORD) { ++Calls; });
    MSG Message;
    bool Seen = false;
    for (int Turn = 0; Turn < 20 && !(Seen && Calls); ++Turn) {
        ASSERT_TRUE(GetMessageA(&Message, nullptr, 0, 0));
        Seen |= Message.hwnd == Window && Message.message == WM_TIMER && Message.wParam == 3;
        DispatchMessageA(&Message);
    }
    EXPECT_TRUE(Seen);
    EXPECT_GT(Calls, 0);
    EXPECT_TRUE(KillTimer(Window, 3));
    EXPECT_FALSE(KillTimer(Window, 3));
    EXPECT_TRUE(KillTimer(nullptr, Other));
}

// Hooks

TLines HookLog;
bool Refuse = false;

// The system makes windows of its own, too.
bool IsRecorder(int Code, LPARAM LParam)
{
    if (Code != HCBT_CREATEWND)
        return false;
    const LPCSTR Name = reinterpret_cast<const CBT_CREATEWNDA*>(LParam)->lpcs->lpszClass;
    return !IS_INTRESOURCE(Name) && std::string(Name) == "Recorder";
}

LRESULT CALLBACK CbtHook(int Code, WPARAM WParam, LPARAM LParam)
{
    const auto Window = reinterpret_cast<HWND>(WParam);
    switch (Code) {
    case HCBT_CREATEWND:
        if (IsRecorder(Code, LParam))
            HookLog.push_back("create");
        break;
    case HCBT_ACTIVATE:
        HookLog.push_back(Names.contains(Window) ? "activate" : "activate?");
        break;
    case HCBT_SETFOCUS:
        HookLog.push_back("focus");
        break;
    case HCBT_DESTROYWND:
        if (Names.contains(Window))
            HookLog.push_back("destroy");
        break;
    default:
        break;
    }
    return Refuse && Code == HCBT_CREATEWND ? 1 : CallNextHookEx(nullptr, Code, WParam, LParam);
}

LRESULT CALLBACK OuterHook(int Code, WPARAM WParam, LPARAM LParam)
{
    if (IsRecorder(Code, LParam))
        HookLog.push_back(">");
    return CallNextHookEx(nullptr, Code, WParam, LParam);
}

TEST_F(Windows, HooksSeeCreationActivationAndTheEnd)
{
    HookLog.clear();
    const HHOOK Hook = SetWindowsHookExA(WH_CBT, CbtHook, nullptr, GetCurrentThreadId());
    ASSERT_NE(Hook, nullptr);
    const HWND Window = Make(WS_POPUP | WS_VISIBLE);
    EXPECT_EQ(std::exchange(HookLog, {}), (TLines{"create", "activate", "focus"}));
    DestroyWindow(Window);
    EXPECT_EQ(HookLog.front(), "destroy");
    Refuse = true;
    EXPECT_EQ(Make(WS_POPUP), nullptr);
    Refuse = false;
    const HHOOK Newer = SetWindowsHookExA(WH_CBT, OuterHook, nullptr, GetCurrentThreadId());
    HookLog.clear();
    Make(WS_POPUP);
    EXPECT_EQ(HookLog, (TLines{">", "create"})) << "the newest first";
    EXPECT_TRUE(UnhookWindowsHookEx(Hook));
    EXPECT_TRUE(UnhookWindowsHookEx(Newer));
    EXPECT_FALSE(UnhookWindowsHookEx(Hook));
    HookLog.clear();
    Make(WS_POPUP);
    EXPECT_TRUE(HookLog.empty());
}

// Several documents

LRESULT CALLBACK DocumentProc(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam)
{
    if (Message == WM_MDIACTIVATE)
        Log.push_back(NameOf(Window) + (reinterpret_cast<HWND>(LParam) == Window ? ".on" : ".off"));
    return DefMDIChildProcA(Window, Message, WParam, LParam);
}

HWND FrameClient;

LRESULT CALLBACK FrameProc(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam)
{
    return DefFrameProcA(Window, FrameClient, Message, WParam, LParam);
}

std::string TextOf(HMENU Menu, int Position)
{
    char Text[60] = "";
    GetMenuStringA(Menu, static_cast<UINT>(Position), Text, sizeof(Text), MF_BYPOSITION);
    return Text;
}

TEST_F(Windows, DocumentsTakeTurnsAndAreListed)
{
    for (const auto& [Name, Proc] : {std::pair{"Frame", &FrameProc}, std::pair{"Document", &DocumentProc}}) {
        WNDCLASSEXA Class{};
        Class.cbSize = sizeof(Class);
        Class.lpfnWndProc = Proc;
        Class.hInstance = GetModuleHandleA(nullptr);
        Class.lpszClassName = Name;
        RegisterClassExA(&Class);
    }
    const HMENU List = CreatePopupMenu();
    AppendMenuA(List, MF_STRING, 10, "&Cascade");
    const HWND Frame = CreateWindowExA(0, "Frame", "Frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 600, 400,
                                       nullptr, nullptr, nullptr, nullptr);
    CLIENTCREATESTRUCT Info{List, 1000};
    FrameClient = CreateWindowExA(0, "MDICLIENT", "", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, 500, 300,
                                  Frame, nullptr, nullptr, &Info);
    ASSERT_NE(FrameClient, nullptr);
    std::vector<HWND> Documents;
    for (const char* Title : {"One", "Two", "Three"}) {
        MDICREATESTRUCTA Data{"Document",    Title, nullptr, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                              CW_USEDEFAULT, 0,     0};
        Documents.push_back(reinterpret_cast<HWND>(
            SendMessageA(FrameClient, WM_MDICREATE, 0, reinterpret_cast<LPARAM>(&Data))));
        Names[Documents.back()] = Title;
    }
    const auto Active = [&] {
        return NameOf(reinterpret_cast<HWND>(SendMessageA(FrameClient, WM_MDIGETACTIVE, 0, 0)));
    };
    EXPECT_EQ(Active(), "Three");
    EXPECT_EQ(GetMenuItemCount(List), 5);
    EXPECT_EQ(TextOf(List, 2), "&1 One");
    EXPECT_EQ(TextOf(List, 4), "&3 Three");
    EXPECT_TRUE(GetMenuState(List, 4, MF_BYPOSITION) & MF_CHECKED);
    Take();
    SendMessageA(Frame, WM_COMMAND, 1000, 0);
    EXPECT_EQ(Active(), "One");
    EXPECT_EQ(Take(), (TLines{"Three.off", "One.on"}));
    SendMessageA(FrameClient, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(Documents[1]), 0);
    EXPECT_EQ(Active(), "Two");
    EXPECT_TRUE(GetMenuState(List, 3, MF_BYPOSITION) & MF_CHECKED);
    SetWindowTextA(Documents[1], "Zwei");
    EXPECT_EQ(TextOf(List, 3), "&2 Two") << "the list is not written by a new title alone";
    SendMessageA(FrameClient, WM_MDIREFRESHMENU, 0, 0);
    EXPECT_EQ(TextOf(List, 3), "&2 Zwei");
    SendMessageA(FrameClient, WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(Documents[1]), 0);
    EXPECT_TRUE(IsZoomed(Documents[1]));
    char Title[40];
    GetWindowTextA(Frame, Title, sizeof(Title));
    EXPECT_STREQ(Title, "Frame - [Zwei]");
    // No menus at all: refused, and the list stays in its menu.
    SendMessageA(FrameClient, WM_MDISETMENU, 1, static_cast<LPARAM>(0x10000));
    SendMessageA(FrameClient, WM_MDIREFRESHMENU, 0, 0);
    EXPECT_EQ(GetMenuItemCount(List), 5);
    SendMessageA(FrameClient, WM_MDIRESTORE, reinterpret_cast<WPARAM>(Documents[1]), 0);
    EXPECT_FALSE(IsZoomed(Documents[1]));
    GetWindowTextA(Frame, Title, sizeof(Title));
    EXPECT_STREQ(Title, "Frame");
    SendMessageA(FrameClient, WM_MDIDESTROY, reinterpret_cast<WPARAM>(Documents[1]), 0);
    EXPECT_FALSE(IsWindow(Documents[1]));
    EXPECT_EQ(GetMenuItemCount(List), 4);
    SendMessageA(Documents[0], WM_CLOSE, 0, 0);
    SendMessageA(Documents[2], WM_CLOSE, 0, 0);
    EXPECT_EQ(Active(), "?");
    EXPECT_EQ(GetMenuItemCount(List), 1);
    DestroyWindow(Frame);
    DestroyMenu(List);
}

// Dialog keys

TEST_F(Windows, DialogKeysMoveTheFocus)
{
    const HWND Dialog = Make(WS_POPUP | WS_VISIBLE);
    const HWND First = Make(WS_CHILD | WS_VISIBLE | WS_TABSTOP, Dialog, 1);
    const HWND Skipped = Make(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_DISABLED, Dialog, 2);
    const HWND Last = Make(WS_CHILD | WS_VISIBLE | WS_TABSTOP, Dialog, 3);
    EXPECT_EQ(GetNextDlgTabItem(Dialog, First, FALSE), Last);
    EXPECT_EQ(GetNextDlgTabItem(Dialog, Last, FALSE), First);
    EXPECT_EQ(GetNextDlgTabItem(Dialog, First, TRUE), Last);
    EXPECT_EQ(GetNextDlgTabItem(Dialog, nullptr, FALSE), First);
    SetFocus(First);
    Take();
    MSG Key{First, WM_KEYDOWN, VK_ESCAPE, 0, 0, {}};
    EXPECT_TRUE(IsDialogMessageA(Dialog, &Key));
    EXPECT_EQ(Take(), (TLines{"A.command:2"}));
    Key.wParam = VK_RETURN;
    EXPECT_TRUE(IsDialogMessageA(Dialog, &Key));
    EXPECT_EQ(Take(), (TLines{"A.user", "A.command:1"})) << "asks for the default button first";
    Key.hwnd = nullptr;
    EXPECT_FALSE(IsDialogMessageA(Dialog, &Key));
    static_cast<void>(Skipped);
}

// Message boxes

struct TBoxSeen {
    TLines Lines;
    int Press;
};
TBoxSeen BoxSeen;

LRESULT CALLBACK BoxHook(int Code, WPARAM WParam, LPARAM LParam)
{
    const auto Box = reinterpret_cast<HWND>(WParam);
    char ClassName[20] = "";
    if (Code == HCBT_ACTIVATE && GetClassNameA(Box, ClassName, sizeof(ClassName)) &&
        std::string(ClassName) == "#32770") {
        const auto List = [](HWND Child, LPARAM) {
            char Text[60] = "";
            GetWindowTextA(Child, Text, sizeof(Text));
            BoxSeen.Lines.push_back(std::to_string(GetDlgCtrlID(Child) & 0xffff) + "=" + Text);
            return TRUE;
        };
        char Title[60] = "";
        GetWindowTextA(Box, Title, sizeof(Title));
        BoxSeen.Lines = {Title};
        for (HWND Child = GetWindow(Box, GW_CHILD); Child; Child = GetWindow(Child, GW_HWNDNEXT))
            if (GetWindowLongA(Child, GWL_STYLE) & WS_VISIBLE)
                List(Child, 0);
        PostMessageA(Box, WM_COMMAND, static_cast<WPARAM>(BoxSeen.Press), 0);
    }
    return CallNextHookEx(nullptr, Code, WParam, LParam);
}

TEST_F(Windows, MessageBoxesShowTheirButtonsAndAnswer)
{
    const struct {
        UINT Type;
        int Press, Answer;
        TLines Buttons;
    } Cases[] = {
        {MB_OK | MB_ICONERROR, IDOK, IDOK, {"1=OK"}},
        {MB_OKCANCEL | MB_ICONERROR, IDCANCEL, IDCANCEL, {"1=OK", "2=Cancel"}},
        {MB_ABORTRETRYIGNORE | MB_ICONERROR, IDRETRY, IDRETRY, {"3=&Abort", "4=&Retry", "5=&Ignore"}},
        {MB_YESNOCANCEL | MB_ICONERROR, IDNO, IDNO, {"6=&Yes", "7=&No", "2=Cancel"}},
        {MB_RETRYCANCEL | MB_ICONERROR, IDRETRY, IDRETRY, {"4=&Retry", "2=Cancel"}},
    };
    const HHOOK Hook = SetWindowsHookExA(WH_CBT, BoxHook, nullptr, GetCurrentThreadId());
    const HWND Owner = Make(WS_POPUP | WS_VISIBLE);
    for (const auto& Case : Cases) {
        BoxSeen = {{}, Case.Press};
        EXPECT_EQ(MessageBoxA(Owner, "Text", "Caption", Case.Type), Case.Answer);
        ASSERT_FALSE(BoxSeen.Lines.empty());
        EXPECT_EQ(BoxSeen.Lines.front(), "Caption");
        TLines Buttons;
        for (const std::string& Line : BoxSeen.Lines)
            if (Line.find("=") == 1)
                Buttons.push_back(Line);
        EXPECT_EQ(Buttons, Case.Buttons);
        EXPECT_TRUE(IsWindowEnabled(Owner));
        EXPECT_EQ(GetActiveWindow(), Owner);
    }
    UnhookWindowsHookEx(Hook);
}

} // namespace
