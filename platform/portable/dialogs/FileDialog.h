// The dialogs that open and save files.
#pragma once

#include <string>
#include <vector>

#include "platform/portable/dialogs/FileNames.h"
#include "platform/portable/dialogs/StandardDialog.h"

class TFileDialog final : public TStandardDialog {
public:
    TFileDialog(OPENFILENAMEA& Data, bool Saves);

protected:
    void Init() override;
    bool Started(bool HookAnswer) override;
    bool Command(int Id, int Code) override;
    INT_PTR Message(UINT Message, WPARAM WParam, LPARAM LParam) override;

private:
    bool Has(DWORD Flag) const { return (FData.Flags & Flag) != 0; }

    // Making the dialog
    void ShowTexts();
    void ShowFilters();
    void MakeParts();
    void MakeToolBars();
    void MakeHookWindow();
    void FitHeight();
    void Arrange();
    void Limit(MINMAXINFO& Info) const;

    // Folders
    void StartFolder();
    bool GoTo(const std::string& Folder);
    void FillList();
    void FillPlaces();
    void PlaceChosen();
    void ChangeFilter();
    void MakeFolder();
    void SelectionChanged();
    void OpenChosen();
    void DrawPlace(const DRAWITEMSTRUCT& Item) const;

    // Choosing
    void Accept();
    bool Browse(const std::string& Name);
    std::string WithExtension(const std::string& Path) const;
    bool MayChoose(const std::string& Path) const;
    bool Ask(const std::string& Text) const;
    bool Store(const std::vector<std::string>& Paths);

    // The hook window and the questions that it may ask
    LRESULT Notify(UINT Code) const;
    // Whether the application keeps the dialog open in spite of a choice.
    bool Refused() const;
    INT_PTR Answer(LRESULT Result) const;
    bool AnswerQuestion(UINT Message, WPARAM WParam, LPARAM LParam, LRESULT& Result);
    std::string CurrentPath() const;

    OPENFILENAMEA& FData;
    const bool FSaves;
    std::string FExtension;
    std::string FFolder;
    std::vector<std::string> FPlaces; // from the root down to FFolder
    std::vector<TFileFilter> FFilters;
    std::vector<std::string> FPatterns; // what the list shows
    std::vector<TFolderEntry> FEntries;
    HWND FView = nullptr;
    HWND FHookWindow = nullptr;
    SIZE FSize{};     // of the client area that the controls fit
    SIZE FSmallest{}; // of the whole window
    bool FFilling = false;
};
