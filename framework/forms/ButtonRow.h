// The row of buttons at the foot of a dialog that the framework makes.
#pragma once

#include <string>

#include "framework/forms/DialogUnits.h"
#include "framework/forms/PushButtons.h"

class TForm;

// Sizes in dialog units of the form's font.
constexpr int RowMargin = 8;
constexpr int RowButtonWidth = 50;
constexpr int RowButtonHeight = 14;
constexpr int RowButtonSpacing = 4;

// A button of its form's row. When it gets a caption or a font that it has no room
// for, it grows; the row is then placed anew, and the form grows where it is too
// small for the row. A form in the middle of the screen stays there. Nothing ever
// shrinks, and while everything fits nothing is moved.
//
// Its class is TButton.
class TRowButton : public TButton {
public:
    // Top in pixels. The height, and the width that it has at least, are those above.
    TRowButton(TForm* Form, const TDialogUnits& Units, const std::string& Name, const std::string& Caption,
               int Top);

protected:
    void Dispatch(TMessage& Message) override;

private:
    void Fit();
};

// Gives all buttons of the form's row the width of the widest and places them: side
// by side in the middle, in the order of their creation, from the right where the
// form reads so.
void LayOutButtonRow(TForm& Form);
