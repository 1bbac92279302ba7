#include "wizard/ProjectEdit.h"

#include "core/TextFile.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/FormFile.h"
#include "framework/streaming/FormNames.h"
#include "platform/FileSystem.h"

namespace {

// What begins the lines of a class's translators in translations files.
const char* MarkerOf(const std::string& ClassName)
{
    if (SameName(ClassName, DialogTranslatorClass))
        return "#0";
    if (SameName(ClassName, ResourceTranslatorClass))
        return "#1";
    return SameName(ClassName, LocaleTranslatorClass) ? "#2" : "";
}

} // namespace

std::vector<TProjectFile> TProjectChanges::ToWrite() const
{
    std::vector<TProjectFile> Result;
    for (const TFileChange& File : Files)
        if (File.IsChanged())
            Result.push_back(File);
    return Result;
}

TProjectEdit::TProjectEdit(TProjectScan Scan) : FScan(std::move(Scan))
{
    std::string Errors;
    for (const std::string& Error : FScan.Errors)
        Errors += (Errors.empty() ? "" : "\n") + Error;
    if (!Errors.empty())
        throw EReadError(Errors);
    for (const TFoundForm& Form : FScan.Forms) {
        TFileChange& Change = FChanges.emplace_back();
        Change.Name = FScan.Project.FullName(Form.File);
        Change.Before = Form.Bytes;
    }
}

TFileChange& TProjectEdit::ChangeOf(const TFoundForm& Form)
{
    return FChanges[static_cast<size_t>(&Form - FScan.Forms.data())];
}

std::vector<TPlacedTranslator> TProjectEdit::Translators(const std::string& ClassName)
{
    std::vector<TPlacedTranslator> Result;
    for (TFoundForm& Form : FScan.Forms)
        for (const TPlacedTranslator& Each : Translators(Form, ClassName))
            Result.push_back(Each);
    return Result;
}

std::vector<TPlacedTranslator> TProjectEdit::Translators(TFoundForm& Form, const std::string& ClassName)
{
    std::vector<TPlacedTranslator> Result;
    const auto& Children = Form.Document.Root.Children();
    for (size_t I = 0; I < Children.size(); ++I)
        if (SameName(Children[I].ClassName(), ClassName))
            Result.push_back({&Form, I, LocaleOf(Form, Children[I])});
    return Result;
}

const TFormValue* TProjectEdit::ValueOf(const TFoundForm& Form, const TFormObject& Translator,
                                        const char* Name) const
{
    const TFormObject* Object = &Translator;
    for (const TFoundForm* Each = &Form; Object;) {
        if (const TFormValue* const Value = Object->FindValue(Name))
            return Value;
        if (Object->Kind() != TFormObjectKind::Inherited || Each->Ancestor < 0)
            return nullptr;
        Each = &FScan.Forms[static_cast<size_t>(Each->Ancestor)];
        Object = Each->Document.Root.FindChild(Translator.Name());
    }
    return nullptr;
}

int TProjectEdit::LocaleOf(const TFoundForm& Form, const TFormObject& Translator) const
{
    const TFormValue* const Value = ValueOf(Form, Translator, "Locale");
    return Value && Value->Is(TFormValueKind::Integer) ? static_cast<int>(Value->AsInteger()) : 0;
}

std::string TProjectEdit::FileNameOf(const TFoundForm& Form, const TFormObject& Translator) const
{
    const TFormValue* const Value = ValueOf(Form, Translator, "FileName");
    return Value && Value->Is(TFormValueKind::String) ? Value->AsString() : std::string();
}

TTranslationsText& TProjectEdit::TextsOf(const std::string& FileName)
{
    const std::string Name = FScan.Project.FullName(FileName);
    const auto [Place, IsNew] = FTexts.try_emplace(FileIdentity(Name));
    TTextsFile& File = Place->second;
    if (!IsNew)
        return File.Texts;
    File.Name = Name;
    if (FileExists(Name)) {
        File.Before = ReadWholeFile(Name);
        File.Texts = TTranslationsText(ReadTextFile(Name));
    }
    return File.Texts;
}

TTranslatorStorage TProjectEdit::StorageOf(const TPlacedTranslator& Translator)
{
    TFormObject& Object = Translator.Object();
    const std::string FileName = FileNameOf(*Translator.Form, Object);
    return {Object,
            FileName.empty() ? nullptr : &TextsOf(FileName),
            {MarkerOf(Object.ClassName()) + Translator.Form->Name, Translator.Locale}};
}

TPlacedTranslator TProjectEdit::Place(TFoundForm& Form, TFormObject Translator, int Locale)
{
    auto& Children = Form.Document.Root.Children();
    ChangeOf(Form).Placed.push_back(Translator.Name());
    Children.push_back(std::move(Translator));
    return {&Form, Children.size() - 1, Locale};
}

TProjectChanges TProjectEdit::Changes()
{
    TProjectChanges Result;
    Result.ProjectFileName = FScan.Project.FileName;
    for (const TFoundForm& Form : FScan.Forms) {
        TFileChange& Change = ChangeOf(Form);
        Change.After = WriteForm(Form.Document);
        Result.Files.push_back(Change);
    }
    for (const auto& Each : FTexts) {
        const TTextsFile& File = Each.second;
        TFileChange& Change = Result.Files.emplace_back();
        Change.Name = File.Name;
        Change.Before = File.Before;
        Change.After = File.Texts.IsChanged() || !File.Before ? File.Texts.Bytes() : *File.Before;
    }
    return Result;
}
