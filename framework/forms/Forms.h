// Forms, the program and the screen. The parts, in reading order:
#pragma once

#include "framework/forms/Application.h"    // Application
#include "framework/forms/Controls.h"       // the base classes of controls
#include "framework/forms/DataModules.h"    // TDataModule
#include "framework/forms/Form.h"           // TForm
#include "framework/forms/FormResources.h"  // form files in the program
#include "framework/forms/Frames.h"         // TFrame
#include "framework/forms/Screen.h"         // Screen
#include "framework/forms/ScrollControls.h" // containers that scroll
