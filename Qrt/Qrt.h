// Qrt: translation of resource strings. Start here; what every translator shares
// (FileName, Locale, peers, storage) is in core/Frame.h, how the texts get here in
// Qrt/LoadHook.h.
#pragma once

#include <atomic>
#include <memory>
#include <string>
#include <string_view>

#include "Qrt/LoadHook.h"
#include "Qrt/ResourceTable.h"
#include "core/Frame.h"

// Answers the loading of resource strings in its language, from a table of source
// texts, exactly as the string table has them, and their translations. An empty
// translation stands for none. From its creation on it takes part; it answers
// while Translate is true.
//
// Translators of one Locale are switched together in the whole application, and
// switching one on switches those of other locales off (prApplication).
//
// User-interface thread only, but for TranslateBuffer and Answer.
class TResourceTranslator : public TTranslatorFrame {
    OBX_CLASS(TTranslatorFrame)
public:
    explicit TResourceTranslator(TComponent* Owner);
    ~TResourceTranslator() override;

    // Published. The translations, in the order that ResourceTable.h tells.
    TStrings* Translations() const { return &FTable.Texts(); }
    void SetTranslations(const TStrings* Value);

    // The source texts in order, each with the number of its translation as object.
    const TSortList& ResStrings() const { return FTable.Sources(); }
    void SetResStrings(const TSortList& Value) { FTable.SetSources(Value); }

    // Adds a pair, or changes the translation of a source.
    void SetTranslation(const std::string& Source, const std::string& Translation);
    // Removes a pair; false when there is none.
    bool RemoveTranslation(const std::string& Source);

    // Published, and stored with the form. No text is loaded, and no switch made,
    // through them: texts are loaded on any thread.
    TTranslateEvent OnTranslate;
    TTranslatedEvent OnTranslated;

    // Replaces the zero-terminated text in Buffer by its translation; false, with
    // nothing changed, when this translator has none or is off.
    // Never writes past Capacity bytes: a longer translation is cut between
    // characters, so that it fits with its zero, and counts as none when not even
    // its first one fits. The form without Capacity requires
    // that Buffer has room for any translation in the table.
    // Any thread.
    bool TranslateBuffer(char* Buffer, int& Length) const;
    bool TranslateBuffer(char* Buffer, int Capacity, int& Length) const;

    // The same for the loaders: the text's length, 0 for none.
    // Requires: the caller is in a TReadSection; Hash is TResourceIndex::HashOf(Text).
    int Answer(std::string_view Text, std::uint64_t Hash, char* Buffer, int Capacity) const
    {
        return FAnswers.load(std::memory_order_relaxed) ? FTable.Find(Text, Hash, Buffer, Capacity) : 0;
    }

    // The translations file (core/TranslationsFile.h): for the pair number k the
    // lines Resk with the translation in Locale and the source text in locale -1.
    // LoadFrom adds to the table; a translation whose source does not precede it
    // is passed over. SaveTo replaces this form's lines of this Locale and of -1.
    bool LoadFrom(const std::string& FileName) override;
    void SaveTo(const std::string& FileName) override;

    // A dictionary file (core/DictionaryFile.h). TranslateFrom changes translations
    // of sources in the table and adds none; it throws EFOpenError without a file.
    void TranslateTo(const std::string& FileName);
    void TranslateFrom(const std::string& FileName);

    void InternalTranslate(bool Value) override;
    // Adds the stream property "ResStrings".
    void DefineProperties(TFiler& Filer) override;

private:
    void ReadResStrings(TReader& Reader);
    void WriteResStrings(TWriter& Writer);

    TResourceTable FTable;
    std::atomic<bool> FAnswers{true}; // Translate, for other threads
    TResComponentNode FNode;
};
