#include "framework/forms/ControlRows.h"

#include <algorithm>

#include "framework/forms/Menus.h"
#include "framework/forms/WinControl.h"

namespace ControlRows {

TRows Base()
{
    return {
        OBX_ROW(TControl, Align).Default(alNone),
        OBX_ROW(TControl, Anchors).Default(TAnchors{akLeft, akTop}).Stored<&TControl::IsAnchorsStored>(),
        OBX_ROW(TControl, BiDiMode).Stored<&TControl::IsBiDiModeStored>(),
        OBX_ROW(TControl, Constraints),
        OBX_ROW(TControl, CustomHint),
        OBX_ROW(TControl, Enabled).Default(true).Stored<&TControl::IsEnabledStored>(),
        OBX_ROW(TControl, ParentBiDiMode).Default(true),
        OBX_ROW(TControl, ParentCustomHint).Default(true),
        OBX_ROW(TControl, ParentShowHint).Default(true),
        OBX_ROW(TControl, PopupMenu),
        OBX_ROW(TControl, ShowHint).Stored<&TControl::IsShowHintStored>(),
        OBX_ROW(TControl, Visible).Default(true).Stored<&TControl::IsVisibleStored>(),
    };
}

TRows Look()
{
    return Joined(Base(), OBX_ROW(TControl, Color).Default(clWindow).Stored<&TControl::IsColorStored>(),
                  OBX_ROW(TControl, Font).Stored<&TControl::IsFontStored>(),
                  OBX_ROW(TControl, ParentColor).Default(true), OBX_ROW(TControl, ParentFont).Default(true));
}

TPropInfo Caption()
{
    return OBX_ROW(TControl, Caption).Stored<&TControl::IsCaptionStored>();
}

TPropInfo Action()
{
    return OBX_ROW(TControl, Action);
}

TPropInfo AutoSize(bool Default)
{
    return OBX_ROW(TControl, AutoSize).Default(Default);
}

TRows Drag()
{
    return {
        OBX_ROW(TControl, DragCursor).Default(crDrag), OBX_ROW(TControl, DragKind).Default(dkDrag),
        OBX_ROW(TControl, DragMode).Default(dmManual), Prop<&TControl::OnDragDrop>("OnDragDrop"),
        Prop<&TControl::OnDragOver>("OnDragOver"),     Prop<&TControl::OnEndDock>("OnEndDock"),
        Prop<&TControl::OnEndDrag>("OnEndDrag"),       Prop<&TControl::OnStartDock>("OnStartDock"),
        Prop<&TControl::OnStartDrag>("OnStartDrag"),
    };
}

TRows Mouse()
{
    return {
        Prop<&TControl::OnClick>("OnClick").Stored<&TControl::IsOnClickStored>(),
        Prop<&TControl::OnContextPopup>("OnContextPopup"),
        Prop<&TControl::OnDblClick>("OnDblClick"),
        Prop<&TControl::OnMouseActivate>("OnMouseActivate"),
        Prop<&TControl::OnMouseDown>("OnMouseDown"),
        Prop<&TControl::OnMouseEnter>("OnMouseEnter"),
        Prop<&TControl::OnMouseLeave>("OnMouseLeave"),
        Prop<&TControl::OnMouseMove>("OnMouseMove"),
        Prop<&TControl::OnMouseUp>("OnMouseUp"),
    };
}

TRows Wheel()
{
    return {
        Prop<&TControl::OnMouseWheel>("OnMouseWheel"),
        Prop<&TControl::OnMouseWheelDown>("OnMouseWheelDown"),
        Prop<&TControl::OnMouseWheelUp>("OnMouseWheelUp"),
    };
}

TRows Focus(bool TabStop)
{
    return {
        OBX_ROW(TWinControl, TabOrder).Default(-1), OBX_ROW(TWinControl, TabStop).Default(TabStop),
        Prop<&TWinControl::OnEnter>("OnEnter"),     Prop<&TWinControl::OnExit>("OnExit"),
        Prop<&TWinControl::OnKeyDown>("OnKeyDown"), Prop<&TWinControl::OnKeyPress>("OnKeyPress"),
        Prop<&TWinControl::OnKeyUp>("OnKeyUp"),
    };
}

TRows Ime()
{
    return {
        OBX_ROW(TWinControl, ImeMode).Default(imDontCare),
        OBX_ROW(TWinControl, ImeName),
    };
}

TRows Bevel()
{
    return {
        OBX_ROW(TWinControl, BevelEdges).Default(TBevelEdges{beLeft, beTop, beRight, beBottom}),
        OBX_ROW(TWinControl, BevelInner).Default(bvRaised),
        OBX_ROW(TWinControl, BevelKind).Default(bkNone),
        OBX_ROW(TWinControl, BevelOuter).Default(bvLowered),
        OBX_ROW(TWinControl, BevelWidth).Default(1),
    };
}

TRows Ctl3D()
{
    return {
        OBX_ROW(TWinControl, Ctl3D).Stored<&TWinControl::IsCtl3DStored>(),
        OBX_ROW(TWinControl, ParentCtl3D).Default(true),
    };
}

TRows Buffer()
{
    return {
        OBX_ROW(TWinControl, DoubleBuffered).Default(false),
        OBX_ROW(TWinControl, ParentDoubleBuffered).Default(true),
    };
}

TRows Dock()
{
    return {
        OBX_ROW(TWinControl, DockSite).Default(false),
        OBX_ROW(TWinControl, UseDockManager).Default(false),
        Prop<&TWinControl::OnDockDrop>("OnDockDrop"),
        Prop<&TWinControl::OnDockOver>("OnDockOver"),
        Prop<&TWinControl::OnGetSiteInfo>("OnGetSiteInfo"),
        Prop<&TWinControl::OnUnDock>("OnUnDock"),
    };
}

TRows Resize()
{
    return {
        Prop<&TControl::OnCanResize>("OnCanResize"),
        Prop<&TControl::OnConstrainedResize>("OnConstrainedResize"),
        Prop<&TControl::OnResize>("OnResize"),
    };
}

void Append(TRows& Rows, TPropInfo Row)
{
    for (TPropInfo& Known : Rows)
        if (Known.Name == Row.Name) {
            Known = std::move(Row);
            return;
        }
    Rows.push_back(std::move(Row));
}

void Append(TRows& Rows, TRows Others)
{
    for (TPropInfo& Row : Others)
        Append(Rows, std::move(Row));
}

void Sort(TRows& Rows)
{
    std::stable_sort(Rows.begin(), Rows.end(), [](const TPropInfo& Left, const TPropInfo& Right) {
        const bool LeftIsEvent = Left.Kind() == tkMethod;
        const bool RightIsEvent = Right.Kind() == tkMethod;
        return LeftIsEvent != RightIsEvent ? RightIsEvent : Left.Name < Right.Name;
    });
}

} // namespace ControlRows
