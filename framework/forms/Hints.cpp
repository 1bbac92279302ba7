#include "framework/forms/Hints.h"

#include <algorithm>

#include "framework/forms/Application.h"
#include "framework/forms/HintWindow.h"

namespace {

// From the point of the mouse down to below its pointer.
constexpr int PointerHeight = 20;

THints* Running = nullptr;

// The hint of a control is its own, or that of what it is in.
std::string HintOf(const TControl* Control)
{
    std::string Result;
    for (; Control && Result.empty(); Control = Control->Parent())
        Result = Control->Hint();
    return Result;
}

// The control in whose name a hint is shown over Control; null for none.
TControl* HintControlOf(TControl* Control)
{
    while (Control && !Control->ShowHint())
        Control = Control->Parent();
    if (!Control || Control->HasState(csDesigning) || GetShortHint(HintOf(Control)).empty())
        return nullptr;
    return Control;
}

TRect OnScreen(TControl& Control, const TRect& Rect)
{
    const TPoint First = Control.ClientToScreen({Rect.left, Rect.top});
    return {First.x, First.y, First.x + Rect.right - Rect.left, First.y + Rect.bottom - Rect.top};
}

} // namespace

std::string GetShortHint(const std::string& Hint)
{
    return Hint.substr(0, Hint.find('|'));
}

std::string GetLongHint(const std::string& Hint)
{
    const size_t Bar = Hint.find('|');
    return Bar == std::string::npos ? Hint : Hint.substr(Bar + 1);
}

THints::THints()
{
    Running = this;
}

THints::~THints()
{
    Cancel();
    Running = nullptr;
}

void THints::MouseMove(TControl* Control, const TPoint& Point)
{
    TControl* const Source = Application->ShowHint() ? HintControlOf(Control) : nullptr;
    FPoint = Point;
    if (Source == FControl && (!Source || PtInRect(&FCursorRect, Point)))
        return;
    const bool WasShown = FShown;
    Cancel();
    if (!Source)
        return;
    FControl = Source;
    Source->FreeNotification(Application);
    FCursorRect = OnScreen(*Source, Source->ClientRect());
    StartTimer(WasShown ? Application->HintShortPause : Application->HintPause);
}

void THints::ShowAt(TControl* Control, const TPoint& Point)
{
    Cancel();
    FControl = HintControlOf(Control);
    FPoint = Point;
    if (!FControl)
        return;
    FControl->FreeNotification(Application);
    Show();
}

void THints::Cancel()
{
    StopTimer();
    Hide();
    FControl = nullptr;
}

void THints::Forget(const TComponent* Component)
{
    if (FControl && Component == FControl)
        Cancel();
}

void THints::Hide()
{
    FShown = false;
    FWindow.reset();
}

// What is asked here may cancel the hint or destroy the control.
void THints::Show()
{
    THintInfo Info;
    Info.HintControl = FControl;
    Info.HintPos = {FPoint.x, FPoint.y + PointerHeight};
    Info.HintMaxWidth = Screen->Width();
    Info.HintColor = Application->HintColor;
    Info.CursorRect = FControl->ClientRect();
    Info.HintStr = GetShortHint(HintOf(FControl));
    bool CanShow = FControl->Perform(CM_HINTSHOW, 0, reinterpret_cast<LPARAM>(&Info)) == 0;
    if (CanShow && FControl && Application->OnShowHint)
        Application->OnShowHint(Info.HintStr, CanShow, FControl);
    if (!CanShow || !FControl || Info.HintStr.empty())
        return;
    FCursorRect = OnScreen(*FControl, Info.CursorRect);
    FWindow = std::make_unique<THintWindow>(nullptr);
    FWindow->SetColor(Info.HintColor);
    FWindow->SetBiDiMode(FControl->BiDiMode());
    TRect Place = FWindow->CalcHintRect(Info.HintMaxWidth, Info.HintStr);
    OffsetRect(&Place, Info.HintPos.x, Info.HintPos.y);
    // Above the mouse where there is no room below.
    if (Place.bottom > Screen->WorkAreaRect().bottom)
        OffsetRect(&Place, 0, FPoint.y - Place.bottom);
    FWindow->ActivateHint(Place, Info.HintStr);
    FShown = true;
    StartTimer(Application->HintHidePause);
}

void THints::StartTimer(int Milliseconds)
{
    StopTimer();
    FTimer = SetTimer(nullptr, 0, static_cast<UINT>(std::max(Milliseconds, 1)), &TimerProc);
}

void THints::StopTimer()
{
    if (FTimer)
        KillTimer(nullptr, FTimer);
    FTimer = 0;
}

void CALLBACK THints::TimerProc(HWND, UINT, UINT_PTR, DWORD)
{
    if (!Running)
        return;
    try {
        Running->TimeOver();
    } catch (...) {
        Application->HandleException(Application);
    }
}

void THints::TimeOver()
{
    StopTimer();
    if (FShown)
        Hide();
    else if (FControl)
        Show();
}
