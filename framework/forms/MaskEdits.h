// Edits for texts of a given form.
#pragma once

#include "framework/forms/Edits.h"

// A mask is Mask[;Save[;Blank]]. Its characters:
//   L l  letter, needed or not        A a  letter or digit
//   0 9  digit, needed or not         #    digit or sign, not needed
//   C c  any character                > <  upper or lower case from here on
//   \    the next character stands for itself
//   !    fill from the right          others stand for themselves
// The mask is what IsValid checks; typing is not restricted by it.
class TCustomMaskEdit : public TCustomEdit {
    OBX_CLASS(TCustomEdit)
public:
    using TCustomEdit::TCustomEdit;

    const std::string& EditMask() const { return FEditMask; }
    void SetEditMask(const std::string& Value) { FEditMask = Value; }
    bool IsMasked() const { return !FEditMask.empty(); }
    // The text, literals included, has a character that fits at every place of
    // the mask; blanks stand for what was not entered.
    bool IsValid() const;

private:
    std::string FEditMask;
};

class TMaskEdit : public TCustomMaskEdit {
    OBX_CLASS(TCustomMaskEdit)
public:
    using TCustomMaskEdit::TCustomMaskEdit;
};
