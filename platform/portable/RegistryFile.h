// One root key of the registry as a text file:
//
//   [Software\Orbilex\Files]          a key, relative to the root key
//   Recent=1:433A5C666F726D2E646D00   name=kind:data, kind decimal, data hexadecimal
//   @=4:2A000000                      the value without a name
//
// Names are written with \ = [ % @ and control characters as %XX, so that any
// text can be one. Keys and values are in the order of their names without case.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/portable/wintypes.h"

// Orders names without case (of the letters A to Z).
struct TNameLess {
    bool operator()(const std::string& Left, const std::string& Right) const;
};

struct TRegistryValue {
    DWORD Kind = 0;
    std::string Data;
};

struct TRegistryKey {
    std::map<std::string, TRegistryKey, TNameLess> Keys;
    std::map<std::string, TRegistryValue, TNameLess> Values;

    // The key at a path of names separated by "\"; null when there is none.
    TRegistryKey* Find(const std::string& Path);
    // The same, making what is missing. Created tells whether anything was.
    TRegistryKey& Make(const std::string& Path, bool& Created);
};

std::string WriteRegistry(const TRegistryKey& Root);
// Lines that cannot be read are passed over.
TRegistryKey ReadRegistry(const std::string& Text);

// The file of a root key as it is now, with other programs' changes.
TRegistryKey LoadRegistry(const std::string& RootName);

// Reads the file, lets Change work on it, and replaces the file when Change
// returns true; all under a lock that other programs respect. Returns false
// when the file could not be written.
bool ChangeRegistry(const std::string& RootName, const std::function<bool(TRegistryKey&)>& Change);
