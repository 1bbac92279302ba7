#include "framework/forms/Timers.h"

#include <map>

#include "framework/forms/Application.h"

namespace {

// The system passes a timer's number only.
std::map<UINT_PTR, TTimer*>& RunningTimers()
{
    static std::map<UINT_PTR, TTimer*> Timers;
    return Timers;
}

} // namespace

const TMetaClass& TTimer::MetaClass()
{
    static const TMetaClass Class("TTimer", &TComponent::MetaClass(), CreateComponent<TTimer>,
                                  {
                                      OBX_ROW(TTimer, Enabled).Default(true),
                                      OBX_ROW(TTimer, Interval).Default(1000),
                                      OBX_ROW(TTimer, OnTimer),
                                  });
    return Class;
}

TTimer::~TTimer()
{
    StopTimer();
}

void TTimer::SetEnabled(bool Value)
{
    if (FEnabled == Value)
        return;
    FEnabled = Value;
    UpdateTimer();
}

void TTimer::SetInterval(uint32_t Value)
{
    if (FInterval == Value)
        return;
    FInterval = Value;
    UpdateTimer();
}

void TTimer::SetOnTimer(const TNotifyEvent& Value)
{
    FOnTimer = Value;
    UpdateTimer();
}

void TTimer::Loaded()
{
    TComponent::Loaded();
    UpdateTimer();
}

void TTimer::StopTimer()
{
    if (FId == 0)
        return;
    KillTimer(nullptr, FId);
    RunningTimers().erase(FId);
    FId = 0;
}

void TTimer::UpdateTimer()
{
    StopTimer();
    const bool Quiet = HasState(csLoading) || HasState(csDesigning);
    if (Quiet || !FEnabled || FInterval == 0 || !FOnTimer)
        return;
    FId = SetTimer(nullptr, 0, FInterval, TimerProc);
    if (FId != 0)
        RunningTimers()[FId] = this;
}

void CALLBACK TTimer::TimerProc(HWND, UINT, UINT_PTR Id, DWORD)
{
    const auto Found = RunningTimers().find(Id);
    if (Found == RunningTimers().end())
        return;
    TTimer* const Timer = Found->second;
    try {
        if (Timer->FOnTimer)
            Timer->FOnTimer(Timer);
    } catch (...) {
        if (!Application)
            throw;
        Application->HandleException(Timer);
    }
}
