#include "editors/EditorLanguage.h"

#include <array>

#include "Qft/Qft.h"
#include "Qrt/Qrt.h"
#include "framework/forms/Forms.h"
#include "framework/rtl/FileNames.h"

namespace {

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

} // namespace

void SetEditorLocale(int Lcid)
{
    ChosenLocale = Lcid;
}

void TranslateEditor(TForm& Form)
{
    const std::string FileName = ExtractFilePath(Application->ExeName()) + "editors.lng";
    const int Locale = LanguageOf(ChosenLocale ? ChosenLocale : static_cast<int>(GetUserDefaultLCID()));
    if (Locale == 0)
        return;
    const auto Load = [&](TTranslatorFrame& Translator) {
        Translator.InternalTranslate(false);
        Translator.SetLocale(Locale);
        if (Translator.LoadFrom(FileName))
            Translator.InternalTranslate(true);
        // Peers are switched together, and these two are the editor's alone.
        Translator.SetLocale(0);
    };
    Load(*new TResourceTranslator(&Form));
    Load(*new TFormTranslator(&Form));
}

TPlainTextsScope::TPlainTextsScope(const TForm& Form)
{
    for (int I = 0; I < Form.ComponentCount(); ++I)
        if (auto* const Each = dynamic_cast<TResourceTranslator*>(Form.Components(I));
            Each && Each->Translate()) {
            FPaused.push_back(Each);
            Each->InternalTranslate(false);
        }
}

TPlainTextsScope::~TPlainTextsScope()
{
    for (TTranslatorFrame* const Each : FPaused)
        Each->InternalTranslate(true);
}
