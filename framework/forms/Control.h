// The base of everything that is seen on a form.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "framework/forms/ActionLinks.h"
#include "framework/forms/Graphics.h"
#include "framework/forms/SizeConstraints.h"
#include "framework/forms/Types.h"

class TCustomForm;
class TPopupMenu;
class TWinControl;

OBX_ENUM(TControlStyleFlag, csAcceptsControls, csCaptureMouse, csDesignInteractive, csClickEvents, csFramed,
         csSetCaption, csOpaque, csDoubleClicks, csFixedWidth, csFixedHeight, csNoDesignVisible,
         csReplicatable, csNoStdEvents, csDisplayDragImage, csReflector, csActionClient, csMenuEvents)
using TControlStyle = TSet<TControlStyleFlag>;

OBX_ENUM(TControlStateFlag, csLButtonDown, csClicked, csPalette, csReadingState, csAlignmentNeeded,
         csFocusing, csCreating, csPaintCopy, csCustomPaint, csDestroyingHandle, csDocking)
using TControlState = TSet<TControlStateFlag>;

// A visible component. Descendants publish the properties that they want shown
// in form files; all of them can be used from code.
//
// Messages: the system's (of a window or passed on by the parent's window) and
// the framework's own arrive in WndProc, which calls Dispatch; a class overrides
// Dispatch, answers what it knows and hands the rest to inherited::Dispatch. What
// nobody answers reaches DefaultHandler.
class TControl : public TComponent {
    OBX_CLASS(TComponent)
public:
    explicit TControl(TComponent* Owner);
    ~TControl() override;

    // The container; null for none. It must accept controls and may not be the
    // control itself (EInvalidOperation).
    TWinControl* Parent() const { return FParent; }
    void SetParent(TWinControl* Value);

    // Place and size in the client area of the parent, pixels. Published:
    int Left() const { return FLeft; }
    void SetLeft(int Value);
    int Top() const { return FTop; }
    void SetTop(int Value);
    int Width() const { return FWidth; }
    void SetWidth(int Value);
    int Height() const { return FHeight; }
    void SetHeight(int Value);
    virtual void SetBounds(int ALeft, int ATop, int AWidth, int AHeight);
    TRect BoundsRect() const { return {FLeft, FTop, FLeft + FWidth, FTop + FHeight}; }
    void SetBoundsRect(const TRect& Value);
    // The inside; its left and top are 0.
    virtual TRect ClientRect() const;
    virtual int ClientWidth() const;
    virtual void SetClientWidth(int Value);
    virtual int ClientHeight() const;
    virtual void SetClientHeight(int Value);
    TPoint ClientOrigin() const;
    TPoint ClientToScreen(const TPoint& Value) const;
    TPoint ScreenToClient(const TPoint& Value) const;

    // Published by every control.
    TCursor Cursor() const { return FCursor; }
    void SetCursor(TCursor Value);
    const std::string& Hint() const { return FHint; }
    void SetHint(const std::string& Value);
    THelpType HelpType() const { return FHelpType; }
    void SetHelpType(THelpType Value) { FHelpType = Value; }
    const std::string& HelpKeyword() const { return FHelpKeyword; }
    void SetHelpKeyword(const std::string& Value);
    THelpContext HelpContext() const { return FHelpContext; }
    void SetHelpContext(THelpContext Value);
    OBX_PROPERTY(bool, AlignWithMargins, false)
public:
    TMargins* Margins() const { return FMargins.get(); }
    void SetMargins(TMargins* Value) { FMargins->Assign(Value); }

    // Published by those that want it.
    TAlign Align() const { return FAlign; }
    void SetAlign(TAlign Value);
    TAnchors Anchors() const { return FAnchors; }
    void SetAnchors(TAnchors Value);
    bool AutoSize() const { return FAutoSize; }
    virtual void SetAutoSize(bool Value);
    TBiDiMode BiDiMode() const { return FBiDiMode; }
    void SetBiDiMode(TBiDiMode Value);
    // Caption and Text are two names of one text.
    TCaption Caption() const { return GetText(); }
    virtual void SetCaption(const TCaption& Value) { SetText(Value); }
    std::string Text() const { return GetText(); }
    void SetText(const std::string& Value);
    TColor Color() const { return FColor; }
    void SetColor(TColor Value);
    TSizeConstraints* Constraints() const { return FConstraints.get(); }
    void SetConstraints(TSizeConstraints* Value) { FConstraints->Assign(Value); }
    OBX_PROPERTY(TCursor, DragCursor, crDrag)
    OBX_PROPERTY(TDragKind, DragKind, dkDrag)
    OBX_PROPERTY(TDragMode, DragMode, dmManual)
public:
    virtual bool Enabled() const { return FEnabled; }
    virtual void SetEnabled(bool Value);
    TFont* Font() const { return FFont.get(); }
    void SetFont(TFont* Value) { FFont->Assign(Value); }
    bool ParentBiDiMode() const { return FParentBiDiMode; }
    void SetParentBiDiMode(bool Value);
    bool ParentColor() const { return FParentColor; }
    void SetParentColor(bool Value);
    bool ParentFont() const { return FParentFont; }
    void SetParentFont(bool Value);
    bool ParentShowHint() const { return FParentShowHint; }
    void SetParentShowHint(bool Value);
    TPopupMenu* PopupMenu() const { return FPopupMenu; }
    void SetPopupMenu(TPopupMenu* Value);
    bool ShowHint() const { return FShowHint; }
    void SetShowHint(bool Value);
    bool Visible() const { return FVisible; }
    virtual void SetVisible(bool Value);
    TBasicAction* Action() const;
    void SetAction(TBasicAction* Value);
    TComponent* CustomHint() const { return FCustomHint; }
    void SetCustomHint(TComponent* Value);
    OBX_PROPERTY(bool, ParentCustomHint, true)
public:
    // Questions of published rows.
    bool IsAnchorsStored() const;
    bool IsCaptionStored() const;
    bool IsColorStored() const { return !FParentColor; }
    bool IsEnabledStored() const;
    bool IsFontStored() const { return !FParentFont; }
    bool IsHintStored() const;
    bool IsHelpContextStored() const;
    bool IsShowHintStored() const { return !FParentShowHint; }
    bool IsBiDiModeStored() const { return !FParentBiDiMode; }
    bool IsVisibleStored() const;
    bool IsOnClickStored() const;

    TNotifyEvent OnClick;
    TNotifyEvent OnDblClick;
    TCanResizeEvent OnCanResize;
    TConstrainedResizeEvent OnConstrainedResize;
    TContextPopupEvent OnContextPopup;
    TDragDropEvent OnDragDrop;
    TDragOverEvent OnDragOver;
    TEndDragEvent OnEndDock;
    TEndDragEvent OnEndDrag;
    TMouseActivateEvent OnMouseActivate;
    TMouseEvent OnMouseDown;
    TNotifyEvent OnMouseEnter;
    TNotifyEvent OnMouseLeave;
    TMouseMoveEvent OnMouseMove;
    TMouseEvent OnMouseUp;
    TMouseWheelEvent OnMouseWheel;
    TMouseWheelUpDownEvent OnMouseWheelDown;
    TMouseWheelUpDownEvent OnMouseWheelUp;
    TNotifyEvent OnResize;
    TStartDockEvent OnStartDock;
    TStartDragEvent OnStartDrag;

    void BringToFront() { SetZOrder(true); }
    void SendToBack() { SetZOrder(false); }
    void Show();
    void Hide() { SetVisible(false); }
    virtual void Invalidate();
    virtual void Update();
    virtual void Repaint();
    void Refresh() { Repaint(); }
    virtual void Click();
    // Sends a message to this control without a window; returns its answer.
    LRESULT Perform(UINT Msg, WPARAM WParam = 0, LPARAM LParam = 0);
    virtual void WndProc(TMessage& Message);
    virtual void DefaultHandler(TMessage& Message);

    TControlStyle ControlStyle() const { return FControlStyle; }
    TControlState ControlState() const { return FControlState; }
    bool HasStyle(TControlStyleFlag Flag) const { return FControlStyle.Contains(Flag); }
    // What a program hooks a control with sees each message before WndProc:
    // return true to swallow it.
    using TWindowHook = std::function<bool(TMessage&)>;
    TWindowHook OnWndProc;

    virtual bool UseRightToLeftReading() const { return FBiDiMode != bdLeftToRight; }
    virtual bool UseRightToLeftAlignment() const { return FBiDiMode == bdRightToLeft; }
    // DT_ flags of the reading order, to be added when texts are drawn.
    UINT DrawTextBiDiModeFlags(UINT Flags) const;

    // Called by Margins and Padding.
    void MarginsChanged(const TMargins* Sender);

    // Called by the action that the control is linked to.
    TControlActionLink* ActionLink() const { return FActionLink.get(); }
    virtual void ActionChange(TBasicAction* Sender, bool CheckDefaults);

    void SetName(const std::string& Value) override;
    void Loaded() override;
    void Notification(TComponent* Component, TOperation Operation) override;
    TComponent* GetParentComponent() const override;
    bool HasParent() const override { return FParent != nullptr; }
    void SetParentComponent(TComponent* Value) override;
    void DefineProperties(TFiler& Filer) override;

    // Lets the parent align its controls anew.
    void RequestAlign();
    void AdjustSize();
    // The control itself, or the container that shows it, is shown.
    bool IsControlVisible() const { return FVisible; }
    // Keeps the distances of the anchors as they are now.
    void UpdateAnchorRules();
    // Starts dragging the control; it ends with the mouse button.
    void BeginDrag(bool Immediate);
    bool Dragging() const;

protected:
    friend class TControlCanvas;
    friend class TWinControl;
    friend class TControlActionLink;
    friend class TLayout;

    virtual void Dispatch(TMessage& Message);
    void PropertyChanged() override { Invalidate(); }

    virtual std::string GetText() const { return FText; }
    // Takes a text that differs from the present one.
    virtual void StoreText(const std::string& Value) { FText = Value; }
    virtual void SetParentControl(TWinControl* AParent);
    virtual void SetZOrder(bool TopMost);
    virtual bool CanAutoSize(int& NewWidth, int& NewHeight);
    virtual bool CanResize(int& NewWidth, int& NewHeight);
    virtual void ConstrainedResize(int& MinWidth, int& MinHeight, int& MaxWidth, int& MaxHeight);
    virtual void AdjustClientRect(TRect&) const {}
    virtual void Resize();
    virtual void VisibleChanging() {}
    virtual std::unique_ptr<TControlActionLink> CreateActionLink();
    // The context to draw the control in, and the window it belongs to.
    virtual HDC GetDeviceContext(HWND& Window);
    // The default menu of a right click.
    virtual TPopupMenu* GetPopupMenu() { return FPopupMenu; }
    // Shows the popup menu; replaced by the menus' unit when it is there.
    virtual void DoContextPopup(const TPoint& MousePos, bool& Handled);
    virtual void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y);
    virtual void MouseMove(TShiftState Shift, int X, int Y);
    virtual void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y);
    virtual bool DoMouseWheel(TShiftState Shift, int WheelDelta, const TPoint& MousePos);
    virtual void DblClick();
    virtual void DragOver(TObject* Source, int X, int Y, TDragState State, bool& Accept);
    virtual void DragDrop(TObject* Source, int X, int Y);
    virtual void FontChanged(TObject* Sender);
    // The mouse is the control's until ReleaseMouse.
    bool MouseCapture() const;
    void SetMouseCapture(bool Value);
    void SendCancelMode(TControl* Sender);
    void InvalidateControl(bool IsVisible, bool IsOpaque);
    // Runs the hook and WndProc.
    void Process(TMessage& Message);
    // True while the form's texts are read; no side effects then.
    bool IsLoading() const { return HasState(csLoading); }

    TControlStyle FControlStyle;
    TControlState FControlState;
    bool CheckNewSize(int& NewWidth, int& NewHeight);

    int FLeft = 0;
    int FTop = 0;
    int FWidth = 0;
    int FHeight = 0;
    TColor FColor = clWindow;
    bool FVisible = true;
    bool FShowHint = false;
    bool FParentColor = true;
    bool FParentFont = true;
    bool FParentShowHint = true;

private:
    void DispatchMouse(TMessage& Message);
    void MouseButtonDown(const TMessage& Message, TMouseButton Button, bool Double);
    void MouseButtonUp(const TMessage& Message, TMouseButton Button);
    void ContextMenu(TMessage& Message);
    void ConstrainSize(int& NewWidth, int& NewHeight);
    enum TParentValue { pvFont, pvColor, pvShowHint, pvBiDiMode };
    void LeaveParent(bool& Follows, TParentValue Which);
    bool RejoinParent(bool& Follows, TParentValue Which);
    bool IsParentValue(TParentValue Which) const;
    void TakeParentFont();
    void TakeParentColor();
    void TakeParentShowHint();
    void TakeParentBiDiMode();
    void ConstraintsChanged(TObject* Sender);
    bool HasWindow() const;
    static bool TellDrag(TControl& Target, const TPoint& Pos, TDragState State);
    void DragTo(const TPoint& Pos);
    void EndDragAt(const TPoint& Pos);
    static void ForgetControl(const TControl* Control);
    void ActionLinkChange(TObject* Sender);

    TWinControl* FParent = nullptr;
    std::string FText;
    std::string FHint;
    std::string FHelpKeyword;
    THelpContext FHelpContext = 0;
    THelpType FHelpType = htContext;
    TCursor FCursor = crDefault;
    TAlign FAlign = alNone;
    TAnchors FAnchors{akLeft, akTop};
    TPoint FAnchorRules{};
    TPoint FOriginalParentSize{};
    bool FAnchorMove = false;
    bool FAutoSize = false;
    bool FAutoSizing = false;
    TBiDiMode FBiDiMode = bdLeftToRight;
    bool FEnabled = true;
    bool FParentBiDiMode = true;
    TSet<TParentValue> FLeftParent; // what it followed until it got a value of its own
    std::unique_ptr<TFont> FFont;
    std::unique_ptr<TSizeConstraints> FConstraints;
    std::unique_ptr<TMargins> FMargins;
    TPopupMenu* FPopupMenu = nullptr;
    TComponent* FCustomHint = nullptr;
    std::unique_ptr<TControlActionLink> FActionLink;
    // Bounds before alignment, kept for the form file: ExplicitLeft and so on.
    struct TExplicitBounds {
        int Value[4] = {};
        bool Has[4] = {};
    } FExplicit;
};

// The shift, control, alt and button keys of a mouse message's WParam, or of a
// key message's LParam.
TShiftState KeysToShiftState(WPARAM Keys);
TShiftState KeyDataToShiftState(LPARAM KeyData);

// The control that has the mouse, or null.
TControl* GetCaptureControl();
void SetCaptureControl(TControl* Control);
