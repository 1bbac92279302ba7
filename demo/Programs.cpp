#include "demo/Programs.h"

#include "Qft/Qft.h"
#include "Qlt/Qlt.h"
#include "demo/AboutForm.h"
#include "demo/BerthsForm.h"
#include "demo/BookingForm.h"
#include "demo/CrewForm.h"
#include "demo/LanguageForm.h"
#include "demo/MainForm.h"
#include "demo/OptionsForm.h"
#include "demo/PlanningForm.h"
#include "framework/forms/StandardClasses.h"
#include "orbilex_demo_forms.h"

void RegisterDemoForms()
{
    RegisterStandardClasses();
    RegisterClass(TFormTranslator::MetaClass());
    RegisterClass(TLocaleTranslator::MetaClass());
    RegisterOrbilexDemoForms();
}

std::vector<TForm*> CreateBookingDesk()
{
    Application->SetTitle("Booking Desk");
    TMainForm* MainForm = nullptr;
    Application->CreateForm(MainForm);
    Application->CreateForm(BookingForm);
    Application->CreateForm(OptionsForm);
    Application->CreateForm(AboutForm);
    Application->CreateForm(LanguageForm);
    LanguageForm->SetTranslator(*MainForm->Locales);
    return {MainForm, BookingForm, OptionsForm, AboutForm, LanguageForm};
}

std::vector<TForm*> CreatePlanning()
{
    Application->SetTitle("Harbour Planning");
    TPlanningForm* Frame = nullptr;
    Application->CreateForm(Frame);
    Application->CreateForm(BerthsForm);
    Application->CreateForm(CrewForm);
    return {Frame, BerthsForm, CrewForm};
}
