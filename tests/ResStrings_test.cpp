// Resource strings of the framework and of a program, and the modules that hold
// them in other languages.
#include "framework/rtl/ResStrings.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "TestTexts.h"
#include "framework/rtl/Modules.h"
#include "framework/rtl/SysUtils.h"
#include "platform/Strings.h"

namespace {

// Global objects may need a text before others are built.
const std::string AtStart = SListIndexError;

// LoadStringA as any part of the program calls it.
[[gnu::noinline]] std::string LoadDirectly(UINT Identifier, int Capacity = 100)
{
    char Buffer[100] = "before";
    const int Length = LoadStringA(HInstance, Identifier, Buffer, Capacity);
    EXPECT_EQ(static_cast<size_t>(Length), std::string(Buffer).size());
    return Buffer;
}

TEST(ResStrings, GiveTheTextsOfTheTables)
{
    const TResStringRec Unknown{&HInstance, 39999};
    const TResStringRec Literal{nullptr, reinterpret_cast<std::uintptr_t>("literal")};
    const struct {
        const char* Name;
        const TResStringRec* Rec;
        std::string Text;
    } Cases[] = {
        {"framework, highest identifier", &SUnknown, "<unknown>"},
        {"quotes", &SInvalidInteger, "'%s' is not a valid integer value"},
        {"line end", &SOSError, "System Error.  Code: %d.\n%s"},
        {"of message forms", &SMsgDlgNoToAll, "N&o to All"},
        {"of other dialogs", &SCancelButton, "Cancel"},
        {"program", &SGreeting, "Good morning"},
        {"beyond ASCII", &SCoffee, "Café 日本"},
        {"escapes, out of order in the file", &SLines, "One\nTwo\tThree \\ 100%"},
        {"no such identifier", &Unknown, ""},
        {"literal", &Literal, "literal"},
        {"null", nullptr, ""},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        EXPECT_EQ(LoadResString(Case.Rec), Case.Text);
    }
    EXPECT_EQ(AtStart, "List index out of bounds (%d)");
    EXPECT_EQ(Format(SCharExpected, {"="}), "'=' expected");
    EXPECT_EQ(LoadDirectly(static_cast<UINT>(SGreeting.Identifier)), "Good morning");
    EXPECT_EQ(LoadDirectly(static_cast<UINT>(SGreeting.Identifier), 5), "Good");
    EXPECT_EQ(LoadDirectly(39999), "");
}

// A row whose text the module lacks would be an error message without words.
TEST(ResStrings, EveryTextOfTheFrameworkIsThere)
{
#define ORBILEX_TEXT(Name, Identifier, Text) EXPECT_EQ(std::string(Name), Text) << Identifier;
#include "framework/rtl/RtlConsts.inc"
#undef ORBILEX_TEXT
}

TEST(ResStrings, EntryIsRedirectedAndRestored)
{
    const TLoadResString Before =
        RedirectLoadResString([](const TResStringRec*) { return std::string("other"); });
    EXPECT_EQ(std::string(SGreeting), "other");
    RedirectLoadResString(Before);
    EXPECT_EQ(std::string(SGreeting), "Good morning");
}

TEST(ResStrings, ComeFromALanguageModule)
{
    EXPECT_FALSE(LoadResourceLanguage(0x0411)) << "there is no Japanese module";
    ASSERT_TRUE(LoadResourceLanguage(0x0407));
    EXPECT_EQ(std::string(SGreeting), "Guten Morgen");
    EXPECT_EQ(std::string(SMsgDlgYes), "&Ja");
    EXPECT_EQ(std::string(SMsgDlgNo), "&No") << "what it lacks comes from the program";
    EXPECT_EQ(LoadDirectly(static_cast<UINT>(SGreeting.Identifier)), "Good morning")
        << "a direct call names its module";
    EXPECT_TRUE(LoadResourceLanguage(0x0407)) << "the same again";
    EXPECT_EQ(std::string(SGreeting), "Guten Morgen");
    UnloadResourceLanguage();
    EXPECT_EQ(std::string(SGreeting), "Good morning");
    EXPECT_EQ(std::string(SMsgDlgYes), "&Yes");
}

TEST(Modules, GiveTheirLanguageModule)
{
    const auto Handle = [](int Number) { return reinterpret_cast<HINSTANCE>(static_cast<intptr_t>(Number)); };
    TLibModule* const Before = LibModuleList;
    TLibModule First;
    TLibModule Second;
    First.Instance = Handle(16);
    First.ResInstance = Handle(32);
    Second.Instance = Handle(48);
    RegisterModule(First);
    RegisterModule(Second);
    EXPECT_EQ(LibModuleList, &Second);
    EXPECT_EQ(FindResourceHInstance(Handle(16)), Handle(32));
    EXPECT_EQ(FindResourceHInstance(Handle(48)), Handle(48));
    EXPECT_EQ(FindResourceHInstance(Handle(64)), Handle(64));
    UnregisterModule(First);
    UnregisterModule(First);
    EXPECT_EQ(FindResourceHInstance(Handle(16)), Handle(16));
    UnregisterModule(Second);
    EXPECT_EQ(LibModuleList, Before);
}

std::string FileOf(HINSTANCE Module)
{
    char Name[1024];
    return {Name, GetModuleFileNameA(Module, Name, sizeof(Name))};
}

// What a look at every identifier that a program's texts can have finds.
std::map<UINT, std::string> TextsOf(HINSTANCE Module)
{
    std::map<UINT, std::string> Result;
    char Buffer[ResStringBufferBytes];
    for (UINT Identifier = 65535; Identifier >= 32768; --Identifier)
        if (const int Length = LoadStringA(Module, Identifier, Buffer, sizeof(Buffer)))
            Result[Identifier].assign(Buffer, static_cast<size_t>(Length));
    return Result;
}

TEST(Modules, TheProgramIsFoundWithAllItsTexts)
{
    const std::map<UINT, std::string> All = {
#define ORBILEX_TEXT(Name, Identifier, Text) {Identifier, Text},
#include "editors/EditorTexts.inc"
#include "framework/rtl/RtlConsts.inc"
#include "strings/TestTexts.inc"
#include "wizard/WizardTexts.inc"
#undef ORBILEX_TEXT
    };
    ASSERT_FALSE(LibModuleList->Next) << "nothing else is registered";
    EXPECT_EQ(LibModuleList->Instance, HInstance);
    EXPECT_EQ(FileOf(LibModuleList->Instance), FileOf(nullptr));
    EXPECT_NE(FileOf(nullptr), "");
    EXPECT_EQ(TextsOf(LibModuleList->Instance), All);

    const std::map<UINT, std::string> German = {
#define ORBILEX_TEXT(Name, Identifier, Text) {Identifier, Text},
#include "strings/TestTexts.de.inc"
#undef ORBILEX_TEXT
    };
    ASSERT_TRUE(LoadResourceLanguage(0x0407));
    const HINSTANCE Resources = LibModuleList->ResInstance;
    EXPECT_EQ(FileOf(Resources), "") << "a data file";
    EXPECT_EQ(TextsOf(Resources), German);
    UnloadResourceLanguage();
}

} // namespace
