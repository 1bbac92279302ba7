// How a dialog of the system comes into our hands. The class of its component is
// registered: from then on the hooks below see the messages of all dialogs of that
// class, wait until the window is there, and put ComDlgProc on it.
//
// One dialog at a time is taken. While it is there, others run as they are.
// User-interface thread only.
#pragma once

#include <string>
#include <vector>

#include "framework/forms/CommonDialog.h"

// The window procedure that ComDlgProc stands in for; null while no dialog is taken.
extern WNDPROC OldWndProc;
// The class name of the dialog that was taken last.
extern std::string OwnerClassName;
// While true, the dialog that is taken is listed and closed, not translated.
extern bool DebugDlg;
// Set while the dialog that is taken closes, so that it is not taken again.
extern bool Closing;
// The classes that are registered, and how messages reached their dialogs before.
extern std::vector<const TMetaClass*> ClassRegs;
extern std::vector<TDialogMessageHook> OrgDlgProc;

// What is done with a dialog that was taken. Exceptions go to
// Application->HandleException, and that dialog is then left alone.
struct TDialogWork {
    void (*List)(HWND Dialog) = nullptr;
    void (*Translate)(HWND Dialog) = nullptr;
};
void SetDialogWork(const TDialogWork& Work);

// Puts the hook into a class, for all its dialogs, but not those of its
// descendants. False, with nothing changed, for null, for classes that are no
// dialogs, and for those that have it already.
bool RegisterDialogClass(const TMetaClass* Class);
// Takes it out again; false when it is not there.
bool UnRegisterDialogClass(const TMetaClass* Class);
// Takes it out of all classes, and off the dialog that is taken.
void EndDialogHooks();

// Find and replace dialogs: taken when the focus first goes to the dialog.
struct TFindDlgHook {
    static bool MessageHook(TCommonDialog& Self, TMessage& Msg);
};

// All others: taken when a window is placed while the dialog is the active one;
// colour dialogs also when they are idle.
struct TCommonDlgHook {
    static bool MessageHook(TCommonDialog& Self, TMessage& Msg);
};

// Passes messages on, then works on the dialog when it becomes active, is about to
// paint its background, or one of its first two buttons with identifiers of their
// own (psh1, psh2) may have changed it; gives the window its procedure back when
// it closes. Message 1324 is kept from the dialog and answered with 1.
LRESULT CALLBACK ComDlgProc(HWND Dialog, UINT Msg, WPARAM WParam, LPARAM LParam);
