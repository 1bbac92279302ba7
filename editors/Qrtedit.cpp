#include "editors/Qrtedit.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "EditorTexts.h"
#include "core/Hourglass.h"
#include "editors/EditorLanguage.h"
#include "framework/forms/FormParts.h"
#include "framework/forms/InputForms.h"
#include "framework/forms/PushButtons.h"
#include "framework/rtl/FormatText.h"
#include "framework/rtl/Modules.h"
#include "platform/Strings.h"

namespace {

// Where modules have the resource strings of their units.
constexpr UINT LowestIdentifier = 32768;
constexpr UINT HighestIdentifier = 65535;
constexpr int BufferBytes = 255;

bool IsContinuation(char Byte)
{
    return (static_cast<unsigned char>(Byte) & 0xC0) == 0x80;
}

// Without the beginning of a character that a full buffer may end with.
std::string_view WholeCharacters(std::string_view Text)
{
    size_t Start = Text.size();
    while (Start > 0 && Text.size() - Start < 3 && IsContinuation(Text[Start - 1]))
        --Start;
    if (Start == 0)
        return Text;
    const auto Lead = static_cast<unsigned char>(Text[Start - 1]);
    const size_t Wanted = Lead >= 0xF0 ? 3 : Lead >= 0xE0 ? 2 : Lead >= 0xC0 ? 1 : 0;
    return Text.size() - Start < Wanted ? Text.substr(0, Start - 1) : Text;
}

std::string FileNameOf(HINSTANCE Module)
{
    char Buffer[BufferBytes] = "";
    GetModuleFileNameA(Module, Buffer, BufferBytes);
    return std::string(WholeCharacters(Buffer));
}

// Cut to the buffer; empty for none.
std::string LoadText(HINSTANCE Module, UINT Identifier)
{
    char Buffer[BufferBytes];
    const int Length = LoadStringA(Module, Identifier, Buffer, BufferBytes);
    return std::string(WholeCharacters({Buffer, static_cast<size_t>(std::max(Length, 0))}));
}

} // namespace

const TMetaClass& TResEditor::MetaClass()
{
    using T = TResEditor;
    static const TMetaClass Class("TResEditor", &TTranslationEditor::MetaClass(), CreateComponent<T>, {},
                                  {Published<&T::ModuleListClick>("ModuleListClick"),
                                   Published<&T::ResStringListDrawItem>("ResStringListDrawItem"),
                                   Published<&T::BtnIncludeClick>("BtnIncludeClick")});
    return Class;
}

void TResEditor::DoCreate()
{
    FindPart(*this, "ModuleList", ModuleList);
    FindPart(*this, "ResStringList", ResStringList);
    FindPart(*this, "BtnInclude", BtnInclude);
    FModuleSearch = std::make_unique<TListSearch>(*ModuleList);
    FStringSearch = std::make_unique<TListSearch>(*ResStringList);
    inherited::DoCreate();
}

TResourceTranslator& TResEditor::ResTranslator() const
{
    return dynamic_cast<TResourceTranslator&>(Translator());
}

void TResEditor::TakeTranslations()
{
    TakeFrom(ResTranslator());
    if (FSources.Count() == 0) {
        try {
            GetTranslatorProps();
        } catch (...) {
            Application->HandleException(this);
        }
    }
    UpdateModuleList();
    RefreshLists();
}

// Sources that have no translation in the list get an empty one.
void TResEditor::TakeFrom(const TResourceTranslator& Translator)
{
    FTranslations.Assign(Translator.Translations());
    FSources.Assign(&Translator.ResStrings());
    if (!FSources.IsInOrder())
        FSources.AssignInOrder(&Translator.ResStrings());
    for (int I = 0; I < FSources.Count(); ++I)
        if (TextOf(I) < 0 || TextOf(I) >= FTranslations.Count())
            FSources.PutObject(I, IntegerObject(FTranslations.Add("")));
}

// Offers the texts of another translator of the form to one that has none. As many
// as that one has translations, but always the same: the source at the place that
// the component itself has on the form.
void TResEditor::GetTranslatorProps()
{
    const TComponent* const Form = Translator().Owner();
    for (int I = 0; Form && I < Form->ComponentCount(); ++I) {
        const auto* const Other = dynamic_cast<TResourceTranslator*>(Form->Components(I));
        if (!Other || Other == &Translator() || Other->Translations()->Count() == 0 ||
            !Confirmed(Format(SIncludeStrings, {Other->Name()})))
            continue;
        const std::string& Source = Other->ResStrings().Get(I);
        std::vector<TSortList::TLine> Lines;
        for (int Pass = 0; Pass < Other->Translations()->Count(); ++Pass)
            Lines.push_back(NewLine(Source));
        FSources.SortInsertAll(std::move(Lines));
        SetModified();
        return;
    }
}

void TResEditor::GiveTranslations()
{
    ResTranslator().SetResStrings(FSources);
    ResTranslator().SetTranslations(&FTranslations);
}

int TResEditor::TextOf(int Item) const
{
    return ObjectInteger(FSources.Objects(Item));
}

// With an empty translation, which is added.
TSortList::TLine TResEditor::NewLine(const std::string& Source)
{
    return {Source, IntegerObject(FTranslations.Add(""))};
}

std::string TResEditor::Translation(int Item) const
{
    return FTranslations.Get(TextOf(Item));
}

void TResEditor::SetTranslation(int Item, const std::string& Text)
{
    FTranslations.Put(TextOf(Item), Text);
}

int TResEditor::LocalizedCount() const
{
    int Result = 0;
    for (int I = 0; I < FSources.Count(); ++I)
        Result += IsTranslated(I) ? 1 : 0;
    return Result;
}

void TResEditor::RefreshLists()
{
    EmptyBox();
    const int Chosen = ChosenItem();
    const std::string ChosenSource = Chosen >= 0 ? PropList->Items()->Get(Chosen) : "";
    PropList->Items()->Assign(&FSources);
    int Place = -1;
    ChooseItem(Chosen >= 0 && FSources.SortFind(ChosenSource, Place) ? Place : -1);
}

void TResEditor::AddItem()
{
    std::string Source;
    int Place = -1;
    if (!InputQuery(SAddString, SOriginalString, Source) || Source.empty() ||
        FSources.SortFind(Source, Place))
        return;
    FSources.SortInsertAll({NewLine(Source)});
    SetModified();
    EmptyBox();
    PropList->Items()->Insert(Place, Source, FSources.Objects(Place));
    ChooseItem(Place);
}

std::string TResEditor::RemoveQuestion() const
{
    return SRemoveStrings;
}

void TResEditor::RemoveSelected()
{
    PropList->Items()->BeginUpdate();
    for (int I = FSources.Count() - 1; I >= 0; --I)
        if (PropList->Selected(I)) {
            FSources.Delete(I);
            PropList->Items()->Delete(I);
        }
    PackTranslations();
    PropList->Items()->EndUpdate();
    SetModified();
    ChooseItem(-1);
}

void TResEditor::PackTranslations()
{
    TStringList Packed;
    for (int I = 0; I < FSources.Count(); ++I) {
        Packed.Add(Translation(I));
        FSources.PutObject(I, IntegerObject(I));
        PropList->Items()->PutObject(I, IntegerObject(I));
    }
    FTranslations.Assign(&Packed);
}

void TResEditor::UpdateModuleList()
{
    ModuleList->Clear();
    for (const TLibModule* Each = LibModuleList; Each; Each = Each->Next) {
        const HINSTANCE Module = Each->Instance ? Each->Instance : HInstance;
        const HINSTANCE Translated = Each->ResInstance;
        const HINSTANCE Resources = Translated ? Translated : Module;
        // A library that is loaded for its resources alone has no name.
        std::string Name = FileNameOf(Resources);
        if (Name.empty())
            Name = FileNameOf(Module);
        ModuleList->Items()->AddObject(Name, reinterpret_cast<TObject*>(Resources));
    }
    ModuleListClick(ModuleList);
}

void TResEditor::ModuleListClick(TObject*)
{
    GetResStrings();
    BtnInclude->SetEnabled(ResStringList->Items()->Count() > 0);
}

// Lists the strings of the chosen module.
void TResEditor::GetResStrings()
{
    const THourglass Hourglass;
    const TPlainTextsScope Plain(*this);
    TStringList Found;
    if (const int Chosen = ModuleList->ItemIndex(); Chosen >= 0) {
        const auto Module = reinterpret_cast<HINSTANCE>(ModuleList->Items()->Objects(Chosen));
        for (UINT Identifier = HighestIdentifier; Identifier >= LowestIdentifier; --Identifier)
            if (const std::string Text = LoadText(Module, Identifier); !Text.empty())
                Found.Add(Text);
    }
    Found.Sort(); // as the list does, which then takes them quickly
    ResStringList->Items()->Assign(&Found);
}

void TResEditor::ResStringListDrawItem(TWinControl*, int Index, TRect Rect, TOwnerDrawState)
{
    ResStringList->Canvas()->FillRect(Rect);
    Rect.left += 2;
    Rect.right -= 2;
    DrawInOneLine(*ResStringList, ResStringList->Items()->Get(Index), Rect);
}

void TResEditor::BtnIncludeClick(TObject*)
{
    const THourglass Hourglass;
    std::unordered_set<std::string_view> Known;
    for (int I = 0; I < FSources.Count(); ++I)
        Known.insert(FSources.Get(I));
    std::vector<TSortList::TLine> Lines;
    for (int I = 0; I < ResStringList->Items()->Count(); ++I)
        if (const std::string& Source = ResStringList->Items()->Get(I); Known.insert(Source).second)
            Lines.push_back(NewLine(Source));
    FSources.SortInsertAll(std::move(Lines));
    SetModified();
    RefreshLists();
}

// One of the same form and language, that files take for the edited one.
std::unique_ptr<TResourceTranslator> TResEditor::TemporaryTranslator() const
{
    auto Result = std::make_unique<TResourceTranslator>(Translator().Owner());
    Result->InternalTranslate(false);
    Result->SetLocale(Translator().Locale());
    Result->SetTranslations(&FTranslations);
    Result->SetResStrings(FSources);
    return Result;
}

bool TResEditor::TranslateFrom(const std::string& FileName)
{
    const auto Temporary = TemporaryTranslator();
    Temporary->TranslateFrom(FileName);
    TakeFrom(*Temporary);
    return true;
}

bool TResEditor::LoadFrom(const std::string& FileName)
{
    const auto Temporary = TemporaryTranslator();
    if (!Temporary->LoadFrom(FileName))
        return false;
    TakeFrom(*Temporary);
    return true;
}

void TResEditor::SaveTo(const std::string& FileName)
{
    TemporaryTranslator()->SaveTo(FileName);
}

void TResEditor::ExportTo(const std::string& FileName)
{
    TemporaryTranslator()->TranslateTo(FileName);
}
