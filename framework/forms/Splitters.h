// A bar between two aligned controls that the user drags to resize them.
#pragma once

#include "framework/forms/GraphicControl.h"

OBX_ENUM(TResizeStyle, rsNone, rsLine, rsUpdate, rsPattern)
OBX_EVENT(TSplitterCanResizeEvent, TObject*, int&, bool&)

// Pixels, from 1.
using TNaturalNumber = int;

// Resizes the control on the side that the splitter is aligned to.
class TSplitter : public TGraphicControl {
    OBX_CLASS(TGraphicControl)
public:
    explicit TSplitter(TComponent* Owner);

    // A control made smaller than MinSize shrinks to nothing.
    OBX_PROPERTY(bool, AutoSnap, true)
    OBX_PROPERTY(bool, Beveled, false)
    // Pixels that both sides keep.
    OBX_PROPERTY(TNaturalNumber, MinSize, 30)
    OBX_PROPERTY(TResizeStyle, ResizeStyle, rsPattern)

public:
    TSplitterCanResizeEvent OnCanResize;
    TNotifyEvent OnMoved;
    TNotifyEvent OnPaint;

protected:
    void Paint() override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void MouseMove(TShiftState Shift, int X, int Y) override;
    void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y) override;

private:
    bool IsVertical() const { return Align() == alLeft || Align() == alRight; }
    TControl* FindControlToSize() const;
    int SizeAt(int X, int Y) const;
    void ApplySize();

    TControl* FControl = nullptr; // while dragging
    TPoint FDownPos{};
    int FOldSize = 0;
    int FNewSize = 0;
    int FMaxSize = 0;
};
