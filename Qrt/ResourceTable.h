// The texts of one resource translator: written on the main thread, searched on
// any.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "Qrt/ResourceIndex.h"
#include "core/SortList.h"

// A source text's object is the index, from 0, of its translation among the
// texts. After Remove there is one text a source, in the order of the sources;
// before, some texts may belong to none. An index that is out of range (form files
// can hold any number) counts as an empty translation.
//
// Lookups go through an index that is made anew some lookups after a change: until
// then the lists themselves are searched, one thread at a time. Lists that are out
// of order are always searched so, and the answers are those of the bisection.
class TResourceTable {
public:
    TResourceTable();
    // Requires: no thread is searching, nor will be.
    ~TResourceTable();

    // Main thread, all that follow up to Find.

    const TSortList& Sources() const { return FSources; }
    void SetSources(const TSortList& Value);

    // Changes of the lines take effect as those by this class do.
    TStrings& Texts() const { return *FTexts; }

    // The translation of a source by its number; empty without one.
    const std::string& Translation(int Index) const;

    // Adds a source, or changes its translation.
    void Set(const std::string& Source, const std::string& Translation);

    // False, with nothing changed, when there is no such source.
    bool Remove(const std::string& Source);

    // Adds a source behind a text that is added too, or gives a source that is
    // there already that new text. The index of the text.
    int Append(const std::string& Source);

    // Replaces the sources by the lines, which are taken as they stand.
    void Load(std::vector<TSortList::TLine> Lines);

    // Writes the translation of Source and a zero to Buffer, cut between characters
    // to Capacity - 1 bytes, and returns its length; 0, with Buffer as it was,
    // when there is none, it is empty, or not one character fits. Hash is TResourceIndex::HashOf(Source).
    // Source may lie in Buffer.
    // Any thread. Requires: the caller is in a TReadSection.
    int Find(std::string_view Source, std::uint64_t Hash, char* Buffer, int Capacity) const;

private:
    class TEdit;
    class TTexts;
    struct TSnapshot;

    std::string_view FindInLists(std::string_view Source) const;
    std::unique_ptr<const TSnapshot> MakeSnapshot() const;
    void CollectGarbage();

    TSortList FSources{skUnique};
    std::unique_ptr<TStrings> FTexts; // a TTexts

    // Held while the lists are changed, and while another thread reads them. The
    // thread that changes them may read them too: the text of the error that a
    // change ends in is a resource string itself.
    mutable std::recursive_mutex FLock;
    int FEditDepth = 0; // main thread
    std::atomic<std::uint64_t> FVersion{1};
    mutable std::atomic<const TSnapshot*> FCurrent{nullptr};
    mutable std::vector<std::unique_ptr<const TSnapshot>> FReplaced; // perhaps still being read
    mutable std::int64_t FLookups = 0;                               // since the last change
};
