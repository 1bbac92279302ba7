// Controls without a window: drawn by their parent.
#pragma once

#include "framework/forms/Control.h"

// Draws a control: the context's origin is the control's upper left corner.
class TControlCanvas : public TCanvas {
    OBX_CLASS(TCanvas)
public:
    explicit TControlCanvas(TControl* Control) : FControl(Control) {}
    ~TControlCanvas() override;

    // Gives the device context back to the system.
    void FreeHandle();

protected:
    void CreateHandle() override;

private:
    TControl* FControl;
    HDC FDeviceContext = nullptr;
    HWND FWindow = nullptr;
};

class TGraphicControl : public TControl {
    OBX_CLASS(TControl)
public:
    explicit TGraphicControl(TComponent* Owner);
    ~TGraphicControl() override;

    TCanvas* Canvas() { return FCanvas.get(); }

protected:
    void Dispatch(TMessage& Message) override;
    virtual void Paint() {}

private:
    std::unique_ptr<TControlCanvas> FCanvas;
};
