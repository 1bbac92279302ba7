#include "Qrt/ResourceIndex.h"

#include <bit>
#include <cstring>

namespace {

std::uint64_t Mix(std::uint64_t A, std::uint64_t B)
{
    A = (A ^ B) * 0x9E3779B97F4A7C15u;
    return A ^ (A >> 32);
}

std::uint64_t Word(const char* At, std::size_t Bytes)
{
    std::uint64_t Result = 0;
    std::memcpy(&Result, At, Bytes);
    return Result;
}

} // namespace

TResourceIndex::TResourceIndex(std::size_t Count) : FCells(std::bit_ceil(2 * Count + 1))
{
    FEntries.reserve(Count);
}

// Eight bytes a step; the last step takes the last eight bytes.
std::uint64_t TResourceIndex::HashOf(std::string_view Source)
{
    std::uint64_t Hash = Source.size() * 0xFF51AFD7ED558CCDu;
    if (Source.size() < 8)
        return Mix(Mix(Hash, Word(Source.data(), Source.size())), 29);
    const char* const Last = Source.data() + Source.size() - 8;
    for (const char* At = Source.data(); At < Last; At += 8)
        Hash = Mix(Hash, Word(At, 8));
    return Mix(Mix(Hash, Word(Last, 8)), 29);
}

void TResourceIndex::Add(std::string_view Source, std::string_view Translation)
{
    const std::uint64_t Hash = HashOf(Source);
    FEntries.push_back({FTexts.size(), static_cast<std::uint32_t>(Source.size()),
                        static_cast<std::uint32_t>(Translation.size())});
    FTexts.append(Source).append(Translation);
    std::size_t Place = Hash & (FCells.size() - 1);
    while (FCells[Place].Entry != 0)
        Place = (Place + 1) & (FCells.size() - 1);
    FCells[Place] = {static_cast<std::uint32_t>(Hash >> 32), static_cast<std::uint32_t>(FEntries.size())};
}

std::string_view TResourceIndex::Find(std::string_view Source, std::uint64_t Hash) const
{
    const auto Check = static_cast<std::uint32_t>(Hash >> 32);
    for (std::size_t Place = Hash & (FCells.size() - 1); FCells[Place].Entry != 0;
         Place = (Place + 1) & (FCells.size() - 1)) {
        if (FCells[Place].Check != Check)
            continue;
        const TEntry& Entry = FEntries[FCells[Place].Entry - 1];
        const char* const Text = FTexts.data() + Entry.Begin;
        if (Entry.SourceBytes == Source.size() && std::memcmp(Text, Source.data(), Source.size()) == 0)
            return {Text + Entry.SourceBytes, Entry.TranslationBytes};
    }
    return {};
}
