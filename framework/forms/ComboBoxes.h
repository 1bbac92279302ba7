// A field with a list that drops down.
#pragma once

#include "framework/forms/Edits.h"
#include "framework/forms/ListBoxes.h"

OBX_ENUM(TComboBoxStyle, csDropDown, csSimple, csDropDownList, csOwnerDrawFixed, csOwnerDrawVariable)

// Items, choice and text are kept with and without a window. With the styles
// from csDropDownList on, the text is the chosen item's.
class TCustomComboBox : public TWinControl, public TItemsClient {
    OBX_CLASS(TWinControl)
public:
    explicit TCustomComboBox(TComponent* Owner);
    ~TCustomComboBox() override;

    TStrings* Items() const;
    void SetItems(TStrings* Value) { Items()->Assign(Value); }
    // The chosen item; -1 for none. While the form is read it may name an item
    // that is yet to come.
    int ItemIndex() const;
    void SetItemIndex(int Value);
    void Clear();
    void SelectAll();
    bool DroppedDown() const;
    void SetDroppedDown(bool Value);
    TCanvas* Canvas() { return FCanvas.get(); }

    // Published by those that want it.
    OBX_PROPERTY(bool, AutoComplete, true)
    OBX_PROPERTY(bool, AutoCloseUp, false)
    OBX_PROPERTY(bool, AutoDropDown, false)
    // Kept for form files and translations.
    OBX_PROPERTY(std::string, TextHint, {})
public:
    TEditCharCase CharCase() const { return FCharCase; }
    void SetCharCase(TEditCharCase Value);
    // Items that are in view when the list is dropped.
    int DropDownCount() const { return FDropDownCount; }
    void SetDropDownCount(int Value) { FDropDownCount = Value; }
    // Pixels, of lists that the program draws.
    int ItemHeight() const { return FItemHeight; }
    void SetItemHeight(int Value);
    // Characters; 0 for no limit.
    int MaxLength() const { return FMaxLength; }
    void SetMaxLength(int Value);
    bool Sorted() const { return FItems->KeepsSorted(); }
    void SetSorted(bool Value) { FItems->SetKeepsSorted(Value); }
    TComboBoxStyle Style() const { return FStyle; }
    void SetStyle(TComboBoxStyle Value);

    TNotifyEvent OnChange;
    TNotifyEvent OnCloseUp;
    TDrawItemEvent OnDrawItem;
    TNotifyEvent OnDropDown;
    TMeasureItemEvent OnMeasureItem;
    TNotifyEvent OnSelect;

    void Loaded() override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void DestroyWnd() override;
    void Dispatch(TMessage& Message) override;
    std::string GetText() const override;
    void StoreText(const std::string& Value) override;
    virtual void Change();
    virtual void Select();
    virtual void DropDown();
    virtual void CloseUp();
    virtual void DrawItem(int Index, const TRect& Area, TOwnerDrawState State);
    bool IsOwnerDrawn() const { return FStyle >= csOwnerDrawFixed; }
    // The text is one of the items'.
    bool IsList() const { return FStyle >= csDropDownList; }

    void ItemInserted(int Index) override;
    void ItemDeleted(int Index) override;
    void ItemChanged(int Index) override;
    void ItemsReordered() override;
    void ItemsUpdating(bool Updating) override;

    std::unique_ptr<TItemStrings> FItems;

private:
    void FillWindow();
    void AdjustDropDown();
    void DrawItemMessage(const DRAWITEMSTRUCT& Item);
    void CommandMessage(const TMessage& Message);

    std::unique_ptr<TCanvas> FCanvas;
    TEditCharCase FCharCase = ecNormal;
    int FDropDownCount = 8;
    int FItemHeight = 16;
    int FMaxLength = 0;
    TComboBoxStyle FStyle = csDropDown;
    int FItemIndex = -1; // while there is no window
    bool FCreatingWnd = false;
};

class TComboBox : public TCustomComboBox {
    OBX_CLASS(TCustomComboBox)
public:
    using TCustomComboBox::TCustomComboBox;
};

OBX_ENUM(TColorBoxStyles, cbStandardColors, cbExtendedColors, cbSystemColors, cbIncludeNone, cbIncludeDefault,
         cbCustomColor, cbPrettyNames, cbCustomColors)
OBX_SET(TColorBoxStyle, TColorBoxStyles)

// A combo box of the colours, each drawn beside its name.
class TColorBox : public TCustomComboBox {
    OBX_CLASS(TCustomComboBox)
public:
    explicit TColorBox(TComponent* Owner);

    TColor Selected() const { return FSelected; }
    void SetSelected(TColor Value);
    TColorBoxStyle Style() const { return FColors; }
    void SetStyle(TColorBoxStyle Value);
    OBX_PROPERTY(TColor, DefaultColorColor, clBlack)
    OBX_PROPERTY(TColor, NoneColorColor, clBlack)

public:
    void Loaded() override;

protected:
    void CreateWnd() override;
    void Select() override;
    void DrawItem(int Index, const TRect& Area, TOwnerDrawState State) override;

private:
    void PopulateList();
    void ShowSelected();

    TColor FSelected = clBlack;
    TColorBoxStyle FColors{cbStandardColors, cbExtendedColors, cbSystemColors};
    std::vector<TColor> FValues;
};
