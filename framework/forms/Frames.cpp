#include "framework/forms/Frames.h"

#include "framework/forms/Application.h"
#include "framework/forms/ControlRows.h"
#include "framework/forms/DataModules.h"
#include "framework/forms/FormResources.h"
#include "framework/rtl/Filer.h"

const TMetaClass& TCustomFrame::MetaClass()
{
    static const TMetaClass Class("TCustomFrame", &TScrollingWinControl::MetaClass(), nullptr);
    return Class;
}

TCustomFrame::TCustomFrame(TComponent* Owner) : TScrollingWinControl(Owner)
{
    FControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks};
    SetBounds(0, 0, 320, 240);
}

void TCustomFrame::AfterConstruction()
{
    if (FConstructed)
        return;
    FConstructed = true;
    InitInheritedComponent(*this, TFrame::MetaClass());
}

void TCustomFrame::CreateParams(TCreateParams& Params)
{
    inherited::CreateParams(Params);
    if (!Parent() && !ParentWindow() && Application)
        Params.WndParent = Application->Handle();
}

// A frame in a file of its own has no parent: nothing is shown then.
void TCustomFrame::SetParentControl(TWinControl* AParent)
{
    inherited::SetParentControl(AParent);
}

void TCustomFrame::SetParentComponent(TComponent* Value)
{
    inherited::SetParentComponent(Value);
}

const TMetaClass& TFrame::MetaClass()
{
    static const TMetaClass Class(
        "TFrame", &TCustomFrame::MetaClass(), CreateComponent<TFrame>,
        ControlRows::Joined(
            ControlRows::Look(), ControlRows::AutoSize(false), OBX_ROW(TFrame, AutoScroll).Default(true),
            ControlRows::Drag(), ControlRows::Mouse(), ControlRows::Wheel(), ControlRows::Focus(false),
            ControlRows::Ctl3D(), ControlRows::Buffer(), ControlRows::Dock(), ControlRows::Resize(),
            OBX_ROW(TFrame, Padding), OBX_ROW(TFrame, ParentBackground).Default(true)));
    return Class;
}
