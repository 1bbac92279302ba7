// The queues: posting, fetching and dispatching.
#include <algorithm>
#include <map>

#include "platform/portable/Lifetime.h"
#include "platform/portable/Thread.h"

namespace {

struct TFilter {
    HWND Window;
    UINT First;
    UINT Last;

    bool AllMessages() const { return First == 0 && Last == 0; }
    bool Fits(UINT Message) const { return AllMessages() || (Message >= First && Message <= Last); }
    bool Fits(HWND Handle) const
    {
        if (!Window)
            return true;
        if (Window == reinterpret_cast<HWND>(-1))
            return !Handle;
        return Handle == Window || IsChild(Window, Handle);
    }
    bool Fits(const MSG& Message) const { return Fits(Message.message) && Fits(Message.hwnd); }
};

bool TakeFrom(std::deque<MSG>& Queue, const TFilter& Filter, bool Remove, MSG& Message)
{
    const auto Found =
        std::find_if(Queue.begin(), Queue.end(), [&](const MSG& Each) { return Filter.Fits(Each); });
    if (Found == Queue.end())
        return false;
    Message = *Found;
    if (Remove)
        Queue.erase(Found);
    return true;
}

// The topmost visible window of this thread below Root that waits for painting.
HWND FindDirty(const TWindow& Root, const TThread& Thread, const TFilter& Filter)
{
    for (const TWindow* const Child : Root.Children) {
        if (!Child->Has(WS_VISIBLE))
            continue;
        if (Child->Update.Pending && Child->Thread.get() == &Thread && Filter.Fits(Child->Handle))
            return Child->Handle;
        if (const HWND Inner = Child->Has(WS_MINIMIZE) ? nullptr : FindDirty(*Child, Thread, Filter))
            return Inner;
    }
    return nullptr;
}

MSG MakeMessage(HWND Window, UINT Message, WPARAM WParam = 0, LPARAM LParam = 0)
{
    MSG Result{Window, Message, WParam, LParam, GetTickCount(), {}};
    GetCursorPos(&Result.pt);
    return Result;
}

bool TakeTimer(TThread& Thread, const TFilter& Filter, bool Remove, MSG& Message)
{
    if (!Filter.Fits(WM_TIMER))
        return false;
    const auto Now = TClock::now();
    TThreadTimer* Next = nullptr;
    for (TThreadTimer& Timer : Thread.Timers)
        if (Timer.Due <= Now && Filter.Fits(Timer.Window) && (!Next || Timer.Due < Next->Due))
            Next = &Timer;
    if (!Next)
        return false;
    Message = MakeMessage(Next->Window, WM_TIMER, Next->Id, reinterpret_cast<LPARAM>(Next->Proc));
    if (Remove)
        Next->Due = Now + Next->Period;
    return true;
}

// One look through everything that may wait, in the order of the system.
bool Fetch(TThread& Thread, const TFilter& Filter, bool Remove, MSG& Message)
{
    TStateLock Lock;
    if (TakeFrom(Thread.Posted, Filter, Remove, Message))
        return true;
    if (Thread.Quit) {
        Message = MakeMessage(nullptr, WM_QUIT, static_cast<WPARAM>(Thread.QuitCode));
        Thread.Quit = !Remove;
        return true;
    }
    if (TakeFrom(Thread.Input, Filter, Remove, Message))
        return true;
    if (Filter.Fits(WM_PAINT))
        if (const HWND Dirty = FindDirty(Desktop(), Thread, Filter)) {
            Message = MakeMessage(Dirty, WM_PAINT);
            return true;
        }
    return TakeTimer(Thread, Filter, Remove, Message);
}

bool Look(const TFilter& Filter, bool Remove, MSG& Message)
{
    TThread& Thread = *CurrentThread();
    ReceiveSent();
    if (!Fetch(Thread, Filter, Remove, Message))
        return false;
    Thread.MessageTime = Message.time;
    Thread.MessagePoint = Message.pt;
    if (Remove)
        FollowKeys(Thread, Message);
    CallHooks(WH_GETMESSAGE, HC_ACTION, Remove ? PM_REMOVE : PM_NOREMOVE, reinterpret_cast<LPARAM>(&Message));
    return true;
}

// Sleeps until something may have arrived.
void WaitForWork(DWORD Milliseconds)
{
    TThread& Thread = *CurrentThread();
    std::unique_lock<std::recursive_mutex> Lock(StateMutex());
    const auto Arrived = [&] {
        return !Thread.Sent.empty() || !Thread.Posted.empty() || !Thread.Input.empty() || Thread.Quit;
    };
    auto Until = TClock::time_point::max();
    if (Milliseconds != INFINITE)
        Until = TClock::now() + std::chrono::milliseconds(Milliseconds);
    for (const TThreadTimer& Timer : Thread.Timers)
        Until = std::min(Until, Timer.Due);
    if (Until == TClock::time_point::max())
        StateChanged().wait(Lock, Arrived);
    else
        StateChanged().wait_until(Lock, Until, Arrived);
}

BOOL PostTo(TThread& Thread, const MSG& Message)
{
    constexpr std::size_t MaximumPosted = 10000;
    TStateLock Lock;
    if (Thread.Ended || Thread.Posted.size() >= MaximumPosted) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return FALSE;
    }
    Thread.Posted.push_back(Message);
    StateChanged().notify_all();
    return TRUE;
}

} // namespace

BOOL PostMessageA(HWND Handle, UINT Message, WPARAM WParam, LPARAM LParam)
{
    if (Handle == HWND_BROADCAST) {
        for (const HWND Each : ChildrenOf(Desktop()))
            PostMessageA(Each, Message, WParam, LParam);
        return TRUE;
    }
    std::shared_ptr<TThread> Thread = CurrentThread();
    if (Handle) {
        TStateLock Lock;
        const TWindow* const Window = WindowOf(Handle);
        if (!Window)
            return FALSE;
        Thread = Window->Thread;
        if (!Thread) // the desktop
            return TRUE;
    }
    return PostTo(*Thread, MakeMessage(Handle, Message, WParam, LParam));
}

BOOL PostThreadMessageA(DWORD Id, UINT Message, WPARAM WParam, LPARAM LParam)
{
    const auto Thread = FindThread(Id);
    if (!Thread) {
        SetLastError(ERROR_INVALID_THREAD_ID);
        return FALSE;
    }
    return PostTo(*Thread, MakeMessage(nullptr, Message, WParam, LParam));
}

void PostQuitMessage(int ExitCode)
{
    TThread& Thread = *CurrentThread();
    TStateLock Lock;
    Thread.Quit = true;
    Thread.QuitCode = ExitCode;
}

BOOL PeekMessageA(LPMSG Message, HWND Window, UINT First, UINT Last, UINT Flags)
{
    if (Window && Window != reinterpret_cast<HWND>(-1) && !IsWindow(Window))
        return FALSE;
    return Look({Window, First, Last}, (Flags & PM_REMOVE) != 0, *Message);
}

BOOL GetMessageA(LPMSG Message, HWND Window, UINT First, UINT Last)
{
    if (Window && Window != reinterpret_cast<HWND>(-1) && !IsWindow(Window))
        return -1;
    const TFilter Filter{Window, First, Last};
    // What another filter leaves in the queue wakes nobody; a short sleep keeps
    // such a program from spinning.
    while (!Look(Filter, true, *Message))
        WaitForWork(Filter.AllMessages() && !Window ? INFINITE : 10);
    return Message->message != WM_QUIT;
}

BOOL WaitMessage()
{
    TThread& Thread = *CurrentThread();
    MSG Message;
    for (;;) {
        ReceiveSent();
        if (Fetch(Thread, {nullptr, 0, 0}, false, Message))
            return TRUE;
        WaitForWork(INFINITE);
    }
}

DWORD MsgWaitForMultipleObjects(DWORD Count, const HANDLE*, BOOL, DWORD Milliseconds, DWORD)
{
    TThread& Thread = *CurrentThread();
    const ULONGLONG End = GetTickCount64() + Milliseconds;
    MSG Message;
    for (;;) {
        ReceiveSent();
        if (Fetch(Thread, {nullptr, 0, 0}, false, Message))
            return WAIT_OBJECT_0 + Count;
        const ULONGLONG Now = GetTickCount64();
        if (Milliseconds != INFINITE && Now >= End)
            return WAIT_TIMEOUT;
        WaitForWork(Milliseconds == INFINITE ? INFINITE : static_cast<DWORD>(End - Now));
    }
}

LRESULT DispatchMessageA(const MSG* Message)
{
    if (Message->message == WM_TIMER && Message->lParam) {
        const auto Proc = reinterpret_cast<TIMERPROC>(Message->lParam);
        Proc(Message->hwnd, WM_TIMER, Message->wParam, GetTickCount());
        return 0;
    }
    if (!Message->hwnd)
        return 0;
    return CallWindow(Message->hwnd, Message->message, Message->wParam, Message->lParam);
}

DWORD GetMessageTime()
{
    return CurrentThread()->MessageTime;
}

DWORD GetMessagePos()
{
    const POINT Point = CurrentThread()->MessagePoint;
    return static_cast<DWORD>(MAKELONG(Point.x, Point.y));
}

LPARAM GetMessageExtraInfo()
{
    return 0;
}

DWORD GetQueueStatus(UINT Flags)
{
    TThread& Thread = *CurrentThread();
    TStateLock Lock;
    DWORD Bits = 0;
    if (!Thread.Sent.empty())
        Bits |= QS_SENDMESSAGE;
    if (!Thread.Posted.empty())
        Bits |= QS_POSTMESSAGE | QS_ALLPOSTMESSAGE;
    if (!Thread.Input.empty())
        Bits |= QS_KEY | QS_MOUSE;
    if (FindDirty(Desktop(), Thread, {nullptr, 0, 0}))
        Bits |= QS_PAINT;
    Bits &= Flags;
    return static_cast<DWORD>(MAKELONG(Bits, Bits));
}

BOOL GetInputState()
{
    TStateLock Lock;
    return !CurrentThread()->Input.empty();
}

UINT RegisterWindowMessageA(LPCSTR Name)
{
    static auto& Numbers = *new std::map<std::string, UINT>;
    if (!Name || !*Name)
        return 0;
    TStateLock Lock;
    std::string Key = Name;
    std::transform(Key.begin(), Key.end(), Key.begin(), [](char Each) {
        return Each >= 'A' && Each <= 'Z' ? static_cast<char>(Each + 32) : Each;
    });
    return Numbers.try_emplace(Key, 0xC000 + static_cast<UINT>(Numbers.size())).first->second;
}

UINT RegisterClipboardFormatA(LPCSTR Name)
{
    return RegisterWindowMessageA(Name);
}

void ForgetWindow(HWND Handle)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    if (!Window || !Window->Thread)
        return;
    TThread& Thread = *Window->Thread;
    const auto IsOf = [&](const auto& Each) { return Each.hwnd == Handle; };
    std::erase_if(Thread.Posted, IsOf);
    std::erase_if(Thread.Input, IsOf);
    std::erase_if(Thread.Timers, [&](const TThreadTimer& Timer) { return Timer.Window == Handle; });
    for (HWND* const Slot : {&Thread.Active, &Thread.Focus, &Thread.Capture, &Thread.MenuOwner})
        if (*Slot == Handle)
            *Slot = nullptr;
}
