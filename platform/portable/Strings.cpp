// String tables: the program's own, and those of libraries loaded by LoadLibraryExA.
#include "platform/Strings.h"

#include <atomic>

#include "platform/OwnModule.h"
#include "platform/portable/Libraries.h"
#include "platform/portable/Window.h"

constinit HINSTANCE HInstance = OwnModule;

namespace {

const char* FindText(const TModuleStrings& Strings, UINT Identifier)
{
    for (auto Each = Strings.Begin; Each != Strings.End; ++Each) {
        const TStringRow* const End = (*Each)->Rows + (*Each)->Count;
        const TStringRow* const Row =
            std::lower_bound((*Each)->Rows, End, Identifier,
                             [](const TStringRow& A, UINT Wanted) { return A.Identifier < Wanted; });
        if (Row != End && Row->Identifier == Identifier)
            return Row->Text;
    }
    return nullptr;
}

int CopyFrom(const TModuleStrings& Strings, UINT Identifier, LPSTR Buffer, int Capacity)
{
    const char* const Text = FindText(Strings, Identifier & 0xFFFF);
    if (Text)
        return CopyText(Text, Buffer, Capacity);
    if (Buffer && Capacity > 0)
        *Buffer = 0;
    SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
    return 0;
}

int LoadFromTable(HINSTANCE Instance, UINT Identifier, LPSTR Buffer, int Capacity)
{
    if (!Instance || Instance == HInstance)
        return CopyFrom(OwnModuleStrings(), Identifier, Buffer, Capacity);
    // Held while the text is copied: FreeLibrary takes the library's memory away.
    const std::shared_lock Guard(Libraries().Lock);
    const auto Place = Libraries().Loaded.find(Instance);
    return CopyFrom(Place == Libraries().Loaded.end() ? TModuleStrings{} : Place->second.Strings, Identifier,
                    Buffer, Capacity);
}

constinit std::atomic<TLoadStringA> Slot{LoadFromTable};

} // namespace

TLoadStringA LoadStringSlot()
{
    return Slot.load(std::memory_order_acquire);
}

bool SetLoadStringSlot(TLoadStringA Loader)
{
    Slot.store(Loader, std::memory_order_release);
    return true;
}

int LoadStringA(HINSTANCE Instance, UINT Identifier, LPSTR Buffer, int Capacity)
{
    return LoadStringSlot()(Instance, Identifier, Buffer, Capacity);
}
