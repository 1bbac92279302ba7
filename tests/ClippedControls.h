// Whether a dialog has room for what it shows.
#pragma once

#include <gtest/gtest.h>

#include "framework/forms/Form.h"
#include "framework/forms/StdCtrls.h"

// Everything lies inside the form, apart from everything else, with all its text.
inline void ExpectNothingIsClipped(TForm& Form)
{
    TRect Inside{};
    GetClientRect(Form.Handle(), &Inside);
    TScreenCanvas Canvas;
    for (int Index = 0; Index < Form.ControlCount(); ++Index) {
        TControl& Control = *Form.Controls(Index);
        SCOPED_TRACE(Control.Name() + " \"" + Control.Caption() + "\"");
        const TRect Area = Control.BoundsRect();
        TRect Common{};
        EXPECT_TRUE(UnionRect(&Common, &Inside, &Area) && EqualRect(&Common, &Inside));
        for (int Other = 0; Other < Index; ++Other) {
            const TRect Taken = Form.Controls(Other)->BoundsRect();
            EXPECT_FALSE(IntersectRect(&Common, &Area, &Taken)) << Form.Controls(Other)->Name();
        }
        Canvas.Font()->Assign(Control.Font());
        if (dynamic_cast<TButton*>(&Control)) {
            EXPECT_LE(Canvas.TextWidth(StripHotkey(Control.Caption())) + 8, Control.Width());
            EXPECT_LE(Canvas.TextHeight(Control.Caption()) + 4, Control.Height());
        } else if (dynamic_cast<TLabel*>(&Control)) {
            TRect Needed{0, 0, Control.Width(), 0};
            Canvas.DrawText(Control.Caption(), Needed, DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS);
            EXPECT_LE(RectWidth(Needed), Control.Width());
            EXPECT_LE(RectHeight(Needed), Control.Height());
        }
    }
}
