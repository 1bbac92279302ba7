// Components as form text on the clipboard: "object Button1: TButton ... end".
#pragma once

#include <string>

#include "designer/FormModel.h"

// The selected components, with what is inside them; empty when none can be copied.
std::string SelectedAsText(TFormModel& Model);

// Makes the components that Text describes inside what is selected (what has no place
// there comes onto the form) and selects them. Names that are taken are replaced, also
// where the text itself refers to them; what would lie on its original is moved.
// Throws EFormFileError with the place in Text, and what making components throws; the
// form is as it was then.
void PasteText(TFormModel& Model, const std::string& Text);
