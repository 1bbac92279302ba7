#include "framework/forms/ComCtrls.h"

#include <gtest/gtest.h>

#include "framework/forms/PushButtons.h"
#include "framework/forms/StandardClasses.h"
#include "framework/streaming/ComponentWriter.h"
#include "framework/streaming/FormFile.h"
#include "framework/streaming/LoadedForm.h"
#include "tests/FormSamples.h"

namespace {

struct TComCtrls : testing::Test {
    TApplicationScope Scope;
    TForm* Form = new TForm(Application);
    TEventLog Log;

    TComCtrls()
    {
        RegisterStandardClasses();
        Form->SetBounds(10, 10, 500, 400);
    }
    void Show()
    {
        Form->Show();
        Application->ProcessMessages();
    }
    // Sends a notification as the control's window does.
    template<class T>
    static LRESULT NotifyFrom(TWinControl& Control, T Notice, NMHDR T::*Header, UINT Code)
    {
        (Notice.*Header).hwndFrom = Control.Handle();
        (Notice.*Header).idFrom = static_cast<UINT_PTR>(GetDlgCtrlID(Control.Handle()));
        (Notice.*Header).code = Code;
        return SendMessageA(GetParent(Control.Handle()), WM_NOTIFY, (Notice.*Header).idFrom, Param(&Notice));
    }
    void Change(TObject* Sender) { Log.Notify(Sender); }
};

std::string PanelText(TStatusBar& Bar, int Part)
{
    char Text[200] = "";
    SendMessageA(Bar.Handle(), SB_GETTEXTA, static_cast<WPARAM>(Part), Param(Text));
    return Text;
}

TTexts TabTexts(TWinControl& Tabs)
{
    TTexts Result;
    const LRESULT Count = SendMessageA(Tabs.Handle(), TCM_GETITEMCOUNT, 0, 0);
    for (LRESULT I = 0; I < Count; ++I) {
        char Text[200] = "";
        TCITEMA Item{};
        Item.mask = TCIF_TEXT;
        Item.pszText = Text;
        Item.cchTextMax = sizeof Text;
        SendMessageA(Tabs.Handle(), TCM_GETITEMA, static_cast<WPARAM>(I), Param(&Item));
        Result.emplace_back(Text);
    }
    return Result;
}

std::string ColumnText(TListView& List, int Index)
{
    char Text[200] = "";
    LVCOLUMNA Column{};
    Column.mask = LVCF_TEXT;
    Column.pszText = Text;
    Column.cchTextMax = sizeof Text;
    SendMessageA(List.Handle(), LVM_GETCOLUMNA, static_cast<WPARAM>(Index), Param(&Column));
    return Text;
}

std::string ItemText(TListView& List, int Index, int Sub)
{
    char Text[200] = "";
    LVITEMA Item{};
    Item.iSubItem = Sub;
    Item.pszText = Text;
    Item.cchTextMax = sizeof Text;
    SendMessageA(List.Handle(), LVM_GETITEMTEXTA, static_cast<WPARAM>(Index), Param(&Item));
    return Text;
}

std::string NodeText(TTreeView& Tree, const TTreeNode& Node)
{
    char Text[200] = "";
    TVITEMA Item{};
    Item.mask = TVIF_TEXT | TVIF_HANDLE;
    Item.hItem = Node.ItemId();
    Item.pszText = Text;
    Item.cchTextMax = sizeof Text;
    SendMessageA(Tree.Handle(), TVM_GETITEMA, 0, Param(&Item));
    return Text;
}

std::string ButtonText(TToolBar& Bar, int Index)
{
    TBBUTTON Button{};
    SendMessageA(Bar.Handle(), TB_GETBUTTON, static_cast<WPARAM>(Index), Param(&Button));
    char Text[200] = "";
    SendMessageA(Bar.Handle(), TB_GETBUTTONTEXTA, static_cast<WPARAM>(Button.idCommand), Param(Text));
    return Text;
}

const char Umlaut[] = "\xC3\x9C"
                      "ber";

} // namespace

TEST_F(TComCtrls, StatusPanelsAreShownAtOnce)
{
    auto* const Bar = Put<TStatusBar>(Form, "Bar");
    Bar->Panels()->Add()->SetText("Ready");
    Bar->Panels()->Add()->SetText("Ln 1");
    Bar->Panels()->Items(1)->SetText("Ln 2");
    Show();
    EXPECT_EQ(SendMessageA(Bar->Handle(), SB_GETPARTS, 0, 0), 2);
    EXPECT_EQ(PanelText(*Bar, 1), "Ln 2") << "changed without a window";
    Bar->Panels()->Items(0)->SetText(Umlaut);
    EXPECT_EQ(PanelText(*Bar, 0), Umlaut);
    Bar->Panels()->Items(0)->SetAlignment(taCenter);
    EXPECT_EQ(PanelText(*Bar, 0), std::string("\t") + Umlaut);
    Bar->RecreateWnd();
    Form->Show();
    EXPECT_EQ(PanelText(*Bar, 1), "Ln 2");
    Bar->Panels()->Delete(1);
    EXPECT_EQ(SendMessageA(Bar->Handle(), SB_GETPARTS, 0, 0), 1);
}

TEST_F(TComCtrls, PagesShowTheirCaptionsAndOneBody)
{
    auto* const Pages = Put<TPageControl>(Form, "Pages", 8, 8, 200, 150);
    TTabSheet* Sheets[3];
    for (int I = 0; I < 3; ++I) {
        Sheets[I] = new TTabSheet(Form);
        Sheets[I]->SetCaption("Page " + std::to_string(I));
        Sheets[I]->SetPageControl(Pages);
    }
    Pages->SetActivePage(Sheets[1]);
    EXPECT_FALSE(Sheets[0]->Visible());
    EXPECT_TRUE(Sheets[1]->Visible());
    Show();
    EXPECT_EQ(TabTexts(*Pages), (TTexts{"Page 0", "Page 1", "Page 2"}));
    EXPECT_EQ(SendMessageA(Pages->Handle(), TCM_GETCURSEL, 0, 0), 1);
    Sheets[2]->SetCaption(Umlaut);
    Sheets[0]->SetTabVisible(false);
    EXPECT_EQ(TabTexts(*Pages), (TTexts{"Page 1", Umlaut}));
    Sheets[2]->SetCaption("Last");
    EXPECT_EQ(TabTexts(*Pages), (TTexts{"Page 1", "Last"})) << "behind a hidden page";
    EXPECT_EQ(SendMessageA(Pages->Handle(), TCM_GETCURSEL, 0, 0), 0);

    Pages->OnChange = {&Log, &TEventLog::Notify};
    SendMessageA(Pages->Handle(), TCM_SETCURSEL, 1, 0);
    struct TNotice {
        NMHDR Header;
    };
    NotifyFrom(*Pages, TNotice{}, &TNotice::Header, static_cast<UINT>(TCN_SELCHANGE));
    EXPECT_EQ(Pages->ActivePage(), Sheets[2]);
    EXPECT_TRUE(IsWindowVisible(Sheets[2]->Handle()));
    EXPECT_FALSE(Sheets[1]->Visible());
    EXPECT_EQ(Log.Take(), (TTexts{"Pages notified"}));
    delete Sheets[2];
    EXPECT_EQ(Pages->ActivePage(), Sheets[1]);
}

// They would stay where they are when the page is first shown after the form has
// been resized.
TEST_F(TComCtrls, ControlsOfHiddenPagesFollowTheirAnchors)
{
    auto* const Pages = Put<TPageControl>(Form, "Pages", 8, 8, 200, 150);
    TTabSheet* Sheets[2];
    TButton* Buttons[2];
    for (int I = 0; I < 2; ++I) {
        Sheets[I] = new TTabSheet(Form);
        Sheets[I]->SetPageControl(Pages);
        Pages->SetActivePage(Sheets[0]);
        Buttons[I] = new TButton(Form);
        Buttons[I]->SetParent(Sheets[I]);
        Buttons[I]->SetBounds(100, 80, 60, 20);
        Buttons[I]->SetAnchors({akRight, akBottom});
    }
    Pages->SetBounds(8, 8, 270, 180);
    Show();
    Pages->SetActivePage(Sheets[1]);
    EXPECT_EQ(Buttons[1]->Left(), 170);
    EXPECT_EQ(Buttons[1]->Top(), Buttons[0]->Top());
}

TEST_F(TComCtrls, TabsOfATabControlChangeOneByOne)
{
    auto* const Tabs = Put<TTabControl>(Form, "Tabs", 8, 8, 200, 150);
    Tabs->Tabs()->SetText("One\nTwo\nThree\n");
    Tabs->SetTabIndex(2);
    Show();
    Tabs->Tabs()->Put(1, Umlaut);
    EXPECT_EQ(TabTexts(*Tabs), (TTexts{"One", Umlaut, "Three"}));
    EXPECT_EQ(SendMessageA(Tabs->Handle(), TCM_GETCURSEL, 0, 0), 2);
    Tabs->SetMultiLine(true);
    EXPECT_EQ(TabTexts(*Tabs), (TTexts{"One", Umlaut, "Three"})) << "with a new window";
}

TEST_F(TComCtrls, ToolButtonsShowAndClick)
{
    auto* const Bar = Put<TToolBar>(Form, "Bar");
    Bar->SetShowCaptions(true);
    TToolButton* Buttons[3];
    for (int I = 0; I < 3; ++I) {
        Buttons[I] = new TToolButton(Form);
        Buttons[I]->SetName("Button" + std::to_string(I));
        Buttons[I]->SetParent(Bar);
        Buttons[I]->OnClick = {&Log, &TEventLog::Click};
        Buttons[I]->SetStyle(I == 0 ? tbsButton : tbsCheck);
        Buttons[I]->SetGrouped(I > 0);
    }
    Show();
    EXPECT_EQ(ButtonText(*Bar, 0), "Button0");
    Buttons[0]->SetCaption(Umlaut);
    EXPECT_EQ(ButtonText(*Bar, 0), Umlaut);
    TBBUTTON Entry{};
    SendMessageA(Bar->Handle(), TB_GETBUTTON, 0, Param(&Entry));
    SendMessageA(GetParent(Bar->Handle()), WM_COMMAND, static_cast<WPARAM>(Entry.idCommand),
                 Param(Bar->Handle()));
    EXPECT_EQ(Log.Take(), (TTexts{"Button0 click"}));
    Buttons[1]->SetDown(true);
    Buttons[2]->SetDown(true);
    EXPECT_FALSE(Buttons[1]->Down());
    Buttons[0]->SetEnabled(false);
    EXPECT_FALSE(SendMessageA(Bar->Handle(), TB_ISBUTTONENABLED, static_cast<WPARAM>(Entry.idCommand), 0));
    delete Buttons[1];
    EXPECT_EQ(SendMessageA(Bar->Handle(), TB_BUTTONCOUNT, 0, 0), 2);
}

TEST_F(TComCtrls, ListsKeepColumnsItemsAndStates)
{
    auto* const List = Put<TListView>(Form, "List", 8, 8, 300, 150);
    List->SetViewStyle(vsReport);
    List->Columns()->Add()->SetCaption("Name");
    List->Columns()->Add()->SetCaption("Size");
    List->SetCheckboxes(true);
    for (const char* const Caption : {"First", "Second"}) {
        TListItem* const Item = List->Items()->Add();
        Item->SetCaption(Caption);
        Item->SubItems()->Add("1");
    }
    List->Items()->Item(1)->SetSelected(true);
    List->Items()->Item(0)->SetChecked(true);
    Show();
    EXPECT_EQ(ColumnText(*List, 1), "Size");
    EXPECT_EQ(ItemText(*List, 1, 0), "Second");
    List->Columns()->Items(1)->SetCaption(Umlaut);
    List->Items()->Item(1)->SubItems()->Put(0, "2");
    EXPECT_EQ(ColumnText(*List, 1), Umlaut);
    EXPECT_EQ(ItemText(*List, 1, 1), "2");
    List->SetGridLines(true);
    Form->Show();
    EXPECT_EQ(ItemText(*List, 1, 1), "2") << "with a new window";
    EXPECT_EQ(List->ItemIndex(), 1);
    EXPECT_TRUE(List->Items()->Item(0)->Checked());
    EXPECT_TRUE(SendMessageA(List->Handle(), LVM_GETITEMSTATE, 1, LVIS_SELECTED) & LVIS_SELECTED);
    // What the user selects.
    LVITEMA State{};
    State.stateMask = LVIS_SELECTED;
    SendMessageA(List->Handle(), LVM_SETITEMSTATE, 1, Param(&State));
    State.state = LVIS_SELECTED;
    SendMessageA(List->Handle(), LVM_SETITEMSTATE, 0, Param(&State));
    EXPECT_EQ(List->ItemIndex(), 0);
    List->Items()->Delete(0);
    EXPECT_EQ(SendMessageA(List->Handle(), LVM_GETITEMCOUNT, 0, 0), 1);
}

TEST_F(TComCtrls, TreesKeepNodesAndTheChosenOne)
{
    auto* const Tree = Put<TTreeView>(Form, "Tree", 8, 8, 200, 200);
    TTreeNode* const Fruit = Tree->Items()->Add(nullptr, "Fruit");
    Tree->Items()->AddChild(Fruit, "Pear");
    TTreeNode* const Apple = Tree->Items()->AddChild(Fruit, "Apple");
    Tree->Items()->Add(nullptr, "Bread");
    Fruit->Expand(true);
    Tree->SetSelected(Apple);
    Show();
    EXPECT_EQ(SendMessageA(Tree->Handle(), TVM_GETCOUNT, 0, 0), 4);
    EXPECT_EQ(SendMessageA(Tree->Handle(), TVM_GETNEXTITEM, TVGN_CARET, 0),
              reinterpret_cast<LRESULT>(Apple->ItemId()));
    Apple->SetText(Umlaut);
    EXPECT_EQ(NodeText(*Tree, *Apple), Umlaut);
    Tree->AlphaSort();
    EXPECT_EQ(Tree->Items()->Item(0)->Text(), "Bread");
    EXPECT_EQ(NodeText(*Tree, *Apple), Umlaut);
    EXPECT_EQ(Tree->Selected(), Apple);
    Tree->SetShowLines(false);
    Form->Show();
    EXPECT_EQ(NodeText(*Tree, *Apple), Umlaut) << "with a new window";
    SendMessageA(Tree->Handle(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(Fruit->ItemId()));
    EXPECT_EQ(Tree->Selected(), Fruit);
    Tree->Items()->Delete(Fruit);
    EXPECT_EQ(Tree->Items()->Count(), 1);
    EXPECT_EQ(SendMessageA(Tree->Handle(), TVM_GETCOUNT, 0, 0), 1);
}

TEST_F(TComCtrls, RangesHoldTheirPosition)
{
    auto* const Progress = Put<TProgressBar>(Form, "Progress");
    auto* const Track = Put<TTrackBar>(Form, "Track", 0, 30, 150, 45);
    auto* const Edit = Put<TEdit>(Form, "Edit", 0, 80, 50, 21);
    auto* const UpDown = Put<TUpDown>(Form, "UpDown", 60, 80, 17, 21);
    auto* const Picker = Put<TDateTimePicker>(Form, "Picker", 0, 110, 150, 21);
    Progress->SetPosition(250);
    EXPECT_EQ(Progress->Position(), 100);
    Track->SetPosition(7);
    UpDown->SetAssociate(Edit);
    UpDown->SetPosition(5);
    EXPECT_EQ(Edit->Text(), "5");
    Picker->SetDateTime(38353.75);
    Show();
    EXPECT_EQ(SendMessageA(Progress->Handle(), PBM_GETPOS, 0, 0), 100);
    EXPECT_EQ(SendMessageA(Track->Handle(), TBM_GETPOS, 0, 0), 7);
    Track->OnChange = {&Log, &TEventLog::Notify};
    SendMessageA(Track->Handle(), TBM_SETPOS, 1, 3);
    SendMessageA(Form->Handle(), WM_HSCROLL, TB_THUMBPOSITION, Param(Track->Handle()));
    EXPECT_EQ(Track->Position(), 3);
    EXPECT_EQ(Log.Take(), (TTexts{"Track notified"}));
    NMUPDOWN Delta{};
    Delta.iDelta = 1;
    NotifyFrom(*UpDown, Delta, &NMUPDOWN::hdr, static_cast<UINT>(UDN_DELTAPOS));
    EXPECT_EQ(UpDown->Position(), 6);
    EXPECT_EQ(Edit->Text(), "6");
    SYSTEMTIME Shown{};
    SendMessageA(Picker->Handle(), DTM_GETSYSTEMTIME, 0, Param(&Shown));
    EXPECT_EQ(Shown.wYear, 2005);
    EXPECT_EQ(Shown.wHour, 18);
}

// Items and nodes are bytes in form files; they must show, and go back unchanged.
TEST_F(TComCtrls, StoredItemsAreShownAndKept)
{
    const struct {
        const char* Name;
        const char* Class;
        const char* Property;
        const char* Bytes;
        TTexts Texts;
    } Cases[] = {
        {"list, narrow",
         "TListView",
         "Items.Data",
         "240000000100000000000000FFFFFFFFFFFFFFFF010000000000000002416202"
         "6364FFFF",
         {"Ab", "cd"}},
        {"list, wide",
         "TListView",
         "Items.ItemData",
         "032D0000000100000000000000FFFFFFFFFFFFFFFF01000000FFFFFFFF000000"
         "0001410001420040112202FFFF",
         {"A", "B"}},
        {"tree, narrow",
         "TTreeView",
         "Items.Data",
         "010000001A0000000000000000000000FFFFFFFFFFFFFFFF0000000001000000"
         "01411A0000000000000000000000FFFFFFFFFFFFFFFF00000000000000000142",
         {"A", "B"}},
        {"tree, wide",
         "TTreeView",
         "Items.NodeData",
         "0301000000220000000000000001000000FFFFFFFFFFFFFFFF00000000000000"
         "000000000001024100DC00",
         {"A\xC3\x9C"}},
        {"tree, with class names",
         "TTreeView",
         "Items.NodeData",
         "070100000009540054007200650065004E006F00640065002100000000000000"
         "00000000FFFFFFFFFFFFFFFFFFFFFFFF00000000010000000001014100000021"
         "0000000000000000000000FFFFFFFFFFFFFFFFFFFFFFFF000000000000000000"
         "01014200",
         {"A", "B"}},
        {"not understood", "TTreeView", "Items.NodeData", "63010000002200000000", {}},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        const std::string Digits = Case.Bytes;
        std::string Block = std::string("    ") + Case.Property + " = {";
        if (Digits.size() < 64)
            Block += Digits;
        else
            for (size_t I = 0; I < Digits.size(); I += 64)
                Block += "\n      " + Digits.substr(I, 64);
        Block += "}\n";
        const std::string Source =
            "object Form1: TForm\n  object View: " + std::string(Case.Class) + "\n" + Block + "  end\nend\n";
        TLoadedForm Loaded(ReadFormText(Source), TUnknownClasses::Refuse,
                           [](const TFormObject&) { return std::make_unique<TForm>(nullptr); });
        TTexts Found;
        TComponent* const View = Loaded.Root().FindComponent("View");
        if (auto* const List = dynamic_cast<TListView*>(View))
            for (int I = 0; I < List->Items()->Count(); ++I) {
                Found.push_back(List->Items()->Item(I)->Caption());
                for (int Sub = 0; Sub < List->Items()->Item(I)->SubItems()->Count(); ++Sub)
                    Found.push_back(List->Items()->Item(I)->SubItems()->Get(Sub));
            }
        if (auto* const Tree = dynamic_cast<TTreeView*>(View))
            for (TTreeNode* Node = Tree->Items()->GetFirstNode(); Node; Node = Node->GetNext())
                Found.push_back(Node->Text());
        EXPECT_EQ(Found, Case.Texts);
        TFormDocument Written;
        Written.Root = TComponentWriter(Loaded.Root()).WriteRoot();
        std::string Text = WriteFormText(Written);
        std::erase(Text, '\r');
        EXPECT_NE(Text.find(Block), Text.npos) << Text;
    }
}

// Changed items are written anew and must read back.
TEST_F(TComCtrls, ChangedItemsAreWrittenSoThatTheyReadBack)
{
    const auto Write = [&] { return TComponentWriter(*Form).WriteRoot(); };
    auto* const List = Put<TListView>(Form, "List");
    auto* const Tree = Put<TTreeView>(Form, "Tree");
    List->Items()->Add()->SetCaption(Umlaut);
    List->Items()->Item(0)->SubItems()->Add("Sub");
    Tree->Items()->AddChild(Tree->Items()->Add(nullptr, "Top"), Umlaut);
    TFormDocument Document;
    Document.Root = Write();
    TForm Copy(nullptr);
    TComponentReader(Document, TUnknownClasses::Refuse).ReadRoot(Copy);
    const auto* const List2 = dynamic_cast<TListView*>(Copy.FindComponent("List"));
    const auto* const Tree2 = dynamic_cast<TTreeView*>(Copy.FindComponent("Tree"));
    ASSERT_TRUE(List2 && Tree2);
    ASSERT_EQ(List2->Items()->Count(), 1);
    EXPECT_EQ(List2->Items()->Item(0)->Caption(), Umlaut);
    EXPECT_EQ(List2->Items()->Item(0)->SubItems()->Get(0), "Sub");
    ASSERT_EQ(Tree2->Items()->Count(), 2);
    EXPECT_EQ(Tree2->Items()->Item(1)->Text(), Umlaut);
    EXPECT_EQ(Tree2->Items()->Item(1)->Level(), 1);
}
