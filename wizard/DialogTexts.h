// The texts that the system's dialogs have in English, so that they can be translated
// without showing any.
#pragma once

#include <string>

#include "wizard/ProjectScan.h"
#include "wizard/TranslatorLines.h"

// Whose a dialog's title is: a translation of the system's would hide the program's.
enum class TDialogTitle { System, Program };

// The lines of a dialog class as a dialog translator has them
// (TOpenDialog.Caption[1]='&Open'); none for a class that is not known.
TLineMap DialogTexts(const std::string& ClassName, TDialogTitle Title = TDialogTitle::System);

// Those of all dialogs of a project: one dialog translator at a time serves all forms.
TLineMap DialogTextsOf(const TProjectScan& Scan);
