// Every class that the framework can read from form files.
#pragma once

// Registers the components of all units, and the names of colours, cursors and
// character sets. Calling it again is harmless.
void RegisterStandardClasses();
