// Format: texts with arguments filled in.
#pragma once

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "framework/rtl/Currency.h"
#include "framework/rtl/FloatText.h"

// One argument of Format, of any of the kinds below; made by implicit
// conversion. Texts are not copied: an argument lives as long as the expression
// that calls Format.
class TVarRec {
public:
    enum class TKind { Integer, Int64, Float, Currency, Text, Pointer };

    template<std::integral Type>
    requires(!std::same_as<Type, char> && !std::same_as<Type, bool>) TVarRec(Type Value)
        : FKind(sizeof(Type) > 4 ? TKind::Int64 : TKind::Integer), FInteger(static_cast<std::int64_t>(Value)),
          FIsUnsigned(std::unsigned_integral<Type>)
    {
    }
    TVarRec(bool Value) : FKind(TKind::Integer), FInteger(Value) {}
    template<std::floating_point Type>
    TVarRec(Type Value) : FKind(TKind::Float), FExtended(Value)
    {
    }
    TVarRec(TCurrency Value) : FKind(TKind::Currency), FInteger(Value.TenThousandths()) {}
    TVarRec(char Value) : FKind(TKind::Text), FCharacter(Value), FIsCharacter(true) {}
    TVarRec(const char* Value) : FKind(TKind::Text), FText(Value ? Value : "") {}
    TVarRec(const std::string& Value) : FKind(TKind::Text), FText(Value) {}
    TVarRec(std::string_view Value) : FKind(TKind::Text), FText(Value) {}
    TVarRec(const void* Value) : FKind(TKind::Pointer), FPointer(Value) {}

    TKind Kind() const { return FKind; }
    std::int64_t AsInteger() const { return FInteger; }                              // Integer, Int64
    bool IsUnsigned() const { return FIsUnsigned; }                                  // Integer, Int64
    TExtended AsExtended() const { return FExtended; }                               // Float
    TCurrency AsCurrency() const { return TCurrency::FromTenThousandths(FInteger); } // Currency
    const void* AsPointer() const { return FPointer; }                               // Pointer
    // Text. Valid as long as the argument.
    std::string_view AsText() const { return FIsCharacter ? std::string_view(&FCharacter, 1) : FText; }

private:
    TKind FKind;
    std::int64_t FInteger = 0;
    bool FIsUnsigned = false;
    TExtended FExtended = 0;
    const void* FPointer = nullptr;
    std::string_view FText;
    char FCharacter = 0;
    bool FIsCharacter = false;
};

// Replaces each format specifier in Fmt by an argument, and "%%" by "%".
//   %[index:][-][width][.precision]type
//   index      number of the argument, from 0; the next specifier without an
//              index takes the argument after it
//   -          pads on the right instead of the left
//   width      least number of characters (not bytes), padded with blanks
//   precision  see below
//   width and precision may be "*": an integer argument gives the number
// Types, of either case:
//   d  decimal;          precision: least number of digits, up to 16
//   u  the bits as unsigned decimal
//   x  the bits in hexadecimal, upper case
//   e  scientific;       precision: digits in all, 15 unless given
//   g  general;          precision: significant digits, 15 unless given
//   f  fixed;            precision: digits after the separator, 2 unless given
//   n  as f, with thousand separators
//   m  as n, with the currency; CurrencyDecimals unless given
//      (e to m take floating-point numbers and amounts of money)
//   s  text or character; precision: at most so many characters
//   p  pointer, in hexadecimal
// Throws EConvertError for a malformed specifier, one that does not suit its
// argument ("Format '...' invalid or incompatible with argument"), an argument
// that is not there ("No argument for format '...'"; both quote at most 31
// bytes of Fmt), and for a width beyond 65535: formats come from translations.
std::string Format(const std::string& Fmt, std::initializer_list<TVarRec> Args);
