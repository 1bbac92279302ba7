#include "editors/Editors.h"

#include "core/TranslatorEditors.h"
#include "editors/Qctedit.h"
#include "editors/Qftedit.h"
#include "editors/Qltedit.h"
#include "editors/Qrtedit.h"
#include "framework/forms/StandardClasses.h"
#include "orbilex_editors.h"

namespace {

struct TEditorOf {
    const TMetaClass& (*Translator)();
    TTranslatorEditor Editor;
};

constexpr TEditorOf All[] = {
    {TFormTranslator::MetaClass, TTranslationEditor::Edit<TFormEditor>},
    {TCommonDialogTranslator::MetaClass, TTranslationEditor::Edit<TDlgEditor>},
    {TResourceTranslator::MetaClass, TTranslationEditor::Edit<TResEditor>},
    {TLocaleTranslator::MetaClass, TTranslationEditor::Edit<TLocaleEditor>},
};

int Starts = 0;

} // namespace

void StartEditors()
{
    if (Starts++ > 0)
        return;
    RegisterStandardClasses();
    RegisterOrbilexEditors();
    for (const TEditorOf& Each : All)
        SetTranslatorEditor(Each.Translator(), Each.Editor);
}

void StopEditors()
{
    if (Starts == 0 || --Starts > 0)
        return;
    for (const TEditorOf& Each : All)
        SetTranslatorEditor(Each.Translator(), nullptr);
}
