// Message boxes and other modal dialogs without a user.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/winapi.h"

class TButton;
class TForm;

// What a box says, as its window shows it.
struct TBoxTexts {
    std::string Title;
    std::string Text;
    std::vector<std::string> Buttons;
    friend bool operator==(const TBoxTexts&, const TBoxTexts&) = default;
};

std::vector<TButton*> ButtonsOf(const TForm& Form);

// Clicks a button, closes each box that comes up, and tells what they said. Visit
// sees a box before it is closed. The button's form must be visible.
std::vector<TBoxTexts> ClickAndClose(TButton& Button, const std::function<void(HWND)>& Visit);
