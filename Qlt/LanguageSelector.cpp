// The language selector of TLocaleTranslator: the control or menu that shows the
// languages and lets the user choose.
#include <algorithm>
#include <array>

#include "Qlt/Qlt.h"
#include "core/KeyLines.h"
#include "framework/forms/ComboBoxes.h"
#include "framework/forms/GroupBoxes.h"
#include "framework/forms/ListBoxes.h"
#include "framework/forms/Menus.h"
#include "framework/forms/MessageForms.h"
#include "framework/forms/Notebooks.h"
#include "framework/rtl/SysUtils.h"

namespace {

// Set while a click on a radio group is being carried out, of whichever
// translator: the group clicks by itself when the active locale is marked, and
// must not be rebuilt under the button that was clicked.
bool RadioGroupClick = false;

// A control whose items are the languages.
struct TListSelector {
    TControl* Control = nullptr;
    TStrings* Lines = nullptr;
    int Index = -1; // of the line that is chosen
    void (*SetIndex)(TControl&, int) = nullptr;
    void (TLocaleTranslator::*OnClick)(TObject*) = nullptr;
};

template<class TList>
TListSelector ListSelector(TList& List, void (TLocaleTranslator::*OnClick)(TObject*))
{
    return {&List, List.Items(), List.ItemIndex(),
            [](TControl& Control, int Index) { static_cast<TList&>(Control).SetItemIndex(Index); }, OnClick};
}

// Without a control for other components.
TListSelector AsListSelector(TObject* Component)
{
    if (auto* const TabSet = dynamic_cast<TTabSet*>(Component))
        return {TabSet, TabSet->Tabs(), TabSet->TabIndex(),
                [](TControl& Control, int Index) { static_cast<TTabSet&>(Control).SetTabIndex(Index); },
                &TLocaleTranslator::OnTabSetClick};
    if (auto* const ListBox = dynamic_cast<TListBox*>(Component))
        return ListSelector(*ListBox, &TLocaleTranslator::OnListBoxClick);
    if (auto* const ComboBox = dynamic_cast<TComboBox*>(Component))
        return ListSelector(*ComboBox, &TLocaleTranslator::OnComboBoxClick);
    if (auto* const RadioGroup = dynamic_cast<TRadioGroup*>(Component))
        return ListSelector(*RadioGroup, &TLocaleTranslator::OnRadioGroupClick);
    return {};
}

// The item below which the languages are; null for other components.
TMenuItem* AsMenuSelector(TComponent* Component)
{
    if (auto* const Menu = dynamic_cast<TMenu*>(Component))
        return dynamic_cast<TMainMenu*>(Menu) || dynamic_cast<TPopupMenu*>(Menu) ? Menu->Items() : nullptr;
    return dynamic_cast<TMenuItem*>(Component);
}

} // namespace

bool CanBeLanguageSelector(TComponent* Component)
{
    return AsListSelector(Component).Control || AsMenuSelector(Component);
}

void TLocaleTranslator::SetAdoptOn(TComponent* Value)
{
    if (Value == FAdoptOn)
        return;
    if (Value && !CanBeLanguageSelector(Value)) {
        ShowMessage("Error setting AdoptOn property, an illigal component");
        return;
    }
    FAdoptOn = Value;
    if (Value)
        FreeNotification(Value);
    UpdateAdoptOn();
}

void TLocaleTranslator::SetListFormat(const std::string& Value)
{
    if (Value == FListFormat)
        return;
    if (Value.find('%') == std::string::npos) {
        ShowMessage("Invalid format string, you must provide at least one string index");
        return;
    }
    FListFormat = Value;
    UpdateAdoptOn();
}

void TLocaleTranslator::UpdateAdoptOn()
{
    const TLife Life(*this);
    TListSelector List = AsListSelector(FAdoptOn);
    TMenuItem* const Menu = AsMenuSelector(FAdoptOn);
    if (RadioGroupClick && dynamic_cast<TRadioGroup*>(FAdoptOn))
        List = {};
    if (List.Control) {
        TakeOver(*List.Control, {this, List.OnClick});
        List.Lines->Clear();
    } else if (Menu)
        ClearMenu(*Menu);
    if (Life.IsOver())
        return;
    if (FAdoptOn)
        UpdateLangList();
    if (List.Control)
        List.Lines->AddStrings(*FLangList);
    else if (Menu)
        AddLanguages(*Menu);
    if (!Life.IsOver())
        UpdateLanguageSelection();
}

void TLocaleTranslator::TakeOver(TControl& Control, const TNotifyEvent& Handler)
{
    Control.OnClick = Handler;
    if (std::find(FTakenOver.begin(), FTakenOver.end(), &Control) != FTakenOver.end())
        return;
    FTakenOver.push_back(&Control);
    FreeNotification(&Control);
}

// A control that outlives the translator must not call it.
void TLocaleTranslator::ReleaseControls()
{
    for (TControl* const Control : FTakenOver)
        if (Control->OnClick.Method().Data == this)
            Control->OnClick.Clear();
}

// Of a whole menu, it is from each item the sub-item of the item's own number
// that goes.
void TLocaleTranslator::ClearMenu(TMenuItem& Menu)
{
    const TLife Life(*this);
    for (int I = Menu.Count() - 1; I >= 0 && !Life.IsOver(); --I)
        DropItem(&Menu == FAdoptOn ? Menu : *Menu.Items(I), I);
    if (!Life.IsOver())
        DestroyDroppedItems();
}

// The items of others belong to their owners.
void TLocaleTranslator::DropItem(TMenuItem& Menu, int Index)
{
    TMenuItem* const Item = Menu.Items(Index);
    if (Item->Owner() == this)
        FDroppedItems.push_back(Item);
    Menu.Delete(Index);
}

void TLocaleTranslator::DestroyDroppedItems()
{
    while (FClickDepth == 0 && !FDroppedItems.empty())
        delete FDroppedItems.back(); // Notification takes it out of the list
}

void TLocaleTranslator::AddLanguages(TMenuItem& Menu)
{
    const TLife Life(*this);
    for (int I = 0; !Life.IsOver() && I < FLangList->Count(); ++I) {
        auto* const Item = new TMenuItem(this);
        Item->SetCaption(FLangList->Get(I));
        Item->SetTag(ObjectInteger(FLangList->Objects(I)));
        Item->OnClick = {this, &TLocaleTranslator::OnMenuItemClick};
        Item->SetRadioItem(true);
        Menu.Add(Item);
    }
}

// A name that a locale lacks is that of the locale before it.
void TLocaleTranslator::UpdateLangList()
{
    std::string EnglishName, EnglishCountry, NativeCountry;
    FLangList->Clear();
    for (int I = 0; I < FTranslations->Count(); ++I) {
        const std::string& Entry = FTranslations->Get(I);
        const std::string_view Key = KeyOf(Entry);
        const size_t PrefixSize = Key.find('_');
        if (PrefixSize == std::string_view::npos || !Key.substr(PrefixSize).ends_with("NAME"))
            continue;
        const std::string_view Name = Key.substr(PrefixSize);
        const std::string Value(ValueOf(Entry, MaxFileValueBytes));
        if (Name == EnglishCountryKey)
            EnglishCountry = Value;
        else if (Name == EnglishNameKey)
            EnglishName = Value;
        else if (Name == NativeCountryKey)
            NativeCountry = Value;
        else if (Name == NativeNameKey) {
            TObject* const Lcid = IntegerObject(HexToInt(Key.substr(0, PrefixSize)));
            if (FLangList->IndexOfObject(Lcid) < 0)
                FLangList->SortInsert(
                    Format(FListFormat, {EnglishName, EnglishCountry, Value, NativeCountry}), Lcid);
        }
    }
}

void TLocaleTranslator::UpdateLanguageSelection()
{
    const TListSelector List = AsListSelector(FAdoptOn);
    if (List.Control)
        List.SetIndex(*List.Control, List.Lines->IndexOfObject(IntegerObject(FActiveLocale)));
    else
        CheckActiveItem();
}

// Menus tell each change, also to handlers that destroy them.
void TLocaleTranslator::CheckActiveItem()
{
    const TLife Life(*this);
    for (int I = 0; !Life.IsOver(); ++I) {
        const TMenuItem* const Menu = AsMenuSelector(FAdoptOn);
        if (!Menu || I >= Menu->Count())
            return;
        Menu->Items(I)->SetChecked(Menu->Items(I)->Tag() == FActiveLocale);
    }
}

void TLocaleTranslator::OnTabSetClick(TObject* Sender)
{
    ChooseFrom(Sender);
}

void TLocaleTranslator::OnListBoxClick(TObject* Sender)
{
    ChooseFrom(Sender);
}

void TLocaleTranslator::OnComboBoxClick(TObject* Sender)
{
    ChooseFrom(Sender);
}

void TLocaleTranslator::OnRadioGroupClick(TObject* Sender)
{
    if (RadioGroupClick)
        return;
    struct TRadioClick {
        TRadioClick() { RadioGroupClick = true; }
        ~TRadioClick() { RadioGroupClick = false; }
    } const Click;
    ChooseFrom(Sender);
}

// Keeps the menu item that is being clicked alive.
class TLocaleTranslator::TClick {
public:
    explicit TClick(TLocaleTranslator& Translator) : FTranslator(Translator), FLife(Translator)
    {
        ++FTranslator.FClickDepth;
    }
    TClick(const TClick&) = delete;
    TClick& operator=(const TClick&) = delete;
    ~TClick()
    {
        if (!FLife.IsOver())
            --FTranslator.FClickDepth;
    }

private:
    TLocaleTranslator& FTranslator;
    const TLife FLife;
};

void TLocaleTranslator::OnMenuItemClick(TObject* Sender)
{
    const TClick Click(*this);
    Choose(dynamic_cast<TMenuItem&>(*Sender).Tag());
}

// Nothing is chosen between two items.
void TLocaleTranslator::ChooseFrom(TObject* Sender)
{
    const TListSelector List = AsListSelector(Sender);
    if (List.Control && List.Index >= 0 && List.Index < List.Lines->Count())
        Choose(ObjectInteger(List.Lines->Objects(List.Index)));
}

void TLocaleTranslator::Choose(int Lcid)
{
    if (Lcid == FActiveLocale)
        return;
    const TLife Life(*this);
    TranslateLocale(Lcid);
    if (!Life.IsOver() && OnLocaleSelected)
        OnLocaleSelected(this);
}

void TLocaleTranslator::Notification(TComponent* Component, TOperation Operation)
{
    TTranslatorFrame::Notification(Component, Operation);
    if (Operation != opRemove)
        return;
    std::erase(FTakenOver, Component);
    std::erase(FDroppedItems, Component);
    if (Component == FAdoptOn && Component != this)
        FAdoptOn = nullptr;
}
