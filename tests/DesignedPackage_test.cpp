// The package as a module in the designer, from the palette to a translated program.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>

#include "framework/design/Experts.h"
#include "framework/design/Palette.h"
#include "framework/forms/ListBoxes.h"
#include "framework/rtl/FileNames.h"
#include "platform/Picture.h"
#include "tests/DesignerUser.h"
#include "tests/Folder.h"
#include "tests/RegistryScope.h"

namespace {

using TTexts = std::vector<std::string>;

// The demo's forms, with the Swedish translator of the About form taken out.
void CopyDemo(const TTestFolder& Folder)
{
    for (const auto& Each : std::filesystem::directory_iterator(DEMO_FORMS))
        Folder.Write(Each.path().filename().string(), ReadWholeFile(Each.path().string()));
    std::string About = Folder.Read("AboutForm.dfm");
    const size_t Begin = About.find("  object TranslatorSwedish: ");
    const size_t End = About.find("  object TranslatorGerman: ");
    ASSERT_LT(Begin, End);
    Folder.Write("AboutForm.dfm", About.erase(Begin, End - Begin));
}

std::string OutputOf(const std::string& CommandLine)
{
    std::string Result;
    std::array<char, 4096> Buffer{};
    FILE* const Pipe = popen(CommandLine.c_str(), "r");
    while (const size_t Bytes = fread(Buffer.data(), 1, Buffer.size(), Pipe))
        Result.append(Buffer.data(), Bytes);
    EXPECT_EQ(pclose(Pipe), 0) << Result;
    return Result;
}

class DesignedPackage : public testing::Test {
protected:
    static TTexts ClassesOn(const std::string& Page)
    {
        TTexts Result;
        for (const TPalettePage& Each : PalettePages())
            if (Each.Name == Page)
                for (const TMetaClass* const Class : Each.Classes)
                    Result.push_back(Class->ClassName());
        return Result;
    }

    void TakePicture(HWND Window, const std::string& Name)
    {
        EXPECT_TRUE(SaveWindowPicture(Window, Pictures + Name + ".png")) << Name;
    }

    const TApplicationScope Scope;
    const TRegistryScope Registry;
    const TTestFolder Folder;
    const std::string Pictures = testing::TempDir() + "designed-";
    TDesignerUser Designer;
};

TEST_F(DesignedPackage, PutsTranslatorsOnThePaletteAndItsExpertIntoTheMenu)
{
    EXPECT_EQ(ClassesOn("Quillmark"),
              (TTexts{"TButtonTranslator", "TCommonDialogTranslator", "TFormTranslator", "TLocaleTranslator",
                      "TResourceTranslator"}));
    EXPECT_EQ(Designer.Main->MnuTools->Items(Designer.Main->MnuTools->Count() - 1)->Caption(),
              "Orbilex Expert");
    // Loaded again it is the same; unregistered it leaves nothing.
    Designer.Packages->Load("Obxc3");
    EXPECT_EQ(LibraryExperts().size(), 1U);
    Designer.Packages.reset();
    EXPECT_TRUE(LibraryExperts().empty());
    EXPECT_TRUE(ClassesOn("Quillmark").empty());
    EXPECT_EQ(GetClass("TFormTranslator"), nullptr);
}

TEST_F(DesignedPackage, TellsWhatIsNoPackage)
{
    const std::string Text = Folder.Write("text.so", "no module");
    for (const std::string& Name : {Text, Folder.Name("absent"), std::string("no-such-package")})
        try {
            Designer.Packages->Load(Name);
            ADD_FAILURE() << Name;
        } catch (const EPackageError& Error) {
            EXPECT_NE(Error.Message().find(Name), std::string::npos) << Error.Message();
        }
}

// Also those that cannot be loaded are tried again the next time, and told.
TEST_F(DesignedPackage, RemembersPackages)
{
    for (const char* const Name : {"no-such-package", "Obxc3", "no-such-package"})
        TPackages::Remember(Name);
    Designer.Packages.reset();
    TPackages Next;
    const std::string Errors = Next.LoadRemembered();
    EXPECT_NE(Errors.find("no-such-package"), std::string::npos) << Errors;
    EXPECT_EQ(std::ranges::count(Errors, '\n'), 1) << Errors;
}

// Places a form translator, translates a caption in its editor, saves, and runs the
// program with the saved forms.
TEST_F(DesignedPackage, TranslatesAFormOfTheDemo)
{
    CopyDemo(Folder);
    Designer.Main->Open(Folder.Name());
    const TTexts Forms = LinesOf(*Designer.Main->ProjectList->Items());
    Designer.OpenForm("AboutForm.dfm");
    TakePicture(Designer.Main->Handle(), "1-project");

    Designer.Place("FormTranslator", 300, 240);
    ASSERT_EQ(Designer.Model().Selection().front()->Name(), "FormTranslator1");
    Designer.Enter("Locale", "1053");
    TakePicture(Designer.Surface(), "2-placed");
    TakePicture(Designer.Main->Handle(), "3-inspector");

    TFormUser User;
    for (const char* const Sibling : {"TranslatorGerman", "TranslatorJapanese", "TranslatorArabic"})
        User.Answer(std::string("insert properties from ") + Sibling, "No");
    User.Page("Form").Page("Browser", "PropNotebook").Select("ListAvail", {"Caption"});
    User.Click("BtnIncludeProp").Page("Translations").Choose("PropList", "Caption");
    User.Type("EdtTranslation", "Om programmet").Do([this](TForm& Editor) {
        TakePicture(Editor.Handle(), "4-editor");
    });
    User.Click("BtnOK");
    Designer.ChooseFirstVerb(User);
    EXPECT_TRUE(Designer.Model().IsModified());
    EXPECT_TRUE(Designer.Main->Workspace().SaveProject());
    EXPECT_NE(Folder.Read("AboutForm.dfm").find("'Caption='#39'Om programmet'#39"), std::string::npos);

    // Under a name that every shell takes as it is.
    const std::string Plain = testing::TempDir() + "designed-forms";
    std::filesystem::remove_all(Plain);
    std::filesystem::create_directories(Plain);
    for (const std::string& Each : Forms)
        ReplaceWholeFile(Plain + "/" + Each, Folder.Read(Each));
    const std::string Program = Application->ExeName();
    const std::string Output = OutputOf(ExtractFilePath(Program) + "demo" + ExtractFileExt(Program) +
                                        " --forms " + Plain + " --tour --out " + Pictures + "tour");
    EXPECT_NE(Output.find("Caption: 'About Booking Desk' -> 'Om programmet'"), std::string::npos) << Output;
}

// The expert's entry in the menu globalizes the open project, whose forms are then shown
// as they have become.
TEST_F(DesignedPackage, GlobalizesTheOpenProject)
{
    Folder.Write("MainForm.dfm", "object MainForm: TMainForm\r\n  Caption = 'Editor'\r\nend\r\n");
    Designer.Main->Open(Folder.Write("editor.obp", "[Project]\nName=Editor\n[Forms]\nMainForm.dfm\n"));
    Designer.Main->Open(Folder.Name("MainForm.dfm"));
    TFormUser User;
    User.See("PnlProjectName", Designer.Main->Workspace().GetProjectName()).Click("BtnNext").Click("BtnNext");
    User.Do([](TForm& Form) {
        auto& List = PartOf<TCheckListBox>(Form, "LstLocales");
        List.SetFocus();
        List.SetItemIndex(List.Items()->IndexOf("Swedish, Sweden"));
    });
    User.Keys(" ").Click("BtnNext").Do([this](TForm& Wizard) { TakePicture(Wizard.Handle(), "5-wizard"); });
    User.Click("BtnFinish");
    User.Run<bool>([&] {
        Designer.Main->MnuTools->Items(Designer.Main->MnuTools->Count() - 1)->Click();
        return true;
    });
    EXPECT_NE(Designer.Model().Bytes().find(": TFormTranslator"), std::string::npos)
        << Designer.Model().Bytes();
    EXPECT_FALSE(Designer.Model().IsModified());
    EXPECT_EQ(Folder.Read("MainForm.dfm"), Designer.Model().Bytes());
}

} // namespace
