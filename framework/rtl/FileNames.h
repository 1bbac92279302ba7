// File names as texts, and what the file system knows about a name.
//
// "\" and "/" both separate folders and ":" ends a drive, on every platform:
// projects and forms carry names from either.
#pragma once

#include <string>
#include <string_view>

#include "platform/FileSystem.h" // PathDelimiter

// "C:\Data\lang.txt" -> "C:\Data\"; with the separator, "" without a folder.
std::string ExtractFilePath(std::string_view FileName);
// -> "C:\Data"; a root keeps its separator.
std::string ExtractFileDir(std::string_view FileName);
// -> "lang.txt".
std::string ExtractFileName(std::string_view FileName);
// -> ".txt"; from the last point of the name, "" without one.
std::string ExtractFileExt(std::string_view FileName);
// Extension with its point; "" removes the one that is there.
std::string ChangeFileExt(std::string_view FileName, std::string_view Extension);

// Ends in a separator (the platform's own is added), and the opposite.
std::string IncludeTrailingBackslash(std::string_view Path);
std::string ExcludeTrailingBackslash(std::string_view Path);

// True for names that do not depend on the current folder: "/a", "\a", "C:\a".
bool IsAbsoluteName(std::string_view FileName);

bool FileExists(const std::string& FileName);      // false for a folder
bool DirectoryExists(const std::string& FileName); // false for a file

// The framework's DeleteFile; that name is a macro on one platform. False when
// there is no such file or it cannot be removed.
bool RemoveFile(const std::string& FileName);
