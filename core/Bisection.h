// The one search of all translation lists, written once for every kind of list
// that holds lines: string lists, parts of a file, lists under construction.
//
// Order: byte by byte as unsigned values, a beginning before what it begins.
// Case and the user's language do not matter: "Zebra" < "apple", "key" < "key=".
#pragma once

#include <string_view>

// Where a search ended. Lines are counted from 0.
struct TBisection {
    int Probe = 0;    // the line looked at last; 0 in an empty list
    int Position = 0; // the line found, or where the text would be inserted
    bool Found = false;
};

// Halves the range until a line equals S or nothing is left. Which of several
// equal lines is hit depends on Count alone; in a list that is out of order the
// answer is whatever the halving meets, and callers rely on just that.
// LineAt(Index) gives a line as std::string_view.
template<class TLineAt>
TBisection Bisect(std::string_view S, int Count, const TLineAt& LineAt)
{
    TBisection Result;
    int Low = 0;
    int High = Count - 1;
    while (Low <= High) {
        const int Middle = Low + (High - Low) / 2;
        const int Order = S.compare(LineAt(Middle));
        Result.Probe = Middle;
        Result.Position = Order > 0 ? Middle + 1 : Middle;
        if (Order == 0) {
            Result.Found = true;
            break;
        }
        if (Order < 0)
            High = Middle - 1;
        else
            Low = Middle + 1;
    }
    return Result;
}

// True for a line Key=Value of exactly that key.
inline bool BeginsWithKey(std::string_view Line, std::string_view Key)
{
    return Line.size() > Key.size() && Line[Key.size()] == '=' && Line.starts_with(Key);
}

// The line of Key: the one that a search for the bare key lands on, or one of
// its two neighbours. A line farther away is not found, although it is there:
//     Caption1=  Caption2=  Caption=     Caption is not found
// Index is the line, or near where it would be; 0 in an empty list.
template<class TLineAt>
bool FindKey(std::string_view Key, int Count, const TLineAt& LineAt, int& Index)
{
    Index = 0;
    if (Count == 0)
        return false;
    Index = Bisect(Key, Count, LineAt).Position;
    if (Index == Count)
        --Index;
    if (BeginsWithKey(LineAt(Index), Key))
        return true;
    if (Index > 0 && BeginsWithKey(LineAt(Index - 1), Key)) {
        --Index;
        return true;
    }
    if (Index < Count - 1 && BeginsWithKey(LineAt(Index + 1), Key)) {
        ++Index;
        return true;
    }
    return false;
}
