// Errors of the framework, message boxes of every kind, and other small dialogs.
#pragma once

#include "framework/forms/Forms.h"

class TMessagesForm : public TForm {
    OBX_CLASS(TForm)
public:
    explicit TMessagesForm(TComponent* Owner) : TForm(Owner) {}
    ~TMessagesForm() override;

    // Published.
    void BtnNumberClick(TObject* Sender);
    void BtnFileClick(TObject* Sender);
    void BtnIndexClick(TObject* Sender);
    void BtnWarningClick(TObject* Sender);
    void BtnErrorClick(TObject* Sender);
    void BtnInformationClick(TObject* Sender);
    void BtnQuestionClick(TObject* Sender);
    void BtnToAllClick(TObject* Sender);
    void BtnCustomClick(TObject* Sender);
    void BtnMessageClick(TObject* Sender);
    void BtnInputClick(TObject* Sender);
};

extern TMessagesForm* MessagesForm;
