#include "core/Frame.h"

#include <algorithm>
#include <utility>

#include "framework/design/ToolServices.h"
#include "framework/forms/Application.h"
#include "framework/rtl/Filer.h"
#include "framework/rtl/SysUtils.h"

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

// By the owner's place in the application, then by the place in the owner.
void SortByPlace(std::vector<TTranslatorFrame*>& Frames)
{
    if (Frames.size() < 2)
        return;
    using TPlaced = std::pair<std::pair<int, int>, TTranslatorFrame*>;
    std::vector<TPlaced> Placed;
    for (TTranslatorFrame* const Each : Frames)
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

TTranslatorFrame::TTranslatorFrame(TComponent* Owner, const TMetaClass& Kind, const char* Marker)
    : TComponent(Owner), FKind(Kind), FMarker(Marker), FNumber(NextNumber())
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
    if (FLocale == 0)
        return;
    const auto Others = Peers();
    if (!Others.empty())
        SetTranslate(Others.front()->Translate());
}

void TTranslatorFrame::DefineProperties(TFiler& Filer)
{
    TComponent::DefineProperties(Filer);
    Filer.DefineProperty(
        "Storage", [this](TReader& Reader) { ReadStorage(Reader); },
        [this](TWriter& Writer) { WriteStorage(Writer); }, true);
}

void TTranslatorFrame::SetTranslate(bool Value)
{
    if (Value == FTranslate)
        return;
    const TLife Life(*this);
    InternalTranslate(Value);
    if (Life.IsOver() || !FLoadedDone || FLocale == 0)
        return;
    std::vector<std::pair<TTranslatorFrame*, TLife>> Others;
    for (TTranslatorFrame* const Peer : Peers())
        Others.emplace_back(Peer, TLife(*Peer));
    for (const auto& [Peer, PeerLife] : Others)
        if (!PeerLife.IsOver())
            Peer->InternalTranslate(Value);
}

std::vector<TTranslatorFrame*> TTranslatorFrame::Peers() const
{
    std::vector<TTranslatorFrame*> Result;
    for (const TLiving& Each : Living())
        if (Each.Frame != this && Each.Frame->FLocale == FLocale && &Each.Frame->FKind == &FKind &&
            IsOnApplicationForm(*Each.Frame))
            Result.push_back(Each.Frame);
    SortByPlace(Result);
    return Result;
}

std::vector<TTranslatorFrame*> TTranslatorFrame::Siblings() const
{
    std::vector<TTranslatorFrame*> Result;
    if (!Owner())
        return Result;
    for (const TLiving& Each : Living())
        if (Each.Frame != this && Each.Frame->Owner() == Owner() && &Each.Frame->FKind == &FKind)
            Result.push_back(Each.Frame);
    SortByPlace(Result);
    return Result;
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
    const bool HasFolder =
        FFileName.find('\\') != std::string::npos || FFileName.find(PathDelimiter) != std::string::npos;
    if (HasFolder)
        SaveTo(FFileName);
    else if (!FFileName.empty())
        SaveTo(GetAppDir() + FFileName);
}
