// The registry. Keys live in one text file per root key, in the folder that the
// environment variable ORBILEX_REGISTRY names, else in "orbilex" under
// $XDG_CONFIG_HOME or ~/.config. A change is on disk when the call returns; two
// programs may change the same file at the same time. Functions return
// ERROR_SUCCESS or the number of the error. Names are compared without case.
#pragma once

#include "platform/portable/wintypes.h"

#define HKEY_CLASSES_ROOT ((HKEY)(ULONG_PTR)0x80000000u)
#define HKEY_CURRENT_USER ((HKEY)(ULONG_PTR)0x80000001u)
#define HKEY_LOCAL_MACHINE ((HKEY)(ULONG_PTR)0x80000002u)
#define HKEY_USERS ((HKEY)(ULONG_PTR)0x80000003u)
#define HKEY_CURRENT_CONFIG ((HKEY)(ULONG_PTR)0x80000005u)

#define REG_NONE 0u
#define REG_SZ 1u
#define REG_EXPAND_SZ 2u
#define REG_BINARY 3u
#define REG_DWORD 4u
#define REG_DWORD_LITTLE_ENDIAN 4u
#define REG_DWORD_BIG_ENDIAN 5u
#define REG_LINK 6u
#define REG_MULTI_SZ 7u
#define REG_QWORD 11u

#define REG_OPTION_NON_VOLATILE 0u
#define REG_OPTION_VOLATILE 1u
#define REG_CREATED_NEW_KEY 1u
#define REG_OPENED_EXISTING_KEY 2u

#define READ_CONTROL 0x00020000
#define KEY_QUERY_VALUE 0x0001
#define KEY_SET_VALUE 0x0002
#define KEY_CREATE_SUB_KEY 0x0004
#define KEY_ENUMERATE_SUB_KEYS 0x0008
#define KEY_NOTIFY 0x0010
#define KEY_CREATE_LINK 0x0020
#define KEY_WOW64_64KEY 0x0100
#define KEY_WOW64_32KEY 0x0200
#define KEY_READ 0x20019
#define KEY_WRITE 0x20006
#define KEY_EXECUTE 0x20019
#define KEY_ALL_ACCESS 0xF003F

struct SECURITY_ATTRIBUTES {
    DWORD nLength;
    LPVOID lpSecurityDescriptor;
    BOOL bInheritHandle;
};
using LPSECURITY_ATTRIBUTES = SECURITY_ATTRIBUTES*;

LSTATUS RegCreateKeyExA(HKEY Key, LPCSTR Path, DWORD Reserved, LPSTR Class, DWORD Options, REGSAM Access,
                        const LPSECURITY_ATTRIBUTES Security, PHKEY Result, LPDWORD Disposition);
LSTATUS RegCreateKeyA(HKEY Key, LPCSTR Path, PHKEY Result);
LSTATUS RegOpenKeyExA(HKEY Key, LPCSTR Path, DWORD Options, REGSAM Access, PHKEY Result);
LSTATUS RegOpenKeyA(HKEY Key, LPCSTR Path, PHKEY Result);
LSTATUS RegCloseKey(HKEY Key);
LSTATUS RegFlushKey(HKEY Key);
LSTATUS RegQueryValueExA(HKEY Key, LPCSTR Name, LPDWORD Reserved, LPDWORD Kind, LPBYTE Data, LPDWORD Size);
LSTATUS RegSetValueExA(HKEY Key, LPCSTR Name, DWORD Reserved, DWORD Kind, const BYTE* Data, DWORD Size);
LSTATUS RegDeleteValueA(HKEY Key, LPCSTR Name);
LSTATUS RegDeleteKeyA(HKEY Key, LPCSTR Path);
LSTATUS RegDeleteTreeA(HKEY Key, LPCSTR Path);
LSTATUS RegEnumKeyExA(HKEY Key, DWORD Index, LPSTR Name, LPDWORD Size, LPDWORD Reserved, LPSTR Class,
                      LPDWORD ClassSize, PFILETIME Written);
LSTATUS RegEnumValueA(HKEY Key, DWORD Index, LPSTR Name, LPDWORD Size, LPDWORD Reserved, LPDWORD Kind,
                      LPBYTE Data, LPDWORD DataSize);
LSTATUS RegQueryInfoKeyA(HKEY Key, LPSTR Class, LPDWORD ClassSize, LPDWORD Reserved, LPDWORD SubKeys,
                         LPDWORD LongestSubKey, LPDWORD LongestClass, LPDWORD Values, LPDWORD LongestName,
                         LPDWORD LongestData, LPDWORD Security, PFILETIME Written);
