#include "framework/forms/PageControls.h"
#include "framework/forms/TabStrings.h"

namespace {

// The height of a tab beside its text, and the frame around the page.
constexpr int TabPadding = 8;
constexpr int PageFrame = 4;

} // namespace

const TMetaClass& TCustomTabControl::MetaClass()
{
    static const TMetaClass Class("TCustomTabControl", &TWinControl::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TTabControl::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TTabControl", &TCustomTabControl::MetaClass(), CreateComponent<TTabControl>,
        Sorted(
            CommonControlRows(true), Dock(), OBX_ROW(TControl, Font).Stored<&TControl::IsFontStored>(),
            OBX_ROW(TControl, ParentFont).Default(true), OBX_ROW(TTabControl, HotTrack).Default(false),
            OBX_ROW(TTabControl, Images), OBX_ROW(TTabControl, MultiLine).Default(false),
            OBX_ROW(TTabControl, MultiSelect).Default(false), OBX_ROW(TTabControl, OwnerDraw).Default(false),
            OBX_ROW(TTabControl, RaggedRight).Default(false),
            OBX_ROW(TTabControl, ScrollOpposite).Default(false), OBX_ROW(TTabControl, Style).Default(tsTabs),
            OBX_ROW(TTabControl, TabHeight).Default(0), OBX_ROW(TTabControl, TabPosition).Default(tpTop),
            OBX_ROW(TTabControl, Tabs), OBX_ROW(TTabControl, TabIndex).Default(-1),
            OBX_ROW(TTabControl, TabWidth).Default(0), Prop<&TTabControl::OnChange>("OnChange"),
            Prop<&TTabControl::OnChanging>("OnChanging"), Prop<&TTabControl::OnDrawTab>("OnDrawTab"),
            Prop<&TTabControl::OnGetImageIndex>("OnGetImageIndex")));
    return Class;
}

TCustomTabControl::TCustomTabControl(TComponent* Owner)
    : TWinControl(Owner), FTabs(std::make_unique<TTabStrings>(*this)),
      FCanvas(std::make_unique<TControlCanvas>(this))
{
    FControlStyle = {csAcceptsControls, csDoubleClicks};
    SetBounds(0, 0, 289, 193);
    SetTabStop(true);
}

TCustomTabControl::~TCustomTabControl()
{
    SetStateFlag(csDestroying, true);
}

TStrings* TCustomTabControl::Tabs() const
{
    return FTabs.get();
}

void TCustomTabControl::Notification(TComponent* Component, TOperation Operation)
{
    TWinControl::Notification(Component, Operation);
    if (Operation == opRemove && Component == FImages)
        SetImages(nullptr);
}

void TCustomTabControl::SetTabIndex(int Value)
{
    if (FTabIndex == Value)
        return;
    FTabIndex = Value;
    ShowTabIndex();
}

void TCustomTabControl::SetImages(TCustomImageList* Value)
{
    FImages = Value;
    if (Value)
        Value->FreeNotification(this);
    if (!HandleAllocated())
        return;
    SendMessageA(Handle(), TCM_SETIMAGELIST, 0, Param(ImagesHandle(FImages)));
    RebuildTabs();
}

void TCustomTabControl::SetStyleFlag(bool& Flag, bool Value)
{
    if (Flag == Value)
        return;
    Flag = Value;
    RecreateWnd();
}

void TCustomTabControl::SetStyle(TTabControlStyle Value)
{
    if (FStyle == Value)
        return;
    FStyle = Value;
    RecreateWnd();
}

void TCustomTabControl::SetTabPosition(TTabPosition Value)
{
    if (FTabPosition == Value)
        return;
    FTabPosition = Value;
    if (Value == tpLeft || Value == tpRight)
        FMultiLine = true;
    RecreateWnd();
}

void TCustomTabControl::SetTabHeight(int16_t Value)
{
    FTabHeight = Value;
    UpdateTabSize();
}

void TCustomTabControl::SetTabWidth(int16_t Value)
{
    if (FTabWidth == Value)
        return;
    const bool StyleChanges = (FTabWidth == 0) != (Value == 0);
    FTabWidth = Value;
    if (StyleChanges)
        RecreateWnd();
    else
        UpdateTabSize();
}

void TCustomTabControl::UpdateTabSize()
{
    if (!HandleAllocated())
        return;
    SendMessageA(Handle(), TCM_SETITEMSIZE, 0, MAKELPARAM(FTabWidth, FTabHeight));
    Realign();
}

TRect TCustomTabControl::DisplayRect() const
{
    TRect Result = ClientRect();
    if (HandleAllocated()) {
        SendMessageA(WindowHandle(), TCM_ADJUSTRECT, 0, Param(&Result));
        Result.top += FTabPosition == tpTop ? 2 : 0;
        return Result;
    }
    // As a window with one row of tabs leaves it.
    const int Tab = (FTabHeight > 0 ? FTabHeight : std::abs(Font()->Height()) + TabPadding) + PageFrame;
    int Margins[4] = {PageFrame, PageFrame, PageFrame, PageFrame};
    static constexpr int Sides[] = {1, 3, 0, 2}; // of tpTop, tpBottom, tpLeft, tpRight
    Margins[Sides[FTabPosition]] = Tab;
    Result.left += Margins[0];
    Result.top += Margins[1];
    Result.right -= Margins[2];
    Result.bottom -= Margins[3];
    return Result;
}

void TCustomTabControl::AdjustClientRect(TRect& Rect) const
{
    Rect = DisplayRect();
    TWinControl::AdjustClientRect(Rect);
}

void TCustomTabControl::CreateParams(TCreateParams& Params)
{
    static constexpr DWORD Styles[] = {TCS_TABS, TCS_BUTTONS, TCS_BUTTONS | TCS_FLATBUTTONS};
    static constexpr DWORD Positions[] = {0, TCS_BOTTOM, TCS_VERTICAL | TCS_MULTILINE,
                                          TCS_VERTICAL | TCS_RIGHT | TCS_MULTILINE};
    InitCommonControl(ICC_TAB_CLASSES);
    TWinControl::CreateParams(Params);
    CreateSubClass(Params, WC_TABCONTROLA);
    Params.Style |= WS_CLIPCHILDREN | Styles[FStyle] | Positions[FTabPosition];
    Params.Style |= (FHotTrack ? TCS_HOTTRACK : 0u) | (FMultiLine ? TCS_MULTILINE : 0u) |
                    (FMultiSelect ? TCS_MULTISELECT : 0u) | (FOwnerDraw ? TCS_OWNERDRAWFIXED : 0u) |
                    (FRaggedRight ? TCS_RAGGEDRIGHT : 0u) | (FScrollOpposite ? TCS_SCROLLOPPOSITE : 0u) |
                    (FTabWidth != 0 ? TCS_FIXEDWIDTH : 0u) | (TabStop() ? 0u : TCS_FOCUSNEVER);
    Params.WindowClass.style &= ~static_cast<UINT>(CS_HREDRAW | CS_VREDRAW);
}

void TCustomTabControl::CreateWnd()
{
    TWinControl::CreateWnd();
    if (FImages)
        SendMessageA(Handle(), TCM_SETIMAGELIST, 0, Param(FImages->Handle()));
    if (FTabWidth != 0 || FTabHeight != 0)
        SendMessageA(Handle(), TCM_SETITEMSIZE, 0, MAKELPARAM(FTabWidth, FTabHeight));
    RebuildTabs();
}

void TCustomTabControl::RebuildTabs()
{
    if (!HandleAllocated() || HasState(csDestroying))
        return;
    SendMessageA(Handle(), TCM_DELETEALLITEMS, 0, 0);
    for (int I = 0; I < FTabs->Count(); ++I) {
        TCITEMA Item{};
        Item.mask = TCIF_TEXT | TCIF_IMAGE;
        Item.pszText = TextParam(FTabs->Get(I));
        Item.iImage = GetImageIndex(I);
        SendMessageA(Handle(), TCM_INSERTITEMA, static_cast<WPARAM>(I), Param(&Item));
    }
    ShowTabIndex();
    Realign();
}

void TCustomTabControl::UpdateTab(int Index)
{
    if (!HandleAllocated() || HasState(csDestroying))
        return;
    TCITEMA Item{};
    Item.mask = TCIF_TEXT | TCIF_IMAGE;
    Item.pszText = TextParam(FTabs->Get(Index));
    Item.iImage = GetImageIndex(Index);
    SendMessageA(Handle(), TCM_SETITEMA, static_cast<WPARAM>(Index), Param(&Item));
}

void TCustomTabControl::ShowTabIndex()
{
    if (HandleAllocated())
        SendMessageA(Handle(), TCM_SETCURSEL, static_cast<WPARAM>(TabIndex()), 0);
}

int TCustomTabControl::GetImageIndex(int Index)
{
    int Result = Index;
    if (OnGetImageIndex)
        OnGetImageIndex(this, Index, Result);
    return Result;
}

bool TCustomTabControl::CanChange()
{
    bool Allow = true;
    if (OnChanging)
        OnChanging(this, Allow);
    return Allow;
}

void TCustomTabControl::Change()
{
    if (OnChange)
        OnChange(this);
}

void TCustomTabControl::TabSelected(int Index)
{
    FTabIndex = Index;
    Change();
}

void TCustomTabControl::DrawTab(int Index, const TRect& Rect, bool Active)
{
    if (OnDrawTab)
        OnDrawTab(this, Index, Rect, Active);
    else
        FCanvas->FillRect(Rect);
}

void TCustomTabControl::Dispatch(TMessage& Message)
{
    if (Message.Msg == CN_NOTIFY) {
        const UINT Code = reinterpret_cast<const NMHDR*>(Message.LParam)->code;
        if (Code == static_cast<UINT>(TCN_SELCHANGE))
            TabSelected(static_cast<int>(SendMessageA(Handle(), TCM_GETCURSEL, 0, 0)));
        else if (Code == static_cast<UINT>(TCN_SELCHANGING))
            Message.Result = CanChange() ? 0 : 1;
        return;
    }
    if (Message.Msg == CN_DRAWITEM) {
        const auto& Item = *reinterpret_cast<const DRAWITEMSTRUCT*>(Message.LParam);
        FCanvas->SetHandle(Item.hDC);
        FCanvas->Font()->Assign(Font());
        DrawTab(static_cast<int>(Item.itemID), Item.rcItem, (Item.itemState & ODS_SELECTED) != 0);
        FCanvas->SetHandle(nullptr);
        Message.Result = 1;
        return;
    }
    TWinControl::Dispatch(Message);
    if (Message.Msg == WM_SIZE)
        Realign();
}
