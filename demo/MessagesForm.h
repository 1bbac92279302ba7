// Errors of the framework, message boxes of every kind, and other small dialogs.
#pragma once

#include <vector>

#include "framework/forms/Forms.h"

class TButton;

class TMessagesForm : public TForm {
    OBX_CLASS(TForm)
public:
    explicit TMessagesForm(TComponent* Owner) : TForm(Owner) {}
    ~TMessagesForm() override;

    // Its buttons; each shows one message or more.
    std::vector<TButton*> Buttons() const;

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
