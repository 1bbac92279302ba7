// Where resource strings are loaded, and how translators come to see them.
//
// While the unit is started, LoadResString (framework/rtl/ResStrings.h) ends in
// CustomLoadResString; while a translator exists outside the designer, direct
// calls of LoadStringA by this module are answered too (platform/Strings.h).
// Inside the development environment neither is done: its own texts stay.
//
// Translators are asked the newest first, and the first one that answers wins: one
// that is switched on and has a translation, not empty, of exactly the text.
//
// Texts may be loaded on any thread while the main thread creates, switches, edits
// and destroys translators.
#pragma once

#include <atomic>
#include <string>

#include "framework/rtl/ResStrings.h"
#include "platform/Strings.h"

class TResourceTranslator;

// A translator's place in the list, within the translator.
struct TResComponentNode {
    std::atomic<TResComponentNode*> Next{nullptr};
    TResourceTranslator* Translator = nullptr;
};

// The newest translator. Other threads walk the list within a TReadSection.
extern std::atomic<TResComponentNode*> ResComponentList;

// While this is false no translator answers.
extern std::atomic<bool> GlobalTranslation;

// What the slot of LoadStringA held before it was redirected; null while it is not.
extern std::atomic<TLoadStringA> OrgLoadString;

// True while CustomLoadResString runs on this thread.
extern thread_local bool SettingResStr;

// Lets this unit answer LoadResString, and gives it back to who answered before.
// Each does nothing when it is so already, and StartQrt does nothing inside the
// development environment.
// To be called once the framework has started, and before it ends.
void StartQrt();
void StopQrt();

// Attention: false redirects the slot of LoadStringA, true restores it. Each does
// nothing when it is so already.
void HookLoadString(bool Restore);

// Loads a text and translates it. Literals (identifiers above 65535) are not
// translated; null gives the empty text. Exceptions of the loader pass through.
std::string CustomLoadResString(const TResStringRec* Rec);

// For the translator's constructor and destructor. Leaving waits until no thread
// looks at the translator any more.
void JoinResComponentList(TResComponentNode& Node);
void LeaveResComponentList(TResComponentNode& Node);
