#include "Qct/Qct.h"

#include <algorithm>
#include <utility>

#include "Qct/DialogFonts.h"
#include "Qct/DialogHook.h"
#include "Qct/DialogProps.h"
#include "core/Hourglass.h"
#include "core/KeyLines.h"
#include "core/LineDictionary.h"
#include "core/Literals.h"
#include "core/TranslationsFile.h"
#include "framework/forms/Application.h"
#include "framework/forms/Dialogs.h"
#include "framework/rtl/Filer.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/Utf8.h"

TCommonDialogTranslator* qctInstance = nullptr;

namespace {

TDialogFonts& Fonts()
{
    static TDialogFonts Made;
    return Made;
}

// The dialogs that can be shown only to be looked at.
bool CanScan(const TCommonDialog& Dialog)
{
    const TMetaClass* const Kinds[] = {&TFindDialog::MetaClass(),  &TOpenDialog::MetaClass(),
                                       &TFontDialog::MetaClass(),  &TColorDialog::MetaClass(),
                                       &TPrintDialog::MetaClass(), &TPrinterSetupDialog::MetaClass()};
    return std::any_of(std::begin(Kinds), std::end(Kinds),
                       [&](const TMetaClass* Kind) { return Dialog.InheritsFrom(*Kind); });
}

void RegisterDialogsOf(const TComponent& Owner)
{
    for (int I = 0; I < Owner.ComponentCount(); ++I)
        RegisterDialogClass(&Owner.Components(I)->ClassType()); // refuses what is no dialog
}

// Up to the first zero byte.
std::string PlainValue(const std::string& Literal)
{
    std::string Value = FromLiterals(Literal);
    Value.resize(std::min(Value.size(), Value.find('\0')));
    return Value;
}

} // namespace

const TMetaClass& TCommonDialogTranslator::MetaClass()
{
    static const TMetaClass Class(
        "TCommonDialogTranslator", &TTranslatorFrame::MetaClass(), CreateComponent<TCommonDialogTranslator>,
        {
            Prop<&TCommonDialogTranslator::FileName, &TCommonDialogTranslator::SetFileName>("FileName"),
            Prop<&TCommonDialogTranslator::Locale, &TCommonDialogTranslator::SetLocale>("Locale"),
            Prop<&TCommonDialogTranslator::Translate, &TTranslatorFrame::SetTranslate>("Translate"),
            Prop<&TCommonDialogTranslator::TranslateEmpty, &TCommonDialogTranslator::SetTranslateEmpty>(
                "TranslateEmpty")
                .Default(false),
            Prop<&TCommonDialogTranslator::Translations, &TCommonDialogTranslator::SetTranslations>(
                "Translations")
                .Stored<&TTranslatorFrame::StoreTranslationsInForm>(),
            Prop<&TCommonDialogTranslator::OnTranslate>("OnTranslate"),
            Prop<&TCommonDialogTranslator::OnTranslated>("OnTranslated"),
        });
    return Class;
}

TCommonDialogTranslator::TCommonDialogTranslator(TComponent* Owner)
    : TTranslatorFrame(Owner, MetaClass(), "#0"), FTranslations(std::make_unique<TSortList>(skUnique)),
      FOriginals(std::make_unique<TSortList>(skUnique))
{
    qctInstance = this;
}

TCommonDialogTranslator::~TCommonDialogTranslator()
{
    SetTranslate(false);
    if (qctInstance == this)
        qctInstance = static_cast<TCommonDialogTranslator*>(NewestOther());
}

void TCommonDialogTranslator::SetTranslations(const TStrings* Value)
{
    FTranslations->AssignInOrder(Value);
}

void TCommonDialogTranslator::SetOriginals(const TStrings* Value)
{
    FOriginals->AssignInOrder(Value);
}

void TCommonDialogTranslator::SetTranslate(bool Value)
{
    if (Value && !FTranslate)
        for (TTranslatorFrame* const Each : Siblings())
            Each->SetTranslate(false);
    TTranslatorFrame::SetTranslate(Value);
}

void TCommonDialogTranslator::InternalTranslate(bool Value)
{
    FTranslate = Value;
    if (Value)
        qctInstance = this;
}

void TCommonDialogTranslator::OwnLoaded()
{
    InternalTranslate(FTranslate);
    RegisterOwnedDialogClasses();
}

void TCommonDialogTranslator::RegisterOwnedDialogClasses()
{
    if (qctInstance && qctInstance->HasState(csDesigning)) {
        if (qctInstance->Owner())
            RegisterDialogsOf(*qctInstance->Owner());
    } else if (Application) {
        for (int I = 0; I < Application->ComponentCount(); ++I)
            RegisterDialogsOf(*Application->Components(I));
    }
}

std::vector<TCommonDialogTranslator::TDialogLine> TCommonDialogTranslator::LinesForDialog() const
{
    const std::string Front = OwnerClassName + ".";
    std::vector<TDialogLine> Result;
    for (int I = 0; I < FTranslations->Count(); ++I) {
        const std::string& Line = FTranslations->Get(I);
        const size_t Equals = Line.find('=', Front.size());
        if (Line.starts_with(Front) && Equals != Line.npos)
            Result.push_back({Line.substr(Front.size(), Equals - Front.size()),
                              std::string(ValueOf(Line, MaxFileValueBytes))});
    }
    return Result;
}

void TCommonDialogTranslator::TranslateDialog(HWND Dialog)
{
    if (!FTranslate)
        return;
    const std::vector<TDialogLine> Lines = LinesForDialog();
    if (Lines.empty())
        return;
    const TLife Life(*this);
    bool Skip = false;
    if (OnTranslate)
        OnTranslate(this, Skip);
    if (Skip || Life.IsOver())
        return;
    for (const TDialogLine& Line : Lines) {
        const std::string Value = PlainValue(Line.Literal);
        if (!Value.empty() || FTranslateEmpty)
            SetDialogProp(Dialog, Line.Name, Value, Fonts());
        // What the dialog does about it may have destroyed the translator.
        if (Life.IsOver())
            return;
    }
    if (OnTranslated)
        OnTranslated(this);
}

void TCommonDialogTranslator::GetProps(HWND Dialog)
{
    if (FScanning && FPropTarget)
        ListDialog(Dialog, OwnerClassName, *FPropTarget);
}

int TCommonDialogTranslator::GetDlgProps(TObject* Dialog, TStrings* Target)
{
    auto* const Wanted = dynamic_cast<TCommonDialog*>(Dialog);
    if (!Wanted || Wanted->Handle() || OldWndProc || DebugDlg)
        return 0;
    FPropTarget = Target;
    Scan(*Wanted);
    return 0;
}

void TCommonDialogTranslator::Scan(TCommonDialog& Dialog)
{
    // Handlers of the dialog may destroy it and the translator.
    struct TScanEnd {
        TCommonDialogTranslator& Translator;
        TLife Life{Translator};
        bool Former = Translator.FTranslate;

        ~TScanEnd()
        {
            DebugDlg = false;
            if (Life.IsOver())
                return;
            Translator.FScanning = false;
            Translator.FPropTarget = nullptr;
            Translator.FScanned = nullptr;
            Translator.SetTranslate(Former);
        }
    } const End{*this};
    FScanned = &Dialog;
    FreeNotification(&Dialog);
    FScanning = true;
    DebugDlg = true;
    InternalTranslate(true);
    RegisterDialogClass(&Dialog.ClassType());
    if (CanScan(Dialog))
        Dialog.Execute();
    Application->ProcessMessages();
    if (End.Life.IsOver())
        return;
    if (auto* const Open = dynamic_cast<TFindDialog*>(FScanned))
        Open->CloseDialog();
}

void TCommonDialogTranslator::Notification(TComponent* Component, TOperation Operation)
{
    TTranslatorFrame::Notification(Component, Operation);
    if (Operation == opRemove && Component == FScanned)
        FScanned = nullptr;
}

bool TCommonDialogTranslator::LoadFrom(const std::string& FileName)
{
    // Both are read before either is changed: a line may be malformed.
    std::vector<std::string> Translated;
    std::vector<std::string> Untranslated;
    const bool Exists = ForEachTranslation(FileName, Section(), [&](const TTranslation& Each) {
        std::string Line = std::string(Each.Key) + "=" + std::string(Each.Value);
        if (Each.Locale == Locale())
            Translated.push_back(std::move(Line));
        else if (Each.Locale == DefaultsLocale)
            Untranslated.push_back(std::move(Line));
    });
    MergeKeyLines(*FTranslations, std::move(Translated));
    MergeKeyLines(*FOriginals, std::move(Untranslated));
    return Exists;
}

void TCommonDialogTranslator::SaveTo(const std::string& FileName)
{
    const THourglass Hourglass;
    TStringList Untranslated;
    for (int I = 0; I < FOriginals->Count(); ++I)
        if (int Index = -1; FindKeyLine(*FTranslations, KeyOf(FOriginals->Get(I)), Index))
            Untranslated.Add(FOriginals->Get(I));
    SaveTranslations(FileName, {Section(), Locale()}, *FTranslations, Untranslated);
}

void TCommonDialogTranslator::TranslateTo(const std::string& FileName)
{
    ExportLines(FileName, *FTranslations, *FOriginals);
}

bool TCommonDialogTranslator::TranslateFrom(const std::string& FileName)
{
    if (!FileExists(FileName))
        return false;
    ImportPairs(ReadDictionaryPairs(FileName), *FTranslations, *FOriginals);
    return true;
}

void TCommonDialogTranslator::ReadStorage(TReader& Reader)
{
    TStringList Lines;
    Reader.ReadListBegin();
    while (!Reader.EndOfList())
        Lines.Add(Reader.ReadString());
    Reader.ReadListEnd();
    FOriginals->AssignInOrder(&Lines);
    LoadStorageFile();
}

void TCommonDialogTranslator::WriteStorage(TWriter& Writer)
{
    Writer.WriteListBegin();
    for (int I = 0; I < FOriginals->Count(); ++I)
        Writer.WriteString(FOriginals->Get(I));
    Writer.WriteListEnd();
    SaveStorageFile();
}

void StartQct()
{
    Closing = false;
    SetDialogWork({[](HWND Dialog) {
                       if (qctInstance)
                           qctInstance->GetProps(Dialog);
                   },
                   [](HWND Dialog) {
                       if (qctInstance)
                           qctInstance->TranslateDialog(Dialog);
                   }});
    if (qctInstance)
        qctInstance->RegisterOwnedDialogClasses();
}

void StopQct()
{
    EndDialogHooks();
    OwnerClassName.clear();
    Fonts().Release();
}
