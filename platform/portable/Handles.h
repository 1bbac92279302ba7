// Numbers that stand for objects of one kind. A number whose object is gone is
// recognised as such: it carries a generation, and slots are used again only
// after many others were.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

enum class THandleKind { Window = 1, Menu, Hook, Accelerators, Icon, Key, Positions };

// Layout of a handle: generation (11 bits), index (16 bits), kind (3 bits) and
// a zero bit; it fits into 31 bits, as programs expect that store it in an int.
// Not guarded: the caller holds the lock of what it keeps here.
template<typename TObject, THandleKind Kind>
class THandleTable {
public:
    // The handle of the new object; 0 when there are 65,000 of them already.
    std::uintptr_t Add(std::unique_ptr<TObject> Object)
    {
        std::size_t Index = FSlots.size();
        if (FFree.size() > MinimumFree || (Index >= MaximumSlots && !FFree.empty())) {
            Index = FFree.front();
            FFree.pop_front();
        } else if (Index >= MaximumSlots) {
            return 0;
        } else {
            FSlots.emplace_back();
        }
        FSlots[Index].Object = std::move(Object);
        return Number(Index);
    }

    TObject* Find(const void* Handle) const
    {
        const auto Value = reinterpret_cast<std::uintptr_t>(Handle);
        const std::size_t Index = (Value >> 4) & 0xffff;
        if (Index >= FSlots.size() || !FSlots[Index].Object || Number(Index) != Value)
            return nullptr;
        return FSlots[Index].Object.get();
    }

    // Ends the handle and gives the object back; null when there is none.
    std::unique_ptr<TObject> Take(const void* Handle)
    {
        if (!Find(Handle))
            return nullptr;
        const std::size_t Index = (reinterpret_cast<std::uintptr_t>(Handle) >> 4) & 0xffff;
        TSlot& Slot = FSlots[Index];
        Slot.Generation = Slot.Generation % 2046 + 1;
        FFree.push_back(Index);
        return std::move(Slot.Object);
    }

    template<typename TVisit>
    void ForEach(TVisit Visit) const
    {
        for (const TSlot& Slot : FSlots)
            if (Slot.Object)
                Visit(*Slot.Object);
    }

private:
    static constexpr std::size_t MinimumFree = 1024;
    static constexpr std::size_t MaximumSlots = 65000;

    struct TSlot {
        std::unique_ptr<TObject> Object;
        std::uintptr_t Generation = 1;
    };

    std::uintptr_t Number(std::size_t Index) const
    {
        return FSlots[Index].Generation << 20 | Index << 4 | static_cast<std::uintptr_t>(Kind) << 1;
    }

    std::vector<TSlot> FSlots;
    std::deque<std::size_t> FFree;
};
