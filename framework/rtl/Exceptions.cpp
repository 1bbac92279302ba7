#include "framework/rtl/Exceptions.h"

// Defined here so that the class has one home for its type information, which
// program and module must share.
Exception::~Exception() = default;
