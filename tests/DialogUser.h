// Somebody who uses the system's dialogs, and what tests see of their windows.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "framework/forms/Dialogs.h"
#include "framework/forms/Forms.h"
#include "framework/forms/StdCtrls.h"
#include "framework/rtl/FileNames.h"

using TNames = std::vector<std::string>;

inline std::string TextOf(HWND Window)
{
    char Text[1024] = "";
    GetWindowTextA(Window, Text, sizeof Text);
    return Text;
}

inline std::string ItemText(HWND Dialog, int Id)
{
    return TextOf(GetDlgItem(Dialog, Id));
}

// "" for a control that can be used, else what is wrong with it.
inline std::string ItemState(HWND Dialog, int Id)
{
    const HWND Item = GetDlgItem(Dialog, Id);
    if (!Item)
        return "missing";
    return !(GetWindowLongPtrA(Item, GWL_STYLE) & WS_VISIBLE) ? "hidden"
           : !IsWindowEnabled(Item)                           ? "disabled"
                                                              : "";
}

inline void Press(HWND Dialog, int Id)
{
    PostMessageA(Dialog, WM_COMMAND, MAKEWPARAM(Id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(Dialog, Id)));
}

// Takes one step whenever some time has passed and the dialog under test is there,
// and closes what stays open.
class TDialogUser {
public:
    using TStep = std::function<void(HWND)>;

    TDialogUser(TCommonDialog& Dialog, std::deque<TStep> Steps) : FDialog(&Dialog), FSteps(std::move(Steps))
    {
        FTimer = SetTimer(nullptr, 0, 20, &Tick);
    }
    ~TDialogUser()
    {
        KillTimer(nullptr, FTimer);
        Current = FOuter;
        EXPECT_TRUE(FSteps.empty()) << "the dialog closed too early";
    }
    TDialogUser(const TDialogUser&) = delete;
    TDialogUser& operator=(const TDialogUser&) = delete;

private:
    static constexpr int MostTicks = 250;

    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD)
    {
        if (Current)
            Current->Act();
    }

    void Act()
    {
        const HWND Active = GetActiveWindow();
        if (++FTicks > MostTicks) {
            ADD_FAILURE() << "the dialog stays open";
            FSteps.clear();
            PostMessageA(Active, WM_CLOSE, 0, 0);
            FTicks = 0;
        } else if (!FSteps.empty() && FDialog->Handle() && IsWindowVisible(FDialog->Handle())) {
            const TStep Step = FSteps.front();
            FSteps.pop_front();
            Step(FDialog->Handle());
        }
    }

    static inline TDialogUser* Current = nullptr; // the innermost
    TDialogUser* FOuter = std::exchange(Current, this);
    TCommonDialog* FDialog;
    std::deque<TStep> FSteps;
    UINT_PTR FTimer;
    int FTicks = 0;
};

// Executes a modal dialog; Steps end with what closes it.
inline bool ExecuteWith(TCommonDialog& Dialog, std::deque<TDialogUser::TStep> Steps)
{
    const TDialogUser User(Dialog, std::move(Steps));
    return Dialog.Execute();
}

inline TDialogUser::TStep Pressing(int Id)
{
    return [Id](HWND Dialog) { Press(Dialog, Id); };
}

// A form, from which dialogs are shown, and their events in order.
struct TDialogs : TObject, testing::Test {
    TDialogs()
    {
        Application->OnException = {this, &TDialogs::Caught};
        Form = new TForm(Application);
        Form->SetBounds(200, 150, 600, 500);
        Edit = new TEdit(Form);
        Edit->SetParent(Form);
        Form->Show();
        Edit->SetFocus();
        Application->ProcessMessages();
    }

    TCommonDialog& Make(const TMetaClass& Class)
    {
        auto* const Result = dynamic_cast<TCommonDialog*>(Class.Create(Form));
        Result->OnShow = {this, &TDialogs::Shown};
        Result->OnClose = {this, &TDialogs::Closed};
        return *Result;
    }
    template<class T>
    T& Make()
    {
        return dynamic_cast<T&>(Make(T::MetaClass()));
    }

    void Shown(TObject*) { Note("show"); }
    void Closed(TObject*) { Note("close"); }
    void Folder(TObject*) { Note("folder"); }
    void Selection(TObject*) { Note("selection"); }
    void Type(TObject* Sender)
    {
        Note("type " + std::to_string(dynamic_cast<TOpenDialog*>(Sender)->FilterIndex()));
    }
    void CanClose(TObject* Sender, bool& Can)
    {
        Note("can close " + ExtractFileName(dynamic_cast<TOpenDialog*>(Sender)->FileName()));
        Can = !std::exchange(Refuse, false);
    }
    void Found(TObject* Sender)
    {
        const auto& Dialog = *dynamic_cast<TFindDialog*>(Sender);
        std::string Event = "find " + Dialog.FindText();
        for (const TFindOption Option : {frDown, frMatchCase, frWholeWord, frFindNext})
            if (Dialog.Options().Contains(Option))
                Event += " " + GetEnumName(TypeInfoFor(TTypeTag<TFindOption>{}), Option);
        Note(Event);
    }
    void Replaced(TObject* Sender)
    {
        const auto& Dialog = *dynamic_cast<TReplaceDialog*>(Sender);
        Note((Dialog.Options().Contains(frReplaceAll) ? "all " : "one ") + Dialog.FindText() + ">" +
             Dialog.ReplaceText());
    }
    void Apply(TObject* Sender, HWND Window)
    {
        const auto& Dialog = *dynamic_cast<TFontDialog*>(Sender);
        Note("apply " + std::to_string(Dialog.Font()->Size()));
        EXPECT_EQ(Window, Dialog.Handle());
    }
    void Help(uint16_t Command, intptr_t Data, bool&, bool&)
    {
        Note("help " + std::to_string(Command) + " " + std::to_string(Data));
    }
    void Caught(TObject*, const Exception& Error) { Note("error " + Error.Message()); }
    void Throw(TObject*) { throw EInvalidOperation("thrown"); }
    void Destroy(TObject* Sender) { delete Sender; }
    void DestroyAndRefuse(TObject* Sender, bool& Can)
    {
        delete Sender;
        Can = false;
    }
    void DestroyApplied(TObject* Sender, HWND) { delete Sender; }
    void DestroyForm(TObject*) { delete std::exchange(Form, nullptr); }
    void Reopen(TObject* Sender)
    {
        auto& Dialog = *dynamic_cast<TFindDialog*>(Sender);
        Dialog.OnClose.Clear();
        EXPECT_TRUE(Dialog.Execute());
    }
    void CloseFind(TObject* Sender) { dynamic_cast<TFindDialog*>(Sender)->CloseDialog(); }

    void Note(const std::string& Event) { Events.push_back(Event); }
    TNames TakeEvents() { return std::exchange(Events, {}); }

    TApplicationScope Scope;
    TForm* Form = nullptr;
    TEdit* Edit = nullptr;
    TNames Events;
    bool Refuse = false;
};
