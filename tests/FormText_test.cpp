#include "framework/streaming/FormText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "framework/streaming/FormSource.h"

namespace {

const std::string SmallDfm = "object Form1: TForm1\r\n"
                             "  Left = 0\r\n"
                             "  Caption = 'Old'\r\n"
                             "  object Label1: TLabel\r\n"
                             "    Caption = 'It'#39's'\r\n"
                             "  end\r\n"
                             "end\r\n";

TFormDocument Read(std::string_view Text, int CodePage = 1252)
{
    TFormFileOptions Options;
    Options.CodePage = CodePage;
    return ReadFormText(Text, Options);
}

// The value of the only property of a form.
TFormValue Value(std::string_view Text, int CodePage = 1252)
{
    const auto Document = Read("object F: TF\r\n  V = " + std::string(Text) + "\r\nend\r\n", CodePage);
    return Document.Root.Properties().at(0).Value;
}

// A form from scratch with one property, written in a profile.
std::string Written(TFormValue Value, const TFormTextProfile& Profile = {})
{
    TFormDocument Document;
    Document.Root = TFormObject(TFormObjectKind::Object, "F", "TF");
    Document.Root.Add("V", std::move(Value));
    const std::string Text = WriteFormText(Document, Profile);
    const std::size_t Start = Text.find("  V =") + 5;
    return Text.substr(Start, Text.rfind(Profile.LineEnd + "end") - Start);
}

} // namespace

// One blank lost makes a file that nobody touched show up as changed.
TEST(FormText, WritesUnchangedFilesByteForByte)
{
    const struct {
        const char* Name;
        std::string Text;
        int CodePage = 1252;
    } Cases[] = {
        {"ordinary", SmallDfm},
        {"tabs, blank lines, odd indentation", "object A: TA\n\n\tB  =1 \n     C = 'x'   \n\n end"},
        {"mixed line ends, lone CR last", "object A: TA\r\n  B = 1\n  C = 2\r\nend\r"},
        {"keywords in capitals", "OBJECT A: TA\nEND\n"},
        {"old end-of-file sign", "object A: TA\nend\n\x1A"},
        {"sets over lines", "object A: TA\n  B = [a,\n    b ]\nend\n"},
        {"string pieces of odd widths", "object A: TA\n  B = 'x' + \n 'y'+#13#$0A\nend\n"},
        {"float spellings", "object A: TA\n  B = 1.50\n  C = 2e3\n  D = 007\n  E = $0F\n  F = 1.5S\nend\n"},
        {"hex in lower case", "object A: TA\n  B = {\n    0a 0\n b}\nend\n"},
        {"nameless, unit, position", "inline TA[ 2 ]\n  object B: U/TB [-1]\n  end\nend\n"},
        {"BOM", "\xEF\xBB\xBFobject \xC3\x84: T\xC3\x84\r\nend\r\n"},
        {"undefined byte of the code page", "object A: TA\r\n  B = 'x\x81y'\r\nend\r\n"},
        {"two codes for one character", "object A: TA\r\n  B = '\x87\x90\x81\xE0'\r\nend\r\n", 932},
        {"character cut between two pieces", "object A: TA\r\n  B = 'x\x83' +\r\n    '\x5Cy'\r\nend\r\n",
         932},
        {"UTF-16 without BOM", std::string("o\0b\0j\0e\0c\0t\0 \0A\0\n\0e\0n\0d\0", 24)},
        {"UTF-16 big-endian", std::string("\xFE\xFF\0o\0b\0j\0e\0c\0t\0 \4\x10\0\n\0e\0n\0d", 26)},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        TFormDocument Document = Read(Case.Text, Case.CodePage);
        EXPECT_EQ(WriteFormText(Document), Case.Text);
        // Written from its tree alone, the file must still mean the same.
        Document.Source = nullptr;
        EXPECT_TRUE(Read(WriteFormText(Document), Case.CodePage).SameTree(Document));
    }
}

TEST(FormText, ReadsStrings)
{
    const struct {
        const char* Name;
        std::string Text, Expected;
        int CodePage = 1252;
    } Cases[] = {
        {"doubled apostrophe", "'a''b'", "a'b"},
        {"only an apostrophe", "''''", "'"},
        {"codes beside quotes", "#1046'x'#39#13#10'y'", "\xD0\x96x'\r\ny"},
        {"pair of surrogates", "#55357#56832", "\xF0\x9F\x98\x80"},
        {"pair over two lines", "#55357 +\r\n #56832", "\xF0\x9F\x98\x80"},
        {"half a pair", "#55357'x'", "\xED\xA0\xBDx"},
        {"code from 128 on is no byte of the code page", "#152", "\xC2\x98"},
        {"raw bytes", "'\xB3'", "\xC5\x82", 1250},
        {"trail byte looks like a bracket", "'\x83\x5B\x83\x5D'", "\xE3\x82\xBC\xE3\x82\xBE", 932},
        {"undefined byte", "'\x81'", "\xF4\x8F\xBA\x81"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        EXPECT_EQ(Value(Case.Text, Case.CodePage).AsString(), Case.Expected);
    }
}

TEST(FormText, ReadsNumbers)
{
    EXPECT_EQ(Value("-9223372036854775808").AsInteger(), INT64_MIN);
    EXPECT_EQ(Value("$FF").AsInteger(), 255);
    EXPECT_EQ(Value("18446744073709551615").AsExtended(), (TFormExtended{UINT64_MAX, 0x403E}));
    EXPECT_EQ(Value("-1.25").AsFloat(), -1.25);
    EXPECT_EQ(Value("0.1").AsExtended(), (TFormExtended{0xCCCCCCCCCCCCCCCD, 0x3FFB}));
    EXPECT_EQ(Value("12500c").AsCurrency(), 12500);
    EXPECT_EQ(Value("38353.5d").FloatType(), TFormFloatType::Date);
    EXPECT_TRUE(std::isinf(Value("-Inf").AsFloat()));
}

// The layout that other programs write; a difference spoils every comparison of versions.
TEST(FormText, WritesCanonicalLayout)
{
    const TFormTextProfile Dfm, Lfm = TFormTextProfile::Lfm();
    TFormTextProfile Japanese;
    Japanese.CodePage = 932;
    Japanese.NonAscii = TFormNonAscii::Raw;
    const std::string Row(64, 'x');
    TFormItem Item;
    Item.Add("A", TFormValue::Integer(1));
    const struct {
        const char* Name;
        TFormValue Value;
        const TFormTextProfile& Profile;
        std::string Expected;
    } Cases[] = {
        {"empty string", TFormValue::String(""), Dfm, " ''"},
        {"apostrophe", TFormValue::String("it's"), Dfm, " 'it'#39's'"},
        {"apostrophe, lfm", TFormValue::String("it's"), Lfm, " 'it''s'"},
        {"codes", TFormValue::String("\xC3\xA9\t\xF0\x9F\x98\x80"), Dfm, " #233#9#55357#56832"},
        {"raw, lfm", TFormValue::String("\xC3\xA9\t!"), Lfm, " '\xC3\xA9'#9'!'"},
        {"full row", TFormValue::String(Row), Dfm, " '" + Row + "'"},
        {"over a row", TFormValue::String(Row + "y"), Dfm, " \r\n    '" + Row + "' +\r\n    'y'"},
        {"over a row, lfm", TFormValue::String(Row + "y"), Lfm, " '" + Row + "y'"},
        {"row one byte short", TFormValue::String(Row.substr(1) + "\xE3\x82\xBC"), Japanese,
         " \r\n    '" + Row.substr(1) + "' +\r\n    '\x83\x5B'"},
        {"not in the code page", TFormValue::String("\xE3\x82\xBC\xD5\xA1"), Japanese, " '\x83\x5B'#1377"},
        {"list", TFormValue::StringList({"a", ""}), Dfm, " (\r\n    'a'\r\n    '')"},
        {"list, lfm", TFormValue::StringList({"a"}), Lfm, " (\n    'a'\n  )"},
        {"empty list, lfm", TFormValue::List({}), Lfm, " (  )"},
        {"long string in a list", TFormValue::StringList({Row + "y"}), Dfm,
         " (\r\n    \r\n      '" + Row + "' +\r\n      'y')"},
        {"collection", TFormValue::Collection({Item, Item}), Dfm,
         " <\r\n    item\r\n      A = 1\r\n    end\r\n    item\r\n      A = 1\r\n    end>"},
        {"collection, lfm", TFormValue::Collection({Item, {}}), Lfm,
         " <  \n    item\n      A = 1\n    end  \n    item\n    end>"},
        {"short block", TFormValue::Binary("\x01\xFF"), Dfm, " {01FF}"},
        {"short block, lfm", TFormValue::Binary("\x01\xFF"), Lfm, " {\n    01FF\n  }"},
        {"full block", TFormValue::Binary(std::string(32, '\0')), Dfm,
         " {\r\n    " + std::string(64, '0') + "}"},
        {"set", TFormValue::Set({"a", "b"}), Dfm, " [a, b]"},
        {"float", TFormValue::Float(41411.34989893519), Dfm, " 41411.349898935190000000"},
        {"float, lfm", TFormValue::Float(0.0684693287039408), Lfm, " 0.0684693287039408"},
        {"float that needs 17 digits", TFormValue::Float(0.1 + 0.2), Lfm, " 0.30000000000000004"},
        {"tiny float", TFormValue::Float(1e-300), Dfm, " 1E-300"},
        {"single", TFormValue::Single(2.5F), Dfm, " 2.5s"},
        {"date", TFormValue::Date(38353), Dfm, " 38353d"},
        {"currency", TFormValue::Currency(12500), Dfm, " 12500c"},
        {"nil", TFormValue::Nil(), Dfm, " nil"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        EXPECT_EQ(Written(Case.Value, Case.Profile), Case.Expected);
    }
}

// A change must touch its own bytes and no others.
TEST(FormText, ChangesOnlyWhatChanged)
{
    const std::string Text = "object F: TF \n"
                             "   Caption  = 'Old' \n"
                             "\n"
                             "  Cols = < \n"
                             "    item Name = 'a'\n"
                             "    end\n"
                             "    item \n"
                             "      Name = 'b' end >\n"
                             "  Lines = ( 'x' \n"
                             "    'y' )\n"
                             "  object L: TL [1] \n"
                             "  end\n"
                             "end";
    const struct {
        const char* Name;
        std::function<void(TFormObject&)> Change;
        const char *Old, *New;
    } Cases[] = {
        {"value", [](auto& F) { F.SetValue("caption", TFormValue::String("New")); }, "'Old'", "'New'"},
        {"same value", [](auto& F) { F.SetValue("Caption", TFormValue::String("Old")); }, "", ""},
        {"in an item",
         [](auto& F) { F.Find("Cols")->Value.EditCollection()[1].SetValue("Name", TFormValue::Integer(7)); },
         "'b' end", "7 end"},
        {"item gone", [](auto& F) { F.Find("Cols")->Value.EditCollection().pop_back(); },
         "\n    item \n      Name = 'b' end", ""},
        {"line", [](auto& F) { F.Find("Lines")->Value.EditList()[0] = TFormValue::String("z"); }, " 'x'",
         "\n    'z'"},
        {"header", [](auto& F) { F.Children()[0].SetName("M"); }, "object L: TL [1]", "object M: TL [1]"},
        {"new property", [](auto& F) { F.Children()[0].SetValue("Tag", TFormValue::Integer(3)); }, "[1] \n",
         "[1]\n    Tag = 3 \n"},
        {"object gone", [](auto& F) { F.Children().clear(); }, "\n  object L: TL [1] \n  end", ""},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        TFormDocument Document = Read(Text);
        Case.Change(Document.Root);
        std::string Expected = Text;
        Expected.replace(Text.find(Case.Old), std::string(Case.Old).size(), Case.New);
        EXPECT_EQ(WriteFormText(Document), Expected);
    }
}

// What a program writes after loading: the same tree, built anew in its own order.
TEST(FormText, KeepSpellingMatchesByName)
{
    const TFormDocument Original = Read("object F: TF\n  b = 1 \n  A  = 'x'\n  A = 'y'\n"
                                        "  object TN  end\n  object L: TL\n  end\nend");
    TFormDocument Built;
    Built.Root = TFormObject(TFormObjectKind::Object, "F", "TF");
    Built.Root.Add("A", TFormValue::String("z"));
    Built.Root.Add("New", TFormValue::Boolean(true));
    Built.Root.Add("b", TFormValue::Float(1));
    Built.Root.Children().emplace_back(TFormObjectKind::Object, "L", "TL");
    Built.Root.Children().emplace_back(TFormObjectKind::Object, "", "TN");
    Built.KeepSpelling(Original);
    EXPECT_EQ(WriteFormText(Built), "object F: TF\n  b = 1\n  A = 'z'\n  New = True\n"
                                    "  object L: TL\n  end\n  object TN  end\nend");
}

TEST(FormText, RefusesWhatIsNoForm)
{
    const std::string Open = "object A: TA\n";
    std::string Deep, DeepList = Open + "  B = ";
    for (int Level = 0; Level < 600; ++Level)
        Deep += "object A: TA\n";
    DeepList += std::string(100000, '(');
    const struct {
        const char* Name;
        std::string Text;
        int Line, Column;
    } Cases[] = {
        {"empty", "", 1, 1},
        {"zeros", std::string(64, '\0'), 1, 1},
        {"a picture", "BM6\x0C", 1, 1},
        {"template", "object %NAME%: TA\nend", 1, 8},
        {"end missing", Open + "  object B: TB\n  end\n", 4, 1},
        {"end too much", Open + "end\nend", 3, 1},
        {"string not closed", Open + "  B = 'x\nend", 2, 7},
        {"cut within a string", Open + "  B = 'x", 2, 7},
        {"cut behind a plus", Open + "  B = 'x' +", 2, 12},
        {"conflict marks", Open + "<<<<<<< .mine\n  B = 1\nend", 2, 1},
        {"conflict marks as value", Open + "  B =\n<<<<<<< .mine\n", 3, 1},
        {"hex without its header", Open + "  B = 1\n    0A0B0C\nend", 3, 5},
        {"hex without its end", Open + "  B = {0A0B\nend", 2, 7},
        {"odd hex", Open + "  B = {0A0}\nend", 2, 11},
        {"no hex", Open + "  B = {0A\n xy}\nend", 3, 2},
        {"no value", Open + "  B = \nend\nend", 3, 1},
        {"item outside", Open + "  B = <\n  B = 1>\nend", 3, 3},
        {"collection not closed", Open + "  B = <\n", 2, 7},
        {"property after a child", Open + "object B: TB\nend\n  C = 1\nend", 4, 3},
        {"code too large", Open + "  B = #1114112\nend", 2, 7},
        {"number too large", Open + "  B = 99999999999999999999\nend", 2, 7},
        {"letters in a number", Open + "  B = 12x\nend", 2, 7},
        {"float out of range", Open + "  B = 1e9999999999\nend", 2, 7},
        {"objects too deep", Deep, 501, 1},
        {"lists too deep", DeepList, 2, 506},
        {"column counts characters", Open + "  B = '\xC3\xA9\xE2\x82\xAC' %\nend", 2, 12},
        {"lone CR ends a line", "object A: TA\r  B = %", 2, 7},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        TFormFileOptions Options;
        Options.FileName = "a.dfm";
        try {
            ReadFormText(Case.Text, Options);
            ADD_FAILURE() << "accepted";
        } catch (const EFormFileError& Error) {
            const std::string Place =
                "a.dfm:" + std::to_string(Case.Line) + ":" + std::to_string(Case.Column) + ": ";
            EXPECT_EQ(std::string(Error.what()).substr(0, Place.size()), Place) << Error.what();
        }
    }
}

// A name that cannot be read back would lose the file when it is opened again.
TEST(FormText, RefusesToWriteNamesThatCannotBeRead)
{
    for (const char* Name : {"", "a b", "1a", "a..b", ".a", "a.", "a\n", "'"}) {
        SCOPED_TRACE(Name);
        EXPECT_THROW(Written(TFormValue::Ident(Name)), EFormFileError);
    }
    EXPECT_THROW(Written(TFormValue::Ident("\xD0\x96")), EFormFileError); // not in code page 1252
    EXPECT_EQ(Written(TFormValue::Ident("DM.Source1")), " DM.Source1");
}

TEST(FormText, TellsTheDialect)
{
    const struct {
        const char *Text, *FileName;
        TFormDialect Dialect;
    } Cases[] = {
        {"object A: TA\nend\n", "", TFormDialect::Dfm},
        {"object A: TA\nend\n", "unit1.LFM", TFormDialect::Lfm},
        {"object A: TA[1]\n  B = <  \n    item\n    end>\nend\n", "", TFormDialect::Lfm},
        {"object A: TA\n  B = (\n    'a'\n  )\n  C = 'a''b'\nend\n", "", TFormDialect::Lfm},
        {"object A: TA\n  B = {00}\n  C = 'a'#39'b'\n  D = (\n    1)\nend\n", "a.lfm", TFormDialect::Dfm},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Text);
        TFormFileOptions Options;
        Options.FileName = Case.FileName;
        EXPECT_EQ(ReadFormText(Case.Text, Options).Text.Dialect, Case.Dialect);
    }
}
