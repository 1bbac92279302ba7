// Obxc3: the package as a whole. A program that uses translators starts it once
// its application has started, and stops it before that ends:
//
//     int main()
//     {
//         const TApplicationScope Scope;
//         const TPackageScope Package;
//         Application->CreateForm(MainForm);
//         Application->Run();
//     }
#pragma once

// Starts the units in their order: each one's translator becomes known to form
// files (RegisterClass), and Qrt answers LoadResString from then on. Calls nest.
// Throws EFilerError when the program has a class of a translator's name; nothing
// is started then. User-interface thread only.
void StartPackage();

// The last one undoes it all, in reverse order, whether there are still translators
// or not: resource strings load as they would without the package, message boxes
// keep their captions, and the translators' classes are unknown. A translator that
// lives until the package is started again works on from there.
void StopPackage();

class TPackageScope {
public:
    TPackageScope() { StartPackage(); }
    ~TPackageScope() { StopPackage(); }
    TPackageScope(const TPackageScope&) = delete;
    TPackageScope& operator=(const TPackageScope&) = delete;
};
