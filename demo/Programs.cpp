#include "demo/Programs.h"

#include <filesystem>
#include <map>

#include "demo/AboutForm.h"
#include "demo/BerthsForm.h"
#include "demo/BookingForm.h"
#include "demo/CrewForm.h"
#include "demo/DialogsForm.h"
#include "demo/LanguageForm.h"
#include "demo/MainForm.h"
#include "demo/MessagesForm.h"
#include "demo/OptionsForm.h"
#include "demo/PlanningForm.h"
#include "demo/TextsModule.h"
#include "framework/forms/FormResources.h"
#include "framework/forms/StandardClasses.h"
#include "framework/streaming/FormFile.h"
#include "framework/streaming/FormText.h"
#include "orbilex_demo_forms.h"

namespace {

// Form files by their classes.
std::map<std::string, std::string>& FormFiles()
{
    static std::map<std::string, std::string> Result;
    return Result;
}

} // namespace

void RegisterDemoForms()
{
    RegisterStandardClasses();
    RegisterOrbilexDemoForms();
    for (const auto& [Class, Text] : FormFiles())
        RegisterFormResource(Class, Text);
}

void UseFormsOf(const std::string& Folder)
{
    for (const auto& Each : std::filesystem::directory_iterator(Folder))
        if (Each.path().extension() == ".dfm") {
            const TFormDocument Document = ReadFormFile(Each.path().generic_string());
            FormFiles()[Document.Root.ClassName()] = WriteFormText(Document);
        }
}

std::vector<TForm*> CreateBookingDesk()
{
    Application->CreateForm(TextsModule);
    TMainForm* MainForm = nullptr;
    Application->CreateForm(MainForm);
    Application->CreateForm(BookingForm);
    Application->CreateForm(OptionsForm);
    Application->CreateForm(AboutForm);
    Application->CreateForm(LanguageForm);
    Application->CreateForm(MessagesForm);
    Application->CreateForm(DialogsForm);
    LanguageForm->SetTranslator(*MainForm->Locales);
    return {MainForm, BookingForm, OptionsForm, AboutForm, LanguageForm, MessagesForm, DialogsForm};
}

std::vector<TForm*> CreatePlanning()
{
    Application->CreateForm(TextsModule);
    TPlanningForm* Frame = nullptr;
    Application->CreateForm(Frame);
    Application->CreateForm(BerthsForm);
    Application->CreateForm(CrewForm);
    return {Frame, BerthsForm, CrewForm};
}
