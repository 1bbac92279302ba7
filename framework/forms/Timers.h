// A component that calls back at intervals.
#pragma once

#include "framework/forms/Messages.h"
#include "framework/rtl/Component.h"

// Runs while it is enabled, has a handler and Interval is not 0; never while its
// form is read or edited.
class TTimer : public TComponent {
    OBX_CLASS(TComponent)
public:
    explicit TTimer(TComponent* Owner) : TComponent(Owner) {}
    ~TTimer() override;

    // Published.
    bool Enabled() const { return FEnabled; }
    void SetEnabled(bool Value);
    // Milliseconds.
    uint32_t Interval() const { return FInterval; }
    void SetInterval(uint32_t Value);
    const TNotifyEvent& OnTimer() const { return FOnTimer; }
    void SetOnTimer(const TNotifyEvent& Value);

    void Loaded() override;

private:
    static void CALLBACK TimerProc(HWND Window, UINT Message, UINT_PTR Id, DWORD Time);
    void UpdateTimer();
    void StopTimer();

    bool FEnabled = true;
    uint32_t FInterval = 1000;
    TNotifyEvent FOnTimer;
    UINT_PTR FId = 0;
};
