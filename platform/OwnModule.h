// The module that this header is compiled into: a program or a library.
#pragma once

#include "platform/winapi.h"

// Made by the linker: the first byte of the module.
#ifdef _WIN32
extern "C" HINSTANCE__ __ImageBase;
static constexpr HINSTANCE OwnModule = &__ImageBase;
#else
extern "C" [[gnu::visibility("hidden")]] HINSTANCE__ __ehdr_start;
static constexpr HINSTANCE OwnModule = &__ehdr_start;
#endif
