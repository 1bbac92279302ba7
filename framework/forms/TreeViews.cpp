#include "framework/forms/TreeViews.h"

#include <algorithm>

#include "framework/rtl/SysUtils.h"

namespace {

LPARAM ItemParam(HTREEITEM Item)
{
    return reinterpret_cast<LPARAM>(Item);
}

} // namespace

const TMetaClass& TCustomTreeView::MetaClass()
{
    static const TMetaClass Class("TCustomTreeView", &TWinControl::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TTreeView::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TTreeView", &TCustomTreeView::MetaClass(), CreateComponent<TTreeView>,
        Sorted(
            Look(), Drag(), Mouse(), Focus(true), Bevel(), ControlRows::Ctl3D(), Buffer(),
            ControlRows::Resize(), OBX_ROW(TControl, ParentColor).Default(false),
            OBX_ROW(TWinControl, BorderWidth).Default(0), OBX_ROW(TTreeView, AutoExpand).Default(false),
            OBX_ROW(TTreeView, BorderStyle).Default(bsSingle), OBX_ROW(TTreeView, ChangeDelay).Default(0),
            OBX_ROW(TTreeView, HideSelection).Default(true), OBX_ROW(TTreeView, HotTrack).Default(false),
            OBX_ROW(TTreeView, Images), OBX_ROW(TTreeView, Indent), OBX_ROW(TTreeView, Items),
            OBX_ROW(TTreeView, MultiSelect).Default(false),
            OBX_ROW(TTreeView, MultiSelectStyle).Default(TMultiSelectStyles{msControlSelect}),
            OBX_ROW(TTreeView, ReadOnly).Default(false), OBX_ROW(TTreeView, RightClickSelect).Default(false),
            OBX_ROW(TTreeView, RowSelect).Default(false), OBX_ROW(TTreeView, ShowButtons).Default(true),
            OBX_ROW(TTreeView, ShowLines).Default(true), OBX_ROW(TTreeView, ShowRoot).Default(true),
            OBX_ROW(TTreeView, SortType).Default(stNone), OBX_ROW(TTreeView, StateImages),
            OBX_ROW(TTreeView, ToolTips).Default(true), Prop<&TTreeView::OnAddition>("OnAddition"),
            Prop<&TTreeView::OnCustomDraw>("OnCustomDraw"),
            Prop<&TTreeView::OnCustomDrawItem>("OnCustomDrawItem"), Prop<&TTreeView::OnChange>("OnChange"),
            Prop<&TTreeView::OnChanging>("OnChanging"), Prop<&TTreeView::OnCollapsed>("OnCollapsed"),
            Prop<&TTreeView::OnCollapsing>("OnCollapsing"), Prop<&TTreeView::OnCompare>("OnCompare"),
            Prop<&TTreeView::OnDeletion>("OnDeletion"), Prop<&TTreeView::OnEdited>("OnEdited"),
            Prop<&TTreeView::OnEditing>("OnEditing"), Prop<&TTreeView::OnExpanded>("OnExpanded"),
            Prop<&TTreeView::OnExpanding>("OnExpanding"),
            Prop<&TTreeView::OnGetImageIndex>("OnGetImageIndex"),
            Prop<&TTreeView::OnGetSelectedIndex>("OnGetSelectedIndex"), Prop<&TTreeView::OnHint>("OnHint")));
    return Class;
}

TCustomTreeView::TCustomTreeView(TComponent* Owner)
    : TWinControl(Owner), FItems(this), FCanvas(std::make_unique<TControlCanvas>(this))
{
    FControlStyle.Exclude(csCaptureMouse);
    FControlStyle.Exclude(csSetCaption);
    SetBounds(0, 0, 121, 97);
    SetTabStop(true);
    SetParentColor(false);
}

TCustomTreeView::~TCustomTreeView()
{
    SetStateFlag(csDestroying, true);
}

void TCustomTreeView::Notification(TComponent* Component, TOperation Operation)
{
    TWinControl::Notification(Component, Operation);
    if (Operation == opRemove)
        for (TCustomImageList** const List : {&FImages, &FStateImages})
            if (Component == *List)
                SetImageList(*List, nullptr);
}

void TCustomTreeView::SetImageList(TCustomImageList*& List, TCustomImageList* Value)
{
    List = Value;
    if (Value)
        Value->FreeNotification(this);
    UpdateImages();
}

void TCustomTreeView::UpdateImages()
{
    if (!Live())
        return;
    SendMessageA(Handle(), TVM_SETIMAGELIST, TVSIL_NORMAL, Param(ImagesHandle(FImages)));
    SendMessageA(Handle(), TVM_SETIMAGELIST, TVSIL_STATE, Param(ImagesHandle(FStateImages)));
}

void TCustomTreeView::SetIndent(int Value)
{
    FIndent = Value;
    if (Live())
        SendMessageA(Handle(), TVM_SETINDENT, static_cast<WPARAM>(FIndent), 0);
}

void TCustomTreeView::SetSelected(TTreeNode* Value)
{
    if (FSelected == Value)
        return;
    FSelected = Value;
    if (!Live())
        return;
    const TUpdateScope Scope(FUpdating);
    SendMessageA(Handle(), TVM_SELECTITEM, TVGN_CARET, ItemParam(Value ? Value->FItemId : nullptr));
}

TTreeNode* TCustomTreeView::NodeOf(HTREEITEM Item) const
{
    if (!Item)
        return nullptr;
    TVITEMA Entry{};
    Entry.mask = TVIF_PARAM | TVIF_HANDLE;
    Entry.hItem = Item;
    if (!SendMessageA(WindowHandle(), TVM_GETITEMA, 0, Param(&Entry)))
        return nullptr;
    return reinterpret_cast<TTreeNode*>(Entry.lParam);
}

TTreeNode* TCustomTreeView::GetNodeAt(int X, int Y) const
{
    if (!Live())
        return nullptr;
    TVHITTESTINFO Hit{};
    Hit.pt = {X, Y};
    return NodeOf(reinterpret_cast<HTREEITEM>(SendMessageA(WindowHandle(), TVM_HITTEST, 0, Param(&Hit))));
}

void TCustomTreeView::FullExpand()
{
    for (const auto& Node : FItems.FRoots)
        Node->Expand(true);
}

void TCustomTreeView::FullCollapse()
{
    for (const auto& Node : FItems.FRoots)
        Node->Collapse(true);
}

void TCustomTreeView::SortLevel(std::vector<std::unique_ptr<TTreeNode>>& Nodes)
{
    std::stable_sort(Nodes.begin(), Nodes.end(), [this](const auto& Left, const auto& Right) {
        int Order = AnsiCompareText(Left->FText, Right->FText);
        if (OnCompare)
            OnCompare(this, Left.get(), Right.get(), 0, Order);
        return Order < 0;
    });
    for (const auto& Node : Nodes)
        SortLevel(Node->FChildren);
}

void TCustomTreeView::AlphaSort()
{
    SortLevel(FItems.FRoots);
    FItems.Changed();
    RebuildNodes();
}

void TCustomTreeView::CreateParams(TCreateParams& Params)
{
    InitCommonControl(ICC_TREEVIEW_CLASSES);
    TWinControl::CreateParams(Params);
    CreateSubClass(Params, WC_TREEVIEWA);
    Params.Style |= (FHideSelection ? 0u : TVS_SHOWSELALWAYS) | (FHotTrack ? TVS_TRACKSELECT : 0u) |
                    (FReadOnly ? 0u : TVS_EDITLABELS) | (FRowSelect ? TVS_FULLROWSELECT : 0u) |
                    (FShowButtons ? TVS_HASBUTTONS : 0u) | (FShowLines ? TVS_HASLINES : 0u) |
                    (FShowRoot ? TVS_LINESATROOT : 0u) | (FToolTips ? 0u : TVS_NOTOOLTIPS) |
                    (FAutoExpand ? TVS_SINGLEEXPAND : 0u);
    if (FBorderStyle == bsSingle && Ctl3D())
        Params.ExStyle |= WS_EX_CLIENTEDGE;
    else if (FBorderStyle == bsSingle)
        Params.Style |= WS_BORDER;
    Params.WindowClass.style &= ~static_cast<UINT>(CS_HREDRAW | CS_VREDRAW);
}

void TCustomTreeView::CreateWnd()
{
    TWinControl::CreateWnd();
    SendMessageA(Handle(), TVM_SETBKCOLOR, 0, static_cast<LPARAM>(ColorToRGB(Color())));
    SendMessageA(Handle(), TVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(ColorToRGB(Font()->Color())));
    SendMessageA(Handle(), TVM_SETINDENT, static_cast<WPARAM>(FIndent), 0);
    UpdateImages();
    RebuildNodes();
}

void TCustomTreeView::DestroyWnd()
{
    const TUpdateScope Scope(FUpdating);
    TWinControl::DestroyWnd();
    for (TTreeNode* Node = FItems.GetFirstNode(); Node; Node = Node->GetNext())
        Node->FItemId = nullptr;
}

void TCustomTreeView::RebuildNodes()
{
    if (!Live())
        return;
    const TUpdateScope Scope(FUpdating);
    SendMessageA(Handle(), TVM_DELETEITEM, 0, ItemParam(TVI_ROOT));
    for (TTreeNode* Node = FItems.GetFirstNode(); Node; Node = Node->GetNext())
        Node->FItemId = nullptr;
    for (const auto& Node : FItems.FRoots)
        InsertWindowNodes(*Node);
    if (FSelected)
        SendMessageA(Handle(), TVM_SELECTITEM, TVGN_CARET, ItemParam(FSelected->FItemId));
}

void TCustomTreeView::InsertWindowNodes(TTreeNode& Node)
{
    InsertWindowNode(Node);
    for (const auto& Child : Node.FChildren)
        InsertWindowNodes(*Child);
    if (Node.FExpanded)
        SendMessageA(Handle(), TVM_EXPAND, TVE_EXPAND, ItemParam(Node.FItemId));
}

void TCustomTreeView::InsertWindowNode(TTreeNode& Node)
{
    if (!Live())
        return;
    const TUpdateScope Scope(FUpdating);
    const TTreeNode* const Before = Node.GetPrevSibling();
    TVINSERTSTRUCTA Entry{};
    Entry.hParent = Node.FParent ? Node.FParent->FItemId : TVI_ROOT;
    Entry.hInsertAfter = Before ? Before->FItemId : TVI_FIRST;
    Entry.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    Entry.item.pszText = TextParam(Node.FText);
    Entry.item.lParam = Param(&Node);
    Entry.item.iImage = Node.FImageIndex;
    Entry.item.iSelectedImage = Node.FSelectedIndex;
    Node.FItemId = reinterpret_cast<HTREEITEM>(SendMessageA(Handle(), TVM_INSERTITEMA, 0, Param(&Entry)));
}

void TCustomTreeView::UpdateNode(TTreeNode& Node)
{
    if (!Live() || !Node.FItemId)
        return;
    TVITEMA Entry{};
    Entry.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_STATE | TVIF_HANDLE;
    Entry.hItem = Node.FItemId;
    Entry.pszText = TextParam(Node.FText);
    Entry.iImage = Node.FImageIndex;
    Entry.iSelectedImage = Node.FSelectedIndex;
    Entry.stateMask = TVIS_STATEIMAGEMASK;
    Entry.state = static_cast<UINT>(INDEXTOSTATEIMAGEMASK(std::max(Node.FStateIndex, 0)));
    SendMessageA(Handle(), TVM_SETITEMA, 0, Param(&Entry));
}

void TCustomTreeView::NodeDeleted(TTreeNode& Node)
{
    if (OnDeletion && !HasState(csDestroying) && !IsLoading())
        OnDeletion(this, &Node);
    if (FSelected == &Node)
        FSelected = nullptr;
    if (!Live() || !Node.FItemId)
        return;
    const TUpdateScope Scope(FUpdating);
    SendMessageA(Handle(), TVM_DELETEITEM, 0, ItemParam(Node.FItemId));
    // The window may have chosen another node.
    FSelected = NodeOf(reinterpret_cast<HTREEITEM>(SendMessageA(Handle(), TVM_GETNEXTITEM, TVGN_CARET, 0)));
}

void TCustomTreeView::ExpandNode(TTreeNode& Node, bool Value)
{
    if (Node.FExpanded == Value || Node.FChildren.empty())
        return;
    bool Allow = true;
    if (Value && OnExpanding)
        OnExpanding(this, &Node, Allow);
    else if (!Value && OnCollapsing)
        OnCollapsing(this, &Node, Allow);
    if (!Allow)
        return;
    Node.FExpanded = Value;
    if (Live() && Node.FItemId) {
        const TUpdateScope Scope(FUpdating);
        SendMessageA(Handle(), TVM_EXPAND, Value ? TVE_EXPAND : TVE_COLLAPSE, ItemParam(Node.FItemId));
    }
    if (Value && OnExpanded)
        OnExpanded(this, &Node);
    else if (!Value && OnCollapsed)
        OnCollapsed(this, &Node);
}

void TCustomTreeView::Notify(const NMHDR& Header, TMessage& Message)
{
    if (FUpdating > 0)
        return;
    const auto& Notice = reinterpret_cast<const NMTREEVIEWA&>(Header);
    auto& Info = *reinterpret_cast<NMTVDISPINFOA*>(Message.LParam);
    const int Code = static_cast<int>(Header.code);
    bool Allow = true;
    if (Code == static_cast<int>(TVN_SELCHANGINGA)) {
        if (OnChanging)
            OnChanging(this, NodeOf(Notice.itemNew.hItem), Allow);
        Message.Result = Allow ? 0 : 1;
    } else if (Code == static_cast<int>(TVN_SELCHANGEDA)) {
        FSelected = NodeOf(Notice.itemNew.hItem);
        if (OnChange)
            OnChange(this, FSelected);
    } else if (Code == static_cast<int>(TVN_ITEMEXPANDINGA)) {
        TTreeNode* const Node = NodeOf(Notice.itemNew.hItem);
        if (Node && Notice.action == TVE_EXPAND && OnExpanding)
            OnExpanding(this, Node, Allow);
        else if (Node && Notice.action == TVE_COLLAPSE && OnCollapsing)
            OnCollapsing(this, Node, Allow);
        Message.Result = Allow ? 0 : 1;
    } else if (Code == static_cast<int>(TVN_ITEMEXPANDEDA)) {
        TTreeNode* const Node = NodeOf(Notice.itemNew.hItem);
        if (!Node)
            return;
        Node->FExpanded = Notice.action == TVE_EXPAND;
        if (Node->FExpanded && OnExpanded)
            OnExpanded(this, Node);
        else if (!Node->FExpanded && OnCollapsed)
            OnCollapsed(this, Node);
    } else if (Code == static_cast<int>(TVN_BEGINLABELEDITA)) {
        Allow = !FReadOnly;
        if (OnEditing)
            OnEditing(this, NodeOf(Info.item.hItem), Allow);
        Message.Result = Allow ? 0 : 1;
    } else if (Code == static_cast<int>(TVN_ENDLABELEDITA)) {
        TTreeNode* const Node = NodeOf(Info.item.hItem);
        if (!Node || !Info.item.pszText)
            return;
        std::string Text = Info.item.pszText;
        if (OnEdited)
            OnEdited(this, Node, Text);
        Node->SetText(Text);
    }
}

void TCustomTreeView::Dispatch(TMessage& Message)
{
    if (Message.Msg == CN_NOTIFY)
        Notify(*reinterpret_cast<const NMHDR*>(Message.LParam), Message);
    else
        TWinControl::Dispatch(Message);
}

void RegisterTreeViewClasses()
{
    RegisterClass(TTreeView::MetaClass());
}
