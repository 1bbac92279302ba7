// The list in which every translator keeps its lines.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/Bisection.h"
#include "framework/rtl/Strings.h"

// What SortInsert does with a line that is there already: add another one in
// front of it, or only replace its object.
enum TSortKind { skMulti, skUnique };

// A string list kept in the order of Bisection.h by SortInsert alone. Lines that
// come by other ways (Add, Insert, a file) stay where they are put; searches in a
// list that is out of order then find what the bisection happens to meet.
// Lines are counted from 0; attached objects are not owned.
class TSortList : public TStringList {
    OBX_CLASS(TStringList)
public:
    using TLine = TStringList::TItem;

    explicit TSortList(TSortKind Kind = skMulti) : FKind(Kind) {}
    TSortKind Kind() const { return FKind; }

    // Searches S; true when a line equals it. Index says what is wanted:
    //   -1      the line's position, or the one where S would be inserted
    //   others  the attached object, as an integer, of the line that was looked
    //           at last, also when S was not found; unchanged in an empty list
    bool SortFind(std::string_view S, int& Index) const;

    void SortInsert(const std::string& S, TObject* Object);

    // Gives the list, texts and objects, that SortInsert would give for one line
    // after the other, in about the time of sorting them. Turn may give their
    // indexes in an order that is expected to be that of the texts.
    void SortInsertAll(std::vector<TLine> Lines, std::vector<size_t> Turn = {});

    // Replaces all lines by those of Source, null for none, with their objects, as
    // SortInsert puts them.
    void AssignInOrder(const TStrings* Source);

    // Whether every line is at its place. The answer is kept until the list
    // changes, and most changes keep it valid.
    bool IsInOrder() const;

    // Counts changes: equal numbers mean equal lines.
    uint64_t Version() const { return FVersion; }

    // All lines; the list is empty afterwards.
    std::vector<TLine> Take();
    // Replaces all lines, which are taken as they stand.
    void Give(std::vector<TLine> Lines);
    // The same; requires that they are in order.
    void GiveInOrder(std::vector<TLine> Lines);

    void Put(int Index, const std::string& S) override;
    void PutObject(int Index, TObject* Object) override;
    int AddObject(const std::string& S, TObject* Object) override;
    void Insert(int Index, const std::string& S, TObject* Object = nullptr) override;
    void Delete(int Index) override;
    void Clear() override;

protected:
    void Changed() override;
    void SetUpdateState(bool Updating) override;

private:
    enum class TOrder { Unknown, InOrder, OutOfOrder };
    class TExpectation;

    bool Fits(int Before, std::string_view S, int After) const;
    TOrder OrderWith(int Before, std::string_view S, int After) const;
    void InsertOneByOne(std::vector<TLine> Lines);
    bool IsUnambiguous(const std::vector<TLine>& Lines, const std::vector<size_t>& Turn) const;
    void Merge(std::vector<TLine> Lines, const std::vector<size_t>& Turn);

    TSortKind FKind;
    mutable TOrder FOrder = TOrder::InOrder;
    TOrder FExpected = TOrder::Unknown; // the order after the change under way
    uint64_t FVersion = 0;
};

// An attached object that is a number.
inline TObject* IntegerObject(int Value)
{
    return reinterpret_cast<TObject*>(static_cast<intptr_t>(Value));
}
inline int ObjectInteger(const TObject* Object)
{
    return static_cast<int>(reinterpret_cast<intptr_t>(Object));
}
