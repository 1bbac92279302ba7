#include "Qft/Qft.h"

#include <algorithm>
#include <functional>
#include <random>

#include <gtest/gtest.h>

#include "core/Literals.h"
#include "framework/rtl/SysUtils.h"
#include "tests/FormatVarsScope.h"
#include "tests/SampleComponent.h"

namespace {

using TLines = std::vector<std::string>;

TLines LinesOf(const TStrings& List)
{
    TLines Result;
    for (int I = 0; I < List.Count(); ++I)
        Result.push_back(List.Get(I));
    return Result;
}

// A form with a translator and one component of each name.
class TScene : public TObject {
public:
    explicit TScene(const TLines& Names = {"Button1", "Button2"}) : Form(nullptr, "Form1")
    {
        Translator = new TFormTranslator(&Form);
        for (const std::string& Name : Names)
            Add(Name);
    }

    TSample& Add(const std::string& Name)
    {
        auto* const Result = new TSample(&Form, Name);
        for (const char* const Line : {"one", "two", "three"})
            Result->Lines()->Add(Line);
        for (int I = 0; I < 3; ++I)
            static_cast<TSampleItem*>(Result->Items()->Add())->SetText("item");
        return *Result;
    }

    TSample& operator[](const std::string& Name) { return *static_cast<TSample*>(Form.FindComponent(Name)); }

    TSortList& List() { return static_cast<TSortList&>(*Translator->Translations()); }

    bool Translate(const TLines& Lines)
    {
        TStringList Given;
        for (const std::string& Line : Lines)
            Given.Add(Line);
        Translator->SetTranslations(&Given);
        return Translator->TranslateForm(Translator->Translations(), false);
    }

    TLines Read()
    {
        TSortList List;
        Translator->TranslateForm(&List, true);
        return LinesOf(List);
    }

    TLines Defaults() { return LinesOf(Translator->Defaults()); }

    // Every event goes into Log; OnStep, when set, runs in each of them.
    void Watch()
    {
        Translator->OnTranslateForm = {this, &TScene::OnForm};
        Translator->OnTranslateComponent = {this, &TScene::OnComponent};
        Translator->OnTranslateProperty = {this, &TScene::OnProperty};
        Translator->OnTranslated = {this, &TScene::OnDone};
    }

    TSample Form;
    TFormTranslator* Translator;
    TLines Log;
    std::function<void(TStrings&)> OnStep;
    std::string SkipWhat;

private:
    void Step(const std::string& What, TStrings* List, bool& Skip)
    {
        Log.push_back(What);
        Skip = What == SkipWhat;
        if (OnStep)
            OnStep(*List);
    }
    void OnForm(TObject*, TStrings* List, bool& Skip) { Step("form", List, Skip); }
    void OnComponent(TObject*, TComponent* Component, TStrings* List, bool& Skip)
    {
        Step(Component->Name(), List, Skip);
    }
    void OnProperty(TObject*, const std::string& Name, const TPropInfo* Prop, TStrings* List, bool& Skip)
    {
        Step(Prop ? Prop->Name : Name, List, Skip);
    }
    void OnDone(TObject*, TStrings* List)
    {
        bool Skip = false;
        Step("done", List, Skip);
    }
};

// Values and defaults of each kind: what is written must be what is read back.
TEST(FormTranslator, TranslatesAndRestoresEachKind)
{
    const struct {
        const char* Key;
        const char* Former;
        const char* Value;
    } Cases[] = {
        {"Button1.Caption", "'text'", "'It''s'#13#10'new'"},
        {"Button1.Short", "'s'", "'short'"},
        {"Button1.Wide", "'w'", "'\xC3\xA4'"},
        {"Button1.Mark", "*", "+"},
        {"Button1.Factor", "1.5", "2.25"},
        {"Button1.Align", "saLeft", "saRight"},
        {"Button1.Aligns", "4", "3"},
        {"Button1.Visible", "True", "False"},
        {"Button1.Color", "clRed", "128"},
        {"Button1.Big", "4000000000", "4000000001"},
        {"Button1.Tag", "0", "-7"},
        {"Button1.Font.Name", "'Sans'", "'Serif'"},
        {"Button1.Lines[2]", "'three'", "'drei'"},
        {"Button1.Items[1].Text", "'item'", "'Teil'"},
        {"Button1.Items[2].Font.Size", "8", "12"},
        {"Caption", "'text'", "'Titel'"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Key);
        TScene Scene;
        const TLines Before = Scene.Read();
        EXPECT_TRUE(Scene.Translate({std::string(Case.Key) + "=" + Case.Value}));
        EXPECT_EQ(Scene.Defaults(), TLines{std::string(Case.Key) + "=" + Case.Former});
        TScene Other;
        EXPECT_EQ(Other.Read(), Before);
        Scene.Translator->RestoreForm();
        EXPECT_EQ(Scene.Read(), Before);
        EXPECT_TRUE(Scene.Defaults().empty());
        EXPECT_FALSE(Scene.Translator->Translated());
    }
}

// A locale that is switched between translating and restoring has other separators.
TEST(FormTranslator, FloatsSurviveAnotherDecimalSeparator)
{
    const TFormatVarsScope Formats;
    for (const char* const Value : {"2.25", "2,25"}) {
        TScene Scene;
        DecimalSeparator = ",";
        EXPECT_TRUE(Scene.Translate({std::string("Button1.Factor=") + Value}));
        EXPECT_EQ(Scene["Button1"].Factor(), 2.25);
        DecimalSeparator = ".";
        Scene.Translator->RestoreForm();
        EXPECT_EQ(Scene["Button1"].Factor(), 1.5);
    }
}

TEST(FormTranslator, AppliesWhatTheListSays)
{
    const struct {
        const char* Name;
        TLines Lines;
        const char* Caption;
    } Cases[] = {
        {"plain", {"Button1.Caption='Ja'"}, "Ja"},
        {"empty is passed over", {"Button1.Caption=''"}, "text"},
        {"other case", {"button1.Caption='Ja'", "Button1.caption='Ja'"}, "text"},
        {"no such line", {"Button1.Lines[3]='x'", "Button1.Lines[01]='x'"}, "text"},
        {"one key in front", {"Button1.Caption'=", "Button1.Caption='Ja'"}, "Ja"},
        {"two keys in front hide it",
         {"Button1.Caption1=''", "Button1.Caption2=''", "Button1.Caption='Ja'"},
         "text"},
        {"the first of equal keys", {"Button1.Caption='Ja'", "Button1.Caption='Nein'"}, "Ja"},
        {"bare key", {"Button1.Caption", "Button1.Caption='Ja'"}, "Ja"},
        {"unknown name of an enumeration", {"Button1.Align=saNowhere", "Button1.Caption='Ja'"}, "Ja"},
        {"cut between characters", {"Button1.Caption='" + std::string(4096, 'x') + "\xC3\xA4'"}, nullptr},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        TScene Scene;
        EXPECT_TRUE(Scene.Translate(Case.Lines));
        EXPECT_EQ(Scene["Button1"].Caption(), Case.Caption ? Case.Caption : std::string(4096, 'x'));
    }
    for (const bool Empty : {false, true}) {
        TScene Scene;
        Scene.Translator->SetTranslateEmpty(Empty);
        EXPECT_TRUE(Scene.Translate({"Button1.Caption=''", "Button1.Lines[1]=''", "Button1.Tag="}));
        EXPECT_EQ(Scene["Button1"].Caption(), Empty ? "" : "text");
        EXPECT_EQ(Scene["Button1"].Lines()->Get(1), Empty ? "" : "two");
        EXPECT_EQ(Scene.Defaults().size(), 3u) << "remembered in any case";
    }
}

// Applied by hand, line by line.
TEST(FormTranslator, AppliesSingleLines)
{
    TScene Scene;
    TSortList List;
    List.SetText("\nButton1.Caption\nButton1.Caption='Ja'\n");
    TSample& Button = Scene["Button1"];
    const TPropInfo* const Caption = GetPropInfo(Button, "Caption");
    EXPECT_FALSE(Scene.Translator->TranslateProp(&Button, Caption, 2)) << "without a list";
    EXPECT_TRUE(Scene.Translator->TranslateForm(&List, false));
    Button.SetCaption("text");
    EXPECT_FALSE(Scene.Translator->TranslateProp(&Button, Caption, 0));
    EXPECT_FALSE(Scene.Translator->TranslateProp(&Button, Caption, 1));
    EXPECT_EQ(Button.Caption(), "text");
    EXPECT_TRUE(Scene.Translator->TranslateProp(&Button, Caption, 2));
    EXPECT_EQ(Button.Caption(), "Ja");
}

TEST(FormTranslator, RefusesToTranslate)
{
    TScene Scene;
    EXPECT_FALSE(Scene.Translate({})) << "an empty list";
    Scene.Translator->InternalTranslate(false);
    EXPECT_FALSE(Scene.Translate({"Caption='x'"})) << "switched off";
    Scene.Form.SetDesigning(true);
    Scene.Translator->SetTranslate(true);
    EXPECT_FALSE(Scene.Translator->Translate()) << "in the designer";
    EXPECT_EQ(Scene.Form.Caption(), "text");
}

TEST(FormTranslator, ReadsInTheOrderOfTheWalk)
{
    TScene Scene({"B", "A"});
    new TSample(&Scene.Form); // without a name
    const TLines Lines = Scene.Read();
    const auto At = [&](const std::string& Line) {
        const auto Place = std::find(Lines.begin(), Lines.end(), Line);
        EXPECT_NE(Place, Lines.end()) << Line;
        return Place;
    };
    EXPECT_LT(At("Caption='text'"), At("B.Font.Name='Sans'"));
    EXPECT_LT(At("B.Lines[2]='three'"), At("B.Items[0].Text='item'"));
    EXPECT_LT(At("B.Huge="), At("A.Font.Name='Sans'"));
    EXPECT_EQ(At("A.Huge=") + 1, Lines.end());
    EXPECT_EQ(std::count_if(Lines.begin(), Lines.end(),
                            [](const std::string& Line) { return Line.find("OnCaption") != Line.npos; }),
              0);
}

// Components that refer to each other would be walked for ever.
TEST(FormTranslator, EndsInCirclesOfReferences)
{
    TScene Scene;
    Scene["Button1"].SetBuddy(&Scene["Button2"]);
    Scene["Button2"].SetBuddy(&Scene["Button1"]);
    Scene.Form.SetBuddy(&Scene.Form);
    const TLines Lines = Scene.Read();
    EXPECT_EQ(std::count(Lines.begin(), Lines.end(), "Button1.Buddy.Caption='text'"), 1);
    EXPECT_TRUE(Scene.Translate({"Button1.Buddy.Caption='two'", "Button1.Buddy.Buddy.Caption='never'"}));
    EXPECT_EQ(Scene["Button2"].Caption(), "two");
    EXPECT_EQ(Scene["Button1"].Caption(), "text");
}

// One value under two keys: what the first wrote is not what was there.
TEST(FormTranslator, RestoresWhatTwoKeysName)
{
    TSortList Ordered;
    TStringList Plain;
    for (TStrings* const List : {static_cast<TStrings*>(&Ordered), static_cast<TStrings*>(&Plain)}) {
        TScene Scene;
        Scene["Button1"].SetBuddy(&Scene["Button2"]);
        List->SetText("Button1.Buddy.Caption='a'\nButton2.Caption='b'\n");
        EXPECT_TRUE(Scene.Translator->TranslateForm(List, false));
        EXPECT_EQ(Scene["Button2"].Caption(), "b");
        Scene.Translator->RestoreForm();
        EXPECT_EQ(Scene["Button2"].Caption(), "text");
    }
}

// A list whose keys name nothing must not keep later translations from being undone.
TEST(FormTranslator, RestoresAfterAListThatNamedNothing)
{
    TScene Scene;
    EXPECT_TRUE(Scene.Translate({"Button3.Caption='Ja'"}));
    Scene.Add("Button3");
    Scene.Translator->SetTranslate(false);
    Scene.Translator->SetTranslate(true);
    EXPECT_EQ(Scene["Button3"].Caption(), "Ja");
    Scene.Translator->SetTranslate(false);
    EXPECT_EQ(Scene["Button3"].Caption(), "text");
}

// A colour without a name has no text to be restored from.
TEST(FormTranslator, CannotRestoreUnnamedColours)
{
    for (const bool Empty : {false, true}) {
        TScene Scene;
        Scene.Translator->SetTranslateEmpty(Empty);
        Scene["Button1"].SetColor(128);
        EXPECT_TRUE(Scene.Translate({"Button1.Color=clRed", "Button1.Caption='Ja'"}));
        if (Empty)
            EXPECT_THROW(Scene.Translator->RestoreForm(), EConvertError);
        else
            Scene.Translator->RestoreForm();
        EXPECT_EQ(Scene["Button1"].Caption(), "text");
        EXPECT_EQ(Scene["Button1"].Color(), 255);
        EXPECT_FALSE(Scene.Translator->Translated());
        EXPECT_EQ(Scene.Defaults().empty(), !Empty);
    }
}

TEST(FormTranslator, KeepsStateWhenAValueIsMalformed)
{
    TScene Scene;
    Scene.Translator->SetTranslateEmpty(true);
    EXPECT_THROW(Scene.Translate({"Button1.Caption='Ja'", "Button1.Big=many", "Button2.Caption='Nein'"}),
                 EConvertError);
    EXPECT_EQ(Scene["Button1"].Caption(), "Ja");
    EXPECT_EQ(Scene["Button2"].Caption(), "text");
    EXPECT_FALSE(Scene.Translator->Translated());
    EXPECT_EQ(Scene.Defaults(), (TLines{"Button1.Big=4000000000", "Button1.Caption='text'"}));
}

TEST(FormTranslator, SkipsWhatHandlersVeto)
{
    const TLines Lines = {"Button1.Align=saRight", "Button1.Caption='x'", "Button1.Lines[1]='y'",
                          "Button2.Caption='z'"};
    const struct {
        const char* Skip;
        TLines Defaults;
    } Cases[] = {
        {"",
         {"Button1.Align=saLeft", "Button1.Caption='text'", "Button1.Lines[1]='two'",
          "Button2.Caption='text'"}},
        {"Button1", {"Button2.Caption='text'"}},
        {"Align", {"Button1.Caption='text'", "Button1.Lines[1]='two'", "Button2.Caption='text'"}},
        {"Button1.Lines[1]", {"Button1.Align=saLeft", "Button1.Caption='text'", "Button2.Caption='text'"}},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Skip);
        TScene Scene;
        Scene.Watch();
        Scene.SkipWhat = Case.Skip;
        EXPECT_TRUE(Scene.Translate(Lines));
        EXPECT_EQ(Scene.Defaults(), Case.Defaults);
        Scene.SkipWhat.clear();
        Scene.Translator->RestoreForm();
        EXPECT_EQ(Scene.Read(), TScene().Read());
    }
}

TEST(FormTranslator, LeavesTheFormWhenItsHandlerVetoes)
{
    TScene Scene;
    Scene.Watch();
    Scene.SkipWhat = "form";
    EXPECT_FALSE(Scene.Translate({"Button1.Caption='Ja'"}));
    EXPECT_TRUE(Scene.Read().empty());
    EXPECT_EQ(Scene.Log, (TLines{"form", "form"})) << "also asked before reading; no other event";
    Scene.SkipWhat.clear();
    EXPECT_TRUE(Scene.Translate({"Button1.Caption='Ja'"}));
    Scene.SkipWhat = "form";
    Scene.Translator->RestoreForm();
    EXPECT_TRUE(Scene.Translator->Translated());
    EXPECT_EQ(Scene.Defaults(), TLines{"Button1.Caption='text'"});
    EXPECT_EQ(Scene["Button1"].Caption(), "Ja");
}

// A handler or a property writer pulls the ground away from under the walk.
TEST(FormTranslator, SurvivesWhatHandlersDestroy)
{
    const TLines Lines = {
        "Button1.Caption='a'",        "Button1.Caption1='b'",      "Button1.Font.Name='c'",
        "Button1.Font.Size=9",        "Button1.Items[0].Text='d'", "Button1.Items[0].Width=4",
        "Button1.Lines[0]='e'",       "Button1.Lines[1]='f'",      "Button2.Buddy.Caption='g'",
        "Button2.Buddy.Caption1='h'", "Button2.Caption='i'",       "Caption='j'"};
    const std::function<void(TScene&, TStrings&)> Deeds[] = {
        [](TScene&, TStrings& List) { List.Clear(); },
        [](TScene&, TStrings& List) { List.Insert(0, "Zebra"); },
        [](TScene&, TStrings& List) {
            if (List.Count() > 0)
                List.Delete(0);
        },
        [](TScene& Scene, TStrings&) { delete Scene.Form.FindComponent("Button1"); },
        [](TScene& Scene, TStrings&) { delete Scene.Form.FindComponent("Button2"); },
        [](TScene& Scene, TStrings&) {
            Scene.Form.DestroyComponents();
            Scene.Translator = nullptr;
        },
        [](TScene& Scene, TStrings&) {
            delete Scene.Translator;
            Scene.Translator = nullptr;
        },
        [](TScene& Scene, TStrings&) {
            if (Scene.Form.FindComponent("Button1"))
                Scene["Button1"].Items()->Clear();
        },
        [](TScene& Scene, TStrings&) {
            if (Scene.Form.FindComponent("Button1"))
                Scene["Button1"].Lines()->Clear();
        },
        [](TScene& Scene, TStrings&) { Scene.Translator->InternalTranslate(false); },
        [](TScene& Scene, TStrings&) {
            TSortList List;
            Scene.Translator->TranslateForm(&List, true);
        },
        [](TScene& Scene, TStrings&) { Scene.Defaults(); },
    };
    for (size_t Deed = 0; Deed < std::size(Deeds); ++Deed)
        for (int When = 0; When < 18; ++When) {
            SCOPED_TRACE(std::to_string(Deed) + " at step " + std::to_string(When));
            TScene Scene;
            Scene["Button2"].SetBuddy(&Scene["Button1"]);
            Scene.Watch();
            int Step = 0;
            Scene.OnStep = [&](TStrings& List) {
                if (Step++ == When)
                    Deeds[Deed](Scene, List);
            };
            Scene.Translate(Lines);
            if (!Scene.Translator)
                continue;
            Scene.OnStep = nullptr;
            Scene.Translator->InternalTranslate(true); // restoring needs it, too
            Scene.Translator->RestoreForm();
            EXPECT_NE(Scene.Form.Caption(), "j");
        }
}

TEST(FormTranslator, SwitchesSiblingsOff)
{
    TScene Scene;
    Scene.Translate({"Button1.Caption='Ja'"});
    auto* const Other = new TFormTranslator(&Scene.Form);
    EXPECT_TRUE(Other->Translate()) << "before it has anything to show";
    Other->InternalTranslate(false);
    Other->Translations()->Add("Button1.Caption='Oui'");
    Other->SetTranslate(true);
    EXPECT_FALSE(Scene.Translator->Translate());
    EXPECT_EQ(Scene["Button1"].Caption(), "Oui");
    EXPECT_EQ(LinesOf(Other->Defaults()), TLines{"Button1.Caption='text'"}) << "restored first";
    Other->SetTranslate(false);
    EXPECT_EQ(Scene["Button1"].Caption(), "text");
    Scene.List().Clear();
    Scene.Translator->SetTranslate(true);
    EXPECT_FALSE(Scene.Translator->Translate()) << "nothing was translated";
}

// The walk along an ordered list must not be told from the one that searches
// every key. The same lines in a list of another class take the latter road.
class TRandomList {
public:
    explicit TRandomList(unsigned Seed) : FRandom(Seed) {}

    TLines Make(const TLines& Known)
    {
        TLines Result;
        for (unsigned Count = Pick(40); Count > 0; --Count) {
            const std::string& Line = Known[Pick(Known.size())];
            std::string Key = Line.substr(0, Line.find('='));
            switch (Pick(14)) {
            case 0:
                Key += Odd();
                break;
            case 1:
                Key.insert(Pick(Key.size() + 1), Odd());
                break;
            case 2:
                Key.resize(Pick(Key.size() + 1));
                break;
            case 3:
                Key[0] = static_cast<char>(Key[0] ^ 32);
                break;
            case 4:
                Result.push_back(Key);
                break;
            default:
                break;
            }
            Result.push_back(Pick(20) == 0 ? Key : Key + "=" + Value(Line.substr(Line.find('=') + 1)));
            if (Pick(8) == 0)
                Result.push_back(Result.back());
        }
        if (Pick(5) > 0)
            std::sort(Result.begin(), Result.end());
        return Result;
    }

    unsigned Pick(size_t Count) { return static_cast<unsigned>(FRandom() % Count); }

private:
    const char* Odd()
    {
        constexpr const char* Odds[] = {"1", ".", "[0]", "[",        "]",          " ",
                                        "!", "=", "x",   "[1].Text", ".Font.Name", "%"};
        return Odds[Pick(std::size(Odds))];
    }
    std::string Value(const std::string& Present)
    {
        return Present.starts_with("'") && Pick(6) > 0 ? ToLiterals("v" + std::to_string(Pick(1000)))
                                                       : Present;
    }

    std::mt19937 FRandom;
};

TEST(FormTranslator, OrderedWalkEqualsPlainWalk)
{
    const TLines Names = {"Button1", "A", "Button10", "Button", "Caption", "Buddy", "AB"};
    int Applied = 0;
    for (unsigned Seed = 0; Seed < 1500; ++Seed) {
        SCOPED_TRACE(Seed);
        TRandomList Random(Seed);
        TScene Scenes[2] = {TScene(Names), TScene(Names)};
        for (TScene& Scene : Scenes) {
            Scene["A"].SetBuddy(&Scene["Button1"]);
            Scene["Button1"].SetBuddy(&Scene["A"]);
        }
        const TLines Lines = Random.Make(Scenes[0].Read());
        const bool Change = Random.Pick(3) == 0;
        const unsigned When = Random.Pick(12), Where = Random.Pick(50), How = Random.Pick(3);
        TSortList Ordered;
        TStringList Plain;
        TStrings* const Lists[2] = {&Ordered, &Plain};
        bool Done[2];
        for (int I = 0; I < 2; ++I) {
            for (const std::string& Line : Lines)
                Lists[I]->AddObject(Line, IntegerObject(static_cast<int>(Line.size())));
            Scenes[I].Watch();
            unsigned Step = 0;
            if (Change)
                Scenes[I].OnStep = [&](TStrings& List) {
                    if (Step++ != When || List.Count() == 0)
                        return;
                    const int At = static_cast<int>(Where) % List.Count();
                    if (How == 0)
                        List.Delete(At);
                    else if (How == 1)
                        List.Insert(At, "Button10.Caption='late'");
                    else
                        List.Put(At, List.Get(At) + "1");
                };
            try {
                Done[I] = Scenes[I].Translator->TranslateForm(Lists[I], false);
            } catch (const Exception& Error) {
                Scenes[I].Log.push_back(Error.Message());
                Done[I] = false;
            }
            Scenes[I].OnStep = nullptr;
        }
        EXPECT_EQ(Done[0], Done[1]);
        EXPECT_EQ(Scenes[0].Log, Scenes[1].Log);
        ASSERT_EQ(Scenes[0].Defaults(), Scenes[1].Defaults());
        for (int I = 0; I < Scenes[0].Translator->Defaults().Count(); ++I)
            EXPECT_EQ(Scenes[0].Translator->Defaults().Objects(I),
                      Scenes[1].Translator->Defaults().Objects(I));
        Applied += static_cast<int>(Scenes[0].Defaults().size());
        const TLines Shown = LinesOf(*Scenes[0].Form.Lines());
        ASSERT_EQ(Shown, LinesOf(*Scenes[1].Form.Lines()));
        ASSERT_EQ(Scenes[0].Read(), Scenes[1].Read());
    }
    EXPECT_GT(Applied, 5000) << "the lists must name properties, or nothing was compared";
}

} // namespace
