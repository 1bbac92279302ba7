// Controls with a window that draw themselves.
#pragma once

#include "framework/forms/GraphicControl.h"
#include "framework/forms/WinControl.h"

class TCustomControl : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TCustomControl(TComponent* Owner);
    ~TCustomControl() override;

    TCanvas* Canvas() { return FCanvas.get(); }

protected:
    void Dispatch(TMessage& Message) override;
    virtual void Paint() {}
    void PaintWindow(HDC Dc) override;

private:
    std::unique_ptr<TControlCanvas> FCanvas;
};
