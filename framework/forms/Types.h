// Types that controls, forms and menus share: alignment, borders, mouse and
// keyboard states, modal results. Graphics types are in Graphics.h.
#pragma once

#include <string>

#include "framework/forms/Messages.h"
#include "framework/rtl/Component.h"

// Pixels; right and bottom are exclusive.
using TRect = RECT;
using TPoint = POINT;
using TSize = SIZE;

constexpr TRect Rect(int Left, int Top, int Right, int Bottom)
{
    return {Left, Top, Right, Bottom};
}
constexpr TRect Bounds(int Left, int Top, int Width, int Height)
{
    return {Left, Top, Left + Width, Top + Height};
}
constexpr TPoint Point(int X, int Y)
{
    return {X, Y};
}
constexpr int RectWidth(const TRect& Value)
{
    return static_cast<int>(Value.right - Value.left);
}
constexpr int RectHeight(const TRect& Value)
{
    return static_cast<int>(Value.bottom - Value.top);
}

// A text that a window shows: "&" marks the next character as mnemonic.
using TCaption = std::string;

// A number of a help page; 0 for none.
using THelpContext = int;

// The position among the parent's controls in tab order; -1 for the end.
using TTabOrder = int16_t;

OBX_ENUM(TAlign, alNone, alTop, alBottom, alLeft, alRight, alClient, alCustom)
OBX_ENUM(TAnchorKind, akLeft, akTop, akRight, akBottom)
OBX_SET(TAnchors, TAnchorKind)
// The anchors that an alignment stands for, by TAlign.
constexpr TAnchors AlignAnchors[] = {{akLeft, akTop},
                                     {akLeft, akTop, akRight},
                                     {akLeft, akRight, akBottom},
                                     {akLeft, akTop, akBottom},
                                     {akTop, akRight, akBottom},
                                     {akLeft, akTop, akRight, akBottom},
                                     {akLeft, akTop}};
OBX_ENUM(TAlignment, taLeftJustify, taRightJustify, taCenter)
using TLeftRight = TAlignment;
OBX_ENUM(TVerticalAlignment, taAlignTop, taAlignBottom, taVerticalCenter)
OBX_ENUM(TTextLayout, tlTop, tlCenter, tlBottom)
OBX_ENUM(TBiDiMode, bdLeftToRight, bdRightToLeft, bdRightToLeftNoAlign, bdRightToLeftReadingOnly)
OBX_ENUM(THelpType, htKeyword, htContext)
OBX_ENUM(TDragMode, dmManual, dmAutomatic)
OBX_ENUM(TDragKind, dkDrag, dkDock)
OBX_ENUM(TDragState, dsDragEnter, dsDragLeave, dsDragMove)
OBX_ENUM(TImeMode, imDisable, imClose, imOpen, imDontCare, imSAlpha, imAlpha, imHira, imSKata, imKata,
         imChinese, imSHanguel, imHanguel)
using TImeName = std::string;

OBX_ENUM(TMouseButton, mbLeft, mbRight, mbMiddle)
OBX_ENUM(TShiftStateFlag, ssShift, ssAlt, ssCtrl, ssLeft, ssRight, ssMiddle, ssDouble)
OBX_SET(TShiftState, TShiftStateFlag)

// Edits, panels and other controls use bsNone and bsSingle only.
OBX_ENUM(TFormBorderStyle, bsNone, bsSingle, bsSizeable, bsDialog, bsToolWindow, bsSizeToolWin)
using TBorderStyle = TFormBorderStyle;
OBX_ENUM(TBorderIcon, biSystemMenu, biMinimize, biMaximize, biHelp)
OBX_SET(TBorderIcons, TBorderIcon)
OBX_ENUM(TWindowState, wsNormal, wsMinimized, wsMaximized)
OBX_ENUM(TFormStyle, fsNormal, fsMDIChild, fsMDIForm, fsStayOnTop)
OBX_ENUM(TPosition, poDesigned, poDefault, poDefaultPosOnly, poDefaultSizeOnly, poScreenCenter,
         poDesktopCenter, poMainFormCenter, poOwnerFormCenter)
OBX_ENUM(TDefaultMonitor, dmDesktop, dmPrimary, dmMainForm, dmActiveForm)
OBX_ENUM(TPrintScale, poNone, poProportional, poPrintToFit)
OBX_ENUM(TCloseAction, caNone, caHide, caFree, caMinimize)
OBX_ENUM(TTileMode, tbHorizontal, tbVertical)
OBX_ENUM(TScrollBarKind, sbHorizontal, sbVertical)
OBX_ENUM(TScrollBarStyle, ssRegular, ssFlat, ssHotTrack)

OBX_ENUM(TBevelCut, bvNone, bvLowered, bvRaised, bvSpace)
OBX_ENUM(TBevelEdge, beLeft, beTop, beRight, beBottom)
OBX_SET(TBevelEdges, TBevelEdge)
OBX_ENUM(TBevelKind, bkNone, bkTile, bkSoft, bkFlat)
using TBevelWidth = int;
using TBorderWidth = int;

// Any number; buttons of message forms use the mr constants.
using TModalResult = int;
constexpr TModalResult mrNone = 0;
constexpr TModalResult mrOk = 1;
constexpr TModalResult mrCancel = 2;
constexpr TModalResult mrAbort = 3;
constexpr TModalResult mrRetry = 4;
constexpr TModalResult mrIgnore = 5;
constexpr TModalResult mrYes = 6;
constexpr TModalResult mrNo = 7;
constexpr TModalResult mrAll = 8;
constexpr TModalResult mrNoToAll = 9;
constexpr TModalResult mrYesToAll = 10;

// A virtual key code in the low byte with scShift, scCtrl and scAlt added.
enum TShortCut : uint16_t { scNone = 0 };
OBX_INTEGER(TShortCut, 0, 65535, nullptr)
constexpr int scShift = 0x2000;
constexpr int scCtrl = 0x4000;
constexpr int scAlt = 0x8000;

class TControl;

// Handlers of keys may set Key to 0 to swallow it.
OBX_EVENT(TKeyEvent, TObject*, uint16_t&, TShiftState)
OBX_EVENT(TKeyPressEvent, TObject*, char&)
OBX_EVENT(TMouseEvent, TObject*, TMouseButton, TShiftState, int, int)
OBX_EVENT(TMouseMoveEvent, TObject*, TShiftState, int, int)
OBX_EVENT(TMouseWheelEvent, TObject*, TShiftState, int, const TPoint&, bool&)
OBX_EVENT(TMouseWheelUpDownEvent, TObject*, TShiftState, const TPoint&, bool&)
OBX_EVENT(TMouseActivateEvent, TObject*, TMouseButton, TShiftState, int, int, int, int&)
OBX_EVENT(TContextPopupEvent, TObject*, const TPoint&, bool&)
OBX_EVENT(TCanResizeEvent, TObject*, int&, int&, bool&)
OBX_EVENT(TConstrainedResizeEvent, TObject*, int&, int&, int&, int&)
OBX_EVENT(TDragOverEvent, TObject*, TObject*, int, int, TDragState, bool&)
OBX_EVENT(TDragDropEvent, TObject*, TObject*, int, int)
OBX_EVENT(TEndDragEvent, TObject*, TObject*, int, int)
OBX_EVENT(TStartDragEvent, TObject*, TObject*&)
OBX_EVENT(TDockDropEvent, TObject*, TObject*, int, int)
OBX_EVENT(TDockOverEvent, TObject*, TObject*, int, int, TDragState, bool&)
OBX_EVENT(TUnDockEvent, TObject*, TControl*, TControl*, bool&)
OBX_EVENT(TStartDockEvent, TObject*, TObject*&)
OBX_EVENT(TGetSiteInfoEvent, TObject*, TControl*, TRect&, const TPoint&, bool&)
