#include "Qft/LineIndex.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr size_t FirstSlots = 64;

bool EndsName(char Byte)
{
    return Byte == '=' || Byte == '.' || Byte == '[';
}

// Eight bytes at a time; names are short.
uint32_t HashOf(std::string_view Name)
{
    constexpr uint64_t Factor = 0x9E3779B97F4A7C15u;
    uint64_t Result = Name.size();
    while (!Name.empty()) {
        uint64_t Bytes = 0;
        const size_t Count = std::min(Name.size(), sizeof Bytes);
        std::memcpy(&Bytes, Name.data(), Count);
        // Names often differ in their last bytes only, and a product carries
        // differences upwards only: hence the shifts before and after.
        Result ^= Bytes;
        Result = (Result ^ (Result >> 32)) * Factor;
        Result ^= Result >> 32;
        Name.remove_prefix(Count);
    }
    return static_cast<uint32_t>(Result);
}

} // namespace

void TNamedLines::Add(int Line, char End)
{
    TLineRange& Range = End == '=' ? Equal : End == '.' ? Dot : Bracket;
    if (Range.Empty())
        Range.First = Line;
    Range.Last = Line + 1;
}

std::string_view FirstName(std::string_view Rest, char& End)
{
    for (size_t I = 0; I < Rest.size(); ++I)
        if (EndsName(Rest[I])) {
            End = Rest[I];
            return Rest.substr(0, I);
        }
    End = 0;
    return {};
}

void TLineIndex::Build(const TSortList& List)
{
    FNames.clear();
    FSlots.assign(FirstSlots, {});
    int Last = -1; // the name of the line before; most lines share it
    for (int Line = 0; Line < List.Count(); ++Line) {
        const std::string_view Text = List.Get(Line);
        char End = 0;
        if (Last >= 0) {
            TNamedLines& Before = FNames[static_cast<size_t>(Last)];
            const size_t Size = Before.Name.size();
            if (Text.size() > Size && EndsName(Text[Size]) && Text.starts_with(Before.Name)) {
                Before.Add(Line, Text[Size]);
                continue;
            }
        }
        const std::string_view Name = FirstName(Text, End);
        if (End == 0)
            continue;
        const uint32_t Hash = HashOf(Name);
        TSlot& Slot = FSlots[SlotOf(Name, Hash)];
        if (Slot.Place < 0) {
            Slot = {Hash, static_cast<int>(FNames.size())};
            FNames.push_back({Name, {}, {}, {}});
        }
        Last = Slot.Place;
        if (FNames.size() * 2 > FSlots.size())
            Grow();
        FNames[static_cast<size_t>(Last)].Add(Line, End);
    }
}

const TNamedLines* TLineIndex::Find(std::string_view Name) const
{
    const int Place = FSlots[SlotOf(Name, HashOf(Name))].Place;
    return Place < 0 ? nullptr : &FNames[static_cast<size_t>(Place)];
}

// The slot of Name, or the free one where it belongs.
size_t TLineIndex::SlotOf(std::string_view Name, uint32_t Hash) const
{
    const size_t Mask = FSlots.size() - 1;
    size_t Slot = Hash & Mask;
    while (FSlots[Slot].Place >= 0 &&
           (FSlots[Slot].Hash != Hash || FNames[static_cast<size_t>(FSlots[Slot].Place)].Name != Name))
        Slot = (Slot + 1) & Mask;
    return Slot;
}

void TLineIndex::Grow()
{
    std::vector<TSlot> Old(FSlots.size() * 2);
    Old.swap(FSlots);
    const size_t Mask = FSlots.size() - 1;
    for (const TSlot& Each : Old) {
        if (Each.Place < 0)
            continue;
        size_t Slot = Each.Hash & Mask;
        while (FSlots[Slot].Place >= 0)
            Slot = (Slot + 1) & Mask;
        FSlots[Slot] = Each;
    }
}
