// A guest book: who was here, and what they said.
//   guestbook                            the program
//   guestbook --picture FILE [LANGUAGE]  a picture of it in FILE, after a click on the
//                                        language in its menu; needs no display
#include <iostream>
#include <string>

#include "MainForm.h"
#include "SignForm.h"
#include "framework/forms/Menus.h"
#include "framework/forms/StandardClasses.h"
#include "guestbook.h"
#include "platform/Picture.h"

namespace {

// The item of the language menu that names the language; null for none.
TMenuItem* FindLanguage(const std::string& Language)
{
    TMenuItem& Menu = *MainForm->MnuLanguage;
    for (int I = 0; I < Menu.Count(); ++I)
        if (Menu.Items(I)->Caption().starts_with(Language))
            return Menu.Items(I);
    return nullptr;
}

int TakePicture(const std::string& File, const std::string& Language)
{
    MainForm->Show();
    if (!Language.empty()) {
        TMenuItem* const Item = FindLanguage(Language);
        if (!Item) {
            std::cerr << "guestbook: no language " << Language << " in the menu\n";
            return 1;
        }
        Item->Click();
    }
    Application->ProcessMessages();
    if (SaveWindowPicture(MainForm->Handle(), File))
        return 0;
    std::cerr << "guestbook: cannot write " << File << "\n";
    return 1;
}

} // namespace

int main(int Count, char** Arguments)
{
    const TApplicationScope Scope;
    RegisterStandardClasses();
    RegisterGuestbook();
    Application->CreateForm(MainForm);
    Application->CreateForm(SignForm);
    if (Count > 2 && std::string(Arguments[1]) == "--picture")
        return TakePicture(Arguments[2], Count > 3 ? Arguments[3] : "");
    Application->Run();
    return 0;
}
