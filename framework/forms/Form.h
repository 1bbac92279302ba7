// Windows of their own: TCustomForm is what forms and dialogs have in common,
// TForm publishes it.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "framework/forms/ScrollControls.h"

class TMainMenu;
class TMenuItem;
class TReader;

OBX_ENUM(TFormStateFlag, fsCreating, fsVisible, fsShowing, fsModal, fsCreatedMDIChild, fsActivated)
using TFormState = TSet<TFormStateFlag>;

OBX_EVENT(TCloseEvent, TObject*, TCloseAction&)
OBX_EVENT(TCloseQueryEvent, TObject*, bool&)
OBX_EVENT(THelpEvent, uint16_t, intptr_t, bool&, bool&)
OBX_EVENT(TShortCutEvent, TMessage&, bool&)

// Forms are made by Application->CreateForm or CreateForm<T>(Owner), which reads
// the form file of the class (FormResources.h) into the new object and then calls
// OnCreate. A form made with new alone is empty.
class TCustomForm : public TScrollingWinControl {
    OBX_CLASS(TScrollingWinControl)
public:
    explicit TCustomForm(TComponent* Owner);
    ~TCustomForm() override;

    // Reads the form files of the object's class and of its ancestors, then calls
    // OnCreate. Once; later calls do nothing.
    virtual void AfterConstruction();

    // Hides or destroys the form, as OnCloseQuery and OnClose decide. The main
    // form ends the application.
    void Close();
    virtual bool CloseQuery();
    // Destroys the form after the messages that are waiting; for event handlers.
    void Release();
    // Calls OnDestroy and destroys the form; not from its own handlers. A form that
    // is deleted in another way calls OnDestroy only when the handler is another
    // object's, for its own class is gone by then. The application frees its forms
    // in this way.
    void Free();
    // Shows the form alone: the program's other windows are disabled until
    // ModalResult is not mrNone, which is returned. EInvalidOperation when the
    // form is visible, disabled, modal already or an MDI child.
    virtual TModalResult ShowModal();
    TModalResult ModalResult() const { return FModalResult; }
    void SetModalResult(TModalResult Value) { FModalResult = Value; }
    bool IsModal() const { return FFormState.Contains(fsModal); }
    TFormState FormState() const { return FFormState; }
    void SetFocus() override;
    bool SetFocusedControl(TWinControl* Control);
    void DefocusControl(TWinControl* Control, bool Removing);
    void FocusControl(TWinControl* Control);
    bool Active() const { return FActive; }
    // The form that contains the window, when the form is a child itself.
    virtual bool WantChildKey(TControl* Child, TMessage& Message);
    // Key messages before the controls: menu short cuts and actions.
    virtual bool IsShortCut(TMessage& Message);
    TCanvas* Canvas() { return FCanvas.get(); }
    // Pixels where the form file was made with another font or resolution.
    void ScaleForm(int M, int D);
    void MakeFullyVisible();
    // The control that the focus is or will be in; null for the form.
    TWinControl* ActiveControl() const { return FActiveControl; }
    void SetActiveControl(TWinControl* Value);
    // Its focused part, such as the edit of a combo box.
    TWinControl* FocusedControl() const { return FFocusedControl; }

    // The place of several documents in one frame. Empty for other forms.
    HWND ClientHandle() const { return FClientHandle; }
    int MDIChildCount() const;
    TCustomForm* MDIChildren(int Index) const;
    TCustomForm* ActiveMDIChild() const;
    void Next();
    void Previous();
    void Cascade();
    void Tile();
    TTileMode TileMode() const { return FTileMode; }
    void SetTileMode(TTileMode Value) { FTileMode = Value; }
    void ArrangeIcons();

    // Published by forms.
    bool AlphaBlend() const { return FAlphaBlend; }
    void SetAlphaBlend(bool Value) { FAlphaBlend = Value; }
    uint8_t AlphaBlendValue() const { return FAlphaBlendValue; }
    void SetAlphaBlendValue(uint8_t Value) { FAlphaBlendValue = Value; }
    TBorderIcons BorderIcons() const { return FBorderIcons; }
    void SetBorderIcons(TBorderIcons Value);
    TFormBorderStyle BorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TFormBorderStyle Value);
    int ClientWidth() const override;
    void SetClientWidth(int Value) override;
    int ClientHeight() const override;
    void SetClientHeight(int Value) override;
    OBX_PROPERTY(TDefaultMonitor, DefaultMonitor, dmActiveForm)
    OBX_PROPERTY(bool, KeyPreview, false)
    OBX_PROPERTY(bool, OldCreateOrder, false)
    OBX_PROPERTY(TPrintScale, PrintScale, poProportional)
    OBX_PROPERTY(bool, Scaled, true)
    OBX_PROPERTY(bool, ScreenSnap, false)
    OBX_PROPERTY(int, SnapBuffer, 10)
    OBX_PROPERTY(bool, TransparentColor, false)
    OBX_PROPERTY(TColor, TransparentColorValue, clBlack)
    OBX_PROPERTY(std::string, HelpFile, {})
public:
    TFormStyle FormStyle() const { return FFormStyle; }
    void SetFormStyle(TFormStyle Value);
    TIcon* Icon() const { return FIcon.get(); }
    void SetIcon(TIcon* Value) { FIcon->Assign(Value); }
    TMainMenu* Menu() const { return FMenu; }
    void SetMenu(TMainMenu* Value);
    TMenuItem* ObjectMenuItem() const { return FObjectMenuItem; }
    void SetObjectMenuItem(TMenuItem* Value);
    int PixelsPerInch() const { return FPixelsPerInch; }
    void SetPixelsPerInch(int Value);
    TPosition Position() const { return FPosition; }
    void SetPosition(TPosition Value);
    TWindowState WindowState() const { return FWindowState; }
    void SetWindowState(TWindowState Value);
    TMenuItem* WindowMenu() const { return FWindowMenu; }
    void SetWindowMenu(TMenuItem* Value);
    // The height of a digit in the form's font when the form file was made.
    int TextHeight() const { return FTextHeight; }
    bool IsClientSizeStored() const { return !IsFormSizeStored(); }
    bool IsFormSizeStored() const;
    bool IsAutoScrollStored() const;
    bool IsIconStored() const { return !FIcon->Empty(); }
    bool IsFormFontStored() const;
    void SetVisible(bool Value) override;

    TNotifyEvent OnActivate;
    TCloseEvent OnClose;
    TCloseQueryEvent OnCloseQuery;
    TNotifyEvent OnCreate;
    TNotifyEvent OnDeactivate;
    TNotifyEvent OnDestroy;
    THelpEvent OnHelp;
    TNotifyEvent OnHide;
    TNotifyEvent OnPaint;
    TShortCutEvent OnShortCut;
    TNotifyEvent OnShow;

    TRect ClientRect() const override;
    void SetBounds(int ALeft, int ATop, int AWidth, int AHeight) override;
    void DefaultHandler(TMessage& Message) override;
    void DefineProperties(TFiler& Filer) override;
    void Loaded() override;
    void Notification(TComponent* Component, TOperation Operation) override;
    void SetParentComponent(TComponent* Value) override;
    // Tells the menu bar of the MDI frame or of this window what it shows now.
    void RefreshMenu();
    // The text of a command of the window menu (SC_CLOSE...), empty when the menu
    // does not have it. A form without a window answers with the text that the
    // system gives to all windows, and keeps what is set for the window to come.
    std::string SystemMenuText(UINT Command);
    void SetSystemMenuText(UINT Command, const std::string& Text);
    // A form inside another control has no frame, menu or place of its own.
    bool IsEmbedded() const { return Parent() != nullptr || ParentWindow() != nullptr; }

protected:
    friend class TApplication;
    friend class TScreen;

    void Dispatch(TMessage& Message) override;
    void CreateParams(TCreateParams& Params) override;
    void CreateWindowHandle(const TCreateParams& Params) override;
    void CreateWnd() override;
    void DestroyWindowHandle() override;
    void DestroyHandle() override;
    bool HasMenuBar() const;
    TSize FrameSize() const override;
    void AlignControls(TControl* AControl, TRect& Rect) override;
    void SetParentControl(TWinControl* AParent) override;
    void PaintWindow(HDC Dc) override;
    void Resizing(TWindowState State) override;
    void VisibleChanging() override;
    virtual void Paint();
    virtual void Activate();
    virtual void Deactivate();
    virtual void DoClose(TCloseAction& Action);
    virtual void DoCreate();
    virtual void DoDestroy();
    virtual void DoHide();
    virtual void DoShow();
    // Calls OnDestroy; once.
    void BeforeDestruction();
    virtual void UpdateActions();

private:
    void ApplyClientSize();
    void CompleteWindow();
    void ApplyPosition();
    void SetWindowFocus();
    void SetActive(bool Value);
    void CloseModal();
    void ShowingChanged();
    void ShowWindowNow();
    void HideWindowNow();
    void MergeMenu(bool MergeState);
    bool DispatchActivation(TMessage& Message);
    bool DispatchMenu(TMessage& Message);
    void ActivateFrame(TMessage& Message);
    void ShowMenuHint(const TMessage& Message);
    void DialogKey(TMessage& Message);
    bool MoveFocus(TWinControl* Control);
    static void ScrollTo(TScrollingWinControl& Container, TControl* Control);
    void RunModal();
    void CreateMDIClient();
    void CreateMDIChild(const TCreateParams& Params);
    void ShowMDIChild();
    void IconChanged(TObject* Sender);
    void ReadTextHeight(TReader& Reader);
    // Forms are designed in windows of their own.
    TFormStyle ShownStyle() const { return HasState(csDesigning) ? fsNormal : FFormStyle; }
    void WindowStyle(TCreateParams& Params) const;
    void MDIStyle(TCreateParams& Params) const;

    std::unique_ptr<TControlCanvas> FCanvas;
    TFormState FFormState;
    TModalResult FModalResult = mrNone;
    TWinControl* FActiveControl = nullptr;
    TWinControl* FFocusedControl = nullptr;
    std::unique_ptr<TIcon> FIcon;
    TBorderIcons FBorderIcons{biSystemMenu, biMinimize, biMaximize};
    TFormBorderStyle FBorderStyle = bsSizeable;
    TFormStyle FFormStyle = fsNormal;
    TPosition FPosition = poDesigned;
    TWindowState FWindowState = wsNormal;
    TMainMenu* FMenu = nullptr;
    TMenuItem* FWindowMenu = nullptr;
    TMenuItem* FObjectMenuItem = nullptr;
    HWND FClientHandle = nullptr;
    int FPixelsPerInch;
    int FTextHeight = 0;
    // Client size as read or set while there is no window; -1 for none.
    int FPendingClientWidth = -1;
    int FPendingClientHeight = -1;
    // Whether the form file gives the client area's size or the window's.
    enum { SizeUnknown, SizeOfWindow, SizeOfClient } FSizeKind = SizeUnknown;
    TTileMode FTileMode = tbHorizontal;
    std::map<UINT, std::string> FSystemMenuTexts; // those that were set, by command
    bool FActive = false;
    bool FConstructed = false;
    bool FDestroyed = false;
    bool FAlphaBlend = false;
    bool FPixelsPerInchRead = false;
    uint8_t FAlphaBlendValue = 255;
};

class TForm : public TCustomForm {
    OBX_CLASS(TCustomForm)
public:
    explicit TForm(TComponent* Owner) : TCustomForm(Owner) {}
    ~TForm() override;
};

// A new form of class T, read from its form file.
template<class T>
T* CreateForm(TComponent* Owner)
{
    auto Form = std::make_unique<T>(Owner);
    Form->AfterConstruction();
    return Form.release();
}

// The form that contains Control (or is it); null if none. The outermost one when
// TopForm is true and forms are nested.
TCustomForm* GetParentForm(const TControl* Control, bool TopForm = true);
