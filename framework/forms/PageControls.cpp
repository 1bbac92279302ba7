#include "framework/forms/PageControls.h"

#include <algorithm>

#include "framework/forms/Form.h"
#include "framework/forms/TabStrings.h"
#include "framework/rtl/SysUtils.h"

const TMetaClass& TPageControl::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TPageControl", &TCustomTabControl::MetaClass(), CreateComponent<TPageControl>,
        Sorted(
            CommonControlRows(true), Dock(), OBX_ROW(TControl, Font).Stored<&TControl::IsFontStored>(),
            OBX_ROW(TControl, ParentFont).Default(true), OBX_ROW(TPageControl, ActivePage),
            OBX_ROW(TPageControl, HotTrack).Default(false), OBX_ROW(TPageControl, Images),
            OBX_ROW(TPageControl, MultiLine).Default(false), OBX_ROW(TPageControl, OwnerDraw).Default(false),
            OBX_ROW(TPageControl, RaggedRight).Default(false),
            OBX_ROW(TPageControl, ScrollOpposite).Default(false),
            OBX_ROW(TPageControl, Style).Default(tsTabs), OBX_ROW(TPageControl, TabHeight).Default(0),
            OBX_ROW(TPageControl, TabIndex).Stored(false), OBX_ROW(TPageControl, TabPosition).Default(tpTop),
            OBX_ROW(TPageControl, TabWidth).Default(0), Prop<&TPageControl::OnChange>("OnChange"),
            Prop<&TPageControl::OnChanging>("OnChanging"), Prop<&TPageControl::OnDrawTab>("OnDrawTab"),
            Prop<&TPageControl::OnGetImageIndex>("OnGetImageIndex")));
    return Class;
}

const TMetaClass& TTabSheet::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class("TTabSheet", &TWinControl::MetaClass(), CreateComponent<TTabSheet>,
                                  {
                                      OBX_ROW(TWinControl, BorderWidth).Default(0),
                                      OBX_ROW(TControl, Caption),
                                      OBX_ROW(TControl, DragMode).Default(dmManual),
                                      OBX_ROW(TControl, Enabled).Default(true),
                                      OBX_ROW(TControl, Font).Stored<&TControl::IsFontStored>(),
                                      OBX_ROW(TControl, Height).Stored(false),
                                      OBX_ROW(TTabSheet, Highlighted).Default(false),
                                      OBX_ROW(TTabSheet, ImageIndex).Default(0),
                                      OBX_ROW(TControl, Left).Stored(false),
                                      OBX_ROW(TControl, Constraints),
                                      OBX_ROW(TTabSheet, PageIndex).Stored(false),
                                      OBX_ROW(TControl, ParentFont).Default(true),
                                      OBX_ROW(TControl, ParentShowHint).Default(true),
                                      OBX_ROW(TControl, PopupMenu),
                                      OBX_ROW(TControl, ShowHint).Stored<&TControl::IsShowHintStored>(),
                                      OBX_ROW(TTabSheet, TabVisible).Default(true),
                                      OBX_ROW(TControl, Top).Stored(false),
                                      OBX_ROW(TControl, Visible).Stored(false),
                                      OBX_ROW(TControl, Width).Stored(false),
                                      Prop<&TControl::OnContextPopup>("OnContextPopup"),
                                      Prop<&TControl::OnDragDrop>("OnDragDrop"),
                                      Prop<&TControl::OnDragOver>("OnDragOver"),
                                      Prop<&TControl::OnEndDrag>("OnEndDrag"),
                                      Prop<&TWinControl::OnEnter>("OnEnter"),
                                      Prop<&TWinControl::OnExit>("OnExit"),
                                      Prop<&TTabSheet::OnHide>("OnHide"),
                                      Prop<&TControl::OnMouseDown>("OnMouseDown"),
                                      Prop<&TControl::OnMouseMove>("OnMouseMove"),
                                      Prop<&TControl::OnMouseUp>("OnMouseUp"),
                                      Prop<&TControl::OnResize>("OnResize"),
                                      Prop<&TTabSheet::OnShow>("OnShow"),
                                      Prop<&TControl::OnStartDrag>("OnStartDrag"),
                                  });
    return Class;
}

TPageControl::TPageControl(TComponent* Owner) : TCustomTabControl(Owner)
{
    FControlStyle = {csDoubleClicks, csOpaque};
}

TPageControl::~TPageControl()
{
    SetStateFlag(csDestroying, true);
    for (TTabSheet* const Page : FPages)
        Page->FPageControl = nullptr;
    FPages.clear();
}

void TPageControl::Loaded()
{
    TCustomTabControl::Loaded();
    for (TTabSheet* const Page : FPages)
        GiveRoom(*Page);
    if (!FActivePage)
        SetActivePage(FindNextPage(nullptr, true, true));
}

void TPageControl::GetChildren(const std::function<void(TComponent*)>& Visit, TComponent*)
{
    const std::vector<TTabSheet*> Children = FPages;
    for (TTabSheet* const Page : Children)
        Visit(Page);
}

void TPageControl::SetChildOrder(TComponent* Child, int Order)
{
    if (auto* const Page = dynamic_cast<TTabSheet*>(Child))
        Page->SetPageIndex(Order);
}

TTabSheet* TPageControl::Pages(int Index) const
{
    if (Index < 0 || Index >= PageCount())
        throw EListError(Format(SListIndexError, {Index}));
    return FPages[static_cast<size_t>(Index)];
}

int TPageControl::ActivePageIndex() const
{
    return FActivePage ? FActivePage->PageIndex() : -1;
}

void TPageControl::SetActivePageIndex(int Value)
{
    SetActivePage(Value >= 0 && Value < PageCount() ? Pages(Value) : nullptr);
}

TTabSheet* TPageControl::FindNextPage(TTabSheet* CurPage, bool GoForward, bool CheckTabVisible) const
{
    const int Count = PageCount();
    int Index = CurPage ? CurPage->PageIndex() : (GoForward ? -1 : Count);
    for (int I = 0; I < Count; ++I) {
        Index = (Index + (GoForward ? 1 : -1) + Count) % Count;
        if (!CheckTabVisible || Pages(Index)->TabVisible())
            return Pages(Index);
    }
    return nullptr;
}

void TPageControl::SelectNextPage(bool GoForward, bool CheckTabVisible)
{
    TTabSheet* const Page = FindNextPage(FActivePage, GoForward, CheckTabVisible);
    if (!Page || Page == FActivePage || !CanChange())
        return;
    SetActivePage(Page);
    Change();
}

void TPageControl::SetActivePage(TTabSheet* Value)
{
    if (Value && Value->PageControl() != this)
        return;
    ChangeActivePage(Value);
    ShowTabIndex();
}

int TPageControl::TabIndex() const
{
    return FActivePage ? FActivePage->TabIndex() : -1;
}

void TPageControl::SetTabIndex(int Value)
{
    SetActivePage(PageOfTab(Value));
}

TTabSheet* TPageControl::PageOfTab(int Index) const
{
    return Index >= 0 && Index < FTabs->Count() ? static_cast<TTabSheet*>(FTabs->Objects(Index)) : nullptr;
}

void TPageControl::TabSelected(int Index)
{
    if (TTabSheet* const Page = PageOfTab(Index))
        ChangeActivePage(Page);
    Change();
}

void TPageControl::ShowControl(TControl* AControl)
{
    if (auto* const Page = dynamic_cast<TTabSheet*>(AControl); Page && Page->PageControl() == this)
        SetActivePage(Page);
    TCustomTabControl::ShowControl(AControl);
}

// The new page is shown before the old one goes, so that the focus can move on.
void TPageControl::ChangeActivePage(TTabSheet* Page)
{
    if (FActivePage == Page)
        return;
    TTabSheet* const Old = FActivePage;
    TCustomForm* const Form = GetParentForm(this);
    const bool HadFocus = Form && Old && Form->ActiveControl() && Old->ContainsControl(Form->ActiveControl());
    FActivePage = Page;
    if (Page) {
        Page->SetVisible(true);
        Page->BringToFront();
    }
    if (HadFocus && Showing())
        Form->SetActiveControl(CanFocus() ? this : nullptr);
    if (Old)
        Old->SetVisible(false);
}

void TPageControl::FlipChildren(bool AllLevels)
{
    for (TTabSheet* const Page : FPages)
        if (AllLevels)
            Page->FlipChildren(true);
}

// The controls on a page that was never shown, too, keep their distances from its
// edges.
void TPageControl::GiveRoom(TTabSheet& Page)
{
    Page.SetBoundsRect(DisplayRect());
}

void TPageControl::InsertPage(TTabSheet* Page)
{
    FPages.push_back(Page);
    Page->FPageControl = this;
    if (!HasState(csLoading))
        GiveRoom(*Page);
    PagesChanged();
}

void TPageControl::RemovePage(TTabSheet* Page)
{
    TTabSheet* const Next = FindNextPage(Page, true, true);
    std::erase(FPages, Page);
    Page->FPageControl = nullptr;
    const bool WasActive = FActivePage == Page;
    if (WasActive)
        FActivePage = nullptr;
    PagesChanged();
    if (WasActive && !HasState(csDestroying))
        SetActivePage(Next == Page ? nullptr : Next);
}

void TPageControl::MovePage(TTabSheet* Page, int Index)
{
    std::erase(FPages, Page);
    FPages.insert(FPages.begin() + std::clamp(Index, 0, PageCount()), Page);
    PagesChanged();
}

void TPageControl::PagesChanged()
{
    if (HasState(csDestroying))
        return;
    FTabs->BeginUpdate();
    FTabs->Clear();
    for (TTabSheet* const Page : FPages)
        if (Page->TabVisible())
            FTabs->AddObject(Page->Caption(), Page);
    FTabs->EndUpdate();
}

void TPageControl::PageChanged(TTabSheet* Page)
{
    const int Index = Page->TabIndex();
    if (Index >= 0)
        FTabs->Put(Index, Page->Caption());
}

int TPageControl::GetImageIndex(int Index)
{
    if (OnGetImageIndex)
        return TCustomTabControl::GetImageIndex(Index);
    const TTabSheet* const Page = PageOfTab(Index);
    return Page ? Page->ImageIndex() : -1;
}

void TPageControl::Dispatch(TMessage& Message)
{
    // Ctrl+Tab turns the pages.
    if (Message.Msg == CM_DIALOGKEY && Message.WParam == VK_TAB && GetKeyState(VK_CONTROL) < 0 &&
        FActivePage) {
        const TCustomForm* const Form = GetParentForm(this);
        if (Focused() || (Form && Form->ActiveControl() && ContainsControl(Form->ActiveControl()))) {
            SelectNextPage(GetKeyState(VK_SHIFT) >= 0);
            Message.Result = 1;
            return;
        }
    }
    TCustomTabControl::Dispatch(Message);
}

TTabSheet::TTabSheet(TComponent* Owner) : TWinControl(Owner)
{
    FControlStyle = {csCaptureMouse, csClickEvents,     csSetCaption,
                     csDoubleClicks, csAcceptsControls, csNoDesignVisible};
    SetAlign(alClient);
    SetVisible(false);
}

TTabSheet::~TTabSheet()
{
    SetStateFlag(csDestroying, true);
    if (FPageControl)
        FPageControl->RemovePage(this);
}

void TTabSheet::SetPageControl(TPageControl* Value)
{
    if (FPageControl != Value)
        SetParent(Value);
}

void TTabSheet::SetParentControl(TWinControl* AParent)
{
    if (FPageControl)
        FPageControl->RemovePage(this);
    TWinControl::SetParentControl(AParent);
    if (auto* const Pages = dynamic_cast<TPageControl*>(AParent))
        Pages->InsertPage(this);
}

int TTabSheet::TabIndex() const
{
    return FPageControl ? FPageControl->FTabs->IndexOfObject(this) : -1;
}

void TTabSheet::SetImageIndex(TImageIndex Value)
{
    if (FImageIndex == Value)
        return;
    FImageIndex = Value;
    if (FPageControl)
        FPageControl->PageChanged(this);
}

int TTabSheet::PageIndex() const
{
    if (!FPageControl)
        return -1;
    const auto& All = FPageControl->FPages;
    return static_cast<int>(std::find(All.begin(), All.end(), this) - All.begin());
}

void TTabSheet::SetPageIndex(int Value)
{
    if (FPageControl && Value != PageIndex())
        FPageControl->MovePage(this, Value);
}

void TTabSheet::SetTabVisible(bool Value)
{
    if (FTabVisible == Value)
        return;
    FTabVisible = Value;
    if (!FPageControl)
        return;
    if (!Value && FPageControl->ActivePage() == this && !FPageControl->HasState(csLoading))
        FPageControl->SetActivePage(FPageControl->FindNextPage(this, true, true));
    FPageControl->PagesChanged();
}

void TTabSheet::CreateParams(TCreateParams& Params)
{
    TWinControl::CreateParams(Params);
    Params.WindowClass.style &= ~static_cast<UINT>(CS_HREDRAW | CS_VREDRAW);
}

void TTabSheet::Dispatch(TMessage& Message)
{
    TWinControl::Dispatch(Message);
    if (Message.Msg == CM_TEXTCHANGED && FPageControl)
        FPageControl->PageChanged(this);
    if (Message.Msg == CM_SHOWINGCHANGED) {
        if (Showing() && OnShow)
            OnShow(this);
        else if (!Showing() && OnHide && !HasState(csDestroying))
            OnHide(this);
    }
}

void RegisterPageControlClasses()
{
    for (const TMetaClass* const Class :
         {&TTabControl::MetaClass(), &TPageControl::MetaClass(), &TTabSheet::MetaClass()})
        RegisterClass(*Class);
}
