// Lists of many lines: groups of changes, and what they cost.
#include <random>

#include <gtest/gtest.h>

#include "framework/forms/ComCtrls.h"
#include "framework/forms/StdCtrls.h"
#include "tests/FormSamples.h"

namespace {

struct LongLists : testing::Test {
    TApplicationScope Scope;
    TForm* Form = new TForm(Application);

    LongLists() { Form->SetBounds(10, 10, 400, 300); }

    void Show()
    {
        Form->Show();
        Application->ProcessMessages();
    }
    TListBox* NewList(bool MultiSelect)
    {
        auto* const List = Put<TListBox>(Form, "", 0, 0, 150, 100);
        List->SetMultiSelect(MultiSelect);
        return List;
    }
};

// Lines, each with "*" when it is selected, and the index.
std::string StateOf(const TListBox& List)
{
    std::string Result;
    for (int I = 0; I < List.Items()->Count(); ++I)
        Result += List.Items()->Get(I) + (List.Selected(I) ? "* " : " ");
    return Result + std::to_string(List.ItemIndex()) + "/" + std::to_string(List.SelCount());
}

std::string ShownBy(const TListBox& List)
{
    std::string Result;
    const HWND Window = List.WindowHandle();
    for (LRESULT I = 0; I < SendMessageA(Window, LB_GETCOUNT, 0, 0); ++I) {
        char Text[100] = "";
        SendMessageA(Window, LB_GETTEXT, static_cast<WPARAM>(I), reinterpret_cast<LPARAM>(Text));
        Result += Text;
        Result += SendMessageA(Window, LB_GETSEL, static_cast<WPARAM>(I), 0) > 0 ? "* " : " ";
    }
    const UINT Current = List.MultiSelect() ? LB_GETCARETINDEX : LB_GETCURSEL;
    return Result + std::to_string(SendMessageA(Window, Current, 0, 0)) + "/" +
           std::to_string(List.SelCount());
}

// One change, chosen by three numbers.
void Change(TListBox& List, unsigned Kind, unsigned Where, unsigned What)
{
    TStrings& Items = *List.Items();
    const auto Count = static_cast<unsigned>(Items.Count());
    const int At = static_cast<int>(Where % (Count + 1));
    const std::string Text(1, static_cast<char>('a' + What % 26));
    if (Kind >= 19)
        Items.Clear();
    else if (Kind == 18)
        What % 2 ? List.SelectAll() : List.ClearSelection();
    else if (Kind >= 16 || Count == 0)
        Items.Insert(At, Text);
    else if (Kind >= 10)
        Items.Add(Text);
    else if (Kind == 9)
        Items.Move(At % static_cast<int>(Count), static_cast<int>(What % Count));
    else if (Kind == 8)
        List.SetItemIndex(At - 1);
    else if (static_cast<unsigned>(At) == Count)
        return;
    else if (Kind >= 5)
        List.SetSelected(At, What % 3 != 0);
    else if (Kind >= 3)
        Items.Put(At, Text);
    else
        Items.Delete(At);
}

} // namespace

// A group of changes that the window hears of in the end lost or moved the choice.
TEST_F(LongLists, AGroupOfChangesIsTheSameAsSingleOnes)
{
    Show();
    for (const bool MultiSelect : {false, true})
        for (const bool Sorted : {false, true}) {
            SCOPED_TRACE(testing::Message() << "multiple " << MultiSelect << " sorted " << Sorted);
            TListBox* const Single = NewList(MultiSelect);
            TListBox* const Grouped = NewList(MultiSelect);
            Single->SetSorted(Sorted);
            Grouped->SetSorted(Sorted);
            std::mt19937 Random(MultiSelect ? 11 : 12);
            for (int Group = 0; Group < 12; ++Group) {
                Grouped->Items()->BeginUpdate();
                for (unsigned Changes = Random() % 40; Changes > 0; --Changes) {
                    const auto Kind = static_cast<unsigned>(Random() % 20);
                    const auto Where = static_cast<unsigned>(Random() % 1000);
                    const auto What = static_cast<unsigned>(Random() % 1000);
                    Change(*Single, Kind, Where, What);
                    Change(*Grouped, Kind, Where, What);
                    ASSERT_EQ(StateOf(*Grouped), StateOf(*Single)) << Group << ": " << Kind;
                }
                Grouped->Items()->EndUpdate();
                ASSERT_EQ(StateOf(*Grouped), StateOf(*Single)) << Group;
                ASSERT_EQ(ShownBy(*Grouped), StateOf(*Single)) << Group;
            }
            Single->SetIntegralHeight(true); // makes a new window
            EXPECT_EQ(ShownBy(*Single), StateOf(*Grouped));
            delete Single;
            delete Grouped;
        }
}

// Filling a sorted list moved all its lines for each one, in the window as well.
TEST_F(LongLists, AGroupOfChangesCostsTheWindowOneFilling)
{
    constexpr int Count = 2000;
    TListBox* const List = NewList(true);
    List->SetSorted(true);
    Show();
    int Messages = 0;
    List->OnWndProc = [&](TMessage& Message) {
        Messages += Message.Msg >= LB_ADDSTRING && Message.Msg <= LB_ITEMFROMPOINT;
        return false;
    };
    List->Items()->BeginUpdate();
    for (int I = 0; I < Count; ++I)
        List->Items()->Add(std::to_string(I * 7919 % Count));
    for (int I = 0; I < Count; I += 2)
        List->SetSelected(I, true);
    for (int I = Count - 1; I >= 0; --I)
        if (I % 4 == 0 && List->Selected(I))
            List->Items()->Delete(I);
    List->Items()->EndUpdate();
    EXPECT_EQ(List->Items()->Count(), Count * 3 / 4);
    EXPECT_EQ(List->SelCount(), Count / 4);
    EXPECT_LT(Messages, Count * 3 / 4 + Count / 4 + 40) << "a line or a range each";
    Messages = 0;
    List->SelectAll();
    EXPECT_EQ(List->SelCount(), Count * 3 / 4);
    EXPECT_LT(Messages, 10);
    List->OnWndProc = nullptr;
}

TEST_F(LongLists, AGroupOfChangesLeavesInViewWhatIs)
{
    TListBox* const List = NewList(false);
    for (int I = 0; I < 100; ++I)
        List->Items()->Add(std::to_string(I));
    List->SetItemIndex(3);
    Show();
    List->SetTopIndex(50);
    List->Items()->BeginUpdate();
    for (int I = 0; I < 100; ++I)
        List->Items()->Put(I, "new");
    List->Items()->EndUpdate();
    EXPECT_EQ(List->TopIndex(), 50);
    EXPECT_EQ(List->ItemIndex(), 3);
    List->Items()->BeginUpdate();
    List->Items()->Clear();
    for (int I = 0; I < 100; ++I)
        List->Items()->Add(std::to_string(I));
    EXPECT_EQ(List->ItemRect(0).top, 0) << "asking gives the window what it lacks";
    List->Items()->SetText("a\nb\nc");
    List->SetItemIndex(2);
    List->Items()->EndUpdate();
    EXPECT_EQ(ShownBy(*List), "a b c* 2/1");
}

// Hidden controls came into view when a group of changes ended.
TEST_F(LongLists, AGroupOfChangesShowsNoHiddenControl)
{
    auto* const List = NewList(false);
    auto* const Combo = Put<TComboBox>(Form, "Combo", 0, 100, 100, 21);
    auto* const View = Put<TListView>(Form, "View", 0, 130, 100, 50);
    auto* const Tree = Put<TTreeView>(Form, "Tree", 0, 190, 100, 50);
    const auto IsShown = [](TWinControl& Control) {
        return (GetWindowLongPtrA(Control.Handle(), GWL_STYLE) & WS_VISIBLE) != 0;
    };
    TWinControl* const Controls[] = {List, Combo, View, Tree};
    for (TWinControl* const Control : Controls) {
        Control->SetVisible(false);
        Control->HandleNeeded();
    }
    Show();
    List->Items()->SetText("a\nb");
    Combo->Items()->SetText("a\nb");
    View->Items()->BeginUpdate();
    View->Items()->EndUpdate();
    Tree->Items()->BeginUpdate();
    Tree->Items()->EndUpdate();
    for (TWinControl* const Control : Controls)
        EXPECT_FALSE(IsShown(*Control)) << Control->ClassName();
}
