#include "demo/FormTexts.h"

#include <map>

#include "Qft/Qft.h"
#include "core/KeyLines.h"
#include "framework/forms/Forms.h"
#include "framework/streaming/ComponentWriter.h"
#include "framework/streaming/FormText.h"

namespace {

bool IsOfTranslator(const TForm& Form, const std::string& Key)
{
    const TComponent* const Component = Form.FindComponent(Key.substr(0, Key.find('.')));
    return dynamic_cast<const TFormTranslator*>(Component) != nullptr;
}

} // namespace

std::vector<TFormLine> ReadFormLines(TForm& Form)
{
    // Asked of one of the form's own translators, the form would first get its
    // own texts back.
    TFormTranslator Reader(&Form);
    TStringList List;
    Reader.TranslateForm(&List, true);
    std::vector<TFormLine> Result;
    for (int I = 0; I < List.Count(); ++I) {
        const std::string& Line = List.Get(I);
        std::string Key(KeyOf(Line));
        if (!IsOfTranslator(Form, Key))
            Result.push_back({std::move(Key), std::string(ValueOf(Line))});
    }
    return Result;
}

std::vector<TFormChange> ChangesBetween(const std::vector<TFormLine>& Before,
                                        const std::vector<TFormLine>& After)
{
    std::map<std::string, std::string> Former;
    for (const TFormLine& Line : Before)
        Former.emplace(Line.Key, Line.Value);
    std::vector<TFormChange> Result;
    for (const TFormLine& Line : After)
        if (const auto Found = Former.find(Line.Key); Found == Former.end())
            Result.push_back({Line.Key, "", Line.Value});
        else if (Found->second != Line.Value)
            Result.push_back({Line.Key, Found->second, Line.Value});
    return Result;
}

std::string FormAsText(TForm& Form)
{
    TFormDocument Document;
    Document.Root = TComponentWriter(Form, TWrittenProperties::All).WriteRoot();
    return WriteFormText(Document);
}
