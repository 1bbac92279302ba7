// The file-system calls that the framework needs, alike on every platform. Names
// are UTF-8; "\" is a separator only where the operating system takes it for one.
//
// Failures are thrown as TFileSystemError; the framework turns them into its own
// exceptions. framework/rtl/Files.h is what programs use.
#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

// What the operating system says; the message is its reason without file name
// and final point, such as "No such file or directory".
class TFileSystemError : public std::runtime_error {
public:
    TFileSystemError(const std::string& Reason, unsigned long ErrorCode)
        : std::runtime_error(Reason), FErrorCode(ErrorCode)
    {
    }
    // errno or GetLastError.
    unsigned long ErrorCode() const { return FErrorCode; }

private:
    unsigned long FErrorCode;
};

// The separator to add to a path: '\\' or '/'.
extern const char PathDelimiter;

enum class TFileKind { None, File, Directory };

// What FileName is once links are followed; None also when it cannot be told.
TFileKind KindOfFile(const std::string& FileName);

// False when nothing was removed. Folders are never removed.
bool RemoveFileNamed(const std::string& FileName) noexcept;

// One text for one file, whatever name it is called by: the full name without
// links, in lower case where the file system does not mind case. For comparing
// and hashing, not for opening. Neither the file nor its folder need exist.
std::string FileIdentity(const std::string& FileName);

// A folder for temporary files that belongs to the user alone; created when
// missing. Ends without a separator.
std::string UserTemporaryFolder();

// Opened for reading. Not a folder: the constructor refuses those.
class TReadableFile {
public:
    explicit TReadableFile(const std::string& FileName);
    ~TReadableFile();
    TReadableFile(const TReadableFile&) = delete;
    TReadableFile& operator=(const TReadableFile&) = delete;

    // In bytes when it was opened; 0 for what has no size (a pipe).
    std::size_t Size() const;
    // Reads at most Count bytes and returns how many; 0 at the end.
    std::size_t Read(char* Buffer, std::size_t Count);

private:
    struct TState;
    std::unique_ptr<TState> FState;
};

// A new file, with a unique name beside the file (or link target) that it is to
// replace, and that file's permissions. The destructor removes it unless Rename
// succeeded.
class TTemporaryFile {
public:
    explicit TTemporaryFile(const std::string& ToReplace);
    ~TTemporaryFile();
    TTemporaryFile(const TTemporaryFile&) = delete;
    TTemporaryFile& operator=(const TTemporaryFile&) = delete;

    void Write(std::string_view Bytes);
    // To the disk, not only to the operating system; then closes.
    void FlushAndClose();
    // Takes the name of the file to replace. Requires: FlushAndClose.
    void Rename();

private:
    struct TState;
    std::unique_ptr<TState> FState;
};

// An exclusive lock on a file, which is created when missing. Released by the
// destructor or by the end of the program, however it ends. Holds off other
// TLockedFiles in the same program as well.
class TLockedFile {
public:
    // Null when somebody else holds the lock for longer than Timeout.
    static std::unique_ptr<TLockedFile> Acquire(const std::string& FileName,
                                                std::chrono::milliseconds Timeout);
    ~TLockedFile();
    TLockedFile(const TLockedFile&) = delete;
    TLockedFile& operator=(const TLockedFile&) = delete;

private:
    TLockedFile();
    struct TState;
    std::unique_ptr<TState> FState;
};
