#include "framework/forms/StandardClasses.h"

#include "framework/forms/Application.h"
#include "framework/forms/ComCtrls.h"
#include "framework/forms/DialogComponents.h"
#include "framework/forms/ExtCtrls.h"
#include "framework/forms/StdCtrls.h"

void RegisterComCtrls()
{
    RegisterImageLists();
    RegisterMenus();
    RegisterActions();
    RegisterStatusBars();
    RegisterToolBars();
    RegisterCoolBars();
    RegisterPageControls();
    RegisterHeaderControls();
    RegisterListViews();
    RegisterTreeViews();
    RegisterRangeControls();
    RegisterDateControls();
    RegisterRichEdits();
}

void RegisterStandardClasses()
{
    RegisterIntegerConsts(TypeInfoFor(TTypeTag<TColor>{}));
    RegisterIntegerConsts(TypeInfoFor(TTypeTag<TCursor>{}));
    RegisterIntegerConsts(TypeInfoFor(TTypeTag<TFontCharset>{}));
    RegisterFormClasses();
    RegisterStdCtrls();
    RegisterExtCtrls();
    RegisterDialogComponents();
    RegisterComCtrls();
}
