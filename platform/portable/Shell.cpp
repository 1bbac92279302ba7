#include "platform/Shell.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <sstream>
#include <thread>
#include <vector>

namespace {

bool Spawn(std::vector<std::string> Words)
{
    std::vector<char*> Arguments;
    for (std::string& Word : Words)
        Arguments.push_back(Word.data());
    Arguments.push_back(nullptr);
    pid_t Process = 0;
    if (Words.empty() ||
        posix_spawnp(&Process, Arguments[0], nullptr, nullptr, Arguments.data(), environ) != 0)
        return false;
    // The process that has ended must be asked for its end by somebody.
    std::thread([Process] { waitpid(Process, nullptr, 0); }).detach();
    return true;
}

} // namespace

bool StartProgram(const std::string& CommandLine, int)
{
    std::istringstream Stream(CommandLine);
    std::vector<std::string> Words;
    for (std::string Word; Stream >> Word;)
        Words.push_back(Word);
    return Spawn(std::move(Words));
}

bool OpenDocument(const std::string& FileName)
{
    return Spawn({"xdg-open", FileName});
}
