// The picture that is shown while the package is loaded into the environment.
#pragma once

#include "framework/forms/Forms.h"

class TImage;
class TPanel;

class TQFormSplash : public TForm {
    OBX_CLASS(TForm)
public:
    explicit TQFormSplash(TComponent* Owner) : TForm(Owner) {}

    // The form frees itself when its time is over. Otherwise it stays until the user
    // clicks on the picture.
    bool AutoFree = false;

    // Published.
    TPanel* Panel = nullptr;
    TImage* SplashImage = nullptr;
    void FormShow(TObject* Sender);
    void SplashImageClick(TObject* Sender);

protected:
    void DoCreate() override;
    void Dispatch(TMessage& Message) override;

private:
    void RestartTimer(unsigned Milliseconds);

    UINT_PTR FTimer = 0;
};

// Shows a splash form that belongs to the application, painted when this returns.
// First makes no difference. Requires StartWizard (Wizard.h).
void ShowSplash(bool First, bool AutoFree);
