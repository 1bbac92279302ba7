#include "framework/forms/StdCtrls.h"

#include <gtest/gtest.h>

#include "framework/rtl/SysUtils.h"
#include "framework/streaming/FormFile.h"
#include "framework/streaming/LoadedForm.h"
#include "tests/FormSamples.h"

namespace {

// Every test runs with windows and without: what a control holds must not
// depend on that.
struct TStdCtrls : testing::TestWithParam<bool> {
    TApplicationScope Scope;
    TForm* Form = new TForm(Application);
    TEventLog Log;

    TStdCtrls() { Form->SetBounds(10, 10, 400, 300); }

    bool HasWindows() const { return GetParam(); }
    void ShowIfAsked()
    {
        if (!HasWindows())
            return;
        Form->Show();
        Application->ProcessMessages();
    }
    // The text that the system shows; without a window the control's own.
    std::string Shown(TWinControl& Control) const
    {
        if (!HasWindows())
            return Control.Text();
        char Buffer[256] = "";
        SendMessageA(Control.Handle(), WM_GETTEXT, sizeof Buffer, reinterpret_cast<LPARAM>(Buffer));
        return Buffer;
    }
    static void ClickAt(TWinControl& Control, int X, int Y)
    {
        const LPARAM At = MAKELPARAM(X, Y);
        SendMessageA(Control.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, At);
        SendMessageA(Control.Handle(), WM_LBUTTONUP, 0, At);
    }
};

TTexts LinesOf(const TStrings& List)
{
    TTexts Result;
    for (int I = 0; I < List.Count(); ++I)
        Result.push_back(List[I]);
    return Result;
}

TTexts ItemsOfWindow(TWinControl& Control, UINT CountMessage, UINT TextMessage)
{
    TTexts Result;
    const LRESULT Count = SendMessageA(Control.Handle(), CountMessage, 0, 0);
    for (LRESULT I = 0; I < Count; ++I) {
        char Buffer[256] = "";
        SendMessageA(Control.Handle(), TextMessage, static_cast<WPARAM>(I), reinterpret_cast<LPARAM>(Buffer));
        Result.emplace_back(Buffer);
    }
    return Result;
}

std::string PublicName(const testing::TestParamInfo<bool>& Info)
{
    return Info.param ? "WithWindows" : "WithoutWindows";
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Both, TStdCtrls, testing::Bool(), PublicName);

// A memo whose lines were taken from its window lost or doubled them when only one
// of them was changed, or when a long one was wrapped.
TEST_P(TStdCtrls, MemoLinesAreWhatLineBreaksSeparate)
{
    auto* const Memo = Put<TMemo>(Form, "Memo", 8, 8, 60, 200);
    ShowIfAsked();
    const std::string Long(60, 'x');
    Memo->Lines()->SetText("one\r\n" + Long + "\nthree\n");
    EXPECT_EQ(LinesOf(*Memo->Lines()), (TTexts{"one", Long, "three"}));
    Memo->Lines()->Put(0, "\xC3\xBC"
                          "ber");
    EXPECT_EQ(Shown(*Memo), "\xC3\xBC"
                            "ber\r\n" +
                                Long + "\r\nthree");
    Memo->SetText("a\r\n\r\nb\r\n");
    EXPECT_EQ(LinesOf(*Memo->Lines()), (TTexts{"a", "", "b", ""}));
    Memo->Lines()->Delete(1);
    Memo->Lines()->Add("c");
    EXPECT_EQ(Shown(*Memo), "a\r\nb\r\n\r\nc");
    if (HasWindows()) {
        SendMessageA(Memo->Handle(), EM_SETSEL, 0, 1);
        SendMessageA(Memo->Handle(), EM_REPLACESEL, 0, reinterpret_cast<LPARAM>("typed"));
        EXPECT_EQ(Memo->Lines()->Get(0), "typed");
    }
    EXPECT_THROW(Memo->Lines()->Get(4), EStringListError);
}

TEST_P(TStdCtrls, AnEditTellsOnceOfEachChange)
{
    auto* const Edit = Put<TEdit>(Form, "Edit", 8, 8, 100, 21);
    Edit->SetText("start");
    Edit->OnChange = {&Log, &TEventLog::Notify};
    ShowIfAsked();
    EXPECT_EQ(Log.Take(), TTexts{}) << "making the window is no change";
    Edit->SetText("other");
    EXPECT_EQ(Log.Take(), TTexts{"Edit notified"});
    Edit->SetPasswordChar(u'*');
    EXPECT_EQ(Log.Take(), TTexts{}) << "neither is making it anew";
    EXPECT_EQ(Edit->Text(), "other");
    if (HasWindows()) {
        Edit->SetSelStart(5);
        SendMessageA(Edit->Handle(), WM_CHAR, 'x', 0);
        EXPECT_EQ(Log.Take(), TTexts{"Edit notified"});
        EXPECT_EQ(Edit->Text().size(), 6u);
    }
}

// The state of a box was read off its window only, and a group could have two
// checked buttons.
TEST_P(TStdCtrls, BoxesKeepTheirState)
{
    auto* const Check = Put<TCheckBox>(Form, "Check", 8, 8, 90, 17);
    auto* const First = Put<TRadioButton>(Form, "First", 8, 30, 90, 17);
    auto* const Second = Put<TRadioButton>(Form, "Second", 8, 50, 90, 17);
    Check->SetAllowGrayed(true);
    Check->SetState(cbGrayed);
    First->SetChecked(true);
    ShowIfAsked();
    EXPECT_EQ(Check->State(), cbGrayed);
    for (TButtonControl* const Button : std::initializer_list<TButtonControl*>{Check, First, Second})
        Button->OnClick = {&Log, &TEventLog::Click};
    if (HasWindows()) {
        EXPECT_EQ(SendMessageA(Check->Handle(), BM_GETCHECK, 0, 0), BST_INDETERMINATE);
        ClickAt(*Check, 5, 5);
        ClickAt(*Second, 5, 5);
    } else {
        Check->SetState(cbChecked);
        Second->SetChecked(true);
    }
    EXPECT_EQ(Log.Take(), (TTexts{"Check click", "Second click"}));
    EXPECT_TRUE(Check->Checked());
    EXPECT_FALSE(First->Checked());
    EXPECT_TRUE(Second->Checked());
    Second->SetAlignment(taLeftJustify);
    if (HasWindows()) {
        EXPECT_EQ(SendMessageA(Second->Handle(), BM_GETCHECK, 0, 0), BST_CHECKED);
    }
}

TEST_P(TStdCtrls, AButtonSetsTheResultOfItsForm)
{
    auto* const Button = Put<TButton>(Form, "Button", 8, 8, 75, 25);
    Button->SetModalResult(mrRetry);
    Button->OnClick = {&Log, &TEventLog::Click};
    ShowIfAsked();
    if (HasWindows())
        ClickAt(*Button, 5, 5);
    else
        Button->Click();
    EXPECT_EQ(Log.Take(), TTexts{"Button click"});
    EXPECT_EQ(Form->ModalResult(), mrRetry);
    if (!HasWindows())
        return;
    Button->SetCancel(true);
    Form->SetModalResult(mrNone);
    EXPECT_EQ(Form->Perform(CM_DIALOGKEY, VK_ESCAPE, 0), 1);
    EXPECT_EQ(Form->ModalResult(), mrRetry);
    Button->SetCaption("&Again");
    EXPECT_EQ(Form->Perform(CM_DIALOGCHAR, 'a', 0), 1);
    EXPECT_EQ(Log.Take(), (TTexts{"Button click", "Button click"}));
}

// One changed line must reach the window alone: the choice and the other lines
// stay.
TEST_P(TStdCtrls, ListsShowAChangedLineAtOnce)
{
    auto* const List = Put<TListBox>(Form, "List", 8, 8, 100, 80);
    auto* const Combo = Put<TComboBox>(Form, "Combo", 120, 8, 100, 21);
    auto* const DropList = Put<TComboBox>(Form, "DropList", 120, 40, 100, 21);
    DropList->SetStyle(csDropDownList);
    for (TStrings* const Items : {List->Items(), Combo->Items(), DropList->Items()})
        Items->SetText("one\ntwo\nthree");
    List->SetItemIndex(1);
    Combo->SetText("own text");
    DropList->SetItemIndex(1);
    ShowIfAsked();
    EXPECT_EQ(List->ItemIndex(), 1);
    EXPECT_EQ(DropList->Text(), "two");
    const TTexts Wanted{"one", "zwei", "three"};
    for (TStrings* const Items : {List->Items(), Combo->Items(), DropList->Items()}) {
        Items->Put(1, "zwei");
        EXPECT_EQ(LinesOf(*Items), Wanted);
    }
    EXPECT_EQ(List->ItemIndex(), 1);
    EXPECT_EQ(Combo->Text(), "own text");
    EXPECT_EQ(DropList->ItemIndex(), 1);
    EXPECT_EQ(Shown(*DropList), "zwei");
    if (!HasWindows())
        return;
    EXPECT_EQ(ItemsOfWindow(*List, LB_GETCOUNT, LB_GETTEXT), Wanted);
    EXPECT_EQ(ItemsOfWindow(*Combo, CB_GETCOUNT, CB_GETLBTEXT), Wanted);
    EXPECT_EQ(ItemsOfWindow(*DropList, CB_GETCOUNT, CB_GETLBTEXT), Wanted);
}

TEST_P(TStdCtrls, SelectionSurvivesANewWindow)
{
    auto* const List = Put<TListBox>(Form, "List", 8, 8, 100, 80);
    List->Items()->SetText("a\nb\nc\nd");
    List->SetMultiSelect(true);
    ShowIfAsked();
    List->SetSelected(0, true);
    List->SetSelected(2, true);
    List->SetColumns(2);
    EXPECT_EQ(List->SelCount(), 2);
    List->Items()->Delete(1);
    EXPECT_TRUE(List->Selected(0));
    EXPECT_TRUE(List->Selected(1));
    EXPECT_FALSE(List->Selected(2));
}

// New lines go where they belong, but a translated one stays where it is.
TEST_P(TStdCtrls, ASortedListKeepsChangedLinesInPlace)
{
    auto* const List = Put<TListBox>(Form, "List", 8, 8, 100, 80);
    ShowIfAsked();
    List->Items()->SetText("pear\nfig");
    List->SetSorted(true);
    EXPECT_EQ(List->Items()->Add("lemon"), 1);
    List->Items()->Put(0, "Zitrone");
    EXPECT_EQ(LinesOf(*List->Items()), (TTexts{"Zitrone", "lemon", "pear"}));
    if (HasWindows()) {
        EXPECT_EQ(ItemsOfWindow(*List, LB_GETCOUNT, LB_GETTEXT), LinesOf(*List->Items()));
    }
}

TEST_P(TStdCtrls, ChecksMoveWithTheirItems)
{
    auto* const List = Put<TCheckListBox>(Form, "List", 8, 8, 100, 80);
    List->Items()->SetText("a\nb\nc");
    List->SetChecked(1, true);
    ShowIfAsked();
    List->Items()->Insert(0, "new");
    EXPECT_TRUE(List->Checked(2));
    List->Items()->Delete(1);
    EXPECT_TRUE(List->Checked(1));
    List->OnClickCheck = {&Log, &TEventLog::Notify};
    if (!HasWindows())
        return;
    const TRect Area = List->ItemRect(2);
    ClickAt(*List, 5, static_cast<int>(Area.top) + 3);
    EXPECT_TRUE(List->Checked(2));
    EXPECT_EQ(Log.Take(), TTexts{"List notified"});
}

TEST_P(TStdCtrls, RadioGroupsFollowTheirItems)
{
    auto* const Group = Put<TRadioGroup>(Form, "Group", 8, 8, 150, 90);
    Group->Items()->SetText("one\ntwo\nthree");
    Group->SetItemIndex(1);
    Group->OnClick = {&Log, &TEventLog::Click};
    ShowIfAsked();
    Group->Items()->Put(1, "zwei");
    EXPECT_EQ(Group->Buttons(1)->Caption(), "zwei");
    EXPECT_TRUE(Group->Buttons(1)->Checked());
    if (HasWindows())
        ClickAt(*Group->Buttons(2), 5, 5);
    else
        Group->Buttons(2)->SetChecked(true);
    EXPECT_EQ(Group->ItemIndex(), 2);
    EXPECT_EQ(Log.Take(), TTexts{"Group click"});
    Group->Items()->Delete(2);
    EXPECT_EQ(Group->ItemIndex(), 1);
}

// The buttons of a group were all down, or none although one must be.
TEST_P(TStdCtrls, SpeedButtonsStayDownByTurns)
{
    auto* const First = Put<TSpeedButton>(Form, "First", 0, 0, 23, 22);
    auto* const Second = Put<TSpeedButton>(Form, "Second", 23, 0, 23, 22);
    First->SetGroupIndex(1);
    Second->SetGroupIndex(1);
    ShowIfAsked();
    First->SetDown(true);
    Second->SetDown(true);
    EXPECT_FALSE(First->Down());
    Second->SetDown(false);
    EXPECT_TRUE(Second->Down()) << "one stays down";
    Second->SetAllowAllUp(true);
    EXPECT_TRUE(First->AllowAllUp());
    Second->SetDown(false);
    EXPECT_FALSE(Second->Down());
}

TEST_P(TStdCtrls, ScrollBarsKeepTheirPositionInRange)
{
    auto* const Bar = Put<TScrollBar>(Form, "Bar", 8, 8, 100, 17);
    Bar->OnChange = {&Log, &TEventLog::Notify};
    ShowIfAsked();
    Bar->SetParams(20, 10, 30);
    Bar->SetMax(15);
    EXPECT_EQ(Bar->Position(), 15);
    EXPECT_EQ(Log.Take(), (TTexts{"Bar notified", "Bar notified"}));
    EXPECT_THROW(Bar->SetMax(5), EInvalidOperation);
    Bar->SetSmallChange(2);
    Bar->Perform(CN_HSCROLL, SB_LINEUP, 0);
    Bar->Perform(CN_HSCROLL, SB_PAGEDOWN, 0);
    EXPECT_EQ(Bar->Position(), 14);
    if (HasWindows()) {
        EXPECT_EQ(GetScrollPos(Bar->Handle(), SB_CTL), 14);
    }
}

// Without a window nothing is measured; with one a label fits its text and keeps
// the side that it is aligned to.
TEST_P(TStdCtrls, LabelsFitTheirTextOnlyWhereItIsShown)
{
    auto* const Left = Put<TLabel>(Form, "Left", 200, 8, 40, 13);
    auto* const Right = Put<TLabel>(Form, "Right", 200, 30, 40, 13);
    auto* const Fixed = Put<TLabel>(Form, "Fixed", 200, 50, 40, 13);
    Right->SetAlignment(taRightJustify);
    Fixed->SetAutoSize(false);
    ShowIfAsked();
    for (TLabel* const Label : {Left, Right, Fixed})
        Label->SetCaption("a much longer caption than before");
    EXPECT_EQ(Fixed->Width(), 40);
    EXPECT_EQ(Left->Left(), 200);
    if (HasWindows()) {
        EXPECT_GT(Left->Width(), 100);
        EXPECT_EQ(Right->Left() + Right->Width(), 240);
    } else {
        EXPECT_EQ(Left->Width(), 40);
    }
}

// A form file names properties in any order, also an item before there are items.
TEST(StdCtrlsFile, IsReadAndWrittenWithoutLoss)
{
    constexpr const char* Source = R"(object Form1: TForm
  Left = 0
  Top = 0
  object Combo: TComboBox
    Left = 8
    Top = 8
    Width = 100
    Height = 21
    Style = csDropDownList
    ItemIndex = 1
    TabOrder = 0
    Text = 'two'
    Items.Strings = (
      'one'
      'two')
  end
  object Group: TRadioGroup
    Left = 8
    Top = 40
    Width = 100
    Height = 60
    ItemIndex = 2
    Items.Strings = (
      'a'
      'b'
      'c')
    TabOrder = 1
  end
  object Label1: TLabel
    Left = 8
    Top = 120
    Width = 7
    Height = 99
    Caption = 'A long text in a small label'
    FocusControl = Combo
  end
  object Bar: TScrollBar
    Left = 8
    Top = 150
    Width = 17
    Height = 100
    Kind = sbVertical
    Max = 500
    Min = 300
    Position = 400
    TabOrder = 2
  end
  object Ok: TBitBtn
    Left = 8
    Top = 180
    Width = 75
    Height = 25
    Kind = bkOK
    TabOrder = 3
  end
end
)";
    TApplicationScope Scope;
    RegisterStdCtrls();
    TLoadedForm Loaded(ReadFormText(Source), TUnknownClasses::Refuse,
                       [](const TFormObject&) { return std::make_unique<TForm>(nullptr); });
    const auto Find = [&](const char* Name) { return Loaded.Root().FindComponent(Name); };
    const auto& Combo = dynamic_cast<TComboBox&>(*Find("Combo"));
    EXPECT_EQ(Combo.ItemIndex(), 1);
    EXPECT_EQ(Combo.Text(), "two");
    EXPECT_EQ(dynamic_cast<TRadioGroup&>(*Find("Group")).ItemIndex(), 2);
    EXPECT_EQ(dynamic_cast<TLabel&>(*Find("Label1")).FocusControl(), &Combo);
    EXPECT_EQ(dynamic_cast<TScrollBar&>(*Find("Bar")).Position(), 400);
    const auto& Ok = dynamic_cast<TBitBtn&>(*Find("Ok"));
    EXPECT_EQ(Ok.Caption(), "OK");
    EXPECT_EQ(Ok.ModalResult(), mrOk);
    EXPECT_TRUE(Ok.Default());
    EXPECT_EQ(WriteFormText(Loaded.Save()), Source);
}
