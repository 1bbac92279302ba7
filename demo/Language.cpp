#include "demo/Language.h"

#include "Qlt/Qlt.h"
#include "framework/forms/Forms.h"

namespace {

constexpr TLanguage Known[] = {{0x409, "en", "English (United States)", true},
                               {0x809, "en-gb", "English (United Kingdom)", true},
                               {0x41D, "sv", "Swedish", false},
                               {0x407, "de", "German", false},
                               {0x411, "ja", "Japanese", false},
                               {0x401, "ar", "Arabic", false}};

TLocaleTranslator& FindTranslator()
{
    for (int I = 0; I < Application->ComponentCount(); ++I) {
        const TComponent& Form = *Application->Components(I);
        for (int J = 0; J < Form.ComponentCount(); ++J)
            if (auto* const Translator = dynamic_cast<TLocaleTranslator*>(Form.Components(J)))
                return *Translator;
    }
    throw EComponentError("No form has a locale translator");
}

} // namespace

std::span<const TLanguage> Languages()
{
    return Known;
}

void AddSystemLocales(TLocaleTranslator& Translator)
{
    TSortList List;
    for (const TLanguage& Language : Known)
        Translator.AddOrgProps(Language.Locale, List);
    Translator.SetTranslations(&List);
    Translator.UpdateAdoptOn();
}

void SwitchLanguage(int Locale)
{
    FindTranslator().TranslateLocale(Locale);
}
