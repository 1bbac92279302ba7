// Writing the files of a project: whatever ends it, the project is as it was or as it
// is to be.
#include <gtest/gtest.h>

#include "framework/design/ProjectWriter.h"
#include "framework/rtl/Exceptions.h"
#include "tests/Folder.h"

namespace {

using TFiles = std::map<std::string, std::string>;

const TFiles OldFiles = {{"forms/A.dfm", "old a"}, {"forms/B.dfm", ""}, {"other.txt", "x"}};
const TFiles NewFiles = {
    {"forms/A.dfm", "new a"}, {"forms/B.dfm", "new b"}, {"other.txt", "x"}, {"texts.lng", "new"}};

void Fill(const TTestFolder& Folder, const TFiles& Files)
{
    for (const auto& [Name, Content] : Files)
        Folder.Write(Name, Content);
}

std::vector<TProjectFile> ToWrite(const TTestFolder& Folder)
{
    return {{Folder.Name("forms/A.dfm"), "old a", "new a"},
            {Folder.Name("forms/B.dfm"), "", "new b"},
            {Folder.Name("texts.lng"), std::nullopt, "new"}};
}

// What a kill before each step of Work leaves on disk.
template<class TWork>
std::vector<TFiles> StatesDuring(const TTestFolder& Folder, const TWork& Work)
{
    std::vector<TFiles> Result;
    Work([&](const std::string&) { Result.push_back(Folder.Files()); });
    Result.push_back(Folder.Files());
    return Result;
}

// Journals have full names outside of the project's folder only, so that a state can
// be looked at in another one.
TEST(ProjectWriter, AKillAtAnyStepLeavesOldOrNew)
{
    const TTestFolder Folder;
    Fill(Folder, OldFiles);
    const auto States = StatesDuring(Folder, [&](const TWriteStep& Step) {
        WriteProjectFiles(Folder.Name("p.obp"), ToWrite(Folder), Step);
    });
    EXPECT_EQ(Folder.Files(), NewFiles);
    ASSERT_GT(States.size(), 15u);
    int Old = 0;
    for (const TFiles& State : States) {
        const TTestFolder Killed;
        Fill(Killed, State);
        // A second kill, while the project is recovered.
        const auto Again =
            StatesDuring(Killed, [&](const TWriteStep& Step) { RecoverProject(Killed.Name("p.obp"), Step); });
        const bool IsOld = Killed.Files() == OldFiles;
        EXPECT_TRUE(IsOld || Killed.Files() == NewFiles);
        Old += IsOld;
        for (const TFiles& Each : Again) {
            const TTestFolder KilledTwice;
            Fill(KilledTwice, Each);
            RecoverProject(KilledTwice.Name("p.obp"));
            EXPECT_EQ(KilledTwice.Files(), Killed.Files());
            EXPECT_FALSE(RecoverProject(KilledTwice.Name("p.obp")));
        }
    }
    EXPECT_GT(Old, 0);
    EXPECT_LT(Old, static_cast<int>(States.size()));
}

TEST(ProjectWriter, AFailureAtAnyStepRollsBack)
{
    int Failures = 0;
    for (int Fatal = 0;; ++Fatal) {
        const TTestFolder Folder;
        Fill(Folder, OldFiles);
        int Count = 0;
        bool IsDone = false;
        try {
            WriteProjectFiles(Folder.Name("p.obp"), ToWrite(Folder), [&](const std::string& What) {
                if (Count++ == Fatal)
                    throw EWriteError("full disk");
                IsDone = IsDone || What == "done";
            });
            break;
        } catch (const EWriteError&) {
            RecoverProject(Folder.Name("p.obp")); // only after the last file was placed there is work for it
            EXPECT_EQ(Folder.Files(), IsDone ? NewFiles : OldFiles) << Fatal;
            ++Failures;
        }
    }
    EXPECT_GT(Failures, 15);
}

TEST(ProjectWriter, RefusesBeforeAnythingIsWritten)
{
    const TTestFolder Folder;
    Fill(Folder, OldFiles);
    for (const TProjectFile& Bad : {TProjectFile{Folder.Name("other.txt"), "y", "z"},
                                    TProjectFile{Folder.Name("other.txt"), std::nullopt, "z"},
                                    TProjectFile{Folder.Name("none.txt"), "y", "z"},
                                    TProjectFile{Folder.Name("no/folder.txt"), std::nullopt, "z"}}) {
        auto Files = ToWrite(Folder);
        Files.push_back(Bad);
        EXPECT_THROW(WriteProjectFiles(Folder.Name("p.obp"), Files), Exception) << Bad.Name;
        EXPECT_EQ(Folder.Files(), OldFiles);
    }
    Folder.Write(".orbilex-journal", "Orbilex journal 1\nplace\nbroken\n");
    EXPECT_THROW(RecoverProject(Folder.Name("p.obp")), EParserError);
}

// Between a kill and the recovery the user goes on working.
TEST(ProjectWriter, RecoveryLeavesLaterWorkAlone)
{
    const TTestFolder Folder;
    Folder.Write(".orbilex-journal", "Orbilex journal 1\nplace\nold a.txt\nold b.txt\nnew c.txt\n");
    Fill(Folder, {{"a.txt", "later"},
                  {"a.txt.new~", "new"},
                  {"a.txt.old~", "old"},
                  {"b.txt", "new"},
                  {"b.txt.old~", "old"},
                  {"c.txt", "later"},
                  {"c.txt.new~", "new"}});
    EXPECT_TRUE(RecoverProject(Folder.Name("p.obp")));
    EXPECT_EQ(Folder.Files(), (TFiles{{"a.txt", "later"}, {"b.txt", "old"}, {"c.txt", "later"}}));
}

} // namespace
