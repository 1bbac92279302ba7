#include "framework/rtl/RegistryIni.h"

#include <gtest/gtest.h>

#include <string>

#include "RegistryScope.h"
#include "framework/rtl/Strings.h"
#include "framework/rtl/SysUtils.h"

namespace {

class RegistryIni : public testing::Test {
protected:
    // What another program writes: data of any kind.
    void WriteRaw(const char* Section, const char* Ident, DWORD Kind, const std::string& Data)
    {
        HKEY Key = nullptr;
        const std::string Path = std::string(Scope.Key) + "\\" + Section;
        ASSERT_EQ(RegCreateKeyExA(HKEY_CURRENT_USER, Path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                                  &Key, nullptr),
                  0);
        RegSetValueExA(Key, Ident, 0, Kind, reinterpret_cast<const BYTE*>(Data.data()),
                       static_cast<DWORD>(Data.size()));
        RegCloseKey(Key);
    }
    std::string Sections()
    {
        TStringList List;
        File.ReadSections(List);
        List.Sort();
        return List.Text();
    }

    const TRegistryScope Scope;
    TRegIniFile File{Scope.Key};
};

template<typename TCall>
std::string ErrorOf(TCall Call)
{
    try {
        Call();
    } catch (const ERegistryException& Error) {
        return Error.Message();
    }
    return "none";
}

TEST_F(RegistryIni, TextsComeBackInANewObject)
{
    const struct {
        const char* Section;
        const char* Ident;
        std::string Value;
    } Cases[] = {
        {"Window", "Caption", "plain"},
        {"Window", "", "of the value without name"},
        {"", "Version", "of the file itself"},
        {"Größe 日本", "Ünït", "Smörgås 日本 \xF0\x9F\x98\x80"},
        {"Recent", "C:\\forms\\a=b.dfm", "C:\\x;[y]=%41\r\n\t"},
        {"Window", "Nothing", ""},
        {"Window", "One buffer full", std::string(255, 'x')},
        {"Window", "One buffer and a byte", std::string(256, 'x')},
        {"Window", "Long", std::string(100000, '~') + "é"},
    };
    for (const auto& Case : Cases)
        File.WriteString(Case.Section, Case.Ident, Case.Value);
    const TRegIniFile Again(Scope.Key);
    for (const auto& Case : Cases)
        EXPECT_EQ(Again.ReadString(Case.Section, Case.Ident, "default"), Case.Value) << Case.Ident;
    EXPECT_EQ(Again.ReadString("WINDOW", "caption", "default"), "plain") << "without case";
}

TEST_F(RegistryIni, NumbersAreTextsAndReadWithTolerance)
{
    File.WriteInteger("Kinds", "Lowest", -2147483647 - 1);
    File.WriteBool("Kinds", "On", true);
    File.WriteBool("Kinds", "Off", false);
    EXPECT_EQ(File.ReadString("Kinds", "Lowest", ""), "-2147483648");
    EXPECT_EQ(File.ReadString("Kinds", "On", "") + File.ReadString("Kinds", "Off", ""), "10");
    constexpr int Default = 7;
    const struct {
        const char* Name;
        DWORD Kind;
        std::string Data;
        std::string Text;
        int Number;
    } Cases[] = {
        {"hexadecimal", REG_SZ, std::string("$FF\0", 4), "$FF", 255},
        {"zero", REG_SZ, std::string("0\0", 2), "0", 0},
        {"no number", REG_SZ, std::string("12 cm\0", 6), "12 cm", Default},
        {"too large", REG_SZ, std::string("2147483648\0", 11), "2147483648", Default},
        {"empty", REG_SZ, std::string("\0", 1), "", Default},
        {"without its zero", REG_SZ, "12", "12", 12},
        {"rubbish behind the zero", REG_SZ, std::string("12\0xyz\0", 7), "12", 12},
        {"to be expanded", REG_EXPAND_SZ, std::string("%HOME%\0", 7), "%HOME%", Default},
        {"32 bits", REG_DWORD, std::string("\x2A\0\0\0", 4), "42", 42},
        {"32 bits, negative", REG_DWORD, "\xFE\xFF\xFF\xFF", "-2", -2},
        {"too few bytes", REG_DWORD, "1", "default", Default},
        {"bytes", REG_BINARY, std::string("12\0", 3), "default", Default},
        {"no data", REG_NONE, "", "default", Default},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        WriteRaw("Kinds", "Value", Case.Kind, Case.Data);
        EXPECT_TRUE(File.ValueExists("Kinds", "Value"));
        EXPECT_EQ(File.ReadString("Kinds", "Value", "default"), Case.Text);
        EXPECT_EQ(File.ReadInteger("Kinds", "Value", Default), Case.Number);
        EXPECT_EQ(File.ReadBool("Kinds", "Value", true), Case.Number != 0);
        EXPECT_EQ(File.ReadBool("Kinds", "Value", false), Case.Number != 0 && Case.Number != Default);
    }
}

TEST_F(RegistryIni, ReadingChangesNothing)
{
    TStringList List;
    const auto ReadAll = [&] {
        EXPECT_EQ(File.ReadString("None", "Value", "default"), "default");
        EXPECT_EQ(File.ReadInteger("None", "Value", 3), 3);
        EXPECT_TRUE(File.ReadBool("None", "Value", true));
        EXPECT_FALSE(File.ValueExists("None", "Value"));
        EXPECT_FALSE(File.SectionExists("None"));
        File.DeleteKey("None", "Value");
        File.EraseSection("None");
        List.SetText("line");
        File.ReadSection("None", List);
        EXPECT_EQ(List.Count(), 0);
        List.SetText("line");
        File.ReadSectionValues("None", List);
        EXPECT_EQ(List.Count(), 0);
        EXPECT_EQ(Sections(), "");
    };
    EXPECT_TRUE(File.SectionExists("")) << "made by the constructor";
    ReadAll();
    RegDeleteTreeA(HKEY_CURRENT_USER, Scope.Key);
    ReadAll();
    EXPECT_FALSE(File.SectionExists(""));
    File.WriteBool("Again", "Value", true);
    EXPECT_EQ(Sections(), "Again\r\n") << "writing makes the key anew";
}

TEST_F(RegistryIni, SectionsAreListedAndErased)
{
    const std::string LongName(3000, 'n');
    File.WriteString("Window", "Caption", "a=b");
    File.WriteInteger("Window", "Width", 640);
    File.WriteString("Names", LongName, "x");
    WriteRaw("Window\\Below", "Value", REG_SZ, std::string("x\0", 2));
    WriteRaw("Window", "Bytes", REG_BINARY, "x");
    EXPECT_EQ(Sections(), "Names\r\nWindow\r\n");
    TStringList List;
    File.ReadSection("Names", List);
    EXPECT_EQ(List.Text(), LongName + "\r\n");
    File.ReadSection("Window", List);
    List.Sort();
    EXPECT_EQ(List.Text(), "Bytes\r\nCaption\r\nWidth\r\n");
    File.ReadSectionValues("Window", List);
    List.Sort();
    EXPECT_EQ(List.Text(), "Bytes=\r\nCaption=a=b\r\nWidth=640\r\n");
    File.DeleteKey("Window", "caption");
    EXPECT_FALSE(File.ValueExists("Window", "Caption"));
    EXPECT_TRUE(File.ValueExists("Window", "Width"));
    File.EraseSection("Window");
    EXPECT_FALSE(File.SectionExists("Window"));
    EXPECT_EQ(Sections(), "Names\r\n");
}

TEST_F(RegistryIni, WhatCannotBeIsRefused)
{
    const std::string Zero("a\0b", 3);
    const std::string Path = Scope.Key;
    const struct {
        std::string Name;
        std::string Section;
        std::string Ident;
        std::string Value;
    } Cases[] = {
        {"section with backslash", "Outer\\Inner", "Value", "x"},
        {"zero in a section", Zero, "Value", "x"},
        {"zero in a name", "Section", Zero, "x"},
        {"zero in a text", "Section", "Value", Zero},
        {"section too long", std::string(256, 's'), "Value", "x"},
        {"name too long", "Section", std::string(16384, 'v'), "x"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        EXPECT_EQ(ErrorOf([&] { File.WriteString(Case.Section, Case.Ident, Case.Value); }),
                  "Failed to set data for '" + Path + "\\" + Case.Section + "\\" + Case.Ident + "'");
        EXPECT_EQ(File.ReadString(Case.Section, Case.Ident, "default"), "default");
        EXPECT_FALSE(File.ValueExists(Case.Section, Case.Ident));
    }
    EXPECT_FALSE(File.SectionExists("Outer"));
    WriteRaw("Outer\\Inner", "Value", REG_SZ, std::string("x\0", 2));
    for (const char* const Section : {"", "Outer\\Inner"})
        EXPECT_NE(ErrorOf([&] { File.EraseSection(Section); }), "none") << Section;
    EXPECT_TRUE(File.SectionExists("Outer"));
    for (const char* const FileName : {"", "\\Software\\Orbilex test"}) {
        TRegIniFile Nowhere(FileName);
        EXPECT_NE(ErrorOf([&] { Nowhere.WriteString("", "Value", "x"); }), "none") << FileName;
        EXPECT_FALSE(Nowhere.SectionExists("Outer")) << FileName;
    }
}

#ifndef _WIN32 // where a program cannot make its own registry read-only
TEST_F(RegistryIni, AReadOnlyRegistryGivesDefaults)
{
    setenv("ORBILEX_REGISTRY", "/proc/no folder here", 1);
    TRegIniFile ReadOnly("Software\\Orbilex test");
    EXPECT_EQ(ReadOnly.ReadInteger("Window", "Width", 800), 800);
    EXPECT_EQ(ErrorOf([&] { ReadOnly.WriteInteger("Window", "Width", 640); }),
              "Failed to set data for 'Software\\Orbilex test\\Window\\Width'");
}
#endif

} // namespace
