// Further controls. The parts, in reading order:
#pragma once

#include "framework/forms/AppEvents.h"    // TApplicationEvents
#include "framework/forms/Gauges.h"       // TGauge
#include "framework/forms/Grids.h"        // TDrawGrid, TStringGrid
#include "framework/forms/GroupBoxes.h"   // TRadioGroup
#include "framework/forms/Images.h"       // TImage, TPaintBox
#include "framework/forms/LabeledEdits.h" // TLabeledEdit
#include "framework/forms/MaskEdits.h"    // TMaskEdit
#include "framework/forms/Notebooks.h"    // TNotebook, TTabbedNotebook, TTabSet, THeader
#include "framework/forms/Panels.h"       // TPanel, TFlowPanel, TControlBar, TScrollBox
#include "framework/forms/Shapes.h"       // TBevel, TShape
#include "framework/forms/SpinEdits.h"    // TSpinButton, TSpinEdit
#include "framework/forms/Splitters.h"    // TSplitter
#include "framework/forms/Timers.h"       // TTimer

// Makes them known to form files.
void RegisterExtCtrls();
