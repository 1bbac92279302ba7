#include "framework/streaming/Snapshot.h"

namespace {

int Depth = 0;

} // namespace

TSnapshotScope::TSnapshotScope()
{
    ++Depth;
}

TSnapshotScope::~TSnapshotScope()
{
    --Depth;
}

bool TSnapshotScope::IsActive()
{
    return Depth > 0;
}
