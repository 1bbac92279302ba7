// The system's dialogs for finding and replacing, which have no mode: the program
// goes on while they are shown.
#pragma once

#include "framework/forms/CommonDialog.h"

class TFindSession;

OBX_ENUM(TFindOption, frDown, frFindNext, frHideMatchCase, frHideWholeWord, frHideUpDown, frMatchCase,
         frDisableMatchCase, frDisableUpDown, frDisableWholeWord, frReplace, frReplaceAll, frWholeWord,
         frShowHelp)
OBX_SET(TFindOptions, TFindOption)

// The user's texts and options are in the properties when OnFind comes; frFindNext,
// frReplace or frReplaceAll says what is wanted. What a program sets while the
// dialog is shown takes effect when it is shown again.
class TFindDialog : public TCommonDialog {
    OBX_CLASS(TCommonDialog)
public:
    explicit TFindDialog(TComponent* Owner);
    // Closes the dialog.
    ~TFindDialog() override;

    // Shows the dialog over the active form, or brings it to the front; true when it
    // is shown. It goes with the form's window. Several dialogs may be shown: each
    // belongs to a hidden window of its own.
    bool Execute() override;
    void CloseDialog();

    // Sees the messages of the hidden window, WM_CREATE at each Execute being the
    // first. One WM_KILLFOCUS with the dialog as WParam is sent to it at each
    // Execute when the dialog is complete, just before it is shown and gets the
    // focus: by itself the window would have no focus to lose. The message of the
    // dialog is turned into events, and the one of its help button answered.
    bool MessageHook(TMessage& Msg) override;

    // Where the dialog is or was last, in pixels of the screen. (-1, -1), which
    // fresh ones have, is the middle of the active form.
    TPoint Position() const;
    void SetPosition(const TPoint& Value);
    int Left() const { return static_cast<int>(Position().x); }
    void SetLeft(int Value) { SetPosition({Value, Position().y}); }
    int Top() const { return static_cast<int>(Position().y); }
    void SetTop(int Value) { SetPosition({Position().x, Value}); }

    OBX_PROPERTY(std::string, FindText, {})
    OBX_PROPERTY(TFindOptions, Options, (TFindOptions{frDown}))
    // Published by TReplaceDialog.
    OBX_PROPERTY(std::string, ReplaceText, {})

public:
    TNotifyEvent OnFind;

protected:
    friend class TFindSession;

    // FindTextA, or its counterpart for replacing.
    using TShowFunction = HWND(WINAPI*)(FINDREPLACEA*);
    virtual TShowFunction ShowFunction() const { return &FindTextA; }
    virtual void DoFind();
    virtual void DoReplace() {}

private:
    void Shown(HWND Window);
    void Closed();
    void Answer(const FINDREPLACEA& Data);

    TPoint FPosition{-1, -1};
    std::unique_ptr<TFindSession> FFindSession;
};

class TReplaceDialog : public TFindDialog {
    OBX_CLASS(TFindDialog)
public:
    explicit TReplaceDialog(TComponent* Owner) : TFindDialog(Owner) {}

    // Options tell whether one place or all are to be replaced.
    TNotifyEvent OnReplace;

protected:
    TShowFunction ShowFunction() const override { return &ReplaceTextA; }
    void DoReplace() override;
};
