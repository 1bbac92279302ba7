// The language selector: controls and menus driven as a user would.
#include <functional>
#include <utility>

#include <gtest/gtest.h>

#include "framework/forms/ComboBoxes.h"
#include "framework/forms/GroupBoxes.h"
#include "framework/forms/Labels.h"
#include "framework/forms/ListBoxes.h"
#include "framework/forms/Menus.h"
#include "framework/forms/Notebooks.h"
#include "framework/forms/PushButtons.h"
#include "framework/rtl/SysUtils.h"
#include "platform/winapi.h"
#include "tests/QltScene.h"

namespace {

using TTexts = std::vector<std::string>;

constexpr int English = 0x409;
constexpr int German = 0x407;
constexpr int Swedish = 0x41D;
const TTexts SortedNames = {"English, United States", "German, Germany", "Swedish, Sweden"};

LPARAM MiddleOf(const RECT& Rect)
{
    return MAKELPARAM((Rect.left + Rect.right) / 2, (Rect.top + Rect.bottom) / 2);
}

void ClickAt(TWinControl& Control, LPARAM Where)
{
    SendMessageA(Control.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, Where);
    SendMessageA(Control.Handle(), WM_LBUTTONUP, 0, Where);
}

class Selectors : public TLocaleScene, public testing::Test {
public:
    Selectors()
    {
        Form->SetBounds(0, 0, 600, 400);
        SetLocalesOf(*Translator, {English, German, Swedish});
        Translator->TranslateLocale(English);
        Translator->OnTranslated = {static_cast<TLocaleScene*>(this), &TLocaleScene::Count};
        Translator->OnLocaleSelected = {this, &Selectors::Selected};
    }

    template<class TControlClass>
    TControlClass& AddControl()
    {
        auto* const Result = new TControlClass(Form);
        Result->SetParent(Form);
        Result->SetBounds(0, 0, 400, 200);
        return *Result;
    }

    TMenuItem& AddItem(TMenuItem& Menu, const std::string& Caption)
    {
        auto* const Result = new TMenuItem(Form);
        Result->SetCaption(Caption);
        Menu.Add(Result);
        return *Result;
    }

    void Selected(TObject* Sender)
    {
        EXPECT_EQ(Sender, Translator);
        ++Selections;
        if (OnSelected)
            OnSelected();
    }

    // Click chooses the line of that number among SortedNames; Marked tells
    // which one is shown as the present one.
    void Drive(const std::function<void(int)>& Click, const std::function<int()>& Marked)
    {
        Form->Show();
        Application->ProcessMessages();
        TFormTranslator& Follower = AddFormTranslator(*Form, Swedish);
        Calls = 0;
        EXPECT_EQ(Marked(), 0);
        Click(2);
        EXPECT_EQ(Marked(), 2);
        EXPECT_EQ(Translator->ActiveLocale(), Swedish);
        EXPECT_EQ(CurrencyString, "kr");
        EXPECT_EQ(GetThreadLocale(), static_cast<LCID>(Swedish));
        EXPECT_TRUE(Follower.Translate());
        EXPECT_EQ(Form->Caption(), "text of 1053");
        Click(2);
        EXPECT_EQ(Calls, 1) << "a click on the active language does nothing";
        EXPECT_EQ(Selections, 1);
        Click(1);
        EXPECT_EQ(Marked(), 1);
        EXPECT_EQ(DecimalSeparator + DateSeparator, ",.");
        EXPECT_FALSE(Follower.Translate());
        EXPECT_EQ(Calls, 2);
        EXPECT_EQ(Selections, 2);
        Translator->TranslateLocale(English);
        EXPECT_EQ(Marked(), 0) << "follows the application";
        EXPECT_EQ(Selections, 2);
    }

    void DriveMenu(TMenuItem& Menu, const std::function<void(TMenuItem&)>& Choose)
    {
        TTexts Captions;
        for (int I = 0; I < Menu.Count(); ++I) {
            Captions.push_back(Menu.Items(I)->Caption());
            EXPECT_TRUE(Menu.Items(I)->RadioItem());
        }
        EXPECT_EQ(Captions, SortedNames);
        Drive([&](int Index) { Choose(*Menu.Items(Index)); },
              [&] {
                  int Result = -1;
                  for (int I = 0; I < Menu.Count(); ++I)
                      if (Menu.Items(I)->Checked())
                          Result = I;
                  return Result;
              });
    }

    void Command(TMenuItem& Item) { SendMessageA(Form->Handle(), WM_COMMAND, Item.Command(), 0); }

    // Reads and closes the next message form.
    void CloseMessage(TObject*, bool& Done)
    {
        Done = false;
        TForm* const Shown = Screen->ActiveForm();
        if (!Shown || Shown->ClassName() != "TMessageForm" || !Message.empty())
            return;
        Message = static_cast<TLabel*>(Shown->FindComponent("Message"))->Caption();
        Shown->SetModalResult(mrOk);
    }

    void Ignore(TObject*, const Exception&) {}

    // Carries out Deed the first time.
    void Strike(TObject*)
    {
        if (const auto Once = std::exchange(Deed, nullptr))
            Once();
    }
    void StrikeBefore(TObject*, bool&) { Strike(nullptr); }
    void StrikeAtChange(TObject*, TMenuItem*, bool) { Strike(nullptr); }

    int Selections = 0;
    std::string Message;
    std::function<void()> OnSelected;
    std::function<void()> Deed;
};

TEST_F(Selectors, ListBox)
{
    auto& Control = AddControl<TListBox>();
    Translator->SetAdoptOn(&Control);
    EXPECT_EQ(LinesOf(*Control.Items()), SortedNames);
    EXPECT_EQ(ObjectInteger(Control.Items()->Objects(2)), Swedish);
    Drive(
        [&](int Index) {
            RECT Item;
            SendMessageA(Control.Handle(), LB_GETITEMRECT, static_cast<WPARAM>(Index),
                         reinterpret_cast<LPARAM>(&Item));
            ClickAt(Control, MiddleOf(Item));
        },
        [&] { return Control.ItemIndex(); });
}

TEST_F(Selectors, ComboBox)
{
    auto& Control = AddControl<TComboBox>();
    Control.SetStyle(csDropDownList);
    Translator->SetAdoptOn(&Control);
    EXPECT_EQ(LinesOf(*Control.Items()), SortedNames);
    Drive(
        [&](int Index) {
            Control.SetFocus();
            const char Initial = SortedNames[static_cast<size_t>(Index)].front();
            SendMessageA(Control.Handle(), WM_CHAR, static_cast<WPARAM>(Initial), 0);
        },
        [&] { return Control.ItemIndex(); });
}

TEST_F(Selectors, RadioGroup)
{
    auto& Control = AddControl<TRadioGroup>();
    Translator->SetAdoptOn(&Control);
    EXPECT_EQ(LinesOf(*Control.Items()), SortedNames);
    Drive([&](int Index) { SendMessageA(Control.Buttons(Index)->Handle(), BM_CLICK, 0, 0); },
          [&] {
              const int Index = Control.ItemIndex();
              EXPECT_TRUE(Control.Buttons(Index)->Checked());
              return Index;
          });
}

TEST_F(Selectors, TabSet)
{
    auto& Control = AddControl<TTabSet>();
    Translator->SetAdoptOn(&Control);
    EXPECT_EQ(LinesOf(*Control.Tabs()), SortedNames);
    Drive(
        [&](int Index) {
            // From the last tab on the right to the wanted one.
            for (int X = Index == 2 ? 399 : 200; X > 0; X -= 4)
                if (Control.TabIndex() != Index)
                    ClickAt(Control, MAKELPARAM(X, 8));
        },
        [&] { return Control.TabIndex(); });
}

TEST_F(Selectors, MenuItem)
{
    auto* const Menu = new TMainMenu(Form);
    TMenuItem& Languages = AddItem(*Menu->Items(), "Language");
    AddItem(Languages, "made by the application");
    Form->SetMenu(Menu);
    Translator->SetAdoptOn(&Languages);
    Translator->UpdateAdoptOn();
    DriveMenu(Languages, [this](TMenuItem& Item) { Command(Item); });
    int Owned = 0;
    for (int I = 0; I < Translator->ComponentCount(); ++I)
        Owned += dynamic_cast<TMenuItem*>(Translator->Components(I)) != nullptr;
    EXPECT_EQ(Owned, 3) << "items that were replaced are gone";
}

TEST_F(Selectors, MainMenu)
{
    auto* const Menu = new TMainMenu(Form);
    Form->SetMenu(Menu);
    Translator->SetAdoptOn(Menu);
    DriveMenu(*Menu->Items(), [this](TMenuItem& Item) { Command(Item); });
}

TEST_F(Selectors, PopupMenu)
{
    auto* const Menu = new TPopupMenu(Form);
    Translator->SetAdoptOn(Menu);
    DriveMenu(*Menu->Items(),
              [](TMenuItem& Item) { SendMessageA(PopupMenuWindow(), WM_COMMAND, Item.Command(), 0); });
}

TEST_F(Selectors, WholeMenusLoseSubItemsByNumber)
{
    auto* const Menu = new TMainMenu(Form);
    TMenuItem& File = AddItem(*Menu->Items(), "File");
    for (const char* const Caption : {"New", "Open"})
        AddItem(File, Caption);
    TMenuItem& Edit = AddItem(*Menu->Items(), "Edit");
    for (const char* const Caption : {"Cut", "Copy"})
        AddItem(Edit, Caption);
    Translator->SetAdoptOn(Menu);
    EXPECT_EQ(Menu->Items()->Count(), 5);
    EXPECT_EQ(File.Items(0)->Caption(), "Open");
    EXPECT_EQ(Edit.Items(0)->Caption(), "Cut");
    EXPECT_THROW(Translator->UpdateAdoptOn(), EMenuError) << "languages have no sub-items";
}

TEST_F(Selectors, OthersAreRefused)
{
    auto& ListBox = AddControl<TListBox>();
    Translator->SetAdoptOn(&ListBox);
    Application->OnIdle = {this, &Selectors::CloseMessage};
    Translator->SetAdoptOn(&AddControl<TButton>());
    EXPECT_EQ(Message, "Error setting AdoptOn property, an illigal component");
    EXPECT_EQ(Translator->AdoptOn(), &ListBox);
    Message.clear();
    Translator->SetListFormat("abc");
    EXPECT_EQ(Message, "Invalid format string, you must provide at least one string index");
    EXPECT_EQ(Translator->ListFormat(), "%0:s, %1:s");
    Message.clear();
    Translator->SetListFormat("%2:s");
    EXPECT_EQ(Message, "");
    EXPECT_EQ(LinesOf(*ListBox.Items()), (TTexts{"Deutsch", "English", "svenska"}));
    EXPECT_THROW(Translator->SetListFormat("%9:s"), EConvertError);
}

TEST_F(Selectors, FormerControlKeepsItsItemsAndHandler)
{
    auto& Former = AddControl<TListBox>();
    Translator->SetAdoptOn(&Former);
    Translator->SetAdoptOn(nullptr);
    Form->Show();
    EXPECT_EQ(Former.Items()->Count(), 3);
    Former.SetItemIndex(2);
    Former.OnClick(&Former);
    EXPECT_EQ(Translator->ActiveLocale(), Swedish);
    delete Translator;
    Translator = nullptr;
    EXPECT_FALSE(Former.OnClick) << "must not reach what is gone";
}

TEST_F(Selectors, RemovedControlIsForgotten)
{
    for (const char* const Name : {"ListBox1", ""}) {
        auto* const ListBox = &AddControl<TListBox>();
        ListBox->SetName(Name);
        Translator->SetAdoptOn(ListBox);
        delete ListBox;
        EXPECT_EQ(Translator->AdoptOn(), nullptr);
        Translator->TranslateLocale(German);
    }
}

TEST_F(Selectors, SelectionsOutsideTheLanguagesDoNothing)
{
    auto& ListBox = AddControl<TListBox>();
    Translator->SetAdoptOn(&ListBox);
    SetLocalesOf(*Translator, {Swedish, German});
    Translator->UpdateAdoptOn();
    EXPECT_EQ(ListBox.ItemIndex(), -1) << "the active locale is not in the list";
    ListBox.OnClick(&ListBox);
    EXPECT_EQ(Translator->ActiveLocale(), English);
}

TEST_F(Selectors, GroupIsNotRebuiltUnderItsOwnClick)
{
    auto& Group = AddControl<TRadioGroup>();
    Translator->SetAdoptOn(&Group);
    Form->Show();
    TRadioButton* const Clicked = Group.Buttons(2);
    OnSelected = [this] { Translator->SetListFormat("%0:s"); };
    SendMessageA(Clicked->Handle(), BM_CLICK, 0, 0);
    EXPECT_EQ(Group.Buttons(2), Clicked);
    EXPECT_EQ(LinesOf(*Group.Items()), SortedNames);
    Translator->UpdateAdoptOn();
    EXPECT_EQ(Group.Items()->Get(2), "Swedish") << "the flag is cleared after the click";
    OnSelected = [] { throw EConvertError("from a handler"); };
    Application->OnException = {this, &Selectors::Ignore};
    SendMessageA(Group.Buttons(1)->Handle(), BM_CLICK, 0, 0);
    Translator->SetListFormat("%2:s");
    EXPECT_EQ(Group.Items()->Get(0), "Deutsch") << "and when the click failed";
}

// Whoever hears of a switch, or of a change of the menu, may destroy what takes part.
TEST_F(Selectors, HandlersMayDestroy)
{
    using TStep = std::function<void(TMainMenu&)>;
    const TStep TranslatorGoes = [this](TMainMenu&) { delete std::exchange(Translator, nullptr); };
    const TStep MenuGoes = [](TMainMenu& Menu) { delete &Menu; };
    const TStep FormGoes = [this](TMainMenu&) { delete std::exchange(Form, nullptr); };
    const TStep Events[] = {
        [this](TMainMenu&) {
            Translator->OnTranslate = {this, &Selectors::StrikeBefore};
        },
        [this](TMainMenu&) {
            Translator->OnTranslated = {this, &Selectors::Strike};
        },
        [this](TMainMenu&) {
            Translator->OnLocaleSelected = {this, &Selectors::Strike};
        },
        [this](TMainMenu& Menu) {
            Menu.OnChange = {this, &Selectors::StrikeAtChange};
        },
    };
    for (const TStep& Goes : {TranslatorGoes, MenuGoes, FormGoes}) {
        for (const TStep& Listen : Events) {
            delete Form;
            Form = &AddForm("Form1");
            Translator = new TLocaleTranslator(Form);
            SetLocalesOf(*Translator, {English, German, Swedish});
            auto* const Menu = new TMainMenu(Form);
            Form->SetMenu(Menu);
            Translator->SetAdoptOn(Menu);
            Translator->TranslateLocale(English);
            Listen(*Menu);
            Deed = [&] { Goes(*Menu); };
            Command(*Menu->Items()->Items(2));
            EXPECT_FALSE(Deed);
        }
    }
    Form = &AddForm("Form1");
    Translator = new TLocaleTranslator(Form);
    auto* const Menu = new TMainMenu(Form);
    Menu->OnChange = {this, &Selectors::StrikeAtChange};
    Deed = [&] { TranslatorGoes(*Menu); };
    Translator->SetAdoptOn(Menu);
    EXPECT_EQ(Menu->Items()->Count(), 0) << "the items were the translator's";
    delete Form;
}

TEST_F(Selectors, MenuMayBeRebuiltUnderItsOwnClick)
{
    auto* const Menu = new TMainMenu(Form);
    TMenuItem& Languages = AddItem(*Menu->Items(), "Language");
    Form->SetMenu(Menu);
    Translator->SetAdoptOn(&Languages);
    OnSelected = [this] { Translator->UpdateAdoptOn(); };
    Command(*Languages.Items(2));
    Command(*Languages.Items(1));
    EXPECT_EQ(Translator->ActiveLocale(), German);
    EXPECT_EQ(Languages.Count(), 3);
    EXPECT_TRUE(Languages.Items(1)->Checked());
}

} // namespace
