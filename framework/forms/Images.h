// Pictures on forms, and a place for the program to draw on.
#pragma once

#include "framework/forms/GraphicControl.h"

class TImage : public TGraphicControl {
    OBX_CLASS(TGraphicControl)
public:
    explicit TImage(TComponent* Owner);
    ~TImage() override;

    TPicture* Picture() const { return FPicture.get(); }
    void SetPicture(TPicture* Value) { FPicture->Assign(Value); }
    OBX_PROPERTY(bool, Center, false)
    OBX_PROPERTY(bool, IncrementalDisplay, false)
    OBX_PROPERTY(bool, Proportional, false)
    OBX_PROPERTY(bool, Stretch, false)
    OBX_PROPERTY(bool, Transparent, false)

public:
    // Where the picture goes.
    TRect DestRect() const;

    TNotifyEvent OnProgress;

protected:
    bool CanAutoSize(int& NewWidth, int& NewHeight) override;
    void Paint() override;

private:
    void PictureChanged(TObject*);

    std::unique_ptr<TPicture> FPicture;
};

// Shows what OnPaint draws on its canvas.
class TPaintBox : public TGraphicControl {
    OBX_CLASS(TGraphicControl)
public:
    explicit TPaintBox(TComponent* Owner);

    TNotifyEvent OnPaint;

protected:
    void Paint() override;
};
