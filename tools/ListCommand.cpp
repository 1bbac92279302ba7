// orbilex list: the texts and other properties of forms.
#include <iostream>
#include <nlohmann/json.hpp>

#include "core/KeyLines.h"
#include "core/VisibleTexts.h"
#include "tools/FormFiles.h"
#include "wizard/TranslatableForm.h"

namespace {

struct TListOptions {
    TFormInput Input;
    bool Texts = false;
    bool Json = false;
    std::string Locale;
};

class TLister {
public:
    explicit TLister(const TListOptions& Options) : FOptions(Options) {}

    TOutcome List(const std::string& FileName)
    {
        TTranslatableForm Form(FileName, FOptions.Input.CodePage);
        auto Forms = nlohmann::json::array();
        for (TFormTranslator* const Translator : Form.Translators()) {
            TSortList Lines;
            Translator->TranslateForm(&Lines, true);
            const std::string Section = TTranslatableForm::SectionOf(*Translator);
            nlohmann::json Properties = nlohmann::json::array();
            for (int I = 0; I < Lines.Count(); ++I) {
                const std::string Key(KeyOf(Lines[I]));
                const std::string Value = Lines[I].substr(Key.size() + 1);
                if (FOptions.Texts && !IsVisibleText(Key, Value))
                    continue;
                if (FOptions.Json)
                    Properties.push_back({{"key", Key}, {"value", Value}});
                else
                    Print(Section, Key, Value);
            }
            if (FOptions.Json)
                Forms.push_back({{"section", Section}, {"properties", Properties}});
        }
        if (FOptions.Json)
            FFiles.push_back({{"file", FileName}, {"forms", Forms}});
        return TOutcome::Fine;
    }

    void Finish() const
    {
        if (FOptions.Json)
            std::cout << FFiles.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
    }

private:
    void Print(const std::string& Section, const std::string& Key, const std::string& Value) const
    {
        std::cout << Section << "." << Key;
        if (!FOptions.Locale.empty())
            std::cout << "%" << FOptions.Locale;
        std::cout << "=" << Value << "\n";
    }

    const TListOptions& FOptions;
    nlohmann::json FFiles = nlohmann::json::array();
};

} // namespace

void AddListCommand(CLI::App& Program, TOutcome& Outcome)
{
    CLI::App* const Command =
        Program.add_subcommand("list", "Lists the properties of forms as a form translator reads them");
    const auto Options = std::make_shared<TListOptions>();
    Options->Input.Declare(*Command);
    Command->add_flag("--texts", Options->Texts, "Only the texts that a user sees");
    Command
        ->add_option("--locale", Options->Locale,
                     "Write lines of a translations file for this locale identifier (decimal)")
        ->check(CLI::Number);
    Command->add_flag("--json", Options->Json, "Write JSON");
    Command->callback([Options, &Outcome] {
        TLister Lister(*Options);
        Outcome = ForEachFormFile(Options->Input, [&](const std::string& File) { return Lister.List(File); });
        Lister.Finish();
    });
}
