// The process, its modules, its clock and its errors.
#include "platform/portable/winbase.h"

#include <chrono>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <memory>
#include <thread>

#include <dlfcn.h>
#include <link.h>
#include <unistd.h>

#include "platform/portable/Window.h"

namespace {

DWORD& ErrorSlot()
{
    thread_local DWORD Error = 0;
    return Error;
}

void FillTime(LPSYSTEMTIME Time, bool Local)
{
    const auto Now = std::chrono::system_clock::now();
    const std::time_t Seconds = std::chrono::system_clock::to_time_t(Now);
    std::tm Parts{};
    Local ? localtime_r(&Seconds, &Parts) : gmtime_r(&Seconds, &Parts);
    const auto Fraction =
        std::chrono::duration_cast<std::chrono::milliseconds>(Now.time_since_epoch()).count() % 1000;
    const auto Word = [](auto Value) { return static_cast<WORD>(Value); };
    *Time = {Word(Parts.tm_year + 1900), Word(Parts.tm_mon + 1), Word(Parts.tm_wday), Word(Parts.tm_mday),
             Word(Parts.tm_hour),        Word(Parts.tm_min),     Word(Parts.tm_sec),  Word(Fraction)};
}

} // namespace

DWORD GetLastError()
{
    return ErrorSlot();
}

void SetLastError(DWORD Error)
{
    ErrorSlot() = Error;
}

HANDLE GetCurrentProcess()
{
    return INVALID_HANDLE_VALUE;
}

void Sleep(DWORD Milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(Milliseconds));
}

ULONGLONG GetTickCount64()
{
    timespec Time{};
    clock_gettime(CLOCK_MONOTONIC, &Time);
    return static_cast<ULONGLONG>(Time.tv_sec) * 1000 + static_cast<ULONGLONG>(Time.tv_nsec) / 1000000;
}

DWORD GetTickCount()
{
    return static_cast<DWORD>(GetTickCount64());
}

void GetLocalTime(LPSYSTEMTIME Time)
{
    FillTime(Time, true);
}

void GetSystemTime(LPSYSTEMTIME Time)
{
    FillTime(Time, false);
}

void OutputDebugStringA(LPCSTR Text)
{
    if (std::getenv("ORBILEX_DEBUG"))
        std::fputs(Text, stderr);
}

namespace {

// A module is known by its load address; the program itself by that of its own
// first segment, so that GetModuleHandleA(nullptr) is not null.
HMODULE ProgramModule()
{
    static const HMODULE Module = [] {
        void* Base = nullptr;
        dl_iterate_phdr(
            [](dl_phdr_info* Info, std::size_t, void* Result) {
                for (int Index = 0; Index < Info->dlpi_phnum; ++Index)
                    if (Info->dlpi_phdr[Index].p_type == PT_LOAD) {
                        *static_cast<ElfW(Addr)*>(Result) = Info->dlpi_addr + Info->dlpi_phdr[Index].p_vaddr;
                        break;
                    }
                return 1; // the program comes first
            },
            &Base);
        return static_cast<HMODULE>(Base);
    }();
    return Module;
}

std::string ProgramPath()
{
    char Path[PATH_MAX];
    const ssize_t Size = readlink("/proc/self/exe", Path, sizeof(Path));
    return Size > 0 ? std::string(Path, static_cast<std::size_t>(Size)) : std::string();
}

} // namespace

HMODULE GetModuleHandleA(LPCSTR Name)
{
    if (!Name)
        return ProgramModule();
    void* const Library = dlopen(Name, RTLD_LAZY | RTLD_NOLOAD);
    if (!Library) {
        SetLastError(ERROR_MOD_NOT_FOUND);
        return nullptr;
    }
    const auto Address = static_cast<link_map*>(Library)->l_addr;
    dlclose(Library);
    return reinterpret_cast<HMODULE>(Address);
}

DWORD GetModuleFileNameA(HMODULE Module, LPSTR Name, DWORD Size)
{
    std::string Path = ProgramPath();
    Dl_info Info{};
    if (Module && Module != ProgramModule()) {
        if (!dladdr(Module, &Info) || Info.dli_fbase != Module || !Info.dli_fname) {
            SetLastError(ERROR_MOD_NOT_FOUND);
            return 0;
        }
        const std::unique_ptr<char, decltype(&std::free)> Full(realpath(Info.dli_fname, nullptr), std::free);
        Path = Full ? Full.get() : Info.dli_fname;
    }
    const auto Copied = static_cast<DWORD>(CopyText(Path, Name, static_cast<int>(Size)));
    const bool Cut = Copied < Path.size();
    SetLastError(Cut ? ERROR_INSUFFICIENT_BUFFER : ERROR_SUCCESS);
    return Cut ? Size : Copied;
}

int MulDiv(int Number, int Numerator, int Denominator)
{
    if (Denominator == 0)
        return -1;
    const long long Product = static_cast<long long>(Number) * Numerator;
    const long long Divisor = Denominator < 0 ? -static_cast<long long>(Denominator) : Denominator;
    const long long Signed = Denominator < 0 ? -Product : Product;
    const long long Result = Signed < 0 ? (Signed - Divisor / 2) / Divisor : (Signed + Divisor / 2) / Divisor;
    return Result > INT_MAX || Result < -INT_MAX ? -1 : static_cast<int>(Result);
}
