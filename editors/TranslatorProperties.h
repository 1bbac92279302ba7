// The inspector's editors of the other properties of translators.
#pragma once

#include "framework/design/PropertyEditor.h"

// A list of translations: the button opens the translator's editor.
class TTranslationsProperty : public TPropertyEditor {
public:
    using TPropertyEditor::TPropertyEditor;

    TPropertyAttributes GetAttributes() const override { return {paDialog, paReadOnly}; }
    void Edit() override;
};

class TFormTranslationsProperty : public TTranslationsProperty {
public:
    using TTranslationsProperty::TTranslationsProperty;
    std::string GetValue() const override { return "[Form Editor]"; }
};

class TCdtTranslationsProperty : public TTranslationsProperty {
public:
    using TTranslationsProperty::TTranslationsProperty;
    std::string GetValue() const override { return "(Dialog Editor)"; }
};

class TLocaleTranslationsProperty : public TTranslationsProperty {
public:
    using TTranslationsProperty::TTranslationsProperty;
    std::string GetValue() const override { return "[Locale Editor]"; }
};

class TResourceEditor : public TTranslationsProperty {
public:
    using TTranslationsProperty::TTranslationsProperty;
    std::string GetValue() const override { return "[Resource Editor]"; }
};

// Texts of a locale translator for which there are values to choose from
// (Qlt/OfferedValues.h).
class TOfferedTextProperty : public TPropertyEditor {
public:
    using TPropertyEditor::TPropertyEditor;

    TPropertyAttributes GetAttributes() const override { return {paValueList}; }
    std::string GetValue() const override;
    void SetValue(const std::string& Value) override;
    void GetValues(const std::function<void(const std::string&)>& Visit) const override;

protected:
    virtual std::vector<std::string> Offered() const = 0;
};

class TDesignLocaleProperty : public TOfferedTextProperty {
public:
    using TOfferedTextProperty::TOfferedTextProperty;

protected:
    std::vector<std::string> Offered() const override;
};

class TStartupLocaleProperty : public TOfferedTextProperty {
public:
    using TOfferedTextProperty::TOfferedTextProperty;

protected:
    std::vector<std::string> Offered() const override;
};

class TLocListFormatProperty : public TOfferedTextProperty {
public:
    using TOfferedTextProperty::TOfferedTextProperty;

protected:
    std::vector<std::string> Offered() const override;
};

// The language selector by its name.
class TLocAdoptOnProperty : public TOfferedTextProperty {
public:
    using TOfferedTextProperty::TOfferedTextProperty;

    std::string GetValue() const override;
    void SetValue(const std::string& Value) override;

protected:
    std::vector<std::string> Offered() const override;
};
