#include "Qlt/OfferedValues.h"

#include "Qlt/Qlt.h"

std::vector<std::string> OfferedStartupLocales(TLocaleTranslator& Translator)
{
    std::vector<std::string> Result = {LocaleValue(UserDefaultName, UserDefaultLocale),
                                       LocaleValue(SystemDefaultName, SystemDefaultLocale)};
    for (std::string& Each : OfferedDesignLocales(Translator))
        Result.push_back(std::move(Each));
    return Result;
}

std::vector<std::string> OfferedDesignLocales(TLocaleTranslator& Translator)
{
    Translator.UpdateLangList();
    const TSortList& Languages = Translator.LangList();
    std::vector<std::string> Result;
    for (int I = 0; I < Languages.Count(); ++I)
        Result.push_back(LocaleValue(Languages.Get(I), ObjectInteger(Languages.Objects(I))));
    return Result;
}

std::vector<std::string> OfferedSelectors(const TComponent& Form)
{
    std::vector<std::string> Result;
    for (int I = 0; I < Form.ComponentCount(); ++I) {
        TComponent* const Each = Form.Components(I);
        if (!Each->Name().empty() && CanBeLanguageSelector(Each))
            Result.push_back(Each->Name());
    }
    return Result;
}

std::vector<std::string> OfferedListFormats()
{
    return {
        "%0:s", "%2:s", "%0:s, %1:s", "%2:s, %3:s", "%2:s (%0:s), %3:s (%1:s)", "%0:s (%2:s), %1:s (%3:s)"};
}
