// The standard dialogs as the system has them (tests/data/dialogs.txt): places and
// sizes in dialog units, styles and window order of their controls, initial texts.
// Labels that reach into their neighbours are a little narrower: here the first of two
// siblings is painted over the other.
#pragma once

#include <span>

#include "platform/portable/dlgs.h"
#include "platform/portable/winuser.h"

struct TItemRow {
    int Id;
    const char* ClassName;
    DWORD Style;
    DWORD ExStyle;
    short Left, Top, Width, Height; // the height of a drop-down list counts the list
    const char* Text;
};

struct TDialogTemplate {
    DWORD Style;
    short Width, Height;
    const char* Title;
    std::span<const TItemRow> Items;
};

// Identifiers that have no name in dlgs.h.
enum {
    ShellList = lst2,
    PlacesBar = 1184,
    FolderBar = 1,
    LumField = 702,
    HueEdit = 703,
    SatEdit = 704,
    LumEdit = 705,
    RedEdit = 706,
    GreenEdit = 707,
    BlueEdit = 708,
    ResultField = 709,
    ColorField = 710,
    AddColor = 712,
    SolidColor = 713,
    DefineColors = 719,
    BasicColors = 720,
    CustomColors = 721,
    CopiesUpDown = 9999
};

extern const TDialogTemplate FileTemplate, FontTemplate, ColorTemplate, FindTemplate, ReplaceTemplate,
    PrintTemplate, PrintSetupTemplate;
