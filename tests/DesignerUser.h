// Somebody who works in the designer, with the package loaded into it. Needs an
// application.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>

#include "designer/DesignerForm.h"
#include "designer/Packages.h"
#include "designer/StandardPages.h"
#include "framework/forms/StandardClasses.h"
#include "orbilex_designer.h"
#include "tests/FormUser.h"

class TDesignerUser {
public:
    TDesignerUser()
    {
        RegisterStandardClasses();
        RegisterStandardPages();
        RegisterOrbilexDesigner();
        Packages.emplace();
        Packages->Load("Obxc3");
        Application->CreateForm(Main);
        Main->SetPackages(*Packages);
        Main->Show();
    }

    static void Run() { Application->ProcessMessages(); }
    TFormModel& Model() const { return *Main->Workspace().Active()->Model; }
    HWND Surface() const { return Main->Workspace().Active()->Surface.WindowHandle(); }

    static void Click(HWND Window, int X, int Y)
    {
        PostMessageA(Window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(X, Y));
        PostMessageA(Window, WM_LBUTTONUP, 0, MAKELPARAM(X, Y));
        Run();
    }

    // Opens a form that is in the project's list.
    void OpenForm(const std::string& File)
    {
        const int Index = Main->ProjectList->Items()->IndexOf(File);
        ASSERT_GE(Index, 0) << File;
        Main->ProjectList->SetItemIndex(Index);
        PostMessageA(Main->ProjectList->Handle(), WM_KEYDOWN, VK_RETURN, 1);
        Run();
        ASSERT_NE(Main->Workspace().Active(), nullptr);
    }

    // Turns the palette to the page and clicks the button of the class.
    void ChooseOnPalette(const std::string& Page, const std::string& Name)
    {
        const int Tab = Main->Palette->Tabs()->IndexOf(Page);
        ASSERT_GE(Tab, 0) << Page;
        RECT Place{};
        SendMessageA(Main->Palette->Handle(), TCM_GETITEMRECT, static_cast<WPARAM>(Tab),
                     reinterpret_cast<LPARAM>(&Place));
        Click(Main->Palette->Handle(), (Place.left + Place.right) / 2, (Place.top + Place.bottom) / 2);
        for (int I = 0; I < Main->PaletteBar->ControlCount(); ++I) {
            const TControl& Button = *Main->PaletteBar->Controls(I);
            if (Button.Hint() == Name)
                return Click(Main->PaletteBar->Handle(), Button.Left() + 5, Button.Top() + 5);
        }
        FAIL() << Name << " is not on the palette";
    }

    // Places a component of the package on the form, which selects it.
    void Place(const std::string& Name, int X, int Y)
    {
        ChooseOnPalette("Quillmark", Name);
        Click(Surface(), X, Y);
        ASSERT_EQ(Model().Selection().front()->ClassName(), "T" + Name);
    }

    // Types a value into the inspector.
    void Enter(const std::string& Property, const std::string& Value)
    {
        TInspector& Inspector = *Main->Inspector();
        const int Row = Inspector.RowOf(Property);
        ASSERT_GE(Row, 0) << Property;
        Inspector.SetRow(Row);
        Inspector.Enter(Row, Value);
        EXPECT_EQ(Inspector.ValueAt(Row), Value) << Property;
    }

    // Chooses the first entry of the menu that the right button brings up, and lets User
    // work in the dialog that comes.
    void ChooseFirstVerb(TFormUser& User)
    {
        const TComponent& Selected = *Model().Selection().front();
        const POINT Place{Selected.DesignLeft + 5, Selected.DesignTop + 5};
        const HWND Icon = ChildWindowFromPointEx(Surface(), Place, CWP_SKIPINVISIBLE);
        User.Run<bool>([&] {
            for (const UINT Message : {WM_RBUTTONDOWN, WM_RBUTTONUP})
                PostMessageA(Icon, Message, 0, MAKELPARAM(5, 5));
            for (const WPARAM Key : {VK_DOWN, VK_RETURN})
                PostMessageA(Icon, WM_KEYDOWN, Key, 1);
            Run();
            return true;
        });
    }

    std::optional<TPackages> Packages;
    TDesignerForm* Main = nullptr;
};
