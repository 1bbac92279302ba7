// The editors of what only form files know: names of event handlers, and values that
// are kept as the file has them.
#include "framework/design/StandardEditors.h"

#include "framework/rtl/DynamicProps.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/GenericProps.h"

namespace {

const TFormValue* KeptValue(const TPersistent& Object, const std::string& Name)
{
    const auto* const Dynamic = Object.DynamicProperties();
    const TDynamicProp* const Prop = Dynamic ? Dynamic->Find(Name) : nullptr;
    if (!Prop || Prop->Kind() != tkUnknown)
        return nullptr;
    const auto* const Holder =
        dynamic_cast<const TFormValueHolder*>(std::get<std::unique_ptr<TPersistent>>(Prop->Value).get());
    return Holder ? &Holder->Value : nullptr;
}

// Rows of properties come and go with their values, so that the editor keeps the name.
class TEventProperty : public TPropertyEditor {
public:
    TEventProperty(TFormDesigner& Designer, TTargets Targets)
        : TPropertyEditor(Designer, std::move(Targets)), FName(PropInfo().Name)
    {
    }

    std::string GetName() const override { return FName; }
    std::string GetValue() const override { return HandlerOf(Instance()); }
    void SetValue(const std::string& Value) override
    {
        if (!Value.empty() && !IsValidIdent(Value))
            throw EPropertyError(Format(SInvalidName, {Value}));
        for (const TTarget& Each : Targets())
            if (Value.empty())
                Each.Instance->NeedDynamicProperties().Remove(FName);
            else
                Each.Instance->NeedDynamicProperties().AddOpaque(
                    FName, std::make_unique<TFormValueHolder>(TFormValue::Ident(Value)));
        Designer().Modified();
    }
    bool AllEqual() const override
    {
        for (const TTarget& Each : Targets())
            if (HandlerOf(*Each.Instance) != GetValue())
                return false;
        return true;
    }
    // Names a handler after component and event: BtnSaveClick.
    void Edit() override
    {
        const auto* const Component = dynamic_cast<const TComponent*>(&Instance());
        if (!Component || !GetValue().empty())
            return;
        const std::string Owner = Component == &Designer().Root() ? "Form" : Component->Name();
        SetValue(Owner + (FName.starts_with("On") ? FName.substr(2) : FName));
    }

private:
    std::string HandlerOf(const TPersistent& Object) const
    {
        const TFormValue* const Value = KeptValue(Object, FName);
        return Value && Value->Is(TFormValueKind::Ident) && !Value->IsNil() ? Value->AsIdent() : "";
    }

    std::string FName;
};

class TKeptProperty : public TPropertyEditor {
public:
    using TPropertyEditor::TPropertyEditor;

    TPropertyAttributes GetAttributes() const override { return {paReadOnly}; }
    std::string GetValue() const override
    {
        const TFormValue* const Value = KeptValue(Instance(), PropInfo().Name);
        if (!Value)
            return {};
        switch (Value->Kind()) {
        case TFormValueKind::Ident:
            return Value->AsIdent();
        case TFormValueKind::Binary:
            return "(" + IntToStr(static_cast<int64_t>(Value->AsBinary().size())) + " bytes)";
        default:
            return "(...)";
        }
    }
};

} // namespace

std::unique_ptr<TPropertyEditor> MakeEventEditor(TFormDesigner& Designer, TPropertyEditor::TTargets Targets)
{
    return MakePropertyEditor<TEventProperty>(Designer, std::move(Targets));
}

std::unique_ptr<TPropertyEditor> MakeKeptEditor(TFormDesigner& Designer, TPropertyEditor::TTargets Targets)
{
    return MakePropertyEditor<TKeptProperty>(Designer, std::move(Targets));
}
