// The run-time library's everyday functions, by the name programs know it under.
// Read on in the header of the part:
#pragma once

#include "framework/rtl/Convert.h"    // integers and text
#include "framework/rtl/Exceptions.h" // the framework's exceptions
#include "framework/rtl/FileNames.h"  // names of files and folders
#include "framework/rtl/FloatText.h"  // floating-point numbers and text
#include "framework/rtl/FormatText.h" // Format
#include "framework/rtl/FormatVars.h" // separators and currency
#include "framework/rtl/RtlConsts.h"  // message texts
#include "framework/rtl/Texts.h"      // comparing, trimming, replacing
