// What the designer offers for translators: their editor and help.
#pragma once

#include <string>
#include <vector>

#include "framework/design/ComponentEditor.h"

class TTranslatorVerbs : public TComponentEditor {
public:
    int GetVerbCount() const override { return FEditVerb.empty() ? 1 : 2; }
    std::string GetVerb(int Index) const override;
    void ExecuteVerb(int Index) override;

protected:
    // Without EditVerb the translator has no editor.
    TTranslatorVerbs(TFormDesigner& Designer, TComponent& Component, std::string Unit, std::string EditVerb);

private:
    std::string FUnit; // of the help
    std::string FEditVerb;
};

class TFormTranslatorEditor : public TTranslatorVerbs {
public:
    TFormTranslatorEditor(TFormDesigner& Designer, TComponent& Component)
        : TTranslatorVerbs(Designer, Component, "QFT", "Form Translation Editor")
    {
    }
};

class TCdtTranslatorEditor : public TTranslatorVerbs {
public:
    TCdtTranslatorEditor(TFormDesigner& Designer, TComponent& Component)
        : TTranslatorVerbs(Designer, Component, "QCT", "Common Dialog Translation Editor")
    {
    }
};

class TLocaleTranslatorEditor : public TTranslatorVerbs {
public:
    TLocaleTranslatorEditor(TFormDesigner& Designer, TComponent& Component)
        : TTranslatorVerbs(Designer, Component, "QLT", "Locale Translation Editor")
    {
    }
};

class TResTranslatorEditor : public TTranslatorVerbs {
public:
    TResTranslatorEditor(TFormDesigner& Designer, TComponent& Component)
        : TTranslatorVerbs(Designer, Component, "QRT", "Resource Translation Editor")
    {
    }
};

class TBtnTranslatorEditor : public TTranslatorVerbs {
public:
    TBtnTranslatorEditor(TFormDesigner& Designer, TComponent& Component)
        : TTranslatorVerbs(Designer, Component, "QBT", "")
    {
    }
};
