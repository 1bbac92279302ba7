// Follows docs/tutorial step by step. Its pictures go into the folder that the
// environment variable TUTORIAL_PICTURES names.
#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <map>
#include <sstream>

#include "MainForm.h"
#include "SignForm.h"
#include "framework/forms/FormResources.h"
#include "framework/forms/Menus.h"
#include "platform/Picture.h"
#include "tests/DesignerUser.h"
#include "tests/Folder.h"
#include "tests/RegistryScope.h"

namespace {

using TTexts = std::vector<std::string>;

// The texts of the guest book's forms, and of the message after an empty name.
TTexts ShownTexts()
{
    TTexts Result = {MainForm->Caption(), SignForm->Caption()};
    for (const char* const Name : {"LblTitle", "LblGuests", "BtnSign", "BtnRemove"})
        Result.push_back(PartOf<TControl>(*MainForm, Name).Text());
    for (const char* const Name : {"MnuFile", "ItemExit", "MnuLanguage"})
        Result.push_back(PartOf<TMenuItem>(*MainForm, Name).Caption());
    for (const char* const Name : {"LblName", "BtnCancel"})
        Result.push_back(PartOf<TControl>(*SignForm, Name).Text());
    TFormUser User;
    User.Click("BtnSign");
    User.Do([&](TForm& Message) { Result.push_back(PartOf<TLabel>(Message, "Message").Caption()); });
    User.Click("OK").Click("BtnCancel");
    EXPECT_FALSE(User.Run<bool>([] { return SignForm->Ask(); }));
    return Result;
}

const TTexts English = {"Guest Book",
                        "Sign the Guest Book",
                        "Who was here",
                        "&Guests:",
                        "&Sign the book...",
                        "&Remove",
                        "&File",
                        "E&xit",
                        "&Language",
                        "&Name:",
                        "Cancel",
                        "Please tell us your name."};
const TTexts German = {"Gästebuch",     "Ins Gästebuch eintragen",
                       "Wer hier war",  "&Gäste:",
                       "&Eintragen...", "E&ntfernen",
                       "&Datei",        "&Beenden",
                       "&Sprache",      "&Name:",
                       "Abbrechen",     "Bitte sagen Sie uns Ihren Namen."};

std::filesystem::path PathOf(const std::string& Name)
{
    return std::u8string(Name.begin(), Name.end());
}

const char* PicturesFolder()
{
    return std::getenv("TUTORIAL_PICTURES");
}

void TakePicture(HWND Window, const std::string& Name)
{
    if (PicturesFolder()) {
        EXPECT_TRUE(SaveWindowPicture(Window, PicturesFolder() + ("/" + Name) + ".png")) << Name;
    }
}

TFormUser::TAct Picture(const std::string& Name)
{
    return [Name](TForm& Form) { TakePicture(Form.Handle(), Name); };
}

class Tutorial : public testing::Test {
protected:
    Tutorial()
    {
        std::filesystem::remove_all(PathOf(Project));
        std::filesystem::copy(GUESTBOOK, PathOf(Project), std::filesystem::copy_options::recursive);
    }

    // The guest book with the forms that are in the project; with the package when they
    // are translated.
    void RunGuestbook(bool WithPackage, const std::function<void()>& Act);

    void OpenProject();
    void TranslateMainForm();
    void TranslateSignForm();
    void TranslateMessages();
    void AddLanguageMenu();
    void TranslateByDictionary(TFormUser& User, const std::string& What) const
    {
        User.Page("Dictionary").Click("BtnTranslate");
        // Dialogs of the system insist on their own separator.
        const std::u8string File = PathOf(Project + "/german.txt").make_preferred().u8string();
        User.ChooseFile("Translate " + What + " using the selected dictionary", {File.begin(), File.end()});
        User.Page("Translations");
    }

    const TRegistryScope Registry;
    const TTestFolder Folder;
    // Pictures show its name.
    const std::string Project =
        PicturesFolder() ? testing::TempDir() + "guestbook" : Folder.Name("guestbook");
    std::map<std::string, std::string> Forms; // that the program has read
    TDesignerUser* Designer = nullptr;
};

void Tutorial::RunGuestbook(bool WithPackage, const std::function<void()>& Act)
{
    // Makes its texts known.
    ASSERT_NE(LoadLibraryExA("guestbook_parts", nullptr, 0), nullptr);
    const TApplicationScope Scope;
    TPackages Packages;
    if (WithPackage)
        Packages.Load("Obxc3");
    RegisterStandardClasses();
    for (const std::string Name : {"MainForm", "SignForm"}) {
        Forms[Name] = ReadWholeFile(Project + "/forms/" + Name + ".dfm");
        RegisterFormResource("T" + Name, Forms[Name]);
    }
    Application->CreateForm(MainForm);
    Application->CreateForm(SignForm);
    MainForm->Show();
    Application->ProcessMessages();
    Act();
}

void Tutorial::OpenProject()
{
    Designer->Main->SetHeight(460);
    Designer->Main->Open(Project + "/guestbook.obp");
    Designer->OpenForm("forms/MainForm.dfm");
    TakePicture(Designer->Main->Handle(), "02-project");
}

void Tutorial::TranslateMainForm()
{
    Designer->Place("FormTranslator", 184, 0);
    Designer->Enter("Locale", "1031");
    TakePicture(Designer->Main->Handle(), "03-translator");
    TFormUser User;
    User.Page("Form").Click("BtnSelect").Do(Picture("04-texts")).Click("BtnIncludeProp");
    User.Page("Translations").Choose("PropList", "Caption").Type("EdtTranslation", "Gästebuch");
    TranslateByDictionary(User, "properties");
    User.Choose("PropList", "BtnSign.Caption").Do(Picture("05-translated")).Click("BtnOK");
    Designer->ChooseFirstVerb(User);
}

void Tutorial::TranslateSignForm()
{
    Designer->OpenForm("forms/SignForm.dfm");
    Designer->Place("FormTranslator", 32, 168);
    Designer->Enter("Locale", "1031");
    TakePicture(Designer->Surface(), "06-second-form");
    TFormUser User;
    User.Page("Form").Click("BtnSelect").Click("BtnIncludeProp");
    TranslateByDictionary(User, "properties");
    User.Click("BtnOK");
    Designer->ChooseFirstVerb(User);
}

void Tutorial::TranslateMessages()
{
    Designer->OpenForm("forms/MainForm.dfm");
    Designer->Place("ResourceTranslator", 248, 216);
    Designer->Enter("Locale", "1031");
    TFormUser User;
    for (const char* const Text : {"Thank you, %s! You signed on %s.", "Please tell us your name.",
                                   "A guest book. It holds what visitors have to say."})
        User.Click("BtnNew").Enter("Add library resource string", "Please provide the original string", Text);
    TranslateByDictionary(User, "strings");
    User.Choose("PropList", "Please tell us your name.").Do(Picture("07-messages")).Click("BtnOK");
    Designer->ChooseFirstVerb(User);
}

void Tutorial::AddLanguageMenu()
{
    Designer->Place("LocaleTranslator", 280, 0);
    TFormUser User;
    // The list begins with the user's own locale.
    User.Page("Locales").Do([](TForm& Editor) {
        const TStrings& Chosen = *PartOf<TListBox>(Editor, "LangListInApp").Items();
        ASSERT_GE(Chosen.IndexOf("English, United States"), 0) << "run as an American";
    });
    User.Choose("LangList", "German, Germany").Click("BtnCopyLang");
    User.Choose("LangListInApp", "English, United States").Click("BtnSetStartup");
    User.Do(Picture("08-languages")).Click("BtnOK");
    Designer->ChooseFirstVerb(User);
    Designer->Enter("ListFormat", "%2:s");
    Designer->Enter("AdoptOn", "MnuLanguage");
    TakePicture(Designer->Surface(), "09-complete");
}

// What saving has added to a form: the first lines of the components. Everything else
// must be as it was.
TTexts AddedComponents(const std::string& File, const std::string& Original)
{
    std::istringstream New(ReadWholeFile(File));
    std::istringstream Old(ReadWholeFile(Original));
    TTexts Result;
    std::string Wanted;
    std::getline(Old, Wanted);
    bool Inside = false;
    for (std::string Line; std::getline(New, Line);) {
        if (!Inside && Line == Wanted) {
            std::getline(Old, Wanted);
            continue;
        }
        if (!Inside)
            Result.push_back(Line);
        Inside = Line != "  end\r";
    }
    EXPECT_TRUE(Old.eof()) << "changed: " << Wanted;
    return Result;
}

TEST_F(Tutorial, LeadsToAProgramInTwoLanguages)
{
    RunGuestbook(false, [&] {
        TakePicture(MainForm->Handle(), "01-untranslated");
        EXPECT_EQ(ShownTexts(), English);
    });
    {
        const TApplicationScope Scope;
        TDesignerUser User;
        Designer = &User;
        OpenProject();
        TranslateMainForm();
        TranslateSignForm();
        TranslateMessages();
        AddLanguageMenu();
        EXPECT_TRUE(User.Main->Workspace().SaveAll());
    }
    RunGuestbook(true, [&] {
        EXPECT_EQ(ShownTexts(), English);
        const TMenuItem& Languages = *MainForm->MnuLanguage;
        ASSERT_EQ(Languages.Count(), 2);
        ASSERT_EQ(Languages.Items(0)->Caption(), "Deutsch");
        Languages.Items(0)->Click();
        Application->ProcessMessages();
        TakePicture(MainForm->Handle(), "10-german");
        EXPECT_EQ(ShownTexts(), German);
        Languages.Items(1)->Click();
        EXPECT_EQ(ShownTexts(), English);
    });
    EXPECT_EQ(AddedComponents(Project + "/forms/MainForm.dfm", GUESTBOOK "/forms/MainForm.dfm"),
              (TTexts{"  object FormTranslator1: TFormTranslator\r",
                      "  object ResourceTranslator1: TResourceTranslator\r",
                      "  object LocaleTranslator1: TLocaleTranslator\r"}));
    EXPECT_EQ(AddedComponents(Project + "/forms/SignForm.dfm", GUESTBOOK "/forms/SignForm.dfm"),
              (TTexts{"  object FormTranslator1: TFormTranslator\r"}));
}

} // namespace
