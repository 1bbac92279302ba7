// The development environment.
//   designer [project, folder or form...]
//   designer --tour [--out DIR] form...   pictures of the forms being designed
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "Obxc3/Obxc3.h"
#include "designer/DesignerForm.h"
#include "designer/Package.h"
#include "editors/Editors.h"
#include "framework/forms/StandardClasses.h"
#include "framework/rtl/SysUtils.h"
#include "orbilex_designer_forms.h"
#include "platform/Picture.h"

namespace {

struct TOptions {
    bool Tour = !HAS_DISPLAY;
    std::string Folder = "out";
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

int RunDesigner(const TOptions& Options)
{
    const TApplicationScope Scope;
    const TPackageScope Package;
    const TEditorsScope Editors;
    RegisterStandardClasses();
    RegisterStandardPages();
    const TTranslatorsScope Translators;
    RegisterOrbilexDesignerForms();
    Application->SetTitle("Orbilex Designer");
    TDesignerForm* Designer = nullptr;
    Application->CreateForm(Designer);
    for (const std::string& Each : Options.Paths)
        Designer->Open(Each);
    if (Options.Tour)
        return TakePictures(*Designer, Options.Folder);
    Application->Run();
    return 0;
}

} // namespace

int main(int Count, char** Arguments)
{
    TOptions Options;
    if (!ReadOptions(Count, Arguments, Options)) {
        std::cerr << "usage: designer [--tour] [--out DIR] [project, folder or form...]\n";
        return 2;
    }
    try {
        return RunDesigner(Options);
    } catch (const std::exception& Error) {
        std::cerr << "designer: " << Error.what() << "\n";
        return 1;
    }
}
