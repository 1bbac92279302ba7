// The texts of a tab control; a change reaches the window at once.
#pragma once

#include "framework/forms/PageControls.h"

class TCustomTabControl::TTabStrings : public TStringList {
public:
    explicit TTabStrings(TCustomTabControl& Control) : FControl(Control) {}

    void Put(int Index, const std::string& S) override
    {
        TStringList::Put(Index, S);
        FControl.UpdateTab(Index);
    }
    int AddObject(const std::string& S, TObject* Object) override
    {
        const int Index = TStringList::AddObject(S, Object);
        Rebuild();
        return Index;
    }
    void Insert(int Index, const std::string& S, TObject* Object) override
    {
        TStringList::Insert(Index, S, Object);
        Rebuild();
    }
    void Delete(int Index) override
    {
        TStringList::Delete(Index);
        Rebuild();
    }
    void Clear() override
    {
        TStringList::Clear();
        Rebuild();
    }

protected:
    void SetUpdateState(bool Updating) override
    {
        TStringList::SetUpdateState(Updating);
        if (!Updating)
            FControl.RebuildTabs();
    }

private:
    void Rebuild()
    {
        if (!Updating())
            FControl.RebuildTabs();
    }

    TCustomTabControl& FControl;
};
