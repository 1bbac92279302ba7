// The frame that every translator fills in: what it publishes alike, how it is
// switched together with its peers, and how it keeps its texts in the form or in
// a file. A translator adds its keys and what switching on and off does.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "framework/rtl/Component.h"

class TReader;
class TWriter;

// Before a translation; Skip, which comes as false, cancels it.
OBX_EVENT(TTranslateEvent, TObject*, bool&)
// After a translation.
OBX_EVENT(TTranslatedEvent, TObject*)

// Which translators of a kind are switched together.
enum TPeerRule {
    // Those on the application's forms, by Locale. Locale 0 has no peers, and
    // nothing is passed on before the translator is loaded.
    prForms,
    // For work that is done once in the application: all that are owned by it, or
    // by one of its forms and data modules. Those of Locale 0 are left alone, those
    // of the same Locale follow, and switching one on switches the others off;
    // also one that is not loaded yet, or whose own Locale is 0.
    prApplication,
};

// A non-visual component on a form or data module, which owns it.
// User-interface thread only.
class TTranslatorFrame : public TComponent {
    OBX_CLASS(TComponent)
public:
    ~TTranslatorFrame() override;

    // Published. The translations file; empty keeps the texts in the form. A name
    // without a folder belongs to GetAppDir().
    const std::string& FileName() const { return FFileName; }
    void SetFileName(const std::string& Value) { FFileName = Value; }

    // Published. The language, as a decimal Windows locale identifier. 0: none,
    // and no peers. -1 is taken by the untranslated texts in files.
    int Locale() const { return FLocale; }
    void SetLocale(int Value) { FLocale = Value; }

    // Published. Whether this translator's language is shown.
    bool Translate() const { return FTranslate; }

    // Switches this translator and then its peers as TPeerRule tells.
    virtual void SetTranslate(bool Value);

    // Switches this translator alone.
    virtual void InternalTranslate(bool Value) = 0;

    // Exchange with a translations file; LoadFrom is false when there is none.
    virtual bool LoadFrom(const std::string& FileName) = 0;
    virtual void SaveTo(const std::string& FileName) = 0;

    // Edits the translations in the dialog for translators of this kind
    // (TranslatorEditors.h). All of the kind are switched off meanwhile, each by
    // itself, and those that were on are switched on again in reverse order. True
    // when the user closed it with OK after a change.
    // Throws EClassNotFound when the program has no such dialog.
    virtual bool ShowEditor();

    // The folder, with the separator at its end, of the program; in the designer
    // that of the open project. Empty when neither is known.
    std::string GetAppDir() const;

    // True when the texts go into the form file: FileName is empty.
    bool StoreTranslationsInForm() const { return FFileName.empty(); }

    // Takes the state of the first peer of the same Locale, unless that is 0.
    void Loaded() override;

    // Adds the stream property "Storage".
    void DefineProperties(TFiler& Filer) override;

protected:
    // Kind is the class whose instances are peers; Marker, in static storage,
    // stands before the form's name in translations files: "", "#0", "#1", "#2".
    TTranslatorFrame(TComponent* Owner, const TMetaClass& Kind, const char* Marker, TPeerRule Rule = prForms);

    // The value of "Storage": an integer without meaning. Reading it then loads
    // the translations file, writing it saves that file.
    virtual void ReadStorage(TReader& Reader);
    virtual void WriteStorage(TWriter& Writer);
    // Tries FileName as it stands, from the current folder, and then in GetAppDir().
    void LoadStorageFile();
    // A FileName without a folder is saved in GetAppDir(); empty saves nothing.
    void SaveStorageFile();

    // What begins this translator's lines in a translations file: the marker and
    // the owner's name; without a name, its class name without the first letter.
    std::string Section() const;

    // The other translators of this kind and Locale where TPeerRule looks for
    // them; form by form, in owner order.
    std::vector<TTranslatorFrame*> Peers() const;
    // The other translators of this kind with the same owner, in owner order.
    std::vector<TTranslatorFrame*> Siblings() const;

    // The newest other translator of this kind; null when there is none.
    TTranslatorFrame* NewestOther() const;

    // Called by Loaded before the state of a peer is taken.
    virtual void OwnLoaded() {}
    bool LoadedDone() const { return FLoadedDone; }

    // Tells whether a translator still exists after code that may destroy it:
    //     const TLife Life(*this);
    //     OnTranslated(this);
    //     if (Life.IsOver()) return;
    class TLife {
    public:
        explicit TLife(const TTranslatorFrame& Frame) : FNumber(Frame.FNumber) {}
        bool IsOver() const;

    private:
        uint64_t FNumber;
    };

    bool FTranslate = true;

private:
    class TPause;

    template<class TWanted>
    std::vector<TTranslatorFrame*> Others(const TWanted& Wanted) const;
    template<class TSwitch>
    static void SwitchAll(const std::vector<TTranslatorFrame*>& Frames, const TSwitch& Switch);
    void FollowLocale(bool Value);

    const TMetaClass& FKind;
    const char* FMarker;
    const TPeerRule FRule;
    const uint64_t FNumber; // of no other translator before or after
    std::string FFileName;
    int FLocale = 0;
    bool FLoadedDone = false;
};
