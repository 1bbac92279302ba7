#include "designer/Packages.h"

#include <algorithm>

#include "framework/rtl/RegistryIni.h"
#include "framework/rtl/SysUtils.h"

namespace {

constexpr const char* Section = "Designer";
constexpr const char* Value = "Packages";
constexpr const char* OwnPackage = "Obxc3";

using TProcedure = void (*)();

TProcedure FindExport(HMODULE Module, const char* Name)
{
    return reinterpret_cast<TProcedure>(GetProcAddress(Module, Name));
}

void Unregister(HMODULE Module)
{
    if (const TProcedure Call = FindExport(Module, "Unregister"))
        Call();
}

std::string RememberedNames()
{
    return TRegIniFile("Software\\Quillmark").ReadString(Section, Value, OwnPackage);
}

} // namespace

TPackages::~TPackages()
{
    for (auto Each = FLoaded.rbegin(); Each != FLoaded.rend(); ++Each)
        Unregister(Each->Module);
}

void TPackages::Load(const std::string& Name)
{
    const HMODULE Module = LoadLibraryExA(Name.c_str(), nullptr, 0);
    if (!Module)
        throw EPackageError("Cannot load the package " + Name +
                            ": it, or a library that it needs, cannot be read (error " +
                            IntToStr(static_cast<int>(GetLastError())) + ")");
    const auto IsSame = [&](const TPackage& Each) { return Each.Module == Module; };
    if (std::any_of(FLoaded.begin(), FLoaded.end(), IsSame)) {
        FreeLibrary(Module);
        return;
    }
    const TProcedure Register = FindExport(Module, "Register");
    if (!Register) {
        FreeLibrary(Module);
        throw EPackageError(Name + " is no package: it has no Register");
    }
    try {
        Register();
    } catch (...) {
        Unregister(Module);
        throw;
    }
    FLoaded.push_back({Name, Module});
}

std::string TPackages::LoadRemembered()
{
    std::string Names = RememberedNames();
    std::string Errors;
    while (!Names.empty()) {
        const std::string Name = Names.substr(0, Names.find(';'));
        Names.erase(0, Name.size() + 1);
        try {
            Load(Name);
        } catch (const Exception& Error) {
            Errors += Error.Message() + "\n";
        }
    }
    return Errors;
}

void TPackages::Remember(const std::string& Name)
{
    const std::string Names = RememberedNames();
    if ((";" + Names + ";").find(";" + Name + ";") == Names.npos)
        TRegIniFile("Software\\Quillmark")
            .WriteString(Section, Value, Names.empty() ? Name : Names + ";" + Name);
}
