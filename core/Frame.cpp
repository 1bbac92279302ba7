#include "core/Frame.h"

#include <algorithm>
#include <utility>

#include "core/TranslatorEditors.h"
#include "framework/design/ToolServices.h"
#include "framework/forms/Application.h"
#include "framework/rtl/Filer.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/Snapshot.h"

namespace {

struct TLiving {
    uint64_t Number;
    TTranslatorFrame* Frame;
};

// All translators there are, in the order of their numbers. Finding peers here
// spares a walk over every component of the application. Never destroyed: a form
// may itself be a global object and leave after all others.
std::vector<TLiving>& Living()
{
    static auto& Frames = *new std::vector<TLiving>;
    return Frames;
}

std::vector<TLiving>::iterator FindLiving(uint64_t Number)
{
    return std::lower_bound(Living().begin(), Living().end(), Number,
                            [](const TLiving& Each, uint64_t Wanted) { return Each.Number < Wanted; });
}

bool IsOnApplicationForm(const TTranslatorFrame& Frame)
{
    const TComponent* const Form = Frame.Owner();
    return Application && Form && Form->Owner() == Application && dynamic_cast<const TForm*>(Form);
}

bool IsInApplication(const TTranslatorFrame& Frame)
{
    const TComponent* const Owner = Frame.Owner();
    return Application && Owner && (Owner == Application || Owner->Owner() == Application);
}

// By the owner's place in the application, then by the place in the owner. What
// the application owns itself comes before that which this one owns.
void SortByPlace(std::vector<TTranslatorFrame*>& Frames)
{
    if (Frames.size() < 2)
        return;
    using TPlaced = std::pair<std::pair<int, int>, TTranslatorFrame*>;
    std::vector<TPlaced> Placed;
    for (TTranslatorFrame* const Each : Frames)
        if (Each->Owner() == Application)
            Placed.push_back({{Each->ComponentIndex(), -1}, Each});
        else
            Placed.push_back({{Each->Owner()->ComponentIndex(), Each->ComponentIndex()}, Each});
    std::sort(Placed.begin(), Placed.end());
    std::transform(Placed.begin(), Placed.end(), Frames.begin(),
                   [](const TPlaced& Each) { return Each.second; });
}

uint64_t NextNumber()
{
    static uint64_t Last = 0;
    return ++Last;
}

} // namespace

const TMetaClass& TTranslatorFrame::MetaClass()
{
    static const TMetaClass Class("TTranslatorFrame", &TComponent::MetaClass(), nullptr);
    return Class;
}

TTranslatorFrame::TTranslatorFrame(TComponent* Owner, const TMetaClass& Kind, const char* Marker,
                                   TPeerRule Rule)
    : TComponent(Owner), FKind(Kind), FMarker(Marker), FRule(Rule), FNumber(NextNumber())
{
    Living().push_back({FNumber, this});
}

TTranslatorFrame::~TTranslatorFrame()
{
    Living().erase(FindLiving(FNumber));
}

bool TTranslatorFrame::TLife::IsOver() const
{
    const auto Place = FindLiving(FNumber);
    return Place == Living().end() || Place->Number != FNumber;
}

void TTranslatorFrame::Loaded()
{
    FLoadedDone = true;
    TComponent::Loaded();
    OwnLoaded();
    if (FLocale == 0)
        return;
    const auto Same = Peers();
    if (!Same.empty())
        SetTranslate(Same.front()->Translate());
}

void TTranslatorFrame::DefineProperties(TFiler& Filer)
{
    TComponent::DefineProperties(Filer);
    Filer.DefineProperty(
        "Storage", [this](TReader& Reader) { ReadStorage(Reader); },
        [this](TWriter& Writer) { WriteStorage(Writer); }, true);
}

// Handlers that Switch calls may destroy any of them.
template<class TSwitch>
void TTranslatorFrame::SwitchAll(const std::vector<TTranslatorFrame*>& Frames, const TSwitch& Switch)
{
    std::vector<std::pair<TTranslatorFrame*, TLife>> Watched;
    for (TTranslatorFrame* const Each : Frames)
        Watched.emplace_back(Each, TLife(*Each));
    for (const auto& [Each, EachLife] : Watched)
        if (!EachLife.IsOver())
            Switch(*Each);
}

// The other translators of this kind that Wanted says yes to.
template<class TWanted>
std::vector<TTranslatorFrame*> TTranslatorFrame::Others(const TWanted& Wanted) const
{
    std::vector<TTranslatorFrame*> Result;
    for (const TLiving& Each : Living())
        if (Each.Frame != this && &Each.Frame->FKind == &FKind && Wanted(*Each.Frame))
            Result.push_back(Each.Frame);
    SortByPlace(Result);
    return Result;
}

void TTranslatorFrame::SetTranslate(bool Value)
{
    if (Value == FTranslate)
        return;
    const TLife Life(*this);
    InternalTranslate(Value);
    if (Life.IsOver())
        return;
    if (FRule == prApplication)
        FollowLocale(Value);
    else if (FLoadedDone && FLocale != 0)
        SwitchAll(Peers(), [Value](TTranslatorFrame& Peer) { Peer.InternalTranslate(Value); });
}

// The Locale of each is looked at when its turn comes: handlers may change it.
void TTranslatorFrame::FollowLocale(bool Value)
{
    const auto InApplication = Others(IsInApplication);
    const int Wanted = FLocale;
    SwitchAll(InApplication, [Value, Wanted](TTranslatorFrame& Other) {
        if (Other.FLocale == 0)
            return;
        if (Other.FLocale == Wanted)
            Other.InternalTranslate(Value);
        else if (Value)
            Other.InternalTranslate(false);
    });
}

// All translators of a kind are off from its creation to its end.
class TTranslatorFrame::TPause {
public:
    explicit TPause(const TMetaClass& Kind)
    {
        for (const TLiving& Each : Living())
            if (&Each.Frame->FKind == &Kind && Each.Frame->Translate())
                FOn.emplace_back(Each.Frame, TLife(*Each.Frame));
        for (const auto& [Frame, Life] : FOn)
            if (!Life.IsOver())
                Frame->InternalTranslate(false);
    }
    void End()
    {
        for (auto Each = FOn.rbegin(); Each != FOn.rend(); ++Each)
            if (!Each->second.IsOver())
                Each->first->InternalTranslate(true);
        // Also those that have nothing to show, or are being designed.
        for (const auto& [Frame, Life] : FOn)
            if (!Life.IsOver())
                Frame->FTranslate = true;
    }

private:
    std::vector<std::pair<TTranslatorFrame*, TLife>> FOn;
};

bool TTranslatorFrame::ShowEditor()
{
    const TTranslatorEditor Edit = GetTranslatorEditor(FKind);
    TPause Pause(FKind);
    try {
        const bool Changed = Edit(*this);
        Pause.End();
        return Changed;
    } catch (...) {
        Pause.End();
        throw;
    }
}

std::vector<TTranslatorFrame*> TTranslatorFrame::Peers() const
{
    return Others([this](const TTranslatorFrame& Each) {
        return Each.FLocale == FLocale &&
               (FRule == prApplication ? IsInApplication(Each) : IsOnApplicationForm(Each));
    });
}

std::vector<TTranslatorFrame*> TTranslatorFrame::Siblings() const
{
    if (!Owner())
        return {};
    return Others([this](const TTranslatorFrame& Each) { return Each.Owner() == Owner(); });
}

TTranslatorFrame* TTranslatorFrame::NewestOther() const
{
    const auto IsOther = [this](const TLiving& Each) {
        return Each.Frame != this && &Each.Frame->FKind == &FKind;
    };
    const auto Found = std::find_if(Living().rbegin(), Living().rend(), IsOther);
    return Found == Living().rend() ? nullptr : Found->Frame;
}

std::string TTranslatorFrame::Section() const
{
    std::string Result = FMarker;
    if (const TComponent* const Form = Owner())
        Result += !Form->Name().empty() ? Form->Name() : Form->ClassName().substr(1);
    return Result;
}

std::string TTranslatorFrame::GetAppDir() const
{
    if (HasState(csDesigning))
        return ToolServices ? ExtractFilePath(ToolServices->GetProjectName()) : std::string();
    return Application ? ExtractFilePath(Application->ExeName()) : std::string();
}

void TTranslatorFrame::ReadStorage(TReader& Reader)
{
    Reader.ReadInteger();
    LoadStorageFile();
}

void TTranslatorFrame::WriteStorage(TWriter& Writer)
{
    Writer.WriteInteger(0);
    SaveStorageFile();
}

void TTranslatorFrame::LoadStorageFile()
{
    if (FFileName.empty())
        return;
    if (FileExists(FFileName))
        LoadFrom(FFileName);
    else if (const std::string Resolved = GetAppDir() + FFileName; FileExists(Resolved))
        LoadFrom(Resolved);
}

void TTranslatorFrame::SaveStorageFile()
{
    if (TSnapshotScope::IsActive())
        return;
    const bool HasFolder =
        FFileName.find('\\') != std::string::npos || FFileName.find(PathDelimiter) != std::string::npos;
    if (HasFolder)
        SaveTo(FFileName);
    else if (!FFileName.empty())
        SaveTo(GetAppDir() + FFileName);
}
