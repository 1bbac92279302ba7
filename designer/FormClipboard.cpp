#include "designer/FormClipboard.h"

#include <algorithm>
#include <map>
#include <set>

#include "framework/forms/Menus.h"
#include "framework/forms/WinControl.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/Texts.h"
#include "framework/streaming/FormText.h"

namespace {

constexpr int Step = 8; // pixels between a copy and its original

// By lower-case name, with the number of the first one that is free.
class TNames {
public:
    explicit TNames(const TFormObject& Root) { Collect(Root); }

    bool IsTaken(const std::string& Name) const { return FTaken.contains(LowerCase(Name)); }
    // "Button2" -> "Button3"
    std::string Free(const std::string& Name) const
    {
        const std::string Stem = Name.substr(0, Name.find_last_not_of("0123456789") + 1);
        for (int Number = 1;; ++Number)
            if (std::string Result = Stem + IntToStr(Number); !IsTaken(Result))
                return Result;
    }
    void Take(const std::string& Name) { FTaken.insert(LowerCase(Name)); }

private:
    // The parts of a frame have names of their own.
    void Collect(const TFormObject& Object)
    {
        Take(Object.Name());
        if (Object.Kind() != TFormObjectKind::Inline)
            for (const TFormObject& Each : Object.Children())
                Collect(Each);
    }

    std::set<std::string> FTaken;
};

using TRenamed = std::map<std::string, std::string>; // by lower-case name

void Rename(TFormObject& Object, TNames& Names, TRenamed& Renamed)
{
    if (!Object.Name().empty() && Names.IsTaken(Object.Name())) {
        const std::string Free = Names.Free(Object.Name());
        Renamed[LowerCase(Object.Name())] = Free;
        Object.SetName(Free);
    }
    Names.Take(Object.Name());
    if (Object.Kind() == TFormObjectKind::Inherited)
        Object.SetKind(TFormObjectKind::Object);
    if (Object.Kind() != TFormObjectKind::Inline)
        for (TFormObject& Each : Object.Children())
            Rename(Each, Names, Renamed);
}

// FocusControl = Edit1 goes to the copy of Edit1. Events keep their methods.
void Redirect(TFormObject& Object, const TRenamed& Renamed)
{
    for (TFormProperty& Each : Object.Properties()) {
        if (!Each.Value.Is(TFormValueKind::Ident) || Each.Name().starts_with("On"))
            continue;
        if (const auto Found = Renamed.find(LowerCase(Each.Value.AsIdent())); Found != Renamed.end())
            Each.Value = TFormValue::Ident(Found->second);
    }
    for (TFormObject& Each : Object.Children())
        Redirect(Each, Renamed);
}

void MoveAside(TFormObject& Object)
{
    for (const char* const Name : {"Left", "Top"})
        if (const TFormValue* const Value = Object.FindValue(Name);
            Value && Value->Is(TFormValueKind::Integer))
            Object.SetValue(Name, TFormValue::Integer(Value->AsInteger() + Step));
}

TFormObject* FindObject(TFormObject& Object, const std::string& Name)
{
    if (SameText(Object.Name(), Name))
        return &Object;
    for (TFormObject& Each : Object.Children())
        if (TFormObject* const Found = FindObject(Each, Name))
            return Found;
    return nullptr;
}

bool IsControl(const TFormObject& Object)
{
    const TMetaClass* const Class = GetClass(Object.ClassName());
    return Class ? Class->InheritsFrom(TControl::MetaClass())
                 : Object.Find("Width") || Object.Find("Height") || Object.Kind() == TFormObjectKind::Inline;
}

bool IsMenuItem(const TFormObject& Object)
{
    const TMetaClass* const Class = GetClass(Object.ClassName());
    return Class && Class->InheritsFrom(TMenuItem::MetaClass());
}

// The part of the form that a pasted object belongs into.
TFormObject& ContainerOf(const TFormObject& Object, TFormModel& Model, TFormDocument& Form)
{
    const auto Takes = [&](TComponent* Component) {
        if (IsMenuItem(Object))
            return dynamic_cast<TMenu*>(Component) || dynamic_cast<TMenuItem*>(Component);
        auto* const Control = dynamic_cast<TWinControl*>(Component);
        return Control && IsControl(Object) && Control->ControlStyle().Contains(csAcceptsControls);
    };
    for (TComponent* Each = Model.Selection().front(); Each && Each != &Model.Root();
         Each = Each->GetParentComponent())
        if (Model.IsOwn(Each) && Takes(Each))
            if (TFormObject* const Found = FindObject(Form.Root, Each->Name()))
                return *Found;
    if (IsMenuItem(Object))
        throw EComponentError(Object.Name() + " needs a menu to be pasted into: select one first");
    return Form.Root;
}

} // namespace

std::string SelectedAsText(TFormModel& Model)
{
    Model.Modified();
    std::string Result;
    for (const TComponent* const Each : Model.OutermostSelected()) {
        TFormDocument Form = Model.Document();
        TFormDocument Part;
        if (const TFormObject* const Found = FindObject(Form.Root, Each->Name()))
            Part.Root = *Found;
        Result += WriteFormText(Part);
    }
    return Result;
}

void PasteText(TFormModel& Model, const std::string& Text)
{
    TFormFileOptions Options;
    Options.FileName = "Clipboard";
    // On one line with the text, which keeps its lines' numbers.
    TFormDocument Pasted = ReadFormText("object Clipboard: TClipboard " + Text + "\r\nend\r\n", Options);
    Model.Modified();
    TFormDocument Form = Model.Document();
    TNames Names(Form.Root);
    TRenamed Renamed;
    for (TFormObject& Each : Pasted.Root.Children()) {
        const bool HasOriginal = Names.IsTaken(Each.Name());
        Rename(Each, Names, Renamed);
        if (HasOriginal)
            MoveAside(Each);
    }
    std::vector<std::string> Selected;
    for (TFormObject& Each : Pasted.Root.Children()) {
        Redirect(Each, Renamed);
        Selected.push_back(Each.Name());
        ContainerOf(Each, Model, Form).Children().push_back(Each);
    }
    if (!Selected.empty())
        Model.Rewrite(std::move(Form), Selected);
}
