#include "platform/portable/Thread.h"

#include <map>

#include <sys/syscall.h>
#include <unistd.h>

#include "platform/portable/Lifetime.h"

namespace {

// Never destroyed: other threads may still run while the program ends.
std::map<DWORD, std::weak_ptr<TThread>>& Threads()
{
    static auto& All = *new std::map<DWORD, std::weak_ptr<TThread>>;
    return All;
}

struct TThreadSlot {
    std::shared_ptr<TThread> Thread;

    ~TThreadSlot()
    {
        // The windows of the first thread live as long as the program.
        if (!Thread || Thread->Id == GetCurrentProcessId())
            return;
        RemoveWindowsOf(*Thread);
        TStateLock Lock;
        Thread->Ended = true;
        for (const auto& Sent : Thread->Sent)
            Sent->Done = true;
        Threads().erase(Thread->Id);
        StateChanged().notify_all();
    }
};

} // namespace

std::recursive_mutex& StateMutex()
{
    static auto& Mutex = *new std::recursive_mutex;
    return Mutex;
}

std::condition_variable_any& StateChanged()
{
    static auto& Condition = *new std::condition_variable_any;
    return Condition;
}

const std::shared_ptr<TThread>& CurrentThread()
{
    thread_local TThreadSlot Slot;
    if (!Slot.Thread) {
        Slot.Thread = std::make_shared<TThread>();
        Slot.Thread->Id = GetCurrentThreadId();
        TStateLock Lock;
        Threads()[Slot.Thread->Id] = Slot.Thread;
    }
    return Slot.Thread;
}

std::shared_ptr<TThread> FindThread(DWORD Id)
{
    TStateLock Lock;
    const auto Found = Threads().find(Id);
    return Found == Threads().end() ? nullptr : Found->second.lock();
}

DWORD GetCurrentThreadId()
{
    thread_local const auto Id = static_cast<DWORD>(syscall(SYS_gettid));
    return Id;
}

DWORD GetCurrentProcessId()
{
    return static_cast<DWORD>(getpid());
}
