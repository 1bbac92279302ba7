#include "framework/forms/ItemStrings.h"

#include "framework/rtl/SysUtils.h"

void TItemStrings::SetKeepsSorted(bool Value)
{
    if (FKeepsSorted == Value)
        return;
    FKeepsSorted = Value;
    if (Value) {
        Sort();
        FClient.ItemsReordered();
    }
}

void TItemStrings::Put(int Index, const std::string& S)
{
    if (Get(Index) == S)
        return;
    TStringList::Put(Index, S);
    FClient.ItemChanged(Index);
}

int TItemStrings::SortedPlace(const std::string& S) const
{
    int Low = 0;
    int High = Count();
    while (Low < High) {
        const int Middle = (Low + High) / 2;
        if (AnsiCompareText(Get(Middle), S) <= 0)
            Low = Middle + 1;
        else
            High = Middle;
    }
    return Low;
}

int TItemStrings::AddObject(const std::string& S, TObject* Object)
{
    const int Index = FKeepsSorted ? SortedPlace(S) : Count();
    Insert(Index, S, Object);
    return Index;
}

void TItemStrings::Insert(int Index, const std::string& S, TObject* Object)
{
    TStringList::Insert(Index, S, Object);
    FClient.ItemInserted(Index);
}

void TItemStrings::Delete(int Index)
{
    TStringList::Delete(Index);
    FClient.ItemDeleted(Index);
}

void TItemStrings::Clear()
{
    while (Count() > 0)
        Delete(Count() - 1);
}

void TItemStrings::SetUpdateState(bool Updating)
{
    TStringList::SetUpdateState(Updating);
    FClient.ItemsUpdating(Updating);
}
