// The writer behind WriteFormText. Include FormText.h instead.
#pragma once

#include <string>
#include <string_view>

#include "framework/streaming/FormDocument.h"
#include "framework/streaming/FormEncoding.h"
#include "framework/streaming/FormSource.h"

// Writes one document: spelled parts as they were read, others canonically. The
// document, profile and codec must outlive it.
class TFormTextWriter {
public:
    TFormTextWriter(const TFormDocument& Document, const TFormTextProfile& Profile, const TFormCodec& Codec);

    std::string Write();

private:
    bool IsLfm() const { return FProfile.Dialect == TFormDialect::Lfm; }
    bool IsSpelled(const TFormSpan& Span) const { return FSource && Span.Source.get() == FSource; }
    void Put(std::string_view Bytes) { FOut += Bytes; }
    void Copy(const TFormSpan& Span, std::uint32_t Begin, std::uint32_t End)
    {
        Put(Span.Source->Slice(Begin, End));
    }
    void CopyBlanks(const TFormSpan& Span) { Copy(Span, Span.Begin, FSource->SkipBlanks(Span.Begin)); }
    void NewLine(int Level);
    void PutBlanks(int Level) { FOut.append(static_cast<std::size_t>(Level) * 2, ' '); }
    void PutName(std::string_view Name);
    void PutIdent(std::string_view Name);
    [[noreturn]] void FailName(std::string_view Name, const std::string& Why) const;

    void WriteObject(const TFormObject& Object, int Level);
    void WriteHeader(const TFormObject& Object);
    void WriteProperties(const TFormProperties& Owner, int Level);
    void WriteValue(const TFormValue& Value, int Level);
    void WriteParts(const TFormValue& Value, int Level);
    void WriteCanonical(const TFormValue& Value, int Level);
    void WriteString(const std::string& Text, int Level);
    bool EncodeRaw(char32_t Character, std::string& Bytes) const;
    std::size_t RawWidth(char32_t Character, const std::string& Bytes) const;
    bool IsLong(const std::string& Text) const;
    void WriteFloat(const TFormValue& Value);
    std::string FloatText(const TFormValue& Value) const;
    void WriteSet(const TFormValue& Value);
    void WriteList(const TFormValue& Value, int Level);
    void WriteCollection(const TFormValue& Value, int Level);
    void WriteItem(const TFormItem& Item, int Level);
    void WriteBinary(const std::string& Bytes, int Level);

    const TFormDocument& FDocument;
    const TFormTextProfile& FProfile;
    const TFormCodec& FCodec;
    const TFormSource* FSource = nullptr; // whose spelling is kept; null for none
    std::string FOut;
};
