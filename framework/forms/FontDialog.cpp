#include "framework/forms/FontDialog.h"

#include "framework/forms/PrintDialogs.h"

namespace {

// In the order of TFontDialogOption.
constexpr DWORD FontFlags[] = {CF_ANSIONLY,       CF_TTONLY,     CF_EFFECTS,       CF_FIXEDPITCHONLY,
                               CF_FORCEFONTEXIST, CF_NOFACESEL,  CF_NOOEMFONTS,    CF_NOSIMULATIONS,
                               CF_NOSIZESEL,      CF_NOSTYLESEL, CF_NOVECTORFONTS, CF_SHOWHELP,
                               CF_WYSIWYG,        CF_LIMITSIZE,  CF_SCALABLEONLY,  CF_APPLY};

// In the order of TFontDialogDevice.
constexpr DWORD DeviceFlags[] = {CF_SCREENFONTS, CF_PRINTERFONTS, CF_BOTH};

constexpr int NoLimit = 0x7FFF;

} // namespace

const TMetaClass& TFontDialog::MetaClass()
{
    static const TMetaClass Class("TFontDialog", &TCommonDialog::MetaClass(), CreateComponent<TFontDialog>,
                                  {
                                      OBX_ROW(TFontDialog, Font),
                                      OBX_ROW(TFontDialog, Device).Default(fdScreen),
                                      OBX_ROW(TFontDialog, MinFontSize).Default(0),
                                      OBX_ROW(TFontDialog, MaxFontSize).Default(0),
                                      OBX_ROW(TFontDialog, Options).Default(TFontDialogOptions{fdEffects}),
                                      Prop<&TFontDialog::OnApply>("OnApply"),
                                  });
    return Class;
}

bool TFontDialog::Execute()
{
    LOGFONTA Chosen{};
    GetObjectA(FFont->Handle(), sizeof Chosen, &Chosen);
    const TPrinterContext Printer(FDevice != fdScreen);
    CHOOSEFONTA Data{};
    Data.lStructSize = sizeof Data;
    Data.hwndOwner = OwnerWindow();
    Data.hDC = Printer.Handle();
    Data.lpLogFont = &Chosen;
    Data.Flags = FlagsOf(FOptions, FontFlags) | CF_INITTOLOGFONTSTRUCT | CF_ENABLEHOOK;
    Data.Flags |= Printer.Handle() ? DeviceFlags[FDevice] : CF_SCREENFONTS;
    Data.rgbColors = ColorToRGB(FFont->Color());
    Data.lpfnHook = &HookProc;
    Data.nSizeMin = FMinFontSize;
    Data.nSizeMax = FMaxFontSize ? FMaxFontSize : NoLimit;
    if (RunModal([&] { return ChooseFontA(&Data) != FALSE; }) != TDialogEnd::Chosen)
        return false;
    TakeFont(Chosen, Data.rgbColors);
    return true;
}

void TFontDialog::TakeFont(const LOGFONTA& Chosen, COLORREF Color)
{
    TFont Font;
    Font.Assign(FFont.get());
    if (const HFONT Handle = CreateFontIndirectA(&Chosen)) {
        Font.SetHandle(Handle);
        DeleteObject(Handle);
    }
    // A colour of the system stays one when it has not been changed.
    if (FOptions.Contains(fdEffects) && Color != ColorToRGB(FFont->Color()))
        Font.SetColor(static_cast<TColor>(Color));
    FFont->Assign(&Font);
}

bool TFontDialog::HookMessage(HWND HookWindow, TMessage& Msg)
{
    if (Msg.Msg != WM_COMMAND || Msg.Id() != psh3 || Msg.Code() != BN_CLICKED)
        return false;
    LOGFONTA Chosen{};
    SendMessageA(HookWindow, WM_CHOOSEFONT_GETLOGFONT, 0, reinterpret_cast<LPARAM>(&Chosen));
    const HWND Colors = GetDlgItem(HookWindow, cmb4);
    const LRESULT Index = SendMessageA(Colors, CB_GETCURSEL, 0, 0);
    const LRESULT Color = SendMessageA(Colors, CB_GETITEMDATA, static_cast<WPARAM>(Index), 0);
    TakeFont(Chosen, Index < 0 ? ColorToRGB(FFont->Color()) : static_cast<COLORREF>(Color));
    DoApply(HookWindow);
    return true;
}

void TFontDialog::DoApply(HWND Window)
{
    if (OnApply)
        OnApply(this, Window);
}
