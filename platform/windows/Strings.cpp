#include "platform/Strings.h"

#include <atomic>

#include "platform/OwnModule.h"

// The import slot itself. The system fills it when the module is loaded.
extern "C" TLoadStringA __imp_LoadStringA;

constinit HINSTANCE HInstance = OwnModule;

TLoadStringA LoadStringSlot()
{
    return std::atomic_ref(__imp_LoadStringA).load(std::memory_order_acquire);
}

bool SetLoadStringSlot(TLoadStringA Loader)
{
    // Executable as well: a linker may put code into the same page.
    DWORD Protection = 0;
    if (!VirtualProtect(&__imp_LoadStringA, sizeof(Loader), PAGE_EXECUTE_READWRITE, &Protection))
        return false;
    std::atomic_ref(__imp_LoadStringA).store(Loader, std::memory_order_release);
    VirtualProtect(&__imp_LoadStringA, sizeof(Loader), Protection, &Protection);
    return true;
}
