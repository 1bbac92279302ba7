#include "framework/rtl/RtlConsts.h"

#include "platform/Strings.h"

// constinit: a text may be needed before other static objects are built.
#define ORBILEX_TEXT(Name, Identifier, Text) constinit const TResStringRec Name{&HInstance, Identifier};
#include "framework/rtl/RtlConsts.inc"
#undef ORBILEX_TEXT
