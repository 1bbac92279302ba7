// The pointer that asks for patience.
#pragma once

#include <optional>

#include "framework/forms/Cursors.h"
#include "framework/forms/Screen.h"

// Shows the hourglass until it goes out of scope; nothing without a screen.
class THourglass {
public:
    THourglass()
    {
        if (Screen)
            FGuard.emplace(crHourGlass);
    }

private:
    std::optional<TCursorGuard> FGuard;
};
