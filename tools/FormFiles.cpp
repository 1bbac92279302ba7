#include "tools/FormFiles.h"

#include <algorithm>
#include <iostream>

#include "framework/design/Project.h"
#include "framework/rtl/FileNames.h"

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
        if (!DirectoryExists(Path)) {
            Result.push_back(Path);
            continue;
        }
        const std::string Folder = ExtractFileName(Path).empty() ? Path : Path + "/";
        for (const std::string& File : FilesBelow(Path, IsFormFileName))
            Result.push_back(Folder + File);
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
