// Editors of properties in the inspector, and the palette, verbs and experts.
#include "framework/design/PropertyEditor.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "FormDesigner.h"
#include "framework/design/ComponentEditor.h"
#include "framework/design/Experts.h"
#include "framework/design/Palette.h"
#include "framework/forms/Edits.h"
#include "framework/forms/Labels.h"
#include "framework/forms/Menus.h"
#include "framework/forms/PushButtons.h"
#include "framework/forms/StandardClasses.h"
#include "framework/rtl/SysUtils.h"

namespace {

struct PropertyEditors : testing::Test {
    PropertyEditors()
    {
        RegisterStandardClasses();
        Form = std::make_unique<TForm>(nullptr);
        Form->SetDesigning(true);
        for (TControl* const Control :
             std::initializer_list<TControl*>{Make<TButton>("Button1"), Make<TEdit>("Edit1"),
                                              Make<TLabel>("Label1"), Make<TButton>("Button2")})
            Control->SetParent(Form.get());
        Make<TPopupMenu>("PopupMenu1");
        Designer = std::make_unique<TTestDesigner>(*Form);
    }
    template<class T>
    T* Make(const char* Name)
    {
        auto* const Result = new T(Form.get());
        Result->SetName(Name);
        return Result;
    }
    // The editor at a path of names, "Font.Size", for some of the components.
    TPropertyEditor& Editor(const std::vector<std::string>& Components, std::string Path)
    {
        std::vector<TPersistent*> Objects;
        for (const std::string& Name : Components)
            Objects.push_back(Name.empty() ? Form.get() : Form->FindComponent(Name));
        Kept.push_back(GetPropertyEditors(*Designer, Objects, false));
        for (;;) {
            const size_t Dot = Path.find('.');
            const std::string First = Path.substr(0, Dot);
            const auto Found =
                std::ranges::find_if(Kept.back(), [&](const auto& Each) { return Each->GetName() == First; });
            if (Found == Kept.back().end())
                throw EPropertyError("no editor for " + First);
            if (Dot == Path.npos)
                return **Found;
            Path.erase(0, Dot + 1);
            Kept.push_back((*Found)->GetProperties());
        }
    }

    const TApplicationScope Scope;
    std::unique_ptr<TForm> Form;
    std::unique_ptr<TTestDesigner> Designer;
    std::vector<TPropertyEditors> Kept;
};

TEST_F(PropertyEditors, ValuesAsTextsOfEveryKind)
{
    const struct {
        std::string Component, Property, Before, Typed, After;
    } Cases[] = {
        {"Button1", "Caption", "Button1", "Grüße", "Grüße"},
        {"Button1", "Width", "75", "80", "80"},
        {"Button1", "TabOrder", "0", "1", "1"},
        {"", "Color", "clBtnFace", "clRed", "clRed"},
        {"", "Color", "clRed", "255", "clRed"},
        {"Button1", "Cursor", "crDefault", "crHourGlass", "crHourGlass"},
        {"Button1", "Default", "False", "true", "True"},
        {"Label1", "Alignment", "taLeftJustify", "taCenter", "taCenter"},
        {"Label1", "Anchors.akRight", "False", "True", "True"},
        {"Label1", "Anchors", "[akLeft,akTop,akRight]", "", ""},
        {"Label1", "Font.Name", "Tahoma", "Arial", "Arial"},
        {"Label1", "Font.Style.fsBold", "False", "True", "True"},
        {"Edit1", "PasswordChar", "#0", "*", "*"},
        {"Edit1", "PopupMenu", "", "PopupMenu1", "PopupMenu1"},
        {"Edit1", "PopupMenu", "PopupMenu1", "", ""},
    };
    for (const auto& [Component, Property, Before, Typed, After] : Cases) {
        SCOPED_TRACE(Component + "." + Property);
        TPropertyEditor& Each = Editor({Component}, Property);
        if (Property != "Font.Name") {
            EXPECT_EQ(Each.GetValue(), Before);
        }
        if (Each.GetAttributes().Contains(paReadOnly))
            continue;
        const int Changes = Designer->Changes;
        Each.SetValue(Typed);
        EXPECT_EQ(Each.GetValue(), After);
        EXPECT_EQ(Designer->Changes, Changes + 1);
    }
}

TEST_F(PropertyEditors, WhatIsNoValueChangesNothing)
{
    const struct {
        std::string Component, Property, Typed;
    } Cases[] = {
        {"Button1", "Width", "wide"},         {"Button1", "Default", "Yes"},
        {"Label1", "Alignment", "taTop"},     {"Label1", "Anchors.akTop", "1"},
        {"Label1", "Anchors", "[akTop]"},     {"Label1", "Font", "Arial"},
        {"Edit1", "PopupMenu", "Button1"},    {"Edit1", "PopupMenu", "Nobody"},
        {"Edit1", "Color", "clNone of them"}, {"Button1", "TabOrder", "99999999999"},
    };
    for (const auto& [Component, Property, Typed] : Cases) {
        TPropertyEditor& Each = Editor({Component}, Property);
        const std::string Before = Each.GetValue();
        EXPECT_THROW(Each.SetValue(Typed), Exception) << Property;
        EXPECT_EQ(Each.GetValue(), Before) << Property;
    }
    EXPECT_EQ(Designer->Changes, 0);
}

TEST_F(PropertyEditors, SeveralObjectsShareTheirProperties)
{
    TPropertyEditor& Width = Editor({"Button1", "Edit1"}, "Width");
    EXPECT_FALSE(Width.AllEqual());
    Width.SetValue("50");
    EXPECT_TRUE(Width.AllEqual());
    EXPECT_EQ(dynamic_cast<TControl&>(*Form->FindComponent("Edit1")).Width(), 50);
    Editor({"Button1", "Label1"}, "Font.Size").SetValue("20");
    EXPECT_EQ(Editor({"Label1"}, "Font.Size").GetValue(), "20");
    EXPECT_THROW(Editor({"Button1", "Edit1"}, "Default"), EPropertyError);
    EXPECT_NO_THROW(Editor({"Button1", "Button2"}, "Default"));
}

TEST_F(PropertyEditors, ChoicesAndDoubleClicks)
{
    std::vector<std::string> Values;
    const auto Take = [&](const std::string& Each) { Values.push_back(Each); };
    TPropertyEditor& Alignment = Editor({"Label1"}, "Alignment");
    Alignment.GetValues(Take);
    EXPECT_EQ(Values, (std::vector<std::string>{"taLeftJustify", "taRightJustify", "taCenter"}));
    for (const std::string& Next : {Values[1], Values[2], Values[0]}) {
        Alignment.Edit();
        EXPECT_EQ(Alignment.GetValue(), Next);
    }
    Values.clear();
    Editor({"Edit1"}, "PopupMenu").GetValues(Take);
    EXPECT_EQ(Values, std::vector<std::string>{"PopupMenu1"});
}

struct TNamed : TPropertyEditor {
    using TPropertyEditor::TPropertyEditor;
    std::string GetValue() const override { return "named"; }
};
struct TTyped : TPropertyEditor {
    using TPropertyEditor::TPropertyEditor;
    std::string GetValue() const override { return "typed"; }
};
struct TNearer : TPropertyEditor {
    using TPropertyEditor::TPropertyEditor;
    std::string GetValue() const override { return "nearer"; }
};

TEST_F(PropertyEditors, TheNearestRegistrationWins)
{
    const TTypeInfo& Text = *TButton::MetaClass().FindProperty("Hint")->PropType;
    const auto HintOf = [&](const std::string& Component) { return Editor({Component}, "Hint").GetValue(); };
    RegisterPropertyEditor(Text, nullptr, "", MakePropertyEditor<TTyped>);
    EXPECT_EQ(HintOf("Button1"), "typed");
    RegisterPropertyEditor(Text, &TControl::MetaClass(), "hint", MakePropertyEditor<TNamed>);
    EXPECT_EQ(HintOf("Button1"), "named");
    RegisterPropertyEditor(Text, &TButton::MetaClass(), "", MakePropertyEditor<TNearer>);
    EXPECT_EQ(HintOf("Button1"), "nearer");
    EXPECT_EQ(HintOf("Edit1"), "named");
    EXPECT_EQ(Editor({"Edit1"}, "Width").GetValue(), "121");
    UnregisterPropertyEditors(MakePropertyEditor<TNearer>);
    UnregisterPropertyEditors(MakePropertyEditor<TNamed>);
    UnregisterPropertyEditors(MakePropertyEditor<TTyped>);
    EXPECT_EQ(HintOf("Button1"), "");
}

struct TButtonVerbs : TComponentEditor {
    using TComponentEditor::TComponentEditor;
    int GetVerbCount() const override { return 1; }
    std::string GetVerb(int) const override { return "Press"; }
    void ExecuteVerb(int) override { Designer().Modified(); }
};

TEST_F(PropertyEditors, VerbsGoByClassAndTheFirstIsTheDoubleClick)
{
    RegisterComponentEditor(TCustomButton::MetaClass(), MakeComponentEditor<TButtonVerbs>);
    const auto Verbs = GetComponentEditor(*Designer, *Form->FindComponent("Button1"));
    EXPECT_EQ(Verbs->GetVerb(0), "Press");
    Verbs->Edit();
    EXPECT_EQ(Designer->Changes, 1);
    const auto None = GetComponentEditor(*Designer, *Form->FindComponent("Edit1"));
    EXPECT_EQ(None->GetVerbCount(), 0);
    None->Edit();
    UnregisterComponentEditor(MakeComponentEditor<TButtonVerbs>);
    EXPECT_EQ(GetComponentEditor(*Designer, *Form->FindComponent("Button1"))->GetVerbCount(), 0);
}

TEST_F(PropertyEditors, PagesOfThePalette)
{
    RegisterComponents("Standard", {&TButton::MetaClass(), &TEdit::MetaClass()});
    RegisterComponents("Other", {&TLabel::MetaClass(), &TButton::MetaClass()});
    ASSERT_EQ(PalettePages().size(), 2U);
    EXPECT_EQ(PalettePages()[0].Classes.size(), 2U);
    EXPECT_EQ(PalettePages()[1].Classes, std::vector<const TMetaClass*>{&TLabel::MetaClass()});
    UnregisterComponents({&TLabel::MetaClass()});
    EXPECT_EQ(PalettePages().size(), 1U);
    UnregisterComponents({&TButton::MetaClass(), &TEdit::MetaClass()});
    EXPECT_TRUE(PalettePages().empty());
}

struct TTestExpert : TIExpert {
    TTestExpert(std::string AId, int& AEnds) : Id(std::move(AId)), Ends(AEnds) {}
    ~TTestExpert() override { ++Ends; }
    TExpertStyle GetStyle() override { return esStandard; }
    std::string GetIDString() override { return Id; }
    std::string GetName() override { return {}; }
    std::string GetAuthor() override { return {}; }
    std::string GetComment() override { return {}; }
    std::string GetPage() override { return {}; }
    intptr_t GetGlyph() override { return 0; }
    TExpertState GetState() override { return {esEnabled}; }
    std::string GetMenuText() override { return {}; }
    void Execute() override {}
    std::string Id;
    int& Ends;
};

TEST(Experts, TheEnvironmentOwnsThemOneOfAnIdentifier)
{
    int Ends = 0;
    for (const char* const Id : {"a", "b", "a"})
        RegisterLibraryExpert(std::make_unique<TTestExpert>(Id, Ends));
    EXPECT_EQ(Ends, 1);
    ASSERT_EQ(LibraryExperts().size(), 2U);
    EXPECT_EQ(LibraryExperts()[0]->GetState().Bits(), 1U);
    for (const TIExpert* const Each : LibraryExperts())
        EXPECT_TRUE(UnregisterLibraryExpert(Each));
    EXPECT_EQ(Ends, 3);
    EXPECT_FALSE(UnregisterLibraryExpert(nullptr));
}

} // namespace
