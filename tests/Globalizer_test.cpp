// Projects that are globalized: what is placed, what is kept, and that nothing else
// in the forms changes.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iostream>
#include <set>

#include "Obxc3/Obxc3.h"
#include "Qlt/Qlt.h"
#include "core/TranslationsFile.h"
#include "framework/forms/Application.h"
#include "framework/forms/Forms.h"
#include "framework/forms/Menus.h"
#include "framework/forms/StandardClasses.h"
#include "framework/forms/StdCtrls.h"
#include "framework/rtl/Exceptions.h"
#include "framework/rtl/FileNames.h"
#include "framework/rtl/Texts.h"
#include "framework/streaming/FormFile.h"
#include "framework/streaming/LoadedForm.h"
#include "tests/BareDemo.h"
#include "tests/Folder.h"
#include "tests/FormatVarsScope.h"
#include "wizard/DialogTexts.h"
#include "wizard/Dictionaries.h"
#include "wizard/Globalizer.h"
#include "wizard/TranslatableForm.h"
#include "wizard/UnitTexts.h"

namespace {

constexpr int Swedish = 1053, German = 1031, Japanese = 1041, Arabic = 1025, English = 1033;
const std::vector<int> FourLanguages = {Swedish, German, Japanese, Arabic};

const char* const MainDfm = "object MainForm: TMainForm\r\n"
                            "  Caption = 'Editor'\r\n"
                            "  object BtnSave: TButton\r\n"
                            "    Caption = '&Save'\r\n"
                            "  end\r\n"
                            "  object Menu: TMainMenu\r\n"
                            "    object MnuLanguage: TMenuItem\r\n"
                            "      Caption = 'Language'\r\n"
                            "    end\r\n"
                            "  end\r\n"
                            "  object Strange: TGauge  \r\n"
                            "    Caption  =  'Odd '+'spelling'\r\n"
                            "  end\r\n"
                            "end\r\n";
const char* const DialogDfm = "object Dialog: TDialog\n"
                              "  Caption = 'Find file'\n"
                              "  object DlgOpen: TOpenDialog\n"
                              "    Title = 'Open a file'\n"
                              "  end\n"
                              "end\n";
const char* const Unit = "unit Texts;\r\ninterface\r\nresourcestring\r\n  SSave = 'Save it''s text?';\r\n"
                         "  SAgain = 'Again'#13#10 + 'and again';\r\nimplementation\r\nend.\r\n";

class Globalizer : public testing::Test {
protected:
    Globalizer() { RegisterStandardClasses(); }

    TProjectScan Scan(int CodePage = 1252) const
    {
        return ScanProject(OpenProject(FFolder.Name()), CodePage);
    }

    void WriteEditor() const
    {
        FFolder.Write("MainForm.dfm", MainDfm);
        FFolder.Write("Dialog.dfm", DialogDfm);
        FFolder.Write("Texts.pas", Unit);
        FFolder.Write("editor.obp",
                      "[Project]\nName=Editor\nMainForm=MainForm\n[Forms]\nMainForm.dfm\nDialog.dfm\n"
                      "[Units]\nTexts.pas\n");
    }

    TProjectChanges Globalize(const TGlobalizeChoices& Choices, int CodePage = 1252) const
    {
        const TProjectChanges Changes = PlanGlobalization(Scan(CodePage), Choices);
        WriteChanges(Changes);
        return Changes;
    }

    TFormDocument Form(const std::string& File, int CodePage = 1252) const
    {
        TFormFileOptions Options;
        Options.CodePage = CodePage;
        return ReadFormFile(FFolder.Name(File), Options);
    }

    static std::string LineOf(const TFormObject& Translator, const std::string& Key)
    {
        const TFormValue* const List = Translator.FindValue("Translations.Strings");
        const std::vector<std::string> Lines = List->AsStringList().value();
        for (const std::string& Line : Lines)
            if (Line.starts_with(Key + "="))
                return Line.substr(Key.size() + 1);
        return "none";
    }

    const TApplicationScope FApplication;
    const TTestFolder FFolder;
};

TGlobalizeChoices ChoicesOf(const std::vector<int>& Locales)
{
    TGlobalizeChoices Result;
    Result.Locales = Locales;
    return Result;
}

std::set<int> LocalesOn(const TFormDocument& Form, const char* ClassName)
{
    std::set<int> Result;
    for (const TFormObject& Child : Form.Root.Children())
        if (Child.ClassName() == ClassName)
            Result.insert(LocaleOf(Child));
    return Result;
}

// Taking out what was placed gives the original bytes, the form loads with real
// translators, and their texts are those of the plan.
void CheckForm(const TFileChange& File, int CodePage)
{
    SCOPED_TRACE(File.Name);
    TFormFileOptions Options;
    Options.CodePage = CodePage;
    Options.FileName = File.Name;
    TFormDocument Document = ReadForm(File.After, Options);
    {
        // Without their file: real translators would save it.
        TFormDocument Loadable = Document;
        for (TFormObject& Child : Loadable.Root.Children())
            std::erase_if(Child.Properties(), [&](const TFormProperty& Each) {
                return Each.Name() == "FileName" && IsTranslatorClass(Child.ClassName());
            });
        const TPackageScope Package;
        const TTranslatableForm Loaded(std::move(Loadable));
        for (const std::string& Name : File.Placed)
            EXPECT_NE(dynamic_cast<TTranslatorFrame*>(Loaded.Root().FindComponent(Name)), nullptr) << Name;
    }
    std::erase_if(Document.Root.Children(), [&](const TFormObject& Child) {
        return std::find(File.Placed.begin(), File.Placed.end(), Child.Name()) != File.Placed.end();
    });
    EXPECT_TRUE(WriteForm(Document) == *File.Before);
}

TEST_F(Globalizer, PlacesAndFillsTranslators)
{
    WriteEditor();
    TGlobalizeChoices Choices = ChoicesOf({Swedish, German});
    Choices.Selector = "MnuLanguage";
    const TProjectChanges Changes = Globalize(Choices);
    for (const TFileChange& File : Changes.Files)
        CheckForm(File, 1252);

    const TFormDocument Main = Form("MainForm.dfm");
    const TFormObject* const Translator = Main.Root.FindChild("FormTranslatorSwedish");
    ASSERT_TRUE(Translator);
    EXPECT_EQ(LineOf(*Translator, "BtnSave.Caption"), "''");
    EXPECT_EQ(LineOf(*Translator, "Strange.Caption"), "''");
    EXPECT_EQ(LineOf(*Translator, "BtnSave.Width"), "none");
    EXPECT_EQ(LocalesOn(Main, FormTranslatorClass), (std::set<int>{German, Swedish}));
    EXPECT_EQ(LocalesOn(Main, ButtonTranslatorClass), (std::set<int>{0}));
    EXPECT_EQ(LocalesOn(Main, DialogTranslatorClass), (std::set<int>{}));

    const TFormObject* const Texts = Main.Root.FindChild("ResourceTranslatorGerman");
    ASSERT_TRUE(Texts);
    const auto& Sources = Texts->FindValue("ResStrings")->AsList();
    ASSERT_EQ(Sources.size(), 4u);
    EXPECT_EQ(Sources[0].AsString(), "Again\r\nand again");
    EXPECT_EQ(Sources[2].AsString(), "Save it's text?");

    const TFormObject* const Locales = Main.Root.FindChild("LocaleTranslator");
    ASSERT_TRUE(Locales);
    EXPECT_TRUE(Locales->FindValue("AdoptOn")->IsIdent("MnuLanguage"));
    EXPECT_EQ(LineOf(*Locales, "0000041D_LONGDAYNAMES[1]"), "s\xC3\xB6ndag");
    EXPECT_EQ(LineOf(*Locales, "0000041D_LONGDAYNAMES[2]"), "m\xC3\xA5ndag");
    EXPECT_EQ(LocalesOn(Form("Dialog.dfm"), DialogTranslatorClass), (std::set<int>{German, Swedish}));

    EXPECT_TRUE(PlanGlobalization(Scan(), Choices).ToWrite().empty());
}

TEST_F(Globalizer, KeepsTranslationsAndAddsTextsAndLanguages)
{
    WriteEditor();
    for (const std::string& File : {std::string(), std::string("editor.lng")}) {
        SCOPED_TRACE(File);
        WriteEditor();
        TGlobalizeChoices Choices = ChoicesOf({Swedish});
        Choices.TranslationsFile = File;
        Globalize(Choices);
        FFolder.Write(
            "sv.1053.txt",
            "&Save\t&Spara\r\nOpen a file\t\xC3\x96ppna\r\nAgain\\r\\nand again\tIgen\r\nNo\tNej\r\n");
        WriteChanges(PlanImport(Scan(), {{FFolder.Name("sv.1053.txt"), Swedish}}));
        EXPECT_TRUE(PlanImport(Scan(), {{FFolder.Name("sv.1053.txt"), Swedish}}).ToWrite().empty());

        std::string Main = FFolder.Read("MainForm.dfm");
        Main.replace(Main.find("  object Menu"), 0,
                     "  object New: TLabel\r\n    Caption = 'Fresh'\r\n  end\r\n");
        FFolder.Write("MainForm.dfm", Main);
        Choices.Locales = {Japanese, Swedish};
        if (!File.empty())
            Choices.TranslationsFile = FFolder.Name("./" + File);
        const TProjectChanges Second = Globalize(Choices);
        EXPECT_TRUE(PlanGlobalization(Scan(), Choices).ToWrite().empty());
        EXPECT_EQ(Second.Files[0].Placed,
                  (std::vector<std::string>{"FormTranslatorJapanese", "ResourceTranslatorJapanese"}));

        WriteChanges(PlanExport(Scan(), {Swedish, Japanese, Swedish}));
        EXPECT_EQ(LocaleOfDictionary(FFolder.Name("editor.1053.txt")), Swedish);
        const std::string Pairs = FFolder.Read("editor.1053.txt");
        for (const char* const Pair : {"&Save\t&Spara\r\n", "Fresh\t\r\n", "Open a file\t\xC3\x96ppna\r\n",
                                       "Again\\r\\nand again\tIgen\r\n", "Save it's text?\t\r\n"})
            EXPECT_NE(Pairs.find(Pair), Pairs.npos) << Pair;
        EXPECT_NE(FFolder.Read("editor.1041.txt").find("&Save\t\r\n"), std::string::npos);
        // The application reads what was written.
        TSortList Lines;
        if (!File.empty()) {
            EXPECT_TRUE(LoadTranslations(FFolder.Name(File), {"MainForm", Swedish}, Lines));
            EXPECT_EQ(Lines.IndexOf("BtnSave.Caption='&Spara'") >= 0, true);
            LoadTranslations(FFolder.Name(File), {"MainForm", DefaultsLocale}, Lines);
            EXPECT_TRUE(Lines.IndexOf("BtnSave.Caption='&Save'") >= 0);
            EXPECT_FALSE(
                Form("MainForm.dfm").Root.FindChild("FormTranslatorSwedish")->Find("Translations.Strings"));
        }
        for (const char* const Name : {"editor.1053.txt", "editor.1041.txt", "sv.1053.txt"})
            FFolder.Remove(Name);
    }
}

// One source text is translated differently where it means something else.
TEST_F(Globalizer, ExchangedDictionariesKeepWhatWasMeantForOnePlace)
{
    WriteEditor();
    std::string Other = MainDfm;
    Other.replace(Other.find("MainForm"), 8, "Other");
    FFolder.Write("Dialog.dfm", Other);
    const auto Translated = [&](const std::string& File) {
        return LineOf(*Form(File).Root.FindChild("FormTranslatorSwedish"), "BtnSave.Caption");
    };
    const auto Translate = [&](const std::string& File, const std::string& Text) {
        std::string Bytes = FFolder.Read(File);
        const std::string Empty = "'BtnSave.Caption='#39#39";
        FFolder.Write(
            File, Bytes.replace(Bytes.find(Empty), Empty.size(), "'BtnSave.Caption='#39'" + Text + "'#39"));
    };
    const auto Import = [&](const std::string& Text) {
        const std::string Name = FFolder.Write("sv.1053.txt", Text);
        const TProjectChanges Changes = PlanImport(Scan(), {{Name, Swedish}});
        WriteChanges(Changes);
        return Changes;
    };
    Globalize(ChoicesOf({Swedish}));
    Translate("MainForm.dfm", "&Spara");
    Translate("Dialog.dfm", "S&para som");
    WriteChanges(PlanExport(Scan(), {}));
    EXPECT_TRUE(Import(FFolder.Read("editor.1053.txt")).ToWrite().empty());
    EXPECT_EQ(Import("&Save\tLagra\n").ToWrite().size(), 1u);
    EXPECT_EQ(Translated("MainForm.dfm"), "'Lagra'");
    EXPECT_EQ(Translated("Dialog.dfm"), "'S&para som'");
    EXPECT_EQ(Import("&Save\t\n\nWrong\n&Save Spara\n").Files.back().Notes,
              std::vector<std::string>{"passed over, for there is no TAB in them: lines 3, 4"});
    EXPECT_EQ(Translated("MainForm.dfm"), "'Lagra'");

    const auto Fails = [](const auto& Work, const std::string& Message) {
        try {
            Work();
            ADD_FAILURE() << Message;
        } catch (const EConvertError& Error) {
            EXPECT_NE(Error.Message().find(Message), std::string::npos) << Error.Message();
        }
    };
    Fails([&] { Import("Editor\tText\n&Save\tL\xE5s\n"); }, "sv.1053.txt:2: ");
    std::string Bytes = FFolder.Read("MainForm.dfm");
    FFolder.Write("MainForm.dfm", Bytes.replace(Bytes.find("'#39'Lagra'#39"), 14, "#?'"));
    Fails([&] { PlanExport(Scan(), {}); }, "MainForm.BtnSave.Caption%1053: ");
    Fails([&] { Import("&Save\tx\n"); }, "MainForm.BtnSave.Caption%1053: ");
}

// The texts of dialogs are those that the dialogs themselves were found to have.
TEST_F(Globalizer, DialogsCanBeTranslatedWithoutBeingShown)
{
    const std::string Recorded = ReadWholeFile(TEST_DATA "/dialog-lines.txt");
    for (const char* const Class : {"TOpenDialog", "TSaveDialog", "TFontDialog", "TColorDialog",
                                    "TFindDialog", "TReplaceDialog", "TPrintDialog", "TPrinterSetupDialog"}) {
        const size_t Start = Recorded.find(std::string("[") + Class + "]\n");
        const std::string Section = Recorded.substr(Start, Recorded.find("\n[", Start) - Start) + "\n";
        EXPECT_GE(DialogTexts(Class).size(), 8u);
        for (const auto& [Key, Text] : DialogTexts(Class)) {
            const std::string Line = Key.substr(Key.find('.') + 1) + "=" + Text;
            EXPECT_NE(Section.find("\n" + Line + "\n"), std::string::npos) << Line;
        }
    }
    for (const char* const File : {"", "editor.lng"}) {
        SCOPED_TRACE(File);
        WriteEditor();
        std::string Main = MainDfm;
        Main.insert(Main.rfind("end"), "  object DlgFind: TFindDialog\r\n  end\r\n");
        FFolder.Write("MainForm.dfm", Main);
        TGlobalizeChoices Choices = ChoicesOf({Swedish});
        Choices.TranslationsFile = File;
        Globalize(Choices);
        WriteChanges(PlanExport(Scan(), {}));
        const std::string Pairs = FFolder.Read("editor.1053.txt");
        EXPECT_NE(Pairs.find("Files of &type:\t\r\n"), std::string::npos);
        EXPECT_EQ(Pairs.find("\nOpen\t"), std::string::npos) << "a title that the program has set itself";
        FFolder.Write("editor.1053.txt", "&Open\t\xC3\x96&ppna\r\n");
        WriteChanges(PlanImport(Scan(), {{FFolder.Name("editor.1053.txt"), Swedish}}));
        EXPECT_TRUE(PlanGlobalization(Scan(), Choices).ToWrite().empty());
        // On each form with dialogs, for only one of the translators is used at a time.
        const std::string Stored = FFolder.Read(*File ? File : "MainForm.dfm");
        EXPECT_NE(Stored.find(*File ? "#0MainForm.TOpenDialog.Caption[1]%1053='\xC3\x96&ppna'"
                                    : "'TOpenDialog.Caption[1]='#39#214'&ppna'#39"),
                  std::string::npos)
            << Stored;
        FFolder.Remove("editor.1053.txt");
    }
}

// In a running application the selector shows the languages and switches them.
TEST_F(Globalizer, TheApplicationSpeaksTheLanguages)
{
    WriteEditor();
    TGlobalizeChoices Choices = ChoicesOf(FourLanguages);
    Choices.Selector = "MnuLanguage";
    Globalize(Choices);
    FFolder.Write("editor.1053.txt", "&Save\t&Spara\r\nEditor\tRedigerare\r\n");
    FFolder.Write("editor.1031.txt", "&Save\t&Sichern\r\n");
    WriteChanges(PlanImport(
        Scan(), {{FFolder.Name("editor.1053.txt"), Swedish}, {FFolder.Name("editor.1031.txt"), German}}));
    const TFormatVarsScope FormatVars;
    const TPackageScope Package;
    const TLoadedForm Loaded(Form("MainForm.dfm"), TUnknownClasses::Accept,
                             [](const TFormObject&) { return std::make_unique<TForm>(Application); });
    auto& Main = static_cast<TForm&>(Loaded.Root());
    auto* const Button = dynamic_cast<TButton*>(Main.FindComponent("BtnSave"));
    auto* const Menu = dynamic_cast<TMenuItem*>(Main.FindComponent("MnuLanguage"));
    auto* const Locales = dynamic_cast<TLocaleTranslator*>(Main.FindComponent("LocaleTranslator"));
    ASSERT_TRUE(Button && Menu && Locales);
    EXPECT_EQ(Menu->Count(), 5);
    const struct {
        int Locale;
        const char* Button;
        const char* Form;
    } Cases[] = {{Swedish, "&Spara", "Redigerare"},
                 {German, "&Sichern", "Editor"},
                 {Arabic, "&Save", "Editor"},
                 {English, "&Save", "Editor"}};
    for (const auto& Case : Cases) {
        EXPECT_TRUE(Locales->TranslateLocale(Case.Locale));
        EXPECT_EQ(Button->Caption(), Case.Button);
        EXPECT_EQ(Main.Caption(), Case.Form);
    }
}

TEST_F(Globalizer, RefusesWhatDoesNotFitAndChangesNothing)
{
    WriteEditor();
    FFolder.Write("Broken.dfm", "object Broken: TForm\n  Caption = 'open\nend\n");
    FFolder.Write("Texts.lng", "\xFF\xFE");
    const auto Before = FFolder.Files();
    const auto Refused = [&](const std::function<void(TGlobalizeChoices&)>& Change,
                             const std::string& Message) {
        TGlobalizeChoices Choices = ChoicesOf({Swedish});
        Change(Choices);
        try {
            Globalize(Choices);
            ADD_FAILURE() << Message;
        } catch (const Exception& Error) {
            EXPECT_NE(Error.Message().find(Message), std::string::npos) << Error.Message();
        }
        EXPECT_EQ(FFolder.Files(), Before);
    };
    Refused([](auto& Choices) { Choices.Locales.clear(); }, "no language");
    Refused([](auto& Choices) { Choices.Locales = {English}; }, "no language");
    Refused([](auto& Choices) { Choices.Locales = {-1}; }, "-1");
    Refused([](auto& Choices) { Choices.Locales = {Swedish, 70000}; }, "70000");
    Refused([](auto& Choices) { Choices.Locales = {1024}; }, "1024");
    Refused([](auto& Choices) { Choices.MainForm = "Nowhere"; }, "Nowhere");
    Refused([](auto& Choices) { Choices.Selector = "BtnSave"; }, "BtnSave");
    Refused([](auto& Choices) { Choices.TranslationsFile = "Texts.lng"; }, "Texts.lng:1");
    for (const char* const File : {"./MainForm.dfm", "Texts.pas", "editor.obp"})
        Refused([&](auto& Choices) { Choices.TranslationsFile = File; }, File);
    EXPECT_THROW(PlanExport(Scan(), {}), EInvalidOperation);
    EXPECT_THROW(PlanImport(Scan(), {{FFolder.Name("Texts.pas"), Swedish}}), EInvalidOperation);

    TProject Project = OpenProject(FFolder.Name());
    Project.Forms.emplace_back("Broken.dfm");
    const TProjectScan Damaged = ScanProject(Project);
    ASSERT_EQ(Damaged.Errors.size(), 1u);
    EXPECT_EQ(Damaged.Errors[0].find(FFolder.Name("Broken.dfm") + ":2:"), 0u) << Damaged.Errors[0];
    EXPECT_THROW(PlanGlobalization(Damaged, ChoicesOf({Swedish})), EReadError);

    Project.Forms = {"MainForm.dfm", "./MainForm.dfm"};
    EXPECT_EQ(ScanProject(Project).Errors.size(), 1u);
    // In one file their lines would be the same.
    Project.Forms = {"MainForm.dfm", "sub/Main.dfm"};
    FFolder.Write("sub/Main.dfm", MainDfm);
    TGlobalizeChoices Choices = ChoicesOf({Swedish});
    EXPECT_EQ(PlanGlobalization(ScanProject(Project), Choices).ToWrite().size(), 2u);
    Choices.TranslationsFile = "Some.lng";
    EXPECT_THROW(PlanGlobalization(ScanProject(Project), Choices), EInvalidOperation);
    FFolder.Remove("sub");

    int Steps = 0;
    const auto Stop = [&](const std::string&, int Done, int Total) {
        EXPECT_LT(Done, Total);
        return ++Steps < 8;
    };
    EXPECT_THROW(WriteChanges(PlanGlobalization(Scan(), ChoicesOf({Swedish})), Stop), EAbort);
    EXPECT_EQ(FFolder.Files(), Before);
}

// A descendant loads what its ancestor's file has, and its own list takes the place of
// that; names must not meet.
TEST_F(Globalizer, DescendantsOverrideTheirAncestorsTranslators)
{
    FFolder.Write("Base.dfm", MainDfm);
    FFolder.Write("Derived.dfm",
                  "inherited Derived: TDerived\r\n  Caption = 'More'\r\n  inherited BtnSave: TButton\r\n"
                  "    Caption = 'Keep'\r\n  end\r\nend\r\n");
    FFolder.Write("Other.dfm", "inherited Other: TOther\r\n  Caption = 'Other'\r\nend\r\n");
    FFolder.Write(
        "Frame.dfm",
        "object Frame1: TFrame1\r\n  TabOrder = 0\r\n  object L: TLabel\r\n    Caption = 'In a frame'\r\n"
        "  end\r\nend\r\n");
    FFolder.Write("Derived.pas",
                  "unit Derived;\ninterface\ntype\n  TDerived = class(TMainForm)\n  end;\nend.\n");
    TGlobalizeChoices Choices = ChoicesOf({Swedish});
    Choices.MainForm = "MainForm";
    for (const TFileChange& File : Globalize(Choices).Files) {
        CheckForm(File, 1252);
        EXPECT_EQ(File.IsChanged(), File.Name != FFolder.Name("Frame.dfm"));
        EXPECT_EQ(File.Notes.empty(), File.IsChanged() && File.Name != FFolder.Name("Base.dfm"));
    }
    const TFormDocument Derived = Form("Derived.dfm");
    const TFormObject* const Translator = Derived.Root.FindChild("FormTranslatorSwedish");
    ASSERT_TRUE(Translator);
    EXPECT_EQ(Translator->Kind(), TFormObjectKind::Inherited);
    EXPECT_EQ(LineOf(*Translator, "MnuLanguage.Caption"), "''") << "a text of the ancestor";
    EXPECT_TRUE(Form("Other.dfm").Root.FindChild("OtherFormTranslatorSwedish"));
    EXPECT_TRUE(PlanGlobalization(Scan(), Choices).ToWrite().empty());
}

// Told by what real ones have.
TEST_F(Globalizer, FormsFramesAndDataModules)
{
    const struct {
        const char* Source;
        TFoundKind Kind;
    } Cases[] = {
        {"object A: TA\n  OldCreateOrder = False\n  Left = 1\n  Top = 2\n", TFoundKind::DataModule},
        {"object A: TA\n  Height = 480\n  HorizontalOffset = 9\n  Width = 640\n", TFoundKind::DataModule},
        {"object A: TA\n  OnCreate = Make\n  Height = 480\n  Width = 640\n", TFoundKind::DataModule},
        {"inherited A: TA\n  Height = 480\n  Width = 640\n", TFoundKind::Form},
        {"object A: TA\n  Left = 1\n  Top = 2\n  Height = 480\n  Width = 640\n", TFoundKind::Form},
        {"object A: TA\n  Height = 480\n  Caption = 'A'\n", TFoundKind::Form},
        {"object A: TA\n", TFoundKind::Form},
        {"object A: TA\n  Width = 320\n  Height = 240\n  TabOrder = 0\n", TFoundKind::Frame},
    };
    for (const auto& Case : Cases) {
        FFolder.Write("A.dfm", std::string(Case.Source) + "end\n");
        EXPECT_EQ(Scan().Forms.at(0).Kind, Case.Kind) << Case.Source;
    }
}

TEST(UnitTexts, OfPascalAndC)
{
    const struct {
        const char* Source;
        std::vector<std::string> Texts;
    } Cases[] = {
        {"", {}},
        {Unit, {"Save it's text?", "Again\r\nand again"}},
        {"resourcestring { a } A = 'x'; // b\n B = 'y'#39; const C = 'z';", {"x", "y'"}},
        {"ORBILEX_TEXT(SA, 40000, \"One\\ntwo\")\nORBILEX_TEXT(SB, 40001, \"It's\")\n", {"One\ntwo", "It's"}},
        {"#define ORBILEX_TEXT(Name, Id, Text) Name\n", {}},
        {"resourcestring A = 'first';\n B = 'broken\n C = 'c';", {"first"}},
        {"resourcestring A = 'caf\xE9';", {"caf\xC3\xA9"}},
        {"resourcestring A = 'a';\n B = 'b';\nresourcestring\n C = 'c';", {"a", "b", "c"}},
        {"resourcestring A = 'a'#$D#$0A'b' + #246#128#$20AC#$D83D#$DE00;",
         {"a\r\nb\xC3\xB6\xE2\x82\xAC\xE2\x82\xAC\xF0\x9F\x98\x80"}},
        {"resourcestring A = ( 'a' + ( 'b' ) ); B = '#' + #;", {"ab", "##"}},
        {"ORBILEX_TEXT( SA, 40000, \"One\")", {"One"}},
    };
    for (const auto& Case : Cases)
        EXPECT_EQ(ReadUnitTexts(Case.Source, 1252).ResourceStrings, Case.Texts) << Case.Source;
    const auto Parents =
        ReadUnitTexts("type TA = class (TB, IC) end; TC = class X: TD; end;\n", 1252).Parents;
    EXPECT_EQ(Parents, (std::map<std::string, std::string>{{"TA", "TB"}}));
    EXPECT_EQ(ReadUnitTexts("class TA : public TB {\n", 1252).Parents, Parents);
    EXPECT_EQ(ReadUnitTexts("type TA = class( TB )\n", 1252).Parents, Parents);
}

// Everything that a developer can tell from the forms of a project of real ones.
void CheckProject(const TTestFolder& Folder, const TGlobalizeChoices& Choices, int CodePage, int LeastForms)
{
    const TProject Project = OpenProject(Folder.Name());
    TProjectScan Scan = ScanProject(Project, CodePage);
    ASSERT_EQ(Scan.Errors, std::vector<std::string>());
    int Forms = 0;
    const TProjectChanges Changes = PlanGlobalization(Scan, Choices);
    WriteChanges(Changes);
    const TProjectScan After = ScanProject(Project, CodePage);
    ASSERT_EQ(After.Errors, std::vector<std::string>());
    for (size_t I = 0; I < After.Forms.size(); ++I) {
        const TFoundForm& Form = After.Forms[I];
        SCOPED_TRACE(Form.File);
        CheckForm(Changes.Files[I], CodePage);
        EXPECT_TRUE(Form.Bytes == Changes.Files[I].After);
        EXPECT_EQ(Form.Texts, Scan.Forms[I].Texts);
        EXPECT_EQ(Form.Document.Format, Scan.Forms[I].Document.Format);
        if (Form.Kind != TFoundKind::Form) {
            EXPECT_FALSE(Changes.Files[I].Notes.empty() && Form.Kind == TFoundKind::Frame);
            continue;
        }
        ++Forms;
        EXPECT_EQ(LocalesOn(Form.Document, FormTranslatorClass),
                  std::set<int>(Choices.Locales.begin(), Choices.Locales.end()));
    }
    EXPECT_GE(Forms, LeastForms);
    EXPECT_TRUE(PlanGlobalization(After, Choices).ToWrite().empty()) << "the second time nothing changes";
    std::cout << Forms << " forms carry all languages\n";
}

TEST_F(Globalizer, TheDemoFromItsBareForms)
{
    WriteBareDemo(FFolder);
    for (const char* const File : {"", "demo.lng"}) {
        TGlobalizeChoices Choices = ChoicesOf(FourLanguages);
        Choices.MainForm = "MainForm";
        Choices.Selector = "MnuLanguage";
        Choices.TranslationsFile = File;
        const auto Bare = FFolder.Files();
        CheckProject(FFolder, Choices, 1252, 10);
        const TFormDocument Main = Form("MainForm.dfm");
        EXPECT_EQ(LocalesOn(Main, ResourceTranslatorClass),
                  std::set<int>(FourLanguages.begin(), FourLanguages.end()));
        for (const auto& [Name, Content] : Bare)
            FFolder.Write(Name, Content);
    }
}

// The small forms of the collection, text and binary, one of each name.
TEST_F(Globalizer, AProjectOfRealForms)
{
    if (!DirectoryExists(CORPUS))
        GTEST_SKIP() << "there is no collection of real forms beside the checkout";
    constexpr size_t MostBytes = 12000;
    std::set<std::string> Names;
    for (const std::string& File : FilesBelow(CORPUS, IsFormFileName)) {
        const std::string Bytes = ReadWholeFile(CORPUS "/" + File);
        try {
            const std::string Name = ReadForm(Bytes).Root.Name();
            if (Bytes.size() < MostBytes && !Name.empty() && Names.insert(LowerCase(Name)).second)
                FFolder.Write(File, Bytes);
        } catch (const EFormFileError&) {
            // One of them is damaged.
        }
    }
    FFolder.Write("Texts.pas", Unit);
    const auto Original = FFolder.Files();
    TGlobalizeChoices Choices = ChoicesOf(FourLanguages);
    for (const TFoundForm& Form : Scan().Forms)
        if (Form.Kind == TFoundKind::Form && !Form.Selectors.empty()) {
            Choices.MainForm = Form.Name;
            Choices.Selector = Form.Selectors.front();
        }
    CheckProject(FFolder, Choices, 1250, 50);
    for (const auto& [Name, Content] : Original)
        FFolder.Write(Name, Content);
    Choices.TranslationsFile = "all.lng";
    CheckProject(FFolder, Choices, 1250, 50);
}

} // namespace
