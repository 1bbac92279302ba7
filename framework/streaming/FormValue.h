// The value of a property in a form file.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "framework/streaming/FormFloat.h"

class TFormItem;
class TFormValue;
struct TFormSource;

// Where a node stands in the file that it was read from; the writers copy
// these bytes for a node that has not changed. Offsets are in bytes from 0.
//   Begin..Open   what opens the node, from the end of the node before it
//                 (blanks and line ends belong to the node that they precede)
//   Close..End    what closes it: `end`, `)`, `>`
// A node without parts has Open = Close = End.
struct TFormSpan {
    std::shared_ptr<const TFormSource> Source; // null for a node made from scratch
    std::uint32_t Begin = 0, Open = 0, Close = 0, End = 0;
};

enum class TFormValueKind : std::uint8_t {
    Integer,
    Float,
    String,
    Ident,      // True, False, nil, Null, constants, methods, components: `DM.Source`
    Set,        // [akLeft, akTop]
    List,       // ( ... ): strings, numbers, or a mixture
    Collection, // < item ... end >
    Binary,     // { 89504E47 }
};

enum class TFormFloatType : std::uint8_t { Extended, Double, Single, Currency, Date };

// One value. It owns what it holds and can be copied and moved freely, also
// from one document to another. It keeps the spelling that it was read with,
// so that it is written back byte for byte; a value made by one of the
// functions below is written in the canonical layout of the file.
//
// Texts are UTF-8. Two things that UTF-8 has no place for are kept so:
//   - a byte that the file's code page does not define is the private
//     character U+10FE00 + byte (EscapedByte tells), written back as that byte;
//   - half a surrogate pair (`#55357` alone) is the three bytes that UTF-8
//     would use for it, written back as that char code.
class TFormValue {
public:
    TFormValue(); // Null
    TFormValue(const TFormValue& Other);
    TFormValue(TFormValue&& Other) noexcept;
    TFormValue& operator=(const TFormValue& Other);
    TFormValue& operator=(TFormValue&& Other) noexcept;
    ~TFormValue();

    static TFormValue Integer(std::int64_t Value);
    static TFormValue Float(double Value); // extended in a binary form file
    static TFormValue Extended(TFormExtended Value);
    static TFormValue Double(double Value);
    static TFormValue Single(float Value);                   // suffix s
    static TFormValue Currency(std::int64_t TenThousandths); // suffix c
    static TFormValue Date(double Days);                     // suffix d
    static TFormValue String(std::string Utf8);
    static TFormValue Ident(std::string Name);
    static TFormValue Boolean(bool Value) { return Ident(Value ? "True" : "False"); }
    static TFormValue Nil() { return Ident("nil"); }
    static TFormValue Set(std::vector<std::string> Elements);
    static TFormValue List(std::vector<TFormValue> Values);
    static TFormValue StringList(const std::vector<std::string>& Lines);
    static TFormValue Collection(std::vector<TFormItem> Items);
    static TFormValue Binary(std::string Bytes);

    TFormValueKind Kind() const { return FKind; }
    bool Is(TFormValueKind Kind) const { return FKind == Kind; }
    bool IsIdent(std::string_view Name) const; // without regard to case
    bool IsNil() const { return IsIdent("nil"); }
    bool IsBoolean() const { return IsIdent("True") || IsIdent("False"); }

    // Each requires the kind that it is named for (std::bad_variant_access
    // otherwise), except that AsFloat takes an Integer too.
    std::int64_t AsInteger() const { return std::get<std::int64_t>(FData); }
    double AsFloat() const;
    TFormExtended AsExtended() const;
    std::int64_t AsCurrency() const; // ten-thousandths
    TFormFloatType FloatType() const { return FFloatType; }
    const std::string& AsString() const { return TextOf(TFormValueKind::String); }
    const std::string& AsIdent() const { return TextOf(TFormValueKind::Ident); }
    const std::string& AsBinary() const { return TextOf(TFormValueKind::Binary); }
    const std::vector<std::string>& AsSet() const { return std::get<std::vector<std::string>>(FData); }
    const std::vector<TFormValue>& AsList() const { return std::get<std::vector<TFormValue>>(FData); }
    const std::vector<TFormItem>& AsCollection() const { return std::get<std::vector<TFormItem>>(FData); }

    // The strings of a list, which may be empty; nothing when it is not a list
    // or holds something else.
    std::optional<std::vector<std::string>> AsStringList() const;

    // For changing parts in place. The untouched parts keep their spelling.
    std::vector<TFormValue>& EditList();
    std::vector<TFormItem>& EditCollection();

    // Whether both mean the same, whatever their spelling: identifiers without
    // regard to case, sets to order, numbers by value (5 and 5.0 are the same).
    bool SameAs(const TFormValue& Other) const;

    // For the readers and writers.
    const TFormSpan& Span() const { return FSpan; }
    void SetSpan(TFormSpan Span) { FSpan = std::move(Span); }
    bool PartsTouched() const { return FPartsTouched; } // EditList or EditCollection was called

private:
    using TData = std::variant<std::int64_t, std::string, TFormExtended, std::vector<std::string>,
                               std::vector<TFormValue>, std::vector<TFormItem>>;

    TFormValue(TFormValueKind Kind, TData Data);
    const std::string& TextOf(TFormValueKind Kind) const;

    TData FData;
    TFormSpan FSpan;
    TFormValueKind FKind;
    TFormFloatType FFloatType = TFormFloatType::Extended;
    bool FPartsTouched = false;
};

// The byte that a private character stands for; nothing for any other character.
std::optional<unsigned char> EscapedByte(char32_t Character);
