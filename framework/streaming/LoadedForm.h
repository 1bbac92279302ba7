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
    TLoadedForm(TFormDocument Document, TUnknownClasses UnknownClasses, const TRootMaker& MakeRoot);

    TComponent& Root() const { return *FRoot; }
    const TFormDocument& Document() const { return FDocument; }

    // The file as it is when the properties that have changed since loading get
    // their present values. Components that are gone keep what the file had.
    TFormDocument Save() const;

private:
    // One component and how it was written right after loading.
    struct TEntry {
        TComponent* Component;
        TFormObject Before;
    };

    TFormDocument FDocument;
    std::unique_ptr<TComponent> FRoot;
    std::vector<TEntry> FEntries; // in the order of the document's objects
};
