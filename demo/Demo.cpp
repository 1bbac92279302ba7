// The demo: a ferry company's booking desk in five languages.
//   demo                     the booking desk
//   demo --planning          the harbour's planning
//   demo --tour [--out DIR]  all forms in all languages as pictures (Tour.h)
//   --forms DIR              takes the form files of this folder instead of its own
//   demo --editors [--out DIR]
//                            the editors in all languages as pictures (EditorTour.h)
#include <exception>
#include <iostream>
#include <string>

#include "Obxc3/Obxc3.h"
#include "demo/EditorTour.h"
#include "demo/Programs.h"
#include "demo/Tour.h"
#include "editors/Editors.h"
#include "framework/forms/Forms.h"

namespace {

struct TOptions {
    bool Tour = !HAS_DISPLAY;
    bool Editors = false;
    bool Planning = false;
    std::string Folder = "out";
    std::string Forms;
};

// False when an argument is unknown.
bool ReadOptions(int Count, char** Arguments, TOptions& Options)
{
    for (int I = 1; I < Count; ++I) {
        const std::string Argument = Arguments[I];
        if (Argument == "--tour")
            Options.Tour = true;
        else if (Argument == "--editors")
            Options.Editors = true;
        else if (Argument == "--planning")
            Options.Planning = true;
        else if (Argument == "--out" && I + 1 < Count)
            Options.Folder = Arguments[++I];
        else if (Argument == "--forms" && I + 1 < Count)
            Options.Forms = Arguments[++I];
        else
            return false;
    }
    return true;
}

void RunProgram(bool Planning)
{
    const TApplicationScope Scope;
    const TPackageScope Package;
    const TEditorsScope Editors;
    RegisterDemoForms();
    if (Planning)
        CreatePlanning();
    else
        CreateBookingDesk();
    Application->Run();
}

} // namespace

int main(int Count, char** Arguments)
{
    TOptions Options;
    if (!ReadOptions(Count, Arguments, Options)) {
        std::cerr << "usage: demo [--forms DIR] [--planning | --tour [--out DIR] | --editors [--out DIR]]\n";
        return 2;
    }
    try {
        if (!Options.Forms.empty())
            UseFormsOf(Options.Forms);
        if (Options.Editors)
            return RunEditorTour(Options.Folder);
        if (Options.Tour)
            return RunTour(Options.Folder);
        RunProgram(Options.Planning);
        return 0;
    } catch (const std::exception& Error) {
        std::cerr << "demo: " << Error.what() << "\n";
        return 1;
    }
}
