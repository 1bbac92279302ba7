// Plays a row of keys and clicks on a control of the system and writes down what
// came of each. A script is a row of steps, "step=outcome", with one blank between
// them; playing it gives the same text back when the control does as written.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>

#include "platform/winapi.h"

class TControlScripts : public testing::Test {
protected:
    TControlScripts()
    {
        WNDCLASSA Class{};
        Class.lpfnWndProc = ParentProc;
        Class.lpszClassName = "ControlScripts";
        RegisterClassA(&Class);
        Parent = CreateWindowExA(0, "ControlScripts", "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400, 300,
                                 nullptr, nullptr, nullptr, nullptr);
    }
    ~TControlScripts() override { DestroyWindow(Parent); }

    // What a notification adds to the outcome of the step; empty for those that
    // the test is not about.
    virtual std::string Note(UINT, WPARAM) const { return {}; }
    // Does what the step's letter says; the rest of the step is its argument.
    virtual void Do(char Letter, const std::string& Argument) = 0;
    virtual std::string Outcome() const = 0;

    HWND Make(const char* Class, const char* Text, DWORD Style, int Width, int Height)
    {
        Running = this;
        Control = CreateWindowExA(0, Class, Text, WS_CHILD | WS_VISIBLE | Style, 10, 10, Width, Height,
                                  Parent, reinterpret_cast<HMENU>(INT_PTR{7}), nullptr, nullptr);
        SetFocus(Control);
        return Control;
    }
    // S, C and A in front of a step's letter hold Shift, Ctrl and Alt.
    std::string Play(const std::string& Script)
    {
        std::istringstream Steps(Script);
        std::string Result, Step;
        while (Steps >> Step) {
            Step.resize(std::min(Step.find('='), Step.size()));
            const size_t Letter = Step.find_first_not_of("SCA");
            Shift = Step.find('S') < Letter;
            Ctrl = Step.find('C') < Letter;
            Alt = Step.find('A') < Letter;
            HoldKeys();
            Notes.clear();
            Do(Step[Letter], Step.substr(Letter + 1));
            Shift = Ctrl = Alt = false;
            HoldKeys();
            Result += (Result.empty() ? "" : " ") + Step + "=" + Outcome() + Notes;
        }
        DestroyWindow(Control);
        Running = nullptr;
        return Result;
    }

    LRESULT Send(UINT Message, WPARAM WParam = 0, LPARAM LParam = 0) const
    {
        return SendMessageA(Control, Message, WParam, LParam);
    }
    LRESULT SendText(UINT Message, WPARAM WParam, const std::string& Text) const
    {
        return Send(Message, WParam, reinterpret_cast<LPARAM>(Text.c_str()));
    }
    // To the focus, as the keyboard does.
    void Press(WPARAM Key) const
    {
        SendMessageA(GetFocus(), Alt ? WM_SYSKEYDOWN : WM_KEYDOWN, Key, Alt ? 0x20000001 : 1);
    }
    void Type(char Character) const
    {
        SendMessageA(GetFocus(), WM_CHAR, static_cast<unsigned char>(Character), 1);
    }
    bool PressArrow(char Letter) const
    {
        constexpr struct {
            char Letter;
            WPARAM Key;
        } Keys[] = {{'l', VK_LEFT}, {'r', VK_RIGHT}, {'u', VK_UP},    {'d', VK_DOWN},
                    {'h', VK_HOME}, {'e', VK_END},   {'p', VK_PRIOR}, {'n', VK_NEXT}};
        for (const auto& Each : Keys)
            if (Each.Letter == Letter)
                return Press(Each.Key), true;
        return false;
    }
    WPARAM MouseKeys(bool Down) const
    {
        return (Shift ? MK_SHIFT : 0u) | (Ctrl ? MK_CONTROL : 0u) | (Down ? MK_LBUTTON : 0u);
    }

    HWND Parent;
    HWND Control = nullptr;
    bool Shift = false, Ctrl = false, Alt = false;

private:
    static LRESULT CALLBACK ParentProc(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam)
    {
        if (Running && LParam && (Message == WM_COMMAND || Message == WM_HSCROLL || Message == WM_VSCROLL))
            Running->Notes += Running->Note(Message, WParam);
        return DefWindowProcA(Window, Message, WParam, LParam);
    }
    void HoldKeys() const
    {
        BYTE Keys[256] = {};
        Keys[VK_SHIFT] = Shift ? 0x80 : 0;
        Keys[VK_CONTROL] = Ctrl ? 0x80 : 0;
        Keys[VK_MENU] = Alt ? 0x80 : 0;
        SetKeyboardState(Keys);
    }

    static inline TControlScripts* Running = nullptr;
    std::string Notes;
};
