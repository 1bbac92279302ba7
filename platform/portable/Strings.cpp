// String tables: the program's own, and those of libraries loaded by LoadLibraryExA.
#include "platform/Strings.h"

#include <atomic>
#include <map>
#include <mutex>
#include <shared_mutex>

#include <dlfcn.h>
#include <link.h>

#include "platform/portable/StringTable.h"
#include "platform/portable/Window.h"

// Made by the linker: the first byte of the module.
extern "C" [[gnu::visibility("hidden")]] HINSTANCE__ __ehdr_start;

constinit HINSTANCE HInstance = &__ehdr_start;

namespace {

// In the handle of a library that was loaded as a data file, otherwise its address.
constexpr ElfW(Addr) DataFileBit = 1;

struct TLibrary {
    void* Handle = nullptr; // of the dynamic loader
    int Count = 0;          // how often it was loaded
    TModuleStrings Strings{};
};

// Libraries by their handle.
struct TLibraries {
    std::shared_mutex Lock;
    std::map<HMODULE, TLibrary> Loaded;
};

// Never destroyed: texts are loaded to the very end of the program.
TLibraries& Libraries()
{
    static auto& Result = *new TLibraries;
    return Result;
}

const char* FindText(const TModuleStrings& Strings, UINT Identifier)
{
    for (auto Each = Strings.Begin; Each != Strings.End; ++Each) {
        const TStringRow* const End = (*Each)->Rows + (*Each)->Count;
        const TStringRow* const Row =
            std::lower_bound((*Each)->Rows, End, Identifier,
                             [](const TStringRow& A, UINT Wanted) { return A.Identifier < Wanted; });
        if (Row != End && Row->Identifier == Identifier)
            return Row->Text;
    }
    return nullptr;
}

int CopyFrom(const TModuleStrings& Strings, UINT Identifier, LPSTR Buffer, int Capacity)
{
    const char* const Text = FindText(Strings, Identifier & 0xFFFF);
    if (Text)
        return CopyText(Text, Buffer, Capacity);
    if (Buffer && Capacity > 0)
        *Buffer = 0;
    SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
    return 0;
}

int LoadFromTable(HINSTANCE Instance, UINT Identifier, LPSTR Buffer, int Capacity)
{
    if (!Instance || Instance == HInstance)
        return CopyFrom(OwnModuleStrings(), Identifier, Buffer, Capacity);
    // Held while the text is copied: FreeLibrary takes the library's memory away.
    const std::shared_lock Guard(Libraries().Lock);
    const auto Place = Libraries().Loaded.find(Instance);
    return CopyFrom(Place == Libraries().Loaded.end() ? TModuleStrings{} : Place->second.Strings, Identifier,
                    Buffer, Capacity);
}

constinit std::atomic<TLoadStringA> Slot{LoadFromTable};

} // namespace

TLoadStringA LoadStringSlot()
{
    return Slot.load(std::memory_order_acquire);
}

bool SetLoadStringSlot(TLoadStringA Loader)
{
    Slot.store(Loader, std::memory_order_release);
    return true;
}

int LoadStringA(HINSTANCE Instance, UINT Identifier, LPSTR Buffer, int Capacity)
{
    return LoadStringSlot()(Instance, Identifier, Buffer, Capacity);
}

HMODULE LoadLibraryExA(LPCSTR Name, HANDLE, DWORD Flags)
{
    void* const Handle = Name ? dlopen(Name, RTLD_NOW | RTLD_LOCAL) : nullptr;
    if (!Handle) {
        SetLastError(ERROR_MOD_NOT_FOUND);
        return nullptr;
    }
    const ElfW(Addr) DataFile = Flags & LOAD_LIBRARY_AS_DATAFILE ? DataFileBit : 0;
    const auto Module = reinterpret_cast<HMODULE>(static_cast<link_map*>(Handle)->l_addr | DataFile);
    const std::unique_lock Guard(Libraries().Lock);
    TLibrary& Library = Libraries().Loaded[Module];
    if (Library.Count++ > 0) {
        dlclose(Handle);
        return Module;
    }
    Library.Handle = Handle;
    if (const auto Strings = reinterpret_cast<TModuleStringsFunction>(dlsym(Handle, "OrbilexStrings")))
        Library.Strings = Strings();
    return Module;
}

BOOL FreeLibrary(HMODULE Module)
{
    const std::unique_lock Guard(Libraries().Lock);
    const auto Place = Libraries().Loaded.find(Module);
    if (Place == Libraries().Loaded.end()) {
        SetLastError(ERROR_MOD_NOT_FOUND);
        return FALSE;
    }
    if (--Place->second.Count == 0) {
        dlclose(Place->second.Handle);
        Libraries().Loaded.erase(Place);
    }
    return TRUE;
}
