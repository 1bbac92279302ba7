// The value of a published property as a translation list writes it.
#pragma once

#include <string>
#include <string_view>

#include "framework/rtl/TypInfo.h"

//   texts and wide characters  literal form (core/Literals.h)
//   char                       the byte itself
//   integer                    decimal; of a type named TColor the colour's name,
//                              empty when it has none
//   set                        its bits, decimal
//   float                      as FloatToStr writes it; "." and "," are read, too
//   enumeration                the value's name
//   event                      the name of the property's type
//   others                     empty
std::string GetPropertyText(const TObject& Object, const TPropInfo& Prop);

// Sets the property from such a text, Raw as the list has it and Text with the
// literals resolved; false for kinds that have no text. Throws EConvertError when
// Raw is not a number where one is needed. An unknown name of an enumeration sets
// the ordinal -1.
bool SetPropertyText(TObject& Object, const TPropInfo& Prop, std::string_view Raw, const std::string& Text);

// Kinds whose text is in literal form.
bool IsLiteralKind(TTypeKind Kind);
