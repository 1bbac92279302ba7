#include "framework/forms/StandInControls.h"

#include <algorithm>

#include "framework/forms/ControlRows.h"

namespace {

bool HasSize(const TFormObject& Source)
{
    return Source.Find("Width") || Source.Find("Height");
}

bool IsControl(const TFormObject& Source)
{
    return HasSize(Source) || std::ranges::any_of(Source.Children(), IsControl);
}

} // namespace

const TMetaClass& TStandInControl::MetaClass()
{
    static const TMetaClass Class("TStandInControl", &TCustomControl::MetaClass(), nullptr,
                                  ControlRows::Base());
    return Class;
}

TStandInControl::TStandInControl(TComponent* Owner) : TCustomControl(Owner)
{
    FControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents, csDoubleClicks};
    SetBounds(0, 0, 100, 40);
}

void TStandInControl::Paint()
{
    TCanvas& Paper = *Canvas();
    const TRect Box = ClientRect();
    Paper.Pen()->SetColor(clGray);
    Paper.Brush()->SetColor(clBtnFace);
    Paper.Rectangle(Box.left, Box.top, Box.right, Box.bottom);
    Paper.Font()->SetColor(clNavy);
    Paper.TextRect(Rect(1, 1, Box.right - 1, Box.bottom - 1), 4, 2, Name() + ": " + ClassName());
}

// A page of a tab control has no place of its own: it fills what contains it.
TComponent* MakeStandInControl(const TFormObject& Source, TComponent& Owner)
{
    if (!IsControl(Source))
        return nullptr;
    auto* const Result = new TStandInControl(&Owner);
    if (!HasSize(Source))
        Result->SetAlign(alClient);
    return Result;
}
