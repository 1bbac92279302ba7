// Resource strings: texts that are kept in a module's string table and loaded at
// each use, so that they follow the language that is set.
//     throw EListError(Format(SListIndexError, {Index}));
// How an application declares its own: docs/resource-strings.md.
#pragma once

#include <cstdint>
#include <string>

struct HINSTANCE__;

// One text. Module points to the variable with the handle of the module that has
// it in its string table; Identifier is its number there, from 1 to 65535. A
// larger Identifier is the address of a zero-terminated text, which is taken as
// it stands.
struct TResStringRec {
    HINSTANCE__** Module;
    std::uintptr_t Identifier;
    operator std::string() const;
};

inline constexpr std::uintptr_t MaxResourceIdentifier = 65535;

// Texts are at most one byte shorter than this, without the zero at their end.
inline constexpr int ResStringBufferBytes = 4096;

// The text in the language of the moment; empty for null, and for an identifier
// that the module does not have. Any thread.
std::string LoadResString(const TResStringRec* Rec);

using TLoadResString = std::string (*)(const TResStringRec* Rec);

// Lets Loader answer all calls of LoadResString from now on; null brings the
// framework's own back. Returns what answered before, null for the framework's own.
// Any thread; calls under way on other threads end in the old one.
TLoadResString RedirectLoadResString(TLoadResString Loader);
