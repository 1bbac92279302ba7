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

// What only the form file knows, shown and not edited.
std::unique_ptr<TPropertyEditor> MakeKeptEditor(TFormDesigner& Designer, TPropertyEditor::TTargets Targets);

// The name of an event's handler. Handlers are the program's own: the name is kept for
// the form file.
std::unique_ptr<TPropertyEditor> MakeEventEditor(TFormDesigner& Designer, TPropertyEditor::TTargets Targets);
