// Hints as the user meets them: the mouse moves, time passes.
#include "framework/forms/Hints.h"

#include <gtest/gtest.h>

#include "framework/forms/Forms.h"
#include "framework/forms/HintWindow.h"
#include "framework/forms/Panels.h"
#include "framework/forms/PushButtons.h"

namespace {

struct Hints : TObject, testing::Test {
    Hints()
    {
        Application->HintPause = 20;
        Application->HintHidePause = 60000;
        Form = new TForm(Application);
        Form->SetBounds(100, 100, 400, 300);
        Form->SetShowHint(true);
        Panel = Put<TPanel>(*Form, 10, 10, 200, 100);
        Panel->SetHint("Panel|All of the panel");
        Inside = Put<TButton>(*Panel, 10, 10, 80, 25);
        Beside = Put<TButton>(*Form, 10, 150, 80, 25);
        Beside->SetHint("Beside");
        Silent = Put<TButton>(*Form, 10, 200, 80, 25);
        Form->Show();
        Application->ProcessMessages();
    }
    template<class T>
    T* Put(TWinControl& Parent, int Left, int Top, int Width, int Height)
    {
        auto* const Result = new T(Form);
        Result->SetParent(&Parent);
        Result->SetBounds(Left, Top, Width, Height);
        return Result;
    }
    static void Wait(DWORD Milliseconds)
    {
        for (const DWORD Start = GetTickCount(); GetTickCount() - Start < Milliseconds; Sleep(2))
            Application->ProcessMessages();
    }
    static void MoveTo(TWinControl& Control, int X = 5, int Y = 5)
    {
        PostMessageA(Control.Handle(), WM_MOUSEMOVE, 0, MAKELPARAM(X, Y));
        Application->ProcessMessages();
    }
    // The text of the hint that is shown; empty for none.
    static std::string Shown()
    {
        const HWND Window = FindWindowA("THintWindow", nullptr);
        char Text[200] = "";
        if (Window && IsWindowVisible(Window))
            GetWindowTextA(Window, Text, sizeof Text);
        return Text;
    }
    std::string ShownAfter(TWinControl& Control)
    {
        MoveTo(Control);
        Wait(60);
        return Shown();
    }
    void Show(std::string& Hint, bool& CanShow, TControl* Control)
    {
        CanShow = Control != Beside;
        Hint += "!";
    }
    void Destroy(std::string&, bool&, TControl*) { delete std::exchange(Inside, nullptr); }

    const TApplicationScope Scope;
    TForm* Form = nullptr;
    TPanel* Panel = nullptr;
    TButton* Inside = nullptr;
    TButton* Beside = nullptr;
    TButton* Silent = nullptr;
};

TEST_F(Hints, ComeAfterAPauseAndGoWithTheMouseKeysAndTime)
{
    MoveTo(*Beside);
    EXPECT_EQ(Shown(), "") << "not at once";
    Wait(60);
    EXPECT_EQ(Shown(), "Beside");
    EXPECT_NE(GetActiveWindow(), FindWindowA("THintWindow", nullptr));
    MoveTo(*Beside, 7, 7);
    EXPECT_EQ(Shown(), "Beside");
    EXPECT_EQ(ShownAfter(*Inside), "Panel") << "from what it is in, and its first half";
    EXPECT_EQ(Application->Hint(), "All of the panel");
    EXPECT_EQ(ShownAfter(*Silent), "");
    EXPECT_EQ(ShownAfter(*Beside), "Beside");
    PostMessageA(Beside->Handle(), WM_KEYDOWN, VK_F5, 1);
    Application->ProcessMessages();
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(ShownAfter(*Beside), "Beside");
    PostMessageA(Beside->Handle(), WM_RBUTTONDOWN, 0, 0);
    Application->ProcessMessages();
    EXPECT_EQ(Shown(), "");
    Application->HintHidePause = 30;
    MoveTo(*Beside);
    Wait(35);
    EXPECT_EQ(Shown(), "Beside");
    Wait(60);
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(ShownAfter(*Beside), "") << "once, as long as the mouse stays";
}

TEST_F(Hints, CancelledOnesComeAgainWithAnotherText)
{
    EXPECT_EQ(ShownAfter(*Beside), "Beside");
    Application->CancelHint();
    Beside->SetHint("Other");
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(ShownAfter(*Beside), "Other");
    Application->CancelHint();
    POINT Point{2, 2};
    ClientToScreen(Beside->Handle(), &Point);
    Application->ActivateHint(Point);
    EXPECT_EQ(Shown(), "Other");
}

TEST_F(Hints, CanBeChangedAndRefused)
{
    Application->OnShowHint = {this, &Hints::Show};
    EXPECT_EQ(ShownAfter(*Inside), "Panel!");
    EXPECT_EQ(ShownAfter(*Beside), "");
    Application->OnShowHint.Clear();
    Form->SetShowHint(false);
    EXPECT_EQ(ShownAfter(*Inside), "");
    Form->SetShowHint(true);
    Application->SetShowHint(false);
    EXPECT_EQ(ShownAfter(*Beside), "");
}

TEST_F(Hints, ControlsThatGoAreNotReached)
{
    Inside->SetHint("Inside");
    MoveTo(*Inside);
    Application->OnShowHint = {this, &Hints::Destroy};
    Wait(60);
    EXPECT_EQ(Shown(), "");
    Application->OnShowHint.Clear();
    EXPECT_EQ(ShownAfter(*Beside), "Beside");
    delete Beside;
    EXPECT_EQ(Shown(), "");
    MoveTo(*Panel);
    delete Form;
    Wait(60);
    EXPECT_EQ(Shown(), "");
}

} // namespace
