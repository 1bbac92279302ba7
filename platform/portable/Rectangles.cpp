#include <algorithm>

#include "platform/portable/winuser.h"

BOOL SetRect(LPRECT Rect, int Left, int Top, int Right, int Bottom)
{
    *Rect = {Left, Top, Right, Bottom};
    return TRUE;
}

BOOL SetRectEmpty(LPRECT Rect)
{
    *Rect = {};
    return TRUE;
}

BOOL CopyRect(LPRECT To, const RECT* From)
{
    *To = *From;
    return TRUE;
}

BOOL InflateRect(LPRECT Rect, int X, int Y)
{
    *Rect = {Rect->left - X, Rect->top - Y, Rect->right + X, Rect->bottom + Y};
    return TRUE;
}

BOOL OffsetRect(LPRECT Rect, int X, int Y)
{
    *Rect = {Rect->left + X, Rect->top + Y, Rect->right + X, Rect->bottom + Y};
    return TRUE;
}

BOOL IsRectEmpty(const RECT* Rect)
{
    return Rect->left >= Rect->right || Rect->top >= Rect->bottom;
}

BOOL EqualRect(const RECT* First, const RECT* Second)
{
    return First->left == Second->left && First->top == Second->top && First->right == Second->right &&
           First->bottom == Second->bottom;
}

BOOL PtInRect(const RECT* Rect, POINT Point)
{
    return Point.x >= Rect->left && Point.x < Rect->right && Point.y >= Rect->top && Point.y < Rect->bottom;
}

BOOL IntersectRect(LPRECT To, const RECT* First, const RECT* Second)
{
    const RECT Common{std::max(First->left, Second->left), std::max(First->top, Second->top),
                      std::min(First->right, Second->right), std::min(First->bottom, Second->bottom)};
    const bool Empty = IsRectEmpty(First) || IsRectEmpty(Second) || IsRectEmpty(&Common);
    *To = Empty ? RECT{} : Common;
    return !Empty;
}

BOOL UnionRect(LPRECT To, const RECT* First, const RECT* Second)
{
    if (IsRectEmpty(First))
        *To = IsRectEmpty(Second) ? RECT{} : *Second;
    else if (IsRectEmpty(Second))
        *To = *First;
    else
        *To = {std::min(First->left, Second->left), std::min(First->top, Second->top),
               std::max(First->right, Second->right), std::max(First->bottom, Second->bottom)};
    return !IsRectEmpty(To);
}

// Takes Second away only where a rectangle is left: when it covers a whole side.
BOOL SubtractRect(LPRECT To, const RECT* First, const RECT* Second)
{
    RECT Common;
    RECT Rest = *First;
    if (!IsRectEmpty(First) && IntersectRect(&Common, First, Second)) {
        if (EqualRect(&Common, First))
            Rest = {};
        else if (Common.top == Rest.top && Common.bottom == Rest.bottom) {
            if (Common.left == Rest.left)
                Rest.left = Common.right;
            else if (Common.right == Rest.right)
                Rest.right = Common.left;
        } else if (Common.left == Rest.left && Common.right == Rest.right) {
            if (Common.top == Rest.top)
                Rest.top = Common.bottom;
            else if (Common.bottom == Rest.bottom)
                Rest.bottom = Common.top;
        }
    }
    *To = Rest;
    return !IsRectEmpty(To);
}
