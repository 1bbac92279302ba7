#include "Qlt/Qlt.h"

#include <algorithm>
#include <unordered_map>

#include "core/Hourglass.h"
#include "core/KeyLines.h"
#include "core/TranslationsFile.h"
#include "core/TranslatorEditors.h"
#include "framework/forms/Application.h"
#include "framework/rtl/SysUtils.h"
#include "platform/winapi.h"

namespace {

// Components that handlers may destroy while they are being switched.
class TWatched : public TComponent {
public:
    TWatched() : TComponent(nullptr) {}

    void Add(TComponent* Component)
    {
        FComponents.push_back(Component);
        FreeNotification(Component);
    }
    size_t Count() const { return FComponents.size(); }
    // Null once it was destroyed.
    TComponent* Get(size_t Index) const { return FComponents[Index]; }

    void Notification(TComponent* Component, TOperation Operation) override
    {
        TComponent::Notification(Component, Operation);
        if (Operation == opRemove)
            std::replace(FComponents.begin(), FComponents.end(), Component,
                         static_cast<TComponent*>(nullptr));
    }

private:
    std::vector<TComponent*> FComponents;
};

bool IsOrdinal(const TPropInfo* Prop)
{
    return Prop && Prop->Access.GetOrd;
}

// What makes the components of a class follow the locale.
struct TSwitchProps {
    explicit TSwitchProps(const TMetaClass& Class)
        : Locale(Class.FindProperty("Locale")), Translate(Class.FindProperty("Translate"))
    {
    }
    bool Complete() const { return IsOrdinal(Locale) && IsOrdinal(Translate) && Translate->CanWrite(); }

    const TPropInfo* Locale;
    const TPropInfo* Translate;
};

// The components that follow the locale, on all forms and modules of the
// application, in their order. Applications have few classes and many components.
void CollectSwitched(TWatched& Result)
{
    std::unordered_map<const TMetaClass*, bool> Known;
    for (int I = 0; Application && I < Application->ComponentCount(); ++I) {
        const TComponent& Module = *Application->Components(I);
        for (int J = 0; J < Module.ComponentCount(); ++J) {
            TComponent* const Each = Module.Components(J);
            const auto [Place, IsNew] = Known.try_emplace(&Each->ClassType());
            if (IsNew)
                Place->second = TSwitchProps(Each->ClassType()).Complete();
            if (Place->second)
                Result.Add(Each);
        }
    }
}

void SwitchByLocale(TComponent& Component, int Lcid)
{
    const TSwitchProps Props(Component.ClassType());
    const int64_t Locale = GetOrdProp(Component, *Props.Locale);
    if (Locale != 0)
        SetOrdProp(Component, *Props.Translate, Locale == Lcid);
}

void SetSystemLocale(int Lcid)
{
    SetThreadLocale(static_cast<LCID>(Lcid));
    SysLocale.DefaultLCID = Lcid;
    SysLocale.PriLangID = Lcid & 0x3FF;
    SysLocale.SubLangID = static_cast<int>(static_cast<uint32_t>(Lcid) >> 10);
}

} // namespace

const TMetaClass& TLocaleTranslator::MetaClass()
{
    static const TMetaClass Class(
        "TLocaleTranslator", &TTranslatorFrame::MetaClass(), CreateComponent<TLocaleTranslator>,
        {
            Prop<&TLocaleTranslator::AdoptOn, &TLocaleTranslator::SetAdoptOn>("AdoptOn"),
            Prop<&TLocaleTranslator::DesignLocale, &TLocaleTranslator::SetDesignLocale>("DesignLocale"),
            Prop<&TLocaleTranslator::FileName, &TLocaleTranslator::SetFileName>("FileName"),
            Prop<&TLocaleTranslator::ListFormat, &TLocaleTranslator::SetListFormat>("ListFormat"),
            Prop<&TLocaleTranslator::Locale, &TLocaleTranslator::SetLocale>("Locale"),
            Prop<&TLocaleTranslator::StartupLocale, &TLocaleTranslator::SetStartupLocale>("StartupLocale"),
            Prop<&TLocaleTranslator::Translate, &TTranslatorFrame::SetTranslate>("Translate"),
            Prop<&TLocaleTranslator::Translations, &TLocaleTranslator::SetTranslations>("Translations")
                .Stored<&TLocaleTranslator::StoreTranslationsInForm>(),
            Prop<&TLocaleTranslator::OnTranslate>("OnTranslate"),
            Prop<&TLocaleTranslator::OnTranslated>("OnTranslated"),
        });
    return Class;
}

TLocaleTranslator::TLocaleTranslator(TComponent* Owner)
    : TTranslatorFrame(Owner, MetaClass(), "#2"), FTranslations(std::make_unique<TSortList>()),
      FLangList(std::make_unique<TSortList>()),
      FStartupLocale(LocaleValue(UserDefaultName, UserDefaultLocale)),
      FActiveLocale(static_cast<int>(GetUserDefaultLCID()))
{
    AddOrgProps(FActiveLocale, *FTranslations);
    UpdateLangList();
    FDesignLocale = LocaleValue(FLangList->Get(0), ObjectInteger(FLangList->Objects(0)));
}

TLocaleTranslator::~TLocaleTranslator()
{
    ReleaseControls();
}

void TLocaleTranslator::AddOrgProps(int Lcid, TSortList& List) const
{
    std::vector<TSortList::TLine> Lines;
    for (std::string& Entry : ReadLocaleEntries(Lcid))
        Lines.push_back({std::move(Entry), IntegerObject(Lcid)});
    List.SortInsertAll(std::move(Lines));
}

void TLocaleTranslator::SetTranslations(const TStrings* Value)
{
    FTranslations->AssignInOrder(Value);
}

void TLocaleTranslator::SetTranslate(bool Value)
{
    if (Value == Translate())
        return;
    FTranslate = Value;
    if (Locale() == 0)
        return;
    for (TTranslatorFrame* const Peer : Peers())
        Peer->InternalTranslate(Value);
}

void TLocaleTranslator::InternalTranslate(bool Value)
{
    FTranslate = Value;
}

void TLocaleTranslator::SetDesignLocale(const std::string& Value)
{
    if (Value == FDesignLocale || !IsLocaleValue(Value))
        return;
    FDesignLocale = Value;
    if (!HasState(csDesigning))
        return;
    FActiveLocale = LocaleOfValue(Value);
    UpdateLanguageSelection();
}

void TLocaleTranslator::SetStartupLocale(const std::string& Value)
{
    if (IsLocaleValue(Value))
        FStartupLocale = Value;
}

void TLocaleTranslator::Loaded()
{
    const TLife Life(*this);
    TTranslatorFrame::Loaded();
    if (Life.IsOver())
        return;
    int Startup = LocaleOfValue(FStartupLocale);
    if (Startup == UserDefaultLocale)
        Startup = static_cast<int>(GetUserDefaultLCID());
    else if (Startup == SystemDefaultLocale)
        Startup = static_cast<int>(GetSystemDefaultLCID());
    if (!TranslateLocale(Startup) && !Life.IsOver())
        TranslateLocale(LocaleOfValue(FDesignLocale));
}

bool TLocaleTranslator::TranslateLocale(int Lcid)
{
    if (!Translate())
        return false;
    const THourglass Hourglass;
    const TLife Life(*this);
    if (OnTranslate) {
        bool Skip = false;
        OnTranslate(this, Skip);
        if (Skip || Life.IsOver())
            return false;
    }
    if (!ApplyEntries(EntryPrefix(Lcid)))
        return false;
    FActiveLocale = Lcid;
    UpdateLanguageSelection();
    SetSystemLocale(Lcid);
    if (!Life.IsOver())
        SetLocales(Lcid);
    if (!Life.IsOver() && OnTranslated)
        OnTranslated(this);
    return true;
}

// False when there is no entry that begins with Prefix.
bool TLocaleTranslator::ApplyEntries(const std::string& Prefix)
{
    const TSortList& List = *FTranslations;
    const bool InOrder = List.IsInOrder();
    bool Found = false;
    int I = -1;
    if (InOrder)
        List.SortFind(Prefix, I);
    while (InOrder && I > 0 && List.Get(I - 1).starts_with(Prefix))
        --I;
    for (I = InOrder ? I : 0; I < List.Count(); ++I) {
        const std::string& Entry = List.Get(I);
        if (Entry.starts_with(Prefix)) {
            Found = true;
            if (const std::string_view Key = KeyOf(Entry); !Key.empty())
                ApplyLocaleEntry(Key.substr(Prefix.size()), ValueOf(Entry, MaxFileValueBytes));
        } else if (InOrder)
            break;
    }
    return Found;
}

void TLocaleTranslator::SetLocales(int Lcid)
{
    if (Lcid == 0)
        return;
    const TLife Life(*this);
    TWatched Switched;
    CollectSwitched(Switched);
    for (size_t I = 0; I < Switched.Count() && !Life.IsOver(); ++I) {
        TComponent* const Each = Switched.Get(I);
        if (!Each || Each == this)
            continue;
        if (auto* const Other = dynamic_cast<TLocaleTranslator*>(Each))
            SwitchLocaleTranslator(*Other);
        else
            SwitchByLocale(*Each, Lcid);
    }
}

void TLocaleTranslator::SwitchLocaleTranslator(TLocaleTranslator& Other)
{
    if (Locale() == 0)
        return;
    const bool IsPeer = Other.Locale() == Locale();
    if (IsPeer)
        Other.FActiveLocale = FActiveLocale;
    Other.SetTranslate(IsPeer);
}

// Translate is off from its creation to its end.
class TLocaleTranslator::TPause {
public:
    explicit TPause(TLocaleTranslator& Translator)
        : FTranslator(Translator), FLife(Translator), FRemembered(Translator.Translate())
    {
        FTranslator.SetTranslate(false);
    }
    ~TPause()
    {
        if (!FLife.IsOver())
            FTranslator.SetTranslate(FRemembered);
    }
    TPause(const TPause&) = delete;
    TPause& operator=(const TPause&) = delete;

private:
    TLocaleTranslator& FTranslator;
    const TLife FLife;
    const bool FRemembered;
};

bool TLocaleTranslator::ShowEditor()
{
    const TTranslatorEditor Edit = GetTranslatorEditor(MetaClass());
    const TPause Pause(*this);
    return Edit(*this);
}

void TLocaleTranslator::TakeUpEdited(int DesignLcid, int StartupLcid)
{
    const TLife Life(*this);
    UpdateAdoptOn();
    if (Life.IsOver())
        return;
    // Without a selector the list was not made.
    UpdateLangList();
    SetDesignLocale(ListedValue(DesignLcid));
    if (Life.IsOver())
        return;
    if (StartupLcid == UserDefaultLocale)
        SetStartupLocale(LocaleValue(UserDefaultName, StartupLcid));
    else if (StartupLcid == SystemDefaultLocale)
        SetStartupLocale(LocaleValue(SystemDefaultName, StartupLcid));
    else
        SetStartupLocale(ListedValue(StartupLcid));
}

// Empty when the locale is not in LangList.
std::string TLocaleTranslator::ListedValue(int Lcid) const
{
    const int Item = FLangList->IndexOfObject(IntegerObject(Lcid));
    return Item >= 0 ? LocaleValue(FLangList->Get(Item), Lcid) : "";
}

bool TLocaleTranslator::LoadFrom(const std::string& FileName)
{
    return LoadTranslations(FileName, {Section(), Locale()}, *FTranslations);
}

void TLocaleTranslator::SaveTo(const std::string& FileName)
{
    const THourglass Hourglass;
    SaveTranslations(FileName, {Section(), Locale()}, *FTranslations, TSortList());
}
