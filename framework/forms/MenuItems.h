// The items of menus.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "framework/forms/ActionLinks.h"
#include "framework/forms/OwnerDraw.h"
#include "framework/forms/Pictures.h"
#include "framework/forms/ShortCuts.h"

class TCanvas;
class TCustomImageList;
class TMenu;
class TMenuItem;

OBX_ENUM(TMenuBreak, mbNone, mbBreak, mbBarBreak)
OBX_ENUM(TMenuAutoFlag, maAutomatic, maManual, maParent)

OBX_EVENT(TMenuChangeEvent, TObject*, TMenuItem*, bool)
OBX_EVENT(TMenuDrawItemEvent, TObject*, TCanvas*, const TRect&, bool)
OBX_EVENT(TAdvancedMenuDrawItemEvent, TObject*, TCanvas*, const TRect&, TOwnerDrawState)
OBX_EVENT(TMenuMeasureItemEvent, TObject*, TCanvas*, int&, int&)

// Carries the changes of an action to a menu item.
class TMenuActionLink : public TActionLink {
    OBX_CLASS(TActionLink)
public:
    explicit TMenuActionLink(TMenuItem* Client);

    bool IsCaptionLinked() const override;
    bool IsCheckedLinked() const override;
    bool IsEnabledLinked() const override;
    bool IsGroupIndexLinked() const override;
    bool IsHelpContextLinked() const override;
    bool IsHintLinked() const override;
    bool IsImageIndexLinked() const override;
    bool IsShortCutLinked() const override;
    bool IsVisibleLinked() const override;
    bool IsOnExecuteLinked() const override;
    bool IsAutoCheckLinked() const;

    void SetAutoCheck(bool Value) override;
    void SetCaption(const std::string& Value) override;
    void SetChecked(bool Value) override;
    void SetEnabled(bool Value) override;
    void SetGroupIndex(int Value) override;
    void SetHelpContext(THelpContext Value) override;
    void SetHint(const std::string& Value) override;
    void SetImageIndex(int Value) override;
    void SetShortCut(TShortCut Value) override;
    void SetVisible(bool Value) override;
    void SetOnExecute(const TNotifyEvent& Value) override;

private:
    TMenuItem* FClient;
};

// An entry of a menu, with a menu of its own when it has items. An item owns the
// place of its items in the system's menu and destroys them with itself. The
// system's menu follows every change at once; its handle stays the same for as
// long as the item lives.
class TMenuItem : public TComponent {
    OBX_CLASS(TComponent)
public:
    explicit TMenuItem(TComponent* Owner);
    ~TMenuItem() override;

    int Count() const { return static_cast<int>(FItems.size()); }
    // An index outside raises EMenuError "Menu index out of range".
    TMenuItem* Items(int Index) const;
    // An item that is in a menu already raises EMenuError "Menu inserted twice".
    void Add(TMenuItem* Item) { Insert(Count(), Item); }
    void Insert(int Index, TMenuItem* Item);
    // Takes the item out; it is not destroyed.
    void Delete(int Index);
    void Remove(TMenuItem* Item);
    // Destroys all items.
    void Clear();
    int IndexOf(const TMenuItem* Item) const;
    // The item whose caption without "&" is Caption, letter case ignored; null if none.
    TMenuItem* Find(const std::string& Caption) const;

    TMenuItem* Parent() const { return FParent; }
    TMenu* GetParentMenu() const;
    // The position in the parent, hidden items counted; -1 without a parent.
    int MenuIndex() const { return FParent ? FParent->IndexOf(this) : -1; }
    void SetMenuIndex(int Value);
    bool IsLine() const { return FCaption == "-"; }
    // The number that the system reports the item by; its own in the program.
    uint16_t Command() const { return FCommand; }
    // The system's menu of this item's items, made when first asked for.
    HMENU Handle();
    HMENU MenuHandle() const { return FHandle; }

    // What a user's choice does.
    virtual void Click();
    // Lets actions bring their items up to date.
    void InitiateAction();
    void InitiateActions();
    // Fills the system's menu anew.
    void RebuildHandle();
    // Items of this one shown together with those of Merged (null for none) by
    // group index: those of Merged take the place of items with the same one.
    void MergeWith(TMenuItem* Merged);
    TMenuItem* Merged() const { return FMerged; }
    // What the system's menu shows, in order; hidden items left out.
    std::vector<TMenuItem*> ShownItems() const;

    // Published.
    TBasicAction* Action() const;
    void SetAction(TBasicAction* Value);
    OBX_PROPERTY(bool, AutoCheck, false)
    OBX_PROPERTY(TMenuAutoFlag, AutoHotkeys, maParent)
    OBX_PROPERTY(TMenuAutoFlag, AutoLineReduction, maParent)
    OBX_PROPERTY(TMenuBreak, Break, mbNone)
    OBX_PROPERTY(std::string, Caption, {})
    OBX_PROPERTY(bool, Default, false)
    OBX_PROPERTY(bool, Enabled, true)
    OBX_PROPERTY(THelpContext, HelpContext, 0)
    OBX_PROPERTY(std::string, Hint, {})
    OBX_PROPERTY(int, ImageIndex, -1)
    OBX_PROPERTY(TShortCut, ShortCut, scNone)
public:
    TBitmap* Bitmap() const { return FBitmap.get(); }
    void SetBitmap(TBitmap* Value) { FBitmap->Assign(Value); }
    bool Checked() const { return FChecked; }
    void SetChecked(bool Value);
    uint8_t GroupIndex() const { return FGroupIndex; }
    void SetGroupIndex(uint8_t Value);
    bool RadioItem() const { return FRadioItem; }
    void SetRadioItem(bool Value);
    TCustomImageList* SubMenuImages() const { return FSubMenuImages; }
    void SetSubMenuImages(TCustomImageList* Value);
    bool Visible() const { return FVisible; }
    void SetVisible(bool Value);
    bool IsCaptionStored() const;
    bool IsCheckedStored() const;
    bool IsEnabledStored() const;
    bool IsHelpContextStored() const;
    bool IsHintStored() const;
    bool IsImageIndexStored() const;
    bool IsShortCutStored() const;
    bool IsVisibleStored() const;
    bool IsOnClickStored() const;

    TNotifyEvent OnClick;
    TMenuDrawItemEvent OnDrawItem;
    TAdvancedMenuDrawItemEvent OnAdvancedDrawItem;
    TMenuMeasureItemEvent OnMeasureItem;

    TMenuActionLink* ActionLink() const { return FActionLink.get(); }
    void Loaded() override;
    void Notification(TComponent* Component, TOperation Operation) override;
    TComponent* GetParentComponent() const override;
    bool HasParent() const override { return FParent != nullptr; }
    void SetParentComponent(TComponent* Value) override;
    void GetChildren(const std::function<void(TComponent*)>& Visit, TComponent* Root) override;
    void SetChildOrder(TComponent* Child, int Order) override;

protected:
    void PropertyChanged() override { UpdateEntry(); }
    virtual void ActionChange(TBasicAction* Sender, bool CheckDefaults);

private:
    friend class TMenu;
    void AppendEntry(HMENU Menu);
    void FillEntry(MENUITEMINFOA& Info, std::string& Text);
    std::string EntryText() const;
    void UpdateEntry();
    // A change of the items, not only of one item's look.
    void ItemsChanged();
    void ForgetHandles();
    void TurnSiblingsOff();
    void BitmapChanged(TObject* Sender);

    TMenu* FMenu = nullptr; // set for the root of a menu
    TMenuItem* FParent = nullptr;
    std::vector<TMenuItem*> FItems;
    TMenuItem* FMerged = nullptr;
    TMenuItem* FMergedWith = nullptr; // the item that shows this one's items too
    HMENU FHandle = nullptr;
    uint16_t FCommand;
    bool FChecked = false;
    bool FRadioItem = false;
    bool FVisible = true;
    uint8_t FGroupIndex = 0;
    std::unique_ptr<TBitmap> FBitmap;
    TCustomImageList* FSubMenuImages = nullptr;
    std::unique_ptr<TMenuActionLink> FActionLink;
};
