#include "framework/forms/Menus.h"

#include "framework/forms/Application.h"
#include "framework/forms/ImageLists.h"
#include "framework/rtl/SysUtils.h"

namespace {

// The popup menus that exist, for the commands that their window receives.
std::vector<TPopupMenu*>& PopupMenus()
{
    static std::vector<TPopupMenu*> Menus;
    return Menus;
}

LRESULT CALLBACK PopupWindowProc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam)
{
    const std::vector<TPopupMenu*> Menus = PopupMenus();
    try {
        for (TPopupMenu* const Menu : Menus)
            if ((Msg == WM_COMMAND && Menu->DispatchCommand(static_cast<uint16_t>(WParam & 0xFFFF))) ||
                (Msg == WM_INITMENUPOPUP && Menu->DispatchPopup(reinterpret_cast<HMENU>(WParam))))
                return 0;
    } catch (...) {
        if (Application)
            Application->HandleException(nullptr);
        return 0;
    }
    return DefWindowProcA(Window, Msg, WParam, LParam);
}

bool Matches(TMenuItem& Item, uintptr_t Value, TFindItemKind Kind)
{
    switch (Kind) {
    case TFindItemKind::Command:
        return Item.Command() == Value;
    case TFindItemKind::Handle:
        return Item.MenuHandle() && reinterpret_cast<uintptr_t>(Item.MenuHandle()) == Value;
    default:
        return Item.ShortCut() == Value;
    }
}

TMenuItem* FindBelow(TMenuItem& Root, uintptr_t Value, TFindItemKind Kind)
{
    for (int I = 0; I < Root.Count(); ++I) {
        TMenuItem& Item = *Root.Items(I);
        if (Matches(Item, Value, Kind))
            return &Item;
        if (TMenuItem* const Found = FindBelow(Item, Value, Kind))
            return Found;
    }
    return Root.Merged() ? FindBelow(*Root.Merged(), Value, Kind) : nullptr;
}

// The items above first: their handlers bring the one below up to date.
bool ClickWithParents(TMenuItem& Item)
{
    if (Item.Parent() && !ClickWithParents(*Item.Parent()))
        return false;
    if (!Item.Enabled())
        return false;
    if (Item.Count() > 0)
        Item.InitiateActions();
    Item.Click();
    return true;
}

} // namespace

HWND PopupMenuWindow()
{
    static HWND Window = nullptr;
    if (Window && IsWindow(Window))
        return Window;
    static const char ClassName[] = "TPopupMenuWindow";
    WNDCLASSA Class{};
    Class.lpfnWndProc = PopupWindowProc;
    Class.hInstance = ModuleInstance();
    Class.lpszClassName = ClassName;
    RegisterClassA(&Class);
    Window = CreateWindowExA(WS_EX_TOOLWINDOW, ClassName, "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                             ModuleInstance(), nullptr);
    return Window;
}

const TMetaClass& TMenu::MetaClass()
{
    static const TMetaClass Class("TMenu", &TComponent::MetaClass(), nullptr,
                                  {
                                      Prop<&TMenu::Items>("Items"),
                                  });
    return Class;
}

TMenu::TMenu(TComponent* Owner) : TComponent(Owner), FItems(new TMenuItem(this))
{
    FItems->FMenu = this;
}

TMenu::~TMenu()
{
    SetStateFlag(csDestroying, true);
    delete std::exchange(FItems, nullptr);
}

void TMenu::Notification(TComponent* Component, TOperation Operation)
{
    TComponent::Notification(Component, Operation);
    if (Operation == opRemove && Component == FImages)
        FImages = nullptr;
}

void TMenu::GetChildren(const std::function<void(TComponent*)>& Visit, TComponent* Root)
{
    FItems->GetChildren(Visit, Root);
}

void TMenu::SetChildOrder(TComponent* Child, int Order)
{
    FItems->SetChildOrder(Child, Order);
}

void TMenu::SetImages(TCustomImageList* Value)
{
    FImages = Value;
    if (Value)
        Value->FreeNotification(this);
}

TMenuItem* TMenu::FindItem(uintptr_t Value, TFindItemKind Kind)
{
    if (Kind == TFindItemKind::Handle && Matches(*FItems, Value, Kind))
        return FItems;
    return Value == 0 ? nullptr : FindBelow(*FItems, Value, Kind);
}

bool TMenu::DispatchCommand(uint16_t Command)
{
    TMenuItem* const Item = FindItem(Command, TFindItemKind::Command);
    if (!Item)
        return false;
    Item->Click();
    return true;
}

bool TMenu::DispatchPopup(HMENU Popup)
{
    TMenuItem* const Item = FindItem(reinterpret_cast<uintptr_t>(Popup), TFindItemKind::Handle);
    if (!Item)
        return false;
    if (!HasState(csDesigning))
        Item->InitiateActions();
    Item->Click();
    return true;
}

bool TMenu::IsShortCut(TMessage& Message)
{
    const TShortCut Pressed = ShortCutFromMessage(Message);
    TMenuItem* const Item = FindItem(Pressed, TFindItemKind::ShortCut);
    if (!Item)
        return false;
    Item->InitiateAction();
    return ClickWithParents(*Item);
}

void TMenu::SetWindowHandle(HWND Value)
{
    if (FWindowHandle == Value)
        return;
    FWindowHandle = Value;
    if (!Value)
        FItems->ForgetHandles();
}

void TMenu::MenuChanged(TMenuItem* Source, bool Rebuild)
{
    if (OnChange && !HasState(csLoading) && !HasState(csDestroying))
        OnChange(this, Source, Rebuild);
}

const TMetaClass& TMainMenu::MetaClass()
{
    static const TMetaClass Class("TMainMenu", &TMenu::MetaClass(), CreateComponent<TMainMenu>,
                                  {
                                      OBX_ROW(TMainMenu, AutoHotkeys).Default(maAutomatic),
                                      OBX_ROW(TMainMenu, AutoLineReduction).Default(maAutomatic),
                                      OBX_ROW(TMainMenu, AutoMerge).Default(false),
                                      OBX_ROW(TMainMenu, BiDiMode).Stored<&TMainMenu::IsBiDiModeStored>(),
                                      OBX_ROW(TMainMenu, Images),
                                      OBX_ROW(TMainMenu, OwnerDraw).Default(false),
                                      OBX_ROW(TMainMenu, ParentBiDiMode).Default(true),
                                      Prop<&TMainMenu::OnChange>("OnChange"),
                                  });
    return Class;
}

void TMainMenu::Merge(TMainMenu* Menu)
{
    Items()->MergeWith(Menu ? Menu->Items() : nullptr);
}

void TMainMenu::Unmerge(TMainMenu* Menu)
{
    if (Menu && Items()->Merged() == Menu->Items())
        Items()->MergeWith(nullptr);
}

void TMainMenu::MenuChanged(TMenuItem* Source, bool Rebuild)
{
    if (WindowHandle() && IsWindow(WindowHandle())) {
        // An empty menu was no bar yet.
        const bool IsChild = (GetWindowLongPtrA(WindowHandle(), GWL_STYLE) & WS_CHILD) != 0;
        if (Rebuild && Items()->Count() > 0 && !IsChild && !HasState(csDesigning) && !GetMenu(WindowHandle()))
            SetMenu(WindowHandle(), Handle());
        DrawMenuBar(WindowHandle());
    }
    TMenu::MenuChanged(Source, Rebuild);
}

const TMetaClass& TPopupMenu::MetaClass()
{
    static const TMetaClass Class("TPopupMenu", &TMenu::MetaClass(), CreateComponent<TPopupMenu>,
                                  {
                                      OBX_ROW(TPopupMenu, Alignment).Default(paLeft),
                                      OBX_ROW(TPopupMenu, AutoHotkeys).Default(maAutomatic),
                                      OBX_ROW(TPopupMenu, AutoLineReduction).Default(maAutomatic),
                                      OBX_ROW(TPopupMenu, AutoPopup).Default(true),
                                      OBX_ROW(TPopupMenu, BiDiMode).Stored<&TPopupMenu::IsBiDiModeStored>(),
                                      OBX_ROW(TPopupMenu, HelpContext).Default(0),
                                      OBX_ROW(TPopupMenu, Images),
                                      OBX_ROW(TPopupMenu, MenuAnimation).Default(TMenuAnimation{}),
                                      OBX_ROW(TPopupMenu, OwnerDraw).Default(false),
                                      OBX_ROW(TPopupMenu, ParentBiDiMode).Default(true),
                                      OBX_ROW(TPopupMenu, TrackButton).Default(tbRightButton),
                                      Prop<&TPopupMenu::OnChange>("OnChange"),
                                      Prop<&TPopupMenu::OnPopup>("OnPopup"),
                                  });
    return Class;
}

TPopupMenu::TPopupMenu(TComponent* Owner) : TMenu(Owner)
{
    PopupMenus().push_back(this);
}

TPopupMenu::~TPopupMenu()
{
    std::erase(PopupMenus(), this);
}

void TPopupMenu::Notification(TComponent* Component, TOperation Operation)
{
    TMenu::Notification(Component, Operation);
    if (Operation == opRemove && Component == FPopupComponent)
        FPopupComponent = nullptr;
}

void TPopupMenu::SetPopupComponent(TComponent* Value)
{
    FPopupComponent = Value;
    if (Value)
        Value->FreeNotification(this);
}

void TPopupMenu::DoPopup(TObject* Sender)
{
    if (OnPopup)
        OnPopup(Sender);
}

void TPopupMenu::Popup(int X, int Y)
{
    static constexpr UINT Alignments[] = {TPM_LEFTALIGN, TPM_RIGHTALIGN, TPM_CENTERALIGN};
    static constexpr UINT Animations[] = {TPM_HORPOSANIMATION, TPM_HORNEGANIMATION, TPM_VERPOSANIMATION,
                                          TPM_VERNEGANIMATION, TPM_NOANIMATION};
    FPopupPoint = {X, Y};
    DoPopup(this);
    Items()->InitiateActions();
    UINT Flags = Alignments[FAlignment] | (FTrackButton == tbRightButton ? TPM_RIGHTBUTTON : TPM_LEFTBUTTON);
    for (int I = maLeftToRight; I <= maNone; ++I)
        if (FMenuAnimation.Contains(static_cast<TMenuAnimations>(I)))
            Flags |= Animations[I];
    const HWND Window = PopupMenuWindow();
    SetForegroundWindow(Window);
    TrackPopupMenu(Handle(), Flags, X, Y, 0, Window, nullptr);
    PostMessageA(Window, WM_NULL, 0, 0);
}

void TPopupMenu::CloseMenu()
{
    EndMenu();
}

void RegisterMenuClasses()
{
    for (const TMetaClass* const Class :
         {&TMenuItem::MetaClass(), &TMainMenu::MetaClass(), &TPopupMenu::MetaClass()})
        RegisterClass(*Class);
}
