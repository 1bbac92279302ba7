// orbilex translate: a form with the texts of a translations file.
#include <iostream>

#include "framework/rtl/FileNames.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/FormFile.h"
#include "tools/FormFiles.h"
#include "wizard/TranslatableForm.h"

namespace {

struct TTranslateOptions {
    TFormInput Input;
    std::string Translations;
    int Locale = 0;
    std::string Output;
    bool Restore = false;
};

// Applies the file's lines for this form; returns how many there were.
int Apply(const TTranslateOptions& Options, TTranslatableForm& Form)
{
    int Lines = 0;
    for (TFormTranslator* const Translator : Form.Translators()) {
        Translator->SetLocale(Options.Locale);
        if (!Translator->LoadFrom(Options.Translations))
            throw EFOpenError(Format(SFOpenError, {Options.Translations}));
        Lines += Translator->Translations()->Count();
        // Each translator for itself: an equal locale links them only while
        // their forms belong to an application.
        if (Translator->Translations()->Count() > 0)
            Translator->SetTranslate(true);
    }
    return Lines;
}

TOutcome Restore(const std::string& FileName, TTranslatableForm& Form)
{
    int Changed = 0;
    // Last one first: a frame is translated with its form and once more by itself.
    const auto& Translators = Form.Translators();
    for (auto Each = Translators.rbegin(); Each != Translators.rend(); ++Each) {
        Changed += (*Each)->Defaults().Count();
        (*Each)->SetTranslate(false);
    }
    const bool Same = WriteForm(Form.Save()) == ReadWholeFile(FileName);
    std::cerr << FileName << ": " << Changed << " properties translated, restoring gives "
              << (Same ? "the original bytes" : "other bytes than the original") << "\n";
    return Same ? TOutcome::Fine : TOutcome::Findings;
}

TOutcome Translate(const TTranslateOptions& Options, const std::string& FileName)
{
    TTranslatableForm Form(FileName, Options.Input.CodePage);
    auto Outcome = TOutcome::Fine;
    if (Apply(Options, Form) == 0) {
        std::cerr << Options.Translations << ": no lines for form "
                  << TTranslatableForm::SectionOf(*Form.Translators()[0]) << " and locale " << Options.Locale
                  << "\n";
        Outcome = TOutcome::Findings;
    }
    const std::string Translated = WriteForm(Form.Save());
    if (Options.Output.empty())
        std::cout.write(Translated.data(), static_cast<std::streamsize>(Translated.size()));
    else
        ReplaceWholeFile(Options.Output, Translated);
    return Options.Restore ? std::max(Outcome, Restore(FileName, Form)) : Outcome;
}

} // namespace

void AddTranslateCommand(CLI::App& Program, TOutcome& Outcome)
{
    CLI::App* const Command =
        Program.add_subcommand("translate", "Applies a translations file to a form and writes the translated "
                                            "form (exit code 1: no lines for it)");
    const auto Options = std::make_shared<TTranslateOptions>();
    Options->Input.Declare(*Command);
    Command->add_option("--translations", Options->Translations, "The translations file")->required();
    Command->add_option("--locale", Options->Locale, "Locale identifier of the lines to apply, decimal")
        ->required();
    Command->add_option("-o,--output", Options->Output, "Where to write; without it, to standard output");
    Command->add_flag("--restore", Options->Restore,
                      "Also restore, and compare with the original byte by byte");
    Command->callback([Options, &Outcome] {
        const size_t Count = FormFilesOf(Options->Input.Paths).size();
        if (Count > 1)
            throw CLI::ValidationError("FORM", "one form at a time");
        Outcome = ForEachFormFile(Options->Input,
                                  [&](const std::string& File) { return Translate(*Options, File); });
    });
}
