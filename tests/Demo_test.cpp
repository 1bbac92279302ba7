// The demo's translations: nothing that is seen lacks one, no two commands of a
// menu or form share a mnemonic, and demo.lng is what the translators write.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "DemoTexts.h"
#include "Obxc3/Obxc3.h"
#include "Qft/Qft.h"
#include "Qrt/Qrt.h"
#include "core/KeyLines.h"
#include "core/LineSplitter.h"
#include "core/Literals.h"
#include "core/TranslationsFile.h"
#include "core/VisibleTexts.h"
#include "demo/BoxWatch.h"
#include "demo/DialogsForm.h"
#include "demo/FormTexts.h"
#include "demo/Language.h"
#include "demo/MessagesForm.h"
#include "demo/Programs.h"
#include "demo/TextsModule.h"
#include "demo/Tour.h"
#include "framework/forms/ComboBoxes.h"
#include "framework/forms/Edits.h"
#include "framework/forms/Forms.h"
#include "framework/forms/Menus.h"
#include "framework/forms/PageControls.h"
#include "framework/forms/PushButtons.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/Texts.h"
#include "framework/streaming/FormFile.h"
#include "framework/streaming/FormText.h"

namespace {

using TCreate = std::vector<TForm*> (*)();
constexpr TCreate Programs[] = {CreateBookingDesk, CreatePlanning};

void ForEachForm(const std::function<void(TForm&)>& Visit)
{
    for (const TCreate Create : Programs) {
        const TApplicationScope Scope;
        const TPackageScope Package;
        RegisterDemoForms();
        for (TForm* const Form : Create()) {
            SCOPED_TRACE(Form->Name());
            Visit(*Form);
        }
    }
}

using TLines = std::map<std::string, std::string>;

TLines LinesOf(TForm& Form)
{
    TLines Result;
    for (const TFormLine& Line : ReadFormLines(Form))
        Result.emplace(Line.Key, Line.Value);
    return Result;
}

std::vector<TFormTranslator*> TranslatorsOf(const TForm& Form)
{
    std::vector<TFormTranslator*> Result;
    for (int I = 0; I < Form.ComponentCount(); ++I)
        if (auto* const Translator = dynamic_cast<TFormTranslator*>(Form.Components(I)))
            Result.push_back(Translator);
    return Result;
}

size_t TranslatedLanguages()
{
    const auto IsTranslated = [](const TLanguage& Language) { return !Language.IsOwn; };
    return static_cast<size_t>(std::ranges::count_if(Languages(), IsTranslated));
}

const TComponent* OwnerOf(const TForm& Form, const std::string& Key)
{
    return Form.FindComponent(Key.substr(0, Key.find('.')));
}

// Whether the path of the key leads over a property that names another component:
// the walk enters it, and its texts have keys of their own.
bool IsByReference(const TForm& Form, const std::string& Key)
{
    const TComponent* const Component = OwnerOf(Form, Key);
    const TObject* Object = Component ? Component : &Form;
    for (size_t At = Component ? Key.find('.') + 1 : 0, Dot; (Dot = Key.find('.', At)) != Key.npos;
         At = Dot + 1) {
        const TPropInfo* const Prop = Object->ClassType().FindProperty(Key.substr(At, Dot - At));
        Object = Prop ? GetObjectProp(*Object, *Prop) : nullptr;
        if (!Object)
            return false;
        const auto* const Held = dynamic_cast<const TComponent*>(Object);
        if (Held && !Held->IsSubComponent())
            return true;
    }
    return false;
}

// A text that comes from another place: the action of a button or menu item, the
// chosen item of a list, or data.
bool ComesFromElsewhere(const TForm& Form, const TLines& Lines, const std::string& Key, std::string& Source)
{
    const TComponent* const Component = OwnerOf(Form, Key);
    if (!Component || Component->Name().ends_with("Value"))
        return Component != nullptr;
    if (const auto* const Combo = dynamic_cast<const TComboBox*>(Component); Combo && Key.ends_with(".Text"))
        return Combo->Style() == csDropDownList;
    const TPropInfo* const Prop = Component->ClassType().FindProperty("Action");
    const TObject* const Action = Prop ? GetObjectProp(*Component, *Prop) : nullptr;
    if (!Action)
        return false;
    Source = static_cast<const TComponent*>(Action)->Name() + Key.substr(Key.find('.'));
    const auto Found = Lines.find(Source);
    return Found != Lines.end() && Found->second == Lines.at(Key);
}

bool IsCovered(const TFormTranslator& Translator, const std::string& Key)
{
    int Index = 0;
    return FindKeyLine(*Translator.Translations(), Key, Index);
}

// A form that shows a word of English among Arabic ones is found by no user who
// tests in English.
TEST(Demo, EveryVisibleTextHasATranslation)
{
    int Checked = 0;
    ForEachForm([&](TForm& Form) {
        const TLines Lines = LinesOf(Form);
        const std::vector<TFormTranslator*> Translators = TranslatorsOf(Form);
        ASSERT_EQ(Translators.size(), TranslatedLanguages());
        for (const auto& [Key, Value] : Lines) {
            std::string Source;
            if (!IsVisibleText(Key, Value) || IsByReference(Form, Key))
                continue;
            const bool Elsewhere = ComesFromElsewhere(Form, Lines, Key, Source);
            for (const TFormTranslator* const Translator : Translators) {
                EXPECT_EQ(IsCovered(*Translator, Key), !Elsewhere) << Key << " in " << Translator->Name();
                EXPECT_TRUE(Source.empty() || !Elsewhere || IsCovered(*Translator, Source)) << Source;
                ++Checked;
            }
        }
    });
    EXPECT_GT(Checked, 500);
}

std::string MnemonicOf(const std::string& Caption)
{
    for (size_t I = 0; I + 1 < Caption.size(); ++I) {
        if (Caption[I] != '&')
            continue;
        if (Caption[I + 1] == '&') {
            ++I;
            continue;
        }
        size_t Length = 1;
        while (I + 1 + Length < Caption.size() &&
               (static_cast<unsigned char>(Caption[I + 1 + Length]) & 0xC0) == 0x80)
            ++Length;
        return AnsiUpperCase(Caption.substr(I + 1, Length));
    }
    return "";
}

void Take(std::set<std::string>& Taken, const std::string& Caption)
{
    if (const std::string Mnemonic = MnemonicOf(Caption); !Mnemonic.empty()) {
        EXPECT_TRUE(Taken.insert(Mnemonic).second) << "'" << Mnemonic << "' twice: " << Caption;
    }
}

void TakeItems(std::set<std::string>& Taken, const TMenuItem& Menu)
{
    for (int I = 0; I < Menu.Count(); ++I) {
        const TMenuItem& Item = *Menu.Items(I);
        // The language menu is made of names without mnemonics.
        if (Item.Caption() != "-" && !Item.Name().empty()) {
            EXPECT_NE(MnemonicOf(Item.Caption()), "") << Item.Caption();
        }
        Take(Taken, Item.Caption());
        std::set<std::string> Below;
        TakeItems(Below, Item);
    }
}

bool ShowsCaption(const TControl& Control)
{
    return !dynamic_cast<const TCustomEdit*>(&Control) && !dynamic_cast<const TCustomComboBox*>(&Control);
}

// Pages of a page control are never seen together.
void TakeControls(std::set<std::string>& Taken, const TWinControl& Parent)
{
    const bool Alone = dynamic_cast<const TPageControl*>(&Parent) != nullptr;
    for (int I = 0; I < Parent.ControlCount(); ++I) {
        const TControl& Control = *Parent.Controls(I);
        if (ShowsCaption(Control) && !Alone)
            Take(Taken, Control.Caption());
        if (const auto* const Container = dynamic_cast<const TWinControl*>(&Control)) {
            std::set<std::string> OnPage = Taken;
            TakeControls(Alone ? OnPage : Taken, *Container);
        }
    }
}

TEST(Demo, MnemonicsDoNotClash)
{
    for (const TLanguage& Language : Languages()) {
        SCOPED_TRACE(Language.Name);
        ForEachForm([&](TForm& Form) {
            SwitchLanguage(Language.Locale);
            std::set<std::string> Taken;
            if (Form.Menu())
                TakeItems(Taken, *Form.Menu()->Items());
            TakeControls(Taken, Form);
            if (auto* const Popup = dynamic_cast<TPopupMenu*>(Form.FindComponent("PopupMenu1"))) {
                std::set<std::string> OnPopup;
                TakeItems(OnPopup, *Popup->Items());
            }
        });
    }
}

// A line for a component that was renamed translates nothing, silently.
TEST(Demo, EveryLineOfTheTranslationsFileIsUsed)
{
    std::map<std::string, TLines> Forms;
    ForEachForm([&](TForm& Form) { Forms.emplace(Form.Name(), LinesOf(Form)); });
    const std::string File = ReadWholeFile(DEMO_TRANSLATIONS);
    std::vector<std::string> Lines;
    std::string_view Line;
    for (TLineSplitter Splitter(File); Splitter.Next(Line);) {
        Lines.emplace_back(Line);
        const std::string Section(Line.substr(0, Line.find('.')));
        EXPECT_TRUE(Forms.contains(Section) || Section == "#0DialogsForm" || Section == "#1TextsModule")
            << Line;
    }
    EXPECT_TRUE(std::is_sorted(Lines.begin(), Lines.end()));
    EXPECT_EQ(std::adjacent_find(Lines.begin(), Lines.end()), Lines.end());
    for (const auto& Form : Forms) {
        const std::string& Name = Form.first;
        const TLines& Properties = Form.second;
        ForEachTranslation(DEMO_TRANSLATIONS, Name, [&](const TTranslation& Translation) {
            SCOPED_TRACE(Name + "." + std::string(Translation.Key));
            const auto Property = Properties.find(std::string(Translation.Key));
            ASSERT_NE(Property, Properties.end());
            if (Translation.Locale == DefaultsLocale) {
                EXPECT_EQ(Translation.Value, Property->second);
            } else if (Property->second.starts_with('\'')) {
                EXPECT_EQ(ToLiterals(FromLiterals(Translation.Value)), Translation.Value);
                EXPECT_EQ(IsVisibleText(Translation.Key, Translation.Value), true);
            }
        });
    }
}

// Form files that are not written as the framework writes them change as a whole
// when the designer saves them for the first time.
TEST(Demo, FormFilesAreCanonical)
{
    int Count = 0;
    for (const auto& Entry : std::filesystem::directory_iterator(DEMO_FORMS)) {
        const std::string Name = Entry.path().string();
        TFormDocument Document = ReadFormFile(Name);
        Document.Source = nullptr;
        EXPECT_EQ(WriteFormText(Document, TFormTextProfile{}), ReadWholeFile(Name)) << Name;
        ++Count;
    }
    EXPECT_EQ(Count, 11);
}

// The button translator's.
const TResStringRec* const TranslatedCaptions[] = {&SMsgDlgYes,  &SMsgDlgNo,    &SMsgDlgOK,    &SMsgDlgCancel,
                                                   &SMsgDlgHelp, &SMsgDlgAbort, &SMsgDlgRetry, &SMsgDlgIgnore,
                                                   &SMsgDlgAll,  &SOKButton,    &SCancelButton};

std::set<const TResStringRec*> Loaded;

std::string NoteAndLoad(const TResStringRec* Rec)
{
    Loaded.insert(Rec);
    return CustomLoadResString(Rec);
}

std::vector<TResourceTranslator*> TextTranslators()
{
    std::vector<TResourceTranslator*> Result;
    for (int I = 0; I < TextsModule->ComponentCount(); ++I)
        Result.push_back(&dynamic_cast<TResourceTranslator&>(*TextsModule->Components(I)));
    return Result;
}

// A message is put together from texts of the framework and of the program: one that
// is forgotten is found by nobody who tests in English.
TEST(Demo, EveryTextOfTheMessagesHasATranslation)
{
    const TApplicationScope Scope;
    const TPackageScope Package;
    RegisterDemoForms();
    CreateBookingDesk();
    SwitchLanguage(Languages().front().Locale);
    const std::vector<TResourceTranslator*> Translators = TextTranslators();
    EXPECT_EQ(Translators.size(), TranslatedLanguages());
    MessagesForm->Show();
    RedirectLoadResString(NoteAndLoad);
    for (TButton* const Button : ButtonsOf(*MessagesForm))
        EXPECT_FALSE(ClickAndClose(*Button, [](HWND) {}).empty()) << Button->Name();
    RedirectLoadResString(CustomLoadResString);
    for (const TResStringRec* const Caption : TranslatedCaptions)
        Loaded.erase(Caption);
    EXPECT_TRUE(Loaded.contains(&SListIndexError));
#define ORBILEX_TEXT(Name, Identifier, Text) Loaded.insert(&Name);
#include "demo/DemoTexts.inc"
#undef ORBILEX_TEXT
    for (const TResStringRec* const Rec : Loaded)
        for (const TResourceTranslator* const Translator : Translators) {
            const std::string Source = LoadResString(Rec);
            int Index = -1;
            ASSERT_TRUE(Translator->ResStrings().SortFind(Source, Index)) << Source;
            const int Text = ObjectInteger(Translator->ResStrings().Objects(Index));
            EXPECT_NE(Translator->Translations()->Get(Text), "") << Source << " in " << Translator->Name();
        }
}

// A control that a list of translations forgets, or names by a wrong number.
TEST(Demo, EveryButtonOfTheDialogsIsTranslated)
{
    const TApplicationScope Scope;
    const TPackageScope Package;
    RegisterDemoForms();
    CreateBookingDesk();
    DialogsForm->Show();
    const std::set<std::string> Same{"OK", "&o", ""};
    for (TButton* const Button : ButtonsOf(*DialogsForm)) {
        SwitchLanguage(Languages().front().Locale);
        const std::vector<TBoxTexts> English = ClickAndClose(*Button, [](HWND) {});
        ASSERT_EQ(English.size(), 1U) << Button->Name();
        for (const int Locale : {0x41D, 0x407}) {
            SwitchLanguage(Locale);
            const std::vector<TBoxTexts> Translated = ClickAndClose(*Button, [](HWND) {});
            ASSERT_EQ(Translated.size(), 1U) << Button->Name();
            EXPECT_NE(Translated[0].Title, English[0].Title) << Button->Name();
            ASSERT_EQ(Translated[0].Buttons.size(), English[0].Buttons.size());
            for (size_t I = 0; I < English[0].Buttons.size(); ++I)
                if (!Same.contains(English[0].Buttons[I])) {
                    EXPECT_NE(Translated[0].Buttons[I], English[0].Buttons[I]) << Button->Name() << Locale;
                }
        }
    }
}

// Texts whose numbers are not those that saving would give them change as a whole
// when the designer saves them for the first time.
TEST(Demo, TextsAreStoredAsTranslatorsWriteThem)
{
    const std::string File = (std::filesystem::temp_directory_path() / "orbilex-demo-texts.lng").string();
    ReplaceWholeFile(File, ReadWholeFile(DEMO_TRANSLATIONS));
    const TApplicationScope Scope;
    const TPackageScope Package;
    RegisterDemoForms();
    Application->CreateForm(TextsModule);
    for (TResourceTranslator* const Translator : TextTranslators())
        Translator->SaveTo(File);
    EXPECT_EQ(ReadWholeFile(File), ReadWholeFile(DEMO_TRANSLATIONS));
    std::filesystem::remove(File);
}

// Every language shown, every form and message restored and every file left as it was.
TEST(Demo, TourSucceeds)
{
    const std::string Folder = (std::filesystem::temp_directory_path() / "orbilex-demo-tour").string();
    std::filesystem::remove_all(Folder);
    EXPECT_EQ(RunTour(Folder), 0);
    for (const char* const Name : {"/main-ar.png", "/box-question-ar.png", "/box-number-ar.png"})
        EXPECT_GT(std::filesystem::file_size(Folder + Name), 1000u) << Name;
    std::filesystem::remove_all(Folder);
}

} // namespace
