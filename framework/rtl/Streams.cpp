#include "framework/rtl/Streams.h"

#include <algorithm>
#include <cstring>

#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/TypInfo.h"

const TMetaClass& TStream::MetaClass()
{
    static const TMetaClass Class("TStream", &TObject::MetaClass(), nullptr);
    return Class;
}

void TStream::ReadBuffer(void* Buffer, int64_t Count)
{
    if (Read(Buffer, Count) != Count)
        throw EReadError(SReadError);
}

void TStream::WriteBuffer(const void* Buffer, int64_t Count)
{
    if (Write(Buffer, Count) != Count)
        throw EWriteError(SWriteError);
}

std::string TStream::ReadRest()
{
    std::string Result(static_cast<size_t>(std::max<int64_t>(Size() - Position(), 0)), '\0');
    ReadBuffer(Result.data(), static_cast<int64_t>(Result.size()));
    return Result;
}

int64_t TStream::CopyFrom(TStream& Source, int64_t Count)
{
    if (Count == 0) {
        Source.SetPosition(0);
        Count = Source.Size();
    }
    if (Count < 0 || Count > Source.Size() - Source.Position())
        throw EReadError(SReadError);
    std::string Bytes(static_cast<size_t>(Count), '\0');
    Source.ReadBuffer(Bytes.data(), Count);
    WriteBytes(Bytes);
    return Count;
}

const TMetaClass& TMemoryStream::MetaClass()
{
    static const TMetaClass Class("TMemoryStream", &TStream::MetaClass(), nullptr);
    return Class;
}

int64_t TMemoryStream::Read(void* Buffer, int64_t Count)
{
    const int64_t Taken = std::clamp<int64_t>(Size() - FPosition, 0, std::max<int64_t>(Count, 0));
    if (Taken > 0)
        std::memcpy(Buffer, FBytes.data() + FPosition, static_cast<size_t>(Taken));
    FPosition += Taken;
    return Taken;
}

int64_t TMemoryStream::Write(const void* Buffer, int64_t Count)
{
    if (Count <= 0)
        return 0;
    if (FPosition + Count > Size())
        FBytes.resize(static_cast<size_t>(FPosition + Count));
    std::memcpy(FBytes.data() + FPosition, Buffer, static_cast<size_t>(Count));
    FPosition += Count;
    return Count;
}

int64_t TMemoryStream::Seek(int64_t Offset, TSeekOrigin Origin)
{
    const int64_t Base = Origin == soBeginning ? 0 : Origin == soCurrent ? FPosition : Size();
    FPosition = std::max<int64_t>(Base + Offset, 0);
    return FPosition;
}

void TMemoryStream::Clear()
{
    FBytes.clear();
    FPosition = 0;
}

void TMemoryStream::LoadFromFile(const std::string& FileName)
{
    FBytes = ReadWholeFile(FileName);
    FPosition = 0;
}

void TMemoryStream::SaveToFile(const std::string& FileName) const
{
    ReplaceWholeFile(FileName, FBytes);
}
