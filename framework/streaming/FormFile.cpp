#include "framework/streaming/FormFile.h"

#include "framework/rtl/Files.h"
#include "framework/streaming/FormBinaryTypes.h"

TFormDocument ReadForm(std::string_view Bytes, const TFormFileOptions& Options)
{
    const auto StartsWith = [&](std::string_view Start) { return Bytes.substr(0, Start.size()) == Start; };
    if (StartsWith(FormSignature) || StartsWith(FormResourceStart) || StartsWith(DamagedResourceStart))
        return ReadFormBinary(Bytes, Options);
    return ReadFormText(Bytes, Options);
}

std::string WriteForm(const TFormDocument& Document)
{
    return Document.Format == TFormFormat::Binary ? WriteFormBinary(Document) : WriteFormText(Document);
}

TFormDocument ReadFormFile(const std::string& FileName, TFormFileOptions Options)
{
    if (Options.FileName.empty())
        Options.FileName = FileName;
    return ReadForm(ReadWholeFile(FileName), Options);
}

void WriteFormFile(const std::string& FileName, const TFormDocument& Document)
{
    ReplaceWholeFile(FileName, WriteForm(Document));
}
