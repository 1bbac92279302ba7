// The framework's message texts, as resource strings (ResStrings.h).
// The table itself is RtlConsts.inc: one row a text.
#pragma once

#include "framework/rtl/ResStrings.h"

#define ORBILEX_TEXT(Name, Identifier, Text) extern const TResStringRec Name;
#include "framework/rtl/RtlConsts.inc"
#undef ORBILEX_TEXT
