#include "framework/rtl/RtlConsts.h"

// constinit: a text may be needed before other static objects are built.
#define ORBILEX_TEXT(Name, Identifier, Text) constinit const TResStringRec Name{Identifier, Text};
#include "framework/rtl/RtlConsts.inc"
#undef ORBILEX_TEXT
