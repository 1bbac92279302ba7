// The nodes of tree views.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "framework/forms/Types.h"
#include "framework/rtl/Persistent.h"

class TCustomTreeView;
class TItemBytesReader;
class TStream;
class TTreeNode;
class TTreeNodes;

OBX_ENUM(TNodeAttachMode, naAdd, naAddFirst, naAddChild, naAddChildFirst, naInsert)

// Owned by the node above, the topmost ones by their TTreeNodes.
class TTreeNode : public TPersistent {
    OBX_CLASS(TPersistent)
public:
    explicit TTreeNode(TTreeNodes* Owner) : FOwner(Owner) {}
    ~TTreeNode() override;

    TTreeNodes* Owner() const { return FOwner; }
    TTreeNode* Parent() const { return FParent; }
    int Count() const { return static_cast<int>(FChildren.size()); }
    // The child at that position; outside raises EListError.
    TTreeNode* Item(int Index) const;
    // Among its siblings, and among all nodes from top to bottom.
    int Index() const;
    int AbsoluteIndex() const;
    // 0 for the topmost nodes.
    int Level() const;
    // Null where there is none. GetNext goes through all nodes.
    TTreeNode* GetFirstChild() const;
    TTreeNode* GetNextSibling() const;
    TTreeNode* GetPrevSibling() const;
    TTreeNode* GetNext() const;

    const std::string& Text() const { return FText; }
    void SetText(const std::string& Value);
    int ImageIndex() const { return FImageIndex; }
    void SetImageIndex(int Value);
    int SelectedIndex() const { return FSelectedIndex; }
    void SetSelectedIndex(int Value);
    int StateIndex() const { return FStateIndex; }
    void SetStateIndex(int Value);
    bool Enabled() const { return FEnabled; }
    void SetEnabled(bool Value) { FEnabled = Value; }
    bool Expanded() const { return FExpanded; }
    void SetExpanded(bool Value);
    void Expand(bool Recurse);
    void Collapse(bool Recurse);
    bool Selected() const;
    void SetSelected(bool Value);
    // The program's own.
    void* Data = nullptr;
    void Delete();
    void DeleteChildren();
    void MakeVisible();
    // The window's item; null without a window.
    HTREEITEM ItemId() const { return FItemId; }

private:
    friend class TTreeNodes;
    friend class TCustomTreeView;
    std::vector<std::unique_ptr<TTreeNode>>& Siblings() const;
    template<class T>
    void Set(T& Field, const T& Value);

    TTreeNodes* FOwner;
    TTreeNode* FParent = nullptr;
    std::vector<std::unique_ptr<TTreeNode>> FChildren;
    std::string FText;
    int FImageIndex = 0;
    int FSelectedIndex = 0;
    int FStateIndex = -1;
    bool FEnabled = true;
    bool FExpanded = false;
    HTREEITEM FItemId = nullptr;
};

// The nodes, kept with and without a window. Form files carry them as the binary
// property "Data" or, newer, "NodeData"; as long as nothing changes, the bytes
// are written as they were read.
class TTreeNodes : public TPersistent {
    OBX_CLASS(TPersistent)
public:
    explicit TTreeNodes(TCustomTreeView* Owner) : FTreeView(Owner) {}
    ~TTreeNodes() override;

    // All nodes, from top to bottom, whatever their level.
    int Count() const;
    TTreeNode* Item(int Index) const;
    TTreeNode* operator[](int Index) const { return Item(Index); }
    TTreeNode* GetFirstNode() const;
    // Behind the last sibling of Sibling (the topmost level when null).
    TTreeNode* Add(TTreeNode* Sibling, const std::string& Text);
    TTreeNode* AddChild(TTreeNode* Parent, const std::string& Text);
    // Before Sibling.
    TTreeNode* Insert(TTreeNode* Sibling, const std::string& Text);
    void Delete(TTreeNode* Node);
    void Clear();
    void BeginUpdate();
    void EndUpdate();
    TCustomTreeView* TreeView() const { return FTreeView; }
    TPersistent* GetOwner() const override;
    void Assign(const TPersistent* Source) override;
    void DefineProperties(TFiler& Filer) override;

private:
    friend class TTreeNode;
    friend class TCustomTreeView;
    struct TLayout;

    TTreeNode* InsertAt(TTreeNode* Parent, int Index, const std::string& Text);
    void CopyNodes(const std::vector<std::unique_ptr<TTreeNode>>& Source, TTreeNode* Parent);
    void Read(TStream& Stream, const char* Property);
    bool Decode(const std::string& Bytes, bool Wide);
    bool DecodeNode(TItemBytesReader& Reader, const TLayout& Layout, TTreeNode* Parent);
    static void EncodeNode(const TTreeNode& Node, std::string& Bytes);
    std::string Encode() const;
    void Changed() { FStored.clear(); }

    TCustomTreeView* FTreeView;
    std::vector<std::unique_ptr<TTreeNode>> FRoots;
    std::string FStored;
    std::string FStoredAs; // the property that FStored was read from
};
