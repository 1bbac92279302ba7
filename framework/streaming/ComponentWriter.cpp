#include "framework/streaming/ComponentWriter.h"

#include "framework/rtl/Collection.h"
#include "framework/rtl/DynamicProps.h"
#include "framework/rtl/Streams.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/GenericProps.h"

namespace {

TFormValue OrdinalValue(const TTypeInfo& Type, int64_t Ordinal)
{
    std::string Ident;
    if (Type.Idents && Type.Idents->IntToIdent(static_cast<int>(Ordinal), Ident))
        return TFormValue::Ident(Ident);
    return TFormValue::Integer(Ordinal);
}

TFormValue SetValue(const TTypeInfo& Type, int64_t Bits)
{
    const TTypeInfo& Names = Type.Element ? *Type.Element : Type;
    std::vector<std::string> Elements;
    for (int Bit = 0; Bit < 64; ++Bit)
        if (static_cast<uint64_t>(Bits) >> Bit & 1)
            Elements.push_back(GetEnumName(Names, Bit));
    return TFormValue::Set(std::move(Elements));
}

// A sub-object, not a reference to a component elsewhere.
const TPersistent* SubObject(const TObject* Held)
{
    const auto* const Component = dynamic_cast<const TComponent*>(Held);
    return Component && !Component->IsSubComponent() ? nullptr : dynamic_cast<const TPersistent*>(Held);
}

} // namespace

void ForEachWrittenChild(TComponent& Parent, TComponent& Root, const std::function<void(TComponent*)>& Visit)
{
    Parent.GetChildren(Visit, &Root);
    if (&Parent != &Root)
        return;
    for (int I = 0; I < Parent.ComponentCount(); ++I)
        if (!Parent.Components(I)->HasParent())
            Visit(Parent.Components(I));
}

TComponentWriter::TComponentWriter(TComponent& Root, TWrittenProperties Written)
    : FRoot(Root), FWritten(Written)
{
}

TFormObject TComponentWriter::WriteRoot()
{
    TFormObject Result = WriteComponent(FRoot);
    WriteChildren(FRoot, Result);
    return Result;
}

TFormObject TComponentWriter::WriteComponent(const TComponent& Component)
{
    const TFormObjectKind Kind =
        Component.HasState(csInline) ? TFormObjectKind::Inline : TFormObjectKind::Object;
    TFormObject Result(Kind, Component.Name(), Component.ClassName());
    WriteProperties(Component, "", Result);
    return Result;
}

void TComponentWriter::WriteChildren(TComponent& Parent, TFormObject& Target)
{
    ForEachWrittenChild(Parent, FRoot, [&](TComponent* Child) {
        Target.Children().push_back(WriteComponent(*Child));
        WriteChildren(*Child, Target.Children().back());
    });
}

void TComponentWriter::WriteProperties(const TPersistent& Instance, const std::string& Prefix,
                                       TFormProperties& Target)
{
    for (const TPropInfo* const Prop : GetPropList(Instance))
        if (IsStoredProp(Instance, *Prop))
            WriteProperty(Instance, *Prop, Prefix + Prop->Name, Target);
    TFormProperties* const OldTarget = FTarget;
    const std::string OldPrefix = FPrefix;
    FTarget = &Target;
    FPrefix = Prefix;
    // Declaring what there is to write does not change the object.
    const_cast<TPersistent&>(Instance).DefineProperties(*this);
    FTarget = OldTarget;
    FPrefix = OldPrefix;
}

void TComponentWriter::WriteProperty(const TPersistent& Instance, const TPropInfo& Prop,
                                     const std::string& Name, TFormProperties& Target)
{
    if (Prop.Kind() == tkClass) {
        WriteObject(Instance, Prop, Name, Target);
    } else if (Prop.Kind() == tkUnknown) {
        const auto* const Dynamic = Prop.IsDynamic ? &static_cast<const TDynamicProp&>(Prop) : nullptr;
        if (Dynamic)
            if (const auto* const Kept = dynamic_cast<TFormValueHolder*>(
                    std::get<std::unique_ptr<TPersistent>>(Dynamic->Value).get()))
                Target.Add(Name, Kept->Value);
    } else if (Prop.Kind() == tkMethod) {
        const std::string Method = MethodName(GetMethodProp(Instance, Prop));
        if (!Method.empty())
            Target.Add(Name, TFormValue::Ident(Method));
    } else if (Prop.CanWrite() && !(FWritten == TWrittenProperties::Changed && IsDefault(Instance, Prop))) {
        Target.Add(Name, SimpleValue(Instance, Prop));
    }
}

void TComponentWriter::WriteObject(const TPersistent& Instance, const TPropInfo& Prop,
                                   const std::string& Name, TFormProperties& Target)
{
    const TObject* const Held = GetObjectProp(Instance, Prop);
    if (const auto* const Texts = dynamic_cast<const TFormListTexts*>(Held)) {
        Target.Add(Name, Texts->Value());
    } else if (const auto* const Collection = dynamic_cast<const TCollection*>(Held)) {
        if (Collection->Count() > 0 || FWritten == TWrittenProperties::All)
            Target.Add(Name, CollectionValue(*Collection));
    } else if (const TPersistent* const Sub = SubObject(Held)) {
        WriteProperties(*Sub, Name + ".", Target);
    } else if (const auto* const Component = dynamic_cast<const TComponent*>(Held)) {
        const std::string Reference = NameOf(*Component);
        if (!Reference.empty() && Prop.CanWrite())
            Target.Add(Name, TFormValue::Ident(Reference));
    }
}

bool TComponentWriter::IsDefault(const TPersistent& Instance, const TPropInfo& Prop) const
{
    if (Prop.IsDynamic)
        return false;
    switch (Prop.Kind()) {
    case tkFloat:
        return GetFloatProp(Instance, Prop) == 0;
    case tkString:
    case tkLString:
    case tkWString:
        return GetStrProp(Instance, Prop).empty();
    case tkInt64:
        return GetOrdProp(Instance, Prop) == (Prop.HasDefault ? Prop.DefaultValue : 0);
    default:
        return Prop.HasDefault && GetOrdProp(Instance, Prop) == Prop.DefaultValue;
    }
}

TFormValue TComponentWriter::SimpleValue(const TPersistent& Instance, const TPropInfo& Prop) const
{
    switch (Prop.Kind()) {
    case tkInteger:
        return OrdinalValue(*Prop.PropType, GetOrdProp(Instance, Prop));
    case tkEnumeration:
        return TFormValue::Ident(GetEnumName(*Prop.PropType, GetOrdProp(Instance, Prop)));
    case tkSet:
        return SetValue(*Prop.PropType, GetOrdProp(Instance, Prop));
    case tkChar: {
        const auto Code = static_cast<unsigned char>(GetOrdProp(Instance, Prop));
        // Half of a character is no text.
        return Code < 0x80 ? TFormValue::String(std::string(1, static_cast<char>(Code)))
                           : TFormValue::Integer(Code);
    }
    case tkFloat:
        return TFormValue::Float(GetFloatProp(Instance, Prop));
    case tkInt64:
        return TFormValue::Integer(GetOrdProp(Instance, Prop));
    default:
        return TFormValue::String(GetStrProp(Instance, Prop));
    }
}

TFormValue TComponentWriter::CollectionValue(const TCollection& Collection)
{
    std::vector<TFormItem> Items(static_cast<size_t>(Collection.Count()));
    for (int I = 0; I < Collection.Count(); ++I)
        WriteProperties(*Collection.Items(I), "", Items[static_cast<size_t>(I)]);
    return TFormValue::Collection(std::move(Items));
}

std::string TComponentWriter::NameOf(const TComponent& Component) const
{
    const TComponent* const Owner = Component.Owner();
    if (&Component == &FRoot || Owner == &FRoot || !Owner || Owner->Name().empty() ||
        Component.Name().empty())
        return Component.Name();
    return Owner->Name() + "." + Component.Name();
}

std::string TComponentWriter::MethodName(const TMethod& Method) const
{
    if (!Method.Code || Method.Data != &FRoot)
        return "";
    for (const TMetaClass* Class = &FRoot.ClassType(); Class; Class = Class->ClassParent())
        for (const TPublishedMethod& Published : Class->OwnMethods())
            if (Published.Code == Method.Code)
                return Published.Name;
    return "";
}

void TComponentWriter::DefineProperty(const std::string& Name, const std::function<void(TReader&)>&,
                                      const std::function<void(TWriter&)>& Write, bool HasData)
{
    if (!HasData)
        return;
    FLevels.assign(1, {});
    Write(*this);
    if (FLevels.size() == 1 && FLevels[0].size() == 1)
        FTarget->Add(FPrefix + Name, std::move(FLevels[0][0]));
    else
        throw EWriteError(SWriteError);
}

void TComponentWriter::DefineBinaryProperty(const std::string& Name, const std::function<void(TStream&)>&,
                                            const std::function<void(TStream&)>& Write, bool HasData)
{
    if (!HasData)
        return;
    TMemoryStream Stream;
    Write(Stream);
    FTarget->Add(FPrefix + Name, TFormValue::Binary(Stream.Bytes()));
}

void TComponentWriter::WriteBoolean(bool Value)
{
    FLevels.back().push_back(TFormValue::Boolean(Value));
}

void TComponentWriter::WriteInteger(int64_t Value)
{
    FLevels.back().push_back(TFormValue::Integer(Value));
}

void TComponentWriter::WriteFloat(double Value)
{
    FLevels.back().push_back(TFormValue::Float(Value));
}

void TComponentWriter::WriteString(const std::string& Value)
{
    FLevels.back().push_back(TFormValue::String(Value));
}

void TComponentWriter::WriteIdent(const std::string& Value)
{
    FLevels.back().push_back(TFormValue::Ident(Value));
}

void TComponentWriter::WriteListBegin()
{
    FLevels.emplace_back();
}

void TComponentWriter::WriteListEnd()
{
    std::vector<TFormValue> Values = std::move(FLevels.back());
    FLevels.pop_back();
    FLevels.back().push_back(TFormValue::List(std::move(Values)));
}

void TComponentWriter::WriteCollection(const TCollection& Collection)
{
    std::vector<std::vector<TFormValue>> Levels = std::move(FLevels);
    TFormValue Value = CollectionValue(Collection);
    FLevels = std::move(Levels);
    FLevels.back().push_back(std::move(Value));
}
