#include <gtest/gtest.h>

#include "framework/forms/Actions.h"
#include "framework/forms/Edits.h"
#include "framework/forms/Menus.h"
#include "framework/forms/PushButtons.h"
#include "framework/forms/StandardActions.h"
#include "framework/forms/StandardClasses.h"
#include "framework/streaming/FormFile.h"
#include "framework/streaming/LoadedForm.h"
#include "tests/FormSamples.h"

namespace {

struct TActions : testing::Test {
    TApplicationScope Scope;
    TForm* Form = new TForm(Application);
    TActionList* List = new TActionList(Form);
    TAction* Save = Make("Save");
    TButton* Button = Put<TButton>(Form, "Button");
    TMenuItem* Item = new TMenuItem(Form);
    TEventLog Log;

    TAction* Make(const std::string& Name)
    {
        auto* const Action = new TAction(Form);
        Action->SetName(Name);
        Action->SetCaption("&" + Name);
        Action->SetActionList(List);
        return Action;
    }
    void Link()
    {
        Item->SetName("Item");
        Button->SetAction(Save);
        Item->SetAction(Save);
    }
};

} // namespace

// A text that was changed by hand must stay when the action's text changes.
TEST_F(TActions, ValuesReachTheClientsThatStillHaveThem)
{
    Save->SetOnExecute({&Log, &TEventLog::Click});
    Link();
    EXPECT_EQ(Button->Caption(), "&Save");
    EXPECT_EQ(Item->Caption(), "&Save");
    EXPECT_FALSE(Item->IsCaptionStored());
    Button->SetCaption("By hand");
    Save->SetCaption("&Speichern");
    Save->SetEnabled(false);
    Save->SetShortCut(static_cast<TShortCut>(scCtrl | 'S'));
    Save->SetHint("Stores the text");
    EXPECT_EQ(Button->Caption(), "By hand");
    EXPECT_TRUE(Button->IsCaptionStored());
    EXPECT_FALSE(Button->Enabled());
    EXPECT_EQ(Item->Caption(), "&Speichern");
    EXPECT_FALSE(Item->Enabled());
    EXPECT_EQ(ShortCutToText(Item->ShortCut()), "Ctrl+S");
    EXPECT_EQ(Button->Hint(), "Stores the text");
    Save->SetEnabled(true);
    Button->Click();
    Item->Click();
    EXPECT_EQ(Log.Take(), (TTexts{"Save click", "Save click"}));
    delete Save;
    EXPECT_EQ(Button->Action(), nullptr);
    EXPECT_EQ(Item->Action(), nullptr);
    Item->SetCaption("Alone");
    EXPECT_EQ(Item->Caption(), "Alone");
}

TEST_F(TActions, OneActionOfAGroupIsChecked)
{
    TAction* const Left = Make("Left");
    TAction* const Right = Make("Right");
    for (TAction* const Action : {Left, Right}) {
        Action->SetGroupIndex(2);
        Action->SetAutoCheck(true);
        Action->SetOnExecute({&Log, &TEventLog::Click});
    }
    Item->SetAction(Left);
    Left->Execute();
    EXPECT_TRUE(Item->Checked());
    Right->Execute();
    EXPECT_FALSE(Item->Checked());
    Right->Execute();
    EXPECT_TRUE(Right->Checked()) << "a group keeps one checked";
}

TEST_F(TActions, ShortCutsExecuteEnabledActionsOnly)
{
    Save->SetOnExecute({&Log, &TEventLog::Click});
    Save->SetShortCut(static_cast<TShortCut>(VK_F2));
    Save->SecondaryShortCuts()->Add("F6");
    TMessage Key;
    for (const int Code : {VK_F2, VK_F6}) {
        Key.WParam = static_cast<WPARAM>(Code);
        EXPECT_TRUE(List->IsShortCut(Key));
        EXPECT_EQ(Log.Take(), (TTexts{"Save click"}));
    }
    Save->SetEnabled(false);
    EXPECT_FALSE(List->IsShortCut(Key));
    Save->SetEnabled(true);
    List->SetState(asSuspended);
    Save->Execute();
    EXPECT_EQ(Log.Take(), TTexts{});
}

TEST_F(TActions, EditActionsActOnTheFocus)
{
    auto* const Edit = Put<TEdit>(Form, "Edit", 0, 30, 100, 21);
    Edit->SetText("some text");
    Form->SetActiveControl(Edit);
    Form->Show();
    Application->ProcessMessages();
    Edit->SetFocus();
    auto* const SelectAll = new TEditSelectAll(Form);
    auto* const Delete = new TEditDelete(Form);
    Edit->SetSelLength(0);
    Delete->Update();
    EXPECT_FALSE(Delete->Enabled()) << "nothing is selected";
    EXPECT_TRUE(SelectAll->Execute());
    EXPECT_EQ(Edit->SelLength(), 9);
    EXPECT_TRUE(Delete->Execute());
    EXPECT_EQ(Edit->Text(), "");
}

// A caption that the file stores beside an action is the author's; one that it
// does not store is the action's.
TEST(ActionFiles, StoredTextsStayAndOthersComeFromTheAction)
{
    const TApplicationScope Scope;
    RegisterStandardClasses();
    const char Source[] = "object Form1: TForm\n"
                          "  object Button1: TButton\n"
                          "    Left = 8\n"
                          "    Top = 8\n"
                          "    Width = 75\n"
                          "    Height = 25\n"
                          "    Action = Save\n"
                          "    Caption = 'Own'\n"
                          "    TabOrder = 0\n"
                          "  end\n"
                          "  object ActionList1: TActionList\n"
                          "    object Save: TAction\n"
                          "      Category = 'File'\n"
                          "      Caption = '&Save'\n"
                          "      ShortCut = 16467\n"
                          "    end\n"
                          "  end\n"
                          "  object PopupMenu1: TPopupMenu\n"
                          "    object Save1: TMenuItem\n"
                          "      Action = Save\n"
                          "    end\n"
                          "  end\n"
                          "end\n";
    TLoadedForm Loaded(ReadFormText(Source), TUnknownClasses::Refuse,
                       [](const TFormObject&) { return std::make_unique<TForm>(nullptr); });
    auto* const Button = dynamic_cast<TButton*>(Loaded.Root().FindComponent("Button1"));
    auto* const Item = dynamic_cast<TMenuItem*>(Loaded.Root().FindComponent("Save1"));
    ASSERT_TRUE(Button && Item);
    EXPECT_EQ(Button->Caption(), "Own");
    EXPECT_EQ(Item->Caption(), "&Save");
    EXPECT_EQ(WriteFormText(Loaded.Save()), Source);
}
