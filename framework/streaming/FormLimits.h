// What a form file may not exceed, in either format.
#pragma once

#include <cstddef>

// Objects and values nested in each other, counted together.
constexpr int MaxFormDepth = 500;

// Bytes.
constexpr std::size_t MaxFormSize = std::size_t{1} << 30;
