// Where the designer's main window was when it was closed.
#pragma once

#include "framework/forms/Forms.h"

// In the registry, beside the names of the packages. A place that is no longer on the
// screen is brought back onto it.
void RestoreWindowPlace(TForm& Form);
void KeepWindowPlace(TForm& Form);
