// The parser behind ReadFormText. Include FormText.h instead.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "framework/streaming/FormDocument.h"
#include "framework/streaming/FormEncoding.h"
#include "framework/streaming/FormLimits.h"
#include "framework/streaming/FormSource.h"

// What a file shows about its profile. Each count is of places that only one
// of the two dialects writes so.
struct TFormTextTraits {
    int Dfm = 0, Lfm = 0;
    bool RawNonAscii = false, CodedNonAscii = false;
    int FixedFloats = 0, ShortFloats = 0;
};

// Parses one form. The tree's spans point into the source, which must not
// change any more except for the profile.
class TFormTextParser {
public:
    TFormTextParser(std::shared_ptr<const TFormSource> Source, const TFormCodec& Codec)
        : FSource(std::move(Source)), FText(FSource->Bytes), FCodec(Codec)
    {
    }

    // Fills Root and Frame of a document.
    void Parse(TFormDocument& Document);
    const TFormTextTraits& Traits() const { return FTraits; }

private:
    // Characters
    bool AtEnd() const { return FPos >= FText.size(); }
    char Current() const { return AtEnd() ? '\0' : FText[FPos]; }
    void SkipBlanks();
    bool SkipIf(char Sign);
    bool OwnLine(std::size_t Pos) const;
    [[noreturn]] void Fail(std::size_t Pos, const std::string& Message) const;
    [[noreturn]] void FailExpected(const std::string& What) const;
    std::string Found() const;

    // Names
    std::size_t NameLength(std::size_t Pos) const;
    std::string_view PeekName() const { return FText.substr(FPos, NameLength(FPos)); }
    std::string TakeName(const char* What);
    bool NextIsEquals(std::size_t Pos) const;

    // Structure
    bool AtObject(TFormObjectKind& Kind) const;
    void ParseObject(TFormObject& Object, int Depth);
    void ParseHeader(TFormObject& Object, TFormObjectKind Kind);
    std::optional<std::int64_t> ParseIndex();
    void ParseProperties(TFormProperties& Owner, int Depth);
    void ParseEnd(TFormSpan& Span, const std::string& Whose);

    // Values
    TFormValue ParseValue(int Depth);
    TFormValue ParseBare(TFormSpan& Span, int Depth);
    TFormValue ParseString();
    void ParseQuoted(std::string& Raw);
    char32_t ParseCharCode();
    TFormValue ParseNumber();
    TFormValue ParseIdent();
    TFormValue ParseSet();
    TFormValue ParseList(TFormSpan& Span, int Depth);
    TFormValue ParseCollection(TFormSpan& Span, int Depth);
    TFormItem ParseItem(int Depth);
    TFormValue ParseBinary();
    TFormValue MakeFloat(std::size_t Start, std::size_t End, char Suffix);

    TFormSpan SpanFrom(std::size_t Begin) const;

    std::shared_ptr<const TFormSource> FSource;
    std::string_view FText;
    const TFormCodec& FCodec;
    std::size_t FPos = 0;
    TFormTextTraits FTraits;
};
