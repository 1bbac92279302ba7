// The editor of locale translators.
#pragma once

#include "Qlt/Qlt.h"
#include "editors/TranslationEditor.h"

class TComboBox;
class TEdit;

class TLocaleEditor : public TTranslationEditor {
    OBX_CLASS(TTranslationEditor)
public:
    explicit TLocaleEditor(TComponent* Owner) : TTranslationEditor(Owner, "LocaleTranslator") {}

    // Published.
    TComboBox* CbxLang = nullptr;
    TLabel* LblProp = nullptr;
    TListBox* DescList = nullptr; // Key=Description
    TListBox* LangListInApp = nullptr;
    TListBox* LangList = nullptr;
    TButton* BtnCopyLang = nullptr;
    TButton* BtnRemoveLang = nullptr;
    TButton* BtnSetDefault = nullptr;
    TButton* BtnSetStartup = nullptr;
    TLabel* LblLocaleList = nullptr;
    TEdit* EdtLocaleList = nullptr;
    void CbxLangChange(TObject* Sender);
    void PropListClick(TObject* Sender) override;
    void LangListClick(TObject* Sender);
    void LangListInAppClick(TObject* Sender);
    void BtnCopyLangClick(TObject* Sender);
    void BtnRemoveLangClick(TObject* Sender);
    void BtnUserLangClick(TObject* Sender);
    void BtnSetDefaultClick(TObject* Sender);
    void BtnSetStartupClick(TObject* Sender);
    void EdtLocaleListChange(TObject* Sender);
    void EdtLocaleListExit(TObject* Sender);
    void BtnSelLocaleClick(TObject* Sender);

protected:
    void DoCreate() override;
    void ReadSettings() override;
    std::vector<TWinControl*> DisplayLists() override { return {LangList, LangListInApp}; }

    void TakeTranslations() override;
    void GiveTranslations() override;
    void Accepted() override;
    std::string Translation(int Item) const override;
    void SetTranslation(int Item, const std::string& Text) override;
    bool LoadFrom(const std::string& FileName) override;
    void SaveTo(const std::string& FileName) override;
    void RefreshLists() override;

private:
    TLocaleTranslator& LocaleTranslator() const;
    std::unique_ptr<TLocaleTranslator> TemporaryTranslator() const;
    void FillPool();
    void ReplacePool();
    void ShowInApp(const std::string& Name, int Lcid);
    void SelectLocale();
    std::string Description(const std::string& Key) const;
    std::string EntryKey(int Item) const;
    int LineOf(int Item) const;

    TSortList FWorking;
    TSortList FPool; // the entries of locales that can be added
    std::string FPoolFile;
    bool FDesigning = false;
    int FDesignLcid = 0;
    int FStartupLcid = 0;
    int FLcid = 0; // of the locale in CbxLang
};
