#include "framework/rtl/FileNames.h"

namespace {

constexpr std::string_view Separators = "\\/";
constexpr std::string_view FolderEnds = "\\/:";

// Where the name behind the last separator begins.
std::size_t NameStart(std::string_view FileName)
{
    const auto Last = FileName.find_last_of(FolderEnds);
    return Last == FileName.npos ? 0 : Last + 1;
}

// Where the extension begins, with its point; the end without one.
std::size_t ExtensionStart(std::string_view FileName)
{
    const auto Point = FileName.rfind('.');
    return Point == FileName.npos || Point < NameStart(FileName) ? FileName.size() : Point;
}

bool EndsInSeparator(std::string_view Path)
{
    return !Path.empty() && Separators.find(Path.back()) != Separators.npos;
}

} // namespace

std::string ExtractFilePath(std::string_view FileName)
{
    return std::string(FileName.substr(0, NameStart(FileName)));
}

std::string ExtractFileDir(std::string_view FileName)
{
    std::string_view Path = FileName.substr(0, NameStart(FileName));
    const bool Root = Path.size() == 1 || (Path.size() == 3 && Path[1] == ':');
    if (!Root && EndsInSeparator(Path))
        Path.remove_suffix(1);
    return std::string(Path);
}

std::string ExtractFileName(std::string_view FileName)
{
    return std::string(FileName.substr(NameStart(FileName)));
}

std::string ExtractFileExt(std::string_view FileName)
{
    return std::string(FileName.substr(ExtensionStart(FileName)));
}

std::string ChangeFileExt(std::string_view FileName, std::string_view Extension)
{
    return std::string(FileName.substr(0, ExtensionStart(FileName))).append(Extension);
}

std::string IncludeTrailingBackslash(std::string_view Path)
{
    std::string Result(Path);
    if (!EndsInSeparator(Path))
        Result += PathDelimiter;
    return Result;
}

std::string ExcludeTrailingBackslash(std::string_view Path)
{
    if (EndsInSeparator(Path))
        Path.remove_suffix(1);
    return std::string(Path);
}

bool IsAbsoluteName(std::string_view FileName)
{
    const auto IsSeparatorAt = [FileName](std::size_t Index) {
        return Index < FileName.size() && Separators.find(FileName[Index]) != Separators.npos;
    };
    return IsSeparatorAt(0) || (FileName.size() > 2 && FileName[1] == ':' && IsSeparatorAt(2));
}

bool FileExists(const std::string& FileName)
{
    return KindOfFile(FileName) == TFileKind::File;
}

bool DirectoryExists(const std::string& FileName)
{
    return KindOfFile(FileName) == TFileKind::Directory;
}

bool RemoveFile(const std::string& FileName)
{
    return RemoveFileNamed(FileName);
}
