#include "demo/Tour.h"

#include <cctype>
#include <filesystem>
#include <functional>
#include <iostream>
#include <vector>

#include "Obxc3/Obxc3.h"
#include "demo/BookingForm.h"
#include "demo/BoxWatch.h"
#include "demo/DialogsForm.h"
#include "demo/FormTexts.h"
#include "demo/Language.h"
#include "demo/LanguageForm.h"
#include "demo/MessagesForm.h"
#include "demo/OptionsForm.h"
#include "demo/Programs.h"
#include "framework/forms/PageControls.h"
#include "framework/forms/PushButtons.h"
#include "framework/rtl/Files.h"
#include "platform/Picture.h"

namespace {

constexpr size_t ShownChanges = 3; // a form and language

struct TFormState {
    TForm* Form;
    std::vector<TFormLine> Lines;
    std::string File;
};

class TTour {
public:
    explicit TTour(std::string Folder) : FFolder(std::move(Folder)) {}

    // Takes the forms that Create makes through all languages.
    void Visit(const std::function<std::vector<TForm*>()>& Create);
    int Pictures() const { return FPictures; }
    bool Failed() const { return FFailed; }

private:
    void ShowLanguage(const TLanguage& Language);
    void ShowSelectors();
    std::vector<TBoxTexts> ShowBoxes(const std::string& Code);
    void PrintChanges(const TFormState& State) const;
    void TakePictures(TForm& Form, const TLanguage& Language);
    void TakePicture(TForm& Form, const std::string& Name);
    void SavePicture(HWND Window, const std::string& Name);
    void CheckRestored(const std::string& Translations);
    void Fail(const std::string& Text);

    std::string FFolder;
    std::vector<TFormState> FStates;
    std::vector<TBoxTexts> FBoxes; // in the program's own language
    int FPictures = 0;
    bool FFailed = false;
};

std::string TranslationsFile()
{
    return (std::filesystem::path(Application->ExeName()).parent_path() / "demo.lng").string();
}

std::string LowerCase(std::string Text)
{
    for (char& Letter : Text)
        Letter = static_cast<char>(std::tolower(static_cast<unsigned char>(Letter)));
    return Text;
}

// TMainForm -> main, TOptionsForm -> options
std::string PictureName(const TForm& Form)
{
    return LowerCase(Form.ClassName().substr(1, Form.ClassName().size() - 5));
}

void Print(const TBoxTexts& Box)
{
    std::cout << "    " << Box.Title << ": " << Box.Text;
    for (const std::string& Button : Box.Buttons)
        std::cout << " [" << Button << "]";
    std::cout << "\n";
}

// Shows the pages of the options one after the other, and the first one at the
// end. Returns how many there are; other forms have none.
int ForEachPage(TForm& Form, const std::function<void(int)>& Visit)
{
    const auto* const Options = dynamic_cast<const TOptionsForm*>(&Form);
    if (!Options)
        return 0;
    TPageControl& Pages = *Options->PageControl1;
    for (int I = 0; I < Pages.PageCount(); ++I) {
        Pages.SetActivePage(Pages.Pages(I));
        Visit(I);
    }
    Pages.SetActivePage(Pages.Pages(0));
    return Pages.PageCount();
}

void FillSample()
{
    TBooking Booking;
    Booking.Name = "Åsa Lindqvist";
    Booking.Phone = "+46 8 555 01 23";
    Booking.Mail = "asa@example.se";
    Booking.Places = 2;
    Booking.HasVehicle = true;
    BookingForm->Fill(TBookingDesk().Sailings().front().Title(), Booking);
}

void TTour::Visit(const std::function<std::vector<TForm*>()>& Create)
{
    const TApplicationScope Scope;
    const TPackageScope Package;
    RegisterDemoForms();
    FStates.clear();
    FBoxes.clear();
    // Windows come first: what only a window can tell belongs to the state that
    // is to be restored.
    for (TForm* const Form : Create()) {
        Form->Show();
        ForEachPage(*Form, [](int) {});
        FStates.push_back({Form, {}, ""});
    }
    Application->ProcessMessages();
    SwitchLanguage(Languages().front().Locale);
    const std::string Translations = ReadWholeFile(TranslationsFile());
    for (TFormState& State : FStates) {
        State.Lines = ReadFormLines(*State.Form);
        State.File = FormAsText(*State.Form);
    }
    for (const TLanguage& Language : Languages())
        ShowLanguage(Language);
    SwitchLanguage(Languages().front().Locale);
    Application->ProcessMessages();
    CheckRestored(Translations);
    if (MessagesForm && ShowBoxes("") != FBoxes)
        Fail("boxes are not in the program's own language again");
    if (LanguageForm)
        ShowSelectors();
}

void TTour::ShowLanguage(const TLanguage& Language)
{
    SwitchLanguage(Language.Locale);
    Application->ProcessMessages();
    std::cout << Language.Name << "\n";
    for (const TFormState& State : FStates)
        PrintChanges(State);
    for (const TFormState& State : FStates)
        TakePictures(*State.Form, Language);
    if (!MessagesForm)
        return;
    const std::vector<TBoxTexts> Boxes = ShowBoxes(Language.Code);
    for (const TBoxTexts& Box : Boxes)
        Print(Box);
    if (FBoxes.empty())
        FBoxes = Boxes;
}

// The message boxes, and the dialogs of the system. Takes pictures of them, unless
// Code is empty.
std::vector<TBoxTexts> TTour::ShowBoxes(const std::string& Code)
{
    std::vector<TBoxTexts> Result;
    for (TForm* const Form : std::initializer_list<TForm*>{MessagesForm, DialogsForm}) {
        TWinControl* const Active = Form->ActiveControl();
        Form->BringToFront();
        for (TButton* const Button : ButtonsOf(*Form)) {
            const std::string Name = LowerCase(Button->Name().substr(3)) + "-" + Code;
            const std::vector<TBoxTexts> Boxes = ClickAndClose(*Button, [&](HWND Box) {
                if (!Code.empty())
                    SavePicture(Box, "box-" + Name);
            });
            if (Boxes.empty())
                Fail(Button->Name() + " showed nothing");
            Result.insert(Result.end(), Boxes.begin(), Boxes.end());
        }
        Form->SetActiveControl(Active);
    }
    return Result;
}

void TTour::ShowSelectors()
{
    for (int I = 0; I < LanguageForm->SelectorCount(); ++I) {
        LanguageForm->UseSelector(I);
        SwitchLanguage(Languages()[static_cast<size_t>(I) % Languages().size()].Locale);
        TakePicture(*LanguageForm, "selector" + std::to_string(I + 1));
    }
}

void TTour::PrintChanges(const TFormState& State) const
{
    const std::vector<TFormChange> Changes = ChangesBetween(State.Lines, ReadFormLines(*State.Form));
    std::cout << "  " << State.Form->Name() << ": " << Changes.size() << " of " << State.Lines.size()
              << " properties differ from the form file\n";
    for (size_t I = 0; I < Changes.size() && I < ShownChanges; ++I)
        std::cout << "    " << Changes[I].Key << ": " << Changes[I].Before << " -> " << Changes[I].After
                  << "\n";
}

void TTour::TakePictures(TForm& Form, const TLanguage& Language)
{
    if (Form.FormStyle() == fsMDIChild)
        return; // seen in the picture of its frame
    const std::string Name = PictureName(Form);
    const int Pages = ForEachPage(
        Form, [&](int Page) { TakePicture(Form, Name + std::to_string(Page + 1) + "-" + Language.Code); });
    if (Pages == 0)
        TakePicture(Form, Name + "-" + Language.Code);
}

void TTour::TakePicture(TForm& Form, const std::string& Name)
{
    Form.BringToFront();
    Application->ProcessMessages();
    SavePicture(Form.Handle(), Name);
}

void TTour::SavePicture(HWND Window, const std::string& Name)
{
    const std::string File = FFolder + "/" + Name + ".png";
    if (SaveWindowPicture(Window, File))
        ++FPictures;
    else
        Fail("cannot write " + File);
}

void TTour::CheckRestored(const std::string& Translations)
{
    for (const TFormState& State : FStates) {
        const std::string& Name = State.Form->Name();
        const std::vector<TFormLine> Lines = ReadFormLines(*State.Form);
        const std::vector<TFormChange> Changes = ChangesBetween(State.Lines, Lines);
        for (const TFormChange& Change : Changes)
            Fail(Name + "." + Change.Key + " was " + Change.Before + " and is " + Change.After);
        if (Changes.empty() && Lines != State.Lines)
            Fail(Name + " lost properties");
        if (FormAsText(*State.Form) != State.File)
            Fail(Name + " is written differently");
        std::cout << "  " << Name << ": all " << Lines.size() << " properties compared, form file of "
                  << State.File.size() << " bytes compared\n";
    }
    if (ReadWholeFile(TranslationsFile()) != Translations)
        Fail("writing the forms changed the translations file");
}

void TTour::Fail(const std::string& Text)
{
    std::cout << "FAILED: " << Text << "\n";
    FFailed = true;
}

} // namespace

int RunTour(const std::string& Folder)
{
    std::filesystem::create_directories(Folder);
    TTour Tour(Folder);
    Tour.Visit([] {
        std::vector<TForm*> Forms = CreateBookingDesk();
        FillSample();
        return Forms;
    });
    Tour.Visit(CreatePlanning);
    std::cout << (Tour.Failed() ? "Restoring FAILED" : "Restored exactly") << "; " << Tour.Pictures()
              << " pictures in " << Folder << "\n";
    return Tour.Failed() ? 1 : 0;
}
