// Sending messages to window procedures, in this thread and across threads.
#include "platform/portable/Lifetime.h"
#include "platform/portable/Thread.h"

LRESULT CallWindow(HWND Handle, UINT Message, WPARAM WParam, LPARAM LParam)
{
    WNDPROC Proc;
    {
        TStateLock Lock;
        const TWindow* const Window = WindowOf(Handle);
        if (!Window)
            return 0;
        Proc = Window->Proc;
    }
    if (HasHooks(WH_CALLWNDPROC)) {
        CWPSTRUCT Call{LParam, WParam, Message, Handle};
        CallHooks(WH_CALLWNDPROC, HC_ACTION, 1, reinterpret_cast<LPARAM>(&Call));
        TStateLock Lock;
        const TWindow* const Window = WindowOf(Handle);
        if (!Window)
            return 0;
        Proc = Window->Proc;
    }
    const LRESULT Result = CallWindowProcA(Proc, Handle, Message, WParam, LParam);
    if (HasHooks(WH_CALLWNDPROCRET)) {
        CWPRETSTRUCT Return{Result, LParam, WParam, Message, Handle};
        CallHooks(WH_CALLWNDPROCRET, HC_ACTION, 1, reinterpret_cast<LPARAM>(&Return));
    }
    return Result;
}

LRESULT CallWindowProcA(WNDPROC Proc, HWND Handle, UINT Message, WPARAM WParam, LPARAM LParam)
{
    return Proc ? Proc(Handle, Message, WParam, LParam) : 0;
}

namespace {

std::shared_ptr<TSent> Hand(const std::shared_ptr<TThread>& To, const TSent& Message)
{
    auto Sent = std::make_shared<TSent>(Message);
    TStateLock Lock;
    if (To->Ended) {
        Sent->Done = true;
        return Sent;
    }
    To->Sent.push_back(Sent);
    StateChanged().notify_all();
    return Sent;
}

// Waits for the answer, and answers what is sent to this thread meanwhile. False
// when the time is up.
bool Await(const TSent& Sent, DWORD Timeout)
{
    const auto End = TClock::now() + std::chrono::milliseconds(Timeout);
    TThread& Thread = *CurrentThread();
    for (;;) {
        {
            std::unique_lock<std::recursive_mutex> Lock(StateMutex());
            const auto Ready = [&] { return Sent.Done || !Thread.Sent.empty(); };
            if (Timeout == INFINITE)
                StateChanged().wait(Lock, Ready);
            else if (!StateChanged().wait_until(Lock, End, Ready))
                return false;
            if (Sent.Done)
                return true;
        }
        ReceiveSent();
    }
}

LRESULT Broadcast(UINT Message, WPARAM WParam, LPARAM LParam)
{
    for (const HWND Handle : ChildrenOf(Desktop()))
        SendMessageA(Handle, Message, WParam, LParam);
    return 1;
}

// The thread of a window, null when there is no such window.
std::shared_ptr<TThread> ThreadOf(HWND Handle)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    return Window ? Window->Thread : nullptr;
}

} // namespace

LRESULT SendMessageA(HWND Handle, UINT Message, WPARAM WParam, LPARAM LParam)
{
    if (Handle == HWND_BROADCAST)
        return Broadcast(Message, WParam, LParam);
    const auto Thread = ThreadOf(Handle);
    if (!Thread || Thread == CurrentThread())
        return CallWindow(Handle, Message, WParam, LParam);
    const auto Sent = Hand(Thread, {Handle, Message, WParam, LParam});
    Await(*Sent, INFINITE);
    return Sent->Result;
}

LRESULT SendMessageTimeoutA(HWND Handle, UINT Message, WPARAM WParam, LPARAM LParam, UINT, UINT Timeout,
                            DWORD_PTR* Result)
{
    const auto Thread = ThreadOf(Handle);
    if (Handle != HWND_BROADCAST && !Thread)
        return 0;
    LRESULT Answer = 0;
    if (Handle == HWND_BROADCAST || Thread == CurrentThread()) {
        Answer = SendMessageA(Handle, Message, WParam, LParam);
    } else {
        const auto Sent = Hand(Thread, {Handle, Message, WParam, LParam});
        if (!Await(*Sent, Timeout)) {
            SetLastError(ERROR_TIMEOUT);
            return 0;
        }
        Answer = Sent->Result;
    }
    if (Result)
        *Result = static_cast<DWORD_PTR>(Answer);
    return 1;
}

BOOL SendNotifyMessageA(HWND Handle, UINT Message, WPARAM WParam, LPARAM LParam)
{
    const auto Thread = ThreadOf(Handle);
    if (!Thread)
        return FALSE;
    if (Thread == CurrentThread())
        CallWindow(Handle, Message, WParam, LParam);
    else
        Hand(Thread, {Handle, Message, WParam, LParam});
    return TRUE;
}

void ReceiveSent()
{
    TThread& Thread = *CurrentThread();
    for (;;) {
        std::shared_ptr<TSent> Next;
        {
            TStateLock Lock;
            if (Thread.Sent.empty())
                return;
            Next = Thread.Sent.front();
            Thread.Sent.pop_front();
            Thread.Receiving.push_back(Next);
        }
        const LRESULT Result = CallWindow(Next->Window, Next->Message, Next->WParam, Next->LParam);
        TStateLock Lock;
        std::erase(Thread.Receiving, Next);
        if (!Next->Replied)
            Next->Result = Result;
        Next->Done = true;
        StateChanged().notify_all();
    }
}

BOOL InSendMessage()
{
    return !CurrentThread()->Receiving.empty();
}

BOOL ReplyMessage(LRESULT Result)
{
    TThread& Thread = *CurrentThread();
    TStateLock Lock;
    if (Thread.Receiving.empty())
        return FALSE;
    TSent& Sent = *Thread.Receiving.back();
    Sent.Result = Result;
    Sent.Replied = Sent.Done = true;
    StateChanged().notify_all();
    return TRUE;
}
