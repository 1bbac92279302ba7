// The translations of what the program says without a form: its resource strings
// (DemoTexts.inc) and those of the framework that it may show.
#pragma once

#include "framework/forms/Forms.h"

// To be made before the forms, so that they find their texts in the language that
// the program starts in.
class TTextsModule : public TDataModule {
    OBX_CLASS(TDataModule)
public:
    explicit TTextsModule(TComponent* Owner) : TDataModule(Owner) {}
};

extern TTextsModule* TextsModule;
