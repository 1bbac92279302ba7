// Shortcut keys as numbers and as texts.
#pragma once

#include <string>
#include <string_view>

#include "framework/forms/Types.h"

// A virtual key with the shift keys that go with it.
TShortCut ShortCut(uint16_t Key, TShiftState Shift);
void ShortCutToKey(TShortCut Value, uint16_t& Key, TShiftState& Shift);

// "Ctrl+S", "Shift+F4"; empty for a key without a name.
std::string ShortCutToText(TShortCut Value);
// Letter case ignored; "^S" is Ctrl+S. scNone for other texts.
TShortCut TextToShortCut(std::string_view Text);

// The keys of a WM_KEYDOWN or WM_SYSKEYDOWN message, with the shift keys held now.
TShortCut ShortCutFromMessage(const TMessage& Message);
