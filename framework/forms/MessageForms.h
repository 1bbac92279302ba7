// Message boxes that are forms: a text, an icon and a row of buttons.
#pragma once

#include <initializer_list>
#include <string>

#include "framework/forms/Form.h"
#include "framework/rtl/FormatText.h"

class TLabel;

OBX_ENUM(TMsgDlgType, mtWarning, mtError, mtInformation, mtConfirmation, mtCustom)

// In the order in which the buttons stand in a row.
OBX_ENUM(TMsgDlgBtn, mbYes, mbNo, mbOK, mbCancel, mbAbort, mbRetry, mbIgnore, mbAll, mbNoToAll, mbYesToAll,
         mbHelp)
OBX_SET(TMsgDlgButtons, TMsgDlgBtn)

constexpr TMsgDlgButtons mbYesNo{mbYes, mbNo};
constexpr TMsgDlgButtons mbYesNoCancel{mbYes, mbNo, mbCancel};
constexpr TMsgDlgButtons mbYesAllNoAllCancel{mbYes, mbYesToAll, mbNo, mbNoToAll, mbCancel};
constexpr TMsgDlgButtons mbOKCancel{mbOK, mbCancel};
constexpr TMsgDlgButtons mbAbortRetryIgnore{mbAbort, mbRetry, mbIgnore};
constexpr TMsgDlgButtons mbAbortIgnore{mbAbort, mbIgnore};

// The form of a message box. Its components, in this order: "Image" (TImage; none
// for mtCustom), "Message" (TLabel), then the buttons (TButton): "Yes", "No", "OK",
// "Cancel", "Abort", "Retry", "Ignore", "All", "NoToAll", "YesToAll", "Help".
// A button that gets a longer caption grows, and the form with it (ButtonRow.h).
// Ctrl+C copies FormText. User-interface thread only.
class TMessageForm : public TForm {
    OBX_CLASS(TForm)
public:
    explicit TMessageForm(TComponent* Owner);

    TLabel* Message() const { return FMessage; }
    // Title, message and captions of the buttons, between dashed lines.
    std::string FormText() const;

protected:
    void KeyDown(uint16_t& Key, TShiftState Shift) override;

private:
    friend class TMessageFormBuilder;
    void HelpClick(TObject*);

    TLabel* FMessage = nullptr;
};

// All of these require that the application has been started. Msg may hold line
// breaks and tabs, "&&" for "&", and is wrapped at half of the screen's width.
// Captions of buttons and titles are the framework's texts (SMsgDlgYes and so on)
// as they read at the time of the call; the title of mtCustom is the application's.
//
// Enter clicks OK, else Yes, else Retry; Esc clicks Cancel, else No, else OK.

// A message form that is not shown yet, in the middle of the screen. The
// application owns it; the caller may show it in any way and should free it.
TForm* CreateMessageDialog(const std::string& Msg, TMsgDlgType DlgType, TMsgDlgButtons Buttons);

// Shows the message until one of its buttons is clicked and returns that button's
// mr constant; mrCancel when the window is closed or the application ends. Help
// asks the application for the topic HelpCtx and leaves the form open.
int MessageDlg(const std::string& Msg, TMsgDlgType DlgType, TMsgDlgButtons Buttons, THelpContext HelpCtx);
// X and Y are pixels of the screen; a negative one is the middle of the screen.
int MessageDlgPos(const std::string& Msg, TMsgDlgType DlgType, TMsgDlgButtons Buttons, THelpContext HelpCtx,
                  int X, int Y);
int MessageDlgPosHelp(const std::string& Msg, TMsgDlgType DlgType, TMsgDlgButtons Buttons,
                      THelpContext HelpCtx, int X, int Y, const std::string& HelpFileName);

// A message with an OK button and the application's title.
void ShowMessage(const std::string& Msg);
// As Format: EConvertError when Fmt and Args do not suit each other.
void ShowMessageFmt(const std::string& Fmt, std::initializer_list<TVarRec> Args);
void ShowMessagePos(const std::string& Msg, int X, int Y);
