// The editor of form translators: which properties are to be translated, and the
// exchange with files.
#include <filesystem>
#include <fstream>

#include "FormEditorScene.h"
#include "framework/forms/Forms.h"
#include "framework/rtl/Files.h"

namespace {

struct TFormEditorLists : TFormEditorScene {
    static TFormUser& OpenForm(TFormUser& User) { return User.Page("Form"); }
    static TFormUser& OpenCommon(TFormUser& User) { return User.Page("Form").Page("Common", "PropNotebook"); }
    static TTexts StoredCommon()
    {
        TTexts Result;
        for (std::string Each;
             !(Each = Setting("CommonProperty[" + std::to_string(Result.size()) + "]")).empty();)
            Result.push_back(Each);
        return Result;
    }
    // What the next editor shows in a list.
    TTexts ItemsOf(const std::string& List)
    {
        TTexts Result;
        TFormUser User;
        User.Do([&](TForm& Editor) { Result = LinesOf(*PartOf<TListBox>(Editor, List).Items()); })
            .Click("BtnCancel");
        EXPECT_FALSE(Edit(User));
        return Result;
    }
};

TEST_F(TFormEditorLists, PropertiesAreIncluded)
{
    Have({"Label1.Caption='Hej'"});
    TFormUser User;
    OpenForm(User).See("LblSelected", "0 Selected").Do([](TForm& Editor) {
        EXPECT_FALSE(PartOf<TButton>(Editor, "BtnIncludeProp").Enabled());
        const TStrings& Items = *PartOf<TListBox>(Editor, "ListAvail").Items();
        EXPECT_EQ(Items.IndexOf("Label1.Caption"), -1);
        for (int I = 0; I < Items.Count(); ++I)
            EXPECT_NE(Items.Get(I).substr(0, 13), "ActiveControl");
    });
    User.Select("ListAvail",
                {"Caption", "Edit1.Text", "Label1.Font.Size", "Label1.Font.Style", "Memo1.Lines[1]"});
    User.See("LblSelected", "5 Selected").Click("BtnIncludeProp").See("LblSelected", "0 Selected");
    User.Do([](TForm& Editor) {
        EXPECT_EQ(PartOf<TListBox>(Editor, "ListAvail").Items()->IndexOf("Memo1.Lines[1]"), -1);
    });
    User.Click("BtnOK");
    EXPECT_TRUE(Edit(User));
    const std::string Size = std::to_string(PartOf<TLabel>(*Form, "Label1").Font()->Size());
    EXPECT_EQ(Lines(), (TTexts{"Caption=''", "Edit1.Text=''", "Label1.Caption='Hej'",
                               "Label1.Font.Size=" + Size, "Label1.Font.Style=0", "Memo1.Lines[1]=''"}));
}

TEST_F(TFormEditorLists, CommonPropertiesAreSelected)
{
    auto& List = Add<TListBox>("ListBox1");
    for (const char* const Each : {"a", "b", "c", "d"})
        List.Items()->Add(Each);
    const auto IsCommon = [](const std::string& Item) {
        for (const char* const Each : {"Caption", "Hint", "Edit1.Text", "Memo1.Lines[", "ListBox1.Items["})
            if (Item.starts_with(Each) || Item.find("." + std::string(Each)) != Item.npos)
                return true;
        return Item.starts_with("SystemMenu");
    };
    const TTexts NotEmpty = {"Caption",           "Label1.Caption",    "ListBox1.Items[0]",
                             "ListBox1.Items[1]", "ListBox1.Items[2]", "ListBox1.Items[3]",
                             "Memo1.Lines[0]",    "Memo1.Lines[1]"};
    for (const bool Empty : {false, true}) {
        SCOPED_TRACE(Empty);
        TTexts Selected;
        TFormUser User;
        OpenForm(User);
        if (Empty)
            User.Click("CkxEmpty");
        User.Select("ListAvail", {"Left"}).Click("BtnSelect").Do([&](TForm& Editor) {
            const auto& Available = PartOf<TListBox>(Editor, "ListAvail");
            for (int I = 0; I < Available.Items()->Count(); ++I) {
                const std::string& Item = Available.Items()->Get(I);
                const bool Common = Available.Selected(I);
                EXPECT_TRUE(!Common || IsCommon(Item)) << Item;
                if (Common && !Item.starts_with("SystemMenu"))
                    Selected.push_back(Item);
            }
        });
        User.Click("BtnCancel");
        EXPECT_FALSE(Edit(User));
        TTexts Wanted = NotEmpty;
        if (Empty)
            Wanted = {"Caption",           "Edit1.Hint",        "Edit1.Text",        "Hint",
                      "Label1.Caption",    "Label1.Hint",       "ListBox1.Hint",     "ListBox1.Items[0]",
                      "ListBox1.Items[1]", "ListBox1.Items[2]", "ListBox1.Items[3]", "Memo1.Hint",
                      "Memo1.Lines[0]",    "Memo1.Lines[1]"};
        EXPECT_EQ(Selected, Wanted);
    }
}

TEST_F(TFormEditorLists, CommonPropertiesAreKeptInTheRegistry)
{
    const TTexts Declared = ItemsOf("CommonPropList");
    ASSERT_EQ(Declared.size(), 24u);
    EXPECT_EQ(Declared.front() + " " + Declared.back(), "Caption Translations[*]");
    EXPECT_EQ(StoredCommon(), TTexts());

    TFormUser Adding;
    OpenCommon(Adding).Click("BtnAddCommon");
    Adding.Enter("Create a new common property", "Specify the property name", "");
    Adding.Click("BtnAddCommon")
        .Enter("Create a new common property", "Specify the property name", "EditMask");
    Adding.SeeSelected("CommonPropList", {"EditMask"}).Click("BtnSet").Click("BtnCancel");
    EXPECT_FALSE(Edit(Adding)) << "the list of common properties is no change of the translations";
    TTexts Longer = Declared;
    Longer.insert(Longer.begin() + 5, "EditMask");
    EXPECT_EQ(StoredCommon(), Longer);

    TFormUser Deleting;
    OpenCommon(Deleting);
    for (const std::string& Each : Longer)
        if (Each != "EditMask" && Each != "Hint")
            Deleting.Choose("CommonPropList", Each).Click("BtnDeleteCommon");
    Deleting.Do([](TForm& Editor) { EXPECT_FALSE(PartOf<TButton>(Editor, "BtnDeleteCommon").Enabled()); });
    Deleting.Click("BtnSet").Close();
    EXPECT_FALSE(Edit(Deleting));
    EXPECT_EQ(StoredCommon(), (TTexts{"EditMask", "Hint"}));
    EXPECT_EQ(Setting("CommonProperty[24]"), "");
    EXPECT_EQ(ItemsOf("CommonPropList"), (TTexts{"EditMask", "Hint"}));

    TFormUser Resetting;
    OpenCommon(Resetting).Click("BtnDefault").Close();
    EXPECT_FALSE(Edit(Resetting));
    EXPECT_EQ(StoredCommon(), TTexts());
    EXPECT_EQ(ItemsOf("CommonPropList"), Declared);
}

TEST_F(TFormEditorLists, NewItemsAreEntered)
{
    const struct {
        const char* Name;
        std::string Entered;
        std::string Line; // empty for none
    } Cases[] = {
        {"a text", "Label1.Caption", "Label1.Caption=''"},
        {"no text", "Label1.Visible", "Label1.Visible=True"},
        {"unknown", "Other.Caption", "Other.Caption="},
        {"letter case matters", "caption", "caption="},
        {"there already", "Caption", ""},
        {"nothing", "", ""},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        Have({"Caption='Hälsning'"});
        TFormUser User;
        User.Choose("PropList", "Caption").Click("BtnNew");
        User.Enter("Add a property", "Please enter the property name", Case.Entered);
        User.SeeSelected("PropList", {Case.Line.empty() ? "Caption" : Case.Entered}).Click("BtnOK");
        EXPECT_EQ(Edit(User), !Case.Line.empty());
        TTexts Wanted = {"Caption='Hälsning'"};
        if (!Case.Line.empty())
            Wanted.push_back(Case.Line);
        EXPECT_EQ(Lines(), Wanted);
    }
    TFormUser Cancelled;
    Cancelled.Click("BtnNew").Do([](TForm& Input) { PartOf<TEdit>(Input, "Edit").SetText("Hint"); });
    Cancelled.Key(VK_ESCAPE).Click("BtnOK");
    EXPECT_FALSE(Edit(Cancelled));
}

TEST_F(TFormEditorLists, SelectedItemsAreRemoved)
{
    const TTexts All = {"Caption='a'", "Caption1='b'", "Edit1.Text='c'", "Label1.Caption='d'", "Other='e'"};
    for (const bool Yes : {false, true}) {
        SCOPED_TRACE(Yes);
        Have(All);
        TFormUser User;
        User.Select("PropList", {"Caption", "Label1.Caption", "Other"}).Click("BtnRemove");
        User.Answer("Do you want to remove the selected property ?", Yes ? "Yes" : "No");
        User.Do([Yes](TForm& Editor) {
            const TStrings& Available = *PartOf<TListBox>(Editor, "ListAvail").Items();
            EXPECT_EQ(Available.IndexOf("Caption") >= 0, Yes);
            EXPECT_EQ(Available.IndexOf("Label1.Caption") >= 0, Yes);
            EXPECT_EQ(Available.IndexOf("Other"), -1);
            EXPECT_EQ(PartOf<TButton>(Editor, "BtnRemove").Enabled(), !Yes);
        });
        User.Click("BtnOK");
        EXPECT_EQ(Edit(User), Yes);
        EXPECT_EQ(Lines(), Yes ? (TTexts{"Caption1='b'", "Edit1.Text='c'"}) : All);
    }
}

TEST_F(TFormEditorLists, KeysOfASiblingAreTaken)
{
    AddTranslator("Empty", {});
    AddTranslator("German", {"Label1.Caption='Hallo'", "Label1.Visible=False", "Other='x'"});
    for (const bool Yes : {false, true}) {
        SCOPED_TRACE(Yes);
        TFormUser User;
        User.Answer("Do you want to insert properties from German ?", Yes ? "Yes" : "No").Click("BtnOK");
        EXPECT_EQ(Edit(User), Yes);
        EXPECT_EQ(Lines(), Yes ? (TTexts{"Label1.Caption=''", "Label1.Visible=True", "Other="}) : TTexts());
    }
}

TEST_F(TFormEditorLists, HintsShowTheOriginalValue)
{
    TFormUser User;
    OpenForm(User).Do([](TForm& Editor) {
        auto& List = PartOf<TListBox>(Editor, "ListAvail");
        for (const auto& [Item, Hint] : {std::pair<const char*, const char*>{"Label1.Caption", "Hello"},
                                         {"Memo1.Lines[1]", "Second"},
                                         {"Edit1.Text", ""}}) {
            const int Index = List.Items()->IndexOf(Item);
            List.SetTopIndex(Index);
            const TRect Place = List.ItemRect(Index);
            SendMessageA(List.Handle(), WM_MOUSEMOVE, 0, MAKELPARAM(Place.left + 5, Place.top + 3));
            EXPECT_EQ(List.Hint(), Hint) << Item;
        }
    });
    User.Close();
    EXPECT_FALSE(Edit(User));
}

// Owners without a window, without components, or none at all.
TEST_F(TFormEditorLists, AnyOwnerWillDo)
{
    const auto Module = std::make_unique<TDataModule>(nullptr);
    const auto Frame = std::make_unique<TFrame>(nullptr);
    const auto Empty = std::make_unique<TForm>(nullptr);
    for (TComponent* const Owner :
         std::initializer_list<TComponent*>{Module.get(), Frame.get(), Empty.get(), nullptr}) {
        SCOPED_TRACE(Owner ? Owner->ClassName() : "none");
        const std::unique_ptr<TFormTranslator> Owned(new TFormTranslator(Owner));
        TFormUser User;
        User.Click("BtnNew").Enter("Add a property", "Please enter the property name", "Other");
        User.Type("EdtTranslation", "x").Page("Form").Click("BtnSelect").Click("BtnOK");
        EXPECT_TRUE(User.Run<bool>([&] { return Owned->ShowEditor(); }));
        EXPECT_EQ(LinesOf(*Owned->Translations()), TTexts{"Other=x"});
    }
}

struct TFormEditorFiles : TFormEditorScene {
    TFormEditorFiles()
    {
        Folder = std::filesystem::temp_directory_path() / ("editor" + std::to_string(GetCurrentProcessId()));
        std::filesystem::create_directories(Folder);
        Name = (Folder / "texts.txt").string();
    }
    ~TFormEditorFiles() override
    {
        std::error_code Ignored;
        std::filesystem::remove_all(Folder, Ignored);
    }
    // Something happens to the file after the user has chosen it.
    void BreakFile(TObject*, bool&) { Break(); }

    std::filesystem::path Folder;
    std::string Name;
    std::function<void()> Break;
};

constexpr char Translate[] = "Translate properties using the selected dictionary";
constexpr char Load[] = "Load properties from an external textfile.";
constexpr char Save[] = "Save current properties to an external textfile.";
constexpr char Export[] = "Create or update a dictionary with translations";

// What is written are the lines in the editor, not those of the translator.
TEST_F(TFormEditorFiles, LinesAreWritten)
{
    Have({"Label1.Caption='Hej'"});
    ReplaceWholeFile(Name, "Form1.Label1.Caption%1031='Hallo'\r\nForm1.Label1.Caption%1053='gammal'\r\n");
    const std::string Dictionary = (Folder / "dictionary").string();
    TFormUser User;
    User.Choose("PropList", "Label1.Caption").Type("EdtTranslation", "Hallå").Page("Dictionary");
    User.Click("BtnSave").ChooseFile(Save, Name).Click("BtnExport").ChooseFile(Export, Dictionary);
    User.Click("BtnCancel").Answer("Do you want to discard the changes ?", "Yes");
    EXPECT_FALSE(Edit(User));
    EXPECT_EQ(ReadWholeFile(Name), "Form1.Label1.Caption%-1='Hello'\r\n"
                                   "Form1.Label1.Caption%1031='Hallo'\r\n"
                                   "Form1.Label1.Caption%1053='Hallå'\r\n");
    EXPECT_EQ(ReadWholeFile(Dictionary + ".txt"), "Hello\tHallå\r\n");
    EXPECT_EQ(Lines(), TTexts{"Label1.Caption='Hej'"});
}

TEST_F(TFormEditorFiles, LinesAreRead)
{
    ReplaceWholeFile(Name, "Form1.Label1.Caption%1053='Hej'\r\nForm1.Memo1.Lines[0]%1053=''\r\n"
                           "Form1.Caption%1031='Gruß'\r\nForm2.Caption%1053='x'\r\n");
    const std::string Dictionary = (Folder / "dictionary.txt").string();
    ReplaceWholeFile(Dictionary, "First\tEtt\r\nHello\tHallå\r\n");
    const struct {
        const char* Button;
        const char* Title;
        std::string File;
        TTexts Result;
    } Cases[] = {
        {"BtnLoad", Load, Name, {"Caption='kvar'", "Label1.Caption='Hej'", "Memo1.Lines[0]=''"}},
        {"BtnTranslate",
         Translate,
         Dictionary,
         {"Caption='kvar'", "Label1.Caption='Hallå'", "Memo1.Lines[0]='Ett'"}},
    };
    Have({"Caption='kvar'", "Label1.Caption='gammal'"});
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Button);
        TFormUser User;
        User.Page("Dictionary").Click(Case.Button).ChooseFile(Case.Title, Case.File);
        User.Page("Translations").Choose("PropList", "Label1.Caption").Click("BtnOK");
        EXPECT_TRUE(Edit(User));
        EXPECT_EQ(Lines(), Case.Result);
    }
}

// The file goes, or changes, between its choice and its use.
TEST_F(TFormEditorFiles, WhatFailsIsToldAndTheWorkIsKept)
{
    const auto Gone = [this] { std::filesystem::remove(Name); };
    const auto FolderInstead = [this] {
        std::filesystem::remove(Name);
        std::filesystem::create_directory(Name);
    };
    const auto Malformed = [this] { ReplaceWholeFile(Name, "Form1.Caption%1O53='x'\r\n"); };
    const struct {
        const char* Name;
        const char* Button;
        const char* Title;
        const char* Dialog;
        std::function<void()> Break;
        const char* Reason;
    } Cases[] = {
        {"load, gone", "BtnLoad", Load, "DlgOpen", Gone, "There is no file "},
        {"translate, gone", "BtnTranslate", Translate, "DlgOpen", Gone, "There is no file "},
        {"load, a folder", "BtnLoad", Load, "DlgOpen", FolderInstead, "There is no file "},
        {"load, malformed", "BtnLoad", Load, "DlgOpen", Malformed, "1O53"},
        {"save, a folder", "BtnSave", Save, "DlgSave", FolderInstead, "Cannot create file "},
        {"export, a folder", "BtnExport", Export, "DlgSave", FolderInstead, "Cannot create file "},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        std::filesystem::remove_all(Name);
        ReplaceWholeFile(Name, "");
        Break = Case.Break;
        Have({"Label1.Caption='Hej'"});
        TFormUser User;
        User.Choose("PropList", "Label1.Caption").Type("EdtTranslation", "Hallå").Page("Dictionary");
        User.Do([&](TForm& Editor) {
            PartOf<TOpenDialog>(Editor, Case.Dialog).OnCanClose = {this, &TFormEditorFiles::BreakFile};
        });
        User.Click(Case.Button).ChooseFile(Case.Title, Name).Do([&](TForm&) {
            ASSERT_EQ(Errors.size(), 1u);
            EXPECT_NE(Errors[0].find(Name), std::string::npos) << Errors[0];
            EXPECT_NE(Errors[0].find(Case.Reason), std::string::npos) << Errors[0];
        });
        User.Click("BtnOK");
        EXPECT_TRUE(Edit(User));
        EXPECT_EQ(Lines(), TTexts{"Label1.Caption='Hallå'"});
        Errors.clear();
    }
}

} // namespace
