// What the parent of owner-drawn controls is asked and told.
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "platform/winapi.h"

namespace {

std::string Log;

template<class T>
std::string About(LPARAM LParam, const char* What)
{
    const T& Item = *reinterpret_cast<const T*>(LParam);
    return std::string(What) + std::to_string(static_cast<int>(Item.itemID)) + "=" +
           std::to_string(static_cast<int>(Item.itemData)) + " ";
}

LRESULT CALLBACK ParentProc(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case WM_MEASUREITEM: {
        auto& Item = *reinterpret_cast<MEASUREITEMSTRUCT*>(LParam);
        Log += About<MEASUREITEMSTRUCT>(LParam, "m");
        EXPECT_EQ(Item.CtlID, WParam);
        Item.itemHeight = Item.itemID == static_cast<UINT>(-1) ? 18 : 20 + 2 * Item.itemID;
        return TRUE;
    }
    case WM_DRAWITEM: {
        const auto& Item = *reinterpret_cast<DRAWITEMSTRUCT*>(LParam);
        Log += About<DRAWITEMSTRUCT>(LParam, "d") + std::to_string(Item.rcItem.top) + "-" +
               std::to_string(Item.rcItem.bottom) + "s" + std::to_string(Item.itemState) + " ";
        return TRUE;
    }
    case WM_DELETEITEM:
        Log += About<DELETEITEMSTRUCT>(LParam, "x");
        EXPECT_EQ(reinterpret_cast<DELETEITEMSTRUCT*>(LParam)->CtlID, WParam);
        return TRUE;
    case WM_COMPAREITEM: {
        const auto& Pair = *reinterpret_cast<COMPAREITEMSTRUCT*>(LParam);
        return Pair.itemData1 < Pair.itemData2 ? -1 : Pair.itemData1 > Pair.itemData2;
    }
    default:
        return DefWindowProcA(Window, Message, WParam, LParam);
    }
}

struct OwnerDraw : testing::Test {
    OwnerDraw()
    {
        WNDCLASSA Class{};
        Class.lpfnWndProc = ParentProc;
        Class.lpszClassName = "OwnerDrawTest";
        RegisterClassA(&Class);
        Parent = CreateWindowExA(0, "OwnerDrawTest", "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400, 300,
                                 nullptr, nullptr, nullptr, nullptr);
        UpdateWindow(Parent);
    }
    ~OwnerDraw() override { DestroyWindow(Parent); }

    void Make(const char* Class, DWORD Style, int Height = 70)
    {
        Log.clear();
        Control = CreateWindowExA(0, Class, "", WS_CHILD | WS_VISIBLE | Style, 10, 10, 200, Height, Parent,
                                  reinterpret_cast<HMENU>(INT_PTR{7}), nullptr, nullptr);
    }
    LRESULT Send(UINT Message, WPARAM WParam = 0, LPARAM LParam = 0) const
    {
        return SendMessageA(Control, Message, WParam, LParam);
    }
    void AddTexts(UINT Message, std::initializer_list<const char*> Texts) const
    {
        for (const char* const Text : Texts)
            Send(Message, 0, reinterpret_cast<LPARAM>(Text));
    }
    // The whole control is drawn again.
    std::string Drawn() const
    {
        UpdateWindow(Control);
        Log.clear();
        InvalidateRect(Control, nullptr, TRUE);
        UpdateWindow(Control);
        return Taken();
    }
    static std::string Taken() { return std::exchange(Log, {}); }

    HWND Parent;
    HWND Control = nullptr;
};

constexpr DWORD ListStyle = LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;

} // namespace

// Memory that hangs at an item was lost when nobody was told that the item went.
TEST_F(OwnerDraw, ListsOfOneHeight)
{
    Make("ListBox", ListStyle | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    EXPECT_EQ(Taken(), "m-1=0 ");
    AddTexts(LB_ADDSTRING, {"a", "b", "c"});
    Send(LB_SETITEMDATA, 1, 42);
    EXPECT_EQ(Taken(), "");
    EXPECT_EQ(Send(LB_GETITEMHEIGHT), 18);
    Send(LB_SETCURSEL, 1);
    EXPECT_EQ(Drawn(), "d0=0 0-18s0 d1=42 18-36s1 d2=0 36-54s0 ");
    EnableWindow(Control, FALSE);
    EXPECT_EQ(Drawn(), "d0=0 0-18s4 d1=42 18-36s5 d2=0 36-54s4 ");
    Send(LB_DELETESTRING, 1);
    EXPECT_EQ(Taken(), "x1=42 ");
    Send(LB_RESETCONTENT);
    EXPECT_EQ(Taken(), "x1=0 x0=0 ");
    DestroyWindow(Control);
    EXPECT_EQ(Taken(), "");
}

TEST_F(OwnerDraw, ListsOfManyHeightsHoldNumbers)
{
    Make("ListBox", ListStyle | LBS_OWNERDRAWVARIABLE);
    for (int I = 0; I < 4; ++I)
        Send(LB_ADDSTRING, 0, 100 + I);
    EXPECT_EQ(Taken(), "m0=100 m1=101 m2=102 m3=103 ");
    EXPECT_EQ(Send(LB_FINDSTRING, static_cast<WPARAM>(-1), 102), 2);
    EXPECT_EQ(Drawn(), "d0=100 0-20s0 d1=101 20-42s0 d2=102 42-66s0 d3=103 66-92s0 ");
    Send(LB_SETTOPINDEX, 2);
    EXPECT_EQ(Drawn(), "d2=102 0-24s0 d3=103 24-50s0 ");
    Send(LB_DELETESTRING, 0);
    EXPECT_EQ(Taken(), "x0=100 ");
    Send(LB_SETITEMHEIGHT, 0, 33);
    EXPECT_EQ(Send(LB_GETITEMHEIGHT, 0), 33);
    Taken();
    DestroyWindow(Control);
    EXPECT_EQ(Taken(), "x2=103 x1=102 x0=101 ");
}

TEST_F(OwnerDraw, TheParentOrdersNumbers)
{
    Make("ListBox", ListStyle | LBS_OWNERDRAWFIXED | LBS_SORT);
    for (const int Number : {5, 3, 9, 4})
        Send(LB_ADDSTRING, 0, Number);
    std::string Order;
    for (WPARAM I = 0; I < 4; ++I)
        Order += std::to_string(Send(LB_GETITEMDATA, I)) + " ";
    EXPECT_EQ(Order, "3 4 5 9 ");
}

// A combo box measures its field and its items, and passes on what its list asks.
TEST_F(OwnerDraw, ComboBoxes)
{
    const struct {
        const char* Name;
        DWORD Style;
        const char *Made, *Added, *Destroyed;
    } Cases[] = {
        {"one height", CBS_OWNERDRAWFIXED, "m-1=0 m0=0 ", "", "x1=102 x0=101 "},
        {"many heights", CBS_OWNERDRAWVARIABLE, "m-1=0 ", "m0=100 m1=101 m2=102 ", "x1=102 x0=101 "},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        Make("ComboBox", CBS_DROPDOWNLIST | Case.Style, 100);
        EXPECT_EQ(Taken().substr(0, std::string(Case.Made).size()), Case.Made);
        for (int I = 0; I < 3; ++I)
            Send(CB_ADDSTRING, 0, 100 + I);
        EXPECT_EQ(Taken(), Case.Added);
        EXPECT_EQ(Send(CB_GETITEMHEIGHT, 0), 20);
        Send(CB_SETCURSEL, 1);
        EXPECT_EQ(Drawn().substr(0, 6), "d1=101");
        Send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), 30);
        RECT Client{};
        GetClientRect(Control, &Client);
        EXPECT_EQ(Client.bottom, 36);
        Taken();
        Send(CB_DELETESTRING, 0);
        EXPECT_EQ(Taken().substr(0, 7), "x0=100 ");
        DestroyWindow(Control);
        EXPECT_EQ(Taken(), Case.Destroyed);
    }
}

TEST_F(OwnerDraw, ButtonsTellTheirState)
{
    Make("Button", BS_OWNERDRAW, 25);
    EXPECT_EQ(Drawn(), "d0=0 0-25s0 ");
    Send(BM_SETSTATE, TRUE);
    EXPECT_EQ(Drawn(), "d0=0 0-25s1 ");
    Send(BM_SETSTATE, FALSE);
    SetFocus(Control);
    EXPECT_EQ(Drawn(), "d0=0 0-25s16 ");
    EnableWindow(Control, FALSE);
    EXPECT_EQ(Drawn().substr(0, 12), "d0=0 0-25s4 ");
}
