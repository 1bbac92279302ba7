// The libraries that LoadLibraryExA has loaded.
#pragma once

#include <map>
#include <shared_mutex>

#include "platform/portable/StringTable.h"
#include "platform/winapi.h"

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

TLibraries& Libraries();
