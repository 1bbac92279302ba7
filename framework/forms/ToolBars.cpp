#include "framework/forms/ToolBars.h"

#include <algorithm>

#include "framework/rtl/SysUtils.h"

const TMetaClass& TToolWindow::MetaClass()
{
    static const TMetaClass Class("TToolWindow", &TWinControl::MetaClass(), nullptr);
    return Class;
}

TToolWindow::TToolWindow(TComponent* Owner) : TWinControl(Owner)
{
    SetBounds(0, 0, 150, 29);
}

// An edge takes two pixels for each of its lines that is drawn.
void TToolWindow::AdjustClientRect(TRect& Rect) const
{
    TWinControl::AdjustClientRect(Rect);
    const int Edge = (FEdgeInner != esNone ? 1 : 0) + (FEdgeOuter != esNone ? 1 : 0);
    Rect.left += FEdgeBorders.Contains(ebLeft) ? Edge : 0;
    Rect.top += FEdgeBorders.Contains(ebTop) ? Edge : 0;
    Rect.right -= FEdgeBorders.Contains(ebRight) ? Edge : 0;
    Rect.bottom -= FEdgeBorders.Contains(ebBottom) ? Edge : 0;
}

const TMetaClass& TToolBar::MetaClass()
{
    using ControlRows::Sorted;
    static const TMetaClass Class(
        "TToolBar", &TToolWindow::MetaClass(), CreateComponent<TToolBar>,
        Sorted(CommonControlRows(false), ControlRows::Dock(), ControlRows::Caption(), ControlRows::Ctl3D(),
               ControlRows::AutoSize(false), OBX_ROW(TControl, Align).Default(alTop),
               OBX_ROW(TToolBar, AllowTextButtons).Default(false),
               OBX_ROW(TToolBar, ButtonHeight).Default(22), OBX_ROW(TToolBar, ButtonWidth).Default(23),
               OBX_ROW(TControl, Color).Stored<&TControl::IsColorStored>(),
               OBX_ROW(TToolBar, Customizable).Default(false), OBX_ROW(TToolBar, DisabledImages),
               OBX_ROW(TToolBar, DrawingStyle).Default(dsTBNormal),
               OBX_ROW(TToolBar, EdgeBorders).Default(TEdgeBorders{}),
               OBX_ROW(TToolBar, EdgeInner).Default(esRaised),
               OBX_ROW(TToolBar, EdgeOuter).Default(esLowered), OBX_ROW(TToolBar, Flat).Default(true),
               OBX_ROW(TControl, Font).Stored<&TControl::IsFontStored>(),
               OBX_ROW(TControl, Height).Default(29), OBX_ROW(TToolBar, HideClippedButtons).Default(false),
               OBX_ROW(TToolBar, HotImages), OBX_ROW(TToolBar, Images), OBX_ROW(TToolBar, Indent).Default(0),
               OBX_ROW(TToolBar, List).Default(false), OBX_ROW(TToolBar, Menu),
               OBX_ROW(TControl, ParentColor).Default(true), OBX_ROW(TControl, ParentFont).Default(true),
               OBX_ROW(TToolBar, ShowCaptions).Default(false), OBX_ROW(TToolBar, Transparent).Default(false),
               OBX_ROW(TToolBar, Wrapable).Default(true)));
    return Class;
}

TToolBar::TToolBar(TComponent* Owner) : TToolWindow(Owner)
{
    FControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents,
                     csDoubleClicks,    csMenuEvents,   csSetCaption};
    SetBounds(0, 0, 150, 29);
    SetAlign(alTop);
}

TToolBar::~TToolBar()
{
    SetStateFlag(csDestroying, true);
    for (TToolButton* const Button : FButtons)
        Button->FToolBar = nullptr;
    FButtons.clear();
}

TToolButton* TToolBar::Buttons(int Index) const
{
    if (Index < 0 || Index >= ButtonCount())
        throw EListError(Format(SListIndexError, {Index}));
    return FButtons[static_cast<size_t>(Index)];
}

void TToolBar::GetChildren(const std::function<void(TComponent*)>& Visit, TComponent* Root)
{
    const std::vector<TToolButton*> Children = FButtons;
    for (TToolButton* const Button : Children)
        if (Button->Owner() == Root)
            Visit(Button);
    const auto VisitOthers = [&](TComponent* Child) {
        if (!dynamic_cast<TToolButton*>(Child))
            Visit(Child);
    };
    TToolWindow::GetChildren(VisitOthers, Root);
}

void TToolBar::Notification(TComponent* Component, TOperation Operation)
{
    TToolWindow::Notification(Component, Operation);
    if (Operation != opRemove)
        return;
    for (TCustomImageList** const List : {&FDisabledImages, &FHotImages, &FImages})
        if (Component == *List)
            SetImageList(*List, nullptr);
    if (Component == FMenu)
        FMenu = nullptr;
}

void TToolBar::SetStyleFlag(bool& Flag, bool Value)
{
    if (Flag == Value)
        return;
    Flag = Value;
    RecreateWnd();
}

void TToolBar::SetImageList(TCustomImageList*& List, TCustomImageList* Value)
{
    List = Value;
    if (Value)
        Value->FreeNotification(this);
    UpdateImages();
}

// Each item of the menu bar gets a button; those made earlier go.
void TToolBar::SetMenu(TMainMenu* Value)
{
    if (FMenu == Value)
        return;
    FMenu = Value;
    if (!Value)
        return;
    Value->FreeNotification(this);
    if (IsLoading() || HasState(csDesigning))
        return;
    while (!FButtons.empty())
        delete FButtons.back();
    FShowCaptions = true;
    for (int I = 0; I < Value->Items()->Count(); ++I) {
        auto* const Button = new TToolButton(this);
        Button->SetAutoSize(true);
        Button->SetGrouped(true);
        Button->SetParent(this);
        Button->SetMenuItem(Value->Items()->Items(I));
    }
    RecreateWnd();
}

void TToolBar::InsertButton(TToolButton* Button)
{
    FButtons.push_back(Button);
    Button->FToolBar = this;
    Button->FCommand = FNextCommand++;
    if (!HandleAllocated())
        return;
    InsertWindowButton(ButtonCount() - 1);
    TakePositions();
}

void TToolBar::RemoveButton(TToolButton* Button)
{
    const int Index = Button->Index();
    FButtons.erase(FButtons.begin() + Index);
    Button->FToolBar = nullptr;
    if (!HandleAllocated() || HasState(csDestroying))
        return;
    SendMessageA(Handle(), TB_DELETEBUTTON, static_cast<WPARAM>(Index), 0);
    TakePositions();
}

void TToolBar::CreateParams(TCreateParams& Params)
{
    InitCommonControl(ICC_BAR_CLASSES);
    TToolWindow::CreateParams(Params);
    CreateSubClass(Params, TOOLBARCLASSNAMEA);
    Params.Style |= CCS_NOPARENTALIGN | CCS_NOMOVEY | CCS_NORESIZE | CCS_NODIVIDER;
    Params.Style |= (FFlat ? TBSTYLE_FLAT : 0u) | (FList ? TBSTYLE_LIST : 0u) |
                    (FTransparent ? TBSTYLE_TRANSPARENT : 0u) | (FWrapable ? TBSTYLE_WRAPABLE : 0u);
    Params.WindowClass.style &= ~static_cast<UINT>(CS_HREDRAW | CS_VREDRAW);
}

void TToolBar::CreateWnd()
{
    TToolWindow::CreateWnd();
    SendMessageA(Handle(), TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    const DWORD Extended = TBSTYLE_EX_DRAWDDARROWS | (FAllowTextButtons ? TBSTYLE_EX_MIXEDBUTTONS : 0) |
                           (FHideClippedButtons ? TBSTYLE_EX_HIDECLIPPEDBUTTONS : 0);
    SendMessageA(Handle(), TB_SETEXTENDEDSTYLE, 0, static_cast<LPARAM>(Extended));
    UpdateImages();
    UpdateSizes();
    RebuildButtons();
}

void TToolBar::UpdateImages()
{
    if (!HandleAllocated() || HasState(csDestroying))
        return;
    SendMessageA(Handle(), TB_SETIMAGELIST, 0, Param(ImagesHandle(FImages)));
    SendMessageA(Handle(), TB_SETHOTIMAGELIST, 0, Param(ImagesHandle(FHotImages)));
    SendMessageA(Handle(), TB_SETDISABLEDIMAGELIST, 0, Param(ImagesHandle(FDisabledImages)));
}

void TToolBar::UpdateSizes()
{
    const int Width = FImages ? FImages->Width() : 0;
    const int Height = FImages ? FImages->Height() : 0;
    SendMessageA(Handle(), TB_SETBITMAPSIZE, 0, MAKELPARAM(Width, Height));
    SendMessageA(Handle(), TB_SETBUTTONSIZE, 0, MAKELPARAM(FButtonWidth, FButtonHeight));
    SendMessageA(Handle(), TB_SETINDENT, static_cast<WPARAM>(FIndent), 0);
}

void TToolBar::PropertyChanged()
{
    TToolWindow::PropertyChanged();
    if (!HandleAllocated())
        return;
    UpdateSizes();
    TakePositions();
}

void TToolBar::RebuildButtons()
{
    while (SendMessageA(Handle(), TB_BUTTONCOUNT, 0, 0) > 0)
        SendMessageA(Handle(), TB_DELETEBUTTON, 0, 0);
    for (int I = 0; I < ButtonCount(); ++I)
        InsertWindowButton(I);
    TakePositions();
}

bool TToolBar::ShowsCaption(const TToolButton& Button) const
{
    return FShowCaptions && (!FAllowTextButtons || Button.Style() == tbsTextButton);
}

void TToolBar::InsertWindowButton(int Index)
{
    const TToolButton& Button = *FButtons[static_cast<size_t>(Index)];
    TBBUTTON Entry{};
    const bool IsSeparator = Button.Style() == tbsSeparator || Button.Style() == tbsDivider;
    Entry.iBitmap = IsSeparator               ? Button.Width()
                    : Button.ImageIndex() < 0 ? I_IMAGENONE
                                              : Button.ImageIndex();
    Entry.idCommand = Button.FCommand;
    Entry.fsState = Button.WindowState();
    Entry.fsStyle = Button.WindowStyle();
    const std::string Caption = Button.Caption();
    if (ShowsCaption(Button) && !IsSeparator)
        Entry.iString = static_cast<INT_PTR>(Param(Caption.c_str()));
    else
        Entry.iString = -1;
    SendMessageA(Handle(), TB_INSERTBUTTONA, static_cast<WPARAM>(Index), Param(&Entry));
}

void TToolBar::UpdateButton(TToolButton* Button)
{
    if (!HandleAllocated() || FTakingPositions || HasState(csDestroying))
        return;
    TBBUTTONINFOA Info{};
    const std::string Caption = ShowsCaption(*Button) ? Button->Caption() : std::string();
    Info.cbSize = sizeof Info;
    Info.dwMask = TBIF_STATE | TBIF_STYLE | TBIF_TEXT | TBIF_IMAGE;
    Info.fsState = Button->WindowState();
    Info.fsStyle = Button->WindowStyle();
    Info.pszText = TextParam(Caption);
    Info.iImage = Button->ImageIndex() < 0 ? I_IMAGENONE : Button->ImageIndex();
    if (Button->Style() == tbsSeparator || Button->Style() == tbsDivider) {
        Info.dwMask = TBIF_STATE | TBIF_STYLE | TBIF_SIZE;
        Info.cx = static_cast<WORD>(Button->Width());
    }
    SendMessageA(Handle(), TB_SETBUTTONINFOA, Button->FCommand, Param(&Info));
    TakePositions();
}

// The window lays out its buttons; the objects take their places from it.
void TToolBar::TakePositions()
{
    if (!HandleAllocated() || FTakingPositions || HasState(csDestroying))
        return;
    FTakingPositions = true;
    for (int I = 0; I < ButtonCount(); ++I) {
        TRect Place{};
        if (SendMessageA(Handle(), TB_GETITEMRECT, static_cast<WPARAM>(I), Param(&Place)) &&
            Place.right > Place.left)
            FButtons[static_cast<size_t>(I)]->SetBoundsRect(Place);
    }
    FTakingPositions = false;
}

// Buttons are placed by the window, other controls stay where they are.
void TToolBar::AlignControls(TControl*, TRect&)
{
    TakePositions();
}

bool TToolBar::CanAutoSize(int&, int& NewHeight)
{
    TakePositions();
    int Bottom = 0;
    for (int I = 0; I < ControlCount(); ++I)
        if (Controls(I)->Visible())
            Bottom = std::max(Bottom, Controls(I)->Top() + Controls(I)->Height());
    if (Bottom > 0)
        NewHeight = Height() - ClientHeight() + Bottom;
    return true;
}

void TToolBar::WndProc(TMessage& Message)
{
    // The window reacts to the mouse itself; its buttons only hear of it.
    const bool Mouse =
        Message.Msg >= WM_MOUSEFIRST && Message.Msg <= WM_MOUSELAST && Message.Msg != WM_MOUSEWHEEL;
    if (Mouse && !HasState(csDesigning) &&
        dynamic_cast<TToolButton*>(ControlAtPos(Point(Message.X(), Message.Y()), false))) {
        TMessage ForButton = Message;
        IsControlMouseMessage(ForButton);
        DefaultHandler(Message);
        return;
    }
    TToolWindow::WndProc(Message);
}

void TToolBar::Dispatch(TMessage& Message)
{
    if (Message.Msg == CN_COMMAND) {
        for (TToolButton* const Button : FButtons)
            if (Button->FCommand == Message.Id()) {
                if (Button->Style() == tbsCheck)
                    Button->SetDown(SendMessageA(Handle(), TB_ISBUTTONCHECKED, Button->FCommand, 0) != 0);
                if (Button->Style() == tbsDropDown || !Button->MenuItem() || !Button->CheckMenuDropdown())
                    Button->Click();
                return;
            }
    }
    if (Message.Msg == CN_NOTIFY) {
        const auto& Notice = *reinterpret_cast<const NMTOOLBARA*>(Message.LParam);
        if (Notice.hdr.code == static_cast<UINT>(TBN_DROPDOWN))
            for (TToolButton* const Button : FButtons)
                if (Button->FCommand == Notice.iItem) {
                    // 1: the menu was not shown, the click is an ordinary one.
                    Message.Result = Button->CheckMenuDropdown() ? 0 : 1;
                    return;
                }
    }
    TToolWindow::Dispatch(Message);
    if (Message.Msg == CM_ENABLEDCHANGED || Message.Msg == CM_FONTCHANGED)
        for (TToolButton* const Button : FButtons)
            UpdateButton(Button);
    if (Message.Msg == WM_SIZE)
        TakePositions();
}
