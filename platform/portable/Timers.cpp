#include <algorithm>

#include "platform/portable/Thread.h"

namespace {

auto FindTimer(TThread& Thread, HWND Window, UINT_PTR Id)
{
    return std::find_if(Thread.Timers.begin(), Thread.Timers.end(),
                        [&](const TThreadTimer& Timer) { return Timer.Window == Window && Timer.Id == Id; });
}

} // namespace

UINT_PTR SetTimer(HWND Handle, UINT_PTR Id, UINT Milliseconds, TIMERPROC Proc)
{
    TStateLock Lock;
    std::shared_ptr<TThread> Thread = CurrentThread();
    if (Handle) {
        const TWindow* const Window = WindowOf(Handle);
        if (!Window)
            return 0;
        Thread = Window->Thread;
    }
    const std::chrono::milliseconds Period(
        std::clamp<UINT>(Milliseconds, USER_TIMER_MINIMUM, USER_TIMER_MAXIMUM));
    auto Timer = FindTimer(*Thread, Handle, Id);
    if (Timer == Thread->Timers.end()) {
        if (!Handle)
            Id = Thread->NextTimer++;
        Timer = Thread->Timers.insert(Timer, TThreadTimer{Handle, Id, Proc, Period, {}});
    }
    Timer->Proc = Proc;
    Timer->Period = Period;
    Timer->Due = TClock::now() + Period;
    StateChanged().notify_all();
    return Id ? Id : 1;
}

BOOL KillTimer(HWND Handle, UINT_PTR Id)
{
    TStateLock Lock;
    std::shared_ptr<TThread> Thread = CurrentThread();
    if (Handle) {
        const TWindow* const Window = WindowOf(Handle);
        if (!Window)
            return FALSE;
        Thread = Window->Thread;
    }
    const auto Timer = FindTimer(*Thread, Handle, Id);
    if (Timer == Thread->Timers.end())
        return FALSE;
    Thread->Timers.erase(Timer);
    return TRUE;
}
