// The dialogs behind the inspector's ellipsis button: lines of text, fonts, colours.
#pragma once

// May be called again. Packages' own editors of such properties come first.
void RegisterPropertyDialogs();
