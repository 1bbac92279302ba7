#include "framework/forms/Forms.h"

#include <gtest/gtest.h>

#include "framework/rtl/SysUtils.h"
#include "tests/FormSamples.h"

namespace {

struct TForms : testing::Test {
    TApplicationScope Scope;
    TEventLog Log;
};

// A form with a form file of its own and handlers that the file names.
class TOrderForm : public TForm {
    OBX_CLASS(TForm)
public:
    using TForm::TForm;
    int Shown = 0;
    std::string Created;
    std::string* Destroyed = nullptr;

    void FormCreate(TObject*) { Created = Caption() + "/" + std::to_string(ComponentCount()); }
    void FormShow(TObject*) { ++Shown; }
    void FormDestroy(TObject*)
    {
        if (Destroyed)
            *Destroyed += Created;
    }
};

constexpr const char* OrderForm = R"(object OrderForm: TOrderForm
  Left = 40
  Top = 50
  ActiveControl = Edit2
  BorderStyle = bsDialog
  Caption = 'Order'
  ClientHeight = 123
  ClientWidth = 234
  Color = clBtnFace
  OldCreateOrder = False
  OnCreate = FormCreate
  OnDestroy = FormDestroy
  OnShow = FormShow
  PixelsPerInch = 96
  TextHeight = 13
  object Edit1: TSampleEdit
    Left = 8
    Top = 8
    Width = 100
    Height = 21
  end
  object Box1: TSampleBox
    Left = 8
    Top = 40
    Width = 218
    Height = 70
    Margins.Left = 9
    object Edit2: TSampleEdit
      Left = 4
      Top = 4
      Width = 90
      Height = 21
    end
  end
end
)";

const TMetaClass& TOrderForm::MetaClass()
{
    static const TMetaClass Class("TOrderForm", &inherited::MetaClass(), CreateComponent<TOrderForm>, {},
                                  {
                                      Published<&TOrderForm::FormCreate>("FormCreate"),
                                      Published<&TOrderForm::FormShow>("FormShow"),
                                      Published<&TOrderForm::FormDestroy>("FormDestroy"),
                                  });
    return Class;
}

// Answers a modal form from inside its message loop.
class TAnswers : public TObject {
public:
    TForm* Form = nullptr;
    std::vector<std::string> Lines;
    int Refusals = 0;
    TCloseAction CloseAction = caHide;

    void Start(TObject*) { PostMessageA(Form->Handle(), WM_CLOSE, 0, 0); }
    void Query(TObject*, bool& CanClose)
    {
        Lines.emplace_back("query");
        CanClose = Refusals-- <= 0;
        if (!CanClose && Form->IsModal())
            PostMessageA(Form->Handle(), WM_CLOSE, 0, 0);
    }
    void Closing(TObject*, TCloseAction& Action)
    {
        Lines.emplace_back("close");
        Action = CloseAction;
    }
    void Caught(TObject*, const Exception& Error) { Lines.push_back(Error.Message()); }
    void Raise(TObject*) { throw EConvertError("no number"); }
    void Decide(TObject*, bool& Done)
    {
        Form->SetModalResult(mrYes);
        Done = false;
    }
    void Remove(TObject*) { Form->Release(); }
};

} // namespace

TEST_F(TForms, ReadsItsFormFile)
{
    RegisterClass(TSampleEdit::MetaClass());
    RegisterClass(TSampleBox::MetaClass());
    RegisterFormResource("TOrderForm", OrderForm);
    std::string Destroyed;
    {
        TOrderForm* Form = nullptr;
        Application->CreateForm(Form);
        Form->Destroyed = &Destroyed;
        EXPECT_EQ(Application->MainForm(), Form);
        EXPECT_EQ(Form->Created, "Order/3");
        EXPECT_EQ(Form->ClientWidth(), 234);
        EXPECT_EQ(Form->ClientHeight(), 123);
        Form->Show();
        Application->ProcessMessages();
        EXPECT_EQ(Form->Shown, 1);
        EXPECT_EQ(Form->ClientWidth(), 234);
        EXPECT_EQ(Form->ClientHeight(), 123);
        EXPECT_EQ(Screen->ActiveForm(), Form);
        ASSERT_NE(Screen->ActiveControl(), nullptr);
        EXPECT_EQ(Screen->ActiveControl()->Name(), "Edit2");
        TRect Inside{};
        GetClientRect(Form->Handle(), &Inside);
        EXPECT_EQ(Inside.right, 234);
        Form->Free();
    }
    EXPECT_EQ(Destroyed, "Order/3");
}

// Switching to a language that is read from the right makes all windows anew.
TEST_F(TForms, KeyboardStaysWhereItIsWhenWindowsAreMadeAnew)
{
    TForm Main(nullptr);
    auto* const Box = new TSampleBox(&Main);
    Box->SetParent(&Main);
    TSampleEdit* Edits[2];
    for (TSampleEdit*& Edit : Edits) {
        Edit = new TSampleEdit(&Main);
        Edit->SetParent(Box);
    }
    Main.Show();
    Main.SetActiveControl(Edits[1]);
    ASSERT_EQ(GetFocus(), Edits[1]->Handle());
    Main.SetBiDiMode(bdRightToLeft);
    EXPECT_EQ(Main.ActiveControl(), Edits[1]);
    EXPECT_EQ(GetFocus(), Edits[1]->Handle());
}

TEST_F(TForms, ApplicationFreesItsForms)
{
    RegisterFormResource("TOrderForm", OrderForm);
    RegisterClass(TSampleEdit::MetaClass());
    RegisterClass(TSampleBox::MetaClass());
    std::string Destroyed;
    FinishApplication();
    StartApplication();
    TOrderForm* Form = nullptr;
    Application->CreateForm(Form);
    Form->Destroyed = &Destroyed;
    Form->Show();
    const HWND Window = Form->Handle();
    FinishApplication();
    EXPECT_EQ(Destroyed, "Order/3");
    EXPECT_FALSE(IsWindow(Window));
    StartApplication();
}

TEST_F(TForms, ModalFormDisablesTheOthers)
{
    TForm Main(nullptr);
    TForm Dialog(nullptr);
    TAnswers Answers;
    Answers.Form = &Dialog;
    Main.Show();
    struct : TObject {
        HWND Other;
        bool WasEnabled = true;
        void Look(TObject*) { WasEnabled = IsWindowEnabled(Other); }
    } Watch;
    Watch.Other = Main.Handle();
    Dialog.OnShow = {&Watch, &decltype(Watch)::Look};
    Dialog.OnActivate = {&Answers, &TAnswers::Start};
    Dialog.OnCloseQuery = {&Answers, &TAnswers::Query};
    Dialog.OnClose = {&Answers, &TAnswers::Closing};
    Answers.Refusals = 1;
    EXPECT_EQ(Dialog.ShowModal(), mrCancel);
    EXPECT_EQ(Answers.Lines, (TTexts{"query", "query", "close"}));
    EXPECT_FALSE(Watch.WasEnabled);
    EXPECT_TRUE(IsWindowEnabled(Main.Handle()));
    EXPECT_FALSE(Dialog.Showing());
    EXPECT_FALSE(Dialog.IsModal());
    EXPECT_EQ(GetActiveWindow(), Main.Handle());
    EXPECT_THROW(Main.ShowModal(), EInvalidOperation);
    Dialog.OnActivate.Clear();
    Application->ProcessMessages();
    Answers.Refusals = 0;
    Application->OnIdle = {&Answers, &TAnswers::Decide};
    EXPECT_EQ(Dialog.ShowModal(), mrYes);
}

TEST_F(TForms, CloseActionsDecide)
{
    const struct {
        const char* Name;
        TCloseAction Action;
        int Refusals;
        bool Visible;
        bool Exists;
    } Cases[] = {
        {"refused", caHide, 1, true, true},
        {"none", caNone, 0, true, true},
        {"hide", caHide, 0, false, true},
        {"free", caFree, 0, false, false},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        auto* const Form = new TForm(Application);
        TAnswers Answers;
        Answers.Form = Form;
        Answers.CloseAction = Case.Action;
        Answers.Refusals = Case.Refusals;
        Form->OnCloseQuery = {&Answers, &TAnswers::Query};
        Form->OnClose = {&Answers, &TAnswers::Closing};
        Form->Show();
        const HWND Window = Form->Handle();
        Form->Close();
        Form->OnCloseQuery.Clear();
        Application->ProcessMessages();
        EXPECT_EQ(IsWindow(Window) != 0, Case.Exists);
        EXPECT_EQ(Application->ComponentCount(), Case.Exists ? 1 : 0);
        if (Case.Exists) {
            EXPECT_EQ(Form->Showing(), Case.Visible);
            Form->Free();
        }
    }
}

// A form destroyed in a click of its own control was used afterwards.
TEST_F(TForms, ReleaseWaitsForTheEventToEnd)
{
    auto* const Form = new TForm(Application);
    auto* const Box = Put<TSampleBox>(Form, "Box");
    TAnswers Answers;
    Answers.Form = Form;
    Box->OnClick = {&Answers, &TAnswers::Remove};
    Form->Show();
    SendMessageA(Box->Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 1));
    SendMessageA(Box->Handle(), WM_LBUTTONUP, 0, MAKELPARAM(1, 1));
    EXPECT_EQ(Application->ComponentCount(), 1);
    Application->ProcessMessages();
    EXPECT_EQ(Application->ComponentCount(), 0);
    EXPECT_EQ(Screen->CustomFormCount(), 0);
    EXPECT_EQ(Screen->ActiveForm(), nullptr);
}

TEST_F(TForms, ExceptionsEndInTheHandler)
{
    TForm Form(nullptr);
    auto* const Box = Put<TSampleBox>(&Form, "Box");
    TAnswers Answers;
    Application->OnException = {&Answers, &TAnswers::Caught};
    Box->OnClick = {&Answers, &TAnswers::Raise};
    Form.Show();
    SendMessageA(Box->Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 1));
    SendMessageA(Box->Handle(), WM_LBUTTONUP, 0, MAKELPARAM(1, 1));
    EXPECT_EQ(Answers.Lines, (TTexts{"no number"}));
}

TEST_F(TForms, ActivationFollowsTheWindows)
{
    TForm First(nullptr);
    TForm Second(nullptr);
    First.SetName("First");
    Second.SetName("Second");
    for (TForm* const Form : {&First, &Second}) {
        Form->OnActivate = {&Log, &TEventLog::Enter};
        Form->OnDeactivate = {&Log, &TEventLog::Exit};
    }
    First.Show();
    Second.Show();
    EXPECT_EQ(Screen->ActiveForm(), &Second);
    First.SetFocus();
    EXPECT_EQ(Screen->ActiveForm(), &First);
    EXPECT_EQ(Log.Take(),
              (TTexts{"First enter", "First exit", "Second enter", "Second exit", "First enter"}));
    First.Hide();
    EXPECT_EQ(Screen->ActiveForm(), &Second);
    EXPECT_FALSE(IsWindowVisible(First.Handle()));
}

TEST_F(TForms, SystemMenuFollowsTheBorder)
{
    TForm Form(nullptr);
    Form.Show();
    EXPECT_NE(GetMenuState(GetSystemMenu(Form.Handle(), FALSE), SC_SIZE, MF_BYCOMMAND), 0xFFFFFFFFu);
    Form.SetBorderStyle(bsDialog);
    EXPECT_TRUE(IsWindowVisible(Form.Handle()));
    EXPECT_EQ(GetMenuState(GetSystemMenu(Form.Handle(), FALSE), SC_SIZE, MF_BYCOMMAND), 0xFFFFFFFFu);
    EXPECT_NE(GetMenuState(GetSystemMenu(Form.Handle(), FALSE), SC_CLOSE, MF_BYCOMMAND), 0xFFFFFFFFu);
}

TEST_F(TForms, FrameHoldsDocuments)
{
    TForm* Frame = nullptr;
    Application->CreateForm(Frame);
    Frame->SetFormStyle(fsMDIForm);
    Frame->Show();
    ASSERT_NE(Frame->ClientHandle(), nullptr);
    EXPECT_EQ(Frame->MDIChildCount(), 0);
    TForm* Children[2] = {};
    for (TForm*& Child : Children) {
        Child = new TForm(Application);
        Child->SetCaption("Document");
        Child->SetFormStyle(fsMDIChild);
        Application->ProcessMessages();
        EXPECT_EQ(GetParent(Child->Handle()), Frame->ClientHandle());
        EXPECT_TRUE(IsWindowVisible(Child->Handle()));
        EXPECT_EQ(Frame->ActiveMDIChild(), Child);
    }
    EXPECT_EQ(Frame->MDIChildCount(), 2);
    EXPECT_EQ(Frame->MDIChildren(0), Children[0]);
    Frame->Next();
    EXPECT_EQ(Frame->ActiveMDIChild(), Children[0]);
    Frame->Cascade();
    Frame->Tile();
    EXPECT_NE(Children[0]->BoundsRect().top, Children[1]->BoundsRect().top);
    // Reading from the right makes the frame's window anew.
    Frame->SetBiDiMode(bdRightToLeft);
    Application->ProcessMessages();
    for (TForm* const Child : Children) {
        EXPECT_EQ(GetParent(Child->Handle()), Frame->ClientHandle());
        EXPECT_TRUE(IsWindowVisible(Child->Handle()));
    }
    Frame->SetBiDiMode(bdLeftToRight);
    Application->ProcessMessages();
    auto* const Bar = Put<TSampleBox>(Frame, "Bar", 0, 0, 10, 40);
    Bar->SetAlign(alTop);
    TRect Place{};
    GetWindowRect(Frame->ClientHandle(), &Place);
    EXPECT_EQ(Frame->ScreenToClient({Place.left, Place.top}).y, 40);
    Children[0]->Free();
    EXPECT_EQ(Frame->MDIChildCount(), 1);
    EXPECT_EQ(Frame->ActiveMDIChild(), Children[1]);
    EXPECT_THROW(Children[1]->Hide(), EInvalidOperation);
}

TEST_F(TForms, RunsUntilTheMainFormIsClosed)
{
    TForm* Form = nullptr;
    Application->CreateForm(Form);
    TAnswers Answers;
    Answers.Form = Form;
    Form->OnShow = {&Answers, &TAnswers::Start};
    Application->Run();
    EXPECT_TRUE(Application->Terminated());
}

TEST_F(TForms, CursorOfTheScreenIsPutBack)
{
    {
        const TCursorGuard Guard(crHourGlass);
        EXPECT_EQ(Screen->Cursor(), crHourGlass);
        EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_WAIT));
    }
    EXPECT_EQ(Screen->Cursor(), crDefault);
    EXPECT_GT(Screen->Fonts()->Count(), 0);
}
