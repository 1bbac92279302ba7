// Somebody who uses a modal form with mouse and keyboard: a row of steps, one after
// the other, while the form runs. A step acts on the form that is active then, also
// on a question or an input form that has come up, or on a dialog of the system.
// While the pointer asks for patience the user waits.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "framework/forms/Dialogs.h"
#include "framework/forms/Edits.h"
#include "framework/forms/Forms.h"
#include "framework/forms/ListBoxes.h"
#include "framework/forms/MessageForms.h"
#include "framework/forms/PageControls.h"
#include "framework/forms/PushButtons.h"

// The control or component of a form by its name.
template<class T>
T& PartOf(const TComponent& Form, const std::string& Name)
{
    auto* const Result = dynamic_cast<T*>(Form.FindComponent(Name));
    if (!Result)
        throw EComponentError(Form.Name() + " has no " + Name);
    return *Result;
}

inline std::vector<std::string> LinesOf(const TStrings& Strings)
{
    std::vector<std::string> Result;
    for (int I = 0; I < Strings.Count(); ++I)
        Result.push_back(Strings.Get(I));
    return Result;
}

class TFormUser {
public:
    using TAct = std::function<void(TForm&)>;

    TFormUser() = default;
    TFormUser(const TFormUser&) = delete;
    TFormUser& operator=(const TFormUser&) = delete;

    // What the user does to the active form.
    TFormUser& Do(TAct Act)
    {
        FSteps.push_back({[Act = std::move(Act)](HWND) { Act(*Screen->ActiveForm()); }, false});
        return *this;
    }
    // Clicks a control in its middle.
    TFormUser& Click(const std::string& Name)
    {
        return Do([Name](TForm& Form) {
            auto& Control = PartOf<TWinControl>(Form, Name);
            ASSERT_TRUE(IsWindowVisible(Control.Handle())) << Name;
            EXPECT_TRUE(Control.Enabled()) << Name;
            PostClick(Control, Control.Width() / 2, Control.Height() / 2);
        });
    }
    // Turns a page control to the page of a caption.
    TFormUser& Page(const std::string& Caption, const std::string& Name = "Notebook")
    {
        return Do([Caption, Name](TForm& Form) {
            auto& Pages = PartOf<TPageControl>(Form, Name);
            const int Tab = Pages.Tabs()->IndexOf(Caption);
            ASSERT_GE(Tab, 0) << Caption;
            RECT Place{};
            SendMessageA(Pages.Handle(), TCM_GETITEMRECT, static_cast<WPARAM>(Tab),
                         reinterpret_cast<LPARAM>(&Place));
            PostClick(Pages, (Place.left + Place.right) / 2, (Place.top + Place.bottom) / 2);
        });
    }
    // Clicks an item of a list box.
    TFormUser& Choose(const std::string& List, const std::string& Item)
    {
        return Do([List, Item](TForm& Form) {
            auto& Box = PartOf<TListBox>(Form, List);
            const int Index = Box.Items()->IndexOf(Item);
            ASSERT_GE(Index, 0) << Item << " in " << List;
            Box.SetTopIndex(Index);
            const TRect Place = Box.ItemRect(Index);
            PostClick(Box, (Place.left + Place.right) / 2, (Place.top + Place.bottom) / 2);
        });
    }
    // Selects several items of a list box, as with Ctrl held.
    TFormUser& Select(const std::string& List, const std::vector<std::string>& Items)
    {
        return Do([List, Items](TForm& Form) {
            auto& Box = PartOf<TListBox>(Form, List);
            Box.SetFocus();
            for (const std::string& Item : Items) {
                const int Index = Box.Items()->IndexOf(Item);
                ASSERT_GE(Index, 0) << Item << " in " << List;
                SendMessageA(Box.Handle(), LB_SETSEL, TRUE, Index);
                SendMessageA(Box.Handle(), LB_SETCARETINDEX, static_cast<WPARAM>(Index), FALSE);
            }
            PostMessageA(GetParent(Box.Handle()), WM_COMMAND,
                         MAKEWPARAM(GetDlgCtrlID(Box.Handle()), LBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(Box.Handle()));
        });
    }
    // Puts the focus into an edit and types a text in place of what is selected
    // there, which is everything.
    TFormUser& Type(const std::string& Edit, const std::string& Text)
    {
        return Do([Edit, Text](TForm& Form) {
            auto& Box = PartOf<TCustomEdit>(Form, Edit);
            Box.SetFocus();
            SendMessageA(Box.Handle(), EM_SETSEL, 0, -1);
            SendMessageA(Box.Handle(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(Text.c_str()));
        });
    }
    // A key for the control with the focus.
    TFormUser& Key(WPARAM Code)
    {
        return Do([Code](TForm&) {
            PostMessageA(GetFocus(), WM_KEYDOWN, Code, 1);
            PostMessageA(GetFocus(), WM_KEYUP, Code, static_cast<LPARAM>(0xC0000001));
        });
    }
    // Typed characters for the control with the focus.
    TFormUser& Keys(const std::string& Characters)
    {
        return Do([Characters](TForm&) {
            for (const char Each : Characters)
                PostMessageA(GetFocus(), WM_CHAR, static_cast<unsigned char>(Each), 1);
        });
    }
    // The text that a control must show now.
    TFormUser& See(const std::string& Control, const std::string& Text)
    {
        return Do([Control, Text](TForm& Form) {
            EXPECT_EQ(PartOf<TControl>(Form, Control).Text(), Text) << Control;
        });
    }
    // The items of a list box that must be selected now.
    TFormUser& SeeSelected(const std::string& List, const std::vector<std::string>& Items)
    {
        return Do([List, Items](TForm& Form) {
            const auto& Box = PartOf<TListBox>(Form, List);
            std::vector<std::string> Selected;
            for (int I = 0; I < Box.Items()->Count(); ++I)
                if (Box.Selected(I))
                    Selected.push_back(Box.Items()->Get(I));
            EXPECT_EQ(Selected, Items) << List;
        });
    }
    // The window's own button for closing.
    TFormUser& Close()
    {
        return Do([](TForm& Form) { PostMessageA(Form.Handle(), WM_SYSCOMMAND, SC_CLOSE, 0); });
    }
    // The text of a message form that must be there now; then its button.
    TFormUser& Answer(const std::string& Question, const std::string& Button)
    {
        Do([Question](TForm& Form) {
            auto* const Message = dynamic_cast<TMessageForm*>(&Form);
            ASSERT_NE(Message, nullptr) << Question << ": " << Form.Caption();
            EXPECT_NE(Message->FormText().find(Question), std::string::npos) << Message->FormText();
        });
        return Click(Button);
    }
    // The caption and prompt of an input form; its answer, and Enter.
    TFormUser& Enter(const std::string& Caption, const std::string& Prompt, const std::string& Text)
    {
        Do([Caption, Prompt, Text](TForm& Form) {
            EXPECT_EQ(Form.Caption(), Caption);
            EXPECT_EQ(PartOf<TControl>(Form, "Prompt").Text(), Prompt);
            auto& Edit = PartOf<TEdit>(Form, "Edit");
            Edit.SetText(Text);
        });
        return Key(VK_RETURN);
    }
    // What the user does to the active dialog of the system; then its OK button.
    TFormUser& Confirm(std::function<void(HWND)> Act)
    {
        FSteps.push_back({[Act = std::move(Act)](HWND Dialog) {
                              Act(Dialog);
                              PostMessageA(Dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED),
                                           reinterpret_cast<LPARAM>(GetDlgItem(Dialog, IDOK)));
                          },
                          true});
        return *this;
    }
    // A file dialog: its title and the name that is chosen in it.
    TFormUser& ChooseFile(const std::string& Title, const std::string& FileName)
    {
        return Confirm([Title, FileName](HWND Dialog) {
            char Text[256] = "";
            GetWindowTextA(Dialog, Text, sizeof Text);
            EXPECT_EQ(Text, Title);
            SetDlgItemTextA(Dialog, cmb13, FileName.c_str());
        });
    }
    // A font dialog, in which the first face that is not Face is chosen; that goes
    // into Face.
    TFormUser& ChooseOtherFont(std::string& Face)
    {
        return Confirm([&Face](HWND Dialog) {
            char Name[256] = "";
            WPARAM Item = 0;
            do
                SendDlgItemMessageA(Dialog, cmb1, CB_GETLBTEXT, Item++, reinterpret_cast<LPARAM>(Name));
            while (Name == Face);
            Face = Name;
            SendDlgItemMessageA(Dialog, cmb1, CB_SETCURSEL, Item - 1, 0);
            SendMessageA(Dialog, WM_COMMAND, MAKEWPARAM(cmb1, CBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(GetDlgItem(Dialog, cmb1)));
        });
    }

    // Takes the steps while Modal runs, which they must end.
    template<class T>
    T Run(const std::function<T()>& Modal)
    {
        FOuter = std::exchange(Current, this);
        const UINT_PTR Timer = SetTimer(nullptr, 0, 15, &Tick);
        T Result{};
        try {
            Result = Modal();
        } catch (...) {
            End(Timer);
            throw;
        }
        End(Timer);
        EXPECT_TRUE(FSteps.empty()) << "closed too early: " << FSteps.size() << " steps are left";
        FSteps.clear();
        return Result;
    }

private:
    struct TStep {
        std::function<void(HWND)> Act;
        bool ForDialog; // of the system
    };
    static constexpr int MostTicks = 400; // without a step taken

    static void PostClick(TWinControl& Control, int X, int Y)
    {
        PostMessageA(Control.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(X, Y));
        PostMessageA(Control.Handle(), WM_LBUTTONUP, 0, MAKELPARAM(X, Y));
    }

    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD)
    {
        if (Current)
            Current->Take();
    }

    static bool IsFormActive()
    {
        const TForm* const Form = Screen->ActiveForm();
        return Form && Form->HandleAllocated() && GetActiveWindow() == const_cast<TForm*>(Form)->Handle();
    }

    static bool IsBusy() { return Screen->Cursor() == crHourGlass || Screen->Cursor() == crAppStart; }

    void Take()
    {
        MSG Waiting{};
        if (FTaking || IsBusy() || PeekMessageA(&Waiting, nullptr, WM_KEYFIRST, WM_MOUSELAST, PM_NOREMOVE))
            return;
        const HWND Active = GetActiveWindow();
        if (++FTicks > MostTicks) {
            ADD_FAILURE() << "nothing to take the next of " << FSteps.size() << " steps on";
            FSteps.clear();
            FTicks = 0;
            PostMessageA(Active, WM_CLOSE, 0, 0);
        }
        if (FSteps.empty() || !Active || !IsWindowVisible(Active) ||
            FSteps.front().ForDialog == IsFormActive())
            return;
        FTicks = 0;
        const TStep Step = std::move(FSteps.front());
        FSteps.pop_front();
        FTaking = true;
        try {
            Step.Act(Active);
        } catch (const std::exception& Error) {
            ADD_FAILURE() << Error.what();
        }
        FTaking = false;
    }

    void End(UINT_PTR Timer)
    {
        KillTimer(nullptr, Timer);
        Current = FOuter;
    }

    static inline TFormUser* Current = nullptr;
    TFormUser* FOuter = nullptr;
    std::deque<TStep> FSteps;
    int FTicks = 0;
    bool FTaking = false;
};
