// The editor of resource translators.
#pragma once

#include "Qrt/Qrt.h"
#include "editors/TranslationEditor.h"

// PropList shows the source texts, in the order of the translator's table; the
// object of each is the number of its translation.
class TResEditor : public TTranslationEditor {
    OBX_CLASS(TTranslationEditor)
public:
    explicit TResEditor(TComponent* Owner) : TTranslationEditor(Owner, "ResourceTranslator") {}

    // Published.
    TListBox* ModuleList = nullptr; // file names; objects: resource instances
    TListBox* ResStringList = nullptr;
    TButton* BtnInclude = nullptr;
    void ModuleListClick(TObject* Sender);
    void ResStringListDrawItem(TWinControl* Control, int Index, TRect Rect, TOwnerDrawState State);
    void BtnIncludeClick(TObject* Sender);

protected:
    void DoCreate() override;
    std::vector<TWinControl*> DisplayLists() override { return {ModuleList, ResStringList}; }

    void TakeTranslations() override;
    void GiveTranslations() override;
    std::string Translation(int Item) const override;
    void SetTranslation(int Item, const std::string& Text) override;
    std::string Original(int Item) const override { return FSources.Get(Item); }
    int LocalizedCount() const override;
    void AddItem() override;
    void RemoveSelected() override;
    std::string RemoveQuestion() const override;
    bool TranslateFrom(const std::string& FileName) override;
    bool LoadFrom(const std::string& FileName) override;
    void SaveTo(const std::string& FileName) override;
    void ExportTo(const std::string& FileName) override;
    void RefreshLists() override;

private:
    TResourceTranslator& ResTranslator() const;
    std::unique_ptr<TResourceTranslator> TemporaryTranslator() const;
    void TakeFrom(const TResourceTranslator& Translator);
    void GetTranslatorProps();
    void UpdateModuleList();
    void GetResStrings();
    void PackTranslations();
    TSortList::TLine NewLine(const std::string& Source);
    int TextOf(int Item) const;

    TSortList FSources; // each with the number of its translation
    TStringList FTranslations;
    std::unique_ptr<TListSearch> FModuleSearch;
    std::unique_ptr<TListSearch> FStringSearch;
};
