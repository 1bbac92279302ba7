// The package's entry in the environment's menu: the globalization wizard.
#pragma once

#include "framework/design/Experts.h"

class TObxAddIn : public TIExpert {
public:
    ~TObxAddIn() override;

    TExpertStyle GetStyle() override { return esStandard; }
    std::string GetIDString() override { return "Quillmark.Obx"; }
    std::string GetName() override { return "Orbilex Expert"; }
    std::string GetAuthor() override { return "Quillmark Ltd"; }
    std::string GetComment() override { return "A complete globalization package"; }
    std::string GetPage() override { return {}; }
    intptr_t GetGlyph() override { return 0; }
    TExpertState GetState() override { return {esEnabled}; }
    std::string GetMenuText() override { return "Orbilex Expert"; }
    // Shows the wizard until the user closes it.
    void Execute() override;
};

// The expert that Register made, owned by the environment; null before, and when it
// is gone.
extern TObxAddIn* ExpertInterface;

namespace Obx {

// Makes the expert, shows the splash form and registers the expert with the
// environment. Requires StartWizard (Wizard.h).
void Register();
// Takes the expert back; nothing when the environment has destroyed it.
void Unregister();

} // namespace Obx
