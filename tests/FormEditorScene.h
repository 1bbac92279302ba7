// A form with a translator, whose editor a user works in.
#pragma once

#include "FormUser.h"
#include "Obxc3/Obxc3.h"
#include "Qft/Qft.h"
#include "RegistryScope.h"
#include "editors/Editors.h"
#include "framework/forms/Labels.h"
#include "framework/forms/StdCtrls.h"
#include "framework/rtl/RegistryIni.h"

using TTexts = std::vector<std::string>;

struct TFormEditorScene : TObject, testing::Test {
    TFormEditorScene()
    {
        RegDeleteTreeA(HKEY_CURRENT_USER, "Software\\Quillmark");
        Application->OnException = {this, &TFormEditorScene::Caught};
        Form = new TForm(Application);
        Form->SetName("Form1");
        Form->SetCaption("Greeting");
        Add<TLabel>("Label1").SetCaption("Hello");
        Add<TEdit>("Edit1").SetText("");
        auto& Memo = Add<TMemo>("Memo1");
        Memo.Lines()->Clear();
        Memo.Lines()->Add("First");
        Memo.Lines()->Add("Second");
        Translator = AddTranslator("Swedish", {});
        Translator->SetLocale(1053);
        Form->Show();
        Application->ProcessMessages();
    }
    ~TFormEditorScene() override { EXPECT_EQ(Errors, TTexts()); }

    template<class T>
    T& Add(const std::string& Name)
    {
        auto* const Result = new T(Form);
        Result->SetName(Name);
        Result->SetParent(Form);
        return *Result;
    }
    TFormTranslator* AddTranslator(const std::string& Name, const TTexts& Lines)
    {
        auto* const Result = new TFormTranslator(Form);
        Result->SetName(Name);
        Result->InternalTranslate(false);
        for (const std::string& Line : Lines)
            Result->Translations()->Add(Line);
        return Result;
    }
    // The lines with which the next editor opens.
    void Have(const TTexts& Lines)
    {
        Translator->Translations()->Clear();
        for (const std::string& Line : Lines)
            Translator->Translations()->Add(Line);
    }
    TTexts Lines() const { return LinesOf(*Translator->Translations()); }
    bool Edit(TFormUser& User)
    {
        return User.Run<bool>([this] { return Translator->ShowEditor(); });
    }
    void Caught(TObject*, const Exception& Error) { Errors.push_back(Error.Message()); }

    static std::string Setting(const std::string& Name)
    {
        return TRegIniFile("Software\\Quillmark").ReadString("FormTranslator", Name, "");
    }

    const TRegistryScope Registry;
    const TApplicationScope Scope;
    const TPackageScope Package;
    const TEditorsScope Editors;
    TForm* Form = nullptr;
    TFormTranslator* Translator = nullptr;
    TTexts Errors; // shown to the user
};
