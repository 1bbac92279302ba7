// Whole files: read at once, replaced safely, locked against other programs.
//
// A file is never overwritten in place. The new content goes to a temporary file
// beside it ("lang.txt.tmp" and a unique part), is flushed to disk, and takes the
// file's name in one step. Whoever reads the file meets the old content or the
// new, never a part; when anything fails, or the program is killed, the old file
// is whole. (A killed program can leave the temporary file behind.)
//
// Names are UTF-8. Error messages hold the name and the operating system's
// reason: "Cannot open file lang.txt. No such file or directory".
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <string_view>

#include "platform/FileSystem.h"

// Throws EFOpenError when it cannot be opened or is a folder, EReadError when
// reading stops half-way.
std::string ReadWholeFile(const std::string& FileName);

// Makes Content the file's content, creating the file when there is none.
// Throws as TFileReplacer does.
void ReplaceWholeFile(const std::string& FileName, std::string_view Content);

// Replaces a file by content that is written in pieces:
//     TFileReplacer File("lang.txt");
//     for (...) File.Write(Line);
//     File.Commit();
// Without Commit (an exception on the way) the old file stays as it was and the
// temporary file is removed. A symbolic link is followed: its target is
// replaced. Permissions of an existing file are kept.
//
// Throws EFCreateError when the temporary file cannot be made (no such folder,
// read-only folder, a folder of that name) and EWriteError when writing, flushing
// or renaming fails (full disk, file held open by another program). After an
// exception only destruction is allowed.
class TFileReplacer {
public:
    explicit TFileReplacer(const std::string& FileName);
    ~TFileReplacer();
    TFileReplacer(const TFileReplacer&) = delete;
    TFileReplacer& operator=(const TFileReplacer&) = delete;

    void Write(std::string_view Bytes);
    // At most once, after the last Write.
    void Commit();

private:
    void Flush();
    [[noreturn]] void Fail(const TFileSystemError& Error) const;

    std::string FFileName; // as the caller named it, for messages
    std::string FBuffer;
    std::unique_ptr<TTemporaryFile> FTemporary;
};

// Makes programs that read, merge and write the same file wait for one another:
//     TFileLock Lock("lang.txt");
//     auto Texts = ReadWholeFile("lang.txt"); ... ReplaceWholeFile("lang.txt", Texts);
// The lock is advisory: it holds off other TFileLocks, in this or another
// program or thread, of the same user, not readers. It is released by the
// destructor, and by the operating system when the program dies, so nothing left
// behind can block. Not reentrant: a second lock on the same file in one thread
// waits until its timeout.
//
// What is locked is an empty file in a folder of the user's own for temporary
// files, whose name is made from the file's full name with links resolved. The
// file itself cannot serve, because replacing it gives its name to another file
// and the next program would lock that; a lock file beside it would litter the
// user's project folders, and removing it after use would let two programs hold
// "the" lock, one on the removed file and one on a new one. The lock files stay
// (they are empty). Two users, or two machines sharing a folder, do not hold each
// other off.
//
// Throws EInOutError naming the file when another program keeps the lock longer
// than Timeout, or when the lock file cannot be made.
class TFileLock {
public:
    explicit TFileLock(const std::string& FileName,
                       std::chrono::milliseconds Timeout = std::chrono::seconds(30));
    ~TFileLock();
    TFileLock(const TFileLock&) = delete;
    TFileLock& operator=(const TFileLock&) = delete;

private:
    std::unique_ptr<TLockedFile> FLocked;
};
