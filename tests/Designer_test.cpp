// Working on forms with mouse and keyboard.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "Obxc3/Obxc3.h"
#include "Qft/Qft.h"
#include "designer/DesignerForm.h"
#include "designer/FormClipboard.h"
#include "designer/PropertyDialogs.h"
#include "designer/StandardPages.h"
#include "editors/Editors.h"
#include "editors/Registration.h"
#include "framework/design/ComponentEditor.h"
#include "framework/forms/Clipboard.h"
#include "framework/forms/MessageForms.h"
#include "framework/forms/StandardClasses.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/FormFile.h"
#include "orbilex_designer.h"
#include "tests/FormUser.h"
#include "tests/RealForms.h"
#include "tests/RegistryScope.h"

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
        RegisterPropertyDialogs();
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
    void Key(WPARAM Code, WPARAM Held = 0)
    {
        BYTE State[256] = {};
        State[Held] = Held ? 0x80 : 0;
        SetKeyboardState(State);
        PostMessageA(Design().Surface.WindowHandle(), WM_KEYDOWN, Code, 1);
        Run();
        State[Held] = 0;
        SetKeyboardState(State);
    }
    static std::string PlaceOf(const TControl& Target)
    {
        return IntToStr(Target.Left()) + "," + IntToStr(Target.Top()) + "," + IntToStr(Target.Width()) + "," +
               IntToStr(Target.Height());
    }
    void Clipboard(const std::string& Text) { SetClipboardText(Main->Handle(), Text); }
    // The line of the file in which a component's property stands; empty for none.
    std::string LineOf(const std::string& Component, const std::string& Property)
    {
        const TFormDocument Form = ReadForm(Bytes());
        std::function<const TFormObject*(const TFormObject&)> Find =
            [&](const TFormObject& Object) -> const TFormObject* {
            if (Object.Name() == Component)
                return &Object;
            for (const TFormObject& Each : Object.Children())
                if (const TFormObject* const Found = Find(Each))
                    return Found;
            return nullptr;
        };
        const TFormObject* const Found = Find(Form.Root);
        const TFormValue* const Value = Found ? Found->FindValue(Property) : nullptr;
        return !Value                               ? ""
               : Value->Is(TFormValueKind::Integer) ? IntToStr(Value->AsInteger())
                                                    : Value->AsIdent();
    }

    const TRegistryScope Registry;
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

TEST_F(Designer, MovesAndSizesByPixels)
{
    const struct {
        WPARAM Key, Held;
        const char* Place;
    } Keys[] = {
        {VK_RIGHT, VK_CONTROL, "17,48,97,17"}, {VK_DOWN, VK_CONTROL, "17,49,97,17"},
        {VK_LEFT, VK_CONTROL, "16,49,97,17"},  {VK_UP, VK_CONTROL, "16,48,97,17"},
        {VK_RIGHT, VK_SHIFT, "16,48,98,17"},   {VK_DOWN, VK_SHIFT, "16,48,98,18"},
        {VK_LEFT, VK_SHIFT, "16,48,97,18"},    {VK_UP, VK_SHIFT, "16,48,97,17"},
        {VK_LEFT, 0, "16,48,97,17"},
    };
    Click(Control("CkxPaid"), 5, 5);
    for (const auto& Each : Keys) {
        Key(Each.Key, Each.Held);
        EXPECT_EQ(PlaceOf(Control("CkxPaid")), Each.Place) << Each.Key << " with " << Each.Held;
    }
    EXPECT_EQ(Bytes(), Order);
}

TEST_F(Designer, GivesUpADrag)
{
    const TSpot From = SpotOf(Control("CkxPaid"), 5, 5);
    Post(WM_LBUTTONDOWN, From, MK_LBUTTON);
    Post(WM_MOUSEMOVE, {Design().Surface.WindowHandle(), {200, 200}}, MK_LBUTTON);
    EXPECT_NE(Control("CkxPaid").Left(), 16);
    Key(VK_ESCAPE);
    Post(WM_LBUTTONUP, From);
    EXPECT_EQ(Bytes(), Order);
    EXPECT_FALSE(Model().CanUndo());
}

TEST_F(Designer, SelectsWhatAFrameTouches)
{
    Drag(SpotOf(Control("OrderForm"), 4, 4), 60, 50);
    EXPECT_EQ(SelectedNames(), "LblName,CkxPaid");
    Drag(SpotOf(Control("OrderForm"), 230, 50), 30, -30); // up, and an icon
    EXPECT_EQ(SelectedNames(), "Source");
    Drag(SpotOf(Control("OrderForm"), 230, 220), 40, 10);
    EXPECT_EQ(SelectedNames(), "OrderForm");
    EXPECT_EQ(Bytes(), Order);
}

TEST_F(Designer, CopiesCutsAndPastes)
{
    Click(Control("CkxPaid"), 5, 5);
    Key('C', VK_CONTROL);
    EXPECT_EQ(ClipboardText(Main->Handle()).rfind("object CkxPaid: TCheckBox\r\n  Left = 16\r\n", 0), 0U)
        << ClipboardText(Main->Handle());
    // Beside the original; its events stay.
    Click(Control("OrderForm"), 5, 225);
    Key('V', VK_CONTROL);
    EXPECT_EQ(SelectedNames(), "CkxPaid1");
    EXPECT_EQ(LineOf("CkxPaid1", "Left"), "24");
    EXPECT_EQ(LineOf("CkxPaid1", "OnClick"), "CkxPaidClick");
    EXPECT_TRUE(IsWindowVisible(Design().Surface.WindowHandle()));
    Key('Z', VK_CONTROL);
    EXPECT_EQ(Bytes(), Order);
    // What is in a control of an unknown class goes with it, and comes into the panel.
    Click(Control("Cube"), 5, 5);
    Key('X', VK_CONTROL);
    EXPECT_EQ(Bytes().find("TCubeView"), std::string::npos);
    Click(Control("Box"), 5, 5);
    Key('V', VK_CONTROL);
    EXPECT_EQ(Control("Cube").Parent(), &Control("Box"));
    EXPECT_EQ(Bytes(), Order);
}

TEST_F(Designer, PastesTextOfOthers)
{
    Clipboard("object LblName: TLabel\n  FocusControl = Cube\nend\n"
              "object Cube: TCubeView\n  Width = 9\n  object CkxPaid: TCheckBox\n  end\nend\n"
              "object Rates: TRateSource\n  Left = 8\nend\n");
    Click(Control("Box"), 5, 5);
    Main->MnuPasteClick(nullptr);
    EXPECT_EQ(SelectedNames(), "LblName1,Cube1,Rates");
    EXPECT_EQ(LineOf("LblName1", "FocusControl"), "Cube1");
    EXPECT_EQ(Control("CkxPaid1").Parent(), &Control("Cube1"));
    EXPECT_EQ(Control("Cube1").Parent(), &Control("Box"));
    EXPECT_NE(Bytes().find("\r\n  object Rates: TRateSource\r\n"), std::string::npos) << Bytes();
    Model().Undo();
    EXPECT_EQ(Bytes(), Order);
    // What cannot be pasted is told, and changes nothing.
    for (const char* const Each :
         {"object A: TLabel\n  Left = \nend", "no form text", "object Item: TMenuItem\nend",
          "object A: TLabel\nend\nend\nobject B: TB"}) {
        EXPECT_THROW(PasteText(Model(), Each), Exception) << Each;
        EXPECT_EQ(Bytes(), Order) << Each;
    }
}

// Short cuts of the menu leave the text alone that is being typed.
TEST_F(Designer, CopiesTextInTheInspector)
{
    TInspector& Inspector = *Main->Inspector();
    Click(Control("CkxPaid"), 5, 5);
    Inspector.SetRow(Inspector.RowOf("Caption"));
    Inspector.Refresh();
    Inspector.Editor()->SetFocus();
    Inspector.Editor()->SelectAll();
    Main->MnuCopyClick(nullptr);
    EXPECT_EQ(ClipboardText(Main->Handle()), "Paid");
    Main->MnuCutClick(nullptr);
    EXPECT_EQ(Inspector.Editor()->Text(), "");
    EXPECT_NE(Model().GetComponent("CkxPaid"), nullptr);
}

TEST_F(Designer, PutsControlsInFrontAndBehind)
{
    Click(Control("CkxPaid"), 5, 5);
    Main->MnuToFrontClick(nullptr);
    EXPECT_GT(Bytes().find("CkxPaid: "), Bytes().find("Box: "));
    Main->MnuToBackClick(nullptr);
    EXPECT_LT(Bytes().find("CkxPaid: "), Bytes().find("Box: "));
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

// The right button selects and brings up the verbs, and below them the commands that
// all components have.
TEST_F(Designer, ShowsAContextMenu)
{
    RegisterComponentEditor(TPanel::MetaClass(), MakeComponentEditor<TCountingEditor>);
    EditsDone = 0;
    const TSpot Spot = SpotOf(Control("Box"), 5, 5);
    TFormUser User;
    const auto Choose = [&](int Entry) {
        User.Run<bool>([&] {
            for (const UINT Message : {WM_RBUTTONDOWN, WM_RBUTTONUP})
                PostMessageA(Spot.Window, Message, 0, MAKELPARAM(5, 5));
            for (int I = 0; I < Entry; ++I)
                PostMessageA(Spot.Window, WM_KEYDOWN, VK_DOWN, 1);
            PostMessageA(Spot.Window, WM_KEYDOWN, VK_RETURN, 1);
            Run();
            return true;
        });
    };
    Choose(1);
    EXPECT_EQ(SelectedNames(), "Box");
    EXPECT_EQ(EditsDone, 1);
    Choose(5); // Delete; the line is passed over
    EXPECT_EQ(EditsDone, 1);
    EXPECT_EQ(Model().GetComponent("Box"), nullptr);
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

// Values are typed into the cell that was clicked, and Enter takes them.
TEST_F(Designer, EditsInPlace)
{
    Click(Control("Box"), 5, 5);
    TInspector& Inspector = *Main->Inspector();
    std::string Error;
    Inspector.OnError = [&](const std::string& Text) { Error = Text; };
    const auto ClickRow = [&](int Each) {
        const TRect Place = Inspector.CellRect(1, Each);
        Post(WM_LBUTTONDOWN, {Inspector.Handle(), {Place.left + 5, Place.top + 5}}, MK_LBUTTON);
        Post(WM_LBUTTONUP, {Inspector.Handle(), {Place.left + 5, Place.top + 5}});
    };
    // A value stays in its row when the user goes to another one.
    for (const char* const Each : {"Caption", "Align", "BevelWidth", "Alignment", "BevelInner", "Caption"}) {
        ClickRow(Inspector.RowOf(Each));
        EXPECT_EQ(Inspector.NameAt(Inspector.Row()), Each);
        EXPECT_EQ(Bytes(), Order) << Each;
        EXPECT_EQ(Error, "") << Each;
    }
    ASSERT_TRUE(Inspector.Editor()->Visible());
    Inspector.Editor()->SetText("Crates");
    PostMessageA(Inspector.Editor()->Handle(), WM_KEYDOWN, VK_RETURN, 1);
    Run();
    EXPECT_EQ(Control("Box").Text(), "Crates");
    EXPECT_NE(Bytes().find("Caption = 'Crates'\r\n"), std::string::npos);

    const int Row = Inspector.RowOf("Caption");
    ClickRow(Row);
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

    // The second click of a double click comes to the edit that the first one brought up.
    Inspector.SetEvents(true);
    ClickRow(Inspector.RowOf("OnEnter"));
    Post(WM_LBUTTONDOWN, {Inspector.Editor()->Handle(), {3, 3}}, MK_LBUTTON);
    Post(WM_LBUTTONUP, {Inspector.Editor()->Handle(), {3, 3}});
    EXPECT_NE(Bytes().find("    OnEnter = BoxEnter\r\n"), std::string::npos) << Bytes();
}

// The button beside a value opens the property's editor.
TEST_F(Designer, OpensPropertyEditors)
{
    TInspector& Inspector = *Main->Inspector();
    Click(Control("CkxPaid"), 5, 5);
    const auto PressEllipsis = [&](const char* Property, TFormUser& User) {
        Inspector.SetRow(Inspector.RowOf(Property));
        Inspector.Refresh();
        ASSERT_TRUE(Inspector.Ellipsis()->Visible()) << Property;
        User.Run<bool>([&] {
            PostMessageA(Inspector.Ellipsis()->Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
            PostMessageA(Inspector.Ellipsis()->Handle(), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
            Run();
            return true;
        });
    };
    std::string Face = dynamic_cast<TCheckBox&>(Control("CkxPaid")).Font()->Name();
    TFormUser Chooser;
    Chooser.ChooseOtherFont(Face);
    PressEllipsis("Font", Chooser);
    EXPECT_NE(Bytes().find("    Font.Name = '" + Face + "'\r\n"), std::string::npos) << Bytes();
    TFormUser Painter;
    Painter.Confirm([](HWND) {});
    PressEllipsis("Color", Painter);

    Model().Add(TMemo::MetaClass(), Model().Root(), Rect(8, 210, 100, 230));
    TFormUser Writer;
    Writer.Do([](TForm& Form) { EXPECT_EQ(Form.Caption(), "Lines"); });
    Writer.Type("Memo", "one\r\ntwo").Click("BtnOK");
    PressEllipsis("Lines", Writer);
    EXPECT_NE(Bytes().find("    Lines.Strings = (\r\n      'one'\r\n      'two')\r\n"), std::string::npos)
        << Bytes();
    TFormUser Doubter;
    Doubter.Type("Memo", "three").Click("BtnCancel");
    PressEllipsis("Lines", Doubter);
    EXPECT_EQ(Bytes().find("three"), std::string::npos);
}

// A binary form file stays one, and unchanged where nothing was changed.
TEST_F(Designer, KeepsBinaryFormFiles)
{
    TFormDocument Document = ReadForm(Order);
    Document.Format = TFormFormat::Binary;
    const std::string Original = WriteForm(Document);
    const std::string Binary = Folder + "/Binary.dfm";
    ReplaceWholeFile(Binary, Original);
    Main->Open(Binary);
    ASSERT_EQ(Main->Workspace().Designs().size(), 2U);
    EXPECT_TRUE(Main->Workspace().SaveAll());
    EXPECT_EQ(ReadWholeFile(Binary), Original);
    Drag(SpotOf(Control("CkxPaid"), 5, 5), 16, 0);
    Main->MnuSaveClick(nullptr);
    const std::string Saved = ReadWholeFile(Binary);
    EXPECT_EQ(Saved.size(), Original.size());
    size_t Changed = 0;
    for (size_t I = 0; I < Saved.size() && I < Original.size(); ++I)
        Changed += Saved[I] != Original[I];
    EXPECT_EQ(Changed, 1U);
    EXPECT_EQ(ReadForm(Saved).Format, TFormFormat::Binary);
}

// Forms with classes that nobody has here: shown, moved by a key, and saved.
TEST_F(Designer, KeepsRealFormsAsTheyAre)
{
    const std::set<std::string> Places{"left", "top", "width", "height", "clientwidth", "clientheight"};
    int Moved = 0;
    for (const std::string& Real : RealForms(19)) {
        SCOPED_TRACE(Real);
        const std::string Original = ReadWholeFile(Real);
        if (ReadForm(Original).Format != TFormFormat::Text)
            continue;
        const std::string Copy = Folder + "/" + ExtractFileName(Real);
        ReplaceWholeFile(Copy, Original);
        Main->Open(Copy);
        ASSERT_EQ(ExtractFileName(Model().FileName()), ExtractFileName(Real));
        EXPECT_EQ(Bytes(), Original);
        if (TComponent* const Component = Movable(Model())) {
            ++Moved;
            const int Left = TFormModel::PlaceOf(*Component).left + 1;
            Model().SelectComponent(Component);
            Key(VK_RIGHT, VK_CONTROL);
            Main->MnuSaveClick(nullptr);
            const auto Changed = Differences(Original, ReadWholeFile(Copy));
            bool HasMoved = false;
            for (const std::string& Line : Changed) {
                // Others may be laid out anew beside it.
                const std::string Name = LowerCase(Line.substr(0, Line.find(' ')));
                EXPECT_TRUE(Places.contains(Name)) << Line;
                HasMoved = HasMoved || LowerCase(Trim(Line)) == "left = " + IntToStr(Left);
            }
            EXPECT_TRUE(HasMoved);
        }
        Main->MnuCloseClick(nullptr);
    }
    EXPECT_GT(Moved, 0);
}

// By the window's own button, its menu, or another program.
TEST_F(Designer, AsksWhenAWindowIsClosed)
{
    const auto Close = [&](const char* Answer) {
        TFormUser User;
        if (Answer)
            User.Answer("Save changes to OrderForm.dfm?", Answer);
        User.Run<bool>([&] {
            SendMessageA(Design().Surface.WindowHandle(), WM_SYSCOMMAND, SC_CLOSE, 0);
            Run();
            return true;
        });
    };
    Model().SelectComponent(Model().GetComponent("Box"));
    Model().ShiftSelected(8, 0, 0, 0);
    Close("Cancel");
    ASSERT_NE(Main->Workspace().Active(), nullptr);
    EXPECT_TRUE(IsWindowVisible(Design().Surface.WindowHandle()));
    EXPECT_EQ(ReadWholeFile(File), Order);
    Close("No");
    ASSERT_EQ(Main->Workspace().Active(), nullptr);
    EXPECT_EQ(ReadWholeFile(File), Order);
    Main->Open(File);
    Model().SelectComponent(Model().GetComponent("Box"));
    Model().ShiftSelected(8, 0, 0, 0);
    Close("Yes");
    EXPECT_EQ(Main->Workspace().Active(), nullptr);
    EXPECT_NE(ReadWholeFile(File).find("    Left = 24\r\n"), std::string::npos);
    Main->Open(File);
    Close(nullptr); // nothing to ask about
    EXPECT_EQ(Main->Workspace().Active(), nullptr);
}

TEST_F(Designer, KeepsFormsAsideAndItsOwnPlace)
{
    RECT Window{}, Form{};
    GetWindowRect(Main->Handle(), &Window);
    GetWindowRect(Design().Surface.WindowHandle(), &Form);
    EXPECT_GE(Form.left, Window.right);
    // The palette shows all buttons of a page at any width.
    for (const int Width : {560, 300, 1000}) {
        Main->SetWidth(Width);
        Run();
        for (int I = 0; I < Main->PaletteBar->ControlCount(); ++I) {
            const TRect Place = Main->PaletteBar->Controls(I)->BoundsRect();
            EXPECT_LE(Place.right, Main->PaletteBar->ClientWidth()) << Width;
            EXPECT_LE(Place.bottom, Main->PaletteBar->ClientHeight()) << Width;
        }
    }
    Main->SetBounds(30, 20, 640, 500);
    Main->Close();
    delete Main;
    Application->CreateForm(Main);
    Main->Show();
    EXPECT_EQ(PlaceOf(*Main), "30,20,640,500");
    Main->SetBounds(Window.left, Window.top, Window.right - Window.left, Window.bottom - Window.top);
    Main->Close();
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

// A program was killed while it put new forms in place.
TEST_F(Designer, PutsProjectsRightThatAreHalfWritten)
{
    const std::string Project = Folder + "/half/orders.obp";
    const std::string Form = Folder + "/half/OrderForm.dfm";
    std::filesystem::create_directories(Folder + "/half");
    ReplaceWholeFile(Project, "[Project]\r\nName=Orders\r\n\r\n[Forms]\r\nOrderForm.dfm\r\n");
    ReplaceWholeFile(Form, "object OrderForm: TOrderForm\r\nend\r\n");
    ReplaceWholeFile(Form + ".old~", Order);
    ReplaceWholeFile(Folder + "/half/.orbilex-journal", "Orbilex journal 1\nplace\nold OrderForm.dfm\n");
    Main->Open(Project);
    EXPECT_EQ(ReadWholeFile(Form), Order);
    EXPECT_FALSE(FileExists(Form + ".old~"));
    EXPECT_FALSE(FileExists(Folder + "/half/.orbilex-journal"));
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

    Main->Workspace().NewForm(Folder + "/NewForm.dfm");
    EXPECT_EQ(ReadWholeFile(Project),
              "[Project]\r\nName=Orders\r\n\r\n[Forms]\r\nOrderForm.dfm\r\nNewForm.dfm\r\n");
}

TEST_F(Designer, LeavesOpenedFoldersWithoutAProjectFile)
{
    std::filesystem::create_directories(Folder + "/plain");
    ReplaceWholeFile(Folder + "/plain/OrderForm.dfm", Order);
    Main->Open(Folder + "/plain");
    Main->Workspace().NewForm(Folder + "/plain/NewForm.dfm");
    EXPECT_EQ(LinesOf(*Main->ProjectList->Items()),
              (std::vector<std::string>{"OrderForm.dfm", "NewForm.dfm"}));
    EXPECT_FALSE(FileExists(Main->Workspace().Project().FileName));
}

} // namespace
