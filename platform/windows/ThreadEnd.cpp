#include "platform/ThreadEnd.h"

#include "platform/winapi.h"

namespace {

void (*EndWork)(void* Value) = nullptr;

void WINAPI CallEndWork(PVOID Value)
{
    EndWork(Value);
}

} // namespace

void AtThreadEnd(void (*Work)(void* Value), void* Value)
{
    static const DWORD Key = [Work] {
        EndWork = Work;
        return FlsAlloc(CallEndWork);
    }();
    FlsSetValue(Key, Value);
}
