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

std::string MenuText(HMENU Menu, UINT Command)
{
    // Room for more, so that the cut is made here, between characters.
    char Buffer[2 * MaxReadBytes + 2];
    const int Size = GetMenuStringA(Menu, Command, Buffer, static_cast<int>(std::size(Buffer)), MF_BYCOMMAND);
    return std::string(CutAtCharacter({Buffer, static_cast<size_t>(Size > 0 ? Size : 0)}, MaxReadBytes));
}

} // namespace

void TFormWalk::WalkSystemMenu()
{
    auto* const Form = dynamic_cast<TForm*>(FTranslator.Owner());
    if (!Form)
        return;
    HMENU Menu = nullptr;
    for (const TMenuCommand& Each : MenuCommands) {
        if (Each.OnlyMDIChild && Form->FormStyle() != fsMDIChild)
            continue;
        int Index = 0;
        if (!FReadMode && !FindKeyLine(FList, Each.Key, Index))
            continue;
        // Asking for the handle makes the window: only when something needs it.
        if (!Menu)
            Menu = GetSystemMenu(Form->Handle(), FALSE);
        if (FReadMode)
            FList.Add(std::string(Each.Key) + "=" + ToLiterals(MenuText(Menu, Each.Command)));
        else
            TranslateMenuItem(Menu, Each.Command, Each.Key, Index);
    }
}

void TFormWalk::TranslateMenuItem(HMENU Menu, UINT Command, const char* Key, int Index)
{
    FKey = Key;
    if (!FTranslator.FTranslated)
        Remember(MenuText(Menu, Command), true, Index);
    AssignFromLiterals(FText, Value(Index));
    if (FText.empty() && !FTranslator.FTranslateEmpty)
        return;
    FText = CutAtCharacter(std::string(FText), MaxWrittenBytes);
    ModifyMenuA(Menu, Command, MF_BYCOMMAND | MF_STRING, Command, FText.c_str());
}
