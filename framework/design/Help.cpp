#include "framework/design/Help.h"

#include "framework/forms/Application.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/SysUtils.h"
#include "platform/Shell.h"
#include "platform/winapi.h"

namespace {

constexpr char Viewer[] = "WINHLP32.EXE";

} // namespace

THelpShell HelpShell = {&StartProgram, &OpenDocument};

void ShowHelpContents(const std::string& Unit)
{
    const std::string Folder = ExtractFilePath(Application->ExeName());
    const std::string HelpFile = Unit + ".HLP";
    if (FileExists(Folder + HelpFile) &&
        HelpShell.StartProgram(std::string(Viewer) + " " + HelpFile, SW_HIDE))
        return;
    const std::string Page = Folder + "help" + PathDelimiter + AnsiLowerCase(Unit) + ".html";
    if (!FileExists(Page) || !HelpShell.OpenDocument(Page))
        throw EInOutError(Format(SFOpenError, {Page}));
}
