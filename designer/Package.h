// What the designer brings itself: the framework's classes on the pages of the palette,
// and the translators with their editors, which are linked with it.
#pragma once

// Needs RegisterStandardClasses.
void RegisterStandardPages();

// Classes, property and component editors of the translators. Needs the package and the
// editors to be started.
class TTranslatorsScope {
public:
    TTranslatorsScope();
    ~TTranslatorsScope();
    TTranslatorsScope(const TTranslatorsScope&) = delete;
    TTranslatorsScope& operator=(const TTranslatorsScope&) = delete;
};
