// Components that follow the mouse, in steps of the grid.
#pragma once

#include <utility>
#include <vector>

#include "designer/FormModel.h"
#include "designer/SurfaceMarks.h"

// Nothing moves before the mouse has gone a few pixels: a click is no drag.
// Points are on the screen.
class TSurfaceDrag {
public:
    static constexpr int Grid = 8; // pixels
    // The nearest edge of the grid.
    static int OnGrid(int Value);
    static bool IsFar(const TPoint& From, const TPoint& To);

    void BeginMoving(const std::vector<TComponent*>& Components, const TPoint& Start);
    void BeginSizing(TComponent& Component, const THandleEffect& Effect, const TPoint& Start);
    bool IsActive() const { return !FPlaces.empty(); }
    // True when the components have new places.
    bool To(const TPoint& Point);
    // True when they were moved at all.
    bool End();
    // Puts them back.
    void Cancel();

private:
    TPoint FStart{};
    bool FIsSizing = false;
    bool FHasMoved = false;
    THandleEffect FEffect{};
    std::vector<std::pair<TComponent*, TRect>> FPlaces; // at the start
};
