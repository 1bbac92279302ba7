// Menus of forms and popup menus. Their items are in MenuItems.h, shortcut keys
// as texts in ShortCuts.h.
#pragma once

#include "framework/forms/MenuItems.h"

OBX_ENUM(TPopupAlignment, paLeft, paRight, paCenter)
OBX_ENUM(TTrackButton, tbRightButton, tbLeftButton)
OBX_ENUM(TMenuAnimations, maLeftToRight, maRightToLeft, maTopToBottom, maBottomToTop, maNone)
OBX_SET(TMenuAnimation, TMenuAnimations)

enum class TFindItemKind { Command, Handle, ShortCut };

class TMenu : public TComponent {
    OBX_CLASS(TComponent)
public:
    explicit TMenu(TComponent* Owner);
    ~TMenu() override;

    // The root; it belongs to the menu.
    TMenuItem* Items() const { return FItems; }
    HMENU Handle() { return FItems->Handle(); }
    bool HandleAllocated() const { return FItems && FItems->MenuHandle(); }

    // Items below the root and those merged in; null if none. Value: a command
    // number, a menu handle (of an item with items) or a shortcut.
    TMenuItem* FindItem(uintptr_t Value, TFindItemKind Kind);
    // The user chose the item with that number; false when it is not in this menu.
    bool DispatchCommand(uint16_t Command);
    // The system is about to show the sub-menu: calls the item's OnClick.
    bool DispatchPopup(HMENU Popup);
    // Carries out the item with the shortcut that is pressed; true when there is
    // one and it, and the items above it, are enabled.
    bool IsShortCut(TMessage& Message);

    // The window that shows the menu; null for none.
    HWND WindowHandle() const { return FWindowHandle; }
    void SetWindowHandle(HWND Value);

    // Called by the items after each change.
    virtual void MenuChanged(TMenuItem* Source, bool Rebuild);

    // Published.
    OBX_PROPERTY(TMenuAutoFlag, AutoHotkeys, maAutomatic)
    OBX_PROPERTY(TMenuAutoFlag, AutoLineReduction, maAutomatic)
    OBX_PROPERTY(bool, OwnerDraw, false)
    OBX_PROPERTY(TBiDiMode, BiDiMode, bdLeftToRight)
    OBX_PROPERTY(bool, ParentBiDiMode, true)
public:
    TCustomImageList* Images() const { return FImages; }
    void SetImages(TCustomImageList* Value);
    bool IsBiDiModeStored() const { return !FParentBiDiMode; }

    // Called after a change of the menu; Rebuild when items came or went.
    TMenuChangeEvent OnChange;

    void Notification(TComponent* Component, TOperation Operation) override;
    void GetChildren(const std::function<void(TComponent*)>& Visit, TComponent* Root) override;
    void SetChildOrder(TComponent* Child, int Order) override;

private:
    TMenuItem* FItems;
    HWND FWindowHandle = nullptr;
    TCustomImageList* FImages = nullptr;
};

// The menu bar of a form (TForm::Menu).
class TMainMenu : public TMenu {
    OBX_CLASS(TMenu)
public:
    explicit TMainMenu(TComponent* Owner) : TMenu(Owner) {}

    // Shows the items of Menu with this one's, by group index; null ends it.
    void Merge(TMainMenu* Menu);
    void Unmerge(TMainMenu* Menu);
    void MenuChanged(TMenuItem* Source, bool Rebuild) override;

    // Published. The menu of an MDI child joins that of its frame.
    OBX_PROPERTY(bool, AutoMerge, false)
};

// A menu that is shown where the user clicks (TControl::PopupMenu).
class TPopupMenu : public TMenu {
    OBX_CLASS(TMenu)
public:
    explicit TPopupMenu(TComponent* Owner);
    ~TPopupMenu() override;

    // Shows the menu at a point of the screen and returns when it is closed.
    virtual void Popup(int X, int Y);
    virtual void DoPopup(TObject* Sender);
    void CloseMenu();
    TPoint PopupPoint() const { return FPopupPoint; }
    void SetPopupPoint(const TPoint& Value) { FPopupPoint = Value; }
    // What was clicked; set before OnPopup.
    TComponent* PopupComponent() const { return FPopupComponent; }
    void SetPopupComponent(TComponent* Value);

    // Published.
    OBX_PROPERTY(TPopupAlignment, Alignment, paLeft)
    OBX_PROPERTY(bool, AutoPopup, true)
    OBX_PROPERTY(THelpContext, HelpContext, 0)
    OBX_PROPERTY(TMenuAnimation, MenuAnimation, {})
    OBX_PROPERTY(TTrackButton, TrackButton, tbRightButton)
public:
    TNotifyEvent OnPopup;

    void Notification(TComponent* Component, TOperation Operation) override;

private:
    TPoint FPopupPoint{-1, -1};
    TComponent* FPopupComponent = nullptr;
};

// The window that receives the commands of all popup menus; made with the first
// popup menu that is shown.
HWND PopupMenuWindow();

// Registers menus and their items.
void RegisterMenuClasses();
