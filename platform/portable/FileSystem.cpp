#include "platform/FileSystem.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <system_error>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

const char PathDelimiter = '/';

namespace {

[[noreturn]] void Raise(int Code)
{
    throw TFileSystemError(std::generic_category().message(Code), static_cast<unsigned long>(Code));
}

// Owns a file descriptor.
class TDescriptor {
public:
    TDescriptor() = default;
    explicit TDescriptor(int Value) : FValue(Value) {}
    TDescriptor(TDescriptor&& Other) noexcept : FValue(Other.Release()) {}
    TDescriptor& operator=(TDescriptor&& Other) noexcept
    {
        Close();
        FValue = Other.Release();
        return *this;
    }
    ~TDescriptor() { Close(); }

    int Get() const { return FValue; }
    bool IsOpen() const { return FValue >= 0; }
    int Release() noexcept { return std::exchange(FValue, -1); }
    // 0, or what went wrong.
    int Close() noexcept { return IsOpen() && ::close(Release()) != 0 && errno != EINTR ? errno : 0; }

private:
    int FValue = -1;
};

TDescriptor Open(const std::string& Name, int Flags, mode_t Mode = 0)
{
    for (;;) {
        TDescriptor Result(::open(Name.c_str(), Flags | O_CLOEXEC, Mode));
        if (Result.IsOpen() || errno != EINTR)
            return Result;
    }
}

// Name up to and with its last separator; "./" without one.
std::string FolderOf(const std::string& Name)
{
    const auto Slash = Name.rfind('/');
    return Slash == Name.npos ? "./" : Name.substr(0, Slash + 1);
}

std::string NameIn(const std::string& Name)
{
    return Name.substr(Name.rfind('/') + 1);
}

// Where a chain of links ends, whether or not anything is there.
std::string FollowLinks(std::string Name)
{
    constexpr int MaxLinks = 40;
    std::array<char, PATH_MAX> Buffer;
    for (int Count = 0; Count < MaxLinks; ++Count) {
        const ssize_t Size = ::readlink(Name.c_str(), Buffer.data(), Buffer.size());
        if (Size < 0)
            return Name;
        std::string Target(Buffer.data(), static_cast<std::size_t>(Size));
        Name = Target.starts_with('/') ? Target : FolderOf(Name) + Target;
    }
    Raise(ELOOP);
}

// The folder's own way to disk is best effort: when it fails the file has
// already been replaced, and there is no old one to be kept any more.
void FlushFolder(const std::string& Folder)
{
    const TDescriptor Descriptor = Open(Folder, O_RDONLY | O_DIRECTORY);
    if (Descriptor.IsOpen())
        ::fsync(Descriptor.Get());
}

// Leaves room for the unique part; some names are as long as a name can be.
std::string TemporaryName(const std::string& Target)
{
    static std::atomic<unsigned> Counter{0};
    constexpr std::size_t MaxBaseBytes = 200;
    std::string Base = NameIn(Target);
    if (Base.size() > MaxBaseBytes)
        Base.resize(MaxBaseBytes);
    timespec Now{};
    ::clock_gettime(CLOCK_MONOTONIC, &Now);
    return FolderOf(Target) + Base + ".tmp" + std::to_string(::getpid()) + "-" + std::to_string(++Counter) +
           "-" + std::to_string(Now.tv_nsec);
}

} // namespace

TFileKind KindOfFile(const std::string& FileName)
{
    struct stat Status;
    if (::stat(FileName.c_str(), &Status) != 0)
        return TFileKind::None;
    return S_ISDIR(Status.st_mode) ? TFileKind::Directory : TFileKind::File;
}

bool RemoveFileNamed(const std::string& FileName) noexcept
{
    return ::unlink(FileName.c_str()) == 0;
}

std::string FileIdentity(const std::string& FileName)
{
    const std::string Target = FollowLinks(FileName);
    const std::unique_ptr<char, decltype(&std::free)> Folder(::realpath(FolderOf(Target).c_str(), nullptr),
                                                             &std::free);
    if (!Folder)
        return Target;
    std::string Result = Folder.get();
    if (!Result.ends_with('/'))
        Result += '/';
    return Result + NameIn(Target);
}

// Other users can write to the folder for temporary files, so a folder that is
// already there must be ours and closed to them. The folder does not follow
// TMPDIR unless it has to: programs that share files need not share that.
std::string UserTemporaryFolder()
{
    const char* const Configured = std::getenv("TMPDIR");
    const std::string Leaf = "/orbilex-" + std::to_string(::geteuid());
    int Reason = 0;
    for (const std::string& Parent : {std::string("/tmp"), std::string(Configured ? Configured : "/tmp")}) {
        const std::string Folder = Parent + Leaf;
        if (::mkdir(Folder.c_str(), 0700) != 0 && errno != EEXIST) {
            Reason = errno;
            continue;
        }
        struct stat Status;
        if (::lstat(Folder.c_str(), &Status) != 0)
            Reason = errno;
        else if (!S_ISDIR(Status.st_mode) || Status.st_uid != ::geteuid() || (Status.st_mode & 022) != 0)
            Reason = EACCES;
        else
            return Folder;
    }
    Raise(Reason);
}

struct TReadableFile::TState {
    TDescriptor Descriptor;
    std::size_t Size = 0;
};

TReadableFile::TReadableFile(const std::string& FileName) : FState(std::make_unique<TState>())
{
    FState->Descriptor = Open(FileName, O_RDONLY);
    struct stat Status;
    if (!FState->Descriptor.IsOpen() || ::fstat(FState->Descriptor.Get(), &Status) != 0)
        Raise(errno);
    if (S_ISDIR(Status.st_mode))
        Raise(EISDIR);
    FState->Size = S_ISREG(Status.st_mode) ? static_cast<std::size_t>(Status.st_size) : 0;
}

TReadableFile::~TReadableFile() = default;

std::size_t TReadableFile::Size() const
{
    return FState->Size;
}

std::size_t TReadableFile::Read(char* Buffer, std::size_t Count)
{
    for (;;) {
        const ssize_t Result = ::read(FState->Descriptor.Get(), Buffer, Count);
        if (Result >= 0)
            return static_cast<std::size_t>(Result);
        if (errno != EINTR)
            Raise(errno);
    }
}

struct TTemporaryFile::TState {
    std::string Target;
    std::string Name;
    TDescriptor Descriptor;

    ~TState()
    {
        if (!Name.empty())
            RemoveFileNamed(Name);
    }
    // Created with no more rights than the file to replace, so that nobody can
    // open it in between; then given exactly those.
    void Create(const struct stat* Existing)
    {
        const mode_t Mode = Existing ? Existing->st_mode & 07777 : 0666;
        do {
            std::string Unique = TemporaryName(Target);
            Descriptor = Open(Unique, O_WRONLY | O_CREAT | O_EXCL, Mode & 0777);
            if (Descriptor.IsOpen())
                Name = std::move(Unique);
            else if (errno != EEXIST)
                Raise(errno);
        } while (!Descriptor.IsOpen());
        if (Existing)
            CopyRights(*Existing, Mode);
    }
    void CopyRights(const struct stat& Existing, mode_t Mode)
    {
        // Only a privileged program can give a file away; others keep it.
        const bool SameOwner = ::fchown(Descriptor.Get(), Existing.st_uid, Existing.st_gid) == 0;
        if (::fchmod(Descriptor.Get(), SameOwner ? Mode : Mode & 0777) != 0)
            Raise(errno);
    }
};

TTemporaryFile::TTemporaryFile(const std::string& ToReplace) : FState(std::make_unique<TState>())
{
    if (ToReplace.empty())
        Raise(ENOENT);
    FState->Target = FollowLinks(ToReplace);
    const char* const Target = FState->Target.c_str();
    struct stat Existing;
    if (::stat(Target, &Existing) != 0) {
        if (errno != ENOENT)
            Raise(errno);
        FState->Create(nullptr);
        return;
    }
    if (S_ISDIR(Existing.st_mode))
        Raise(EISDIR);
    if (!S_ISREG(Existing.st_mode))
        throw TFileSystemError("Not a regular file", 0);
    // Renaming would get round the protection of a read-only file.
    if (::access(Target, W_OK) != 0)
        Raise(errno);
    FState->Create(&Existing);
}

TTemporaryFile::~TTemporaryFile() = default;

void TTemporaryFile::Write(std::string_view Bytes)
{
    while (!Bytes.empty()) {
        const ssize_t Count = ::write(FState->Descriptor.Get(), Bytes.data(), Bytes.size());
        if (Count >= 0)
            Bytes.remove_prefix(static_cast<std::size_t>(Count));
        else if (errno != EINTR)
            Raise(errno);
    }
}

void TTemporaryFile::FlushAndClose()
{
    if (::fsync(FState->Descriptor.Get()) != 0)
        Raise(errno);
    if (const int Error = FState->Descriptor.Close())
        Raise(Error);
}

void TTemporaryFile::Rename()
{
    if (::rename(FState->Name.c_str(), FState->Target.c_str()) != 0)
        Raise(errno);
    FState->Name.clear();
    FlushFolder(FolderOf(FState->Target));
}

struct TLockedFile::TState {
    TDescriptor Descriptor;

    // A cleaner of old temporary files may have removed the name since it was
    // opened; then the lock is on a file that nobody else will find.
    bool StillNamed(const std::string& FileName) const
    {
        struct stat Mine, Named;
        return ::fstat(Descriptor.Get(), &Mine) == 0 && ::stat(FileName.c_str(), &Named) == 0 &&
               Mine.st_dev == Named.st_dev && Mine.st_ino == Named.st_ino;
    }
};

TLockedFile::TLockedFile() : FState(std::make_unique<TState>()) {}

TLockedFile::~TLockedFile() = default;

std::unique_ptr<TLockedFile> TLockedFile::Acquire(const std::string& FileName,
                                                  std::chrono::milliseconds Timeout)
{
    constexpr auto Pause = std::chrono::milliseconds(2);
    const auto Deadline = std::chrono::steady_clock::now() + Timeout;
    std::unique_ptr<TLockedFile> Result(new TLockedFile);
    for (;;) {
        TState& State = *Result->FState;
        State.Descriptor = Open(FileName, O_RDWR | O_CREAT | O_NOFOLLOW, 0600);
        if (!State.Descriptor.IsOpen())
            Raise(errno);
        if (::flock(State.Descriptor.Get(), LOCK_EX | LOCK_NB) == 0) {
            if (State.StillNamed(FileName))
                return Result;
        } else if (errno != EWOULDBLOCK && errno != EINTR) {
            Raise(errno);
        }
        if (std::chrono::steady_clock::now() >= Deadline)
            return nullptr;
        std::this_thread::sleep_for(Pause);
    }
}
