#include "editors/PropertiesEditor.h"

#include <unordered_set>

#include "EditorTexts.h"
#include "core/Hourglass.h"
#include "core/KeyLines.h"
#include "core/Literals.h"
#include "framework/forms/FormParts.h"
#include "framework/forms/InputForms.h"
#include "framework/forms/Labels.h"
#include "framework/forms/PushButtons.h"
#include "framework/rtl/FormatText.h"

const TMetaClass& TPropertiesEditor::MetaClass()
{
    using T = TPropertiesEditor;
    static const TMetaClass Class("TPropertiesEditor", &TTranslationEditor::MetaClass(), nullptr, {},
                                  {Published<&T::ListAvailClick>("ListAvailClick"),
                                   Published<&T::ListAvailMouseMove>("ListAvailMouseMove"),
                                   Published<&T::BtnIncludePropClick>("BtnIncludePropClick")});
    return Class;
}

void TPropertiesEditor::DoCreate()
{
    FindPart(*this, "ListAvail", ListAvail);
    FindPart(*this, "LblSelected", LblSelected);
    FindPart(*this, "BtnIncludeProp", BtnIncludeProp);
    FAvailSearch = std::make_unique<TListSearch>(*ListAvail);
    inherited::DoCreate();
    FSelectedFormat = LblSelected->Caption();
}

const std::string& TPropertiesEditor::Key(int Item) const
{
    return PropList->Items()->Get(Item);
}

// The item's line in the working list; -1 for none.
int TPropertiesEditor::LineOf(int Item) const
{
    int Line = -1;
    return FindKeyLine(FWorking, Key(Item), Line) ? Line : -1;
}

std::string TPropertiesEditor::Translation(int Item) const
{
    const int Line = LineOf(Item);
    return Line >= 0 ? FromLiterals(ValueOf(FWorking.Get(Line))) : "";
}

bool TPropertiesEditor::IsTranslated(int Item) const
{
    const int Line = LineOf(Item);
    return Line >= 0 && !FromLiterals(ValueOf(FWorking.Get(Line))).empty();
}

void TPropertiesEditor::SetTranslation(int Item, const std::string& Text)
{
    const int Line = LineOf(Item);
    if (Line < 0)
        return;
    const bool Literal = IsStringLiteral(ValueOf(FWorking.Get(Line)));
    const std::string Name = Key(Item);
    FWorking.Delete(Line);
    FWorking.SortInsert(Name + "=" + (Literal ? ToLiterals(Text) : Text), nullptr);
}

std::string TPropertiesEditor::Original(int Item) const
{
    return FOriginals.Text(Key(Item));
}

int TPropertiesEditor::LocalizedCount() const
{
    int Result = 0;
    for (int I = 0; I < FWorking.Count(); ++I)
        Result += FromLiterals(ValueOf(FWorking.Get(I))).empty() ? 0 : 1;
    return Result;
}

void TPropertiesEditor::AddItem()
{
    std::string Name;
    if (!InputQuery(SAddProperty, SPropertyName, Name) || Name.empty() ||
        PropList->Items()->IndexOf(Name) >= 0)
        return;
    FWorking.SortInsert(FOriginals.FirstLine(Name), nullptr);
    SetModified();
    RefreshPropList();
    ChooseItem(PropList->Items()->IndexOf(Name));
}

std::string TPropertiesEditor::RemoveQuestion() const
{
    return SRemoveProperty;
}

void TPropertiesEditor::RemoveSelected()
{
    for (int I = PropList->Items()->Count() - 1; I >= 0; --I)
        if (const int Line = PropList->Selected(I) ? LineOf(I) : -1; Line >= 0)
            FWorking.Delete(Line);
    SetModified();
    RefreshPropList();
}

void TPropertiesEditor::RefreshPropList()
{
    EmptyBox();
    const int Chosen = ChosenItem();
    const std::string ChosenKey = Chosen >= 0 ? Key(Chosen) : "";
    TStringList Keys;
    std::unordered_set<std::string> Included;
    for (int I = 0; I < FWorking.Count(); ++I)
        if (const std::string Each(KeyOf(FWorking.Get(I))); Included.insert(Each).second)
            Keys.Add(Each);
    PropList->Items()->Assign(&Keys);

    TStringList Available;
    for (int I = FOriginals.Lines().Count() - 1; I >= 0; --I)
        if (const std::string Each(KeyOf(FOriginals.Lines().Get(I)));
            !Each.starts_with("ActiveControl") && !Included.contains(Each))
            Available.Add(Each);
    FHintItem = -1;
    ListAvail->Items()->Assign(&Available);
    ListAvailClick(ListAvail);
    ChooseItem(Chosen >= 0 ? PropList->Items()->IndexOf(ChosenKey) : -1);
}

void TPropertiesEditor::ListAvailClick(TObject*)
{
    const int Count = ListAvail->SelCount();
    BtnIncludeProp->SetEnabled(Count > 0);
    LblSelected->SetCaption(Format(FSelectedFormat, {std::to_string(Count)}));
}

// The hint of the list is the value of what the mouse is over.
void TPropertiesEditor::ListAvailMouseMove(TObject*, TShiftState, int X, int Y)
{
    const int Item = ListAvail->ItemAtPos({X, Y}, true);
    if (Item == FHintItem)
        return;
    FHintItem = Item;
    Application->CancelHint();
    ListAvail->SetHint(Item >= 0 ? FOriginals.Text(ListAvail->Items()->Get(Item)) : "");
}

void TPropertiesEditor::BtnIncludePropClick(TObject*)
{
    const THourglass Hourglass;
    std::vector<std::string> Lines;
    for (int I = ListAvail->Items()->Count() - 1; I >= 0; --I)
        if (ListAvail->Selected(I))
            Lines.push_back(FOriginals.FirstLine(ListAvail->Items()->Get(I)));
    if (Lines.empty())
        return;
    MergeKeyLines(FWorking, std::move(Lines));
    SetModified();
    const int Top = ListAvail->TopIndex();
    RefreshPropList();
    ListAvail->SetTopIndex(Top);
}
