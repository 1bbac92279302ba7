// The command line: answers, exit codes, and what happens with bad input.
#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>
#include <sstream>

#include "framework/rtl/Files.h"
#include "tools/Orbilex.h"

namespace {

struct TAnswer {
    int Code;
    std::string Output;
    std::string Errors;
};

TAnswer RunTool(std::vector<const char*> Arguments)
{
    Arguments.insert(Arguments.begin(), "orbilex");
    std::ostringstream Output;
    std::ostringstream Errors;
    std::streambuf* const OldOutput = std::cout.rdbuf(Output.rdbuf());
    std::streambuf* const OldErrors = std::cerr.rdbuf(Errors.rdbuf());
    const int Code = RunOrbilex(static_cast<int>(Arguments.size()), Arguments.data());
    std::cout.rdbuf(OldOutput);
    std::cerr.rdbuf(OldErrors);
    return {Code, Output.str(), Errors.str()};
}

class Orbilex : public testing::Test {
protected:
    Orbilex()
    {
        FFolder = (std::filesystem::temp_directory_path() /
                   testing::UnitTest::GetInstance()->current_test_info()->name())
                      .generic_string();
        std::filesystem::remove_all(FFolder);
        std::filesystem::create_directories(FFolder);
    }
    ~Orbilex() override { std::filesystem::remove_all(FFolder); }

    std::string Write(const std::string& Name, const std::string& Content)
    {
        ReplaceWholeFile(FFolder + "/" + Name, Content);
        return FFolder + "/" + Name;
    }

    std::string FFolder;
    const std::string FBooking = TEST_DATA "/booking.dfm";
};

bool Has(const std::string& Text, const std::string& Part)
{
    return Text.find(Part) != Text.npos;
}

TEST_F(Orbilex, ListsPropertiesWithTheirSection)
{
    const TAnswer Answer = RunTool({"list", FBooking.c_str()});
    EXPECT_EQ(Answer.Code, 0) << Answer.Errors;
    for (const char* const Line :
         {"\nBookingForm.Caption='Bookings for today'\n", "\nBookingForm.LblRoute.Caption='&Route:'\n",
          "\nBookingForm.CbxRoute.Items[1]='Turku – Mariehamn'\n",
          "\nBookingForm.Status.Panels[0].Text='Ready'\n", "\nBookingForm.Status.Panels[0].Width=120\n",
          "\nBookingForm.Notes.Lines[0]='It''s two lines'\n",
          "\nBookingForm.Gauge.Title.Caption='Seats taken'\n",
          "\nBookingForm.Gauge.Marks[0].Caption='Half'\n", "\nBookingForm.Gauge.Percent=12.5\n",
          "\nBookingForm.MnuExit.Caption='E&xit'\n", "\nBookingForm.Font.Color=clWindowText\n",
          "\nBookingForm.SystemMenuClose="})
        EXPECT_TRUE(Has("\n" + Answer.Output, Line)) << Line;
    EXPECT_FALSE(Has(Answer.Output, "OnCreate"));
    EXPECT_FALSE(Has(Answer.Output, "Glyph"));
}

TEST_F(Orbilex, ListsWhatAUserSees)
{
    const TAnswer Answer = RunTool({"list", "--texts", "--locale", "1053", FBooking.c_str()});
    EXPECT_TRUE(Has(Answer.Output, "BookingForm.Gauge.Title.Caption%1053='Seats taken'\n"));
    for (const char* const Technical : {"Font.Name", "Width", "Charset", "Align%"})
        EXPECT_FALSE(Has(Answer.Output, Technical)) << Technical;
}

TEST_F(Orbilex, TranslatesAndRestores)
{
    const std::string Lines = Write("lang.txt", "BookingForm.Caption%1053='Dagens bokningar'\r\n"
                                                "BookingForm.CbxRoute.Items[0]%1053='Åbo – Stockholm'\r\n"
                                                "BookingForm.Gauge.Marks[0].Caption%1053='Hälften'\r\n"
                                                "BookingForm.Nowhere.Caption%1053='x'\r\n"
                                                "Other.Caption%1053='y'\r\n");
    const std::string Out = FFolder + "/out.dfm";
    const TAnswer Answer = RunTool({"translate", FBooking.c_str(), "--translations", Lines.c_str(),
                                    "--locale", "1053", "-o", Out.c_str(), "--restore"});
    EXPECT_EQ(Answer.Code, 0) << Answer.Errors;
    EXPECT_TRUE(Has(Answer.Errors, "3 properties translated, restoring gives the original bytes"));
    std::string Expected = ReadWholeFile(FBooking);
    const auto Replace = [&](const std::string& Old, const std::string& New) {
        Expected.replace(Expected.find(Old), Old.size(), New);
    };
    Replace("'Bookings for today'", "'Dagens bokningar'");
    Replace("'Stockholm '#8211' Mariehamn'", "#197'bo '#8211' Stockholm'");
    Replace("'Half'", "'H'#228'lften'");
    EXPECT_EQ(ReadWholeFile(Out), Expected);
}

TEST_F(Orbilex, BadInputIsNamedAndTheNextFileFollows)
{
    const std::string Broken = Write("broken.dfm", "object A: TA\n  Caption = 'open\nend\n");
    const TAnswer Answer = RunTool({"roundtrip", Broken.c_str(), "/no/such.dfm", FBooking.c_str()});
    EXPECT_EQ(Answer.Code, 2);
    EXPECT_TRUE(Has(Answer.Errors, Broken + ":2:")) << Answer.Errors;
    EXPECT_TRUE(Has(Answer.Errors, "/no/such.dfm")) << Answer.Errors;
    EXPECT_TRUE(Has(Answer.Output, "booking.dfm: same bytes")) << Answer.Output;

    const std::string Bad = Write("bad.txt", "BookingForm.Caption%1O53='x'\r\n");
    const TAnswer BadLocale =
        RunTool({"translate", FBooking.c_str(), "--translations", Bad.c_str(), "--locale", "1053"});
    EXPECT_EQ(BadLocale.Code, 2);
    EXPECT_TRUE(Has(BadLocale.Errors, "bad.txt:1")) << BadLocale.Errors;
    const TAnswer Missing =
        RunTool({"translate", FBooking.c_str(), "--translations", "/no/lang.txt", "--locale", "1"});
    EXPECT_EQ(Missing.Code, 2);
    EXPECT_TRUE(Has(Missing.Errors, "/no/lang.txt"));
    EXPECT_EQ(Missing.Output, "");
}

TEST_F(Orbilex, GlobalizesAProjectAndExchangesDictionaries)
{
    const std::string Form = Write("booking.dfm", ReadWholeFile(FBooking));
    const char* const Folder = FFolder.c_str();
    const TAnswer Dry = RunTool({"globalize", Folder, "--locales", "1053,1031", "--dry-run"});
    EXPECT_EQ(Dry.Code, 0) << Dry.Errors;
    EXPECT_TRUE(Has(Dry.Output, "booking.dfm: changed; placed FormTranslatorSwedish, FormTranslatorGerman"))
        << Dry.Output;
    EXPECT_EQ(ReadWholeFile(Form), ReadWholeFile(FBooking));
    EXPECT_EQ(RunTool({"export-dictionary", Folder}).Code, 2);

    EXPECT_EQ(RunTool({"globalize", Folder, "--locales", "1053,1031", "--file", "booking.lng"}).Code, 0);
    const TAnswer Second = RunTool({"globalize", Folder, "--locales", "1053", "--json"});
    EXPECT_TRUE(Has(Second.Output, "\"changed\": false")) << Second.Output;
    EXPECT_FALSE(Has(Second.Output, "\"changed\": true")) << Second.Output;

    const TAnswer Export = RunTool({"export-dictionary", Folder, "--locales", "1053"});
    EXPECT_EQ(Export.Code, 0) << Export.Errors;
    const std::string Name = Export.Output.substr(0, Export.Output.find(": new"));
    ASSERT_TRUE(Has(Name, ".1053.txt")) << Export.Output;
    EXPECT_TRUE(Has(ReadWholeFile(Name), "&Route:\t\r\n"));
    ReplaceWholeFile(Name, "&Route:\t&Rutt:\r\n");
    const TAnswer Import = RunTool({"import-dictionary", Folder, Name.c_str()});
    EXPECT_EQ(Import.Code, 0) << Import.Errors;
    EXPECT_TRUE(Has(Import.Output, "1 text translated")) << Import.Output;
    EXPECT_TRUE(
        Has(ReadWholeFile(FFolder + "/booking.lng"), "BookingForm.LblRoute.Caption%1053='&Rutt:'\r\n"));
    EXPECT_EQ(RunTool({"import-dictionary", Folder, Name.c_str()}).Code, 1) << "nothing new";
    EXPECT_EQ(RunTool({"import-dictionary", Folder, Form.c_str()}).Code, 2) << "no locale in the name";

    const std::string Broken = Write("broken.dfm", "object A: TA\n  Caption = 'open\nend\n");
    const TAnswer Damaged = RunTool({"globalize", Folder, "--locales", "1041"});
    EXPECT_EQ(Damaged.Code, 2);
    EXPECT_TRUE(Has(Damaged.Errors, Broken + ":2:")) << Damaged.Errors;
    EXPECT_EQ(RunTool({"globalize", "/no/such", "--locales", "1041"}).Code, 2);
    EXPECT_EQ(RunTool({"globalize", Folder}).Code, 2);
}

TEST_F(Orbilex, WrongUseIsCodeTwo)
{
    for (const auto& Arguments : std::vector<std::vector<const char*>>{
             {}, {"frobnicate"}, {"list"}, {"roundtrip", "--binary", "--text", "a"}, {"translate", "a"}})
        EXPECT_EQ(RunTool(Arguments).Code, 2);
    EXPECT_EQ(RunTool({"--help"}).Code, 0);
    EXPECT_EQ(RunTool({"list", "--help"}).Code, 0);
}

TEST_F(Orbilex, ConvertsBetweenTheFormats)
{
    const TAnswer There = RunTool({"roundtrip", "--binary", "-o", FFolder.c_str(), FBooking.c_str()});
    EXPECT_EQ(There.Code, 0) << There.Output << There.Errors;
    const std::string Binary = ReadWholeFile(FFolder + "/booking.dfm");
    EXPECT_EQ(Binary.substr(0, 3), std::string("\xFF\x0A\x00", 3));
    const std::string Back = FFolder + "/back";
    const TAnswer Again =
        RunTool({"roundtrip", "--text", "-o", Back.c_str(), (FFolder + "/booking.dfm").c_str()});
    EXPECT_EQ(Again.Code, 0) << Again.Output << Again.Errors;
    EXPECT_EQ(ReadWholeFile(Back + "/booking.dfm"), ReadWholeFile(FBooking));
}

TEST_F(Orbilex, CodePagesAreNamedByTheCaller)
{
    const std::string Form = TEST_DATA "/codepage.dfm";
    const TAnswer Answer = RunTool({"list", "--texts", "--code-page", "1250", Form.c_str()});
    EXPECT_TRUE(Has(Answer.Output, "Okno.Caption='Zażółć gęślą jaźń'\n")) << Answer.Output;
}

} // namespace
