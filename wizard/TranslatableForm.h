// A form file in memory together with the translators that walk it.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Qft/Qft.h"
#include "framework/streaming/LoadedForm.h"

class TTranslatableForm {
public:
    // Loads a form with stand-ins for the classes that are not known here. No
    // window is shown. Errors: EFormFileError, EFOpenError.
    TTranslatableForm(const std::string& FileName, int CodePage);
    explicit TTranslatableForm(TFormDocument Document);

    // A form, frame or data module.
    TComponent& Root() const { return FForm.Root(); }
    const TFormDocument& Document() const { return FForm.Document(); }
    TFormDocument Save() const { return FForm.Save(); }

    // One for the form and one for each frame on it, in the order of the file.
    // They are switched off.
    const std::vector<TFormTranslator*>& Translators() const { return FTranslators; }

    // The name that stands before the keys of a translator's owner.
    static std::string SectionOf(const TFormTranslator& Translator);

private:
    void AddTranslators(TComponent& Owner);

    TLoadedForm FForm;
    std::vector<TFormTranslator*> FTranslators;
};
