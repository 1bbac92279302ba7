#include "Qbt/ActivationHook.h"

#include <utility>

#include "framework/forms/Application.h"
#include "platform/Strings.h"

namespace {

HHOOK Hook = nullptr;
TActivationHandler Told = nullptr;
bool Telling = false;

// Asking a form for its handle would make a window for each hidden one.
TForm* FormOfWindow(HWND Window)
{
    for (int I = 0; Application && I < Application->ComponentCount(); ++I)
        if (auto* const Form = dynamic_cast<TForm*>(Application->Components(I)))
            if (Form->HandleAllocated() && Form->Handle() == Window)
                return Form;
    return nullptr;
}

void Tell(TForm& Form)
{
    struct TGuard {
        TGuard() { Telling = true; }
        ~TGuard() { Telling = false; }
    } const Guard;
    try {
        Told(Form);
    } catch (...) {
        // No exception may pass through the system's code.
        Application->HandleException(nullptr);
    }
}

LRESULT CALLBACK HookProc(int Code, WPARAM WParam, LPARAM LParam)
{
    const HHOOK Current = Hook; // the handler may remove it
    if (Code == HCBT_ACTIVATE && !Telling)
        if (TForm* const Form = FormOfWindow(reinterpret_cast<HWND>(WParam)))
            Tell(*Form);
    return CallNextHookEx(Current, Code, WParam, LParam);
}

} // namespace

void InstallActivationHook(TActivationHandler Handler)
{
    if (Hook)
        return;
    Told = Handler;
    Hook = SetWindowsHookExA(WH_CBT, &HookProc, HInstance, GetCurrentThreadId());
}

bool RemoveActivationHook() noexcept
{
    if (!Hook)
        return false;
    UnhookWindowsHookEx(std::exchange(Hook, nullptr));
    return true;
}
