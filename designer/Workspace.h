// The open project and the forms that are being designed, whichever window shows them.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "designer/DesignSurface.h"
#include "framework/design/Project.h"
#include "framework/design/ToolServices.h"

// One open form.
struct TDesign {
    explicit TDesign(std::unique_ptr<TFormModel> AModel) : Model(std::move(AModel)), Surface(*Model) {}

    std::unique_ptr<TFormModel> Model;
    TDesignSurface Surface; // goes before the model
};

// Is what packages see as ToolServices while it exists.
class TWorkspace : public TIToolServices {
public:
    enum class TAnswer { Save, Discard, Cancel };

    TWorkspace();
    ~TWorkspace() override;
    TWorkspace(const TWorkspace&) = delete;
    TWorkspace& operator=(const TWorkspace&) = delete;

    const TProject& Project() const { return FProject; }
    // A form, a project file or a folder. Errors: as OpenForm and OpenProject.
    void Open(const std::string& Path);
    // The project takes the place of the present one, whose forms are closed. False when
    // the user keeps them. What a program that was killed while it wrote the
    // project has left is put right first. Errors: as ReadProject, OpenProjectFolder and RecoverProject.
    bool OpenProject(const std::string& FileOrFolder);
    bool NewProject(const std::string& FileName);

    // Opens the form, or shows it when it is open. Errors: as TFormModel.
    TDesign& OpenForm(const std::string& FileName);
    // A new form of the project in a file that Save makes.
    TDesign& NewForm(const std::string& FileName);
    // False when the user cancels.
    bool CloseForm(TDesign& Design);
    bool CloseAll();
    bool SaveAll();
    void Save(TDesign& Design);

    // The form that the user works on; null for none.
    TDesign* Active() const { return FActive; }
    void Activate(TDesign* Design);
    const std::vector<std::unique_ptr<TDesign>>& Designs() const { return FDesigns; }

    // For Application->OnMessage.
    bool HandleMessage(const MSG& Message);

    std::string GetProjectName() const override { return FProject.FileName; }
    bool SaveProject() override;
    // While a modal form is shown the project is read when that is closed.
    void ReloadProject() override;
    // Reads what is to be read again. HandleMessage does it, too.
    void Settle();

    // What to do with the changes of a form that is to be closed.
    std::function<TAnswer(const TFormModel& Model)> OnAsk;
    std::function<void()> OnProject;   // the project or the list of open forms
    std::function<void()> OnActive;    // the active form
    std::function<void()> OnChanged;   // the active form's components
    std::function<void()> OnSelection; // of the active form
    std::function<void(const TPoint&)> OnContextMenu;
    std::function<void(const MSG&)> OnKey;
    std::function<void()> OnPlaced;
    // Where the windows of forms come: the first one's place, on the screen.
    std::function<TPoint()> OnFirstPlace;

private:
    TDesign& Add(std::unique_ptr<TFormModel> Model);
    void Connect(TDesign& Design);
    TPoint NextPlace() const;
    void Remove(TDesign& Design);
    void Tell(const std::function<void()>& Event) const;

    TProject FProject;
    std::vector<std::unique_ptr<TDesign>> FDesigns;
    bool FMustReload = false;
    TDesign* FActive = nullptr;
    TDesign* FClosing = nullptr; // when the message at hand is done with
};
