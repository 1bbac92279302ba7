// What a form does with messages, closing and modal state.
#include "framework/forms/Actions.h"
#include "framework/forms/Application.h"
#include "framework/forms/Menus.h"
#include "framework/rtl/SysUtils.h"

void TCustomForm::Dispatch(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_PAINT:
        if (IsIconic(WindowHandle()))
            return DefaultHandler(Message);
        FControlState.Include(csCustomPaint);
        inherited::Dispatch(Message);
        FControlState.Exclude(csCustomPaint);
        break;
    case WM_CLOSE:
        Close();
        break;
    case WM_QUERYENDSESSION:
        Message.Result = CloseQuery();
        break;
    case CM_SHOWINGCHANGED:
        ShowingChanged();
        break;
    case CM_ICONCHANGED:
        IconChanged(this);
        break;
    case CM_RELEASE:
        // Nothing may touch the form after this.
        Free();
        return;
    case CM_TEXTCHANGED:
        inherited::Dispatch(Message);
        if (ShownStyle() == fsMDIChild && HandleAllocated())
            SendMessageA(::GetParent(WindowHandle()), WM_MDIREFRESHMENU, 0, 0);
        break;
    case CM_DIALOGKEY:
        DialogKey(Message);
        break;
    case CM_RECREATEWND: {
        // Documents live in the frame's window and are made anew with it.
        std::vector<TCustomForm*> Documents;
        for (int I = 0; I < MDIChildCount(); ++I)
            Documents.push_back(MDIChildren(I));
        for (TCustomForm* const Document : Documents)
            Document->DestroyHandle();
        inherited::Dispatch(Message);
        // A hidden frame would wait with its window until it is shown.
        if (!Documents.empty())
            Handle();
        for (TCustomForm* const Document : Documents)
            Document->UpdateControlState();
        break;
    }
    default:
        if (!DispatchActivation(Message) && !DispatchMenu(Message))
            inherited::Dispatch(Message);
    }
}

bool TCustomForm::DispatchActivation(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_ACTIVATE:
        if (ShownStyle() != fsMDIForm || HasState(csDesigning))
            SetActive((Message.WParam & 0xffff) != WA_INACTIVE);
        else
            ActivateFrame(Message);
        break;
    case WM_MDIACTIVATE:
        DefaultHandler(Message);
        if (ShownStyle() == fsMDIChild)
            SetActive(reinterpret_cast<HWND>(Message.LParam) == WindowHandle());
        break;
    case CM_ACTIVATE:
        if (HasState(csReading))
            FFormState.Include(fsActivated);
        else
            Activate();
        break;
    case CM_DEACTIVATE:
        if (HasState(csReading))
            FFormState.Exclude(fsActivated);
        else
            Deactivate();
        break;
    default:
        return false;
    }
    return true;
}

// The frame passes activation on to its active child, if it has one.
void TCustomForm::ActivateFrame(TMessage& Message)
{
    const bool Value = (Message.WParam & 0xffff) != WA_INACTIVE;
    DefaultHandler(Message);
    TCustomForm* const Child = ActiveMDIChild();
    if (Child)
        FActive = Value;
    else
        SetActive(Value);
    if (Child)
        Child->SetActive(Value);
}

bool TCustomForm::DispatchMenu(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_COMMAND:
        if (Message.LParam == 0 && FMenu &&
            FMenu->DispatchCommand(static_cast<uint16_t>(Message.WParam & 0xffff)))
            return true;
        return false;
    case WM_INITMENUPOPUP:
        if (FMenu)
            FMenu->DispatchPopup(reinterpret_cast<HMENU>(Message.WParam));
        DefaultHandler(Message);
        return true;
    case WM_MENUSELECT:
        ShowMenuHint(Message);
        DefaultHandler(Message);
        return true;
    case WM_SYSCOMMAND:
        if ((Message.WParam & 0xFFF0) == SC_MINIMIZE && Application->MainForm() == this) {
            Application->Minimize();
            return true;
        }
        return false;
    default:
        return false;
    }
}

void TCustomForm::ShowMenuHint(const TMessage& Message)
{
    if (!FMenu)
        return;
    const UINT Flags = Message.WParam >> 16 & 0xffff;
    const TMenuItem* Item = nullptr;
    if (Flags != 0xFFFF && !(Flags & MF_POPUP))
        Item = FMenu->FindItem(Message.WParam & 0xffff, TFindItemKind::Command);
    Application->SetHint(Item ? Item->Hint() : std::string());
}

void TCustomForm::DialogKey(TMessage& Message)
{
    if (GetKeyState(VK_MENU) >= 0) {
        switch (Message.WParam) {
        case VK_TAB:
            if (GetKeyState(VK_CONTROL) >= 0) {
                SelectNext(FActiveControl, GetKeyState(VK_SHIFT) >= 0, true);
                Message.Result = 1;
                return;
            }
            break;
        case VK_LEFT:
        case VK_RIGHT:
        case VK_UP:
        case VK_DOWN:
            if (FActiveControl && FActiveControl->Parent()) {
                const bool Forward = Message.WParam == VK_RIGHT || Message.WParam == VK_DOWN;
                FActiveControl->Parent()->SelectNext(FActiveControl, Forward, false);
                Message.Result = 1;
                return;
            }
            break;
        default:
            break;
        }
    }
    inherited::Dispatch(Message);
}

bool TCustomForm::WantChildKey(TControl*, TMessage&)
{
    return false;
}

bool TCustomForm::IsShortCut(TMessage& Message)
{
    bool Handled = false;
    if (OnShortCut)
        OnShortCut(Message, Handled);
    if (!Handled && FMenu && FMenu->WindowHandle())
        Handled = FMenu->IsShortCut(Message);
    // Action lists and the like answer for the shortcuts that they hold.
    for (int Index = 0; Index < ComponentCount() && !Handled; ++Index)
        if (auto* const List = dynamic_cast<TCustomActionList*>(Components(Index)))
            Handled = List->IsShortCut(Message);
    return Handled;
}

bool TCustomForm::CloseQuery()
{
    if (ShownStyle() == fsMDIForm)
        for (int Index = 0; Index < MDIChildCount(); ++Index)
            if (!MDIChildren(Index)->CloseQuery())
                return false;
    bool Result = true;
    if (OnCloseQuery)
        OnCloseQuery(this, Result);
    return Result;
}

void TCustomForm::DoClose(TCloseAction& Action)
{
    if (OnClose)
        OnClose(this, Action);
}

void TCustomForm::Close()
{
    if (IsModal()) {
        FModalResult = mrCancel;
        return;
    }
    if (!CloseQuery())
        return;
    TCloseAction Action = caHide;
    if (ShownStyle() == fsMDIChild)
        Action = FBorderIcons.Contains(biMinimize) ? caMinimize : caNone;
    DoClose(Action);
    if (Action == caNone)
        return;
    if (Application->MainForm() == this)
        Application->Terminate();
    else if (Action == caHide)
        Hide();
    else if (Action == caMinimize)
        SetWindowState(wsMinimized);
    else
        Release();
}

void TCustomForm::Release()
{
    PostMessageA(Handle(), CM_RELEASE, 0, 0);
}

void TCustomForm::CloseModal()
{
    try {
        TCloseAction Action = caNone;
        if (CloseQuery()) {
            Action = caHide;
            DoClose(Action);
        }
        if (Action == caNone)
            FModalResult = mrNone;
        else if (Action == caFree)
            Release();
    } catch (...) {
        FModalResult = mrNone;
        Application->HandleException(this);
    }
}

TModalResult TCustomForm::ShowModal()
{
    if (FShowing || !Enabled() || IsModal() || ShownStyle() == fsMDIChild)
        throw EInvalidOperation(SCannotShowModal);
    Application->RunModally([this] {
        FFormState.Include(fsModal);
        try {
            RunModal();
        } catch (...) {
            FFormState.Exclude(fsModal);
            throw;
        }
        FFormState.Exclude(fsModal);
    });
    return FModalResult;
}

void TCustomForm::RunModal()
{
    Show();
    try {
        SendMessageA(Handle(), CM_ACTIVATE, 0, 0);
        FModalResult = mrNone;
        while (FModalResult == mrNone) {
            Application->HandleMessage();
            if (Application->Terminated())
                FModalResult = mrCancel;
            else if (FModalResult != mrNone)
                CloseModal();
        }
        SendMessageA(Handle(), CM_DEACTIVATE, 0, 0);
    } catch (...) {
        Hide();
        throw;
    }
    Hide();
}

void TCustomForm::UpdateActions()
{
    const auto Update = [](TControl* Control) {
        if (Control->HasStyle(csActionClient) && Control->ActionLink())
            Control->ActionLink()->Update();
    };
    Update(this);
    std::vector<TWinControl*> Containers = {this};
    while (!Containers.empty()) {
        TWinControl* const Container = Containers.back();
        Containers.pop_back();
        for (int Index = 0; Index < Container->ControlCount(); ++Index) {
            TControl* const Control = Container->Controls(Index);
            Update(Control);
            if (auto* const Window = dynamic_cast<TWinControl*>(Control))
                Containers.push_back(Window);
        }
    }
}
