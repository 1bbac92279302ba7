// The editors of properties for which nobody registered one, by the kind of their
// type.
#pragma once

#include "framework/design/PropertyEditor.h"

// Numbers, with names where the type has them (clRed); single characters; values of
// enumerations to choose from; sets as "[akLeft,akTop]" with an editor for each
// element; texts; components by name;
// objects by their parts. Null for kinds that cannot be edited.
std::unique_ptr<TPropertyEditor> MakeStandardEditor(TFormDesigner& Designer,
                                                    TPropertyEditor::TTargets Targets);
