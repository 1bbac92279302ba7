#include "framework/rtl/Files.h"

#include <algorithm>
#include <cstdint>

#include "framework/rtl/Convert.h"
#include "framework/rtl/Exceptions.h"
#include "framework/rtl/FileNames.h"
#include "framework/rtl/FormatText.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/Utf8.h"

namespace {

constexpr std::size_t BufferSize = 1 << 16;

std::string MessageOf(const TResStringRec& Text, const std::string& FileName, const TFileSystemError& Error)
{
    return Format(Text, {FileName, Error.what()});
}

std::string ReadToEnd(TReadableFile& File)
{
    // One byte more than the size, so that the end shows without growing.
    std::string Result(std::max(File.Size() + 1, BufferSize), '\0');
    std::size_t Used = 0;
    while (const std::size_t Count = File.Read(Result.data() + Used, Result.size() - Used)) {
        Used += Count;
        if (Used == Result.size())
            Result.resize(Result.size() * 2);
    }
    Result.resize(Used);
    return Result;
}

// FNV-1a with 64 bits: the same name in every program, whichever compiler made it.
std::uint64_t HashOf(std::string_view Text)
{
    std::uint64_t Result = 0xCBF29CE484222325u;
    for (const char Each : Text)
        Result = (Result ^ static_cast<unsigned char>(Each)) * 0x100000001B3u;
    return Result;
}

// The name of the file helps whoever looks into the folder; the hash tells files
// of one name apart.
std::string LockFileName(const std::string& FileName)
{
    constexpr std::size_t ReadableBytes = 64;
    const std::string Identity = FileIdentity(FileName);
    const std::string Name = ExtractFileName(Identity);
    return IncludeTrailingBackslash(UserTemporaryFolder()) +
           std::string(CutAtCharacter(Name, ReadableBytes)) + "." + IntToHex(HashOf(Identity), 16) + ".lock";
}

} // namespace

std::string ReadWholeFile(const std::string& FileName)
{
    std::unique_ptr<TReadableFile> File;
    try {
        File = std::make_unique<TReadableFile>(FileName);
    } catch (const TFileSystemError& Error) {
        throw EFOpenError(MessageOf(SFOpenErrorEx, FileName, Error));
    }
    try {
        return ReadToEnd(*File);
    } catch (const TFileSystemError& Error) {
        throw EReadError(MessageOf(SFReadErrorEx, FileName, Error));
    }
}

void ReplaceWholeFile(const std::string& FileName, std::string_view Content)
{
    TFileReplacer File(FileName);
    File.Write(Content);
    File.Commit();
}

TFileReplacer::TFileReplacer(const std::string& FileName) : FFileName(FileName)
{
    try {
        FTemporary = std::make_unique<TTemporaryFile>(FileName);
    } catch (const TFileSystemError& Error) {
        throw EFCreateError(MessageOf(SFCreateErrorEx, FileName, Error));
    }
}

TFileReplacer::~TFileReplacer() = default;

void TFileReplacer::Fail(const TFileSystemError& Error) const
{
    throw EWriteError(MessageOf(SFWriteErrorEx, FFileName, Error));
}

void TFileReplacer::Flush()
{
    FTemporary->Write(FBuffer);
    FBuffer.clear();
}

void TFileReplacer::Write(std::string_view Bytes)
{
    try {
        if (FBuffer.size() + Bytes.size() > BufferSize)
            Flush();
        if (Bytes.size() > BufferSize)
            FTemporary->Write(Bytes);
        else
            FBuffer += Bytes;
    } catch (const TFileSystemError& Error) {
        Fail(Error);
    }
}

void TFileReplacer::Commit()
{
    try {
        Flush();
        FTemporary->FlushAndClose();
        FTemporary->Rename();
    } catch (const TFileSystemError& Error) {
        Fail(Error);
    }
}

TFileLock::TFileLock(const std::string& FileName, std::chrono::milliseconds Timeout)
{
    try {
        FLocked = TLockedFile::Acquire(LockFileName(FileName), Timeout);
    } catch (const TFileSystemError& Error) {
        throw EInOutError(MessageOf(SFLockErrorEx, FileName, Error));
    }
    if (!FLocked)
        throw EInOutError(Format(SFLockErrorEx, {FileName, std::string(SFLockTimeout)}));
}

TFileLock::~TFileLock() = default;
