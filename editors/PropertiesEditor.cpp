#include "editors/PropertiesEditor.h"

#include <unordered_set>

#include "EditorTexts.h"
#include "core/Hourglass.h"
#include "core/KeyLines.h"
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

std::string_view TPropertiesEditor::Value(int Item) const
{
    return WholeValueOf(FWorking.Get(Item));
}

// Looks at every line: a search in the list misses keys that begin alike. -1 for none.
int TPropertiesEditor::ItemOf(const std::string& Key) const
{
    for (int Item = 0; Item < FWorking.Count(); ++Item)
        if (BeginsWithKey(FWorking.Get(Item), Key))
            return Item;
    return -1;
}

std::string TPropertiesEditor::Translation(int Item) const
{
    return ShownText(Value(Item));
}

bool TPropertiesEditor::IsTranslated(int Item) const
{
    return !ShownText(Value(Item)).empty();
}

void TPropertiesEditor::SetTranslation(int Item, const std::string& Text)
{
    FWorking.Put(Item, PropList->Items()->Get(Item) + "=" + StoredText(Text, Value(Item)));
}

std::string TPropertiesEditor::Original(int Item) const
{
    return FOriginals.Text(PropList->Items()->Get(Item));
}

int TPropertiesEditor::LocalizedCount() const
{
    int Result = 0;
    for (int I = 0; I < FWorking.Count(); ++I)
        Result += IsTranslated(I) ? 1 : 0;
    return Result;
}

void TPropertiesEditor::AddItem()
{
    std::string Name;
    if (!InputQuery(SAddProperty, SPropertyName, Name) || Name.empty() || ItemOf(Name) >= 0)
        return;
    FWorking.SortInsert(FOriginals.FirstLine(Name), nullptr);
    SetModified();
    RefreshPropList();
    ChooseItem(ItemOf(Name));
}

std::string TPropertiesEditor::RemoveQuestion() const
{
    return SRemoveProperty;
}

void TPropertiesEditor::RemoveSelected()
{
    for (int I = PropList->Items()->Count() - 1; I >= 0; --I)
        if (PropList->Selected(I))
            FWorking.Delete(I);
    SetModified();
    RefreshPropList();
}

void TPropertiesEditor::RefreshPropList()
{
    EmptyBox();
    const int Chosen = ChosenItem();
    const std::string ChosenKey = Chosen >= 0 ? PropList->Items()->Get(Chosen) : "";
    TStringList Keys;
    std::unordered_set<std::string> Included;
    for (int I = 0; I < FWorking.Count(); ++I) {
        Keys.Add(std::string(KeyOf(FWorking.Get(I))));
        Included.insert(Keys.Get(I));
    }
    PropList->Items()->Assign(&Keys);

    TStringList Available;
    for (int I = FOriginals.Lines().Count() - 1; I >= 0; --I)
        if (const std::string Each(KeyOf(FOriginals.Lines().Get(I)));
            !Each.starts_with("ActiveControl") && !Included.contains(Each))
            Available.Add(Each);
    // The list has this order itself; items that come in it need no room made.
    Available.Sort();
    FHintItem = -1;
    ListAvail->SetHint("");
    ListAvail->Items()->Assign(&Available);
    ListAvailClick(ListAvail);
    ChooseItem(Chosen >= 0 ? ItemOf(ChosenKey) : -1);
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
    GoOnIn(*ListAvail);
}
