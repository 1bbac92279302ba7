// Translations by their source text, for lookups as fast as memory allows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Never changes once it is built: any thread may search it.
// Sources and translations are copied into one block of memory.
class TResourceIndex {
public:
    explicit TResourceIndex(std::size_t Count);

    // Sources differ from each other; at most as many as the constructor was told.
    void Add(std::string_view Source, std::string_view Translation);

    // To be computed once for searches in several indexes.
    static std::uint64_t HashOf(std::string_view Source);

    // Empty when there is none. Refers to the index.
    std::string_view Find(std::string_view Source, std::uint64_t Hash) const;

private:
    struct TCell {
        std::uint32_t Check = 0; // the upper half of the hash
        std::uint32_t Entry = 0; // number in FEntries, from 1; 0: free
    };
    // Where the source begins; the translation follows it.
    struct TEntry {
        std::size_t Begin;
        std::uint32_t SourceBytes;
        std::uint32_t TranslationBytes;
    };

    std::vector<TCell> FCells; // a power of two, half of them free
    std::vector<TEntry> FEntries;
    std::string FTexts;
};
