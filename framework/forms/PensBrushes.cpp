#include "framework/forms/PensBrushes.h"

namespace {

std::shared_ptr<void> Owned(HGDIOBJ Handle)
{
    return {Handle, [](void* Object) {
                if (Object)
                    DeleteObject(static_cast<HGDIOBJ>(Object));
            }};
}

} // namespace

const TMetaClass& TPen::MetaClass()
{
    static const TMetaClass Class("TPen", &TGraphicsObject::MetaClass(), nullptr,
                                  {
                                      OBX_ROW(TPen, Color).Default(clBlack),
                                      OBX_ROW(TPen, Mode).Default(pmCopy),
                                      OBX_ROW(TPen, Style).Default(psSolid),
                                      OBX_ROW(TPen, Width).Default(1),
                                  });
    return Class;
}

void TPen::Assign(const TPersistent* Source)
{
    const auto* const Other = dynamic_cast<const TPen*>(Source);
    if (!Other)
        return inherited::Assign(Source);
    FColor = Other->FColor;
    FMode = Other->FMode;
    FStyle = Other->FStyle;
    FWidth = Other->FWidth;
    Changed();
}

HPEN TPen::Handle() const
{
    if (!FHandle) {
        LOGPEN Pen{};
        Pen.lopnStyle = static_cast<UINT>(FStyle);
        Pen.lopnWidth.x = FWidth;
        Pen.lopnColor = ColorToRGB(FColor);
        FHandle = Owned(CreatePenIndirect(&Pen));
    }
    return static_cast<HPEN>(FHandle.get());
}

void TPen::Changed()
{
    // A canvas that has it selected lets go of it in OnChange.
    const std::shared_ptr<void> Old = std::move(FHandle);
    FHandle.reset();
    inherited::Changed();
}

void TPen::SetColor(TColor Value)
{
    FColor = Value;
    Changed();
}

void TPen::SetMode(TPenMode Value)
{
    FMode = Value;
    Changed();
}

void TPen::SetStyle(TPenStyle Value)
{
    FStyle = Value;
    Changed();
}

void TPen::SetWidth(int Value)
{
    if (Value < 0)
        return;
    FWidth = Value;
    Changed();
}

const TMetaClass& TBrush::MetaClass()
{
    static const TMetaClass Class("TBrush", &TGraphicsObject::MetaClass(), nullptr,
                                  {
                                      OBX_ROW(TBrush, Color).Default(clWhite),
                                      OBX_ROW(TBrush, Style).Default(bsSolid),
                                  });
    return Class;
}

void TBrush::Assign(const TPersistent* Source)
{
    const auto* const Other = dynamic_cast<const TBrush*>(Source);
    if (!Other)
        return inherited::Assign(Source);
    FColor = Other->FColor;
    FStyle = Other->FStyle;
    Changed();
}

HBRUSH TBrush::Handle() const
{
    if (!FHandle) {
        LOGBRUSH Brush{};
        Brush.lbStyle = FStyle == bsSolid ? BS_SOLID : FStyle == bsClear ? BS_HOLLOW : BS_HATCHED;
        Brush.lbColor = ColorToRGB(FColor);
        if (FStyle > bsClear)
            Brush.lbHatch = static_cast<ULONG_PTR>(FStyle - bsHorizontal);
        FHandle = Owned(CreateBrushIndirect(&Brush));
    }
    return static_cast<HBRUSH>(FHandle.get());
}

void TBrush::Changed()
{
    // A canvas that has it selected lets go of it in OnChange.
    const std::shared_ptr<void> Old = std::move(FHandle);
    FHandle.reset();
    inherited::Changed();
}

void TBrush::SetColor(TColor Value)
{
    if (FColor == Value && FStyle == bsSolid)
        return;
    FColor = Value;
    if (FStyle == bsClear)
        FStyle = bsSolid;
    Changed();
}

void TBrush::SetStyle(TBrushStyle Value)
{
    if (FStyle == Value)
        return;
    FStyle = Value;
    Changed();
}
