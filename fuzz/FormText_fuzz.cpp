#include <cstddef>
#include <cstdint>

#include "fuzz/FormCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    static constexpr int CodePages[] = {1252, 932, 936, 1250};
    if (Size == 0)
        return 0;
    TFormFileOptions Options;
    Options.CodePage = CodePages[Data[0] % 4];
    const std::string_view Input(reinterpret_cast<const char*>(Data) + 1, Size - 1);
    try {
        CheckDocument(ReadFormText(Input, Options), Input);
    } catch (const EFormFileError& Error) {
        Require(Error.Line > 0 && Error.Column > 0, "an error names its line and column");
    }
    return 0;
}
