// Drawing as the Windows API names it: device contexts, fonts, pens, brushes,
// bitmaps, regions and text. Kept in memory and drawn with Cairo and Pango.
// Coordinates are pixels at 96 to the inch; texts are UTF-8 and their counts
// are bytes (-1: up to the terminating zero). Every object made here counts in
// GetGuiResources until it is deleted; a selected object is not deleted.
#pragma once

#include "platform/portable/wintypes.h"

// Stock objects
#define WHITE_BRUSH 0
#define LTGRAY_BRUSH 1
#define GRAY_BRUSH 2
#define DKGRAY_BRUSH 3
#define BLACK_BRUSH 4
#define NULL_BRUSH 5
#define HOLLOW_BRUSH 5
#define WHITE_PEN 6
#define BLACK_PEN 7
#define NULL_PEN 8
#define OEM_FIXED_FONT 0xA
#define ANSI_FIXED_FONT 0xB
#define ANSI_VAR_FONT 0xC
#define SYSTEM_FONT 0xD
#define DEVICE_DEFAULT_FONT 0xE
#define DEFAULT_PALETTE 0xF
#define SYSTEM_FIXED_FONT 0x10
#define DEFAULT_GUI_FONT 0x11
#define DC_BRUSH 0x12
#define DC_PEN 0x13

// Pens and brushes
#define BS_SOLID 0
#define BS_NULL 1
#define BS_HOLLOW 1
#define BS_HATCHED 2
#define BS_PATTERN 3
#define HS_HORIZONTAL 0
#define HS_VERTICAL 1
#define HS_FDIAGONAL 2
#define HS_BDIAGONAL 3
#define HS_CROSS 4
#define HS_DIAGCROSS 5
#define HS_API_MAX 0xC
#define PS_SOLID 0
#define PS_DASH 1
#define PS_DOT 2
#define PS_DASHDOT 3
#define PS_DASHDOTDOT 4
#define PS_NULL 5
#define PS_INSIDEFRAME 6

// Backgrounds, text alignment, text output
#define GDI_ERROR 0xFFFFFFFF
#define LAYOUT_RTL 1
#define TA_NOUPDATECP 0
#define TA_UPDATECP 1
#define TA_LEFT 0
#define TA_RIGHT 2
#define TA_CENTER 6
#define TA_TOP 0
#define TA_BOTTOM 8
#define TA_BASELINE 0x18
#define TA_RTLREADING 0x100
#define ETO_OPAQUE 2
#define ETO_CLIPPED 4
#define ETO_GLYPH_INDEX 0x10
#define ETO_RTLREADING 0x80
#define TRANSPARENT 1
#define OPAQUE 2
#define MM_TEXT 1
#define CLR_INVALID 0xFFFFFFFF

// Fonts
#define TMPF_FIXED_PITCH 1
#define TMPF_VECTOR 2
#define TMPF_DEVICE 8
#define TMPF_TRUETYPE 4
#define LF_FACESIZE 0x20
#define LF_FULLFACESIZE 0x40
#define OUT_DEFAULT_PRECIS 0
#define OUT_STRING_PRECIS 1
#define OUT_CHARACTER_PRECIS 2
#define OUT_STROKE_PRECIS 3
#define OUT_TT_PRECIS 4
#define OUT_DEVICE_PRECIS 5
#define OUT_RASTER_PRECIS 6
#define OUT_TT_ONLY_PRECIS 7
#define OUT_OUTLINE_PRECIS 8
#define OUT_SCREEN_OUTLINE_PRECIS 9
#define OUT_PS_ONLY_PRECIS 0xA
#define CLIP_DEFAULT_PRECIS 0
#define DEFAULT_QUALITY 0
#define DRAFT_QUALITY 1
#define PROOF_QUALITY 2
#define NONANTIALIASED_QUALITY 3
#define ANTIALIASED_QUALITY 4
#define CLEARTYPE_QUALITY 5
#define DEFAULT_PITCH 0
#define FIXED_PITCH 1
#define VARIABLE_PITCH 2
#define ANSI_CHARSET 0
#define DEFAULT_CHARSET 1
#define SYMBOL_CHARSET 2
#define SHIFTJIS_CHARSET 0x80
#define HANGEUL_CHARSET 0x81
#define HANGUL_CHARSET 0x81
#define GB2312_CHARSET 0x86
#define CHINESEBIG5_CHARSET 0x88
#define OEM_CHARSET 0xFF
#define JOHAB_CHARSET 0x82
#define HEBREW_CHARSET 0xB1
#define ARABIC_CHARSET 0xB2
#define GREEK_CHARSET 0xA1
#define TURKISH_CHARSET 0xA2
#define VIETNAMESE_CHARSET 0xA3
#define THAI_CHARSET 0xDE
#define EASTEUROPE_CHARSET 0xEE
#define RUSSIAN_CHARSET 0xCC
#define MAC_CHARSET 0x4D
#define BALTIC_CHARSET 0xBA
#define FF_DONTCARE 0
#define FF_ROMAN 0x10
#define FF_SWISS 0x20
#define FF_MODERN 0x30
#define FF_SCRIPT 0x40
#define FF_DECORATIVE 0x50
#define FW_DONTCARE 0
#define FW_THIN 0x64
#define FW_EXTRALIGHT 0xC8
#define FW_LIGHT 0x12C
#define FW_NORMAL 0x190
#define FW_MEDIUM 0x1F4
#define FW_SEMIBOLD 0x258
#define FW_BOLD 0x2BC
#define FW_EXTRABOLD 0x320
#define FW_HEAVY 0x384
#define FW_ULTRALIGHT 0xC8
#define FW_REGULAR 0x190
#define FW_DEMIBOLD 0x258
#define FW_ULTRABOLD 0x320
#define FW_BLACK 0x384
#define RASTER_FONTTYPE 1
#define DEVICE_FONTTYPE 2
#define TRUETYPE_FONTTYPE 4

// Device capabilities
#define TECHNOLOGY 2
#define HORZSIZE 4
#define VERTSIZE 6
#define HORZRES 8
#define VERTRES 0xA
#define BITSPIXEL 0xC
#define PLANES 0xE
#define NUMCOLORS 0x18
#define LOGPIXELSX 0x58
#define LOGPIXELSY 0x5A
#define DT_PLOTTER 0
#define DT_RASDISPLAY 1
#define DT_RASPRINTER 2

// Object kinds
#define OBJ_PEN 1
#define OBJ_BRUSH 2
#define OBJ_DC 3
#define OBJ_PAL 5
#define OBJ_FONT 6
#define OBJ_BITMAP 7
#define OBJ_REGION 8
#define OBJ_MEMDC 0xA

// Raster operations
#define R2_BLACK 1
#define R2_NOTMERGEPEN 2
#define R2_MASKNOTPEN 3
#define R2_NOTCOPYPEN 4
#define R2_MASKPENNOT 5
#define R2_NOT 6
#define R2_XORPEN 7
#define R2_NOTMASKPEN 8
#define R2_MASKPEN 9
#define R2_NOTXORPEN 0xA
#define R2_NOP 0xB
#define R2_MERGENOTPEN 0xC
#define R2_COPYPEN 0xD
#define R2_MERGEPENNOT 0xE
#define R2_MERGEPEN 0xF
#define R2_WHITE 0x10
#define R2_LAST 0x10
#define SRCCOPY 0xCC0020
#define SRCPAINT 0xEE0086
#define SRCAND 0x8800C6
#define SRCINVERT 0x660046
#define SRCERASE 0x440328
#define NOTSRCCOPY 0x330008
#define PATCOPY 0xF00021
#define PATINVERT 0x5A0049
#define DSTINVERT 0x550009
#define BLACKNESS 0x42
#define WHITENESS 0xFF0062
#define BLACKONWHITE 1
#define COLORONCOLOR 3
#define HALFTONE 4
#define STRETCH_ANDSCANS 1
#define STRETCH_ORSCANS 2
#define STRETCH_DELETESCANS 3
#define STRETCH_HALFTONE 4

// Bitmaps
#define BI_RGB 0
#define BI_RLE8 1
#define BI_RLE4 2
#define BI_BITFIELDS 3
#define DIB_RGB_COLORS 0
#define DIB_PAL_COLORS 1

// Regions
#define ERROR 0
#define NULLREGION 1
#define SIMPLEREGION 2
#define COMPLEXREGION 3
#define RGN_AND 1
#define RGN_OR 2
#define RGN_XOR 3
#define RGN_DIFF 4
#define RGN_COPY 5
#define ALTERNATE 1
#define WINDING 2

// DrawText
#define DT_TOP 0
#define DT_LEFT 0
#define DT_CENTER 1
#define DT_RIGHT 2
#define DT_VCENTER 4
#define DT_BOTTOM 8
#define DT_WORDBREAK 0x10
#define DT_SINGLELINE 0x20
#define DT_EXPANDTABS 0x40
#define DT_TABSTOP 0x80
#define DT_NOCLIP 0x100
#define DT_EXTERNALLEADING 0x200
#define DT_CALCRECT 0x400
#define DT_NOPREFIX 0x800
#define DT_INTERNAL 0x1000
#define DT_EDITCONTROL 0x2000
#define DT_PATH_ELLIPSIS 0x4000
#define DT_END_ELLIPSIS 0x8000
#define DT_MODIFYSTRING 0x10000
#define DT_RTLREADING 0x20000
#define DT_WORD_ELLIPSIS 0x40000
#define DT_NOFULLWIDTHCHARBREAK 0x80000
#define DT_HIDEPREFIX 0x100000
#define DT_PREFIXONLY 0x200000

// Edges and frame controls
#define BDR_RAISEDOUTER 1
#define BDR_SUNKENOUTER 2
#define BDR_RAISEDINNER 4
#define BDR_SUNKENINNER 8
#define BDR_OUTER 3
#define BDR_INNER 0xC
#define BDR_RAISED 5
#define BDR_SUNKEN 0xA
#define EDGE_RAISED 5
#define EDGE_SUNKEN 0xA
#define EDGE_ETCHED 6
#define EDGE_BUMP 9
#define BF_LEFT 1
#define BF_TOP 2
#define BF_RIGHT 4
#define BF_BOTTOM 8
#define BF_TOPLEFT 3
#define BF_TOPRIGHT 6
#define BF_BOTTOMLEFT 9
#define BF_BOTTOMRIGHT 0xC
#define BF_RECT 0xF
#define BF_DIAGONAL 0x10
#define BF_DIAGONAL_ENDTOPRIGHT 0x16
#define BF_DIAGONAL_ENDTOPLEFT 0x13
#define BF_DIAGONAL_ENDBOTTOMLEFT 0x19
#define BF_DIAGONAL_ENDBOTTOMRIGHT 0x1C
#define BF_MIDDLE 0x800
#define BF_SOFT 0x1000
#define BF_ADJUST 0x2000
#define BF_FLAT 0x4000
#define BF_MONO 0x8000
#define DFC_CAPTION 1
#define DFC_MENU 2
#define DFC_SCROLL 3
#define DFC_BUTTON 4
#define DFC_POPUPMENU 5
#define DFCS_CAPTIONCLOSE 0
#define DFCS_CAPTIONMIN 1
#define DFCS_CAPTIONMAX 2
#define DFCS_CAPTIONRESTORE 3
#define DFCS_CAPTIONHELP 4
#define DFCS_MENUARROW 0
#define DFCS_MENUCHECK 1
#define DFCS_MENUBULLET 2
#define DFCS_MENUARROWRIGHT 4
#define DFCS_SCROLLUP 0
#define DFCS_SCROLLDOWN 1
#define DFCS_SCROLLLEFT 2
#define DFCS_SCROLLRIGHT 3
#define DFCS_SCROLLCOMBOBOX 5
#define DFCS_SCROLLSIZEGRIP 8
#define DFCS_SCROLLSIZEGRIPRIGHT 0x10
#define DFCS_BUTTONCHECK 0
#define DFCS_BUTTONRADIOIMAGE 1
#define DFCS_BUTTONRADIOMASK 2
#define DFCS_BUTTONRADIO 4
#define DFCS_BUTTON3STATE 8
#define DFCS_BUTTONPUSH 0x10
#define DFCS_INACTIVE 0x100
#define DFCS_PUSHED 0x200
#define DFCS_CHECKED 0x400
#define DFCS_TRANSPARENT 0x800
#define DFCS_HOT 0x1000
#define DFCS_ADJUSTRECT 0x2000
#define DFCS_FLAT 0x4000
#define DFCS_MONO 0x8000

// Text states and images
#define DST_COMPLEX 0
#define DST_TEXT 1
#define DST_PREFIXTEXT 2
#define DST_ICON 3
#define DST_BITMAP 4
#define DSS_NORMAL 0
#define DSS_UNION 0x10
#define DSS_DISABLED 0x20
#define DSS_MONO 0x80
#define DSS_HIDEPREFIX 0x200
#define DSS_PREFIXONLY 0x400
#define DSS_RIGHT 0x8000
#define DI_MASK 1
#define DI_IMAGE 2
#define DI_NORMAL 3
#define DI_COMPAT 4
#define DI_DEFAULTSIZE 8
#define DI_NOMIRROR 0x10
#define GR_GDIOBJECTS 0
#define GR_USEROBJECTS 1
#define GR_GDIOBJECTS_PEAK 2
#define GR_USEROBJECTS_PEAK 4

#define RGB(R, G, B)                                                                                         \
    (static_cast<COLORREF>(static_cast<BYTE>(R) | (static_cast<DWORD>(static_cast<BYTE>(G)) << 8) |          \
                           (static_cast<DWORD>(static_cast<BYTE>(B)) << 16)))
#define GetRValue(Color) (static_cast<BYTE>(Color))
#define GetGValue(Color) (static_cast<BYTE>((Color) >> 8))
#define GetBValue(Color) (static_cast<BYTE>((Color) >> 16))

// Printer settings; the printer's members only, at their places in the real structure.
#define CCHDEVICENAME 32
#define CCHFORMNAME 32
struct DEVMODEA {
    BYTE dmDeviceName[CCHDEVICENAME];
    WORD dmSpecVersion, dmDriverVersion, dmSize, dmDriverExtra;
    DWORD dmFields;
    SHORT dmOrientation, dmPaperSize, dmPaperLength, dmPaperWidth, dmScale, dmCopies, dmDefaultSource,
        dmPrintQuality;
    SHORT dmColor, dmDuplex, dmYResolution, dmTTOption, dmCollate;
    BYTE dmFormName[CCHFORMNAME];
    WORD dmLogPixels;
    DWORD dmBitsPerPel, dmPelsWidth, dmPelsHeight, dmNup, dmDisplayFrequency, dmICMMethod, dmICMIntent,
        dmMediaType, dmDitherType, dmReserved1, dmReserved2, dmPanningWidth, dmPanningHeight;
};
using DEVMODE = DEVMODEA;
using LPDEVMODEA = DEVMODEA*;
using PDEVMODEA = DEVMODEA*;
#define DM_SPECVERSION 0x0401
#define DM_ORIENTATION 0x00000001
#define DM_PAPERSIZE 0x00000002
#define DM_PAPERLENGTH 0x00000004
#define DM_PAPERWIDTH 0x00000008
#define DM_SCALE 0x00000010
#define DM_COPIES 0x00000100
#define DM_DEFAULTSOURCE 0x00000200
#define DM_PRINTQUALITY 0x00000400
#define DM_COLOR 0x00000800
#define DM_DUPLEX 0x00001000
#define DM_YRESOLUTION 0x00002000
#define DM_COLLATE 0x00008000
#define DM_FORMNAME 0x00010000
#define DMORIENT_PORTRAIT 1
#define DMORIENT_LANDSCAPE 2
#define DMPAPER_LETTER 1
#define DMPAPER_LEGAL 5
#define DMPAPER_A3 8
#define DMPAPER_A4 9
#define DMPAPER_A5 11
#define DMPAPER_B5 13
#define DMBIN_UPPER 1
#define DMBIN_AUTO 7
#define DMCOLLATE_FALSE 0
#define DMCOLLATE_TRUE 1

struct LOGFONTA {
    LONG lfHeight; // negative: height of the characters; positive: of the line; 0: default
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight;
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    CHAR lfFaceName[LF_FACESIZE];
};
using LOGFONT = LOGFONTA;
using PLOGFONTA = LOGFONTA*;
using LPLOGFONTA = LOGFONTA*;

struct ENUMLOGFONTEXA {
    LOGFONTA elfLogFont;
    BYTE elfFullName[LF_FULLFACESIZE];
    BYTE elfStyle[LF_FACESIZE];
    BYTE elfScript[LF_FACESIZE];
};

struct TEXTMETRICA {
    LONG tmHeight;
    LONG tmAscent;
    LONG tmDescent;
    LONG tmInternalLeading;
    LONG tmExternalLeading;
    LONG tmAveCharWidth;
    LONG tmMaxCharWidth;
    LONG tmWeight;
    LONG tmOverhang;
    LONG tmDigitizedAspectX;
    LONG tmDigitizedAspectY;
    BYTE tmFirstChar;
    BYTE tmLastChar;
    BYTE tmDefaultChar;
    BYTE tmBreakChar;
    BYTE tmItalic;
    BYTE tmUnderlined;
    BYTE tmStruckOut;
    BYTE tmPitchAndFamily;
    BYTE tmCharSet;
};
using TEXTMETRIC = TEXTMETRICA;
using LPTEXTMETRICA = TEXTMETRICA*;
using FONTENUMPROCA = int(CALLBACK*)(const LOGFONTA*, const TEXTMETRICA*, DWORD, LPARAM);

struct LOGPEN {
    UINT lopnStyle;
    POINT lopnWidth;
    COLORREF lopnColor;
};

struct LOGBRUSH {
    UINT lbStyle;
    COLORREF lbColor;
    ULONG_PTR lbHatch;
};

struct BITMAP {
    LONG bmType;
    LONG bmWidth;
    LONG bmHeight;
    LONG bmWidthBytes;
    WORD bmPlanes;
    WORD bmBitsPixel;
    LPVOID bmBits;
};

struct RGBQUAD {
    BYTE rgbBlue;
    BYTE rgbGreen;
    BYTE rgbRed;
    BYTE rgbReserved;
};

struct BITMAPINFOHEADER {
    DWORD biSize;
    LONG biWidth;
    LONG biHeight; // negative: the top row comes first
    WORD biPlanes;
    WORD biBitCount;
    DWORD biCompression;
    DWORD biSizeImage;
    LONG biXPelsPerMeter;
    LONG biYPelsPerMeter;
    DWORD biClrUsed;
    DWORD biClrImportant;
};

struct BITMAPINFO {
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[1];
};

#pragma pack(push, 2)
struct BITMAPFILEHEADER {
    WORD bfType;
    DWORD bfSize;
    WORD bfReserved1;
    WORD bfReserved2;
    DWORD bfOffBits;
};
#pragma pack(pop)

struct DIBSECTION {
    BITMAP dsBm;
    BITMAPINFOHEADER dsBmih;
    DWORD dsBitfields[3];
    HANDLE dshSection;
    DWORD dsOffset;
};

struct DRAWTEXTPARAMS {
    UINT cbSize;
    int iTabLength;
    int iLeftMargin;
    int iRightMargin;
    UINT uiLengthDrawn;
};

struct PAINTSTRUCT {
    HDC hdc;
    BOOL fErase;
    RECT rcPaint;
    BOOL fRestore;
    BOOL fIncUpdate;
    BYTE rgbReserved[32];
};

// Device contexts
HDC GetDC(HWND Window);
HDC GetWindowDC(HWND Window);
int ReleaseDC(HWND Window, HDC Dc);
HDC BeginPaint(HWND Window, PAINTSTRUCT* Paint);
BOOL EndPaint(HWND Window, const PAINTSTRUCT* Paint);
HDC CreateCompatibleDC(HDC Dc);
BOOL DeleteDC(HDC Dc);
int SaveDC(HDC Dc);
BOOL RestoreDC(HDC Dc, int Saved);
HWND WindowFromDC(HDC Dc);
int GetDeviceCaps(HDC Dc, int Index);
BOOL SetViewportOrgEx(HDC Dc, int X, int Y, POINT* Old);
BOOL OffsetViewportOrgEx(HDC Dc, int X, int Y, POINT* Old);
BOOL GetViewportOrgEx(HDC Dc, POINT* Point);
BOOL SetWindowOrgEx(HDC Dc, int X, int Y, POINT* Old);
BOOL GetWindowOrgEx(HDC Dc, POINT* Point);
BOOL LPtoDP(HDC Dc, POINT* Points, int Count);
BOOL DPtoLP(HDC Dc, POINT* Points, int Count);
int SetMapMode(HDC Dc, int Mode);
DWORD SetLayout(HDC Dc, DWORD Layout);
DWORD GetLayout(HDC Dc);

// Objects
HGDIOBJ SelectObject(HDC Dc, HGDIOBJ Object);
HGDIOBJ GetCurrentObject(HDC Dc, UINT Kind);
BOOL DeleteObject(HGDIOBJ Object);
HGDIOBJ GetStockObject(int Index);
DWORD GetObjectType(HGDIOBJ Object);
int GetObjectA(HANDLE Object, int Size, LPVOID Data);
HFONT CreateFontIndirectA(const LOGFONTA* Font);
HFONT CreateFontA(int Height, int Width, int Escapement, int Orientation, int Weight, DWORD Italic,
                  DWORD Underline, DWORD StrikeOut, DWORD CharSet, DWORD OutPrecision, DWORD ClipPrecision,
                  DWORD Quality, DWORD PitchAndFamily, LPCSTR FaceName);
HBRUSH CreateSolidBrush(COLORREF Color);
HBRUSH CreateHatchBrush(int Hatch, COLORREF Color);
HBRUSH CreatePatternBrush(HBITMAP Bitmap);
HBRUSH CreateBrushIndirect(const LOGBRUSH* Brush);
HPEN CreatePen(int Style, int Width, COLORREF Color);
HPEN CreatePenIndirect(const LOGPEN* Pen);

// Text. On Windows the byte functions take the code page of the font's character
// set whatever the process code page is; texts that are more than ASCII go through
// the W functions there. Here both take all of Unicode.
COLORREF SetTextColor(HDC Dc, COLORREF Color);
COLORREF GetTextColor(HDC Dc);
COLORREF SetBkColor(HDC Dc, COLORREF Color);
COLORREF GetBkColor(HDC Dc);
int SetBkMode(HDC Dc, int Mode);
int GetBkMode(HDC Dc);
UINT SetTextAlign(HDC Dc, UINT Align);
UINT GetTextAlign(HDC Dc);
int SetROP2(HDC Dc, int Mode);
COLORREF SetDCBrushColor(HDC Dc, COLORREF Color);
COLORREF SetDCPenColor(HDC Dc, COLORREF Color);
BOOL GetTextMetricsA(HDC Dc, TEXTMETRICA* Metrics);
BOOL GetTextExtentPoint32A(HDC Dc, LPCSTR Text, int Count, SIZE* Size);
BOOL GetTextExtentPoint32W(HDC Dc, LPCWSTR Text, int Count, SIZE* Size);
BOOL TextOutW(HDC Dc, int X, int Y, LPCWSTR Text, int Count);
BOOL ExtTextOutW(HDC Dc, int X, int Y, UINT Options, const RECT* Rect, LPCWSTR Text, UINT Count,
                 const int* Widths);
int DrawTextW(HDC Dc, LPCWSTR Text, int Count, RECT* Rect, UINT Format);
BOOL GetTextExtentPointA(HDC Dc, LPCSTR Text, int Count, SIZE* Size);
// Fit receives how many bytes of Text fit into MaxExtent (whole characters);
// Widths, one entry a byte, the width up to and including that byte's character.
BOOL GetTextExtentExPointA(HDC Dc, LPCSTR Text, int Count, int MaxExtent, int* Fit, int* Widths, SIZE* Size);
int GetTextFaceA(HDC Dc, int Count, LPSTR Name);
int GetTextCharset(HDC Dc);
BOOL TextOutA(HDC Dc, int X, int Y, LPCSTR Text, int Count);
BOOL ExtTextOutA(HDC Dc, int X, int Y, UINT Options, const RECT* Rect, LPCSTR Text, UINT Count,
                 const int* Widths);
int DrawTextA(HDC Dc, LPCSTR Text, int Count, RECT* Rect, UINT Format);
int DrawTextExA(HDC Dc, LPSTR Text, int Count, RECT* Rect, UINT Format, DRAWTEXTPARAMS* Params);
LONG TabbedTextOutA(HDC Dc, int X, int Y, LPCSTR Text, int Count, int Tabs, const int* Positions, int Origin);
DWORD GetTabbedTextExtentA(HDC Dc, LPCSTR Text, int Count, int Tabs, const int* Positions);
int EnumFontFamiliesExA(HDC Dc, LOGFONTA* Font, FONTENUMPROCA Proc, LPARAM Param, DWORD Flags);

// Shapes
BOOL MoveToEx(HDC Dc, int X, int Y, POINT* Old);
BOOL LineTo(HDC Dc, int X, int Y);
BOOL Polyline(HDC Dc, const POINT* Points, int Count);
BOOL Polygon(HDC Dc, const POINT* Points, int Count);
BOOL Rectangle(HDC Dc, int Left, int Top, int Right, int Bottom);
BOOL RoundRect(HDC Dc, int Left, int Top, int Right, int Bottom, int Width, int Height);
BOOL Ellipse(HDC Dc, int Left, int Top, int Right, int Bottom);
BOOL Arc(HDC Dc, int Left, int Top, int Right, int Bottom, int X1, int Y1, int X2, int Y2);
BOOL Pie(HDC Dc, int Left, int Top, int Right, int Bottom, int X1, int Y1, int X2, int Y2);
BOOL PatBlt(HDC Dc, int X, int Y, int Width, int Height, DWORD Operation);
int FillRect(HDC Dc, const RECT* Rect, HBRUSH Brush);
int FrameRect(HDC Dc, const RECT* Rect, HBRUSH Brush);
BOOL InvertRect(HDC Dc, const RECT* Rect);
BOOL DrawEdge(HDC Dc, RECT* Rect, UINT Edge, UINT Flags);
BOOL DrawFrameControl(HDC Dc, RECT* Rect, UINT Kind, UINT State);
BOOL DrawFocusRect(HDC Dc, const RECT* Rect);
COLORREF SetPixel(HDC Dc, int X, int Y, COLORREF Color);
BOOL SetPixelV(HDC Dc, int X, int Y, COLORREF Color);
COLORREF GetPixel(HDC Dc, int X, int Y);

// Bitmaps and icons
HBITMAP CreateBitmap(int Width, int Height, UINT Planes, UINT BitCount, const void* Bits);
HBITMAP CreateCompatibleBitmap(HDC Dc, int Width, int Height);
HBITMAP CreateDIBSection(HDC Dc, const BITMAPINFO* Info, UINT Usage, void** Bits, HANDLE Section,
                         DWORD Offset);
HBITMAP CreateDIBitmap(HDC Dc, const BITMAPINFOHEADER* Header, DWORD Init, const void* Bits,
                       const BITMAPINFO* Info, UINT Usage);
int GetDIBits(HDC Dc, HBITMAP Bitmap, UINT Start, UINT Lines, LPVOID Bits, BITMAPINFO* Info, UINT Usage);
int SetDIBits(HDC Dc, HBITMAP Bitmap, UINT Start, UINT Lines, const void* Bits, const BITMAPINFO* Info,
              UINT Usage);
int SetDIBitsToDevice(HDC Dc, int X, int Y, DWORD Width, DWORD Height, int SourceX, int SourceY, UINT Start,
                      UINT Lines, const void* Bits, const BITMAPINFO* Info, UINT Usage);
int StretchDIBits(HDC Dc, int X, int Y, int Width, int Height, int SourceX, int SourceY, int SourceWidth,
                  int SourceHeight, const void* Bits, const BITMAPINFO* Info, UINT Usage, DWORD Operation);
BOOL BitBlt(HDC Dc, int X, int Y, int Width, int Height, HDC Source, int SourceX, int SourceY,
            DWORD Operation);
BOOL StretchBlt(HDC Dc, int X, int Y, int Width, int Height, HDC Source, int SourceX, int SourceY,
                int SourceWidth, int SourceHeight, DWORD Operation);
int SetStretchBltMode(HDC Dc, int Mode);
BOOL GdiFlush();
BOOL DrawIcon(HDC Dc, int X, int Y, HICON Icon);
BOOL DrawIconEx(HDC Dc, int X, int Y, HICON Icon, int Width, int Height, UINT Step, HBRUSH Brush, UINT Flags);

// Regions
HRGN CreateRectRgn(int Left, int Top, int Right, int Bottom);
HRGN CreateRectRgnIndirect(const RECT* Rect);
BOOL SetRectRgn(HRGN Region, int Left, int Top, int Right, int Bottom);
int CombineRgn(HRGN Target, HRGN First, HRGN Second, int Mode);
int OffsetRgn(HRGN Region, int X, int Y);
int GetRgnBox(HRGN Region, RECT* Rect);
BOOL PtInRegion(HRGN Region, int X, int Y);
BOOL RectInRegion(HRGN Region, const RECT* Rect);
BOOL EqualRgn(HRGN First, HRGN Second);
BOOL FillRgn(HDC Dc, HRGN Region, HBRUSH Brush);
int SelectClipRgn(HDC Dc, HRGN Region);
int ExtSelectClipRgn(HDC Dc, HRGN Region, int Mode);
int GetClipRgn(HDC Dc, HRGN Region);
int GetClipBox(HDC Dc, RECT* Rect);
int IntersectClipRect(HDC Dc, int Left, int Top, int Right, int Bottom);
int ExcludeClipRect(HDC Dc, int Left, int Top, int Right, int Bottom);
BOOL RectVisible(HDC Dc, const RECT* Rect);
BOOL PtVisible(HDC Dc, int X, int Y);

// Number of drawing objects (GR_GDIOBJECTS) that the process holds, stock
// objects not counted; 0 for other kinds.
DWORD GetGuiResources(HANDLE Process, DWORD Kind);
