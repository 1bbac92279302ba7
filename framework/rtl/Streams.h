// Streams of bytes in memory and in files.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "framework/rtl/Object.h"

enum TSeekOrigin { soBeginning, soCurrent, soEnd };

// Positions and sizes are in bytes from 0.
class TStream : public TObject {
    OBX_CLASS(TObject)
public:
    // Up to Count bytes; returns how many there were.
    virtual int64_t Read(void* Buffer, int64_t Count) = 0;
    virtual int64_t Write(const void* Buffer, int64_t Count) = 0;
    virtual int64_t Seek(int64_t Offset, TSeekOrigin Origin) = 0;
    virtual int64_t Size() = 0;

    int64_t Position() { return Seek(0, soCurrent); }
    void SetPosition(int64_t Value) { Seek(Value, soBeginning); }

    // All of Count or EReadError "Stream read error", EWriteError "Stream write error".
    void ReadBuffer(void* Buffer, int64_t Count);
    void WriteBuffer(const void* Buffer, int64_t Count);

    // From here to the end.
    std::string ReadRest();
    void WriteBytes(std::string_view Bytes) { WriteBuffer(Bytes.data(), static_cast<int64_t>(Bytes.size())); }

    // Copies Count bytes from Source, or all of it from its start when Count is 0.
    int64_t CopyFrom(TStream& Source, int64_t Count);
};

class TMemoryStream : public TStream {
    OBX_CLASS(TStream)
public:
    TMemoryStream() = default;
    explicit TMemoryStream(std::string Bytes) : FBytes(std::move(Bytes)) {}

    int64_t Read(void* Buffer, int64_t Count) override;
    int64_t Write(const void* Buffer, int64_t Count) override;
    int64_t Seek(int64_t Offset, TSeekOrigin Origin) override;
    int64_t Size() override { return static_cast<int64_t>(FBytes.size()); }

    const std::string& Bytes() const { return FBytes; }
    void Clear();
    void LoadFromFile(const std::string& FileName);
    void SaveToFile(const std::string& FileName) const;

private:
    std::string FBytes;
    int64_t FPosition = 0;
};
