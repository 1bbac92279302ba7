// The properties of a dialog that is on screen, as lines DialogClass.Property=Value:
//
//     TOpenDialog.Caption='Open'          its title
//     TOpenDialog.Font.Name='Tahoma'      the font of its controls
//     TOpenDialog.Font.Charset=0
//     TOpenDialog.Width=426               the window, in pixels
//     TOpenDialog.Height=267
//     TOpenDialog.Caption[1]='&Open'      a control
//     TOpenDialog.Width[1]=75
//     TOpenDialog.Height[1]=23
//     TOpenDialog.Left[1]=331             in the dialog's client area
//     TOpenDialog.Top[1]=190
//
// The number in brackets is the control's identifier. Controls without one (-1, 0,
// 65535) have the negative of their place among the dialog's direct children, which
// are counted from 1.
#pragma once

#include <string>
#include <string_view>

#include "platform/winapi.h"

class TDialogFonts;
class TStrings;

// Appends a dialog's lines. Titles and texts, at most 239 bytes of them, stand
// between quotes as they are; widths and heights are one more than the window has.
void ListDialog(HWND Dialog, const std::string& DialogClass, TStrings& Lines);

// Sets the property Name, which stands without the dialog's class, to a plain
// value. A control that the dialog does not have is passed over; so are places and
// sizes of controls without an identifier, and heights of controls as ListDialog
// writes them. Font is given to the controls, not to the dialog itself.
// Throws EConvertError when a number, also that in brackets, is none.
void SetDialogProp(HWND Dialog, std::string_view Name, const std::string& Value, TDialogFonts& Fonts);

// Sets the text of the window number Ordinal, from 1, in the row of siblings that
// FirstChild begins; nothing when there is none.
void SetDlgTextOfChild(HWND FirstChild, int Ordinal, const std::string& Text);
