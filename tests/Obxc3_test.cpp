// The package as a whole: what starts must be gone after the stop, in whatever
// state the program's translators are.
#include "Obxc3/Obxc3.h"

#include <gtest/gtest.h>

#include <memory>

#include "Qbt/Qbt.h"
#include "Qft/Qft.h"
#include "Qlt/Qlt.h"
#include "Qrt/Qrt.h"
#include "framework/forms/Forms.h"
#include "framework/forms/MessageForms.h"
#include "framework/forms/StdCtrls.h"
#include "framework/rtl/Exceptions.h"
#include "framework/rtl/RtlConsts.h"
#include "platform/Strings.h"

namespace {

struct TPackage : testing::Test {
    TApplicationScope Scope;
    TForm* Form = new TForm(Application);

    void AddTranslators()
    {
        auto* const Texts = new TResourceTranslator(Form);
        Texts->SetTranslation("Range check error", "Bereichsfehler");
        (new TButtonTranslator(Form))->SetLanguage(lnGerman);
    }
};

// A resource string and a button's caption, both as users get them.
std::string Loaded()
{
    return LoadResString(&SRangeError);
}

std::string LoadedDirectly()
{
    char Text[256] = "";
    LoadStringA(HInstance, static_cast<UINT>(SRangeError.Identifier), Text, sizeof Text);
    return Text;
}

std::string Shown()
{
    const std::unique_ptr<TForm> Box(CreateMessageDialog("?", mtConfirmation, {mbYes}));
    Box->Show();
    return dynamic_cast<TButton&>(*Box->FindComponent("Yes")).Caption();
}

std::string AllShown()
{
    return Loaded() + ", " + LoadedDirectly() + ", " + Shown();
}

constexpr const char* Plain = "Range check error, Range check error, &Yes";
constexpr const char* German = "Bereichsfehler, Bereichsfehler, Ja";

// A hook that is left behind calls into a package that is no longer there.
TEST_F(TPackage, StopsAndStartsAroundLivingTranslators)
{
    {
        const TPackageScope Package;
        AddTranslators();
        EXPECT_EQ(AllShown(), German);
    }
    EXPECT_EQ(AllShown(), Plain);
    EXPECT_EQ(RedirectLoadResString(nullptr), nullptr);
    EXPECT_EQ(OrgLoadString.load(), nullptr);
    {
        const TPackageScope Package;
        EXPECT_EQ(AllShown(), German) << "again";
    }
    EXPECT_EQ(AllShown(), Plain);
    delete Form;
    const TPackageScope Package;
    EXPECT_EQ(AllShown(), Plain) << "the translators are gone";
    EXPECT_EQ(OrgLoadString.load(), nullptr);
}

TEST_F(TPackage, WhatWasSwitchedOffMeanwhileStaysOff)
{
    StartPackage();
    auto* const Buttons = new TButtonTranslator(Form);
    Buttons->SetLanguage(lnGerman);
    StopPackage();
    Buttons->SetTranslate(false);
    StartPackage();
    EXPECT_EQ(Shown(), "&Yes");
    Buttons->SetTranslate(true);
    EXPECT_EQ(Shown(), "Ja");
    StopPackage();
}

TEST_F(TPackage, CallsNest)
{
    AddTranslators();
    StartPackage();
    StartPackage();
    StopPackage();
    EXPECT_EQ(AllShown(), German);
    StopPackage();
    EXPECT_EQ(AllShown(), Plain);
    StopPackage();
    StartPackage();
    EXPECT_EQ(AllShown(), German) << "one stop too many counts for nothing";
    StopPackage();
}

TEST_F(TPackage, FormFilesKnowTheTranslatorsWhileItIsStarted)
{
    const TMetaClass* const Classes[] = {&TResourceTranslator::MetaClass(), &TFormTranslator::MetaClass(),
                                         &TLocaleTranslator::MetaClass(), &TButtonTranslator::MetaClass()};
    for (int Round = 0; Round < 2; ++Round) {
        {
            const TPackageScope Package;
            for (const TMetaClass* const Class : Classes)
                EXPECT_EQ(GetClass(Class->ClassName()), Class);
        }
        for (const TMetaClass* const Class : Classes)
            EXPECT_EQ(GetClass(Class->ClassName()), nullptr);
    }
}

// Half a package would be stopped by nobody.
TEST_F(TPackage, StartsAsAWholeOrNotAtAll)
{
    const TMetaClass Other("TLocaleTranslator", &TComponent::MetaClass(), nullptr);
    AddTranslators();
    RegisterClass(Other);
    EXPECT_THROW(StartPackage(), EFilerError);
    EXPECT_EQ(AllShown(), German) << "as the translators alone do it";
    EXPECT_EQ(RedirectLoadResString(nullptr), nullptr);
    EXPECT_EQ(GetClass("TFormTranslator"), nullptr);
    EXPECT_EQ(GetClass("TLocaleTranslator"), &Other);
    UnRegisterClass(Other);
    StartPackage();
    EXPECT_EQ(AllShown(), German);
    StopPackage();
}

} // namespace
