#include "framework/forms/Cursors.h"

#include "framework/forms/Idents.h"

namespace {

constexpr TIdentMapEntry CursorNames[] = {
    {crDefault, "crDefault"},
    {crArrow, "crArrow"},
    {crCross, "crCross"},
    {crIBeam, "crIBeam"},
    {crSizeNESW, "crSizeNESW"},
    {crSizeNS, "crSizeNS"},
    {crSizeNWSE, "crSizeNWSE"},
    {crSizeWE, "crSizeWE"},
    {crUpArrow, "crUpArrow"},
    {crHourGlass, "crHourGlass"},
    {crDrag, "crDrag"},
    {crNoDrop, "crNoDrop"},
    {crHSplit, "crHSplit"},
    {crVSplit, "crVSplit"},
    {crMultiDrag, "crMultiDrag"},
    {crSQLWait, "crSQLWait"},
    {crNo, "crNo"},
    {crAppStart, "crAppStart"},
    {crHelp, "crHelp"},
    {crHandPoint, "crHandPoint"},
    {crSizeAll, "crSizeAll"},
    {crSize, "crSize"},
    {crNone, "crNone"},
};

} // namespace

const TIntegerIdents CursorIdents{&IdentToCursor, &CursorToIdent};

bool CursorToIdent(int Cursor, std::string& Ident)
{
    return ValueToIdent(std::begin(CursorNames), std::end(CursorNames), Cursor, Ident);
}

bool IdentToCursor(std::string_view Ident, int& Cursor)
{
    return IdentToValue(std::begin(CursorNames), std::end(CursorNames), Ident, Cursor);
}

std::string CursorToString(TCursor Cursor)
{
    std::string Ident;
    return CursorToIdent(Cursor, Ident) ? Ident : std::to_string(Cursor);
}
