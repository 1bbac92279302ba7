#include "designer/ComponentTree.h"

#include "framework/rtl/SysUtils.h"

TComponentTree::TComponentTree(TTreeView& View) : FView(View)
{
    FView.OnChange = {this, &TComponentTree::NodeChosen};
}

void TComponentTree::SetModel(TFormModel* Model)
{
    FModel = Model;
    Refresh();
    ShowSelection();
}

void TComponentTree::Refresh()
{
    const std::string Shape = FModel ? ShapeOf(FModel->Root()) : "";
    if (Shape == FShape)
        return;
    FShape = Shape;
    FShowing = true;
    FView.Items()->BeginUpdate();
    FView.Items()->Clear();
    if (FModel)
        AddNode(nullptr, FModel->Root());
    if (FView.Items()->Count() > 0)
        FView.Items()->Item(0)->Expand(true);
    FView.Items()->EndUpdate();
    FShowing = false;
    ShowSelection();
}

std::string TComponentTree::ShapeOf(TComponent& Component) const
{
    std::string Result = Component.Name() + ":" + IntToStr(reinterpret_cast<intptr_t>(&Component)) + "(";
    for (TComponent* const Each : FModel->ChildrenOf(Component))
        Result += ShapeOf(*Each);
    return Result + ")";
}

void TComponentTree::AddNode(TTreeNode* Parent, TComponent& Component)
{
    const std::string Text = Component.Name() + ": " + Component.ClassName();
    TTreeNode* const Node =
        Parent ? FView.Items()->AddChild(Parent, Text) : FView.Items()->Add(nullptr, Text);
    Node->Data = &Component;
    for (TComponent* const Each : FModel->ChildrenOf(Component))
        AddNode(Node, *Each);
}

void TComponentTree::ShowSelection()
{
    if (!FModel)
        return;
    FShowing = true;
    for (int I = 0; I < FView.Items()->Count(); ++I)
        if (TTreeNode* const Node = FView.Items()->Item(I); Node->Data == FModel->Selection().front()) {
            Node->MakeVisible();
            FView.SetSelected(Node);
        }
    FShowing = false;
}

void TComponentTree::NodeChosen(TObject*, TTreeNode* Node)
{
    if (!FShowing && Node && FModel)
        FModel->SelectComponent(static_cast<TComponent*>(Node->Data));
}
