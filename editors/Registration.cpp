#include "editors/Registration.h"

#include <string>
#include <vector>

#include "Qbt/Qbt.h"
#include "Qct/Qct.h"
#include "Qft/Qft.h"
#include "Qlt/Qlt.h"
#include "Qrt/Qrt.h"
#include "editors/FileNameProperties.h"
#include "editors/TranslatorProperties.h"
#include "editors/TranslatorVerbs.h"
#include "framework/design/Palette.h"

namespace {

struct TProperty {
    const char* Name;
    TPropertyEditorMaker Maker;
};

struct TUnit {
    const TMetaClass& (*Translator)();
    TComponentEditorMaker Verbs;
    std::vector<TProperty> Properties;
};

const std::vector<TUnit>& Units()
{
    static const std::vector<TUnit> All = {
        {TButtonTranslator::MetaClass,
         MakeComponentEditor<TBtnTranslatorEditor>,
         {{"FileName", MakePropertyEditor<TBtnFileNameProperty>}}},
        {TCommonDialogTranslator::MetaClass,
         MakeComponentEditor<TCdtTranslatorEditor>,
         {{"Translations", MakePropertyEditor<TCdtTranslationsProperty>},
          {"FileName", MakePropertyEditor<TCdtFileNameProperty>}}},
        {TFormTranslator::MetaClass,
         MakeComponentEditor<TFormTranslatorEditor>,
         {{"Translations", MakePropertyEditor<TFormTranslationsProperty>},
          {"FileName", MakePropertyEditor<TFormFileNameProperty>}}},
        {TLocaleTranslator::MetaClass,
         MakeComponentEditor<TLocaleTranslatorEditor>,
         {{"Translations", MakePropertyEditor<TLocaleTranslationsProperty>},
          {"FileName", MakePropertyEditor<TLocFileNameProperty>},
          {"DesignLocale", MakePropertyEditor<TDesignLocaleProperty>},
          {"ListFormat", MakePropertyEditor<TLocListFormatProperty>},
          {"StartupLocale", MakePropertyEditor<TStartupLocaleProperty>},
          {"AdoptOn", MakePropertyEditor<TLocAdoptOnProperty>}}},
        {TResourceTranslator::MetaClass,
         MakeComponentEditor<TResTranslatorEditor>,
         {{"Translations", MakePropertyEditor<TResourceEditor>},
          {"ResStrings", MakePropertyEditor<TResourceEditor>},
          {"FileName", MakePropertyEditor<TResFileNameProperty>}}},
    };
    return All;
}

// A list that is stored without being published is of the type of the one that is.
const TTypeInfo& TypeOf(const TMetaClass& Class, const char* Name)
{
    const TPropInfo* const Own = Class.FindProperty(Name);
    return *(Own ? Own : Class.FindProperty("Translations"))->PropType;
}

} // namespace

void RegisterTranslators()
{
    for (const TUnit& Unit : Units()) {
        const TMetaClass& Class = Unit.Translator();
        for (const TProperty& Each : Unit.Properties)
            RegisterPropertyEditor(TypeOf(Class, Each.Name), &Class, Each.Name, Each.Maker);
        RegisterComponentEditor(Class, Unit.Verbs);
        RegisterComponents(PalettePage, {&Class});
    }
}

void UnregisterTranslators()
{
    for (const TUnit& Unit : Units()) {
        for (const TProperty& Each : Unit.Properties)
            UnregisterPropertyEditors(Each.Maker);
        UnregisterComponentEditor(Unit.Verbs);
        UnregisterComponents({&Unit.Translator()});
    }
}
