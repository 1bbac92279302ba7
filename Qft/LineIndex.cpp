#include "Qft/LineIndex.h"

#include <functional>

namespace {

constexpr size_t FirstSlots = 64;

bool EndsName(char Byte)
{
    return Byte == '=' || Byte == '.' || Byte == '[';
}

}  // namespace

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
    FSlots.assign(FirstSlots, -1);
    int Last = -1;  // the name of the line before; most lines share it
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
        size_t Slot = SlotOf(Name);
        if (FSlots[Slot] < 0) {
            FSlots[Slot] = static_cast<int>(FNames.size());
            FNames.push_back({Name, {}, {}, {}});
            if (FNames.size() * 2 > FSlots.size()) {
                Grow();
                Slot = SlotOf(Name);
            }
        }
        Last = FSlots[Slot];
        FNames[static_cast<size_t>(Last)].Add(Line, End);
    }
}

const TNamedLines* TLineIndex::Find(std::string_view Name) const
{
    const int Place = FSlots[SlotOf(Name)];
    return Place < 0 ? nullptr : &FNames[static_cast<size_t>(Place)];
}

// The slot of Name, or the free one where it belongs.
size_t TLineIndex::SlotOf(std::string_view Name) const
{
    size_t Slot = std::hash<std::string_view>()(Name) & (FSlots.size() - 1);
    while (FSlots[Slot] >= 0 && FNames[static_cast<size_t>(FSlots[Slot])].Name != Name)
        Slot = (Slot + 1) & (FSlots.size() - 1);
    return Slot;
}

void TLineIndex::Grow()
{
    FSlots.assign(FSlots.size() * 2, -1);
    for (size_t I = 0; I < FNames.size(); ++I)
        FSlots[SlotOf(FNames[I].Name)] = static_cast<int>(I);
}
