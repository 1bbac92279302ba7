#include "demo/AboutForm.h"

TAboutForm* AboutForm = nullptr;

const TMetaClass& TAboutForm::MetaClass()
{
    static const TMetaClass Class("TAboutForm", &TForm::MetaClass(), CreateComponent<TAboutForm>, {},
                                  {Published<&TAboutForm::LblLinkClick>("LblLinkClick")});
    return Class;
}

void TAboutForm::LblLinkClick(TObject*)
{
    SetCaption("www.skerryline.example");
}
