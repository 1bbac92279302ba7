// The print dialog and the one that sets the printer up.
#include <algorithm>
#include <iterator>
#include <span>

#include "platform/portable/Control.h"
#include "platform/portable/dialogs/Printer.h"
#include "platform/portable/dialogs/StandardDialog.h"
#include "platform/portable/winbase.h"

namespace {

// What both dialogs show of the printer.
class TPrinterDialog : public TStandardDialog {
protected:
    TPrinterDialog(const TDialogTemplate& Template, LPOFNHOOKPROC Hook, PRINTDLGA& Data)
        : TStandardDialog(Template, Hook, &Data), FData(Data), FSettings(SettingsIn(Data.hDevMode))
    {
    }

    void ShowPrinter(int NameBox) const;
    bool Has(DWORD Flag) const { return (FData.Flags & Flag) != 0; }
    void AskForHelp();
    void Finish();

    PRINTDLGA& FData;
    DEVMODEA FSettings;
};

void TPrinterDialog::ShowPrinter(int NameBox) const
{
    AddString(NameBox, PrinterName);
    Send(NameBox, CB_SETCURSEL, 0);
    SetText(stc12, PrinterStatus);
    SetText(stc11, PrinterName);
    SetText(stc14, PrinterPort);
    Show(pshHelp, Has(PD_SHOWHELP));
}

void TPrinterDialog::AskForHelp()
{
    TellOwner(HELPMSGSTRINGA, reinterpret_cast<WPARAM>(Window()), reinterpret_cast<LPARAM>(&FData));
}

void TPrinterDialog::Finish()
{
    if (!StoreSettings(FData.hDevMode, FSettings) || !StoreNames(FData.hDevNames))
        DialogError(CDERR_MEMALLOCFAILURE);
    End(CommDlgExtendedError() == 0);
}

class TPrintSetupDialog final : public TPrinterDialog {
public:
    explicit TPrintSetupDialog(PRINTDLGA& Data)
        : TPrinterDialog(PrintSetupTemplate, Data.Flags & PD_ENABLESETUPHOOK ? Data.lpfnSetupHook : nullptr,
                         Data)
    {
    }

protected:
    void Init() override;
    bool Command(int Id, int Code) override;

private:
    void Fill(int Id, std::span<const TPrinterChoice> Choices, SHORT Current) const;
    SHORT Chosen(int Id) const;
};

void TPrintSetupDialog::Fill(int Id, std::span<const TPrinterChoice> Choices, SHORT Current) const
{
    for (const TPrinterChoice& Choice : Choices)
        AddString(Id, Choice.Name, Choice.Value);
    const auto Found = std::find_if(Choices.begin(), Choices.end(),
                                    [&](const TPrinterChoice& Choice) { return Choice.Value == Current; });
    const char* const Name = Found == Choices.end() ? Choices.front().Name : Found->Name;
    Send(Id, CB_SELECTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(Name));
}

SHORT TPrintSetupDialog::Chosen(int Id) const
{
    return static_cast<SHORT>(Send(Id, CB_GETITEMDATA, static_cast<WPARAM>(Send(Id, CB_GETCURSEL))));
}

void TPrintSetupDialog::Init()
{
    ShowPrinter(cmb1);
    Fill(cmb2, Papers, FSettings.dmPaperSize);
    Fill(cmb3, PaperSources, FSettings.dmDefaultSource);
    const bool Landscape = FSettings.dmOrientation == DMORIENT_LANDSCAPE;
    Check(rad1, !Landscape);
    Check(rad2, Landscape);
    Enable(psh2, false); // everything that can be set is here
}

bool TPrintSetupDialog::Command(int Id, int)
{
    switch (Id) {
    case IDOK:
        FSettings.dmPaperSize = Chosen(cmb2);
        FSettings.dmDefaultSource = Chosen(cmb3);
        FSettings.dmOrientation = Checked(rad2) ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
        Finish();
        return true;
    case IDCANCEL:
        End(false);
        return true;
    case pshHelp:
        AskForHelp();
        return true;
    default:
        return false;
    }
}

class TPrintDialog final : public TPrinterDialog {
public:
    explicit TPrintDialog(PRINTDLGA& Data)
        : TPrinterDialog(PrintTemplate, Data.Flags & PD_ENABLEPRINTHOOK ? Data.lpfnPrintHook : nullptr, Data)
    {
    }

protected:
    void Init() override;
    bool Command(int Id, int Code) override;

private:
    void ShowRange() const;
    void ShowCopies() const;
    UINT Number(int Id) const { return GetDlgItemInt(Window(), Id, nullptr, FALSE); }
    void SetNumber(int Id, UINT Value) const { SetDlgItemInt(Window(), Id, Value, FALSE); }
    bool RangeIsValid() const;
    void Accept();
    void ShowProperties();
};

void TPrintDialog::Init()
{
    ShowPrinter(cmb4);
    ShowRange();
    ShowCopies();
    Check(chx1, Has(PD_PRINTTOFILE));
    Enable(chx1, !Has(PD_DISABLEPRINTTOFILE));
    if (Has(PD_HIDEPRINTTOFILE))
        Show(chx1, false);
}

void TPrintDialog::ShowRange() const
{
    SetNumber(edt1, FData.nFromPage);
    SetNumber(edt2, FData.nToPage);
    const int Chosen = Has(PD_SELECTION) ? rad2 : Has(PD_PAGENUMS) ? rad3 : rad1;
    for (const int Id : {rad1, rad2, rad3})
        Check(Id, Id == Chosen);
    Enable(rad2, !Has(PD_NOSELECTION));
    for (const int Id : {rad3, stc2, stc3, edt1, edt2})
        Enable(Id, !Has(PD_NOPAGENUMS));
}

void TPrintDialog::ShowCopies() const
{
    constexpr int MostCopies = 9999;
    SetNumber(edt3, Has(PD_USEDEVMODECOPIES) ? static_cast<UINT>(FSettings.dmCopies) : FData.nCopies);
    Check(chx2, Has(PD_COLLATE));
    const HWND Arrows = CreateWindowExA(
        0, UPDOWN_CLASSA, "",
        WS_CHILD | WS_VISIBLE | UDS_SETBUDDYINT | UDS_ALIGNRIGHT | UDS_ARROWKEYS | UDS_NOTHOUSANDS, 0, 0, 0,
        0, Window(), reinterpret_cast<HMENU>(static_cast<INT_PTR>(CopiesUpDown)), nullptr, nullptr);
    SendMessageA(Arrows, UDM_SETBUDDY, reinterpret_cast<WPARAM>(Item(edt3)), 0);
    SendMessageA(Arrows, UDM_SETRANGE, 0, MAKELPARAM(MostCopies, 1));
    SendMessageA(Arrows, UDM_SETPOS, 0, static_cast<LPARAM>(std::max(Number(edt3), 1u)));
}

bool TPrintDialog::RangeIsValid() const
{
    const UINT From = Number(edt1), To = Number(edt2);
    for (const int Id : {edt1, edt2}) {
        const UINT Page = Number(Id);
        if (Page >= FData.nMinPage && Page <= FData.nMaxPage)
            continue;
        Tell("This value does not lie within the page range.\nPlease enter a value between " +
             std::to_string(FData.nMinPage) + " and " + std::to_string(FData.nMaxPage) + ".");
        SetFocus(Item(Id));
        return false;
    }
    if (From > To) {
        Tell("The 'from' entry cannot exceed the 'to' entry.");
        SetFocus(Item(edt1));
        return false;
    }
    return true;
}

void TPrintDialog::Accept()
{
    if (Checked(rad3) && !RangeIsValid())
        return;
    constexpr DWORD Mine = PD_SELECTION | PD_PAGENUMS | PD_COLLATE | PD_PRINTTOFILE;
    FData.Flags &= ~Mine;
    FData.Flags |= Checked(rad2) ? PD_SELECTION : Checked(rad3) ? PD_PAGENUMS : PD_ALLPAGES;
    FData.Flags |= Checked(chx2) ? PD_COLLATE : 0;
    FData.Flags |= Checked(chx1) ? PD_PRINTTOFILE : 0;
    if (Checked(rad3)) {
        FData.nFromPage = static_cast<WORD>(Number(edt1));
        FData.nToPage = static_cast<WORD>(Number(edt2));
    }
    const UINT Copies = std::clamp(Number(edt3), 1u, 9999u);
    FData.nCopies = Has(PD_USEDEVMODECOPIES) ? 1 : static_cast<WORD>(Copies);
    FSettings.dmCopies = static_cast<SHORT>(Has(PD_USEDEVMODECOPIES) ? Copies : 1);
    FSettings.dmCollate = Checked(chx2) ? DMCOLLATE_TRUE : DMCOLLATE_FALSE;
    if (Has(PD_RETURNDC | PD_RETURNIC))
        FData.hDC = CreateCompatibleDC(nullptr);
    Finish();
}

void TPrintDialog::ShowProperties()
{
    PRINTDLGA Setup{};
    Setup.lStructSize = sizeof Setup;
    if (!StoreSettings(Setup.hDevMode, FSettings))
        return;
    if (TPrintSetupDialog(Setup).Run(Window()))
        FSettings = SettingsIn(Setup.hDevMode);
    GlobalFree(Setup.hDevMode);
    if (Setup.hDevNames)
        GlobalFree(Setup.hDevNames);
}

bool TPrintDialog::Command(int Id, int Code)
{
    switch (Id) {
    case IDOK:
        Accept();
        return true;
    case IDCANCEL:
        End(false);
        return true;
    case psh2:
        ShowProperties();
        return true;
    case pshHelp:
        AskForHelp();
        return true;
    case edt1:
    case edt2:
        if (Code == EN_SETFOCUS)
            for (const int Button : {rad1, rad2, rad3})
                Check(Button, Button == rad3);
        return true;
    default:
        return false;
    }
}

bool StoreDefaults(PRINTDLGA& Data)
{
    if (Data.hDevMode || Data.hDevNames)
        return DialogError(PDERR_RETDEFFAILURE);
    if (Data.Flags & (PD_RETURNDC | PD_RETURNIC))
        Data.hDC = CreateCompatibleDC(nullptr);
    return (StoreSettings(Data.hDevMode, SettingsIn(nullptr)) && StoreNames(Data.hDevNames)) ||
           DialogError(CDERR_MEMALLOCFAILURE);
}

} // namespace

BOOL PrintDlgA(PRINTDLGA* Print)
{
    DialogError(0);
    if (!Print)
        return DialogError(CDERR_INITIALIZATION);
    if (Print->lStructSize != sizeof(PRINTDLGA))
        return DialogError(CDERR_STRUCTSIZE);
    const bool Setup = (Print->Flags & PD_PRINTSETUP) != 0;
    if ((Print->Flags & (Setup ? PD_ENABLESETUPHOOK : PD_ENABLEPRINTHOOK)) &&
        !(Setup ? Print->lpfnSetupHook : Print->lpfnPrintHook))
        return DialogError(CDERR_NOHOOK);
    constexpr DWORD OwnTemplates = PD_ENABLEPRINTTEMPLATE | PD_ENABLESETUPTEMPLATE |
                                   PD_ENABLEPRINTTEMPLATEHANDLE | PD_ENABLESETUPTEMPLATEHANDLE;
    if (Print->Flags & OwnTemplates)
        return DialogError(CDERR_NOTEMPLATE);
    if (Print->Flags & PD_RETURNDEFAULT)
        return StoreDefaults(*Print);
    if (Setup)
        return TPrintSetupDialog(*Print).Run(Print->hwndOwner);
    return TPrintDialog(*Print).Run(Print->hwndOwner);
}
