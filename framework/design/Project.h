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

// Throws EFOpenError and EReadError; EParserError "booking.obp:7: ..." for a line
// that is no heading, no setting and no file name.
TProject ReadProject(const std::string& FileName);

// Replaces the file as a whole. Of a file that is there already, lines that mean
// nothing stay. Throws EFCreateError, EWriteError.
void WriteProject(const TProject& Project);

// A project of all forms (*.dfm, *.lfm, *.fmx, *.xfm in text or binary form) and units
// (*.pas, *.pp, *.inc, *.dpr, *.lpr, *.cpp, *.h) in a folder and the folders below it, in the
// order of their names; hidden folders are passed over. A project file in the folder
// itself is read instead.
// Throws EFOpenError when there is no such folder.
TProject OpenProjectFolder(const std::string& Folder);
