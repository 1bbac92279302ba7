#include "wizard/DialogTexts.h"

#include <algorithm>
#include <map>
#include <span>

#include "core/Literals.h"
#include "framework/streaming/FormNames.h"

namespace {

// The number of a control in brackets, nothing for the title, and its text.
struct TCaption {
    const char* Control;
    const char* Text;
};

constexpr TCaption OpenCaptions[] = {{"", "Open"},
                                     {"[1091]", "Look &in:"},
                                     {"[1090]", "File &name:"},
                                     {"[1089]", "Files of &type:"},
                                     {"[1040]", "Open as &read-only"},
                                     {"[1]", "&Open"},
                                     {"[2]", "Cancel"},
                                     {"[1038]", "&Help"}};
constexpr TCaption SaveCaptions[] = {{"", "Save As"},
                                     {"[1091]", "Save &in:"},
                                     {"[1090]", "File &name:"},
                                     {"[1089]", "Files of &type:"},
                                     {"[1040]", "Open as &read-only"},
                                     {"[1]", "&Save"},
                                     {"[2]", "Cancel"},
                                     {"[1038]", "&Help"}};
constexpr TCaption FontCaptions[] = {
    {"", "Font"},          {"[1088]", "&Font:"},     {"[1089]", "Font St&yle:"}, {"[1090]", "&Size:"},
    {"[1]", "OK"},         {"[2]", "Cancel"},        {"[1026]", "&Apply"},       {"[1038]", "&Help"},
    {"[1072]", "Effects"}, {"[1040]", "Stri&keout"}, {"[1041]", "&Underline"},   {"[1091]", "&Color:"},
    {"[1073]", "Sample"},  {"[1094]", "Scr&ipt:"}};
constexpr TCaption ColorCaptions[] = {{"", "Color"},
                                      {"[1088]", "&Basic Colors:"},
                                      {"[1089]", "&Custom Colors:"},
                                      {"[730]", "Color"},
                                      {"[731]", "|S&olid"},
                                      {"[726]", "&Red:"},
                                      {"[727]", "&Green:"},
                                      {"[728]", "&Blue:"},
                                      {"[723]", "&Hue:"},
                                      {"[724]", "&Sat:"},
                                      {"[725]", "&Lum:"},
                                      {"[1]", "OK"},
                                      {"[2]", "Cancel"},
                                      {"[1038]", "Help"},
                                      {"[712]", "&Add to Custom Colors"},
                                      {"[719]", "&Define Custom Colors >>"}};
constexpr TCaption FindCaptions[] = {{"", "Find"},
                                     {"[-1]", "Fi&nd What:"},
                                     {"[1040]", "Match &Whole Word Only"},
                                     {"[1041]", "Match &Case"},
                                     {"[1072]", "Direction"},
                                     {"[1056]", "&Up"},
                                     {"[1057]", "&Down"},
                                     {"[1]", "&Find Next"},
                                     {"[2]", "Cancel"},
                                     {"[1038]", "&Help"}};
constexpr TCaption ReplaceCaptions[] = {{"", "Replace"},
                                        {"[-1]", "Fi&nd What:"},
                                        {"[-3]", "Re&place With:"},
                                        {"[1040]", "Match &Whole Word Only"},
                                        {"[1041]", "Match &Case"},
                                        {"[1]", "&Find Next"},
                                        {"[1024]", "&Replace"},
                                        {"[1025]", "Replace &All"},
                                        {"[2]", "Cancel"},
                                        {"[1038]", "&Help"}};
constexpr TCaption PrintCaptions[] = {{"", "Print"},
                                      {"[1075]", "Printer"},
                                      {"[1025]", "&Properties"},
                                      {"[1040]", "Print to fi&le"},
                                      {"[1093]", "&Name:"},
                                      {"[1095]", "Status:"},
                                      {"[1094]", "Type:"},
                                      {"[1097]", "Where:"},
                                      {"[1096]", "Comment:"},
                                      {"[1072]", "Print range"},
                                      {"[1056]", "&All"},
                                      {"[1058]", "Pa&ges"},
                                      {"[1057]", "&Selection"},
                                      {"[1089]", "&from:"},
                                      {"[1090]", "&to:"},
                                      {"[1073]", "Copies"},
                                      {"[1092]", "Number of &copies:"},
                                      {"[1041]", "C&ollate"},
                                      {"[1]", "OK"},
                                      {"[2]", "Cancel"},
                                      {"[1038]", "&Help"}};
constexpr TCaption PrinterSetupCaptions[] = {
    {"", "Print Setup"},     {"[1075]", "Printer"},    {"[1093]", "&Name:"},   {"[1025]", "&Properties"},
    {"[1095]", "Status:"},   {"[1094]", "Type:"},      {"[1097]", "Where:"},   {"[1096]", "Comment:"},
    {"[1073]", "Paper"},     {"[1089]", "Si&ze:"},     {"[1090]", "&Source:"}, {"[1072]", "Orientation"},
    {"[1056]", "P&ortrait"}, {"[1057]", "L&andscape"}, {"[1]", "OK"},          {"[2]", "Cancel"},
    {"[1038]", "&Help"}};

struct TDialogCaptions {
    const char* ClassName;
    std::span<const TCaption> Captions;
};

constexpr TDialogCaptions Dialogs[] = {
    {"TOpenDialog", OpenCaptions},   {"TOpenPictureDialog", OpenCaptions},
    {"TSaveDialog", SaveCaptions},   {"TSavePictureDialog", SaveCaptions},
    {"TFontDialog", FontCaptions},   {"TColorDialog", ColorCaptions},
    {"TFindDialog", FindCaptions},   {"TReplaceDialog", ReplaceCaptions},
    {"TPrintDialog", PrintCaptions}, {"TPrinterSetupDialog", PrinterSetupCaptions}};

// Whose the title of a form's dialogs of a class is.
TDialogTitle TitleOf(const TProjectScan& Scan, const TFoundForm& Form, const std::string& ClassName)
{
    const auto& Children = Form.Document.Root.Children();
    if (std::any_of(Children.begin(), Children.end(), [&](const TFormObject& Child) {
            return SameName(Child.ClassName(), ClassName) && Child.FindValue("Title");
        }))
        return TDialogTitle::Program;
    return Form.Ancestor < 0 ? TDialogTitle::System
                             : TitleOf(Scan, Scan.Forms[static_cast<size_t>(Form.Ancestor)], ClassName);
}

} // namespace

TLineMap DialogTexts(const std::string& ClassName, TDialogTitle Title)
{
    TLineMap Result;
    for (const TDialogCaptions& Dialog : Dialogs) {
        if (!SameName(Dialog.ClassName, ClassName))
            continue;
        for (const TCaption& Each : Dialog.Captions)
            if (*Each.Control || Title == TDialogTitle::System)
                Result[Dialog.ClassName + std::string(".Caption") + Each.Control] = ToLiterals(Each.Text);
    }
    return Result;
}

TLineMap DialogTextsOf(const TProjectScan& Scan)
{
    std::map<std::string, TDialogTitle> Titles;
    for (const TFoundForm& Form : Scan.Forms)
        for (const std::string& Dialog : Form.Dialogs)
            if (TDialogTitle& Title = Titles.try_emplace(Dialog, TDialogTitle::System).first->second;
                TitleOf(Scan, Form, Dialog) == TDialogTitle::Program)
                Title = TDialogTitle::Program;
    TLineMap Result;
    for (const auto& [Dialog, Title] : Titles)
        Result.merge(DialogTexts(Dialog, Title));
    return Result;
}
