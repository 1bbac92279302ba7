// A key of a test's own, and, where the registry lies in files, a registry of its own.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

#include "platform/winapi.h"

class TRegistryScope {
public:
    TRegistryScope()
    {
#ifndef _WIN32
        FFolder =
            std::filesystem::temp_directory_path() / ("registry" + std::to_string(GetCurrentProcessId()));
        setenv("ORBILEX_REGISTRY", FFolder.c_str(), 1);
#endif
        RegDeleteTreeA(HKEY_CURRENT_USER, Key);
    }
    ~TRegistryScope()
    {
        RegDeleteTreeA(HKEY_CURRENT_USER, Key);
        std::error_code Error;
        if (!FFolder.empty())
            std::filesystem::remove_all(FFolder, Error);
    }
    TRegistryScope(const TRegistryScope&) = delete;
    TRegistryScope& operator=(const TRegistryScope&) = delete;

    // Below HKEY_CURRENT_USER; there is none at the beginning.
    static constexpr char Key[] = "Software\\Orbilex test";
    // Of the registry's files; empty where it lies elsewhere.
    const std::filesystem::path& Folder() const
    {
        return FFolder;
    }

private:
    std::filesystem::path FFolder;
};
