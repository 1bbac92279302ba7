// A form file together with the components made from it. Saving gives the file
// back with nothing but the changes: what the components do not know or spell
// differently stays as the file had it.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "framework/rtl/Component.h"
#include "framework/streaming/ComponentReader.h"
#include "framework/streaming/FormDocument.h"

class TLoadedForm {
public:
    // Makes the root for a class that the program does not have; the caller of
    // the constructor decides what such a root is.
    using TRootMaker = std::function<std::unique_ptr<TComponent>(const TFormObject& Source)>;

    // Reads Document into a root that MakeRoot makes. Errors: as TComponentReader.
    TLoadedForm(TFormDocument Document, TUnknownClasses UnknownClasses, const TRootMaker& MakeRoot,
                TStandInMaker MakeStandIn = {});
    TLoadedForm(TLoadedForm&&) noexcept;
    ~TLoadedForm();

    TComponent& Root() const { return *FRoot; }
    const TFormDocument& Document() const { return FDocument; }

    // The file with the changes since loading: properties get their present values
    // or leave, as do the components that were destroyed; new ones with a name come
    // where form files have them, and moved ones go to their new places.
    TFormDocument Save() const;

    // Takes the present values of all properties for those of the file, after a
    // change that is not to be saved: showing a form lays its controls out.
    void Settle();

    // One component of the file and how it was written right after loading.
    struct TEntry {
        TComponent* Component; // null when it was destroyed
        TFormObject Before;
        int FileParent; // the entry that contains it in the file; -1 for the root
        int Parent;     // the entry in which it would be written; -1 for none
        int Rank;       // its place among what would be written there
    };

private:
    class TWatch;

    TFormDocument FDocument;
    // After the root's end its components still tell it of theirs.
    std::unique_ptr<TWatch> FWatch;
    std::unique_ptr<TComponent> FRoot;
};
