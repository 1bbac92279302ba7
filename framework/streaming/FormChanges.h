// What changed in properties between two states goes into a form file's tree. For
// TLoadedForm.
#pragma once

#include "framework/streaming/FormDocument.h"

// Only the values that differ are replaced, so that the others keep their spelling
// and what components do not know of them. Properties that are no longer written
// leave; new ones come behind those that they follow.
void ApplyChanges(TFormProperties& Target, const TFormProperties& Before, const TFormProperties& After);
