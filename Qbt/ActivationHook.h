// Tells of every form of the application that is about to become active.
#pragma once

class TForm;

using TActivationHandler = void (*)(TForm& Form);

// From now on Handler is called before a form that the application owns becomes
// active, whether a message box or any other; it may change the form, which is not
// yet seen active. Windows that are no forms, the system's message boxes among
// them, are never told of. Forms that come up while Handler runs are not told of
// either, so that it may show a message. What it throws goes to the application's
// exception handler.
//
// One hook a process, on the thread that installs it. Does nothing when there is
// one already.
void InstallActivationHook(TActivationHandler Handler);

// False, with nothing done, when there is none.
bool RemoveActivationHook() noexcept;
