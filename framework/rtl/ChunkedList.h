// A long list that takes and loses items anywhere in next to no time.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <vector>

// Items stand in chunks of at most MaxChunk, so that one that comes or goes
// moves its chunk and not the whole list. Reading is a search among the chunks.
// Indexes are counted from 0 and must be inside the list. Not for T = bool.
template<class T>
class TChunkedList {
public:
    static constexpr size_t MaxChunk = 256;

    size_t Count() const { return FCount; }
    T& operator[](size_t Index)
    {
        const size_t Chunk = ChunkOf(Index);
        return FChunks[Chunk][Index - FStarts[Chunk]];
    }
    const T& operator[](size_t Index) const
    {
        const size_t Chunk = ChunkOf(Index);
        return FChunks[Chunk][Index - FStarts[Chunk]];
    }

    // Index may be Count(): the item comes last.
    void Insert(size_t Index, T Item)
    {
        size_t Chunk = ChunkOf(Index);
        if (FChunks.empty() || FChunks[Chunk].size() == MaxChunk) {
            MakeRoom(Index, Chunk);
            Chunk = ChunkOf(Index);
        }
        const auto Offset = static_cast<ptrdiff_t>(Index - FStarts[Chunk]);
        FChunks[Chunk].insert(FChunks[Chunk].begin() + Offset, std::move(Item));
        ++FCount;
        while (++Chunk < FStarts.size())
            ++FStarts[Chunk];
    }

    void Erase(size_t Index)
    {
        size_t Chunk = ChunkOf(Index);
        const auto Offset = static_cast<ptrdiff_t>(Index - FStarts[Chunk]);
        FChunks[Chunk].erase(FChunks[Chunk].begin() + Offset);
        --FCount;
        for (size_t Behind = Chunk + 1; Behind < FStarts.size(); ++Behind)
            --FStarts[Behind];
        if (FChunks[Chunk].empty()) {
            FChunks.erase(FChunks.begin() + static_cast<ptrdiff_t>(Chunk));
            FStarts.erase(FStarts.begin() + static_cast<ptrdiff_t>(Chunk));
        }
    }

    void Clear()
    {
        FChunks.clear();
        FStarts.clear();
        FCount = 0;
    }

    // How many items stand before the first one that IsBefore is false for, in a
    // list in which it is false for all that follow.
    template<class TIsBefore>
    size_t PartitionPoint(TIsBefore IsBefore) const
    {
        const auto Behind =
            std::partition_point(FChunks.begin(), FChunks.end(),
                                 [&](const std::vector<T>& Chunk) { return IsBefore(Chunk.front()); });
        if (Behind == FChunks.begin())
            return 0;
        const auto Chunk = Behind - 1;
        const auto Item = std::partition_point(Chunk->begin(), Chunk->end(), IsBefore);
        return FStarts[static_cast<size_t>(Chunk - FChunks.begin())] +
               static_cast<size_t>(Item - Chunk->begin());
    }

    // Items that are equal keep their order.
    template<class TIsLess>
    void Sort(TIsLess IsLess)
    {
        std::vector<T> All;
        All.reserve(FCount);
        for (std::vector<T>& Chunk : FChunks)
            std::move(Chunk.begin(), Chunk.end(), std::back_inserter(All));
        std::stable_sort(All.begin(), All.end(), IsLess);
        auto Next = All.begin();
        for (std::vector<T>& Chunk : FChunks)
            for (T& Item : Chunk)
                Item = std::move(*Next++);
    }

private:
    size_t ChunkOf(size_t Index) const
    {
        if (FChunks.size() < 2)
            return 0;
        return static_cast<size_t>(std::upper_bound(FStarts.begin(), FStarts.end(), Index) -
                                   FStarts.begin()) -
               1;
    }

    // At the end of the list a new chunk begins; elsewhere a full one is halved.
    void MakeRoom(size_t Index, size_t Chunk)
    {
        std::vector<T> New;
        New.reserve(MaxChunk);
        size_t Start = FCount;
        if (Index < FCount) {
            std::vector<T>& Full = FChunks[Chunk];
            const auto Middle = Full.begin() + MaxChunk / 2;
            New.assign(std::make_move_iterator(Middle), std::make_move_iterator(Full.end()));
            Full.erase(Middle, Full.end());
            Start = FStarts[Chunk] + MaxChunk / 2;
        }
        const auto Place = static_cast<ptrdiff_t>(FChunks.empty() ? 0 : Chunk + 1);
        FChunks.insert(FChunks.begin() + Place, std::move(New));
        FStarts.insert(FStarts.begin() + Place, Start);
    }

    std::vector<std::vector<T>> FChunks;
    std::vector<size_t> FStarts; // index of each chunk's first item
    size_t FCount = 0;
};
