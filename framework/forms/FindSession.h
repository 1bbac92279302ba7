// The windows of a find or replace dialog. For TFindDialog.
#pragma once

#include <memory>
#include <string>

#include "framework/forms/FindDialogs.h"

// Lives as long as its windows do, which may be longer than the component: a
// handler may destroy that while the dialog waits for an answer.
class TFindSession {
public:
    explicit TFindSession(TFindDialog& Dialog);
    TFindSession(const TFindSession&) = delete;
    TFindSession& operator=(const TFindSession&) = delete;

    // False when the system could not show the dialog, or a handler has destroyed
    // the component.
    bool Show(TFindDialog::TShowFunction Function, DWORD Flags);
    void Close();
    bool IsFindMessage(const TMessage& Msg) const;

    // The component is done with it: the windows close, at once if none of them is
    // answering a message.
    static void Release(std::unique_ptr<TFindSession> Session);

private:
    class TBusy;

    static LRESULT CALLBACK OwnerProc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam);
    static UINT_PTR CALLBACK HookProc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam);
    LRESULT HandleOwner(HWND Window, TMessage& Msg);
    void HandleDialog(HWND Window, const TMessage& Msg);
    void Initialised(HWND Window);
    void Destroyed();
    void SetWantsKeys(bool Value);

    TFindDialog* FDialog;
    std::string FFindText;
    std::string FReplaceText;
    FINDREPLACEA FData{};
    HWND FForm;             // the form over which the dialog stands
    HWND FOwner = nullptr;  // the hidden window
    HWND FWindow = nullptr; // the dialog
    bool FShown = false;
    int FDepth = 0; // of messages that are being answered
};
