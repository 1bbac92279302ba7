// The one printer there is: it takes settings and has no paper.
#pragma once

#include <string>

#include "platform/portable/commdlg.h"

constexpr char PrinterName[] = "Default Printer";
constexpr char PrinterStatus[] = "Ready";
constexpr char PrinterPort[] = "NUL:";

struct TPrinterChoice {
    const char* Name;
    SHORT Value;
};
constexpr TPrinterChoice Papers[] = {{"A4", DMPAPER_A4},         {"A3", DMPAPER_A3},
                                     {"A5", DMPAPER_A5},         {"B5", DMPAPER_B5},
                                     {"Letter", DMPAPER_LETTER}, {"Legal", DMPAPER_LEGAL}};
constexpr TPrinterChoice PaperSources[] = {{"Automatically Select", DMBIN_AUTO}, {"Upper Tray", DMBIN_UPPER}};

// The settings in a memory block, or the printer's own when there is none.
DEVMODEA SettingsIn(HGLOBAL Block);
// Writes settings, and the printer's names, into blocks, made when they are null.
bool StoreSettings(HGLOBAL& Block, const DEVMODEA& Settings);
bool StoreNames(HGLOBAL& Block);
