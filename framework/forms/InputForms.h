// Dialogs that ask for one line of text.
#pragma once

#include <string>

// Shows a dialog with Value in an edit. OK (or Enter) takes the user's text into
// Value and returns true; Cancel, Esc and closing the window leave Value alone and
// return false. A long Prompt is wrapped. Requires that the application has been
// started. User-interface thread only.
bool InputQuery(const std::string& Caption, const std::string& Prompt, std::string& Value);

// The text that the user entered, or Default when the dialog was cancelled.
std::string InputBox(const std::string& Caption, const std::string& Prompt, const std::string& Default);
