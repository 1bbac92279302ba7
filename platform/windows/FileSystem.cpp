#include "platform/FileSystem.h"

#include <algorithm>
#include <atomic>
#include <iterator>
#include <utility>

#include <windows.h>

const char PathDelimiter = '\\';

namespace {

std::wstring Widened(std::string_view Text)
{
    const int Count = static_cast<int>(Text.size());
    std::wstring Result(Text.size(), L'\0'); // never more units than bytes
    const int Size = ::MultiByteToWideChar(CP_UTF8, 0, Text.data(), Count, Result.data(), Count);
    Result.resize(static_cast<std::size_t>(Size));
    return Result;
}

std::string Narrowed(std::wstring_view Text)
{
    const int Count = static_cast<int>(Text.size());
    std::string Result(Text.size() * 3, '\0'); // never more bytes than that
    const int Size = ::WideCharToMultiByte(CP_UTF8, 0, Text.data(), Count, Result.data(),
                                           static_cast<int>(Result.size()), nullptr, nullptr);
    Result.resize(static_cast<std::size_t>(Size));
    return Result;
}

[[noreturn]] void Raise(DWORD Code)
{
    wchar_t Buffer[512];
    const DWORD Size = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                        Code, 0, Buffer, static_cast<DWORD>(std::size(Buffer)), nullptr);
    std::string Reason = Narrowed({Buffer, Size});
    Reason.erase(Reason.find_last_not_of(" .\r\n") + 1);
    throw TFileSystemError(Reason.empty() ? "Error " + std::to_string(Code) : Reason, Code);
}

// What CreateFile says about a folder is "access denied", which helps nobody.
[[noreturn]] void RaiseIsFolder()
{
    throw TFileSystemError("Is a directory", ERROR_DIRECTORY);
}

bool IsFolder(const std::wstring& Name)
{
    const DWORD Attributes = ::GetFileAttributesW(Name.c_str());
    return Attributes != INVALID_FILE_ATTRIBUTES && (Attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// Owns a file handle.
class THandle {
public:
    THandle() = default;
    explicit THandle(HANDLE Value) : FValue(Value) {}
    THandle(THandle&& Other) noexcept : FValue(std::exchange(Other.FValue, INVALID_HANDLE_VALUE)) {}
    THandle& operator=(THandle&& Other) noexcept
    {
        Close();
        FValue = std::exchange(Other.FValue, INVALID_HANDLE_VALUE);
        return *this;
    }
    ~THandle() { Close(); }

    HANDLE Get() const { return FValue; }
    bool IsOpen() const { return FValue != INVALID_HANDLE_VALUE; }
    bool Close() noexcept { return !IsOpen() || ::CloseHandle(std::exchange(FValue, INVALID_HANDLE_VALUE)); }

private:
    HANDLE FValue = INVALID_HANDLE_VALUE;
};

constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::wstring FullName(const std::wstring& Name)
{
    std::wstring Result(32768, L'\0');
    const DWORD Size =
        ::GetFullPathNameW(Name.c_str(), static_cast<DWORD>(Result.size()), Result.data(), nullptr);
    if (Size == 0 || Size >= Result.size())
        return Name;
    Result.resize(Size);
    return Result;
}

// The name behind all links of something that exists; empty otherwise.
std::wstring FinalName(const std::wstring& Name)
{
    const THandle File(::CreateFileW(Name.c_str(), 0, ShareAll, nullptr, OPEN_EXISTING,
                                     FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!File.IsOpen())
        return {};
    std::wstring Result(32768, L'\0');
    const DWORD Size =
        ::GetFinalPathNameByHandleW(File.Get(), Result.data(), static_cast<DWORD>(Result.size()), 0);
    if (Size == 0 || Size >= Result.size())
        return {};
    Result.resize(Size);
    return Result;
}

bool IsLink(const std::wstring& Name)
{
    const DWORD Attributes = ::GetFileAttributesW(Name.c_str());
    return Attributes != INVALID_FILE_ATTRIBUTES && (Attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

std::wstring TemporaryName(const std::wstring& Target)
{
    static std::atomic<unsigned> Counter{0};
    constexpr std::size_t MaxBaseUnits = 200;
    const auto NameStart = Target.find_last_of(L"\\/:") + 1; // npos + 1 is 0
    std::wstring Base = Target.substr(NameStart, MaxBaseUnits);
    return Target.substr(0, NameStart) + Base + L".tmp" + std::to_wstring(::GetCurrentProcessId()) + L"-" +
           std::to_wstring(++Counter) + L"-" + std::to_wstring(::GetTickCount64() % 1000000);
}

} // namespace

TFileKind KindOfFile(const std::string& FileName)
{
    const DWORD Attributes = ::GetFileAttributesW(Widened(FileName).c_str());
    if (Attributes == INVALID_FILE_ATTRIBUTES)
        return TFileKind::None;
    return (Attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? TFileKind::Directory : TFileKind::File;
}

bool RemoveFileNamed(const std::string& FileName) noexcept
try {
    return ::DeleteFileW(Widened(FileName).c_str()) != 0;
} catch (const std::bad_alloc&) {
    return false;
}

std::string FileIdentity(const std::string& FileName)
{
    const std::wstring Full = FullName(Widened(FileName));
    std::wstring Result = FinalName(Full);
    if (Result.empty()) {
        const auto NameStart = Full.find_last_of(L"\\/:") + 1;
        const std::wstring Folder = FinalName(Full.substr(0, NameStart));
        Result =
            Folder.empty() ? Full : Folder + (Folder.ends_with(L'\\') ? L"" : L"\\") + Full.substr(NameStart);
    }
    ::CharLowerBuffW(Result.data(), static_cast<DWORD>(Result.size()));
    return Narrowed(Result);
}

std::string UserTemporaryFolder()
{
    wchar_t Buffer[MAX_PATH + 2];
    const DWORD Size = ::GetTempPathW(static_cast<DWORD>(std::size(Buffer)), Buffer);
    if (Size == 0 || Size >= std::size(Buffer))
        Raise(::GetLastError());
    const std::wstring Folder = std::wstring(Buffer, Size) + L"orbilex";
    if (!::CreateDirectoryW(Folder.c_str(), nullptr) && ::GetLastError() != ERROR_ALREADY_EXISTS)
        Raise(::GetLastError());
    return Narrowed(Folder);
}

struct TReadableFile::TState {
    THandle Handle;
    std::size_t Size = 0;
};

// Shared with everybody, or reading would make somebody's replacing fail.
TReadableFile::TReadableFile(const std::string& FileName) : FState(std::make_unique<TState>())
{
    const std::wstring Name = Widened(FileName);
    if (IsFolder(Name))
        RaiseIsFolder();
    FState->Handle = THandle(::CreateFileW(Name.c_str(), GENERIC_READ, ShareAll, nullptr, OPEN_EXISTING,
                                           FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!FState->Handle.IsOpen())
        Raise(::GetLastError());
    LARGE_INTEGER Size;
    if (::GetFileSizeEx(FState->Handle.Get(), &Size))
        FState->Size = static_cast<std::size_t>(Size.QuadPart);
}

TReadableFile::~TReadableFile() = default;

std::size_t TReadableFile::Size() const
{
    return FState->Size;
}

std::size_t TReadableFile::Read(char* Buffer, std::size_t Count)
{
    constexpr std::size_t MaxPiece = 1 << 30;
    DWORD Result = 0;
    const auto Piece = static_cast<DWORD>(std::min(Count, MaxPiece));
    if (!::ReadFile(FState->Handle.Get(), Buffer, Piece, &Result, nullptr) &&
        ::GetLastError() != ERROR_BROKEN_PIPE)
        Raise(::GetLastError());
    return Result;
}

struct TTemporaryFile::TState {
    std::wstring Target;
    std::wstring Name;
    THandle Handle;
    DWORD Attributes = FILE_ATTRIBUTE_NORMAL;

    ~TState()
    {
        Handle.Close(); // an open file cannot be removed
        if (!Name.empty())
            ::DeleteFileW(Name.c_str());
    }
};

TTemporaryFile::TTemporaryFile(const std::string& ToReplace) : FState(std::make_unique<TState>())
{
    if (ToReplace.empty())
        Raise(ERROR_FILE_NOT_FOUND);
    TState& State = *FState;
    State.Target = FullName(Widened(ToReplace));
    if (IsLink(State.Target))
        if (std::wstring Final = FinalName(State.Target); !Final.empty())
            State.Target = std::move(Final);
    if (IsFolder(State.Target))
        RaiseIsFolder();
    const DWORD Existing = ::GetFileAttributesW(State.Target.c_str());
    if (Existing != INVALID_FILE_ATTRIBUTES) {
        if ((Existing & FILE_ATTRIBUTE_READONLY) != 0)
            Raise(ERROR_ACCESS_DENIED);
        State.Attributes =
            Existing & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE);
    }
    do {
        std::wstring Unique = TemporaryName(State.Target);
        State.Handle =
            THandle(::CreateFileW(Unique.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                  State.Attributes ? State.Attributes : FILE_ATTRIBUTE_NORMAL, nullptr));
        if (State.Handle.IsOpen())
            State.Name = std::move(Unique);
        else if (::GetLastError() != ERROR_FILE_EXISTS)
            Raise(::GetLastError());
    } while (!State.Handle.IsOpen());
}

TTemporaryFile::~TTemporaryFile() = default;

void TTemporaryFile::Write(std::string_view Bytes)
{
    constexpr std::size_t MaxPiece = 1 << 30;
    while (!Bytes.empty()) {
        DWORD Count = 0;
        const auto Piece = static_cast<DWORD>(std::min(Bytes.size(), MaxPiece));
        if (!::WriteFile(FState->Handle.Get(), Bytes.data(), Piece, &Count, nullptr))
            Raise(::GetLastError());
        Bytes.remove_prefix(Count);
    }
}

void TTemporaryFile::FlushAndClose()
{
    if (!::FlushFileBuffers(FState->Handle.Get()) || !FState->Handle.Close())
        Raise(::GetLastError());
}

// Virus scanners and indexers hold new files open for moments; that is no reason
// to lose a save.
void TTemporaryFile::Rename()
{
    constexpr int Attempts = 50;
    constexpr DWORD PauseMilliseconds = 20;
    for (int Attempt = 1; !::MoveFileExW(FState->Name.c_str(), FState->Target.c_str(),
                                         MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
         ++Attempt) {
        const DWORD Code = ::GetLastError();
        if ((Code != ERROR_ACCESS_DENIED && Code != ERROR_SHARING_VIOLATION) || Attempt == Attempts ||
            IsFolder(FState->Target))
            Raise(Code);
        ::Sleep(PauseMilliseconds);
    }
    FState->Name.clear();
}

// The lock goes with the handle.
struct TLockedFile::TState {
    THandle Handle;
};

TLockedFile::TLockedFile() : FState(std::make_unique<TState>()) {}

TLockedFile::~TLockedFile() = default;

std::unique_ptr<TLockedFile> TLockedFile::Acquire(const std::string& FileName,
                                                  std::chrono::milliseconds Timeout)
{
    constexpr DWORD PauseMilliseconds = 2;
    const auto Deadline = std::chrono::steady_clock::now() + Timeout;
    std::unique_ptr<TLockedFile> Result(new TLockedFile);
    THandle& Handle = Result->FState->Handle;
    // Not shared for deleting: the name stays with the file while it is open.
    Handle = THandle(::CreateFileW(Widened(FileName).c_str(), GENERIC_READ | GENERIC_WRITE,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                                   FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!Handle.IsOpen())
        Raise(::GetLastError());
    for (;;) {
        OVERLAPPED Start{};
        if (::LockFileEx(Handle.Get(), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &Start))
            return Result;
        if (::GetLastError() != ERROR_LOCK_VIOLATION && ::GetLastError() != ERROR_IO_PENDING)
            Raise(::GetLastError());
        if (std::chrono::steady_clock::now() >= Deadline)
            return nullptr;
        ::Sleep(PauseMilliseconds);
    }
}
