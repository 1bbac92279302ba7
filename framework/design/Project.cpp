#include "framework/design/Project.h"

#include <algorithm>
#include <filesystem>
#include <functional>

#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/Utf8.h"

namespace {

namespace fs = std::filesystem;

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

// Names are UTF-8 on every platform.
fs::path PathOf(const std::string& Name)
{
    return std::u8string(Name.begin(), Name.end());
}

std::string NameOf(const fs::path& Path)
{
    const std::u8string Name = Path.generic_u8string();
    return {Name.begin(), Name.end()};
}

bool HasEnding(const std::string& FileName, std::initializer_list<const char*> Endings)
{
    const std::string Ending = LowerCase(ExtractFileExt(FileName));
    return std::find(Endings.begin(), Endings.end(), Ending) != Endings.end();
}

enum class TSection { None, Project, Forms, Units };
enum class TLineKind { Nothing, Heading, Setting, File };

struct TProjectLine {
    TLineKind Kind = TLineKind::Nothing;
    TSection Section = TSection::None;
    std::string Text; // as the file has it
    std::string Name; // of the setting or file
    std::string Value;
};

TSection SectionOf(const std::string& Heading)
{
    if (SameText(Heading, "[Project]"))
        return TSection::Project;
    if (SameText(Heading, "[Forms]"))
        return TSection::Forms;
    return SameText(Heading, "[Units]") ? TSection::Units : TSection::None;
}

const char* HeadingOf(TSection Section)
{
    return Section == TSection::Project ? "[Project]" : Section == TSection::Forms ? "[Forms]" : "[Units]";
}

std::string& SettingOf(TProject& Project, const std::string& Name)
{
    return SameText(Name, "Name") ? Project.Name : Project.MainForm;
}

std::vector<std::string>& FilesOf(TProject& Project, TSection Section)
{
    return Section == TSection::Forms ? Project.Forms : Project.Units;
}

// A project file, line by line, with what each line means.
class TProjectText {
public:
    TProjectText(const std::string& FileName, std::string_view Bytes) : FFileName(FileName)
    {
        if (Bytes.starts_with(Utf8Mark))
            Bytes.remove_prefix(Utf8Mark.size());
        FLineEnd = Bytes.find("\r\n") == Bytes.npos ? "\n" : "\r\n";
        while (!Bytes.empty()) {
            const size_t End = std::min(Bytes.find('\n'), Bytes.size());
            std::string_view Line = Bytes.substr(0, End);
            Bytes.remove_prefix(std::min(End + 1, Bytes.size()));
            if (Line.ends_with('\r'))
                Line.remove_suffix(1);
            Add(std::string(Line));
        }
    }

    const std::vector<TProjectLine>& Lines() const { return FLines; }

    // With the settings and files of Project in the places of the present ones.
    std::string With(TProject Project);

private:
    void Add(std::string Text);
    [[noreturn]] void Fail(const std::string& Message) const
    {
        throw EParserError(FFileName + ":" + IntToStr(static_cast<int>(FLines.size()) + 1) + ": " + Message);
    }
    void Reorder(std::vector<std::string>& Files, TSection Section);
    void AddMissing(TProject& Project, TSection Section);
    size_t EndOf(TSection Section);

    const std::string& FFileName;
    std::string FLineEnd;
    std::vector<TProjectLine> FLines;
    TSection FSection = TSection::None;
};

void TProjectText::Add(std::string Text)
{
    TProjectLine Line;
    const std::string Meaning = Trim(Text);
    if (!IsValidUtf8(Text))
        Fail("the text is not UTF-8");
    if (Meaning.starts_with("[")) {
        Line.Kind = TLineKind::Heading;
        FSection = SectionOf(Meaning);
        if (FSection == TSection::None)
            Fail("there is no heading " + Meaning);
    } else if (!Meaning.empty() && !Meaning.starts_with(";")) {
        const size_t Equals = Meaning.find('=');
        Line.Kind = FSection == TSection::Project ? TLineKind::Setting : TLineKind::File;
        Line.Name = Line.Kind == TLineKind::Setting ? TrimRight(Meaning.substr(0, Equals)) : Meaning;
        if (FSection == TSection::None)
            Fail("'" + Meaning + "' stands before the first heading");
        if (Line.Kind == TLineKind::Setting) {
            if (Equals == Meaning.npos || !(SameText(Line.Name, "Name") || SameText(Line.Name, "MainForm")))
                Fail("'" + Meaning + "' is no setting");
            Line.Value = TrimLeft(Meaning.substr(Equals + 1));
        }
        const bool IsSecond = std::any_of(FLines.begin(), FLines.end(), [&](const TProjectLine& Each) {
            return Each.Kind == Line.Kind && Each.Section == FSection && Each.Name == Line.Name;
        });
        if (IsSecond)
            Fail("'" + Line.Name + "' is there twice");
    }
    Line.Section = FSection;
    Line.Text = std::move(Text);
    FLines.push_back(std::move(Line));
}

// The lines of files that stay take the files that stay in their new order.
void TProjectText::Reorder(std::vector<std::string>& Files, TSection Section)
{
    const auto IsFile = [Section](const TProjectLine& Line) {
        return Line.Kind == TLineKind::File && Line.Section == Section;
    };
    std::vector<std::string> Known;
    for (const TProjectLine& Line : FLines)
        if (IsFile(Line))
            Known.push_back(Line.Name);
    const auto Stays = [](const std::vector<std::string>& List, const std::string& Name) {
        return std::find(List.begin(), List.end(), Name) != List.end();
    };
    std::erase_if(FLines, [&](const TProjectLine& Line) { return IsFile(Line) && !Stays(Files, Line.Name); });
    const auto New = std::stable_partition(Files.begin(), Files.end(),
                                           [&](const std::string& File) { return Stays(Known, File); });
    auto Next = Files.begin();
    for (TProjectLine& Line : FLines)
        if (IsFile(Line) && Line.Name != *Next++)
            Line.Text = Line.Name = *(Next - 1);
    Files.erase(Files.begin(), New);
}

// Where another line of the section goes; the section is made when it is missing.
size_t TProjectText::EndOf(TSection Section)
{
    size_t End = 0;
    for (size_t I = 0; I < FLines.size(); ++I)
        if (FLines[I].Section == Section && FLines[I].Kind != TLineKind::Nothing)
            End = I + 1;
    if (End > 0)
        return End;
    if (!FLines.empty() && !FLines.back().Text.empty())
        FLines.push_back({});
    FLines.push_back({TLineKind::Heading, Section, HeadingOf(Section), "", ""});
    return FLines.size();
}

void TProjectText::AddMissing(TProject& Project, TSection Section)
{
    std::vector<std::string> Missing;
    if (Section == TSection::Project) {
        for (const char* const Name : {"Name", "MainForm"}) {
            const bool IsThere = std::any_of(FLines.begin(), FLines.end(), [&](const TProjectLine& Line) {
                return Line.Kind == TLineKind::Setting && SameText(Line.Name, Name);
            });
            if (!IsThere && !SettingOf(Project, Name).empty())
                Missing.push_back(std::string(Name) + "=" + SettingOf(Project, Name));
        }
    } else {
        Missing = FilesOf(Project, Section);
    }
    if (Missing.empty())
        return;
    size_t Place = EndOf(Section);
    for (const std::string& Text : Missing)
        FLines.insert(FLines.begin() + static_cast<std::ptrdiff_t>(Place++),
                      {TLineKind::File, Section, Text, Text, ""});
}

std::string TProjectText::With(TProject Project)
{
    for (TProjectLine& Line : FLines)
        if (Line.Kind == TLineKind::Setting && Line.Value != SettingOf(Project, Line.Name))
            Line.Text = Line.Name + "=" + SettingOf(Project, Line.Name);
    for (const TSection Section : {TSection::Forms, TSection::Units})
        Reorder(FilesOf(Project, Section), Section);
    for (const TSection Section : {TSection::Project, TSection::Forms, TSection::Units})
        AddMissing(Project, Section);
    std::string Result;
    for (const TProjectLine& Line : FLines)
        Result += Line.Text + FLineEnd;
    return Result;
}

// Folders whose names begin with "." hold what belongs to other programs.
bool IsHidden(const fs::path& Path)
{
    return NameOf(Path.filename()).starts_with(".");
}

} // namespace

std::string TProject::FullName(const std::string& File) const
{
    std::string Result = File;
    std::replace(Result.begin(), Result.end(), '\\', '/');
    return IsAbsoluteName(Result) ? Result : ExtractFilePath(FileName) + Result;
}

bool IsFormFileName(const std::string& FileName)
{
    return HasEnding(FileName, {".dfm", ".lfm", ".fmx", ".xfm"});
}

bool IsUnitFileName(const std::string& FileName)
{
    return HasEnding(FileName, {".pas", ".pp", ".inc", ".dpr", ".lpr", ".cpp", ".h"});
}

std::vector<std::string> FilesBelow(const std::string& Folder, bool (*Wanted)(const std::string& FileName))
{
    std::vector<std::string> Result;
    constexpr auto Options = fs::directory_options::skip_permission_denied;
    std::error_code Stop;
    for (fs::recursive_directory_iterator Each(PathOf(Folder), Options, Stop), End; !Stop && Each != End;
         Each.increment(Stop)) {
        std::error_code Ignored;
        if (Each->is_directory(Ignored) && IsHidden(Each->path()))
            Each.disable_recursion_pending();
        else if (Each->is_regular_file(Ignored) && Wanted(NameOf(Each->path())))
            Result.push_back(NameOf(Each->path().lexically_relative(PathOf(Folder))));
    }
    std::sort(Result.begin(), Result.end());
    return Result;
}

TProject ReadProject(const std::string& FileName)
{
    TProject Result;
    Result.FileName = FileName;
    const TProjectText Text(FileName, ReadWholeFile(FileName));
    for (const TProjectLine& Line : Text.Lines())
        if (Line.Kind == TLineKind::Setting)
            SettingOf(Result, Line.Name) = Line.Value;
        else if (Line.Kind == TLineKind::File)
            FilesOf(Result, Line.Section).push_back(Line.Name);
    if (Result.Name.empty())
        Result.Name = ChangeFileExt(ExtractFileName(FileName), "");
    return Result;
}

void WriteProject(const TProject& Project)
{
    const std::string Old = FileExists(Project.FileName) ? ReadWholeFile(Project.FileName) : std::string();
    ReplaceWholeFile(Project.FileName, TProjectText(Project.FileName, Old).With(Project));
}

TProject OpenProjectFolder(const std::string& Folder)
{
    if (!DirectoryExists(Folder))
        throw EFOpenError("There is no folder " + Folder);
    // The folder's own name, also of "." and "forms/".
    const std::string Full = NameOf(fs::absolute(PathOf(Folder)).lexically_normal() / "");
    std::vector<std::string> ProjectFiles;
    for (const auto& Entry : fs::directory_iterator(PathOf(Folder)))
        if (HasEnding(NameOf(Entry.path()), {ProjectExtension}) && !IsHidden(Entry.path()))
            ProjectFiles.push_back(Full + NameOf(Entry.path().filename()));
    if (ProjectFiles.size() > 1)
        throw EFOpenError("There are several project files in " + Folder);
    if (!ProjectFiles.empty())
        return ReadProject(ProjectFiles.front());
    TProject Result;
    Result.Name = ExtractFileName(ExcludeTrailingBackslash(Full));
    if (Result.Name.empty())
        Result.Name = "Project";
    Result.FileName = Full + Result.Name + ProjectExtension;
    Result.Forms = FilesBelow(Full, IsFormFileName);
    Result.Units = FilesBelow(Full, IsUnitFileName);
    return Result;
}

TProject OpenProject(const std::string& Path)
{
    return DirectoryExists(Path) ? OpenProjectFolder(Path) : ReadProject(Path);
}
