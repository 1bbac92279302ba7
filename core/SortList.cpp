#include "core/SortList.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

#include "core/LineBlocks.h"
#include "core/NearlySorted.h"

namespace {

using TLine = TSortList::TLine;

bool TextLess(const TLine& A, const TLine& B)
{
    return A.Text < B.Text;
}

// Puts the indexes of Lines into the order of their texts.
void PutInTurn(std::vector<size_t>& Turn, const std::vector<TLine>& Lines)
{
    if (Turn.empty()) {
        Turn.resize(Lines.size());
        std::iota(Turn.begin(), Turn.end(), size_t{0});
    }
    SortNearlySorted(Turn, [&](size_t A, size_t B) { return TextLess(Lines[A], Lines[B]); });
}

} // namespace

// While a change is under way, the order that the list will have after it.
// Changed() takes it over before any handler runs.
class TSortList::TExpectation {
public:
    TExpectation(TSortList& List, TOrder Order) : FList(List) { FList.FExpected = Order; }
    ~TExpectation() { FList.FExpected = TOrder::Unknown; }
    TExpectation(const TExpectation&) = delete;
    TExpectation& operator=(const TExpectation&) = delete;

private:
    TSortList& FList;
};

const TMetaClass& TSortList::MetaClass()
{
    static const TMetaClass Class("TSortList", &TStringList::MetaClass(), nullptr);
    return Class;
}

bool TSortList::SortFind(std::string_view S, int& Index) const
{
    const TBisection Hit =
        Bisect(S, Count(), [this](int I) -> std::string_view { return FItems[static_cast<size_t>(I)].Text; });
    if (Index == -1)
        Index = Hit.Position;
    else if (!FItems.empty())
        Index = ObjectInteger(FItems[static_cast<size_t>(Hit.Probe)].Object);
    return Hit.Found;
}

void TSortList::SortInsert(const std::string& S, TObject* Object)
{
    int Index = -1;
    if (SortFind(S, Index) && FKind == skUnique) {
        PutObject(Index, Object);
        return;
    }
    // Neither an order nor a disorder is undone by a line at its place.
    const TExpectation Expected(*this, FOrder);
    TStringList::Insert(Index, S, Object);
}

void TSortList::SortInsertAll(std::vector<TLine> Lines, std::vector<size_t> Turn)
{
    if (Lines.empty())
        return;
    if (Lines.size() == 1) {
        SortInsert(Lines[0].Text, Lines[0].Object);
        return;
    }
    if (IsInOrder()) {
        PutInTurn(Turn, Lines);
        if (IsUnambiguous(Lines, Turn)) {
            Merge(std::move(Lines), Turn);
            return;
        }
    }
    InsertOneByOne(std::move(Lines));
}

// Whether the outcome does not depend on the turn in which lines come: there are
// no equal lines with different objects, and in the unique variant no equal lines
// at all. Requires: the list and Turn are in order.
bool TSortList::IsUnambiguous(const std::vector<TLine>& Lines, const std::vector<size_t>& Turn) const
{
    const auto Ambiguous = [this](const TLine& A, const TLine& B) {
        return (FKind == skUnique || A.Object != B.Object) && A.Text == B.Text;
    };
    auto Place = std::lower_bound(FItems.begin(), FItems.end(), Lines[Turn[0]], TextLess);
    for (size_t I = 0; I < Turn.size(); ++I) {
        const TLine& Line = Lines[Turn[I]];
        if (I > 0 && Ambiguous(Lines[Turn[I - 1]], Line))
            return false;
        while (Place != FItems.end() && Place->Text < Line.Text)
            ++Place;
        for (auto Same = Place; Same != FItems.end() && Same->Text == Line.Text; ++Same)
            if (Ambiguous(*Same, Line))
                return false;
    }
    return true;
}

// Requires as above. What stands before all new lines is not touched.
void TSortList::Merge(std::vector<TLine> Lines, const std::vector<size_t>& Turn)
{
    Changing();
    const auto First = std::lower_bound(FItems.begin(), FItems.end(), Lines[Turn[0]], TextLess);
    std::vector<TLine> Old(std::make_move_iterator(First), std::make_move_iterator(FItems.end()));
    FItems.erase(First, FItems.end());
    FItems.reserve(FItems.size() + Old.size() + Lines.size());
    auto Next = Old.begin();
    for (const size_t I : Turn) {
        for (; Next != Old.end() && Next->Text < Lines[I].Text; ++Next)
            FItems.push_back(std::move(*Next));
        FItems.push_back(std::move(Lines[I]));
    }
    FItems.insert(FItems.end(), std::make_move_iterator(Next), std::make_move_iterator(Old.end()));
    const TExpectation Expected(*this, TOrder::InOrder);
    Changed();
}

void TSortList::InsertOneByOne(std::vector<TLine> Lines)
{
    Changing();
    TLineBlocks<TLine> Blocks(std::move(FItems));
    for (TLine& Line : Lines) {
        const TBisection Hit =
            Bisect(Line.Text, Blocks.Count(), [&](int I) -> std::string_view { return Blocks.At(I).Text; });
        if (Hit.Found && FKind == skUnique)
            Blocks.At(Hit.Position).Object = Line.Object;
        else
            Blocks.Insert(Hit.Position, std::move(Line));
    }
    FItems = Blocks.Take();
    const TExpectation Expected(*this, FOrder);
    Changed();
}

void TSortList::AssignInOrder(const TStrings* Source)
{
    if (Source == this)
        return;
    std::vector<TLine> Lines;
    for (int I = 0; Source && I < Source->Count(); ++I)
        Lines.push_back({Source->Get(I), Source->Objects(I)});
    BeginUpdate();
    Clear();
    SortInsertAll(std::move(Lines));
    EndUpdate();
}

bool TSortList::IsInOrder() const
{
    if (FOrder == TOrder::Unknown)
        FOrder =
            std::is_sorted(FItems.begin(), FItems.end(), TextLess) ? TOrder::InOrder : TOrder::OutOfOrder;
    return FOrder == TOrder::InOrder;
}

std::vector<TSortList::TLine> TSortList::Take()
{
    std::vector<TLine> Result;
    const TExpectation Expected(*this, TOrder::InOrder);
    Changing();
    Result.swap(FItems);
    Changed();
    return Result;
}

void TSortList::Give(std::vector<TLine> Lines)
{
    Changing();
    FItems = std::move(Lines);
    Changed();
}

void TSortList::GiveInOrder(std::vector<TLine> Lines)
{
    const TExpectation Expected(*this, TOrder::InOrder);
    Give(std::move(Lines));
}

// Whether S belongs between the lines Before and After, which may lie outside.
bool TSortList::Fits(int Before, std::string_view S, int After) const
{
    return (Before < 0 || FItems[static_cast<size_t>(Before)].Text <= S) &&
           (After >= Count() || S <= FItems[static_cast<size_t>(After)].Text);
}

TSortList::TOrder TSortList::OrderWith(int Before, std::string_view S, int After) const
{
    if (FOrder != TOrder::InOrder || Sorted())
        return TOrder::Unknown;
    return Fits(Before, S, After) ? TOrder::InOrder : TOrder::OutOfOrder;
}

void TSortList::Put(int Index, const std::string& S)
{
    const bool Inside = Index >= 0 && Index < Count();
    const TExpectation Expected(*this, Inside ? OrderWith(Index - 1, S, Index + 1) : TOrder::Unknown);
    TStringList::Put(Index, S);
}

void TSortList::PutObject(int Index, TObject* Object)
{
    const TExpectation Expected(*this, FOrder);
    TStringList::PutObject(Index, Object);
}

int TSortList::AddObject(const std::string& S, TObject* Object)
{
    const TExpectation Expected(*this, OrderWith(Count() - 1, S, Count()));
    return TStringList::AddObject(S, Object);
}

void TSortList::Insert(int Index, const std::string& S, TObject* Object)
{
    const bool Inside = Index >= 0 && Index <= Count();
    const TExpectation Expected(*this, Inside ? OrderWith(Index - 1, S, Index) : TOrder::Unknown);
    TStringList::Insert(Index, S, Object);
}

void TSortList::Delete(int Index)
{
    const TExpectation Expected(*this, FOrder == TOrder::InOrder ? FOrder : TOrder::Unknown);
    TStringList::Delete(Index);
}

void TSortList::Clear()
{
    const TExpectation Expected(*this, TOrder::InOrder);
    TStringList::Clear();
}

void TSortList::Changed()
{
    FOrder = FExpected;
    FExpected = TOrder::Unknown;
    ++FVersion;
    TStringList::Changed();
}

void TSortList::SetUpdateState(bool Updating)
{
    // The end of a group of changes is announced as one, but changes nothing.
    const TExpectation Expected(*this, FOrder);
    TStringList::SetUpdateState(Updating);
}
