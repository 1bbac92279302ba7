#include "tools/Orbilex.h"

#include <iostream>

#include "framework/forms/Application.h"
#include "framework/forms/StandardClasses.h"
#include "framework/rtl/FormatVars.h"
#include "tools/Commands.h"

int RunOrbilex(int ArgumentCount, const char* const* Arguments)
{
    CLI::App Program{"Lists, converts and translates form files, and globalizes projects of them.\n"
                     "Exit code: 0 fine, 1 findings, 2 wrong use or bad input."};
    Program.name("orbilex");
    Program.require_subcommand(1);
    // A name that begins with "/" is a file on every platform.
    Program.allow_windows_style_options(false);
    auto Outcome = TOutcome::Fine;
    AddListCommand(Program, Outcome);
    AddRoundtripCommand(Program, Outcome);
    AddTranslateCommand(Program, Outcome);
    AddGlobalizeCommand(Program, Outcome);
    AddExportDictionaryCommand(Program, Outcome);
    AddImportDictionaryCommand(Program, Outcome);
    try {
        TApplicationScope Scope;
        RegisterStandardClasses();
        // Files hold the same numbers wherever they are read.
        DecimalSeparator = ".";
        Program.parse(ArgumentCount, Arguments);
    } catch (const CLI::ParseError& Error) {
        return Program.exit(Error) == 0 ? 0 : static_cast<int>(TOutcome::BadInput);
    } catch (const std::exception& Error) {
        std::cerr << Error.what() << "\n";
        return static_cast<int>(TOutcome::BadInput);
    }
    return static_cast<int>(Outcome);
}
