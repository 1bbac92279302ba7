// The tree of a form's components, in step with what is selected.
#pragma once

#include <string>

#include "designer/FormModel.h"
#include "framework/forms/TreeViews.h"

class TComponentTree : public TObject {
public:
    explicit TComponentTree(TTreeView& View);

    // Null shows nothing.
    void SetModel(TFormModel* Model);
    // After changes of the form: builds the tree anew only when components came, went or
    // changed their names, because the nodes' state is lost.
    void Refresh();
    void ShowSelection();

private:
    std::string ShapeOf(TComponent& Component) const;
    void AddNode(TTreeNode* Parent, TComponent& Component);
    void NodeChosen(TObject* Sender, TTreeNode* Node);

    TTreeView& FView;
    TFormModel* FModel = nullptr;
    std::string FShape; // what is shown
    bool FShowing = false;
};
