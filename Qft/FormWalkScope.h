// What a walk puts on for the time it is inside an object or below a key.
// Included by the walk's own sources only.
#pragma once

#include "Qft/FormWalk.h"

class TFormWalk::TEntered {
public:
    TEntered(TFormWalk& Walk, TComponent& Component) : FWalk(Walk)
    {
        FWalk.FEntries.push_back({&Component, &Component, nullptr, -1, false});
    }
    // Reached from the entry before through Prop, or as Item of that collection.
    TEntered(TFormWalk& Walk, TObject& Object, const TPropInfo* Prop, int Item) : FWalk(Walk)
    {
        FWalk.FEntries.push_back({&Object, dynamic_cast<const TPersistent*>(&Object), Prop, Item, false});
    }
    ~TEntered() { FWalk.FEntries.pop_back(); }
    TEntered(const TEntered&) = delete;
    TEntered& operator=(const TEntered&) = delete;

private:
    TFormWalk& FWalk;
};

class TFormWalk::TKey {
public:
    TKey(TFormWalk& Walk, const std::string& Name) : FWalk(Walk), FSize(Walk.FKey.size())
    {
        if (FSize > 0)
            FWalk.FKey += '.';
        FWalk.FKey += Name;
    }
    TKey(TFormWalk& Walk, int Item) : FWalk(Walk), FSize(Walk.FKey.size())
    {
        FWalk.FKey.append(1, '[').append(std::to_string(Item)).append(1, ']');
    }
    ~TKey() { FWalk.FKey.resize(FSize); }
    TKey(const TKey&) = delete;
    TKey& operator=(const TKey&) = delete;

private:
    TFormWalk& FWalk;
    size_t FSize;
};
