// The globalization wizard and what belongs to it. An environment that offers it
// starts it after the editors (editors/Editors.h).
#pragma once

// Calls nest. User-interface thread only.
void StartWizard();
void StopWizard();

class TWizardScope {
public:
    TWizardScope() { StartWizard(); }
    ~TWizardScope() { StopWizard(); }
    TWizardScope(const TWizardScope&) = delete;
    TWizardScope& operator=(const TWizardScope&) = delete;
};
