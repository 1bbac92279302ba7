// Lays out the controls of a container: alignment along the edges, then anchors.
#pragma once

#include "framework/forms/WinControl.h"

class TLayout {
public:
    // Places the controls of Parent in Rect (client coordinates), which shrinks
    // to what alignment leaves. AControl is the one that was just moved or
    // changed its alignment, or null.
    static void AlignControls(TWinControl& Parent, TControl* AControl, TRect& Rect);

private:
    static bool AlignWork(const TWinControl& Parent);
    static void DoAlign(TWinControl& Parent, TControl* AControl, TAlign Align, TRect& Rect);
    static void DoPosition(TControl& Control, TAlign Align, TRect& Rect, const TPoint& ParentSize);
    static void AnchorAlign(TControl& Control, const TPoint& ParentSize);
};
