#include "core/TranslationsFile.h"

#include <algorithm>
#include <charconv>
#include <utility>
#include <vector>

#include "core/KeyLines.h"
#include "core/LineBlocks.h"
#include "core/LineSplitter.h"
#include "core/NearlySorted.h"
#include "core/TextFile.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/Utf8.h"

namespace {

constexpr size_t MaxLocaleBytes = 255;

using TViews = std::vector<std::string_view>;

// Walks the lines of a file and knows where it is.
class TTranslationsReader {
public:
    TTranslationsReader(const std::string& FileName, std::string_view Text, std::string_view Section)
        : FFileName(FileName), FLines(Text), FSection(Section)
    {
    }

    bool NextLine(std::string_view& Line)
    {
        ++FNumber;
        return FLines.Next(Line);
    }

    // False for a line of another section.
    bool Split(std::string_view Line, TTranslation& Entry) const
    {
        const bool Own =
            Line.size() > FSection.size() && Line[FSection.size()] == '.' && Line.starts_with(FSection);
        if (!Own)
            return false;
        const std::string_view Rest = Line.substr(FSection.size() + 1);
        const std::string_view KeyAndLocale = KeyOf(Rest);
        const size_t Percent = KeyAndLocale.find('%');
        Entry.Key = KeyAndLocale.substr(0, Percent);
        Entry.Value = Rest.substr(std::min(KeyAndLocale.size() + 1, Rest.size()));
        const size_t LocaleAt = Percent == KeyAndLocale.npos ? KeyAndLocale.size() : Percent + 1;
        Entry.Locale = ReadLocale(KeyAndLocale.substr(LocaleAt, MaxLocaleBytes));
        return true;
    }

private:
    int ReadLocale(std::string_view Text) const
    {
        int Result = 0;
        const auto [Stop, Error] = std::from_chars(Text.data(), Text.data() + Text.size(), Result);
        const bool Plain = Error == std::errc() && Stop == Text.data() + Text.size();
        if (!Plain && !TryStrToInt(Text, Result))
            throw EConvertError(Format("%s:%d: locale '%s' is not a number", {FFileName, FNumber, Text}));
        return Result;
    }

    const std::string& FFileName;
    TLineSplitter FLines;
    std::string_view FSection;
    int FNumber = 0;
};

// The lines of an owner as the file has them, in order, within one buffer.
class TComposedLines {
public:
    TComposedLines(const std::string& Section, int Locale, const TStrings& List)
    {
        const std::string Front = Section + ".";
        const std::string Middle = "%" + IntToStr(Locale);
        size_t Size = 0;
        for (int I = 0; I < List.Count(); ++I)
            Size += Front.size() + Middle.size() + List.Get(I).size();
        FText.reserve(Size); // Lines refer to it
        FLines.reserve(static_cast<size_t>(List.Count()));
        for (int I = 0; I < List.Count(); ++I) {
            const std::string& Line = List.Get(I);
            const size_t Equals = Line.find('=');
            if (Equals == Line.npos)
                continue;
            const size_t Start = FText.size();
            FText.append(Front).append(Line, 0, Equals).append(Middle).append(Line, Equals);
            FLines.push_back(std::string_view(FText).substr(Start));
        }
    }

    const TViews& InListOrder() const { return FLines; }
    const TViews& InOrder()
    {
        SortNearlySorted(FLines, std::less<>());
        return FLines;
    }

private:
    std::string FText;
    TViews FLines;
};

// All lines that stay when the entries of Owner and the untranslated texts of
// its section are taken out.
TViews KeptLines(const std::string& FileName, std::string_view Text, const TTranslationsOwner& Owner)
{
    TViews Result;
    TTranslationsReader Reader(FileName, Text, Owner.Section);
    std::string_view Line;
    TTranslation Entry;
    while (Reader.NextLine(Line))
        if (!Reader.Split(Line, Entry) || (Entry.Locale != Owner.Locale && Entry.Locale != DefaultsLocale))
            Result.push_back(Line);
    return Result;
}

TViews Merged(const TViews& A, const TViews& B)
{
    TViews Result(A.size() + B.size());
    std::merge(A.begin(), A.end(), B.begin(), B.end(), Result.begin());
    return Result;
}

// As SortInsert does it, for files that somebody put out of order.
TViews InsertedOneByOne(TViews Kept, std::initializer_list<const TViews*> Added)
{
    TLineBlocks<std::string_view> Blocks(std::move(Kept));
    for (const TViews* const Lines : Added)
        for (const std::string_view Line : *Lines)
            Blocks.Insert(Bisect(Line, Blocks.Count(), [&](int I) { return Blocks.At(I); }).Position, Line);
    return Blocks.Take();
}

} // namespace

bool ForEachTranslation(const std::string& FileName, std::string_view Section,
                        const std::function<void(const TTranslation&)>& Visit)
{
    if (!FileExists(FileName))
        return false;
    const std::string Text = ReadTextFile(FileName);
    TTranslationsReader Reader(FileName, Text, Section);
    std::string_view Line;
    TTranslation Entry;
    while (Reader.NextLine(Line))
        if (Reader.Split(Line, Entry)) {
            Entry.Value = CutAtCharacter(Entry.Value, MaxFileValueBytes);
            Visit(Entry);
        }
    return true;
}

bool LoadTranslations(const std::string& FileName, const TTranslationsOwner& Owner, TSortList& List)
{
    std::vector<std::string> Lines;
    const bool Exists = ForEachTranslation(FileName, Owner.Section, [&](const TTranslation& Entry) {
        if (Entry.Locale != Owner.Locale)
            return;
        std::string& Line = Lines.emplace_back();
        Line.reserve(Entry.Key.size() + 1 + Entry.Value.size());
        Line.append(Entry.Key).append(1, '=').append(Entry.Value);
    });
    MergeKeyLines(List, std::move(Lines));
    return Exists;
}

void SaveTranslations(const std::string& FileName, const TTranslationsOwner& Owner,
                      const TStrings& Translations, const TStrings& Defaults)
{
    TComposedLines Translated(Owner.Section, Owner.Locale, Translations);
    TComposedLines Untranslated(Owner.Section, DefaultsLocale, Defaults);
    const TFileLock Lock(FileName);
    const std::string Text = FileExists(FileName) ? ReadTextFile(FileName) : std::string();
    TViews Lines = KeptLines(FileName, Text, Owner);
    if (std::is_sorted(Lines.begin(), Lines.end()))
        Lines = Merged(Lines, Merged(Translated.InOrder(), Untranslated.InOrder()));
    else
        Lines = InsertedOneByOne(std::move(Lines), {&Translated.InListOrder(), &Untranslated.InListOrder()});
    TFileReplacer File(FileName);
    for (const std::string_view Line : Lines) {
        File.Write(Line);
        File.Write("\r\n");
    }
    File.Commit();
}
