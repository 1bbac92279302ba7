#include "framework/rtl/ChunkedList.h"

#include <random>
#include <string>

#include <gtest/gtest.h>

namespace {

using TTexts = std::vector<std::string>;

TTexts TextsOf(const TChunkedList<std::string>& List)
{
    TTexts Result;
    for (size_t I = 0; I < List.Count(); ++I)
        Result.push_back(List[I]);
    return Result;
}

} // namespace

// A chunk that was split or emptied left the others' positions wrong.
TEST(ChunkedList, HoldsWhatAVectorHolds)
{
    std::mt19937 Random(3);
    TChunkedList<std::string> List;
    TTexts Wanted;
    for (int Step = 0; Step < 12000; ++Step) {
        const bool Grows = Step % 4000 < 3000 ? Random() % 8 != 0 : Random() % 8 == 0;
        const size_t At = Random() % 3 == 0 ? Wanted.size() : Random() % (Wanted.size() + 1);
        if (Grows) {
            List.Insert(At, std::to_string(Step));
            Wanted.insert(Wanted.begin() + static_cast<ptrdiff_t>(At), std::to_string(Step));
        } else if (At < Wanted.size()) {
            List.Erase(At);
            Wanted.erase(Wanted.begin() + static_cast<ptrdiff_t>(At));
        }
        if (Step % 400 == 0) {
            ASSERT_EQ(TextsOf(List), Wanted) << Step;
        }
    }
    ASSERT_GT(Wanted.size(), 10 * TChunkedList<std::string>::MaxChunk);

    // Equal ones keep their order.
    const auto ByLength = [](const std::string& A, const std::string& B) { return A.size() < B.size(); };
    List.Sort(ByLength);
    std::stable_sort(Wanted.begin(), Wanted.end(), ByLength);
    EXPECT_EQ(TextsOf(List), Wanted);
    for (size_t Length = 0; Length < 7; ++Length) {
        const auto IsShort = [Length](const std::string& Each) { return Each.size() < Length; };
        EXPECT_EQ(List.PartitionPoint(IsShort),
                  static_cast<size_t>(std::count_if(Wanted.begin(), Wanted.end(), IsShort)));
    }
    while (List.Count() > 0)
        List.Erase(Random() % List.Count());
    List.Insert(0, "again");
    EXPECT_EQ(TextsOf(List), TTexts{"again"});
}
