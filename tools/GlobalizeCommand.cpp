// orbilex globalize: translators on the forms of a project.
#include "tools/ProjectInput.h"

namespace {

struct TGlobalizeOptions {
    TProjectInput Input;
    TGlobalizeChoices Choices;
    bool NoForms = false;
    bool NoTexts = false;
    bool NoResources = false;
    bool NoDialogs = false;
};

} // namespace

void AddGlobalizeCommand(CLI::App& Program, TOutcome& Outcome)
{
    CLI::App* const Command = Program.add_subcommand(
        "globalize", "Puts translators on the forms of a project, fills them with the texts found, and keeps "
                     "every translation that is there; all files are written, or none");
    const auto Options = std::make_shared<TGlobalizeOptions>();
    TGlobalizeChoices& Choices = Options->Choices;
    Options->Input.Declare(*Command);
    Command
        ->add_option("--locales", Choices.Locales, "The languages, as decimal locale identifiers: 1053,1031")
        ->delimiter(',')
        ->required();
    Command->add_option("--own-locale", Choices.OwnLocale, "The language that the project is written in")
        ->capture_default_str();
    Command->add_option("--main-form", Choices.MainForm,
                        "The form for the locale, button and resource translators");
    Command->add_option("--file", Choices.TranslationsFile,
                        "Keep translations in this file beside the project, not in the forms");
    Command->add_option("--selector", Choices.Selector,
                        "A menu item, list or the like on the main form that becomes the language selector");
    Command->add_flag("--no-forms", Options->NoForms, "Place no form translators");
    Command->add_flag("--no-texts", Options->NoTexts, "Leave new form translators empty");
    Command->add_flag("--no-resources", Options->NoResources, "Place no resource translators");
    Command->add_flag("--no-dialogs", Options->NoDialogs, "Place no dialog and button translators");
    Command->callback([Options, &Outcome] {
        Options->Choices.Forms = !Options->NoForms;
        Options->Choices.ScanForms = !Options->NoTexts;
        Options->Choices.Resources = !Options->NoResources;
        Options->Choices.CommonDialogs = !Options->NoDialogs;
        RunOnProject(Outcome, [&] {
            Options->Input.Finish(PlanGlobalization(Options->Input.Scan(), Options->Choices));
        });
    });
}
