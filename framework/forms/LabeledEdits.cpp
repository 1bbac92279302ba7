#include "framework/forms/LabeledEdits.h"

#include "framework/forms/EditRows.h"
#include "framework/forms/Menus.h"

const TMetaClass& TBoundLabel::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TBoundLabel", &TCustomLabel::MetaClass(), nullptr,
        Sorted(Drag(), Mouse(), ControlRows::Caption(),
               OBX_ROW(TBoundLabel, BiDiMode).Stored<&TBoundLabel::IsBiDiModeStored>(),
               OBX_ROW(TBoundLabel, Color).Default(clWindow).Stored<&TBoundLabel::IsColorStored>(),
               OBX_ROW(TBoundLabel, Font).Stored<&TBoundLabel::IsFontStored>(),
               OBX_ROW(TBoundLabel, ParentBiDiMode).Default(true),
               OBX_ROW(TBoundLabel, ParentColor).Default(true),
               OBX_ROW(TBoundLabel, ParentFont).Default(true),
               OBX_ROW(TBoundLabel, ParentShowHint).Default(true), OBX_ROW(TBoundLabel, PopupMenu),
               OBX_ROW(TBoundLabel, ShowAccelChar).Default(true),
               OBX_ROW(TBoundLabel, ShowHint).Stored<&TBoundLabel::IsShowHintStored>(),
               OBX_ROW(TBoundLabel, Layout).Default(tlTop),
               OBX_ROW(TBoundLabel, Transparent).Stored<&TBoundLabel::IsTransparentStored>(),
               OBX_ROW(TBoundLabel, WordWrap).Default(false)));
    return Class;
}

const TMetaClass& TCustomLabeledEdit::MetaClass()
{
    static const TMetaClass Class("TCustomLabeledEdit", &TCustomEdit::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TLabeledEdit::MetaClass()
{
    static const TMetaClass Class("TLabeledEdit", &TCustomLabeledEdit::MetaClass(),
                                  CreateComponent<TLabeledEdit>,
                                  ControlRows::Sorted(ControlRows::SingleLineRows<TLabeledEdit>(),
                                                      Prop<&TLabeledEdit::EditLabel>("EditLabel"),
                                                      OBX_ROW(TLabeledEdit, LabelPosition).Default(lpAbove),
                                                      OBX_ROW(TLabeledEdit, LabelSpacing).Default(3)));
    return Class;
}

TBoundLabel::TBoundLabel(TComponent* Owner) : TCustomLabel(Owner)
{
    SetSubComponent(true);
    TComponent::SetName("SubLabel");
}

void TBoundLabel::AdjustBounds()
{
    TCustomLabel::AdjustBounds();
    if (auto* const Edit = dynamic_cast<TCustomLabeledEdit*>(Owner()))
        if (Parent() && Parent()->HandleAllocated())
            Edit->PlaceLabel();
}

TCustomLabeledEdit::TCustomLabeledEdit(TComponent* Owner) : TCustomEdit(Owner)
{
    FEditLabel = new TBoundLabel(this);
    FEditLabel->FreeNotification(this);
    FEditLabel->SetFocusControl(this);
}

TCustomLabeledEdit::~TCustomLabeledEdit()
{
    delete FEditLabel;
}

void TCustomLabeledEdit::SetLabelPosition(TLabelPosition Value)
{
    FLabelPosition = Value;
    PlaceLabel();
}

void TCustomLabeledEdit::SetLabelSpacing(int Value)
{
    FLabelSpacing = Value;
    PlaceLabel();
}

void TCustomLabeledEdit::PlaceLabel()
{
    if (!FEditLabel)
        return;
    const int Wide = FEditLabel->Width();
    const int High = FEditLabel->Height();
    int X = Left();
    int Y = Top();
    switch (FLabelPosition) {
    case lpAbove:
        Y -= High + FLabelSpacing;
        break;
    case lpBelow:
        Y += Height() + FLabelSpacing;
        break;
    case lpLeft:
        X -= Wide + FLabelSpacing;
        Y += (Height() - High) / 2;
        break;
    case lpRight:
        X += Width() + FLabelSpacing;
        Y += (Height() - High) / 2;
        break;
    }
    FEditLabel->SetBounds(X, Y, Wide, High);
}

void TCustomLabeledEdit::SetBounds(int ALeft, int ATop, int AWidth, int AHeight)
{
    TCustomEdit::SetBounds(ALeft, ATop, AWidth, AHeight);
    PlaceLabel();
}

void TCustomLabeledEdit::SetName(const std::string& Value)
{
    const std::string Before = Name();
    TCustomEdit::SetName(Value);
    if (!IsLoading() && HasState(csDesigning) && FEditLabel && FEditLabel->Caption() == Before)
        FEditLabel->SetCaption(Value);
}

void TCustomLabeledEdit::Notification(TComponent* Component, TOperation Operation)
{
    TCustomEdit::Notification(Component, Operation);
    if (Operation == opRemove && Component == FEditLabel)
        FEditLabel = nullptr;
}

void TCustomLabeledEdit::Loaded()
{
    TCustomEdit::Loaded();
    PlaceLabel();
}

void TCustomLabeledEdit::SetParentControl(TWinControl* AParent)
{
    TCustomEdit::SetParentControl(AParent);
    if (!FEditLabel)
        return;
    FEditLabel->SetParent(AParent);
    FEditLabel->SetVisible(Visible());
}

void TCustomLabeledEdit::Dispatch(TMessage& Message)
{
    TCustomEdit::Dispatch(Message);
    if (!FEditLabel)
        return;
    switch (Message.Msg) {
    case CM_VISIBLECHANGED:
        FEditLabel->SetVisible(Visible());
        break;
    case CM_ENABLEDCHANGED:
        FEditLabel->SetEnabled(Enabled());
        break;
    case CM_BIDIMODECHANGED:
        FEditLabel->SetBiDiMode(BiDiMode());
        break;
    default:
        break;
    }
}
