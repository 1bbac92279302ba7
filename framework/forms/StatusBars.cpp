#include "framework/forms/StatusBars.h"

namespace {

// The number of the part that stands for the whole bar.
constexpr int SimplePart = 255;

} // namespace

const TMetaClass& TStatusPanel::MetaClass()
{
    static const TMetaClass Class(
        "TStatusPanel", &TCollectionItem::MetaClass(), nullptr,
        {
            OBX_ROW(TStatusPanel, Alignment).Default(taLeftJustify),
            OBX_ROW(TStatusPanel, Bevel).Default(pbLowered),
            OBX_ROW(TStatusPanel, BiDiMode).Stored<&TStatusPanel::IsBiDiModeStored>(),
            OBX_ROW(TStatusPanel, ParentBiDiMode).Default(true),
            OBX_ROW(TStatusPanel, Style).Default(psText),
            OBX_ROW(TStatusPanel, Text),
            OBX_ROW(TStatusPanel, Width),
        });
    return Class;
}

const TMetaClass& TStatusPanels::MetaClass()
{
    static const TMetaClass Class("TStatusPanels", &TCollection::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TCustomStatusBar::MetaClass()
{
    static const TMetaClass Class("TCustomStatusBar", &TWinControl::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TStatusBar::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TStatusBar", &TCustomStatusBar::MetaClass(), CreateComponent<TStatusBar>,
        Sorted(Look(), Drag(), Mouse(), ControlRows::Resize(), Buffer(), ControlRows::Action(),
               OBX_ROW(TStatusBar, AutoHint).Default(false), OBX_ROW(TControl, Align).Default(alBottom),
               OBX_ROW(TWinControl, BorderWidth).Default(0),
               OBX_ROW(TControl, Color).Default(clBtnFace).Stored<&TControl::IsColorStored>(),
               OBX_ROW(TControl, ParentColor).Default(false), OBX_ROW(TControl, ParentFont).Default(false),
               OBX_ROW(TStatusBar, Panels), OBX_ROW(TStatusBar, SimplePanel).Default(false),
               OBX_ROW(TStatusBar, SimpleText), OBX_ROW(TStatusBar, SizeGrip).Default(true),
               OBX_ROW(TStatusBar, UseSystemFont).Default(true), Prop<&TStatusBar::OnHint>("OnHint"),
               Prop<&TStatusBar::OnDrawPanel>("OnDrawPanel")));
    return Class;
}

TStatusPanels::TStatusPanels(TCustomStatusBar* StatusBar)
    : TCollection(StatusBar, TStatusPanel::MetaClass(), CreateItem<TStatusPanel>), FStatusBar(StatusBar)
{
}

void TStatusPanels::Update(TCollectionItem* Item)
{
    if (Item)
        FStatusBar->UpdatePanel(Item->Index());
    // Widths concern the panels behind as well.
    FStatusBar->UpdatePanels();
}

TCustomStatusBar::TCustomStatusBar(TComponent* Owner)
    : TWinControl(Owner), FPanels(this), FCanvas(std::make_unique<TControlCanvas>(this))
{
    FControlStyle = {csCaptureMouse, csClickEvents, csDoubleClicks, csOpaque};
    SetParentColor(false);
    SetParentFont(false);
    SetColor(clBtnFace);
    SetBounds(0, 0, 150, 19);
    SetAlign(alBottom);
}

TCustomStatusBar::~TCustomStatusBar()
{
    SetStateFlag(csDestroying, true);
}

void TCustomStatusBar::SetSimplePanel(bool Value)
{
    if (FSimplePanel == Value)
        return;
    FSimplePanel = Value;
    if (HandleAllocated())
        SendMessageA(Handle(), SB_SIMPLE, Value, 0);
}

void TCustomStatusBar::SetSimpleText(const std::string& Value)
{
    if (FSimpleText == Value)
        return;
    FSimpleText = Value;
    ShowSimpleText();
}

void TCustomStatusBar::SetSizeGrip(bool Value)
{
    if (FSizeGrip == Value)
        return;
    FSizeGrip = Value;
    RecreateWnd();
}

void TCustomStatusBar::CreateParams(TCreateParams& Params)
{
    InitCommonControl(ICC_BAR_CLASSES);
    TWinControl::CreateParams(Params);
    CreateSubClass(Params, STATUSCLASSNAMEA);
    Params.Style |= CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_TOP | (FSizeGrip ? SBARS_SIZEGRIP : 0u);
}

void TCustomStatusBar::CreateWnd()
{
    TWinControl::CreateWnd();
    UpdatePanels();
    ShowSimpleText();
    if (FSimplePanel)
        SendMessageA(Handle(), SB_SIMPLE, 1, 0);
}

void TCustomStatusBar::UpdatePanels()
{
    if (!HandleAllocated() || HasState(csDestroying))
        return;
    std::vector<int> Edges;
    int Right = 0;
    for (int I = 0; I < FPanels.Count(); ++I) {
        Right += FPanels.Items(I)->Width();
        Edges.push_back(Right);
    }
    if (Edges.empty())
        Edges.push_back(-1);
    Edges.back() = -1;
    SendMessageA(Handle(), SB_SETPARTS, Edges.size(), Param(Edges.data()));
    for (int I = 0; I < FPanels.Count(); ++I)
        UpdatePanel(I);
    if (FPanels.Count() == 0)
        ShowText("", 0, taLeftJustify, pbNone, false);
}

void TCustomStatusBar::UpdatePanel(int Index)
{
    if (!HandleAllocated() || HasState(csDestroying))
        return;
    const TStatusPanel& Panel = *FPanels.Items(Index);
    ShowText(Panel.Text(), Index, Panel.Alignment(), Panel.Bevel(), Panel.Style() == psOwnerDraw);
}

void TCustomStatusBar::ShowSimpleText()
{
    if (HandleAllocated())
        ShowText(FSimpleText, SimplePart, taLeftJustify, pbNone, false);
}

// The window aligns what follows a tab in the middle and what follows two at the right.
void TCustomStatusBar::ShowText(const std::string& Text, int Part, TAlignment Alignment,
                                TStatusPanelBevel Bevel, bool OwnerDraw)
{
    static constexpr const char* Tabs[] = {"", "\t\t", "\t"};
    static constexpr WPARAM Borders[] = {SBT_NOBORDERS, 0, SBT_POPOUT};
    const WPARAM Where = static_cast<WPARAM>(Part) | Borders[Bevel] | (OwnerDraw ? SBT_OWNERDRAW : 0);
    const std::string Shown = Tabs[Alignment] + Text;
    SendMessageA(Handle(), SB_SETTEXTA, Where, OwnerDraw ? Part : Param(Shown.c_str()));
}

void TCustomStatusBar::DrawPanel(TStatusPanel* Panel, const TRect& Rect)
{
    if (OnDrawPanel)
        OnDrawPanel(this, Panel, Rect);
    else
        FCanvas->FillRect(Rect);
}

void TCustomStatusBar::Dispatch(TMessage& Message)
{
    if (Message.Msg == CN_DRAWITEM) {
        const auto& Item = *reinterpret_cast<const DRAWITEMSTRUCT*>(Message.LParam);
        if (static_cast<int>(Item.itemID) < FPanels.Count()) {
            FCanvas->SetHandle(Item.hDC);
            DrawPanel(FPanels.Items(static_cast<int>(Item.itemID)), Item.rcItem);
            FCanvas->SetHandle(nullptr);
        }
        Message.Result = 1;
        return;
    }
    TWinControl::Dispatch(Message);
    if (Message.Msg == WM_SIZE)
        UpdatePanels();
}

void RegisterStatusBarClasses()
{
    RegisterClass(TStatusBar::MetaClass());
}
