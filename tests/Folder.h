// A folder of a test's own, with a name beyond ASCII; removed in the end.
#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <string>

#include "framework/rtl/Files.h"

class TTestFolder {
public:
    TTestFolder()
    {
        std::random_device Random;
        const std::string Leaf = "orbilex-test-" + std::to_string(Random()) + "-\xC3\xA4\xE2\x82\xAC";
        FPath = std::filesystem::temp_directory_path() / std::u8string(Leaf.begin(), Leaf.end());
        std::filesystem::create_directories(FPath);
    }
    ~TTestFolder()
    {
        std::error_code Ignored;
        std::filesystem::remove_all(FPath, Ignored);
    }
    TTestFolder(const TTestFolder&) = delete;
    TTestFolder& operator=(const TTestFolder&) = delete;

    // With "/" between folders.
    std::string Name(const std::string& File = "") const
    {
        const std::u8string Text = FPath.generic_u8string();
        return std::string(Text.begin(), Text.end()) + (File.empty() ? "" : "/" + File);
    }

    // Makes the file, and the folders it is in.
    std::string Write(const std::string& File, const std::string& Content) const
    {
        const std::filesystem::path Path = FPath / std::u8string(File.begin(), File.end());
        std::filesystem::create_directories(Path.parent_path());
        std::ofstream(Path, std::ios::binary) << Content;
        return Name(File);
    }
    void Remove(const std::string& File) const
    {
        std::filesystem::remove_all(FPath / std::u8string(File.begin(), File.end()));
    }
    std::string Read(const std::string& File) const { return ReadWholeFile(Name(File)); }

    // Every file in it and what it holds.
    std::map<std::string, std::string> Files() const
    {
        std::map<std::string, std::string> Result;
        for (const auto& Each : std::filesystem::recursive_directory_iterator(FPath))
            if (Each.is_regular_file()) {
                const std::u8string File = Each.path().lexically_relative(FPath).generic_u8string();
                const std::string AsText(File.begin(), File.end());
                Result[AsText] = Read(AsText);
            }
        return Result;
    }

private:
    std::filesystem::path FPath;
};
