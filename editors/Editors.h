// The translators' editors. A program that offers them starts them after its
// package (Obxc3/Obxc3.h):
//
//     const TApplicationScope Scope;
//     const TPackageScope Package;
//     const TEditorsScope Editors;
//
// From then on ShowEditor of each translator opens its editor.
#pragma once

// Calls nest. User-interface thread only.
void StartEditors();
void StopEditors();

class TEditorsScope {
public:
    TEditorsScope() { StartEditors(); }
    ~TEditorsScope() { StopEditors(); }
    TEditorsScope(const TEditorsScope&) = delete;
    TEditorsScope& operator=(const TEditorsScope&) = delete;
};
