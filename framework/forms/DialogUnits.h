// The unit that dialogs are laid out in, so that they grow with their font.
#pragma once

#include "framework/forms/Canvas.h"

// A quarter of a character's average width and an eighth of its height, for the
// canvas's font.
class TDialogUnits {
public:
    explicit TDialogUnits(TCanvas& Canvas);

    // Pixels that so many units across, or down, come to.
    int X(int Units) const { return MulDiv(Units, FWidth, 4); }
    int Y(int Units) const { return MulDiv(Units, FHeight, 8); }

private:
    int FWidth;
    int FHeight;
};
