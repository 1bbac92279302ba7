#include "core/TranslationsText.h"

#include <algorithm>

#include "core/LineSplitter.h"

namespace {

std::string FrontOf(const TTranslationsOwner& Owner, std::string_view Key)
{
    return Owner.Section + "." + std::string(Key) + "%" + std::to_string(Owner.Locale);
}

} // namespace

TTranslationsText::TTranslationsText(std::string_view Bytes)
{
    TLineSplitter Lines(Bytes);
    std::string_view Line;
    while (Lines.Next(Line)) {
        const size_t Equals = Line.find('=');
        const auto& Front = FFileOrder.emplace_back(Line.substr(0, Equals));
        // Of two lines of one key the last one counts.
        if (Equals != Line.npos)
            FValues[Front] = Line.substr(Equals + 1);
    }
}

const std::string* TTranslationsText::Find(const TTranslationsOwner& Owner, std::string_view Key) const
{
    const auto Found = FValues.find(FrontOf(Owner, Key));
    return Found == FValues.end() ? nullptr : &Found->second;
}

void TTranslationsText::Put(const TTranslationsOwner& Owner, std::string_view Key, const std::string& Value)
{
    const std::string Front = FrontOf(Owner, Key);
    const auto [Place, IsNew] = FValues.try_emplace(Front, Value);
    if (IsNew)
        FAdded.push_back(Front);
    FIsChanged = FIsChanged || IsNew || Place->second != Value;
    Place->second = Value;
}

void TTranslationsText::ForEach(
    const TTranslationsOwner& Owner,
    const std::function<void(std::string_view Key, const std::string& Value)>& Visit) const
{
    const std::string Start = Owner.Section + ".";
    const std::string End = "%" + std::to_string(Owner.Locale);
    for (const auto& [Front, Value] : FValues)
        if (Front.starts_with(Start) && Front.ends_with(End))
            Visit(std::string_view(Front).substr(Start.size(), Front.size() - Start.size() - End.size()),
                  Value);
}

std::string TTranslationsText::Bytes() const
{
    const auto LineOf = [this](const std::string& Front) {
        const auto Found = FValues.find(Front);
        return Found == FValues.end() ? Front : Front + "=" + Found->second;
    };
    std::vector<std::string> Lines;
    std::transform(FFileOrder.begin(), FFileOrder.end(), std::back_inserter(Lines), LineOf);
    const bool InOrder = std::is_sorted(Lines.begin(), Lines.end());
    std::transform(FAdded.begin(), FAdded.end(), std::back_inserter(Lines), LineOf);
    if (InOrder)
        std::sort(Lines.begin(), Lines.end());
    std::string Result;
    for (const std::string& Line : Lines)
        Result += Line + "\r\n";
    return Result;
}
