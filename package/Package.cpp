// The package as a module of the development environment. The environment calls
// Register once it has loaded the module, and Unregister before it ends or lets
// go of it.
#include <optional>

#include "Obxc3/Obxc3.h"
#include "editors/Editors.h"
#include "editors/Registration.h"
#include "wizard/Obx.h"
#include "wizard/Wizard.h"

extern "C" {
void Register();
void Unregister();
}

namespace {

// Started in this order, stopped in reverse.
struct TStarted {
    TPackageScope Package;
    TEditorsScope Editors;
    TWizardScope Wizard;
};

std::optional<TStarted> Started;

} // namespace

void Register()
{
    Started.emplace();
    RegisterTranslators();
    Obx::Register();
}

void Unregister()
{
    Obx::Unregister();
    UnregisterTranslators();
    Started.reset();
}
