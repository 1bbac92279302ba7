// An edit with a label of its own.
#pragma once

#include "framework/forms/Edits.h"
#include "framework/forms/Labels.h"

OBX_ENUM(TLabelPosition, lpAbove, lpBelow, lpLeft, lpRight)

// The label of another control: made, placed and destroyed by it. Form files
// have it as a property of its control.
class TBoundLabel : public TCustomLabel {
    OBX_CLASS(TCustomLabel)
public:
    explicit TBoundLabel(TComponent* Owner);

protected:
    void AdjustBounds() override;
};

class TCustomLabeledEdit : public TCustomEdit {
    OBX_CLASS(TCustomEdit)
public:
    explicit TCustomLabeledEdit(TComponent* Owner);
    ~TCustomLabeledEdit() override;

    // Published.
    TBoundLabel* EditLabel() const { return FEditLabel; }
    TLabelPosition LabelPosition() const { return FLabelPosition; }
    void SetLabelPosition(TLabelPosition Value);
    // Pixels between label and edit.
    int LabelSpacing() const { return FLabelSpacing; }
    void SetLabelSpacing(int Value);

    void SetBounds(int ALeft, int ATop, int AWidth, int AHeight) override;
    void SetName(const std::string& Value) override;
    void Notification(TComponent* Component, TOperation Operation) override;
    void Loaded() override;
    // Puts the label where it belongs.
    void PlaceLabel();

protected:
    void Dispatch(TMessage& Message) override;
    void SetParentControl(TWinControl* AParent) override;

private:
    TBoundLabel* FEditLabel = nullptr;
    TLabelPosition FLabelPosition = lpAbove;
    int FLabelSpacing = 3;
};

class TLabeledEdit : public TCustomLabeledEdit {
    OBX_CLASS(TCustomLabeledEdit)
public:
    using TCustomLabeledEdit::TCustomLabeledEdit;
};
