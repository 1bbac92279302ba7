// Scroll bars: what their parts tell, ranges and pages, and windows that scroll.
#include "framework/forms/Forms.h"
#include "framework/forms/StdCtrls.h"
#include "tests/ControlScripts.h"
#include "tests/FormSamples.h"

namespace {

struct ScrollBars : TControlScripts {
    static constexpr int Length = 132;

    std::string Note(UINT Message, WPARAM WParam) const override
    {
        constexpr const char* Codes[] = {"lineup", "linedown", "pageup", "pagedown", "thumb",
                                         "track",  "top",      "bottom", "end"};
        if (Message == WM_COMMAND)
            return {};
        std::string Result = std::string(Message == WM_HSCROLL ? "," : ";") + Codes[LOWORD(WParam)];
        if (LOWORD(WParam) == SB_THUMBPOSITION || LOWORD(WParam) == SB_THUMBTRACK)
            Result += std::to_string(HIWORD(WParam));
        return Result;
    }
    LPARAM Along(int At) const
    {
        const bool Vertical = (GetWindowLongA(Control, GWL_STYLE) & SBS_VERT) != 0;
        return Vertical ? MAKELPARAM(8, At) : MAKELPARAM(At, 8);
    }
    // The system follows the mouse in a loop of its own until the button is up.
    void DragTo(int From, std::initializer_list<int> Places) const
    {
        for (const int At : Places)
            PostMessageA(Control, WM_MOUSEMOVE, MK_LBUTTON, Along(At));
        PostMessageA(Control, WM_LBUTTONUP, 0,
                     Along(Places.size() ? std::data(Places)[Places.size() - 1] : From));
        Send(WM_LBUTTONDOWN, MK_LBUTTON, Along(From));
        MSG Message;
        while (PeekMessageA(&Message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageA(&Message);
    }
    void Do(char Letter, const std::string& Argument) override
    {
        if (PressArrow(Letter))
            return;
        if (Letter == 'm')
            return DragTo(std::stoi(Argument), {});
        if (Letter == 'g') // the thumb, which begins behind the arrow
            return DragTo(17, {40, std::stoi(Argument)});
        ADD_FAILURE() << Letter;
    }
    std::string Outcome() const override { return {}; }
};

} // namespace

// A bar only tells; its position stays until the program sets it. The part that
// a click meets follows from where the thumb is, and a thumb that is drawn far
// away springs back.
TEST_F(ScrollBars, TellWhichPartWasUsed)
{
    const struct {
        int Position;
        DWORD Style;
        const char* Script;
    } Cases[] = {
        {50, SBS_HORZ,
         "l=,lineup r=,linedown p=,pageup n=,pagedown h=,top e=,bottom u=,lineup d=,linedown "
         "m2=,lineup,end m130=,linedown,end m60=,pageup,end m75=,pagedown,end"},
        {50, SBS_VERT, "u=;lineup n=;pagedown e=;bottom m2=;lineup;end m60=;pageup;end m75=;pagedown;end"},
        {0, SBS_HORZ,
         "m30=,pagedown,end g100=,track0,track26,track93,thumb93,end "
         "g140=,track0,track26,track100,thumb100,end "
         "g500=,track0,track26,track0,thumb0,end"},
        {100, SBS_VERT, "m100=;pageup;end"},
    };
    for (const auto& Case : Cases) {
        const bool Vertical = Case.Style == SBS_VERT;
        Make("ScrollBar", "", Case.Style, Vertical ? 16 : Length, Vertical ? Length : 16);
        SCROLLINFO Info{sizeof Info, SIF_ALL, 0, 109, 10, Case.Position, 0};
        SetScrollInfo(Control, SB_CTL, &Info, FALSE);
        EXPECT_EQ(Play(Case.Script), Case.Script);
    }
}

// What a program sets is brought into the range, and a page that holds all of it
// takes the bar of a window away.
TEST_F(ScrollBars, KeepThePositionInsideTheRange)
{
    const struct {
        SCROLLINFO Set;
        SCROLLINFO Now;
        bool Shown;
    } Cases[] = {
        {{0, SIF_RANGE, 0, 100, 0, 0, 0}, {0, 0, 0, 100, 0, 0, 0}, true},
        {{0, SIF_POS, 0, 0, 0, 200, 0}, {0, 0, 0, 100, 0, 100, 0}, true},
        {{0, SIF_PAGE, 0, 0, 20, 0, 0}, {0, 0, 0, 100, 20, 81, 0}, true},
        {{0, SIF_POS, 0, 0, 0, 95, 0}, {0, 0, 0, 100, 20, 81, 0}, true},
        {{0, SIF_PAGE, 0, 0, 200, 0, 0}, {0, 0, 0, 100, 101, 0, 0}, false},
        {{0, SIF_RANGE | SIF_PAGE, -50, 50, 1, 0, 0}, {0, 0, -50, 50, 1, 0, 0}, true},
        {{0, SIF_POS, 0, 0, 0, -70, 0}, {0, 0, -50, 50, 1, -50, 0}, true},
        {{0, SIF_ALL | SIF_DISABLENOSCROLL, 0, 10, 20, 5, 0}, {0, 0, 0, 10, 11, 0, 0}, true},
        {{0, SIF_ALL, 0, 10, 20, 5, 0}, {0, 0, 0, 10, 11, 0, 0}, false},
    };
    Make("ScrollBar", "", SBS_HORZ, Length, 16);
    const HWND Window = CreateWindowExA(0, "ControlScripts", "", WS_CHILD | WS_VISIBLE | WS_VSCROLL, 0, 0,
                                        200, 100, Parent, nullptr, nullptr, nullptr);
    for (const auto& Case : Cases) {
        SCOPED_TRACE(&Case - Cases);
        SCROLLINFO Set = Case.Set;
        Set.cbSize = sizeof Set;
        for (const bool OfWindow : {false, true}) {
            const HWND Owner = OfWindow ? Window : Control;
            const int Kind = OfWindow ? SB_VERT : SB_CTL;
            EXPECT_EQ(SetScrollInfo(Owner, Kind, &Set, FALSE), Case.Now.nPos);
            SCROLLINFO Now{sizeof Now, SIF_ALL, 0, 0, 0, 0, 0};
            GetScrollInfo(Owner, Kind, &Now);
            EXPECT_EQ(Now.nMin, Case.Now.nMin);
            EXPECT_EQ(Now.nMax, Case.Now.nMax);
            EXPECT_EQ(Now.nPage, Case.Now.nPage);
            EXPECT_EQ(Now.nPos, Case.Now.nPos);
        }
        EXPECT_EQ((GetWindowLongA(Window, GWL_STYLE) & WS_VSCROLL) != 0, Case.Shown);
    }
}

// A form scrolls by its bars and back to a control that takes the focus; what is
// inside moves with it, and its places in the form file stay.
TEST(ScrollingForms, FollowTheirBarsAndTheFocus)
{
    const TApplicationScope Scope;
    auto* const Form = new TForm(Application);
    Form->SetBounds(0, 0, 300, 200);
    auto* const Near = Put<TEdit>(Form, "Near", 10, 10, 50, 21);
    auto* const Far = Put<TEdit>(Form, "Far", 10, 600, 50, 21);
    Form->Show();
    Application->ProcessMessages();
    TControlScrollBar& Bar = *Form->VertScrollBar();
    EXPECT_GE(Bar.Range(), 621);
    Form->Perform(WM_VSCROLL, SB_LINEDOWN, 0);
    EXPECT_EQ(Bar.Position(), Bar.Increment());
    EXPECT_EQ(Near->Top(), 10 - Bar.Increment());
    Form->SetActiveControl(Far);
    Application->ProcessMessages();
    EXPECT_EQ(GetFocus(), Far->Handle());
    EXPECT_LE(Far->Top() + Far->Height(), Form->ClientHeight());
    Bar.SetPosition(0);
    EXPECT_EQ(Near->Top(), 10);
    EXPECT_EQ(Far->Top(), 600);
}
