#include "framework/rtl/Modules.h"

#include <mutex>
#include <shared_mutex>

#include "framework/rtl/FileNames.h"
#include "framework/rtl/Files.h"
#include "platform/Strings.h"

namespace {

constinit TLibModule Program;

// Assigned apart: texts need Program before any object is built, but not this.
[[maybe_unused]] const HINSTANCE ProgramInstance = Program.Instance = HInstance;

// How many modules are registered beside the program. None is the rule, and then
// the list need not be locked.
constinit std::atomic<int> Registered{0};

// Never destroyed: texts are loaded to the very end of the program.
std::shared_mutex& ListLock()
{
    static auto& Result = *new std::shared_mutex;
    return Result;
}

HINSTANCE ResourcesOf(const TLibModule& Module, HINSTANCE Instance)
{
    const HINSTANCE Result = Module.ResInstance.load(std::memory_order_acquire);
    return Result ? Result : Instance;
}

std::string AbbreviationOf(LCID Locale)
{
    char Buffer[16];
    const int Bytes =
        GetLocaleInfoA(Locale, LOCALE_SABBREVLANGNAME | LOCALE_USE_CP_ACP, Buffer, sizeof(Buffer));
    return Bytes > 1 ? std::string(Buffer, static_cast<size_t>(Bytes - 1)) : std::string();
}

HINSTANCE LoadIfThere(const std::string& FileName)
{
    return FileExists(FileName) ? LoadLibraryExA(FileName.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE)
                                : nullptr;
}

void SetResources(HINSTANCE Instance)
{
    if (const HINSTANCE Old = Program.ResInstance.exchange(Instance, std::memory_order_acq_rel))
        FreeLibrary(Old);
}

} // namespace

constinit TLibModule* LibModuleList = &Program;

void RegisterModule(TLibModule& Module)
{
    const std::unique_lock Guard(ListLock());
    Module.Next = LibModuleList;
    LibModuleList = &Module;
    Registered.fetch_add(1, std::memory_order_release);
}

void UnregisterModule(TLibModule& Module)
{
    const std::unique_lock Guard(ListLock());
    for (TLibModule** Place = &LibModuleList; *Place != &Program; Place = &(*Place)->Next)
        if (*Place == &Module) {
            *Place = Module.Next;
            Registered.fetch_sub(1, std::memory_order_release);
            return;
        }
}

HINSTANCE FindResourceHInstance(HINSTANCE Instance)
{
    if (Instance == HInstance || !Instance)
        return ResourcesOf(Program, Instance);
    if (Registered.load(std::memory_order_acquire) == 0)
        return Instance;
    const std::shared_lock Guard(ListLock());
    for (const TLibModule* Each = LibModuleList; Each; Each = Each->Next)
        if (Each->Instance == Instance)
            return ResourcesOf(*Each, Instance);
    return Instance;
}

int LoadModuleString(HINSTANCE Instance, UINT Identifier, char* Buffer, int Capacity)
{
    // By the slot's content at this moment: a compiler may take it for a constant.
    const HINSTANCE Resources = FindResourceHInstance(Instance);
    const int Length = LoadStringSlot()(Resources, Identifier, Buffer, Capacity);
    return Length > 0 || Resources == Instance ? Length
                                               : LoadStringSlot()(Instance, Identifier, Buffer, Capacity);
}

HINSTANCE LoadResourceModule(const std::string& ModuleFile, LCID Locale)
{
    const std::string Language = AbbreviationOf(Locale);
    if (Language.size() < 2)
        return nullptr;
    if (const HINSTANCE Result = LoadIfThere(ChangeFileExt(ModuleFile, "." + Language)))
        return Result;
    return LoadIfThere(ChangeFileExt(ModuleFile, "." + Language.substr(0, 2)));
}

bool LoadResourceLanguage(LCID Locale)
{
    char Name[1024];
    const DWORD Size = GetModuleFileNameA(nullptr, Name, sizeof(Name));
    const HINSTANCE Found = LoadResourceModule(std::string(Name, Size), Locale);
    if (Found)
        SetResources(Found);
    return Found;
}

void UnloadResourceLanguage()
{
    SetResources(nullptr);
}
