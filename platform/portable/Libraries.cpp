#include "platform/portable/Libraries.h"

#include <filesystem>
#include <mutex>

#include <dlfcn.h>
#include <link.h>

namespace {

// In the handle of a library that was loaded as a data file, otherwise its address.
constexpr ElfW(Addr) DataFileBit = 1;

// As the system's loader: a name without extension gets the usual one, and one
// without folder is looked for beside the program first.
void* OpenLibrary(const char* Name)
{
    std::filesystem::path File(Name);
    if (!File.has_extension())
        File += ".so";
    if (!File.has_parent_path()) {
        char Program[4096];
        const DWORD Bytes = GetModuleFileNameA(nullptr, Program, sizeof(Program));
        const auto Beside = std::filesystem::path(std::string_view(Program, Bytes)).parent_path() / File;
        if (std::filesystem::exists(Beside))
            File = Beside;
    }
    return dlopen(File.c_str(), RTLD_NOW | RTLD_LOCAL);
}

} // namespace

// Never destroyed: texts are loaded to the very end of the program.
TLibraries& Libraries()
{
    static auto& Result = *new TLibraries;
    return Result;
}

HMODULE LoadLibraryExA(LPCSTR Name, HANDLE, DWORD Flags)
{
    void* const Handle = Name ? OpenLibrary(Name) : nullptr;
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

FARPROC GetProcAddress(HMODULE Module, LPCSTR Name)
{
    const std::shared_lock Guard(Libraries().Lock);
    const auto Place = Libraries().Loaded.find(Module);
    void* const Found = Place == Libraries().Loaded.end() ? nullptr : dlsym(Place->second.Handle, Name);
    if (!Found)
        SetLastError(ERROR_PROC_NOT_FOUND);
    return reinterpret_cast<FARPROC>(Found);
}
