#include "wizard/TranslatableForm.h"

#include "framework/forms/FormRoots.h"
#include "framework/streaming/FormFile.h"

namespace {

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
    : FForm(std::move(Document), TUnknownClasses::Accept, MakeDesignedRoot)
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
