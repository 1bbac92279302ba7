#include "designer/SurfaceDrag.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int DragDistance = 4;

// How far an edge goes for it to come onto the grid.
int Snapped(LONG Edge, int Delta)
{
    return TSurfaceDrag::OnGrid(static_cast<int>(Edge) + Delta) - static_cast<int>(Edge);
}

TRect Sized(TRect Place, const THandleEffect& Effect, int DeltaX, int DeltaY)
{
    if (Effect.Left)
        Place.left = std::min(Place.left + Snapped(Place.left, DeltaX), Place.right);
    if (Effect.Top)
        Place.top = std::min(Place.top + Snapped(Place.top, DeltaY), Place.bottom);
    if (Effect.Right)
        Place.right = std::max(Place.right + Snapped(Place.right, DeltaX), Place.left);
    if (Effect.Bottom)
        Place.bottom = std::max(Place.bottom + Snapped(Place.bottom, DeltaY), Place.top);
    return Place;
}

} // namespace

int TSurfaceDrag::OnGrid(int Value)
{
    const int Rest = ((Value % Grid) + Grid) % Grid;
    return Value - Rest + (Rest * 2 >= Grid ? Grid : 0);
}

bool TSurfaceDrag::IsFar(const TPoint& From, const TPoint& To)
{
    return std::abs(To.x - From.x) >= DragDistance || std::abs(To.y - From.y) >= DragDistance;
}

void TSurfaceDrag::BeginMoving(const std::vector<TComponent*>& Components, const TPoint& Start)
{
    *this = {};
    FStart = Start;
    for (TComponent* const Each : Components)
        FPlaces.emplace_back(Each, TFormModel::PlaceOf(*Each));
}

void TSurfaceDrag::BeginSizing(TComponent& Component, const THandleEffect& Effect, const TPoint& Start)
{
    BeginMoving({&Component}, Start);
    FIsSizing = true;
    FEffect = Effect;
}

bool TSurfaceDrag::To(const TPoint& Point)
{
    if (!IsActive() || (!FHasMoved && !IsFar(FStart, Point)))
        return false;
    FHasMoved = true;
    const int DeltaX = static_cast<int>(Point.x - FStart.x), DeltaY = static_cast<int>(Point.y - FStart.y);
    const TRect& First = FPlaces.front().second;
    if (FIsSizing) {
        TFormModel::SetPlace(*FPlaces.front().first, Sized(First, FEffect, DeltaX, DeltaY));
        return true;
    }
    const int X = Snapped(First.left, DeltaX), Y = Snapped(First.top, DeltaY);
    for (const auto& [Component, Place] : FPlaces)
        TFormModel::SetPlace(*Component,
                             Rect(Place.left + X, Place.top + Y, Place.right + X, Place.bottom + Y));
    return true;
}

bool TSurfaceDrag::End()
{
    FPlaces.clear();
    return FHasMoved;
}

void TSurfaceDrag::Cancel()
{
    for (const auto& [Component, Place] : FPlaces)
        TFormModel::SetPlace(*Component, Place);
    *this = {};
}
