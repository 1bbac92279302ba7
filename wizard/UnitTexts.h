// What the units of a project say without a form, and which forms descend from which.
#pragma once

#include <map>
#include <string>
#include <vector>

struct TUnitTexts {
    // The texts of Pascal's "resourcestring" sections and of ORBILEX_TEXT rows, in the
    // order of the unit, in UTF-8.
    std::vector<std::string> ResourceStrings;
    // Classes and their parents: "TForm2 = class(TForm1)", "class TForm2 : public TForm1".
    std::map<std::string, std::string> Parents;
};

// Reads the text of a unit, Pascal or C++. CodePage is that of a text which is not
// UTF-8. A source that cannot be read to its end gives what comes before the place
// where reading stopped.
TUnitTexts ReadUnitTexts(const std::string& Bytes, int CodePage);
