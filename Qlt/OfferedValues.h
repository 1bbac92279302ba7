// The values that the designer offers for the properties of a locale translator.
#pragma once

#include <string>
#include <vector>

class TComponent;
class TLocaleTranslator;

// Both take up the present Translations first.
std::vector<std::string> OfferedStartupLocales(TLocaleTranslator& Translator);
std::vector<std::string> OfferedDesignLocales(TLocaleTranslator& Translator);

// The named components of Form that can be the language selector, in owner order.
std::vector<std::string> OfferedSelectors(const TComponent& Form);

std::vector<std::string> OfferedListFormats();
