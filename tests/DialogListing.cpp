// Writes what the standard dialogs are made of into the file that is named. Run on
// Windows, with a printer (scripts/with-printer), it makes data/dialogs.txt anew; run
// elsewhere it gives a text to compare:
//   DialogListing data/dialogs.txt
#include <cstdio>
#include <fstream>

#include "tests/DialogListing.h"

int main(int Count, char** Arguments)
{
    if (Count != 2) {
        std::fprintf(stderr, "usage: DialogListing FILE\n");
        return 2;
    }
    std::ofstream Output(Arguments[1], std::ios::binary);
    for (const TDialogCase& Case : DialogCases())
        Output << WriteListing(Case, ListDialog(Case)) << std::flush;
    Output.close();
    return Output ? 0 : 1;
}
