#include "demo/MessagesForm.h"

#include "DemoTexts.h"
#include "framework/forms/InputForms.h"
#include "framework/forms/MessageForms.h"
#include "framework/rtl/Strings.h"
#include "framework/rtl/SysUtils.h"

TMessagesForm* MessagesForm = nullptr;

namespace {

constexpr const char* Customer = "Åsa Lindqvist";

} // namespace

const TMetaClass& TMessagesForm::MetaClass()
{
    static const TMetaClass Class("TMessagesForm", &TForm::MetaClass(), CreateComponent<TMessagesForm>, {},
                                  {Published<&TMessagesForm::BtnNumberClick>("BtnNumberClick"),
                                   Published<&TMessagesForm::BtnFileClick>("BtnFileClick"),
                                   Published<&TMessagesForm::BtnIndexClick>("BtnIndexClick"),
                                   Published<&TMessagesForm::BtnWarningClick>("BtnWarningClick"),
                                   Published<&TMessagesForm::BtnErrorClick>("BtnErrorClick"),
                                   Published<&TMessagesForm::BtnInformationClick>("BtnInformationClick"),
                                   Published<&TMessagesForm::BtnQuestionClick>("BtnQuestionClick"),
                                   Published<&TMessagesForm::BtnToAllClick>("BtnToAllClick"),
                                   Published<&TMessagesForm::BtnCustomClick>("BtnCustomClick"),
                                   Published<&TMessagesForm::BtnMessageClick>("BtnMessageClick"),
                                   Published<&TMessagesForm::BtnInputClick>("BtnInputClick")});
    return Class;
}

TMessagesForm::~TMessagesForm()
{
    MessagesForm = nullptr;
}

// Errors: the application reports what nobody handles.

void TMessagesForm::BtnNumberClick(TObject*)
{
    StrToInt("12a");
}

void TMessagesForm::BtnFileClick(TObject*)
{
    TStringList List;
    List.LoadFromFile("timetable.txt");
}

void TMessagesForm::BtnIndexClick(TObject*)
{
    const TStringList List;
    List.Get(7);
}

void TMessagesForm::BtnWarningClick(TObject*)
{
    MessageDlg(Format(SStorm, {"Gråhamn"}), mtWarning, {mbOK}, 0);
}

void TMessagesForm::BtnErrorClick(TObject*)
{
    MessageDlg(SPrinterSilent, mtError, mbAbortRetryIgnore, 0);
}

void TMessagesForm::BtnInformationClick(TObject*)
{
    const TDateTime End = EncodeDate(2031, 6, 30);
    MessageDlg(Format(SBookingKept, {FormatDateTime(LongDateFormat, End)}), mtInformation, {mbOK, mbHelp}, 0);
}

void TMessagesForm::BtnQuestionClick(TObject*)
{
    MessageDlg(Format(SSendTicket, {"asa@example.se"}), mtConfirmation, mbYesNoCancel, 0);
}

void TMessagesForm::BtnToAllClick(TObject*)
{
    MessageDlg(Format(SLaterSailing, {Customer}), mtConfirmation, mbYesAllNoAllCancel, 0);
}

void TMessagesForm::BtnCustomClick(TObject*)
{
    MessageDlg(SPrintCards, mtCustom, {mbAll, mbNo, mbHelp}, 0);
}

void TMessagesForm::BtnMessageClick(TObject*)
{
    ShowMessageFmt(SWelcome, {Customer});
}

void TMessagesForm::BtnInputClick(TObject*)
{
    if (std::string Name = Customer; InputQuery(SNewCustomer, SNameOfCustomer, Name))
        ShowMessageFmt(SWelcome, {Name});
}
