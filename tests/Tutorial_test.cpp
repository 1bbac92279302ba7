// Follows docs/tutorial step by step. Its pictures go into the folder that the
// environment variable TUTORIAL_PICTURES names.
#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <map>

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

class Tutorial : public testing::Test {
protected:
    Tutorial()
    {
        for (const auto& Each : std::filesystem::recursive_directory_iterator(GUESTBOOK))
            if (Each.is_regular_file())
                Folder.Write(Each.path().lexically_relative(GUESTBOOK).generic_string(),
                             ReadWholeFile(Each.path().string()));
    }

    void TakePicture(HWND Window, const std::string& Name) const
    {
        if (const char* const Pictures = std::getenv("TUTORIAL_PICTURES")) {
            EXPECT_TRUE(SaveWindowPicture(Window, std::string(Pictures) + "/" + Name + ".png")) << Name;
        }
    }
    TFormUser::TAct Picture(const std::string& Name) const
    {
        return [this, Name](TForm& Form) { TakePicture(Form.Handle(), Name); };
    }

    // The guest book with the forms that are in the folder; with the package when they
    // are translated.
    void RunGuestbook(bool WithPackage, const std::function<void()>& Act);

    void OpenProject(TDesignerUser& Designer);
    void ChooseLanguages(TDesignerUser& Designer);
    void TranslateMainForm(TDesignerUser& Designer);
    void TranslateSignForm(TDesignerUser& Designer);
    void TranslateMessages(TDesignerUser& Designer);

    const TRegistryScope Registry;
    const TTestFolder Folder;
    std::map<std::string, std::string> Forms; // that the program has read
};

void Tutorial::RunGuestbook(bool WithPackage, const std::function<void()>& Act)
{
    const TApplicationScope Scope;
    TPackages Packages;
    if (WithPackage)
        Packages.Load("Obxc3");
    RegisterStandardClasses();
    for (const std::string Name : {"MainForm", "SignForm"}) {
        Forms[Name] = Folder.Read("forms/" + Name + ".dfm");
        RegisterFormResource("T" + Name, Forms[Name]);
    }
    Application->CreateForm(MainForm);
    Application->CreateForm(SignForm);
    MainForm->Show();
    Application->ProcessMessages();
    Act();
}

void Tutorial::OpenProject(TDesignerUser& Designer)
{
    Designer.Main->SetHeight(460);
    Designer.Main->Open(Folder.Name("guestbook.obp"));
    Designer.OpenForm("forms/MainForm.dfm");
    TakePicture(Designer.Main->Handle(), "02-project");
}

void Tutorial::ChooseLanguages(TDesignerUser& Designer)
{
    Designer.Place("LocaleTranslator", 216, 8);
    TFormUser User;
    User.Page("Locales").Do([](TForm& Editor) {
        // The list begins with the user's locale, which is another one in each country.
        auto& Chosen = PartOf<TListBox>(Editor, "LangListInApp");
        if (Chosen.Items()->IndexOf("English, United States") < 0)
            ADD_FAILURE() << "run with an American locale";
    });
    User.Choose("LangList", "German, Germany").Click("BtnCopyLang");
    User.Choose("LangListInApp", "English, United States").Click("BtnSetStartup");
    User.Do(Picture("03-languages")).Click("BtnOK");
    Designer.ChooseFirstVerb(User);
    Designer.Enter("ListFormat", "%2:s");
    Designer.Enter("AdoptOn", "MnuLanguage");
}

void Tutorial::TranslateMainForm(TDesignerUser& Designer)
{
    Designer.Place("FormTranslator", 296, 8);
    Designer.Enter("Locale", "1031");
    TakePicture(Designer.Main->Handle(), "04-translator");
    TFormUser User;
    User.Page("Form").Click("BtnSelect").Do(Picture("05-texts")).Click("BtnIncludeProp");
    User.Page("Translations").Choose("PropList", "Caption").Type("EdtTranslation", "Gästebuch");
    User.Choose("PropList", "BtnRemove.Caption").Type("EdtTranslation", "E&ntfernen");
    User.Page("Dictionary").Click("BtnTranslate");
    User.ChooseFile("Translate properties using the selected dictionary", Folder.Name("german.txt"));
    User.Page("Translations").Do(Picture("06-translated")).Click("BtnOK");
    Designer.ChooseFirstVerb(User);
}

void Tutorial::TranslateSignForm(TDesignerUser& Designer)
{
    Designer.OpenForm("forms/SignForm.dfm");
    Designer.Place("FormTranslator", 16, 168);
    Designer.Enter("Locale", "1031");
    TakePicture(Designer.Surface(), "07-second-form");
    TFormUser User;
    User.Page("Form").Click("BtnSelect").Click("BtnIncludeProp").Page("Dictionary").Click("BtnTranslate");
    User.ChooseFile("Translate properties using the selected dictionary", Folder.Name("german.txt"));
    User.Page("Translations").Click("BtnOK");
    Designer.ChooseFirstVerb(User);
}

void Tutorial::TranslateMessages(TDesignerUser& Designer)
{
    Designer.OpenForm("forms/MainForm.dfm");
    Designer.Place("ResourceTranslator", 232, 216);
    Designer.Enter("Locale", "1031");
    TFormUser User;
    for (const char* const Text : {"Thank you, %s! You signed on %s.", "Please tell us your name.",
                                   "A guest book. It holds what visitors have to say."})
        User.Click("BtnNew").Enter("Add library resource string", "Please provide the original string", Text);
    User.Page("Dictionary").Click("BtnTranslate");
    User.ChooseFile("Translate strings using the selected dictionary", Folder.Name("german.txt"));
    User.Page("Translations").Choose("PropList", "Please tell us your name.");
    User.Do(Picture("08-messages")).Click("BtnOK");
    Designer.ChooseFirstVerb(User);
    TakePicture(Designer.Surface(), "09-save");
}

TEST_F(Tutorial, LeadsToAProgramInTwoLanguages)
{
    RunGuestbook(false, [&] {
        TakePicture(MainForm->Handle(), "01-untranslated");
        EXPECT_EQ(ShownTexts(), English);
    });
    {
        const TApplicationScope Scope;
        TDesignerUser Designer;
        OpenProject(Designer);
        ChooseLanguages(Designer);
        TranslateMainForm(Designer);
        TranslateSignForm(Designer);
        TranslateMessages(Designer);
        EXPECT_TRUE(Designer.Main->Workspace().SaveAll());
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
}

} // namespace
