#include "framework/forms/RichEdits.h"

#include "framework/forms/EditRows.h"

const TMetaClass& TCustomRichEdit::MetaClass()
{
    static const TMetaClass Class("TCustomRichEdit", &TCustomMemo::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TRichEdit::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TRichEdit", &TCustomRichEdit::MetaClass(), CreateComponent<TRichEdit>,
        Sorted(EditRows<TRichEdit>(), ControlRows::Resize(), Wheel(),
               OBX_ROW(TWinControl, BorderWidth).Default(0), OBX_ROW(TRichEdit, HideScrollBars).Default(true),
               OBX_ROW(TRichEdit, Lines), OBX_ROW(TRichEdit, PlainText).Default(false),
               OBX_ROW(TRichEdit, ScrollBars).Default(ssNone), OBX_ROW(TRichEdit, WantReturns).Default(true),
               OBX_ROW(TRichEdit, WantTabs).Default(false), OBX_ROW(TRichEdit, WordWrap).Default(true),
               OBX_ROW(TRichEdit, Zoom).Default(0),
               Prop<&TRichEdit::OnSelectionChange>("OnSelectionChange")));
    return Class;
}

const TMetaClass& TAnimate::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TAnimate", &TWinControl::MetaClass(), CreateComponent<TAnimate>,
        Sorted(Look(), Mouse(), Focus(false), ControlRows::AutoSize(true),
               OBX_ROW(TWinControl, BorderWidth).Default(0), OBX_ROW(TAnimate, Active).Default(false),
               OBX_ROW(TAnimate, Center).Default(true), OBX_ROW(TAnimate, CommonAVI).Default(aviNone),
               OBX_ROW(TAnimate, FileName), OBX_ROW(TAnimate, Repetitions).Default(0),
               OBX_ROW(TAnimate, StartFrame).Default(1), OBX_ROW(TAnimate, StopFrame).Default(0),
               OBX_ROW(TAnimate, Timers).Default(false), OBX_ROW(TAnimate, Transparent).Default(true),
               Prop<&TAnimate::OnClose>("OnClose"), Prop<&TAnimate::OnOpen>("OnOpen"),
               Prop<&TAnimate::OnStart>("OnStart"), Prop<&TAnimate::OnStop>("OnStop")));
    return Class;
}

TAnimate::TAnimate(TComponent* Owner) : TWinControl(Owner)
{
    SetBounds(0, 0, 100, 80);
    TWinControl::SetAutoSize(true);
}

void RegisterRichEditClasses()
{
    RegisterClass(TRichEdit::MetaClass());
    RegisterClass(TAnimate::MetaClass());
}
