#include "core/SortList.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "core/KeyLines.h"

namespace {

using TLine = TSortList::TLine;

std::vector<std::string> Texts(const TSortList& List)
{
    std::vector<std::string> Result;
    for (int I = 0; I < List.Count(); ++I)
        Result.push_back(List.Get(I) + ":" + std::to_string(ObjectInteger(List.Objects(I))));
    return Result;
}

TEST(SortList, SearchesInBothModes)
{
    TSortList List;
    int Index = -1;
    EXPECT_FALSE(List.SortFind("a", Index));
    EXPECT_EQ(Index, 0);
    Index = 7;
    EXPECT_FALSE(List.SortFind("a", Index));
    EXPECT_EQ(Index, 7) << "nothing to take an object from";

    for (const char* const Text : {"apple", "Zebra", "key=", "key", "\xC3\xA4"})
        List.SortInsert(Text, IntegerObject(static_cast<int>(Text[0])));
    const struct {
        const char* Text;
        bool Found;
        int Position;
        int Object;
    } Cases[] = {
        {"Zebra", true, 0, 'Z'},
        {"apple", true, 1, 'a'},
        {"key", true, 2, 'k'},
        {"key=", true, 3, 'k'},
        {"A", false, 0, 'Z'},
        {"b", false, 2, 'a'},
        {"key0", false, 3, 'k'},
        {"zz", false, 4, static_cast<char>(0xC3)},
        {"\xFF", false, 5, static_cast<char>(0xC3)},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Text);
        Index = -1;
        EXPECT_EQ(List.SortFind(Case.Text, Index), Case.Found);
        EXPECT_EQ(Index, Case.Position);
        Index = 0;
        EXPECT_EQ(List.SortFind(Case.Text, Index), Case.Found);
        EXPECT_EQ(Index, Case.Object);
    }
}

TEST(SortList, InsertsByKind)
{
    for (const TSortKind Kind : {skMulti, skUnique}) {
        TSortList List(Kind);
        for (const auto& [Text, Object] : {std::pair("b", 1), {"a", 2}, {"c", 3}, {"a", 4}})
            List.SortInsert(Text, IntegerObject(Object));
        EXPECT_EQ(Texts(List), Kind == skUnique ? (std::vector<std::string>{"a:4", "b:1", "c:3"})
                                                : (std::vector<std::string>{"a:4", "a:2", "b:1", "c:3"}));
    }
}

// What the order is believed to be after each kind of change, against a look.
TEST(SortList, KnowsWhetherItIsInOrder)
{
    std::mt19937 Random(1);
    for (int Round = 0; Round < 200; ++Round) {
        TSortList List;
        for (int Step = 0; Step < 30; ++Step) {
            const std::string Text(1, static_cast<char>('a' + Random() % 26));
            const int At =
                List.Count() == 0 ? 0 : static_cast<int>(Random() % static_cast<unsigned>(List.Count()));
            const uint64_t Version = List.Version();
            switch (List.Count() == 0 ? 0 : Random() % 9) {
            case 0:
                List.Add(Text);
                break;
            case 1:
                List.Put(At, Text);
                break;
            case 2:
                List.Insert(At, Text);
                break;
            case 3:
                List.Delete(At);
                break;
            case 4:
                List.Exchange(At, 0);
                break;
            case 5:
                List.Sort();
                break;
            case 6:
                List.PutObject(At, nullptr);
                break;
            case 7:
                List.SetText("a\nb\n" + Text);
                break;
            default:
                List.SortInsert(Text, nullptr);
                break;
            }
            std::vector<std::string> Lines = Texts(List);
            EXPECT_EQ(List.IsInOrder(), std::is_sorted(Lines.begin(), Lines.end()));
            EXPECT_NE(List.Version(), Version);
        }
    }
}

// The batch against line after line, equal lines with other objects and lists
// out of order included.
TEST(SortList, InsertsABatchAsOneByOne)
{
    for (unsigned Seed = 0; Seed < 600; ++Seed) {
        SCOPED_TRACE(Seed);
        std::mt19937 Random(Seed);
        const TSortKind Kind = Seed % 2 ? skUnique : skMulti;
        TSortList One(Kind), Batch(Kind);
        const auto Line = [&](unsigned Letters) {
            return TLine{std::string(1, static_cast<char>('a' + Random() % Letters)) +
                             static_cast<char>('a' + Random() % Letters),
                         IntegerObject(static_cast<int>(Random() % (Seed % 3 + 1)))};
        };
        const unsigned Letters = Seed % 5 == 0 ? 3 : 26;
        for (unsigned I = Random() % 20; I > 0; --I) {
            const TLine Old = Line(Letters);
            for (TSortList* const List : {&One, &Batch})
                if (Seed % 7 == 0)
                    List->AddObject(Old.Text, Old.Object);
                else
                    List->SortInsert(Old.Text, Old.Object);
        }
        std::vector<TLine> Lines(Random() % (Seed % 50 == 0 ? 3000 : 20));
        std::generate(Lines.begin(), Lines.end(), [&] { return Line(Letters); });
        if (Seed % 4 == 0)
            std::sort(Lines.begin(), Lines.end(),
                      [](const TLine& A, const TLine& B) { return A.Text < B.Text; });
        for (const TLine& New : Lines)
            One.SortInsert(New.Text, New.Object);
        Batch.SortInsertAll(Lines);
        ASSERT_EQ(Texts(One), Texts(Batch));
        EXPECT_EQ(One.IsInOrder(), Batch.IsInOrder());
    }
}

// Merging against its own description: delete the key's line if it is found,
// then insert.
TEST(KeyLines, MergesAsOneByOne)
{
    for (unsigned Seed = 0; Seed < 2000; ++Seed) {
        SCOPED_TRACE(Seed);
        std::mt19937 Random(Seed);
        const auto Line = [&](bool HasKey) {
            std::string Key(Random() % 3, 'k');
            for (unsigned I = Random() % 3; I > 0; --I)
                Key += "1. A"[Random() % 4];
            return HasKey || Random() % 4 ? Key + "=" + static_cast<char>('a' + Random() % 3) : Key;
        };
        const TSortKind Kind = Seed % 2 ? skUnique : skMulti;
        TSortList One(Kind), Batch(Kind);
        for (unsigned I = Random() % 12; I > 0; --I) {
            const std::string Old = Line(false);
            for (TSortList* const List : {&One, &Batch})
                if (Seed % 6 == 0)
                    List->Add(Old);
                else
                    List->SortInsert(Old, IntegerObject(1));
        }
        std::vector<std::string> Lines(Random() % 12);
        std::generate(Lines.begin(), Lines.end(), [&] { return Line(true); });
        for (const std::string& New : Lines) {
            int Index = 0;
            if (FindKeyLine(One, KeyOf(New), Index))
                One.Delete(Index);
            One.SortInsert(New, nullptr);
        }
        MergeKeyLines(Batch, Lines);
        ASSERT_EQ(Texts(One), Texts(Batch));
    }
}

} // namespace
