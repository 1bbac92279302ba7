// What there is to translate in a project. Nothing is changed.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "framework/design/Project.h"
#include "framework/streaming/FormDocument.h"

// Told before each file, Done of Total; false ends the work, which throws EAbort then.
using TProjectProgress = std::function<bool(const std::string& File, int Done, int Total)>;

enum class TFoundKind { Form, Frame, DataModule };

struct TFoundTranslator {
    std::string Name;
    std::string ClassName;
    int Locale = 0;
    std::string FileName;
};

struct TFoundForm {
    std::string File; // as the project has it
    std::string Name; // of the root
    TFoundKind Kind = TFoundKind::Form;
    // The texts that a user sees, Key=Value as a form translator lists them; with those
    // of the forms it descends from. Not those of its translators.
    std::vector<std::string> Texts;
    // The classes of the system's dialogs on it, each once.
    std::vector<std::string> Dialogs;
    // Components that can be the language selector.
    std::vector<std::string> Selectors;
    std::vector<TFoundTranslator> Translators;
    // The form that it descends from, as an index into the project's; -1 for none.
    int Ancestor = -1;

    TFormDocument Document;
    std::string Bytes; // of the file
};

struct TFoundUnit {
    std::string File; // as the project has it
    std::vector<std::string> ResourceStrings;
};

struct TProjectScan {
    TProject Project;
    std::vector<TFoundForm> Forms;
    std::vector<TFoundUnit> Units;
    // "file:line:column: message" for each form or unit that cannot be read.
    std::vector<std::string> Errors;

    // Null when there is none of that name.
    const TFoundForm* FindForm(const std::string& Name) const;
    // The form that the project names, else its first one; null without forms.
    const TFoundForm* MainForm() const;
    // The locales of all form, resource and dialog translators, each once, in order.
    std::vector<int> Locales() const;
    // All of the units, each once.
    std::vector<std::string> ResourceStrings() const;
};

// CodePage is that of texts in forms and units that do not tell (FormOptions.h).
// Throws EAbort; what is wrong with single files is in Errors.
TProjectScan ScanProject(const TProject& Project, int CodePage = 1252, const TProjectProgress& Progress = {});

inline constexpr const char* FormTranslatorClass = "TFormTranslator";
inline constexpr const char* ResourceTranslatorClass = "TResourceTranslator";
inline constexpr const char* DialogTranslatorClass = "TCommonDialogTranslator";
inline constexpr const char* ButtonTranslatorClass = "TButtonTranslator";
inline constexpr const char* LocaleTranslatorClass = "TLocaleTranslator";

bool IsTranslatorClass(const std::string& ClassName);
// The Locale of a translator in a form file.
int LocaleOf(const TFormObject& Translator);
