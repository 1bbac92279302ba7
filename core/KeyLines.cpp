#include "core/KeyLines.h"

#include <numeric>
#include <utility>

#include "core/LineBlocks.h"
#include "core/NearlySorted.h"
#include "framework/rtl/Utf8.h"

namespace {

using TLine = TSortList::TLine;

// A merge of the lines of a list with new ones, as a plan that changes nothing.
// It can be carried out when each key has one line at most, or when the line
// that a new one replaces is certain to be found.
class TMergePlan {
public:
    TMergePlan(const TSortList& List, const std::vector<std::string>& Lines) : FList(List), FLines(Lines) {}

    bool Make()
    {
        std::vector<size_t> Turn(FLines.size());
        std::iota(Turn.begin(), Turn.end(), size_t{0});
        SortNearlySorted(Turn, [&](size_t A, size_t B) { return FLines[A] < FLines[B]; });
        FSources.reserve(static_cast<size_t>(FList.Count()) + FLines.size());
        int Old = 0;
        for (const size_t I : Turn) {
            for (; Old < FList.Count() && FList.Get(Old) < FLines[I]; ++Old)
                if (!Add({false, static_cast<size_t>(Old)}))
                    return false;
            if (!Add({true, I}))
                return false;
        }
        for (; Old < FList.Count(); ++Old)
            if (!Add({false, static_cast<size_t>(Old)}))
                return false;
        return true;
    }

    void CarryOut(TSortList& List, std::vector<std::string>& Lines) const
    {
        List.BeginUpdate();
        std::vector<TLine> Old = List.Take();
        std::vector<TLine> Result;
        Result.reserve(FSources.size());
        for (const TSource& Source : FSources)
            if (Source.IsNew)
                Result.push_back({std::move(Lines[Source.Index]), nullptr});
            else
                Result.push_back(std::move(Old[Source.Index]));
        List.GiveInOrder(std::move(Result));
        List.EndUpdate();
    }

private:
    struct TSource {
        bool IsNew;
        size_t Index;
    };

    const std::string& Text(const TSource& Source) const
    {
        return Source.IsNew ? FLines[Source.Index] : FList.Get(static_cast<int>(Source.Index));
    }

    // Lines of one key follow each other. One old line among them, or none, gives
    // way to the last of the new ones.
    bool Add(const TSource& Source)
    {
        const std::string_view Line = Text(Source);
        const std::string_view Key = KeyOf(Line);
        if (FSources.empty() || !BeginsWithKey(Line, Key) || !BeginsWithKey(Text(FSources.back()), Key)) {
            FGroup = FSources.size();
            FOldInGroup = FNewInGroup = 0;
        }
        ++(Source.IsNew ? FNewInGroup : FOldInGroup);
        if (FNewInGroup == 0 || FNewInGroup + FOldInGroup == 1) {
            FSources.push_back(Source);
            return true;
        }
        if (FOldInGroup > 1 || TwoBeginAlike(Key))
            return false;
        TSource& Kept = FSources[FGroup];
        if (Source.IsNew && (!Kept.IsNew || Source.Index > Kept.Index))
            Kept = Source;
        return true;
    }

    // Two lines between the place of the bare Key and its line can hide the line.
    bool TwoBeginAlike(std::string_view Key) const
    {
        return FGroup >= 2 && std::string_view(Text(FSources[FGroup - 1])).starts_with(Key) &&
               std::string_view(Text(FSources[FGroup - 2])).starts_with(Key);
    }

    const TSortList& FList;
    const std::vector<std::string>& FLines;
    std::vector<TSource> FSources;
    size_t FGroup = 0; // where the lines of the key at hand begin in the plan
    int FOldInGroup = 0;
    int FNewInGroup = 0;
};

void MergeOneByOne(TSortList& List, std::vector<std::string>& Lines)
{
    List.BeginUpdate();
    TLineBlocks<TLine> Blocks(List.Take());
    const auto LineAt = [&](int Index) -> std::string_view { return Blocks.At(Index).Text; };
    for (std::string& Line : Lines) {
        int Index = 0;
        if (FindKey(KeyOf(Line), Blocks.Count(), LineAt, Index))
            Blocks.Delete(Index);
        const TBisection Hit = Bisect(Line, Blocks.Count(), LineAt);
        if (Hit.Found && List.Kind() == skUnique)
            Blocks.At(Hit.Position).Object = nullptr;
        else
            Blocks.Insert(Hit.Position, {std::move(Line), nullptr});
    }
    List.Give(Blocks.Take());
    List.EndUpdate();
}

} // namespace

std::string_view KeyOf(std::string_view Line)
{
    const size_t Equals = Line.find('=');
    return Equals == Line.npos ? std::string_view() : Line.substr(0, Equals);
}

std::string_view ValueOf(std::string_view Line, size_t MaxBytes)
{
    const size_t Equals = Line.find('=');
    return Equals == Line.npos ? std::string_view() : CutAtCharacter(Line.substr(Equals + 1), MaxBytes);
}

bool FindKeyLine(const TStrings& List, std::string_view Key, int& Index)
{
    return FindKey(
        Key, List.Count(), [&](int I) -> std::string_view { return List.Get(I); }, Index);
}

void MergeKeyLines(TSortList& List, std::vector<std::string> Lines)
{
    if (Lines.empty())
        return;
    TMergePlan Plan(List, Lines);
    if (List.IsInOrder() && Plan.Make())
        Plan.CarryOut(List, Lines);
    else
        MergeOneByOne(List, Lines);
}
