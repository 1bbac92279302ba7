// Qbt: message-box button translation. Start here; what every translator shares
// (FileName, Locale, Translate, peers, storage) is in core/Frame.h.
#pragma once

#include <memory>
#include <string>

#include "Qbt/LanguageCaptions.h"
#include "core/Frame.h"
#include "framework/rtl/Strings.h"

class TFont;
class TForm;
class TVarRec;

// Gives the buttons of the framework's message boxes, which are forms of the
// application, other captions. A form whose buttons have none of the captions in
// the list stays as it is; so do the system's own message boxes.
//
// Captions is a list of lines Source|Replacement: what a button says, as the
// framework sets it with "&" and all, and what it is to say. The first "|" of a
// line separates; others belong to the replacement.
//     &Yes|Ja
//     &No|Nein
// A line without "|" has no effect.
//
// One hook serves the whole application, and one translator's captions, title and
// font are used: those of the active translator, which is the newest one there is.
// (When it is destroyed, the newest of the others takes its place.) Switching a
// translator on sets the hook up, if there is none; switching any one off, or
// destroying one that is on, removes it, although others may still be on. So an
// application has one button translator, and changes its Language.
//
// Translators are switched together across all forms and data modules of the
// application (prApplication in core/Frame.h). A new one switches itself on, and
// those that have a Locale off; read from a form, it then follows another one of
// its own Locale.
//
// Handlers may destroy translators and forms; the form that is coming up only by its
// Release, as in all handlers that a form calls while it is shown.
class TButtonTranslator : public TTranslatorFrame {
    OBX_CLASS(TTranslatorFrame)
public:
    // Switched on, without captions. Raises EInvalidOperation unless Owner is a
    // form, whose font Font begins with.
    explicit TButtonTranslator(TComponent* Owner);
    ~TButtonTranslator() override;

    // Published. Takes effect when a form next becomes active.
    TStrings* Captions() const { return FCaptions.get(); }
    void SetCaptions(const TStrings* Value);

    // Published. The caption of every form that had a button translated; empty
    // leaves it as it is.
    const std::string& Title() const { return FTitle; }
    void SetTitle(const std::string& Value) { FTitle = Value; }

    // Published. The font of every button that was translated.
    TFont* Font() const { return FFont.get(); }
    void SetFont(TFont* Value);

    // Published. Setting it puts the captions of that language into the list, over
    // those for the same buttons; lnUser leaves the list as it is. Setting the
    // same language again does it again. Read after Captions, it wins over them.
    TLangName Language() const { return FLanguage; }
    void SetLanguage(TLangName Value);

    // In the designer nothing is hooked.
    void InternalTranslate(bool Value) override;

    // Published: around the translation of a form that has a button to translate.
    TTranslateEvent OnTranslate;
    TTranslatedEvent OnTranslated;

    // Gives each button of Form that says a Source of the list the Replacement, at
    // most 255 characters of it, of the first such line, and Font; then Title to
    // the form. Works whether Translate is on or not.
    void TranslateForm(TForm* Form);

    // Puts eleven replacements into the list, each for what the framework's texts
    // say at that time: Yes, No, OK, Cancel, Help, Abort, Retry, Ignore, All, and
    // OK and Cancel of other dialogs (SMsgDlgYes to SMsgDlgAll, SOKButton,
    // SCancelButton). A line of the same source is replaced, others stay.
    // Requires: Replacements has eleven texts. All eleven are read whatever
    // LastIndex says; each ends at its first zero byte.
    void ReplaceCaptions(const TVarRec* Replacements, int LastIndex);

    // The dictionary file (core/DictionaryFile.h) of the captions.
    // SaveTo writes a template, replacing the file: each source beside itself, for
    // a translator to fill in. The replacements are not saved. With a FileName,
    // this is also what saving the form does to that file.
    void SaveTo(const std::string& FileName) override;
    // Replaces the list by the pairs of the file; false when there is none.
    bool LoadFrom(const std::string& FileName) override;
    // Takes the replacements of sources that the list has; these lines move to its
    // end. False when there is no file.
    bool TranslateFrom(const std::string& FileName);

protected:
    // "Storage" is an empty list.
    void ReadStorage(TReader& Reader) override;
    void WriteStorage(TWriter& Writer) override;

private:
    // The first line for the source, -1 if there is none.
    int FindLine(const std::string& Source) const;
    bool HasButtonFor(const TForm& Form) const;
    bool TranslateButtons(TForm& Form);
    void PutLine(const std::string& Line);

    std::unique_ptr<TStringList> FCaptions;
    std::unique_ptr<TFont> FFont;
    std::string FTitle;
    TLangName FLanguage = lnUser;
};

// For the package (Obxc3/Obxc3.h): StopQbt removes the hook although translators may
// be on, and StartQbt sets it up again unless one was switched off in between.
void StartQbt();
void StopQbt();
