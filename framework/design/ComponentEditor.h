// What the designer offers for a component: its context menu's verbs and what a
// double click does.
#pragma once

#include <memory>
#include <string>

#include "framework/design/Designer.h"

class TComponentEditor {
public:
    TComponentEditor(TFormDesigner& Designer, TComponent& Component)
        : FDesigner(Designer), FComponent(Component)
    {
    }
    virtual ~TComponentEditor() = default;
    TComponentEditor(const TComponentEditor&) = delete;
    TComponentEditor& operator=(const TComponentEditor&) = delete;

    // Verbs are counted from 0.
    virtual int GetVerbCount() const { return 0; }
    virtual std::string GetVerb(int) const { return {}; }
    virtual void ExecuteVerb(int) {}
    // The double click: the first verb.
    virtual void Edit()
    {
        if (GetVerbCount() > 0)
            ExecuteVerb(0);
    }

protected:
    TFormDesigner& Designer() const { return FDesigner; }
    TComponent& Component() const { return FComponent; }

private:
    TFormDesigner& FDesigner;
    TComponent& FComponent;
};

using TComponentEditorMaker = std::unique_ptr<TComponentEditor> (*)(TFormDesigner& Designer,
                                                                    TComponent& Component);
template<class T>
std::unique_ptr<TComponentEditor> MakeComponentEditor(TFormDesigner& Designer, TComponent& Component)
{
    return std::make_unique<T>(Designer, Component);
}

// For the class and its descendants that have none of their own; the last
// registration counts.
void RegisterComponentEditor(const TMetaClass& Class, TComponentEditorMaker Maker);
void UnregisterComponentEditor(TComponentEditorMaker Maker);

// Without verbs when nothing is registered.
std::unique_ptr<TComponentEditor> GetComponentEditor(TFormDesigner& Designer, TComponent& Component);
