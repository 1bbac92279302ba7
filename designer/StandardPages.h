// What the designer brings itself: the framework's classes on the pages of the palette.
#pragma once

// Needs RegisterStandardClasses.
void RegisterStandardPages();
