// What all of the system's dialogs have in common as components.
#pragma once

#include "framework/forms/Form.h"

// A dialog of the system: it is set up by its properties, shown by Execute, and
// its properties then tell what the user chose. Nothing changes when the user
// gives up.
class TCommonDialog : public TComponent {
    OBX_CLASS(TComponent)
public:
    explicit TCommonDialog(TComponent* Owner) : TComponent(Owner) {}

    // The dialog's window while it is shown, else null.
    HWND Handle() const { return FHandle; }

    // True when the user has chosen something.
    virtual bool Execute() { return false; }

    // Sees messages while the dialog runs; true swallows one.
    virtual bool MessageHook(TMessage& Msg);

    // Published by all dialogs.
    OBX_PROPERTY(bool, Ctl3D, true)
    // For the dialog's help button: Application->HelpContext.
    OBX_PROPERTY(THelpContext, HelpContext, 0)
public:
    TNotifyEvent OnClose;
    TNotifyEvent OnShow;

protected:
    HWND FHandle = nullptr;
};

// How messages reach the dialogs of exactly that class, not those of its
// descendants: by default through a function that calls the virtual MessageHook.
// The entry is looked up for every message; null brings the default back.
using TDialogMessageHook = bool (*)(TCommonDialog& Dialog, TMessage& Msg);
TDialogMessageHook DialogMessageHook(const TMetaClass& Class);
void SetDialogMessageHook(const TMetaClass& Class, TDialogMessageHook Hook);
