// The small windows that say what a control is for.
#pragma once

#include "framework/forms/CustomControl.h"

// About to be shown. A control changes it in its answer to CM_HINTSHOW, where LParam
// points to it; a result other than 0 shows no hint.
struct THintInfo {
    TControl* HintControl = nullptr;
    TPoint HintPos{};     // of the window's upper left corner, on the screen
    int HintMaxWidth = 0; // pixels; longer texts are wrapped
    TColor HintColor = clInfoBk;
    TRect CursorRect{}; // of the control; leaving it ends the hint
    std::string HintStr;
};

// A window of its own that is never active. Lines of its text are separated by line
// breaks.
class THintWindow : public TCustomControl {
    OBX_CLASS(TCustomControl)
public:
    explicit THintWindow(TComponent* Owner);

    // The size for a text that is wrapped at MaxWidth pixels, from (0, 0).
    TRect CalcHintRect(int MaxWidth, const std::string& Text);
    // Shows the text at a place of the screen, moved so that it is on the screen.
    void ActivateHint(TRect Rect, const std::string& Text);
    void ReleaseHandle() { DestroyHandle(); }

protected:
    void CreateParams(TCreateParams& Params) override;
    void Dispatch(TMessage& Message) override;
    void Paint() override;

private:
    UINT TextFlags() const;
};
