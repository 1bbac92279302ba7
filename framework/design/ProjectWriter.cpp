#include "framework/design/ProjectWriter.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "framework/rtl/Files.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/SysUtils.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* JournalTitle = "Orbilex journal 1";
constexpr const char* JournalName = ".orbilex-journal";
constexpr const char* NewEnding = ".new~";
constexpr const char* OldEnding = ".old~";

fs::path PathOf(const std::string& Name)
{
    return std::u8string(Name.begin(), Name.end());
}

// A link stays one: the file it leads to is replaced.
fs::path TargetOf(const std::string& Name)
{
    std::error_code Ignored;
    const fs::path Path = PathOf(Name);
    return fs::is_symlink(Path, Ignored) ? fs::canonical(Path) : Path;
}

void Rename(const std::string& From, const std::string& To)
{
    try {
        fs::rename(PathOf(From), TargetOf(To));
    } catch (const fs::filesystem_error& Error) {
        throw EWriteError(Format(SFWriteErrorEx, {To, Error.code().message()}));
    }
}

// What a program that was killed while it wrote Name has left beside it.
void RemoveTemporaries(const std::string& Name)
{
    const std::string Start = ExtractFileName(Name) + ".tmp";
    std::error_code Stop;
    for (fs::directory_iterator Each(PathOf(Name).parent_path(), Stop), End; !Stop && Each != End;
         Each.increment(Stop)) {
        const std::u8string Leaf = Each->path().filename().u8string();
        std::error_code Ignored;
        if (std::string(Leaf.begin(), Leaf.end()).starts_with(Start))
            fs::remove(Each->path(), Ignored);
    }
}

// jsWriting: no file has been touched yet. jsPlacing: a file that has no new content
// beside it is replaced. jsDone: all are.
enum TJournalState { jsWriting, jsPlacing, jsDone };
constexpr std::string_view StateNames[] = {"write", "place", "done"};

struct TJournalEntry {
    std::string Name; // full
    bool IsNew = false;
};

class TJournal {
public:
    explicit TJournal(const std::string& ProjectFileName)
        : FFolder(ExtractFilePath(ProjectFileName)), FName(FFolder + JournalName)
    {
    }

    const std::string& Name() const { return FName; }
    std::vector<TJournalEntry> Entries;

    void Write(TJournalState State)
    {
        std::string Text = std::string(JournalTitle).append("\n").append(StateNames[State]).append("\n");
        for (const TJournalEntry& Entry : Entries) {
            const bool IsInFolder = !FFolder.empty() && Entry.Name.starts_with(FFolder);
            Text += std::string(Entry.IsNew ? "new " : "old ") +
                    (IsInFolder ? Entry.Name.substr(FFolder.size()) : Entry.Name) + "\n";
        }
        ReplaceWholeFile(FName, Text);
        FState = State;
    }

    // False when there is none.
    bool Read()
    {
        if (!FileExists(FName))
            return false;
        std::istringstream Lines(ReadWholeFile(FName));
        std::string Line;
        for (int Number = 1; std::getline(Lines, Line); ++Number)
            if (!Take(Number, Line))
                throw EParserError(FName + ":" + IntToStr(Number) + ": this is no journal of a project");
        return true;
    }
    TJournalState State() const { return FState; }

    // The files as they were. Can be repeated after it was interrupted. A file that is
    // still to be replaced, or is restored already, may have been changed since.
    void Undo(const TWriteStep& Step) const
    {
        for (const TJournalEntry& Entry : Entries) {
            Step("undo " + Entry.Name);
            if (FState != jsPlacing || FileExists(Entry.Name + NewEnding))
                continue;
            if (Entry.IsNew)
                RemoveFile(Entry.Name);
            else if (FileExists(Entry.Name + OldEnding))
                Rename(Entry.Name + OldEnding, Entry.Name);
        }
        End(Step);
    }

    void End(const TWriteStep& Step) const
    {
        for (const TJournalEntry& Entry : Entries)
            for (const char* const Ending : {NewEnding, OldEnding}) {
                Step("remove " + Entry.Name + Ending);
                RemoveFile(Entry.Name + Ending);
                RemoveTemporaries(Entry.Name + Ending);
            }
        Step("end");
        RemoveFile(FName);
    }

private:
    bool Take(int Number, const std::string& Line)
    {
        constexpr size_t MarkSize = 4;
        if (Number == 1)
            return Line == JournalTitle;
        if (Number == 2) {
            const auto* const Name = std::find(std::begin(StateNames), std::end(StateNames), Line);
            FState = static_cast<TJournalState>(Name - std::begin(StateNames));
            return Name != std::end(StateNames);
        }
        const bool IsNew = Line.starts_with("new ");
        if (!IsNew && !Line.starts_with("old "))
            return false;
        const std::string File = Line.substr(MarkSize);
        Entries.push_back({IsAbsoluteName(File) ? File : FFolder + File, IsNew});
        return !File.empty();
    }

    std::string FFolder;
    std::string FName;
    TJournalState FState = jsWriting;
};

void NoStep(const std::string&) {}

bool Recover(const std::string& ProjectFileName, const TWriteStep& Step)
{
    TJournal Journal(ProjectFileName);
    RemoveTemporaries(Journal.Name());
    if (!Journal.Read())
        return false;
    if (Journal.State() == jsDone)
        Journal.End(Step);
    else
        Journal.Undo(Step);
    return true;
}

void CheckUnchanged(const TProjectFile& File)
{
    const bool IsThere = FileExists(File.Name);
    if (File.Name.find('\n') != File.Name.npos)
        throw EWriteError("The name of " + File.Name + " has a line end");
    if (IsThere != File.Before.has_value() || (IsThere && ReadWholeFile(File.Name) != *File.Before))
        throw EWriteError(File.Name + " was changed by another program meanwhile");
    // Throws when the file or its folder may not be written.
    const TFileReplacer Check(File.Name);
}

void WriteBeside(const TProjectFile& File, const char* Ending, const std::string& Content)
{
    const std::string Name = File.Name + Ending;
    ReplaceWholeFile(Name, Content);
    std::error_code Ignored;
    if (File.Before)
        fs::permissions(PathOf(Name), fs::status(PathOf(File.Name)).permissions(), Ignored);
}

} // namespace

void WriteProjectFiles(const std::string& ProjectFileName, const std::vector<TProjectFile>& Files,
                       const TWriteStep& Step)
{
    const TWriteStep& Tell = Step ? Step : NoStep;
    TJournal Journal(ProjectFileName);
    const TFileLock Lock(Journal.Name());
    Recover(ProjectFileName, NoStep);
    for (const TProjectFile& File : Files) {
        CheckUnchanged(File);
        Journal.Entries.push_back({File.Name, !File.Before});
    }
    if (Files.empty())
        return;
    try {
        Tell("begin");
        Journal.Write(jsWriting);
        for (const TProjectFile& File : Files) {
            Tell("write " + File.Name);
            WriteBeside(File, NewEnding, File.After);
            Tell("copy " + File.Name);
            if (File.Before)
                WriteBeside(File, OldEnding, *File.Before);
        }
        Tell("place");
        Journal.Write(jsPlacing);
        for (const TProjectFile& File : Files) {
            Tell("replace " + File.Name);
            Rename(File.Name + NewEnding, File.Name);
        }
        Tell("done");
        Journal.Write(jsDone);
    } catch (...) {
        Journal.Undo(NoStep);
        throw;
    }
    Journal.End(Tell);
}

bool RecoverProject(const std::string& ProjectFileName, const TWriteStep& Step)
{
    if (!FileExists(TJournal(ProjectFileName).Name()))
        return false;
    const TFileLock Lock(TJournal(ProjectFileName).Name());
    return Recover(ProjectFileName, Step ? Step : NoStep);
}
