#include "framework/forms/TreeNodes.h"

#include <algorithm>

#include "framework/forms/ItemBytes.h"
#include "framework/forms/TreeViews.h"
#include "framework/rtl/Filer.h"
#include "framework/rtl/Streams.h"
#include "framework/rtl/SysUtils.h"

namespace {

constexpr const char* NarrowProperty = "Data";
constexpr const char* WideProperty = "NodeData";
constexpr char WideVersion = 3;
constexpr int DeepestLevel = 1000;

} // namespace

// How the versions of "NodeData" differ.
struct TTreeNodes::TLayout {
    bool Wide;      // 16-bit characters and a picture for expanded nodes
    int Flags;      // bytes before the text, the last of which says enabled
    bool ClassName; // before each node; empty when it is that of the node before
    int Trailer;    // bytes behind the text
    int Depth = 0;
};

const TMetaClass& TTreeNode::MetaClass()
{
    static const TMetaClass Class("TTreeNode", &TPersistent::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TTreeNodes::MetaClass()
{
    static const TMetaClass Class("TTreeNodes", &TPersistent::MetaClass(), nullptr);
    return Class;
}

TTreeNode::~TTreeNode() = default;

std::vector<std::unique_ptr<TTreeNode>>& TTreeNode::Siblings() const
{
    return FParent ? FParent->FChildren : FOwner->FRoots;
}

TTreeNode* TTreeNode::Item(int Index) const
{
    if (Index < 0 || Index >= Count())
        throw EListError(Format(SListIndexError, {Index}));
    return FChildren[static_cast<size_t>(Index)].get();
}

int TTreeNode::Index() const
{
    const auto& All = Siblings();
    const auto Found =
        std::find_if(All.begin(), All.end(), [this](const auto& Node) { return Node.get() == this; });
    return static_cast<int>(Found - All.begin());
}

int TTreeNode::AbsoluteIndex() const
{
    int Result = 0;
    for (const TTreeNode* Node = FOwner->GetFirstNode(); Node != this; Node = Node->GetNext())
        ++Result;
    return Result;
}

int TTreeNode::Level() const
{
    int Result = 0;
    for (const TTreeNode* Node = FParent; Node; Node = Node->FParent)
        ++Result;
    return Result;
}

TTreeNode* TTreeNode::GetFirstChild() const
{
    return FChildren.empty() ? nullptr : FChildren.front().get();
}

TTreeNode* TTreeNode::GetNextSibling() const
{
    const auto& All = Siblings();
    const auto Next = static_cast<size_t>(Index()) + 1;
    return Next < All.size() ? All[Next].get() : nullptr;
}

TTreeNode* TTreeNode::GetPrevSibling() const
{
    const int Own = Index();
    return Own > 0 ? Siblings()[static_cast<size_t>(Own) - 1].get() : nullptr;
}

TTreeNode* TTreeNode::GetNext() const
{
    if (TTreeNode* const Child = GetFirstChild())
        return Child;
    for (const TTreeNode* Node = this; Node; Node = Node->FParent)
        if (TTreeNode* const Next = Node->GetNextSibling())
            return Next;
    return nullptr;
}

template<class T>
void TTreeNode::Set(T& Field, const T& Value)
{
    if (Field == Value)
        return;
    Field = Value;
    FOwner->Changed();
    FOwner->TreeView()->UpdateNode(*this);
}

void TTreeNode::SetText(const std::string& Value)
{
    Set(FText, Value);
}

void TTreeNode::SetImageIndex(int Value)
{
    Set(FImageIndex, Value);
}

void TTreeNode::SetSelectedIndex(int Value)
{
    Set(FSelectedIndex, Value);
}

void TTreeNode::SetStateIndex(int Value)
{
    Set(FStateIndex, Value);
}

void TTreeNode::SetExpanded(bool Value)
{
    if (Value)
        Expand(false);
    else
        Collapse(false);
}

void TTreeNode::Expand(bool Recurse)
{
    FOwner->TreeView()->ExpandNode(*this, true);
    if (Recurse)
        for (const auto& Child : FChildren)
            Child->Expand(true);
}

void TTreeNode::Collapse(bool Recurse)
{
    if (Recurse)
        for (const auto& Child : FChildren)
            Child->Collapse(true);
    FOwner->TreeView()->ExpandNode(*this, false);
}

bool TTreeNode::Selected() const
{
    return FOwner->TreeView()->Selected() == this;
}

void TTreeNode::SetSelected(bool Value)
{
    if (Value != Selected())
        FOwner->TreeView()->SetSelected(Value ? this : nullptr);
}

void TTreeNode::Delete()
{
    FOwner->Delete(this);
}

void TTreeNode::DeleteChildren()
{
    while (!FChildren.empty())
        FOwner->Delete(FChildren.back().get());
}

void TTreeNode::MakeVisible()
{
    for (TTreeNode* Node = FParent; Node; Node = Node->FParent)
        Node->Expand(false);
    if (FItemId)
        SendMessageA(FOwner->TreeView()->Handle(), TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(FItemId));
}

TTreeNodes::~TTreeNodes() = default;

TPersistent* TTreeNodes::GetOwner() const
{
    return FTreeView;
}

int TTreeNodes::Count() const
{
    int Result = 0;
    for (const TTreeNode* Node = GetFirstNode(); Node; Node = Node->GetNext())
        ++Result;
    return Result;
}

TTreeNode* TTreeNodes::Item(int Index) const
{
    int Left = Index;
    for (TTreeNode* Node = GetFirstNode(); Node; Node = Node->GetNext())
        if (Left-- == 0)
            return Node;
    throw EListError(Format(SListIndexError, {Index}));
}

TTreeNode* TTreeNodes::GetFirstNode() const
{
    return FRoots.empty() ? nullptr : FRoots.front().get();
}

TTreeNode* TTreeNodes::Add(TTreeNode* Sibling, const std::string& Text)
{
    return AddChild(Sibling ? Sibling->FParent : nullptr, Text);
}

TTreeNode* TTreeNodes::AddChild(TTreeNode* Parent, const std::string& Text)
{
    return InsertAt(Parent, Parent ? Parent->Count() : static_cast<int>(FRoots.size()), Text);
}

TTreeNode* TTreeNodes::Insert(TTreeNode* Sibling, const std::string& Text)
{
    return InsertAt(Sibling ? Sibling->FParent : nullptr, Sibling ? Sibling->Index() : 0, Text);
}

TTreeNode* TTreeNodes::InsertAt(TTreeNode* Parent, int Index, const std::string& Text)
{
    auto& Nodes = Parent ? Parent->FChildren : FRoots;
    auto Node = std::make_unique<TTreeNode>(this);
    Node->FParent = Parent;
    Node->FText = Text;
    TTreeNode* const Result = Node.get();
    Nodes.insert(Nodes.begin() + Index, std::move(Node));
    Changed();
    FTreeView->InsertWindowNode(*Result);
    return Result;
}

// The node leaves its siblings first: the window reports the deletion.
void TTreeNodes::Delete(TTreeNode* Node)
{
    Node->DeleteChildren();
    FTreeView->NodeDeleted(*Node);
    auto& Nodes = Node->Siblings();
    const auto Place = Nodes.begin() + Node->Index();
    const std::unique_ptr<TTreeNode> Kept = std::move(*Place);
    Nodes.erase(Place);
    Changed();
}

void TTreeNodes::Clear()
{
    while (!FRoots.empty())
        Delete(FRoots.back().get());
    Changed();
}

void TTreeNodes::BeginUpdate()
{
    if (FTreeView->HandleAllocated())
        SendMessageA(FTreeView->Handle(), WM_SETREDRAW, 0, 0);
}

void TTreeNodes::EndUpdate()
{
    if (FTreeView->HandleAllocated())
        SendMessageA(FTreeView->Handle(), WM_SETREDRAW, 1, 0);
}

void TTreeNodes::Assign(const TPersistent* Source)
{
    const auto* const Others = dynamic_cast<const TTreeNodes*>(Source);
    if (!Others) {
        TPersistent::Assign(Source);
        return;
    }
    if (Others == this)
        return;
    Clear();
    CopyNodes(Others->FRoots, nullptr);
    FStored = Others->FStored;
    FStoredAs = Others->FStoredAs;
}

void TTreeNodes::CopyNodes(const std::vector<std::unique_ptr<TTreeNode>>& Source, TTreeNode* Parent)
{
    for (const auto& Node : Source) {
        TTreeNode* const Copy = AddChild(Parent, Node->FText);
        Copy->SetImageIndex(Node->FImageIndex);
        Copy->SetSelectedIndex(Node->FSelectedIndex);
        Copy->SetStateIndex(Node->FStateIndex);
        Copy->Data = Node->Data;
        CopyNodes(Node->FChildren, Copy);
    }
}

void TTreeNodes::DefineProperties(TFiler& Filer)
{
    TPersistent::DefineProperties(Filer);
    const bool HasStored = !FStored.empty();
    const std::string WriteAs = HasStored ? FStoredAs : WideProperty;
    for (const char* const Property : {NarrowProperty, WideProperty})
        Filer.DefineBinaryProperty(
            Property, [this, Property](TStream& Stream) { Read(Stream, Property); },
            [this](TStream& Stream) { Stream.WriteBytes(FStored.empty() ? Encode() : FStored); },
            WriteAs == Property && (HasStored || !FRoots.empty()));
}

void TTreeNodes::Read(TStream& Stream, const char* Property)
{
    const std::string Bytes = Stream.ReadRest();
    // What cannot be taken apart is kept all the same.
    if (!Decode(Bytes, SameText(Property, WideProperty)))
        Clear();
    FStored = Bytes;
    FStoredAs = Property;
}

// The number of topmost nodes, then each node followed by those below it. Wide:
// after a version byte; later versions name the class of each node.
bool TTreeNodes::Decode(const std::string& Bytes, bool Wide)
{
    static constexpr TLayout WideLayouts[] = {
        {true, 1, false, 0}, {true, 0, false, 0}, {true, 2, true, 1}, {true, 1, true, 0}, {true, 2, true, 0}};
    static constexpr TLayout NarrowLayouts[] = {{false, 0, false, 0}};
    for (const TLayout& Layout :
         Wide ? std::span<const TLayout>(WideLayouts) : std::span<const TLayout>(NarrowLayouts)) {
        TItemBytesReader Reader(Bytes);
        Clear();
        if (Wide)
            Reader.Byte();
        const int Total = Reader.Integer();
        bool Fits = true;
        for (int I = 0; I < Total && Fits; ++I)
            Fits = DecodeNode(Reader, Layout, nullptr);
        if (Fits && Reader.Ok() && Reader.Left() == 0)
            return true;
    }
    return false;
}

bool TTreeNodes::DecodeNode(TItemBytesReader& Reader, const TLayout& Layout, TTreeNode* Parent)
{
    if (Layout.ClassName)
        Reader.Text(true);
    const int Size = Reader.Integer();
    const size_t Start = Reader.Position();
    const int Image = Reader.Integer();
    const int Selected = Reader.Integer();
    const int State = Reader.Integer();
    Reader.Integer();
    if (Layout.Wide)
        Reader.Integer();
    Reader.Integer();
    const int Children = Reader.Integer();
    for (int I = 1; I < Layout.Flags; ++I)
        Reader.Byte();
    const bool Enabled = Layout.Flags == 0 || Reader.Byte() != 0;
    const std::string Text = Reader.Text(Layout.Wide);
    // The size of each node is the proof that the layout is the right one.
    if (!Reader.Ok() || Layout.Depth > DeepestLevel || Reader.Position() != Start + static_cast<size_t>(Size))
        return false;
    if (Reader.Left() > 0) // the last node has none
        Reader.Seek(Reader.Position() + static_cast<size_t>(Layout.Trailer));
    TTreeNode* const Node = AddChild(Parent, Text);
    Node->FImageIndex = Image;
    Node->FSelectedIndex = Selected;
    Node->FStateIndex = State;
    Node->FEnabled = Enabled;
    TLayout Below = Layout;
    ++Below.Depth;
    for (int I = 0; I < Children; ++I)
        if (!DecodeNode(Reader, Below, Node))
            return false;
    FTreeView->UpdateNode(*Node);
    return true;
}

void TTreeNodes::EncodeNode(const TTreeNode& Node, std::string& Bytes)
{
    std::string Own;
    for (const int Number :
         {Node.FImageIndex, Node.FSelectedIndex, Node.FStateIndex, -1, -1, 0, Node.Count()})
        PutInteger(Own, Number);
    Own += Node.FEnabled ? '\1' : '\0';
    PutWideText(Own, Node.FText);
    PutInteger(Bytes, static_cast<int32_t>(Own.size()));
    Bytes += Own;
    for (const auto& Child : Node.FChildren)
        EncodeNode(*Child, Bytes);
}

std::string TTreeNodes::Encode() const
{
    std::string Result(1, WideVersion);
    PutInteger(Result, static_cast<int32_t>(FRoots.size()));
    for (const auto& Node : FRoots)
        EncodeNode(*Node, Result);
    return Result;
}
