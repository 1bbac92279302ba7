#include "demo/Language.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "Qbt/Qbt.h"
#include "Qlt/Qlt.h"
#include "framework/forms/Forms.h"
#include "framework/rtl/RtlConsts.h"

namespace {

constexpr TLanguage Known[] = {{0x409, "en", "English (United States)", true, lnUser},
                               {0x809, "en-gb", "English (United Kingdom)", true, lnUser},
                               {0x41D, "sv", "Swedish", false, lnSwedish},
                               {0x407, "de", "German", false, lnGerman},
                               {0x411, "ja", "Japanese", false, lnJapan},
                               {0x401, "ar", "Arabic", false, lnArabic}};

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

const TLanguage& LanguageOf(int Locale)
{
    const auto* const Found =
        std::ranges::find_if(Known, [=](const TLanguage& Each) { return Each.Locale == Locale; });
    return Found == std::end(Known) ? Known[0] : *Found;
}

void ShowButtonsIn(const TLanguage& Language, TButtonTranslator& Buttons)
{
    Buttons.Captions()->Clear();
    Buttons.SetLanguage(Language.Buttons);
    Buttons.TranslateFrom(Buttons.GetAppDir() + "buttons-" + Language.Code + ".txt");
    // These are resource strings, translated already; here they only get the font that
    // the other buttons of their box get.
    if (Language.Buttons != lnUser)
        for (const TResStringRec* const Caption : {&SMsgDlgNoToAll, &SMsgDlgYesToAll})
            Buttons.Captions()->Add(LoadResString(Caption) + "|" + LoadResString(Caption));
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
