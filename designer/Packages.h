// The packages that are loaded: modules that put components on the palette, editors
// behind them and experts into the menu.
#pragma once

#include <string>
#include <vector>

#include "platform/winapi.h"

// What a module exports, both without mangling:
//     Register      makes known what the package offers
//     Unregister    takes it all back; may be missing
// The modules stay in memory until the program ends: classes, and forms that are
// made of them, live there.
class TPackages {
public:
    TPackages() = default;
    // Unregisters them, the last one first.
    ~TPackages();
    TPackages(const TPackages&) = delete;
    TPackages& operator=(const TPackages&) = delete;

    // By file name, or by the name alone of a module beside the program: "Obxc3". One
    // that is there already is left alone. Throws EPackageError when it cannot be loaded
    // or is no package, and what its Register throws.
    void Load(const std::string& Name);

    // The package beside the program and those that Remember has added. The names are
    // kept in the registry. Gives what went wrong, a line a package.
    std::string LoadRemembered();
    static void Remember(const std::string& Name);

private:
    struct TPackage {
        std::string Name;
        HMODULE Module;
    };
    std::vector<TPackage> FLoaded;
};
