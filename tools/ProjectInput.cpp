#include "tools/ProjectInput.h"

#include <iostream>
#include <nlohmann/json.hpp>

#include "framework/rtl/Exceptions.h"
#include "wizard/ChangeReport.h"

namespace {

void Print(const TFileChange& File)
{
    std::cout << File.Name << ": " << (!File.IsChanged() ? "unchanged" : File.Before ? "changed" : "new");
    if (!File.Placed.empty())
        std::cout << "; placed " << ListOf(File.Placed);
    const std::pair<int, const char*> Counts[] = {
        {File.Added, "added"}, {File.Kept, "kept"}, {File.Translated, "translated"}};
    for (const auto& [Count, What] : Counts)
        if (Count > 0)
            std::cout << "; " << Count << (Count == 1 ? " text " : " texts ") << What;
    for (const std::string& Note : File.Notes)
        std::cout << "; " << Note;
    std::cout << "\n";
}

nlohmann::json AsJson(const TFileChange& File)
{
    return {{"file", File.Name},
            {"changed", File.IsChanged()},
            {"new", !File.Before.has_value()},
            {"placed", File.Placed},
            {"added", File.Added},
            {"kept", File.Kept},
            {"translated", File.Translated},
            {"notes", File.Notes}};
}

} // namespace

void TProjectInput::Declare(CLI::App& Command)
{
    Command.add_option("PROJECT", Path, "A project file, or a folder of forms and units")->required();
    Command
        .add_option("--code-page", CodePage,
                    "Windows code page of 8-bit texts in forms and units; UTF-8 and UTF-16 are recognised")
        ->capture_default_str();
    Command.add_flag("--dry-run", DryRun, "Say what would be changed, and change nothing");
    Command.add_flag("--json", Json, "Write JSON");
}

TProjectScan TProjectInput::Scan() const
{
    TProject Project = OpenProject(Path);
    if (RecoverProject(Project.FileName)) {
        std::cerr << Project.FileName << ": put right what an interrupted run had left\n";
        Project = OpenProject(Path);
    }
    return ScanProject(Project, CodePage);
}

void TProjectInput::Finish(const TProjectChanges& Changes) const
{
    if (!DryRun)
        WriteChanges(Changes);
    auto Files = nlohmann::json::array();
    for (const TFileChange& File : Changes.Files)
        if (Json)
            Files.push_back(AsJson(File));
        else
            Print(File);
    if (Json)
        std::cout << Files.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
}

void RunOnProject(TOutcome& Outcome, const std::function<void()>& Work)
{
    try {
        Work();
    } catch (const std::exception& Error) {
        std::cerr << Error.what() << "\n";
        Outcome = TOutcome::BadInput;
    }
}
