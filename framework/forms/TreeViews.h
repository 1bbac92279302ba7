// Trees of nodes.
#pragma once

#include "framework/forms/ListViews.h"
#include "framework/forms/TreeNodes.h"

OBX_ENUM(TMultiSelectStyle, msControlSelect, msShiftSelect, msVisibleOnly, msSiblingOnly)
OBX_SET(TMultiSelectStyles, TMultiSelectStyle)

OBX_EVENT(TTVChangedEvent, TObject*, TTreeNode*)
OBX_EVENT(TTVChangingEvent, TObject*, TTreeNode*, bool&)
OBX_EVENT(TTVExpandingEvent, TObject*, TTreeNode*, bool&)
OBX_EVENT(TTVCollapsingEvent, TObject*, TTreeNode*, bool&)
OBX_EVENT(TTVExpandedEvent, TObject*, TTreeNode*)
OBX_EVENT(TTVEditingEvent, TObject*, TTreeNode*, bool&)
OBX_EVENT(TTVEditedEvent, TObject*, TTreeNode*, std::string&)
OBX_EVENT(TTVCompareEvent, TObject*, TTreeNode*, TTreeNode*, int, int&)
OBX_EVENT(TTVHintEvent, TObject*, TTreeNode*, std::string&)
OBX_EVENT(TTVCustomDrawEvent, TObject*, const TRect&, bool&)
OBX_EVENT(TTVCustomDrawItemEvent, TObject*, TTreeNode*, TCustomDrawState, bool&)

class TCustomTreeView : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TCustomTreeView(TComponent* Owner);
    ~TCustomTreeView() override;

    TCanvas* Canvas() { return FCanvas.get(); }
    // Null for none.
    TTreeNode* Selected() const { return FSelected; }
    void SetSelected(TTreeNode* Value);
    TTreeNode* GetNodeAt(int X, int Y) const;
    void FullExpand();
    void FullCollapse();
    // Sorts every level by OnCompare, or by the texts.
    void AlphaSort();

    // Published by tree views.
    TTreeNodes* Items() const { return const_cast<TTreeNodes*>(&FItems); }
    void SetItems(TTreeNodes* Value) { FItems.Assign(Value); }
    OBX_PROPERTY(bool, AutoExpand, false)
    OBX_PROPERTY(int, ChangeDelay, 0)
    OBX_PROPERTY(bool, MultiSelect, false)
    OBX_PROPERTY(TMultiSelectStyles, MultiSelectStyle, (TMultiSelectStyles{msControlSelect}))
    OBX_PROPERTY(bool, RightClickSelect, false)
    OBX_PROPERTY(TSortType, SortType, stNone)
public:
    TBorderStyle BorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle Value) { SetFlag(FBorderStyle, Value); }
    bool HideSelection() const { return FHideSelection; }
    void SetHideSelection(bool Value) { SetFlag(FHideSelection, Value); }
    bool HotTrack() const { return FHotTrack; }
    void SetHotTrack(bool Value) { SetFlag(FHotTrack, Value); }
    // Pixels.
    int Indent() const { return FIndent; }
    void SetIndent(int Value);
    bool ReadOnly() const { return FReadOnly; }
    void SetReadOnly(bool Value) { SetFlag(FReadOnly, Value); }
    bool RowSelect() const { return FRowSelect; }
    void SetRowSelect(bool Value) { SetFlag(FRowSelect, Value); }
    bool ShowButtons() const { return FShowButtons; }
    void SetShowButtons(bool Value) { SetFlag(FShowButtons, Value); }
    bool ShowLines() const { return FShowLines; }
    void SetShowLines(bool Value) { SetFlag(FShowLines, Value); }
    bool ShowRoot() const { return FShowRoot; }
    void SetShowRoot(bool Value) { SetFlag(FShowRoot, Value); }
    bool ToolTips() const { return FToolTips; }
    void SetToolTips(bool Value) { SetFlag(FToolTips, Value); }
    TCustomImageList* Images() const { return FImages; }
    void SetImages(TCustomImageList* Value) { SetImageList(FImages, Value); }
    TCustomImageList* StateImages() const { return FStateImages; }
    void SetStateImages(TCustomImageList* Value) { SetImageList(FStateImages, Value); }

    TTVExpandedEvent OnAddition;
    TTVCustomDrawEvent OnCustomDraw;
    TTVCustomDrawItemEvent OnCustomDrawItem;
    TTVChangedEvent OnChange;
    TTVChangingEvent OnChanging;
    TTVExpandedEvent OnCollapsed;
    TTVCollapsingEvent OnCollapsing;
    TTVCompareEvent OnCompare;
    TTVExpandedEvent OnDeletion;
    TTVEditedEvent OnEdited;
    TTVEditingEvent OnEditing;
    TTVExpandedEvent OnExpanded;
    TTVExpandingEvent OnExpanding;
    TTVExpandedEvent OnGetImageIndex;
    TTVExpandedEvent OnGetSelectedIndex;
    TTVHintEvent OnHint;

    void Notification(TComponent* Component, TOperation Operation) override;

protected:
    friend class TTreeNode;
    friend class TTreeNodes;
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void DestroyWnd() override;
    void Dispatch(TMessage& Message) override;

private:
    template<class T>
    void SetFlag(T& Flag, T Value)
    {
        if (Flag == Value)
            return;
        Flag = Value;
        RecreateWnd();
    }
    void SetImageList(TCustomImageList*& List, TCustomImageList* Value);
    void UpdateImages();
    bool Live() const { return HandleAllocated() && !HasState(csDestroying); }
    void RebuildNodes();
    void InsertWindowNode(TTreeNode& Node);
    void InsertWindowNodes(TTreeNode& Node);
    void NodeDeleted(TTreeNode& Node);
    void UpdateNode(TTreeNode& Node);
    void ExpandNode(TTreeNode& Node, bool Value);
    TTreeNode* NodeOf(HTREEITEM Item) const;
    void Notify(const NMHDR& Header, TMessage& Message);
    void SortLevel(std::vector<std::unique_ptr<TTreeNode>>& Nodes);

    TTreeNodes FItems;
    TTreeNode* FSelected = nullptr;
    std::unique_ptr<TControlCanvas> FCanvas;
    int FUpdating = 0; // above 0 while the program changes the window
    TBorderStyle FBorderStyle = bsSingle;
    bool FHideSelection = true;
    bool FHotTrack = false;
    int FIndent = 19;
    bool FReadOnly = false;
    bool FRowSelect = false;
    bool FShowButtons = true;
    bool FShowLines = true;
    bool FShowRoot = true;
    bool FToolTips = true;
    TCustomImageList* FImages = nullptr;
    TCustomImageList* FStateImages = nullptr;
};

class TTreeView : public TCustomTreeView {
    OBX_CLASS(TCustomTreeView)
public:
    using TCustomTreeView::TCustomTreeView;
};

void RegisterTreeViewClasses();
