#include "wizard/ChangeReport.h"

#include <algorithm>

#include "WizardTexts.h"
#include "framework/rtl/SysUtils.h"

namespace {

std::string FileLine(const TFileChange& File, const std::string& Name,
                     int (*FileSize)(const std::string& FileName))
{
    if (!File.IsChanged())
        return Format(SFileUnchanged, {Name});
    return Format(File.Before ? SFileChanged : SFileNew, {Name, FileSize(File.Name)});
}

std::string ListOf(const std::vector<std::string>& Texts)
{
    std::string Result;
    for (const std::string& Text : Texts)
        Result += (Result.empty() ? "" : ", ") + Text;
    return Result;
}

std::vector<std::string> DetailsOf(const TFileChange& File)
{
    std::vector<std::string> Result;
    if (!File.Placed.empty())
        Result.push_back(Format(STranslatorsPlaced, {ListOf(File.Placed)}));
    if (File.Added > 0)
        Result.push_back(Format(STextsAdded, {File.Added}));
    if (File.Kept > 0)
        Result.push_back(Format(STextsKept, {File.Kept}));
    if (File.Translated > 0)
        Result.push_back(Format(STextsTranslated, {File.Translated}));
    Result.insert(Result.end(), File.Notes.begin(), File.Notes.end());
    return Result;
}

} // namespace

std::string NameInProject(const std::string& FileName, const std::string& ProjectFileName)
{
    const std::string Folder = ExtractFilePath(ProjectFileName);
    return FileName.starts_with(Folder) ? FileName.substr(Folder.size()) : FileName;
}

std::string ReportOf(const TProjectChanges& Changes, int (*FileSize)(const std::string& FileName))
{
    const auto Changed = std::count_if(Changes.Files.begin(), Changes.Files.end(),
                                       [](const TFileChange& File) { return File.IsChanged(); });
    std::string Result = Format(SFilesChanged, {Changed, Changes.Files.size()}) + "\r\n";
    for (const TFileChange& File : Changes.Files) {
        Result +=
            "\r\n" + FileLine(File, NameInProject(File.Name, Changes.ProjectFileName), FileSize) + "\r\n";
        for (const std::string& Detail : DetailsOf(File))
            Result += "    " + Detail + "\r\n";
    }
    return Result;
}
