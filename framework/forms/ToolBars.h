// Tool bars and their buttons, and bars that hold tool bars.
#pragma once

#include "framework/forms/CommonControls.h"
#include "framework/forms/GraphicControl.h"
#include "framework/rtl/Collection.h"

class TToolBar;
class TToolButton;

OBX_ENUM(TEdgeBorder, ebLeft, ebTop, ebRight, ebBottom)
OBX_SET(TEdgeBorders, TEdgeBorder)
OBX_ENUM(TEdgeStyle, esNone, esRaised, esLowered)
OBX_ENUM(TToolButtonStyle, tbsButton, tbsCheck, tbsDropDown, tbsSeparator, tbsDivider, tbsTextButton)
OBX_ENUM(TTBDrawingStyle, dsTBNormal, dsTBGradient)

// A window with a drawn edge.
class TToolWindow : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TToolWindow(TComponent* Owner);

    // Published by those that want it.
    OBX_PROPERTY(TEdgeBorders, EdgeBorders, {})
    OBX_PROPERTY(TEdgeStyle, EdgeInner, esRaised)
    OBX_PROPERTY(TEdgeStyle, EdgeOuter, esLowered)

protected:
    void AdjustClientRect(TRect& Rect) const override;
};

class TToolButtonActionLink : public TControlActionLink {
    OBX_CLASS(TControlActionLink)
public:
    explicit TToolButtonActionLink(TToolButton* Client);
    bool IsCheckedLinked() const override;
    bool IsImageIndexLinked() const override;
    void SetChecked(bool Value) override;
    void SetImageIndex(int Value) override;

private:
    TToolButton* FButton;
};

// A button of a tool bar's window.
class TToolButton : public TGraphicControl {
    OBX_CLASS(TGraphicControl)
public:
    explicit TToolButton(TComponent* Owner);
    ~TToolButton() override;

    void Click() override;
    // The position among the bar's buttons; -1 outside a bar.
    int Index() const;
    TToolBar* ToolBar() const { return FToolBar; }
    // Shows the drop-down menu below the button; false without one.
    bool CheckMenuDropdown();

    // Published.
    OBX_PROPERTY(bool, AllowAllUp, false)
    OBX_PROPERTY(bool, EnableDropdown, false)
    OBX_PROPERTY(bool, Grouped, false)
    OBX_PROPERTY(TImageIndex, ImageIndex, -1)
    OBX_PROPERTY(bool, Indeterminate, false)
    OBX_PROPERTY(bool, Marked, false)
    OBX_PROPERTY(TToolButtonStyle, Style, tbsButton)
    OBX_PROPERTY(bool, Wrap, false)
public:
    // A button that is down releases the others of its group.
    bool Down() const { return FDown; }
    void SetDown(bool Value);
    TPopupMenu* DropdownMenu() const { return FDropdownMenu; }
    void SetDropdownMenu(TPopupMenu* Value);
    TMenuItem* MenuItem() const { return FMenuItem; }
    // Takes the caption, the state and the sub-menu of a menu item.
    void SetMenuItem(TMenuItem* Value);
    bool IsImageIndexStored() const;
    bool IsDownStored() const;

    void ActionChange(TBasicAction* Sender, bool CheckDefaults) override;
    void Notification(TComponent* Component, TOperation Operation) override;

protected:
    friend class TToolBar;
    void PropertyChanged() override;
    void Dispatch(TMessage& Message) override;
    void SetParentControl(TWinControl* AParent) override;
    std::unique_ptr<TControlActionLink> CreateActionLink() override;

private:
    BYTE WindowState() const;
    BYTE WindowStyle() const;
    void UpButtons();

    TToolBar* FToolBar = nullptr;
    uint16_t FCommand = 0;
    bool FDown = false;
    TPopupMenu* FDropdownMenu = nullptr;
    TMenuItem* FMenuItem = nullptr;
};

class TToolBar : public TToolWindow {
    OBX_CLASS(TToolWindow)
public:
    explicit TToolBar(TComponent* Owner);
    ~TToolBar() override;

    int ButtonCount() const { return static_cast<int>(FButtons.size()); }
    TToolButton* Buttons(int Index) const;

    // Published.
    OBX_PROPERTY(int, ButtonHeight, 22)
    OBX_PROPERTY(int, ButtonWidth, 23)
    OBX_PROPERTY(bool, Customizable, false)
    OBX_PROPERTY(TTBDrawingStyle, DrawingStyle, dsTBNormal)
    OBX_PROPERTY(bool, HideClippedButtons, false)
    OBX_PROPERTY(int, Indent, 0)
public:
    // Captions of text buttons only, beside their pictures.
    bool AllowTextButtons() const { return FAllowTextButtons; }
    void SetAllowTextButtons(bool Value) { SetStyleFlag(FAllowTextButtons, Value); }
    bool Flat() const { return FFlat; }
    void SetFlat(bool Value) { SetStyleFlag(FFlat, Value); }
    // Captions beside the pictures instead of below.
    bool List() const { return FList; }
    void SetList(bool Value) { SetStyleFlag(FList, Value); }
    bool ShowCaptions() const { return FShowCaptions; }
    void SetShowCaptions(bool Value) { SetStyleFlag(FShowCaptions, Value); }
    bool Transparent() const { return FTransparent; }
    void SetTransparent(bool Value) { SetStyleFlag(FTransparent, Value); }
    bool Wrapable() const { return FWrapable; }
    void SetWrapable(bool Value) { SetStyleFlag(FWrapable, Value); }
    TCustomImageList* DisabledImages() const { return FDisabledImages; }
    void SetDisabledImages(TCustomImageList* Value) { SetImageList(FDisabledImages, Value); }
    TCustomImageList* HotImages() const { return FHotImages; }
    void SetHotImages(TCustomImageList* Value) { SetImageList(FHotImages, Value); }
    TCustomImageList* Images() const { return FImages; }
    void SetImages(TCustomImageList* Value) { SetImageList(FImages, Value); }
    TMainMenu* Menu() const { return FMenu; }
    void SetMenu(TMainMenu* Value);

    void WndProc(TMessage& Message) override;
    void Notification(TComponent* Component, TOperation Operation) override;
    void GetChildren(const std::function<void(TComponent*)>& Visit, TComponent* Root) override;

protected:
    friend class TToolButton;
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void Dispatch(TMessage& Message) override;
    void PropertyChanged() override;
    void AlignControls(TControl* AControl, TRect& Rect) override;
    bool CanAutoSize(int& NewWidth, int& NewHeight) override;

private:
    void InsertButton(TToolButton* Button);
    void RemoveButton(TToolButton* Button);
    void RebuildButtons();
    // Makes the window's button agree with the object.
    void UpdateButton(TToolButton* Button);
    void InsertWindowButton(int Index);
    bool ShowsCaption(const TToolButton& Button) const;
    void TakePositions();
    void SetStyleFlag(bool& Flag, bool Value);
    void SetImageList(TCustomImageList*& List, TCustomImageList* Value);
    void UpdateImages();
    void UpdateSizes();

    std::vector<TToolButton*> FButtons;
    uint16_t FNextCommand = 1;
    bool FTakingPositions = false;
    bool FAllowTextButtons = false;
    bool FFlat = true;
    bool FList = false;
    bool FShowCaptions = false;
    bool FTransparent = false;
    bool FWrapable = true;
    TCustomImageList* FDisabledImages = nullptr;
    TCustomImageList* FHotImages = nullptr;
    TCustomImageList* FImages = nullptr;
    TMainMenu* FMenu = nullptr;
};

void RegisterToolBarClasses();
