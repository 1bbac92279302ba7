// The system's dialogs as components: the texts and settings that they are shown
// with.
#pragma once

#include "framework/forms/CommonDialog.h"
#include "framework/rtl/Strings.h"

OBX_ENUM(TOpenOption, ofReadOnly, ofOverwritePrompt, ofHideReadOnly, ofNoChangeDir, ofShowHelp, ofNoValidate,
         ofAllowMultiSelect, ofExtensionDifferent, ofPathMustExist, ofFileMustExist, ofCreatePrompt,
         ofShareAware, ofNoReadOnlyReturn, ofNoTestFileCreate, ofNoNetworkButton, ofNoLongNames,
         ofOldStyleDialog, ofNoDereferenceLinks, ofEnableIncludeNotify, ofEnableSizing, ofDontAddToRecent,
         ofForceShowHidden)
OBX_SET(TOpenOptions, TOpenOption)
OBX_ENUM(TOpenOptionEx, ofExNoPlacesBar)
OBX_SET(TOpenOptionsEx, TOpenOptionEx)

// Filter: pairs of description and patterns, all separated by "|":
//     Texts (*.txt)|*.txt|All files|*.*
class TOpenDialog : public TCommonDialog {
    OBX_CLASS(TCommonDialog)
public:
    explicit TOpenDialog(TComponent* Owner) : TCommonDialog(Owner) {}

    // Without the dot.
    OBX_PROPERTY(std::string, DefaultExt, {})
    OBX_PROPERTY(std::string, FileName, {})
    OBX_PROPERTY(std::string, Filter, {})
    // From 1.
    OBX_PROPERTY(int, FilterIndex, 1)
    OBX_PROPERTY(std::string, InitialDir, {})
    OBX_PROPERTY(TOpenOptions, Options, (TOpenOptions{ofHideReadOnly, ofEnableSizing}))
    OBX_PROPERTY(TOpenOptionsEx, OptionsEx, {})
    // Empty for the system's own.
    OBX_PROPERTY(std::string, Title, {})
public:
    // The chosen files, more than one with ofAllowMultiSelect.
    TStrings* Files() { return &FFiles; }

    TCloseQueryEvent OnCanClose;
    TNotifyEvent OnFolderChange;
    TNotifyEvent OnSelectionChange;
    TNotifyEvent OnTypeChange;

private:
    TStringList FFiles;
};

class TSaveDialog : public TOpenDialog {
    OBX_CLASS(TOpenDialog)
public:
    using TOpenDialog::TOpenDialog;
};

// Fresh ones have the filters of the known pictures.
class TOpenPictureDialog : public TOpenDialog {
    OBX_CLASS(TOpenDialog)
public:
    explicit TOpenPictureDialog(TComponent* Owner);
    bool IsFilterStored() const;
};

class TSavePictureDialog : public TSaveDialog {
    OBX_CLASS(TSaveDialog)
public:
    explicit TSavePictureDialog(TComponent* Owner);
    bool IsFilterStored() const;
};

OBX_ENUM(TColorDialogOption, cdFullOpen, cdPreventFullOpen, cdShowHelp, cdSolidColor, cdAnyColor)
OBX_SET(TColorDialogOptions, TColorDialogOption)

class TColorDialog : public TCommonDialog {
    OBX_CLASS(TCommonDialog)
public:
    explicit TColorDialog(TComponent* Owner) : TCommonDialog(Owner) {}

    OBX_PROPERTY(TColor, Color, clBlack)
    OBX_PROPERTY(TColorDialogOptions, Options, {})
public:
    // Lines such as ColorA=FFFFFF, up to ColorP.
    TStrings* CustomColors() const { return FCustomColors.get(); }
    void SetCustomColors(TStrings* Value) { FCustomColors->Assign(Value); }

private:
    std::unique_ptr<TStringList> FCustomColors = std::make_unique<TStringList>();
};

OBX_ENUM(TFontDialogDevice, fdScreen, fdPrinter, fdBoth)
OBX_ENUM(TFontDialogOption, fdAnsiOnly, fdTrueTypeOnly, fdEffects, fdFixedPitchOnly, fdForceFontExist,
         fdNoFaceSel, fdNoOEMFonts, fdNoSimulations, fdNoSizeSel, fdNoStyleSel, fdNoVectorFonts, fdShowHelp,
         fdWysiwyg, fdLimitSize, fdScalableOnly, fdApplyButton)
OBX_SET(TFontDialogOptions, TFontDialogOption)
OBX_EVENT(TFDApplyEvent, TObject*, HWND)

class TFontDialog : public TCommonDialog {
    OBX_CLASS(TCommonDialog)
public:
    explicit TFontDialog(TComponent* Owner) : TCommonDialog(Owner) {}

    TFont* Font() const { return FFont.get(); }
    void SetFont(TFont* Value) { FFont->Assign(Value); }
    OBX_PROPERTY(TFontDialogDevice, Device, fdScreen)
    // Points; 0 for no limit.
    OBX_PROPERTY(int, MinFontSize, 0)
    OBX_PROPERTY(int, MaxFontSize, 0)
    OBX_PROPERTY(TFontDialogOptions, Options, (TFontDialogOptions{fdEffects}))

public:
    TFDApplyEvent OnApply;

private:
    std::unique_ptr<TFont> FFont = std::make_unique<TFont>();
};

class TPrinterSetupDialog : public TCommonDialog {
    OBX_CLASS(TCommonDialog)
public:
    using TCommonDialog::TCommonDialog;
};

OBX_ENUM(TPrintRange, prAllPages, prSelection, prPageNums)
OBX_ENUM(TPrintDialogOption, poPrintToFile, poPageNums, poSelection, poWarning, poHelp, poDisablePrintToFile)
OBX_SET(TPrintDialogOptions, TPrintDialogOption)

class TPrintDialog : public TCommonDialog {
    OBX_CLASS(TCommonDialog)
public:
    explicit TPrintDialog(TComponent* Owner) : TCommonDialog(Owner) {}

    OBX_PROPERTY(bool, Collate, false)
    OBX_PROPERTY(int, Copies, 0)
    OBX_PROPERTY(int, FromPage, 0)
    OBX_PROPERTY(int, MinPage, 0)
    OBX_PROPERTY(int, MaxPage, 0)
    OBX_PROPERTY(TPrintDialogOptions, Options, {})
    OBX_PROPERTY(bool, PrintToFile, false)
    OBX_PROPERTY(TPrintRange, PrintRange, prAllPages)
    OBX_PROPERTY(int, ToPage, 0)
};

OBX_ENUM(TFindOption, frDown, frFindNext, frHideMatchCase, frHideWholeWord, frHideUpDown, frMatchCase,
         frDisableMatchCase, frDisableUpDown, frDisableWholeWord, frReplace, frReplaceAll, frWholeWord,
         frShowHelp)
OBX_SET(TFindOptions, TFindOption)

class TFindDialog : public TCommonDialog {
    OBX_CLASS(TCommonDialog)
public:
    explicit TFindDialog(TComponent* Owner) : TCommonDialog(Owner) {}

    OBX_PROPERTY(std::string, FindText, {})
    OBX_PROPERTY(TFindOptions, Options, (TFindOptions{frDown}))

public:
    TNotifyEvent OnFind;
};

class TReplaceDialog : public TFindDialog {
    OBX_CLASS(TFindDialog)
public:
    explicit TReplaceDialog(TComponent* Owner) : TFindDialog(Owner) {}

    OBX_PROPERTY(std::string, ReplaceText, {})

public:
    TNotifyEvent OnReplace;
};

// Makes the dialogs known to form files.
void RegisterDialogComponents();
