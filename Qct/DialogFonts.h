// Fonts of dialogs and their controls.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "platform/winapi.h"

// The face name; "System" when the system does not tell.
std::string GetFontName(HFONT Font);
// The character set; 1, the default one, when the system does not tell.
uint8_t GetFontCharset(HFONT Font);

// A new font like Font but for its face name, of which 31 bytes count, or its
// character set. The caller deletes it. Font itself when the system does not tell
// what it is like.
HFONT SetFontName(HFONT Font, const std::string& Name);
HFONT SetFontCharset(HFONT Font, uint8_t Charset);

// Gives Font to FirstChild, its next siblings, and the children of all of them.
void SetFontOfChildren(HWND FirstChild, HFONT Font);

// Keeps the fonts made for dialogs as long as these are there: windows do not own
// the fonts they show.
class TDialogFonts {
public:
    TDialogFonts() = default;
    ~TDialogFonts();
    TDialogFonts(const TDialogFonts&) = delete;
    TDialogFonts& operator=(const TDialogFonts&) = delete;

    // Takes Made, which must be new, over. Returns it, or an equal font that the
    // dialog has already.
    HFONT Keep(HWND Dialog, HFONT Made);

    // Deletes the fonts of dialogs that are gone.
    void Release();

private:
    std::vector<std::pair<HWND, HFONT>> FFonts;
};
