// The format variables as the operating system has them for a locale.
#pragma once

#include <string>
#include <string_view>

#include "platform/winapi.h"

// Sets all format variables and SysLocale by the locale of the calling thread,
// which is the user's until somebody changes it. A program calls it when it
// starts. A name that the system does not tell stays as it is, any other value
// becomes the English one.
void GetFormatSettings();

// The same for any locale.
void GetFormatSettings(LCID Locale);

// The first character of a system's separator that is seen; Default when there is
// none. Arabic date separators begin with a directional mark.
std::string SeparatorCharacter(std::string_view SystemText, std::string_view Default);

// How the years of a system's date picture are to be read.
enum class TPictureYears {
    Gregorian, // as they are
    NoEras,    // the same, and marks of eras (g) are left out
    InEras,    // y becomes e, the year in the era
};

// A date picture of the system in the letters of DatePicture.h: in lower case
// outside of quotes, where '' for an apostrophe becomes one in double quotes.
std::string TranslateDateFormat(std::string_view SystemPicture, TPictureYears Years);
