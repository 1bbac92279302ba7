// The frame of all translators: where they load and save, and which of them are
// switched together.
#include "core/Frame.h"

#include <filesystem>
#include <memory>

#include <gtest/gtest.h>

#include "framework/design/ToolServices.h"
#include "framework/forms/Application.h"
#include "framework/forms/DataModules.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/ComponentReader.h"
#include "framework/streaming/ComponentWriter.h"
#include "framework/streaming/FormFile.h"
#include "tests/SampleComponent.h"

namespace {

// Notes what it is told to do.
class TProbe : public TTranslatorFrame {
    OBX_CLASS(TTranslatorFrame)
public:
    explicit TProbe(TComponent* Owner) : TProbe(Owner, MetaClass()) {}

    void InternalTranslate(bool Value) override { FTranslate = Value; }
    bool LoadFrom(const std::string& FileName) override
    {
        Log += "load " + FileName + ";";
        return true;
    }
    void SaveTo(const std::string& FileName) override { Log += "save " + FileName + ";"; }
    void Loaded() override
    {
        TTranslatorFrame::Loaded();
        Log += "loaded;";
    }
    using TTranslatorFrame::LoadStorageFile;
    using TTranslatorFrame::SaveStorageFile;
    using TTranslatorFrame::Section;

    std::string Log;

protected:
    TProbe(TComponent* Owner, const TMetaClass& Kind, TPeerRule Rule = prForms)
        : TTranslatorFrame(Owner, Kind, "#9", Rule)
    {
    }
};

const TMetaClass& TProbe::MetaClass()
{
    static const TMetaClass Class("TProbe", &TTranslatorFrame::MetaClass(), CreateComponent<TProbe>,
                                  {
                                      Prop<&TProbe::FileName, &TProbe::SetFileName>("FileName"),
                                      Prop<&TProbe::Locale, &TProbe::SetLocale>("Locale"),
                                      Prop<&TProbe::Translate, &TProbe::SetTranslate>("Translate"),
                                  });
    return Class;
}

class TOtherProbe : public TProbe {
    OBX_CLASS(TProbe)
public:
    explicit TOtherProbe(TComponent* Owner) : TProbe(Owner, MetaClass()) {}
};

const TMetaClass& TOtherProbe::MetaClass()
{
    static const TMetaClass Class("TOtherProbe", &TProbe::MetaClass(), nullptr);
    return Class;
}

class TServiceProbe : public TProbe {
    OBX_CLASS(TProbe)
public:
    explicit TServiceProbe(TComponent* Owner) : TProbe(Owner, MetaClass(), prApplication) {}
};

const TMetaClass& TServiceProbe::MetaClass()
{
    static const TMetaClass Class("TServiceProbe", &TProbe::MetaClass(), nullptr);
    return Class;
}

class TProject : public TIToolServices {
public:
    explicit TProject(std::string Name) : FName(std::move(Name)) { ToolServices = this; }
    ~TProject() override { ToolServices = nullptr; }
    std::string GetProjectName() const override { return FName; }

private:
    std::string FName;
};

// A project's folder, and a current folder that is another.
class FrameFiles : public testing::Test {
protected:
    FrameFiles()
    {
        const auto* const Info = testing::UnitTest::GetInstance()->current_test_info();
        Folder = std::filesystem::temp_directory_path() / (std::string("obx_frame_") + Info->name());
        std::filesystem::remove_all(Folder);
        for (const char* const Each : {"project", "current"})
            std::filesystem::create_directories(Folder / Each);
        std::filesystem::current_path(Folder / "current");
    }
    ~FrameFiles() override
    {
        std::filesystem::current_path(Started);
        std::filesystem::remove_all(Folder);
    }

    std::filesystem::path Started = std::filesystem::current_path();
    std::filesystem::path Folder;
};

// Loading looks at what is there, saving at the name alone.
TEST_F(FrameFiles, LoadsAndSavesBySeparateRules)
{
    const std::string AppDir = IncludeTrailingBackslash((Folder / "project").string());
    const std::string Full = (Folder / "current" / "full.txt").string();
    const std::string Nested = std::string("sub") + PathDelimiter + "lang.txt";
    const TProject Project(AppDir + "app.project");
    ReplaceWholeFile("both.txt", "");
    ReplaceWholeFile(AppDir + "both.txt", "");
    ReplaceWholeFile(AppDir + "project.txt", "");
    ReplaceWholeFile(Full, "");
    std::filesystem::create_directory("folder.txt");
    ReplaceWholeFile(AppDir + "folder.txt", "");
    const struct {
        std::string FileName;
        std::string Log;
    } Cases[] = {
        {"", ""},
        {"none.txt", "save " + AppDir + "none.txt;"},
        {"both.txt", "load both.txt;save " + AppDir + "both.txt;"},
        {"project.txt", "load " + AppDir + "project.txt;save " + AppDir + "project.txt;"},
        {"folder.txt", "load " + AppDir + "folder.txt;save " + AppDir + "folder.txt;"},
        {Full, "load " + Full + ";save " + Full + ";"},
        {Nested, "save " + Nested + ";"},
        {"sub\\lang.txt", "save sub\\lang.txt;"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.FileName);
        TSample Form(nullptr, "Form1");
        auto* const Probe = new TProbe(&Form);
        Form.SetDesigning(true);
        Probe->SetFileName(Case.FileName);
        Probe->LoadStorageFile();
        Probe->SaveStorageFile();
        EXPECT_EQ(Probe->Log, Case.Log);
        EXPECT_EQ(Probe->StoreTranslationsInForm(), Case.FileName.empty());
    }
}

TEST_F(FrameFiles, KeepsToTheOrderOfTheForm)
{
    RegisterClass(TProbe::MetaClass());
    ReplaceWholeFile("lang.txt", "");
    const TFormDocument Document = ReadForm("object Form1: TSample\r\n"
                                            "  object Probe: TProbe\r\n"
                                            "    FileName = 'lang.txt'\r\n"
                                            "    Storage = 7\r\n"
                                            "  end\r\n"
                                            "end\r\n");
    TSample Form(nullptr);
    TComponentReader(Document, TUnknownClasses::Refuse).ReadRoot(Form);
    auto* const Probe = static_cast<TProbe*>(Form.FindComponent("Probe"));
    EXPECT_EQ(Probe->Log, "load lang.txt;loaded;") << "the number means nothing";
    EXPECT_EQ(Probe->Section(), "#9Form1");

    Probe->Log.clear();
    TFormDocument Written;
    Written.Root = TComponentWriter(Form).WriteRoot();
    EXPECT_NE(WriteForm(Written).find("Storage = 0\r\n"), std::string::npos);
    EXPECT_EQ(Probe->Log, "save " + Probe->GetAppDir() + "lang.txt;");
}

class FramePeers : public testing::Test {
protected:
    template<class TKind>
    static TKind* Add(TComponent* Owner, int Locale, bool Translate)
    {
        auto* const Result = new TKind(Owner);
        Result->SetLocale(Locale);
        Result->InternalTranslate(Translate);
        return Result;
    }
    static TForm* NewForm() { return new TForm(Application); }

    TApplicationScope Scope;
};

TEST_F(FramePeers, SwitchesThoseThatBelongTogether)
{
    TForm* const Form = NewForm();
    auto* const Probe = Add<TProbe>(Form, 1053, false);
    auto* const Peer = Add<TProbe>(NewForm(), 1053, false);
    auto* const Data = Add<TProbe>(new TDataModule(Application), 1053, false);
    auto* const Kind = Add<TOtherProbe>(NewForm(), 1053, false);
    auto* const Locale = Add<TProbe>(NewForm(), 1031, false);
    Probe->SetTranslate(true);
    EXPECT_FALSE(Peer->Translate()) << "not before it is loaded";
    Probe->SetTranslate(false);
    Probe->Loaded();
    Probe->SetTranslate(true);
    EXPECT_TRUE(Peer->Translate());
    EXPECT_FALSE(Data->Translate()) << "a data module is no form";
    EXPECT_FALSE(Kind->Translate());
    EXPECT_FALSE(Locale->Translate());
}

// Translators that work for the whole application reach data modules and the
// application's own components, and one language excludes the others.
TEST_F(FramePeers, SwitchesByLocaleInTheWholeApplication)
{
    const struct {
        const char* Name;
        int Locale;
        bool Value;
        bool Before;
        std::string After; // form 1053, module 1053, application 1053, form 1031, form 0, elsewhere 1053
    } Cases[] = {
        {"on", 1053, true, false, "111000"},
        {"on, others off", 1053, true, true, "111011"},
        {"off leaves other locales", 1053, false, true, "000111"},
        {"locale 0 switches the others off", 0, true, true, "000011"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        TForm Root(nullptr);
        TForm* const Form = NewForm();
        TForm* const Second = NewForm();
        auto* const Module = new TDataModule(Application);
        TServiceProbe* const Others[] = {
            Add<TServiceProbe>(Second, 1053, Case.Before),      Add<TServiceProbe>(Module, 1053, Case.Before),
            Add<TServiceProbe>(Application, 1053, Case.Before), Add<TServiceProbe>(Second, 1031, Case.Before),
            Add<TServiceProbe>(Second, 0, Case.Before),         Add<TServiceProbe>(&Root, 1053, Case.Before)};
        Add<TServiceProbe>(Form, Case.Locale, !Case.Value)->SetTranslate(Case.Value);
        std::string After;
        for (const TServiceProbe* const Each : Others)
            After += Each->Translate() ? '1' : '0';
        EXPECT_EQ(After, Case.After);
        for (TComponent* const Each : std::initializer_list<TComponent*>{Form, Second, Module, Others[2]})
            delete Each;
    }
}

TEST_F(FramePeers, AdoptsFromADataModule)
{
    Add<TServiceProbe>(new TDataModule(Application), 1053, false);
    auto* const Late = Add<TServiceProbe>(NewForm(), 1053, true);
    Late->Loaded();
    EXPECT_FALSE(Late->Translate());
}

// Forms and owners decide what is first, not the time of creation.
TEST_F(FramePeers, AdoptsTheFirst)
{
    TForm* const First = NewForm();
    TForm* const Second = NewForm();
    Add<TProbe>(Second, 1053, false);
    Add<TProbe>(First, 1031, false);
    Add<TProbe>(First, 1053, true);
    Add<TProbe>(First, 1053, false);
    auto* const Late = Add<TProbe>(NewForm(), 1053, false);
    Late->Loaded();
    EXPECT_TRUE(Late->Translate());
    auto* const None = Add<TProbe>(NewForm(), 0, false);
    None->Loaded();
    EXPECT_FALSE(None->Translate());
}

// The end of the program destroys this after what the frame itself keeps; the
// sanitizers and the program's exit code tell.
std::unique_ptr<TComponent> GlobalForm;

TEST(Frame, ServesGlobalForms)
{
    GlobalForm = std::make_unique<TSample>(nullptr, "Form1");
    EXPECT_EQ((new TProbe(GlobalForm.get()))->Section(), "#9Form1");
}

} // namespace
