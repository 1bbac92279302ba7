// When hints come and go while the mouse moves over the program's windows.
#pragma once

#include <memory>
#include <string>

#include "framework/forms/Types.h"

class TComponent;
class TControl;
class THintWindow;

// The halves of a hint "Short|Long"; without a bar both are the whole text.
std::string GetShortHint(const std::string& Hint);
std::string GetLongHint(const std::string& Hint);

// Belongs to the application, which tells it what happens.
class THints {
public:
    THints();
    ~THints();
    THints(const THints&) = delete;
    THints& operator=(const THints&) = delete;

    // The mouse is at a point of the screen, over a control or none.
    void MouseMove(TControl* Control, const TPoint& Point);
    // Hides the hint; the next movement of the mouse may bring another one.
    void Cancel();
    // Shows the hint of what is at a point of the screen at once.
    void ShowAt(TControl* Control, const TPoint& Point);
    // The component is going.
    void Forget(const TComponent* Component);

private:
    void Show();
    void Hide();
    void StartTimer(int Milliseconds);
    void StopTimer();
    void TimeOver();
    static void CALLBACK TimerProc(HWND, UINT, UINT_PTR, DWORD);

    std::unique_ptr<THintWindow> FWindow;
    TControl* FControl = nullptr; // whose hint is shown, awaited, or over
    TRect FCursorRect{};          // of it, on the screen
    TPoint FPoint{};
    UINT_PTR FTimer = 0;
    bool FShown = false;
};
