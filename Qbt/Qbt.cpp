#include "Qbt/Qbt.h"

#include <utility>
#include <vector>

#include "Qbt/ActivationHook.h"
#include "core/DictionaryFile.h"
#include "core/Hourglass.h"
#include "framework/forms/Fonts.h"
#include "framework/forms/Form.h"
#include "framework/forms/PushButtons.h"
#include "framework/rtl/Filer.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/Utf8.h"

namespace {

constexpr size_t MaxCaptionCharacters = 255;

// What ReplaceCaptions pairs its arguments with.
constexpr const TResStringRec* Sources[] = {&SMsgDlgYes,  &SMsgDlgNo,    &SMsgDlgOK,    &SMsgDlgCancel,
                                            &SMsgDlgHelp, &SMsgDlgAbort, &SMsgDlgRetry, &SMsgDlgIgnore,
                                            &SMsgDlgAll,  &SOKButton,    &SCancelButton};

// All that there are, oldest first. Never destroyed: a form may itself be a global
// object and leave after all others.
std::vector<TButtonTranslator*>& Translators()
{
    static auto& Living = *new std::vector<TButtonTranslator*>;
    return Living;
}

// StopQbt removed the hook, and no translator was switched off since.
bool Interrupted = false;

void TranslateActivated(TForm& Form)
{
    if (!Translators().empty())
        Translators().back()->TranslateForm(&Form);
}

TFont& FontOfForm(TComponent* Owner)
{
    auto* const Form = dynamic_cast<TCustomForm*>(Owner);
    if (!Form)
        throw EInvalidOperation("A TButtonTranslator must be owned by a form");
    return *Form->Font();
}

// Whether a form still exists after code that may destroy it.
class TFormWatch : public TComponent {
public:
    explicit TFormWatch(TForm* Form) : TComponent(nullptr), FForm(Form) { FreeNotification(Form); }

    bool IsGone() const { return FForm == nullptr; }

    void Notification(TComponent* Component, TOperation Operation) override
    {
        TComponent::Notification(Component, Operation);
        if (Operation == opRemove && Component == FForm)
            FForm = nullptr;
    }

private:
    TComponent* FForm;
};

} // namespace

void StartQbt()
{
    if (std::exchange(Interrupted, false))
        InstallActivationHook(&TranslateActivated);
}

void StopQbt()
{
    if (RemoveActivationHook())
        Interrupted = true;
}

const TMetaClass& TButtonTranslator::MetaClass()
{
    static const TMetaClass Class(
        "TButtonTranslator", &TTranslatorFrame::MetaClass(), CreateComponent<TButtonTranslator>,
        {
            Prop<&TButtonTranslator::Captions, &TButtonTranslator::SetCaptions>("Captions"),
            Prop<&TButtonTranslator::FileName, &TButtonTranslator::SetFileName>("FileName"),
            Prop<&TButtonTranslator::Locale, &TButtonTranslator::SetLocale>("Locale"),
            Prop<&TButtonTranslator::Title, &TButtonTranslator::SetTitle>("Title"),
            Prop<&TButtonTranslator::Translate, &TTranslatorFrame::SetTranslate>("Translate"),
            Prop<&TButtonTranslator::Font, &TButtonTranslator::SetFont>("Font"),
            Prop<&TButtonTranslator::Language, &TButtonTranslator::SetLanguage>("Language"),
            Prop<&TButtonTranslator::OnTranslate>("OnTranslate"),
            Prop<&TButtonTranslator::OnTranslated>("OnTranslated"),
        });
    return Class;
}

// It has no lines in translations files, and so no marker.
TButtonTranslator::TButtonTranslator(TComponent* Owner)
    : TTranslatorFrame(Owner, MetaClass(), "", prApplication), FCaptions(std::make_unique<TStringList>()),
      FFont(std::make_unique<TFont>())
{
    FFont->Assign(&FontOfForm(Owner));
    Translators().push_back(this);
    FTranslate = false;
    SetTranslate(true);
}

// What the hook reaches must be alive: this translator leaves the list first.
TButtonTranslator::~TButtonTranslator()
{
    std::erase(Translators(), this);
    SetTranslate(false);
}

void TButtonTranslator::ReadStorage(TReader& Reader)
{
    Reader.ReadListBegin();
    Reader.ReadListEnd();
    LoadStorageFile();
}

void TButtonTranslator::WriteStorage(TWriter& Writer)
{
    Writer.WriteListBegin();
    Writer.WriteListEnd();
    SaveStorageFile();
}

void TButtonTranslator::SetCaptions(const TStrings* Value)
{
    if (Value)
        FCaptions->Assign(Value);
    else
        FCaptions->Clear();
}

void TButtonTranslator::SetFont(TFont* Value)
{
    FFont->Assign(Value);
}

void TButtonTranslator::SetLanguage(TLangName Value)
{
    FLanguage = Value;
    if (const TLanguageCaptions* const Row = FindLanguageCaptions(Value)) {
        const TVarRec Replacements[] = {Row->Yes,  Row->No,    Row->OK,    Row->Cancel,
                                        Row->Help, Row->Abort, Row->Retry, Row->Ignore,
                                        Row->All,  Row->OK,    Row->Cancel};
        static_assert(std::size(Replacements) == std::size(Sources));
        ReplaceCaptions(Replacements, static_cast<int>(std::size(Replacements)) - 1);
    }
}

void TButtonTranslator::InternalTranslate(bool Value)
{
    if (Value == FTranslate)
        return;
    FTranslate = Value;
    if (!Value) {
        Interrupted = false;
        RemoveActivationHook();
    } else if (!HasState(csDesigning)) {
        InstallActivationHook(&TranslateActivated);
    }
}

void TButtonTranslator::TranslateForm(TForm* Form)
{
    if (!HasButtonFor(*Form))
        return;
    if (OnTranslate) {
        const TLife Life(*this);
        const TFormWatch Watch(Form);
        bool Skip = false;
        OnTranslate(this, Skip);
        if (Skip || Life.IsOver() || Watch.IsGone())
            return;
    }
    if (TranslateButtons(*Form) && OnTranslated)
        OnTranslated(this);
}

bool TButtonTranslator::HasButtonFor(const TForm& Form) const
{
    for (int I = 0; I < Form.ComponentCount(); ++I)
        if (const auto* const Button = dynamic_cast<const TButton*>(Form.Components(I)))
            if (FindLine(Button->Caption()) >= 0)
                return true;
    return false;
}

// False when there was none to translate.
bool TButtonTranslator::TranslateButtons(TForm& Form)
{
    bool Result = false;
    for (int I = 0; I < Form.ComponentCount(); ++I) {
        auto* const Button = dynamic_cast<TButton*>(Form.Components(I));
        const int Index = Button ? FindLine(Button->Caption()) : -1;
        if (Index < 0)
            continue;
        const std::string& Line = FCaptions->Get(Index);
        Button->SetCaption(std::string(
            FirstCharacters(std::string_view(Line).substr(Line.find('|') + 1), MaxCaptionCharacters)));
        if (!FTitle.empty())
            Form.SetCaption(FTitle);
        Button->SetFont(FFont.get());
        Result = true;
    }
    return Result;
}

int TButtonTranslator::FindLine(const std::string& Source) const
{
    for (int I = 0; I < FCaptions->Count(); ++I)
        if (const std::string& Line = FCaptions->Get(I);
            Line.size() > Source.size() && Line[Source.size()] == '|' && Line.starts_with(Source))
            return I;
    return -1;
}

void TButtonTranslator::ReplaceCaptions(const TVarRec* Replacements, int)
{
    for (size_t I = 0; I < std::size(Sources); ++I) {
        const std::string_view Text = Replacements[I].AsText();
        PutLine(LoadResString(Sources[I]) + "|" + std::string(Text.substr(0, Text.find('\0'))));
    }
}

void TButtonTranslator::PutLine(const std::string& Line)
{
    if (const int Index = FindLine(Line.substr(0, Line.find('|'))); Index >= 0)
        FCaptions->Put(Index, Line);
    else
        FCaptions->Add(Line);
}

void TButtonTranslator::SaveTo(const std::string& FileName)
{
    const THourglass Hourglass;
    TDictionary Template;
    for (int I = 0; I < FCaptions->Count(); ++I) {
        const std::string& Line = FCaptions->Get(I);
        if (const size_t Bar = Line.find('|'); Bar != Line.npos)
            Template.Put(Line.substr(0, Bar), Line.substr(0, Bar));
    }
    Template.Save(FileName);
}

bool TButtonTranslator::LoadFrom(const std::string& FileName)
{
    if (!FileExists(FileName))
        return false;
    TStringList Lines;
    ForEachDictionaryPair(FileName, [&](const std::string& Source, const std::string& Replacement) {
        Lines.Add(Source + "|" + Replacement);
    });
    FCaptions->Assign(&Lines);
    return true;
}

bool TButtonTranslator::TranslateFrom(const std::string& FileName)
{
    if (!FileExists(FileName))
        return false;
    ForEachDictionaryPair(FileName, [&](const std::string& Source, const std::string& Replacement) {
        if (const int Index = FindLine(Source); Index >= 0) {
            FCaptions->Delete(Index);
            FCaptions->Add(Source + "|" + Replacement);
        }
    });
    return true;
}
