#include "core/DictionaryFile.h"

#include <utility>
#include <vector>

#include "core/DictionaryText.h"
#include "core/KeyLines.h"
#include "core/LineSplitter.h"
#include "core/NearlySorted.h"
#include "core/TextFile.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/Utf8.h"

void ForEachDictionaryPair(
    const std::string& FileName,
    const std::function<void(const std::string& Source, const std::string& Translation)>& Visit)
{
    const std::string Text = ReadTextFile(FileName);
    TLineSplitter Lines(Text);
    std::string_view Line;
    while (Lines.Next(Line)) {
        const size_t Tab = Line.find('\t');
        if (Tab != Line.npos)
            Visit(ReadString(Line.substr(0, Tab)),
                  ReadString(CutAtCharacter(Line.substr(Tab + 1), MaxFileValueBytes)));
    }
}

TDictionaryPairs ReadDictionaryPairs(const std::string& FileName)
{
    TDictionaryPairs Pairs;
    ForEachDictionaryPair(FileName, [&](const std::string& Source, const std::string& Translation) {
        Pairs.emplace_back(Source, Translation);
    });
    return Pairs;
}

void TDictionary::Load(const std::string& FileName)
{
    std::vector<std::string> Lines;
    if (FileExists(FileName)) {
        const std::string Text = ReadTextFile(FileName);
        TLineSplitter Splitter(Text);
        std::string_view Line;
        while (Splitter.Next(Line))
            Lines.emplace_back(Line);
    }
    SortNearlySorted(Lines, std::less<>());
    FLines = TLineBlocks<std::string>(std::move(Lines));
}

void TDictionary::Put(std::string_view Source, std::string_view Translation)
{
    const auto LineAt = [this](int Index) -> std::string_view { return FLines.At(Index); };
    const std::string Probe = WriteString(Source) + "\t";
    const std::string Line = Probe + WriteString(Translation);
    const int Place = Bisect(Probe, FLines.Count(), LineAt).Position;
    if (Place < FLines.Count() && LineAt(Place).starts_with(Probe))
        FLines.At(Place) = Line;
    else
        FLines.Insert(Bisect(Line, FLines.Count(), LineAt).Position, Line);
}

void TDictionary::Save(const std::string& FileName)
{
    TFileReplacer File(FileName);
    for (int I = 0; I < FLines.Count(); ++I) {
        File.Write(FLines.At(I));
        File.Write("\r\n");
    }
    File.Commit();
}
