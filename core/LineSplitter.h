// Lines of a text, without copying them.
#pragma once

#include <cstring>
#include <string_view>

// Lines end at CR LF, at LF or at CR; what follows the last line end is a line
// only when there is something. Views refer to the text given.
class TLineSplitter {
public:
    explicit TLineSplitter(std::string_view Text) : FRest(Text) {}

    // False at the end. Line is without its line end.
    bool Next(std::string_view& Line)
    {
        if (FChunk.empty() && !NextChunk())
            return false;
        const auto* const Return = static_cast<const char*>(std::memchr(FChunk.data(), '\r', FChunk.size()));
        if (!Return) {
            const bool Ended = FChunk.back() == '\n';
            Line = FChunk.substr(0, FChunk.size() - (Ended ? 1 : 0));
            FChunk = {};
            return true;
        }
        Line = FChunk.substr(0, static_cast<size_t>(Return - FChunk.data()));
        FChunk.remove_prefix(Line.size() + 1);
        if (FChunk == "\n")
            FChunk = {};
        return true;
    }

private:
    // Up to and with the next LF: the only line end in most files, so that the
    // search for CR never runs far ahead.
    bool NextChunk()
    {
        if (FRest.empty())
            return false;
        const auto* const Feed = static_cast<const char*>(std::memchr(FRest.data(), '\n', FRest.size()));
        FChunk = Feed ? FRest.substr(0, static_cast<size_t>(Feed - FRest.data()) + 1) : FRest;
        FRest.remove_prefix(FChunk.size());
        return true;
    }

    std::string_view FRest;
    std::string_view FChunk;
};
