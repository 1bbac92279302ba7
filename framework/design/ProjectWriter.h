// Files of a project written all or none.
//
// Each new content is first written beside its file ("Main.dfm.new~"), each old one is
// copied ("Main.dfm.old~"), all on disk; then the new ones take the files' names. A journal
// in the project's folder (".orbilex-journal") tells of it from before the first change
// until all is done. What a killed program leaves behind is put right by
// RecoverProject: the project is then as it was, or as it was to be.
//
//     Orbilex journal 1
//     place                    before: "write", after: "done"
//     old forms/Main.dfm       has an old content
//     new booking.lng          does not exist yet
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

struct TProjectFile {
    std::string Name;                  // full
    std::optional<std::string> Before; // what it is expected to hold; none: no such file
    std::string After;
};

// Called before each change on disk; an exception ends the writing like a full disk.
using TWriteStep = std::function<void(const std::string& What)>;

// Recovers the project first. Programs that write in one folder wait for one another.
// Throws EWriteError when a file has changed since Before was read; EFCreateError,
// EWriteError, EFOpenError, EReadError, EInOutError. All files are as they were then.
void WriteProjectFiles(const std::string& ProjectFileName, const std::vector<TProjectFile>& Files,
                       const TWriteStep& Step = {});

// To be called before a project is read. False when there was nothing to put right.
// Throws EParserError for a journal that is none; nothing is changed then.
bool RecoverProject(const std::string& ProjectFileName, const TWriteStep& Step = {});
