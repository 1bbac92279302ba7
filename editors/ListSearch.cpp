#include "editors/ListSearch.h"

#include <utility>

#include "framework/rtl/Texts.h"

namespace {

// Milliseconds after which typing begins anew.
constexpr DWORD Pause = 1000;

} // namespace

const TMetaClass& TListSearch::MetaClass()
{
    static const TMetaClass Class("TListSearch", &TObject::MetaClass(), nullptr);
    return Class;
}

TListSearch::TListSearch(TListBox& List) : FList(List)
{
    FList.OnKeyPress = {this, &TListSearch::KeyPress};
}

void TListSearch::KeyPress(TObject*, char& Key)
{
    const DWORD Now = GetTickCount();
    if (Now - std::exchange(FLastKey, Now) > Pause)
        FTyped.clear();
    // A space by itself selects the item with the focus.
    if (static_cast<unsigned char>(Key) < ' ' || (Key == ' ' && FTyped.empty()))
        return;
    const bool Again = FTyped == std::string(1, Key);
    if (!Again)
        FTyped += Key;
    Key = '\0';
    // The same character again goes on to the next item.
    const int Found = Find(FTyped, FList.ItemIndex() + (Again || FTyped.size() == 1 ? 1 : 0));
    if (Found >= 0)
        Choose(Found);
}

int TListSearch::Find(const std::string& Text, int Start) const
{
    const TStrings& Items = *FList.Items();
    const int Count = Items.Count();
    const std::string Wanted = AnsiUpperCase(Text);
    int Containing = -1;
    for (int I = 0; I < Count; ++I) {
        const int Index = (Start + I) % Count;
        const size_t Place = AnsiUpperCase(Items.Get(Index)).find(Wanted);
        if (Place == 0)
            return Index;
        if (Place != std::string::npos && Containing < 0)
            Containing = Index;
    }
    return Containing;
}

void TListSearch::Choose(int Index)
{
    FList.ClearSelection();
    FList.SetItemIndex(Index);
    FList.SetSelected(Index, true);
    if (FList.OnClick)
        FList.OnClick(&FList);
}
