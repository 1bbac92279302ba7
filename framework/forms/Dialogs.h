// The system's dialogs as components. The parts, in reading order:
#pragma once

#include "framework/forms/ColorDialog.h"  // TColorDialog
#include "framework/forms/CommonDialog.h" // what all have in common
#include "framework/forms/FileDialogs.h"  // TOpenDialog, TSaveDialog
#include "framework/forms/FindDialogs.h"  // TFindDialog, TReplaceDialog
#include "framework/forms/FontDialog.h"   // TFontDialog
#include "framework/forms/PrintDialogs.h" // TPrintDialog, TPrinterSetupDialog

// Makes the dialogs known to form files.
void RegisterDialogClasses();
