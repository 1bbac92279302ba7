// Scroll bars on their own, to enter a number from a range.
#pragma once

#include "framework/forms/WinControl.h"

OBX_ENUM(TScrollCode, scLineUp, scLineDown, scPageUp, scPageDown, scPosition, scTrack, scTop, scBottom,
         scEndScroll)
OBX_EVENT(TScrollEvent, TObject*, TScrollCode, int&)

class TScrollBar : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TScrollBar(TComponent* Owner);

    // Position is kept between Min and Max. EInvalidOperation when Max is below Min.
    void SetParams(int APosition, int AMin, int AMax);

    // Published.
    TScrollBarKind Kind() const { return FKind; }
    void SetKind(TScrollBarKind Value);
    OBX_PROPERTY(int16_t, LargeChange, 1)
    OBX_PROPERTY(int16_t, SmallChange, 1)
public:
    int Max() const { return FMax; }
    void SetMax(int Value);
    int Min() const { return FMin; }
    void SetMin(int Value);
    int PageSize() const { return FPageSize; }
    void SetPageSize(int Value);
    int Position() const { return FPosition; }
    void SetPosition(int Value);

    TNotifyEvent OnChange;
    TScrollEvent OnScroll;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void Dispatch(TMessage& Message) override;

private:
    void ShowRange();
    void Scroll(const TMessage& Message);

    TScrollBarKind FKind = sbHorizontal;
    int FMax = 100;
    int FMin = 0;
    int FPageSize = 0;
    int FPosition = 0;
};
