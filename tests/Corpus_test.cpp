// Forms that other people wrote: loaded, listed, translated, restored, saved.
// Nothing runs where the collection of real forms is absent; the few pieces in
// tests/data always do.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <iostream>
#include <map>

#include "core/KeyLines.h"
#include "core/Literals.h"
#include "framework/forms/Application.h"
#include "framework/forms/StandardClasses.h"
#include "framework/rtl/Files.h"
#include "framework/streaming/FormFile.h"
#include "tools/FormFiles.h"
#include "wizard/TranslatableForm.h"

namespace {

std::vector<std::string> AllForms()
{
    std::vector<std::string> Folders{TEST_DATA};
    std::error_code Ignored;
    if (std::filesystem::is_directory(CORPUS, Ignored))
        Folders.emplace_back(CORPUS);
    return FormFilesOf(Folders);
}

using TProperties = std::map<std::string, std::string>;

// What the translator's owner shows now; asked of another translator, because one
// that is switched on restores its form before it reads.
TProperties PropertiesOf(const TFormTranslator& Translator)
{
    TSortList Lines;
    TFormTranslator Reader(Translator.Owner());
    Reader.TranslateForm(&Lines, true);
    TProperties Result;
    for (int I = 0; I < Lines.Count(); ++I)
        Result.emplace(KeyOf(Lines[I]), Lines[I].substr(KeyOf(Lines[I]).size() + 1));
    return Result;
}

// A text of the form; not a component's own name, which admits few texts, nor a
// single character.
bool IsTranslatable(const std::string& Key, const std::string& Value)
{
    const bool IsText = !Value.empty() && (Value[0] == '\'' || Value[0] == '#') && Value != "''";
    const bool IsOwnName = Key == "Name" || (Key.ends_with(".Name") && !Key.ends_with(".Font.Name"));
    return IsText && !IsOwnName && !Key.ends_with("PasswordChar") && Value.size() < 4000 &&
           !Key.starts_with("SystemMenu");
}

// The text of a list without an edit is one of its items.
bool IsChosenItem(const std::string& Key, const TProperties& Properties)
{
    if (!Key.ends_with(".Text"))
        return false;
    const auto Style = Properties.find(Key.substr(0, Key.size() - 4) + "Style");
    return Style != Properties.end() && Style->second.starts_with("csDropDownList");
}

// What follows from a change of another property: the kind of help from the help
// keyword, the choice and the shown item from the items.
bool IsDerived(const std::string& Key)
{
    return Key.ends_with("ParentFont") || Key.ends_with("HelpType") || Key.ends_with("ItemIndex") ||
           Key.ends_with(".Text") || Key.find("Font.") != Key.npos;
}

std::string MadeUp(const std::string& Text)
{
    return "<" + Text + " ÅΩ語>";
}

// A value that follows another one which was translated: a menu item shows its
// action's caption.
bool FollowsAnother(const std::string& After, const TProperties& Translations)
{
    for (const auto& [Key, Value] : Translations)
        if (Value == After)
            return true;
    return false;
}

struct TFigures {
    int Forms = 0;
    int Properties = 0;
    int Texts = 0;
    int Refused = 0;
    int Followers = 0;
};

void CheckForm(const std::string& File, TFigures& Figures)
{
    const std::string Original = ReadWholeFile(File);
    TTranslatableForm Form(File, 1252);
    ASSERT_EQ(WriteForm(Form.Save()), Original) << "not the same bytes when nothing has changed";
    std::vector<TProperties> Before;
    std::vector<TProperties> Wanted;
    for (TFormTranslator* const Translator : Form.Translators()) {
        Before.push_back(PropertiesOf(*Translator));
        Figures.Properties += static_cast<int>(Before.back().size());
        Wanted.emplace_back();
        for (const auto& [Key, Value] : Before.back())
            if (IsTranslatable(Key, Value) && !IsChosenItem(Key, Before.back()))
                Wanted.back().emplace(Key, ToLiterals(MadeUp(FromLiterals(Value))));
        Figures.Texts += static_cast<int>(Wanted.back().size());
    }
    for (size_t I = 0; I < Form.Translators().size(); ++I) {
        TFormTranslator& Translator = *Form.Translators()[I];
        TSortList Lines;
        for (const auto& [Key, Value] : Wanted[I])
            Lines.SortInsert(Key + "=" + Value, nullptr);
        Translator.SetTranslations(&Lines);
        Translator.SetTranslate(true);
        for (const auto& [Key, Value] : PropertiesOf(Translator)) {
            const auto Line = Wanted[I].find(Key);
            const auto Old = Before[I].find(Key);
            if (Line != Wanted[I].end()) {
                EXPECT_EQ(Value, Line->second) << Key << " is not translated";
            } else if (Old != Before[I].end() && Old->second != Value && FollowsAnother(Value, Wanted[I])) {
                ++Figures.Followers;
            } else if (Old != Before[I].end() && !IsDerived(Key)) {
                EXPECT_EQ(Value, Old->second) << Key << " has changed without a translation";
            }
        }
    }
    // Last one first: a frame is translated with its form and once more by itself.
    for (auto Each = Form.Translators().rbegin(); Each != Form.Translators().rend(); ++Each)
        (*Each)->SetTranslate(false);
    EXPECT_EQ(WriteForm(Form.Save()), Original) << "restoring does not give the original";
    ++Figures.Forms;
}

TEST(RealForms, AreTranslatedAndRestoredExactly)
{
    TApplicationScope Scope;
    RegisterStandardClasses();
    TFigures Figures;
    const auto Start = std::chrono::steady_clock::now();
    for (const std::string& File : AllForms()) {
        SCOPED_TRACE(File);
        try {
            CheckForm(File, Figures);
        } catch (const EFormFileError& Error) {
            ++Figures.Refused;
            EXPECT_NE(std::string(Error.what()).find(File), std::string::npos);
        } catch (const std::exception& Error) {
            ADD_FAILURE() << Error.what();
        }
    }
    const std::chrono::duration<double> Time = std::chrono::steady_clock::now() - Start;
    std::cout << Figures.Forms << " forms, " << Figures.Properties << " properties, " << Figures.Texts
              << " texts, " << Figures.Followers << " followers, " << Figures.Refused << " refused, "
              << Time.count() << " s\n";
    EXPECT_GT(Figures.Forms, 0);
    EXPECT_LE(Figures.Refused, 1);
}

} // namespace
