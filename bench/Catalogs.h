// Message catalogs of other libraries, for benchmarks beside ours: the .mo file that
// they read, with the hash table that msgfmt gives it.
// Format: https://www.gnu.org/software/gettext/manual/html_node/MO-Files.html
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <unistd.h>

// A folder of its own, gone with the object.
class TCatalogFolder {
public:
    TCatalogFolder()
        : FPath(std::filesystem::temp_directory_path() / ("orbilex_bench_" + std::to_string(getpid())))
    {
        std::filesystem::create_directories(FPath / "de" / "LC_MESSAGES");
    }
    ~TCatalogFolder() { std::filesystem::remove_all(FPath); }
    TCatalogFolder(const TCatalogFolder&) = delete;
    TCatalogFolder& operator=(const TCatalogFolder&) = delete;

    std::string Path() const { return FPath.string(); }

    // Writes the German catalog of Domain.
    void Add(const std::string& Domain, std::map<std::string, std::string> Texts) const
    {
        Texts[""] = "Content-Type: text/plain; charset=UTF-8\n";
        std::ofstream File(FPath / "de" / "LC_MESSAGES" / (Domain + ".mo"), std::ios::binary);
        File << Composed(Texts);
    }

private:
    using TNumbers = std::vector<std::uint32_t>;

    static std::string Composed(const std::map<std::string, std::string>& Texts)
    {
        const auto Count = static_cast<std::uint32_t>(Texts.size());
        const TNumbers Cells = HashCells(Texts);
        const auto CellCount = static_cast<std::uint32_t>(Cells.size());
        const std::uint32_t FirstRow = 28;
        const std::uint32_t FirstCell = FirstRow + Count * 16;
        TNumbers Numbers{0x950412DE, 0, Count, FirstRow, FirstRow + Count * 8, CellCount, FirstCell};
        std::uint32_t Place = FirstCell + CellCount * 4;
        std::string Bytes;
        const auto AddText = [&](const std::string& Text) {
            Numbers.push_back(static_cast<std::uint32_t>(Text.size()));
            Numbers.push_back(Place);
            Place += static_cast<std::uint32_t>(Text.size()) + 1;
            Bytes.append(Text.c_str(), Text.size() + 1);
        };
        for (const auto& Each : Texts)
            AddText(Each.first);
        for (const auto& Each : Texts)
            AddText(Each.second);
        Numbers.insert(Numbers.end(), Cells.begin(), Cells.end());
        return std::string(reinterpret_cast<const char*>(Numbers.data()), Numbers.size() * 4) + Bytes;
    }

    static TNumbers HashCells(const std::map<std::string, std::string>& Texts)
    {
        TNumbers Cells(PrimeFrom(static_cast<std::uint32_t>(Texts.size()) * 4 / 3 | 3), 0);
        const auto Size = static_cast<std::uint32_t>(Cells.size());
        std::uint32_t Number = 0;
        for (const auto& Each : Texts) {
            const std::uint32_t Hash = HashOf(Each.first);
            std::uint32_t Cell = Hash % Size;
            while (Cells[Cell] != 0)
                Cell = static_cast<std::uint32_t>((Cell + 1ull + Hash % (Size - 2)) % Size);
            Cells[Cell] = ++Number;
        }
        return Cells;
    }

    static std::uint32_t HashOf(std::string_view Text)
    {
        std::uint32_t Hash = 0;
        for (const char Each : Text) {
            Hash = (Hash << 4) + static_cast<unsigned char>(Each);
            if (const std::uint32_t High = Hash & 0xF0000000)
                Hash ^= High | High >> 24;
        }
        return Hash;
    }

    static std::uint32_t PrimeFrom(std::uint32_t Number)
    {
        const auto IsPrime = [](std::uint32_t Odd) {
            for (std::uint32_t Each = 3; Each * Each <= Odd; Each += 2)
                if (Odd % Each == 0)
                    return false;
            return true;
        };
        for (Number |= 1; !IsPrime(Number); Number += 2) {
        }
        return Number;
    }

    const std::filesystem::path FPath;
};
