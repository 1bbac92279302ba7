// Qft: form translation. Start here; what every translator shares (FileName,
// Locale, Translate, peers, storage) is in core/Frame.h.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "Qft/PendingDefaults.h"
#include "core/Frame.h"
#include "core/SortList.h"

class TCollection;
class TFormWalk;

// Asked before a form, a component or a property is changed or read; Skip comes
// as false, and true leaves it untouched. Sender is the translator, List the lines
// that are being applied or filled. A property comes with its description; a line
// of a string list with its key as PropName and no description.
OBX_EVENT(TTranslateFormEvent, TObject*, TStrings*, bool&)
OBX_EVENT(TTranslateComponentEvent, TObject*, TComponent*, TStrings*, bool&)
OBX_EVENT(TTranslatePropertyEvent, TObject*, const std::string&, const TPropInfo*, TStrings*, bool&)

// After a translation. Form files know it by the name of the other translators'
// event, which has no list.
struct TFormTranslatedEventName {
    static constexpr const char* Name = "TTranslatedEvent";
};
using TFormTranslatedEvent = TEvent<TFormTranslatedEventName, TObject*, TStrings*>;

// Shows its owner, a form, frame or data module, in the translator's language:
// while Translate is true the published properties of the owner and of the named
// components it owns have the values in Translations; when it turns false they
// get back the values they had.
//
// A line of Translations is Key=Value.
//   Key    the path of names to the value, case-sensitive
//            Caption                     of the form itself
//            Button1.Caption             of a component
//            Label1.Font.Name            of an object in a property
//            Memo1.Lines[0]              a line of a string list
//            StatusBar1.Panels[1].Text   of an item of a collection
//            SystemMenuClose             a command of the window menu (SystemMenu.cpp)
//   Value  by the property's type (PropertyText.h); texts in literal form; at most
//          4098 bytes are used, cut between characters
//
// Handlers may change the lists, destroy components, forms and translators; what
// was to be done with them is dropped.
class TFormTranslator : public TTranslatorFrame {
    OBX_CLASS(TTranslatorFrame)
public:
    explicit TFormTranslator(TComponent* Owner);
    ~TFormTranslator() override;

    // Published. Whether an empty translation is applied or passed over.
    bool TranslateEmpty() const { return FTranslateEmpty; }
    void SetTranslateEmpty(bool Value) { FTranslateEmpty = Value; }

    // Published. Assigning inserts line by line in order and translates nothing.
    TStrings* Translations() const { return FTranslations.get(); }
    void SetTranslations(const TStrings* Value);

    // The values to put back, Key=Value; empty while the form is not translated.
    const TSortList& Defaults() const;
    // True while the form shows translated values.
    bool Translated() const { return FTranslated; }

    // Published.
    TTranslateFormEvent OnTranslateForm;
    TTranslateComponentEvent OnTranslateComponent;
    TTranslatePropertyEvent OnTranslateProperty;
    TFormTranslatedEvent OnTranslated;

    // Applies List to the owner and the components it owns; false when that was
    // not done: Translate is off, List is missing or empty, the owner is being
    // designed, or OnTranslateForm said so. With ReadMode the present values are
    // appended to List instead, and only the event can make it false. A form that
    // shows translated values gets its own back first, in both modes.
    // Throws EConvertError on a malformed value: properties set so far stay set,
    // their former values are in Defaults, and Translated is what it was.
    bool TranslateForm(TStrings* List, bool ReadMode);

    // Parts of TranslateForm that work on the list it was last called with, which
    // must still be there. Path is the key of the object, empty for the owner.
    void TranslateClass(TObject* Obj, const std::string& Path, bool ReadMode);
    void SetStrings(TStrings* Obj, const std::string& Path, bool ReadMode);
    void SetCollection(TCollection* Obj, const std::string& Path, bool ReadMode);
    bool TranslateProp(TObject* Obj, const TPropInfo* PropInfo, int Index);
    void TranslateVirtual(bool ReadMode);
    std::string GetProp(const TObject* Obj, const TPropInfo* PropInfo) const;
    // Whether that list has a line for Key, and where; 0 without a list.
    bool WantTranslate(const std::string& Key, int& Index) const;

    // Puts the former values back; nothing unless Translated. When that is not
    // done, because Translate is off or OnTranslateForm said so, the form stays
    // translated. Throws EConvertError on a former value that cannot be set, an
    // unnamed colour: Translated is false then, and Defaults keep all values.
    void RestoreForm();

    void InternalTranslate(bool Value) override;

    // The translations file (core/TranslationsFile.h). LoadFrom merges the lines
    // of this form and Locale into Translations and does not translate. SaveTo
    // replaces them, and the untranslated texts of the keys in Translations.
    bool LoadFrom(const std::string& FileName) override;
    void SaveTo(const std::string& FileName) override;

    // The dictionary (core/DictionaryFile.h). TranslateTo adds the pairs of what
    // the form shows and its translation; a translated form is restored first.
    // TranslateFrom takes translations of what the form shows into the lines that
    // Translations has already, and does not translate; false when there is no
    // such file.
    void TranslateTo(const std::string& FileName);
    bool TranslateFrom(const std::string& FileName);

    void Loaded() override;
    void Notification(TComponent* Component, TOperation Operation) override;

private:
    friend class TFormWalk;
    class TLookupEnd;

    bool WalkForm(TStrings& List, bool ReadMode);
    void MoveDefaultsTo(TSortList& List);
    void EndRestoring(bool Restored);
    void FlushDefaults() const;
    void ReadPresentValues(TSortList& List);
    void DeleteUnwanted(TSortList& List);

    bool FTranslateEmpty = false;
    bool FTranslated = false;
    bool FRestoring = false;
    std::unique_ptr<TSortList> FTranslations;
    std::unique_ptr<TSortList> FDefaults;
    // Defaults on their way into the list; Defaults() takes them in when asked.
    mutable TPendingDefaults FPending;
    // While the form is being restored, the list that took over the defaults.
    mutable const TSortList* FMovedDefaults = nullptr;
    TStrings* FLookup = nullptr;
    TFormWalk* FWalk = nullptr; // the innermost walk under way
};
