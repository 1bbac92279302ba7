// The editor of dialog translators, as somebody who uses it sees it.
#include <algorithm>
#include <filesystem>
#include <functional>
#include <set>

#include "FormUser.h"
#include "Obxc3/Obxc3.h"
#include "Qct/DialogHook.h"
#include "Qct/Qct.h"
#include "RegistryScope.h"
#include "core/KeyLines.h"
#include "editors/Editors.h"
#include "framework/forms/Labels.h"
#include "framework/rtl/FileNames.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/RegistryIni.h"

namespace {

using TLines = std::vector<std::string>;

// One that the system refuses to show.
class TBrokenDialog : public TFontDialog {
    OBX_CLASS(TFontDialog)
public:
    using TFontDialog::TFontDialog;
    bool Execute() override { throw EInvalidOperation("refused"); }
};
const TMetaClass& TBrokenDialog::MetaClass()
{
    static const TMetaClass Class("TBrokenDialog", &inherited::MetaClass(), CreateComponent<TBrokenDialog>);
    return Class;
}

struct TDlgEditorTest : TObject, testing::Test {
    TDlgEditorTest()
    {
        Application->OnException = {this, &TDlgEditorTest::Caught};
        Form = new TForm(Application);
        Form->SetName("Form1");
        Translator = new TCommonDialogTranslator(Form);
        Translator->SetLocale(1053);
        Form->Show();
        Application->ProcessMessages();
    }
    ~TDlgEditorTest() override { EXPECT_EQ(Errors, TLines{}); }
    void Caught(TObject*, const Exception& Error) { Errors.push_back(Error.Message()); }

    template<class T>
    T& Add(TComponent* Owner = nullptr)
    {
        return *new T(Owner ? Owner : Form);
    }
    void SetLists(const TLines& Translations, const TLines& Originals)
    {
        TStringList List;
        for (const std::string& Each : Translations)
            List.Add(Each);
        Translator->SetTranslations(&List);
        List.Clear();
        for (const std::string& Each : Originals)
            List.Add(Each);
        Translator->SetOriginals(&List);
    }
    bool Edit(TFormUser& User)
    {
        return User.Run<bool>([this] { return Translator->ShowEditor(); });
    }
    // The classes of the properties that are available.
    static TLines Classes(TForm& Editor)
    {
        std::set<std::string> Result;
        for (const std::string& Each : LinesOf(*PartOf<TListBox>(Editor, "ListAvail").Items()))
            Result.insert(Each.substr(0, Each.find('.')));
        return {Result.begin(), Result.end()};
    }
    TLines Translations() const { return LinesOf(*Translator->Translations()); }
    std::string OriginalOf(const std::string& Key) const
    {
        int Index = -1;
        return FindKeyLine(Translator->Originals(), Key, Index)
                   ? std::string(ValueOf(Translator->Originals().Get(Index)))
                   : "none";
    }

    void DeleteTranslator(TObject*) { delete std::exchange(Translator, nullptr); }

    const TRegistryScope Registry;
    const TApplicationScope Scope;
    const TPackageScope Package;
    const TEditorsScope Editors;
    TForm* Form = nullptr;
    TCommonDialogTranslator* Translator = nullptr;
    TLines Errors;
};

// Dialogs whose window stays, or that take the activation along, would leave an
// editor that cannot be used.
TEST_F(TDlgEditorTest, EveryDialogIsScannedOverTheEditor)
{
    Add<TOpenDialog>().SetTitle("First");
    Add<TOpenDialog>().SetTitle("Second");
    Add<TColorDialog>();
    auto* const Other = new TForm(Application);
    Add<TFindDialog>(Other);
    Add<TReplaceDialog>(Other);
    Add<TFontDialog>(Other);
    Add<TPrintDialog>(Other);
    Add<TPrinterSetupDialog>(Other);
    TFormUser User;
    User.Do([](TForm& Editor) {
        EXPECT_EQ(Editor.Caption(), "Common Dialog Translations Editor");
        EXPECT_EQ(PartOf<TLabel>(Editor, "LblList").Caption(), "Dialog properties to be translated");
        EXPECT_EQ(LinesOf(*PartOf<TPageControl>(Editor, "Notebook").Tabs()),
                  (TLines{"Translations", "Options", "Font", "Reading order", "Dialogs", "Dictionary"}));
        // The editor has a save dialog of its own.
        EXPECT_EQ(Classes(Editor), (TLines{"TColorDialog", "TFindDialog", "TFontDialog", "TOpenDialog",
                                           "TPrintDialog", "TPrinterSetupDialog", "TReplaceDialog"}));
        EXPECT_EQ(GetActiveWindow(), Editor.Handle());
        EXPECT_TRUE(IsWindowEnabled(Editor.Handle()));
        EXPECT_TRUE(PartOf<TListBox>(Editor, "PropList").Focused());
        EXPECT_EQ(OldWndProc, nullptr);
    });
    User.Do([](TForm& Editor) { Editor.SetWidth(Editor.Width() + 100); })
        .Page("Dialogs")
        .Do([](TForm& Editor) {
            EXPECT_EQ(PartOf<TListBox>(Editor, "ListAvail").Width(), 452);
            EXPECT_EQ(PartOf<TButton>(Editor, "BtnRescan").Left(), 486);
        })
        .Select("ListAvail", {"TOpenDialog.Caption", "TOpenDialog.Width", "TFontDialog.Font.Charset"})
        .Do([](TForm& Editor) { EXPECT_EQ(PartOf<TLabel>(Editor, "LblSelected").Caption(), "3 Selected"); })
        .Click("BtnIncludeProp")
        .Do([](TForm& Editor) {
            EXPECT_EQ(PartOf<TLabel>(Editor, "LblSelected").Caption(), "0 Selected");
            EXPECT_FALSE(PartOf<TButton>(Editor, "BtnIncludeProp").Enabled());
            EXPECT_EQ(PartOf<TListBox>(Editor, "ListAvail").Items()->IndexOf("TOpenDialog.Caption"), -1);
        })
        .Page("Options")
        .Do([](TForm& Editor) {
            EXPECT_EQ(PartOf<TLabel>(Editor, "LblTotalNr").Caption(), "3");
            EXPECT_EQ(PartOf<TLabel>(Editor, "LblLocalizedNr").Caption(), "2");
        })
        .Page("Translations")
        .Choose("PropList", "TOpenDialog.Caption")
        .Do([](TForm& Editor) { EXPECT_EQ(PartOf<TMemo>(Editor, "EdtOrgTranslation").Text(), "First"); })
        .Type("EdtTranslation", "Öppna")
        .Click("BtnOK");
    EXPECT_TRUE(Edit(User));
    EXPECT_TRUE(Translator->Translate()) << "as before";
    EXPECT_EQ(OriginalOf("TOpenDialog.Caption"), "'First'");
    EXPECT_TRUE(Translator->Originals().IsInOrder());
    EXPECT_EQ(Translations(), (TLines{"TFontDialog.Font.Charset=" + OriginalOf("TFontDialog.Font.Charset"),
                                      "TOpenDialog.Caption='Öppna'",
                                      "TOpenDialog.Width=" + OriginalOf("TOpenDialog.Width")}));

    // With all of them known, nothing is shown, and nothing is to be lost.
    const TLines Known = LinesOf(Translator->Originals());
    TFormUser Again;
    Again
        .Do([](TForm& Editor) {
            auto& List = *PartOf<TListBox>(Editor, "ListAvail").Items();
            EXPECT_GE(List.IndexOf("TReplaceDialog.Caption[1]"), 0);
            EXPECT_EQ(List.IndexOf("TOpenDialog.Width"), -1);
        })
        .Click("BtnCancel");
    EXPECT_FALSE(Edit(Again));
    EXPECT_EQ(LinesOf(Translator->Originals()), Known);
}

TEST_F(TDlgEditorTest, OnlyClassesWithoutOriginalsAreScannedUntilARescan)
{
    Add<TFindDialog>();
    Add<TReplaceDialog>();
    SetLists({"TFindDialog.Caption='Sök'"},
             {"ActiveControl=Edit1", "TFindDialog.Caption='Find it'", "TGoneDialog.Width=5"});
    const auto FindLines = [](TForm& Editor) {
        const TLines All = LinesOf(*PartOf<TListBox>(Editor, "ListAvail").Items());
        return std::count_if(All.begin(), All.end(),
                             [](const auto& Each) { return Each.starts_with("TFind"); });
    };
    TFormUser User;
    User.Choose("PropList", "TFindDialog.Caption").Type("EdtTranslation", "Sök nu").Page("Dialogs");
    User.Do([&](TForm& Editor) {
        EXPECT_EQ(Classes(Editor), (TLines{"TGoneDialog", "TReplaceDialog"}));
        EXPECT_EQ(FindLines(Editor), 0);
    });
    User.Click("BtnRescan").Do([&](TForm& Editor) {
        EXPECT_EQ(Classes(Editor), (TLines{"TFindDialog", "TReplaceDialog"}));
        EXPECT_GT(FindLines(Editor), 10);
        EXPECT_EQ(GetActiveWindow(), Editor.Handle());
        EXPECT_TRUE(PartOf<TButton>(Editor, "BtnRescan").Focused());
    });
    User.Click("BtnOK");
    EXPECT_TRUE(Edit(User));
    EXPECT_EQ(Translations(), TLines{"TFindDialog.Caption='Sök nu'"});
    EXPECT_EQ(OriginalOf("TFindDialog.Caption"), "'Find'");
    EXPECT_EQ(OriginalOf("TGoneDialog.Width"), "none");

    TFormUser Discarding;
    Discarding.Page("Dialogs")
        .Click("BtnRescan")
        .Click("BtnCancel")
        .Answer("Do you want to discard the changes ?", "No")
        .Click("BtnCancel")
        .Answer("Do you want to discard the changes ?", "Yes");
    EXPECT_FALSE(Edit(Discarding));
}

TEST_F(TDlgEditorTest, NewPropertiesBeginAsIncludedOnesDo)
{
    SetLists({"TOpenDialog.Width=5"}, {"TOpenDialog.Caption='Open'", "TOpenDialog.Font.Name=#65",
                                       "TOpenDialog.Left[1]=7", "TOpenDialog.Width=6"});
    TFormUser User;
    for (const char* const Name : {"TOpenDialog.Caption", "TOpenDialog.Font.Name", "TOpenDialog.Left[1]",
                                   "TOpenDialog.Width", "Other"})
        User.Click("BtnNew").Enter("Add a property", "Please enter the property name", Name);
    User.Do([](TForm& Editor) {
        const auto& List = PartOf<TListBox>(Editor, "PropList");
        EXPECT_EQ(List.SelCount(), 1);
        EXPECT_TRUE(List.Selected(List.Items()->IndexOf("Other")));
    });
    User.Type("EdtTranslation", "Annan").Click("BtnOK");
    EXPECT_TRUE(Edit(User));
    EXPECT_EQ(Translations(), (TLines{"Other=Annan", "TOpenDialog.Caption=''", "TOpenDialog.Font.Name=''",
                                      "TOpenDialog.Left[1]=7", "TOpenDialog.Width=5"}));
}

TEST_F(TDlgEditorTest, TheDesignerScansTheFormAlone)
{
    Add<TFindDialog>();
    auto* const Other = new TForm(Application);
    Add<TReplaceDialog>(Other);
    Translator->SetDesigning(true);
    TFormUser User;
    User.Do([](TForm& Editor) { EXPECT_EQ(Classes(Editor), TLines{"TFindDialog"}); }).Click("BtnOK");
    EXPECT_TRUE(Edit(User));
    Translator->SetDesigning(false);
}

// What one dialog does must not keep the others from being scanned.
TEST_F(TDlgEditorTest, ADialogThatCannotBeShownIsPassedOver)
{
    Add<TBrokenDialog>();
    Add<TFindDialog>();
    TFormUser User;
    User.Do([](TForm& Editor) { EXPECT_EQ(Classes(Editor), TLines{"TFindDialog"}); }).Click("BtnOK");
    EXPECT_TRUE(Edit(User));
    EXPECT_EQ(std::exchange(Errors, {}), TLines{"refused"});
}

TEST_F(TDlgEditorTest, AHandlerOfADialogMayDestroyTheTranslator)
{
    Add<TColorDialog>().OnShow = {this, &TDlgEditorTest::DeleteTranslator};
    Add<TFindDialog>();
    TFormUser User;
    EXPECT_FALSE(Edit(User));
    EXPECT_EQ(GetActiveWindow(), Form->Handle());
}

TEST_F(TDlgEditorTest, TheHintIsTheOriginalUnderTheMouse)
{
    SetLists({}, {"TOpenDialog.Caption='Open'", "TOpenDialog.Caption[1]='&Open'"});
    TFormUser User;
    User.Page("Dialogs");
    for (const auto& [Item, Hint] :
         {std::pair{"TOpenDialog.Caption", "Open"}, {"TOpenDialog.Caption[1]", "&Open"}})
        User.Do([Name = std::string(Item), Expected = std::string(Hint)](TForm& Editor) {
            auto& List = PartOf<TListBox>(Editor, "ListAvail");
            const TRect Place = List.ItemRect(List.Items()->IndexOf(Name));
            SendMessageA(List.Handle(), WM_MOUSEMOVE, 0, MAKELPARAM(Place.left + 5, Place.top + 5));
            EXPECT_EQ(List.Hint(), Expected);
        });
    User.Click("BtnCancel");
    EXPECT_FALSE(Edit(User));
}

// Files hold what the editor shows, with the originals beside it; the translator is
// as it was until OK.
TEST_F(TDlgEditorTest, FilesAreExchanged)
{
    const auto Named = [](const char* Name) {
        const std::string Result = (std::filesystem::temp_directory_path() / Name).string();
        RemoveFile(Result);
        return Result;
    };
    const std::string Translations = Named("dlgeditor-translations.txt");
    const std::string Dictionary = Named("dlgeditor-dictionary.txt");
    SetLists({"TOpenDialog.Caption='Öppna'", "TOpenDialog.Left[1]=7"},
             {"TOpenDialog.Caption='Open'", "TOpenDialog.Left[1]=9", "TOpenDialog.Top[1]=9"});
    TFormUser Saving;
    Saving.Choose("PropList", "TOpenDialog.Caption").Type("EdtTranslation", "Visa").Page("Dictionary");
    Saving.Click("BtnSave").ChooseFile("Save current properties to an external textfile.", Translations);
    Saving.Click("BtnExport").ChooseFile("Create or update a dictionary with translations", Dictionary);
    Saving.Click("BtnCancel").Answer("Do you want to discard the changes ?", "Yes");
    EXPECT_FALSE(Edit(Saving));
    EXPECT_EQ(Translator->Translations()->Get(0), "TOpenDialog.Caption='Öppna'");
    EXPECT_EQ(ReadWholeFile(Translations), "#0Form1.TOpenDialog.Caption%-1='Open'\r\n"
                                           "#0Form1.TOpenDialog.Caption%1053='Visa'\r\n"
                                           "#0Form1.TOpenDialog.Left[1]%-1=9\r\n"
                                           "#0Form1.TOpenDialog.Left[1]%1053=7\r\n");
    EXPECT_EQ(ReadWholeFile(Dictionary), "9\t7\r\nOpen\tVisa\r\n");

    // Loading adds what the file has; the dictionary knows the sources.
    SetLists({"TOpenDialog.Caption='Öppna'"}, {"TOpenDialog.Caption='Open'"});
    TFormUser Loading;
    Loading.Page("Dictionary");
    Loading.Click("BtnTranslate")
        .ChooseFile("Translate properties using the selected dictionary", Dictionary)
        .Do([](TForm& Editor) { EXPECT_EQ(PartOf<TListBox>(Editor, "PropList").Items()->Count(), 1); });
    Loading.Click("BtnLoad").ChooseFile("Load properties from an external textfile.", Translations);
    Loading.Click("BtnOK");
    EXPECT_TRUE(Edit(Loading));
    EXPECT_EQ(this->Translations(), (TLines{"TOpenDialog.Caption='Visa'", "TOpenDialog.Left[1]=7"}));
    EXPECT_EQ(OriginalOf("TOpenDialog.Left[1]"), "9");
    EXPECT_EQ(Form->ComponentCount(), 1) << "the temporary translators are gone";
    RemoveFile(Translations);
    RemoveFile(Dictionary);
}

TEST_F(TDlgEditorTest, SettingsHaveTheirOwnSection)
{
    TFormUser User;
    User.Page("Options").Click("CkxMove").Page("Reading order").Click("BtnCancel");
    EXPECT_FALSE(Edit(User));
    TRegIniFile Ini("Software\\Quillmark");
    EXPECT_FALSE(Ini.ReadBool("DlgTranslator", "MoveNextUntranslated", true));
    Ini.EraseSection("DlgTranslator");
}

} // namespace
