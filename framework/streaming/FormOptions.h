// What the readers of form files must be told.
#pragma once

#include <string>

struct TFormFileOptions {
    // The code page of 8-bit texts, in Windows numbering: 437, 932, 1250 ...
    // Nothing in a form file names it. A text form file that is valid UTF-8 is
    // read as UTF-8 whatever stands here, unless DetectUtf8 is off: few and short
    // texts of a code page can happen to be valid UTF-8.
    int CodePage = 1252;
    bool DetectUtf8 = true;
    // For messages; its extension (.lfm or other) helps to tell the dialect of a
    // form too small to show it.
    std::string FileName;
};
