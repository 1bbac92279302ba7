// What the editors of form and dialog translators have in common: a list of
// properties to be translated, and a page of those that are available.
#pragma once

#include "core/SortList.h"
#include "editors/OriginalProps.h"
#include "editors/TranslationEditor.h"

class TPropertiesEditor : public TTranslationEditor {
    OBX_CLASS(TTranslationEditor)
public:
    // Published.
    TListBox* ListAvail = nullptr;
    TLabel* LblSelected = nullptr;
    TButton* BtnIncludeProp = nullptr;
    void ListAvailClick(TObject* Sender);
    void ListAvailMouseMove(TObject* Sender, TShiftState Shift, int X, int Y);
    void BtnIncludePropClick(TObject* Sender);

protected:
    using TTranslationEditor::TTranslationEditor;

    void DoCreate() override;
    std::vector<TWinControl*> DisplayLists() override { return {ListAvail}; }

    std::string Translation(int Item) const override;
    bool IsTranslated(int Item) const override;
    void SetTranslation(int Item, const std::string& Text) override;
    std::string Original(int Item) const override;
    int LocalizedCount() const override;
    void AddItem() override;
    void RemoveSelected() override;
    std::string RemoveQuestion() const override;
    void RefreshLists() override { RefreshPropList(); }

    // Fills PropList and ListAvail from the working list and the original properties.
    void RefreshPropList();

    TSortList FWorking; // Key=Value, texts in literal form; one line an item of PropList
    TOriginalProps FOriginals;

private:
    std::string_view Value(int Item) const;
    int ItemOf(const std::string& Key) const;

    std::unique_ptr<TListSearch> FAvailSearch;
    std::string FSelectedFormat; // the caption of LblSelected in the form file
    int FHintItem = -1;
};
