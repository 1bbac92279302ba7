// Any bytes as a source: reading its tokens ends, with an error at most.
#include <cstddef>
#include <cstdint>
#include <string>

#include "framework/rtl/Exceptions.h"
#include "wizard/SourceParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
    TMemoryStream Stream(std::string(reinterpret_cast<const char*>(Data), Size));
    try {
        for (TSourceParser Parser(&Stream); Parser.Token() != toEOF;)
            Parser.NextToken();
    } catch (const EParserError&) {
    }
    return 0;
}
