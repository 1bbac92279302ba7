// Components that are written to be compared or copied, not to be kept.
#pragma once

// While one exists, components that keep files of their own beside the form write
// none of them. Nests. User-interface thread only.
class TSnapshotScope {
public:
    TSnapshotScope();
    ~TSnapshotScope();
    TSnapshotScope(const TSnapshotScope&) = delete;
    TSnapshotScope& operator=(const TSnapshotScope&) = delete;

    static bool IsActive();
};
