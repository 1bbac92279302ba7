#include "demo/Language.h"

#include "Qft/Qft.h"
#include "framework/forms/Forms.h"
#include "framework/forms/Menus.h"

namespace {

constexpr TLanguage Known[] = {{0, "en", "English"},
                               {1053, "sv", "Swedish"},
                               {1031, "de", "German"},
                               {1041, "ja", "Japanese"},
                               {1025, "ar", "Arabic"}};

int Current = 0;

} // namespace

std::span<const TLanguage> Languages()
{
    return Known;
}

void SwitchLanguage(int Locale)
{
    for (int I = 0; I < Application->ComponentCount(); ++I) {
        TComponent& Form = *Application->Components(I);
        for (int J = 0; J < Form.ComponentCount(); ++J)
            if (auto* const Translator = dynamic_cast<TFormTranslator*>(Form.Components(J)))
                Translator->SetTranslate(Translator->Locale() == Locale);
    }
    Current = Locale;
}

int CurrentLanguage()
{
    return Current;
}

void MarkLanguage(TMenuItem& Menu)
{
    for (int I = 0; I < Menu.Count(); ++I)
        Menu.Items(I)->SetChecked(Menu.Items(I)->Tag() == Current);
}
