#include "platform/portable/dialogs/FileNames.h"

#include <algorithm>
#include <cstring>
#include <filesystem>

#include "platform/portable/Control.h"

namespace fs = std::filesystem;

namespace {

// After a "*" that took too little it takes one more character.
bool Matches(std::u16string_view Name, std::u16string_view Pattern)
{
    std::size_t At = 0, Wanted = 0, Star = Pattern.npos, Taken = 0;
    while (At < Name.size()) {
        if (Wanted < Pattern.size() && Pattern[Wanted] == u'*') {
            Star = Wanted++;
            Taken = At;
        } else if (Wanted < Pattern.size() && (Pattern[Wanted] == u'?' || Pattern[Wanted] == Name[At])) {
            ++Wanted;
            ++At;
        } else if (Star != Pattern.npos) {
            Wanted = Star + 1;
            At = ++Taken;
        } else {
            return false;
        }
    }
    return Pattern.find_first_not_of(u'*', Wanted) == Pattern.npos;
}

} // namespace

std::vector<TFileFilter> ReadFilters(const char* Pairs)
{
    std::vector<TFileFilter> Result;
    while (Pairs && *Pairs) {
        const std::string Name = Pairs;
        Pairs += Name.size() + 1;
        const std::string Patterns = Pairs;
        Pairs += Patterns.size() + 1;
        Result.push_back({Name, SplitPatterns(Patterns)});
    }
    return Result;
}

std::vector<std::string> SplitPatterns(const std::string& Patterns)
{
    std::vector<std::string> Result;
    for (std::size_t Start = 0; Start < Patterns.size();) {
        const std::size_t End = std::min(Patterns.find(';', Start), Patterns.size());
        std::string Pattern = Patterns.substr(Start, End - Start);
        Pattern.erase(0, Pattern.find_first_not_of(' '));
        Pattern.erase(Pattern.find_last_not_of(' ') + 1);
        if (!Pattern.empty())
            Result.push_back(Pattern);
        Start = End + 1;
    }
    return Result;
}

bool MatchesPattern(const std::string& Name, const std::string& Pattern)
{
    if (Pattern == "*.*")
        return true;
    const auto Plain = [](const std::string& Text) {
        std::string Copy = Text;
        CharLowerA(Copy.data());
        return Widen(Copy);
    };
    return Matches(Plain(Name), Plain(Pattern));
}

bool ListFolder(const std::string& Folder, const std::vector<std::string>& Patterns, bool Hidden,
                std::vector<TFolderEntry>& Entries)
{
    Entries.clear();
    std::error_code Error;
    for (fs::directory_iterator Each(Folder, Error), End; !Error && Each != End; Each.increment(Error)) {
        const TFolderEntry Entry{Each->path().filename().string(), FolderExists(Each->path().string())};
        const auto Fits = [&](const std::string& Pattern) { return MatchesPattern(Entry.Name, Pattern); };
        if (!Hidden && Entry.Name.starts_with('.'))
            continue;
        if (Entry.Folder || Patterns.empty() || std::any_of(Patterns.begin(), Patterns.end(), Fits))
            Entries.push_back(Entry);
    }
    std::sort(Entries.begin(), Entries.end(), [](const TFolderEntry& First, const TFolderEntry& Second) {
        return First.Folder != Second.Folder ? First.Folder : SortsBefore(First.Name, Second.Name);
    });
    return !Error;
}

bool FolderExists(const std::string& Path)
{
    std::error_code Error;
    return fs::is_directory(Path, Error);
}

bool PathExists(const std::string& Path)
{
    std::error_code Error;
    return fs::exists(Path, Error);
}

std::string ResolvePath(const std::string& Folder, const std::string& Name)
{
    std::string Path = (fs::path(Folder) / Name).lexically_normal().string();
    while (Path.size() > 1 && Path.ends_with('/'))
        Path.pop_back();
    return Path;
}

std::string FolderOfPath(const std::string& Path)
{
    return fs::path(Path).parent_path().string();
}

std::string NameOfPath(const std::string& Path)
{
    return fs::path(Path).filename().string();
}

std::vector<std::string> SplitNames(const std::string& Text)
{
    std::vector<std::string> Names;
    for (std::size_t Start = Text.find('"'); Start != Text.npos;) {
        const std::size_t End = Text.find('"', Start + 1);
        if (End == Text.npos)
            break;
        if (End > Start + 1)
            Names.push_back(Text.substr(Start + 1, End - Start - 1));
        Start = Text.find('"', End + 1);
    }
    const std::size_t First = Text.find_first_not_of(' ');
    if (Names.empty() && First != Text.npos)
        Names.push_back(Text.substr(First, Text.find_last_not_of(' ') - First + 1));
    return Names;
}

std::string JoinNames(const std::vector<std::string>& Names)
{
    if (Names.size() == 1)
        return Names.front();
    std::string Text;
    for (const std::string& Name : Names)
        Text += (Text.empty() ? "\"" : " \"") + Name + "\"";
    return Text;
}

bool StorePaths(OPENFILENAMEA& Data, const std::vector<std::string>& Paths)
{
    const bool Several = Paths.size() > 1;
    const char Between = Data.Flags & OFN_EXPLORER ? '\0' : ' ';
    std::string Text = Several ? FolderOfPath(Paths.front()) : Paths.front();
    if (Several)
        for (const std::string& Path : Paths)
            Text += Between + NameOfPath(Path);
    const std::size_t Needed = Text.size() + 1 + ((Data.Flags & OFN_ALLOWMULTISELECT) ? 1 : 0);
    if (Data.lpstrFile && Needed > Data.nMaxFile) {
        const auto Size = static_cast<WORD>(std::min<std::size_t>(Needed, 0xFFFF));
        if (Data.nMaxFile >= sizeof Size)
            std::memcpy(Data.lpstrFile, &Size, sizeof Size);
        return false;
    }
    if (Data.lpstrFile) {
        std::memset(Data.lpstrFile, 0, Needed);
        std::memcpy(Data.lpstrFile, Text.data(), Text.size());
    }
    const std::string Name = NameOfPath(Paths.front());
    const std::size_t Offset = Several ? FolderOfPath(Paths.front()).size() + 1 : Text.size() - Name.size();
    const std::size_t Dot = Several ? Name.npos : Name.rfind('.');
    Data.nFileOffset = static_cast<WORD>(Offset);
    Data.nFileExtension = static_cast<WORD>(Dot == Name.npos ? 0 : Offset + Dot + 1);
    if (Data.lpstrFileTitle && Data.nMaxFileTitle > 0)
        CopyText(Name, Data.lpstrFileTitle, static_cast<int>(Data.nMaxFileTitle));
    return true;
}
