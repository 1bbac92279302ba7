// A project being changed: its forms and translations files in memory.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "framework/design/ProjectWriter.h"
#include "wizard/ProjectScan.h"
#include "wizard/TranslatorLines.h"

// What is to be done with one file, or was.
struct TFileChange : TProjectFile {
    std::vector<std::string> Placed; // names of new components
    int Added = 0;                   // texts, in all languages
    int Kept = 0;                    // texts that were there
    int Translated = 0;              // texts that get a translation from a dictionary
    std::vector<std::string> Notes;  // why it is left alone, what is left to do

    bool IsChanged() const { return Before.value_or("") != After; }
};

struct TProjectChanges {
    std::string ProjectFileName;
    std::vector<TFileChange> Files; // also those that stay as they are

    // The files that change, for WriteProjectFiles.
    std::vector<TProjectFile> ToWrite() const;
};

// One translator component on a form.
struct TPlacedTranslator {
    TFoundForm* Form = nullptr;
    size_t Child = 0; // of the form's root
    int Locale = 0;

    TFormObject& Object() const { return Form->Document.Root.Children()[Child]; }
};

class TProjectEdit {
public:
    // Throws EReadError with all errors of the scan when it has any.
    explicit TProjectEdit(TProjectScan Scan);

    TProjectScan& Scan() { return FScan; }
    // What is told of a form's file.
    TFileChange& ChangeOf(const TFoundForm& Form);

    // All translators of a class, form by form.
    std::vector<TPlacedTranslator> Translators(const std::string& ClassName);
    // Those of one form.
    std::vector<TPlacedTranslator> Translators(TFoundForm& Form, const std::string& ClassName);

    // The locale, and the translations file; of an inherited translator those that its
    // ancestor has.
    int LocaleOf(const TFoundForm& Form, const TFormObject& Translator) const;
    std::string FileNameOf(const TFoundForm& Form, const TFormObject& Translator) const;

    // Where the texts of a translator are. Throws as ReadTextFile. Valid until a
    // component is placed on the form.
    TTranslatorStorage StorageOf(const TPlacedTranslator& Translator);

    // Adds a component without properties behind the others of the form's root.
    TPlacedTranslator Place(TFoundForm& Form, TFormObject Translator, int Locale);

    // What became of all files. Throws EFormFileError.
    TProjectChanges Changes();

private:
    struct TTextsFile {
        std::string Name; // as it was called first
        std::optional<std::string> Before;
        TTranslationsText Texts;
    };
    const TFormValue* ValueOf(const TFoundForm& Form, const TFormObject& Translator, const char* Name) const;
    TTranslationsText& TextsOf(const std::string& FileName);

    TProjectScan FScan;
    std::vector<TFileChange> FChanges;        // of the forms
    std::map<std::string, TTextsFile> FTexts; // by their identity
};
