#include "editors/FileNameProperties.h"

#include "framework/forms/FileDialogs.h"

std::string TTranslationsFileProperty::GetValue() const
{
    return GetStrProp(Instance(), PropInfo());
}

void TTranslationsFileProperty::SetValue(const std::string& Value)
{
    ForEachTarget([&](TPersistent& Object, const TPropInfo& Prop) { SetStrProp(Object, Prop, Value); });
}

void TTranslationsFileProperty::Edit()
{
    TOpenDialog Dialog(nullptr);
    Dialog.SetFilter(Filter());
    Dialog.SetTitle(Title());
    Dialog.SetDefaultExt("txt");
    Dialog.SetFileName(GetValue());
    if (Dialog.Execute())
        SetValue(Dialog.FileName());
}
