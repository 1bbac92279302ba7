#include "demo/BoxWatch.h"

#include "framework/forms/Forms.h"
#include "framework/forms/Labels.h"
#include "framework/forms/PushButtons.h"
#include "framework/forms/Timers.h"

namespace {

constexpr uint32_t LookEvery = 10; // milliseconds

std::string TextOf(HWND Window)
{
    std::string Text(static_cast<size_t>(GetWindowTextLengthA(Window)) + 1, '\0');
    Text.resize(static_cast<size_t>(GetWindowTextA(Window, Text.data(), static_cast<int>(Text.size()))));
    return Text;
}

std::string ClassOf(HWND Window)
{
    char Name[64] = "";
    GetClassNameA(Window, Name, sizeof Name);
    return Name;
}

TForm* FormOf(HWND Window)
{
    for (int I = 0; I < Screen->FormCount(); ++I)
        if (TForm* const Form = Screen->Forms(I); Form->HandleAllocated() && Form->Handle() == Window)
            return Form;
    return nullptr;
}

// Labels of forms have no window.
void ReadForm(const TForm& Form, TBoxTexts& Texts)
{
    for (int I = 0; I < Form.ComponentCount(); ++I)
        if (auto* const Button = dynamic_cast<TButton*>(Form.Components(I)))
            Texts.Buttons.push_back(TextOf(Button->Handle()));
        else if (const auto* const Label = dynamic_cast<const TLabel*>(Form.Components(I)))
            Texts.Text += Label->Caption();
}

void ReadSystemBox(HWND Box, TBoxTexts& Texts)
{
    for (HWND Item = GetWindow(Box, GW_CHILD); Item; Item = GetWindow(Item, GW_HWNDNEXT))
        if (ClassOf(Item) == "Button")
            Texts.Buttons.push_back(TextOf(Item));
        else if (ClassOf(Item) == "Static")
            Texts.Text += TextOf(Item);
}

// The system's boxes have message loops of their own: only timers are called there.
class TBoxWatch : public TObject {
public:
    TBoxWatch(HWND Opener, const std::function<void(HWND)>& Visit)
        : FOpener(Opener), FVisit(Visit), FTimer(nullptr)
    {
        FTimer.SetInterval(LookEvery);
        FTimer.SetOnTimer({this, &TBoxWatch::Look});
    }

    const std::vector<TBoxTexts>& Seen() const { return FSeen; }

private:
    void Look(TObject*)
    {
        const HWND Box = GetActiveWindow();
        if (!Box || Box == FOpener || !IsWindowVisible(Box))
            return;
        FTimer.SetEnabled(false);
        FVisit(Box);
        TBoxTexts Texts{TextOf(Box), "", {}};
        if (const TForm* const Form = FormOf(Box))
            ReadForm(*Form, Texts);
        else
            ReadSystemBox(Box, Texts);
        FSeen.push_back(Texts);
        PostMessageA(Box, WM_CLOSE, 0, 0);
        FTimer.SetEnabled(true);
    }

    HWND FOpener;
    const std::function<void(HWND)>& FVisit;
    TTimer FTimer;
    std::vector<TBoxTexts> FSeen;
};

} // namespace

std::vector<TButton*> ButtonsOf(const TForm& Form)
{
    std::vector<TButton*> Result;
    for (int I = 0; I < Form.ComponentCount(); ++I)
        if (auto* const Button = dynamic_cast<TButton*>(Form.Components(I)))
            Result.push_back(Button);
    return Result;
}

std::vector<TBoxTexts> ClickAndClose(TButton& Button, const std::function<void(HWND)>& Visit)
{
    const HWND Form = GetAncestor(Button.Handle(), GA_ROOT);
    SetActiveWindow(Form);
    const TBoxWatch Watch(Form, Visit);
    SendMessageA(Button.Handle(), BM_CLICK, 0, 0);
    // Dialogs for finding stay when the click is over.
    while (GetActiveWindow() && GetActiveWindow() != Form)
        Application->HandleMessage();
    return Watch.Seen();
}
