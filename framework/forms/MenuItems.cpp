#include "framework/forms/MenuItems.h"

#include <algorithm>

#include "framework/forms/ImageLists.h"
#include "framework/forms/Menus.h"
#include "framework/forms/WinControl.h"
#include "framework/rtl/SysUtils.h"

namespace {

// Numbers below are left to the system, those from 0xF000 are its commands.
constexpr uint16_t FirstCommand = 0x0100;
constexpr uint16_t LastCommand = 0xEFFF;

constexpr char OutOfResources[] = "Out of system resources";

std::vector<bool>& UsedCommands()
{
    static std::vector<bool> Used(LastCommand + 1);
    return Used;
}

uint16_t UniqueCommand()
{
    static uint16_t Last = LastCommand;
    std::vector<bool>& Used = UsedCommands();
    for (int I = FirstCommand; I <= LastCommand; ++I) {
        Last = Last >= LastCommand ? FirstCommand : static_cast<uint16_t>(Last + 1);
        if (!Used[Last]) {
            Used[Last] = true;
            return Last;
        }
    }
    throw EOutOfResources(OutOfResources);
}

} // namespace

const TMetaClass& TMenuItem::MetaClass()
{
    static const TMetaClass Class(
        "TMenuItem", &TComponent::MetaClass(), CreateComponent<TMenuItem>,
        {
            OBX_ROW(TMenuItem, Action),
            OBX_ROW(TMenuItem, AutoCheck).Default(false),
            OBX_ROW(TMenuItem, AutoHotkeys).Default(maParent),
            OBX_ROW(TMenuItem, AutoLineReduction).Default(maParent),
            OBX_ROW(TMenuItem, Bitmap),
            OBX_ROW(TMenuItem, Break).Default(mbNone),
            OBX_ROW(TMenuItem, Caption).Stored<&TMenuItem::IsCaptionStored>(),
            OBX_ROW(TMenuItem, Checked).Default(false).Stored<&TMenuItem::IsCheckedStored>(),
            OBX_ROW(TMenuItem, SubMenuImages),
            OBX_ROW(TMenuItem, Default).Default(false),
            OBX_ROW(TMenuItem, Enabled).Default(true).Stored<&TMenuItem::IsEnabledStored>(),
            OBX_ROW(TMenuItem, GroupIndex).Default(0),
            OBX_ROW(TMenuItem, HelpContext).Default(0).Stored<&TMenuItem::IsHelpContextStored>(),
            OBX_ROW(TMenuItem, Hint).Stored<&TMenuItem::IsHintStored>(),
            OBX_ROW(TMenuItem, ImageIndex).Default(-1).Stored<&TMenuItem::IsImageIndexStored>(),
            OBX_ROW(TMenuItem, RadioItem).Default(false),
            OBX_ROW(TMenuItem, ShortCut).Default(scNone).Stored<&TMenuItem::IsShortCutStored>(),
            OBX_ROW(TMenuItem, Visible).Default(true).Stored<&TMenuItem::IsVisibleStored>(),
            Prop<&TMenuItem::OnClick>("OnClick").Stored<&TMenuItem::IsOnClickStored>(),
            Prop<&TMenuItem::OnDrawItem>("OnDrawItem"),
            Prop<&TMenuItem::OnAdvancedDrawItem>("OnAdvancedDrawItem"),
            Prop<&TMenuItem::OnMeasureItem>("OnMeasureItem"),
        });
    return Class;
}

TMenuItem::TMenuItem(TComponent* Owner)
    : TComponent(Owner), FCommand(UniqueCommand()), FBitmap(std::make_unique<TBitmap>())
{
    FBitmap->OnChange = {this, &TMenuItem::BitmapChanged};
}

TMenuItem::~TMenuItem()
{
    SetStateFlag(csDestroying, true);
    MergeWith(nullptr);
    if (FMergedWith)
        FMergedWith->MergeWith(nullptr);
    Clear();
    if (FParent)
        FParent->Remove(this);
    if (FHandle && IsMenu(FHandle))
        DestroyMenu(FHandle);
    FActionLink.reset();
    UsedCommands()[FCommand] = false;
}

void TMenuItem::Loaded()
{
    TComponent::Loaded();
    if (Action())
        ActionChange(Action(), true);
}

void TMenuItem::Notification(TComponent* Component, TOperation Operation)
{
    TComponent::Notification(Component, Operation);
    if (Operation != opRemove)
        return;
    if (Component == Action())
        SetAction(nullptr);
    if (Component == FSubMenuImages)
        FSubMenuImages = nullptr;
}

TComponent* TMenuItem::GetParentComponent() const
{
    return FParent && FParent->FMenu ? static_cast<TComponent*>(FParent->FMenu) : FParent;
}

void TMenuItem::SetParentComponent(TComponent* Value)
{
    if (FParent)
        FParent->Remove(this);
    if (auto* const Menu = dynamic_cast<TMenu*>(Value))
        Menu->Items()->Add(this);
    else if (auto* const Item = dynamic_cast<TMenuItem*>(Value))
        Item->Add(this);
}

// Items that another component made and owns, such as the languages of a language
// menu, are made by it again and not written.
void TMenuItem::GetChildren(const std::function<void(TComponent*)>& Visit, TComponent* Root)
{
    const std::vector<TMenuItem*> Children = FItems;
    for (TMenuItem* const Item : Children)
        if (Item->Owner() == Root || Item->Owner() == Owner() || Item->Owner() == this)
            Visit(Item);
}

void TMenuItem::SetChildOrder(TComponent* Child, int Order)
{
    if (auto* const Item = dynamic_cast<TMenuItem*>(Child))
        Item->SetMenuIndex(Order);
}

TBasicAction* TMenuItem::Action() const
{
    return FActionLink ? FActionLink->Action() : nullptr;
}

void TMenuItem::SetAction(TBasicAction* Value)
{
    if (Value == Action())
        return;
    if (!Value) {
        FActionLink.reset();
        return;
    }
    if (!FActionLink)
        FActionLink = std::make_unique<TMenuActionLink>(this);
    FActionLink->SetAction(Value);
    ActionChange(Value, Value->HasState(csLoading));
    Value->FreeNotification(this);
}

// What the item was given itself stays when CheckDefaults is true.
void TMenuItem::ActionChange(TBasicAction* Sender, bool CheckDefaults)
{
    const TActionValues* const Values = Sender->Values();
    if (!CheckDefaults || !OnClick)
        OnClick = Sender->OnExecute();
    if (!Values)
        return;
    if (!CheckDefaults || !FAutoCheck)
        FAutoCheck = Values->AutoCheck;
    if (!CheckDefaults || FCaption.empty() || FCaption == Name())
        SetCaption(Values->Caption);
    if (!CheckDefaults || !FChecked)
        SetChecked(Values->Checked);
    if (!CheckDefaults || FEnabled)
        SetEnabled(Values->Enabled);
    if (!CheckDefaults || FHelpContext == 0)
        SetHelpContext(Values->HelpContext);
    if (!CheckDefaults || FHint.empty())
        SetHint(Values->Hint);
    if (!CheckDefaults || FImageIndex == -1)
        SetImageIndex(Values->ImageIndex);
    if (!CheckDefaults || FGroupIndex == 0)
        SetGroupIndex(static_cast<uint8_t>(Values->GroupIndex));
    if (!CheckDefaults || FShortCut == scNone)
        SetShortCut(Values->ShortCut);
    if (!CheckDefaults || FVisible)
        SetVisible(Values->Visible);
}

void TMenuItem::SetChecked(bool Value)
{
    if (FChecked == Value)
        return;
    FChecked = Value;
    UpdateEntry();
    if (Value && FRadioItem)
        TurnSiblingsOff();
}

void TMenuItem::SetGroupIndex(uint8_t Value)
{
    if (FGroupIndex == Value)
        return;
    FGroupIndex = Value;
    if (FParent && (FParent->FMergedWith || FParent->FMerged))
        FParent->ItemsChanged();
    if (FChecked && FRadioItem)
        TurnSiblingsOff();
}

void TMenuItem::SetRadioItem(bool Value)
{
    if (FRadioItem == Value)
        return;
    FRadioItem = Value;
    if (FChecked && FRadioItem)
        TurnSiblingsOff();
    UpdateEntry();
}

void TMenuItem::TurnSiblingsOff()
{
    if (!FParent)
        return;
    for (TMenuItem* const Item : FParent->FItems)
        if (Item != this && Item->FRadioItem && Item->FGroupIndex == FGroupIndex)
            Item->SetChecked(false);
}

void TMenuItem::SetSubMenuImages(TCustomImageList* Value)
{
    FSubMenuImages = Value;
    if (Value)
        Value->FreeNotification(this);
}

void TMenuItem::SetVisible(bool Value)
{
    if (FVisible == Value)
        return;
    FVisible = Value;
    if (FParent)
        FParent->ItemsChanged();
}

bool TMenuItem::IsCaptionStored() const
{
    return !FActionLink || !FActionLink->IsCaptionLinked();
}
bool TMenuItem::IsCheckedStored() const
{
    return !FActionLink || !FActionLink->IsCheckedLinked();
}
bool TMenuItem::IsEnabledStored() const
{
    return !FActionLink || !FActionLink->IsEnabledLinked();
}
bool TMenuItem::IsHelpContextStored() const
{
    return !FActionLink || !FActionLink->IsHelpContextLinked();
}
bool TMenuItem::IsHintStored() const
{
    return !FActionLink || !FActionLink->IsHintLinked();
}
bool TMenuItem::IsImageIndexStored() const
{
    return !FActionLink || !FActionLink->IsImageIndexLinked();
}
bool TMenuItem::IsShortCutStored() const
{
    return !FActionLink || !FActionLink->IsShortCutLinked();
}
bool TMenuItem::IsVisibleStored() const
{
    return !FActionLink || !FActionLink->IsVisibleLinked();
}
bool TMenuItem::IsOnClickStored() const
{
    return !FActionLink || !FActionLink->IsOnExecuteLinked();
}

TMenuItem* TMenuItem::Items(int Index) const
{
    if (Index < 0 || Index >= Count())
        throw EMenuError(SMenuIndexError);
    return FItems[static_cast<size_t>(Index)];
}

void TMenuItem::Insert(int Index, TMenuItem* Item)
{
    if (Item->FParent)
        throw EMenuError(SMenuReinserted);
    if (Index < 0 || Index > Count())
        throw EMenuError(SMenuIndexError);
    FItems.insert(FItems.begin() + Index, Item);
    Item->FParent = this;
    const bool WasEmpty = Count() == 1;
    ItemsChanged();
    if (WasEmpty)
        UpdateEntry();
}

void TMenuItem::Delete(int Index)
{
    TMenuItem* const Item = Items(Index);
    FItems.erase(FItems.begin() + Index);
    Item->FParent = nullptr;
    ItemsChanged();
    if (FItems.empty())
        UpdateEntry();
}

void TMenuItem::Remove(TMenuItem* Item)
{
    const int Index = IndexOf(Item);
    if (Index < 0)
        throw EMenuError(SMenuNotFound);
    Delete(Index);
}

void TMenuItem::Clear()
{
    while (!FItems.empty())
        delete FItems.back();
}

int TMenuItem::IndexOf(const TMenuItem* Item) const
{
    const auto Found = std::find(FItems.begin(), FItems.end(), Item);
    return Found == FItems.end() ? -1 : static_cast<int>(Found - FItems.begin());
}

TMenuItem* TMenuItem::Find(const std::string& Caption) const
{
    const std::string Wanted = StripHotkey(Caption);
    for (TMenuItem* const Item : FItems)
        if (AnsiSameText(StripHotkey(Item->FCaption), Wanted))
            return Item;
    return nullptr;
}

TMenu* TMenuItem::GetParentMenu() const
{
    const TMenuItem* Item = this;
    while (Item->FParent)
        Item = Item->FParent;
    return Item->FMenu;
}

void TMenuItem::SetMenuIndex(int Value)
{
    const int Index = MenuIndex();
    if (Index < 0 || Value == Index)
        return;
    auto& Siblings = FParent->FItems;
    const int Place = std::clamp(Value, 0, static_cast<int>(Siblings.size()) - 1);
    Siblings.erase(Siblings.begin() + Index);
    Siblings.insert(Siblings.begin() + Place, this);
    FParent->ItemsChanged();
}

HMENU TMenuItem::Handle()
{
    if (FHandle && IsMenu(FHandle))
        return FHandle;
    FHandle = dynamic_cast<TMainMenu*>(FMenu) ? CreateMenu() : CreatePopupMenu();
    if (!FHandle)
        throw EOutOfResources(OutOfResources);
    RebuildHandle();
    return FHandle;
}

void TMenuItem::Click()
{
    if (!FEnabled)
        return;
    const bool LinkChecks = FActionLink && FActionLink->IsAutoCheckLinked();
    if (FAutoCheck && !LinkChecks)
        SetChecked(!FChecked);
    TBasicAction* const Linked = Action();
    const bool HasOwnHandler = OnClick && Linked && OnClick != Linked->OnExecute();
    if (Linked && !HasOwnHandler && !HasState(csDesigning))
        FActionLink->Execute(this);
    else if (OnClick)
        OnClick(this);
}

void TMenuItem::InitiateAction()
{
    if (FActionLink)
        FActionLink->Update();
}

void TMenuItem::InitiateActions()
{
    const std::vector<TMenuItem*> Children = FItems;
    for (TMenuItem* const Item : Children)
        if (IndexOf(Item) >= 0)
            Item->InitiateAction();
}

void TMenuItem::MergeWith(TMenuItem* Merged)
{
    if (FMerged == Merged)
        return;
    if (FMerged)
        FMerged->FMergedWith = nullptr;
    FMerged = Merged;
    if (FMerged) {
        if (FMerged->FMergedWith)
            FMerged->FMergedWith->MergeWith(nullptr);
        FMerged->FMergedWith = this;
    }
    ItemsChanged();
}

std::vector<TMenuItem*> TMenuItem::ShownItems() const
{
    std::vector<TMenuItem*> Result;
    const auto Add = [&](TMenuItem* Item) {
        if (Item->FVisible)
            Result.push_back(Item);
    };
    size_t Next = 0;
    const std::vector<TMenuItem*> None;
    const std::vector<TMenuItem*>& Others = FMerged ? FMerged->FItems : None;
    int Replaced = -1;
    for (TMenuItem* const Item : FItems) {
        for (; Next < Others.size() && Others[Next]->FGroupIndex <= Item->FGroupIndex; ++Next) {
            Add(Others[Next]);
            Replaced = Others[Next]->FGroupIndex;
        }
        if (Item->FGroupIndex != Replaced)
            Add(Item);
    }
    for (; Next < Others.size(); ++Next)
        Add(Others[Next]);
    return Result;
}

void TMenuItem::RebuildHandle()
{
    if (!FHandle || HasState(csDestroying))
        return;
    while (GetMenuItemCount(FHandle) > 0)
        RemoveMenu(FHandle, 0, MF_BYPOSITION);
    for (TMenuItem* const Item : ShownItems())
        Item->AppendEntry(FHandle);
}

void TMenuItem::AppendEntry(HMENU Menu)
{
    MENUITEMINFOA Info{};
    std::string Text;
    FillEntry(Info, Text);
    InsertMenuItemA(Menu, static_cast<UINT>(GetMenuItemCount(Menu)), TRUE, &Info);
}

void TMenuItem::FillEntry(MENUITEMINFOA& Info, std::string& Text)
{
    static constexpr UINT Breaks[] = {0, MFT_MENUBREAK, MFT_MENUBARBREAK};
    Text = EntryText();
    Info.cbSize = sizeof Info;
    Info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_SUBMENU | MIIM_BITMAP;
    Info.wID = FCommand;
    Info.fType = Breaks[FBreak] | (FRadioItem ? MFT_RADIOCHECK : 0) | (IsLine() ? MFT_SEPARATOR : MFT_STRING);
    Info.fState =
        (FChecked ? MFS_CHECKED : 0u) | (FEnabled ? MFS_ENABLED : MFS_GRAYED) | (FDefault ? MFS_DEFAULT : 0u);
    Info.hSubMenu = FItems.empty() ? nullptr : Handle();
    Info.hbmpItem = FBitmap->Empty() ? nullptr : FBitmap->Handle();
    if (!IsLine()) {
        Info.fMask |= MIIM_STRING;
        Info.dwTypeData = Text.data();
        Info.cch = static_cast<UINT>(Text.size());
    }
}

// The menu bar has no room for short cuts.
std::string TMenuItem::EntryText() const
{
    const bool InBar = FParent && dynamic_cast<TMainMenu*>(FParent->FMenu);
    if (FShortCut == scNone || InBar || !FItems.empty())
        return FCaption;
    return FCaption + "\t" + ShortCutToText(FShortCut);
}

void TMenuItem::UpdateEntry()
{
    if (HasState(csDestroying) || !FParent)
        return;
    for (const TMenuItem* const Shower : {FParent, FParent->FMergedWith}) {
        if (!Shower || !Shower->FHandle)
            continue;
        const std::vector<TMenuItem*> Shown = Shower->ShownItems();
        const auto Place = std::find(Shown.begin(), Shown.end(), this);
        if (Place == Shown.end())
            continue;
        MENUITEMINFOA Info{};
        std::string Text;
        FillEntry(Info, Text);
        SetMenuItemInfoA(Shower->FHandle, static_cast<UINT>(Place - Shown.begin()), TRUE, &Info);
        if (Shower != FParent)
            if (TMenu* const Menu = Shower->GetParentMenu())
                Menu->MenuChanged(this, false);
    }
    if (TMenu* const Menu = GetParentMenu())
        Menu->MenuChanged(this, false);
}

void TMenuItem::ItemsChanged()
{
    if (HasState(csDestroying))
        return;
    RebuildHandle();
    if (FMergedWith)
        FMergedWith->ItemsChanged();
    if (TMenu* const Menu = GetParentMenu())
        Menu->MenuChanged(this, true);
}

// The system destroys a menu together with its window.
void TMenuItem::ForgetHandles()
{
    if (FHandle && !IsMenu(FHandle))
        FHandle = nullptr;
    for (TMenuItem* const Item : FItems)
        Item->ForgetHandles();
}

void TMenuItem::BitmapChanged(TObject*)
{
    UpdateEntry();
}
