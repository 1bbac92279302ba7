#include "demo/CrewForm.h"

TCrewForm* CrewForm = nullptr;

const TMetaClass& TCrewForm::MetaClass()
{
    static const TMetaClass Class("TCrewForm", &TForm::MetaClass(), CreateComponent<TCrewForm>);
    return Class;
}
