// Everything to draw with. The parts, in reading order:
#pragma once

#include "framework/forms/Canvas.h"      // TCanvas
#include "framework/forms/Colors.h"      // TColor
#include "framework/forms/Cursors.h"     // TCursor
#include "framework/forms/Fonts.h"       // TFont
#include "framework/forms/PensBrushes.h" // TPen, TBrush
#include "framework/forms/Pictures.h"    // TBitmap, TIcon, TPicture
