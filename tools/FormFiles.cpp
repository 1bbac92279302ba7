#include "tools/FormFiles.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

#include "framework/rtl/Texts.h"

namespace {

namespace fs = std::filesystem;

// Names are UTF-8 on every platform.
fs::path PathOf(const std::string& Name)
{
    return fs::path(std::u8string(Name.begin(), Name.end()));
}

std::string NameOf(const fs::path& Path)
{
    const std::u8string Name = Path.generic_u8string();
    return {Name.begin(), Name.end()};
}

bool IsFormFile(const std::string& Name)
{
    const size_t Dot = Name.rfind('.');
    if (Dot == Name.npos)
        return false;
    const std::string Extension = LowerCase(Name.substr(Dot));
    return Extension == ".dfm" || Extension == ".lfm" || Extension == ".xfm" || Extension == ".fmx";
}

} // namespace

void TFormInput::Declare(CLI::App& Command)
{
    Command.add_option("FORM", Paths, "Form files, or folders to search for them")->required();
    Command
        .add_option("--code-page", CodePage,
                    "Windows code page of 8-bit texts in the forms, such as 1250, 1251, 932 or 936 "
                    "(nothing in a form file names it; UTF-8 and UTF-16 are recognised)")
        ->capture_default_str();
}

std::vector<std::string> FormFilesOf(const std::vector<std::string>& Paths)
{
    std::vector<std::string> Result;
    for (const std::string& Path : Paths) {
        std::error_code Ignored;
        if (!fs::is_directory(PathOf(Path), Ignored)) {
            Result.push_back(Path);
            continue;
        }
        std::vector<std::string> Found;
        for (const auto& Entry : fs::recursive_directory_iterator(PathOf(Path)))
            if (Entry.is_regular_file() && IsFormFile(NameOf(Entry.path())))
                Found.push_back(NameOf(Entry.path()));
        std::sort(Found.begin(), Found.end());
        Result.insert(Result.end(), Found.begin(), Found.end());
    }
    return Result;
}

TOutcome ForEachFormFile(const TFormInput& Input, const std::function<TOutcome(const std::string&)>& Action)
{
    auto Worst = TOutcome::Fine;
    for (const std::string& File : FormFilesOf(Input.Paths)) {
        try {
            Worst = std::max(Worst, Action(File));
        } catch (const std::exception& Error) {
            const std::string Message = Error.what();
            const bool NamesFile = Message.find(File) != Message.npos;
            std::cerr << (NamesFile ? "" : File + ": ") << Message << "\n";
            Worst = TOutcome::BadInput;
        }
    }
    return Worst;
}
