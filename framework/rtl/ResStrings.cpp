#include "framework/rtl/ResStrings.h"

#include <atomic>

#include "framework/rtl/Modules.h"
#include "platform/winapi.h"

namespace {

std::string LoadPlain(const TResStringRec* Rec)
{
    if (!Rec)
        return {};
    if (Rec->Identifier > MaxResourceIdentifier)
        return reinterpret_cast<const char*>(Rec->Identifier);
    char Buffer[ResStringBufferBytes];
    const int Length =
        LoadModuleString(*Rec->Module, static_cast<UINT>(Rec->Identifier), Buffer, ResStringBufferBytes);
    return Length > 0 ? std::string(Buffer, static_cast<size_t>(Length)) : std::string();
}

constinit std::atomic<TLoadResString> Entry{nullptr};

} // namespace

TResStringRec::operator std::string() const
{
    return LoadResString(this);
}

std::string LoadResString(const TResStringRec* Rec)
{
    const TLoadResString Loader = Entry.load(std::memory_order_acquire);
    return Loader ? Loader(Rec) : LoadPlain(Rec);
}

TLoadResString RedirectLoadResString(TLoadResString Loader)
{
    return Entry.exchange(Loader, std::memory_order_acq_rel);
}
