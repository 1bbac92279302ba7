#include "designer/PropertyDialogs.h"

#include "designer/LinesForm.h"
#include "framework/design/StandardEditors.h"
#include "framework/forms/ColorDialog.h"
#include "framework/forms/Edits.h"
#include "framework/forms/FontDialog.h"
#include "framework/forms/Panels.h"

namespace {

// In the row everything is as without the dialog.
class TDialogProperty : public TPropertyEditor {
public:
    TDialogProperty(TFormDesigner& Designer, const TTargets& Targets)
        : TPropertyEditor(Designer, Targets), FRow(MakeStandardEditor(Designer, Targets))
    {
    }

    TPropertyAttributes GetAttributes() const override
    {
        TPropertyAttributes Result = FRow->GetAttributes();
        Result.Include(paDialog);
        return Result;
    }
    std::string GetValue() const override { return FRow->GetValue(); }
    void SetValue(const std::string& Value) override { FRow->SetValue(Value); }
    void GetValues(const std::function<void(const std::string&)>& Visit) const override
    {
        FRow->GetValues(Visit);
    }
    TPropertyEditors GetProperties() const override { return FRow->GetProperties(); }
    bool AllEqual() const override { return FRow->AllEqual(); }

protected:
    // The objects get copies of Value.
    void SetObjects(TPersistent& Value)
    {
        ForEachTarget(
            [&](TPersistent& Object, const TPropInfo& Prop) { SetObjectProp(Object, Prop, &Value); });
    }

private:
    std::unique_ptr<TPropertyEditor> FRow;
};

class TLinesProperty : public TDialogProperty {
public:
    using TDialogProperty::TDialogProperty;

    void Edit() override
    {
        TStringList Lines;
        Lines.Assign(dynamic_cast<TPersistent*>(GetObjectProp(Instance(), PropInfo())));
        if (EditLines(PropInfo().Name, Lines))
            SetObjects(Lines);
    }
};

class TFontProperty : public TDialogProperty {
public:
    using TDialogProperty::TDialogProperty;

    void Edit() override
    {
        TFontDialog Dialog(nullptr);
        Dialog.SetFont(dynamic_cast<TFont*>(GetObjectProp(Instance(), PropInfo())));
        if (Dialog.Execute())
            SetObjects(*Dialog.Font());
    }
};

class TColorProperty : public TDialogProperty {
public:
    using TDialogProperty::TDialogProperty;

    void Edit() override
    {
        TColorDialog Dialog(nullptr);
        Dialog.SetColor(static_cast<TColor>(GetOrdProp(Instance(), PropInfo())));
        if (Dialog.Execute())
            SetOrdinals(Dialog.Color());
    }
};

template<class T>
void RegisterDialog(const TMetaClass& Class, const char* Property)
{
    UnregisterPropertyEditors(MakePropertyEditor<T>);
    RegisterPropertyEditor(*Class.FindProperty(Property)->PropType, nullptr, "", MakePropertyEditor<T>);
}

} // namespace

void RegisterPropertyDialogs()
{
    RegisterDialog<TLinesProperty>(TMemo::MetaClass(), "Lines");
    RegisterDialog<TFontProperty>(TPanel::MetaClass(), "Font");
    RegisterDialog<TColorProperty>(TPanel::MetaClass(), "Color");
}
