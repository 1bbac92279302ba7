// Controls that have a window of the system and contain other controls.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "framework/forms/Control.h"

// What a window is created from; CreateParams fills it in.
struct TCreateParams {
    std::string Caption;
    DWORD Style = 0;
    DWORD ExStyle = 0;
    int X = 0;
    int Y = 0;
    int Width = 0;
    int Height = 0;
    HWND WndParent = nullptr;
    void* Param = nullptr;
    WNDCLASSA WindowClass{};
    std::string WinClassName; // the control's class name unless changed
};

// The window is created when it is first needed (Handle) and destroyed and made
// anew when its style changes (RecreateWnd); text, place and state survive that.
//
// Containing and owning are two things: a control is destroyed with its parent
// as well as with its owner.
class TWinControl : public TControl {
    OBX_CLASS(TControl)
public:
    explicit TWinControl(TComponent* Owner);
    ~TWinControl() override;

    // The window; created with those of the parents if there is none yet.
    // EInvalidOperation "Control 'X' has no parent window" without a parent.
    HWND Handle();
    bool HandleAllocated() const { return FHandle != nullptr; }
    void HandleNeeded() { Handle(); }
    // The window, or null.
    HWND WindowHandle() const { return FHandle; }
    // Makes a foreign window this control's parent.
    HWND ParentWindow() const { return FParentWindow; }
    void SetParentWindow(HWND Value);

    // The contained controls, those without windows first, each group from the
    // bottom of the Z order to its top.
    int ControlCount() const { return static_cast<int>(FControls.size() + FWinControls.size()); }
    TControl* Controls(int Index) const;
    // True when Control is this one or inside it.
    bool ContainsControl(const TControl* Control) const;
    void InsertControl(TControl* AControl);
    void RemoveControl(TControl* AControl);
    // The topmost control at a point of the client area; null if none.
    TControl* ControlAtPos(const TPoint& Pos, bool AllowDisabled, bool AllowWinControls = false) const;
    // The contained control of that component name; null if none.
    TControl* FindChildControl(const std::string& ControlName) const;

    // Published by those that want it.
    TTabOrder TabOrder() const;
    void SetTabOrder(TTabOrder Value);
    bool TabStop() const { return FTabStop; }
    void SetTabStop(bool Value);
    TBrush* Brush() { return &FBrush; }
    bool Ctl3D() const { return FCtl3D; }
    void SetCtl3D(bool Value);
    bool ParentCtl3D() const { return FParentCtl3D; }
    void SetParentCtl3D(bool Value);
    bool IsCtl3DStored() const { return !FParentCtl3D; }
    OBX_PROPERTY(TBevelEdges, BevelEdges, (TBevelEdges{beLeft, beTop, beRight, beBottom}))
    OBX_PROPERTY(TBevelCut, BevelInner, bvRaised)
    OBX_PROPERTY(TBevelCut, BevelOuter, bvLowered)
    OBX_PROPERTY(TBevelKind, BevelKind, bkNone)
    OBX_PROPERTY(TBevelWidth, BevelWidth, 1)
    OBX_PROPERTY(bool, DockSite, false)
    OBX_PROPERTY(bool, DoubleBuffered, false)
    OBX_PROPERTY(bool, ParentDoubleBuffered, true)
    OBX_PROPERTY(bool, ParentBackground, true)
    OBX_PROPERTY(bool, UseDockManager, false)
    OBX_PROPERTY(TImeMode, ImeMode, imDontCare)
    OBX_PROPERTY(TImeName, ImeName, {})
public:
    TBorderWidth BorderWidth() const { return FBorderWidth; }
    void SetBorderWidth(TBorderWidth Value);
    TPadding* Padding() const { return FPadding.get(); }
    void SetPadding(TPadding* Value) { FPadding->Assign(Value); }

    TDockDropEvent OnDockDrop;
    TDockOverEvent OnDockOver;
    TNotifyEvent OnEnter;
    TNotifyEvent OnExit;
    TGetSiteInfoEvent OnGetSiteInfo;
    TKeyEvent OnKeyDown;
    TKeyPressEvent OnKeyPress;
    TKeyEvent OnKeyUp;
    TUnDockEvent OnUnDock;

    // Between the two, controls are not laid out; they are afterwards if there was
    // a reason to.
    void DisableAlign() { ++FAlignLevel; }
    void EnableAlign();
    void Realign() { AlignControl(nullptr); }
    // Mirrors the places, anchors and alignments of the controls inside, with
    // AllLevels of those inside them, too; for languages that are read from right to
    // left. Twice is as before.
    virtual void FlipChildren(bool AllLevels);

    // Shown together with all containers. Independent of the handle.
    bool Showing() const { return FShowing; }
    bool CanFocus() const;
    bool Focused() const;
    // EInvalidOperation "Cannot focus a disabled or invisible window".
    virtual void SetFocus();
    // The controls that Tab reaches, containers' inner ones included, in order.
    void GetTabOrderList(std::vector<TWinControl*>& List) const;
    // Moves the focus to the next control (CheckTabStop: that wants Tab).
    void SelectNext(TWinControl* CurControl, bool GoForward, bool CheckTabStop);
    TWinControl* FindNextControl(TWinControl* CurControl, bool GoForward, bool CheckTabStop,
                                 bool CheckParent);

    void SetBounds(int ALeft, int ATop, int AWidth, int AHeight) override;
    TRect ClientRect() const override;
    void Invalidate() override;
    void Update() override;
    void Repaint() override;
    // Passes a message to all contained controls.
    void Broadcast(TMessage& Message);
    // Tells the contained controls that a property of the parent changed.
    void NotifyControls(UINT Msg);
    void ScaleBy(int M, int D);
    void ScrollBy(int DeltaX, int DeltaY);
    // Draws the control and what it contains at a place of a device context.
    void PaintTo(HDC Dc, int X, int Y);

    void WndProc(TMessage& Message) override;
    void DefaultHandler(TMessage& Message) override;
    // Called by the window procedure; exceptions end in the application's handler.
    void MainWndProc(TMessage& Message);

    void GetChildren(const std::function<void(TComponent*)>& Visit, TComponent* Root) override;
    void SetChildOrder(TComponent* Child, int Order) override;
    void DefineProperties(TFiler& Filer) override;
    void Loaded() override;

    // For the window procedure that sees a new window first.
    void BindWindow(HWND Window);
    void RecreateWnd();
    // Makes the windows of this control and of the visible ones inside.
    void CreateControl();
    // Takes the focus away from this control and those inside.
    void RemoveFocus(bool Removing);
    void UpdateControlState();

protected:
    friend class TControl;
    friend class TLayout;
    friend class TCustomForm;

    void Dispatch(TMessage& Message) override;
    std::string GetText() const override;
    void StoreText(const std::string& Value) override;
    void SetParentControl(TWinControl* AParent) override;
    void SetZOrder(bool TopMost) override;
    HDC GetDeviceContext(HWND& Window) override;
    std::unique_ptr<TControlActionLink> CreateActionLink() override;

    // The window's class, style and place. A descendant calls the inherited one
    // first, then CreateSubClass for a class of the system.
    virtual void CreateParams(TCreateParams& Params);
    // Params.WindowClass becomes a copy of the system's class of that name.
    void CreateSubClass(TCreateParams& Params, const char* ControlClassName);
    // Makes the window of Params (CreateWindowExA or an MDI child).
    virtual void CreateWindowHandle(const TCreateParams& Params);
    virtual void CreateHandle();
    // Registers the class, makes the window and gives it its font.
    virtual void CreateWnd();
    virtual void DestroyWindowHandle();
    virtual void DestroyHandle();
    virtual void DestroyWnd();

    virtual void AlignControls(TControl* AControl, TRect& Rect);
    // Subtracts what the container keeps for itself.
    void AdjustClientRect(TRect& Rect) const override;
    void AlignControl(TControl* AControl);
    bool CanAutoSize(int& NewWidth, int& NewHeight) override;
    virtual void ChangeScale(int M, int D);

    virtual void DoEnter();
    virtual void DoExit();
    virtual void KeyDown(uint16_t& Key, TShiftState Shift);
    virtual void KeyPress(char& Key);
    virtual void KeyUp(uint16_t& Key, TShiftState Shift);
    // True when the key was handled by the form (KeyPreview) or the events.
    bool DoKeyDown(TMessage& Message);
    bool DoKeyPress(TMessage& Message);
    bool DoKeyUp(TMessage& Message);
    virtual void PaintWindow(HDC Dc);
    void PaintHandler(TMessage& Message);
    void PaintControls(HDC Dc, TControl* First);
    virtual void ShowControl(TControl* AControl);
    // Width and height that the window's frame takes.
    virtual TSize FrameSize() const;
    void UpdateBounds();
    // Sends a reflected notification to the control it is about; true when there
    // was one.
    bool DoControlMessage(HWND Child, TMessage& Message);
    bool IsControlMouseMessage(TMessage& Message);

    WNDPROC FDefWndProc = nullptr;

private:
    void Insert(TControl* AControl);
    void Remove(TControl* AControl);
    void UpdateShowing();
    void UpdateTabOrder(TTabOrder Value);
    void FixupTabList();
    void UnbindWindow(HWND Window);
    static void ScaleControl(TControl& Control, int M, int D);
    void BrushChanged(TObject* Sender);
    // Each answers its part of the messages; false for others.
    bool DispatchFrame(TMessage& Message);
    bool DispatchKeys(TMessage& Message);
    bool DispatchPaint(TMessage& Message);
    bool DispatchNotifications(TMessage& Message);
    bool DispatchChanges(TMessage& Message);
    void WMPaint(TMessage& Message);
    void WMSetCursor(TMessage& Message);
    void WMWindowPosChanged(TMessage& Message);
    void WMNCDestroy(TMessage& Message);
    void CNKeyDown(TMessage& Message);
    void CNChar(TMessage& Message);
    bool IsPopupShortCut(TMessage& Message);

    HWND FHandle = nullptr;
    HWND FParentWindow = nullptr;
    std::vector<TControl*> FControls;
    std::vector<TWinControl*> FWinControls;
    std::vector<TWinControl*> FTabList;
    TTabOrder FTabOrder = -1;
    bool FTabStop = false;
    bool FShowing = false;
    bool FCtl3D = true;
    bool FParentCtl3D = true;
    TBorderWidth FBorderWidth = 0;
    TBrush FBrush;
    std::unique_ptr<TPadding> FPadding;
    int FAlignLevel = 0;
    TPoint FDesignSize{};
    bool FHasDesignSize = false;
};

// The control whose window Handle is, or null; only windows of this program.
TWinControl* FindControl(HWND Handle);
// The control of the window or of its nearest parent that has one.
TControl* FindDragTarget(const TPoint& Pos, bool AllowDisabled);

// Whether the character is the mnemonic of Caption.
bool IsAccel(uint16_t Char, const std::string& Caption);
// Caption without "&"; "&&" becomes "&".
std::string StripHotkey(const std::string& Caption);

// The module that windows and classes are made for.
HINSTANCE ModuleInstance();
