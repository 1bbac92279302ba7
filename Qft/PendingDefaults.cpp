#include "Qft/PendingDefaults.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "core/Literals.h"

void TPendingDefaults::Add(std::string_view Key, std::string_view Value, bool AsLiteral, int Line,
                           TObject* Object)
{
    FItems.push_back({FTexts.size(), Key.size(), Value.size(), Object, Line, AsLiteral});
    FTexts.append(Key).append(Value);
}

void TPendingDefaults::Clear()
{
    FTexts.clear();
    FItems.clear();
}

std::string TPendingDefaults::LineOf(const TItem& Item) const
{
    const std::string_view Texts = FTexts;
    const std::string_view Value = Texts.substr(Item.Start + Item.KeySize, Item.ValueSize);
    std::string Result;
    Result.reserve(Item.KeySize + Item.ValueSize + 3);
    Result.append(Texts, Item.Start, Item.KeySize).append(1, '=');
    if (Item.AsLiteral)
        AppendLiterals(Result, Value);
    else
        Result.append(Value);
    return Result;
}

void TPendingDefaults::InsertInto(TSortList& List)
{
    std::vector<size_t> Turn(FItems.size());
    std::iota(Turn.begin(), Turn.end(), size_t{0});
    const auto ByLine = [this](size_t A, size_t B) {
        return std::pair(FItems[A].Line, A) < std::pair(FItems[B].Line, B);
    };
    if (!std::is_sorted(Turn.begin(), Turn.end(), ByLine))
        std::sort(Turn.begin(), Turn.end(), ByLine);
    std::vector<TSortList::TLine> Lines(FItems.size());
    for (size_t I = 0; I < FItems.size(); ++I)
        Lines[I] = {LineOf(FItems[I]), FItems[I].Object};
    Clear();
    List.SortInsertAll(std::move(Lines), std::move(Turn));
}
