#include "framework/forms/PrintDialogs.h"

#include <algorithm>

namespace {

// In the order of TPrintRange.
constexpr DWORD RangeFlags[] = {PD_ALLPAGES, PD_SELECTION, PD_PAGENUMS};

// The choice of the program. The dialogs get the blocks and give back the same or
// others.
struct {
    HGLOBAL DevMode = nullptr;
    HGLOBAL DevNames = nullptr;
} Printer;

PRINTDLGA PrinterData(HWND Owner)
{
    PRINTDLGA Result{};
    Result.lStructSize = sizeof Result;
    Result.hwndOwner = Owner;
    Result.hDevMode = Printer.DevMode;
    Result.hDevNames = Printer.DevNames;
    return Result;
}

bool ShowPrintDialog(PRINTDLGA& Data)
{
    const bool Result = PrintDlgA(&Data) != FALSE;
    Printer.DevMode = Data.hDevMode;
    Printer.DevNames = Data.hDevNames;
    return Result;
}

// Settings of the printer come before what the call says.
void PutCopies(HGLOBAL Settings, WORD Copies, bool Collate)
{
    auto* const Mode = Settings ? static_cast<DEVMODEA*>(GlobalLock(Settings)) : nullptr;
    if (!Mode)
        return;
    Mode->dmFields |= DM_COPIES | DM_COLLATE;
    Mode->dmCopies = static_cast<short>(Copies);
    Mode->dmCollate = Collate ? DMCOLLATE_TRUE : DMCOLLATE_FALSE;
    GlobalUnlock(Settings);
}

WORD PageNumber(int Value)
{
    return static_cast<WORD>(std::clamp(Value, 0, 0xFFFF));
}

} // namespace

const TMetaClass& TPrinterSetupDialog::MetaClass()
{
    static const TMetaClass Class("TPrinterSetupDialog", &TCommonDialog::MetaClass(),
                                  CreateComponent<TPrinterSetupDialog>);
    return Class;
}

const TMetaClass& TPrintDialog::MetaClass()
{
    static const TMetaClass Class("TPrintDialog", &TCommonDialog::MetaClass(), CreateComponent<TPrintDialog>,
                                  {
                                      OBX_ROW(TPrintDialog, Collate).Default(false),
                                      OBX_ROW(TPrintDialog, Copies).Default(0),
                                      OBX_ROW(TPrintDialog, FromPage).Default(0),
                                      OBX_ROW(TPrintDialog, MinPage).Default(0),
                                      OBX_ROW(TPrintDialog, MaxPage).Default(0),
                                      OBX_ROW(TPrintDialog, Options).Default(TPrintDialogOptions{}),
                                      OBX_ROW(TPrintDialog, PrintToFile).Default(false),
                                      OBX_ROW(TPrintDialog, PrintRange).Default(prAllPages),
                                      OBX_ROW(TPrintDialog, ToPage).Default(0),
                                  });
    return Class;
}

HGLOBAL PrinterDevMode()
{
    return Printer.DevMode;
}

HGLOBAL PrinterDevNames()
{
    return Printer.DevNames;
}

bool TPrinterSetupDialog::Execute()
{
    PRINTDLGA Data = PrinterData(OwnerWindow());
    // Not all systems call the hook procedure that is meant for this dialog.
    Data.Flags = PD_PRINTSETUP | PD_ENABLESETUPHOOK | PD_ENABLEPRINTHOOK | (HelpContext() ? PD_SHOWHELP : 0);
    Data.lpfnSetupHook = &HookProc;
    Data.lpfnPrintHook = &HookProc;
    return RunModal([&] { return ShowPrintDialog(Data); }) == TDialogEnd::Chosen;
}

DWORD TPrintDialog::Flags() const
{
    const struct {
        TPrintDialogOption Option;
        DWORD With;
        DWORD Without;
    } Kinds[] = {{poPrintToFile, 0, PD_HIDEPRINTTOFILE},
                 {poPageNums, 0, PD_NOPAGENUMS},
                 {poSelection, 0, PD_NOSELECTION},
                 {poWarning, 0, PD_NOWARNING},
                 {poHelp, PD_SHOWHELP, 0},
                 {poDisablePrintToFile, PD_DISABLEPRINTTOFILE, 0}};
    DWORD Result = PD_ENABLEPRINTHOOK | RangeFlags[FPrintRange];
    for (const auto& Kind : Kinds)
        Result |= FOptions.Contains(Kind.Option) ? Kind.With : Kind.Without;
    if (FCollate)
        Result |= PD_COLLATE;
    if (FPrintToFile)
        Result |= PD_PRINTTOFILE;
    return Result;
}

bool TPrintDialog::Execute()
{
    PRINTDLGA Data = PrinterData(OwnerWindow());
    Data.Flags = Flags();
    Data.nFromPage = PageNumber(FFromPage);
    Data.nToPage = PageNumber(FToPage);
    Data.nMinPage = PageNumber(FMinPage);
    Data.nMaxPage = PageNumber(FMaxPage);
    Data.nCopies = PageNumber(std::max(FCopies, 1));
    Data.lpfnPrintHook = &HookProc;
    PutCopies(Data.hDevMode, Data.nCopies, FCollate);
    if (RunModal([&] { return ShowPrintDialog(Data); }) != TDialogEnd::Chosen)
        return false;
    FCollate = (Data.Flags & PD_COLLATE) != 0;
    FCopies = Data.nCopies;
    FFromPage = Data.nFromPage;
    FToPage = Data.nToPage;
    FPrintToFile = (Data.Flags & PD_PRINTTOFILE) != 0;
    FPrintRange = Data.Flags & PD_PAGENUMS    ? prPageNums
                  : Data.Flags & PD_SELECTION ? prSelection
                                              : prAllPages;
    return true;
}

TPrinterContext::TPrinterContext(bool Wanted)
{
    if (!Wanted)
        return;
    PRINTDLGA Data{};
    Data.lStructSize = sizeof Data;
    Data.Flags = PD_RETURNDEFAULT | PD_RETURNIC | PD_NOWARNING;
    if (PrintDlgA(&Data))
        FHandle = Data.hDC;
    for (const HGLOBAL Block : {Data.hDevMode, Data.hDevNames})
        if (Block)
            GlobalFree(Block);
}

TPrinterContext::~TPrinterContext()
{
    if (FHandle)
        DeleteDC(FHandle);
}
