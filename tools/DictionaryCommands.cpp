// orbilex export-dictionary and import-dictionary: texts of a project to translators
// and back.
#include "framework/rtl/Exceptions.h"
#include "tools/ProjectInput.h"
#include "wizard/Dictionaries.h"

namespace {

struct TExportOptions {
    TProjectInput Input;
    std::vector<int> Locales;
    std::string Folder;
};

struct TImportOptions {
    TProjectInput Input;
    std::vector<std::string> Files;
    int Locale = 0;
};

std::vector<TDictionaryInput> DictionariesOf(const TImportOptions& Options)
{
    std::vector<TDictionaryInput> Result;
    for (const std::string& File : Options.Files) {
        const int Locale = Options.Locale != 0 ? Options.Locale : LocaleOfDictionary(File);
        if (Locale == 0)
            throw EInvalidOperation(File +
                                    ": the name has no locale identifier (Name.1053.txt); say --locale");
        Result.push_back({File, Locale});
    }
    return Result;
}

} // namespace

void AddExportDictionaryCommand(CLI::App& Program, TOutcome& Outcome)
{
    CLI::App* const Command = Program.add_subcommand(
        "export-dictionary", "Writes the texts of a globalized project and their translations to one "
                             "dictionary a language, Project.1053.txt");
    const auto Options = std::make_shared<TExportOptions>();
    Options->Input.Declare(*Command);
    Command->add_option("--locales", Options->Locales, "Only these languages, decimal locale identifiers")
        ->delimiter(',');
    Command->add_option("-o,--output", Options->Folder, "The folder to write to; without it, the project's");
    Command->callback([Options, &Outcome] {
        RunOnProject(Outcome, [&] {
            Options->Input.Finish(PlanExport(Options->Input.Scan(), Options->Locales, Options->Folder));
        });
    });
}

void AddImportDictionaryCommand(CLI::App& Program, TOutcome& Outcome)
{
    CLI::App* const Command = Program.add_subcommand(
        "import-dictionary", "Takes the translations of dictionaries into the translators of a project "
                             "(exit code 1: they translate nothing new)");
    const auto Options = std::make_shared<TImportOptions>();
    Options->Input.Declare(*Command);
    Command->add_option("FILE", Options->Files, "Dictionaries with the locale identifier in their names")
        ->required();
    Command->add_option("--locale", Options->Locale,
                        "The language of the dictionaries, whatever their names");
    Command->callback([Options, &Outcome] {
        RunOnProject(Outcome, [&] {
            const TProjectChanges Changes = PlanImport(Options->Input.Scan(), DictionariesOf(*Options));
            Options->Input.Finish(Changes);
            if (Changes.ToWrite().empty())
                Outcome = TOutcome::Findings;
        });
    });
}
