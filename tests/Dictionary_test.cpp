#include "core/DictionaryFile.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "Qft/Qft.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/Texts.h"
#include "tests/SampleComponent.h"

namespace {

class Dictionary : public testing::Test {
protected:
    void SetUp() override
    {
        const auto* const Info = testing::UnitTest::GetInstance()->current_test_info();
        Folder = std::filesystem::temp_directory_path() / (std::string("obx_dictionary_") + Info->name());
        std::filesystem::remove_all(Folder);
        std::filesystem::create_directories(Folder);
        Name = (Folder / "sv.txt").string();
    }
    void TearDown() override { std::filesystem::remove_all(Folder); }

    // "|" stands for a line end, ">" for the TAB.
    static std::string Shown(const std::string& Text)
    {
        return StringReplace(StringReplace(Text, "\r\n", "|", TReplaceExtent::All), "\t", ">",
                             TReplaceExtent::All);
    }
    void Write(std::string_view Text)
    {
        const std::string Lines = StringReplace(Text, "|", "\r\n", TReplaceExtent::All);
        ReplaceWholeFile(Name, StringReplace(Lines, ">", "\t", TReplaceExtent::All));
    }
    std::string Content() { return Shown(ReadWholeFile(Name)); }
    static std::string Lines(const TStrings& List) { return Shown(List.Text()); }

    std::filesystem::path Folder;
    std::string Name;
};

// A form with buttons of the given captions and translations of them.
struct TForm1 : TSample {
    TForm1(std::initializer_list<const char*> Captions, const char* Translations) : TSample(nullptr, "Form1")
    {
        int Number = 0;
        for (const char* const Each : Captions)
            (new TSample(this, "B" + std::to_string(++Number)))->SetCaption(Each);
        TStringList List;
        List.SetText(Translations);
        Translator->SetTranslations(&List);
    }
    TFormTranslator* Translator = new TFormTranslator(this);
};

TEST_F(Dictionary, ReadsPairs)
{
    const std::string Long(5000, 'x');
    Write("no tab||a>b|a\\\\n>\\t|x>y>z|" + ("long>" + Long));
    std::string Found;
    ForEachDictionaryPair(Name, [&](const std::string& Source, const std::string& Translation) {
        Found +=
            Source + "=" + (Translation.size() > 9 ? std::to_string(Translation.size()) : Translation) + ";";
    });
    EXPECT_EQ(Found, "a=b;a\n=\t;x=y\tz;long=4095;");
}

TEST_F(Dictionary, PutReplacesOrInserts)
{
    Write("b>1|a>1|a>2|no tab|");
    TDictionary Lines;
    Lines.Load(Name);
    Lines.Put("a", "3");
    Lines.Put("aa", "4");
    Lines.Put("", "5");
    Lines.Put("b", "6\n");
    Lines.Save(Name);
    EXPECT_EQ(Content(), ">5|a>3|a>2|aa>4|b>6\\n|no tab|");
}

TEST_F(Dictionary, ExportsWhatTheFormShows)
{
    TForm1 First({"Yes", "No", "Yes"},
                 "B1.Caption='Ja'\nB2.Caption='Nej'\nB3.Caption='Jo'\nB4.Caption='x'\nB1.Tag=7\n");
    First.Translator->TranslateTo(Name);
    EXPECT_EQ(Content(), "0>7|No>Nej|Yes>Jo|");
    TForm1 Second({"Yes", "Help"}, "B1.Caption='Japp'\nB2.Caption='Hj\xC3\xA4lp'#10\n");
    Second.Translator->TranslateTo(Name);
    EXPECT_EQ(Content(), "0>7|Help>Hj\xC3\xA4lp\\n|No>Nej|Yes>Japp|");
}

// A translated form shows translations; its sources are the values below them.
TEST_F(Dictionary, ExportRestoresFirst)
{
    TForm1 Form({"Yes"}, "B1.Caption='Ja'\n");
    Form.Translator->TranslateForm(Form.Translator->Translations(), false);
    ASSERT_TRUE(Form.Translator->Translated());
    Form.Translator->TranslateTo(Name);
    EXPECT_EQ(Content(), "Yes>Ja|");
    EXPECT_FALSE(Form.Translator->Translated());
}

TEST_F(Dictionary, ImportsIntoPresentLines)
{
    const struct {
        const char* Name;
        const char* File;
        const char* Before;
        const char* After;
    } Cases[] = {
        {"text", "Yes>Ja|", "B1.Caption='Yes'|", "B1.Caption='Ja'|"},
        {"text not quoted", "Yes>Ja|", "B1.Caption=Yes|", "B1.Caption=Ja|"},
        {"code", "Yes>It's|", "B1.Caption=#65|", "B1.Caption='It''s'|"},
        {"number", "0>5|", "B1.Tag=1|", "B1.Tag=5|"},
        {"no line", "No>Nej|", "B1.Caption='Yes'|", "B1.Caption='Yes'|"},
        {"without TAB", "Yes|", "B1.Caption='Yes'|", "B1.Caption='Yes'|"},
        {"the last pair wins", "Yes>Ja|Yes>Jo", "B1.Caption='Yes'|", "B1.Caption='Jo'|"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        Write(Case.File);
        TForm1 Form({"Yes", "No"}, StringReplace(Case.Before, "|", "\n", TReplaceExtent::All).c_str());
        EXPECT_TRUE(Form.Translator->TranslateFrom(Name));
        EXPECT_EQ(Lines(*Form.Translator->Translations()), Case.After);
        EXPECT_EQ(static_cast<TSample*>(Form.FindComponent("B1"))->Caption(), "Yes") << "translates nothing";
    }
    TForm1 Form({"Yes"}, "B1.Caption='Yes'\n");
    EXPECT_FALSE(Form.Translator->TranslateFrom(Name + "x"));
}

// Of several properties with one text, the one that the search lands on.
TEST_F(Dictionary, ImportReachesOneOfEqualTexts)
{
    Write("Yes>Ja|");
    TForm1 Form({"Yes", "Yes", "Yes", "Yes"},
                "B1.Caption='1'\nB2.Caption='2'\nB3.Caption='3'\nB4.Caption='4'\n");
    EXPECT_TRUE(Form.Translator->TranslateFrom(Name));
    // Each goes in front of the one that its search hits: 1, then 21, 321, and the
    // fourth in front of the middle one: 3421. The search hits the second again.
    EXPECT_EQ(Lines(*Form.Translator->Translations()),
              "B1.Caption='1'|B2.Caption='2'|B3.Caption='3'|B4.Caption='Ja'|");
}

} // namespace
