// The package as a module in the designer, from the palette to a translated program.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>

#include "designer/DesignerForm.h"
#include "designer/Packages.h"
#include "designer/StandardPages.h"
#include "framework/design/Experts.h"
#include "framework/design/Palette.h"
#include "framework/forms/StandardClasses.h"
#include "framework/rtl/FileNames.h"
#include "orbilex_designer.h"
#include "platform/Picture.h"
#include "tests/Folder.h"
#include "tests/FormUser.h"
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
    DesignedPackage()
    {
        RegisterStandardClasses();
        RegisterStandardPages();
        RegisterOrbilexDesigner();
        Packages.emplace();
        Packages->Load("Obxc3");
        Application->CreateForm(Main);
        Main->SetPackages(*Packages);
        Main->Show();
    }

    static void Run() { Application->ProcessMessages(); }
    TFormModel& Model() { return *Main->Workspace().Active()->Model; }
    HWND Surface() { return Main->Workspace().Active()->Surface.WindowHandle(); }

    static void Click(HWND Window, int X, int Y)
    {
        PostMessageA(Window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(X, Y));
        PostMessageA(Window, WM_LBUTTONUP, 0, MAKELPARAM(X, Y));
        Run();
    }

    // Turns the palette to the page and clicks the button of the class.
    void ChooseOnPalette(const std::string& Page, const std::string& Name)
    {
        const int Tab = Main->Palette->Tabs()->IndexOf(Page);
        ASSERT_GE(Tab, 0) << Page;
        RECT Place{};
        SendMessageA(Main->Palette->Handle(), TCM_GETITEMRECT, static_cast<WPARAM>(Tab),
                     reinterpret_cast<LPARAM>(&Place));
        Click(Main->Palette->Handle(), (Place.left + Place.right) / 2, (Place.top + Place.bottom) / 2);
        for (int I = 0; I < Main->PaletteBar->ControlCount(); ++I) {
            const TControl& Button = *Main->PaletteBar->Controls(I);
            if (Button.Hint() == Name)
                return Click(Main->PaletteBar->Handle(), Button.Left() + 5, Button.Top() + 5);
        }
        FAIL() << Name << " is not on the palette";
    }

    // Chooses the first entry of the menu that the right button brings up.
    void ChooseFirstVerb(TFormUser& User)
    {
        const TComponent& Selected = *Model().Selection().front();
        const POINT Place{Selected.DesignLeft + 5, Selected.DesignTop + 5};
        const HWND Icon = ChildWindowFromPointEx(Surface(), Place, CWP_SKIPINVISIBLE);
        User.Run<bool>([&] {
            for (const UINT Message : {WM_RBUTTONDOWN, WM_RBUTTONUP})
                PostMessageA(Icon, Message, 0, MAKELPARAM(5, 5));
            for (const WPARAM Key : {VK_DOWN, VK_RETURN})
                PostMessageA(Icon, WM_KEYDOWN, Key, 1);
            Run();
            return true;
        });
    }

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
    std::optional<TPackages> Packages;
    TDesignerForm* Main = nullptr;
};

TEST_F(DesignedPackage, PutsTranslatorsOnThePaletteAndItsExpertIntoTheMenu)
{
    EXPECT_EQ(ClassesOn("Quillmark"),
              (TTexts{"TButtonTranslator", "TCommonDialogTranslator", "TFormTranslator", "TLocaleTranslator",
                      "TResourceTranslator"}));
    EXPECT_EQ(Main->MnuTools->Items(Main->MnuTools->Count() - 1)->Caption(), "Orbilex Expert");
    // Loaded again it is the same; unregistered it leaves nothing.
    Packages->Load("Obxc3");
    EXPECT_EQ(LibraryExperts().size(), 1U);
    Packages.reset();
    EXPECT_TRUE(LibraryExperts().empty());
    EXPECT_TRUE(ClassesOn("Quillmark").empty());
    EXPECT_EQ(GetClass("TFormTranslator"), nullptr);
}

TEST_F(DesignedPackage, TellsWhatIsNoPackage)
{
    const std::string Text = Folder.Write("text.so", "no module");
    for (const std::string& Name : {Text, Folder.Name("absent"), std::string("no-such-package")})
        try {
            Packages->Load(Name);
            ADD_FAILURE() << Name;
        } catch (const EPackageError& Error) {
            EXPECT_NE(Error.Message().find(Name), std::string::npos) << Error.Message();
        }
}

// Places a form translator, translates a caption in its editor, saves, and runs the
// program with the saved forms.
TEST_F(DesignedPackage, TranslatesAFormOfTheDemo)
{
    CopyDemo(Folder);
    Main->Open(Folder.Name());
    const TTexts Forms = LinesOf(*Main->ProjectList->Items());
    const auto About = std::find(Forms.begin(), Forms.end(), "AboutForm.dfm");
    ASSERT_NE(About, Forms.end());
    Main->ProjectList->SetItemIndex(static_cast<int>(About - Forms.begin()));
    PostMessageA(Main->ProjectList->Handle(), WM_KEYDOWN, VK_RETURN, 1);
    Run();
    ASSERT_NE(Main->Workspace().Active(), nullptr);
    TakePicture(Main->Handle(), "1-project");

    ChooseOnPalette("Quillmark", "FormTranslator");
    Click(Surface(), 300, 240);
    ASSERT_EQ(Model().Selection().front()->Name(), "FormTranslator1");
    TInspector& Inspector = *Main->Inspector();
    Inspector.Enter(Inspector.RowOf("Locale"), "1053");
    TakePicture(Surface(), "2-placed");
    TakePicture(Main->Handle(), "3-inspector");

    TFormUser User;
    for (const char* const Sibling : {"TranslatorGerman", "TranslatorJapanese", "TranslatorArabic"})
        User.Answer(std::string("insert properties from ") + Sibling, "No");
    User.Page("Form").Page("Browser", "PropNotebook").Select("ListAvail", {"Caption"});
    User.Click("BtnIncludeProp").Page("Translations").Choose("PropList", "Caption");
    User.Type("EdtTranslation", "Om programmet").Do([this](TForm& Editor) {
        TakePicture(Editor.Handle(), "4-editor");
    });
    User.Click("BtnOK");
    ChooseFirstVerb(User);
    EXPECT_TRUE(Model().IsModified());
    EXPECT_TRUE(Main->Workspace().SaveProject());
    EXPECT_NE(Folder.Read("AboutForm.dfm").find("'Caption='#39'Om programmet'#39"), std::string::npos);

    const std::string Demo =
        ExtractFilePath(Application->ExeName()) + "demo" + ExtractFileExt(Application->ExeName());
    const std::string Output = OutputOf("\"" + Demo + "\" --forms \"" + Folder.Name() + "\" --tour --out \"" +
                                        Folder.Name("out") + "\"");
    EXPECT_NE(Output.find("Caption: 'About Booking Desk' -> 'Om programmet'"), std::string::npos) << Output;
}

} // namespace
