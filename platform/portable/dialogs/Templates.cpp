#include "platform/portable/dialogs/Templates.h"

namespace {

constexpr const char Button[] = "Button", ComboBox[] = "ComboBox", Edit[] = "Edit", Static[] = "Static";

constexpr TItemRow FileItems[] = {
    {stc4, Static, 0x50020100, 0x0, 28, 6, 36, 8, "Look &in:"},
    {cmb2, ComboBox, 0x50010213, 0x0, 64, 3, 150, 100, ""},
    {stc1, Static, 0x40000000, 0x0, 209, 2, 102, 17, ""},
    {PlacesBar, "ToolbarWindow32", 0x5000084D, 0x0, 4, 20, 56, 192, ""},
    {lst1, "ListBox", 0x40000303, 0x200, 64, 20, 300, 155, ""},
    {stc3, Static, 0x50020100, 0x0, 65, 182, 56, 16, "File &name:"},
    {cmb13, "ComboBoxEx32", 0x50010042, 0x0, 123, 180, 180, 100, ""},
    {stc2, Static, 0x50020100, 0x0, 65, 200, 56, 16, "Files of &type:"},
    {cmb1, ComboBox, 0x50010003, 0x0, 123, 198, 180, 100, ""},
    {chx1, Button, 0x48010003, 0x0, 123, 218, 150, 10, "Open as &read-only"},
    {IDOK, Button, 0x50010001, 0x0, 310, 180, 54, 14, "&Open"},
    {IDCANCEL, Button, 0x50010000, 0x0, 310, 198, 54, 14, "Cancel"},
    {pshHelp, Button, 0x48010000, 0x0, 310, 215, 54, 14, "&Help"},
};

constexpr TItemRow FontItems[] = {
    {stc1, Static, 0x50020000, 0x0, 6, 3, 90, 9, "&Font:"},
    {cmb1, ComboBox, 0x50010B51, 0x0, 6, 13, 94, 76, ""},
    {stc2, Static, 0x50020000, 0x0, 108, 3, 60, 9, "Font St&yle:"},
    {cmb2, ComboBox, 0x50010A11, 0x0, 108, 13, 64, 76, ""},
    {stc3, Static, 0x50020000, 0x0, 179, 3, 32, 9, "&Size:"},
    {cmb3, ComboBox, 0x50010B11, 0x0, 179, 13, 32, 76, ""},
    {IDOK, Button, 0x50030001, 0x0, 218, 6, 50, 14, "OK"},
    {IDCANCEL, Button, 0x50030000, 0x0, 218, 23, 50, 14, "Cancel"},
    {psh3, Button, 0x40030000, 0x0, 218, 40, 50, 14, "&Apply"},
    {pshHelp, Button, 0x40030000, 0x0, 218, 57, 50, 14, "&Help"},
    {grp1, Button, 0x50020007, 0x0, 6, 92, 84, 36, "Effects"},
    {chx1, Button, 0x50010003, 0x0, 10, 102, 78, 10, "Stri&keout"},
    {chx2, Button, 0x50010003, 0x0, 10, 114, 78, 10, "&Underline"},
    {stc4, Static, 0x50020000, 0x0, 6, 134, 80, 9, "&Color:"},
    {cmb4, ComboBox, 0x50010253, 0x0, 6, 144, 84, 100, ""},
    {grp2, Button, 0x50020007, 0x0, 98, 92, 120, 36, "Sample"},
    {stc5, Static, 0x40020081, 0x0, 103, 101, 109, 24, ""},
    {stc7, Static, 0x50020000, 0x0, 98, 134, 40, 9, "Scr&ipt:"},
    {cmb5, ComboBox, 0x50010243, 0x0, 98, 144, 120, 100, ""},
};

constexpr TItemRow ColorItems[] = {
    {stc1, Static, 0x50020000, 0x0, 4, 4, 140, 10, "&Basic Colors:"},
    {stc2, Static, 0x50020000, 0x0, 4, 106, 140, 10, "&Custom Colors:"},
    {730, Static, 0x50020002, 0x0, 150, 151, 20, 10, "Color"},
    {731, Static, 0x50020000, 0x0, 170, 151, 20, 10, "|S&olid"},
    {726, Static, 0x40020000, 0x0, 247, 126, 27, 10, "&Red:"},
    {RedEdit, Edit, 0x40030000, 0x200, 275, 124, 21, 12, ""},
    {727, Static, 0x40020000, 0x0, 247, 140, 27, 10, "&Green:"},
    {GreenEdit, Edit, 0x40030000, 0x200, 275, 138, 21, 12, ""},
    {728, Static, 0x40020000, 0x0, 247, 154, 27, 10, "&Blue:"},
    {BlueEdit, Edit, 0x40030000, 0x200, 275, 152, 21, 12, ""},
    {723, Static, 0x40020000, 0x0, 200, 126, 24, 10, "&Hue:"},
    {HueEdit, Edit, 0x40030000, 0x200, 224, 124, 21, 12, ""},
    {724, Static, 0x40020000, 0x0, 200, 140, 24, 10, "&Sat:"},
    {SatEdit, Edit, 0x40030000, 0x200, 224, 138, 21, 12, ""},
    {725, Static, 0x40020000, 0x0, 200, 154, 24, 10, "&Lum:"},
    {LumEdit, Edit, 0x40030000, 0x200, 224, 152, 21, 12, ""},
    {BasicColors, Static, 0x5003000B, 0x0, 4, 14, 140, 86, ""},
    {CustomColors, Static, 0x5003000B, 0x0, 4, 116, 140, 28, ""},
    {ColorField, Static, 0x4003100B, 0x20200, 152, 4, 118, 116, ""},
    {LumField, Static, 0x5003100B, 0x20000, 278, 4, 8, 116, ""},
    {ResultField, Static, 0x4003100B, 0x20000, 152, 124, 40, 26, ""},
    {IDOK, Button, 0x50030001, 0x0, 4, 167, 50, 14, "OK"},
    {IDCANCEL, Button, 0x50030000, 0x0, 58, 167, 50, 14, "Cancel"},
    {pshHelp, Button, 0x40010000, 0x0, 100, 166, 44, 14, "Help"},
    {AddColor, Button, 0x40030000, 0x0, 152, 167, 144, 14, "&Add to Custom Colors"},
    {DefineColors, Button, 0x50030000, 0x0, 4, 149, 142, 14, "&Define Custom Colors >>"},
    {SolidColor, Button, 0x40030000, 0x0, 300, 200, 4, 14, "&o"},
};

constexpr TItemRow FindItems[] = {
    {-1, Static, 0x50020000, 0x0, 4, 8, 52, 8, "Fi&nd What:"},
    {edt1, Edit, 0x50030080, 0x200, 57, 7, 148, 12, ""},
    {chx1, Button, 0x50030003, 0x0, 4, 26, 140, 12, "Match &Whole Word Only"},
    {chx2, Button, 0x50010003, 0x0, 4, 42, 140, 12, "Match &Case"},
    {grp1, Button, 0x50000007, 0x0, 147, 21, 58, 38, "Direction"},
    {rad1, Button, 0x50020009, 0x0, 151, 30, 48, 12, "&Up"},
    {rad2, Button, 0x50010009, 0x0, 151, 44, 48, 12, "&Down"},
    {IDOK, Button, 0x50030001, 0x0, 212, 6, 60, 14, "&Find Next"},
    {IDCANCEL, Button, 0x50030000, 0x0, 212, 24, 60, 14, "Cancel"},
    {pshHelp, Button, 0x40030000, 0x0, 212, 42, 60, 14, "&Help"},
};

constexpr TItemRow ReplaceItems[] = {
    {-1, Static, 0x50020000, 0x0, 4, 8, 52, 8, "Fi&nd What:"},
    {edt1, Edit, 0x50030080, 0x200, 57, 7, 148, 12, ""},
    {-1, Static, 0x50020000, 0x0, 4, 26, 52, 8, "Re&place With:"},
    {edt2, Edit, 0x50030080, 0x200, 57, 24, 148, 12, ""},
    {chx1, Button, 0x50030003, 0x0, 5, 46, 120, 12, "Match &Whole Word Only"},
    {chx2, Button, 0x50010003, 0x0, 5, 62, 120, 12, "Match &Case"},
    {IDOK, Button, 0x50030001, 0x0, 212, 6, 60, 14, "&Find Next"},
    {psh1, Button, 0x50030000, 0x0, 212, 24, 60, 14, "&Replace"},
    {psh2, Button, 0x50030000, 0x0, 212, 42, 60, 14, "Replace &All"},
    {IDCANCEL, Button, 0x50030000, 0x0, 212, 60, 60, 14, "Cancel"},
    {pshHelp, Button, 0x40030000, 0x0, 212, 78, 60, 14, "&Help"},
};

constexpr TItemRow PrintItems[] = {
    {grp4, Button, 0x50020007, 0x0, 8, 4, 272, 84, "Printer"},
    {cmb4, ComboBox, 0x50030103, 0x0, 52, 18, 152, 100, ""},
    {psh2, Button, 0x50030000, 0x0, 212, 17, 60, 14, "&Properties"},
    {chx1, Button, 0x50030003, 0x0, 185, 36, 90, 16, "Print to fi&le"},
    {stc6, Static, 0x50020000, 0x0, 16, 20, 36, 8, "&Name:"},
    {stc8, Static, 0x50020080, 0x0, 16, 36, 47, 10, "Status:"},
    {stc12, Static, 0x5002008C, 0x0, 65, 36, 120, 10, ""},
    {stc7, Static, 0x50020080, 0x0, 16, 48, 47, 10, "Type:"},
    {stc11, Static, 0x5002008C, 0x0, 65, 48, 212, 10, ""},
    {stc10, Static, 0x50020080, 0x0, 16, 60, 47, 10, "Where:"},
    {stc14, Static, 0x5002008C, 0x0, 65, 60, 212, 10, ""},
    {stc9, Static, 0x50020080, 0x0, 16, 72, 47, 10, "Comment:"},
    {stc13, Static, 0x5002008C, 0x0, 65, 72, 212, 10, ""},
    {grp1, Button, 0x50020007, 0x0, 8, 92, 144, 64, "Print range"},
    {rad1, Button, 0x50030009, 0x0, 16, 106, 64, 12, "&All"},
    {rad3, Button, 0x50000009, 0x0, 16, 122, 36, 12, "Pa&ges"},
    {rad2, Button, 0x50000009, 0x0, 16, 138, 64, 12, "&Selection"},
    {edt1, Edit, 0x50032000, 0x200, 73, 122, 26, 12, ""},
    {edt2, Edit, 0x50032000, 0x200, 120, 122, 26, 12, ""},
    {stc2, Static, 0x50020002, 0x0, 52, 124, 20, 8, "&from:"},
    {stc3, Static, 0x50020002, 0x0, 99, 124, 20, 8, "&to:"},
    {grp2, Button, 0x50020007, 0x0, 160, 92, 120, 64, "Copies"},
    {stc5, Static, 0x50020000, 0x0, 168, 105, 68, 8, "Number of &copies:"},
    {ico3, Static, 0x50020203, 0x0, 170, 131, 76, 24, ""},
    {chx2, Button, 0x50030003, 0x0, 168, 118, 100, 12, "C&ollate"},
    {edt3, Edit, 0x50032000, 0x200, 240, 103, 32, 12, ""},
    {IDOK, Button, 0x50030001, 0x0, 176, 164, 50, 14, "OK"},
    {IDCANCEL, Button, 0x50030000, 0x0, 230, 164, 50, 14, "Cancel"},
    {pshHelp, Button, 0x40030000, 0x0, 50, 164, 50, 14, "&Help"},
};

constexpr TItemRow PrintSetupItems[] = {
    {grp4, Button, 0x50020007, 0x0, 8, 4, 272, 84, "Printer"},
    {stc6, Static, 0x50020000, 0x0, 16, 20, 36, 8, "&Name:"},
    {cmb1, ComboBox, 0x50030103, 0x0, 60, 18, 152, 100, ""},
    {psh2, Button, 0x50030000, 0x0, 212, 17, 60, 14, "&Properties"},
    {stc8, Static, 0x50020080, 0x0, 16, 36, 44, 10, "Status:"},
    {stc12, Static, 0x5002008C, 0x0, 60, 36, 212, 10, ""},
    {stc7, Static, 0x50020080, 0x0, 16, 48, 44, 10, "Type:"},
    {stc11, Static, 0x5002008C, 0x0, 60, 48, 212, 10, ""},
    {stc10, Static, 0x50020080, 0x0, 16, 60, 44, 10, "Where:"},
    {stc14, Static, 0x5002008C, 0x0, 60, 60, 212, 10, ""},
    {stc9, Static, 0x50020080, 0x0, 16, 72, 44, 10, "Comment:"},
    {stc13, Static, 0x5002008C, 0x0, 60, 72, 212, 10, ""},
    {grp2, Button, 0x50020007, 0x0, 8, 92, 164, 56, "Paper"},
    {stc2, Static, 0x50020000, 0x0, 16, 108, 36, 8, "Si&ze:"},
    {cmb2, ComboBox, 0x50030103, 0x0, 52, 106, 112, 100, ""},
    {stc3, Static, 0x50020000, 0x0, 16, 128, 36, 8, "&Source:"},
    {cmb3, ComboBox, 0x50030103, 0x0, 52, 126, 112, 100, ""},
    {grp1, Button, 0x50020007, 0x0, 180, 92, 100, 56, "Orientation"},
    {ico1, Static, 0x50020003, 0x0, 195, 112, 21, 20, ""},
    {rad1, Button, 0x50030009, 0x0, 224, 106, 52, 12, "P&ortrait"},
    {rad2, Button, 0x50000009, 0x0, 224, 126, 52, 12, "L&andscape"},
    {IDOK, Button, 0x50030001, 0x0, 176, 156, 50, 14, "OK"},
    {IDCANCEL, Button, 0x50010000, 0x0, 230, 156, 50, 14, "Cancel"},
    {pshHelp, Button, 0x40010000, 0x0, 8, 156, 50, 14, "&Help"},
};

} // namespace

const TDialogTemplate FileTemplate{0x96CC00C4, 371, 222, "Open", FileItems};
const TDialogTemplate FontTemplate{0x94C800C4, 274, 169, "Font", FontItems};
const TDialogTemplate ColorTemplate{0x94C800C4, 300, 185, "Color", ColorItems};
const TDialogTemplate FindTemplate{0x84C800C4, 276, 62, "Find", FindItems};
const TDialogTemplate ReplaceTemplate{0x84C800C4, 276, 94, "Replace", ReplaceItems};
const TDialogTemplate PrintTemplate{0x94C820C4, 288, 186, "Print", PrintItems};
const TDialogTemplate PrintSetupTemplate{0x94C820C4, 288, 178, "Print Setup", PrintSetupItems};
