#include "framework/forms/MessageForms.h"

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

#include "framework/forms/Application.h"
#include "framework/forms/ButtonRow.h"
#include "framework/forms/Clipboard.h"
#include "framework/forms/DialogUnits.h"
#include "framework/forms/Images.h"
#include "framework/forms/Labels.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/Utf8.h"

namespace {

struct TButtonKind {
    const char* Name;
    const TResStringRec* Caption;
    TModalResult ModalResult;
};

// In the order of TMsgDlgBtn.
constexpr TButtonKind ButtonKinds[] = {
    {"Yes", &SMsgDlgYes, mrYes},
    {"No", &SMsgDlgNo, mrNo},
    {"OK", &SMsgDlgOK, mrOk},
    {"Cancel", &SMsgDlgCancel, mrCancel},
    {"Abort", &SMsgDlgAbort, mrAbort},
    {"Retry", &SMsgDlgRetry, mrRetry},
    {"Ignore", &SMsgDlgIgnore, mrIgnore},
    {"All", &SMsgDlgAll, mrAll},
    {"NoToAll", &SMsgDlgNoToAll, mrNoToAll},
    {"YesToAll", &SMsgDlgYesToAll, mrYesToAll},
    {"Help", &SMsgDlgHelp, mrNone},
};

struct TMessageKind {
    const TResStringRec* Title;
    LPCSTR Icon;
};

TMessageKind KindOf(TMsgDlgType DlgType)
{
    switch (DlgType) {
    case mtWarning:
        return {&SMsgDlgWarning, IDI_EXCLAMATION};
    case mtError:
        return {&SMsgDlgError, IDI_HAND};
    case mtInformation:
        return {&SMsgDlgInformation, IDI_ASTERISK};
    case mtConfirmation:
        return {&SMsgDlgConfirm, IDI_QUESTION};
    default:
        return {nullptr, nullptr};
    }
}

// The first of Wanted that is among Buttons; the last one if none is.
TMsgDlgBtn FirstOf(TMsgDlgButtons Buttons, std::array<TMsgDlgBtn, 3> Wanted)
{
    for (const TMsgDlgBtn Button : Wanted)
        if (Buttons.Contains(Button))
            return Button;
    return Wanted.back();
}

// Places in dialog units.
constexpr int Margin = RowMargin;
constexpr int Spacing = 10;
// Pixels.
constexpr int IconSize = 32;

// Gives Font what the system has for messages, titles and so on.
void SetSystemFont(TFont& Font, LOGFONTA NONCLIENTMETRICSA::*Source)
{
    NONCLIENTMETRICSA Metrics{};
    Metrics.cbSize = sizeof Metrics;
    if (!SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof Metrics, &Metrics, 0))
        return;
    if (const HFONT Handle = CreateFontIndirectA(&(Metrics.*Source))) {
        Font.SetHandle(Handle);
        DeleteObject(Handle);
    }
}

// What a short message must be as wide as to be told by its title.
int TitleWidth(const std::string& Title)
{
    TScreenCanvas Canvas;
    SetSystemFont(*Canvas.Font(), &NONCLIENTMETRICSA::lfCaptionFont);
    const int CloseButton = 2 * GetSystemMetrics(SM_CXSIZE);
    return std::min(Canvas.TextWidth(Title) + CloseButton, Screen->Width() / 2);
}

} // namespace

// Measures the message first, then makes the controls from left to right, or from
// right to left where the application reads so.
class TMessageFormBuilder {
public:
    TMessageFormBuilder(TMessageForm& Form, const std::string& Msg, TMsgDlgType DlgType,
                        TMsgDlgButtons Buttons)
        : FForm(Form), FCanvas(Form), FUnits(FCanvas), FMsg(Msg), FKind(KindOf(DlgType)), FButtons(Buttons)
    {
    }

    void Build()
    {
        FForm.SetCaption(FKind.Title ? std::string(*FKind.Title) : Application->Title());
        Measure();
        FForm.SetClientWidth(FClientWidth);
        FForm.SetClientHeight(FBodyHeight + FUnits.Y(RowButtonHeight + Spacing + 2 * Margin));
        FForm.SetPosition(poScreenCenter);
        AddImage();
        AddMessage();
        AddButtons();
    }

private:
    // Measures in the form's font; the form needs no window for it.
    struct TFormCanvas : TScreenCanvas {
        explicit TFormCanvas(TForm& Form) { Font()->Assign(Form.Font()); }
    };

    UINT ReadingFlags(UINT Flags) const
    {
        return FForm.UseRightToLeftReading() ? Flags | DT_RTLREADING : Flags;
    }

    void Measure()
    {
        FTextArea = {0, 0, Screen->Width() / 2, 0};
        FCanvas.DrawText(FMsg, FTextArea, ReadingFlags(DT_EXPANDTABS | DT_CALCRECT | DT_WORDBREAK));
        FBodyHeight = RectHeight(FTextArea);
        int BodyWidth = RectWidth(FTextArea);
        if (FKind.Icon) {
            BodyWidth += IconSize + FUnits.X(Spacing);
            FBodyHeight = std::max(FBodyHeight, IconSize);
        }
        FClientWidth = std::max(BodyWidth + 2 * FUnits.X(Margin), TitleWidth(FForm.Caption()));
    }

    void Place(TControl* Control, int Left, int Top, int Width, int Height)
    {
        Control->SetParent(&FForm);
        if (FForm.UseRightToLeftAlignment())
            Left = FClientWidth - Left - Width;
        Control->SetBounds(Left, Top, Width, Height);
    }

    void AddImage()
    {
        if (!FKind.Icon)
            return;
        auto* const Image = new TImage(&FForm);
        Image->SetName("Image");
        Image->Picture()->Icon()->SetHandle(LoadIconA(nullptr, FKind.Icon));
        Place(Image, FUnits.X(Margin), FUnits.Y(Margin), IconSize, IconSize);
    }

    void AddMessage()
    {
        auto* const Label = new TLabel(&FForm);
        FForm.FMessage = Label;
        Label->SetName("Message");
        Label->SetWordWrap(true);
        Label->SetCaption(FMsg);
        const int IconWidth = FKind.Icon ? IconSize + FUnits.X(Spacing) : 0;
        Place(Label, FUnits.X(Margin) + IconWidth, FUnits.Y(Margin), RectWidth(FTextArea),
              RectHeight(FTextArea));
    }

    void AddButtons()
    {
        const TMsgDlgBtn DefaultButton = FirstOf(FButtons, {mbOK, mbYes, mbRetry});
        const TMsgDlgBtn CancelButton = FirstOf(FButtons, {mbCancel, mbNo, mbOK});
        const int Top = FBodyHeight + FUnits.Y(Margin + Spacing);
        for (size_t Index = 0; Index < std::size(ButtonKinds); ++Index) {
            const auto Kind = static_cast<TMsgDlgBtn>(Index);
            if (!FButtons.Contains(Kind))
                continue;
            auto* const Button =
                new TRowButton(&FForm, FUnits, ButtonKinds[Index].Name, *ButtonKinds[Index].Caption, Top);
            Button->SetModalResult(ButtonKinds[Index].ModalResult);
            Button->SetCancel(Kind == CancelButton);
            if (Kind == mbHelp)
                Button->OnClick = {&FForm, &TMessageForm::HelpClick};
            if (Kind == DefaultButton) {
                Button->SetDefault(true);
                FForm.SetActiveControl(Button);
            }
        }
        LayOutButtonRow(FForm);
    }

    TMessageForm& FForm;
    TFormCanvas FCanvas;
    TDialogUnits FUnits;
    const std::string& FMsg;
    TMessageKind FKind;
    TMsgDlgButtons FButtons;
    TRect FTextArea{};
    int FBodyHeight = 0; // of text and icon
    int FClientWidth = 0;
};

const TMetaClass& TMessageForm::MetaClass()
{
    static const TMetaClass Class("TMessageForm", &TForm::MetaClass(), nullptr);
    return Class;
}

TMessageForm::TMessageForm(TComponent* Owner) : TForm(Owner)
{
    SetBorderStyle(bsDialog);
    SetBorderIcons({biSystemMenu});
    SetKeyPreview(true);
    SetSystemFont(*Font(), &NONCLIENTMETRICSA::lfMessageFont);
}

std::string TMessageForm::FormText() const
{
    const std::string Line = "---------------------------\r\n";
    std::string Captions;
    for (int Index = 0; Index < ComponentCount(); ++Index)
        if (const auto* const Button = dynamic_cast<const TButton*>(Components(Index)))
            Captions += StripHotkey(Button->Caption()) + "   ";
    const std::string Msg = FMessage ? FMessage->Caption() : std::string();
    return Line + Caption() + "\r\n" + Line + Msg + "\r\n" + Line + Captions + "\r\n" + Line;
}

void TMessageForm::KeyDown(uint16_t& Key, TShiftState Shift)
{
    if (Key == 'C' && Shift == TShiftState{ssCtrl})
        SetClipboardText(Handle(), FormText());
    inherited::KeyDown(Key, Shift);
}

void TMessageForm::HelpClick(TObject*)
{
    Application->HelpContext(HelpContext());
}

TForm* CreateMessageDialog(const std::string& Msg, TMsgDlgType DlgType, TMsgDlgButtons Buttons)
{
    auto Form = std::make_unique<TMessageForm>(Application);
    Form->SetBiDiMode(Application->BiDiMode);
    TMessageFormBuilder(*Form, Msg, DlgType, Buttons).Build();
    return Form.release();
}

int MessageDlg(const std::string& Msg, TMsgDlgType DlgType, TMsgDlgButtons Buttons, THelpContext HelpCtx)
{
    return MessageDlgPosHelp(Msg, DlgType, Buttons, HelpCtx, -1, -1, "");
}

int MessageDlgPos(const std::string& Msg, TMsgDlgType DlgType, TMsgDlgButtons Buttons, THelpContext HelpCtx,
                  int X, int Y)
{
    return MessageDlgPosHelp(Msg, DlgType, Buttons, HelpCtx, X, Y, "");
}

int MessageDlgPosHelp(const std::string& Msg, TMsgDlgType DlgType, TMsgDlgButtons Buttons,
                      THelpContext HelpCtx, int X, int Y, const std::string& HelpFileName)
{
    const std::unique_ptr<TForm> Form(CreateMessageDialog(Msg, DlgType, Buttons));
    Form->SetHelpContext(HelpCtx);
    Form->SetHelpFile(HelpFileName);
    if (X >= 0 || Y >= 0) {
        Form->SetPosition(poDesigned);
        const int Left = X >= 0 ? X : (Screen->Width() - Form->Width()) / 2;
        const int Top = Y >= 0 ? Y : (Screen->Height() - Form->Height()) / 2;
        Form->SetBounds(Left, Top, Form->Width(), Form->Height());
    }
    return Form->ShowModal();
}

void ShowMessage(const std::string& Msg)
{
    ShowMessagePos(Msg, -1, -1);
}

void ShowMessageFmt(const std::string& Fmt, std::initializer_list<TVarRec> Args)
{
    ShowMessage(Format(Fmt, Args));
}

void ShowMessagePos(const std::string& Msg, int X, int Y)
{
    MessageDlgPos(Msg, mtCustom, {mbOK}, 0, X, Y);
}
