// Saving translations among other programs, full disks and sudden ends. The means
// to bring these about are POSIX; elsewhere the test of the file layer stands in.
#if __has_include(<sys/resource.h>)

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <thread>

#include <gtest/gtest.h>

#include "core/TranslationsFile.h"
#include "framework/rtl/Exceptions.h"
#include "framework/rtl/Files.h"

namespace {

class SavingProcess : public testing::Test {
protected:
    void SetUp() override
    {
        Folder = std::filesystem::temp_directory_path() / ("obx_saving_" + std::to_string(getpid()));
        std::filesystem::create_directories(Folder);
        Name = (Folder / "lang.txt").string();
        for (int I = 0; I < 20000; ++I)
            List.Add("Key" + std::to_string(100000 + I) + "='some text'");
    }
    void TearDown() override { std::filesystem::remove_all(Folder); }

    void Save(const std::string& Form) { SaveTranslations(Name, {Form, 1053}, List, TSortList()); }

    int Lines()
    {
        TSortList Result;
        Result.LoadFromFile(Name);
        EXPECT_TRUE(Result.IsInOrder());
        return Result.Count();
    }

    // Runs Work in a process of its own, which ends with the value of Work.
    template<class TWork>
    static pid_t Start(TWork Work)
    {
        const pid_t Process = fork();
        if (Process == 0) {
            int Result = 99;
            try {
                Result = Work();
            } catch (...) {
            }
            _exit(Result);
        }
        return Process;
    }
    static int WaitFor(pid_t Process)
    {
        int Status = 0;
        waitpid(Process, &Status, 0);
        return WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
    }

    std::filesystem::path Folder;
    std::string Name;
    TSortList List;
};

TEST_F(SavingProcess, TwoAtOnceLoseNothing)
{
    const auto SaveAs = [this](const char* Form) {
        return Start([this, Form] {
            for (int Round = 0; Round < 3; ++Round)
                Save(Form);
            return 0;
        });
    };
    const pid_t First = SaveAs("Form1"), Second = SaveAs("Form2");
    EXPECT_EQ(WaitFor(First), 0);
    EXPECT_EQ(WaitFor(Second), 0);
    EXPECT_EQ(Lines(), 40000);
}

TEST_F(SavingProcess, FullDiskKeepsTheOldFile)
{
    Save("Form1");
    const std::string Before = ReadWholeFile(Name);
    const pid_t Process = Start([this] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit Limit{300000, 300000};
        setrlimit(RLIMIT_FSIZE, &Limit);
        try {
            Save("Form2");
        } catch (const EWriteError& Error) {
            return Error.Message().find(Name) != std::string::npos ? 1 : 2;
        }
        return 0;
    });
    EXPECT_EQ(WaitFor(Process), 1) << "an error that names the file";
    EXPECT_EQ(ReadWholeFile(Name), Before);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Folder), {}), 1) << "nothing is left behind";
}

// Permissions do not hold an administrator, who becomes an ordinary user for this.
TEST_F(SavingProcess, ReadOnlyFoldersAndFilesAreProtected)
{
    constexpr uid_t Nobody = 65534;
    const struct {
        const char* Name;
        unsigned FolderMode;
        unsigned FileMode;
    } Cases[] = {{"folder", 0555, 0666}, {"file", 0777, 0444}};
    Save("Form1");
    const std::string Before = ReadWholeFile(Name);
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        std::filesystem::permissions(Name, std::filesystem::perms(Case.FileMode));
        std::filesystem::permissions(Folder, std::filesystem::perms(Case.FolderMode));
        const int Result = WaitFor(Start([this] {
            if (geteuid() == 0 && setuid(Nobody) != 0)
                return 3;
            try {
                Save("Form2");
            } catch (const EFCreateError& Error) {
                return Error.Message() == "Cannot create file " + Name + ". Permission denied" ? 1 : 2;
            }
            return 0;
        }));
        std::filesystem::permissions(Folder, std::filesystem::perms::owner_all);
        if (Result == 3)
            GTEST_SKIP() << "this administrator may not become another user";
        EXPECT_EQ(Result, 1) << "an error that names file and reason";
        EXPECT_EQ(ReadWholeFile(Name), Before);
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Folder), {}), 1);
    }
}

TEST_F(SavingProcess, KilledKeepsAWholeFile)
{
    Save("Form1");
    for (int Delay = 0; Delay < 12; ++Delay) {
        const pid_t Process = Start([this] {
            for (;;)
                Save("Form2");
            return 0;
        });
        std::this_thread::sleep_for(std::chrono::milliseconds(3 * Delay + 1));
        kill(Process, SIGKILL);
        WaitFor(Process);
        const int Count = Lines();
        EXPECT_TRUE(Count == 20000 || Count == 40000) << Count;
    }
    Save("Form3"); // the lock died with its holder
}

} // namespace

#endif
