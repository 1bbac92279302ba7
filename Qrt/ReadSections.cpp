#include "Qrt/ReadSections.h"

#include <atomic>
#include <cstdint>
#include <thread>

#include "platform/ThreadEnd.h"

namespace {

// One a thread. Count is odd while the thread is in a section. Never destroyed:
// the next thread takes a slot that was given back.
struct alignas(64) TSlot {
    std::atomic<std::uint64_t> Count{0};
    std::atomic<bool> Taken{true};
    TSlot* Next = nullptr;
};

constinit std::atomic<TSlot*> Slots{nullptr};

constinit thread_local TSlot* Mine = nullptr;
constinit thread_local unsigned Depth = 0;

// At the end of the thread.
void GiveBack(void* Slot)
{
    Mine = nullptr;
    static_cast<TSlot*>(Slot)->Taken.store(false, std::memory_order_release);
}

TSlot* TakeSlot()
{
    for (TSlot* Each = Slots.load(); Each; Each = Each->Next)
        if (!Each->Taken.load() && !Each->Taken.exchange(true))
            return Each;
    auto* const Result = new TSlot;
    Result->Next = Slots.load();
    while (!Slots.compare_exchange_weak(Result->Next, Result)) {
    }
    return Result;
}

void Join()
{
    Mine = TakeSlot();
    AtThreadEnd(GiveBack, Mine);
}

} // namespace

TReadSection::TReadSection()
{
    if (Depth++ > 0)
        return;
    if (!Mine)
        Join();
    Mine->Count.exchange(Mine->Count.load(std::memory_order_relaxed) + 1);
}

TReadSection::~TReadSection()
{
    if (--Depth > 0)
        return;
    Mine->Count.store(Mine->Count.load(std::memory_order_relaxed) + 1, std::memory_order_release);
}

void AwaitReaders()
{
    for (const TSlot* Each = Slots.load(); Each; Each = Each->Next) {
        const std::uint64_t Count = Each->Count.load();
        while (Count % 2 != 0 && Each->Count.load() == Count)
            std::this_thread::yield();
    }
}
