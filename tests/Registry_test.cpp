#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "RegistryScope.h"
#include "platform/winapi.h"

namespace {

LPBYTE Bytes(std::string& Text)
{
    return reinterpret_cast<LPBYTE>(Text.data());
}

class Registry : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_EQ(RegCreateKeyExA(HKEY_CURRENT_USER, Scope.Key, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &Key,
                                  nullptr),
                  0);
    }
    void TearDown() override { RegCloseKey(Key); }

    LSTATUS Write(const char* Name, DWORD Kind, const std::string& Data)
    {
        return RegSetValueExA(Key, Name, 0, Kind, reinterpret_cast<const BYTE*>(Data.c_str()),
                              static_cast<DWORD>(Data.size()));
    }
    std::string Read(const char* Name, DWORD* Kind = nullptr)
    {
        DWORD Size = 0;
        if (RegQueryValueExA(Key, Name, nullptr, Kind, nullptr, &Size) != 0)
            return "(none)";
        std::string Data(Size, 0);
        RegQueryValueExA(Key, Name, nullptr, nullptr, Bytes(Data), &Size);
        return Data;
    }

    const TRegistryScope Scope;
    HKEY Key = nullptr;
};

// Names with the file's own signs must not become other keys or values.
TEST_F(Registry, ValuesComeBackAsTheyWere)
{
    const struct {
        const char* Name;
        DWORD Kind;
        std::string Data;
    } Cases[] = {
        {"", REG_SZ, std::string("default\0", 8)},
        {"plain", REG_SZ, std::string("text\0", 5)},
        {"a=b[c]%41\\@", REG_SZ, std::string("signs\0", 6)},
        {"\xC3\xA4\xE4\xBD\xA0", REG_SZ, std::string("\xC3\xB6\0", 3)},
        {"bytes", REG_BINARY, std::string("\0\n\xFF[x]=", 7)},
        {"number", REG_DWORD, std::string("\x2A\0\0\0", 4)},
        {"empty", REG_BINARY, ""},
    };
    for (const auto& Case : Cases)
        EXPECT_EQ(Write(Case.Name, Case.Kind, Case.Data), 0) << Case.Name;
    for (const auto& Case : Cases) {
        DWORD Kind = 99;
        EXPECT_EQ(Read(Case.Name, &Kind), Case.Data) << Case.Name;
        EXPECT_EQ(Kind, Case.Kind) << Case.Name;
    }
    EXPECT_EQ(Read("PLAIN"), std::string("text\0", 5)) << "without case";
    EXPECT_EQ(RegDeleteValueA(Key, "plain"), 0);
    EXPECT_EQ(RegDeleteValueA(Key, "plain"), static_cast<LSTATUS>(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(Read("plain"), "(none)");
}

TEST_F(Registry, SmallBuffersAreToldTheSize)
{
    Write("value", REG_SZ, std::string("12345\0", 6));
    std::string Data(3, 'x');
    DWORD Size = 3;
    EXPECT_EQ(RegQueryValueExA(Key, "value", nullptr, nullptr, Bytes(Data), &Size),
              static_cast<LSTATUS>(ERROR_MORE_DATA));
    EXPECT_EQ(Size, 6u);
    char Name[8];
    DWORD NameSize = 5;
    EXPECT_EQ(RegEnumValueA(Key, 0, Name, &NameSize, nullptr, nullptr, nullptr, nullptr),
              static_cast<LSTATUS>(ERROR_MORE_DATA));
    NameSize = 6;
    EXPECT_EQ(RegEnumValueA(Key, 0, Name, &NameSize, nullptr, nullptr, nullptr, nullptr), 0);
    EXPECT_EQ(NameSize, 5u);
    EXPECT_EQ(RegEnumValueA(Key, 1, Name, &NameSize, nullptr, nullptr, nullptr, nullptr),
              static_cast<LSTATUS>(ERROR_NO_MORE_ITEMS));
}

TEST_F(Registry, KeysAreATree)
{
    HKEY Sub;
    DWORD How = 0;
    EXPECT_EQ(RegCreateKeyExA(Key, "b\\c", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &Sub, &How), 0);
    EXPECT_EQ(How, static_cast<DWORD>(REG_CREATED_NEW_KEY));
    RegCloseKey(Sub);
    EXPECT_EQ(RegCreateKeyExA(Key, "A", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &Sub, &How), 0);
    RegCloseKey(Sub);
    EXPECT_EQ(RegCreateKeyExA(Key, "B", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &Sub, &How), 0);
    EXPECT_EQ(How, static_cast<DWORD>(REG_OPENED_EXISTING_KEY));
    RegCloseKey(Sub);
    char Name[10];
    DWORD Size = sizeof(Name);
    EXPECT_EQ(RegEnumKeyExA(Key, 1, Name, &Size, nullptr, nullptr, nullptr, nullptr), 0);
    EXPECT_STREQ(Name, "b");
    DWORD Keys = 0, Longest = 0, Values = 9;
    EXPECT_EQ(RegQueryInfoKeyA(Key, nullptr, nullptr, nullptr, &Keys, &Longest, nullptr, &Values, nullptr,
                               nullptr, nullptr, nullptr),
              0);
    EXPECT_EQ(Keys, 2u);
    EXPECT_EQ(Longest, 1u);
    EXPECT_EQ(Values, 0u);
    EXPECT_EQ(RegDeleteKeyA(Key, "b"), static_cast<LSTATUS>(ERROR_ACCESS_DENIED)) << "something is inside";
    EXPECT_EQ(RegDeleteKeyA(Key, "b\\c"), 0);
    EXPECT_EQ(RegDeleteKeyA(Key, "b"), 0);
    EXPECT_EQ(RegOpenKeyExA(Key, "b", 0, KEY_READ, &Sub), static_cast<LSTATUS>(ERROR_FILE_NOT_FOUND));
}

TEST_F(Registry, NamesHaveLimits)
{
    const std::string Wide = "\xE6\x97\xA5"; // one unit, three bytes
    std::string LongestName, LongKey;
    for (int Index = 0; Index < 16383; ++Index)
        LongestName += Wide;
    for (int Index = 0; Index < 250; ++Index)
        LongKey += Wide;
    EXPECT_EQ(Write(LongestName.c_str(), REG_SZ, "x"), 0);
    EXPECT_EQ(Write((LongestName + "x").c_str(), REG_SZ, "x"), static_cast<LSTATUS>(ERROR_INVALID_PARAMETER));
    HKEY Sub = nullptr;
    EXPECT_EQ(RegCreateKeyA(Key, LongKey.c_str(), &Sub), 0);
    RegCloseKey(Sub);
    EXPECT_NE(RegCreateKeyA(Key, ("a\\" + LongKey + LongKey).c_str(), &Sub), 0);
}

TEST_F(Registry, WritersAtTheSameTimeLoseNothing)
{
    constexpr int Writers = 4, Each = 10;
    std::vector<std::thread> Threads;
    for (int Writer = 0; Writer < Writers; ++Writer)
        Threads.emplace_back([&, Writer] {
            for (int Index = 0; Index < Each; ++Index)
                Write((std::to_string(Writer) + "." + std::to_string(Index)).c_str(), REG_SZ,
                      std::string("x\0", 2));
        });
    for (auto& Thread : Threads)
        Thread.join();
    DWORD Values = 0;
    RegQueryInfoKeyA(Key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &Values, nullptr, nullptr,
                     nullptr, nullptr);
    EXPECT_EQ(Values, static_cast<DWORD>(Writers * Each));
}

} // namespace
