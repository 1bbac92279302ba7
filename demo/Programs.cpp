#include "demo/Programs.h"

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
#include "framework/forms/StandardClasses.h"
#include "orbilex_demo_forms.h"

void RegisterDemoForms()
{
    RegisterStandardClasses();
    RegisterOrbilexDemoForms();
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
