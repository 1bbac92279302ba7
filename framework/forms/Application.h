// The program: its messages, forms and errors.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "framework/forms/Form.h"
#include "framework/forms/Screen.h"
#include "framework/rtl/Exceptions.h"

class THints;

OBX_EVENT(TMessageEvent, MSG&, bool&)
OBX_EVENT(TExceptionEvent, TObject*, const Exception&)
OBX_EVENT(TIdleEvent, TObject*, bool&)
OBX_EVENT(TActionEvent, TBasicAction*, bool&)
OBX_EVENT(TShowHintEvent, std::string&, bool&, TControl*)

// Owns the program's forms. There is one, between StartApplication and
// FinishApplication:
//
//     int main()
//     {
//         TApplicationScope Scope;
//         Application->SetTitle("Editor");
//         Application->CreateForm(MainForm);
//         Application->Run();
//     }
class TApplication : public TComponent {
    OBX_CLASS(TComponent)
public:
    explicit TApplication(TComponent* Owner);
    ~TApplication() override;

    // Makes a form, reads its form file and stores it in Reference before OnCreate.
    // The first form becomes the main form.
    template<class T>
    void CreateForm(T*& Reference)
    {
        Reference = new T(this);
        try {
            FormCreated(Reference);
        } catch (...) {
            delete Reference;
            Reference = nullptr;
            throw;
        }
    }

    // Shows the main form and handles messages until Terminate.
    void Run();
    void Terminate();
    bool Terminated() const { return FTerminated; }
    void Initialize() {}
    // Handles the messages that are waiting, or one of them (false: there was none).
    void ProcessMessages();
    bool ProcessMessage();
    // Handles one message, or waits for one.
    void HandleMessage();
    void DoIdle();

    // Reports the exception that is being handled: to OnException, or in a
    // message box. EAbort is passed over.
    void HandleException(TObject* Sender);
    void ShowException(const Exception& Error);
    // Shows the system's message box over the active window, reading as BiDiMode says;
    // returns its IDOK and so on.
    int MessageBox(const std::string& Text, const std::string& Caption, UINT Flags = MB_OK);

    void BringToFront();
    void Minimize();
    void Restore();
    void RestoreTopMosts() {}
    void NormalizeTopMosts() {}
    // Shows the hint of what is at a point of the screen at once.
    void ActivateHint(const TPoint& CursorPos);
    // Hides the hint that is shown or awaited; moving the mouse brings one again.
    void CancelHint();

    // The window that owns all forms. Null where none could be made.
    HWND Handle() const { return FHandle; }
    std::string ExeName() const;
    TForm* MainForm() const { return FMainForm; }
    bool Active() const { return FActive; }
    const std::string& Title() const { return FTitle; }
    void SetTitle(const std::string& Value);
    // The hint of the control below the mouse, after the "|".
    const std::string& Hint() const { return FHint; }
    void SetHint(const std::string& Value);
    TIcon* Icon() { return &FIcon; }
    const std::string& HelpFile() const { return FHelpFile; }
    void SetHelpFile(const std::string& Value) { FHelpFile = Value; }
    bool ShowHint() const { return FShowHint; }
    void SetShowHint(bool Value) { FShowHint = Value; }
    int HintPause = 500;      // milliseconds
    int HintHidePause = 2500; // milliseconds
    int HintShortPause = 0;   // milliseconds
    TColor HintColor = clInfoBk;
    bool ShowMainForm = true;
    bool UpdateFormatSettings = true;
    bool UpdateMetricSettings = true;
    TBiDiMode BiDiMode = bdLeftToRight;
    // A modeless dialog of the system that wants dialog keys; null for none.
    HWND DialogHandle = nullptr;
    int ModalLevel() const { return FModalLevel; }
    // Runs what is modal, a form or a dialog of the system: the program's other
    // windows are disabled meanwhile. Calls nest.
    void RunModally(const std::function<void()>& Body);

    // Carries out or updates an action for the form that is active.
    bool ExecuteAction(TBasicAction* Action);
    bool UpdateAction(TBasicAction* Action);

    bool HelpContext(THelpContext Context);
    bool HelpCommand(int Command, intptr_t Data);

    // Sees the messages of the application's window; true to swallow one.
    using TWindowHook = std::function<bool(TMessage&)>;
    int HookMainWindow(TWindowHook Hook);
    void UnhookMainWindow(int Cookie);

    TActionEvent OnActionExecute;
    TActionEvent OnActionUpdate;
    TNotifyEvent OnActivate;
    TNotifyEvent OnDeactivate;
    TExceptionEvent OnException;
    THelpEvent OnHelp;
    TNotifyEvent OnHint;
    TIdleEvent OnIdle;
    TMessageEvent OnMessage;
    TNotifyEvent OnMinimize;
    TNotifyEvent OnModalBegin;
    TNotifyEvent OnModalEnd;
    TNotifyEvent OnRestore;
    TNotifyEvent OnSettingChange;
    TShortCutEvent OnShortCut;
    TShowHintEvent OnShowHint;

    void Notification(TComponent* Component, TOperation Operation) override;

private:
    friend class TCustomForm;
    void FormCreated(TComponent* Form);
    void CreateHandle();
    static LRESULT CALLBACK WindowProc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam);
    void WndProc(TMessage& Message);
    bool Dispatch(MSG& Msg);
    bool IsMDIMsg(MSG& Msg);
    bool IsKeyMsg(MSG& Msg);
    bool IsDlgMsg(MSG& Msg);
    bool OfferAction(TBasicAction* Action, bool Execute);
    void FollowMouse(const MSG& Msg);
    void MouseMoved(TControl* Control);

    HWND FHandle = nullptr;
    TForm* FMainForm = nullptr;
    TControl* FMouseControl = nullptr;
    std::unique_ptr<THints> FHints;
    std::string FTitle;
    std::string FHint;
    std::string FHelpFile;
    TIcon FIcon;
    std::vector<std::pair<int, TWindowHook>> FHooks;
    int FNextHook = 1;
    int FModalLevel = 0;
    bool FTerminated = false;
    bool FActive = false;
    bool FShowHint = true;
};

extern TApplication* Application;

// Makes Application and Screen and registers the framework's base classes. Calls
// nest; the last FinishApplication destroys both, with all forms.
void StartApplication();
void FinishApplication();

class TApplicationScope {
public:
    TApplicationScope() { StartApplication(); }
    ~TApplicationScope() { FinishApplication(); }
    TApplicationScope(const TApplicationScope&) = delete;
    TApplicationScope& operator=(const TApplicationScope&) = delete;
};

// Registers the classes of this unit's forms, frames and data modules.
void RegisterFormClasses();
