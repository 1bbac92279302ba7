// Project files: what is read, what is refused, and what writing leaves alone.
#include <gtest/gtest.h>

#include "framework/design/Project.h"
#include "framework/rtl/Exceptions.h"
#include "tests/Folder.h"

namespace {

using TNames = std::vector<std::string>;

const std::string Booking = "; of the ferry company\r\n"
                            "[Project]\r\n"
                            "Name=Booking Desk\r\n"
                            "MainForm=MainForm\r\n"
                            "\r\n"
                            "[Forms]\r\n"
                            "; the first one\r\n"
                            "forms/MainForm.dfm\r\n"
                            "forms/About.dfm\r\n"
                            "\r\n"
                            "[Units]\r\n"
                            "Main.pas\r\n";

TEST(Project, ReadsItsParts)
{
    const TTestFolder Folder;
    for (const std::string& Bytes :
         {Booking, "\xEF\xBB\xBF" + Booking, Booking.substr(0, Booking.size() - 2)}) {
        const TProject Project = ReadProject(Folder.Write("booking.obp", Bytes));
        EXPECT_EQ(Project.Name, "Booking Desk");
        EXPECT_EQ(Project.MainForm, "MainForm");
        EXPECT_EQ(Project.Forms, (TNames{"forms/MainForm.dfm", "forms/About.dfm"}));
        EXPECT_EQ(Project.Units, (TNames{"Main.pas"}));
        EXPECT_EQ(Project.FullName("forms\\About.dfm"), Folder.Name("forms/About.dfm"));
        EXPECT_EQ(Project.FullName("/a/b.dfm"), "/a/b.dfm");
    }
    EXPECT_EQ(ReadProject(Folder.Write("small.obp", "")).Name, "small");
    EXPECT_THROW(ReadProject(Folder.Name("none.obp")), EFOpenError);
}

TEST(Project, RefusesWhatMeansNothing)
{
    const TTestFolder Folder;
    const struct {
        const char* Bytes;
        const char* Place;
    } Cases[] = {
        {"Main.dfm\n", ":1: "},
        {"[Project]\nName=A\n\n[Windows]\n", ":4: "},
        {"[Project]\nName\n", ":2: "},
        {"[Project]\nColour=red\n", ":2: "},
        {"[Forms]\nA.dfm\nA.dfm\n", ":3: "},
        {"[Project]\nName=A\nName=B\n", ":3: "},
        {"[Units]\n\xC5.pas\n", ":2: "},
    };
    for (const auto& Case : Cases) {
        const std::string Name = Folder.Write("bad.obp", Case.Bytes);
        try {
            ReadProject(Name);
            ADD_FAILURE() << Case.Bytes;
        } catch (const EParserError& Error) {
            EXPECT_EQ(Error.Message().find(Name + Case.Place), 0u) << Error.Message();
        }
        TProject Project;
        Project.FileName = Name;
        EXPECT_THROW(WriteProject(Project), EParserError);
        EXPECT_EQ(Folder.Read("bad.obp"), Case.Bytes);
    }
}

TEST(Project, WritingKeepsWhatPeopleWrote)
{
    const TTestFolder Folder;
    TProject Project = ReadProject(Folder.Write("booking.obp", Booking));
    WriteProject(Project);
    EXPECT_EQ(Folder.Read("booking.obp"), Booking);

    Project.Name = "Desk";
    Project.Forms = {"forms/New.dfm", "forms/About.dfm", "forms/Last.dfm"};
    Project.Units.clear();
    WriteProject(Project);
    EXPECT_EQ(Folder.Read("booking.obp"),
              "; of the ferry company\r\n[Project]\r\nName=Desk\r\n"
              "MainForm=MainForm\r\n\r\n[Forms]\r\n; the first one\r\n"
              "forms/About.dfm\r\nforms/New.dfm\r\nforms/Last.dfm\r\n\r\n[Units]\r\n");

    Project.Forms = {"forms/Last.dfm", "forms/About.dfm"};
    WriteProject(Project);
    EXPECT_EQ(ReadProject(Project.FileName).Forms, Project.Forms);

    Project.FileName = Folder.Name("new.obp");
    WriteProject(Project);
    EXPECT_EQ(Folder.Read("new.obp"),
              "[Project]\nName=Desk\nMainForm=MainForm\n\n[Forms]\nforms/Last.dfm\nforms/About.dfm\n");
}

TEST(Project, AFolderIsAProject)
{
    const TTestFolder Folder;
    for (const char* const File :
         {"b.dfm", "A/c.LFM", "a.txt", "A/x.pas", ".git/d.dfm", "main.cpp", "u.obp.dfm"})
        Folder.Write(File, "");
    const TProject Project = OpenProject(Folder.Name() + "/");
    EXPECT_EQ(Project.Forms, (TNames{"A/c.LFM", "b.dfm", "u.obp.dfm"}));
    EXPECT_EQ(Project.Units, (TNames{"A/x.pas", "main.cpp"}));
    EXPECT_EQ(Project.FileName, Folder.Name() + "/" + Project.Name + ".obp");
    EXPECT_EQ(Project.FullName("b.dfm"), Folder.Name("b.dfm"));

    Folder.Write("booking.obp", Booking);
    EXPECT_EQ(OpenProject(Folder.Name()).Name, "Booking Desk");
    Folder.Write("second.obp", Booking);
    EXPECT_THROW(OpenProject(Folder.Name()), EFOpenError);
    EXPECT_THROW(OpenProjectFolder(Folder.Name("none")), EFOpenError);
}

} // namespace
