// Filters, folders and names as the file dialogs know them. Names are UTF-8; a path
// has no slash at its end unless it is the root.
#pragma once

#include <string>
#include <vector>

#include "platform/portable/commdlg.h"

struct TFileFilter {
    std::string Name;
    std::vector<std::string> Patterns;
};

struct TFolderEntry {
    std::string Name;
    bool Folder = false;
};

// Pairs of texts, the last one followed by an empty text; null gives no filters.
std::vector<TFileFilter> ReadFilters(const char* Pairs);
// Texts between semicolons.
std::vector<std::string> SplitPatterns(const std::string& Patterns);
// "*" stands for any characters, "?" for one; case does not matter, and "*.*" fits
// names without a dot too.
bool MatchesPattern(const std::string& Name, const std::string& Pattern);

// Folders first, then the files that match, both in the order of their names. False
// when the folder cannot be read.
bool ListFolder(const std::string& Folder, const std::vector<std::string>& Patterns, bool Hidden,
                std::vector<TFolderEntry>& Entries);

bool FolderExists(const std::string& Path);
bool PathExists(const std::string& Path);
// Name seen from Folder, without dots on the way.
std::string ResolvePath(const std::string& Folder, const std::string& Name);
std::string FolderOfPath(const std::string& Path);
std::string NameOfPath(const std::string& Path);

// The names in the field for them: one, or several in quotation marks.
std::vector<std::string> SplitNames(const std::string& Text);
std::string JoinNames(const std::vector<std::string>& Names);

// Writes the chosen paths, which are in one folder if they are several, into the
// buffers of the application, never past their ends. False when they do not fit: then
// the first two bytes of lpstrFile hold the size that would do.
bool StorePaths(OPENFILENAMEA& Data, const std::vector<std::string>& Paths);
