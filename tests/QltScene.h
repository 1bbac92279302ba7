// An application with a form, a locale translator on it, and what its tests do
// with them.
#pragma once

#include <string>
#include <vector>

#include "Qft/Qft.h"
#include "Qlt/Qlt.h"
#include "framework/forms/Forms.h"
#include "framework/forms/Menus.h"
#include "framework/forms/Screen.h"
#include "platform/winapi.h"
#include "tests/FormatVarsScope.h"

class TLocaleScene : public TObject {
public:
    TLocaleScene() : Form(&AddForm("Form1")), Translator(new TLocaleTranslator(Form)) {}
    ~TLocaleScene() override { SetThreadLocale(GetUserDefaultLCID()); }

    TForm& AddForm(const std::string& Name)
    {
        auto* const Result = new TForm(Application);
        Result->SetName(Name);
        Result->SetCaption("own text");
        return *Result;
    }

    // Translates the form's caption to "text of LCID"; switched off.
    TFormTranslator& AddFormTranslator(TForm& Owner, int Locale)
    {
        auto* const Result = new TFormTranslator(&Owner);
        Result->SetLocale(Locale);
        Result->InternalTranslate(false);
        Result->Translations()->Add("Caption='text of " + std::to_string(Locale) + "'");
        return *Result;
    }

    TLocaleTranslator& AddLocaleTranslator(TForm& Owner, int Locale)
    {
        auto* const Result = new TLocaleTranslator(&Owner);
        Result->SetLocale(Locale);
        return *Result;
    }

    static const TSortList& ListOf(const TLocaleTranslator& Of)
    {
        return static_cast<const TSortList&>(*Of.Translations());
    }

    static std::vector<std::string> LinesOf(const TStrings& List)
    {
        std::vector<std::string> Result;
        for (int I = 0; I < List.Count(); ++I)
            Result.push_back(List.Get(I));
        return Result;
    }

    void SetEntries(const std::vector<std::string>& Entries)
    {
        TSortList List;
        for (const std::string& Entry : Entries)
            List.SortInsert(Entry, nullptr);
        Translator->SetTranslations(&List);
    }

    // The entries of these locales, once each, as the system has them.
    static void SetLocalesOf(TLocaleTranslator& Of, const std::vector<int>& Locales)
    {
        TSortList List;
        for (const int Lcid : Locales)
            if (int Index = -1; !List.SortFind(ReadLocaleEntries(Lcid).front(), Index))
                Of.AddOrgProps(Lcid, List);
        Of.SetTranslations(&List);
    }

    void Count(TObject*) { ++Calls; }
    void Refuse(TObject*, bool& Skip)
    {
        CursorSeen = Screen->Cursor();
        Skip = true;
    }
    void DestroySecondForm(TObject*, TStrings*)
    {
        delete Second;
        Second = nullptr;
    }
    void DestroyTranslator(TObject*)
    {
        delete Translator;
        Translator = nullptr;
    }

    TFormatVarsScope Formats;
    TApplicationScope Scope;
    TForm* Form;
    TForm* Second = nullptr;
    TLocaleTranslator* Translator;
    int Calls = 0;
    TCursor CursorSeen = crDefault;
};
