// The system's dialogs for choosing files.
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

    // While the dialog is shown, FileName, FilterIndex and Files follow what the
    // user does. Afterwards ofReadOnly and ofExtensionDifferent tell about the
    // choice.
    bool Execute() override;

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

    // Before the dialog closes with a choice; false keeps it open.
    TCloseQueryEvent OnCanClose;
    // These three: not with ofOldStyleDialog.
    TNotifyEvent OnFolderChange;
    TNotifyEvent OnSelectionChange;
    TNotifyEvent OnTypeChange;

protected:
    // GetOpenFileNameA, or its counterpart for saving.
    using TShowFunction = BOOL(WINAPI*)(OPENFILENAMEA*);
    virtual TShowFunction ShowFunction() const { return &GetOpenFileNameA; }

    HWND DialogWindow(HWND HookWindow) const override;
    bool IsInitialised(const TMessage& Msg) const override;
    bool HookMessage(HWND HookWindow, TMessage& Msg) override;
    virtual bool DoCanClose();
    virtual void DoFolderChange();
    virtual void DoSelectionChange();
    virtual void DoTypeChange();

private:
    bool OldStyle() const { return FOptions.Contains(ofOldStyleDialog); }
    DWORD Flags() const;
    void TakeFiles(const OPENFILENAMEA& Data);
    bool Notified(const OFNOTIFYA& Notification, TMessage& Msg);

    TStringList FFiles;
};

class TSaveDialog : public TOpenDialog {
    OBX_CLASS(TOpenDialog)
public:
    using TOpenDialog::TOpenDialog;

protected:
    TShowFunction ShowFunction() const override { return &GetSaveFileNameA; }
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
