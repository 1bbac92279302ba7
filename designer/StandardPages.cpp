#include "designer/StandardPages.h"

#include <vector>

#include "framework/design/Palette.h"

namespace {

struct TPage {
    const char* Name;
    std::vector<const char*> Classes;
};

const TPage Pages[] = {
    {"Standard",
     {"TMainMenu", "TPopupMenu", "TLabel", "TEdit", "TMemo", "TButton", "TCheckBox", "TRadioButton",
      "TListBox", "TComboBox", "TScrollBar", "TGroupBox", "TRadioGroup", "TPanel", "TActionList"}},
    {"Additional",
     {"TBitBtn", "TSpeedButton", "TMaskEdit", "TStringGrid", "TDrawGrid", "TImage", "TShape", "TBevel",
      "TScrollBox", "TCheckListBox", "TSplitter", "TStaticText", "TLabeledEdit", "TApplicationEvents"}},
    {"Common controls",
     {"TTabControl", "TPageControl", "TImageList", "TRichEdit", "TTrackBar", "TProgressBar", "TUpDown",
      "THotKey", "TDateTimePicker", "TMonthCalendar", "TTreeView", "TListView", "THeaderControl",
      "TStatusBar", "TToolBar", "TCoolBar"}},
    {"System", {"TTimer", "TPaintBox"}},
    {"Dialogs",
     {"TOpenDialog", "TSaveDialog", "TFontDialog", "TColorDialog", "TPrintDialog", "TPrinterSetupDialog",
      "TFindDialog", "TReplaceDialog"}},
};

} // namespace

void RegisterStandardPages()
{
    for (const TPage& Page : Pages)
        for (const char* const Name : Page.Classes)
            if (const TMetaClass* const Class = GetClass(Name))
                RegisterComponents(Page.Name, {Class});
}
