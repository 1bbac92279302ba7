// The two programs: the booking desk, and the harbour's planning.
#pragma once

#include <string>
#include <vector>

class TForm;

// Registers the form files and classes. The package must have been started.
void RegisterDemoForms();

// From now on RegisterDemoForms takes the form files of the folder instead of those of
// their classes that are compiled into the program: forms can be tried as they are
// designed. Throws EFOpenError, EReadError and the errors of form files.
void UseFormsOf(const std::string& Folder);

// Make the forms; Application owns them, and the first one is the main form.
std::vector<TForm*> CreateBookingDesk();
std::vector<TForm*> CreatePlanning();
