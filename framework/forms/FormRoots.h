// The root of a form whose class the program does not have.
#pragma once

#include <memory>

#include "framework/rtl/Component.h"
#include "framework/streaming/FormDocument.h"

// A form, frame or data module, told by the properties that only one kind of root
// has; of the class itself where it is registered. In the designer's state, so that a
// form that is stored visible is not shown.
std::unique_ptr<TComponent> MakeDesignedRoot(const TFormObject& Source);
