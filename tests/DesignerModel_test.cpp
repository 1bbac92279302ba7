// Designing forms without a user interface: what is saved differs from the file by
// the change alone, and undoing gives the file back.
#include <gtest/gtest.h>

#include <filesystem>

#include "Obxc3/Obxc3.h"
#include "Qft/Qft.h"
#include "designer/FormModel.h"
#include "framework/forms/Application.h"
#include "framework/forms/Edits.h"
#include "framework/forms/Panels.h"
#include "framework/forms/PushButtons.h"
#include "framework/forms/StandInControls.h"
#include "framework/forms/StandardClasses.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/FormFile.h"
#include "tests/RealForms.h"

namespace {

class DesignerModel : public testing::Test {
protected:
    static void SetUpTestSuite() { RegisterStandardClasses(); }

    // A form file of this test's own.
    static std::string Write(const std::string& Name, const std::string& Text)
    {
        const std::string Folder = testing::TempDir() + "designer-model";
        std::filesystem::create_directories(Folder);
        ReplaceWholeFile(Folder + "/" + Name, Text);
        return Folder + "/" + Name;
    }

    const TApplicationScope Scope;
    const TPackageScope Package;
};

constexpr const char* Booking = "object Booking: TBookingForm\r\n"
                                "  Left = 0\r\n"
                                "  Caption = 'Booking'\r\n"
                                "  object Box: TPanel\r\n"
                                "    Left = 8\r\n"
                                "    Top = 8\r\n"
                                "    Width = 200\r\n"
                                "    Height = 80\r\n"
                                "    object Ok: TButton\r\n"
                                "      Left = 16\r\n"
                                "      Top = 16\r\n"
                                "      Width = 75\r\n"
                                "      Height = 25\r\n"
                                "      caption   =   'OK' // as it was\r\n"
                                "    end\r\n"
                                "    object Chart: TMysteryChart\r\n"
                                "      Left = 100\r\n"
                                "      Top = 8\r\n"
                                "      Width = 60\r\n"
                                "      Height = 60\r\n"
                                "      OnSpin = ChartSpin\r\n"
                                "      object Inner: TEdit\r\n"
                                "        Left = 2\r\n"
                                "        Top = 3\r\n"
                                "      end\r\n"
                                "    end\r\n"
                                "  end\r\n"
                                "  object Source: TMysterySource\r\n"
                                "    Left = 240\r\n"
                                "    Top = 8\r\n"
                                "  end\r\n"
                                "end\r\n";

std::string WithoutComment(std::string Text)
{
    const std::string Comment = " // as it was";
    return Text.erase(Text.find(Comment), Comment.size());
}

// Whatever the components of a real form do not know or would spell otherwise must
// not be touched by a change elsewhere.
TEST_F(DesignerModel, SavesTheChangeAlone)
{
    int Moved = 0;
    for (const std::string& File : RealForms(6)) {
        SCOPED_TRACE(File);
        TFormModel Form(File);
        const std::string Original = ReadWholeFile(File);
        ASSERT_EQ(Form.Bytes(), Original);
        EXPECT_FALSE(Form.IsModified());
        TComponent* const Component = Movable(Form);
        if (!Component)
            continue;
        ++Moved;
        const int Left = TFormModel::PlaceOf(*Component).left + 9;
        Form.SelectComponent(Component);
        Form.ShiftSelected(9, 0, 0, 0);
        if (ReadForm(Original).Format == TFormFormat::Text) {
            const auto Changed = Differences(Original, Form.Bytes());
            ASSERT_EQ(Changed.size(), 1U);
            EXPECT_EQ(LowerCase(Trim(Changed[0])), "left = " + IntToStr(Left));
        }
        Form.DeleteSelected();
        EXPECT_TRUE(Form.IsModified());
        while (Form.CanUndo())
            Form.Undo();
        EXPECT_EQ(Form.Bytes(), Original);
        EXPECT_FALSE(Form.IsModified());
    }
    EXPECT_GT(Moved, 0);
}

TEST_F(DesignerModel, PlacesDeletesAndRenames)
{
    const std::string Text = WithoutComment(Booking);
    TFormModel Form(Write("Booking.dfm", Text));
    auto& Box = *Form.GetComponent("Box");
    Form.Add(TEdit::MetaClass(), Box, Rect(8, 50, 108, 71));
    Form.Add(TFormTranslator::MetaClass(), Box, Rect(300, 40, 300, 40));
    const auto& Made = *Form.GetComponent("Edit1");
    EXPECT_TRUE(Made.HasState(csDesigning));
    EXPECT_EQ(Made.GetParentComponent(), &Box);
    EXPECT_EQ(Form.Selection(), std::vector<TComponent*>{Form.GetComponent("FormTranslator1")});
    EXPECT_NE(Form.Bytes().find("    object Edit1: TEdit\r\n      Left = 8\r\n"), std::string::npos)
        << Form.Bytes();
    EXPECT_NE(Form.Bytes().find("\r\n  object FormTranslator1: TFormTranslator\r\n"), std::string::npos);

    Form.GetComponent("Source")->SetName("Orders");
    Form.Modified();
    EXPECT_NE(Form.Bytes().find("  object Orders: TMysterySource\r\n    Left = 240\r\n"), std::string::npos);

    // The inner edit stands in a control of an unknown class, which goes with all.
    Form.SelectComponent(Form.GetComponent("Chart"));
    Form.DeleteSelected();
    EXPECT_EQ(Form.GetComponent("Inner"), nullptr);
    EXPECT_EQ(Form.Bytes().find("TMysteryChart"), std::string::npos);
    EXPECT_NE(Form.Bytes().find("caption   =   'OK'\r\n"), std::string::npos);

    const std::string Last = Form.Bytes();
    while (Form.CanUndo())
        Form.Undo();
    EXPECT_EQ(Form.Bytes(), Text);
    while (Form.CanRedo())
        Form.Redo();
    EXPECT_EQ(Form.Bytes(), Last);
    EXPECT_NE(Form.GetComponent("Orders"), nullptr);
}

// A component made where a destroyed one was in memory must not be taken for it.
TEST_F(DesignerModel, DoesNotTakeNewComponentsForOldOnes)
{
    const std::string Text = WithoutComment(Booking);
    TFormModel Form(Write("Again.dfm", Text));
    for (int I = 0; I < 20; ++I) {
        Form.SelectComponent(Form.GetComponent(I == 0 ? "Ok" : "Button1"));
        Form.DeleteSelected();
        Form.Add(TButton::MetaClass(), *Form.GetComponent("Box"), Rect(1, 2, 1, 2));
        ASSERT_EQ(Form.Bytes().find("caption   ="), std::string::npos) << I;
    }
}

TEST_F(DesignerModel, ShowsUnknownControlsWithWhatIsInThem)
{
    TFormModel Form(Write("Unknown.dfm", WithoutComment(Booking)));
    const auto* const Chart = dynamic_cast<TStandInControl*>(Form.GetComponent("Chart"));
    ASSERT_NE(Chart, nullptr);
    EXPECT_EQ(Chart->ClassName(), "TMysteryChart");
    EXPECT_EQ(static_cast<TControl*>(Form.GetComponent("Inner"))->Parent(), Chart);
    EXPECT_EQ(dynamic_cast<TControl*>(Form.GetComponent("Source")), nullptr);
}

// A property that goes back to what is not written leaves the file.
TEST_F(DesignerModel, DropsWhatIsNoLongerStored)
{
    const std::string Text = "object Form1: TForm1\n"
                             "  object Label: TMysteryLabel\n"
                             "    FocusControl = Edit\n"
                             "  end\n"
                             "  object Memo: TMemo\n"
                             "    Lines.Strings = (\n"
                             "      'one')\n"
                             "    TabOrder = 0\n"
                             "  end\n"
                             "end\n";
    TFormModel Form(Write("Stored.dfm", Text));
    dynamic_cast<TMemo*>(Form.GetComponent("Memo"))->Lines()->Clear();
    Form.Modified();
    EXPECT_EQ(Form.Bytes().find("Lines"), std::string::npos) << Form.Bytes();
    EXPECT_NE(Form.Bytes().find("FocusControl = Edit\n"), std::string::npos);
}

// Comparing must not write translations files: only saving does, and undoing keeps
// translations that have not been saved yet.
TEST_F(DesignerModel, WritesTranslationsFilesOnlyWhenItSaves)
{
    const std::string Folder = testing::TempDir() + "designer-model/";
    const std::string Translations = Folder + "texts.txt";
    std::filesystem::remove(Translations);
    const std::string File = Write("Translated.dfm", "object Form1: TForm1\n"
                                                     "  Caption = 'Editor'\n"
                                                     "  object German: TFormTranslator\n"
                                                     "    FileName = '" +
                                                         Translations +
                                                         "'\n"
                                                         "    Locale = 1031\n"
                                                         "  end\n"
                                                         "end\n");
    TFormModel Form(File);
    const std::string Original = Form.Bytes();
    auto& German = dynamic_cast<TFormTranslator&>(*Form.GetComponent("German"));
    TStringList Texts;
    Texts.Add("Caption='Redakteur'");
    SetObjectProp(German, *GetPropInfo(German, "Translations"), &Texts);
    Form.Modified();
    EXPECT_TRUE(Form.IsModified());
    EXPECT_EQ(Form.Bytes(), Original);
    Form.Add(TButton::MetaClass(), Form.Root(), Rect(8, 8, 8, 8));
    Form.Undo();
    EXPECT_FALSE(FileExists(Translations));
    Form.Save();
    EXPECT_EQ(ReadWholeFile(File), Original);
    EXPECT_FALSE(Form.IsModified());
    ASSERT_TRUE(FileExists(Translations));
    EXPECT_NE(ReadWholeFile(Translations).find("Redakteur"), std::string::npos);
}

TEST_F(DesignerModel, RefusesDamagedForms)
{
    const std::string File = Write("Damaged.dfm", "object Form1: TForm1\n  Left = = 3\nend\n");
    try {
        const TFormModel Form(File);
        FAIL() << "opened";
    } catch (const EFormFileError& Error) {
        EXPECT_NE(Error.Message().find("Damaged.dfm:2:"), std::string::npos) << Error.Message();
    }
}

} // namespace
