// How the inspector shows and changes one published property.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "framework/design/Designer.h"

OBX_ENUM(TPropertyAttribute, paValueList, paSubProperties, paDialog, paMultiSelect, paAutoUpdate, paSortList,
         paReadOnly)
OBX_SET(TPropertyAttributes, TPropertyAttribute)

class TPropertyEditor;
using TPropertyEditors = std::vector<std::unique_ptr<TPropertyEditor>>;

// Edits the property of that name in all selected objects. Values are shown and
// entered as text. Errors of SetValue are EPropertyError or EConvertError; nothing is
// changed then, unless an object refused its value after others took theirs.
class TPropertyEditor {
public:
    // The objects may be of different classes; each has the property.
    struct TTarget {
        TPersistent* Instance;
        const TPropInfo* Prop;
    };
    using TTargets = std::vector<TTarget>;

    TPropertyEditor(TFormDesigner& Designer, TTargets Targets);
    virtual ~TPropertyEditor() = default;
    TPropertyEditor(const TPropertyEditor&) = delete;
    TPropertyEditor& operator=(const TPropertyEditor&) = delete;

    // paValueList     GetValues has values to choose from, paSortList sorted
    // paSubProperties GetProperties has editors for parts of the value
    // paDialog        Edit opens a dialog: the inspector shows an ellipsis button
    // paMultiSelect   may be edited for several objects at once
    // paReadOnly      the value cannot be typed in
    virtual TPropertyAttributes GetAttributes() const;
    virtual std::string GetName() const { return PropInfo().Name; }
    virtual std::string GetValue() const;
    virtual void SetValue(const std::string& Value);
    virtual void GetValues(const std::function<void(const std::string&)>& Visit) const;
    virtual TPropertyEditors GetProperties() const { return {}; }
    // The ellipsis button, or a double click on the value.
    virtual void Edit();
    // Whether all objects have the same value.
    virtual bool AllEqual() const;

protected:
    TFormDesigner& Designer() const { return FDesigner; }
    const TTargets& Targets() const { return FTargets; }
    // Of the first object.
    TPersistent& Instance() const { return *FTargets.front().Instance; }
    const TPropInfo& PropInfo() const { return *FTargets.front().Prop; }
    const TTypeInfo& Type() const { return *PropInfo().PropType; }
    void SetOrdinals(int64_t Value);
    // Calls Set for each object and tells the designer.
    void ForEachTarget(const std::function<void(TPersistent&, const TPropInfo&)>& Set);
    [[noreturn]] void RaiseInvalid() const;

private:
    TFormDesigner& FDesigner;
    TTargets FTargets;
};

// Makes an editor. What RegisterPropertyEditor takes for a class T:
// MakePropertyEditor<T>.
using TPropertyEditorMaker = std::unique_ptr<TPropertyEditor> (*)(TFormDesigner& Designer,
                                                                  TPropertyEditor::TTargets Targets);
template<class T>
std::unique_ptr<TPropertyEditor> MakePropertyEditor(TFormDesigner& Designer,
                                                    TPropertyEditor::TTargets Targets)
{
    return std::make_unique<T>(Designer, std::move(Targets));
}

// Lets Maker edit the properties of a type. With Component only those of that class
// and its descendants, with PropertyName only those of that name (letter case
// ignored). A class type stands for its descendants, too. The registration of a
// nearer class wins, then one with a name, then the one that came last.
void RegisterPropertyEditor(const TTypeInfo& PropertyType, const TMetaClass* Component,
                            const std::string& PropertyName, TPropertyEditorMaker Maker);
void UnregisterPropertyEditors(TPropertyEditorMaker Maker);

// The editors of the properties that all objects share, in published order, events
// apart: with Events those alone. Properties without an editor are left out.
TPropertyEditors GetPropertyEditors(TFormDesigner& Designer, const std::vector<TPersistent*>& Objects,
                                    bool Events);
