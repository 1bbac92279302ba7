// The two programs: the booking desk, and the harbour's planning.
#pragma once

#include <vector>

class TForm;

// Registers the form files and classes. The package must have been started.
void RegisterDemoForms();

// Make the forms; Application owns them, and the first one is the main form.
std::vector<TForm*> CreateBookingDesk();
std::vector<TForm*> CreatePlanning();
