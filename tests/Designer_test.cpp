// Working on forms with mouse and keyboard.
#include <gtest/gtest.h>

#include <filesystem>

#include "Obxc3/Obxc3.h"
#include "Qft/Qft.h"
#include "designer/DesignerForm.h"
#include "designer/StandardPages.h"
#include "editors/Editors.h"
#include "editors/Registration.h"
#include "framework/design/ComponentEditor.h"
#include "framework/forms/MessageForms.h"
#include "framework/forms/StandardClasses.h"
#include "framework/rtl/Files.h"
#include "orbilex_designer.h"
#include "tests/FormUser.h"

namespace {

constexpr const char* Order = "object OrderForm: TOrderForm\r\n"
                              "  Left = 40\r\n"
                              "  Top = 40\r\n"
                              "  BorderStyle = bsNone\r\n"
                              "  Caption = 'Order'\r\n"
                              "  ClientHeight = 240\r\n"
                              "  ClientWidth = 320\r\n"
                              "  Position = poScreenCenter\r\n"
                              "  Visible = True\r\n"
                              "  OnClose = FormClose\r\n"
                              "  PixelsPerInch = 96\r\n"
                              "  TextHeight = 13\r\n"
                              "  object LblName: TLabel\r\n"
                              "    Left = 16\r\n"
                              "    Top = 16\r\n"
                              "    Width = 40\r\n"
                              "    Height = 13\r\n"
                              "    Caption = 'Name'\r\n"
                              "  end\r\n"
                              "  object CkxPaid: TCheckBox\r\n"
                              "    Left = 16\r\n"
                              "    Top = 48\r\n"
                              "    Width = 97\r\n"
                              "    Height = 17\r\n"
                              "    Caption = 'Paid'\r\n"
                              "    TabOrder = 0\r\n"
                              "    OnClick = CkxPaidClick\r\n"
                              "  end\r\n"
                              "  object Box: TPanel\r\n"
                              "    Left = 16\r\n"
                              "    Top = 80\r\n"
                              "    Width = 200\r\n"
                              "    Height = 120\r\n"
                              "    TabOrder = 1\r\n"
                              "    object Cube: TCubeView\r\n"
                              "      Left = 96\r\n"
                              "      Top = 8\r\n"
                              "      Width = 80\r\n"
                              "      Height = 40\r\n"
                              "    end\r\n"
                              "  end\r\n"
                              "  object Source: TOrderSource\r\n"
                              "    Left = 240\r\n"
                              "    Top = 16\r\n"
                              "  end\r\n"
                              "end\r\n";

int EditsDone = 0;

class TCountingEditor : public TComponentEditor {
public:
    using TComponentEditor::TComponentEditor;
    int GetVerbCount() const override { return 1; }
    std::string GetVerb(int) const override { return "Count"; }
    void ExecuteVerb(int) override { ++EditsDone; }
};

class Designer : public testing::Test {
protected:
    static void SetUpTestSuite() { RegisterStandardClasses(); }

    Designer()
    {
        RegisterTranslators();
        RegisterStandardPages();
        RegisterOrbilexDesigner();
        std::filesystem::create_directories(Folder);
        File = Folder + "/OrderForm.dfm";
        ReplaceWholeFile(File, Order);
        Application->CreateForm(Main);
        Main->Show();
        Main->Open(File);
        Run();
    }

    ~Designer() override { UnregisterTranslators(); }

    static void Run() { Application->ProcessMessages(); }

    TDesign& Design() { return *Main->Workspace().Active(); }
    TFormModel& Model() { return *Design().Model; }
    TControl& Control(const std::string& Name)
    {
        return dynamic_cast<TControl&>(*Model().GetComponent(Name));
    }
    std::string Bytes() { return Model().Bytes(); }
    std::string SelectedNames()
    {
        std::string Result;
        for (const TComponent* const Each : Model().Selection())
            Result += (Result.empty() ? "" : ",") + Each->Name();
        return Result;
    }

    // A point inside a control, as the message for the window there has it.
    struct TSpot {
        HWND Window;
        POINT Point;
    };
    TSpot SpotOf(TControl& Target, int X, int Y)
    {
        auto* const Window = dynamic_cast<TWinControl*>(&Target);
        if (Window)
            return {Window->Handle(), {X, Y}};
        return {Target.Parent()->Handle(), {Target.Left() + X, Target.Top() + Y}};
    }
    static void Post(UINT Message, const TSpot& Spot, WPARAM Keys = 0)
    {
        PostMessageA(Spot.Window, Message, Keys, MAKELPARAM(Spot.Point.x, Spot.Point.y));
        Run();
    }
    void Click(TControl& Target, int X, int Y, WPARAM Keys = 0)
    {
        Post(WM_LBUTTONDOWN, SpotOf(Target, X, Y), MK_LBUTTON | Keys);
        Post(WM_LBUTTONUP, SpotOf(Target, X, Y), Keys);
    }
    void Drag(const TSpot& From, int DeltaX, int DeltaY)
    {
        POINT To = From.Point;
        To.x += DeltaX;
        To.y += DeltaY;
        const HWND Form = Design().Surface.WindowHandle();
        MapWindowPoints(From.Window, Form, &To, 1);
        Post(WM_LBUTTONDOWN, From, MK_LBUTTON);
        Post(WM_MOUSEMOVE, {Form, To}, MK_LBUTTON);
        Post(WM_LBUTTONUP, {Form, To});
    }
    void Key(WPARAM Code)
    {
        PostMessageA(Design().Surface.WindowHandle(), WM_KEYDOWN, Code, 1);
        Run();
    }

    const TApplicationScope Scope;
    const TPackageScope Package;
    const TEditorsScope Editors;
    const std::string Folder = testing::TempDir() + "designer";
    std::string File;
    TDesignerForm* Main = nullptr;
};

TEST_F(Designer, ShowsFormsWithoutChangingThem)
{
    EXPECT_TRUE(IsWindowVisible(Design().Surface.WindowHandle()));
    EXPECT_TRUE(IsWindowVisible(dynamic_cast<TWinControl&>(Control("Cube")).Handle()));
    EXPECT_FALSE(Model().IsModified());
    Model().Modified();
    EXPECT_EQ(Bytes(), Order);
    EXPECT_EQ(Main->Tree->Items()->Count(), 6);
}

TEST_F(Designer, SelectsWithTheMouse)
{
    const struct {
        const char* Name;
        WPARAM Keys;
        const char* Selected;
    } Clicks[] = {
        {"LblName", 0, "LblName"},
        {"CkxPaid", 0, "CkxPaid"},
        {"Box", MK_SHIFT, "CkxPaid,Box"},
        {"Cube", MK_SHIFT, "CkxPaid,Box,Cube"},
        {"Box", MK_SHIFT, "CkxPaid,Cube"},
        {"Cube", 0, "CkxPaid,Cube"}, // to drag both
        {"Box", 0, "Box"},
        {"OrderForm", 0, "OrderForm"},
    };
    for (const auto& Each : Clicks) {
        Click(Control(Each.Name), 5, 5, Each.Keys);
        EXPECT_EQ(SelectedNames(), Each.Selected) << Each.Name;
    }
    // What is designed does not act.
    EXPECT_FALSE(dynamic_cast<TCheckBox&>(Control("CkxPaid")).Checked());
    EXPECT_EQ(Bytes(), Order);
    // The tree and the inspector follow, and the tree leads.
    Click(Control("Box"), 5, 5);
    ASSERT_NE(Main->Tree->Selected(), nullptr);
    EXPECT_EQ(Main->Tree->Selected()->Text(), "Box: TPanel");
    EXPECT_EQ(Main->Inspector()->ValueAt(Main->Inspector()->RowOf("Width")), "200");
    for (int I = 0; I < Main->Tree->Items()->Count(); ++I)
        if (Main->Tree->Items()->Item(I)->Text() == "Source: TOrderSource")
            SendMessageA(Main->Tree->Handle(), TVM_SELECTITEM, TVGN_CARET,
                         reinterpret_cast<LPARAM>(Main->Tree->Items()->Item(I)->ItemId()));
    Run();
    EXPECT_EQ(SelectedNames(), "Source");
}

TEST_F(Designer, MovesAndSizesOnTheGrid)
{
    Drag(SpotOf(Control("CkxPaid"), 5, 5), 21, 10);
    EXPECT_EQ(Control("CkxPaid").Left(), 40);
    EXPECT_EQ(Control("CkxPaid").Top(), 56);
    EXPECT_NE(Bytes().find("Left = 40\r\n    Top = 56\r\n    Width = 97\r\n"), std::string::npos);
    Model().Undo();
    Run();
    EXPECT_EQ(Bytes(), Order);
    EXPECT_EQ(SelectedNames(), "CkxPaid");
    EXPECT_TRUE(IsWindowVisible(Design().Surface.WindowHandle()));

    // The handle at the lower right corner.
    Click(Control("Box"), 5, 5);
    TControl& Box = Control("Box");
    POINT Corner{Box.Left() + Box.Width() - 1, Box.Top() + Box.Height() - 1};
    const HWND Handle = ChildWindowFromPointEx(Box.Parent()->Handle(), Corner, CWP_SKIPINVISIBLE);
    ASSERT_NE(Handle, dynamic_cast<TWinControl&>(Box).Handle());
    Drag({Handle, {3, 3}}, 20, -30);
    EXPECT_EQ(Box.Width(), 224);
    EXPECT_EQ(Box.Height(), 88);
}

TEST_F(Designer, ObeysTheKeyboard)
{
    Click(Control("CkxPaid"), 5, 5);
    Key(VK_TAB);
    EXPECT_EQ(SelectedNames(), "Box");
    Key(VK_TAB);
    EXPECT_EQ(SelectedNames(), "Cube");
    Key(VK_ESCAPE);
    EXPECT_EQ(SelectedNames(), "Box");
    Key(VK_DELETE);
    EXPECT_EQ(Model().GetComponent("Cube"), nullptr);
    EXPECT_EQ(Bytes().find("TPanel"), std::string::npos);
    Model().Undo();
    EXPECT_EQ(Bytes(), Order);
}

TEST_F(Designer, PlacesComponents)
{
    Main->Choose(&TButton::MetaClass());
    Click(Control("Box"), 13, 61);
    EXPECT_EQ(SelectedNames(), "Button1");
    EXPECT_EQ(Control("Button1").Parent(), &Control("Box"));
    EXPECT_EQ(Control("Button1").Left(), 16);
    EXPECT_EQ(Control("Button1").Top(), 64);
    // The next click selects again.
    Click(Control("CkxPaid"), 5, 5);
    EXPECT_EQ(SelectedNames(), "CkxPaid");
    Main->Choose(&TFormTranslator::MetaClass());
    Click(Control("OrderForm"), 241, 100);
    EXPECT_EQ(SelectedNames(), "FormTranslator1");
    EXPECT_NE(Bytes().find("  object FormTranslator1: TFormTranslator\r\n"), std::string::npos) << Bytes();
}

TEST_F(Designer, RunsComponentEditors)
{
    RegisterComponentEditor(TPanel::MetaClass(), MakeComponentEditor<TCountingEditor>);
    EditsDone = 0;
    Click(Control("Box"), 5, 5);
    Post(WM_LBUTTONDBLCLK, SpotOf(Control("Box"), 5, 5), MK_LBUTTON);
    EXPECT_EQ(EditsDone, 1);
    UnregisterComponentEditor(MakeComponentEditor<TCountingEditor>);
}

TEST_F(Designer, EditsPropertiesAndEvents)
{
    TInspector& Inspector = *Main->Inspector();
    std::string Error;
    Inspector.OnError = [&](const std::string& Text) { Error = Text; };
    Click(Control("CkxPaid"), 5, 5);
    Inspector.Enter(Inspector.RowOf("Caption"), "Settled");
    EXPECT_EQ(Control("CkxPaid").Text(), "Settled");
    Inspector.Enter(Inspector.RowOf("Name"), "CkxSettled");
    EXPECT_NE(Bytes().find("  object CkxSettled: TCheckBox\r\n"), std::string::npos);
    Inspector.Enter(Inspector.RowOf("Width"), "wide");
    EXPECT_FALSE(Error.empty());
    EXPECT_EQ(Inspector.ValueAt(Inspector.RowOf("Width")), "97");
    Inspector.Expand(Inspector.RowOf("Anchors"));
    Inspector.Enter(Inspector.RowOf("Anchors.akRight"), "True");
    EXPECT_NE(Bytes().find("Anchors = [akLeft, akTop, akRight]\r\n"), std::string::npos) << Bytes();

    Inspector.SetEvents(true);
    EXPECT_EQ(Inspector.ValueAt(Inspector.RowOf("OnClick")), "CkxPaidClick");
    Inspector.Enter(Inspector.RowOf("OnClick"), "");
    EXPECT_EQ(Bytes().find("OnClick"), std::string::npos);
    Inspector.Press(Inspector.RowOf("OnKeyDown"));
    EXPECT_NE(Bytes().find("    OnKeyDown = CkxSettledKeyDown\r\n"), std::string::npos);

    // Of several components only what they share, empty where they differ.
    Inspector.SetEvents(false);
    Click(Control("Box"), 5, 5, MK_SHIFT);
    EXPECT_EQ(Inspector.RowOf("Checked"), -1);
    EXPECT_EQ(Inspector.ValueAt(Inspector.RowOf("Width")), "");
    EXPECT_EQ(Inspector.ValueAt(Inspector.RowOf("Left")), "16");
    Inspector.Enter(Inspector.RowOf("Width"), "120");
    EXPECT_EQ(Control("Box").Width(), 120);
    EXPECT_EQ(Control("CkxSettled").Width(), 120);
}

// Values are typed into the cell that was clicked. Enter takes them, and so does a click
// on another row, whose own value stays.
TEST_F(Designer, EditsInPlace)
{
    Click(Control("Box"), 5, 5);
    TInspector& Inspector = *Main->Inspector();
    std::string Error;
    Inspector.OnError = [&](const std::string& Text) { Error = Text; };
    const auto ClickRow = [&](int Row) {
        const TRect Cell = Inspector.CellRect(1, Row);
        Post(WM_LBUTTONDOWN, {Inspector.Handle(), {Cell.left + 5, Cell.top + 5}}, MK_LBUTTON);
        Post(WM_LBUTTONUP, {Inspector.Handle(), {Cell.left + 5, Cell.top + 5}});
    };
    const int Row = Inspector.RowOf("Caption");
    Inspector.SetRow(Row);
    ClickRow(Row);
    ASSERT_TRUE(Inspector.Editor()->Visible());
    Inspector.Editor()->SetText("Crates");
    PostMessageA(Inspector.Editor()->Handle(), WM_KEYDOWN, VK_RETURN, 1);
    Run();
    EXPECT_EQ(Control("Box").Text(), "Crates");
    EXPECT_NE(Bytes().find("Caption = 'Crates'\r\n"), std::string::npos);

    Inspector.Editor()->SetText("Barrels");
    const std::string Other = Inspector.ValueAt(Row + 1);
    ClickRow(Row + 1);
    EXPECT_EQ(Control("Box").Text(), "Barrels");
    EXPECT_EQ(Inspector.ValueAt(Row + 1), Other);
    ClickRow(Row);
    EXPECT_EQ(Control("Box").Text(), "Barrels");

    // What is chosen in a list stays there to be seen, and is not taken twice.
    const int ListRow = Inspector.RowOf("BiDiMode");
    ClickRow(ListRow);
    for (int Pass = 0; Pass < 2; ++Pass)
        PostMessageA(Inspector.List()->Handle(), WM_KEYDOWN, VK_DOWN, 1);
    Run();
    EXPECT_EQ(Inspector.ValueAt(ListRow), "bdRightToLeft");
    EXPECT_EQ(Inspector.List()->Text(), "bdRightToLeft");
    ClickRow(Row);
    EXPECT_EQ(Inspector.ValueAt(ListRow), "bdRightToLeft");
    EXPECT_EQ(Error, "");
}

TEST_F(Designer, AsksBeforeChangesAreLost)
{
    using TAnswer = TWorkspace::TAnswer;
    int Asked = 0;
    TAnswer Answer = TAnswer::Cancel;
    Main->Workspace().OnAsk = [&](const TFormModel&) {
        ++Asked;
        return Answer;
    };
    Model().SelectComponent(Model().GetComponent("Box"));
    Model().ShiftSelected(8, 0, 0, 0);
    EXPECT_FALSE(Main->CloseQuery());
    Main->MnuCloseClick(nullptr);
    EXPECT_NE(Main->Workspace().Active(), nullptr);
    EXPECT_EQ(Asked, 2);
    Answer = TAnswer::Save;
    EXPECT_TRUE(Main->CloseQuery());
    EXPECT_EQ(Main->Workspace().Active(), nullptr);
    EXPECT_NE(ReadWholeFile(File).find("    Left = 24\r\n"), std::string::npos);
}

TEST_F(Designer, TellsWhereAFormIsDamaged)
{
    const std::string Damaged = Folder + "/Damaged.dfm";
    ReplaceWholeFile(Damaged, "object A: TA\r\n  Left = \r\nend\r\n");
    TFormUser User;
    User.Answer("Damaged.dfm:3:1", "OK");
    User.Run<bool>([&] {
        Main->Open(Damaged);
        return true;
    });
    EXPECT_EQ(Main->Workspace().Designs().size(), 1U);
}

TEST_F(Designer, WorksOnProjects)
{
    const std::string Project = Folder + "/orders.obp";
    ReplaceWholeFile(Project, "[Project]\r\nName=Orders\r\n\r\n[Forms]\r\nOrderForm.dfm\r\n");
    Main->Open(Project);
    EXPECT_EQ(LinesOf(*Main->ProjectList->Items()), std::vector<std::string>{"OrderForm.dfm"});
    EXPECT_EQ(ToolServices->GetProjectName(), Main->Workspace().Project().FileName);
    Main->ProjectList->SetItemIndex(0);
    Main->ProjectListDblClick(Main->ProjectList);
    ASSERT_NE(Main->Workspace().Active(), nullptr);
    Model().SelectComponent(Model().GetComponent("Box"));
    Model().ShiftSelected(0, 8, 0, 0);
    EXPECT_TRUE(ToolServices->SaveProject());
    EXPECT_FALSE(Model().IsModified());
    ReplaceWholeFile(File, Order);
    ToolServices->ReloadProject();
    EXPECT_EQ(Bytes(), Order);
}

} // namespace
