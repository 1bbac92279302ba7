#include "Qrt/ResourceTable.h"

#include <algorithm>
#include <cstring>

#include "Qrt/ReadSections.h"
#include "core/Bisection.h"
#include "framework/rtl/Utf8.h"

namespace {

// A new index is worth its making after one lookup for so many entries.
constexpr std::int64_t EntriesALookup = 16;

int CopyTo(char* Buffer, int Capacity, std::string_view Text)
{
    const std::string_view Cut = CutAtCharacter(Text, static_cast<size_t>(std::max(Capacity, 1)) - 1);
    if (Cut.empty())
        return 0;
    std::memcpy(Buffer, Cut.data(), Cut.size());
    Buffer[Cut.size()] = 0;
    return static_cast<int>(Cut.size());
}

} // namespace

// The lists as they were at a version.
struct TResourceTable::TSnapshot {
    TSnapshot(std::uint64_t AtVersion, std::size_t Count) : Version(AtVersion), Index(Count) {}

    std::uint64_t Version;
    bool InOrder = true; // otherwise Index holds nothing
    TResourceIndex Index;
};

// A change of the lists. Changes within a change are one.
class TResourceTable::TEdit {
public:
    explicit TEdit(TResourceTable& Table) : FTable(Table)
    {
        if (FTable.FEditDepth++ == 0)
            FTable.FLock.lock();
    }
    ~TEdit()
    {
        if (--FTable.FEditDepth > 0)
            return;
        FTable.FLookups = 0;
        FTable.FVersion.fetch_add(1);
        FTable.FLock.unlock();
        FTable.CollectGarbage();
    }
    TEdit(const TEdit&) = delete;
    TEdit& operator=(const TEdit&) = delete;

private:
    TResourceTable& FTable;
};

// The published list, whose lines anybody changes.
class TResourceTable::TTexts : public TStringList {
public:
    explicit TTexts(TResourceTable& Table) : FTable(Table) {}

    void Put(int Index, const std::string& S) override
    {
        const TEdit Edit(FTable);
        TStringList::Put(Index, S);
    }
    void PutObject(int Index, TObject* Object) override
    {
        const TEdit Edit(FTable);
        TStringList::PutObject(Index, Object);
    }
    int AddObject(const std::string& S, TObject* Object) override
    {
        const TEdit Edit(FTable);
        return TStringList::AddObject(S, Object);
    }
    void Insert(int Index, const std::string& S, TObject* Object) override
    {
        const TEdit Edit(FTable);
        TStringList::Insert(Index, S, Object);
    }
    void Delete(int Index) override
    {
        const TEdit Edit(FTable);
        TStringList::Delete(Index);
    }
    void Clear() override
    {
        const TEdit Edit(FTable);
        TStringList::Clear();
    }

private:
    TResourceTable& FTable;
};

TResourceTable::TResourceTable() : FTexts(std::make_unique<TTexts>(*this)) {}

TResourceTable::~TResourceTable()
{
    delete FCurrent.load();
}

// Before the lists are read by their owner nothing is locked: only it changes them.
const std::string& TResourceTable::Translation(int Index) const
{
    static const auto& None = *new std::string; // other threads may read it to the very end
    const int Text = ObjectInteger(FSources.Objects(Index));
    return Text >= 0 && Text < FTexts->Count() ? FTexts->Get(Text) : None;
}

void TResourceTable::SetSources(const TSortList& Value)
{
    const TEdit Edit(*this);
    FSources.Assign(&Value);
}

void TResourceTable::Set(const std::string& Source, const std::string& Translation)
{
    const TEdit Edit(*this);
    int Index = -1;
    if (FSources.SortFind(Source, Index)) {
        const int Text = ObjectInteger(FSources.Objects(Index));
        if (Text >= 0 && Text < FTexts->Count()) {
            FTexts->Put(Text, Translation);
            return;
        }
        FSources.PutObject(Index, IntegerObject(FTexts->Add(Translation)));
    } else {
        FSources.Insert(Index, Source, IntegerObject(FTexts->Add(Translation)));
    }
}

bool TResourceTable::Remove(const std::string& Source)
{
    int Index = -1;
    if (!FSources.SortFind(Source, Index))
        return false;
    const TEdit Edit(*this);
    FSources.Delete(Index);
    TStringList Kept;
    Kept.Reserve(FSources.Count());
    for (int I = 0; I < FSources.Count(); ++I) {
        Kept.Add(Translation(I));
        FSources.PutObject(I, IntegerObject(I));
    }
    FTexts->Assign(&Kept);
    return true;
}

int TResourceTable::Append(const std::string& Source)
{
    const TEdit Edit(*this);
    const int Result = FTexts->Add("");
    FSources.SortInsert(Source, IntegerObject(Result));
    return Result;
}

void TResourceTable::Load(std::vector<TSortList::TLine> Lines)
{
    const TEdit Edit(*this);
    FSources.Give(std::move(Lines));
}

int TResourceTable::Find(std::string_view Source, std::uint64_t Hash, char* Buffer, int Capacity) const
{
    const TSnapshot* const Current = FCurrent.load();
    if (Current && Current->InOrder && Current->Version == FVersion.load(std::memory_order_acquire)) {
        const std::string_view Text = Current->Index.Find(Source, Hash);
        return CopyTo(Buffer, Capacity, Text);
    }
    const std::lock_guard Guard(FLock);
    const TSnapshot* const Newest = FCurrent.load();
    const bool Known = Newest && Newest->Version == FVersion.load(std::memory_order_relaxed);
    if (!Known && ++FLookups * EntriesALookup > FSources.Count()) {
        FReplaced.reserve(FReplaced.size() + 1);
        FReplaced.emplace_back(FCurrent.exchange(MakeSnapshot().release()));
    }
    return CopyTo(Buffer, Capacity, FindInLists(Source));
}

std::string_view TResourceTable::FindInLists(std::string_view Source) const
{
    const TBisection Hit =
        Bisect(Source, FSources.Count(), [this](int I) -> std::string_view { return FSources.Get(I); });
    return Hit.Found ? std::string_view(Translation(Hit.Position)) : std::string_view();
}

std::unique_ptr<const TResourceTable::TSnapshot> TResourceTable::MakeSnapshot() const
{
    auto Result = std::make_unique<TSnapshot>(FVersion.load(std::memory_order_relaxed),
                                              static_cast<size_t>(FSources.Count()));
    for (int I = 1; I < FSources.Count() && Result->InOrder; ++I)
        Result->InOrder = FSources.Get(I - 1) < FSources.Get(I);
    for (int I = 0; I < FSources.Count() && Result->InOrder; ++I)
        if (const std::string& Text = Translation(I); !Text.empty())
            Result->Index.Add(FSources.Get(I), Text);
    return Result;
}

// Main thread, without the lock: readers may be waiting for it.
void TResourceTable::CollectGarbage()
{
    std::vector<std::unique_ptr<const TSnapshot>> Garbage;
    {
        const std::lock_guard Guard(FLock);
        Garbage.swap(FReplaced);
    }
    if (!Garbage.empty())
        AwaitReaders();
}
