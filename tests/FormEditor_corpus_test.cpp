// The editor on forms that other people wrote. Where the collection of them is
// absent the pieces in tests/data are edited.
#include <filesystem>
#include <iostream>

#include "FormUser.h"
#include "Obxc3/Obxc3.h"
#include "RegistryScope.h"
#include "core/KeyLines.h"
#include "core/Literals.h"
#include "editors/Editors.h"
#include "framework/rtl/Files.h"
#include "framework/streaming/FormFile.h"
#include "tools/FormFiles.h"
#include "wizard/TranslatableForm.h"

namespace {

// Every so many of the collection, smallest and largest forms among them.
constexpr size_t Wanted = 40;

std::vector<std::string> SomeForms()
{
    std::error_code Ignored;
    const bool IsThere = std::filesystem::is_directory(CORPUS, Ignored);
    const std::vector<std::string> All = FormFilesOf({IsThere ? CORPUS : TEST_DATA});
    const size_t Step = std::max<size_t>(1, All.size() / Wanted);
    std::vector<std::string> Result;
    for (size_t I = 0; I < All.size(); I += Step)
        Result.push_back(All[I]);
    return Result;
}

struct TFormEditorCorpus : TObject, testing::Test {
    TFormEditorCorpus()
    {
        Application->OnException = {this, &TFormEditorCorpus::Caught};
        Folder = std::filesystem::temp_directory_path() / ("corpus" + std::to_string(GetCurrentProcessId()));
        std::filesystem::create_directories(Folder);
    }
    ~TFormEditorCorpus() override
    {
        std::error_code Ignored;
        std::filesystem::remove_all(Folder, Ignored);
    }
    void Caught(TObject*, const Exception& Error) { ADD_FAILURE() << Error.Message(); }

    std::string NameOf(const char* Kind) const
    {
        return (Folder / (Kind + std::to_string(Number) + ".txt")).string();
    }
    int EditForm(const std::string& File);

    const TRegistryScope Registry;
    const TApplicationScope Scope;
    const TPackageScope Package;
    const TEditorsScope Editors;
    std::filesystem::path Folder;
    int Number = 0;
};

// A dictionary of all common texts in the editor, which is open.
void MakeDictionary(const TForm& Editor, const TFormTranslator& Translator, const std::string& Name)
{
    TFormTranslator Reader(Translator.Owner());
    const TStrings& Keys = *PartOf<TListBox>(Editor, "PropList").Items();
    TSortList Lines;
    for (int I = 0; I < Keys.Count(); ++I)
        Lines.SortInsert(Keys.Get(I) + "=" + ToLiterals("<Ord " + std::to_string(I) + ">"), nullptr);
    Reader.SetTranslations(&Lines);
    Reader.TranslateTo(Name);
}

// How many properties were translated.
int TFormEditorCorpus::EditForm(const std::string& File)
{
    ++Number;
    TTranslatableForm Loaded(File, 1252);
    TFormTranslator& Translator = *Loaded.Translators().front();
    Translator.SetLocale(1053);
    TFormUser User;
    User.Page("Form").Click("BtnSelect").Do([](TForm& Editor) {
        auto& Include = PartOf<TButton>(Editor, "BtnIncludeProp");
        if (Include.Enabled())
            SendMessageA(Include.Handle(), BM_CLICK, 0, 0);
    });
    User.Do([&](TForm& Editor) { MakeDictionary(Editor, Translator, NameOf("dictionary")); });
    User.Page("Dictionary").Click("BtnTranslate");
    User.ChooseFile("Translate properties using the selected dictionary", NameOf("dictionary"));
    User.Click("BtnSave").ChooseFile("Save current properties to an external textfile.", NameOf("texts"));
    User.Page("Translations").Click("BtnOK");
    EXPECT_TRUE(User.Run<bool>([&] { return Translator.ShowEditor(); }));

    TTranslatableForm Again(File, 1252);
    TFormTranslator& Second = *Again.Translators().front();
    Second.SetLocale(1053);
    EXPECT_TRUE(Second.LoadFrom(NameOf("texts")));
    EXPECT_EQ(LinesOf(*Second.Translations()), LinesOf(*Translator.Translations()));
    int Result = 0;
    for (const std::string& Line : LinesOf(*Translator.Translations()))
        Result += FromLiterals(ValueOf(Line)).starts_with("<Ord ") ? 1 : 0;
    return Result;
}

TEST_F(TFormEditorCorpus, RealFormsAreTranslatedSavedAndLoaded)
{
    int Forms = 0;
    int Texts = 0;
    for (const std::string& File : SomeForms()) {
        SCOPED_TRACE(File);
        try {
            Texts += EditForm(File);
            ++Forms;
        } catch (const EFormFileError& Error) {
            std::cout << "refused: " << Error.what() << "\n";
        }
    }
    std::cout << Forms << " forms, " << Texts << " texts\n";
    EXPECT_GT(Forms, 0);
    EXPECT_GT(Texts, Forms);
}

} // namespace
