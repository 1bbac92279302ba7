#include "core/TranslationsFile.h"

#include <filesystem>
#include <thread>

#include <gtest/gtest.h>

#include "core/KeyLines.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"

namespace {

using namespace std::string_literals;

class TranslationsFile : public testing::Test {
protected:
    void SetUp() override
    {
        const auto* const Info = testing::UnitTest::GetInstance()->current_test_info();
        Folder = std::filesystem::temp_directory_path() / (std::string("obx_translations_") + Info->name());
        std::filesystem::remove_all(Folder);
        std::filesystem::create_directories(Folder);
        Name = (Folder / "lang.txt").string();
    }
    void TearDown() override { std::filesystem::remove_all(Folder); }

    void Write(std::string_view Text) { ReplaceWholeFile(Name, Text); }
    std::string Content() { return ReadWholeFile(Name); }
    static std::string Text(const TStrings& List)
    {
        return StringReplace(List.Text(), "\r\n", "|", TReplaceExtent::All);
    }

    // The message of the conversion error that Work raises.
    template<class TWork>
    static std::string ErrorOf(TWork Work)
    {
        try {
            Work();
        } catch (const EConvertError& Error) {
            const size_t Name = Error.Message().find("lang.txt");
            return Name == std::string::npos ? Error.Message() : Error.Message().substr(Name);
        }
        return "none";
    }

    std::filesystem::path Folder;
    std::string Name;
};

TEST_F(TranslationsFile, SplitsLines)
{
    const std::string Long(5000, 'x');
    const struct {
        const char* Name;
        std::string Content;
        std::string List;
    } Cases[] = {
        {"one entry", "Form1.Button1.Caption%1053='OK'\r\n", "Button1.Caption='OK'|"},
        {"other sections and locales", "Form.A%1053=1\nForm1.B%1033=2\nForm10.C%1053=3\nForm1.D%-1=4\n", ""},
        {"every line end", "Form1.A%1053=1\rForm1.B%1053=2\nForm1.C%1053=3\r\n\r\nForm1.D%1053=4",
         "A=1|B=2|C=3|D=4|"},
        {"byte-order mark",
         "\xEF\xBB\xBF"
         "Form1.A%1053=1\r\n",
         "A=1|"},
        {"NUL bytes", "Form1.A%1053=1\0x\n\0\nForm1.B%1053=2"s, "A=1\0x|B=2|"s},
        {"ten megabytes without a line end", std::string(10'000'000, 'x'), ""},
        {"value with marks", "Form1.A%1053=x=.%1033\n", "A=x=.%1033|"},
        {"order of the list, not of the file", "Form1.A%1053=1\nForm1.A.B%1053=2\nForm1.A0%1053=3\n",
         "A.B=2|A0=3|A=1|"},
        {"the last of a key", "Form1.A%1053=2\nForm1.A%1053=1\n", "A=1|"},
        {"long value", "Form1.A%1053=" + Long + "\n", "A=" + Long.substr(0, 4095) + "|"},
        {"long value, not within a character", "Form1.A%1053=" + Long.substr(0, 4094) + "\xC3\xA4\n",
         "A=" + Long.substr(0, 4094) + "|"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        Write(Case.Content);
        TSortList List;
        EXPECT_TRUE(LoadTranslations(Name, {"Form1", 1053}, List));
        EXPECT_EQ(Text(List), Case.List);
    }
}

TEST_F(TranslationsFile, MergesIntoTheList)
{
    Write("Form1.A%1053='new'\r\nForm1.C%1053='c'\r\n");
    TSortList List;
    for (const char* const Line : {"A='old'", "B='b'"})
        List.SortInsert(Line, nullptr);
    LoadTranslations(Name, {"Form1", 1053}, List);
    EXPECT_EQ(Text(List), "A='new'|B='b'|C='c'|");
    EXPECT_FALSE(LoadTranslations(Name + "x", {"Form1", 1053}, List));
    EXPECT_FALSE(LoadTranslations(Folder.string(), {"Form1", 1053}, List)) << "a folder is no file";
    EXPECT_EQ(Text(List), "A='new'|B='b'|C='c'|");
}

// Everything is read before anything is changed.
TEST_F(TranslationsFile, ReportsMalformedLocales)
{
    const struct {
        std::string Line;
        std::string Reason;
    } Cases[] = {
        {"Form1.A%1O53=x", "lang.txt:2: locale '1O53' is not a number"},
        {"Form1.A=x%1053", "lang.txt:2: locale '' is not a number"},
        {"Form1.A", "lang.txt:2: locale '' is not a number"},
        {"Form1.A%99999999999=x", "lang.txt:2: locale '99999999999' is not a number"},
        {"Form1.A%10\0"
         "53=x"s,
         "lang.txt:2: locale '10\0"
         "53' is not a number"s},
        {"Form1.A%" + std::string(300, '9') + "=x",
         "lang.txt:2: locale '" + std::string(255, '9') + "' is not a number"},
        {"Form2.A%x=x", "none"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Line);
        const std::string Before = "Form1.A%1053=1\r\n" + Case.Line + "\r\n";
        Write(Before);
        TSortList List;
        EXPECT_EQ(ErrorOf([&] { LoadTranslations(Name, {"Form1", 1053}, List); }), Case.Reason);
        const bool Fails = Case.Reason != "none";
        EXPECT_EQ(List.Count(), Fails ? 0 : 1);
        EXPECT_EQ(ErrorOf([&] { SaveTranslations(Name, {"Form1", 1053}, List, List); }), Case.Reason);
        EXPECT_EQ(Content() == Before, Fails);
    }
}

// Read as bytes, nothing in it would be found, and saving would tear it apart.
TEST_F(TranslationsFile, RefusesUtf16)
{
    for (const std::string& Before : {"\xFF\xFE"
                                      "F\0.\0A\0\r\0\n\0"s,
                                      "\xFE\xFF\0F"s}) {
        Write(Before);
        TSortList List;
        const char* const Reason = "lang.txt:1: the text is UTF-16, not UTF-8";
        EXPECT_EQ(ErrorOf([&] { LoadTranslations(Name, {"F", 1053}, List); }), Reason);
        EXPECT_EQ(ErrorOf([&] { SaveTranslations(Name, {"F", 1053}, List, List); }), Reason);
        EXPECT_EQ(Content(), Before);
    }
}

TEST_F(TranslationsFile, SaveReplacesOnlyItsOwnLines)
{
    TSortList List, Defaults;
    List.SetText("A=1\nB=2\nno key\n");
    Defaults.SetText("A=a\n");
    const struct {
        const char* Name;
        const char* Before;
        const char* After;
    } Cases[] = {
        {"new file", "", "Form1.A%-1=a|Form1.A%1053=1|Form1.B%1053=2|"},
        {"others stay", "#0Form1.A%1053=x|Form1.A%-1=old|Form1.A%1033=en|Form1.C%1053=old|Form2.A%1053=y|",
         "#0Form1.A%1053=x|Form1.A%-1=a|Form1.A%1033=en|Form1.A%1053=1|Form1.B%1053=2|Form2.A%1053=y|"},
        {"without its byte-order mark",
         "\xEF\xBB\xBF"
         "Form0.A%1=1|Form2.A%1=1|",
         "Form0.A%1=1|Form1.A%-1=a|Form1.A%1053=1|Form1.B%1053=2|Form2.A%1=1|"},
        {"lines out of order, or no entries, stay where they are", "zebra||Form0.A%1=1|",
         "zebra||Form0.A%1=1|Form1.A%-1=a|Form1.A%1053=1|Form1.B%1053=2|"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        Write(StringReplace(Case.Before, "|", "\n", TReplaceExtent::All));
        SaveTranslations(Name, {"Form1", 1053}, List, Defaults);
        EXPECT_EQ(StringReplace(Content(), "\r\n", "|", TReplaceExtent::All), Case.After);
        const std::string Once = Content();
        SaveTranslations(Name, {"Form1", 1053}, List, Defaults);
        EXPECT_EQ(Content(), Once) << "the same again";
    }
}

TEST_F(TranslationsFile, SaveNamesFileAndReason)
{
    TSortList List;
    List.Add("A=1");
    const std::string Missing = (Folder / "none" / "lang.txt").string();
    try {
        SaveTranslations(Missing, {"Form1", 1053}, List, List);
        FAIL();
    } catch (const EFCreateError& Error) {
        EXPECT_NE(Error.Message().find(Missing), std::string::npos);
        EXPECT_GT(Error.Message().size(), Missing.size() + 25) << Error.Message();
    }
    std::filesystem::create_directory(Folder / "lang.txt");
    EXPECT_THROW(SaveTranslations(Name, {"Form1", 1053}, List, List), EFCreateError);
    EXPECT_TRUE(std::filesystem::is_directory(Name));
}

// Each reads, merges and writes; without the lock the last one wins.
TEST_F(TranslationsFile, SavesAtOnceLoseNothing)
{
    constexpr int Forms = 6;
    std::vector<std::thread> Savers;
    for (int Form = 0; Form < Forms; ++Form)
        Savers.emplace_back([&, Form] {
            TSortList List;
            for (int Round = 0; Round < 5; ++Round) {
                List.SortInsert("Key" + std::to_string(Round) + "=1", nullptr);
                SaveTranslations(Name, {"Form" + std::to_string(Form), 1053}, List, TSortList());
            }
        });
    for (std::thread& Each : Savers)
        Each.join();
    TSortList Lines;
    Lines.LoadFromFile(Name);
    EXPECT_EQ(Lines.Count(), Forms * 5);
    EXPECT_TRUE(Lines.IsInOrder());
}

} // namespace
