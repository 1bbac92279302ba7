#include "editors/Qftedit.h"

#include "EditorTexts.h"
#include "core/Hourglass.h"
#include "core/KeyLines.h"
#include "framework/forms/FormParts.h"
#include "framework/forms/InputForms.h"
#include "framework/forms/PageControls.h"
#include "framework/forms/PushButtons.h"
#include "framework/rtl/FormatText.h"

namespace {

constexpr char CommonProperty[] = "CommonProperty[%s]";

} // namespace

const TMetaClass& TFormEditor::MetaClass()
{
    using T = TFormEditor;
    static const TMetaClass Class("TFormEditor", &TPropertiesEditor::MetaClass(), CreateComponent<T>, {},
                                  {Published<&T::BtnSelectClick>("BtnSelectClick"),
                                   Published<&T::CommonPropListClick>("CommonPropListClick"),
                                   Published<&T::BtnAddCommonClick>("BtnAddCommonClick"),
                                   Published<&T::BtnDeleteCommonClick>("BtnDeleteCommonClick"),
                                   Published<&T::BtnDefaultClick>("BtnDefaultClick"),
                                   Published<&T::BtnSetClick>("BtnSetClick")});
    return Class;
}

void TFormEditor::DoCreate()
{
    FindPart(*this, "PropNotebook", PropNotebook);
    FindPart(*this, "TabBrowser", TabBrowser);
    FindPart(*this, "BtnSelect", BtnSelect);
    FindPart(*this, "CkxEmpty", CkxEmpty);
    FindPart(*this, "CommonPropList", CommonPropList);
    FindPart(*this, "BtnAddCommon", BtnAddCommon);
    FindPart(*this, "BtnDeleteCommon", BtnDeleteCommon);
    FindPart(*this, "BtnDefault", BtnDefault);
    FindPart(*this, "BtnSet", BtnSet);
    FCommonSearch = std::make_unique<TListSearch>(*CommonPropList);
    FDefaultCommon.Assign(CommonPropList->Items());
    inherited::DoCreate();
}

TFormTranslator& TFormEditor::FormTranslator() const
{
    return dynamic_cast<TFormTranslator&>(Translator());
}

void TFormEditor::TakeTranslations()
{
    PropNotebook->SetActivePage(TabBrowser);
    FWorking.Assign(FormTranslator().Translations());
    TStringList Lines;
    FormTranslator().TranslateForm(&Lines, true);
    FOriginals.Assign(Lines);
    if (FWorking.Count() == 0)
        GetTranslatorProps();
    RefreshPropList();
    CommonPropListClick(CommonPropList);
}

// Offers the keys of another translator of the form to one that has none.
void TFormEditor::GetTranslatorProps()
{
    const TComponent* const Form = Translator().Owner();
    for (int I = 0; Form && I < Form->ComponentCount(); ++I) {
        const auto* const Other = dynamic_cast<TFormTranslator*>(Form->Components(I));
        if (!Other || Other == &Translator() || Other->Translations()->Count() == 0)
            continue;
        std::vector<std::string> Lines;
        for (int Line = 0; Line < Other->Translations()->Count(); ++Line)
            Lines.push_back(FOriginals.FirstLine(std::string(KeyOf(Other->Translations()->Get(Line)))));
        if (!Confirmed(Format(SInsertProperties, {Other->Name()})))
            continue;
        MergeKeyLines(FWorking, std::move(Lines));
        SetModified();
        return;
    }
}

void TFormEditor::GiveTranslations()
{
    FormTranslator().Translations()->Assign(&FWorking);
}

void TFormEditor::ReadSettings()
{
    inherited::ReadSettings();
    const std::vector<std::string> Common = Settings().Texts(CommonProperty);
    CommonPropList->Items()->Assign(&FDefaultCommon);
    if (Common.empty())
        return;
    CommonPropList->Clear();
    for (const std::string& Each : Common)
        CommonPropList->Items()->Add(Each);
}

// Common are entries whose first index is "*", with the component's name or not.
bool TFormEditor::IsCommon(const std::string& Key) const
{
    std::string Pattern = Key;
    const size_t Open = Pattern.find('[');
    const size_t Close = Pattern.find(']', Open);
    if (Open != Pattern.npos && Close != Pattern.npos)
        Pattern.replace(Open + 1, Close - Open - 1, "*");
    const auto Has = [this](const std::string& Entry) {
        const TStrings& Items = *CommonPropList->Items();
        for (int I = 0; I < Items.Count(); ++I)
            if (Items.Get(I) == Entry)
                return true;
        return false;
    };
    const size_t Dot = Pattern.find('.');
    return Has(Pattern) || (Dot != Pattern.npos && Has(Pattern.substr(Dot + 1)));
}

void TFormEditor::BtnSelectClick(TObject*)
{
    const THourglass Hourglass;
    const TStrings& Items = *ListAvail->Items();
    ListAvail->ClearSelection();
    for (int I = 0; I < Items.Count(); ++I)
        if (IsCommon(Items.Get(I)) && (CkxEmpty->Checked() || !FOriginals.Text(Items.Get(I)).empty()))
            ListAvail->SetSelected(I, true);
    ListAvailClick(ListAvail);
}

void TFormEditor::CommonPropListClick(TObject*)
{
    BtnDeleteCommon->SetEnabled(CommonPropList->ItemIndex() >= 0);
    BtnSet->SetEnabled(CommonPropList->Items()->Count() > 0);
}

void TFormEditor::BtnAddCommonClick(TObject*)
{
    const std::string Name = InputBox(SNewCommonProperty, SCommonPropertyName, "");
    if (Name.empty())
        return;
    CommonPropList->SetItemIndex(CommonPropList->Items()->Add(Name));
    CommonPropListClick(CommonPropList);
}

void TFormEditor::BtnDeleteCommonClick(TObject*)
{
    const int Item = CommonPropList->ItemIndex();
    if (Item < 0)
        return;
    CommonPropList->Items()->Delete(Item);
    CommonPropListClick(CommonPropList);
}

void TFormEditor::BtnDefaultClick(TObject*)
{
    Settings().SetTexts(CommonProperty, {});
    CommonPropList->Items()->Assign(&FDefaultCommon);
    CommonPropListClick(CommonPropList);
}

void TFormEditor::BtnSetClick(TObject*)
{
    std::vector<std::string> Entries;
    for (int I = 0; I < CommonPropList->Items()->Count(); ++I)
        Entries.push_back(CommonPropList->Items()->Get(I));
    Settings().SetTexts(CommonProperty, Entries);
}

// One of the same form and language, that files take for the edited one.
std::unique_ptr<TFormTranslator> TFormEditor::TemporaryTranslator() const
{
    auto Result = std::make_unique<TFormTranslator>(Translator().Owner());
    Result->InternalTranslate(false);
    Result->SetLocale(Translator().Locale());
    Result->SetTranslations(&FWorking);
    return Result;
}

bool TFormEditor::TranslateFrom(const std::string& FileName)
{
    const auto Temporary = TemporaryTranslator();
    if (!Temporary->TranslateFrom(FileName))
        return false;
    FWorking.Assign(Temporary->Translations());
    return true;
}

bool TFormEditor::LoadFrom(const std::string& FileName)
{
    const auto Temporary = TemporaryTranslator();
    if (!Temporary->LoadFrom(FileName))
        return false;
    FWorking.Assign(Temporary->Translations());
    return true;
}

void TFormEditor::SaveTo(const std::string& FileName)
{
    TemporaryTranslator()->SaveTo(FileName);
}

void TFormEditor::ExportTo(const std::string& FileName)
{
    TemporaryTranslator()->TranslateTo(FileName);
}
