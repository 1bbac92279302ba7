#include "Qft/Qft.h"

#include <utility>

#include "Qft/FormWalk.h"
#include "Qft/MDIRefresh.h"
#include "Qft/PropertyText.h"
#include "core/Hourglass.h"
#include "core/KeyLines.h"
#include "core/TranslationsFile.h"
#include "framework/rtl/Collection.h"

// Sees to it that nothing refers to a list any more when that goes out of scope,
// also by an exception.
class TFormTranslator::TLookupEnd {
public:
    TLookupEnd(TFormTranslator& Translator, const TStrings& List)
        : FTranslator(Translator), FLife(Translator), FList(List)
    {
    }
    ~TLookupEnd()
    {
        if (!FLife.IsOver() && FTranslator.FLookup == &FList)
            FTranslator.FLookup = nullptr;
    }
    TLookupEnd(const TLookupEnd&) = delete;
    TLookupEnd& operator=(const TLookupEnd&) = delete;

private:
    TFormTranslator& FTranslator;
    const TLife FLife;
    const TStrings& FList;
};

const TMetaClass& TFormTranslator::MetaClass()
{
    static const TMetaClass Class(
        "TFormTranslator", &TTranslatorFrame::MetaClass(), CreateComponent<TFormTranslator>,
        {
            Prop<&TFormTranslator::FileName, &TFormTranslator::SetFileName>("FileName"),
            Prop<&TFormTranslator::Locale, &TFormTranslator::SetLocale>("Locale"),
            Prop<&TFormTranslator::Translate, &TFormTranslator::SetTranslate>("Translate"),
            Prop<&TFormTranslator::TranslateEmpty, &TFormTranslator::SetTranslateEmpty>("TranslateEmpty"),
            Prop<&TFormTranslator::Translations, &TFormTranslator::SetTranslations>("Translations")
                .Stored<&TFormTranslator::StoreTranslationsInForm>(),
            Prop<&TFormTranslator::OnTranslateForm>("OnTranslateForm"),
            Prop<&TFormTranslator::OnTranslateComponent>("OnTranslateComponent"),
            Prop<&TFormTranslator::OnTranslateProperty>("OnTranslateProperty"),
            Prop<&TFormTranslator::OnTranslated>("OnTranslated"),
        });
    return Class;
}

TFormTranslator::TFormTranslator(TComponent* Owner)
    : TTranslatorFrame(Owner, MetaClass(), ""), FTranslations(std::make_unique<TSortList>()),
      FDefaults(std::make_unique<TSortList>())
{
}

TFormTranslator::~TFormTranslator()
{
    for (TFormWalk* Walk = FWalk; Walk; Walk = Walk->FOuter)
        Walk->FIsOver = true;
}

void TFormTranslator::Loaded()
{
    const TLife Life(*this);
    TTranslatorFrame::Loaded();
    if (!Life.IsOver() && !HasState(csDesigning))
        TranslateForm(FTranslations.get(), false);
}

void TFormTranslator::Notification(TComponent* Component, TOperation Operation)
{
    TTranslatorFrame::Notification(Component, Operation);
    if (Operation == opRemove)
        for (TFormWalk* Walk = FWalk; Walk; Walk = Walk->FOuter)
            Walk->ForgetComponent(Component);
}

void TFormTranslator::SetTranslations(const TStrings* Value)
{
    FTranslations->AssignInOrder(Value);
}

const TSortList& TFormTranslator::Defaults() const
{
    FlushDefaults();
    return *FDefaults;
}

void TFormTranslator::FlushDefaults() const
{
    if (FMovedDefaults)
        FDefaults->Assign(std::exchange(FMovedDefaults, nullptr));
    if (!FPending.Empty())
        FPending.InsertInto(*FDefaults);
}

bool TFormTranslator::TranslateForm(TStrings* List, bool ReadMode)
{
    if (!List || (!ReadMode && (!Translate() || List->Count() == 0 || HasState(csDesigning))))
        return false;
    const TLife Life(*this);
    if (FTranslated)
        RestoreForm();
    if (Life.IsOver())
        return false;
    if (OnTranslateForm) {
        bool Skip = false;
        OnTranslateForm(this, List, Skip);
        if (Skip || Life.IsOver())
            return false;
    }
    if (!WalkForm(*List, ReadMode))
        return false;
    if (!ReadMode) {
        RefreshMDI(Owner());
        if (Life.IsOver())
            return false;
        FTranslated = true;
    }
    if (OnTranslated)
        OnTranslated(this, List);
    return true;
}

// False when the translator did not survive it.
bool TFormTranslator::WalkForm(TStrings& List, bool ReadMode)
{
    TFormWalk Walk(*this, List, ReadMode);
    if (!ReadMode && !FRestoring)
        Walk.NoteFormerValues();
    Walk.WalkOwner();
    if (!Walk.IsOver())
        Walk.WalkSystemMenu();
    if (!Walk.IsOver())
        Walk.WalkComponents();
    return !Walk.IsOver();
}

void TFormTranslator::TranslateClass(TObject* Obj, const std::string& Path, bool ReadMode)
{
    if (FLookup)
        TFormWalk(*this, *FLookup, ReadMode).WalkObject(Obj, Path);
}

void TFormTranslator::SetStrings(TStrings* Obj, const std::string& Path, bool ReadMode)
{
    if (FLookup && Obj)
        TFormWalk(*this, *FLookup, ReadMode).WalkStrings(*Obj, Path);
}

void TFormTranslator::SetCollection(TCollection* Obj, const std::string& Path, bool ReadMode)
{
    if (FLookup && Obj)
        TFormWalk(*this, *FLookup, ReadMode).WalkCollection(*Obj, Path);
}

bool TFormTranslator::TranslateProp(TObject* Obj, const TPropInfo* PropInfo, int Index)
{
    return FLookup && Obj && PropInfo && TFormWalk(*this, *FLookup, false).WalkOne(*Obj, *PropInfo, Index);
}

void TFormTranslator::TranslateVirtual(bool ReadMode)
{
    if (FLookup)
        TFormWalk(*this, *FLookup, ReadMode).WalkSystemMenu();
}

std::string TFormTranslator::GetProp(const TObject* Obj, const TPropInfo* PropInfo) const
{
    return Obj && PropInfo ? GetPropertyText(*Obj, *PropInfo) : std::string();
}

bool TFormTranslator::WantTranslate(const std::string& Key, int& Index) const
{
    Index = 0;
    return FLookup && FindKeyLine(*FLookup, Key, Index);
}

void TFormTranslator::RestoreForm()
{
    if (!FTranslated)
        return;
    FTranslated = false;
    if (Defaults().Count() == 0) // no line named anything on the form
        return;
    TSortList List;
    const TLookupEnd LookupEnd(*this, List);
    const TLife Life(*this);
    MoveDefaultsTo(List);
    FRestoring = true;
    bool Restored = false;
    try {
        Restored = TranslateForm(&List, false);
    } catch (...) {
        if (!Life.IsOver())
            EndRestoring(false);
        throw;
    }
    if (Life.IsOver())
        return;
    EndRestoring(Restored);
    FTranslated = !Restored;
}

void TFormTranslator::EndRestoring(bool Restored)
{
    FRestoring = false;
    if (Restored)
        FDefaults->Clear();
    else
        FlushDefaults();
    FMovedDefaults = nullptr;
    FPending.Clear();
}

// While nobody watches, restoring takes the lines instead of copying them.
// FlushDefaults gives them back to whoever asks.
void TFormTranslator::MoveDefaultsTo(TSortList& List)
{
    FlushDefaults();
    if (OnTranslateForm || OnTranslateComponent || OnTranslateProperty || OnTranslated) {
        List.Assign(FDefaults.get());
        return;
    }
    const bool InOrder = FDefaults->IsInOrder();
    auto Lines = FDefaults->Take();
    if (InOrder)
        List.GiveInOrder(std::move(Lines));
    else
        List.Give(std::move(Lines));
    FMovedDefaults = &List;
}

void TFormTranslator::InternalTranslate(bool Value)
{
    if (Value == Translate())
        return;
    const TLife Life(*this);
    if (!Value) {
        RestoreForm();
        if (!Life.IsOver())
            FTranslate = false;
        return;
    }
    FTranslate = true;
    std::vector<std::pair<TTranslatorFrame*, TLife>> Others;
    for (TTranslatorFrame* const Sibling : Siblings())
        Others.emplace_back(Sibling, TLife(*Sibling));
    for (const auto& [Sibling, SiblingLife] : Others)
        if (!SiblingLife.IsOver())
            Sibling->SetTranslate(false);
    if (!Life.IsOver() && !TranslateForm(FTranslations.get(), false) && !Life.IsOver())
        FTranslate = false;
}

bool TFormTranslator::LoadFrom(const std::string& FileName)
{
    const bool Exists = LoadTranslations(FileName, {Section(), Locale()}, *FTranslations);
    if (Exists)
        FLookup = nullptr;
    return Exists;
}

void TFormTranslator::SaveTo(const std::string& FileName)
{
    const THourglass Hourglass;
    const TLife Life(*this);
    TSortList Untranslated;
    const TLookupEnd LookupEnd(*this, Untranslated);
    if (FTranslated)
        Untranslated.Assign(&Defaults());
    else
        TranslateForm(&Untranslated, true);
    if (Life.IsOver())
        return;
    DeleteUnwanted(Untranslated);
    FLookup = nullptr;
    SaveTranslations(FileName, {Section(), Locale()}, *FTranslations, Untranslated);
}

// What the owner shows now, in order.
void TFormTranslator::ReadPresentValues(TSortList& List)
{
    TSortList AsWalked;
    const TLookupEnd LookupEnd(*this, AsWalked);
    TranslateForm(&AsWalked, true);
    List.SortInsertAll(AsWalked.Take());
}

// Deletes the lines for whose keys there is no translation.
void TFormTranslator::DeleteUnwanted(TSortList& List)
{
    std::vector<TSortList::TLine> Wanted;
    for (TSortList::TLine& Line : List.Take()) {
        int Index = 0;
        if (FindKeyLine(*FTranslations, KeyOf(Line.Text), Index))
            Wanted.push_back(std::move(Line));
    }
    List.Give(std::move(Wanted));
}
