// The editor of form translators.
#pragma once

#include "Qft/Qft.h"
#include "editors/PropertiesEditor.h"

class TFormEditor : public TPropertiesEditor {
    OBX_CLASS(TPropertiesEditor)
public:
    explicit TFormEditor(TComponent* Owner) : TPropertiesEditor(Owner, "FormTranslator") {}

    // Published.
    TPageControl* PropNotebook = nullptr;
    TTabSheet* TabBrowser = nullptr;
    TButton* BtnSelect = nullptr;
    TCheckBox* CkxEmpty = nullptr;
    TListBox* CommonPropList = nullptr;
    TButton* BtnAddCommon = nullptr;
    TButton* BtnDeleteCommon = nullptr;
    TButton* BtnDefault = nullptr;
    TButton* BtnSet = nullptr;
    void BtnSelectClick(TObject* Sender);
    void CommonPropListClick(TObject* Sender);
    void BtnAddCommonClick(TObject* Sender);
    void BtnDeleteCommonClick(TObject* Sender);
    void BtnDefaultClick(TObject* Sender);
    void BtnSetClick(TObject* Sender);

protected:
    void DoCreate() override;
    void ReadSettings() override;
    std::vector<TWinControl*> DisplayLists() override { return {ListAvail, CommonPropList}; }

    void TakeTranslations() override;
    void GiveTranslations() override;
    bool TranslateFrom(const std::string& FileName) override;
    bool LoadFrom(const std::string& FileName) override;
    void SaveTo(const std::string& FileName) override;
    void ExportTo(const std::string& FileName) override;

private:
    TFormTranslator& FormTranslator() const;
    std::unique_ptr<TFormTranslator> TemporaryTranslator() const;
    void GetTranslatorProps();
    bool IsCommon(const std::string& Key) const;

    TStringList FDefaultCommon;
    std::unique_ptr<TListSearch> FCommonSearch;
};
