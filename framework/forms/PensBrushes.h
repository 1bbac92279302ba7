// Pens draw lines and outlines, brushes fill.
#pragma once

#include <memory>

#include "framework/forms/Fonts.h"

OBX_ENUM(TPenStyle, psSolid, psDash, psDot, psDashDot, psDashDotDot, psClear, psInsideFrame)
OBX_ENUM(TPenMode, pmBlack, pmWhite, pmNop, pmNot, pmCopy, pmNotCopy, pmMergePenNot, pmMaskPenNot,
         pmMergeNotPen, pmMaskNotPen, pmMerge, pmNotMerge, pmMask, pmNotMask, pmXor, pmNotXor)
OBX_ENUM(TBrushStyle, bsSolid, bsClear, bsHorizontal, bsVertical, bsFDiagonal, bsBDiagonal, bsCross,
         bsDiagCross)

class TPen : public TGraphicsObject {
    OBX_CLASS(TGraphicsObject)
public:
    void Assign(const TPersistent* Source) override;

    // Belongs to the pen and holds until it changes.
    HPEN Handle() const;

    // Published.
    TColor Color() const { return FColor; }
    void SetColor(TColor Value);
    TPenMode Mode() const { return FMode; }
    void SetMode(TPenMode Value);
    TPenStyle Style() const { return FStyle; }
    void SetStyle(TPenStyle Value);
    int Width() const { return FWidth; }
    void SetWidth(int Value);

protected:
    void Changed() override;

private:
    TColor FColor = clBlack;
    TPenMode FMode = pmCopy;
    TPenStyle FStyle = psSolid;
    int FWidth = 1;
    mutable std::shared_ptr<void> FHandle;
};

class TBrush : public TGraphicsObject {
    OBX_CLASS(TGraphicsObject)
public:
    void Assign(const TPersistent* Source) override;

    // Belongs to the brush and holds until it changes.
    HBRUSH Handle() const;

    // Published.
    TColor Color() const { return FColor; }
    void SetColor(TColor Value);
    TBrushStyle Style() const { return FStyle; }
    void SetStyle(TBrushStyle Value);

protected:
    void Changed() override;

private:
    TColor FColor = clWhite;
    TBrushStyle FStyle = bsSolid;
    mutable std::shared_ptr<void> FHandle;
};
