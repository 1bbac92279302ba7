#include "Qrt/Qrt.h"

#include <climits>
#include <utility>
#include <vector>

#include "Qrt/ReadSections.h"
#include "Qrt/ResourceIndex.h"
#include "core/DictionaryFile.h"
#include "core/Hourglass.h"
#include "core/KeyLines.h"
#include "core/Literals.h"
#include "core/TranslationsFile.h"
#include "framework/design/ToolServices.h"
#include "framework/rtl/Filer.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/Utf8.h"

namespace {

constexpr std::string_view KeyFront = "Res";

struct TFileEntry {
    std::string Key;
    int Locale;
    std::string Text;
};

std::string Line(int Index, const std::string& Text)
{
    return std::string(KeyFront) + IntToStr(Index) + "=" + ToLiterals(Text);
}

} // namespace

const TMetaClass& TResourceTranslator::MetaClass()
{
    static const TMetaClass Class(
        "TResourceTranslator", &TTranslatorFrame::MetaClass(), CreateComponent<TResourceTranslator>,
        {
            Prop<&TResourceTranslator::FileName, &TResourceTranslator::SetFileName>("FileName"),
            Prop<&TResourceTranslator::Locale, &TResourceTranslator::SetLocale>("Locale"),
            Prop<&TResourceTranslator::Translate, &TTranslatorFrame::SetTranslate>("Translate").Default(true),
            Prop<&TResourceTranslator::Translations, &TResourceTranslator::SetTranslations>("Translations"),
            Prop<&TResourceTranslator::OnTranslate>("OnTranslate"),
            Prop<&TResourceTranslator::OnTranslated>("OnTranslated"),
        });
    return Class;
}

TResourceTranslator::TResourceTranslator(TComponent* Owner)
    : TTranslatorFrame(Owner, MetaClass(), "#1", prApplication)
{
    FNode.Translator = this;
    JoinResComponentList(FNode);
    if (!HasState(csDesigning) && !ToolServices)
        HookLoadString(false);
}

TResourceTranslator::~TResourceTranslator()
{
    LeaveResComponentList(FNode);
}

void TResourceTranslator::DefineProperties(TFiler& Filer)
{
    TComponent::DefineProperties(Filer);
    Filer.DefineProperty(
        "ResStrings", [this](TReader& Reader) { ReadResStrings(Reader); },
        [this](TWriter& Writer) { WriteResStrings(Writer); }, true);
}

void TResourceTranslator::ReadResStrings(TReader& Reader)
{
    std::vector<TSortList::TLine> Lines;
    Reader.ReadListBegin();
    while (!Reader.EndOfList()) {
        std::string Source = Reader.ReadString();
        const int64_t Index = Reader.ReadInteger();
        const bool Possible = Index >= 0 && Index <= INT_MAX;
        Lines.push_back({std::move(Source), IntegerObject(Possible ? static_cast<int>(Index) : -1)});
    }
    Reader.ReadListEnd();
    FTable.Load(std::move(Lines));
    LoadStorageFile();
}

void TResourceTranslator::WriteResStrings(TWriter& Writer)
{
    Writer.WriteListBegin();
    for (int I = 0; FileName().empty() && I < ResStrings().Count(); ++I) {
        Writer.WriteString(ResStrings().Get(I));
        Writer.WriteInteger(ObjectInteger(ResStrings().Objects(I)));
    }
    Writer.WriteListEnd();
    SaveStorageFile();
}

void TResourceTranslator::SetTranslations(const TStrings* Value)
{
    FTable.Texts().Assign(Value);
}

void TResourceTranslator::InternalTranslate(bool Value)
{
    FTranslate = Value;
    FAnswers.store(Value, std::memory_order_relaxed);
}

void TResourceTranslator::SetTranslation(const std::string& Source, const std::string& Translation)
{
    FTable.Set(Source, Translation);
}

bool TResourceTranslator::RemoveTranslation(const std::string& Source)
{
    return FTable.Remove(Source);
}

bool TResourceTranslator::TranslateBuffer(char* Buffer, int& Length) const
{
    return TranslateBuffer(Buffer, INT_MAX, Length);
}

bool TResourceTranslator::TranslateBuffer(char* Buffer, int Capacity, int& Length) const
{
    if (!FAnswers.load(std::memory_order_relaxed) || !GlobalTranslation.load(std::memory_order_relaxed))
        return false;
    const std::string_view Text(Buffer);
    const TReadSection Section;
    const int Translated = FTable.Find(Text, TResourceIndex::HashOf(Text), Buffer, Capacity);
    if (Translated == 0)
        return false;
    Length = Translated;
    return true;
}

bool TResourceTranslator::LoadFrom(const std::string& FileName)
{
    // All is read before anything is changed: a line may be malformed.
    std::vector<TFileEntry> Entries;
    const bool Exists = ForEachTranslation(FileName, Section(), [&](const TTranslation& Each) {
        if (Each.Locale == Locale() || Each.Locale == DefaultsLocale)
            Entries.push_back({std::string(Each.Key), Each.Locale,
                               FromLiterals(CutAtCharacter(Each.Value, MaxFileValueBytes))});
    });
    const std::string* Current = nullptr;
    int Index = 0;
    for (const TFileEntry& Each : Entries)
        if (Each.Locale == DefaultsLocale) {
            Current = &Each.Key;
            Index = FTable.Append(Each.Text);
        } else if (Current && *Current == Each.Key) {
            FTable.Texts().Put(Index, Each.Text);
        }
    return Exists;
}

void TResourceTranslator::SaveTo(const std::string& FileName)
{
    const THourglass Hourglass;
    TStringList Translated;
    TStringList Sources;
    for (int I = 0; I < ResStrings().Count(); ++I) {
        Translated.Add(Line(I, FTable.Translation(I)));
        Sources.Add(Line(I, ResStrings().Get(I)));
    }
    SaveTranslations(FileName, {Section(), Locale()}, Translated, Sources);
}

void TResourceTranslator::TranslateTo(const std::string& FileName)
{
    const TFileLock Lock(FileName);
    TDictionary Dictionary;
    Dictionary.Load(FileName);
    for (int I = 0; I < ResStrings().Count(); ++I)
        Dictionary.Put(ResStrings().Get(I), FTable.Translation(I));
    Dictionary.Save(FileName);
}

void TResourceTranslator::TranslateFrom(const std::string& FileName)
{
    for (const auto& [Source, Translation] : ReadDictionaryPairs(FileName))
        if (int Index = -1; ResStrings().SortFind(Source, Index))
            FTable.Set(Source, Translation);
}
