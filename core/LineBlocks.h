// A list for many insertions in the middle: lines in blocks of bounded size, so
// that an insertion moves a block and not the rest of the list.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

// Lines are counted from 0. Reaching a line takes time with the logarithm of the
// number of blocks, inserting and deleting with the number of blocks.
template<class TLine>
class TLineBlocks {
public:
    TLineBlocks() = default;
    explicit TLineBlocks(std::vector<TLine>&& Lines)
    {
        for (std::size_t First = 0; First < Lines.size(); First += HalfBlock) {
            const auto From = Lines.begin() + static_cast<std::ptrdiff_t>(First);
            const auto To = From + static_cast<std::ptrdiff_t>(std::min(HalfBlock, Lines.size() - First));
            FBlocks.emplace_back(std::make_move_iterator(From), std::make_move_iterator(To));
        }
        Recount(0);
    }

    int Count() const { return FEnds.empty() ? 0 : FEnds.back(); }

    TLine& At(int Index)
    {
        const TPlace Place = Find(Index);
        return FBlocks[Place.Block][Place.Offset];
    }

    // 0 <= Index <= Count().
    void Insert(int Index, TLine Line)
    {
        if (FBlocks.empty())
            FBlocks.emplace_back();
        const TPlace Place =
            Index == Count() ? TPlace{FBlocks.size() - 1, FBlocks.back().size()} : Find(Index);
        std::vector<TLine>& Block = FBlocks[Place.Block];
        Block.insert(Block.begin() + static_cast<std::ptrdiff_t>(Place.Offset), std::move(Line));
        if (Block.size() > 2 * HalfBlock)
            Split(Place.Block);
        Recount(Place.Block);
    }

    void Delete(int Index)
    {
        const TPlace Place = Find(Index);
        std::vector<TLine>& Block = FBlocks[Place.Block];
        Block.erase(Block.begin() + static_cast<std::ptrdiff_t>(Place.Offset));
        if (Block.empty())
            FBlocks.erase(FBlocks.begin() + static_cast<std::ptrdiff_t>(Place.Block));
        Recount(Place.Block);
    }

    // All lines in order; the blocks are empty afterwards.
    std::vector<TLine> Take()
    {
        std::vector<TLine> Result;
        Result.reserve(static_cast<std::size_t>(Count()));
        for (std::vector<TLine>& Block : FBlocks)
            std::move(Block.begin(), Block.end(), std::back_inserter(Result));
        FBlocks.clear();
        FEnds.clear();
        return Result;
    }

private:
    static constexpr std::size_t HalfBlock = 256;

    struct TPlace {
        std::size_t Block;
        std::size_t Offset;
    };

    TPlace Find(int Index) const
    {
        const auto Block =
            static_cast<std::size_t>(std::upper_bound(FEnds.begin(), FEnds.end(), Index) - FEnds.begin());
        const int First = Block == 0 ? 0 : FEnds[Block - 1];
        return {Block, static_cast<std::size_t>(Index - First)};
    }

    void Split(std::size_t Index)
    {
        std::vector<TLine>& Full = FBlocks[Index];
        const auto Middle = Full.begin() + static_cast<std::ptrdiff_t>(HalfBlock);
        std::vector<TLine> Rest(std::make_move_iterator(Middle), std::make_move_iterator(Full.end()));
        Full.erase(Middle, Full.end());
        FBlocks.insert(FBlocks.begin() + static_cast<std::ptrdiff_t>(Index) + 1, std::move(Rest));
    }

    void Recount(std::size_t From)
    {
        FEnds.resize(FBlocks.size());
        int End = From == 0 ? 0 : FEnds[From - 1];
        for (std::size_t I = From; I < FBlocks.size(); ++I)
            FEnds[I] = End += static_cast<int>(FBlocks[I].size());
    }

    std::vector<std::vector<TLine>> FBlocks;
    std::vector<int> FEnds; // how many lines up to the end of each block
};
