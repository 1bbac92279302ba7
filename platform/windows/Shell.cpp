#include "platform/Shell.h"

#include "platform/winapi.h"

#include <shellapi.h>

namespace {

// The least answer of WinExec and ShellExecuteA that is no error.
constexpr INT_PTR LeastSuccess = 32;

} // namespace

bool StartProgram(const std::string& CommandLine, int Show)
{
    return WinExec(CommandLine.c_str(), static_cast<UINT>(Show)) >= LeastSuccess;
}

bool OpenDocument(const std::string& FileName)
{
    const HINSTANCE Answer =
        ShellExecuteA(nullptr, "open", FileName.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(Answer) >= LeastSuccess;
}
