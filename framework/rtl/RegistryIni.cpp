#include "framework/rtl/RegistryIni.h"

#include <cstring>
#include <optional>
#include <vector>

#include "framework/rtl/Strings.h"
#include "framework/rtl/SysUtils.h"
#include "platform/winapi.h"

namespace {

// A key of the user, closed at the end.
class TUserKey {
public:
    TUserKey() = default;
    ~TUserKey()
    {
        if (FHandle)
            RegCloseKey(FHandle);
    }
    TUserKey(const TUserKey&) = delete;
    TUserKey& operator=(const TUserKey&) = delete;

    // Either one once; false, with no key, when there is none at Path or the system
    // refuses it. An empty Path would be the root key.
    bool Open(const std::string& Path)
    {
        return Keep(!Path.empty() &&
                    RegOpenKeyExA(HKEY_CURRENT_USER, Path.c_str(), 0, KEY_READ, &FHandle) == ERROR_SUCCESS);
    }
    bool OpenOrCreate(const std::string& Path)
    {
        return Keep(!Path.empty() &&
                    RegCreateKeyExA(HKEY_CURRENT_USER, Path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                    KEY_WRITE, nullptr, &FHandle, nullptr) == ERROR_SUCCESS);
    }
    HKEY Handle() const { return FHandle; }

private:
    bool Keep(bool IsOpen)
    {
        if (!IsOpen)
            FHandle = nullptr;
        return IsOpen;
    }

    HKEY FHandle = nullptr;
};

// A zero character would end a name or a text early.
bool HasZero(const std::string& Text)
{
    return Text.find('\0') != Text.npos;
}

// The data of a value, and their kind; false when there is no such value.
bool ReadData(HKEY Key, const std::string& Ident, std::string& Data, DWORD& Kind)
{
    for (Data.resize(256);;) {
        auto Size = static_cast<DWORD>(Data.size());
        const LSTATUS Error = RegQueryValueExA(Key, Ident.c_str(), nullptr, &Kind,
                                               reinterpret_cast<LPBYTE>(Data.data()), &Size);
        Data.resize(Size);
        if (Error != ERROR_MORE_DATA)
            return Error == ERROR_SUCCESS;
    }
}

// What the data say; nothing for a kind that holds no text.
std::optional<std::string> TextOf(const std::string& Data, DWORD Kind)
{
    if (Kind == REG_SZ || Kind == REG_EXPAND_SZ)
        return Data.substr(0, Data.find('\0'));
    if (Kind != REG_DWORD || Data.size() != sizeof(int))
        return std::nullopt;
    int Number;
    std::memcpy(&Number, Data.data(), sizeof(Number));
    return IntToStr(Number);
}

// All names that Enumerate, RegEnumKeyExA or RegEnumValueA, gives for a key.
template<typename TEnumerate>
std::vector<std::string> NamesOf(HKEY Key, TEnumerate Enumerate)
{
    std::vector<std::string> Result;
    std::string Name(1024, '\0');
    for (DWORD Index = 0;;) {
        auto Size = static_cast<DWORD>(Name.size());
        const LSTATUS Error = Enumerate(Key, Index, Name.data(), &Size, nullptr, nullptr, nullptr, nullptr);
        if (Error == ERROR_MORE_DATA) {
            Name.resize(Name.size() * 2);
            continue;
        }
        if (Error != ERROR_SUCCESS)
            return Result;
        Result.emplace_back(Name, 0, Size);
        ++Index;
    }
}

void Fill(TStrings& Strings, const std::vector<std::string>& Lines)
{
    Strings.BeginUpdate();
    Strings.Clear();
    for (const std::string& Line : Lines)
        Strings.Add(Line);
    Strings.EndUpdate();
}

} // namespace

TRegIniFile::TRegIniFile(const std::string& FileName) : FFileName(FileName)
{
    TUserKey().OpenOrCreate(PathOf(""));
}

std::string TRegIniFile::PathOf(const std::string& Section) const
{
    const bool IsFile = !FFileName.empty() && FFileName.front() != '\\' && !HasZero(FFileName);
    if (!IsFile || HasZero(Section) || Section.find('\\') != Section.npos)
        return "";
    return Section.empty() ? FFileName : FFileName + "\\" + Section;
}

void TRegIniFile::RaiseWriteError(const std::string& Section, const std::string& Ident) const
{
    throw ERegistryException(Format(SRegSetDataFailed, {FFileName + "\\" + Section + "\\" + Ident}));
}

std::string TRegIniFile::ReadString(const std::string& Section, const std::string& Ident,
                                    const std::string& Default) const
{
    TUserKey Key;
    std::string Data;
    DWORD Kind = REG_NONE;
    if (HasZero(Ident) || !Key.Open(PathOf(Section)) || !ReadData(Key.Handle(), Ident, Data, Kind))
        return Default;
    return TextOf(Data, Kind).value_or(Default);
}

int TRegIniFile::ReadInteger(const std::string& Section, const std::string& Ident, int Default) const
{
    return StrToIntDef(ReadString(Section, Ident, ""), Default);
}

bool TRegIniFile::ReadBool(const std::string& Section, const std::string& Ident, bool Default) const
{
    return ReadInteger(Section, Ident, Default) != 0;
}

void TRegIniFile::WriteString(const std::string& Section, const std::string& Ident, const std::string& Value)
{
    TUserKey Key;
    if (HasZero(Ident) || HasZero(Value) || !Key.OpenOrCreate(PathOf(Section)) ||
        RegSetValueExA(Key.Handle(), Ident.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(Value.c_str()),
                       static_cast<DWORD>(Value.size() + 1)) != ERROR_SUCCESS)
        RaiseWriteError(Section, Ident);
}

void TRegIniFile::WriteInteger(const std::string& Section, const std::string& Ident, int Value)
{
    WriteString(Section, Ident, IntToStr(Value));
}

void TRegIniFile::WriteBool(const std::string& Section, const std::string& Ident, bool Value)
{
    WriteString(Section, Ident, Value ? "1" : "0");
}

void TRegIniFile::DeleteKey(const std::string& Section, const std::string& Ident)
{
    if (!ValueExists(Section, Ident))
        return;
    TUserKey Key;
    if (!Key.OpenOrCreate(PathOf(Section)) || RegDeleteValueA(Key.Handle(), Ident.c_str()) != ERROR_SUCCESS)
        RaiseWriteError(Section, Ident);
}

void TRegIniFile::EraseSection(const std::string& Section)
{
    const std::string Path = PathOf(Section);
    if (Section.empty() || Path.empty())
        RaiseWriteError(Section, "");
    const LSTATUS Error = RegDeleteTreeA(HKEY_CURRENT_USER, Path.c_str());
    if (Error != ERROR_SUCCESS && Error != ERROR_FILE_NOT_FOUND)
        RaiseWriteError(Section, "");
}

void TRegIniFile::ReadSection(const std::string& Section, TStrings& Strings) const
{
    TUserKey Key;
    Key.Open(PathOf(Section));
    Fill(Strings, NamesOf(Key.Handle(), RegEnumValueA));
}

void TRegIniFile::ReadSectionValues(const std::string& Section, TStrings& Strings) const
{
    TUserKey Key;
    Key.Open(PathOf(Section));
    std::vector<std::string> Lines = NamesOf(Key.Handle(), RegEnumValueA);
    for (std::string& Line : Lines)
        Line += "=" + ReadString(Section, Line, "");
    Fill(Strings, Lines);
}

void TRegIniFile::ReadSections(TStrings& Strings) const
{
    TUserKey Key;
    Key.Open(PathOf(""));
    Fill(Strings, NamesOf(Key.Handle(), RegEnumKeyExA));
}

bool TRegIniFile::SectionExists(const std::string& Section) const
{
    return TUserKey().Open(PathOf(Section));
}

bool TRegIniFile::ValueExists(const std::string& Section, const std::string& Ident) const
{
    TUserKey Key;
    std::string Data;
    DWORD Kind = REG_NONE;
    return !HasZero(Ident) && Key.Open(PathOf(Section)) && ReadData(Key.Handle(), Ident, Data, Kind);
}
