// The walk over the published properties of a form and its components. Kept
// apart from TFormTranslator because it lives only while something is translated
// or read; part of that class otherwise.
//
// The plain walk builds the key of every property and searches for it. A list
// that is in order is descended along with the objects instead: lines lead to the
// properties that they can name, which are then visited in the plain walk's order
// and with its answers, so that the two cannot be told apart. Whenever a handler
// or a property writer changes the list, the plain walk takes over until the
// component is done.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Qft/LineIndex.h"
#include "Qft/Qft.h"
#include "framework/rtl/Collection.h"
#include "platform/winapi.h"

class TForm;

class TFormWalk {
public:
    // List outlives the walk.
    TFormWalk(TFormTranslator& Translator, TStrings& List, bool ReadMode);
    // Hands over the defaults.
    ~TFormWalk();
    TFormWalk(const TFormWalk&) = delete;
    TFormWalk& operator=(const TFormWalk&) = delete;

    // True when the translator was destroyed: nothing may be touched any more.
    bool IsOver() const { return FIsOver; }

    // Notes the values that the lines will replace before the first is replaced.
    // Only when one change can show in another value that has a line as well.
    void NoteFormerValues();

    // The owner's properties, the window menu, the components it owns.
    void WalkOwner();
    void WalkSystemMenu();
    void WalkComponents();

    // One object, string list or collection under a key.
    void WalkObject(TObject* Object, const std::string& Key);
    void WalkStrings(TStrings& Lines, const std::string& Key);
    void WalkCollection(TCollection& Items, const std::string& Key);

    // One property by line Index of the list; false when nothing was set. A line
    // without "=" names none.
    bool WalkOne(TObject& Object, const TPropInfo& Prop, int Index);

private:
    friend class TFormTranslator;

    // An object being walked, and how it was reached from the one before: through
    // a property or as an item of a collection.
    struct TEntry {
        TObject* Object;
        const TPersistent* Persistent; // the same, or null
        const TPropInfo* Prop;
        int Item;
        bool IsGone;
    };
    // A property, by its place in the object's list, and the lines that can name it.
    struct TNamed {
        int Prop;
        TNamedLines Lines;
    };
    // An index in brackets and the lines that have it.
    struct TIndexed {
        int Item;
        TLineRange Lines;
    };
    // A value before the translation, and the key of its line; empty for none.
    struct TNoted {
        std::string Key;
        std::string Value;
    };
    class TEntered;
    class TKey;

    void Prepare();
    void WalkComponent(TComponent& Component);
    bool IsStale() const { return FIsOrdered && FOrdered->Version() != FVersion; }
    bool IsWalked(const TObject& Object) const;
    bool IsIntact() const;
    bool IsStopped() const { return FIsOver || !IsIntact(); }
    void ForgetComponent(const TComponent* Component);

    void WalkProperties(TObject& Object, size_t From);
    void WalkProperty(TObject& Object, const TPropInfo& Prop);
    void WalkHeld(TObject& Holder, const TPropInfo& Prop);
    void WalkLines(TStrings& Lines, int From, int Count);
    void WalkItems(TCollection& Items, int From, int Count);
    void Note(int Index, std::string Value);
    bool ApplyTo(TObject& Object, const TPropInfo& Prop, int Index);
    void ApplyToLine(TStrings& Lines, int Line, int Index);
    bool FindAgain(int& Index) const;
    std::string_view Value(int Index) const;
    void Remember(std::string_view Former, bool AsLiteral, int Index);
    bool ChangesMaySpread() const;

    std::span<const TPropInfo* const> PublishedHere() const;
    int PropertyHere(std::string_view Name);
    bool HasOddNames() const;
    void DescendRoot(TObject& Root);
    void Descend(TObject& Object, TLineRange Range);
    void CollectNamed(TLineRange Range);
    void SortNamed(size_t First);
    void DescendNamed(TObject& Object, size_t First);
    void DescendProperty(TObject& Object, const TPropInfo& Prop, const TNamedLines& Lines);
    void DescendHeld(TObject& Holder, const TPropInfo& Prop, const TNamedLines& Lines);
    void DescendLines(TStrings& Lines, TLineRange Range);
    void DescendItems(TCollection& Items, TLineRange Range);
    std::vector<TIndexed> CollectIndexed(TLineRange Range, char End) const;
    bool FindOrdered(int First, int& Index) const;

    void TranslateMenuItem(TForm& Form, UINT Command, const char* Key, int Index);

    TFormTranslator& FTranslator;
    TStrings& FList;
    const TSortList* FOrdered; // FList, when it is a TSortList
    const bool FReadMode;
    TFormWalk* FOuter;
    TStrings* FOuterLookup;
    bool FIsOver = false;
    bool FNoting = false;
    std::vector<TNoted> FNoted; // by line
    bool FIsOrdered = false;
    uint64_t FVersion = 0;
    TLineIndex FIndex;
    std::string FKey;  // of the object or property being walked
    std::string FText; // the value being applied
    std::vector<TEntry> FEntries;
    std::vector<TNamed> FNamed;           // a stack, as deep as the descent
    std::vector<TComponent*> FComponents; // those to walk; null once destroyed
    // The property found last: components in a row often name the same one.
    const TMetaClass* FLastClass = nullptr;
    const std::string* FLastName = nullptr;
    int FLastProp = -1;
};
