// What a translator in a form file holds, whether in the form or in a translations file.
#pragma once

#include <map>
#include <string>

#include "core/TranslationsText.h"
#include "framework/streaming/FormDocument.h"

using TLineMap = std::map<std::string, std::string>;

// Where the texts of one translator are.
struct TTranslatorStorage {
    TFormObject& Translator;
    TTranslationsText* File; // null: in the form
    TTranslationsOwner Owner;
};

// The plain text of a value in literals.
// Throws EConvertError "Form1.Label1.Caption%1053: ..." for one that is wrong.
std::string PlainText(const TTranslationsOwner& Owner, std::string_view Key, const std::string& Value);

// The lines Key=Value of a form, dialog or locale translator.
class TTranslatorLines {
public:
    explicit TTranslatorLines(const TTranslatorStorage& Storage) : FStorage(Storage) {}

    TLineMap All() const;
    // Replaces values and adds lines, each at its place; other lines stay. In a form
    // they keep their bytes.
    void Put(const TLineMap& Lines);

    // The untranslated values that a dialog translator keeps beside its translations,
    // and that a file has for all translators.
    TLineMap Originals() const;
    void PutOriginals(const TLineMap& Lines);

private:
    TTranslationsOwner OriginalsOwner() const { return {FStorage.Owner.Section, DefaultsLocale}; }

    TTranslatorStorage FStorage;
};

// The pairs of a resource translator: source texts and their translations, both plain.
class TResourceLines {
public:
    explicit TResourceLines(const TTranslatorStorage& Storage) : FStorage(Storage) {}

    TLineMap All() const;
    // Replaces translations and adds pairs; others stay.
    void Put(const TLineMap& Pairs);

private:
    TTranslationsOwner SourcesOwner() const { return {FStorage.Owner.Section, DefaultsLocale}; }
    void PutInFile(const TLineMap& Pairs);
    void PutInForm(const TLineMap& Pairs);

    TTranslatorStorage FStorage;
};
