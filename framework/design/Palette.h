// The component classes that the designer offers, in pages.
#pragma once

#include <string>
#include <vector>

#include "framework/rtl/Object.h"

struct TPalettePage {
    std::string Name;
    std::vector<const TMetaClass*> Classes; // in the order of their registration
};

// Puts classes on a page of the palette, which is made when it is missing, and makes
// them known to form files. A class that is on a page already stays where it is.
// Throws EFilerError when another class has the name of one of them.
void RegisterComponents(const std::string& Page, const std::vector<const TMetaClass*>& Classes);
// Takes them off the palette; form files go on knowing them.
void UnregisterComponents(const std::vector<const TMetaClass*>& Classes);

// Those with classes, in the order of their first registration.
const std::vector<TPalettePage>& PalettePages();
