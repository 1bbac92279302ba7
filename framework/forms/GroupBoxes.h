// Frames with a caption around other controls, and groups of radio buttons.
#pragma once

#include "framework/forms/CustomControl.h"
#include "framework/forms/ItemStrings.h"
#include "framework/forms/PushButtons.h"

class TCustomGroupBox : public TCustomControl {
    OBX_CLASS(TCustomControl)
public:
    explicit TCustomGroupBox(TComponent* Owner);

protected:
    void AdjustClientRect(TRect& Rect) const override;
    void CreateParams(TCreateParams& Params) override;
    void Dispatch(TMessage& Message) override;
    void Paint() override;
};

class TGroupBox : public TCustomGroupBox {
    OBX_CLASS(TCustomGroupBox)
public:
    using TCustomGroupBox::TCustomGroupBox;
};

// The buttons are made from Items; they belong to the group and are in no form
// file.
class TCustomRadioGroup : public TCustomGroupBox, public TItemsClient {
    OBX_CLASS(TCustomGroupBox)
public:
    explicit TCustomRadioGroup(TComponent* Owner);
    ~TCustomRadioGroup() override;

    // Published. From 1 to 16.
    int Columns() const { return FColumns; }
    void SetColumns(int Value);
    // The checked button; -1 for none. Checking another one clicks, whoever does
    // it. While the form is read it may name a button that is yet to come.
    int ItemIndex() const { return FItemIndex; }
    void SetItemIndex(int Value);
    TStrings* Items() const { return FItems.get(); }
    void SetItems(TStrings* Value) { FItems->Assign(Value); }
    OBX_PROPERTY(bool, WordWrap, false)

public:
    // The button of an item.
    TRadioButton* Buttons(int Index) const { return FButtons[static_cast<size_t>(Index)]; }

    void GetChildren(const std::function<void(TComponent*)>&, TComponent*) override {}
    void Loaded() override;

    // The buttons are placed by the group.
    void FlipChildren(bool) override {}

protected:
    void CreateWnd() override;
    void Dispatch(TMessage& Message) override;

private:
    void ItemInserted(int Index) override;
    void ItemDeleted(int Index) override;
    void ItemChanged(int Index) override;
    void ItemsReordered() override;
    void ArrangeButtons();
    void CheckButton();
    void ButtonClick(TObject* Sender);

    std::unique_ptr<TItemStrings> FItems;
    std::vector<TRadioButton*> FButtons;
    int FColumns = 1;
    int FItemIndex = -1;
    bool FUpdating = false;
};

class TRadioGroup : public TCustomRadioGroup {
    OBX_CLASS(TCustomRadioGroup)
public:
    using TCustomRadioGroup::TCustomRadioGroup;
};
