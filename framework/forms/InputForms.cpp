#include "framework/forms/InputForms.h"

#include <memory>

#include "framework/forms/Application.h"
#include "framework/forms/ButtonRow.h"
#include "framework/forms/Edits.h"
#include "framework/forms/Labels.h"
#include "framework/rtl/RtlConsts.h"

namespace {

// Places in dialog units.
constexpr int FormWidth = 180;
constexpr int Margin = RowMargin;
constexpr int FieldWidth = 164;
// Pixels between prompt, edit, buttons and the form's lower edge.
constexpr int PromptSpacing = 5;
constexpr int EditSpacing = 15;
constexpr int BottomMargin = 13;

// A form of a prompt, an edit and two buttons, laid out from the top down.
class TInputForm {
public:
    explicit TInputForm(const std::string& Caption)
        : FForm(std::make_unique<TForm>(Application)), FUnits(Measured(FForm->Font()))
    {
        FForm->SetBiDiMode(Application->BiDiMode);
        FForm->SetBorderStyle(bsDialog);
        FForm->SetBorderIcons({biSystemMenu});
        FForm->SetCaption(Caption);
        FForm->SetClientWidth(FUnits.X(FormWidth));
        FForm->SetPosition(poScreenCenter);
    }

    void AddPrompt(const std::string& Text)
    {
        auto* const Prompt = new TLabel(FForm.get());
        Prompt->SetName("Prompt");
        Prompt->SetWordWrap(true);
        Prompt->SetCaption(Text);
        FTop = FUnits.Y(Margin);
        TRect Area{0, 0, FUnits.X(FieldWidth), 0};
        const UINT Reading = FForm->UseRightToLeftReading() ? DT_RTLREADING : 0;
        FCanvas.DrawText(Text.empty() ? " " : Text, Area,
                         DT_EXPANDTABS | DT_CALCRECT | DT_WORDBREAK | Reading);
        Place(Prompt, FUnits.X(Margin), FTop, RectWidth(Area), RectHeight(Area));
        FTop += RectHeight(Area) + PromptSpacing;
    }

    void AddEdit(const std::string& Text)
    {
        FEdit = new TEdit(FForm.get());
        FEdit->SetName("Edit");
        Place(FEdit, FUnits.X(Margin), FTop, FUnits.X(FieldWidth), FEdit->Height());
        FEdit->SetText(Text);
        FForm->SetActiveControl(FEdit);
        FTop += FEdit->Height() + EditSpacing;
    }

    void AddButtons()
    {
        FForm->SetClientHeight(FTop + FUnits.Y(RowButtonHeight) + BottomMargin);
        AddButton("OK", SMsgDlgOK, mrOk)->SetDefault(true);
        AddButton("Cancel", SMsgDlgCancel, mrCancel)->SetCancel(true);
        LayOutButtonRow(*FForm);
    }

    bool Ask() { return FForm->ShowModal() == mrOk; }
    std::string Answer() const { return FEdit->Text(); }

private:
    TDialogUnits Measured(TFont* Font)
    {
        FCanvas.Font()->Assign(Font);
        return TDialogUnits(FCanvas);
    }

    TButton* AddButton(const char* Name, const std::string& Caption, TModalResult ModalResult)
    {
        auto* const Button = new TRowButton(FForm.get(), FUnits, Name, Caption, FTop);
        Button->SetModalResult(ModalResult);
        return Button;
    }

    void Place(TControl* Control, int Left, int Top, int Width, int Height)
    {
        Control->SetParent(FForm.get());
        if (FForm->UseRightToLeftAlignment())
            Left = FForm->ClientWidth() - Left - Width;
        Control->SetBounds(Left, Top, Width, Height);
    }

    TScreenCanvas FCanvas;
    std::unique_ptr<TForm> FForm;
    TDialogUnits FUnits;
    TEdit* FEdit = nullptr;
    int FTop = 0;
};

} // namespace

bool InputQuery(const std::string& Caption, const std::string& Prompt, std::string& Value)
{
    TInputForm Form(Caption);
    Form.AddPrompt(Prompt);
    Form.AddEdit(Value);
    Form.AddButtons();
    if (!Form.Ask())
        return false;
    Value = Form.Answer();
    return true;
}

std::string InputBox(const std::string& Caption, const std::string& Prompt, const std::string& Default)
{
    std::string Result = Default;
    InputQuery(Caption, Prompt, Result);
    return Result;
}
