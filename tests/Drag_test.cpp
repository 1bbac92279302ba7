// Dragging controls onto others: who is told, when and where.
#include <gtest/gtest.h>

#include "tests/FormSamples.h"

namespace {

class TDragLog : public TObject {
public:
    TTexts Lines;
    TControl* Doomed = nullptr; // destroyed by the first control that is dragged over

    void Start(TObject* Sender, TObject*&) { Add(Sender, "start"); }
    void Over(TObject* Sender, TObject*, int X, int Y, TDragState State, bool& Accept)
    {
        constexpr const char* States[] = {"enter", "leave", "move"};
        Add(Sender, std::string(States[State]) + At(X, Y));
        Accept = Sender == Willing;
        if (TControl* const Control = std::exchange(Doomed, nullptr))
            delete Control;
    }
    void Drop(TObject* Sender, TObject*, int X, int Y) { Add(Sender, "drop" + At(X, Y)); }
    void End(TObject* Sender, TObject* Target, int, int)
    {
        Add(Sender, Target ? "end at " + dynamic_cast<TComponent&>(*Target).Name() : "end");
    }
    TObject* Willing = nullptr;

private:
    static std::string At(int X, int Y) { return " " + std::to_string(X) + "," + std::to_string(Y); }
    void Add(TObject* Sender, const std::string& Text)
    {
        Lines.push_back(dynamic_cast<TComponent&>(*Sender).Name() + " " + Text);
    }
};

struct Dragging : testing::Test {
    const TApplicationScope Scope;
    TDragLog Log;
    TForm* Form = new TForm(Application);
    TSampleBox* Source = Put<TSampleBox>(Form, "Source", 0, 0, 50, 50);
    TSampleBox* Open = Put<TSampleBox>(Form, "Open", 100, 0, 50, 50);
    TSampleGraphic* Shut = Put<TSampleGraphic>(Form, "Shut", 200, 0, 50, 50);

    Dragging()
    {
        Form->SetBounds(0, 0, 400, 300);
        Log.Willing = Open;
        Source->OnStartDrag = {&Log, &TDragLog::Start};
        Source->OnEndDrag = {&Log, &TDragLog::End};
        for (TControl* const Control : std::initializer_list<TControl*>{Open, Shut}) {
            Control->OnDragOver = {&Log, &TDragLog::Over};
            Control->OnDragDrop = {&Log, &TDragLog::Drop};
        }
        Form->Show();
        Application->ProcessMessages();
    }
    // The mouse, in places of the form's client area.
    void Mouse(UINT Message, int X, int Y) const
    {
        SendMessageA(Source->Handle(), Message, Message == WM_LBUTTONUP ? 0 : MK_LBUTTON, MAKELPARAM(X, Y));
    }
    TTexts Taken() { return std::exchange(Log.Lines, {}); }
};

} // namespace

TEST_F(Dragging, TellsWhoIsEnteredLeftAndDroppedOn)
{
    Source->BeginDrag(true);
    EXPECT_TRUE(Source->Dragging());
    EXPECT_EQ(Taken(), (TTexts{"Source start"}));
    Mouse(WM_MOUSEMOVE, 110, 20);
    EXPECT_EQ(Taken(), (TTexts{"Open enter 10,20", "Open move 10,20"}));
    Mouse(WM_MOUSEMOVE, 210, 20);
    EXPECT_EQ(Taken(), (TTexts{"Open leave 110,20", "Shut enter 10,20", "Shut move 10,20"}));
    Mouse(WM_LBUTTONUP, 120, 30);
    EXPECT_EQ(Taken(), (TTexts{"Shut leave -80,30", "Open enter 20,30", "Open move 20,30", "Open leave 20,30",
                               "Open drop 20,30", "Source end at Open"}));
    EXPECT_FALSE(Source->Dragging());
    Mouse(WM_MOUSEMOVE, 110, 20);
    EXPECT_EQ(Taken(), TTexts{});
}

TEST_F(Dragging, EndsWithoutADropWhereNobodyAccepts)
{
    for (const int X : {210, 320}) { // over a control that does not want it, and over the form
        Source->BeginDrag(true);
        Mouse(WM_LBUTTONUP, X, 20);
        EXPECT_EQ(Taken().back(), "Source end");
        EXPECT_FALSE(Source->Dragging());
    }
}

// A control that goes in the middle was told again, or told of.
TEST_F(Dragging, OutlivesItsControls)
{
    Source->BeginDrag(true);
    Mouse(WM_MOUSEMOVE, 210, 20);
    delete Shut;
    Taken();
    Mouse(WM_MOUSEMOVE, 110, 20);
    EXPECT_EQ(Taken().front(), "Open enter 10,20");
    Log.Doomed = Open;
    Mouse(WM_MOUSEMOVE, 120, 20);
    Mouse(WM_LBUTTONUP, 120, 20);
    EXPECT_EQ(Taken().back(), "Source end");
}
