// The editors in the user's language: nothing that is seen lacks a translation, no two
// commands share a mnemonic, and the program's own translators are left alone.
#include "editors/EditorLanguage.h"

#include <algorithm>
#include <map>
#include <set>

#include "EditorTexts.h"
#include "FormEditorScene.h"
#include "Qrt/Qrt.h"
#include "core/Literals.h"
#include "core/TranslationsFile.h"
#include "core/VisibleTexts.h"
#include "editors/Qctedit.h"
#include "editors/Qftedit.h"
#include "editors/Qltedit.h"
#include "editors/Qrtedit.h"
#include "framework/rtl/FileNames.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/Texts.h"

namespace {

constexpr int Locales[] = {1053, 1031, 1041, 1025};

std::string TranslationsFile()
{
    return ExtractFilePath(Application->ExeName()) + "editors.lng";
}

// The lines of a form as the user sees it in a language; 1033 for its own.
std::map<std::string, std::string> LinesIn(int Locale, TForm* (*Make)())
{
    SetEditorLocale(Locale);
    const std::unique_ptr<TForm> Form(Make());
    SetEditorLocale(1033);
    TFormTranslator Reader(Form.get());
    TStringList Lines;
    Reader.TranslateForm(&Lines, true);
    std::map<std::string, std::string> Result;
    for (const std::string& Line : LinesOf(Lines))
        Result.emplace(Line.substr(0, Line.find('=')), Line.substr(Line.find('=') + 1));
    return Result;
}

template<class T>
TForm* MakeEditor()
{
    return CreateForm<T>(Application);
}

constexpr TForm* (*EditorForms[])() = {&MakeEditor<TFormEditor>, &MakeEditor<TDlgEditor>,
                                       &MakeEditor<TResEditor>, &MakeEditor<TLocaleEditor>};

// Texts that are the same in every language: keys of properties, names and counts.
bool IsTechnical(const std::string& Key)
{
    return Key.starts_with("CommonPropList.") || Key.starts_with("LblEditFont.") ||
           Key.starts_with("LblDisplayFont.") || Key.find(".FocusControl.") != Key.npos;
}

std::string MnemonicOf(const std::string& Literal)
{
    const std::string Caption = FromLiterals(Literal);
    const size_t Place = Caption.find('&');
    return Place == Caption.npos ? ""
                                 : AnsiUpperCase(Caption.substr(Place + 1, Caption[Place + 1] < 0 ? 2 : 1));
}

class EditorLanguage : public TFormEditorScene {
protected:
    ~EditorLanguage() override { SetEditorLocale(0); }
};

TEST_F(EditorLanguage, EveryVisibleTextIsTranslated)
{
    int Checked = 0;
    for (const auto Make : EditorForms) {
        const auto Own = LinesIn(1033, Make);
        for (const int Locale : Locales) {
            const auto Translated = LinesIn(Locale, Make);
            std::set<std::string> Mnemonics;
            for (const auto& [Key, Value] : Own) {
                SCOPED_TRACE(FromLiterals(Own.at("Name")) + "." + Key + " " + std::to_string(Locale));
                ASSERT_TRUE(Translated.contains(Key));
                const std::string& Text = Translated.at(Key);
                const std::string Mnemonic = Key.ends_with(".Caption") ? MnemonicOf(Text) : "";
                EXPECT_EQ(Mnemonic.empty(), !Key.ends_with(".Caption") || MnemonicOf(Value).empty());
                EXPECT_TRUE(Mnemonic.empty() || Mnemonics.insert(Mnemonic).second);
                if (!IsVisibleText(Key, Value) || IsTechnical(Key))
                    continue;
                ++Checked;
                const bool MayBeSame = Value == "'VCL'" || Value == "'&OK'" || Key.starts_with("SystemMenu");
                EXPECT_TRUE(Text != Value || MayBeSame) << Value;
                EXPECT_EQ(Text.find('%') == Text.npos, Value.find('%') == Value.npos) << Text;
            }
        }
    }
    EXPECT_GT(Checked, 700);
}

TEST_F(EditorLanguage, EveryLineOfTheFileIsUsed)
{
    std::set<std::string> Keys; // of any editor
    for (const auto Make : EditorForms)
        for (const auto& Line : LinesIn(1033, Make))
            Keys.insert(Line.first);
    for (const std::string Section :
         {"TranslationEditor", "FormEditor", "DlgEditor", "ResEditor", "LocaleEditor"})
        EXPECT_TRUE(ForEachTranslation(TranslationsFile(), Section, [&](const TTranslation& Each) {
            EXPECT_TRUE(Keys.contains(std::string(Each.Key))) << Section << "." << Each.Key;
        }));
    TComponent Owner(nullptr);
    Owner.SetName("Editors");
    TResourceTranslator Texts(&Owner);
    Texts.SetLocale(1031);
    ASSERT_TRUE(Texts.LoadFrom(TranslationsFile()));
    std::set<std::string> Sources;
    for (const std::string& Each : LinesOf(Texts.ResStrings()))
        Sources.insert(Each);
    Texts.InternalTranslate(false);
#define ORBILEX_TEXT(Name, Identifier, Text) EXPECT_TRUE(Sources.contains(std::string(Name))) << Text;
#include "editors/EditorTexts.inc"
#undef ORBILEX_TEXT
    for (const TResStringRec* const Rec :
         {&SMsgDlgYes, &SMsgDlgNo, &SMsgDlgWarning, &SMsgDlgOK, &SMsgDlgCancel, &SInvalidInteger,
          &SFOpenErrorEx, &SFCreateErrorEx})
        EXPECT_TRUE(Sources.contains(LoadResString(Rec))) << LoadResString(Rec);
}

TEST_F(EditorLanguage, QuestionsAreAskedInItAndTheProgramStaysInItsOwn)
{
    Have({"Caption='Hej'"});
    auto* const German = new TFormTranslator(Form);
    German->SetName("German");
    German->SetLocale(1031);
    German->InternalTranslate(false);
    SetEditorLocale(2055); // German, Switzerland
    TFormUser User;
    User.Do([&](TForm& Editor) {
        EXPECT_EQ(Editor.Caption(), "Editor für Formularübersetzungen");
        EXPECT_FALSE(German->Translate());
    });
    User.Choose("PropList", "Caption").Type("EdtTranslation", "Hallo").Click("BtnCancel");
    User.Do([](TForm& Question) { EXPECT_EQ(Question.Caption(), "Warnung"); });
    User.Answer("Sollen die Änderungen verworfen werden?", "Yes");
    EXPECT_FALSE(Edit(User));
    EXPECT_FALSE(German->Translate());
    EXPECT_EQ(std::string(SDiscardChanges), "Do you want to discard the changes ?");
}

TEST_F(EditorLanguage, ArabicIsMirrored)
{
    SetEditorLocale(1025);
    TFormUser User;
    User.Do([](TForm& Editor) {
        EXPECT_TRUE(Editor.UseRightToLeftAlignment());
        const auto& OK = PartOf<TButton>(Editor, "BtnOK");
        const auto& List = PartOf<TWinControl>(Editor, "PanList");
        EXPECT_LT(OK.Left(), Editor.ClientWidth() / 2);
        EXPECT_EQ(List.Align(), alRight);
        EXPECT_EQ(PartOf<TListBox>(Editor, "PropList").BiDiMode(), bdLeftToRight)
            << "keys are read from left";
        const auto& Label = PartOf<TLabel>(Editor, "LblList");
        const auto& Below = PartOf<TListBox>(Editor, "PropList");
        EXPECT_NEAR(Label.Left() + Label.Width(), Below.Left() + Below.Width(), 2);
    });
    User.Click("BtnCancel");
    EXPECT_FALSE(Edit(User));
}

TEST_F(EditorLanguage, UnknownLanguagesShowEnglish)
{
    SetEditorLocale(1036);
    TFormUser User;
    User.Do([](TForm& Editor) { EXPECT_EQ(Editor.Caption(), "Form Translations Editor"); })
        .Click("BtnCancel");
    EXPECT_FALSE(Edit(User));
}

} // namespace
