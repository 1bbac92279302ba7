// The editor of form translators: items and their translations, closing, settings.
#include "FormEditorScene.h"
#include "core/TranslatorEditors.h"
#include "editors/Qftedit.h"
#include "framework/forms/GroupBoxes.h"
#include "framework/forms/MessageForms.h"

namespace {

using TFormEditorTest = TFormEditorScene;

const TTexts Five = {"Caption='Hälsning'", "Edit1.Text=''", "Label1.Caption='Hej'", "Memo1.Lines[0]=''",
                     "Memo1.Lines[1]='Två'"};

TEST_F(TFormEditorTest, PageKeysGoToOtherItems)
{
    const struct {
        const char* Name;
        bool Move;
        const char* Start;
        WPARAM Key;
        TTexts Reached;
    } Cases[] = {
        {"next untranslated", true, "Caption", VK_NEXT, {"Edit1.Text", "Memo1.Lines[0]"}},
        {"last, though translated", true, "Memo1.Lines[0]", VK_NEXT, {"Memo1.Lines[1]", "Memo1.Lines[1]"}},
        {"former untranslated", true, "Memo1.Lines[1]", VK_PRIOR, {"Memo1.Lines[0]", "Edit1.Text"}},
        {"first, though translated", true, "Edit1.Text", VK_PRIOR, {"Caption", "Caption"}},
        {"each next", false, "Caption", VK_NEXT, {"Edit1.Text", "Label1.Caption", "Memo1.Lines[0]"}},
        {"each former", false, "Label1.Caption", VK_PRIOR, {"Edit1.Text", "Caption", "Caption"}},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        Have(Five);
        TFormUser User;
        User.Page("Options").Do([&](TForm& Editor) {
            auto& Move = PartOf<TCheckBox>(Editor, "CkxMove");
            if (Move.Checked() != Case.Move)
                SendMessageA(Move.Handle(), BM_CLICK, 0, 0);
        });
        User.Page("Translations").Choose("PropList", Case.Start).Click("EdtTranslation");
        for (const std::string& Each : Case.Reached)
            User.Key(Case.Key).SeeSelected("PropList", {Each});
        User.Click("BtnCancel");
        EXPECT_FALSE(Edit(User));
        EXPECT_EQ(Setting("MoveNextUntranslated"), Case.Move ? "" : "0");
    }
}

TEST_F(TFormEditorTest, PageKeysStoreWhatWasTyped)
{
    Have(Five);
    TFormUser User;
    User.Choose("PropList", "Edit1.Text").Type("EdtTranslation", "skriv").Key(VK_NEXT);
    User.SeeSelected("PropList", {"Memo1.Lines[0]"})
        .See("EdtTranslation", "")
        .See("EdtOrgTranslation", "First");
    User.Type("EdtTranslation", "Ett").Key(VK_PRIOR).SeeSelected("PropList", {"Caption"});
    User.See("EdtTranslation", "Hälsning").See("EdtOrgTranslation", "Greeting").Click("BtnOK");
    EXPECT_TRUE(Edit(User));
    EXPECT_EQ(Lines(), (TTexts{"Caption='Hälsning'", "Edit1.Text='skriv'", "Label1.Caption='Hej'",
                               "Memo1.Lines[0]='Ett'", "Memo1.Lines[1]='Två'"}));
}

TEST_F(TFormEditorTest, EscapePutsBackWhatTheItemHad)
{
    Have(Five);
    TFormUser User;
    User.Choose("PropList", "Label1.Caption").Type("EdtTranslation", "Hallå").Key(VK_ESCAPE);
    User.See("EdtTranslation", "Hej").Click("BtnOK");
    EXPECT_FALSE(Edit(User)) << "what was undone is a change";

    TFormUser Returning;
    Returning.Choose("PropList", "Label1.Caption").Type("EdtTranslation", "Hallå").Click("EdtOrgTranslation");
    Returning.Click("EdtTranslation").See("EdtTranslation", "Hallå").Key(VK_ESCAPE);
    Returning.See("EdtTranslation", "Hej").Click("BtnOK");
    Edit(Returning);
    EXPECT_EQ(Lines(), Five);
}

// A value as a form file or a file of translations may have it: what the user
// sees of it, and what becomes of it when something else is typed.
TEST_F(TFormEditorTest, ValuesOfAllKindsAreEdited)
{
    const std::string Long(6000, 'x');
    const struct {
        const char* Name;
        std::string Line;
        std::string Shown;
        std::string Typed;
        std::string Result;
    } Cases[] = {
        {"several lines", "K='A'#13#10'B'", "A\r\nB", "C\r\nD", "K='C'#13#10'D'"},
        {"equals sign and quotes", "K='a=''b'''", "a='b'", "''=", "K='''''='"},
        {"number", "K=75", "75", "90", "K=90"},
        {"set", "K=[fsBold]", "[fsBold]", "[]", "K=[]"},
        {"number sign by itself", "K='#'", "#", "# 1", "K='# 1'"},
        {"malformed", "K=#x", "#x", "y", "K='y'"},
        {"no value", "K=", "", "plain", "K=plain"},
        {"no value, quotes typed", "K=", "", "It's #1", "K='It''s #1'"},
        {"no value, lines typed", "K=", "", "A\r\nB", "K='A'#13#10'B'"},
        {"long", "K='" + Long + "'#13#10'end'", Long + "\r\nend", Long + Long, "K='" + Long + Long + "'"},
        {"cut within a code", "K='" + std::string(4094, 'y') + "'#13#10'z'", std::string(4094, 'y') + "\r\nz",
         "short", "K='short'"},
        {"beyond ASCII", "K='日本語 אב'", "日本語 אב", "Ünïcödé 😀", "K='Ünïcödé 😀'"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        Have({Case.Line});
        TFormUser User;
        User.Choose("PropList", "K").See("EdtTranslation", Case.Shown);
        User.Type("EdtTranslation", Case.Typed).Click("BtnOK");
        EXPECT_TRUE(Edit(User));
        EXPECT_EQ(Lines(), TTexts{Case.Result});
    }
}

// Each line has its own item, also where a search for its key finds another line
// or none.
TEST_F(TFormEditorTest, LinesAreEditedThatAreHardToFind)
{
    const struct {
        const char* Name;
        TTexts Lines;
        int Item;
        TTexts Result;
    } Cases[] = {
        {"key twice, first", {"A='1'", "A='2'", "B='3'"}, 0, {"A='x'", "A='2'", "B='3'"}},
        {"key twice, second", {"A='1'", "A='2'", "B='3'"}, 1, {"A='1'", "A='x'", "B='3'"}},
        {"behind longer keys",
         {"A1='1'", "A2='2'", "A3='3'", "A='4'"},
         3,
         {"A1='1'", "A2='2'", "A3='3'", "A='x'"}},
        {"out of order", {"C='1'", "A='2'", "B='3'"}, 0, {"C='x'", "A='2'", "B='3'"}},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        Have(Case.Lines);
        TFormUser User;
        User.Do([&](TForm& Editor) {
            auto& List = PartOf<TListBox>(Editor, "PropList");
            ASSERT_EQ(List.Items()->Count(), static_cast<int>(Case.Lines.size()));
            const TRect Place = List.ItemRect(Case.Item);
            SendMessageA(List.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, Place.top + 2));
            SendMessageA(List.Handle(), WM_LBUTTONUP, 0, MAKELPARAM(20, Place.top + 2));
        });
        User.Type("EdtTranslation", "x").Click("BtnOK");
        EXPECT_TRUE(Edit(User));
        EXPECT_EQ(Lines(), Case.Result);
    }
}

TEST_F(TFormEditorTest, ClosingAsksOnlyAboutChanges)
{
    enum TWay { ByOK, ByCancel, ByButton, ByEscape };
    const struct {
        const char* Name;
        TWay Way;
        bool Change;
        bool Discard; // the answer; No goes back to the editor, which closes with OK then
        bool Changed;
    } Cases[] = {
        {"OK", ByOK, true, false, true},
        {"OK without a change", ByOK, false, false, false},
        {"Cancel", ByCancel, true, true, false},
        {"Cancel, not meant", ByCancel, true, false, true},
        {"Cancel without a change", ByCancel, false, false, false},
        {"button", ByButton, true, true, false},
        {"button, not meant", ByButton, true, false, true},
        {"button without a change", ByButton, false, false, false},
        {"Escape", ByEscape, true, true, false},
        {"Escape, not meant", ByEscape, true, false, true},
        {"Escape without a change", ByEscape, false, false, false},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        Have(Five);
        TFormUser User;
        User.Choose("PropList", "Label1.Caption");
        if (Case.Change)
            User.Type("EdtTranslation", "Hallå");
        if (Case.Way == ByOK)
            User.Click("BtnOK");
        else if (Case.Way == ByCancel)
            User.Click("BtnCancel");
        else if (Case.Way == ByButton)
            User.Close();
        else
            User.Choose("PropList", "Label1.Caption").Key(VK_ESCAPE);
        if (Case.Change && Case.Way != ByOK) {
            User.Answer("Do you want to discard the changes ?", Case.Discard ? "Yes" : "No");
            if (!Case.Discard)
                User.See("EdtTranslation", "Hallå").Click("BtnOK");
        }
        EXPECT_EQ(Edit(User), Case.Changed);
        EXPECT_EQ(Lines()[2], Case.Changed ? "Label1.Caption='Hallå'" : "Label1.Caption='Hej'");
    }
}

TEST_F(TFormEditorTest, OptionsCountTheTranslations)
{
    Have(Five);
    TFormUser User;
    User.Page("Options").See("LblTotalNr", "5").See("LblLocalizedNr", "3").Page("Translations");
    User.Choose("PropList", "Edit1.Text").Type("EdtTranslation", "x").Page("Options");
    User.See("LblTotalNr", "5").See("LblLocalizedNr", "4").Click("BtnOK");
    EXPECT_TRUE(Edit(User));
}

TEST_F(TFormEditorTest, FontsAreRemembered)
{
    const struct {
        const char* Button;
        const char* Label;
        const char* Setting;
        TTexts Controls;
    } Cases[] = {
        {"BtnEditFont", "LblEditFont", "EditFontName", {"EdtTranslation"}},
        {"BtnDisplayFont",
         "LblDisplayFont",
         "DisplayFontName",
         {"PropList", "EdtOrgTranslation", "ListAvail", "CommonPropList"}},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Button);
        std::string Face = "Tahoma";
        const auto SeeFace = [&](TForm& Editor) {
            EXPECT_EQ(PartOf<TLabel>(Editor, Case.Label).Caption(), Face);
            for (const std::string& Each : Case.Controls)
                EXPECT_EQ(PartOf<TWinControl>(Editor, Each).Font()->Name(), Face) << Each;
        };
        TFormUser User;
        User.Page("Font").See(Case.Label, Face).Click(Case.Button).ChooseOtherFont(Face).Do(SeeFace);
        User.Click("BtnCancel");
        EXPECT_FALSE(Edit(User));
        EXPECT_NE(Face, "Tahoma");
        EXPECT_EQ(Setting(Case.Setting), Face);
        TFormUser Again;
        Again.Do(SeeFace).Click("BtnCancel");
        EXPECT_FALSE(Edit(Again));
    }
}

TEST_F(TFormEditorTest, ReadingOrderIsRemembered)
{
    const auto SeeOrder = [](int Index) {
        return [Index](TForm& Editor) {
            EXPECT_EQ(PartOf<TRadioGroup>(Editor, "RgpReading").ItemIndex(), Index);
            EXPECT_EQ(PartOf<TMemo>(Editor, "EdtTranslation").Alignment(),
                      Index == 0 ? taRightJustify : taLeftJustify);
        };
    };
    const auto ClickItem = [](int Index) {
        return [Index](TForm& Editor) {
            auto& Group = PartOf<TRadioGroup>(Editor, "RgpReading");
            SendMessageA(dynamic_cast<TWinControl*>(Group.Controls(Index))->Handle(), BM_CLICK, 0, 0);
        };
    };
    Have(Five);
    TFormUser User;
    User.Choose("PropList", "Caption").Page("Reading order").Do(SeeOrder(1)).Do(ClickItem(0)).Do(SeeOrder(0));
    User.Page("Translations").See("EdtTranslation", "Hälsning").Click("BtnOK");
    EXPECT_FALSE(Edit(User));
    EXPECT_EQ(Setting("ReadingOrderIndex"), "0");
    TFormUser Again;
    Again.Do(SeeOrder(0)).Page("Reading order").Do(ClickItem(1)).Do(SeeOrder(1)).Click("BtnCancel");
    EXPECT_FALSE(Edit(Again));
    EXPECT_EQ(Setting("ReadingOrderIndex"), "1");
}

TEST_F(TFormEditorTest, SettingsOfOthersDoNoHarm)
{
    TRegIniFile File("Software\\Quillmark");
    for (const char* const Value : {"", "-7", "99", "text", "1,2,3,4", "99999,99999,99999,99999 Maximized"}) {
        SCOPED_TRACE(Value);
        for (const char* const Name :
             {"MoveNextUntranslated", "ReadingOrderIndex", "EditFontName", "DisplayFontName", "WindowPlace"})
            File.WriteString("FormTranslator", Name, Value);
        Have(Five);
        TFormUser User;
        User.Choose("PropList", "Label1.Caption").Type("EdtTranslation", "Hallå").Click("BtnOK");
        EXPECT_TRUE(Edit(User));
    }
}

TEST_F(TFormEditorTest, WindowOpensWhereItWas)
{
    const TRect Wanted{30, 40, 730, 540};
    TFormUser User;
    User.Do([&](TForm& Editor) {
        Editor.SetBounds(Wanted.left, Wanted.top, Wanted.right - Wanted.left, Wanted.bottom - Wanted.top);
    });
    User.Close();
    EXPECT_FALSE(Edit(User));
    const auto SeePlace = [&](TForm& Editor) {
        EXPECT_EQ(Editor.Left(), Wanted.left);
        EXPECT_EQ(Editor.Top(), Wanted.top);
        EXPECT_EQ(Editor.Width(), Wanted.right - Wanted.left);
        EXPECT_EQ(Editor.Height(), Wanted.bottom - Wanted.top);
    };
    TFormUser Again;
    Again.Do(SeePlace).Do([](TForm& Editor) { Editor.SetWindowState(wsMaximized); }).Close();
    EXPECT_FALSE(Edit(Again));
    TFormUser Large;
    Large.Do([](TForm& Editor) {
        EXPECT_EQ(Editor.WindowState(), wsMaximized);
        Editor.SetWindowState(wsNormal);
    });
    Large.Do(SeePlace).Close();
    EXPECT_FALSE(Edit(Large));
}

// On every page, in the smallest window and in one that opens larger than designed.
TEST_F(TFormEditorTest, PagesFollowTheSizeOfTheWindow)
{
    const auto SeeAllInside = [](TForm& Editor) {
        for (int I = 0; I < Editor.ComponentCount(); ++I) {
            auto* const Control = dynamic_cast<TWinControl*>(Editor.Components(I));
            if (!Control || !IsWindowVisible(Control->Handle()))
                continue;
            const TRect Inside = Control->Parent()->ClientRect();
            EXPECT_LE(Control->Left() + Control->Width(), Inside.right) << Control->Name();
            EXPECT_LE(Control->Top() + Control->Height(), Inside.bottom) << Control->Name();
        }
        const auto& Notebook = PartOf<TPageControl>(Editor, "PropNotebook");
        if (IsWindowVisible(Notebook.WindowHandle())) {
            EXPECT_EQ(Notebook.Width(), Notebook.Parent()->ClientWidth() - 16);
            // Before there is a window the height of tabs is an estimate.
            EXPECT_NEAR(Notebook.Height(), Notebook.Parent()->ClientHeight() - 16, 1);
        }
    };
    for (const TPoint Size : {TPoint{560, 420}, TPoint{760, 560}}) {
        TFormUser User;
        for (const char* const Page :
             {"Translations", "Options", "Font", "Reading order", "Dictionary", "Form"})
            User.Page(Page).Do(SeeAllInside);
        User.Do([Size](TForm& Editor) { Editor.SetBounds(10, 10, Size.x, Size.y); });
        for (const char* const Page :
             {"Translations", "Options", "Font", "Reading order", "Dictionary", "Form"})
            User.Page(Page).Do(SeeAllInside);
        User.Page("Common", "PropNotebook").Do(SeeAllInside).Close();
        EXPECT_FALSE(Edit(User));
    }
    TFormUser Again;
    Again.Page("Form").Do(SeeAllInside).Close();
    EXPECT_FALSE(Edit(Again));
}

TEST_F(TFormEditorTest, TypingFindsItems)
{
    Have(Five);
    TFormUser User;
    User.Click("PropList").Keys("mem").SeeSelected("PropList", {"Memo1.Lines[0]"}).Keys("o1.lines[1");
    User.SeeSelected("PropList", {"Memo1.Lines[1]"}).See("EdtTranslation", "Två");
    User.Do([](TForm&) { Sleep(1100); }).Keys("text").SeeSelected("PropList", {"Edit1.Text"});
    User.Do([](TForm&) { Sleep(1100); })
        .Keys("l")
        .SeeSelected("PropList", {"Label1.Caption"})
        .Click("BtnCancel");
    EXPECT_FALSE(Edit(User));
}

// A red dot stands before what has no translation, and goes with the first letter.
TEST_F(TFormEditorTest, UntranslatedItemsAreMarked)
{
    const auto HasDot = [](TListBox& List, int Item) {
        const HDC Screen = GetDC(nullptr);
        const HDC Dc = CreateCompatibleDC(Screen);
        const HBITMAP Bitmap = CreateCompatibleBitmap(Screen, 100, 16);
        const HGDIOBJ Former = SelectObject(Dc, Bitmap);
        List.Canvas()->SetHandle(Dc);
        List.Canvas()->Brush()->SetColor(clWindow);
        List.OnDrawItem(&List, Item, {0, 0, 100, 16}, {});
        List.Canvas()->SetHandle(nullptr);
        const COLORREF Color = GetPixel(Dc, 5, 8);
        SelectObject(Dc, Former);
        DeleteObject(Bitmap);
        DeleteDC(Dc);
        ReleaseDC(nullptr, Screen);
        return Color == RGB(255, 0, 0);
    };
    const auto SeeDots = [&](const std::vector<bool>& Dots) {
        return [&HasDot, Dots](TForm& Editor) {
            auto& List = PartOf<TListBox>(Editor, "PropList");
            for (int I = 0; I < static_cast<int>(Dots.size()); ++I)
                EXPECT_EQ(HasDot(List, I), Dots[static_cast<size_t>(I)]) << I;
        };
    };
    Have(Five);
    TFormUser User;
    User.Do(SeeDots({false, true, false, true, false})).Choose("PropList", "Edit1.Text");
    User.Type("EdtTranslation", "x").Key(VK_NEXT).Do(SeeDots({false, false, false, true, false}));
    User.Click("BtnOK");
    EXPECT_TRUE(Edit(User));
}

TEST_F(TFormEditorTest, TranslatorsAreOffWhileTheEditorIsOpen)
{
    Have({"Label1.Caption='Hej'"});
    auto* const Other = new TForm(Application);
    Other->SetCaption("Other");
    auto* const OtherTranslator = new TFormTranslator(Other);
    OtherTranslator->Translations()->Add("Caption='Andra'");
    OtherTranslator->InternalTranslate(false);
    OtherTranslator->InternalTranslate(true);
    Translator->InternalTranslate(true);
    const auto& Label = PartOf<TLabel>(*Form, "Label1");
    ASSERT_EQ(Label.Caption() + Other->Caption(), "HejAndra");
    TFormUser User;
    User.Do([&](TForm&) { EXPECT_EQ(Label.Caption() + Other->Caption(), "HelloOther"); });
    User.Choose("PropList", "Label1.Caption").See("EdtOrgTranslation", "Hello");
    User.Type("EdtTranslation", "Hallå").Click("BtnOK");
    EXPECT_TRUE(Edit(User));
    EXPECT_EQ(Label.Caption() + Other->Caption(), "HallåAndra");
}

TEST_F(TFormEditorTest, TranslatorMayGoWhileItsEditorIsOpen)
{
    const auto Destroy = [this](TForm&) { delete std::exchange(Translator, nullptr); };
    TFormUser User;
    User.Do(Destroy);
    EXPECT_FALSE(Edit(User));

    Translator = AddTranslator("Second", Five);
    TFormUser Asked;
    Asked.Choose("PropList", "Caption").Type("EdtTranslation", "x").Click("BtnCancel").Do(Destroy);
    Asked.Answer("Do you want to discard the changes ?", "No");
    EXPECT_FALSE(Edit(Asked));
}

// Edited, lists that are filled in part would lose the rest.
struct TFailingForm : TFormEditorScene {
    void Fail(TObject*, TComponent*, TStrings*, bool&) { throw EInvalidOperation("not now"); }
};

TEST_F(TFailingForm, IsNotEdited)
{
    Have(Five);
    Translator->OnTranslateComponent = {this, &TFailingForm::Fail};
    TFormUser User;
    EXPECT_FALSE(Edit(User));
    EXPECT_EQ(std::exchange(Errors, {}), TTexts{"not now"});
    EXPECT_EQ(Lines(), Five);
}

TEST_F(TFormEditorTest, IsNoPartOfProgramsWithoutEditors)
{
    StopEditors();
    EXPECT_THROW(Translator->ShowEditor(), EClassNotFound);
    StartEditors();
    TFormUser User;
    User.Close();
    EXPECT_FALSE(Edit(User));
}

} // namespace
