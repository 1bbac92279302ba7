// Base of the standard dialogs: a dialog window made from a template whose messages
// go to the application's hook procedure first and then to the dialog's own object.
#pragma once

#include <memory>
#include <string>

#include "platform/portable/commdlg.h"
#include "platform/portable/dialogs/Templates.h"

class TStandardDialog {
public:
    TStandardDialog(const TStandardDialog&) = delete;
    TStandardDialog& operator=(const TStandardDialog&) = delete;
    virtual ~TStandardDialog() = default;

    // Shows the dialog until its user closes it; true when that was by OK.
    bool Run(HWND Owner);
    // Makes the dialog, which then keeps its object; null when that fails.
    static HWND Open(const std::shared_ptr<TStandardDialog>& Dialog, HWND Owner);

protected:
    // Data is what the hook procedure gets with WM_INITDIALOG.
    TStandardDialog(const TDialogTemplate& Template, LPOFNHOOKPROC Hook, void* Data)
        : FTemplate(Template), FHook(Hook), FData(Data)
    {
    }

    // Fills the controls, before the hook procedure is told of WM_INITDIALOG.
    virtual void Init() = 0;
    // The answer to WM_INITDIALOG: whether the system is to set the focus.
    virtual bool Started(bool HookAnswer) { return HookAnswer; }
    // WM_COMMAND; false leaves it to the system.
    virtual bool Command(int Id, int Code) = 0;
    // Any other message; 0 leaves it to the system.
    virtual INT_PTR Message(UINT Message, WPARAM WParam, LPARAM LParam);
    // The owner is told by the registered message of that name.
    LRESULT TellOwner(LPCSTR Name, WPARAM WParam, LPARAM LParam) const;

    // What the hook procedure answers to a message that only it gets; 0 without one.
    UINT_PTR AskHook(UINT Message, WPARAM WParam, LPARAM LParam) const
    {
        return FHook ? FHook(FWindow, Message, WParam, LParam) : 0;
    }

    HWND Window() const { return FWindow; }
    bool Alive() const { return IsWindow(FWindow) != 0; }
    HWND Item(int Id) const { return GetDlgItem(FWindow, Id); }
    LRESULT Send(int Id, UINT Message, WPARAM WParam = 0, LPARAM LParam = 0) const
    {
        return SendDlgItemMessageA(FWindow, Id, Message, WParam, LParam);
    }
    std::string Text(int Id) const;
    void SetText(int Id, const std::string& Text) const { SetDlgItemTextA(FWindow, Id, Text.c_str()); }
    bool Checked(int Id) const { return Send(Id, BM_GETCHECK) == BST_CHECKED; }
    void Check(int Id, bool On) const { Send(Id, BM_SETCHECK, On ? BST_CHECKED : BST_UNCHECKED); }
    void Enable(int Id, bool On) const { EnableWindow(Item(Id), On); }
    void Show(int Id, bool On) const { ShowWindow(Item(Id), On ? SW_SHOW : SW_HIDE); }
    // Adds to a combo box; the index.
    int AddString(int Id, const std::string& Text, LPARAM Data = 0) const;
    std::string ItemText(int Id, int Index) const;
    void Tell(const std::string& Text) const; // in a message box
    void End(bool Accepted) { EndDialog(FWindow, Accepted); }

private:
    static INT_PTR DialogProc(HWND Dialog, UINT Message, WPARAM WParam, LPARAM LParam);
    INT_PTR Start(WPARAM WParam);

    const TDialogTemplate& FTemplate;
    LPOFNHOOKPROC FHook;
    void* FData;
    HWND FWindow = nullptr;
    std::shared_ptr<TStandardDialog> FSelf; // as long as a dialog without mode exists
};

// Fills an owner-drawn item and writes its text, Indent pixels from the left.
void DrawListItem(const DRAWITEMSTRUCT& Item, const std::string& Text, int Indent);

// What CommDlgExtendedError answers; false, for the functions to return.
bool DialogError(DWORD Error);
