#include "framework/forms/CommonDialog.h"

#include <unordered_map>

#include "framework/forms/Application.h"

namespace {

std::unordered_map<const TMetaClass*, TDialogMessageHook>& MessageHooks()
{
    static std::unordered_map<const TMetaClass*, TDialogMessageHook> Hooks;
    return Hooks;
}

bool CallMessageHook(TCommonDialog& Dialog, TMessage& Msg)
{
    return Dialog.MessageHook(Msg);
}

} // namespace

const TMetaClass& TCommonDialog::MetaClass()
{
    static const TMetaClass Class("TCommonDialog", &TComponent::MetaClass(), nullptr,
                                  {
                                      OBX_ROW(TCommonDialog, Ctl3D).Default(true),
                                      OBX_ROW(TCommonDialog, HelpContext).Default(0),
                                      Prop<&TCommonDialog::OnClose>("OnClose"),
                                      Prop<&TCommonDialog::OnShow>("OnShow"),
                                  });
    return Class;
}

TDialogMessageHook DialogMessageHook(const TMetaClass& Class)
{
    const auto Found = MessageHooks().find(&Class);
    return Found == MessageHooks().end() ? &CallMessageHook : Found->second;
}

void SetDialogMessageHook(const TMetaClass& Class, TDialogMessageHook Hook)
{
    if (Hook && Hook != &CallMessageHook)
        MessageHooks()[&Class] = Hook;
    else
        MessageHooks().erase(&Class);
}

bool TCommonDialog::MessageHook(TMessage& Msg)
{
    static const UINT HelpMessage = RegisterWindowMessageA(HELPMSGSTRINGA);
    if (Msg.Msg != HelpMessage || FHelpContext == 0)
        return false;
    Application->HelpContext(FHelpContext);
    return true;
}
