// The common controls, with menus, actions and image lists. The parts, in
// reading order:
#pragma once

#include "framework/forms/Actions.h"         // TActionList, TAction
#include "framework/forms/CoolBars.h"        // TCoolBar
#include "framework/forms/DateControls.h"    // TDateTimePicker, TMonthCalendar
#include "framework/forms/HeaderControls.h"  // THeaderControl
#include "framework/forms/ImageLists.h"      // TImageList
#include "framework/forms/ListViews.h"       // TListView
#include "framework/forms/Menus.h"           // TMainMenu, TPopupMenu, TMenuItem
#include "framework/forms/PageControls.h"    // TTabControl, TPageControl
#include "framework/forms/RangeControls.h"   // TProgressBar, TTrackBar, TUpDown, THotKey
#include "framework/forms/RichEdits.h"       // TRichEdit, TAnimate
#include "framework/forms/StandardActions.h" // TEditCopy, TFileExit and their like
#include "framework/forms/StatusBars.h"      // TStatusBar
#include "framework/forms/ToolBars.h"        // TToolBar
#include "framework/forms/TreeViews.h"       // TTreeView

// Makes them known to form files.
void RegisterComCtrls();
