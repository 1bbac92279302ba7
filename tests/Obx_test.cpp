// The package's expert in an environment, and its splash form.
#include "wizard/Obx.h"

#include "FormUser.h"
#include "Obxc3/Obxc3.h"
#include "RegistryScope.h"
#include "editors/Editors.h"
#include "framework/forms/ExtCtrls.h"
#include "wizard/ObxWizard.h"
#include "wizard/Qsplash.h"
#include "wizard/Wizard.h"

namespace {

constexpr DWORD ShowMilliseconds = 2000;

TQFormSplash* SplashForm()
{
    return dynamic_cast<TQFormSplash*>(Application->FindComponent("FormSplash"));
}

// Handles messages until the splash form is gone, or hidden; returns how long that took.
DWORD TimeUntilGone(DWORD Most)
{
    const DWORD Start = GetTickCount();
    DWORD Passed = 0;
    while (SplashForm() && SplashForm()->Visible() && Passed < Most) {
        Application->ProcessMessages();
        Sleep(5);
        Passed = GetTickCount() - Start;
    }
    return Passed;
}

void ClickPicture()
{
    TQFormSplash& Form = *SplashForm();
    const LPARAM Middle = MAKELPARAM(Form.Width() / 2, Form.Height() / 2);
    PostMessageA(Form.Panel->Handle(), WM_LBUTTONDOWN, MK_LBUTTON, Middle);
    PostMessageA(Form.Panel->Handle(), WM_LBUTTONUP, 0, Middle);
}

class Environment : public testing::Test {
    const TRegistryScope Registry;
    const TApplicationScope Scope;
    const TPackageScope Package;
    const TEditorsScope Editors;
    const TWizardScope Wizard;
};
using Expert = Environment;
using Splash = Environment;

TEST_F(Expert, IsRegisteredWithASplash)
{
    Obx::Register();
    ASSERT_EQ(LibraryExperts(), std::vector<TIExpert*>{ExpertInterface});
    TIExpert& Registered = *ExpertInterface;
    EXPECT_EQ(Registered.GetStyle(), 0);
    EXPECT_EQ(Registered.GetIDString(), "Quillmark.Obx");
    EXPECT_EQ(Registered.GetName(), "Orbilex Expert");
    EXPECT_EQ(Registered.GetAuthor(), "Quillmark Ltd");
    EXPECT_EQ(Registered.GetComment(), "A complete globalization package");
    EXPECT_EQ(Registered.GetPage(), "");
    EXPECT_EQ(Registered.GetGlyph(), 0);
    EXPECT_EQ(Registered.GetState().Bits(), 1u);
    EXPECT_EQ(Registered.GetMenuText(), "Orbilex Expert");
    ASSERT_NE(SplashForm(), nullptr);
    EXPECT_TRUE(SplashForm()->AutoFree);
    delete SplashForm();

    // The environment replaces it when the package is loaded again.
    Obx::Register();
    EXPECT_EQ(LibraryExperts(), std::vector<TIExpert*>{ExpertInterface});
    delete SplashForm();
    Obx::Unregister();
    EXPECT_EQ(ExpertInterface, nullptr);
    EXPECT_TRUE(LibraryExperts().empty());
    Obx::Unregister();
}

TEST_F(Expert, ShowsTheWizardAndFreesIt)
{
    TFormUser User;
    User.Do([](TForm& Form) {
        EXPECT_TRUE(dynamic_cast<TObxWizard*>(&Form));
        EXPECT_EQ(Form.Owner(), Application);
        EXPECT_TRUE(Form.IsModal());
    });
    User.Click("BtnCancel");
    TObxAddIn AddIn;
    User.Run<bool>([&] {
        AddIn.Execute();
        return true;
    });
    EXPECT_EQ(Application->FindComponent("ObxWizard"), nullptr);
}

TEST_F(Splash, FreesItselfWhoeverIsFirst)
{
    for (const bool First : {true, false}) {
        ShowSplash(First, true);
        ASSERT_NE(SplashForm(), nullptr);
        const TQFormSplash& Form = *SplashForm();
        EXPECT_TRUE(Form.Visible() && !Form.IsModal());
        const TPicture& Picture = *Form.SplashImage->Picture();
        EXPECT_GT(Picture.Width(), 100);
        EXPECT_EQ(Form.Panel->Width(), Picture.Width() + 8);
        EXPECT_EQ(Form.Height(), Picture.Height() + 8);
        const DWORD Passed = TimeUntilGone(3 * ShowMilliseconds);
        EXPECT_GE(Passed + 100, ShowMilliseconds);
        EXPECT_LT(Passed, 2 * ShowMilliseconds);
        EXPECT_EQ(SplashForm(), nullptr);
    }
}

// The package was registered again while the first one is still shown.
TEST_F(Splash, SeveralAreShownAtOnce)
{
    ShowSplash(true, true);
    ShowSplash(true, true);
    EXPECT_NE(Application->FindComponent("FormSplash"), nullptr);
    EXPECT_NE(Application->FindComponent("FormSplash_1"), nullptr);
}

TEST_F(Splash, AClickFreesItAtOnce)
{
    ShowSplash(true, true);
    ClickPicture();
    EXPECT_LT(TimeUntilGone(3 * ShowMilliseconds), ShowMilliseconds / 2);
    EXPECT_EQ(SplashForm(), nullptr);
}

TEST_F(Splash, WithoutAutoFreeItStaysUntilAClick)
{
    ShowSplash(true, false);
    EXPECT_GE(TimeUntilGone(ShowMilliseconds + 500), ShowMilliseconds + 500);
    ASSERT_TRUE(SplashForm() && SplashForm()->Visible());
    ClickPicture();
    EXPECT_LT(TimeUntilGone(ShowMilliseconds), ShowMilliseconds);
    ASSERT_NE(SplashForm(), nullptr) << "closed, not freed";
    EXPECT_FALSE(SplashForm()->Visible());
}

} // namespace
