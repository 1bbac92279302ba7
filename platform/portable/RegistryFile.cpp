#include "platform/portable/RegistryFile.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <mutex>

#include <fcntl.h>
#include <strings.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

bool TNameLess::operator()(const std::string& Left, const std::string& Right) const
{
    return strcasecmp(Left.c_str(), Right.c_str()) < 0;
}

namespace {

constexpr char Digits[] = "0123456789ABCDEF";

std::vector<std::string> SplitPath(const std::string& Path)
{
    std::vector<std::string> Parts;
    std::size_t Start = 0;
    while (Start <= Path.size()) {
        const std::size_t End = std::min(Path.find('\\', Start), Path.size());
        if (End > Start)
            Parts.push_back(Path.substr(Start, End - Start));
        Start = End + 1;
    }
    return Parts;
}

void AppendByte(std::string& Text, char Byte)
{
    Text += Digits[static_cast<BYTE>(Byte) >> 4];
    Text += Digits[static_cast<BYTE>(Byte) & 15];
}

std::string EscapeName(const std::string& Name)
{
    std::string Result;
    for (const char Each : Name) {
        if (std::string_view("\\=[]%@").find(Each) == std::string_view::npos &&
            static_cast<BYTE>(Each) >= 32) {
            Result += Each;
            continue;
        }
        Result += '%';
        AppendByte(Result, Each);
    }
    return Result;
}

int HexDigit(char Digit)
{
    const char* const Found = std::find(Digits, Digits + 16, Digit);
    return Found == Digits + 16 ? -1 : static_cast<int>(Found - Digits);
}

bool ReadByte(std::string_view Text, std::size_t At, char& Byte)
{
    if (At + 2 > Text.size() || HexDigit(Text[At]) < 0 || HexDigit(Text[At + 1]) < 0)
        return false;
    Byte = static_cast<char>(HexDigit(Text[At]) * 16 + HexDigit(Text[At + 1]));
    return true;
}

std::string UnescapeName(std::string_view Text)
{
    std::string Result;
    for (std::size_t Index = 0; Index < Text.size(); ++Index) {
        char Byte = Text[Index];
        if (Byte == '%' && ReadByte(Text, Index + 1, Byte))
            Index += 2;
        Result += Byte;
    }
    return Result;
}

bool ReadValue(std::string_view Text, TRegistryValue& Value)
{
    const std::size_t Colon = Text.find(':');
    if (Colon == Text.npos || (Text.size() - Colon - 1) % 2 != 0)
        return false;
    const auto [Stop, Error] = std::from_chars(Text.data(), Text.data() + Colon, Value.Kind);
    if (Error != std::errc() || Stop != Text.data() + Colon)
        return false;
    for (std::size_t At = Colon + 1; At < Text.size(); At += 2) {
        char Byte;
        if (!ReadByte(Text, At, Byte))
            return false;
        Value.Data += Byte;
    }
    return true;
}

void WriteKey(const TRegistryKey& Key, const std::string& Path, std::string& Text)
{
    if (!Path.empty())
        Text += "[" + Path + "]\n";
    for (const auto& [Name, Value] : Key.Values) {
        Text += Name.empty() ? "@" : EscapeName(Name);
        Text += "=" + std::to_string(Value.Kind) + ":";
        for (const char Byte : Value.Data)
            AppendByte(Text, Byte);
        Text += '\n';
    }
    for (const auto& [Name, Sub] : Key.Keys)
        WriteKey(Sub, Path.empty() ? EscapeName(Name) : Path + "\\" + EscapeName(Name), Text);
}

std::filesystem::path Folder()
{
    if (const char* const Own = std::getenv("ORBILEX_REGISTRY"); Own && *Own)
        return Own;
    if (const char* const Config = std::getenv("XDG_CONFIG_HOME"); Config && *Config)
        return std::filesystem::path(Config) / "orbilex";
    const char* const Home = std::getenv("HOME");
    return std::filesystem::path(Home ? Home : ".") / ".config" / "orbilex";
}

// Holds the lock of one root key's file, against other programs by flock and
// against other threads by a mutex.
class TFileLock {
public:
    TFileLock(const std::filesystem::path& File, int Kind)
        : FThreads(Mutex()), FDescriptor(open(File.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600))
    {
        if (FDescriptor >= 0)
            flock(FDescriptor, Kind);
    }
    ~TFileLock()
    {
        if (FDescriptor >= 0)
            close(FDescriptor);
    }
    TFileLock(const TFileLock&) = delete;
    TFileLock& operator=(const TFileLock&) = delete;
    bool Held() const { return FDescriptor >= 0; }

private:
    static std::mutex& Mutex()
    {
        static auto& Only = *new std::mutex;
        return Only;
    }

    std::lock_guard<std::mutex> FThreads;
    int FDescriptor;
};

TRegistryKey ReadFile(const std::filesystem::path& File)
{
    std::ifstream Stream(File, std::ios::binary);
    const std::string Text{std::istreambuf_iterator<char>(Stream), {}};
    return ReadRegistry(Text);
}

bool WriteAll(int Descriptor, std::string_view Text)
{
    while (!Text.empty()) {
        const ssize_t Written = write(Descriptor, Text.data(), Text.size());
        if (Written <= 0)
            return false;
        Text.remove_prefix(static_cast<std::size_t>(Written));
    }
    return fsync(Descriptor) == 0;
}

bool ReplaceFile(const std::filesystem::path& File, const std::string& Text)
{
    const std::string Temporary = File.string() + ".new";
    const int Descriptor = open(Temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (Descriptor < 0)
        return false;
    const bool Written = WriteAll(Descriptor, Text);
    const bool Closed = close(Descriptor) == 0;
    if (Written && Closed && rename(Temporary.c_str(), File.c_str()) == 0)
        return true;
    unlink(Temporary.c_str());
    return false;
}

} // namespace

TRegistryKey* TRegistryKey::Find(const std::string& Path)
{
    TRegistryKey* Key = this;
    for (const std::string& Name : SplitPath(Path)) {
        const auto Found = Key->Keys.find(Name);
        if (Found == Key->Keys.end())
            return nullptr;
        Key = &Found->second;
    }
    return Key;
}

TRegistryKey& TRegistryKey::Make(const std::string& Path, bool& Created)
{
    TRegistryKey* Key = this;
    for (const std::string& Name : SplitPath(Path)) {
        const auto [Place, New] = Key->Keys.try_emplace(Name);
        Created |= New;
        Key = &Place->second;
    }
    return *Key;
}

std::string WriteRegistry(const TRegistryKey& Root)
{
    std::string Text;
    WriteKey(Root, "", Text);
    return Text;
}

TRegistryKey ReadRegistry(const std::string& Text)
{
    TRegistryKey Root;
    TRegistryKey* Key = &Root;
    for (std::size_t Start = 0; Start < Text.size();) {
        const std::size_t End = std::min(Text.find('\n', Start), Text.size());
        const std::string_view Line(Text.data() + Start, End - Start);
        Start = End + 1;
        if (Line.size() > 2 && Line.front() == '[' && Line.back() == ']') {
            Key = &Root;
            for (const std::string& Name : SplitPath(std::string(Line.substr(1, Line.size() - 2))))
                Key = &Key->Keys[UnescapeName(Name)];
            continue;
        }
        const std::size_t Equal = Line.find('=');
        TRegistryValue Value;
        if (Equal == Line.npos || !ReadValue(Line.substr(Equal + 1), Value))
            continue;
        const std::string_view Name = Line.substr(0, Equal);
        Key->Values[Name == "@" ? std::string() : UnescapeName(Name)] = std::move(Value);
    }
    return Root;
}

TRegistryKey LoadRegistry(const std::string& RootName)
{
    const std::filesystem::path File = Folder() / (RootName + ".txt");
    std::error_code Error;
    if (!std::filesystem::exists(File, Error))
        return {};
    return ReadFile(File); // it is replaced as a whole, so no lock is needed
}

bool ChangeRegistry(const std::string& RootName, const std::function<bool(TRegistryKey&)>& Change)
{
    std::error_code Error;
    std::filesystem::create_directories(Folder(), Error);
    const std::filesystem::path File = Folder() / (RootName + ".txt");
    const TFileLock Lock(File.string() + ".lock", LOCK_EX);
    if (!Lock.Held())
        return false;
    TRegistryKey Root = ReadFile(File);
    return !Change(Root) || ReplaceFile(File, WriteRegistry(Root));
}
