// Translations by their source text, for lookups as fast as memory allows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Never changes once it is built: any thread may search it.
// Sources and translations are copied into one block of memory, and a search looks
// at two places at most: a cell, and what it refers to.
class TResourceIndex {
public:
    // For so many pairs.
    explicit TResourceIndex(std::size_t Count);

    // Sources differ from each other; at most as many as the constructor was told.
    // At most 32 GB in all.
    void Add(std::string_view Source, std::string_view Translation);

    // To be computed once for searches in several indexes.
    static std::uint64_t HashOf(std::string_view Source);

    // Empty when there is none. Refers to the index.
    std::string_view Find(std::string_view Source, std::uint64_t Hash) const;

private:
    struct TCell {
        std::uint32_t Check = 0; // the upper half of the hash
        std::uint32_t Pair = 0;  // where it is in FPairs, from 1; 0: free
    };
    // Stands before the source, which the translation follows.
    struct TSizes {
        std::uint32_t Source;
        std::uint32_t Translation;
    };

    std::vector<TCell> FCells;  // a power of two, half of them free
    std::vector<TSizes> FPairs; // the texts in between
};
