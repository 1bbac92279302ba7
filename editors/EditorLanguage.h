// The language of the editors themselves: their forms and messages are translated
// by the package, from the translations file editors.lng beside the program.
#pragma once

#include <vector>

class TComponent;
class TForm;
class TTranslatorFrame;

// A locale identifier; 0, the default, for the user's locale. A language that the
// file does not have shows the English texts. Takes effect when an editor opens.
void SetEditorLocale(int Lcid);

// Translates a form that has just been made, and what the program says while it is
// there: a form and a resource translator on it, which no other translator switches.
// Right-to-left languages mirror it.
void TranslateEditor(TForm& Form);

// While it lives, texts are loaded without the translators that TranslateEditor put
// on the form: what the program has itself is to be seen.
class TPlainTextsScope {
public:
    explicit TPlainTextsScope(const TForm& Form);
    ~TPlainTextsScope();
    TPlainTextsScope(const TPlainTextsScope&) = delete;
    TPlainTextsScope& operator=(const TPlainTextsScope&) = delete;

private:
    void Pause(const TComponent& Owner);

    std::vector<TTranslatorFrame*> FPaused;
};
