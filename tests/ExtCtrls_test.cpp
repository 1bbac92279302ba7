#include "framework/forms/ExtCtrls.h"

#include <gtest/gtest.h>

#include "framework/forms/Dialogs.h"
#include "framework/forms/StdCtrls.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/FormFile.h"
#include "framework/streaming/LoadedForm.h"
#include "tests/FormSamples.h"

namespace {

struct TExtCtrls : testing::TestWithParam<bool> {
    TApplicationScope Scope;
    TForm* Form = new TForm(Application);
    TEventLog Log;

    TExtCtrls() { Form->SetBounds(10, 10, 400, 300); }

    bool HasWindows() const { return GetParam(); }
    void ShowIfAsked()
    {
        if (!HasWindows())
            return;
        Form->Show();
        Application->ProcessMessages();
    }
    static void Drag(TWinControl& Window, TPoint From, TPoint To)
    {
        const auto At = [](TPoint Pos) { return MAKELPARAM(Pos.x, Pos.y); };
        SendMessageA(Window.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, At(From));
        SendMessageA(Window.Handle(), WM_MOUSEMOVE, MK_LBUTTON, At(To));
        SendMessageA(Window.Handle(), WM_LBUTTONUP, 0, At(To));
    }
};

std::string PublicName(const testing::TestParamInfo<bool>& Info)
{
    return Info.param ? "WithWindows" : "WithoutWindows";
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Both, TExtCtrls, testing::Bool(), PublicName);

// The bound label stayed behind, or was left on the form, when its edit moved,
// hid or was destroyed.
TEST_P(TExtCtrls, ALabelStaysWithItsEdit)
{
    auto* const Edit = Put<TLabeledEdit>(Form, "Edit", 50, 60, 100, 21);
    Edit->EditLabel()->SetAutoSize(false);
    Edit->EditLabel()->SetBounds(0, 0, 40, 13);
    ShowIfAsked();
    const struct {
        TLabelPosition Position;
        TPoint Place;
    } Cases[] = {
        {lpAbove, {50, 44}},
        {lpBelow, {50, 84}},
        {lpLeft, {7, 64}},
        {lpRight, {153, 64}},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Position);
        Edit->SetLabelPosition(Case.Position);
        EXPECT_EQ(Edit->EditLabel()->Left(), Case.Place.x);
        EXPECT_EQ(Edit->EditLabel()->Top(), Case.Place.y);
    }
    Edit->SetLeft(60);
    EXPECT_EQ(Edit->EditLabel()->Left(), 163);
    Edit->SetVisible(false);
    EXPECT_FALSE(Edit->EditLabel()->Visible());
    const int Before = Form->ControlCount();
    delete Edit;
    EXPECT_EQ(Form->ControlCount(), Before - 2);
}

TEST_P(TExtCtrls, SpinEditsStayInRange)
{
    auto* const Spin = Put<TSpinEdit>(Form, "Spin", 8, 8, 60, 22);
    ShowIfAsked();
    Spin->SetMinValue(1);
    Spin->SetMaxValue(10);
    Spin->SetValue(50);
    EXPECT_EQ(Spin->Value(), 10);
    Spin->SetText("3");
    Spin->OnChange = {&Log, &TEventLog::Notify};
    Spin->SetIncrement(4);
    Spin->Button()->OnUpClick(Spin->Button());
    EXPECT_EQ(Spin->Text(), "7");
    EXPECT_EQ(Log.Take(), TTexts{"Spin notified"});
    Spin->SetText("none");
    EXPECT_EQ(Spin->Value(), 1);
}

TEST_P(TExtCtrls, GridsKeepCellsAndSizes)
{
    auto* const Grid = Put<TStringGrid>(Form, "Grid", 8, 8, 300, 200);
    ShowIfAsked();
    Grid->SetCells(1, 1, "kept");
    Grid->SetCells(4, 4, "lost");
    Grid->SetColCount(3);
    Grid->SetColCount(5);
    EXPECT_EQ(Grid->Cells(1, 1), "kept");
    EXPECT_EQ(Grid->Cells(4, 4), "");
    Grid->SetColWidths(0, 100);
    EXPECT_EQ(Grid->CellRect(1, 0).left, 101);
    Grid->SetDefaultColWidth(50);
    EXPECT_EQ(Grid->CellRect(1, 0).left, 51);
    int Col = 0;
    int Row = 0;
    EXPECT_TRUE(Grid->MouseToCell(60, 30, Col, Row));
    EXPECT_EQ(Col, 1);
    EXPECT_EQ(Row, 1);
    Grid->SetCol(0);
    EXPECT_EQ(Grid->Col(), 1) << "fixed columns are not chosen";
    if (!HasWindows())
        return;
    SendMessageA(Grid->Handle(), WM_KEYDOWN, VK_RIGHT, 0);
    SendMessageA(Grid->Handle(), WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(Grid->Col(), 2);
    EXPECT_EQ(Grid->Row(), 2);
}

TEST_P(TExtCtrls, NotebooksShowOnePage)
{
    auto* const Book = Put<TTabbedNotebook>(Form, "Book", 8, 8, 200, 150);
    ShowIfAsked();
    Book->Pages()->Add("First");
    Book->Pages()->Add("Second");
    Book->SetActivePage("second");
    EXPECT_EQ(Book->PageIndex(), 1);
    EXPECT_FALSE(Book->Page(0)->Visible());
    EXPECT_TRUE(Book->Page(1)->Visible());
    Book->Pages()->Put(1, "Zweite");
    EXPECT_EQ(Book->ActivePage(), "Zweite");
    if (HasWindows()) {
        SendMessageA(Book->Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 8));
        EXPECT_EQ(Book->PageIndex(), 0);
        SendMessageA(Book->Handle(), WM_LBUTTONUP, 0, MAKELPARAM(20, 8));
    }
    Book->Pages()->Delete(0);
    EXPECT_EQ(Book->Pages()->Count(), 1);
    EXPECT_THROW(Book->SetActivePage("first"), EStringListError);
}

TEST_P(TExtCtrls, SplittersResizeTheirNeighbour)
{
    auto* const Panel = Put<TPanel>(Form, "Panel", 0, 0, 100, 100);
    Panel->SetAlign(alLeft);
    auto* const Splitter = Put<TSplitter>(Form, "Splitter", 100, 0, 4, 100);
    Splitter->OnMoved = {&Log, &TEventLog::Notify};
    ShowIfAsked();
    if (!HasWindows())
        return;
    ASSERT_EQ(Splitter->Left(), 100);
    Drag(*Form, {101, 50}, {151, 50});
    EXPECT_EQ(Panel->Width(), 150);
    EXPECT_EQ(Splitter->Left(), 150);
    EXPECT_EQ(Log.Take(), TTexts{"Splitter notified"});
    Splitter->SetAutoSnap(false);
    Drag(*Form, {151, 50}, {3, 50});
    EXPECT_EQ(Panel->Width(), Splitter->MinSize());
}

// A timer ran on after it was disabled or destroyed, or called an object that was gone.
TEST(Timers, RunWhileTheyAreEnabled)
{
    struct TCounter : TObject {
        int Count = 0;
        void Tick(TObject*) { ++Count; }
    } Counter;
    TApplicationScope Scope;
    const auto RunFor = [](DWORD Milliseconds) {
        const DWORD Start = GetTickCount();
        while (GetTickCount() - Start < Milliseconds) {
            Application->ProcessMessages();
            Sleep(1);
        }
    };
    auto Timer = std::make_unique<TTimer>(nullptr);
    Timer->SetInterval(10);
    Timer->SetOnTimer({&Counter, &TCounter::Tick});
    RunFor(200);
    EXPECT_GT(Counter.Count, 0);
    Timer->SetEnabled(false);
    const int Stopped = Counter.Count;
    RunFor(50);
    EXPECT_EQ(Counter.Count, Stopped);
    Timer->SetEnabled(true);
    Timer.reset();
    RunFor(50);
    EXPECT_EQ(Counter.Count, Stopped);
}

TEST(ApplicationEvents, ComeAndGoWithTheirComponent)
{
    TApplicationScope Scope;
    TEventLog Log;
    Application->OnHint = {&Log, &TEventLog::Click};
    auto Events = std::make_unique<TApplicationEvents>(nullptr);
    Events->OnHint = {&Log, &TEventLog::Notify};
    Events->OnActivate = {&Log, &TEventLog::Notify};
    Events->Loaded();
    EXPECT_TRUE(Application->OnHint == Events->OnHint);
    EXPECT_TRUE(Application->OnActivate == Events->OnActivate);
    Events.reset();
    EXPECT_TRUE(Application->OnHint == (TNotifyEvent{&Log, &TEventLog::Click}));
    EXPECT_FALSE(Application->OnActivate);
}

TEST(MaskEdits, CheckTheirText)
{
    const struct {
        const char* Name;
        const char* Mask;
        const char* Text;
        bool Valid;
    } Cases[] = {
        {"no mask", "", "anything", true},
        {"date", "!99/99/0000;1;_", "01/02/2003", true},
        {"blanks where they may be", "!99/99/0000;1;_", "  /__/2003", true},
        {"blank where a digit is needed", "!99/99/0000;1;_", "01/02/20_3", false},
        {"too long", "00;1;_", "123", false},
        {"too short", "00;1;_", "1", false},
        {"quoted digit", "\\0-A", "0-\xC3\xA9", true},
        {"semicolon as a literal", "0;0", "1;2", true},
    };
    TApplicationScope Scope;
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        TMaskEdit Edit(nullptr);
        Edit.SetEditMask(Case.Mask);
        Edit.SetText(Case.Text);
        EXPECT_EQ(Edit.IsValid(), Case.Valid);
    }
}

TEST(ExtCtrlsFile, IsReadAndWrittenWithoutLoss)
{
    constexpr const char* Source = R"(object Form1: TForm
  Left = 0
  Top = 0
  object Edit: TLabeledEdit
    Left = 8
    Top = 24
    Width = 121
    Height = 21
    EditLabel.Width = 44
    EditLabel.Height = 13
    EditLabel.Caption = '&Address'
    TabOrder = 0
    Text = 'street'
  end
  object Grid: TStringGrid
    Left = 8
    Top = 60
    Width = 320
    Height = 120
    ColCount = 2
    FixedCols = 0
    RowCount = 3
    TabOrder = 1
    ColWidths = (
      64
      100)
  end
  object Book: TNotebook
    Left = 8
    Top = 190
    Width = 150
    Height = 50
    PageIndex = 1
    TabOrder = 2
    object TPage
      Left = 0
      Top = 0
      Caption = 'First'
    end
    object TPage
      Left = 0
      Top = 0
      Caption = 'Second'
      object Inner: TLabel
        Left = 4
        Top = 4
        Width = 30
        Height = 13
        Caption = 'Inside'
      end
    end
  end
  object OpenDialog: TOpenDialog
    Filter = 'Texts|*.txt'
    Options = [ofHideReadOnly, ofFileMustExist]
    Title = 'Open'
    Left = 300
    Top = 8
  end
end
)";
    TApplicationScope Scope;
    RegisterStdCtrls();
    RegisterExtCtrls();
    RegisterDialogClasses();
    TLoadedForm Loaded(ReadFormText(Source), TUnknownClasses::Refuse,
                       [](const TFormObject&) { return std::make_unique<TForm>(nullptr); });
    const auto Find = [&](const char* Name) { return Loaded.Root().FindComponent(Name); };
    auto& Edit = dynamic_cast<TLabeledEdit&>(*Find("Edit"));
    EXPECT_EQ(Edit.EditLabel()->Caption(), "&Address");
    EXPECT_EQ(dynamic_cast<TStringGrid&>(*Find("Grid")).ColWidths(1), 100);
    auto& Book = dynamic_cast<TNotebook&>(*Find("Book"));
    ASSERT_EQ(Book.Pages()->Count(), 2);
    EXPECT_EQ(Book.ActivePage(), "Second");
    EXPECT_EQ(dynamic_cast<TLabel&>(*Find("Inner")).Parent(), Book.Page(1));
    EXPECT_EQ(WriteFormText(Loaded.Save()), Source);
    Edit.EditLabel()->SetCaption("A&dresse");
    EXPECT_NE(WriteFormText(Loaded.Save()).find("EditLabel.Caption = 'A&dresse'"), std::string::npos);
}
