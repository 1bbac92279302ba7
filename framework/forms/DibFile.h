// Device-independent bitmaps in files: a file header (in .bmp files), an info
// header, colours, rows of pixels from the bottom up.
#pragma once

#include <string>
#include <string_view>

#include "framework/forms/Messages.h"

struct TDibSize {
    int Width = 0;
    int Height = 0;
};

// True when the bytes begin like a .bmp file; Size is what its header says.
bool ReadDibFileSize(std::string_view File, TDibSize& Size);

// A system bitmap of a .bmp file's pixels. Null for damaged files and for
// compressed ones.
HBITMAP BitmapFromDibFile(std::string_view File);

// The .bmp file, 24 bits a pixel, of a system bitmap that is in no context.
std::string DibFileFromBitmap(HBITMAP Bitmap);

// The size of the first image of an .ico file; false when it has none.
bool ReadIconFileSize(std::string_view File, TDibSize& Size);

// An icon made of the first image of an .ico file; null when it is damaged or
// compressed.
HICON IconFromFile(std::string_view File);
