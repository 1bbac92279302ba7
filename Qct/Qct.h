// Qct: translation of the system's dialogs. Start here; what every translator
// shares (FileName, Locale, Translate, peers, storage) is in core/Frame.h, how
// dialogs get here in Qct/DialogHook.h, their properties in Qct/DialogProps.h.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/Frame.h"
#include "core/SortList.h"
#include "platform/winapi.h"

class TCommonDialog;
class TCommonDialogTranslator;

// The current translator, whose lines are applied to dialogs: the newest one,
// until another one is switched on. Null when there is none; when it is destroyed,
// the newest of the others takes its place.
extern TCommonDialogTranslator* qctInstance;

// Shows the system's dialogs (files, fonts, colours, printing, find and replace) in
// its language while Translate is true: it sets their titles, the texts, fonts,
// sizes and places of their controls, each time a dialog becomes active.
//
// A line of Translations is DialogClass.Property=Value (Qct/DialogProps.h). It is
// for dialogs of exactly that class:
//     TOpenDialog.Caption='Öppna'
//     TOpenDialog.Caption[1]='&Öppna'
//     TOpenDialog.Width[1]=90
// Values of texts and the font's name are in literal form, of at most 4095 bytes.
//
// The dialog classes are those of the components on the application's forms when
// the translator was loaded, and what RegisterDialogClass adds. They stay
// registered until StopQct.
//
// Switching one translator on switches the others on its form off, and those of
// the same Locale on other forms on; destroying one that is on switches those of
// the same Locale off.
class TCommonDialogTranslator : public TTranslatorFrame {
    OBX_CLASS(TTranslatorFrame)
public:
    explicit TCommonDialogTranslator(TComponent* Owner);
    ~TCommonDialogTranslator() override;

    // Published. Whether an empty translation is applied or passed over.
    bool TranslateEmpty() const { return FTranslateEmpty; }
    void SetTranslateEmpty(bool Value) { FTranslateEmpty = Value; }

    // Published. Takes effect when a dialog next becomes active or is painted.
    TStrings* Translations() const { return FTranslations.get(); }
    void SetTranslations(const TStrings* Value);

    // The lines with the values that dialogs have untranslated, as an editor
    // collected them with GetDlgProps; stored with the form.
    const TSortList& Originals() const { return *FOriginals; }
    void SetOriginals(const TStrings* Value);

    // Published: around each translation of a dialog that there are lines for.
    TTranslateEvent OnTranslate;
    TTranslatedEvent OnTranslated;

    // Applies the lines for OwnerClassName to a dialog; nothing unless Translate is
    // on. Throws EConvertError on a malformed number or literal; the lines before
    // that one stay applied.
    void TranslateDialog(HWND Dialog);

    // Appends a dialog's lines to the list that GetDlgProps was called with;
    // nothing at other times.
    void GetProps(HWND Dialog);

    // Shows Dialog, appends its lines to Target (some may come twice) and closes
    // it. Dialogs of other kinds than find, file, font, colour and print dialogs are
    // not shown; nothing happens while any dialog is taken or scanned. Always 0.
    int GetDlgProps(TObject* Dialog, TStrings* Target);

    // Registers the classes of all dialogs on the forms and data modules of the
    // application; in the designer, those on the current translator's form.
    void RegisterOwnedDialogClasses();

    void SetTranslate(bool Value) override;
    void InternalTranslate(bool Value) override;

    // The translations file (core/TranslationsFile.h). LoadFrom merges the lines of
    // this form and Locale into Translations, the untranslated ones into Originals.
    // SaveTo replaces them; of the Originals it writes those that have a
    // translation.
    bool LoadFrom(const std::string& FileName) override;
    void SaveTo(const std::string& FileName) override;

    // The dictionary (core/DictionaryFile.h): pairs of an original and its
    // translation. TranslateFrom takes translations of originals into the lines that
    // Translations has already; false when there is no such file.
    void TranslateTo(const std::string& FileName);
    bool TranslateFrom(const std::string& FileName);

protected:
    void OwnLoaded() override;
    // "Storage" is the list of Originals.
    void ReadStorage(TReader& Reader) override;
    void WriteStorage(TWriter& Writer) override;

private:
    struct TDialogLine {
        std::string Name; // without the dialog's class
        std::string Literal;
    };
    std::vector<TDialogLine> LinesForDialog() const;
    void Scan(TCommonDialog& Dialog);
    void Notification(TComponent* Component, TOperation Operation) override;

    bool FTranslateEmpty = false;
    bool FScanning = false;
    TStrings* FPropTarget = nullptr;
    TComponent* FScanned = nullptr; // until it is destroyed
    std::unique_ptr<TSortList> FTranslations;
    std::unique_ptr<TSortList> FOriginals;
};

// Begins and ends the translation of dialogs in this program. StopQct gives all
// dialog classes back what they had, and a dialog that is open its procedure;
// StartQct then registers the classes anew that are in reach of the translators
// that are still there.
void StartQct();
void StopQct();
