// The rows that edits of one line have in common. Included by the sources of edits only.
#pragma once

#include "framework/forms/ControlRows.h"
#include "framework/forms/Edits.h"

namespace ControlRows {

// What edits of one line and of several publish.
template<class TPublisher>
TRows EditRows()
{
    return Joined(Look(), Drag(), Mouse(), Focus(true), Ime(), Bevel(), Ctl3D(), Buffer(),
                  OBX_ROW(TPublisher, ParentColor).Default(false),
                  OBX_ROW(TPublisher, Alignment).Default(taLeftJustify),
                  OBX_ROW(TPublisher, BorderStyle).Default(bsSingle),
                  OBX_ROW(TPublisher, CharCase).Default(ecNormal),
                  OBX_ROW(TPublisher, HideSelection).Default(true), OBX_ROW(TPublisher, MaxLength).Default(0),
                  OBX_ROW(TPublisher, OEMConvert).Default(false),
                  OBX_ROW(TPublisher, ReadOnly).Default(false), Prop<&TPublisher::OnChange>("OnChange"));
}

template<class TPublisher>
TRows SingleLineRows()
{
    return Joined(EditRows<TPublisher>(), OBX_ROW(TPublisher, AutoSelect).Default(true), AutoSize(true),
                  OBX_ROW(TPublisher, NumbersOnly).Default(false),
                  OBX_ROW(TPublisher, PasswordChar).Default(0), OBX_ROW(TPublisher, Text),
                  OBX_ROW(TPublisher, TextHint));
}

} // namespace ControlRows
