#include "framework/streaming/ComponentReader.h"

#include <algorithm>

#include "framework/rtl/Collection.h"
#include "framework/rtl/DynamicProps.h"
#include "framework/rtl/Streams.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/GenericProps.h"

TComponent* (*FindGlobalComponent)(std::string_view Name) = nullptr;

namespace {

[[noreturn]] void RaiseInvalidValue()
{
    throw EReadError(SInvalidPropertyValue);
}

int64_t OrdinalOf(const TPropInfo& Prop, const TFormValue& Value)
{
    const TTypeInfo& Type = *Prop.PropType;
    if (Value.Is(TFormValueKind::Ident)) {
        int Number = 0;
        if (Type.Idents && Type.Idents->IdentToInt(Value.AsIdent(), Number))
            return Number;
        RaiseInvalidValue();
    }
    if (!Value.Is(TFormValueKind::Integer))
        RaiseInvalidValue();
    // A 32-bit value may be written with or without its sign.
    const int64_t Number = Value.AsInteger();
    if (Number >= Type.MinValue && Number <= Type.MaxValue)
        return Number;
    if (Type.MinValue == INT32_MIN && Number >= 0 && Number <= UINT32_MAX)
        return static_cast<int32_t>(Number);
    if (Type.MaxValue == UINT32_MAX && Number < 0 && Number >= INT32_MIN)
        return static_cast<uint32_t>(Number);
    throw EReadError(SRangeError);
}

int64_t EnumerationOf(const TTypeInfo& Type, const std::string& Ident)
{
    const int64_t Ordinal = GetEnumValue(Type, Ident);
    if (Ordinal < 0)
        RaiseInvalidValue();
    return Ordinal;
}

int64_t SetOf(const TTypeInfo& Type, const TFormValue& Value)
{
    if (!Value.Is(TFormValueKind::Set))
        RaiseInvalidValue();
    uint64_t Bits = 0;
    for (const std::string& Element : Value.AsSet())
        Bits |= uint64_t{1} << EnumerationOf(*Type.Element, Element);
    return static_cast<int64_t>(Bits);
}

int64_t CharacterOf(const TFormValue& Value)
{
    if (Value.Is(TFormValueKind::String) && Value.AsString().size() == 1)
        return static_cast<unsigned char>(Value.AsString()[0]);
    if (Value.Is(TFormValueKind::Integer) && Value.AsInteger() >= 0 && Value.AsInteger() <= 255)
        return Value.AsInteger();
    RaiseInvalidValue();
}

// A form may be there several times: OrderForm, OrderForm_1, OrderForm_2.
std::string FreeName(const TComponent* Owner, const std::string& Name)
{
    std::string Result = Name;
    for (int Number = 1; Owner && !Name.empty() && Owner->FindComponent(Result); ++Number)
        Result = Name + "_" + IntToStr(Number);
    return Result;
}

} // namespace

TComponentReader::TComponentReader(const TFormDocument& Document, TUnknownClasses UnknownClasses,
                                   TStandInMaker MakeStandIn)
    : FDocument(Document), FUnknownClasses(UnknownClasses), FMakeStandIn(std::move(MakeStandIn))
{
}

void TComponentReader::ReadRoot(TComponent& Root)
{
    FRoot = &Root;
    try {
        ReadAll();
    } catch (...) {
        DiscardNew();
        throw;
    }
}

void TComponentReader::ReadAll()
{
    const TFormObject& Source = FDocument.Root;
    const TMetaClass& Declared = FRoot->DeclaredClass();
    if (FUnknownClasses == TUnknownClasses::Accept && !SameText(Source.ClassName(), Declared.ClassName()))
        FRoot->NeedDynamicProperties().SetClass(&GenericClass(Source.ClassName(), Declared));
    FRoot->SetLoading(true);
    if (FRoot->Name().empty())
        FRoot->SetName(FreeName(FRoot->Owner(), Source.Name()));
    ReadObject(*FRoot, Source, *FRoot);
    ResolveReferences();
    const std::vector<TComponent*> All = FComponents;
    for (TComponent* const Component : All)
        Component->SetStateFlag(csReading, false);
    for (TComponent* const Component : All)
        Component->Loaded();
}

void TComponentReader::ReadObject(TComponent& Component, const TFormObject& Source, TComponent& Owner)
{
    FComponents.push_back(&Component);
    Component.SetStateFlag(csReading, true);
    FOwner = &Owner;
    ReadProperties(Component, Source);
    TComponent* const ChildOwner = &Component == FRoot ? nullptr : Component.GetChildOwner();
    for (const TFormObject& Child : Source.Children())
        ReadObject(*MakeChild(Child, Component, ChildOwner ? *ChildOwner : Owner), Child,
                   ChildOwner ? *ChildOwner : Owner);
}

TComponent* TComponentReader::MakeStandIn(const TFormObject& Source, TComponent& Owner) const
{
    const auto TakeClass = [&](TComponent& StandIn, const TMetaClass& Parent) {
        StandIn.NeedDynamicProperties().SetClass(&GenericClass(Source.ClassName(), Parent));
        return &StandIn;
    };
    if (TComponent* const Special = FMakeStandIn ? FMakeStandIn(Source, Owner) : nullptr)
        return TakeClass(*Special, Special->DeclaredClass());
    auto* const Generic = new TGenericComponent(&Owner);
    Generic->SetOwnsChildren(Source.Kind() == TFormObjectKind::Inline);
    return TakeClass(*Generic, TComponent::MetaClass());
}

TComponent* TComponentReader::MakeChild(const TFormObject& Source, TComponent& Parent, TComponent& Owner)
{
    if (Source.Kind() == TFormObjectKind::Inherited)
        if (TComponent* const Existing = Owner.FindComponent(Source.Name())) {
            Existing->SetLoading(true);
            return Existing;
        }
    const TMetaClass* const Class = GetClass(Source.ClassName());
    TComponent* Child = nullptr;
    if (Class && Class->CanCreate()) {
        Child = static_cast<TComponent*>(Class->Create(&Owner));
    } else if (FUnknownClasses == TUnknownClasses::Accept) {
        Child = MakeStandIn(Source, Owner);
    } else {
        throw EClassNotFound(FDocument.ErrorAt(Source, Format(SClassNotFound, {Source.ClassName()})).what());
    }
    FMade.push_back(Child);
    Child->SetLoading(true);
    Child->SetStateFlag(csInline, Source.Kind() == TFormObjectKind::Inline);
    NameChild(*Child, Source, Owner);
    Child->SetParentComponent(&Parent);
    if (Source.Position())
        Parent.SetChildOrder(Child, static_cast<int>(*Source.Position()));
    return Child;
}

void TComponentReader::NameChild(TComponent& Child, const TFormObject& Source, const TComponent& Owner)
{
    const bool Usable = IsValidIdent(Source.Name()) && !Owner.FindComponent(Source.Name());
    if (FUnknownClasses == TUnknownClasses::Accept && !Usable)
        return;
    try {
        Child.SetName(Source.Name());
    } catch (const Exception& Error) {
        throw FDocument.ErrorAt(Source, Error.Message());
    }
}

void TComponentReader::ReadProperties(TPersistent& Instance, const TFormProperties& Source)
{
    for (const TFormProperty& Property : Source.Properties())
        ReadProperty(Instance, Property);
}

void TComponentReader::ReadProperty(TPersistent& Instance, const TFormProperty& Source)
{
    std::string Reason = SUnknownProperty;
    try {
        if (ReadKnown(Instance, Source.Name(), Source))
            return;
    } catch (const EFormFileError&) {
        throw;
    } catch (const Exception& Error) {
        Reason = Error.Message();
    }
    if (FUnknownClasses == TUnknownClasses::Refuse) {
        const auto* const Component = dynamic_cast<const TComponent*>(&Instance);
        const std::string Where = Component ? Component->Name() : Instance.ClassName();
        throw FDocument.ErrorAt(Source, Format(SPropertyException, {Where, ".", Source.Name(), Reason}));
    }
    AddGenericProperty(Instance, Source.Name(), Source.Value);
}

bool TComponentReader::ReadKnown(TPersistent& Instance, std::string_view Path, const TFormProperty& Source)
{
    const size_t Dot = Path.find('.');
    const std::string_view First = Path.substr(0, Dot);
    const TPropInfo* const Prop = GetPropInfo(Instance, First);
    if (Prop && Prop->IsDynamic)
        return false;
    if (Dot == Path.npos) {
        if (!Prop || !(Prop->CanWrite() || Prop->Kind() == tkClass))
            return ReadDefined(Instance, Path, Source.Value);
        SetPublished(Instance, *Prop, Source);
        return true;
    }
    if (!Prop)
        return ReadDefined(Instance, Path, Source.Value);
    auto* const Held =
        Prop->Kind() == tkClass ? dynamic_cast<TPersistent*>(GetObjectProp(Instance, *Prop)) : nullptr;
    return Held && ReadKnown(*Held, Path.substr(Dot + 1), Source);
}

bool TComponentReader::ReadDefined(TPersistent& Instance, std::string_view Name, const TFormValue& Value)
{
    FWanted = Name;
    FWantedValue = &Value;
    FTaken = false;
    FLevels.clear();
    Instance.DefineProperties(*this);
    FWantedValue = nullptr;
    return FTaken;
}

void TComponentReader::SetPublished(TPersistent& Instance, const TPropInfo& Prop, const TFormProperty& Source)
{
    const TFormValue& Value = Source.Value;
    switch (Prop.Kind()) {
    case tkInteger:
        SetOrdProp(Instance, Prop, OrdinalOf(Prop, Value));
        break;
    case tkInt64:
        if (!Value.Is(TFormValueKind::Integer))
            RaiseInvalidValue();
        SetOrdProp(Instance, Prop, Value.AsInteger());
        break;
    case tkEnumeration:
        if (!Value.Is(TFormValueKind::Ident))
            RaiseInvalidValue();
        SetOrdProp(Instance, Prop, EnumerationOf(*Prop.PropType, Value.AsIdent()));
        break;
    case tkSet:
        SetOrdProp(Instance, Prop, SetOf(*Prop.PropType, Value));
        break;
    case tkChar:
        SetOrdProp(Instance, Prop, CharacterOf(Value));
        break;
    case tkFloat:
        if (!Value.Is(TFormValueKind::Float) && !Value.Is(TFormValueKind::Integer))
            RaiseInvalidValue();
        SetFloatProp(Instance, Prop, Value.AsFloat());
        break;
    case tkWChar:
        if (Value.Is(TFormValueKind::Integer)) {
            SetOrdProp(Instance, Prop, Value.AsInteger());
            break;
        }
        [[fallthrough]];
    case tkString:
    case tkLString:
    case tkWString:
        if (!Value.Is(TFormValueKind::String))
            RaiseInvalidValue();
        SetStrProp(Instance, Prop, Value.AsString());
        break;
    case tkClass:
        SetObject(Instance, Prop, Source);
        break;
    case tkMethod:
        SetMethod(Instance, Prop, Value);
        break;
    default:
        RaiseInvalidValue();
    }
}

void TComponentReader::SetObject(TPersistent& Instance, const TPropInfo& Prop, const TFormProperty& Source)
{
    const TFormValue& Value = Source.Value;
    if (Value.Is(TFormValueKind::Collection)) {
        auto* const Collection = dynamic_cast<TCollection*>(GetObjectProp(Instance, Prop));
        if (!Collection)
            RaiseInvalidValue();
        FLevels.assign(1, {std::span(&Value, 1), 0});
        ReadCollection(*Collection);
    } else if (!Value.Is(TFormValueKind::Ident)) {
        RaiseInvalidValue();
    } else if (Value.IsNil()) {
        SetObjectProp(Instance, Prop, nullptr);
    } else {
        FReferences.push_back({&Instance, &Prop, &Source, FOwner});
    }
}

void TComponentReader::SetMethod(TPersistent& Instance, const TPropInfo& Prop, const TFormValue& Value)
{
    if (!Value.Is(TFormValueKind::Ident))
        RaiseInvalidValue();
    if (Value.IsNil()) {
        SetMethodProp(Instance, Prop, {});
        return;
    }
    const TPublishedMethod* const Method = FRoot->ClassType().FindMethod(Value.AsIdent());
    if (!Method)
        throw EReadError(Format(SUnknownMethod, {Value.AsIdent()}));
    SetMethodProp(Instance, Prop, {FRoot, Method->Code});
}

void TComponentReader::ResolveReferences()
{
    for (const TComponentReference& Reference : FReferences) {
        std::string Reason;
        try {
            if (TComponent* const Found = FindReferenced(Reference)) {
                SetObjectProp(*Reference.Instance, *Reference.Prop, Found);
                continue;
            }
        } catch (const Exception& Error) {
            Reason = Error.Message();
        }
        if (Reason.empty())
            Reason = Format(SReferenceFixupFailed, {Reference.Source->Value.AsIdent()});
        if (FUnknownClasses == TUnknownClasses::Refuse)
            throw FDocument.ErrorAt(*Reference.Source, Reason);
        Reference.Instance->NeedDynamicProperties().AddOpaque(
            Reference.Prop->Name, std::make_unique<TFormValueHolder>(Reference.Source->Value));
    }
    FReferences.clear();
}

TComponent* TComponentReader::FindReferenced(const TComponentReference& Reference) const
{
    std::string_view Name = Reference.Source->Value.AsIdent();
    for (TComponent* Scope : {Reference.Lookup, FRoot}) {
        std::string_view Rest = Name;
        if (SameText(Rest, Scope->Name()))
            return Scope;
        while (Scope && !Rest.empty()) {
            const size_t Dot = std::min(Rest.find('.'), Rest.size());
            Scope = Scope->FindComponent(Rest.substr(0, Dot));
            Rest.remove_prefix(std::min(Dot + 1, Rest.size()));
        }
        if (Scope)
            return Scope;
    }
    return FindGlobalComponent ? FindGlobalComponent(Name) : nullptr;
}

void TComponentReader::DiscardNew() noexcept
{
    FReferences.clear();
    FComponents.clear();
    while (!FMade.empty()) {
        TComponent* const Last = FMade.back();
        FMade.pop_back();
        delete Last;
    }
}

void TComponentReader::DefineProperty(const std::string& Name, const std::function<void(TReader&)>& Read,
                                      const std::function<void(TWriter&)>&, bool)
{
    if (FTaken || !FWantedValue || !SameText(Name, FWanted))
        return;
    FTaken = true;
    FLevels.assign(1, {std::span(FWantedValue, 1), 0});
    Read(*this);
}

void TComponentReader::DefineBinaryProperty(const std::string& Name,
                                            const std::function<void(TStream&)>& Read,
                                            const std::function<void(TStream&)>&, bool)
{
    if (FTaken || !FWantedValue || !SameText(Name, FWanted))
        return;
    FTaken = true;
    if (!FWantedValue->Is(TFormValueKind::Binary))
        RaiseInvalidValue();
    TMemoryStream Stream(FWantedValue->AsBinary());
    Read(Stream);
}

const TFormValue& TComponentReader::NextValue()
{
    if (EndOfList())
        throw EReadError(SInvalidPropertyValue);
    TLevel& Level = FLevels.back();
    return Level.Values[Level.Next++];
}

bool TComponentReader::ReadBoolean()
{
    const TFormValue& Value = NextValue();
    if (!Value.IsBoolean())
        RaiseInvalidValue();
    return Value.IsIdent("True");
}

int64_t TComponentReader::ReadInteger()
{
    const TFormValue& Value = NextValue();
    if (!Value.Is(TFormValueKind::Integer))
        RaiseInvalidValue();
    return Value.AsInteger();
}

double TComponentReader::ReadFloat()
{
    const TFormValue& Value = NextValue();
    if (!Value.Is(TFormValueKind::Float) && !Value.Is(TFormValueKind::Integer))
        RaiseInvalidValue();
    return Value.AsFloat();
}

std::string TComponentReader::ReadString()
{
    const TFormValue& Value = NextValue();
    if (!Value.Is(TFormValueKind::String))
        RaiseInvalidValue();
    return Value.AsString();
}

std::string TComponentReader::ReadIdent()
{
    const TFormValue& Value = NextValue();
    if (!Value.Is(TFormValueKind::Ident))
        RaiseInvalidValue();
    return Value.AsIdent();
}

void TComponentReader::ReadListBegin()
{
    const TFormValue& Value = NextValue();
    if (!Value.Is(TFormValueKind::List))
        RaiseInvalidValue();
    FLevels.push_back({Value.AsList(), 0});
}

void TComponentReader::ReadListEnd()
{
    if (FLevels.size() < 2 || !EndOfList())
        RaiseInvalidValue();
    FLevels.pop_back();
}

bool TComponentReader::EndOfList() const
{
    return FLevels.empty() || FLevels.back().Next == FLevels.back().Values.size();
}

void TComponentReader::ReadCollection(TCollection& Collection)
{
    const TFormValue& Value = NextValue();
    if (!Value.Is(TFormValueKind::Collection))
        RaiseInvalidValue();
    const std::vector<TLevel> Levels = FLevels;
    Collection.BeginUpdate();
    try {
        Collection.Clear();
        for (const TFormItem& Item : Value.AsCollection())
            ReadProperties(*Collection.Add(), Item);
    } catch (...) {
        Collection.EndUpdate();
        throw;
    }
    Collection.EndUpdate();
    FLevels = Levels;
}
