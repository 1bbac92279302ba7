#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <thread>

#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"

namespace fs = std::filesystem;

namespace {

std::string ThisProgram;
const bool OnPosix = PathDelimiter == '/';

fs::path Utf8Path(const std::string& Name)
{
    return std::u8string(Name.begin(), Name.end());
}

// An empty folder with a name beyond ASCII, removed at the end.
class FilesTest : public testing::Test {
protected:
    FilesTest()
    {
        std::random_device Random;
        const std::string Leaf = "orbilex-test-" + std::to_string(Random()) + "-\xC3\xA4\xE2\x82\xAC";
        FFolder = fs::temp_directory_path() / Utf8Path(Leaf);
        fs::create_directories(FFolder);
    }
    ~FilesTest() override
    {
        std::error_code Ignored;
        fs::remove_all(FFolder, Ignored);
    }

    fs::path Path(const std::string& Leaf) const { return FFolder / Utf8Path(Leaf); }
    std::string Name(const std::string& Leaf) const
    {
        const auto Text = Path(Leaf).u8string();
        return {Text.begin(), Text.end()};
    }

    std::size_t FilesInFolder() const
    {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(FFolder), {}));
    }

    fs::path FFolder;
};

// Runs this program in another role; returns what the command shell answers.
int RunAs(const std::string& Arguments, const std::string& ShellPrefix = "")
{
    const std::string Command = ShellPrefix + "\"" + ThisProgram + "\" " + Arguments;
    return std::system((OnPosix ? Command : "\"" + Command + "\"").c_str());
}

template<typename TError>
std::string ErrorOf(const std::function<void()>& Action)
{
    try {
        Action();
    } catch (const TError& Error) {
        return Error.Message();
    }
    return "no error of this class";
}

// Adds Count lines, each in a read-merge-write of its own.
void AddLines(const std::string& FileName, const std::string& Prefix, int Count)
{
    for (int Index = 0; Index < Count; ++Index) {
        const TFileLock Lock(FileName);
        ReplaceWholeFile(FileName, ReadWholeFile(FileName) + Prefix + "\n");
    }
}

constexpr std::size_t BlockSize = 300000;

// Saves blocks of one letter without end, until the program dies from another
// thread, wherever the saving is then.
[[noreturn]] void SaveUntilDeath(const std::string& FileName, int Milliseconds)
{
    std::thread([&FileName] {
        for (int Index = 0;; ++Index)
            ReplaceWholeFile(FileName, std::string(BlockSize, static_cast<char>('a' + Index % 26)));
    }).detach();
    std::this_thread::sleep_for(std::chrono::milliseconds(Milliseconds));
    std::_Exit(0);
}

int RunRole(const std::string& Role, const std::string& FileName, const std::string& Argument)
{
    if (Role == "add-lines")
        AddLines(FileName, Argument, 40);
    else if (Role == "save-until-death")
        SaveUntilDeath(FileName, StrToInt(Argument));
    else if (Role == "die-holding-lock") {
        const TFileLock Lock(FileName);
        std::_Exit(0);
    } else if (Role == "save-too-much") {
        const std::string Message =
            ErrorOf<EWriteError>([&] { ReplaceWholeFile(FileName, std::string(BlockSize, 'x')); });
        return Message.starts_with("Cannot write file " + FileName + ". ") ? 7 : 8;
    }
    return 0;
}

} // namespace

TEST_F(FilesTest, ReadsWhatWasWritten)
{
    for (const std::size_t Size : {0u, 1u, 65535u, 65536u, 65537u, 1000000u}) {
        std::string Content(Size, '\0');
        for (std::size_t Index = 0; Index < Size; ++Index)
            Content[Index] = static_cast<char>(Index * 7 % 251);
        ReplaceWholeFile(Name("lang.txt"), Content);
        ASSERT_EQ(ReadWholeFile(Name("lang.txt")), Content);
        ASSERT_EQ(fs::file_size(Path("lang.txt")), Size);
    }
    TFileReplacer Pieces(Name("lang.txt"));
    std::string Expected;
    for (int Index = 0; Index < 30000; ++Index) {
        const std::string Line = std::to_string(Index) + "\r\n";
        Pieces.Write(Line);
        Expected += Line;
    }
    Pieces.Commit();
    EXPECT_EQ(ReadWholeFile(Name("lang.txt")), Expected);
    EXPECT_EQ(FilesInFolder(), 1u);
}

TEST_F(FilesTest, ErrorsNameFileAndReason)
{
    const std::string Missing = Name("missing.txt");
    const std::string Folder = Name("");
    const std::string Nowhere = Name("no/such/folder.txt");
    const auto Read = [](const std::string& FileName) {
        return ErrorOf<EFOpenError>([&] { ReadWholeFile(FileName); });
    };
    const auto Write = [](const std::string& FileName) {
        return ErrorOf<EFCreateError>([&] { ReplaceWholeFile(FileName, "x"); });
    };
    EXPECT_EQ(Read(Folder), "Cannot open file " + Folder + ". Is a directory");
    EXPECT_EQ(Write(Folder), "Cannot create file " + Folder + ". Is a directory");

    // The words of the reason are the operating system's.
    const auto ExpectReason = [](const std::string& Message, const std::string& Start) {
        EXPECT_TRUE(Message.starts_with(Start + ". ") && Message.size() > Start.size() + 5) << Message;
    };
    ExpectReason(Read(Missing), "Cannot open file " + Missing);
    ExpectReason(Write(Nowhere), "Cannot create file " + Nowhere);
    ExpectReason(Write(""), "Cannot create file ");
    if (OnPosix) {
        EXPECT_EQ(Read(Missing), "Cannot open file " + Missing + ". No such file or directory");
        // Nobody can create a file there, not even an administrator.
        ExpectReason(Write("/proc/lang.txt"), "Cannot create file /proc/lang.txt");
        ExpectReason(Write("/dev/null"), "Cannot create file /dev/null"); // would be lost by renaming
    }
    EXPECT_EQ(FilesInFolder(), 0u);
}

TEST_F(FilesTest, AbandonedReplacementChangesNothing)
{
    ReplaceWholeFile(Name("lang.txt"), "old");
    {
        TFileReplacer File(Name("lang.txt"));
        File.Write(std::string(200000, 'x'));
    }
    EXPECT_EQ(ReadWholeFile(Name("lang.txt")), "old");
    EXPECT_EQ(FilesInFolder(), 1u);
}

// A folder takes the name while the new content is being written.
TEST_F(FilesTest, FailureOfTheLastStepLeavesNothingBehind)
{
    TFileReplacer* File = new TFileReplacer(Name("lang.txt"));
    File->Write("x");
    fs::create_directory(Path("lang.txt"));
    const std::string Message = ErrorOf<EWriteError>([&] { File->Commit(); });
    delete File;
    EXPECT_TRUE(Message.starts_with("Cannot write file " + Name("lang.txt") + ". ")) << Message;
    EXPECT_TRUE(DirectoryExists(Name("lang.txt")));
    EXPECT_FALSE(FileExists(Name("lang.txt")));
    EXPECT_EQ(FilesInFolder(), 1u);
}

TEST_F(FilesTest, FailureHalfWayKeepsTheOldFile)
{
    if (!OnPosix)
        GTEST_SKIP() << "the size of files cannot be limited on Windows";
    ReplaceWholeFile(Name("lang.txt"), "old");
    const int Answer = RunAs("save-too-much \"" + Name("lang.txt") + "\"", "trap '' XFSZ; ulimit -f 64; ");
    EXPECT_EQ(Answer / 256, 7);
    EXPECT_EQ(ReadWholeFile(Name("lang.txt")), "old");
    EXPECT_EQ(FilesInFolder(), 1u);
}

TEST_F(FilesTest, ReadOnlyFilesAreProtected)
{
    ReplaceWholeFile(Name("lang.txt"), "old");
    fs::permissions(Path("lang.txt"), fs::perms::owner_read);
    if (OnPosix && std::ofstream(Path("lang.txt"), std::ios::app).is_open())
        GTEST_SKIP() << "this user may write to read-only files";
    EXPECT_NE(ErrorOf<EFCreateError>([&] { ReplaceWholeFile(Name("lang.txt"), "new"); }),
              "no error of this class");
    EXPECT_EQ(ReadWholeFile(Name("lang.txt")), "old");
    fs::permissions(Path("lang.txt"), fs::perms::owner_all);
}

TEST_F(FilesTest, KeepsPermissions)
{
    if (!OnPosix)
        GTEST_SKIP() << "Windows has no permission bits";
    for (const unsigned Mode : {0600u, 0664u, 0755u}) {
        ReplaceWholeFile(Name("lang.txt"), "old");
        fs::permissions(Path("lang.txt"), fs::perms(Mode));
        ReplaceWholeFile(Name("lang.txt"), "new");
        EXPECT_EQ(fs::status(Path("lang.txt")).permissions(), fs::perms(Mode));
    }
}

TEST_F(FilesTest, FollowsLinks)
{
    fs::create_directory(Path("real"));
    std::error_code Error;
    fs::create_symlink("real/lang.txt", Path("first"), Error);
    if (Error)
        GTEST_SKIP() << "no symbolic links here: " << Error.message();
    fs::create_symlink("first", Path("second"));
    ReplaceWholeFile(Name("second"), "created behind two links");
    EXPECT_EQ(ReadWholeFile(Name("real/lang.txt")), "created behind two links");
    ReplaceWholeFile(Name("second"), "replaced");
    EXPECT_EQ(ReadWholeFile(Name("real/lang.txt")), "replaced");
    EXPECT_TRUE(fs::is_symlink(Path("first")) && fs::is_symlink(Path("second")));
    EXPECT_EQ(FileIdentity(Name("second")), FileIdentity(Name("real/../real/lang.txt")));
    fs::create_symlink("loop", Path("loop"));
    EXPECT_NE(ErrorOf<EFCreateError>([&] { ReplaceWholeFile(Name("loop"), "x"); }), "no error of this class");
}

TEST_F(FilesTest, TakesTheLongestNames)
{
    const std::string Long(250, 'n');
    ReplaceWholeFile(Name(Long), "x");
    EXPECT_EQ(ReadWholeFile(Name(Long)), "x");
    const TFileLock Lock(Name(Long));
    EXPECT_EQ(FilesInFolder(), 1u);
}

// Readers meet whole contents only, while a program is killed at odd moments.
TEST_F(FilesTest, SuddenDeathLeavesAWholeFile)
{
    ReplaceWholeFile(Name("lang.txt"), std::string(BlockSize, 'a'));
    std::string Letters;
    for (const int Milliseconds : {0, 3, 8, 15, 30, 60}) {
        RunAs("save-until-death \"" + Name("lang.txt") + "\" " + std::to_string(Milliseconds));
        const std::string Content = ReadWholeFile(Name("lang.txt"));
        ASSERT_EQ(Content.size(), BlockSize);
        ASSERT_EQ(Content.find_first_not_of(Content[0]), Content.npos);
        Letters += Content[0];
    }
    EXPECT_NE(Letters, "aaaaaa") << "nothing was saved before the end";
}

TEST_F(FilesTest, ReadersNeverMeetAPart)
{
    ReplaceWholeFile(Name("lang.txt"), std::string(BlockSize, 'a'));
    std::atomic<bool> Stop = false;
    std::thread Writer([&] {
        for (int Index = 0; Index < 60; ++Index)
            ReplaceWholeFile(Name("lang.txt"), std::string(BlockSize, static_cast<char>('a' + Index % 26)));
        Stop = true;
    });
    std::size_t Broken = 0;
    std::string Problem;
    while (!Stop) {
        try {
            const std::string Content = ReadWholeFile(Name("lang.txt"));
            Broken += Content.size() != BlockSize || Content.find_first_not_of(Content[0]) != Content.npos;
        } catch (const Exception& Error) {
            Problem = Error.Message();
        }
    }
    Writer.join();
    EXPECT_EQ(Broken, 0u);
    EXPECT_EQ(Problem, "");
}

TEST_F(FilesTest, ProgramsSavingAtOnceLoseNothing)
{
    ReplaceWholeFile(Name("lang.txt"), "");
    std::thread Other([&] { RunAs("add-lines \"" + Name("lang.txt") + "\" B"); });
    std::thread Third([&] { AddLines(Name("lang.txt"), "C", 40); });
    RunAs("add-lines \"" + Name("lang.txt") + "\" A");
    Other.join();
    Third.join();
    const std::string Content = ReadWholeFile(Name("lang.txt"));
    for (const char Each : {'A', 'B', 'C'})
        EXPECT_EQ(std::count(Content.begin(), Content.end(), Each), 40) << Each;
    EXPECT_EQ(FilesInFolder(), 1u); // the lock leaves nothing here
}

TEST_F(FilesTest, LocksTimeOutAndDieWithTheirOwner)
{
    using namespace std::chrono_literals;
    RunAs("die-holding-lock \"" + Name("lang.txt") + "\"");
    const TFileLock Lock(Name("lang.txt"), 0ms);
    const TFileLock Another(Name("other.txt"), 0ms);
    const auto Start = std::chrono::steady_clock::now();
    EXPECT_EQ(ErrorOf<EInOutError>([&] { TFileLock(Name("lang.txt"), 100ms); }),
              "Cannot lock file " + Name("lang.txt") + ". Another program has kept the file locked");
    EXPECT_GE(std::chrono::steady_clock::now() - Start, 100ms);
}

int main(int ArgumentCount, char** Arguments)
{
    testing::InitGoogleTest(&ArgumentCount, Arguments);
    ThisProgram = Arguments[0];
    if (ArgumentCount >= 3)
        return RunRole(Arguments[1], Arguments[2], ArgumentCount > 3 ? Arguments[3] : "");
    return RUN_ALL_TESTS();
}
