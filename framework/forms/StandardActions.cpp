#include "framework/forms/StandardActions.h"

#include "framework/forms/Edits.h"

namespace {

bool HasSelection(TCustomEdit& Edit)
{
    return Edit.HandleAllocated() && Edit.SelLength() > 0;
}

std::vector<TPropInfo> EnabledWithoutHandler()
{
    return {OBX_ROW(TStandardAction, DisableIfNoHandler).Default(false)};
}

} // namespace

#define OBX_ACTION_CLASS(Name, Parent, Factory, ...)                                                         \
    const TMetaClass& Name::MetaClass()                                                                      \
    {                                                                                                        \
        static const TMetaClass Class(#Name, &Parent::MetaClass(), Factory, __VA_ARGS__);                    \
        return Class;                                                                                        \
    }

OBX_ACTION_CLASS(TStandardAction, TAction, nullptr, EnabledWithoutHandler())
OBX_ACTION_CLASS(TEditAction, TStandardAction, nullptr, {})
OBX_ACTION_CLASS(TEditCut, TEditAction, CreateComponent<TEditCut>, {})
OBX_ACTION_CLASS(TEditCopy, TEditAction, CreateComponent<TEditCopy>, {})
OBX_ACTION_CLASS(TEditPaste, TEditAction, CreateComponent<TEditPaste>, {})
OBX_ACTION_CLASS(TEditSelectAll, TEditAction, CreateComponent<TEditSelectAll>, {})
OBX_ACTION_CLASS(TEditUndo, TEditAction, CreateComponent<TEditUndo>, {})
OBX_ACTION_CLASS(TEditDelete, TEditAction, CreateComponent<TEditDelete>, {})
OBX_ACTION_CLASS(TWindowAction, TStandardAction, nullptr, {})
OBX_ACTION_CLASS(TWindowClose, TWindowAction, CreateComponent<TWindowClose>, {})
OBX_ACTION_CLASS(TWindowCascade, TWindowAction, CreateComponent<TWindowCascade>, {})
OBX_ACTION_CLASS(TWindowTileHorizontal, TWindowAction, CreateComponent<TWindowTileHorizontal>, {})
OBX_ACTION_CLASS(TWindowTileVertical, TWindowAction, CreateComponent<TWindowTileVertical>, {})
OBX_ACTION_CLASS(TWindowMinimizeAll, TWindowAction, CreateComponent<TWindowMinimizeAll>, {})
OBX_ACTION_CLASS(TWindowArrange, TWindowAction, CreateComponent<TWindowArrange>, {})
OBX_ACTION_CLASS(THelpAction, TStandardAction, nullptr, {})
OBX_ACTION_CLASS(THelpContents, THelpAction, CreateComponent<THelpContents>, {})
OBX_ACTION_CLASS(THelpTopicSearch, THelpAction, CreateComponent<THelpTopicSearch>, {})
OBX_ACTION_CLASS(THelpOnHelp, THelpAction, CreateComponent<THelpOnHelp>, {})
OBX_ACTION_CLASS(TFileExit, TStandardAction, CreateComponent<TFileExit>, {})
OBX_ACTION_CLASS(TCommonDialogAction, TStandardAction, nullptr,
                 {Prop<&TCommonDialogAction::BeforeExecute>("BeforeExecute"),
                  Prop<&TCommonDialogAction::OnAccept>("OnAccept"),
                  Prop<&TCommonDialogAction::OnCancel>("OnCancel")})
OBX_ACTION_CLASS(TFileOpen, TCommonDialogAction, CreateComponent<TFileOpen>, {})
OBX_ACTION_CLASS(TFileSaveAs, TCommonDialogAction, CreateComponent<TFileSaveAs>, {})
#undef OBX_ACTION_CLASS

bool TEditAction::HandlesTarget(TObject* Target)
{
    const auto* const Edit = dynamic_cast<TCustomEdit*>(Target);
    return Edit && Edit->Focused();
}

void TEditAction::UpdateTarget(TObject* Target)
{
    if (auto* const Edit = dynamic_cast<TCustomEdit*>(Target))
        SetEnabled(CanAct(*Edit));
}

void TEditAction::ExecuteTarget(TObject* Target)
{
    if (auto* const Edit = dynamic_cast<TCustomEdit*>(Target))
        Act(*Edit);
}

bool TEditAction::CanAct(TCustomEdit& Edit)
{
    return HasSelection(Edit);
}

bool TEditCut::CanAct(TCustomEdit& Edit)
{
    return HasSelection(Edit) && !Edit.ReadOnly();
}
void TEditCut::Act(TCustomEdit& Edit)
{
    Edit.CutToClipboard();
}

bool TEditCopy::CanAct(TCustomEdit& Edit)
{
    return HasSelection(Edit);
}
void TEditCopy::Act(TCustomEdit& Edit)
{
    Edit.CopyToClipboard();
}

bool TEditPaste::CanAct(TCustomEdit& Edit)
{
    return !Edit.ReadOnly() && IsClipboardFormatAvailable(CF_TEXT);
}
void TEditPaste::Act(TCustomEdit& Edit)
{
    Edit.PasteFromClipboard();
}

bool TEditSelectAll::CanAct(TCustomEdit& Edit)
{
    return !Edit.Text().empty();
}
void TEditSelectAll::Act(TCustomEdit& Edit)
{
    Edit.SelectAll();
}

bool TEditUndo::CanAct(TCustomEdit& Edit)
{
    return Edit.HandleAllocated() && SendMessageA(Edit.Handle(), EM_CANUNDO, 0, 0) != 0;
}
void TEditUndo::Act(TCustomEdit& Edit)
{
    Edit.Undo();
}

bool TEditDelete::CanAct(TCustomEdit& Edit)
{
    return HasSelection(Edit) && !Edit.ReadOnly();
}
void TEditDelete::Act(TCustomEdit& Edit)
{
    Edit.ClearSelection();
}

bool TWindowAction::HandlesTarget(TObject* Target)
{
    const auto* const Form = dynamic_cast<TCustomForm*>(Target);
    return Form && Form->FormStyle() == fsMDIForm;
}

void TWindowAction::UpdateTarget(TObject* Target)
{
    if (const auto* const Form = dynamic_cast<TCustomForm*>(Target))
        SetEnabled(Form->MDIChildCount() > 0);
}

void TWindowAction::ExecuteTarget(TObject* Target)
{
    if (auto* const Form = dynamic_cast<TCustomForm*>(Target))
        Act(*Form);
}

void TWindowClose::Act(TCustomForm& Form)
{
    if (TCustomForm* const Child = Form.ActiveMDIChild())
        Child->Close();
}

void TWindowCascade::Act(TCustomForm& Form)
{
    Form.Cascade();
}

void TWindowTileHorizontal::Act(TCustomForm& Form)
{
    SendMessageA(Form.ClientHandle(), WM_MDITILE, MDITILE_HORIZONTAL, 0);
}

void TWindowTileVertical::Act(TCustomForm& Form)
{
    SendMessageA(Form.ClientHandle(), WM_MDITILE, MDITILE_VERTICAL, 0);
}

void TWindowMinimizeAll::Act(TCustomForm& Form)
{
    for (int I = Form.MDIChildCount() - 1; I >= 0; --I)
        Form.MDIChildren(I)->SetWindowState(wsMinimized);
}

void TWindowArrange::Act(TCustomForm& Form)
{
    Form.ArrangeIcons();
}

void THelpAction::UpdateTarget(TObject*)
{
    SetEnabled(Application && !Application->HelpFile().empty());
}

void THelpAction::ExecuteTarget(TObject*)
{
    if (Application)
        Application->HelpCommand(HelpCommand(), 0);
}

void TFileExit::ExecuteTarget(TObject*)
{
    if (Application && Application->MainForm())
        Application->MainForm()->Close();
}

void RegisterStandardActionClasses()
{
    for (const TMetaClass* const Class :
         {&TEditCut::MetaClass(), &TEditCopy::MetaClass(), &TEditPaste::MetaClass(),
          &TEditSelectAll::MetaClass(), &TEditUndo::MetaClass(), &TEditDelete::MetaClass(),
          &TWindowClose::MetaClass(), &TWindowCascade::MetaClass(), &TWindowTileHorizontal::MetaClass(),
          &TWindowTileVertical::MetaClass(), &TWindowMinimizeAll::MetaClass(), &TWindowArrange::MetaClass(),
          &THelpContents::MetaClass(), &THelpTopicSearch::MetaClass(), &THelpOnHelp::MetaClass(),
          &TFileExit::MetaClass(), &TFileOpen::MetaClass(), &TFileSaveAs::MetaClass()})
        RegisterClass(*Class);
}
