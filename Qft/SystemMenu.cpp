// The commands of a form's window menu, which are no properties.
#include <iterator>
#include <string>

#include "Qft/FormWalk.h"
#include "core/KeyLines.h"
#include "core/Literals.h"
#include "framework/forms/Form.h"
#include "framework/rtl/Utf8.h"

namespace {

constexpr size_t MaxReadBytes = 255;
constexpr size_t MaxWrittenBytes = 4095;

struct TMenuCommand {
    const char* Key;
    UINT Command;
    bool OnlyMDIChild;
};

constexpr TMenuCommand MenuCommands[] = {
    {"SystemMenuRestore", SC_RESTORE, false},
    {"SystemMenuMove", SC_MOVE, false},
    {"SystemMenuSize", SC_SIZE, false},
    {"SystemMenuMinimize", SC_MINIMIZE, false},
    {"SystemMenuMaximize", SC_MAXIMIZE, false},
    {"SystemMenuClose", SC_CLOSE, false},
    {"SystemMenuNextWindow", SC_NEXTWINDOW, true},
};

std::string MenuText(TForm& Form, UINT Command)
{
    return std::string(CutAtCharacter(Form.SystemMenuText(Command), MaxReadBytes));
}

} // namespace

void TFormWalk::WalkSystemMenu()
{
    auto* const Form = dynamic_cast<TForm*>(FTranslator.Owner());
    if (!Form)
        return;
    for (const TMenuCommand& Each : MenuCommands) {
        if (Each.OnlyMDIChild && Form->FormStyle() != fsMDIChild)
            continue;
        int Index = 0;
        if (!FReadMode && !FindKeyLine(FList, Each.Key, Index))
            continue;
        if (FReadMode)
            FList.Add(std::string(Each.Key) + "=" + ToLiterals(MenuText(*Form, Each.Command)));
        else
            TranslateMenuItem(*Form, Each.Command, Each.Key, Index);
    }
}

void TFormWalk::TranslateMenuItem(TForm& Form, UINT Command, const char* Key, int Index)
{
    FKey = Key;
    if (!FTranslator.FTranslated)
        Remember(MenuText(Form, Command), true, Index);
    AssignFromLiterals(FText, Value(Index));
    if (FText.empty() && !FTranslator.FTranslateEmpty)
        return;
    FText = CutAtCharacter(std::string(FText), MaxWrittenBytes);
    Form.SetSystemMenuText(Command, FText);
}
