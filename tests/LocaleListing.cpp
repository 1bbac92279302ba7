// Writes what GetLocaleInfoA answers into the file that is named. Run on Windows
// it makes data/locales.txt anew; run elsewhere it gives a text to compare:
//   LocaleListing data/locales.txt
#include <cstdio>
#include <fstream>

#include "tests/LocaleListing.h"

int main(int Count, char** Arguments)
{
    if (Count != 2) {
        std::fprintf(stderr, "usage: LocaleListing FILE\n");
        return 2;
    }
    std::ofstream Output(Arguments[1], std::ios::binary);
    Output << WriteAnswers(AskAllLocales());
    Output.close();
    return Output ? 0 : 1;
}
