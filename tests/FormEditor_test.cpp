#include <gtest/gtest.h>

#include "FormUser.h"
#include "Obxc3/Obxc3.h"
#include "Qft/Qft.h"
#include "RegistryScope.h"
#include "editors/Editors.h"
#include "framework/forms/Labels.h"
#include "platform/Picture.h"

namespace {

struct TFormEditorTest : TObject, testing::Test {
    TFormEditorTest()
    {
        Application->OnException = {this, &TFormEditorTest::Caught};
        Form = new TForm(Application);
        Form->SetName("Form1");
        Form->SetCaption("Greeting");
        auto* const Label = new TLabel(Form);
        Label->SetName("Label1");
        Label->SetParent(Form);
        Label->SetCaption("Hello");
        Translator = new TFormTranslator(Form);
        Translator->SetName("Swedish");
        Translator->SetLocale(1053);
        Form->Show();
        Application->ProcessMessages();
    }
    void Caught(TObject*, const Exception& Error) { ADD_FAILURE() << Error.Message(); }

    bool Edit(TFormUser& User)
    {
        return User.Run<bool>([this] { return Translator->ShowEditor(); });
    }

    const TRegistryScope Registry;
    const TApplicationScope Scope;
    const TPackageScope Package;
    const TEditorsScope Editors;
    TForm* Form = nullptr;
    TFormTranslator* Translator = nullptr;
};

TEST_F(TFormEditorTest, Smoke)
{
    TFormUser User;
    const auto Picture = [&](const std::string& Name) {
        User.Do([Name](TForm& F) { SaveWindowPicture(F.Handle(), "/tmp/lead/ed_" + Name + ".png"); });
    };
    User.Page("Form");
    Picture("form");
    User.Click("BtnSelect").Click("BtnIncludeProp");
    Picture("form2");
    User.Page("Common", "PropNotebook");
    Picture("common");
    User.Page("Translations").Choose("PropList", "Label1.Caption").Type("EdtTranslation", "Hej");
    Picture("translations");
    User.Page("Options");
    Picture("options");
    User.Page("Font");
    Picture("font");
    User.Page("Reading order");
    Picture("reading");
    User.Page("Dictionary");
    Picture("dictionary");
    User.Click("BtnOK");
    EXPECT_TRUE(Edit(User));
    EXPECT_EQ(LinesOf(*Translator->Translations()), std::vector<std::string>());
}

} // namespace
