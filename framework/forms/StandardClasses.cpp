#include "framework/forms/StandardClasses.h"

#include "framework/forms/Application.h"
#include "framework/forms/ComCtrls.h"
#include "framework/forms/Dialogs.h"
#include "framework/forms/ExtCtrls.h"
#include "framework/forms/StdCtrls.h"

void RegisterComCtrls()
{
    RegisterImageListClasses();
    RegisterMenuClasses();
    RegisterActionClasses();
    RegisterStatusBarClasses();
    RegisterToolBarClasses();
    RegisterCoolBarClasses();
    RegisterPageControlClasses();
    RegisterHeaderControlClasses();
    RegisterListViewClasses();
    RegisterTreeViewClasses();
    RegisterRangeControlClasses();
    RegisterDateControlClasses();
    RegisterRichEditClasses();
}

void RegisterStandardClasses()
{
    RegisterIntegerConsts(TypeInfoFor(TTypeTag<TColor>{}));
    RegisterIntegerConsts(TypeInfoFor(TTypeTag<TCursor>{}));
    RegisterIntegerConsts(TypeInfoFor(TTypeTag<TFontCharset>{}));
    RegisterFormClasses();
    RegisterStdCtrls();
    RegisterExtCtrls();
    RegisterDialogClasses();
    RegisterComCtrls();
}
