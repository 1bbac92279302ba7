#include "framework/forms/Form.h"

#include <algorithm>

#include "framework/forms/Application.h"
#include "framework/forms/ControlRows.h"
#include "framework/forms/FormResources.h"
#include "framework/forms/Menus.h"
#include "framework/rtl/Filer.h"
#include "framework/rtl/SysUtils.h"

const TMetaClass& TCustomForm::MetaClass()
{
    static const TMetaClass Class("TCustomForm", &TScrollingWinControl::MetaClass(), nullptr,
                                  {
                                      OBX_ROW(TCustomForm, Left),
                                      OBX_ROW(TCustomForm, Top),
                                      OBX_ROW(TCustomForm, Width).Stored<&TCustomForm::IsFormSizeStored>(),
                                      OBX_ROW(TCustomForm, Height).Stored<&TCustomForm::IsFormSizeStored>(),
                                  });
    return Class;
}

const TMetaClass& TForm::MetaClass()
{
    static const TMetaClass Class(
        "TForm", &TCustomForm::MetaClass(), CreateComponent<TForm>,
        ControlRows::Joined(
            OBX_ROW(TForm, ActiveControl), OBX_ROW(TForm, Align).Default(alNone),
            OBX_ROW(TForm, AlphaBlend).Default(false), OBX_ROW(TForm, AlphaBlendValue).Default(255),
            OBX_ROW(TForm, Anchors).Default(TAnchors{akLeft, akTop}),
            OBX_ROW(TForm, AutoScroll).Stored<&TForm::IsAutoScrollStored>(),
            OBX_ROW(TForm, AutoSize).Default(false),
            OBX_ROW(TForm, BiDiMode).Stored<&TForm::IsBiDiModeStored>(),
            OBX_ROW(TForm, BorderIcons).Default(TBorderIcons{biSystemMenu, biMinimize, biMaximize}),
            OBX_ROW(TForm, BorderStyle).Default(bsSizeable), OBX_ROW(TForm, BorderWidth).Default(0),
            OBX_ROW(TForm, Caption), OBX_ROW(TForm, ClientHeight).Stored<&TForm::IsClientSizeStored>(),
            OBX_ROW(TForm, ClientWidth).Stored<&TForm::IsClientSizeStored>(), OBX_ROW(TForm, Color),
            OBX_ROW(TForm, TransparentColor).Default(false),
            OBX_ROW(TForm, TransparentColorValue).Default(clBlack), OBX_ROW(TForm, Constraints),
            OBX_ROW(TForm, Ctl3D), OBX_ROW(TForm, UseDockManager),
            OBX_ROW(TForm, DefaultMonitor).Default(dmActiveForm), OBX_ROW(TForm, DockSite).Default(false),
            OBX_ROW(TForm, DoubleBuffered).Default(false), OBX_ROW(TForm, DragKind).Default(dkDrag),
            OBX_ROW(TForm, DragMode).Default(dmManual), OBX_ROW(TForm, Enabled).Default(true),
            OBX_ROW(TForm, ParentFont).Default(false),
            OBX_ROW(TForm, Font).Stored<&TForm::IsFormFontStored>(),
            OBX_ROW(TForm, FormStyle).Default(fsNormal), OBX_ROW(TForm, HelpFile),
            OBX_ROW(TForm, HorzScrollBar), OBX_ROW(TForm, Icon).Stored<&TForm::IsIconStored>(),
            OBX_ROW(TForm, KeyPreview).Default(false), OBX_ROW(TForm, Padding), OBX_ROW(TForm, Menu),
            OBX_ROW(TForm, OldCreateOrder), OBX_ROW(TForm, ObjectMenuItem),
            OBX_ROW(TForm, ParentBiDiMode).Default(true), OBX_ROW(TForm, PixelsPerInch).Stored(false),
            OBX_ROW(TForm, PopupMenu), OBX_ROW(TForm, Position).Default(poDesigned),
            OBX_ROW(TForm, PrintScale).Default(poProportional), OBX_ROW(TForm, Scaled).Default(true),
            OBX_ROW(TForm, ScreenSnap).Default(false), OBX_ROW(TForm, ShowHint),
            OBX_ROW(TForm, SnapBuffer).Default(10), OBX_ROW(TForm, VertScrollBar),
            OBX_ROW(TControl, Visible).Default(false), OBX_ROW(TForm, WindowState).Default(wsNormal),
            OBX_ROW(TForm, WindowMenu), Prop<&TForm::OnActivate>("OnActivate"), ControlRows::Resize(),
            ControlRows::Mouse(), Prop<&TForm::OnClose>("OnClose"),
            Prop<&TForm::OnCloseQuery>("OnCloseQuery"), Prop<&TForm::OnCreate>("OnCreate"),
            Prop<&TForm::OnDestroy>("OnDestroy"), Prop<&TForm::OnDeactivate>("OnDeactivate"),
            Prop<&TForm::OnDockDrop>("OnDockDrop"), Prop<&TForm::OnDockOver>("OnDockOver"),
            Prop<&TForm::OnDragDrop>("OnDragDrop"), Prop<&TForm::OnDragOver>("OnDragOver"),
            Prop<&TForm::OnEndDock>("OnEndDock"), Prop<&TForm::OnGetSiteInfo>("OnGetSiteInfo"),
            Prop<&TForm::OnHide>("OnHide"), Prop<&TForm::OnHelp>("OnHelp"),
            Prop<&TForm::OnKeyDown>("OnKeyDown"), Prop<&TForm::OnKeyPress>("OnKeyPress"),
            Prop<&TForm::OnKeyUp>("OnKeyUp"), ControlRows::Wheel(), Prop<&TForm::OnPaint>("OnPaint"),
            Prop<&TForm::OnShortCut>("OnShortCut"), Prop<&TForm::OnShow>("OnShow"),
            Prop<&TForm::OnStartDock>("OnStartDock"), Prop<&TForm::OnUnDock>("OnUnDock")));
    return Class;
}

TForm::~TForm() = default;

TCustomForm::TCustomForm(TComponent* Owner)
    : TScrollingWinControl(Owner), FCanvas(std::make_unique<TControlCanvas>(this)),
      FIcon(std::make_unique<TIcon>()), FPixelsPerInch(ScreenPixelsPerInch())
{
    FControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks};
    SetBounds(0, 0, 320, 240);
    FVisible = false;
    FParentColor = false;
    FParentFont = false;
    FParentShowHint = false;
    FColor = clBtnFace;
    Brush()->SetColor(clBtnFace);
    SetParentCtl3D(false);
    FIcon->OnChange = {this, &TCustomForm::IconChanged};
    if (Screen)
        Screen->AddForm(this);
}

TCustomForm::~TCustomForm()
{
    SetStateFlag(csDestroying, true);
    // A handler of the form's own class is part of an object that is gone by now.
    if (OnDestroy.Method().Data != this)
        BeforeDestruction();
    if (Screen)
        Screen->RemoveForm(this);
    if (HandleAllocated())
        TCustomForm::DestroyHandle();
    FMenu = nullptr;
}

void TCustomForm::Free()
{
    BeforeDestruction();
    delete this;
}

void TCustomForm::BeforeDestruction()
{
    if (FDestroyed)
        return;
    FDestroyed = true;
    DoDestroy();
}

void TCustomForm::AfterConstruction()
{
    if (FConstructed)
        return;
    FConstructed = true;
    InitInheritedComponent(*this, TForm::MetaClass());
    DoCreate();
    if (FVisible && !HasState(csDesigning))
        Perform(CM_VISIBLECHANGED, TRUE);
}

void TCustomForm::DoCreate()
{
    if (OnCreate)
        OnCreate(this);
}

void TCustomForm::DoDestroy()
{
    if (!OnDestroy)
        return;
    try {
        OnDestroy(this);
    } catch (...) {
        if (Application)
            Application->HandleException(this);
    }
}

// While it is read, the form only remembers that it wants to be seen.
void TCustomForm::SetVisible(bool Value)
{
    if (HasState(csLoading) || HasState(csReading)) {
        FVisible = Value;
        return;
    }
    if (FVisible == Value && Value != FShowing && !HasState(csDesigning))
        Perform(CM_VISIBLECHANGED, Value);
    inherited::SetVisible(Value);
}

void TCustomForm::VisibleChanging()
{
    if (FFormStyle == fsMDIChild && FVisible && Parent() == nullptr && !HasState(csDestroying))
        throw EInvalidOperation(SMDIChildNotVisible);
}

void TCustomForm::SetParentControl(TWinControl* AParent)
{
    if (Parent() == AParent)
        return;
    const bool WasAlone = Parent() == nullptr;
    if (WasAlone || !AParent)
        DestroyHandle();
    inherited::SetParentControl(AParent);
    if (!Parent())
        UpdateControlState();
}

// Forms in files are roots; a parent is only given by code.
void TCustomForm::SetParentComponent(TComponent* Value)
{
    if (dynamic_cast<TWinControl*>(Value))
        inherited::SetParentComponent(Value);
}

bool TCustomForm::IsFormSizeStored() const
{
    if (FSizeKind != SizeUnknown)
        return FSizeKind == SizeOfWindow;
    return AutoScroll() || HorzScrollBar()->Range() != 0 || VertScrollBar()->Range() != 0;
}

bool TCustomForm::IsAutoScrollStored() const
{
    return AutoScroll() != (FBorderStyle == bsSizeable || FBorderStyle == bsSizeToolWin);
}

bool TCustomForm::IsFormFontStored() const
{
    return !ParentFont();
}

TRect TCustomForm::ClientRect() const
{
    TRect Result = inherited::ClientRect();
    if (HandleAllocated())
        return Result;
    if (FPendingClientWidth >= 0)
        Result.right = FPendingClientWidth;
    if (FPendingClientHeight >= 0)
        Result.bottom = FPendingClientHeight;
    // A frame may be larger than the window.
    return {0, 0, std::max<LONG>(0, Result.right), std::max<LONG>(0, Result.bottom)};
}

int TCustomForm::ClientWidth() const
{
    return static_cast<int>(ClientRect().right);
}

int TCustomForm::ClientHeight() const
{
    return static_cast<int>(ClientRect().bottom);
}

// The frame is only known when border, menu and so on have been read.
void TCustomForm::SetClientWidth(int Value)
{
    if (HasState(csLoading)) {
        FSizeKind = SizeOfClient;
        FPendingClientWidth = Value;
    } else {
        FPendingClientWidth = -1;
        inherited::SetClientWidth(Value);
    }
}

void TCustomForm::SetClientHeight(int Value)
{
    if (HasState(csLoading)) {
        FSizeKind = SizeOfClient;
        FPendingClientHeight = Value;
    } else {
        FPendingClientHeight = -1;
        inherited::SetClientHeight(Value);
    }
}

void TCustomForm::SetBounds(int ALeft, int ATop, int AWidth, int AHeight)
{
    if (HasState(csReading) && (AWidth != Width() || AHeight != Height()))
        FSizeKind = SizeOfWindow;
    inherited::SetBounds(ALeft, ATop, AWidth, AHeight);
}

// Before the children's anchors are measured.
void TCustomForm::ApplyClientSize()
{
    const int PendingWidth = FPendingClientWidth;
    const int PendingHeight = FPendingClientHeight;
    FPendingClientWidth = FPendingClientHeight = -1;
    if (PendingWidth >= 0)
        TControl::SetClientWidth(PendingWidth);
    if (PendingHeight >= 0)
        TControl::SetClientHeight(PendingHeight);
}

void TCustomForm::Loaded()
{
    inherited::Loaded();
    RefreshMenu();
    ApplyClientSize();
    if (FActiveControl && !ContainsControl(FActiveControl))
        FActiveControl = nullptr;
}

void TCustomForm::SetPixelsPerInch(int Value)
{
    if (HasState(csReading))
        FPixelsPerInchRead = true;
    if (Value == 0 || Value >= 36)
        FPixelsPerInch = Value;
}

void TCustomForm::ReadTextHeight(TReader& Reader)
{
    FTextHeight = static_cast<int>(Reader.ReadInteger());
}

void TCustomForm::DefineProperties(TFiler& Filer)
{
    inherited::DefineProperties(Filer);
    Filer.DefineProperty(
        "PixelsPerInch",
        [this](TReader& Reader) { SetPixelsPerInch(static_cast<int>(Reader.ReadInteger())); },
        [this](TWriter& Writer) { Writer.WriteInteger(FPixelsPerInch); },
        FPixelsPerInchRead || HasState(csDesigning));
    Filer.DefineProperty(
        "TextHeight", [this](TReader& Reader) { ReadTextHeight(Reader); },
        [this](TWriter& Writer) { Writer.WriteInteger(FTextHeight); }, FTextHeight != 0);
}

// Components without a parent are listed by the form itself.
void TCustomForm::SetBorderIcons(TBorderIcons Value)
{
    if (FBorderIcons == Value)
        return;
    FBorderIcons = Value;
    if (!HasState(csDesigning))
        RecreateWnd();
}

void TCustomForm::SetBorderStyle(TFormBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    SetAutoScroll(Value == bsSizeable || Value == bsSizeToolWin);
    if (!HasState(csDesigning))
        RecreateWnd();
}

void TCustomForm::SetFormStyle(TFormStyle Value)
{
    if (FFormStyle == Value)
        return;
    DestroyHandle();
    FFormStyle = Value;
    if (Value == fsMDIChild)
        FVisible = true;
    if (Value == fsMDIForm)
        SetColor(clAppWorkSpace);
    if (!HasState(csLoading))
        UpdateControlState();
}

void TCustomForm::SetPosition(TPosition Value)
{
    if (FPosition == Value)
        return;
    FPosition = Value;
    if (!HasState(csDesigning))
        RecreateWnd();
}

void TCustomForm::SetWindowState(TWindowState Value)
{
    constexpr int Commands[] = {SW_SHOWNORMAL, SW_MINIMIZE, SW_SHOWMAXIMIZED};
    if (FWindowState == Value)
        return;
    FWindowState = Value;
    if (!HasState(csDesigning) && FShowing)
        ShowWindow(Handle(), Commands[Value]);
}

void TCustomForm::SetMenu(TMainMenu* Value)
{
    if (FMenu == Value)
        return;
    if (FMenu)
        FMenu->SetWindowHandle(nullptr);
    FMenu = Value;
    if (Value)
        Value->FreeNotification(this);
    if (!HasState(csLoading))
        RefreshMenu();
}

void TCustomForm::SetObjectMenuItem(TMenuItem* Value)
{
    FObjectMenuItem = Value;
    if (Value)
        Value->FreeNotification(this);
}

void TCustomForm::SetWindowMenu(TMenuItem* Value)
{
    if (FWindowMenu == Value)
        return;
    FWindowMenu = Value;
    if (Value)
        Value->FreeNotification(this);
    RefreshMenu();
}

void TCustomForm::Notification(TComponent* Component, TOperation Operation)
{
    inherited::Notification(Component, Operation);
    if (Operation != opRemove)
        return;
    if (Component == FMenu) {
        FMenu = nullptr;
        if (HandleAllocated() && !HasState(csDestroying))
            ::SetMenu(WindowHandle(), nullptr);
    }
    if (Component == FWindowMenu)
        FWindowMenu = nullptr;
    if (Component == FObjectMenuItem)
        FObjectMenuItem = nullptr;
    if (Component == FActiveControl)
        FActiveControl = nullptr;
    if (Component == FFocusedControl)
        FFocusedControl = nullptr;
}

void TCustomForm::ScaleForm(int M, int D)
{
    if (M != D)
        ScaleBy(M, D);
}

TCustomForm* GetParentForm(const TControl* Control, bool TopForm)
{
    const TCustomForm* Result = nullptr;
    for (; Control; Control = Control->Parent())
        if (const auto* const Form = dynamic_cast<const TCustomForm*>(Control)) {
            Result = Form;
            if (!TopForm)
                break;
        }
    return const_cast<TCustomForm*>(Result);
}
