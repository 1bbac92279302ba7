// The system's dialogs for printing.
#pragma once

#include "framework/forms/CommonDialog.h"

// Chooses the program's printer, which the print dialog begins with.
class TPrinterSetupDialog : public TCommonDialog {
    OBX_CLASS(TCommonDialog)
public:
    using TCommonDialog::TCommonDialog;

    // False without a printer, too; the system has told the user then.
    bool Execute() override;
};

OBX_ENUM(TPrintRange, prAllPages, prSelection, prPageNums)
OBX_ENUM(TPrintDialogOption, poPrintToFile, poPageNums, poSelection, poWarning, poHelp, poDisablePrintToFile)
OBX_SET(TPrintDialogOptions, TPrintDialogOption)

class TPrintDialog : public TCommonDialog {
    OBX_CLASS(TCommonDialog)
public:
    explicit TPrintDialog(TComponent* Owner) : TCommonDialog(Owner) {}

    // False without a printer, too; the system has told the user then, if the
    // options have poWarning.
    bool Execute() override;

    OBX_PROPERTY(bool, Collate, false)
    OBX_PROPERTY(int, Copies, 0)
    OBX_PROPERTY(int, FromPage, 0)
    OBX_PROPERTY(int, MinPage, 0)
    OBX_PROPERTY(int, MaxPage, 0)
    OBX_PROPERTY(TPrintDialogOptions, Options, {})
    OBX_PROPERTY(bool, PrintToFile, false)
    OBX_PROPERTY(TPrintRange, PrintRange, prAllPages)
    OBX_PROPERTY(int, ToPage, 0)

private:
    DWORD Flags() const;
};

// The program's printer and its settings, as the system has them; null until a
// dialog has chosen one. They belong to the framework, until the next choice.
HGLOBAL PrinterDevMode();
HGLOBAL PrinterDevNames();

// Information about the default printer, for measuring.
class TPrinterContext {
public:
    // Null when it is not Wanted, and without a printer.
    explicit TPrinterContext(bool Wanted);
    ~TPrinterContext();
    TPrinterContext(const TPrinterContext&) = delete;
    TPrinterContext& operator=(const TPrinterContext&) = delete;
    HDC Handle() const { return FHandle; }

private:
    HDC FHandle = nullptr;
};
