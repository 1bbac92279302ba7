#include "wizard/TranslatableForm.h"

#include <algorithm>
#include <array>

#include "framework/forms/Forms.h"
#include "framework/rtl/Texts.h"
#include "framework/streaming/FormFile.h"

namespace {

bool HasAny(const TFormObject& Source, std::initializer_list<const char*> Names)
{
    return std::any_of(Names.begin(), Names.end(),
                       [&](const char* Name) { return Source.Find(Name) != nullptr; });
}

// What a root of an unknown class is, told by the properties that only one kind
// of root has.
std::unique_ptr<TComponent> MakeRoot(const TFormObject& Source)
{
    if (const TMetaClass* const Class = GetClass(Source.ClassName()); Class && Class->CanCreate())
        return std::unique_ptr<TComponent>(static_cast<TComponent*>(Class->Create(nullptr)));
    const bool Visual =
        HasAny(Source, {"Caption", "ClientHeight", "ClientWidth", "BorderStyle", "Color", "Font.Name",
                        "Font.Height", "TextHeight", "Position", "FormStyle", "Align", "TabOrder"});
    if (!Visual && HasAny(Source, {"OldCreateOrder", "HorizontalOffset", "VerticalOffset"}))
        return std::make_unique<TDataModule>(nullptr);
    if (HasAny(Source, {"TabOrder", "DesignLeft"}) && !HasAny(Source, {"Caption", "BorderStyle", "Position"}))
        return std::make_unique<TFrame>(nullptr);
    return std::make_unique<TForm>(nullptr);
}

// In the designer's state, so that a form that is stored visible is not shown.
std::unique_ptr<TComponent> MakeHiddenRoot(const TFormObject& Source)
{
    std::unique_ptr<TComponent> Root = MakeRoot(Source);
    Root->SetDesigning(true);
    return Root;
}

TFormDocument ReadDocument(const std::string& FileName, int CodePage)
{
    TFormFileOptions Options;
    Options.CodePage = CodePage;
    return ReadFormFile(FileName, Options);
}

} // namespace

TTranslatableForm::TTranslatableForm(const std::string& FileName, int CodePage)
    : TTranslatableForm(ReadDocument(FileName, CodePage))
{
}

TTranslatableForm::TTranslatableForm(TFormDocument Document)
    : FForm(std::move(Document), TUnknownClasses::Accept, MakeHiddenRoot)
{
    AddTranslators(FForm.Root());
}

void TTranslatableForm::AddTranslators(TComponent& Owner)
{
    const int Count = Owner.ComponentCount();
    auto* const Translator = new TFormTranslator(&Owner);
    // The form is in the designer's state, in which nothing is translated.
    Translator->SetDesigning(false);
    Translator->SetTranslate(false);
    FTranslators.push_back(Translator);
    for (int I = 0; I < Count; ++I)
        if (Owner.Components(I)->ComponentCount() > 0 && Owner.Components(I)->HasState(csInline))
            AddTranslators(*Owner.Components(I));
}

std::string TTranslatableForm::SectionOf(const TFormTranslator& Translator)
{
    const TComponent& Owner = *Translator.Owner();
    return Owner.Name().empty() ? Owner.ClassName().substr(1) : Owner.Name();
}
