#include "wizard/Obx.h"

#include "framework/forms/Application.h"
#include "wizard/ObxWizard.h"
#include "wizard/Qsplash.h"

TObxAddIn* ExpertInterface = nullptr;

TObxAddIn::~TObxAddIn()
{
    if (ExpertInterface == this)
        ExpertInterface = nullptr;
}

void TObxAddIn::Execute()
{
    const std::unique_ptr<TObxWizard> Wizard(CreateForm<TObxWizard>(Application));
    Wizard->ShowModal();
}

void Obx::Register()
{
    auto Expert = std::make_unique<TObxAddIn>();
    ExpertInterface = Expert.get();
    ShowSplash(true, true);
    RegisterLibraryExpert(std::move(Expert));
}

void Obx::Unregister()
{
    if (ExpertInterface)
        UnregisterLibraryExpert(ExpertInterface);
}
