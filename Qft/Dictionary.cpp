// Exchange of a form's translations with dictionaries.
#include "Qft/Qft.h"
#include "core/LineDictionary.h"
#include "framework/rtl/SysUtils.h"

void TFormTranslator::TranslateTo(const std::string& FileName)
{
    const TLife Life(*this);
    TSortList Present;
    ReadPresentValues(Present);
    if (Life.IsOver())
        return;
    FLookup = nullptr;
    ExportLines(FileName, *FTranslations, Present);
}

bool TFormTranslator::TranslateFrom(const std::string& FileName)
{
    if (!FileExists(FileName))
        return false;
    const TLife Life(*this);
    const TDictionaryPairs Pairs = ReadDictionaryPairs(FileName);
    TSortList Present;
    ReadPresentValues(Present);
    if (Life.IsOver())
        return true;
    FLookup = nullptr;
    ImportPairs(Pairs, *FTranslations, Present);
    return true;
}
