#include "framework/forms/Application.h"
#include "framework/forms/Hints.h"

#include <algorithm>

#include "framework/forms/DataModules.h"
#include "framework/forms/FormResources.h"
#include "framework/forms/Frames.h"
#include "framework/rtl/FormatSettings.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/ComponentReader.h"
#include "framework/streaming/FormFile.h"

TApplication* Application = nullptr;

namespace {

constexpr char WindowClassName[] = "TApplication";

int Starts = 0;

// Strict: a program's own forms name nothing that it does not have.
void LoadFormResource(TComponent& Root, const std::string& ClassName)
{
    const TFormDocument Document = ReadForm(*FindFormResource(ClassName));
    TComponentReader(Document, TUnknownClasses::Refuse).ReadRoot(Root);
}

} // namespace

void RegisterFormClasses()
{
    RegisterClass(TForm::MetaClass());
    RegisterClass(TFrame::MetaClass());
    RegisterClass(TDataModule::MetaClass());
}

void StartApplication()
{
    if (Starts++ > 0)
        return;
    GetFormatSettings();
    RegisterFormClasses();
    SetFormLoader(&LoadFormResource);
    Screen = new TScreen(nullptr);
    Application = new TApplication(nullptr);
}

void FinishApplication()
{
    if (Starts == 0 || --Starts > 0)
        return;
    delete Application;
    Application = nullptr;
    delete Screen;
    Screen = nullptr;
}

const TMetaClass& TApplication::MetaClass()
{
    static const TMetaClass Class("TApplication", &TComponent::MetaClass(), nullptr);
    return Class;
}

TApplication::TApplication(TComponent* Owner)
    : TComponent(Owner), FHints(std::make_unique<THints>()),
      FTitle(ChangeFileExt(ExtractFileName(ExeName()), ""))
{
    CreateHandle();
}

TApplication::~TApplication()
{
    SetStateFlag(csDestroying, true);
    FHints.reset();
    while (ComponentCount() > 0) {
        TComponent* const Last = Components(ComponentCount() - 1);
        if (auto* const Form = dynamic_cast<TCustomForm*>(Last))
            Form->Free();
        else
            delete Last;
    }
    if (FHandle)
        DestroyWindow(FHandle);
    UnregisterClassA(WindowClassName, ModuleInstance());
}

void TApplication::CreateHandle()
{
    WNDCLASSA Class{};
    Class.lpfnWndProc = &TApplication::WindowProc;
    Class.hInstance = ModuleInstance();
    Class.lpszClassName = WindowClassName;
    RegisterClassA(&Class);
    FHandle = CreateWindowExA(0, WindowClassName, FTitle.c_str(),
                              WS_POPUP | WS_CAPTION | WS_CLIPSIBLINGS | WS_SYSMENU | WS_MINIMIZEBOX,
                              Screen->Width() / 2, Screen->Height() / 2, 0, 0, nullptr, nullptr,
                              ModuleInstance(), nullptr);
}

std::string TApplication::ExeName() const
{
    std::string Name(4096, '\0');
    Name.resize(GetModuleFileNameA(nullptr, Name.data(), static_cast<DWORD>(Name.size())));
    return Name;
}

void TApplication::SetTitle(const std::string& Value)
{
    FTitle = Value;
    if (FHandle)
        SetWindowTextA(FHandle, Value.c_str());
}

void TApplication::SetHint(const std::string& Value)
{
    if (FHint == Value)
        return;
    FHint = Value;
    if (OnHint)
        OnHint(this);
}

void TApplication::FormCreated(TComponent* Component)
{
    if (auto* const Form = dynamic_cast<TForm*>(Component)) {
        if (!FMainForm)
            FMainForm = Form;
        Form->AfterConstruction();
        // The window of an MDI frame is there before its children ask for it.
        if (Form == FMainForm)
            Form->HandleNeeded();
    } else if (auto* const Other = dynamic_cast<TCustomForm*>(Component)) {
        Other->AfterConstruction();
    } else if (auto* const Module = dynamic_cast<TDataModule*>(Component)) {
        Module->AfterConstruction();
    }
}

void TApplication::Notification(TComponent* Component, TOperation Operation)
{
    inherited::Notification(Component, Operation);
    if (Operation != opRemove)
        return;
    if (Component == FMainForm)
        FMainForm = nullptr;
    if (Component == FMouseControl)
        FMouseControl = nullptr;
    if (FHints)
        FHints->Forget(Component);
}

void TApplication::Run()
{
    FTerminated = false;
    if (!FMainForm)
        return;
    if (ShowMainForm)
        FMainForm->Show();
    while (!FTerminated) {
        try {
            HandleMessage();
        } catch (...) {
            HandleException(this);
        }
    }
}

void TApplication::Terminate()
{
    FTerminated = true;
    // Wakes the loop without leaving a quit message for the next one.
    if (FHandle)
        PostMessageA(FHandle, WM_NULL, 0, 0);
}

void TApplication::HandleException(TObject* Sender)
{
    if (const HWND Captured = GetCapture())
        SendMessageA(Captured, WM_CANCELMODE, 0, 0);
    try {
        throw;
    } catch (const EAbort&) {
        return;
    } catch (const Exception& Error) {
        if (OnException)
            OnException(Sender, Error);
        else
            ShowException(Error);
    } catch (const std::exception& Error) {
        const Exception Shown(Error.what());
        if (OnException)
            OnException(Sender, Shown);
        else
            ShowException(Shown);
    } catch (...) {
        ShowException(Exception(SUnknown));
    }
}

void TApplication::ShowException(const Exception& Error)
{
    std::string Text = Error.Message();
    if (!Text.empty() && Text.back() != '.' && Text.back() != '!' && Text.back() != '?')
        Text += '.';
    MessageBox(Text, FTitle, MB_OK | MB_ICONSTOP);
}

int TApplication::MessageBox(const std::string& Text, const std::string& Caption, UINT Flags)
{
    const HWND Active = GetActiveWindow();
    const TModalState State;
    if (BiDiMode != bdLeftToRight)
        Flags |= MB_RTLREADING;
    if (BiDiMode == bdRightToLeft)
        Flags |= MB_RIGHT;
    return MessageBoxA(Active ? Active : FHandle, Text.c_str(), Caption.c_str(), Flags);
}

void TApplication::RunModally(const std::function<void()>& Body)
{
    if (const HWND Captured = GetCapture())
        SendMessageA(Captured, WM_CANCELMODE, 0, 0);
    ReleaseCapture();
    const auto Finished = [this] {
        if (--FModalLevel == 0 && OnModalEnd)
            OnModalEnd(this);
    };
    try {
        if (++FModalLevel == 1 && OnModalBegin)
            OnModalBegin(this);
        const TCursorGuard Cursor(crDefault);
        const TModalState State;
        Body();
    } catch (...) {
        Finished();
        throw;
    }
    Finished();
}

void TApplication::BringToFront()
{
    if (FHandle)
        if (const HWND Top = GetLastActivePopup(FHandle); Top != FHandle && IsWindowVisible(Top))
            SetForegroundWindow(Top);
}

void TApplication::Minimize()
{
    if (FMainForm && FMainForm->HandleAllocated())
        ShowWindow(FMainForm->Handle(), SW_MINIMIZE);
    if (OnMinimize)
        OnMinimize(this);
}

void TApplication::Restore()
{
    if (FMainForm && FMainForm->HandleAllocated())
        ShowWindow(FMainForm->Handle(), SW_RESTORE);
    if (OnRestore)
        OnRestore(this);
}

bool TApplication::ExecuteAction(TBasicAction* Action)
{
    bool Handled = false;
    if (OnActionExecute)
        OnActionExecute(Action, Handled);
    return Handled || OfferAction(Action, true);
}

bool TApplication::UpdateAction(TBasicAction* Action)
{
    bool Handled = false;
    if (OnActionUpdate)
        OnActionUpdate(Action, Handled);
    return Handled || OfferAction(Action, false);
}

// An action that works on a target takes the control with the focus, else the
// active form, else the main form.
bool TApplication::OfferAction(TBasicAction* Action, bool Execute)
{
    TCustomForm* const Form = Screen->ActiveCustomForm();
    for (TComponent* const Target : {static_cast<TComponent*>(Screen->ActiveControl()),
                                     static_cast<TComponent*>(Form), static_cast<TComponent*>(FMainForm)}) {
        if (!Target || !Action->HandlesTarget(Target))
            continue;
        Action->UpdateTarget(Target);
        if (Execute)
            Action->ExecuteTarget(Target);
        return true;
    }
    return false;
}

bool TApplication::HelpContext(THelpContext Context)
{
    return HelpCommand(HELP_CONTEXT, Context);
}

bool TApplication::HelpCommand(int Command, intptr_t Data)
{
    bool CallHelp = true;
    bool Result = false;
    if (OnHelp)
        OnHelp(static_cast<uint16_t>(Command), Data, CallHelp, Result);
    return Result;
}

int TApplication::HookMainWindow(TWindowHook Hook)
{
    FHooks.emplace_back(FNextHook, std::move(Hook));
    return FNextHook++;
}

void TApplication::UnhookMainWindow(int Cookie)
{
    std::erase_if(FHooks, [Cookie](const auto& Entry) { return Entry.first == Cookie; });
}
