#include "framework/design/StandardEditors.h"

#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/Utf8.h"

namespace {

class TIntegerProperty : public TPropertyEditor {
public:
    using TPropertyEditor::TPropertyEditor;

    std::string GetValue() const override
    {
        const int64_t Value = GetOrdProp(Instance(), PropInfo());
        std::string Ident;
        if (Type().Idents && Type().Idents->IntToIdent(static_cast<int>(Value), Ident))
            return Ident;
        return IntToStr(Value);
    }
    void SetValue(const std::string& Value) override
    {
        int Named = 0;
        if (Type().Idents && Type().Idents->IdentToInt(Value, Named)) {
            SetOrdinals(Named);
            return;
        }
        const int64_t Number = StrToInt64(Value);
        if (Type().MinValue < Type().MaxValue && (Number < Type().MinValue || Number > Type().MaxValue))
            throw EPropertyError(Format(SPropertyOutOfRange, {Value}));
        SetOrdinals(Number);
    }
};

class TCharProperty : public TPropertyEditor {
public:
    using TPropertyEditor::TPropertyEditor;

    std::string GetValue() const override
    {
        const auto Value = static_cast<unsigned char>(GetOrdProp(Instance(), PropInfo()));
        return Value > 32 && Value < 127 ? std::string(1, static_cast<char>(Value)) : "#" + IntToStr(Value);
    }
    void SetValue(const std::string& Value) override
    {
        if (Value.size() == 1)
            SetOrdinals(static_cast<unsigned char>(Value[0]));
        else if (Value.starts_with('#') && StrToInt(Value.substr(1)) >= 0 && StrToInt(Value.substr(1)) < 256)
            SetOrdinals(StrToInt(Value.substr(1)));
        else
            RaiseInvalid();
    }
};

class TEnumProperty : public TPropertyEditor {
public:
    using TPropertyEditor::TPropertyEditor;

    TPropertyAttributes GetAttributes() const override { return {paMultiSelect, paValueList, paSortList}; }
    std::string GetValue() const override { return GetEnumName(Type(), GetOrdProp(Instance(), PropInfo())); }
    void SetValue(const std::string& Value) override
    {
        const int64_t Ordinal = GetEnumValue(Type(), Value);
        if (Ordinal < 0)
            RaiseInvalid();
        SetOrdinals(Ordinal);
    }
    void GetValues(const std::function<void(const std::string&)>& Visit) const override
    {
        for (const std::string& Name : Type().Names)
            Visit(Name);
    }
};

// One element of a set, as True and False.
class TSetElementProperty : public TPropertyEditor {
public:
    TSetElementProperty(TFormDesigner& Designer, TTargets Targets, int Element)
        : TPropertyEditor(Designer, std::move(Targets)), FElement(Element)
    {
    }

    TPropertyAttributes GetAttributes() const override { return {paMultiSelect, paValueList, paSortList}; }
    std::string GetName() const override { return GetEnumName(*Type().Element, FElement); }
    std::string GetValue() const override { return IsIn(Instance(), PropInfo()) ? "True" : "False"; }
    void SetValue(const std::string& Value) override
    {
        const bool Wanted = SameText(Value, "True");
        if (!Wanted && !SameText(Value, "False"))
            RaiseInvalid();
        ForEachTarget([&](TPersistent& Object, const TPropInfo& Prop) {
            const auto Bits = static_cast<uint64_t>(GetOrdProp(Object, Prop));
            const uint64_t Bit = uint64_t{1} << FElement;
            SetOrdProp(Object, Prop, static_cast<int64_t>(Wanted ? Bits | Bit : Bits & ~Bit));
        });
    }
    void GetValues(const std::function<void(const std::string&)>& Visit) const override
    {
        Visit("False");
        Visit("True");
    }
    bool AllEqual() const override
    {
        for (const TTarget& Each : Targets())
            if (IsIn(*Each.Instance, *Each.Prop) != IsIn(Instance(), PropInfo()))
                return false;
        return true;
    }

private:
    bool IsIn(const TPersistent& Object, const TPropInfo& Prop) const
    {
        return (static_cast<uint64_t>(GetOrdProp(Object, Prop)) >> FElement & 1) != 0;
    }

    int FElement;
};

class TSetProperty : public TPropertyEditor {
public:
    using TPropertyEditor::TPropertyEditor;

    TPropertyAttributes GetAttributes() const override
    {
        return {paMultiSelect, paSubProperties, paReadOnly};
    }
    std::string GetValue() const override
    {
        const auto Bits = static_cast<uint64_t>(GetOrdProp(Instance(), PropInfo()));
        std::string Result;
        for (int I = 0; I < ElementCount(); ++I)
            if (Bits >> I & 1)
                Result += (Result.empty() ? "" : ",") + GetEnumName(*Type().Element, I);
        return "[" + Result + "]";
    }
    TPropertyEditors GetProperties() const override
    {
        TPropertyEditors Result;
        for (int I = 0; I < ElementCount(); ++I)
            Result.push_back(std::make_unique<TSetElementProperty>(Designer(), Targets(), I));
        return Result;
    }

private:
    int ElementCount() const { return Type().Element ? static_cast<int>(Type().Element->Names.size()) : 0; }
};

class TFloatProperty : public TPropertyEditor {
public:
    using TPropertyEditor::TPropertyEditor;

    std::string GetValue() const override { return FloatToStr(GetFloatProp(Instance(), PropInfo())); }
    void SetValue(const std::string& Value) override
    {
        const auto Number = static_cast<double>(StrToFloat(Value));
        ForEachTarget(
            [Number](TPersistent& Object, const TPropInfo& Prop) { SetFloatProp(Object, Prop, Number); });
    }
};

class TStringProperty : public TPropertyEditor {
public:
    using TPropertyEditor::TPropertyEditor;

    std::string GetValue() const override { return GetStrProp(Instance(), PropInfo()); }
    void SetValue(const std::string& Value) override
    {
        ForEachTarget([&](TPersistent& Object, const TPropInfo& Prop) { SetStrProp(Object, Prop, Value); });
    }
};

// One character of any language; those without a shape by their number.
class TWideCharProperty : public TStringProperty {
public:
    using TStringProperty::TStringProperty;

    std::string GetValue() const override
    {
        const std::string Value = TStringProperty::GetValue();
        const auto First = Value.empty() ? 0 : static_cast<unsigned char>(Value[0]);
        return First > ' ' ? Value : "#" + IntToStr(First);
    }
    void SetValue(const std::string& Value) override
    {
        if (!Value.starts_with('#') || Value.size() == 1) {
            if (Utf8ToUtf16(Value).size() != 1)
                RaiseInvalid();
            TStringProperty::SetValue(Value);
            return;
        }
        const int Code = StrToInt(Value.substr(1));
        if (Code < 0 || Code > 0xFFFF)
            RaiseInvalid();
        TStringProperty::SetValue(Utf16ToUtf8(std::u16string(1, static_cast<char16_t>(Code))));
    }
};

// A component by its name, to choose from those that fit.
class TComponentProperty : public TPropertyEditor {
public:
    using TPropertyEditor::TPropertyEditor;

    TPropertyAttributes GetAttributes() const override { return {paMultiSelect, paValueList, paSortList}; }
    std::string GetValue() const override
    {
        const auto* const Value = dynamic_cast<const TComponent*>(GetObjectProp(Instance(), PropInfo()));
        return Value ? Designer().GetComponentName(Value) : "";
    }
    void SetValue(const std::string& Value) override
    {
        TComponent* const Component = Value.empty() ? nullptr : Designer().GetComponent(Value);
        if (!Value.empty() && (!Component || !Component->InheritsFrom(Type().Class())))
            RaiseInvalid();
        ForEachTarget([Component](TPersistent& Object, const TPropInfo& Prop) {
            SetObjectProp(Object, Prop, Component);
        });
    }
    void GetValues(const std::function<void(const std::string&)>& Visit) const override
    {
        Designer().GetComponentNames(Type().Class(), Visit);
    }
};

// An object that belongs to the component: its own properties are the parts.
class TClassProperty : public TPropertyEditor {
public:
    using TPropertyEditor::TPropertyEditor;

    TPropertyAttributes GetAttributes() const override
    {
        return {paMultiSelect, paSubProperties, paReadOnly};
    }
    std::string GetValue() const override
    {
        const TObject* const Value = GetObjectProp(Instance(), PropInfo());
        return Value ? "(" + Value->ClassName() + ")" : "";
    }
    TPropertyEditors GetProperties() const override
    {
        std::vector<TPersistent*> Parts;
        for (const TTarget& Each : Targets()) {
            auto* const Part = dynamic_cast<TPersistent*>(GetObjectProp(*Each.Instance, *Each.Prop));
            if (!Part)
                return {};
            Parts.push_back(Part);
        }
        return GetPropertyEditors(Designer(), Parts, false);
    }
};

bool NamesComponent(const TPropertyEditor::TTarget& Target)
{
    const TTypeInfo& Type = *Target.Prop->PropType;
    if (!Type.Class || !Type.Class().InheritsFrom(TComponent::MetaClass()))
        return false;
    const auto* const Value = dynamic_cast<const TComponent*>(GetObjectProp(*Target.Instance, *Target.Prop));
    return !Value || !Value->IsSubComponent();
}

} // namespace

std::unique_ptr<TPropertyEditor> MakeStandardEditor(TFormDesigner& Designer,
                                                    TPropertyEditor::TTargets Targets)
{
    switch (Targets.front().Prop->Kind()) {
    case tkInteger:
    case tkInt64:
        return MakePropertyEditor<TIntegerProperty>(Designer, std::move(Targets));
    case tkChar:
        return MakePropertyEditor<TCharProperty>(Designer, std::move(Targets));
    case tkEnumeration:
        return MakePropertyEditor<TEnumProperty>(Designer, std::move(Targets));
    case tkSet:
        return MakePropertyEditor<TSetProperty>(Designer, std::move(Targets));
    case tkFloat:
        return MakePropertyEditor<TFloatProperty>(Designer, std::move(Targets));
    case tkString:
    case tkLString:
    case tkWString:
        return MakePropertyEditor<TStringProperty>(Designer, std::move(Targets));
    case tkWChar:
        return MakePropertyEditor<TWideCharProperty>(Designer, std::move(Targets));
    case tkClass:
        return NamesComponent(Targets.front())
                   ? MakePropertyEditor<TComponentProperty>(Designer, std::move(Targets))
                   : MakePropertyEditor<TClassProperty>(Designer, std::move(Targets));
    case tkUnknown:
        return MakeKeptEditor(Designer, std::move(Targets));
    default:
        return nullptr;
    }
}
