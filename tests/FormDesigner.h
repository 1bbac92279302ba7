// A designer without an environment: it counts what it is told.
#pragma once

#include "framework/design/Designer.h"
#include "framework/forms/Forms.h"

class TTestDesigner : public TFormDesigner {
public:
    explicit TTestDesigner(TComponent& Root) : FRoot(Root) {}

    TComponent& Root() override { return FRoot; }
    void Modified() override { ++Changes; }
    TComponent* GetComponent(const std::string& Name) override { return FRoot.FindComponent(Name); }
    std::string GetComponentName(const TComponent* Component) override { return Component->Name(); }
    void GetComponentNames(const TMetaClass& Class,
                           const std::function<void(const std::string&)>& Visit) override
    {
        for (int I = 0; I < FRoot.ComponentCount(); ++I)
            if (FRoot.Components(I)->InheritsFrom(Class))
                Visit(FRoot.Components(I)->Name());
    }
    void SelectComponent(TComponent*) override {}

    int Changes = 0;

private:
    TComponent& FRoot;
};
