// The standard controls. The parts, in reading order:
#pragma once

#include "framework/forms/ComboBoxes.h"   // TComboBox, TColorBox
#include "framework/forms/Edits.h"        // TEdit, TMemo
#include "framework/forms/GlyphButtons.h" // TBitBtn, TSpeedButton
#include "framework/forms/GroupBoxes.h"   // TGroupBox, TRadioGroup
#include "framework/forms/Labels.h"       // TLabel, TStaticText
#include "framework/forms/ListBoxes.h"    // TListBox, TCheckListBox
#include "framework/forms/PushButtons.h"  // TButton, TCheckBox, TRadioButton
#include "framework/forms/ScrollBars.h"   // TScrollBar

// Makes them known to form files.
void RegisterStdCtrls();
