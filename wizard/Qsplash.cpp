#include "wizard/Qsplash.h"

#include "framework/forms/ExtCtrls.h"
#include "framework/forms/FormParts.h"

namespace {

constexpr UINT_PTR TimerId = 1;
constexpr unsigned ShowMilliseconds = 2000;
constexpr unsigned ClickMilliseconds = 10;
constexpr int Frame = 8; // pixels that the panel is larger than the picture

} // namespace

const TMetaClass& TQFormSplash::MetaClass()
{
    static const TMetaClass Class("TQFormSplash", &TForm::MetaClass(), CreateComponent<TQFormSplash>, {},
                                  {Published<&TQFormSplash::FormShow>("FormShow"),
                                   Published<&TQFormSplash::SplashImageClick>("SplashImageClick")});
    return Class;
}

void TQFormSplash::DoCreate()
{
    FindPart(*this, "Panel", Panel);
    FindPart(*this, "SplashImage", SplashImage);
    inherited::DoCreate();
}

void TQFormSplash::FormShow(TObject*)
{
    const TPicture& Picture = *SplashImage->Picture();
    Panel->SetBounds(0, 0, Picture.Width() + Frame, Picture.Height() + Frame);
    SetBounds(Left(), Top(), Panel->Width(), Panel->Height());
    Repaint();
    Application->ProcessMessages();
    RestartTimer(ShowMilliseconds);
}

void TQFormSplash::RestartTimer(unsigned Milliseconds)
{
    FTimer = SetTimer(Handle(), TimerId, Milliseconds, nullptr);
}

void TQFormSplash::Dispatch(TMessage& Message)
{
    if (Message.Msg != WM_TIMER || Message.WParam != TimerId) {
        inherited::Dispatch(Message);
        return;
    }
    KillTimer(Handle(), FTimer);
    if (AutoFree)
        Release();
}

void TQFormSplash::SplashImageClick(TObject*)
{
    if (AutoFree)
        RestartTimer(ClickMilliseconds);
    else
        Close();
}

void ShowSplash(bool, bool AutoFree)
{
    TQFormSplash* const Form = CreateForm<TQFormSplash>(Application);
    Form->AutoFree = AutoFree;
    Form->Show();
    Form->SplashImage->Repaint();
    Application->ProcessMessages();
}
