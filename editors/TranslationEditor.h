// What the editors of the translators have in common: the dialog with the list of
// what is translated and the box for its translation, options, fonts, reading
// order, exchange with files, OK and Cancel. Its form file is the ancestor of
// theirs.
//
// All work is done on copies; OK hands them to the translator.
#pragma once

#include <memory>
#include <string>

#include "core/Frame.h"
#include "editors/EditorSettings.h"
#include "editors/ListSearch.h"
#include "framework/forms/Forms.h"
#include "framework/forms/OwnerDraw.h"

class TButton;
class TCheckBox;
class TFontDialog;
class TGroupBox;
class TLabel;
class TListBox;
class TMemo;
class TOpenDialog;
class TPageControl;
class TPanel;
class TRadioGroup;
class TSaveDialog;
class TTabSheet;

class TTranslationEditor : public TForm {
    OBX_CLASS(TForm)
public:
    // Shows an editor of class T for a translator; true when that was changed.
    template<class T>
    static bool Edit(TTranslatorFrame& Translator)
    {
        const std::unique_ptr<T> Editor(::CreateForm<T>(Application));
        return Editor->Run(Translator);
    }

    // False, and nothing to lose, when it opens.
    bool Modified() const { return FModified; }

    // Published.
    TPageControl* Notebook = nullptr;
    TTabSheet* TabTranslations = nullptr;
    TTabSheet* TabOptions = nullptr;
    TLabel* LblList = nullptr;
    TListBox* PropList = nullptr;
    TMemo* EdtTranslation = nullptr;
    TMemo* EdtOrgTranslation = nullptr;
    TButton* BtnRemove = nullptr;
    TButton* BtnNew = nullptr;
    TLabel* LblTotalNr = nullptr;
    TLabel* LblLocalizedNr = nullptr;
    TCheckBox* CkxMove = nullptr;
    TGroupBox* GrpEditFont = nullptr;
    TLabel* LblEditFont = nullptr;
    TLabel* LblDisplayFont = nullptr;
    TRadioGroup* RgpReading = nullptr;
    TLabel* LblTranslate = nullptr;
    TLabel* LblLoad = nullptr;
    TLabel* LblSave = nullptr;
    TLabel* LblExport = nullptr;
    TOpenDialog* DlgOpen = nullptr;
    TSaveDialog* DlgSave = nullptr;
    TFontDialog* DlgFont = nullptr;
    void NotebookChange(TObject* Sender);
    virtual void PropListClick(TObject* Sender);
    void PropListDrawItem(TWinControl* Control, int Index, TRect Rect, TOwnerDrawState State);
    void BtnRemoveClick(TObject* Sender);
    void BtnNewClick(TObject* Sender);
    void EdtTranslationExit(TObject* Sender);
    void EdtTranslationKeyDown(TObject* Sender, uint16_t& Key, TShiftState Shift);
    void CkxMoveClick(TObject* Sender);
    void BtnEditFontClick(TObject* Sender);
    void BtnDisplayFontClick(TObject* Sender);
    void RgpReadingClick(TObject* Sender);
    void BtnTranslateClick(TObject* Sender);
    void BtnLoadClick(TObject* Sender);
    void BtnSaveClick(TObject* Sender);
    void BtnExportClick(TObject* Sender);
    void BtnOKClick(TObject* Sender);

    bool CloseQuery() override;
    void Notification(TComponent* Component, TOperation Operation) override;

protected:
    TTranslationEditor(TComponent* Owner, const std::string& Section);

    // What the dialog's editors differ in. Items are those of PropList.

    // Copies what the translator has into the working lists and fills PropList.
    virtual void TakeTranslations() = 0;
    // Hands the working lists to the translator.
    virtual void GiveTranslations() = 0;
    // After OK, when the dialog has gone and the translator has what was edited.
    virtual void Accepted() {}
    // The translation of an item as text, and whether that is a literal in its list.
    virtual std::string Translation(int Item) const = 0;
    virtual bool IsTranslated(int Item) const { return !Translation(Item).empty(); }
    virtual void SetTranslation(int Item, const std::string& Text) = 0;
    // Exchange of the working lists with a file; LoadFrom is false when there is no
    // such file.
    virtual bool LoadFrom(const std::string& FileName) = 0;
    virtual void SaveTo(const std::string& FileName) = 0;
    // After the working lists were replaced.
    virtual void RefreshLists() = 0;
    // For controls that an editor may hide; those that it shows need theirs.
    virtual std::string Original(int) const { return ""; }
    // How many items have a translation.
    virtual int LocalizedCount() const { return 0; }
    // The user's wish for a new item; and to remove the selected ones.
    virtual void AddItem() {}
    virtual void RemoveSelected() {}
    // The question that is asked before.
    virtual std::string RemoveQuestion() const { return ""; }
    // Exchange with a dictionary; TranslateFrom is false when there is no such file.
    virtual bool TranslateFrom(const std::string&) { return false; }
    virtual void ExportTo(const std::string&) {}
    // Lists in the display font, besides PropList and EdtOrgTranslation.
    virtual std::vector<TWinControl*> DisplayLists() { return {}; }

    void DoCreate() override;
    void DoShow() override;
    void DoHide() override;
    void Dispatch(TMessage& Message) override;
    // When the form is shown, after the settings were read.
    virtual void ReadSettings();

    // False once it was destroyed, which closes the dialog; what asks the user looks
    // here before it goes on.
    bool HasTranslator() const { return FTranslator; }
    TTranslatorFrame& Translator() const { return *FTranslator; }
    TEditorSettings& Settings() { return FSettings; }
    void SetModified() { FModified = true; }
    // Stores what was typed.
    void LeaveBox();
    // The item that is shown, or is to be: the one with the focus, as long as any is
    // selected; -1 for none.
    int ChosenItem() const;
    // Selects an item, alone, and shows it; -1 for none.
    void ChooseItem(int Item);
    // Forgets the item in the box: its list has changed.
    void EmptyBox();
    // Draws a text of several lines as one.
    static void DrawInOneLine(TListBox& List, const std::string& Text, TRect Area);
    // Takes the focus from a button that has nothing to do any more.
    static void GoOnIn(TWinControl& Control);
    // Warns and asks.
    static bool Confirmed(const std::string& Question);

private:
    bool Run(TTranslatorFrame& Translator);
    void Step(int Direction);
    void UndoBox();
    void SetBoxEnabled(bool Value);
    void StyleLists();
    bool ChooseFont(TFont& Font);
    void ReadFrom(const TLabel& Title, bool (TTranslationEditor::*Read)(const std::string&));
    void WriteTo(const TLabel& Title, void (TTranslationEditor::*Write)(const std::string&));
    void FollowCodePage();

    TTranslatorFrame* FTranslator = nullptr;
    TEditorSettings FSettings;
    std::unique_ptr<TListSearch> FSearch;
    int FItem = -1;          // in the box
    std::string FRemembered; // its value when it was chosen
    std::string FShown;      // the box's text for what the list has
    bool FModified = false;
};
