#include <algorithm>
#include <memory>
#include <unordered_set>
#include <utility>
#include <vector>

#include "platform/portable/Control.h"

// A node of a tree; handles are addresses that the control checks before use.
struct _TREEITEM {
    _TREEITEM* Parent = nullptr;
    std::vector<std::unique_ptr<_TREEITEM>> Children;
    std::string Text;
    LPARAM Data = 0;
    UINT State = 0;
    int Image = 0;
    int SelectedImage = 0;
    int ChildCount = -1; // what the program says, -1: what there is

    bool Expanded() const { return (State & TVIS_EXPANDED) != 0; }
    bool HasChildren() const { return ChildCount >= 0 ? ChildCount > 0 : !Children.empty(); }
};

namespace {
constexpr int BoxSide = 9;

class TTreeView final : public TSystemControl {
public:
    using TSystemControl::TSystemControl;
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override;

protected:
    void Paint(HDC Dc) override;

private:
    using TNode = _TREEITEM;

    TNode* Known(LPARAM LParam) const;
    TNode* ParentOf(HTREEITEM Item)
    {
        return Item && Item != TVI_ROOT ? Known(reinterpret_cast<LPARAM>(Item)) : &FRoot;
    }
    LRESULT HandleItems(UINT Message, WPARAM WParam, LPARAM LParam);
    LRESULT HandleLayout(UINT Message, WPARAM WParam, LPARAM LParam);
    TNode* Insert(const TVINSERTSTRUCTA& Data);
    void Set(TNode& Node, const TVITEMA& Item);
    void Get(const TNode& Node, TVITEMA& Item) const;
    bool Delete(TNode* Node);
    void Forget(TNode& Node);
    bool Expand(TNode& Node, UINT Action);
    bool Select(TNode* Node, UINT Action);
    TNode* Relative(UINT Relation, TNode* Node);
    static TNode* Sibling(TNode& Node, int Step);
    bool Inside(const TNode* Node, const TNode& Ancestor) const;
    void Sort(TNode& Parent, const TVSORTCB* How);
    void List(TNode& Parent, int Level, std::vector<std::pair<TNode*, int>>& Rows);
    std::vector<std::pair<TNode*, int>> Rows();
    LRESULT Tell(UINT Code, TNode* Old, TNode* New, UINT Action);
    int RowHeight() const { return FHeight ? FHeight : std::max(LineHeight() + 3, FImages ? 17 : 0); }
    int RowOf(const TNode& Node);
    int LabelLeft(const TNode& Node, int Level) const;
    void Click(POINT Point);
    void Key(WPARAM Key);
    void PaintRow(HDC Dc, TNode& Node, int Level, int Top);
    void PaintLines(HDC Dc, TNode& Node, int Level, int Top);

    TNode FRoot;
    std::unordered_set<const TNode*> FNodes;
    TNode* FSelected = nullptr;
    HIMAGELIST FImages = nullptr;
    int FIndent = 19;
    int FHeight = 0;
    int FTop = 0;
};

_TREEITEM* TTreeView::Known(LPARAM LParam) const
{
    auto* const Node = reinterpret_cast<TNode*>(LParam);
    return FNodes.count(Node) ? Node : nullptr;
}

LRESULT TTreeView::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    if (Message >= TV_FIRST && Message < TV_FIRST + 0x100)
        return HandleItems(Message, WParam, LParam);
    switch (Message) {
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        TSystemControl::Handle(Message, WParam, LParam);
        Notify(static_cast<UINT>(Message == WM_SETFOCUS ? NM_SETFOCUS : NM_KILLFOCUS));
        return 0;
    case WM_SETREDRAW:
        return SetRedraw(WParam != 0);
    case WM_LBUTTONDOWN:
        SetFocus(Window());
        if (Alive())
            Click(PointOf(LParam));
        if (Alive())
            Notify(static_cast<UINT>(NM_CLICK));
        return 0;
    case WM_LBUTTONDBLCLK:
        if (!Notify(static_cast<UINT>(NM_DBLCLK)) && Alive() && FSelected)
            Expand(*FSelected, TVE_TOGGLE);
        return 0;
    case WM_KEYDOWN:
        Key(WParam);
        return 0;
    case WM_DESTROY:
        while (Alive() && !FRoot.Children.empty())
            Delete(FRoot.Children.back().get());
        return 0;
    default:
        return TSystemControl::Handle(Message, WParam, LParam);
    }
}

LRESULT TTreeView::HandleItems(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case TVM_INSERTITEMA:
        return reinterpret_cast<LRESULT>(Insert(Structure<TVINSERTSTRUCTA>(LParam)));
    case TVM_DELETEITEM: {
        if (LParam && reinterpret_cast<HTREEITEM>(LParam) != TVI_ROOT)
            return Delete(Known(LParam));
        while (Alive() && !FRoot.Children.empty())
            Delete(FRoot.Children.front().get());
        return TRUE;
    }
    case TVM_SETITEMA: {
        const auto& Item = Structure<TVITEMA>(LParam);
        TNode* const Node = Known(reinterpret_cast<LPARAM>(Item.hItem));
        if (Node)
            Set(*Node, Item);
        Invalidate();
        return Node != nullptr;
    }
    case TVM_GETITEMA: {
        auto& Item = Structure<TVITEMA>(LParam);
        const TNode* const Node = Known(reinterpret_cast<LPARAM>(Item.hItem));
        if (Node)
            Get(*Node, Item);
        return Node != nullptr;
    }
    case TVM_GETCOUNT:
        return static_cast<LRESULT>(FNodes.size());
    case TVM_GETNEXTITEM:
        return reinterpret_cast<LRESULT>(
            Relative(static_cast<UINT>(WParam),
                     LParam && reinterpret_cast<HTREEITEM>(LParam) != TVI_ROOT ? Known(LParam) : &FRoot));
    case TVM_SELECTITEM:
        if (LParam && !Known(LParam))
            return FALSE;
        return WParam == TVGN_CARET ? Select(Known(LParam), TVC_UNKNOWN) : TRUE;
    case TVM_EXPAND: {
        TNode* const Node = Known(LParam);
        return Node && Expand(*Node, static_cast<UINT>(WParam));
    }
    case TVM_GETITEMSTATE: {
        const TNode* const Node = Known(static_cast<::LPARAM>(WParam));
        return Node ? Node->State & static_cast<UINT>(LParam) : 0;
    }
    case TVM_SORTCHILDREN:
    case TVM_SORTCHILDRENCB: {
        const auto* const How = Message == TVM_SORTCHILDRENCB ? &Structure<TVSORTCB>(LParam) : nullptr;
        TNode* const Parent = ParentOf(How ? How->hParent : reinterpret_cast<HTREEITEM>(LParam));
        if (Parent)
            Sort(*Parent, How);
        return Parent != nullptr;
    }
    default:
        return HandleLayout(Message, WParam, LParam);
    }
}

LRESULT TTreeView::HandleLayout(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case TVM_SETIMAGELIST:
        Invalidate();
        return reinterpret_cast<LRESULT>(std::exchange(FImages, reinterpret_cast<HIMAGELIST>(LParam)));
    case TVM_GETIMAGELIST:
        return reinterpret_cast<LRESULT>(FImages);
    case TVM_SETINDENT:
        FIndent = std::max(19, static_cast<int>(WParam));
        return 0;
    case TVM_GETINDENT:
        return FIndent;
    case TVM_SETITEMHEIGHT:
        return std::exchange(FHeight, static_cast<int>(WParam));
    case TVM_GETITEMHEIGHT:
        return RowHeight();
    case TVM_GETVISIBLECOUNT:
        return ClientRect().bottom / RowHeight();
    case TVM_GETITEMRECT: {
        HTREEITEM Item;
        std::copy_n(reinterpret_cast<const HTREEITEM*>(LParam), 1, &Item);
        const TNode* const Node = Known(reinterpret_cast<::LPARAM>(Item));
        const int Row = Node ? RowOf(*Node) : -1;
        if (Row < 0)
            return FALSE;
        const int Top = (Row - FTop) * RowHeight();
        Structure<RECT>(LParam) = {0, Top, ClientRect().right, Top + RowHeight()};
        return TRUE;
    }
    case TVM_HITTEST: {
        auto& Info = Structure<TVHITTESTINFO>(LParam);
        const auto All = Rows();
        const int Row = Info.pt.y / RowHeight() + FTop;
        Info.hItem = Row >= 0 && Row < static_cast<int>(All.size()) ? All[static_cast<std::size_t>(Row)].first
                                                                    : nullptr;
        Info.flags = Info.hItem ? TVHT_ONITEMLABEL : TVHT_NOWHERE;
        return reinterpret_cast<LRESULT>(Info.hItem);
    }
    case TVM_ENSUREVISIBLE: {
        TNode* const Node = Known(LParam);
        for (TNode* Each = Node ? Node->Parent : nullptr; Each && Each != &FRoot && Alive();
             Each = Each->Parent)
            Expand(*Each, TVE_EXPAND);
        return Node != nullptr;
    }
    default:
        return Default(Message, WParam, LParam);
    }
}

LRESULT TTreeView::Tell(UINT Code, TNode* Old, TNode* New, UINT Action)
{
    NMTREEVIEWA Info{};
    Info.action = Action;
    const auto Fill = [](TVITEMA& Item, TNode* Node) {
        if (Node) {
            Item.mask = TVIF_HANDLE | TVIF_PARAM | TVIF_STATE;
            Item.hItem = Node;
            Item.lParam = Node->Data;
            Item.state = Node->State;
        }
    };
    Fill(Info.itemOld, Old);
    Fill(Info.itemNew, New);
    return NotifyWith(Info.hdr, Code);
}

_TREEITEM* TTreeView::Insert(const TVINSERTSTRUCTA& Data)
{
    TNode* const Parent = ParentOf(Data.hParent);
    if (!Parent)
        return nullptr;
    auto Node = std::make_unique<TNode>();
    Node->Parent = Parent;
    Set(*Node, Data.item);
    auto& Children = Parent->Children;
    auto Place = Children.end();
    if (Data.hInsertAfter == TVI_FIRST) {
        Place = Children.begin();
    } else if (Data.hInsertAfter == TVI_SORT) {
        Place = std::find_if(Children.begin(), Children.end(),
                             [&](const auto& Other) { return SortsBefore(Node->Text, Other->Text); });
    } else if (Data.hInsertAfter && Data.hInsertAfter != TVI_LAST) {
        Place = std::find_if(Children.begin(), Children.end(),
                             [&](const auto& Other) { return Other.get() == Data.hInsertAfter; });
        if (Place != Children.end())
            ++Place;
    }
    TNode* const Result = Children.insert(Place, std::move(Node))->get();
    FNodes.insert(Result);
    Invalidate();
    return Result;
}

void TTreeView::Set(TNode& Node, const TVITEMA& Item)
{
    if ((Item.mask & TVIF_TEXT) && Item.pszText != LPSTR_TEXTCALLBACKA)
        Node.Text = Item.pszText ? Item.pszText : "";
    if (Item.mask & TVIF_PARAM)
        Node.Data = Item.lParam;
    if (Item.mask & TVIF_IMAGE)
        Node.Image = Item.iImage;
    if (Item.mask & TVIF_SELECTEDIMAGE)
        Node.SelectedImage = Item.iSelectedImage;
    if (Item.mask & TVIF_CHILDREN)
        Node.ChildCount = Item.cChildren;
    if (Item.mask & TVIF_STATE)
        Node.State = (Node.State & ~Item.stateMask) | (Item.state & Item.stateMask);
}

void TTreeView::Get(const TNode& Node, TVITEMA& Item) const
{
    if ((Item.mask & TVIF_TEXT) && Item.pszText)
        CopyText(Node.Text, Item.pszText, Item.cchTextMax);
    if (Item.mask & TVIF_PARAM)
        Item.lParam = Node.Data;
    if (Item.mask & TVIF_IMAGE)
        Item.iImage = Node.Image;
    if (Item.mask & TVIF_SELECTEDIMAGE)
        Item.iSelectedImage = Node.SelectedImage;
    if (Item.mask & TVIF_CHILDREN)
        Item.cChildren = Node.HasChildren();
    if (Item.mask & TVIF_STATE)
        Item.state = Node.State;
}

bool TTreeView::Inside(const TNode* Node, const TNode& Ancestor) const
{
    while (Node && Node != &Ancestor)
        Node = Node->Parent;
    return Node != nullptr;
}

// Children go before their parent.
void TTreeView::Forget(TNode& Node)
{
    for (auto& Child : Node.Children)
        Forget(*Child);
    if (Alive())
        Tell(static_cast<UINT>(TVN_DELETEITEMA), &Node, nullptr, 0);
    FNodes.erase(&Node);
}

bool TTreeView::Delete(TNode* Node)
{
    if (!Node)
        return false;
    if (Inside(FSelected, *Node))
        FSelected = nullptr;
    // Taken out first: a handler that looks at the tree must not meet it again.
    auto& Siblings = Node->Parent->Children;
    const auto Place =
        std::find_if(Siblings.begin(), Siblings.end(), [&](const auto& Each) { return Each.get() == Node; });
    const std::unique_ptr<TNode> Kept = std::move(*Place);
    Siblings.erase(Place);
    Forget(*Kept);
    Invalidate();
    return true;
}

bool TTreeView::Expand(TNode& Node, UINT Action)
{
    const UINT Kind = Action & 3;
    const bool Open = Kind == TVE_TOGGLE ? !Node.Expanded() : Kind == TVE_EXPAND;
    if (!Node.HasChildren())
        return false;
    if (Open == Node.Expanded())
        return true;
    const bool Told = Open && !(Node.State & TVIS_EXPANDEDONCE);
    const UINT Sent = Open ? TVE_EXPAND : TVE_COLLAPSE;
    if (Told && Tell(static_cast<UINT>(TVN_ITEMEXPANDINGA), nullptr, &Node, Sent))
        return false;
    if (!Alive() || !FNodes.count(&Node))
        return false;
    Node.State = Open ? Node.State | TVIS_EXPANDED | TVIS_EXPANDEDONCE : Node.State & ~UINT{TVIS_EXPANDED};
    if (!Open && FSelected != &Node && Inside(FSelected, Node)) {
        FSelected->State &= ~UINT{TVIS_SELECTED};
        FSelected = &Node;
        Node.State |= TVIS_SELECTED;
    }
    Invalidate();
    if (Told)
        Tell(static_cast<UINT>(TVN_ITEMEXPANDEDA), nullptr, &Node, Sent);
    return true;
}

bool TTreeView::Select(TNode* Node, UINT Action)
{
    if (Node == FSelected)
        return true;
    TNode* const Old = FSelected;
    if (Tell(static_cast<UINT>(TVN_SELCHANGINGA), Old, Node, Action) || !Alive() ||
        (Node && !FNodes.count(Node)))
        return false;
    if (FSelected)
        FSelected->State &= ~UINT{TVIS_SELECTED};
    FSelected = Node;
    for (TNode* Each = Node; Each && (Each = Each->Parent) && Each != &FRoot;)
        Each->State |= TVIS_EXPANDED | TVIS_EXPANDEDONCE;
    if (Node)
        Node->State |= TVIS_SELECTED;
    Invalidate();
    Tell(static_cast<UINT>(TVN_SELCHANGEDA), Old, Node, Action);
    return true;
}

_TREEITEM* TTreeView::Sibling(TNode& Node, int Step)
{
    const auto& All = Node.Parent->Children;
    const auto Place =
        std::find_if(All.begin(), All.end(), [&](const auto& Each) { return Each.get() == &Node; }) -
        All.begin() + Step;
    return Place >= 0 && Place < static_cast<std::ptrdiff_t>(All.size())
               ? All[static_cast<std::size_t>(Place)].get()
               : nullptr;
}

_TREEITEM* TTreeView::Relative(UINT Relation, TNode* Node)
{
    switch (Relation) {
    case TVGN_ROOT:
        return FRoot.Children.empty() ? nullptr : FRoot.Children[0].get();
    case TVGN_CARET:
        return FSelected;
    case TVGN_CHILD:
        return Node && !Node->Children.empty() ? Node->Children[0].get() : nullptr;
    case TVGN_PARENT:
        return Node && Node->Parent && Node->Parent != &FRoot ? Node->Parent : nullptr;
    case TVGN_NEXT:
    case TVGN_PREVIOUS:
        return Node && Node->Parent ? Sibling(*Node, Relation == TVGN_NEXT ? 1 : -1) : nullptr;
    case TVGN_FIRSTVISIBLE: {
        const auto All = Rows();
        return All.empty()
                   ? nullptr
                   : All[static_cast<std::size_t>(std::min<int>(FTop, static_cast<int>(All.size()) - 1))]
                         .first;
    }
    case TVGN_NEXTVISIBLE:
    case TVGN_PREVIOUSVISIBLE: {
        const auto All = Rows();
        const int Row = Node ? RowOf(*Node) : -1;
        const int Other = Row + (Relation == TVGN_NEXTVISIBLE ? 1 : -1);
        return Row >= 0 && Other >= 0 && Other < static_cast<int>(All.size())
                   ? All[static_cast<std::size_t>(Other)].first
                   : nullptr;
    }
    default:
        return nullptr;
    }
}

void TTreeView::Sort(TNode& Parent, const TVSORTCB* How)
{
    std::stable_sort(Parent.Children.begin(), Parent.Children.end(), [&](const auto& A, const auto& B) {
        return How ? How->lpfnCompare(A->Data, B->Data, How->lParam) < 0 : SortsBefore(A->Text, B->Text);
    });
    Invalidate();
}

void TTreeView::List(TNode& Parent, int Level, std::vector<std::pair<TNode*, int>>& Found)
{
    for (auto& Child : Parent.Children) {
        Found.emplace_back(Child.get(), Level);
        if (Child->Expanded())
            List(*Child, Level + 1, Found);
    }
}

std::vector<std::pair<_TREEITEM*, int>> TTreeView::Rows()
{
    std::vector<std::pair<TNode*, int>> Found;
    List(FRoot, 0, Found);
    return Found;
}

int TTreeView::RowOf(const TNode& Node)
{
    const auto All = Rows();
    for (std::size_t Row = 0; Row < All.size(); ++Row)
        if (All[Row].first == &Node)
            return static_cast<int>(Row);
    return -1;
}

void TTreeView::Click(POINT Point)
{
    const auto All = Rows();
    const int Row = Point.y / RowHeight() + FTop;
    if (Row < 0 || Row >= static_cast<int>(All.size()))
        return;
    const auto [Node, Level] = All[static_cast<std::size_t>(Row)];
    const int Box = (Level + (Style() & TVS_LINESATROOT ? 1 : 0)) * FIndent;
    if ((Style() & TVS_HASBUTTONS) && Point.x < Box && Point.x >= Box - FIndent && Node->HasChildren())
        Expand(*Node, TVE_TOGGLE);
    else
        Select(Node, TVC_BYMOUSE);
}

void TTreeView::Key(WPARAM Key)
{
    TNode* const Node = FSelected ? FSelected : Relative(TVGN_ROOT, nullptr);
    if (!Node)
        return;
    const auto Move = [&](TNode* To) {
        if (To)
            Select(To, TVC_BYKEYBOARD);
    };
    switch (Key) {
    case VK_UP:
        return Move(Relative(TVGN_PREVIOUSVISIBLE, Node));
    case VK_DOWN:
        return Move(Relative(TVGN_NEXTVISIBLE, Node));
    case VK_HOME:
        return Move(Relative(TVGN_ROOT, nullptr));
    case VK_ADD:
        return static_cast<void>(Expand(*Node, TVE_EXPAND));
    case VK_SUBTRACT:
        return static_cast<void>(Expand(*Node, TVE_COLLAPSE));
    case VK_RIGHT:
        if (Node->HasChildren() && !Node->Expanded())
            Expand(*Node, TVE_EXPAND);
        else
            Move(Relative(TVGN_CHILD, Node));
        return;
    case VK_LEFT:
        if (Node->Expanded() && Node->HasChildren())
            Expand(*Node, TVE_COLLAPSE);
        else
            Move(Relative(TVGN_PARENT, Node));
        return;
    default:
        return;
    }
}

int TTreeView::LabelLeft(const TNode&, int Level) const
{
    return (Level + (Style() & TVS_LINESATROOT ? 1 : 0)) * FIndent + 2;
}

void TTreeView::Paint(HDC Dc)
{
    const RECT Client = ClientRect();
    FillRect(Dc, &Client, GetSysColorBrush(COLOR_WINDOW));
    const auto All = Rows();
    int Top = 0;
    for (std::size_t Row = static_cast<std::size_t>(FTop); Row < All.size() && Top < Client.bottom; ++Row) {
        PaintRow(Dc, *All[Row].first, All[Row].second, Top);
        Top += RowHeight();
    }
}

void TTreeView::PaintLines(HDC Dc, TNode& Node, int Level, int Top)
{
    const int Middle = Top + RowHeight() / 2;
    const auto Dots = [&](int Left, int Up, int Right, int Down) {
        for (int Y = Up; Y < Down; ++Y)
            for (int X = Left; X < Right; ++X)
                if ((X + Y) % 2 == 0)
                    SetPixelV(Dc, X, Y, GetSysColor(COLOR_BTNSHADOW));
    };
    const int X = LabelLeft(Node, Level) - FIndent / 2 - 2;
    if ((Style() & TVS_HASLINES) && X > 0) {
        Dots(X, Middle, LabelLeft(Node, Level), Middle + 1);
        if (Level > 0 || Sibling(Node, -1))
            Dots(X, Top, X + 1, Middle);
        if (Sibling(Node, 1))
            Dots(X, Middle, X + 1, Top + RowHeight());
        int AncestorX = X - FIndent;
        for (TNode* Each = Node.Parent; Each && Each != &FRoot && AncestorX > 0;
             Each = Each->Parent, AncestorX -= FIndent)
            if (Sibling(*Each, 1))
                Dots(AncestorX, Top, AncestorX + 1, Top + RowHeight());
    }
    if (!(Style() & TVS_HASBUTTONS) || !Node.HasChildren() || X <= 0)
        return;
    RECT Box = {X - BoxSide / 2, Middle - BoxSide / 2, X + BoxSide / 2 + 1, Middle + BoxSide / 2 + 1};
    FillRect(Dc, &Box, GetSysColorBrush(COLOR_WINDOW));
    FrameRect(Dc, &Box, GetSysColorBrush(COLOR_BTNSHADOW));
    const RECT Minus = {X - 2, Middle, X + 3, Middle + 1}, Plus = {X, Middle - 2, X + 1, Middle + 3};
    FillRect(Dc, &Minus, GetSysColorBrush(COLOR_WINDOWTEXT));
    if (!Node.Expanded())
        FillRect(Dc, &Plus, GetSysColorBrush(COLOR_WINDOWTEXT));
}

void TTreeView::PaintRow(HDC Dc, TNode& Node, int Level, int Top)
{
    PaintLines(Dc, Node, Level, Top);
    int Left = LabelLeft(Node, Level);
    if (FImages) {
        const int Image = &Node == FSelected ? Node.SelectedImage : Node.Image;
        ImageList_Draw(FImages, Image, Dc, Left, Top + (RowHeight() - 16) / 2, ILD_TRANSPARENT);
        Left += 19;
    }
    RECT Label = {Left, Top, Left + WidthOf(Node.Text) + 4, Top + RowHeight()};
    const bool Marked = &Node == FSelected && (Focused() || (Style() & TVS_SHOWSELALWAYS));
    if (Marked) {
        FillRect(Dc, &Label, GetSysColorBrush(Focused() ? COLOR_HIGHLIGHT : COLOR_BTNFACE));
        SetTextColor(Dc, GetSysColor(Focused() ? COLOR_HIGHLIGHTTEXT : COLOR_BTNTEXT));
    } else {
        SetTextColor(Dc, GetSysColor(Enabled() ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT));
    }
    DrawItemText(Dc, Node.Text, Label, DT_CENTER | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    if (Marked && Focused())
        DrawFocusRect(Dc, &Label);
}
} // namespace

void RegisterSystemTreeViews()
{
    RegisterControl<TTreeView>(WC_TREEVIEWA);
}
