#include "framework/forms/SizeConstraints.h"

#include <algorithm>

#include "framework/forms/Control.h"

const TMetaClass& TSizeConstraints::MetaClass()
{
    static const TMetaClass Class("TSizeConstraints", &TPersistent::MetaClass(), nullptr,
                                  {
                                      OBX_ROW(TSizeConstraints, MaxHeight).Default(0),
                                      OBX_ROW(TSizeConstraints, MaxWidth).Default(0),
                                      OBX_ROW(TSizeConstraints, MinHeight).Default(0),
                                      OBX_ROW(TSizeConstraints, MinWidth).Default(0),
                                  });
    return Class;
}

void TSizeConstraints::Assign(const TPersistent* Source)
{
    const auto* const Other = dynamic_cast<const TSizeConstraints*>(Source);
    if (!Other)
        return inherited::Assign(Source);
    FMinWidth = Other->FMinWidth;
    FMaxWidth = Other->FMaxWidth;
    FMinHeight = Other->FMinHeight;
    FMaxHeight = Other->FMaxHeight;
    Changed();
}

TPersistent* TSizeConstraints::GetOwner() const
{
    return FControl;
}

void TSizeConstraints::Changed()
{
    if (OnChange)
        OnChange(this);
}

void TSizeConstraints::SetMaxHeight(int Value)
{
    FMaxHeight = std::max(Value, 0);
    if (FMaxHeight > 0)
        FMinHeight = std::min(FMinHeight, FMaxHeight);
    Changed();
}

void TSizeConstraints::SetMaxWidth(int Value)
{
    FMaxWidth = std::max(Value, 0);
    if (FMaxWidth > 0)
        FMinWidth = std::min(FMinWidth, FMaxWidth);
    Changed();
}

void TSizeConstraints::SetMinHeight(int Value)
{
    FMinHeight = std::max(Value, 0);
    if (FMaxHeight > 0)
        FMaxHeight = std::max(FMinHeight, FMaxHeight);
    Changed();
}

void TSizeConstraints::SetMinWidth(int Value)
{
    FMinWidth = std::max(Value, 0);
    if (FMaxWidth > 0)
        FMaxWidth = std::max(FMinWidth, FMaxWidth);
    Changed();
}

const TMetaClass& TMargins::MetaClass()
{
    static const TMetaClass Class("TMargins", &TPersistent::MetaClass(), nullptr,
                                  {
                                      OBX_ROW(TMargins, Left).Default(3),
                                      OBX_ROW(TMargins, Top).Default(3),
                                      OBX_ROW(TMargins, Right).Default(3),
                                      OBX_ROW(TMargins, Bottom).Default(3),
                                  });
    return Class;
}

TMargins::TMargins(TControl* Control, int Initial) : FControl(Control)
{
    FLeft = FTop = FRight = FBottom = Initial;
}

void TMargins::Assign(const TPersistent* Source)
{
    const auto* const Other = dynamic_cast<const TMargins*>(Source);
    if (!Other)
        return inherited::Assign(Source);
    FLeft = Other->FLeft;
    FTop = Other->FTop;
    FRight = Other->FRight;
    FBottom = Other->FBottom;
    PropertyChanged();
}

TPersistent* TMargins::GetOwner() const
{
    return FControl;
}

void TMargins::PropertyChanged()
{
    if (FControl)
        FControl->MarginsChanged(this);
}

const TMetaClass& TPadding::MetaClass()
{
    static const TMetaClass Class("TPadding", &TMargins::MetaClass(), nullptr,
                                  {
                                      OBX_ROW(TPadding, Left).Default(0),
                                      OBX_ROW(TPadding, Top).Default(0),
                                      OBX_ROW(TPadding, Right).Default(0),
                                      OBX_ROW(TPadding, Bottom).Default(0),
                                  });
    return Class;
}
