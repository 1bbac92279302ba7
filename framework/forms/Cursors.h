// Mouse cursors by number. Positive numbers are the program's own
// (TScreen::SetCursors).
#pragma once

#include <string>
#include <string_view>

#include "framework/rtl/TypInfo.h"

enum TCursor : int16_t {
    crDefault = 0,
    crNone = -1,
    crArrow = -2,
    crCross = -3,
    crIBeam = -4,
    crSize = -22,
    crSizeNESW = -6,
    crSizeNS = -7,
    crSizeNWSE = -8,
    crSizeWE = -9,
    crUpArrow = -10,
    crHourGlass = -11,
    crDrag = -12,
    crNoDrop = -13,
    crHSplit = -14,
    crVSplit = -15,
    crMultiDrag = -16,
    crSQLWait = -17,
    crNo = -18,
    crAppStart = -19,
    crHelp = -20,
    crHandPoint = -21,
    crSizeAll = -22
};

bool CursorToIdent(int Cursor, std::string& Ident);
bool IdentToCursor(std::string_view Ident, int& Cursor);
// The name, or the number in decimal.
std::string CursorToString(TCursor Cursor);

extern const TIntegerIdents CursorIdents;
OBX_INTEGER(TCursor, -32768, 32767, &CursorIdents)
