// The inspector's editors of the translators' file names: a dialog for an existing
// file. The chosen file's full name is stored as it stands.
#pragma once

#include "framework/design/PropertyEditor.h"

class TTranslationsFileProperty : public TPropertyEditor {
public:
    using TPropertyEditor::TPropertyEditor;

    TPropertyAttributes GetAttributes() const override { return {paDialog}; }
    std::string GetValue() const override;
    void SetValue(const std::string& Value) override;
    void Edit() override;

protected:
    virtual const char* Filter() const = 0;
    virtual const char* Title() const = 0;
};

// Declares the editor of one translator's FileName.
#define ORBILEX_FILE_NAME_PROPERTY(Name, FilterText, TitleText)                                              \
    class Name : public TTranslationsFileProperty {                                                          \
    public:                                                                                                  \
        using TTranslationsFileProperty::TTranslationsFileProperty;                                          \
                                                                                                             \
    protected:                                                                                               \
        const char* Filter() const override { return FilterText; }                                           \
        const char* Title() const override { return TitleText; }                                             \
    }

ORBILEX_FILE_NAME_PROPERTY(TFormFileNameProperty, "Form translations (*.txt)|*.txt",
                           "Select a Form translations file");
ORBILEX_FILE_NAME_PROPERTY(TBtnFileNameProperty, "Dictionary (*.txt)|*.txt", "Select a dictionary file");
ORBILEX_FILE_NAME_PROPERTY(TCdtFileNameProperty, "Dialog translations (*.txt)|*.txt",
                           "Select a dialog translations file");
ORBILEX_FILE_NAME_PROPERTY(TLocFileNameProperty, "Locale translations (*.txt)|*.txt",
                           "Select a Locale translations file");
ORBILEX_FILE_NAME_PROPERTY(TResFileNameProperty, "Dictionary file (*.txt)|*.txt", "Select a dictionary file");

#undef ORBILEX_FILE_NAME_PROPERTY
