// Form files of real programs, and what a designer changes in them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "designer/FormModel.h"
#include "framework/forms/WinControl.h"
#include "framework/streaming/FormFile.h"
#include "tools/FormFiles.h"

// The real forms, every so many of them.
inline std::vector<std::string> RealForms(size_t Step)
{
    std::vector<std::string> Folders{TEST_DATA};
    std::error_code Ignored;
    if (std::filesystem::is_directory(CORPUS, Ignored))
        Folders.emplace_back(CORPUS);
    const auto All = FormFilesOf(Folders);
    std::vector<std::string> Result;
    for (size_t I = 0; I < All.size(); I += Step)
        Result.push_back(All[I]);
    return Result;
}

inline std::vector<std::string> Lines(const std::string& Text)
{
    std::vector<std::string> Result{""};
    for (const char Each : Text)
        if (Each == '\n')
            Result.emplace_back();
        else
            Result.back() += Each;
    return Result;
}

// The lines of New that Old has differently; all of them when their number differs.
inline std::vector<std::string> Differences(const std::string& Old, const std::string& New)
{
    const auto Before = Lines(Old), After = Lines(New);
    if (Before.size() != After.size())
        return After;
    std::vector<std::string> Result;
    for (size_t I = 0; I < After.size(); ++I)
        if (Before[I] != After[I])
            Result.push_back(After[I].substr(After[I].find_first_not_of(' ')));
    return Result;
}

inline bool IsAligned(TComponent* Component)
{
    const auto* const Control = dynamic_cast<TControl*>(Component);
    return Control && Control->Align() != alNone;
}

// A component whose Left the file gives, and nothing else does.
inline TComponent* Movable(TFormModel& Form)
{
    const TFormDocument Document = ReadForm(Form.Bytes());
    for (const TFormObject& Each : Document.Root.Children())
        if (const TFormValue* const Left = Each.FindValue("Left"); Left && Left->Is(TFormValueKind::Integer))
            if (TComponent* const Component = Form.GetComponent(Each.Name());
                Form.IsOwn(Component) && !IsAligned(Component) &&
                TFormModel::PlaceOf(*Component).left == Left->AsInteger())
                return Component;
    return nullptr;
}
