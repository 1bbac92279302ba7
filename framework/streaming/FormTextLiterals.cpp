// How text form files spell strings, floats and binary blocks: the second half of
// TFormTextWriter.
#include "framework/streaming/FormTextWriter.h"

#include "framework/streaming/FormNames.h"

namespace {

constexpr std::size_t PieceLength = 64; // characters of a string in a row
constexpr std::size_t BytesInRow = 32;  // of a binary block
constexpr int FixedDigits = 16;         // significant digits of a float with fixed decimals
constexpr int ShortDigits = 15;         // ... and of one with as many as needed
constexpr int DoubleDigits = 17;        // tells any two doubles apart
constexpr int ExtendedDigits = 21;      // tells any two extended numbers apart

// Puts the characters of one string: quotes are opened and closed around char
// codes, and rows are cut where the dialect cuts them.
class TFormStringWriter {
public:
    TFormStringWriter(std::string& Out, std::string Cut) : FOut(Out), FCut(std::move(Cut)) {}

    // Width is what the character counts towards the length of its row.
    void PutRaw(std::string_view Bytes, std::size_t Width)
    {
        CutBefore(Width);
        if (!FOpen)
            FOut += '\'';
        FOpen = true;
        FOut += Bytes;
    }
    void PutCode(char16_t Unit)
    {
        CutBefore(1);
        Close();
        FOut += '#';
        FOut += std::to_string(static_cast<unsigned>(Unit));
    }
    void Close()
    {
        if (FOpen)
            FOut += '\'';
        FOpen = false;
    }

private:
    void CutBefore(std::size_t Width)
    {
        FRowLength += Width;
        if (FCut.empty() || FRowLength <= PieceLength)
            return;
        Close();
        FOut += FCut;
        FRowLength = Width;
    }

    std::string& FOut;
    std::string FCut; // what separates two rows; empty for a string in one row
    std::size_t FRowLength = 0;
    bool FOpen = false;
};

} // namespace

// Appends the bytes of a character that is written raw inside quotes; false when
// it is written as char code.
bool TFormTextWriter::EncodeRaw(char32_t Character, std::string& Bytes) const
{
    if (Character < ' ' || (Character == '\'' && !IsLfm()))
        return false;
    if (Character > 127 && FProfile.NonAscii == TFormNonAscii::Codes)
        return false;
    if (Character == '\'')
        Bytes += '\'';
    return FCodec.Encode(Character, Bytes);
}

// Rows are measured in bytes where a code page is written raw, otherwise in
// UTF-16 code units.
std::size_t TFormTextWriter::RawWidth(char32_t Character, const std::string& Bytes) const
{
    if (FProfile.Encoding == TFormEncoding::CodePage)
        return Bytes.size();
    return Character > 0xFFFF ? 2 : 1;
}

// Whether the whole string takes more than one row.
bool TFormTextWriter::IsLong(const std::string& Text) const
{
    if (IsLfm() || Text.size() <= PieceLength)
        return false;
    std::size_t Length = 0;
    std::string Bytes;
    for (std::size_t Pos = 0; Pos < Text.size() && Length <= PieceLength; Bytes.clear()) {
        const char32_t Character = NextChar(Text, Pos);
        Length += EncodeRaw(Character, Bytes) ? RawWidth(Character, Bytes) : Character > 0xFFFF ? 2 : 1;
    }
    return Length > PieceLength;
}

void TFormTextWriter::WriteString(const std::string& Text, int Level)
{
    if (Text.empty()) {
        Put("''");
        return;
    }
    std::string Cut;
    if (IsLong(Text)) {
        NewLine(Level + 1);
        Cut = " +" + FProfile.LineEnd + std::string(static_cast<std::size_t>(Level + 1) * 2, ' ');
    }
    TFormStringWriter Writer(FOut, std::move(Cut));
    std::string Bytes;
    for (std::size_t Pos = 0; Pos < Text.size(); Bytes.clear()) {
        const char32_t Character = NextChar(Text, Pos);
        if (EncodeRaw(Character, Bytes))
            Writer.PutRaw(Bytes, RawWidth(Character, Bytes));
        else
            ForEachUnit(Character, [&](char16_t Unit) { Writer.PutCode(Unit); });
    }
    Writer.Close();
}

// The usual digits do not tell every two numbers apart: where they would read
// back as another double there are more of them.
std::string TFormTextWriter::FloatText(const TFormValue& Value) const
{
    const TFormExtended Number = Value.AsExtended();
    const bool Fixed = FProfile.FloatDecimals > 0 && (Value.FloatType() == TFormFloatType::Extended ||
                                                      Value.FloatType() == TFormFloatType::Double);
    std::string Text;
    const auto ReadsBack = [&] {
        const auto Read = ExtendedFromText(Text);
        return !Read || ExtendedToDouble(*Read) == Value.AsFloat();
    };
    for (const int Digits : {Fixed ? FixedDigits : ShortDigits, DoubleDigits}) {
        Text =
            Fixed ? ExtendedToFixed(Number, Digits, FProfile.FloatDecimals) : ExtendedToText(Number, Digits);
        if (ReadsBack())
            return Text;
    }
    Text = ExtendedToText(Number, DoubleDigits);
    return ReadsBack() ? Text : ExtendedToText(Number, ExtendedDigits);
}

void TFormTextWriter::WriteFloat(const TFormValue& Value)
{
    if (Value.FloatType() == TFormFloatType::Currency) {
        Put(std::to_string(Value.AsCurrency()) + "c");
        return;
    }
    const std::string Text = FloatText(Value);
    Put(Text);
    const bool IsNumber = Text.back() >= '0' && Text.back() <= '9'; // not Inf or NaN
    if (IsNumber && Value.FloatType() == TFormFloatType::Single)
        Put("s");
    if (IsNumber && Value.FloatType() == TFormFloatType::Date)
        Put("d");
}

// One row stays on the line of the name in a .dfm unless it is full.
void TFormTextWriter::WriteBinary(const std::string& Bytes, int Level)
{
    static constexpr char Digits[] = "0123456789ABCDEF";
    const bool Rows = IsLfm() || Bytes.size() >= BytesInRow;
    Put("{");
    for (std::size_t Pos = 0; Pos < Bytes.size(); ++Pos) {
        if (Rows && Pos % BytesInRow == 0)
            NewLine(Level + 1);
        const auto Byte = static_cast<unsigned char>(Bytes[Pos]);
        FOut += Digits[Byte >> 4];
        FOut += Digits[Byte & 15];
    }
    if (IsLfm())
        NewLine(Level);
    Put("}");
}
