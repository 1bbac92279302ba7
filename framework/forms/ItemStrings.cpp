#include "framework/forms/ItemStrings.h"

#include "framework/rtl/SysUtils.h"

size_t TItemStrings::Check(int Index) const
{
    if (Index < 0 || Index >= Count())
        RaiseIndexError(Index);
    return static_cast<size_t>(Index);
}

void TItemStrings::SetKeepsSorted(bool Value)
{
    if (FKeepsSorted == Value)
        return;
    FKeepsSorted = Value;
    if (Value) {
        FLines.Sort([](const TLine& A, const TLine& B) { return AnsiCompareText(A.Text, B.Text) < 0; });
        FClient.ItemsReordered();
    }
}

void TItemStrings::Put(int Index, const std::string& S)
{
    std::string& Text = FLines[Check(Index)].Text;
    if (Text == S)
        return;
    Text = S;
    FClient.ItemChanged(Index);
}

void TItemStrings::PutObject(int Index, TObject* Object)
{
    FLines[Check(Index)].Object = Object;
}

int TItemStrings::SortedPlace(const std::string& S) const
{
    const auto IsBefore = [&](const TLine& Line) { return AnsiCompareText(Line.Text, S) <= 0; };
    // Texts often come in order.
    if (FLines.Count() == 0 || IsBefore(FLines[FLines.Count() - 1]))
        return Count();
    return static_cast<int>(FLines.PartitionPoint(IsBefore));
}

int TItemStrings::AddObject(const std::string& S, TObject* Object)
{
    const int Index = FKeepsSorted ? SortedPlace(S) : Count();
    InsertLine(Index, S, Object);
    return Index;
}

void TItemStrings::Insert(int Index, const std::string& S, TObject* Object)
{
    if (Index < 0 || Index > Count())
        RaiseIndexError(Index);
    InsertLine(Index, S, Object);
}

void TItemStrings::InsertLine(int Index, const std::string& S, TObject* Object)
{
    FLines.Insert(static_cast<size_t>(Index), {S, Object});
    FClient.ItemInserted(Index);
}

void TItemStrings::Delete(int Index)
{
    FLines.Erase(Check(Index));
    FClient.ItemDeleted(Index);
}

void TItemStrings::Clear()
{
    while (Count() > 0)
        Delete(Count() - 1);
}
