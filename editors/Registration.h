// Makes the translators known to the development environment: their place on the
// palette, the editors of their properties and their verbs.
#pragma once

// The page of the palette.
inline constexpr const char* PalettePage = "Quillmark";

// Registers the translators of all units. The package and the editors must have been
// started.
void RegisterTranslators();
// Takes everything back, before the package is unloaded.
void UnregisterTranslators();
