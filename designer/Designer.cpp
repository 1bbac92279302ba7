// The development environment.
//   designer [project, folder or form...]
//   designer --tour [--out DIR] form...   pictures of the forms being designed
//   --package NAME                        loads this package instead of the remembered ones
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "designer/DesignerForm.h"
#include "designer/PropertyDialogs.h"
#include "designer/StandardPages.h"
#include "framework/forms/MessageForms.h"
#include "framework/forms/StandardClasses.h"
#include "framework/rtl/SysUtils.h"
#include "orbilex_designer.h"
#include "platform/Picture.h"

namespace {

struct TOptions {
    bool Tour = !HAS_DISPLAY;
    std::string Folder = "out";
    std::vector<std::string> Packages;
    std::vector<std::string> Paths;
};

// False when an argument is unknown.
bool ReadOptions(int Count, char** Arguments, TOptions& Options)
{
    for (int I = 1; I < Count; ++I) {
        const std::string Argument = Arguments[I];
        if (Argument == "--tour")
            Options.Tour = true;
        else if (Argument == "--out" && I + 1 < Count)
            Options.Folder = Arguments[++I];
        else if (Argument == "--package" && I + 1 < Count)
            Options.Packages.emplace_back(Arguments[++I]);
        else if (Argument.starts_with("--"))
            return false;
        else
            Options.Paths.push_back(Argument);
    }
    return true;
}

bool SavePicture(HWND Window, const std::string& File)
{
    if (SaveWindowPicture(Window, File))
        return true;
    std::cerr << "designer: cannot write " << File << "\n";
    return false;
}

// Each form with its first component selected, and the designer beside it.
int TakePictures(TDesignerForm& Designer, const std::string& Folder)
{
    std::filesystem::create_directories(Folder);
    bool Fine = true;
    Designer.Show();
    Application->ProcessMessages();
    for (const auto& Each : Designer.Workspace().Designs()) {
        Designer.Workspace().Activate(Each.get());
        TFormModel& Model = *Each->Model;
        if (Model.Root().ComponentCount() > 0)
            Model.SelectComponent(Model.Root().Components(0));
        Application->ProcessMessages();
        const std::string Name = Folder + "/designer-" + Model.Root().Name();
        Fine = SavePicture(Each->Surface.WindowHandle(), Name + ".png") && Fine;
        Fine = SavePicture(Designer.Handle(), Name + "-window.png") && Fine;
    }
    return Fine ? 0 : 1;
}

void LoadPackages(TPackages& Packages, const TOptions& Options)
{
    for (const std::string& Each : Options.Packages)
        Packages.Load(Each);
    if (!Options.Packages.empty())
        return;
    const std::string Errors = Packages.LoadRemembered();
    if (!Errors.empty() && Options.Tour)
        throw EPackageError(Errors);
    if (!Errors.empty())
        MessageDlg(Errors, mtWarning, {mbOK}, 0);
}

int RunDesigner(const TOptions& Options)
{
    const TApplicationScope Scope;
    RegisterStandardClasses();
    RegisterStandardPages();
    RegisterPropertyDialogs();
    RegisterOrbilexDesigner();
    Application->SetTitle("Orbilex Designer");
    TPackages Packages;
    LoadPackages(Packages, Options);
    TDesignerForm* Designer = nullptr;
    Application->CreateForm(Designer);
    Designer->SetPackages(Packages);
    if (Options.Tour) {
        // Nobody is there to answer messages: errors end the program.
        for (const std::string& Each : Options.Paths)
            Designer->Workspace().Open(Each);
        return TakePictures(*Designer, Options.Folder);
    }
    for (const std::string& Each : Options.Paths)
        Designer->Open(Each);
    Application->Run();
    return 0;
}

} // namespace

int main(int Count, char** Arguments)
{
    TOptions Options;
    if (!ReadOptions(Count, Arguments, Options)) {
        std::cerr << "usage: designer [--tour] [--out DIR] [--package NAME] [project, folder or form...]\n";
        return 2;
    }
    try {
        return RunDesigner(Options);
    } catch (const std::exception& Error) {
        std::cerr << "designer: " << Error.what() << "\n";
        return 1;
    }
}
