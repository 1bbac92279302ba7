#include "framework/streaming/FormBinary.h"

#include <gtest/gtest.h>

#include "framework/streaming/FormText.h"

namespace {

using namespace std::string_literals;

std::string Short(const std::string& Text)
{
    return static_cast<char>(Text.size()) + Text;
}

std::string Number(std::uint32_t Value)
{
    std::string Result;
    for (int Index = 0; Index < 4; ++Index)
        Result += static_cast<char>(Value >> 8 * Index);
    return Result;
}

// A form with these properties, each a name in Short and a value.
std::string Bare(const std::string& Properties)
{
    return "TPF0" + Short("TA") + Short("A") + Properties + "\0\0"s;
}

std::string WithHeader(const std::string& Name, const std::string& Form)
{
    return "\xFF\x0A\x00"s + Name + "\0\x30\x10"s + Number(static_cast<std::uint32_t>(Form.size())) + Form;
}

TFormDocument Read(const std::string& Bytes, int CodePage = 1252)
{
    TFormFileOptions Options;
    Options.CodePage = CodePage;
    return ReadFormBinary(Bytes, Options);
}

const struct TWireCase {
    const char* Name;
    std::string Bytes;
    const char* Text;        // as a .dfm has it
    bool IsCanonical = true; // the writer chooses these very bytes
} WireCases[] = {
    {"null", "\0"s, "Null"},
    {"list", "\1\2\5\6\1x\1\0\0"s, "(\r\n    5\r\n    'x'\r\n    ())"},
    {"int 8", "\2\x80", "-128"},
    {"int 16", "\3\x80\0"s, "128"},
    {"int 32", "\4\0\0\1\0"s, "65536"},
    {"int 32 for a small number", "\4\1\0\0\0"s, "1", false},
    {"extended", "\5\0\0\0\0\0\0\0\xC0\xFF\x3F"s, "1.500000000000000000"},
    {"string", "\6\3caf", "'caf'"},
    {"code page string", "\6\4caf\xE9", "'caf'#233"},
    {"ident", "\7\7DM.Data", "DM.Data"},
    {"false", "\x08", "False"},
    {"true", "\x09", "True"},
    {"binary", "\x0A\2\0\0\0\1\xAB"s, "{01AB}"},
    {"set", "\x0B\1a\1b\0"s, "[a, b]"},
    {"empty set", "\x0B\0"s, "[]"},
    {"long string", "\x0C\2\0\0\0hi"s, "'hi'", false},
    {"nil", "\x0D", "nil"},
    {"collection", "\x0E\1\1C\2\1\0\2\5\1\0\0"s,
     "<\r\n    item\r\n      C = 1\r\n    end\r\n    item [5]\r\n    end>"},
    {"single", "\x0F\0\0\x20\x40"s, "2.5s"},
    {"currency", "\x10\x7D\0\0\0\0\0\0\0"s, "125c"},
    {"date", "\x11\0\0\0\0\x20\xBA\xE2\x40"s, "38353d"},
    {"wide string", "\x12\2\0\0\0\x16\4!\0"s, "#1046'!'", false},
    {"half a surrogate pair", "\x12\1\0\0\0\x3D\xD8"s, "#55357"},
    {"int 64", "\x13\0\0\0\0\0\1\0\0"s, "1099511627776"},
    {"UTF-8 string", "\x14\2\0\0\0\xD0\x96"s, "#1046"},
    {"double", "\x15\0\0\0\0\0\0\xF8\x3F"s, "1.500000000000000000"},
};

} // namespace

TEST(FormBinary, ReadsAndWritesEveryValueType)
{
    for (const auto& Case : WireCases) {
        SCOPED_TRACE(Case.Name);
        const std::string Bytes = Bare(Short("V") + Case.Bytes);
        TFormDocument Document = Read(Bytes);
        EXPECT_EQ(WriteFormBinary(Document), Bytes);
        EXPECT_EQ(WriteFormText(Document), "object A: TA\r\n  V = " + std::string(Case.Text) + "\r\nend\r\n");
        Document.Source = nullptr;
        const std::string Canonical = WriteFormBinary(Document);
        EXPECT_EQ(Canonical == Bytes, Case.IsCanonical);
        EXPECT_TRUE(Read(Canonical).SameTree(Document));
    }
}

TEST(FormBinary, WritesUnchangedFilesByteForByte)
{
    const std::string Form = Bare(Short("V") + "\2\5");
    const struct {
        const char* Name;
        std::string Bytes;
    } Cases[] = {
        {"bare", Form},
        {"resource header", WithHeader("TA", Form)},
        {"name in lower case, bytes behind", WithHeader("ta", Form) + "\0\0\0"s},
        {"wrong length in the header", "\xFF\x0A\0A\0\x30\x10\xFF\xFF\xFF\x7FTPF0\2TA\0\0\0"s},
        {"flags", "TPF0\xF7\2\1\2TA\0\0\xF4\2TB\1B\0\0\xF0\2TC\0\0\0\0"s},
        {"position in 16 bits", "TPF0\xF2\3\1\0\2TA\0\0\0"s},
        {"names in the code page", "TPF0\3T\xC4x\2\xC4x\0\0"s},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        const TFormDocument Document = Read(Case.Bytes);
        EXPECT_EQ(WriteFormBinary(Document), Case.Bytes);
        EXPECT_TRUE(Read(WriteFormBinary(Document)).SameTree(Document));
    }
}

// The length in the header decides how much of the resource is loaded.
TEST(FormBinary, AChangeMovesTheLengthInTheHeader)
{
    const std::string Value = Short("V") + "\4\5\0\0\0"s, Rest = Short("W") + "\4\6\0\0\0"s;
    TFormDocument Document = Read(WithHeader("Ta", Bare(Value + Rest)));
    Document.Root.SetValue("V", TFormValue::String("caf\xC3\xA9"));
    EXPECT_EQ(WriteFormBinary(Document),
              WithHeader("Ta", Bare(Short("V") + "\x14\5\0\0\0caf\xC3\xA9"s + Rest)));
    Document.Binary.CodePageStrings = true;
    EXPECT_EQ(WriteFormBinary(Document),
              WithHeader("Ta", Bare(Short("V") + "\6\4caf\xE9" + Short("W") + "\2\6")));
}

TEST(FormBinary, KeepsATextFormThroughBinaryBytes)
{
    const std::string Text = "inherited F: TF [1]\r\n"
                             "  Caption = \r\n"
                             "    '" +
                             std::string(64, 'a') +
                             "' +\r\n"
                             "    'b'#39#1046\r\n"
                             "  Ratio = 0.300000000000000000\r\n"
                             "  Items.Strings = (\r\n"
                             "    'x'\r\n"
                             "    Null)\r\n"
                             "  Cols = <\r\n"
                             "    item\r\n"
                             "      Data = {00}\r\n"
                             "    end>\r\n"
                             "  object TB\r\n"
                             "  end\r\n"
                             "end\r\n";
    const TFormDocument Document = ReadFormText(Text);
    const TFormDocument Again = Read(WriteFormBinary(Document));
    EXPECT_EQ(WriteFormText(Again, Document.Text), Text);
}

TEST(FormBinary, RefusesDamage)
{
    const std::string Form = Bare("");
    const auto Valued = [](const std::string& Value) { return Bare(Short("V") + Value); };
    std::string Deep = "TPF0\2TA\0\1V"s + std::string(1000, '\1');
    std::string Converted = WithHeader("TA", Form);
    Converted.insert(1, "\r");
    const struct {
        const char* Name;
        std::string Bytes;
        std::uint64_t Offset;
    } Cases[] = {
        {"empty", "", 0},
        {"only the signature", "TPF0", 4},
        {"other signature", "TPF1\2TA", 0},
        {"line ends converted", Converted, 0},
        {"resource name without end", "\xFF\x0A\0"s + std::string(300, 'A'), 3},
        {"cut in the header", "\xFF\x0A\0A\0\x30\x10"s, 5},
        {"class name cut", "TPF0\x14TA", 5},
        {"no class", "TPF0\0\0\0\0"s, 4},
        {"unknown flags", "TPF0\xF8\2TA\0\0\0"s, 4},
        {"position is no number", "TPF0\xF2\6\1x\2TA\0\0\0"s, 5},
        {"no value", "TPF0\2TA\0\1V"s, 10},
        {"unknown value type", Valued("\x16"), 11},
        {"string cut", "TPF0\2TA\0\1V\6\x09x"s, 12},
        {"gigantic block", Valued("\x0A\xFF\xFF\xFF\x7F"), 16},
        {"negative length", Valued("\x0A\xFF\xFF\xFF\xFF"), 12},
        {"gigantic wide string", Valued("\x12\xFF\xFF\xFF\x7F"), 16},
        {"item of another type", Valued("\x0E\6\1x"), 12},
        {"index without item", Valued("\x0E\2\1\2\1"), 14},
        {"list without end", "TPF0\2TA\0\1V\1\2\1"s, 13},
        {"too deep", Deep, 509},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        try {
            Read(Case.Bytes);
            ADD_FAILURE() << "accepted";
        } catch (const EFormFileError& Error) {
            EXPECT_EQ(Error.ByteOffset, Case.Offset) << Error.what();
        }
    }
}

// Whatever the place of a cut, the reader must notice.
TEST(FormBinary, RefusesEveryTruncation)
{
    std::string Properties;
    for (const auto& Case : WireCases)
        Properties += Short("V") + Case.Bytes;
    const std::string Bytes = WithHeader("TA", Bare(Properties));
    for (std::size_t Length = 0; Length < Bytes.size(); ++Length)
        EXPECT_THROW(Read(Bytes.substr(0, Length)), EFormFileError) << Length;
}
