#include "platform/portable/dialogs/Printer.h"

#include <cstring>

#include "platform/portable/winbase.h"

namespace {

HGLOBAL WithSize(HGLOBAL Block, SIZE_T Size)
{
    return Block ? GlobalReAlloc(Block, Size, GMEM_MOVEABLE) : GlobalAlloc(GHND, Size);
}

bool Store(HGLOBAL& Block, const void* Data, SIZE_T Size)
{
    const HGLOBAL Made = WithSize(Block, Size);
    if (!Made)
        return false;
    Block = Made;
    std::memcpy(GlobalLock(Block), Data, Size);
    GlobalUnlock(Block);
    return true;
}

} // namespace

DEVMODEA SettingsIn(HGLOBAL Block)
{
    DEVMODEA Settings{};
    if (Block && GlobalSize(Block) >= sizeof Settings) {
        std::memcpy(&Settings, GlobalLock(Block), sizeof Settings);
        GlobalUnlock(Block);
        return Settings;
    }
    std::memcpy(Settings.dmDeviceName, PrinterName, sizeof PrinterName);
    Settings.dmSpecVersion = DM_SPECVERSION;
    Settings.dmSize = sizeof Settings;
    Settings.dmFields =
        DM_ORIENTATION | DM_PAPERSIZE | DM_COPIES | DM_COLLATE | DM_DEFAULTSOURCE | DM_PRINTQUALITY;
    Settings.dmOrientation = DMORIENT_PORTRAIT;
    Settings.dmPaperSize = DMPAPER_A4;
    Settings.dmDefaultSource = DMBIN_AUTO;
    Settings.dmCopies = 1;
    Settings.dmPrintQuality = 300;
    return Settings;
}

bool StoreSettings(HGLOBAL& Block, const DEVMODEA& Settings)
{
    return Store(Block, &Settings, sizeof Settings);
}

bool StoreNames(HGLOBAL& Block)
{
    constexpr char DriverName[] = "winspool";
    struct {
        DEVNAMES Places;
        char Driver[sizeof DriverName], Device[sizeof PrinterName], Output[sizeof PrinterPort];
    } Names{};
    const auto Place = [&](const char* Text) {
        return static_cast<WORD>(Text - reinterpret_cast<char*>(&Names));
    };
    Names.Places = {Place(Names.Driver), Place(Names.Device), Place(Names.Output), DN_DEFAULTPRN};
    std::memcpy(Names.Driver, DriverName, sizeof DriverName);
    std::memcpy(Names.Device, PrinterName, sizeof PrinterName);
    std::memcpy(Names.Output, PrinterPort, sizeof PrinterPort);
    return Store(Block, &Names, sizeof Names);
}
