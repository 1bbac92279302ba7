// The commands of the program. Each function declares one command with its
// options; running it sets Outcome.
#pragma once

#include <CLI/CLI.hpp>

enum class TOutcome { Fine = 0, Findings = 1, BadInput = 2 };

void AddExportDictionaryCommand(CLI::App& Program, TOutcome& Outcome);
void AddGlobalizeCommand(CLI::App& Program, TOutcome& Outcome);
void AddImportDictionaryCommand(CLI::App& Program, TOutcome& Outcome);
void AddListCommand(CLI::App& Program, TOutcome& Outcome);
void AddRoundtripCommand(CLI::App& Program, TOutcome& Outcome);
void AddTranslateCommand(CLI::App& Program, TOutcome& Outcome);
