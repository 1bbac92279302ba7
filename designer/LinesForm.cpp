#include "designer/LinesForm.h"

#include "framework/forms/FormParts.h"

const TMetaClass& TLinesForm::MetaClass()
{
    static const TMetaClass Class("TLinesForm", &TForm::MetaClass(), CreateComponent<TLinesForm>, {});
    return Class;
}

void TLinesForm::DoCreate()
{
    FindPart(*this, "Memo", Memo);
    inherited::DoCreate();
}

bool EditLines(const std::string& Caption, TStrings& Lines)
{
    TLinesForm* Made = nullptr;
    Application->CreateForm(Made);
    const std::unique_ptr<TLinesForm> Form(Made);
    Form->SetCaption(Caption);
    Form->Memo->SetLines(&Lines);
    if (Form->ShowModal() != mrOk)
        return false;
    Lines.Assign(Form->Memo->Lines());
    return true;
}
