// The system's dialogs, from which texts are loaded, shown and searched.
#pragma once

#include "framework/forms/Forms.h"

class TColorDialog;
class TFindDialog;
class TFontDialog;
class TMemo;
class TOpenDialog;
class TPrintDialog;
class TPrinterSetupDialog;
class TReplaceDialog;
class TSaveDialog;

class TDialogsForm : public TForm {
    OBX_CLASS(TForm)
public:
    explicit TDialogsForm(TComponent* Owner) : TForm(Owner) {}
    ~TDialogsForm() override;

    // Published.
    TMemo* MemText = nullptr;
    TOpenDialog* DlgOpen = nullptr;
    TSaveDialog* DlgSave = nullptr;
    TFontDialog* DlgFont = nullptr;
    TColorDialog* DlgColor = nullptr;
    TPrintDialog* DlgPrint = nullptr;
    TPrinterSetupDialog* DlgSetup = nullptr;
    TFindDialog* DlgFind = nullptr;
    TReplaceDialog* DlgReplace = nullptr;
    void BtnOpenClick(TObject* Sender);
    void BtnSaveClick(TObject* Sender);
    void BtnFontClick(TObject* Sender);
    void BtnColorClick(TObject* Sender);
    void BtnPrintClick(TObject* Sender);
    void BtnSetupClick(TObject* Sender);
    void BtnFindClick(TObject* Sender);
    void BtnReplaceClick(TObject* Sender);
    void DlgFindFind(TObject* Sender);
    void DlgReplaceReplace(TObject* Sender);

    void Loaded() override;
};

extern TDialogsForm* DialogsForm;
