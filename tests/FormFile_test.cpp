#include "framework/streaming/FormFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "framework/rtl/Files.h"
#include "framework/streaming/FormEncoding.h"

namespace {

namespace fs = std::filesystem;

struct TCounts {
    int Files = 0, Refused = 0, Identical = 0, SameTree = 0, ThroughBinary = 0;
};

// The real forms that stand beside the sources on a developer's machine. Their
// code pages are those of their authors.
int CodePageOf(const std::string& FileName)
{
    static const std::map<std::string, int> CodePages = {
        {"maerlyn", 1250}, {"mrfatguy", 1250}, {"maulaku", 936}, {"Nekomimi1958", 932}};
    for (const auto& [Folder, CodePage] : CodePages)
        if (FileName.find("/" + Folder + "/") != FileName.npos)
            return CodePage;
    return 1252;
}

void Check(const std::string& FileName, const std::string& Bytes, TCounts& Counts)
{
    TFormFileOptions Options;
    Options.FileName = FileName;
    Options.CodePage = CodePageOf(FileName);
    TFormDocument Document = ReadForm(Bytes, Options);
    const std::string Written = WriteForm(Document);
    Counts.Identical += Written == Bytes;
    Counts.SameTree += ReadForm(Written, Options).SameTree(Document);
    TFormDocument Bare = Document;
    Bare.Source = nullptr;
    if (Document.Format == TFormFormat::Binary) {
        const std::string Text = WriteFormText(Bare);
        TFormDocument Again = ReadFormText(Text, Options);
        Counts.SameTree += Again.SameTree(Document) ? 0 : -1;
        Again.Source = nullptr;
        Counts.ThroughBinary += WriteFormBinary(Again, Document.Binary) == Bytes;
    } else {
        const TFormDocument Again = ReadFormBinary(WriteFormBinary(Bare), Options);
        Counts.SameTree += Again.SameTree(Document) ? 0 : -1;
        Counts.ThroughBinary += WriteFormText(Again, Document.Text) == Bytes;
    }
}

class TTemporaryFolder {
public:
    TTemporaryFolder() { fs::create_directories(FPath); }
    ~TTemporaryFolder()
    {
        std::error_code Ignored;
        fs::remove_all(FPath, Ignored);
    }
    std::string File(const std::string& Name) const { return (FPath / Name).string(); }

private:
    fs::path FPath =
        fs::temp_directory_path() /
        ("FormFile_test-" + std::to_string(std::hash<std::string>{}(testing::TempDir() + __TIME__)));
};

} // namespace

TEST(FormFile, RealFormsComeBackByteForByte)
{
    if (!fs::exists(CORPUS))
        GTEST_SKIP() << "the real forms are not beside the sources: " << CORPUS;
    TCounts Counts;
    for (const auto& Entry : fs::recursive_directory_iterator(CORPUS)) {
        if (!Entry.is_regular_file())
            continue;
        const std::string FileName = Entry.path().generic_string();
        SCOPED_TRACE(FileName);
        ++Counts.Files;
        try {
            Check(FileName, ReadWholeFile(FileName), Counts);
        } catch (const EFormFileError& Error) {
            ++Counts.Refused;
            EXPECT_NE(FileName.find("UAgendaCompromisso.lfm"), FileName.npos) << Error.what();
            EXPECT_EQ(Error.Line, 91);
        }
    }
    EXPECT_EQ(Counts.Refused, 1);
    EXPECT_EQ(Counts.Identical, Counts.Files - 1);
    EXPECT_EQ(Counts.SameTree, Counts.Files - 1);
    // The others have mixed line ends, both kinds of apostrophes, or a string cut by hand.
    EXPECT_GE(Counts.ThroughBinary, Counts.Files - 5);
}

TEST(FormFile, TellsTheFormatByItsContent)
{
    const std::string Text = "object A: TA\r\nend\r\n", Binary("TPF0\2TA\1A\0\0", 11);
    EXPECT_EQ(ReadForm(Text).Format, TFormFormat::Text);
    EXPECT_EQ(ReadForm(Binary).Format, TFormFormat::Binary);
    EXPECT_EQ(WriteForm(ReadForm(Text)), Text);
    EXPECT_EQ(WriteForm(ReadForm(Binary)), Binary);
    try {
        ReadForm("\xFF\x0D\x0A");
        ADD_FAILURE() << "accepted";
    } catch (const EFormFileError& Error) {
        EXPECT_NE(std::string(Error.what()).find("line-end conversion"), std::string::npos);
    }
}

TEST(FormFile, ReadsAndReplacesFiles)
{
    const TTemporaryFolder Folder;
    const std::string FileName = Folder.File("a.lfm");
    ReplaceWholeFile(FileName, "object A: TA\n  B  = 1\nend");
    TFormDocument Document = ReadFormFile(FileName);
    EXPECT_EQ(Document.Text.Dialect, TFormDialect::Lfm);
    Document.Root.SetValue("C", TFormValue::String("it's"));
    WriteFormFile(FileName, Document);
    EXPECT_EQ(ReadWholeFile(FileName), "object A: TA\n  B  = 1\n  C = 'it''s'\nend");

    ReplaceWholeFile(FileName, "object A: TA\n  B = ?\nend");
    try {
        ReadFormFile(FileName);
        ADD_FAILURE() << "accepted";
    } catch (const EFormFileError& Error) {
        EXPECT_EQ(std::string(Error.what()).find(FileName + ":2:7: "), 0U) << Error.what();
    }
    EXPECT_THROW(ReadFormFile(Folder.File("absent.dfm")), EFOpenError);
}

TEST(FormFile, UnknownCodePageIsAnError)
{
    TFormFileOptions Options;
    Options.CodePage = 12345;
    EXPECT_THROW(ReadForm("object A: TA\nend\n", Options), EFormFileError);
    EXPECT_THROW(ReadForm(std::string("TPF0\2TA\1A\0\0", 11), Options), EFormFileError);
}

// Both platforms must read the bytes alike, or a form changes with the machine.
TEST(FormFile, CodePagesAreThoseOfTheStandards)
{
    const struct {
        int CodePage;
        std::string Bytes, Utf8;
    } Cases[] = {
        {1250, "\xB3\xF3\xBF", "\xC5\x82\xC3\xB3\xC5\xBC"},
        {1251, "\xC6", "\xD0\x96"},
        {1252, "\x80\x9F", "\xE2\x82\xAC\xC5\xB8"},
        {1253, "\xE1", "\xCE\xB1"},
        {437, "\x81", "\xC3\xBC"},
        {28592, "\xB1", "\xC4\x85"},
        {932, "\x83\x5C\xB1\x5C", "\xE3\x82\xBD\xEF\xBD\xB1\\"},
        {936, "\xD6\xD0", "\xE4\xB8\xAD"},
        {949, "\xB0\xA1", "\xEA\xB0\x80"},
        {950, "\xA4\xA4", "\xE4\xB8\xAD"},
        {65001, "\xC3\xA9", "\xC3\xA9"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.CodePage);
        const auto Codec = TFormCodec::Find(TFormEncoding::CodePage, Case.CodePage);
        ASSERT_TRUE(Codec);
        std::string Decoded, Encoded;
        Codec->Decode(Case.Bytes, Decoded);
        EXPECT_EQ(Decoded, Case.Utf8);
        for (std::size_t Pos = 0; Pos < Decoded.size();)
            EXPECT_TRUE(Codec->Encode(NextChar(Decoded, Pos), Encoded));
        EXPECT_EQ(Encoded, Case.Bytes);
    }
    for (const int CodePage : {1252, 932, 65001}) {
        std::string Bytes = "kept";
        EXPECT_FALSE(TFormCodec::Find(TFormEncoding::CodePage, CodePage)->Encode(0xD800, Bytes));
        EXPECT_EQ(Bytes, "kept");
    }
}
