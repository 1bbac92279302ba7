// Rows of published tables that many control classes have in common. A class's
// table is put together from these groups and from rows of its own:
//
//     static const TMetaClass Class("TEdit", &TCustomEdit::MetaClass(), CreateComponent<TEdit>,
//                                   ControlRows::Sorted(ControlRows::Look(), ControlRows::Mouse(),
//                                                       ControlRows::Focus(true),
//                                                       OBX_ROW(TEdit, CharCase).Default(ecNormal)));
#pragma once

#include <vector>

#include "framework/rtl/TypInfo.h"

namespace ControlRows {

using TRows = std::vector<TPropInfo>;

// Align, Anchors, Constraints, Enabled, Visible, and the parent's hint and
// bidirectional settings: what every published control has.
TRows Base();
// Base, and Color, Font, ParentColor and ParentFont.
TRows Look();
// Caption, written unless it comes from an action.
TPropInfo Caption();
TPropInfo Action();
TPropInfo AutoSize(bool Default);
// DragCursor, DragKind, DragMode and the events of dragging and docking.
TRows Drag();
// OnClick, OnDblClick, OnContextPopup and the other events of the mouse.
TRows Mouse();
TRows Wheel();
// TabOrder and TabStop (with its default), and the events of focus and keyboard.
TRows Focus(bool TabStop);
// ImeMode and ImeName.
TRows Ime();
// BevelEdges, BevelInner, BevelKind, BevelOuter, BevelWidth as windowed controls
// draw them around their border.
TRows Bevel();
// Ctl3D and ParentCtl3D.
TRows Ctl3D();
// DoubleBuffered and ParentDoubleBuffered.
TRows Buffer();
// DockSite, UseDockManager and the events of a place to dock at.
TRows Dock();
// OnCanResize, OnConstrainedResize and OnResize.
TRows Resize();

void Append(TRows& Rows, TPropInfo Row);
void Append(TRows& Rows, TRows Others);
// Properties by name, then events by name, as form files list them.
void Sort(TRows& Rows);

// The parts (rows and groups of rows) in the order given; a row replaces an
// earlier one of the same name.
template<class... TParts>
TRows Joined(TParts... Parts)
{
    TRows Result;
    (Append(Result, std::move(Parts)), ...);
    return Result;
}

template<class... TParts>
TRows Sorted(TParts... Parts)
{
    TRows Result = Joined(std::move(Parts)...);
    Sort(Result);
    return Result;
}

} // namespace ControlRows
