#include <algorithm>
#include <cstring>

#include "platform/portable/Control.h"
#include "platform/portable/Handles.h"
#include "platform/portable/RegistryFile.h"
#include "platform/portable/Window.h"
#include "platform/portable/winbase.h"
#include "platform/portable/winreg.h"

namespace {

struct TOpenKey {
    std::string Root; // name of the root key's file
    std::string Path;
};

using TKeyTable = THandleTable<TOpenKey, THandleKind::Key>;

TKeyTable& Table()
{
    static auto& Keys = *new TKeyTable;
    return Keys;
}

constexpr struct {
    ULONG_PTR Number;
    const char* Name;
} Roots[] = {{0x80000000u, "HKEY_CLASSES_ROOT"},
             {0x80000001u, "HKEY_CURRENT_USER"},
             {0x80000002u, "HKEY_LOCAL_MACHINE"},
             {0x80000003u, "HKEY_USERS"},
             {0x80000005u, "HKEY_CURRENT_CONFIG"}};

bool Resolve(HKEY Handle, TOpenKey& Key)
{
    for (const auto& Root : Roots)
        if (reinterpret_cast<ULONG_PTR>(Handle) == Root.Number) {
            Key = {Root.Name, ""};
            return true;
        }
    TStateLock Lock;
    const TOpenKey* const Open = Table().Find(Handle);
    if (Open)
        Key = *Open;
    return Open != nullptr;
}

std::string Join(const std::string& Path, LPCSTR Below)
{
    if (!Below || !*Below)
        return Path;
    return Path.empty() ? Below : Path + "\\" + Below;
}

// Of names, in UTF-16 units.
constexpr std::size_t LongestKeyName = 255;
constexpr std::size_t LongestValueName = 16383;

bool HasLongName(LPCSTR Path)
{
    const std::string Names = Path ? Path : "";
    for (std::size_t Start = 0; Start < Names.size();) {
        const std::size_t End = std::min(Names.find('\\', Start), Names.size());
        if (Widen(Names.substr(Start, End - Start)).size() > LongestKeyName)
            return true;
        Start = End + 1;
    }
    return false;
}

HKEY Remember(const TOpenKey& Key)
{
    TStateLock Lock;
    return reinterpret_cast<HKEY>(Table().Add(std::make_unique<TOpenKey>(Key)));
}

// Calls Look with the key as it is on disk.
template<typename TLook>
LSTATUS Read(HKEY Handle, TLook Look)
{
    TOpenKey Key;
    if (!Resolve(Handle, Key))
        return ERROR_INVALID_HANDLE;
    TRegistryKey Root = LoadRegistry(Key.Root);
    TRegistryKey* const Found = Root.Find(Key.Path);
    return static_cast<LSTATUS>(Found ? Look(*Found) : ERROR_KEY_DELETED);
}

// The same for a change: Change returns an error number, and what it did is
// kept when that is ERROR_SUCCESS.
template<typename TChange>
LSTATUS Modify(HKEY Handle, TChange Change)
{
    TOpenKey Key;
    if (!Resolve(Handle, Key))
        return ERROR_INVALID_HANDLE;
    DWORD Result = ERROR_SUCCESS;
    const bool Written = ChangeRegistry(Key.Root, [&](TRegistryKey& Root) {
        TRegistryKey* const Found = Root.Find(Key.Path);
        Result = Found ? Change(*Found) : ERROR_KEY_DELETED;
        return Result == ERROR_SUCCESS;
    });
    return static_cast<LSTATUS>(Written ? Result : ERROR_ACCESS_DENIED);
}

// Copies data into a buffer whose size is in Size, and sets Size to the whole.
DWORD GiveData(const std::string& Data, LPBYTE Buffer, LPDWORD Size)
{
    if (!Size)
        return Buffer ? ERROR_INVALID_PARAMETER : ERROR_SUCCESS;
    const DWORD Room = *Size;
    *Size = static_cast<DWORD>(Data.size());
    if (!Buffer)
        return ERROR_SUCCESS;
    if (Room < Data.size())
        return ERROR_MORE_DATA;
    std::copy(Data.begin(), Data.end(), Buffer);
    return ERROR_SUCCESS;
}

// Copies a name with its final zero; Size counts the bytes without it.
DWORD GiveName(const std::string& Name, LPSTR Buffer, LPDWORD Size)
{
    if (*Size <= Name.size())
        return ERROR_MORE_DATA;
    std::memcpy(Buffer, Name.c_str(), Name.size() + 1);
    *Size = static_cast<DWORD>(Name.size());
    return ERROR_SUCCESS;
}

template<typename TMap>
DWORD LongestName(const TMap& Map)
{
    std::size_t Longest = 0;
    for (const auto& Each : Map)
        Longest = std::max(Longest, Each.first.size());
    return static_cast<DWORD>(Longest);
}

void Set(LPDWORD Target, std::size_t Value)
{
    if (Target)
        *Target = static_cast<DWORD>(Value);
}

} // namespace

LSTATUS RegCreateKeyExA(HKEY Handle, LPCSTR Path, DWORD, LPSTR, DWORD, REGSAM, const LPSECURITY_ATTRIBUTES,
                        PHKEY Result, LPDWORD Disposition)
{
    TOpenKey Key;
    if (!Resolve(Handle, Key))
        return ERROR_INVALID_HANDLE;
    if (!Result || HasLongName(Path))
        return ERROR_INVALID_PARAMETER;
    Key.Path = Join(Key.Path, Path);
    bool Created = false;
    const bool Written = ChangeRegistry(Key.Root, [&](TRegistryKey& Root) {
        Root.Make(Key.Path, Created);
        return Created;
    });
    if (!Written)
        return ERROR_ACCESS_DENIED;
    Set(Disposition, Created ? REG_CREATED_NEW_KEY : REG_OPENED_EXISTING_KEY);
    *Result = Remember(Key);
    return ERROR_SUCCESS;
}

LSTATUS RegCreateKeyA(HKEY Key, LPCSTR Path, PHKEY Result)
{
    return RegCreateKeyExA(Key, Path, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, Result, nullptr);
}

LSTATUS RegOpenKeyExA(HKEY Handle, LPCSTR Path, DWORD, REGSAM, PHKEY Result)
{
    TOpenKey Key;
    if (!Resolve(Handle, Key))
        return ERROR_INVALID_HANDLE;
    if (!Result)
        return ERROR_INVALID_PARAMETER;
    *Result = nullptr;
    Key.Path = Join(Key.Path, Path);
    TRegistryKey Root = LoadRegistry(Key.Root);
    if (!Root.Find(Key.Path))
        return ERROR_FILE_NOT_FOUND;
    *Result = Remember(Key);
    return ERROR_SUCCESS;
}

LSTATUS RegOpenKeyA(HKEY Key, LPCSTR Path, PHKEY Result)
{
    return RegOpenKeyExA(Key, Path, 0, KEY_ALL_ACCESS, Result);
}

LSTATUS RegCloseKey(HKEY Handle)
{
    TOpenKey Key;
    if (!Resolve(Handle, Key))
        return ERROR_INVALID_HANDLE;
    TStateLock Lock;
    Table().Take(Handle);
    return ERROR_SUCCESS;
}

LSTATUS RegFlushKey(HKEY Handle)
{
    TOpenKey Key;
    return Resolve(Handle, Key) ? ERROR_SUCCESS : ERROR_INVALID_HANDLE;
}

LSTATUS RegQueryValueExA(HKEY Handle, LPCSTR Name, LPDWORD, LPDWORD Kind, LPBYTE Data, LPDWORD Size)
{
    return Read(Handle, [&](const TRegistryKey& Key) -> DWORD {
        const auto Found = Key.Values.find(Name ? Name : "");
        if (Found == Key.Values.end())
            return ERROR_FILE_NOT_FOUND;
        Set(Kind, Found->second.Kind);
        return GiveData(Found->second.Data, Data, Size);
    });
}

LSTATUS RegSetValueExA(HKEY Handle, LPCSTR Name, DWORD, DWORD Kind, const BYTE* Data, DWORD Size)
{
    std::string Bytes(reinterpret_cast<const char*>(Data), Data ? Size : 0);
    // A text that was handed over without its final zero gets one when the zero
    // stands right behind it.
    const bool IsText = Data && (Kind == REG_SZ || Kind == REG_EXPAND_SZ || Kind == REG_MULTI_SZ);
    if (IsText && !Bytes.empty() && Bytes.back() != 0 && Data[Size] == 0)
        Bytes += '\0';
    if (Name && Widen(Name).size() > LongestValueName)
        return ERROR_INVALID_PARAMETER;
    return Modify(Handle, [&](TRegistryKey& Key) {
        Key.Values[Name ? Name : ""] = {Kind, Bytes};
        return ERROR_SUCCESS;
    });
}

LSTATUS RegDeleteValueA(HKEY Handle, LPCSTR Name)
{
    return Modify(Handle, [&](TRegistryKey& Key) {
        return Key.Values.erase(Name ? Name : "") > 0 ? ERROR_SUCCESS : ERROR_FILE_NOT_FOUND;
    });
}

namespace {

// Removes the key at Path below Key, with what is inside it when All is set.
DWORD RemoveKey(TRegistryKey& Key, const std::string& Path, bool All)
{
    const std::size_t Slash = Path.rfind('\\');
    const std::string Above = Slash == Path.npos ? "" : Path.substr(0, Slash);
    const std::string Name = Slash == Path.npos ? Path : Path.substr(Slash + 1);
    TRegistryKey* const Parent = Key.Find(Above);
    const auto Found = Parent ? Parent->Keys.find(Name) : Key.Keys.end();
    if (!Parent || Found == Parent->Keys.end())
        return ERROR_FILE_NOT_FOUND;
    if (!All && !Found->second.Keys.empty())
        return ERROR_ACCESS_DENIED;
    Parent->Keys.erase(Found);
    return ERROR_SUCCESS;
}

} // namespace

LSTATUS RegDeleteKeyA(HKEY Handle, LPCSTR Path)
{
    if (!Path)
        return ERROR_INVALID_PARAMETER;
    return Modify(Handle, [&](TRegistryKey& Key) { return RemoveKey(Key, Path, false); });
}

LSTATUS RegDeleteTreeA(HKEY Handle, LPCSTR Path)
{
    return Modify(Handle, [&](TRegistryKey& Key) {
        if (Path && *Path)
            return RemoveKey(Key, Path, true);
        Key.Keys.clear();
        Key.Values.clear();
        return ERROR_SUCCESS;
    });
}

LSTATUS RegEnumKeyExA(HKEY Handle, DWORD Index, LPSTR Name, LPDWORD Size, LPDWORD, LPSTR, LPDWORD,
                      PFILETIME Written)
{
    return Read(Handle, [&](const TRegistryKey& Key) -> DWORD {
        if (Index >= Key.Keys.size())
            return ERROR_NO_MORE_ITEMS;
        if (Written)
            *Written = {};
        return GiveName(std::next(Key.Keys.begin(), Index)->first, Name, Size);
    });
}

LSTATUS RegEnumValueA(HKEY Handle, DWORD Index, LPSTR Name, LPDWORD Size, LPDWORD, LPDWORD Kind, LPBYTE Data,
                      LPDWORD DataSize)
{
    return Read(Handle, [&](const TRegistryKey& Key) -> DWORD {
        if (Index >= Key.Values.size())
            return ERROR_NO_MORE_ITEMS;
        const auto& [ValueName, Value] = *std::next(Key.Values.begin(), Index);
        const DWORD Error = GiveName(ValueName, Name, Size);
        Set(Kind, Value.Kind);
        return Error != ERROR_SUCCESS ? Error : GiveData(Value.Data, Data, DataSize);
    });
}

LSTATUS RegQueryInfoKeyA(HKEY Handle, LPSTR, LPDWORD ClassSize, LPDWORD, LPDWORD SubKeys,
                         LPDWORD LongestSubKey, LPDWORD LongestClass, LPDWORD Values,
                         LPDWORD LongestValueName, LPDWORD LongestData, LPDWORD Security, PFILETIME Written)
{
    return Read(Handle, [&](const TRegistryKey& Key) -> DWORD {
        std::size_t Longest = 0;
        for (const auto& Each : Key.Values)
            Longest = std::max(Longest, Each.second.Data.size());
        Set(SubKeys, Key.Keys.size());
        Set(LongestSubKey, LongestName(Key.Keys));
        Set(Values, Key.Values.size());
        Set(LongestValueName, LongestName(Key.Values));
        Set(LongestData, Longest);
        for (LPDWORD Unused : {ClassSize, LongestClass, Security})
            Set(Unused, 0);
        if (Written)
            *Written = {};
        return ERROR_SUCCESS;
    });
}
