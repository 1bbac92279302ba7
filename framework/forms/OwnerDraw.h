// What the program is told when it draws an item of a list, menu or tab itself.
#pragma once

#include "framework/rtl/TypInfo.h"

// The values are the system's ODS_ flags in order.
OBX_ENUM(TOwnerDrawStateFlag, odSelected, odGrayed, odDisabled, odChecked, odFocused, odDefault, odHotLight,
         odInactive, odNoAccel, odNoFocusRect, odReserved1, odReserved2, odComboBoxEdit)
OBX_SET(TOwnerDrawState, TOwnerDrawStateFlag)
