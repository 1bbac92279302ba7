// The editor of translators of the system's dialogs. The properties that are
// available are collected by showing each dialog for a moment.
#pragma once

#include <memory>
#include <set>
#include <string>

#include "Qct/Qct.h"
#include "editors/PropertiesEditor.h"

class TDlgEditor : public TPropertiesEditor {
    OBX_CLASS(TPropertiesEditor)
public:
    explicit TDlgEditor(TComponent* Owner) : TPropertiesEditor(Owner, "DlgTranslator") {}

    // Published.
    TButton* BtnRescan = nullptr;
    void BtnRescanClick(TObject* Sender);

protected:
    void DoCreate() override;
    void DoShow() override;
    void Dispatch(TMessage& Message) override;

    void TakeTranslations() override;
    void GiveTranslations() override;
    bool TranslateFrom(const std::string& FileName) override;
    bool LoadFrom(const std::string& FileName) override;
    void SaveTo(const std::string& FileName) override;
    void ExportTo(const std::string& FileName) override;

private:
    TCommonDialogTranslator& DialogTranslator() const;
    std::unique_ptr<TCommonDialogTranslator> TemporaryTranslator() const;
    TCommonDialog* FirstNew(const TComponent& Owner) const;
    TCommonDialog* FirstNew() const;
    // Scans one dialog of each class that was not scanned yet; true when there was any.
    bool UpdateOrgProps();
    void Scan(TCommonDialog& Dialog);

    std::set<std::string> FScanned; // class names
    bool FScanning = false;
};
