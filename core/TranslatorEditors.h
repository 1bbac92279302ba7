// Which dialog edits the translators of a kind. The dialogs are no part of
// programs that only translate.
#pragma once

#include "core/Frame.h"

// True when the user closed the editor with OK after a change.
using TTranslatorEditor = bool (*)(TTranslatorFrame& Translator);

// Null takes the editor of the kind away.
void SetTranslatorEditor(const TMetaClass& Kind, TTranslatorEditor Editor);

// Throws EClassNotFound when there is none.
TTranslatorEditor GetTranslatorEditor(const TMetaClass& Kind);
