// Message boxes whose buttons a translator rewrites as they come up.
#include "Qbt/Qbt.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <functional>
#include <map>
#include <utility>

#include <gtest/gtest.h>

#include "framework/forms/Forms.h"
#include "framework/forms/InputForms.h"
#include "framework/forms/MessageForms.h"
#include "framework/forms/StandardClasses.h"
#include "framework/forms/StdCtrls.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/Utf8.h"
#include "framework/streaming/ComponentReader.h"
#include "framework/streaming/ComponentWriter.h"
#include "framework/streaming/FormFile.h"
#include "platform/CodePage.h"
#include "platform/winapi.h"
#include "tests/ClippedControls.h"

namespace {

using TLines = std::vector<std::string>;

constexpr TMsgDlgButtons AllButtons{mbYes,    mbNo,  mbOK,      mbCancel,   mbAbort, mbRetry,
                                    mbIgnore, mbAll, mbNoToAll, mbYesToAll, mbHelp};

std::string WindowText(HWND Window)
{
    char Text[2048] = "";
    GetWindowTextA(Window, Text, sizeof Text);
    return Text;
}

TLines LinesOf(const TStrings& List)
{
    TLines Result;
    for (int I = 0; I < List.Count(); ++I)
        Result.push_back(List.Get(I));
    return Result;
}

// A form of the application while it is shown, as its windows have it.
struct TSeen {
    std::string Title;
    std::map<std::string, std::string> Captions; // by the button's name
    std::map<std::string, std::string> Fonts;
};

struct TButtonScene : TObject, testing::Test {
    TButtonScene()
    {
        Application->OnException = {this, &TButtonScene::Fail};
        Form->Font()->SetName("Courier New");
    }

    TForm* AddForm(const std::string& Name)
    {
        auto* const Result = new TForm(Application);
        Result->SetName(Name);
        return Result;
    }
    static TButton* AddYes(TForm* Owner)
    {
        auto* const Result = new TButton(Owner);
        Result->SetParent(Owner);
        Result->SetCaption("&Yes");
        return Result;
    }
    static TButtonTranslator& Add(TForm* Owner, const TLines& Captions = {})
    {
        auto* const Result = new TButtonTranslator(Owner);
        for (const std::string& Line : Captions)
            Result->Captions()->Add(Line);
        return *Result;
    }

    // What the box that Open shows looks like while it waits for the user.
    TSeen Watch(const std::function<void()>& Open)
    {
        const TIdleEvent Outer = Application->OnIdle;
        FSeen = {};
        Application->OnIdle = {this, &TButtonScene::Look};
        Open();
        Application->OnIdle = Outer;
        return FSeen;
    }
    TSeen Show(TMsgDlgButtons Buttons)
    {
        return Watch([&] { MessageDlg("?", mtConfirmation, Buttons, 0); });
    }
    std::string ShownYes() { return Show(mbYesNo).Captions["Yes"]; }

    void Look(TObject*, bool& Done)
    {
        Done = false;
        for (int I = 0; I < Application->ComponentCount(); ++I)
            if (auto* const Box = dynamic_cast<TForm*>(Application->Components(I)))
                if (Box->IsModal() && Box->HandleAllocated() && Box->Handle() == GetActiveWindow())
                    return LookAt(*Box);
        ADD_FAILURE() << "no message box is active";
        Application->Terminate();
    }
    void LookAt(TForm& Box)
    {
        if (Inspect)
            Inspect(Box);
        FSeen.Title = WindowText(Box.Handle());
        for (int I = 0; I < Box.ComponentCount(); ++I)
            if (auto* const Button = dynamic_cast<TButton*>(Box.Components(I))) {
                FSeen.Captions[Button->Name()] = WindowText(Button->Handle());
                FSeen.Fonts[Button->Name()] = Button->Font()->Name();
            }
        Box.SetModalResult(mrCancel);
    }
    void Fail(TObject*, const Exception& Error) { LastError = Error.Message(); }

    // Handlers.
    void Refuse(TObject*, bool& Skip) { Skip = ++Asked > 0; }
    void Count(TObject*) { ++Told; }
    void Destroy(TObject*, bool&) { delete std::exchange(Victim, nullptr); }
    void DestroyLate(TObject*) { delete std::exchange(Victim, nullptr); }
    void Throw(TObject*, bool&) { throw EConvertError("in the handler"); }
    void AskUser(TObject*, bool&)
    {
        ++Asked;
        EXPECT_EQ(ShownYes(), "&Yes") << "a box of the handler itself";
    }

    TApplicationScope Scope;
    TForm* Form = AddForm("Form1");
    std::function<void(TForm&)> Inspect; // the box that is shown
    TComponent* Victim = nullptr;
    int Asked = 0;
    int Told = 0;
    std::string LastError;

private:
    TSeen FSeen;
};

// The captions of each language as they were kept before Unicode.

struct TLegacyRow {
    std::string Language;
    TLines Captions; // in UTF-8
};

std::string Decoded(const TCodePage& Page, const std::string& Text)
{
    std::string Bytes;
    for (size_t I = 0; I < Text.size(); ++I) {
        int Byte = static_cast<unsigned char>(Text[I]);
        if (Text[I] == '\\') {
            std::from_chars(Text.data() + I + 2, Text.data() + I + 4, Byte, 16);
            I += 3;
        }
        Bytes += static_cast<char>(Byte);
    }
    std::string Result;
    for (std::string_view Rest = Bytes; !Rest.empty(); Rest.remove_prefix(Page.CharLength(Rest)))
        AppendCharacter(Result, Page.Decode(Rest));
    return Result;
}

std::vector<TLegacyRow> ReadLegacyRows()
{
    std::vector<TLegacyRow> Result;
    TStringList File;
    File.LoadFromFile(TEST_DATA "/button-captions.txt");
    for (const std::string& Line : LinesOf(File)) {
        if (Line.starts_with("#"))
            continue;
        TLines Fields{""};
        for (const char Each : Line)
            if (Each == '\t')
                Fields.emplace_back();
            else
                Fields.back() += Each;
        const TCodePage* const Page = TCodePage::Find(std::stoi(Fields.at(1)));
        if (!Page)
            throw EConvertError("no code page " + Fields[1]);
        Result.push_back({Fields[0], {}});
        for (size_t I = 2; I < Fields.size(); ++I)
            Result.back().Captions.push_back(Decoded(*Page, Fields[I]));
    }
    return Result;
}

// One letter of another form (a full-width katakana, a composed accent) and a
// dictionary made for the old captions finds nothing.
TEST_F(TButtonScene, MessageBoxesSpeakEachLanguage)
{
    const char* const Names[] = {"Yes", "No", "OK", "Cancel", "Help", "Abort", "Retry", "Ignore", "All"};
    const std::vector<TLegacyRow> Rows = ReadLegacyRows();
    const TTypeInfo& Type = TypeInfoFor(TTypeTag<TLangName>{});
    ASSERT_EQ(Type.Names.size(), 26u);
    ASSERT_EQ(Rows.size(), 25u);
    TButtonTranslator& Translator = Add(Form);
    EXPECT_EQ(FindLanguageCaptions(lnUser), nullptr);
    for (size_t Ordinal = 1; Ordinal <= Rows.size(); ++Ordinal) {
        const TLegacyRow& Row = Rows[Ordinal - 1];
        SCOPED_TRACE(Row.Language);
        EXPECT_EQ(Type.Names[Ordinal], Row.Language);
        ASSERT_EQ(Row.Captions.size(), std::size(Names));
        Translator.SetLanguage(static_cast<TLangName>(Ordinal));
        EXPECT_EQ(Translator.Captions()->Count(), 9);
        TSeen Seen = Show(AllButtons);
        for (size_t I = 0; I < std::size(Names); ++I)
            EXPECT_EQ(Seen.Captions[Names[I]], Row.Captions[I]) << Names[I];
        EXPECT_EQ(Seen.Captions["NoToAll"], "N&o to All");
        EXPECT_EQ(Seen.Title, "Confirm");
    }
}

// Whether the row of buttons and the form itself are in the middle.
void ExpectInTheMiddle(TForm& Box)
{
    int Left = Box.ClientWidth();
    int Right = 0;
    for (int I = 0; I < Box.ComponentCount(); ++I)
        if (const auto* const Button = dynamic_cast<TButton*>(Box.Components(I))) {
            Left = std::min(Left, Button->Left());
            Right = std::max(Right, Button->Left() + Button->Width());
        }
    EXPECT_NEAR(Left, Box.ClientWidth() - Right, 1);
    EXPECT_NEAR(2 * Box.Left() + Box.Width(), Screen->Width(), 2);
}

// The form has the size for the framework's captions and font when it comes up.
TEST_F(TButtonScene, EveryCaptionFitsItsButton)
{
    const struct {
        const char* Name;
        TBiDiMode Reading;
        int FontHeight;
        std::function<void()> Open;
    } Cases[] = {
        {"all buttons", bdLeftToRight, -13, [&] { MessageDlg("?", mtConfirmation, AllButtons, 0); }},
        {"from the right", bdRightToLeft, -13, [&] { MessageDlg("?", mtWarning, mbAbortRetryIgnore, 0); }},
        {"large font", bdRightToLeft, -26, [&] { MessageDlg("?", mtError, mbAbortRetryIgnore, 0); }},
        {"question for a text", bdLeftToRight, -32,
         [&] {
             std::string Value;
             InputQuery("Name", "?", Value);
         }},
    };
    TButtonTranslator& Translator = Add(Form);
    Inspect = [](TForm& Box) {
        ExpectNothingIsClipped(Box);
        ExpectInTheMiddle(Box);
    };
    for (const auto& Case : Cases)
        for (int Language = lnArabic; Language <= lnTurkish; ++Language) {
            SCOPED_TRACE(std::string(Case.Name) + ", language " + std::to_string(Language));
            Application->BiDiMode = Case.Reading;
            Translator.Font()->SetHeight(Case.FontHeight);
            Translator.SetLanguage(static_cast<TLangName>(Language));
            Watch(Case.Open);
        }
}

TEST_F(TButtonScene, OtherDialogsOfTheFrameworkTooWithTitleAndFont)
{
    TButtonTranslator& Translator = Add(Form);
    Translator.SetLanguage(lnTurkish);
    std::string Value;
    TSeen Seen = Watch([&] { InputQuery("Name", "?", Value); });
    EXPECT_EQ(Seen.Captions["OK"] + Seen.Captions["Cancel"] + Seen.Title, "TamamİptalName");

    Translator.SetTitle("Başlık");
    Seen = Show({mbOK, mbNoToAll});
    EXPECT_EQ(Seen.Title, "Başlık");
    EXPECT_EQ(Seen.Fonts["OK"], "Courier New") << "the form's";
    EXPECT_NE(Seen.Fonts["NoToAll"], "Courier New");
    Translator.Font()->SetName("Arial");
    EXPECT_EQ(Show({mbOK}).Fonts["OK"], "Arial");
    EXPECT_EQ(Show({mbNoToAll}).Title, "Confirm") << "no button was translated";
}

// SOKButton and SCancelButton take the lines of SMsgDlgOK and SMsgDlgCancel
// unless they read otherwise.
std::string LoadOwnText(const TResStringRec* Rec)
{
    const std::pair<const TResStringRec*, const char*> Texts[] = {
        {&SMsgDlgYes, "Y"}, {&SMsgDlgOK, "O"}, {&SOKButton, "OK|2"}, {&SCancelButton, "C2"}};
    for (const auto& [Each, Text] : Texts)
        if (Each == Rec)
            return Text;
    return "rest";
}

TEST_F(TButtonScene, ListIsFilledByWhatTheFrameworkSays)
{
    TButtonTranslator& Translator = Add(Form, {"Zoom|Größer", "&No|old", "C|own"});
    const TVarRec Replacements[] = {
        "a", std::string_view("b\0c", 3), "c", "d", "e", "f", "g", "h", "i", "j|J", "k"};
    Translator.ReplaceCaptions(Replacements, 2);
    EXPECT_EQ(LinesOf(*Translator.Captions()),
              (TLines{"Zoom|Größer", "&No|b", "C|own", "&Yes|a", "OK|j|J", "Cancel|k", "&Help|e", "&Abort|f",
                      "&Retry|g", "&Ignore|h", "&All|i"}));
    Translator.SetLanguage(lnFrench);
    const TLines French = LinesOf(*Translator.Captions());
    Translator.SetLanguage(lnUser);
    EXPECT_EQ(LinesOf(*Translator.Captions()), French);
    EXPECT_EQ(Translator.Language(), lnUser);
    Translator.SetLanguage(lnFrench);
    Translator.Captions()->Put(3, "&Yes|edited");
    Translator.SetLanguage(lnFrench);
    EXPECT_EQ(LinesOf(*Translator.Captions()), French);

    Translator.SetCaptions(nullptr);
    const TLoadResString Before = RedirectLoadResString(&LoadOwnText);
    Translator.ReplaceCaptions(Replacements, 10);
    RedirectLoadResString(Before);
    EXPECT_EQ(LinesOf(*Translator.Captions()), (TLines{"Y|a", "rest|i", "O|c", "OK|2|j|J", "C2|k"}));
}

TEST_F(TButtonScene, CaptionsAreLookedUpInTheList)
{
    std::string Wide, Cut;
    for (int I = 0; I < 300; ++I)
        (I < 255 ? Cut : Wide) += "ß";
    Wide = Cut + Wide;
    const struct {
        const char* Name;
        TLines List;
        std::string Before, After, Again; // the button at first, then after one and after two times
    } Cases[] = {
        {"further bars are kept", {"A|b|c||"}, "A", "b|c||", "b|c||"},
        {"the first line wins", {"A|1", "A|2"}, "A", "1", "1"},
        {"letter case and accelerator count", {"a|1", "&A|2", "AA|3"}, "A", "A", "A"},
        {"no bar", {"A", "|"}, "A", "A", "A"},
        {"to nothing, and from nothing", {"A|", "|B"}, "A", "", "B"},
        {"a bar in the caption", {"A|B|C"}, "A|B", "B|C", "B|C"},
        {"255 characters", {"A|" + Wide}, "A", Cut, Cut},
    };
    TForm& Box = *AddForm("Box");
    TButton* const Button = AddYes(&Box);
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        TButtonTranslator& Translator = Add(Form, Case.List);
        Translator.SetTranslate(false);
        Button->SetCaption(Case.Before);
        Translator.TranslateForm(&Box);
        EXPECT_EQ(Button->Caption(), Case.After);
        Translator.TranslateForm(&Box);
        EXPECT_EQ(Button->Caption(), Case.Again);
        delete &Translator;
    }
}

// Everything that becomes active, and only forms of the application.

std::string SystemBoxCaption;

LRESULT CALLBACK LookAtSystemBox(int Code, WPARAM WParam, LPARAM LParam)
{
    const LRESULT Result = CallNextHookEx(nullptr, Code, WParam, LParam);
    const auto Box = reinterpret_cast<HWND>(WParam);
    if (const HWND Yes = Code == HCBT_ACTIVATE ? GetDlgItem(Box, IDYES) : nullptr) {
        SystemBoxCaption = WindowText(Yes) + "," + WindowText(Box);
        PostMessageA(Box, WM_COMMAND, IDNO, 0);
    }
    return Result;
}

TEST_F(TButtonScene, OnlyFormsOfTheApplication)
{
    TButtonTranslator& Translator = Add(Form, {"&Yes|Ja"});
    Translator.SetTitle("Titel");
    const HHOOK Hook = SetWindowsHookExA(WH_CBT, &LookAtSystemBox, nullptr, GetCurrentThreadId());
    EXPECT_EQ(MessageBoxA(nullptr, "?", "Caption", MB_YESNO), IDNO);
    UnhookWindowsHookEx(Hook);
    EXPECT_EQ(SystemBoxCaption, "&Yes,Caption");

    TForm Foreign(nullptr);
    TForm* const Own = AddForm("Form2");
    TForm* const Hidden = AddForm("Form3");
    for (TForm* const Each : {&Foreign, Own}) {
        TButton* const Button = AddYes(Each);
        Each->Show();
        EXPECT_EQ(WindowText(Button->Handle()), Each == Own ? "Ja" : "&Yes");
        EXPECT_EQ(WindowText(Each->Handle()), Each == Own ? "Titel" : "");
    }
    EXPECT_FALSE(Hidden->HandleAllocated()) << "looking for the form must not make windows";
    TButton& OwnYes = *dynamic_cast<TButton*>(Own->Components(0));
    OwnYes.SetCaption("&Yes");
    Hidden->Show();
    EXPECT_EQ(OwnYes.Caption(), "&Yes") << "another form came up";
    Own->Hide();
    Own->Show();
    EXPECT_EQ(LastError, "");
}

// Which translator works, and until when.

TEST_F(TButtonScene, SwitchingOneOffEndsItForAll)
{
    TButtonTranslator& First = Add(Form, {"&Yes|erster"});
    EXPECT_TRUE(First.Translate());
    EXPECT_EQ(ShownYes(), "erster");
    TButtonTranslator& Second = Add(AddForm("Form2"), {"&Yes|zweiter"});
    EXPECT_EQ(ShownYes(), "zweiter") << "the newest";
    First.SetTranslate(false);
    EXPECT_TRUE(Second.Translate());
    EXPECT_EQ(ShownYes(), "&Yes");
    First.SetTranslate(true);
    EXPECT_EQ(ShownYes(), "zweiter") << "whichever is switched on";
}

TEST_F(TButtonScene, DestroyedTranslatorsAreNeverReached)
{
    TButtonTranslator& First = Add(Form, {"&Yes|erster"});
    TForm* const Second = AddForm("Form2");
    Add(Second, {"&Yes|zweiter"}).SetTranslate(false);
    First.InternalTranslate(false);
    First.SetTranslate(true);
    EXPECT_EQ(ShownYes(), "zweiter");
    delete Second; // was off: the hook stays
    EXPECT_EQ(ShownYes(), "erster");
    Add(AddForm("Form3"), {"&Yes|dritter"});
    delete Form->Owner()->FindComponent("Form3"); // was on
    EXPECT_TRUE(First.Translate());
    EXPECT_EQ(ShownYes(), "&Yes");
    delete &First;
    EXPECT_EQ(ShownYes(), "&Yes");
}

TEST_F(TButtonScene, FollowsTheLocaleOfOthers)
{
    TButtonTranslator& German = Add(Form, {"&Yes|Ja"});
    German.SetLocale(1031);
    TButtonTranslator& Late = Add(AddForm("Form2"), {"&Yes|Jawohl"});
    EXPECT_FALSE(German.Translate()) << "by the new one, which has no locale yet";
    Late.SetLocale(1031);
    Late.Loaded();
    EXPECT_FALSE(Late.Translate());
    EXPECT_EQ(ShownYes(), "&Yes");
    German.SetTranslate(true);
    EXPECT_TRUE(Late.Translate());
    EXPECT_EQ(ShownYes(), "Jawohl");
    delete &Late;
    EXPECT_FALSE(German.Translate()) << "goes off with one of its locale";
}

TEST_F(TButtonScene, NothingIsHookedInTheDesigner)
{
    Form->SetDesigning(true);
    TButtonTranslator& Designed = Add(Form, {"&Yes|Ja"});
    EXPECT_TRUE(Designed.Translate());
    EXPECT_EQ(ShownYes(), "&Yes");
    Designed.SetTranslate(false);
    Designed.SetTranslate(true);
    EXPECT_EQ(ShownYes(), "&Yes");
}

// Handlers.

TEST_F(TButtonScene, EventsComeAroundTheFormsThatAreTranslated)
{
    TButtonTranslator& Translator = Add(Form, {"&Yes|Ja"});
    Translator.OnTranslated = {this, &TButtonScene::Count};
    ShownYes();
    EXPECT_EQ(Told, 1);
    Translator.OnTranslate = {this, &TButtonScene::Refuse};
    Show(mbOKCancel);
    EXPECT_EQ(Asked, 0) << "nothing to translate";
    EXPECT_EQ(ShownYes(), "&Yes");
    EXPECT_EQ(Asked, 1);
    EXPECT_EQ(Told, 1);

    Translator.OnTranslate = {this, &TButtonScene::AskUser};
    EXPECT_EQ(ShownYes(), "Ja");
    EXPECT_EQ(Asked, 2) << "not about its own box";

    Translator.OnTranslate = {this, &TButtonScene::Throw};
    EXPECT_EQ(ShownYes(), "&Yes");
    EXPECT_EQ(LastError, "in the handler");
    Translator.OnTranslate.Clear();
    EXPECT_EQ(ShownYes(), "Ja") << "the hook still works";
}

TEST_F(TButtonScene, HandlersMayDestroy)
{
    TForm* const Box = AddForm("Box");
    AddYes(Box);
    Add(Form, {"&Yes|erster"});
    TButtonTranslator* Translator = &Add(AddForm("Form2"), {"&Yes|zweiter"});
    Translator->OnTranslate = {this, &TButtonScene::Destroy};
    Victim = Translator;
    EXPECT_EQ(ShownYes(), "&Yes");
    EXPECT_EQ(Victim, nullptr);

    Translator = &Add(Form, {"&Yes|dritter"});
    Translator->OnTranslated = {this, &TButtonScene::DestroyLate};
    Victim = Translator;
    EXPECT_EQ(ShownYes(), "dritter");

    Translator = &Add(Form, {"&Yes|vierter"});
    Translator->OnTranslate = {this, &TButtonScene::Destroy};
    Victim = Box;
    Translator->TranslateForm(Box);
    EXPECT_EQ(Application->FindComponent("Box"), nullptr);
}

// Files.

struct TButtonFiles : TButtonScene {
    TButtonFiles()
    {
        std::filesystem::remove_all(Folder);
        std::filesystem::create_directories(Folder);
    }
    ~TButtonFiles() override { std::filesystem::remove_all(Folder); }

    std::filesystem::path Folder = std::filesystem::temp_directory_path() / "obx_buttons";
    std::string File = (Folder / "buttons.txt").string();
};

TEST_F(TButtonFiles, SavesATemplate)
{
    TButtonTranslator& Translator =
        Add(Form, {"b\tx\\|1", "B|2", "no bar", "a|3", "B|4", "äb|5", "l1\nl2|6"});
    ReplaceWholeFile(File, "z\tz\r\n");
    Translator.SaveTo(File);
    EXPECT_EQ(ReadWholeFile(File), "B\tB\r\na\ta\r\nb\\tx\\\\\tb\\tx\\\\\r\nl1\\nl2\tl1\\nl2\r\näb\täb\r\n");
    EXPECT_THROW(Translator.SaveTo((Folder / "none" / "x.txt").string()), EFCreateError);
}

TEST_F(TButtonFiles, TakesCaptionsFromFiles)
{
    const std::string Long(5000, 'x');
    const struct {
        const char* Name;
        std::string Bytes;
        TLines Loaded, Translated; // from a list of &Yes|a, &No|b, &Yes|c
    } Cases[] = {
        {"pairs",
         "&No\tNein\r\n&Yes\tJa\r\nOther\tx\r\n",
         {"&No|Nein", "&Yes|Ja", "Other|x"},
         {"&Yes|c", "&No|Nein", "&Yes|Ja"}},
        {"line ends and mark",
         "\xEF\xBB\xBF&No\tN\n\n&Yes\tJ\r",
         {"&No|N", "&Yes|J"},
         {"&Yes|c", "&No|N", "&Yes|J"}},
        {"damaged lines",
         "&No\r\n\tx\r\n&No Nein\r\n&No|\t\r\n",
         {"|x", "&No||"},
         {"&Yes|a", "&No|b", "&Yes|c"}},
        {"escapes and bars",
         "&No\ta\\nb\\\\c|d\te",
         {"&No|a\nb\\c|d\te"},
         {"&Yes|a", "&Yes|c", "&No|a\nb\\c|d\te"}},
        {"too long",
         "&No\t" + Long,
         {"&No|" + Long.substr(0, 4095)},
         {"&Yes|a", "&Yes|c", "&No|" + Long.substr(0, 4095)}},
        {"empty", "", {}, {"&Yes|a", "&No|b", "&Yes|c"}},
    };
    TButtonTranslator& Translator = Add(Form);
    TStringList List;
    List.SetText("&Yes|a\n&No|b\n&Yes|c\n");
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        ReplaceWholeFile(File, Case.Bytes);
        Translator.SetCaptions(&List);
        EXPECT_TRUE(Translator.TranslateFrom(File));
        EXPECT_EQ(LinesOf(*Translator.Captions()), Case.Translated);
        EXPECT_TRUE(Translator.LoadFrom(File));
        EXPECT_EQ(LinesOf(*Translator.Captions()), Case.Loaded);
    }
    Translator.SetCaptions(&List);
    EXPECT_FALSE(Translator.LoadFrom(File + "x"));
    EXPECT_FALSE(Translator.TranslateFrom(File + "x"));
    ReplaceWholeFile(File, "\xFF\xFE&");
    EXPECT_THROW(Translator.LoadFrom(File), EConvertError);
    EXPECT_EQ(LinesOf(*Translator.Captions()), LinesOf(List));
}

// In the form file.

struct TButtonStreams : TButtonFiles {
    TButtonStreams()
    {
        RegisterStandardClasses();
        RegisterClass(TButtonTranslator::MetaClass());
    }

    TButtonTranslator& Read(const std::string& Properties)
    {
        const std::string Text = "object Form" + std::to_string(++Forms) +
                                 ": TForm\n  Font.Name = 'Arial'\n  object Buttons: TButtonTranslator\n" +
                                 Properties + "  end\nend\n";
        const TFormDocument Document = ReadForm(Text);
        TForm* const Root = new TForm(Application);
        TComponentReader(Document, TUnknownClasses::Refuse).ReadRoot(*Root);
        return dynamic_cast<TButtonTranslator&>(*Root->FindComponent("Buttons"));
    }

    int Forms = 10;

    static std::string Write(TButtonTranslator& Translator)
    {
        TFormDocument Document;
        Document.Root = TComponentWriter(*Translator.Owner()).WriteRoot();
        const std::string Text = WriteForm(Document);
        return Text.substr(Text.find("  object Buttons"));
    }
};

TEST_F(TButtonStreams, LanguageWinsOverCaptionsAndTheFileOverBoth)
{
    const std::string Properties = "    Captions.Strings = (\n      '&Yes|typed'\n      'Zoom|typed')\n"
                                   "    Locale = 1031\n    Language = lnGerman\n";
    TButtonTranslator& Typed = Read(Properties + "    Storage = ()\n");
    EXPECT_EQ(Typed.Font()->Name(), "Arial") << "the form's, which is read before";
    EXPECT_EQ(Typed.Captions()->Get(0), "&Yes|Ja");
    EXPECT_EQ(Typed.Captions()->Get(1), "Zoom|typed");
    EXPECT_EQ(ShownYes(), "Ja");
    EXPECT_FALSE(Read(Properties + "    Translate = False\n").Translate());

    ReplaceWholeFile(File, "&Yes\tJawoll\n");
    TButtonTranslator& Filed = Read(Properties + "    FileName = '" + File + "'\n    Storage = ()\n");
    EXPECT_EQ(LinesOf(*Filed.Captions()), (TLines{"&Yes|Jawoll"}));
    Write(Filed);
    EXPECT_EQ(ReadWholeFile(File), "&Yes\t&Yes\r\n") << "saving the form leaves a template";
}

TEST_F(TButtonStreams, WritesItsPropertiesInOrder)
{
    const std::string Text =
        Write(Read("    FileName = '" + File + "'\n    Title = 'Titel'\n    Language = lnJapan\n"));
    size_t Place = 0;
    for (const char* const Each :
         {"Captions.Strings = (", "FileName = '", "Locale = 0", "Title = 'Titel'", "Translate = True",
          "Font.Name = 'Arial'", "Language = lnJapan", "Storage = ()"}) {
        const size_t Next = Text.find(Each, Place);
        ASSERT_NE(Next, Text.npos) << Each << " in " << Text;
        Place = Next;
    }
}

TEST_F(TButtonStreams, BelongsOnAForm)
{
    TDataModule Module(nullptr);
    EXPECT_THROW(TButtonTranslator{&Module}, EInvalidOperation);
    EXPECT_THROW(TButtonTranslator{nullptr}, EInvalidOperation);
    EXPECT_EQ(Module.ComponentCount(), 0);
    EXPECT_EQ(ShownYes(), "&Yes");
    EXPECT_THROW(Read("    Storage = (\n      1)\n"), Exception);
}

} // namespace
