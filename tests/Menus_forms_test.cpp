#include <gtest/gtest.h>

#include "framework/forms/Menus.h"
#include "framework/forms/StandardClasses.h"
#include "framework/rtl/Exceptions.h"
#include "framework/streaming/FormFile.h"
#include "framework/streaming/LoadedForm.h"
#include "tests/FormSamples.h"

namespace {

std::string TextAt(HMENU Menu, int Position)
{
    char Text[200] = "";
    GetMenuStringA(Menu, static_cast<UINT>(Position), Text, sizeof Text, MF_BYPOSITION);
    return Text;
}

TTexts TextsOf(HMENU Menu)
{
    TTexts Result;
    for (int I = 0; I < GetMenuItemCount(Menu); ++I)
        Result.push_back(TextAt(Menu, I));
    return Result;
}

TMenuItem* AddItem(TMenuItem* Parent, const std::string& Name, const std::string& Caption, int ShortCut = 0)
{
    auto* const Item = new TMenuItem(Parent->Owner());
    Item->SetName(Name);
    Item->SetCaption(Caption);
    Item->SetShortCut(static_cast<TShortCut>(ShortCut));
    Parent->Add(Item);
    return Item;
}

struct TMenus : testing::Test {
    TApplicationScope Scope;
    TForm* Form = new TForm(Application);
    TMainMenu* Menu = new TMainMenu(Form);
    TMenuItem* File = AddItem(Menu->Items(), "File", "&File");
    TMenuItem* Open = AddItem(File, "Open", "&Open...", scCtrl | 'O');
    TMenuItem* Line = AddItem(File, "Line", "-");
    TMenuItem* Exit = AddItem(File, "Exit", "E&xit");
    TEventLog Log;

    void Show()
    {
        Form->SetMenu(Menu);
        Form->Show();
        Application->ProcessMessages();
    }
};

} // namespace

// A change that only reached the object left the old text on the screen until the
// menu was made anew.
TEST_F(TMenus, TheSystemsMenuFollowsEveryChange)
{
    Show();
    const HMENU Bar = GetMenu(Form->Handle());
    ASSERT_TRUE(Bar);
    EXPECT_EQ(Bar, Menu->Handle());
    EXPECT_EQ(TextsOf(Bar), (TTexts{"&File"}));
    const HMENU Popup = GetSubMenu(Bar, 0);
    EXPECT_EQ(TextsOf(Popup), (TTexts{"&Open...\tCtrl+O", "", "E&xit"}));

    File->SetCaption("\xD0\xA4\xD0\xB0\xD0\xB9\xD0\xBB");
    Open->SetCaption("\xC3\x96"
                     "ffnen");
    EXPECT_EQ(TextAt(Bar, 0), "\xD0\xA4\xD0\xB0\xD0\xB9\xD0\xBB");
    EXPECT_EQ(TextAt(Popup, 0), "\xC3\x96"
                                "ffnen\tCtrl+O");
    Open->SetShortCut(scNone);
    EXPECT_EQ(TextAt(Popup, 0), "\xC3\x96"
                                "ffnen");

    Open->SetVisible(false);
    EXPECT_EQ(TextsOf(Popup), (TTexts{"", "E&xit"}));
    Exit->SetCaption("Quit");
    EXPECT_EQ(TextAt(Popup, 1), "Quit") << "behind a hidden item";
    Open->SetVisible(true);
    Exit->SetMenuIndex(0);
    EXPECT_EQ(TextsOf(Popup), (TTexts{"Quit",
                                      "\xC3\x96"
                                      "ffnen",
                                      ""}));
    Exit->SetEnabled(false);
    EXPECT_TRUE(GetMenuState(Popup, 0, MF_BYPOSITION) & MF_GRAYED);
    delete Line;
    EXPECT_EQ(GetMenuItemCount(Popup), 2);
    TMenuItem* const Help = AddItem(Menu->Items(), "Help", "&Help");
    EXPECT_EQ(TextsOf(Bar), (TTexts{"\xD0\xA4\xD0\xB0\xD0\xB9\xD0\xBB", "&Help"}));
    AddItem(Help, "About", "&About");
    EXPECT_EQ(TextsOf(GetSubMenu(Bar, 1)), (TTexts{"&About"})) << "an item that gets its first item";
    EXPECT_EQ(GetSubMenu(Bar, 0), Popup) << "the handle stays";
}

TEST_F(TMenus, CommandsReachTheItems)
{
    Show();
    Open->OnClick = {&Log, &TEventLog::Click};
    File->OnClick = {&Log, &TEventLog::Click};
    const HMENU Popup = GetSubMenu(Menu->Handle(), 0);
    SendMessageA(Form->Handle(), WM_COMMAND, GetMenuItemID(Popup, 0), 0);
    EXPECT_EQ(Log.Take(), (TTexts{"Open click"}));
    SendMessageA(Form->Handle(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(Popup), 0);
    EXPECT_EQ(Log.Take(), (TTexts{"File click"}));
    Open->SetEnabled(false);
    SendMessageA(Form->Handle(), WM_COMMAND, Open->Command(), 0);
    EXPECT_EQ(Log.Take(), TTexts{});

    TPopupMenu Context(nullptr);
    TMenuItem* const Copy = AddItem(Context.Items(), "Copy", "&Copy");
    Copy->OnClick = {&Log, &TEventLog::Click};
    SendMessageA(PopupMenuWindow(), WM_COMMAND, Copy->Command(), 0);
    EXPECT_EQ(Log.Take(), (TTexts{"Copy click"}));
}

TEST_F(TMenus, ShortCutsNeedEveryItemAboveEnabled)
{
    Exit->SetShortCut(static_cast<TShortCut>(VK_F4));
    Exit->OnClick = {&Log, &TEventLog::Click};
    TMessage Key;
    Key.Msg = WM_KEYDOWN;
    Key.WParam = VK_F4;
    EXPECT_TRUE(Menu->IsShortCut(Key));
    EXPECT_EQ(Log.Take(), (TTexts{"Exit click"}));
    File->SetEnabled(false);
    EXPECT_FALSE(Menu->IsShortCut(Key));
    EXPECT_EQ(Log.Take(), TTexts{});
    Key.WParam = VK_F5;
    EXPECT_FALSE(Menu->IsShortCut(Key));
}

TEST_F(TMenus, OneRadioItemOfAGroupIsChecked)
{
    TMenuItem* Items[3];
    for (int I = 0; I < 3; ++I) {
        Items[I] = AddItem(File, "R" + std::to_string(I), "R");
        Items[I]->SetRadioItem(true);
        Items[I]->SetGroupIndex(I < 2 ? 1 : 2);
        Items[I]->SetChecked(I != 1);
    }
    Items[1]->SetChecked(true);
    EXPECT_FALSE(Items[0]->Checked());
    EXPECT_TRUE(Items[2]->Checked()) << "of another group";
    EXPECT_TRUE(GetMenuState(File->Handle(), Items[1]->Command(), MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_FALSE(GetMenuState(File->Handle(), Items[0]->Command(), MF_BYCOMMAND) & MF_CHECKED);
}

// Items of a document's menu take the place of the frame's with their number.
TEST_F(TMenus, MergedMenusAreOrderedByGroup)
{
    TMenuItem* const Window = AddItem(Menu->Items(), "Window", "Window");
    Window->SetGroupIndex(9);
    TMainMenu Other(nullptr);
    TMenuItem* const Edit = AddItem(Other.Items(), "Edit", "Edit");
    Edit->SetGroupIndex(5);
    AddItem(Other.Items(), "Doc", "Document")->SetGroupIndex(9);
    Edit->OnClick = {&Log, &TEventLog::Click};
    Menu->Merge(&Other);
    EXPECT_EQ(TextsOf(Menu->Handle()), (TTexts{"&File", "Edit", "Document"}));
    Edit->SetCaption("Bearbeiten");
    EXPECT_EQ(TextAt(Menu->Handle(), 1), "Bearbeiten");
    EXPECT_TRUE(Menu->DispatchCommand(Edit->Command()));
    EXPECT_EQ(Log.Take(), (TTexts{"Edit click"}));
    Menu->Unmerge(&Other);
    EXPECT_EQ(TextsOf(Menu->Handle()), (TTexts{"&File", "Window"}));
}

TEST_F(TMenus, ItemsAreInOneMenuOnly)
{
    EXPECT_THROW(Menu->Items()->Add(Open), EMenuError);
    EXPECT_THROW(Menu->Items()->Remove(Open), EMenuError);
    EXPECT_THROW(File->Items(3), EMenuError);
    EXPECT_EQ(File->Find("EXIT"), Exit);
}

TEST(ShortCuts, TextsAndNumbersAgree)
{
    const struct {
        int Value;
        const char* Text;
    } Cases[] = {
        {scCtrl | 'S', "Ctrl+S"},         {scShift | scCtrl | 'Z', "Shift+Ctrl+Z"},
        {scAlt | VK_BACK, "Alt+BkSp"},    {VK_F1, "F1"},
        {scShift | VK_F12, "Shift+F12"},  {VK_DELETE, "Del"},
        {scCtrl | VK_INSERT, "Ctrl+Ins"}, {scCtrl | scAlt | '0', "Ctrl+Alt+0"},
        {scCtrl | VK_PRIOR, "Ctrl+PgUp"}, {VK_ESCAPE, "Esc"},
    };
    for (const auto& Case : Cases) {
        EXPECT_EQ(ShortCutToText(static_cast<TShortCut>(Case.Value)), Case.Text);
        EXPECT_EQ(TextToShortCut(Case.Text), Case.Value);
    }
    EXPECT_EQ(TextToShortCut("^c"), scCtrl | 'C');
    EXPECT_EQ(TextToShortCut("alt+ctrl+a"), scAlt | scCtrl | 'A');
    for (const char* const Text : {"", "Ctrl+", "Control+C", "Ctrl+Nothing"})
        EXPECT_EQ(TextToShortCut(Text), scNone) << Text;
}

// Items are nested objects; those of other menus must not mix with them.
TEST(MenuFiles, ItemsAreReadAndWrittenInPlace)
{
    const TApplicationScope Scope;
    RegisterStandardClasses();
    const char Source[] = "object Form1: TForm\n"
                          "  object MainMenu1: TMainMenu\n"
                          "    Left = 8\n"
                          "    Top = 16\n"
                          "    object File1: TMenuItem\n"
                          "      Caption = '&File'\n"
                          "      object Open1: TMenuItem\n"
                          "        Caption = '&Open'\n"
                          "        ShortCut = 16463\n"
                          "      end\n"
                          "      object N1: TMenuItem\n"
                          "        Caption = '-'\n"
                          "      end\n"
                          "    end\n"
                          "  end\n"
                          "  object PopupMenu1: TPopupMenu\n"
                          "    Left = 48\n"
                          "    object Copy1: TMenuItem\n"
                          "      Caption = 'Copy'\n"
                          "      GroupIndex = 3\n"
                          "    end\n"
                          "  end\n"
                          "end\n";
    TLoadedForm Loaded(ReadFormText(Source), TUnknownClasses::Refuse,
                       [](const TFormObject&) { return std::make_unique<TForm>(nullptr); });
    auto* const Menu = dynamic_cast<TMainMenu*>(Loaded.Root().FindComponent("MainMenu1"));
    ASSERT_TRUE(Menu);
    ASSERT_EQ(Menu->Items()->Count(), 1);
    EXPECT_EQ(TextsOf(GetSubMenu(Menu->Handle(), 0)), (TTexts{"&Open\tCtrl+O", ""}));
    Menu->Items()->Items(0)->Items(0)->SetCaption("\xC3\x96"
                                                  "ffnen");
    std::string Expected = Source;
    Expected.replace(Expected.find("'&Open'"), 7, "#214'ffnen'");
    EXPECT_EQ(WriteFormText(Loaded.Save()), Expected);
}
