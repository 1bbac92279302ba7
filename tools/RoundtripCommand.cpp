// orbilex roundtrip: forms loaded and written back.
#include <filesystem>
#include <iostream>

#include "framework/rtl/FileNames.h"
#include "framework/rtl/Files.h"
#include "framework/streaming/FormFile.h"
#include "tools/FormFiles.h"
#include "wizard/TranslatableForm.h"

namespace {

struct TRoundtripOptions {
    TFormInput Input;
    bool Binary = false;
    bool Text = false;
    std::string Folder;
};

size_t FirstDifference(const std::string& A, const std::string& B)
{
    const auto [InA, InB] = std::mismatch(A.begin(), A.end(), B.begin(), B.end());
    return static_cast<size_t>(InA - A.begin());
}

// What the form is in the format asked for, and once more in its own.
TOutcome Report(const std::string& FileName, const std::string& Before, const std::string& After,
                const char* Road)
{
    std::cout << FileName << ": ";
    if (Before == After) {
        std::cout << Road << "same bytes\n";
        return TOutcome::Fine;
    }
    std::cout << Road << "differs at byte " << FirstDifference(Before, After) << "\n";
    return TOutcome::Findings;
}

TOutcome Roundtrip(const TRoundtripOptions& Options, const std::string& FileName)
{
    const TTranslatableForm Form(FileName, Options.Input.CodePage);
    TFormDocument Document = Form.Save();
    const auto Original = ReadWholeFile(FileName);
    const TFormFormat Own = Document.Format;
    std::string Written;
    auto Outcome = TOutcome::Fine;
    if (Options.Binary || Options.Text) {
        Document.Format = Options.Binary ? TFormFormat::Binary : TFormFormat::Text;
        Written = WriteForm(Document);
        // Through real bytes of the other format, not through what memory knows.
        TFormFileOptions Reading;
        Reading.CodePage = Options.Input.CodePage;
        Reading.FileName = FileName;
        TFormDocument Again = ReadForm(Written, Reading);
        Again.Format = Own;
        if (Own == TFormFormat::Text)
            Again.Text = Document.Text;
        else
            Again.Binary = Document.Binary;
        Outcome = Report(FileName, Original, WriteForm(Again),
                         Options.Binary ? "binary and back: " : "text and back: ");
    } else {
        Written = WriteForm(Document);
        Outcome = Report(FileName, Original, Written, "");
    }
    if (!Options.Folder.empty()) {
        std::filesystem::create_directories(std::u8string(Options.Folder.begin(), Options.Folder.end()));
        ReplaceWholeFile(Options.Folder + "/" + ExtractFileName(FileName), Written);
    }
    return Outcome;
}

} // namespace

void AddRoundtripCommand(CLI::App& Program, TOutcome& Outcome)
{
    CLI::App* const Command = Program.add_subcommand(
        "roundtrip",
        "Loads forms, writes them back and says whether the bytes are the same (exit code 1: not)");
    const auto Options = std::make_shared<TRoundtripOptions>();
    Options->Input.Declare(*Command);
    CLI::Option* const Binary =
        Command->add_flag("--binary", Options->Binary, "Go through a binary form file");
    Command->add_flag("--text", Options->Text, "Go through a text form file")->excludes(Binary);
    Command->add_option("-o,--output", Options->Folder,
                        "Write the forms into this folder, under their own names");
    Command->callback([Options, &Outcome] {
        Outcome = ForEachFormFile(Options->Input,
                                  [&](const std::string& File) { return Roundtrip(*Options, File); });
    });
}
