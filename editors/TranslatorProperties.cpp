#include "editors/TranslatorProperties.h"

#include "Qlt/OfferedValues.h"
#include "Qlt/Qlt.h"

namespace {

TLocaleTranslator& LocaleTranslator(TPersistent& Instance)
{
    return dynamic_cast<TLocaleTranslator&>(Instance);
}

} // namespace

void TTranslationsProperty::Edit()
{
    if (dynamic_cast<TTranslatorFrame&>(Instance()).ShowEditor())
        Designer().Modified();
}

std::string TOfferedTextProperty::GetValue() const
{
    return GetStrProp(Instance(), PropInfo());
}

void TOfferedTextProperty::SetValue(const std::string& Value)
{
    ForEachTarget([&](TPersistent& Object, const TPropInfo& Prop) { SetStrProp(Object, Prop, Value); });
}

void TOfferedTextProperty::GetValues(const std::function<void(const std::string&)>& Visit) const
{
    for (const std::string& Each : Offered())
        Visit(Each);
}

std::vector<std::string> TDesignLocaleProperty::Offered() const
{
    return OfferedDesignLocales(LocaleTranslator(Instance()));
}

std::vector<std::string> TStartupLocaleProperty::Offered() const
{
    return OfferedStartupLocales(LocaleTranslator(Instance()));
}

std::vector<std::string> TLocListFormatProperty::Offered() const
{
    return OfferedListFormats();
}

std::string TLocAdoptOnProperty::GetValue() const
{
    const TComponent* const Selector = LocaleTranslator(Instance()).AdoptOn();
    return Selector ? Selector->Name() : "";
}

void TLocAdoptOnProperty::SetValue(const std::string& Value)
{
    TComponent* const Selector = Value.empty() ? nullptr : Designer().GetComponent(Value);
    if (!Value.empty() && !Selector)
        RaiseInvalid();
    LocaleTranslator(Instance()).SetAdoptOn(Selector);
    Designer().Modified();
}

std::vector<std::string> TLocAdoptOnProperty::Offered() const
{
    return OfferedSelectors(Designer().Root());
}
