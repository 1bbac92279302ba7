#include "framework/forms/MessageForms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <functional>
#include <memory>

#include "framework/forms/Application.h"
#include "framework/forms/Images.h"
#include "framework/forms/InputForms.h"
#include "framework/forms/StdCtrls.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/Streams.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/Utf8.h"
#include "tests/ClippedControls.h"

namespace {

// The form that waits for the user; the application owns it.
TForm& Shown()
{
    for (int Index = 0; Index < Application->ComponentCount(); ++Index)
        if (auto* const Form = dynamic_cast<TForm*>(Application->Components(Index)))
            if (Form->HandleAllocated() && Form->Handle() == GetActiveWindow())
                return *Form;
    throw EInvalidOperation("no form of the application is active");
}

TButton& Button(const std::string& Name)
{
    if (auto* const Found = dynamic_cast<TButton*>(Shown().FindComponent(Name)))
        return *Found;
    throw EInvalidOperation("no button " + Name);
}

std::string WindowText(HWND Window)
{
    char Text[1024] = "";
    GetWindowTextA(Window, Text, sizeof Text);
    return Text;
}

// The user: takes one step whenever the program has nothing to do.
class TUser : public TObject {
public:
    using TStep = std::function<void()>;

    TUser()
    {
        Application->OnIdle = {this, &TUser::Idle};
        Application->OnException = {this, &TUser::Fail};
    }
    ~TUser() override
    {
        Application->OnIdle.Clear();
        Application->OnException.Clear();
        EXPECT_TRUE(FSteps.empty()) << "the dialog closed too early";
        EXPECT_EQ(Application->ComponentCount(), FComponents) << "the dialog was not freed";
    }

    TUser& Then(TStep Step)
    {
        FSteps.push_back(std::move(Step));
        return *this;
    }
    TUser& Press(WPARAM Key)
    {
        return Then([Key] { PostMessageA(GetFocus(), WM_KEYDOWN, Key, 1); });
    }
    TUser& Click(const std::string& Name)
    {
        return Then([Name] { PostMessageA(Button(Name).Handle(), BM_CLICK, 0, 0); });
    }

private:
    void Idle(TObject*, bool& Done)
    {
        Done = false;
        if (FSteps.empty()) {
            ADD_FAILURE() << "the dialog stays open";
            Application->Terminate();
            return;
        }
        const TStep Step = FSteps.front();
        FSteps.pop_front();
        Step();
    }

    void Fail(TObject*, const Exception& Error)
    {
        ADD_FAILURE() << Error.Message();
        Application->Terminate();
    }

    std::deque<TStep> FSteps;
    int FComponents = Application->ComponentCount();
};

struct TMessageForms : testing::Test {
    TApplicationScope Scope;
};

// "Yes,No" of the buttons in the order of components, which is that of their places.
std::string ButtonNames(const TForm& Form)
{
    std::string Result;
    for (int Index = 0; Index < Form.ComponentCount(); ++Index)
        if (dynamic_cast<TButton*>(Form.Components(Index)))
            Result += (Result.empty() ? "" : ",") + Form.Components(Index)->Name();
    return Result;
}

constexpr int NoAnswer = -1;

const struct TBoxCase {
    const char* Name;
    TMsgDlgType Type;
    TMsgDlgButtons Buttons;
    const char* Title;
    const char* Names;
    int Enter;
    int Escape; // NoAnswer: the key does nothing
} Boxes[] = {
    {"OK", mtInformation, {mbOK}, "Information", "OK", mrOk, mrOk},
    {"Yes or no", mtConfirmation, mbYesNo, "Confirm", "Yes,No", mrYes, mrNo},
    {"with cancel", mtWarning, mbYesNoCancel, "Warning", "Yes,No,Cancel", mrYes, mrCancel},
    {"OK or cancel", mtError, mbOKCancel, "Error", "OK,Cancel", mrOk, mrCancel},
    {"trouble", mtError, mbAbortRetryIgnore, "Error", "Abort,Retry,Ignore", mrRetry, NoAnswer},
    {"no default", mtWarning, mbAbortIgnore, "Warning", "Abort,Ignore", mrAbort, NoAnswer},
    {"OK before Yes", mtCustom, {mbYes, mbOK}, "Editor", "Yes,OK", mrOk, mrOk},
    {"to all", mtConfirmation, mbYesAllNoAllCancel, "Confirm", "Yes,No,Cancel,NoToAll,YesToAll", mrYes,
     mrCancel},
    {"all of them",
     mtCustom,
     {mbYes, mbNo, mbOK, mbCancel, mbAbort, mbRetry, mbIgnore, mbAll, mbNoToAll, mbYesToAll, mbHelp},
     "Editor",
     "Yes,No,OK,Cancel,Abort,Retry,Ignore,All,NoToAll,YesToAll,Help",
     mrOk,
     mrCancel},
};

} // namespace

// A wrong default deletes a file that somebody wanted to keep by pressing Enter.
TEST_F(TMessageForms, KeysAnswerAsTheButtonsSay)
{
    Application->SetTitle("Editor");
    for (const TBoxCase& Case : Boxes) {
        SCOPED_TRACE(Case.Name);
        {
            TUser User;
            User.Then([&] {
                    TForm& Form = Shown();
                    EXPECT_STREQ(Form.ClassName().c_str(), "TMessageForm");
                    EXPECT_EQ(WindowText(Form.Handle()), Case.Title);
                    EXPECT_EQ(ButtonNames(Form), Case.Names);
                    EXPECT_EQ(Form.FindComponent("Image") != nullptr, Case.Type != mtCustom);
                    ExpectNothingIsClipped(Form);
                })
                .Press(VK_RETURN);
            EXPECT_EQ(MessageDlg("Save the changes?", Case.Type, Case.Buttons, 0), Case.Enter);
        }
        TUser User;
        User.Press(VK_ESCAPE);
        if (Case.Escape == NoAnswer)
            User.Then([] { PostMessageA(Shown().Handle(), WM_CLOSE, 0, 0); });
        EXPECT_EQ(MessageDlg("Save the changes?", Case.Type, Case.Buttons, 0),
                  Case.Escape == NoAnswer ? mrCancel : Case.Escape);
    }
}

TEST_F(TMessageForms, EveryButtonHasItsCaptionResultAndMnemonic)
{
    const struct {
        TMsgDlgBtn Button;
        const char* Name;
        const TResStringRec& Caption;
        int Result;
        WPARAM Key; // 0: the caption has no mnemonic
    } Cases[] = {
        {mbYes, "Yes", SMsgDlgYes, mrYes, 'Y'},
        {mbNo, "No", SMsgDlgNo, mrNo, 'N'},
        {mbOK, "OK", SMsgDlgOK, mrOk, 0},
        {mbCancel, "Cancel", SMsgDlgCancel, mrCancel, 0},
        {mbAbort, "Abort", SMsgDlgAbort, mrAbort, 'A'},
        {mbRetry, "Retry", SMsgDlgRetry, mrRetry, 'R'},
        {mbIgnore, "Ignore", SMsgDlgIgnore, mrIgnore, 'I'},
        {mbAll, "All", SMsgDlgAll, mrAll, 'A'},
        {mbNoToAll, "NoToAll", SMsgDlgNoToAll, mrNoToAll, 'O'},
        {mbYesToAll, "YesToAll", SMsgDlgYesToAll, mrYesToAll, 'A'},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        {
            TUser User;
            User.Then([&] { EXPECT_EQ(WindowText(Button(Case.Name).Handle()), std::string(Case.Caption)); })
                .Click(Case.Name);
            EXPECT_EQ(MessageDlg("?", mtConfirmation, {Case.Button, mbHelp}, 0), Case.Result);
        }
        if (Case.Key) {
            TUser User;
            User.Press(Case.Key);
            EXPECT_EQ(MessageDlg("?", mtConfirmation, {Case.Button, mbHelp}, 0), Case.Result);
        }
    }
}

// Wrapping by another font or width than the label's cuts the last line off.
TEST_F(TMessageForms, WrapsLongTexts)
{
    std::string Words;
    for (int Index = 0; Index < 120; ++Index)
        Words += "würde das Gerät übertönen ";
    const std::string Texts[] = {Words, "Dateien:\n\tc:\\eins.txt\n\tc:\\zwei.txt\r\n\r\nAlle löschen?", "",
                                 "&Datei && mehr"};
    for (const std::string& Text : Texts) {
        SCOPED_TRACE(Text);
        TUser User;
        User.Then([&] {
                TForm& Form = Shown();
                ExpectNothingIsClipped(Form);
                const auto& Label = dynamic_cast<TLabel&>(*Form.FindComponent("Message"));
                EXPECT_EQ(Label.Caption(), Text);
                EXPECT_LE(Label.Width(), Screen->Width() / 2);
                EXPECT_NEAR(Form.Left() + Form.Width() / 2, Screen->Width() / 2, 2);
            })
            .Press(VK_RETURN);
        EXPECT_EQ(MessageDlg(Text, mtWarning, mbYesNoCancel, 0), mrYes);
    }
}

TEST_F(TMessageForms, MirrorsForReadersFromRightToLeft)
{
    Application->BiDiMode = bdRightToLeft;
    TUser User;
    User.Then([] {
            TForm& Form = Shown();
            ExpectNothingIsClipped(Form);
            auto& Label = dynamic_cast<TLabel&>(*Form.FindComponent("Message"));
            auto& Image = dynamic_cast<TControl&>(*Form.FindComponent("Image"));
            EXPECT_GE(Image.Left(), Label.Left() + Label.Width());
            EXPECT_GT(Button("Yes").Left(), Button("No").Left());
        })
        .Press(VK_RETURN);
    EXPECT_EQ(MessageDlg("هل تريد حفظ التغييرات؟", mtConfirmation, mbYesNo, 0), mrYes);
}

namespace {

// The pixels of Graphic on white.
std::vector<TColor> Drawn(TGraphic& Graphic)
{
    TBitmap Paper;
    Paper.SetSize(32, 32);
    Graphic.Draw(*Paper.Canvas(), Bounds(0, 0, 32, 32));
    std::vector<TColor> Result;
    for (int Place = 0; Place < 32 * 32; ++Place)
        Result.push_back(Paper.Canvas()->Pixels(Place % 32, Place / 32));
    return Result;
}

// An .ico file of one red square.
std::string RedIcon()
{
    std::string File("\0\0\1\0\1\0\x20\x20\0\0\1\0\x20\0\xA8\x10\0\0\x16\0\0\0"
                     "\x28\0\0\0\x20\0\0\0\x40\0\0\0\1\0\x20\0",
                     38);
    File.append(24, '\0');
    for (int Pixel = 0; Pixel < 32 * 32; ++Pixel)
        File.append("\0\0\xFF\xFF", 4);
    return File + std::string(32 * 4, '\0');
}

} // namespace

// An icon whose picture is lost when it is first painted leaves a hole.
TEST_F(TMessageForms, IconsCanBeDrawnAgain)
{
    TBitmap Blank;
    std::vector<std::vector<TColor>> Pictures{Drawn(Blank)};
    for (const TMsgDlgType Type : {mtWarning, mtError, mtInformation, mtConfirmation}) {
        const std::unique_ptr<TForm> Form(CreateMessageDialog("?", Type, {mbOK}));
        TGraphic& Icon = *dynamic_cast<TImage&>(*Form->FindComponent("Image")).Picture()->Graphic();
        Pictures.push_back(Drawn(Icon));
        EXPECT_EQ(std::count(Pictures.begin(), Pictures.end(), Pictures.back()), 1) << Type;
        EXPECT_EQ(Drawn(Icon), Pictures.back()) << Type;
    }
    TIcon Icon;
    TMemoryStream File;
    File.WriteBytes(RedIcon());
    File.SetPosition(0);
    Icon.LoadFromStream(File);
    EXPECT_EQ(Drawn(Icon)[33], clRed);
    EXPECT_EQ(Drawn(Icon)[33], clRed);
}

TEST_F(TMessageForms, HelpAsksForTheTopicAndStaysOpen)
{
    struct : TObject {
        std::vector<intptr_t> Topics;
        void Help(uint16_t Command, intptr_t Data, bool& CallHelp, bool& Result)
        {
            EXPECT_EQ(Command, HELP_CONTEXT);
            Topics.push_back(Data);
            CallHelp = false;
            Result = true;
        }
    } Watch;
    Application->OnHelp = {&Watch, &decltype(Watch)::Help};
    TUser User;
    User.Click("Help")
        .Press('H')
        .Then([&] {
            EXPECT_EQ(Watch.Topics, (std::vector<intptr_t>{42, 42}));
        })
        .Click("No");
    EXPECT_EQ(MessageDlg("?", mtWarning, {mbYes, mbNo, mbHelp}, 42), mrNo);
}

// The result of the inner box must not close the outer one.
TEST_F(TMessageForms, NestsAndLocksTheMainForm)
{
    TForm* Main = nullptr;
    Application->CreateForm(Main);
    Main->Show();
    {
        TUser User;
        User.Then([&] {
                const HWND Outer = Shown().Handle();
                EXPECT_FALSE(IsWindowEnabled(Main->Handle()));
                EXPECT_EQ(MessageDlg("inner", mtError, mbOKCancel, 0), mrCancel);
                EXPECT_TRUE(IsWindowEnabled(Outer));
                EXPECT_FALSE(IsWindowEnabled(Main->Handle()));
                EXPECT_EQ(Shown().Handle(), Outer);
            })
            .Then([] { EXPECT_EQ(WindowText(Shown().Handle()), "Error"); })
            .Press(VK_ESCAPE)
            .Click("No");
        EXPECT_EQ(MessageDlg("outer", mtConfirmation, mbYesNo, 0), mrNo);
    }
    EXPECT_TRUE(IsWindowEnabled(Main->Handle()));
    EXPECT_EQ(GetActiveWindow(), Main->Handle());
}

namespace {

// Changes the captions of every form that comes up, before it is seen.
LRESULT CALLBACK RewriteCaptions(int Code, WPARAM WParam, LPARAM LParam)
{
    if (Code == HCBT_ACTIVATE)
        for (int Index = 0; Index < Application->ComponentCount(); ++Index)
            if (auto* const Form = dynamic_cast<TForm*>(Application->Components(Index));
                Form && Form->Handle() == reinterpret_cast<HWND>(WParam))
                if (auto* const Yes = dynamic_cast<TButton*>(Form->FindComponent("Yes"))) {
                    Yes->SetCaption("&Ja");
                    Yes->Font()->SetStyle({fsBold});
                    Form->SetCaption("Frage");
                }
    return CallNextHookEx(nullptr, Code, WParam, LParam);
}

} // namespace

TEST_F(TMessageForms, ShowsCaptionsThatAreSetAsItComesUp)
{
    const HHOOK Hook = SetWindowsHookExA(WH_CBT, &RewriteCaptions, nullptr, GetCurrentThreadId());
    {
        TUser User;
        User.Then([] {
                EXPECT_EQ(WindowText(Button("Yes").Handle()), "&Ja");
                EXPECT_EQ(WindowText(Button("No").Handle()), "&No");
                EXPECT_EQ(WindowText(Shown().Handle()), "Frage");
                EXPECT_LT(Button("Yes").Left(), Button("No").Left());
            })
            .Press('J');
        EXPECT_EQ(MessageDlg("?", mtConfirmation, mbYesNo, 0), mrYes);
    }
    UnhookWindowsHookEx(Hook);
}

// A translated caption is set after the box was measured.
TEST_F(TMessageForms, ButtonsGrowWithTheirCaptions)
{
    for (const TBiDiMode Reading : {bdLeftToRight, bdRightToLeft}) {
        SCOPED_TRACE(Reading);
        Application->BiDiMode = Reading;
        TUser User;
        User.Then([] {
                TForm& Form = Shown();
                const TRect Yes = Button("Yes").BoundsRect();
                const TRect Box = Form.BoundsRect();
                Button("Yes").SetCaption("Ja");
                const TRect Now = Button("Yes").BoundsRect();
                EXPECT_TRUE(EqualRect(&Yes, &Now)) << "it fits";
                Button("No").SetCaption("Nein, und auch nicht später, gleichgültig warum");
                Button("Cancel").Font()->SetHeight(-40);
                ExpectNothingIsClipped(Form);
                EXPECT_EQ(Button("Yes").Width(), RectWidth(Yes));
                EXPECT_NEAR(2 * Form.Left() + Form.Width(), Box.left + Box.right, 1);
                const int Width = Form.Width();
                Button("No").SetCaption("Nein");
                EXPECT_EQ(Form.Width(), Width) << "nothing shrinks";
            })
            .Press(VK_ESCAPE);
        EXPECT_EQ(MessageDlg("?", mtConfirmation, mbYesNoCancel, 0), mrCancel);
    }
    TUser User;
    User.Then([] {
            Button("OK").SetCaption("Diese Schaltfläche ist breiter als die ganze Meldung");
            EXPECT_EQ(Shown().Left(), 33);
            ExpectNothingIsClipped(Shown());
        })
        .Press(VK_ESCAPE);
    ShowMessagePos("here", 33, 44);
}

TEST_F(TMessageForms, ControlCCopiesTheText)
{
    Application->SetTitle("Editor");
    BYTE Keys[256] = {};
    TUser User;
    User.Then([&] {
            Keys[VK_CONTROL] = 0x80;
            SetKeyboardState(Keys);
            SendMessageA(GetFocus(), WM_KEYDOWN, 'C', 1);
            Keys[VK_CONTROL] = 0;
            SetKeyboardState(Keys);
        })
        .Press(VK_RETURN);
    EXPECT_EQ(MessageDlg("Größe\n€", mtCustom, mbYesNo, 0), mrYes);
    ASSERT_TRUE(OpenClipboard(nullptr));
    const auto* const Wide = static_cast<const char16_t*>(GlobalLock(GetClipboardData(CF_UNICODETEXT)));
    const std::string Line = "---------------------------\r\n";
    EXPECT_EQ(Wide ? Utf16ToUtf8(Wide) : "",
              Line + "Editor\r\n" + Line + "Größe\n€\r\n" + Line + "Yes   No   \r\n" + Line);
    CloseClipboard();
}

TEST_F(TMessageForms, ShowsMessages)
{
    Application->SetTitle("Editor");
    const struct {
        const char* Name;
        std::function<void()> Show;
        const char* Text;
        int Left; // -1: in the middle
    } Cases[] = {
        {"plain", [] { ShowMessage("100 %s"); }, "100 %s", -1},
        {"formatted",
         [] {
             ShowMessageFmt("%s: %d", {"Zeile", 7});
         },
         "Zeile: 7", -1},
        {"placed", [] { ShowMessagePos("here", 33, 44); }, "here", 33},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        TUser User;
        User.Then([&] {
                TForm& Form = Shown();
                EXPECT_EQ(dynamic_cast<TMessageForm&>(Form).Message()->Caption(), Case.Text);
                EXPECT_EQ(WindowText(Form.Handle()), "Editor");
                TRect Place{};
                GetWindowRect(Form.Handle(), &Place);
                EXPECT_EQ(Place.left, Case.Left < 0 ? (Screen->Width() - RectWidth(Place)) / 2 : Case.Left);
            })
            .Press(VK_ESCAPE);
        Case.Show();
    }
    EXPECT_THROW(ShowMessageFmt("%d", {"text"}), EConvertError);
    EXPECT_EQ(Application->ComponentCount(), 0);
}

TEST_F(TMessageForms, InputQueryTakesTheTextOnlyWithOK)
{
    const struct {
        const char* Name;
        const char* Typed; // over the old text, which is selected
        WPARAM Key;
        const char* Value;
        bool Result;
    } Cases[] = {
        {"Enter takes it", "new", VK_RETURN, "new", true},
        {"nothing typed", "", VK_RETURN, "früher", true},
        {"Esc leaves it", "new", VK_ESCAPE, "früher", false},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        std::string Value = "früher";
        TUser User;
        User.Then([&] {
                ExpectNothingIsClipped(Shown());
                EXPECT_EQ(WindowText(Shown().Handle()), "Name");
                EXPECT_EQ(WindowText(GetFocus()), "früher");
                for (const char* Char = Case.Typed; *Char; ++Char)
                    PostMessageA(GetFocus(), WM_CHAR, static_cast<WPARAM>(*Char), 1);
            })
            .Press(Case.Key);
        EXPECT_EQ(
            InputQuery("Name", "Ein neuer Name, der noch nicht vergeben ist und kurz sein sollte:", Value),
            Case.Result);
        EXPECT_EQ(Value, Case.Value);
    }
    TUser User;
    User.Click("Cancel");
    EXPECT_EQ(InputBox("Name", "", "früher"), "früher");
}
