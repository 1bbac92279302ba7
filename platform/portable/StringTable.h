// String tables of modules, where the system has none of its own.
//
// A module (program or shared object) gathers its tables in a section of its own
// file, so that no code has to run before they can be read. cmake/ResStrings.cmake
// writes the sources that hold them.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

struct TStringRow {
    unsigned short Identifier;
    const char* Text; // UTF-8
};

// Rows in ascending order of their identifiers.
struct TStringTable {
    const TStringRow* Rows;
    std::size_t Count;
};

// All tables of one module.
struct TModuleStrings {
    const TStringTable* const* Begin;
    const TStringTable* const* End;
};

// What a library without code of its own exports under the name OrbilexStrings.
using TModuleStringsFunction = TModuleStrings (*)();

template<std::size_t Count>
constexpr std::array<TStringRow, Count> SortedRows(const TStringRow (&Rows)[Count])
{
    std::array<TStringRow, Count> Result{};
    std::copy(std::begin(Rows), std::end(Rows), Result.begin());
    std::sort(Result.begin(), Result.end(),
              [](const TStringRow& A, const TStringRow& B) { return A.Identifier < B.Identifier; });
    return Result;
}

template<std::size_t Count>
constexpr bool EachOnce(const std::array<TStringRow, Count>& Rows)
{
    return std::adjacent_find(Rows.begin(), Rows.end(), [](const TStringRow& A, const TStringRow& B) {
               return A.Identifier == B.Identifier;
           }) == Rows.end();
}

// Makes Rows, an array of TStringRow with static storage, a table of this module.
#define ORBILEX_STRING_TABLE(Rows)                                                                           \
    static constexpr auto Sorted = SortedRows(Rows);                                                         \
    static_assert(EachOnce(Sorted), "two texts have the same identifier");                                   \
    static constexpr TStringTable Table{Sorted.data(), Sorted.size()};                                       \
    [[gnu::section("orbilex_strings"), gnu::used]] static constinit const TStringTable* Entry = &Table;

// The tables of the module that this header is compiled into.
extern "C" {
[[gnu::weak, gnu::visibility("hidden")]] extern const TStringTable* __start_orbilex_strings[];
[[gnu::weak, gnu::visibility("hidden")]] extern const TStringTable* __stop_orbilex_strings[];
}

[[gnu::visibility("hidden")]] inline TModuleStrings OwnModuleStrings()
{
    return {__start_orbilex_strings, __stop_orbilex_strings};
}
