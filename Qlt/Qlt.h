// Qlt: locale translation. Start here; what every translator shares (FileName,
// Locale, peers, storage) is in core/Frame.h.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Qlt/LocaleEntries.h"
#include "Qlt/LocaleValues.h"
#include "core/Frame.h"
#include "core/SortList.h"

class TControl;
class TMenuItem;
class TStrings;

// Whether a component can be the language selector (TLocaleTranslator::AdoptOn).
bool CanBeLanguageSelector(TComponent* Component);

// Switches the application between locales: the format variables of the
// framework, the thread's locale, and every other translator. A control or menu
// of the application can become the user's language selector.
//
// Translations holds, line by line, the entries of any number of locales
// (LocaleEntries.h). A new translator has those of the user's locale.
//
// Every translator of the application whose Locale is the locale identifier that
// is being applied is switched on, those of other locales off, and those without
// one are left alone. Between locale translators Locale is a group number: those
// of one group share Translate.
//
// Handlers may destroy components, forms and translators.
class TLocaleTranslator : public TTranslatorFrame {
    OBX_CLASS(TTranslatorFrame)
public:
    explicit TLocaleTranslator(TComponent* Owner);
    ~TLocaleTranslator() override;

    // Published. The language selector; null for none. It is filled with the
    // languages, and its OnClick is taken over. A TTabSet, TMainMenu, TPopupMenu,
    // TListBox, TComboBox, TRadioGroup or TMenuItem; another component is refused
    // with a message. The control that was it before stays as it is.
    TComponent* AdoptOn() const { return FAdoptOn; }
    void SetAdoptOn(TComponent* Value);

    // Published. Locale value strings (LocaleValues.h); what is none is ignored.
    // The start-up locale is applied once the translator is loaded; the design
    // locale is shown in the designer, and applied instead of a start-up locale
    // that has no entries.
    const std::string& DesignLocale() const { return FDesignLocale; }
    void SetDesignLocale(const std::string& Value);
    const std::string& StartupLocale() const { return FStartupLocale; }
    void SetStartupLocale(const std::string& Value);

    // Published. What the selector shows for a locale: a text for Format with the
    // English language (0) and country (1), the native language (2) and country
    // (3). A text without "%" is refused with a message; one that asks for more
    // raises EConvertError when the selector is filled.
    const std::string& ListFormat() const { return FListFormat; }
    void SetListFormat(const std::string& Value);

    // Published. Assigning inserts line by line in order and applies nothing.
    TStrings* Translations() const { return FTranslations.get(); }
    void SetTranslations(const TStrings* Value);

    // Published. TranslateLocale does nothing while this is false.
    void SetTranslate(bool Value) override;
    void InternalTranslate(bool Value) override;

    // Published: around TranslateLocale. OnLocaleSelected comes after the user
    // chose a locale in the selector.
    TTranslateEvent OnTranslate;
    TTranslatedEvent OnTranslated;
    TNotifyEvent OnLocaleSelected;

    // The locale whose entries were applied last; the user's at the beginning.
    int ActiveLocale() const { return FActiveLocale; }

    // The languages as the selector shows them, sorted; the object of each is its
    // locale identifier (ObjectInteger). Made by UpdateLangList.
    const TSortList& LangList() const { return *FLangList; }

    // Adds the entries of a locale as the operating system has them.
    void AddOrgProps(int Lcid, TSortList& List) const;

    // Applies the entries of a locale; false, with nothing changed, when there are
    // none, Translate is off or OnTranslate said so.
    // Throws EConvertError on a malformed value: entries before it stay applied,
    // and ActiveLocale is what it was.
    bool TranslateLocale(int Lcid);

    // Switches the other translators of the application; 0 does nothing.
    void SetLocales(int Lcid);

    // Fills the selector anew. In a main menu or popup menu with items of its own
    // it is their sub-items by the same number that are taken out first, which
    // raises EMenuError when there are none.
    void UpdateAdoptOn();
    // Makes LangList from Translations.
    void UpdateLangList();
    // Marks the active locale in the selector.
    void UpdateLanguageSelection();

    // What clicks in the selector call.
    void OnTabSetClick(TObject* Sender);
    void OnListBoxClick(TObject* Sender);
    void OnComboBoxClick(TObject* Sender);
    void OnRadioGroupClick(TObject* Sender);
    void OnMenuItemClick(TObject* Sender);

    // Opens the editor with Translate switched off, and puts that back however it
    // ends.
    bool ShowEditor() override;
    // After an editor has changed Translations: fills the selector anew and takes
    // the locales as DesignLocale and StartupLocale. One that is neither in LangList
    // nor, for the start, a pseudo-locale leaves its property as it is.
    void TakeUpEdited(int DesignLcid, int StartupLcid);

    // The translations file (core/TranslationsFile.h). LoadFrom merges the entries
    // of this form and Locale and applies nothing; SaveTo replaces them.
    bool LoadFrom(const std::string& FileName) override;
    void SaveTo(const std::string& FileName) override;

    void Loaded() override;
    void Notification(TComponent* Component, TOperation Operation) override;

private:
    class TClick;
    class TPause;

    std::string ListedValue(int Lcid) const;
    bool ApplyEntries(const std::string& Prefix);
    void SwitchLocaleTranslator(TLocaleTranslator& Other);

    void TakeOver(TControl& Control, const TNotifyEvent& Handler);
    void ReleaseControls();
    void AddLanguages(TMenuItem& Menu);
    void ClearMenu(TMenuItem& Menu);
    void CheckActiveItem();
    void DropItem(TMenuItem& Menu, int Index);
    void DestroyDroppedItems();
    void ChooseFrom(TObject* Sender);
    void Choose(int Lcid);

    std::unique_ptr<TSortList> FTranslations;
    std::unique_ptr<TSortList> FLangList;
    std::string FDesignLocale;
    std::string FStartupLocale;
    std::string FListFormat = "%0:s, %1:s";
    int FActiveLocale;
    TComponent* FAdoptOn = nullptr;
    std::vector<TControl*> FTakenOver;     // their OnClick was set to ours
    std::vector<TMenuItem*> FDroppedItems; // no longer in a menu, perhaps being clicked
    int FClickDepth = 0;                   // clicks under way
};
