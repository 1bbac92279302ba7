// A translations file (TranslationsFile.h) in memory, to be added to line by line.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/TranslationsFile.h"

class TTranslationsText {
public:
    // Bytes as ReadTextFile gives them; empty for a new file.
    explicit TTranslationsText(std::string_view Bytes = {});

    // Null when there is no such line. Valid until a line is put.
    const std::string* Find(const TTranslationsOwner& Owner, std::string_view Key) const;

    // Replaces the value, or adds a line at its place in the order. A value that is
    // there already changes nothing.
    void Put(const TTranslationsOwner& Owner, std::string_view Key, const std::string& Value);

    // Calls Visit with key and value of each line of Owner, in no order.
    void ForEach(const TTranslationsOwner& Owner,
                 const std::function<void(std::string_view Key, const std::string& Value)>& Visit) const;

    bool IsChanged() const { return FIsChanged; }
    // The lines of the file, then those that were added where it was out of order.
    std::string Bytes() const;

private:
    // What stands before "=" in a line, and what stands behind it.
    std::unordered_map<std::string, std::string> FValues;
    std::vector<std::string> FFileOrder; // fronts and other lines as the file has them
    std::vector<std::string> FAdded;     // fronts
    bool FIsChanged = false;
};
