// The windows of the standard dialogs and the order of their messages, compared with
// what the system's own dialogs were recorded to have.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "tests/DialogListing.h"

namespace {

using TLines = std::vector<std::string>;

// The recorded lines of each dialog, without the words in front of them.
std::map<std::string, TDialogListing> ReadListings()
{
    std::ifstream Input(TEST_DATA "/dialogs.txt", std::ios::binary);
    std::map<std::string, TDialogListing> Listings;
    TDialogListing* Current = nullptr;
    for (std::string Line; std::getline(Input, Line);) {
        if (Line.starts_with('['))
            Current = &Listings[Line.substr(1, Line.size() - 2)];
        else if (Line.starts_with("message "))
            Current->Messages.push_back(Line.substr(8));
        else
            Current->Windows.push_back(Line);
    }
    return Listings;
}

// How the windows of this build may differ from the recorded ones: in sizes that follow
// from fonts and from scroll bars, which have pixels, and in what there is of a printer.
const struct {
    const char* Dialogs;
    const char* Window; // the start of its line
    const char* Part;
    const char* Reason;
} AcceptedDifferences[] = {
    {"open save", "child 1148 ComboBoxEx32", "height", "as high as a line of the font"},
    {"font", "child 1139 ComboBox", "height", "as high as a line of the font"},
    {"open save", "child 1091 Static", "width", "would cover its neighbour"},
    {"print-setup", "child 1094 Static", "width", "would cover its neighbour"},
    {"print-setup", "child 1095 Static", "width", "would cover its neighbour"},
    {"print-setup", "child 1096 Static", "width", "would cover its neighbour"},
    {"print-setup", "child 1097 Static", "width", "would cover its neighbour"},
    {"open save", "child -1 ScrollBar", "top", "as wide and high as scroll bars are"},
    {"open save", "child -1 ScrollBar", "width", "as wide and high as scroll bars are"},
    {"open save", "child -1 ScrollBar", "height", "as wide and high as scroll bars are"},
    {"print", "child 9999 msctls_updown32", "left", "as wide as scroll bars are"},
    {"print", "child 1139 ComboBox", "text", "name of the printer"},
    {"print-setup", "child 1136 ComboBox", "text", "name of the printer"},
    {"print print-setup", "child 1098 Static", "text", "kind of the printer"},
    {"print print-setup", "child 1101 Static", "text", "place of the printer"},
    {"print print-setup", "child 1100 Static", "text", "comment on the printer"},
    {"print-setup", "child 1025 Button", "style", "disabled: the printer has no other properties"}};

std::set<std::string> Accepted()
{
    std::set<std::string> Result;
    for (const auto& Each : AcceptedDifferences) {
        std::istringstream Dialogs(Each.Dialogs);
        for (std::string Dialog; Dialogs >> Dialog;)
            Result.insert(Dialog + ": " + Each.Window + ": " + Each.Part);
    }
    return Result;
}

// The words of a line, the text in quotation marks being the last one.
TLines WordsOf(const std::string& Line)
{
    const std::size_t Quote = std::min(Line.find('"'), Line.size());
    std::istringstream Input(Line.substr(0, Quote));
    TLines Words;
    for (std::string Word; Input >> Word;)
        Words.push_back(Word);
    Words.push_back(Line.substr(Quote));
    return Words;
}

// What differs, as "dialog: window: part"; other lines or another order are told whole.
void Compare(const std::string& Dialog, const TLines& Listed, const TLines& Wanted,
             std::set<std::string>& Differences)
{
    static const char* const Parts[] = {"word", "id",  "class", "style",  "extended style",
                                        "left", "top", "width", "height", "text"};
    if (Listed.size() != Wanted.size())
        Differences.insert(Dialog + ": " + std::to_string(Listed.size()) + " lines in place of " +
                           std::to_string(Wanted.size()));
    for (std::size_t Line = 0; Line < std::min(Listed.size(), Wanted.size()); ++Line) {
        const TLines Ours = WordsOf(Listed[Line]), Theirs = WordsOf(Wanted[Line]);
        const bool Same = Ours.size() == std::size(Parts) && Theirs.size() == Ours.size() &&
                          std::equal(Ours.begin(), Ours.begin() + 3, Theirs.begin());
        if (!Same && Ours != Theirs)
            Differences.insert(Dialog + ": " + Listed[Line] + " in place of " + Wanted[Line]);
        for (std::size_t Word = 3; Same && Word < Ours.size(); ++Word)
            if (Ours[Word] != Theirs[Word])
                Differences.insert(Dialog + ": child " + Ours[1] + " " + Ours[2] + ": " + Parts[Word]);
    }
}

// The messages that programs rely on, each once in a row. What a control tells the
// dialog and when the background is painted depends on the system.
TLines Milestones(const std::string& Dialog, const TLines& Messages)
{
    static const std::set<std::string> Names = {
        "WM_INITDIALOG", "WM_SHOWWINDOW", "WM_WINDOWPOSCHANGED", "WM_ACTIVATE",     "WM_NCACTIVATE",
        "WM_KILLFOCUS",  "WM_ENTERIDLE",  "WM_ENABLE",           "WM_CLOSE",        "WM_DESTROY",
        "FINDMSGSTRING", "CDN_INITDONE",  "CDN_SELCHANGE",       "CDN_FOLDERCHANGE"};
    TLines Result;
    for (const std::string& Message : Messages) {
        std::istringstream Input(Message);
        std::string Receiver, Name;
        Input >> Receiver >> Name;
        // A closed colour dialog moves its focus on through the numbers that it hides.
        const bool Wandering = Dialog == "color" && Name == "WM_KILLFOCUS" && Receiver != "owner";
        const bool Cancels = Message.find(" WM_COMMAND 2/0 ") != Message.npos;
        if ((Cancels || Names.count(Name)) && !Wandering && (Result.empty() || Result.back() != Message))
            Result.push_back(Message);
    }
    return Result;
}

TEST(DialogListing, HoldsWhatTheDialogsAreMadeOf)
{
    ASSERT_TRUE(HasPrinter()) << "run this test under scripts/with-printer";
    auto Recorded = ReadListings();
    ASSERT_EQ(Recorded.size(), DialogCases().size());
    std::set<std::string> Differences;
    for (const TDialogCase& Case : DialogCases()) {
        SCOPED_TRACE(Case.Name);
        const TDialogListing Listing = ListDialog(Case);
        const TDialogListing& Wanted = Recorded[Case.Name];
        Compare(Case.Name, Listing.Windows, Wanted.Windows, Differences);
        EXPECT_EQ(Milestones(Case.Name, Listing.Messages), Milestones(Case.Name, Wanted.Messages));
    }
    // There are none where the listing was recorded.
    if (!Differences.empty()) {
        EXPECT_EQ(Differences, Accepted());
    }
}

} // namespace
