#include "wizard/Wizard.h"

#include "orbilex_wizard.h"

namespace {

int Starts = 0;

} // namespace

void StartWizard()
{
    if (Starts++ == 0)
        RegisterOrbilexWizard();
}

void StopWizard()
{
    if (Starts > 0)
        --Starts;
}
