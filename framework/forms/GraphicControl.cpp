#include "framework/forms/GraphicControl.h"

#include "framework/forms/CustomControl.h"

const TMetaClass& TControlCanvas::MetaClass()
{
    static const TMetaClass Class("TControlCanvas", &TCanvas::MetaClass(), nullptr);
    return Class;
}

TControlCanvas::~TControlCanvas()
{
    FreeHandle();
}

void TControlCanvas::CreateHandle()
{
    FDeviceContext = FControl->GetDeviceContext(FWindow);
    SetHandle(FDeviceContext);
}

void TControlCanvas::FreeHandle()
{
    SetHandle(nullptr);
    if (FDeviceContext)
        ReleaseDC(FWindow, FDeviceContext);
    FDeviceContext = nullptr;
}

const TMetaClass& TGraphicControl::MetaClass()
{
    static const TMetaClass Class("TGraphicControl", &TControl::MetaClass(), nullptr);
    return Class;
}

TGraphicControl::TGraphicControl(TComponent* Owner)
    : TControl(Owner), FCanvas(std::make_unique<TControlCanvas>(this))
{
}

TGraphicControl::~TGraphicControl()
{
    SetMouseCapture(false);
}

void TGraphicControl::Dispatch(TMessage& Message)
{
    if (Message.Msg != WM_PAINT)
        return inherited::Dispatch(Message);
    FCanvas->FreeHandle();
    FCanvas->SetHandle(reinterpret_cast<HDC>(Message.WParam));
    try {
        Paint();
    } catch (...) {
        FCanvas->SetHandle(nullptr);
        throw;
    }
    FCanvas->SetHandle(nullptr);
}

const TMetaClass& TCustomControl::MetaClass()
{
    static const TMetaClass Class("TCustomControl", &TWinControl::MetaClass(), nullptr);
    return Class;
}

TCustomControl::TCustomControl(TComponent* Owner)
    : TWinControl(Owner), FCanvas(std::make_unique<TControlCanvas>(this))
{
}

TCustomControl::~TCustomControl() = default;

void TCustomControl::Dispatch(TMessage& Message)
{
    if (Message.Msg != WM_PAINT)
        return inherited::Dispatch(Message);
    FControlState.Include(csCustomPaint);
    inherited::Dispatch(Message);
    FControlState.Exclude(csCustomPaint);
}

void TCustomControl::PaintWindow(HDC Dc)
{
    FCanvas->FreeHandle();
    FCanvas->SetHandle(Dc);
    try {
        Paint();
    } catch (...) {
        FCanvas->SetHandle(nullptr);
        throw;
    }
    FCanvas->SetHandle(nullptr);
}
