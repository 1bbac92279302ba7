#include "editors/Qltedit.h"

#include <algorithm>

#include "EditorTexts.h"
#include "core/Hourglass.h"
#include "core/KeyLines.h"
#include "core/Literals.h"
#include "editors/LocaleLists.h"
#include "editors/OriginalProps.h"
#include "framework/forms/ComboBoxes.h"
#include "framework/forms/Dialogs.h"
#include "framework/forms/Edits.h"
#include "framework/forms/FormParts.h"
#include "framework/forms/InputForms.h"
#include "framework/forms/Labels.h"
#include "framework/forms/PushButtons.h"
#include "framework/rtl/Convert.h"
#include "framework/rtl/FormatText.h"

namespace {

constexpr char LoadLocales[] = "LoadLocales";

// Whether a value is a text in literal form from end to end: 'at'#9, but not the
// date picture 'den 'd MMMM, which must keep its quotes.
bool IsWholeLiteral(std::string_view Value)
{
    try {
        return IsStringLiteral(Value) && ToLiterals(FromLiterals(Value)) == Value;
    } catch (const EConvertError&) {
        return false;
    }
}

bool HasControlCharacters(std::string_view Text)
{
    return std::any_of(Text.begin(), Text.end(),
                       [](char Each) { return static_cast<unsigned char>(Each) < ' '; });
}

bool IsPseudoLocale(int Lcid)
{
    return Lcid == UserDefaultLocale || Lcid == SystemDefaultLocale;
}

int LcidOf(const TStrings& Items, int Index)
{
    return ObjectInteger(Items.Objects(Index));
}

bool HasLocale(const TStrings& Items, int Lcid)
{
    return Items.IndexOfObject(IntegerObject(Lcid)) >= 0;
}

} // namespace

const TMetaClass& TLocaleEditor::MetaClass()
{
    using T = TLocaleEditor;
    static const TMetaClass Class("TLocaleEditor", &TTranslationEditor::MetaClass(), CreateComponent<T>, {},
                                  {Published<&T::CbxLangChange>("CbxLangChange"),
                                   Published<&T::LangListClick>("LangListClick"),
                                   Published<&T::LangListInAppClick>("LangListInAppClick"),
                                   Published<&T::BtnCopyLangClick>("BtnCopyLangClick"),
                                   Published<&T::BtnRemoveLangClick>("BtnRemoveLangClick"),
                                   Published<&T::BtnUserLangClick>("BtnUserLangClick"),
                                   Published<&T::BtnSetDefaultClick>("BtnSetDefaultClick"),
                                   Published<&T::BtnSetStartupClick>("BtnSetStartupClick"),
                                   Published<&T::EdtLocaleListChange>("EdtLocaleListChange"),
                                   Published<&T::EdtLocaleListExit>("EdtLocaleListExit"),
                                   Published<&T::BtnSelLocaleClick>("BtnSelLocaleClick")});
    return Class;
}

void TLocaleEditor::DoCreate()
{
    FindPart(*this, "CbxLang", CbxLang);
    FindPart(*this, "LblProp", LblProp);
    FindPart(*this, "DescList", DescList);
    FindPart(*this, "LangListInApp", LangListInApp);
    FindPart(*this, "LangList", LangList);
    FindPart(*this, "BtnCopyLang", BtnCopyLang);
    FindPart(*this, "BtnRemoveLang", BtnRemoveLang);
    FindPart(*this, "BtnSetDefault", BtnSetDefault);
    FindPart(*this, "BtnSetStartup", BtnSetStartup);
    FindPart(*this, "LblLocaleList", LblLocaleList);
    FindPart(*this, "EdtLocaleList", EdtLocaleList);
    inherited::DoCreate();
}

TLocaleTranslator& TLocaleEditor::LocaleTranslator() const
{
    return dynamic_cast<TLocaleTranslator&>(Translator());
}

void TLocaleEditor::ReadSettings()
{
    inherited::ReadSettings();
    EdtLocaleList->SetText(Settings().Text(LoadLocales));
}

// A file that cannot be read leaves the system's locales out, and does not keep the
// editor from opening.
void TLocaleEditor::TakeTranslations()
{
    const TLocaleTranslator& From = LocaleTranslator();
    FDesigning = From.HasState(csDesigning);
    FDesignLcid = LocaleOfValue(From.DesignLocale());
    FStartupLcid = LocaleOfValue(From.StartupLocale());
    BtnSetDefault->SetVisible(FDesigning);
    BtnSetStartup->SetVisible(FDesigning);
    FWorking.AssignInOrder(From.Translations());
    try {
        FillPool();
    } catch (const Exception&) {
        Application->HandleException(this);
    }
    RefreshLists();
}

void TLocaleEditor::GiveTranslations()
{
    LocaleTranslator().SetTranslations(&FWorking);
}

void TLocaleEditor::Accepted()
{
    LocaleTranslator().TakeUpEdited(FDesignLcid, FStartupLcid);
}

// From the operating system, or from the user's file; without that the pool stays as
// it is.
void TLocaleEditor::FillPool()
{
    const std::string FileName = EdtLocaleList->Text();
    if (FileName.empty())
        ReadSystemLocales(FPool);
    else {
        const auto Temporary = TemporaryTranslator();
        if (!Temporary->LoadFrom(FileName))
            throw EFOpenError(Format(SNoSuchFile, {FileName}));
        FPool.AssignInOrder(Temporary->Translations());
    }
    FPoolFile = FileName;
}

void TLocaleEditor::ReplacePool()
{
    if (!HasTranslator())
        return;
    const THourglass Hourglass;
    FillPool();
    RefreshLists();
}

void TLocaleEditor::RefreshLists()
{
    LangListInApp->Clear();
    CbxLang->Items()->Clear();
    if (FDesigning) {
        LangListInApp->Items()->AddObject("(" + std::string(UserDefaultName) + ")",
                                          IntegerObject(UserDefaultLocale));
        LangListInApp->Items()->AddObject("(" + std::string(SystemDefaultName) + ")",
                                          IntegerObject(SystemDefaultLocale));
    }
    for (const TNamedLocale& Each : NamedLocales(FWorking))
        ShowInApp(Each.Name, Each.Lcid);
    TStringList Available;
    for (const TNamedLocale& Each : NamedLocales(FPool))
        if (!HasLocale(*LangListInApp->Items(), Each.Lcid))
            Available.AddObject(Each.Name, IntegerObject(Each.Lcid));
    LangList->Items()->Assign(&Available);
    LangListClick(LangList);
    LangListInAppClick(LangListInApp);
    SelectLocale();
}

void TLocaleEditor::ShowInApp(const std::string& Name, int Lcid)
{
    LangListInApp->Items()->AddObject(Name, IntegerObject(Lcid));
    CbxLang->Items()->AddObject(Name, IntegerObject(Lcid));
}

// The one that was chosen before, or else the first.
void TLocaleEditor::SelectLocale()
{
    const TStrings& Items = *CbxLang->Items();
    const int Item = Items.IndexOfObject(IntegerObject(FLcid));
    CbxLang->SetItemIndex(Item < 0 && Items.Count() > 0 ? 0 : Item);
    CbxLangChange(CbxLang);
}

void TLocaleEditor::CbxLangChange(TObject*)
{
    LeaveBox();
    const int Item = CbxLang->ItemIndex();
    FLcid = Item >= 0 ? LcidOf(*CbxLang->Items(), Item) : 0;
    const std::string Prefix = EntryPrefix(FLcid) + "_";
    TStringList Keys;
    for (int I = 0; Item >= 0 && I < FWorking.Count(); ++I)
        if (const std::string_view Key = KeyOf(FWorking.Get(I)); Key.starts_with(Prefix))
            Keys.Add(std::string(Key.substr(Prefix.size())));
    EmptyBox();
    PropList->Items()->Assign(&Keys);
    ChooseItem(-1);
}

void TLocaleEditor::PropListClick(TObject* Sender)
{
    inherited::PropListClick(Sender);
    const int Item = ChosenItem();
    LblProp->SetCaption(Item >= 0 ? Description(PropList->Items()->Get(Item)) : "");
}

std::string TLocaleEditor::Description(const std::string& Key) const
{
    const TStrings& Lines = *DescList->Items();
    for (int I = 0; I < Lines.Count(); ++I)
        if (KeyOf(Lines.Get(I)) == Key)
            return std::string(ValueOf(Lines.Get(I)));
    return "";
}

std::string TLocaleEditor::EntryKey(int Item) const
{
    return EntryPrefix(FLcid) + "_" + PropList->Items()->Get(Item);
}

// The item's line in the working list; -1 for none.
int TLocaleEditor::LineOf(int Item) const
{
    int Line = -1;
    return FindKeyLine(FWorking, EntryKey(Item), Line) ? Line : -1;
}

std::string TLocaleEditor::Translation(int Item) const
{
    const int Line = LineOf(Item);
    if (Line < 0)
        return "";
    const std::string_view Value = ValueOf(FWorking.Get(Line));
    return IsWholeLiteral(Value) ? FromLiterals(Value) : std::string(Value);
}

// An entry is applied as it stands, and so is written as one; it stays one line.
void TLocaleEditor::SetTranslation(int Item, const std::string& Text)
{
    const int Line = LineOf(Item);
    if (Line < 0)
        return;
    const bool Literal = IsWholeLiteral(ValueOf(FWorking.Get(Line))) || HasControlCharacters(Text);
    FWorking.Delete(Line);
    FWorking.SortInsert(EntryKey(Item) + "=" + (Literal ? ToLiterals(Text) : Text), IntegerObject(FLcid));
}

void TLocaleEditor::LangListClick(TObject*)
{
    BtnCopyLang->SetEnabled(LangList->ItemIndex() >= 0);
}

// The design and start-up locales stay in the application.
void TLocaleEditor::LangListInAppClick(TObject*)
{
    const int Item = LangListInApp->ItemIndex();
    const int Lcid = Item >= 0 ? LcidOf(*LangListInApp->Items(), Item) : 0;
    const bool CanDesign = Item >= 0 && Lcid != FDesignLcid && !IsPseudoLocale(Lcid);
    const bool CanStart = Item >= 0 && Lcid != FStartupLcid;
    BtnSetDefault->SetEnabled(CanDesign);
    BtnSetStartup->SetEnabled(CanStart);
    BtnRemoveLang->SetEnabled(CanDesign && CanStart);
}

void TLocaleEditor::BtnCopyLangClick(TObject*)
{
    const int Item = LangList->ItemIndex();
    if (Item < 0)
        return;
    const int Lcid = LcidOf(*LangList->Items(), Item);
    ShowInApp(LangList->Items()->Get(Item), Lcid);
    MoveLocale(FPool, FWorking, Lcid);
    LangList->Items()->Delete(Item);
    SetModified();
    SelectLocale();
    GoOnIn(*LangList);
    LangListClick(LangList);
}

void TLocaleEditor::BtnRemoveLangClick(TObject*)
{
    const int Item = LangListInApp->ItemIndex();
    if (Item < 0)
        return;
    const int Lcid = LcidOf(*LangListInApp->Items(), Item);
    LangList->Items()->AddObject(LangListInApp->Items()->Get(Item), IntegerObject(Lcid));
    MoveLocale(FWorking, FPool, Lcid);
    CbxLang->Items()->Delete(CbxLang->Items()->IndexOfObject(IntegerObject(Lcid)));
    LangListInApp->Items()->Delete(Item);
    SetModified();
    GoOnIn(*LangListInApp);
    LangListInAppClick(LangListInApp);
    SelectLocale();
}

// A number that the system does not know makes a locale of the developer's own, with
// English entries to begin with.
void TLocaleEditor::BtnUserLangClick(TObject*)
{
    std::string Number;
    if (!InputQuery(SNewLocale, SLocaleIdentifier, Number) || !HasTranslator())
        return;
    const int Lcid = StrToInt(Number);
    if (HasLocale(*LangListInApp->Items(), Lcid))
        return;
    TSortList Entries;
    LocaleTranslator().AddOrgProps(Lcid, Entries);
    MoveLocale(Entries, FWorking, Lcid);
    SetModified();
    RefreshLists();
}

void TLocaleEditor::BtnSetDefaultClick(TObject*)
{
    FDesignLcid = LcidOf(*LangListInApp->Items(), LangListInApp->ItemIndex());
    SetModified();
    GoOnIn(*LangListInApp);
    LangListInAppClick(LangListInApp);
}

void TLocaleEditor::BtnSetStartupClick(TObject*)
{
    FStartupLcid = LcidOf(*LangListInApp->Items(), LangListInApp->ItemIndex());
    SetModified();
    GoOnIn(*LangListInApp);
    LangListInAppClick(LangListInApp);
}

void TLocaleEditor::EdtLocaleListChange(TObject*)
{
    Settings().SetText(LoadLocales, EdtLocaleList->Text());
}

// Locales that were removed wait in the pool, which is not given up without need.
void TLocaleEditor::EdtLocaleListExit(TObject*)
{
    if (EdtLocaleList->Text() != FPoolFile)
        ReplacePool();
}

void TLocaleEditor::BtnSelLocaleClick(TObject*)
{
    DlgOpen->SetTitle(LblLocaleList->Caption());
    if (!DlgOpen->Execute())
        return;
    EdtLocaleList->SetText(DlgOpen->FileName());
    ReplacePool();
}

// One of the same form and group, that files take for the edited one.
std::unique_ptr<TLocaleTranslator> TLocaleEditor::TemporaryTranslator() const
{
    auto Result = std::make_unique<TLocaleTranslator>(Translator().Owner());
    Result->SetLocale(Translator().Locale());
    return Result;
}

bool TLocaleEditor::LoadFrom(const std::string& FileName)
{
    const auto Temporary = TemporaryTranslator();
    Temporary->SetTranslations(&FWorking);
    if (!Temporary->LoadFrom(FileName))
        return false;
    FWorking.AssignInOrder(Temporary->Translations());
    return true;
}

void TLocaleEditor::SaveTo(const std::string& FileName)
{
    const auto Temporary = TemporaryTranslator();
    Temporary->SetTranslations(&FWorking);
    Temporary->SaveTo(FileName);
}
