// The run-time library's everyday functions, by the name programs know it under.
// Read on in the header of the part:
#pragma once

#include "framework/rtl/Convert.h"      // integers and text
#include "framework/rtl/Currency.h"     // amounts of money and text
#include "framework/rtl/DatePicture.h"  // dates and times by pictures
#include "framework/rtl/DateText.h"     // dates and times and text
#include "framework/rtl/DateTime.h"     // dates and times
#include "framework/rtl/Exceptions.h"   // the framework's exceptions
#include "framework/rtl/FileNames.h"    // names of files and folders
#include "framework/rtl/FloatPicture.h" // numbers by pictures
#include "framework/rtl/FloatText.h"    // floating-point numbers and text
#include "framework/rtl/FormatText.h"   // Format
#include "framework/rtl/FormatVars.h"   // separators, currency, names of days and months
#include "framework/rtl/RtlConsts.h"    // message texts
#include "framework/rtl/Texts.h"        // comparing, trimming, replacing
