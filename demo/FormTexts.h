// What a form shows, as lists that can be compared.
#pragma once

#include <string>
#include <vector>

class TForm;

struct TFormLine {
    std::string Key;
    std::string Value;
    friend bool operator==(const TFormLine&, const TFormLine&) = default;
};

// Every published value of the form and its components, as a translator reads
// them, without those of the translators themselves.
std::vector<TFormLine> ReadFormLines(TForm& Form);

// The lines of After that differ from those of Before, with their former values.
struct TFormChange {
    std::string Key;
    std::string Before;
    std::string After;
};
std::vector<TFormChange> ChangesBetween(const std::vector<TFormLine>& Before,
                                        const std::vector<TFormLine>& After);

// The form as the text of a form file with all its properties. Writing the
// translators saves their translations file.
std::string FormAsText(TForm& Form);
