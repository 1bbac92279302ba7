// A project: the forms and units that make up an application.
#pragma once

#include <string>
#include <vector>

// The project file is UTF-8 text; its lines are names of files below headings, with
// "/" between folders, relative to the project file's folder. Empty lines and those
// that begin with ";" mean nothing and are kept.
//
//     [Project]
//     Name=Booking Desk
//     MainForm=MainForm
//
//     [Forms]
//     forms/MainForm.dfm
//
//     [Units]
//     MainForm.pas
struct TProject {
    // Full name of the project file; for an opened folder that of the file which
    // saving would make.
    std::string FileName;
    std::string Name;
    // Name of the form that is shown first; empty: the first form.
    std::string MainForm;
    // As the file has them.
    std::vector<std::string> Forms;
    std::vector<std::string> Units;

    // The full name of a form or unit.
    std::string FullName(const std::string& File) const;
};

// The ending of project files.
inline constexpr const char* ProjectExtension = ".obp";

// By its ending: .dfm, .lfm, .fmx or .xfm.
bool IsFormFileName(const std::string& FileName);
// By its ending: .pas, .pp, .inc, .dpr, .lpr, .cpp or .h.
bool IsUnitFileName(const std::string& FileName);

// The files below a folder that Wanted says yes to, with their folders from Folder
// on, in the order of their names. Hidden folders and those that cannot be read are
// passed over.
std::vector<std::string> FilesBelow(const std::string& Folder, bool (*Wanted)(const std::string& FileName));

// Throws EFOpenError and EReadError; EParserError "booking.obp:7: ..." for a line
// that is no heading, no setting and no file name.
TProject ReadProject(const std::string& FileName);

// Replaces the file as a whole. Of a file that is there already, lines that mean
// nothing stay. Throws EFCreateError, EWriteError; EParserError when that file is no
// project file.
void WriteProject(const TProject& Project);

// A project of all forms and units in a folder and the folders below it, in the order
// of their names; hidden folders are passed over. A project file in the folder itself
// is read instead.
// Throws EFOpenError when there is no such folder, or when it has several project files.
TProject OpenProjectFolder(const std::string& Folder);

// Path is a project file or a folder.
TProject OpenProject(const std::string& Path);
