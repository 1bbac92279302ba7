#include "Qrt/ResourceIndex.h"

#include <bit>
#include <cstring>

namespace {

std::uint64_t Mix(std::uint64_t A, std::uint64_t B)
{
    A = (A ^ B) * 0x9E3779B97F4A7C15u;
    return A ^ (A >> 32);
}

std::uint64_t Word(const char* At, std::size_t Bytes = 8)
{
    std::uint64_t Result = 0;
    std::memcpy(&Result, At, Bytes);
    return Result;
}

} // namespace

TResourceIndex::TResourceIndex(std::size_t Count) : FCells(std::bit_ceil(2 * Count + 1)) {}

// Two chains, which the processor follows side by side, of eight bytes a step each.
// The last step takes the last bytes, also if some of them were taken before.
std::uint64_t TResourceIndex::HashOf(std::string_view Source)
{
    const std::size_t Size = Source.size();
    const char* const Text = Source.data();
    std::uint64_t A = Size * 0xFF51AFD7ED558CCDu;
    if (Size < 8)
        return Mix(Mix(A, Word(Text, Size)), 29);
    std::uint64_t B = 0xC4CEB9FE1A85EC53u;
    for (std::size_t At = 0; At + 16 < Size; At += 16) {
        A = Mix(A, Word(Text + At));
        B = Mix(B, Word(Text + At + 8));
    }
    A = Mix(A, Word(Text + Size - 8));
    B = Mix(B, Word(Text + (Size < 16 ? 0 : Size - 16)));
    return Mix(Mix(A, B), 29);
}

void TResourceIndex::Add(std::string_view Source, std::string_view Translation)
{
    const std::uint64_t Hash = HashOf(Source);
    std::size_t Place = Hash & (FCells.size() - 1);
    while (FCells[Place].Pair != 0)
        Place = (Place + 1) & (FCells.size() - 1);
    const std::size_t Pair = FPairs.size();
    FCells[Place] = {static_cast<std::uint32_t>(Hash >> 32), static_cast<std::uint32_t>(Pair + 1)};
    const std::size_t Bytes = Source.size() + Translation.size();
    FPairs.resize(Pair + 1 + (Bytes + sizeof(TSizes) - 1) / sizeof(TSizes));
    FPairs[Pair] = {static_cast<std::uint32_t>(Source.size()),
                    static_cast<std::uint32_t>(Translation.size())};
    char* const Texts = reinterpret_cast<char*>(&FPairs[Pair] + 1);
    std::memcpy(Texts, Source.data(), Source.size());
    std::memcpy(Texts + Source.size(), Translation.data(), Translation.size());
}

std::string_view TResourceIndex::Find(std::string_view Source, std::uint64_t Hash) const
{
    const auto Check = static_cast<std::uint32_t>(Hash >> 32);
    for (std::size_t Place = Hash & (FCells.size() - 1); FCells[Place].Pair != 0;
         Place = (Place + 1) & (FCells.size() - 1)) {
        if (FCells[Place].Check != Check)
            continue;
        const TSizes* const Sizes = &FPairs[FCells[Place].Pair - 1];
        const char* const Texts = reinterpret_cast<const char*>(Sizes + 1);
        if (Sizes->Source == Source.size() && std::memcmp(Texts, Source.data(), Source.size()) == 0)
            return {Texts + Sizes->Source, Sizes->Translation};
    }
    return {};
}
