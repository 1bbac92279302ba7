#include "framework/streaming/FormSource.h"

#include "framework/streaming/FormEncoding.h"

std::uint32_t TFormSource::SkipBlanks(std::uint32_t Offset) const
{
    if (Format == TFormFormat::Binary)
        return Offset;
    while (Offset < Bytes.size() && static_cast<unsigned char>(Bytes[Offset]) <= ' ')
        ++Offset;
    return Offset;
}

EFormFileError TFormSource::ErrorAt(std::uint32_t Offset, const std::string& Message) const
{
    if (Format == TFormFormat::Binary)
        return {FileName, Offset, Message};
    std::size_t LineStart = Text.Bom && Text.Encoding == TFormEncoding::Utf8 ? 3 : 0;
    int Line = 1;
    for (std::size_t Pos = LineStart; Pos < Offset; ++Pos) {
        const bool LoneReturn = Bytes[Pos] == '\r' && (Pos + 1 == Bytes.size() || Bytes[Pos + 1] != '\n');
        if (Bytes[Pos] == '\n' || LoneReturn) {
            ++Line;
            LineStart = Pos + 1;
        }
    }
    const auto Codec = TFormCodec::Find(Text.Encoding, Text.CodePage);
    int Column = 1;
    while (LineStart < Offset) {
        LineStart += Codec ? Codec->CharLength(std::string_view(Bytes).substr(LineStart)) : 1;
        ++Column;
    }
    return {FileName, Line, Column, Message};
}
