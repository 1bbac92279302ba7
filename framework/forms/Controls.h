// The base classes of controls. The parts, in reading order:
#pragma once

#include "framework/forms/ActionLinks.h"    // what links controls to actions
#include "framework/forms/BasicAction.h"    // actions
#include "framework/forms/Control.h"        // TControl
#include "framework/forms/CustomControl.h"  // those that draw themselves
#include "framework/forms/GraphicControl.h" // controls without a window
#include "framework/forms/Messages.h"       // messages of the system and of the framework
#include "framework/forms/Types.h"          // enumerations and events
#include "framework/forms/WinControl.h"     // controls with a window, containers
