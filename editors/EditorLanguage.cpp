#include "editors/EditorLanguage.h"

#include <array>

#include "Qft/Qft.h"
#include "Qrt/Qrt.h"
#include "core/KeyLines.h"
#include "core/TranslationsFile.h"
#include "framework/forms/Forms.h"
#include "framework/rtl/SysUtils.h"

namespace {

// In the file, the texts that the forms have from their ancestor, and those that are
// on no form.
constexpr char SharedForm[] = "TranslationEditor";
constexpr char SharedTexts[] = "Editors";

int ChosenLocale = 0;

// The locales whose texts the file has; any locale of the same language takes them.
constexpr std::array<int, 4> Languages = {1053, 1031, 1041, 1025};

int LanguageOf(int Lcid)
{
    for (const int Each : Languages)
        if (PRIMARYLANGID(Each) == PRIMARYLANGID(Lcid))
            return Each;
    return 0;
}

// What is to be said by the program while the form is there. Its translator goes
// with the form. Both have no locale in the end: peers are switched together, and
// these are the editor's alone.
void TranslateTexts(TForm& Form, const std::string& FileName, int Locale)
{
    auto* const Owner = new TComponent(&Form);
    Owner->SetName(SharedTexts);
    auto& Translator = *new TResourceTranslator(Owner);
    Translator.InternalTranslate(false);
    Translator.SetLocale(Locale);
    Translator.LoadFrom(FileName);
    Translator.SetLocale(0);
    Translator.InternalTranslate(true);
}

void TranslateForm(TForm& Form, const std::string& FileName, int Locale)
{
    auto& Translator = *new TFormTranslator(&Form);
    Translator.InternalTranslate(false);
    TSortList Lines;
    LoadTranslations(FileName, {SharedForm, Locale}, Lines);
    LoadTranslations(FileName, {Form.Name(), Locale}, Lines);
    // Mirrored first: labels that grow then keep the side on which they begin.
    if (int Line = 0; FindKeyLine(Lines, "BiDiMode", Line))
        Form.FlipChildren(true);
    Translator.SetTranslations(&Lines);
    Translator.InternalTranslate(true);
}

} // namespace

void SetEditorLocale(int Lcid)
{
    ChosenLocale = Lcid;
}

void TranslateEditor(TForm& Form)
{
    const std::string FileName = ExtractFilePath(Application->ExeName()) + "editors.lng";
    const int Locale = LanguageOf(ChosenLocale ? ChosenLocale : static_cast<int>(GetUserDefaultLCID()));
    if (Locale == 0 || !FileExists(FileName))
        return;
    TranslateTexts(Form, FileName, Locale);
    TranslateForm(Form, FileName, Locale);
}

TPlainTextsScope::TPlainTextsScope(const TForm& Form)
{
    Pause(Form);
    if (const TComponent* const Owner = Form.FindComponent(SharedTexts))
        Pause(*Owner);
}

TPlainTextsScope::~TPlainTextsScope()
{
    for (TTranslatorFrame* const Each : FPaused)
        Each->InternalTranslate(true);
}

void TPlainTextsScope::Pause(const TComponent& Owner)
{
    for (int I = 0; I < Owner.ComponentCount(); ++I)
        if (auto* const Each = dynamic_cast<TResourceTranslator*>(Owner.Components(I));
            Each && Each->Translate()) {
            FPaused.push_back(Each);
            Each->InternalTranslate(false);
        }
}
