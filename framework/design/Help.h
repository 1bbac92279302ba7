// Help about the units of the package.
#pragma once

#include <string>

// Shows the contents of a unit's help: "QFT". Where the system has the viewer of help
// files and the unit's file (QFT.HLP) is beside the program, that viewer is started
// by the command line "WINHLP32.EXE QFT.HLP"; elsewhere the page help/qft.html beside
// the program opens in the user's browser.
// Throws EInOutError, which names the page, when neither can be shown.
void ShowHelpContents(const std::string& Unit);

// What starts programs and opens documents; another one can be put in for a time.
struct THelpShell {
    bool (*StartProgram)(const std::string& CommandLine, int Show);
    bool (*OpenDocument)(const std::string& FileName);
};
extern THelpShell HelpShell;
