#include "Qrt/LoadHook.h"

#include <utility>

#include "Qrt/Qrt.h"
#include "Qrt/ReadSections.h"
#include "Qrt/ResourceIndex.h"
#include "framework/design/ToolServices.h"
#include "framework/rtl/Modules.h"

constinit std::atomic<TResComponentNode*> ResComponentList{nullptr};
constinit std::atomic<bool> GlobalTranslation{true};
constinit std::atomic<TLoadStringA> OrgLoadString{nullptr};
constinit thread_local bool SettingResStr = false;

namespace {

// While it lives, direct calls of LoadStringA on this thread are not translated:
// the text is about to be translated by CustomLoadResString. Not GlobalTranslation
// itself: two threads that save and restore it would leave it off for good.
constinit thread_local bool LoadingPlain = false;

class TFlagGuard {
public:
    explicit TFlagGuard(bool& Flag) : FFlag(Flag), FBefore(std::exchange(Flag, true)) {}
    ~TFlagGuard() { FFlag = FBefore; }
    TFlagGuard(const TFlagGuard&) = delete;
    TFlagGuard& operator=(const TFlagGuard&) = delete;

private:
    bool& FFlag;
    const bool FBefore;
};

// Replaces the text in Buffer when a translator has it. Returns its length.
int TranslateLoaded(char* Buffer, int Capacity, int Length)
{
    if (!GlobalTranslation.load(std::memory_order_relaxed) || !ResComponentList.load())
        return Length;
    const TReadSection Section;
    const std::string_view Text(Buffer);
    const std::uint64_t Hash = TResourceIndex::HashOf(Text);
    for (const TResComponentNode* Each = ResComponentList.load(); Each; Each = Each->Next.load())
        if (const int Translated = Each->Translator->Answer(Text, Hash, Buffer, Capacity); Translated > 0)
            return Translated;
    return Length;
}

// OrgLoadString, but kept when the slot is restored: calls may be under way then,
// and who redirected the slot later goes on calling the hook.
constinit std::atomic<TLoadStringA> Beneath{nullptr};

// Takes the place of LoadStringA.
int WINAPI LoadStringHook(HINSTANCE Instance, UINT Identifier, LPSTR Buffer, int Capacity)
{
    const int Length = Beneath.load()(Instance, Identifier & 0xFFFF, Buffer, Capacity);
    if (Length <= 0 || LoadingPlain)
        return Length;
    return TranslateLoaded(Buffer, Capacity, Length);
}

bool Started = false;
TLoadResString LoaderBefore = nullptr;

} // namespace

void StartQrt()
{
    if (Started || ToolServices)
        return;
    LoaderBefore = RedirectLoadResString(CustomLoadResString);
    Started = true;
}

void StopQrt()
{
    if (std::exchange(Started, false))
        RedirectLoadResString(LoaderBefore);
}

void HookLoadString(bool Restore)
{
    const TLoadStringA Original = OrgLoadString.load();
    if (Restore == !Original)
        return;
    if (Restore) {
        if (SetLoadStringSlot(Original))
            OrgLoadString.store(nullptr);
        return;
    }
    Beneath.store(LoadStringSlot());
    OrgLoadString.store(Beneath.load());
    if (!SetLoadStringSlot(LoadStringHook))
        OrgLoadString.store(nullptr);
}

std::string CustomLoadResString(const TResStringRec* Rec)
{
    const TFlagGuard Setting(SettingResStr);
    if (!Rec)
        return {};
    if (Rec->Identifier > MaxResourceIdentifier)
        return reinterpret_cast<const char*>(Rec->Identifier);
    char Buffer[ResStringBufferBytes];
    int Length = 0;
    {
        const TFlagGuard Plain(LoadingPlain);
        Length =
            LoadModuleString(*Rec->Module, static_cast<UINT>(Rec->Identifier), Buffer, ResStringBufferBytes);
    }
    if (Length <= 0)
        return {};
    Length = TranslateLoaded(Buffer, ResStringBufferBytes, Length);
    return std::string(Buffer, static_cast<size_t>(Length));
}

void JoinResComponentList(TResComponentNode& Node)
{
    Node.Next.store(ResComponentList.load());
    ResComponentList.store(&Node);
}

void LeaveResComponentList(TResComponentNode& Node)
{
    std::atomic<TResComponentNode*>* Place = &ResComponentList;
    while (Place->load() && Place->load() != &Node)
        Place = &Place->load()->Next;
    if (Place->load())
        Place->store(Node.Next.load());
    AwaitReaders();
    if (!ResComponentList.load())
        HookLoadString(true);
}
