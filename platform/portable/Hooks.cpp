#include <algorithm>
#include <utility>

#include "platform/portable/Thread.h"

namespace {

constexpr int Kinds = 16;

std::vector<THook>* HooksOf(TThread& Thread, int Kind)
{
    const int Index = Kind + 1;
    return Index >= 0 && Index < Kinds ? &Thread.Hooks[static_cast<std::size_t>(Index)] : nullptr;
}

// Handles count up, so a hook that is gone is never mistaken for a newer one.
HHOOK NextHandle()
{
    static ULONG_PTR Last = 0x10000;
    TStateLock Lock;
    return reinterpret_cast<HHOOK>(Last += 4);
}

} // namespace

HHOOK SetWindowsHookExA(int Kind, HOOKPROC Proc, HINSTANCE Module, DWORD ThreadId)
{
    const auto Thread = ThreadId ? FindThread(ThreadId) : nullptr;
    if (!Proc) {
        SetLastError(ERROR_INVALID_FILTER_PROC);
        return nullptr;
    }
    if (!ThreadId) { // hooks of the whole system would need other processes
        SetLastError(Module ? ERROR_NOT_SUPPORTED : ERROR_HOOK_NEEDS_HMOD);
        return nullptr;
    }
    const auto Target = Thread ? Thread : ThreadId == GetCurrentThreadId() ? CurrentThread() : nullptr;
    std::vector<THook>* const Hooks = Target ? HooksOf(*Target, Kind) : nullptr;
    if (!Hooks) {
        SetLastError(Target ? ERROR_INVALID_HOOK_FILTER : ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    TStateLock Lock;
    Hooks->push_back({NextHandle(), Kind, Proc});
    return Hooks->back().Handle;
}

BOOL UnhookWindowsHookEx(HHOOK Hook)
{
    TStateLock Lock;
    for (auto& Hooks : CurrentThread()->Hooks)
        if (std::erase_if(Hooks, [&](const THook& Each) { return Each.Handle == Hook; }) > 0)
            return TRUE;
    SetLastError(ERROR_INVALID_HOOK_HANDLE);
    return FALSE;
}

bool HasHooks(int Kind)
{
    const std::vector<THook>* const Hooks = HooksOf(*CurrentThread(), Kind);
    return Hooks && !Hooks->empty();
}

LRESULT CallHooks(int Kind, int Code, WPARAM WParam, LPARAM LParam)
{
    const std::vector<THook>* const Hooks = HooksOf(*CurrentThread(), Kind);
    if (!Hooks || Hooks->empty())
        return 0;
    TThread& Thread = *CurrentThread();
    const HHOOK OuterHook = std::exchange(Thread.CurrentHook, Hooks->back().Handle);
    const int OuterKind = std::exchange(Thread.CurrentKind, Kind);
    const LRESULT Result = Hooks->back().Proc(Code, WParam, LParam);
    Thread.CurrentHook = OuterHook;
    Thread.CurrentKind = OuterKind;
    return Result;
}

// Like the system's, it goes on from the hook that runs, whatever handle the
// caller names. A hook may have removed itself meanwhile: then the newest one
// that is older than it comes next.
LRESULT CallNextHookEx(HHOOK, int Code, WPARAM WParam, LPARAM LParam)
{
    TThread& Thread = *CurrentThread();
    const HHOOK Current = Thread.CurrentHook;
    const int Kind = Thread.CurrentKind;
    const std::vector<THook>* const Hooks = Current ? HooksOf(Thread, Kind) : nullptr;
    if (!Hooks)
        return 0;
    const auto Next = std::find_if(Hooks->rbegin(), Hooks->rend(),
                                   [&](const THook& Each) { return Each.Handle < Current; });
    if (Next == Hooks->rend())
        return 0;
    Thread.CurrentHook = Next->Handle;
    const LRESULT Result = Next->Proc(Code, WParam, LParam);
    Thread.CurrentHook = Current;
    return Result;
}

BOOL CallMsgFilterA(LPMSG Message, int Code)
{
    return CallHooks(WH_MSGFILTER, Code, 0, reinterpret_cast<LPARAM>(Message)) != 0;
}
