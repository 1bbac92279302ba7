// Find and replace: dialogs without mode that only tell their owner what is wanted.
#include "platform/portable/dialogs/StandardDialog.h"

#include "platform/portable/Window.h"

namespace {

// What the dialog tells; the other flags are the application's.
constexpr DWORD OwnFlags =
    FR_FINDNEXT | FR_REPLACE | FR_REPLACEALL | FR_DIALOGTERM | FR_DOWN | FR_WHOLEWORD | FR_MATCHCASE;

class TFindDialog final : public TStandardDialog {
public:
    TFindDialog(FINDREPLACEA& Data, bool Replaces)
        : TStandardDialog(Replaces ? ReplaceTemplate : FindTemplate,
                          Data.Flags & FR_ENABLEHOOK ? Data.lpfnHook : nullptr, &Data),
          FFind(Data), FReplaces(Replaces)
    {
    }

protected:
    void Init() override;
    bool Started(bool HookAnswer) override;
    bool Command(int Id, int Code) override;
    INT_PTR Message(UINT Message, WPARAM WParam, LPARAM LParam) override;

private:
    void Request(DWORD What);
    void Leave();

    FINDREPLACEA& FFind;
    bool FReplaces;
};

void TFindDialog::Init()
{
    const struct {
        int Id;
        DWORD Hidden, Disabled, Checked;
    } Boxes[] = {{chx1, FR_HIDEWHOLEWORD, FR_NOWHOLEWORD, FR_WHOLEWORD},
                 {chx2, FR_HIDEMATCHCASE, FR_NOMATCHCASE, FR_MATCHCASE},
                 {rad2, FR_HIDEUPDOWN, FR_NOUPDOWN, FR_DOWN}};
    for (const auto& Box : Boxes) {
        if (FFind.Flags & Box.Hidden)
            Show(Box.Id, false);
        if (FFind.Flags & Box.Disabled)
            Enable(Box.Id, false);
        Check(Box.Id, (FFind.Flags & Box.Checked) != 0);
    }
    if (!FReplaces) {
        Check(rad1, !(FFind.Flags & FR_DOWN));
        for (const int Id : {int{rad1}, int{grp1}}) {
            if (FFind.Flags & FR_HIDEUPDOWN)
                Show(Id, false);
            if (FFind.Flags & FR_NOUPDOWN)
                Enable(Id, false);
        }
    }
    Show(pshHelp, (FFind.Flags & FR_SHOWHELP) != 0);
    SetText(edt1, FFind.lpstrFindWhat);
    if (FReplaces)
        SetText(edt2, FFind.lpstrReplaceWith);
    for (const int Id : {int{IDOK}, int{psh1}, int{psh2}})
        Enable(Id, *FFind.lpstrFindWhat != 0);
}

// A hook procedure that answers WM_INITDIALOG with false shows the dialog itself.
bool TFindDialog::Started(bool HookAnswer)
{
    if (HookAnswer) {
        ShowWindow(Window(), SW_SHOWNORMAL);
        UpdateWindow(Window());
    }
    SetFocus(Item(edt1));
    Send(edt1, EM_SETSEL, 0, -1);
    return false;
}

void TFindDialog::Request(DWORD What)
{
    DWORD Flags = (FFind.Flags & ~OwnFlags) | What;
    Flags |= Checked(chx1) ? FR_WHOLEWORD : 0;
    Flags |= Checked(chx2) ? FR_MATCHCASE : 0;
    Flags |= FReplaces || Checked(rad2) ? FR_DOWN : 0;
    FFind.Flags = Flags;
    CopyText(Text(edt1), FFind.lpstrFindWhat, FFind.wFindWhatLen);
    if (FReplaces)
        CopyText(Text(edt2), FFind.lpstrReplaceWith, FFind.wReplaceWithLen);
    TellOwner(FINDMSGSTRINGA, 0, reinterpret_cast<LPARAM>(&FFind));
}

void TFindDialog::Leave()
{
    const HWND Dialog = Window();
    FFind.Flags = (FFind.Flags & ~OwnFlags) | FR_DIALOGTERM;
    TellOwner(FINDMSGSTRINGA, 0, reinterpret_cast<LPARAM>(&FFind));
    if (IsWindow(Dialog))
        DestroyWindow(Dialog);
}

bool TFindDialog::Command(int Id, int Code)
{
    if (Id == edt1 && Code == EN_CHANGE) {
        const bool Any = Send(edt1, WM_GETTEXTLENGTH) > 0;
        for (const int Button : {int{IDOK}, int{psh1}, int{psh2}})
            Enable(Button, Any);
        return true;
    }
    if (Code != BN_CLICKED)
        return false;
    switch (Id) {
    case IDOK:
        Request(FR_FINDNEXT);
        return true;
    case psh1:
        Request(FR_REPLACE);
        return true;
    case psh2:
        Request(FR_REPLACEALL);
        return true;
    case pshHelp:
        TellOwner(HELPMSGSTRINGA, reinterpret_cast<WPARAM>(Window()), reinterpret_cast<LPARAM>(&FFind));
        return true;
    case IDCANCEL:
        Leave();
        return true;
    default:
        return false;
    }
}

INT_PTR TFindDialog::Message(UINT Message, WPARAM, LPARAM)
{
    if (Message != WM_CLOSE)
        return FALSE;
    Leave();
    return TRUE;
}

HWND Open(FINDREPLACEA* Data, bool Replaces)
{
    DialogError(0);
    if (!Data)
        return DialogError(CDERR_INITIALIZATION), nullptr;
    if (Data->lStructSize != sizeof(FINDREPLACEA))
        return DialogError(CDERR_STRUCTSIZE), nullptr;
    if (!IsWindow(Data->hwndOwner))
        return DialogError(CDERR_DIALOGFAILURE), nullptr;
    if (!Data->lpstrFindWhat || !Data->wFindWhatLen ||
        (Replaces && (!Data->lpstrReplaceWith || !Data->wReplaceWithLen)))
        return DialogError(FRERR_BUFFERLENGTHZERO), nullptr;
    if ((Data->Flags & FR_ENABLEHOOK) && !Data->lpfnHook)
        return DialogError(CDERR_NOHOOK), nullptr;
    if (Data->Flags & (FR_ENABLETEMPLATE | FR_ENABLETEMPLATEHANDLE))
        return DialogError(CDERR_NOTEMPLATE), nullptr;
    return TStandardDialog::Open(std::make_shared<TFindDialog>(*Data, Replaces), Data->hwndOwner);
}

} // namespace

HWND FindTextA(FINDREPLACEA* Find)
{
    return Open(Find, false);
}

HWND ReplaceTextA(FINDREPLACEA* Replace)
{
    return Open(Replace, true);
}
