#include "framework/forms/Controls.h"

#include <gtest/gtest.h>

#include "framework/rtl/SysUtils.h"
#include "tests/FormSamples.h"

namespace {

struct TControls : testing::Test {
    TApplicationScope Scope;
    TForm* Form = new TForm(Application);
    TEventLog Log;

    TControls() { Form->SetBounds(10, 10, 400, 300); }

    void Show()
    {
        Form->Show();
        Application->ProcessMessages();
    }
};

TTexts BoundsOf(const TControl& Control)
{
    return {std::to_string(Control.Left()), std::to_string(Control.Top()), std::to_string(Control.Width()),
            std::to_string(Control.Height())};
}

TTexts Sides(int Left, int Top, int Width, int Height)
{
    return {std::to_string(Left), std::to_string(Top), std::to_string(Width), std::to_string(Height)};
}

} // namespace

// What a control shows was lost when its window was made, unmade or made anew.
TEST_F(TControls, StateSurvivesItsWindow)
{
    auto* const Edit = Put<TSampleEdit>(Form, "Edit", 5, 6, 70, 21);
    Edit->SetText("Gr\xC3\xBC\xC3\x9F");
    Edit->SetEnabled(false);
    Show();
    ASSERT_TRUE(Edit->HandleAllocated());
    EXPECT_EQ(Edit->Text(), "Gr\xC3\xBC\xC3\x9F");
    EXPECT_FALSE(IsWindowEnabled(Edit->Handle()));
    EXPECT_TRUE(IsWindowVisible(Edit->Handle()));
    SetWindowTextA(Edit->Handle(), "changed");
    const HWND Old = Edit->Handle();
    Edit->RecreateWnd();
    EXPECT_NE(Edit->Handle(), Old);
    EXPECT_FALSE(IsWindow(Old));
    EXPECT_EQ(Edit->Text(), "changed");
    EXPECT_EQ(BoundsOf(*Edit), Sides(5, 6, 70, 21));
    Edit->SetParent(nullptr);
    EXPECT_FALSE(Edit->HandleAllocated());
    EXPECT_EQ(Edit->Text(), "changed");
    EXPECT_THROW(Edit->Handle(), EInvalidOperation);
}

TEST_F(TControls, CaptionFollowsTheNameUntilItIsSet)
{
    auto* const Box = Put<TSampleBox>(Form, "Box");
    EXPECT_EQ(Box->Caption(), "Box");
    Box->SetName("Other");
    EXPECT_EQ(Box->Caption(), "Other");
    Box->SetCaption("Text");
    Box->SetName("Third");
    EXPECT_EQ(Box->Caption(), "Text");
}

TEST_F(TControls, FontAndColourComeFromTheParent)
{
    auto* const Box = Put<TSampleBox>(Form, "Box");
    auto* const Inner = Put<TSampleGraphic>(Box, "Inner");
    Form->Font()->SetSize(20);
    Form->SetColor(clRed);
    EXPECT_EQ(Inner->Font()->Size(), 20);
    EXPECT_EQ(Inner->Color(), clRed);
    EXPECT_FALSE(Inner->IsFontStored());
    Inner->Font()->SetStyle({fsBold});
    EXPECT_TRUE(Inner->IsFontStored());
    Form->Font()->SetSize(10);
    EXPECT_EQ(Inner->Font()->Size(), 20);
    Inner->SetParentFont(true);
    EXPECT_EQ(Inner->Font()->Size(), 10);
    EXPECT_TRUE(Inner->Font()->Style().Empty());
    Inner->SetColor(clBlue);
    EXPECT_TRUE(Inner->IsColorStored());
}

// Nothing may move while there is no window: a form that is only read and
// written back would change.
TEST_F(TControls, IsLaidOutOnlyWithAWindow)
{
    auto* const Bar = Put<TSampleBox>(Form, "Bar", 3, 4, 50, 30);
    Bar->SetAlign(alTop);
    EXPECT_EQ(BoundsOf(*Bar), Sides(3, 4, 50, 30));
    Show();
    EXPECT_EQ(BoundsOf(*Bar), Sides(0, 0, Form->ClientWidth(), 30));
}

TEST_F(TControls, AlignsAlongTheEdges)
{
    auto* const Top = Put<TSampleBox>(Form, "Top", 0, 0, 10, 30);
    auto* const Second = Put<TSampleGraphic>(Form, "Second", 0, 50, 10, 20);
    auto* const Bottom = Put<TSampleBox>(Form, "Bottom", 0, 200, 10, 25);
    auto* const Left = Put<TSampleBox>(Form, "Left", 0, 90, 40, 10);
    auto* const Right = Put<TSampleGraphic>(Form, "Right", 300, 90, 60, 10);
    auto* const Rest = Put<TSampleBox>(Form, "Rest", 100, 90, 10, 10);
    auto* const Hidden = Put<TSampleBox>(Form, "Hidden", 0, 20, 10, 30);
    Hidden->SetVisible(false);
    const struct {
        TControl* Control;
        TAlign Align;
    } Aligned[] = {{Top, alTop},     {Second, alTop},  {Bottom, alBottom}, {Left, alLeft},
                   {Right, alRight}, {Rest, alClient}, {Hidden, alTop}};
    for (const auto& Each : Aligned)
        Each.Control->SetAlign(Each.Align);
    Rest->SetAlignWithMargins(true);
    Show();
    const int W = Form->ClientWidth();
    const int H = Form->ClientHeight();
    EXPECT_EQ(BoundsOf(*Top), Sides(0, 0, W, 30));
    EXPECT_EQ(BoundsOf(*Second), Sides(0, 30, W, 20));
    EXPECT_EQ(BoundsOf(*Bottom), Sides(0, H - 25, W, 25));
    EXPECT_EQ(BoundsOf(*Left), Sides(0, 50, 40, H - 75));
    EXPECT_EQ(BoundsOf(*Right), Sides(W - 60, 50, 60, H - 75));
    EXPECT_EQ(BoundsOf(*Rest), Sides(43, 53, W - 106, H - 81));
    Second->SetHeight(40);
    EXPECT_EQ(BoundsOf(*Left), Sides(0, 70, 40, H - 95));
    Top->SetVisible(false);
    EXPECT_EQ(BoundsOf(*Second), Sides(0, 0, W, 40));
}

TEST_F(TControls, AnchorsKeepTheirDistances)
{
    const struct {
        const char* Name;
        TAnchors Anchors;
        int Left, Top, Width, Height; // after the form grew by 100 and 60
    } Cases[] = {
        {"default", {akLeft, akTop}, 20, 30, 50, 20},
        {"right", {akTop, akRight}, 120, 30, 50, 20},
        {"both sides", {akLeft, akTop, akRight}, 20, 30, 150, 20},
        {"bottom", {akLeft, akBottom}, 20, 90, 50, 20},
        {"all", {akLeft, akTop, akRight, akBottom}, 20, 30, 150, 80},
    };
    std::vector<TControl*> Controls;
    for (const auto& Case : Cases) {
        Controls.push_back(Put<TSampleBox>(Form, "", 20, 30, 50, 20));
        Controls.back()->SetAnchors(Case.Anchors);
    }
    Show();
    Form->SetBounds(Form->Left(), Form->Top(), Form->Width() + 100, Form->Height() + 60);
    for (size_t Index = 0; Index < Controls.size(); ++Index) {
        SCOPED_TRACE(Cases[Index].Name);
        EXPECT_EQ(BoundsOf(*Controls[Index]),
                  Sides(Cases[Index].Left, Cases[Index].Top, Cases[Index].Width, Cases[Index].Height));
    }
    Form->SetBounds(Form->Left(), Form->Top(), Form->Width() - 100, Form->Height() - 60);
    for (const TControl* const Control : Controls)
        EXPECT_EQ(BoundsOf(*Control), Sides(20, 30, 50, 20));
}

TEST_F(TControls, ConstraintsLimitTheSize)
{
    auto* const Box = Put<TSampleBox>(Form, "Box", 0, 0, 50, 50);
    Box->Constraints()->SetMinWidth(40);
    Box->Constraints()->SetMaxWidth(60);
    Box->SetWidth(10);
    EXPECT_EQ(Box->Width(), 40);
    Show();
    Box->SetWidth(100);
    EXPECT_EQ(Box->Width(), 60);
    MoveWindow(Box->Handle(), 0, 0, 30, 10, FALSE);
    EXPECT_EQ(Box->Width(), 40);
    Box->Constraints()->SetMinWidth(80);
    EXPECT_EQ(Box->Constraints()->MaxWidth(), 80);
}

// A click on a control without a window arrives in its parent's.
TEST_F(TControls, MouseReachesControlsWithoutWindows)
{
    auto* const Box = Put<TSampleBox>(Form, "Box", 10, 10, 200, 100);
    auto* const Inner = Put<TSampleGraphic>(Box, "Inner", 20, 30, 40, 20);
    for (TControl* const Control : {static_cast<TControl*>(Box), static_cast<TControl*>(Inner)}) {
        Control->OnMouseDown = {&Log, &TEventLog::Down};
        Control->OnMouseUp = {&Log, &TEventLog::Up};
        Control->OnClick = {&Log, &TEventLog::Click};
    }
    Show();
    const auto Press = [&](int X, int Y, int ToX, int ToY) {
        SendMessageA(Box->Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(X, Y));
        SendMessageA(Box->Handle(), WM_LBUTTONUP, 0, MAKELPARAM(ToX, ToY));
        return Log.Take();
    };
    EXPECT_EQ(Press(25, 35, 26, 36), (TTexts{"Inner down 0 5,5", "Inner click", "Inner up 0 6,6"}));
    EXPECT_EQ(Press(5, 5, 5, 5), (TTexts{"Box down 0 5,5", "Box click", "Box up 0 5,5"}));
    EXPECT_EQ(Press(25, 35, 5, 5), (TTexts{"Inner down 0 5,5", "Inner up 0 -15,-25"}));
    EXPECT_EQ(GetCapture(), nullptr);
    Inner->SetEnabled(false);
    EXPECT_EQ(Press(25, 35, 25, 35), (TTexts{"Box down 0 25,35", "Box click", "Box up 0 25,35"}));
}

TEST_F(TControls, KeysReachTheFormAndTheControl)
{
    auto* const Edit = Put<TSampleEdit>(Form, "Edit");
    Form->SetName("Form");
    Form->SetKeyPreview(true);
    Form->OnKeyDown = {&Log, &TEventLog::Key};
    Edit->OnKeyDown = {&Log, &TEventLog::Key};
    Edit->OnKeyPress = {&Log, &TEventLog::Press};
    Log.Swallowed = 'b';
    Show();
    SendMessageA(Edit->Handle(), WM_KEYDOWN, VK_F5, 1);
    SendMessageA(Edit->Handle(), WM_CHAR, 'a', 1);
    SendMessageA(Edit->Handle(), WM_CHAR, 'b', 1);
    EXPECT_EQ(Log.Take(), (TTexts{"Form key 116", "Edit key 116", "Edit press a", "Edit press b"}));
    EXPECT_EQ(Edit->Text(), "aEdit");
    EXPECT_EQ(Edit->Changes, 1);
}

TEST_F(TControls, TabMovesTheFocusInTabOrder)
{
    auto* const First = Put<TSampleEdit>(Form, "First");
    auto* const Box = Put<TSampleBox>(Form, "Box", 0, 30, 100, 50);
    auto* const Second = Put<TSampleEdit>(Box, "Second");
    auto* const Third = Put<TSampleEdit>(Form, "Third", 0, 100);
    for (TWinControl* const Control : {static_cast<TWinControl*>(First), static_cast<TWinControl*>(Box),
                                       static_cast<TWinControl*>(Second), static_cast<TWinControl*>(Third)}) {
        Control->OnEnter = {&Log, &TEventLog::Enter};
        Control->OnExit = {&Log, &TEventLog::Exit};
    }
    Show();
    EXPECT_EQ(Form->ActiveControl(), First);
    EXPECT_EQ(Log.Take(), (TTexts{"First enter"}));
    const auto Tab = [&] {
        PostMessageA(Form->ActiveControl()->Handle(), WM_KEYDOWN, VK_TAB, 1);
        Application->ProcessMessages();
        return Log.Take();
    };
    EXPECT_EQ(Tab(), (TTexts{"First exit", "Box enter", "Second enter"}));
    EXPECT_EQ(Tab(), (TTexts{"Second exit", "Box exit", "Third enter"}));
    Third->SetTabOrder(0);
    EXPECT_EQ(First->TabOrder(), 1);
    EXPECT_EQ(Tab(), (TTexts{"Third exit", "First enter"}));
    Box->SetEnabled(false);
    EXPECT_FALSE(Second->CanFocus());
    EXPECT_THROW(Second->SetFocus(), EInvalidOperation);
    EXPECT_TRUE(First->Focused());
}

TEST_F(TControls, PaintsControlsWithoutWindows)
{
    auto* const Inner = Put<TSampleGraphic>(Form, "Inner", 20, 30, 40, 20);
    auto* const Hidden = Put<TSampleGraphic>(Form, "Hidden", 20, 60, 40, 20);
    Hidden->SetVisible(false);
    Show();
    Inner->Paints = 0;
    Inner->Repaint();
    EXPECT_EQ(Inner->Paints, 1);
    EXPECT_EQ(Hidden->Paints, 0);
}

TEST_F(TControls, DestroyingTakesControlsOutOfTheirParent)
{
    auto* const Box = Put<TSampleBox>(Form, "Box");
    Put<TSampleGraphic>(Box, "Inner");
    auto* const Edit = new TSampleEdit(Form);
    Edit->SetParent(Box);
    Show();
    const HWND Window = Edit->Handle();
    EXPECT_EQ(Box->ControlCount(), 2);
    delete Box->Controls(0);
    EXPECT_EQ(Box->ControlCount(), 1);
    // The container destroys what it contains, whoever owns it.
    delete Box;
    EXPECT_EQ(Form->ControlCount(), 0);
    EXPECT_EQ(Form->ComponentCount(), 0);
    EXPECT_FALSE(IsWindow(Window));
    EXPECT_EQ(Form->ActiveControl(), nullptr);
}

TEST_F(TControls, RefusesToContainItself)
{
    auto* const Box = Put<TSampleBox>(Form, "Box");
    auto* const Inner = Put<TSampleBox>(Box, "Inner");
    EXPECT_THROW(Box->SetParent(Box), EInvalidOperation);
    EXPECT_THROW(Box->SetParent(Inner), EInvalidOperation);
}

TEST_F(TControls, FindsMnemonics)
{
    const struct {
        const char* Caption;
        uint16_t Key;
        bool Found;
        const char* Plain;
    } Cases[] = {
        {"&Open", 'o', true, "Open"},
        {"Save && &Exit", 'E', true, "Save & Exit"},
        {"Rock && Roll", 'R', false, "Rock & Roll"},
        {"\xD0\xA4&\xD0\xB0\xD0\xB9\xD0\xBB", 0x0410, true, "\xD0\xA4\xD0\xB0\xD0\xB9\xD0\xBB"},
        {"End&", 'd', false, "End&"},
        {"", 'a', false, ""},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Caption);
        EXPECT_EQ(IsAccel(Case.Key, Case.Caption), Case.Found);
        EXPECT_EQ(StripHotkey(Case.Caption), Case.Plain);
    }
}
