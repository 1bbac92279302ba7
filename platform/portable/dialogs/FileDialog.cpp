// The window of the file dialogs: what it is made of and the messages it answers.
#include "platform/portable/dialogs/FileDialog.h"

#include <algorithm>
#include <cstdlib>

#include "platform/portable/Control.h"
#include "platform/portable/dialogs/ShellView.h"

namespace {

// Commands of the tool bars.
enum { UpFolder = 0xA001, NewFolder = 0xA002, HomeFolder = 0xA005, RootFolder = 0xA006 };

constexpr short ClosedHeight = 222; // dialog units, without help button and read-only box
constexpr short OpenHeight = 234;
constexpr int GripId = -1;

// How a control follows when the dialog is resized.
constexpr struct {
    int Id;
    bool MovesRight, MovesDown, Widens, Heightens;
} Followers[] = {{ShellList, false, false, true, true},  {lst1, false, false, true, true},
                 {PlacesBar, false, false, false, true}, {stc3, false, true, false, false},
                 {stc2, false, true, false, false},      {chx1, false, true, false, false},
                 {cmb13, false, true, true, false},      {cmb1, false, true, true, false},
                 {IDOK, true, true, false, false},       {IDCANCEL, true, true, false, false},
                 {pshHelp, true, true, false, false},    {GripId, true, true, false, false}};

std::string HomePath()
{
    const char* const Home = std::getenv("HOME");
    return Home && *Home ? Home : "/";
}

} // namespace

TFileDialog::TFileDialog(OPENFILENAMEA& Data, bool Saves)
    : TStandardDialog(FileTemplate,
                      (Data.Flags & OFN_ENABLEHOOK) && !(Data.Flags & OFN_EXPLORER) ? Data.lpfnHook : nullptr,
                      &Data),
      FData(Data), FSaves(Saves), FExtension(Data.lpstrDefExt ? Data.lpstrDefExt : ""),
      FFilters(ReadFilters(Data.lpstrFilter))
{
}

void TFileDialog::Init()
{
    ShowTexts();
    ShowFilters();
    MakeParts();
    StartFolder();
    SetFocus(Item(cmb13)); // activates the dialog, which is the active one for its hook
    FitHeight();
    MakeHookWindow();
    RECT Outer;
    GetWindowRect(Window(), &Outer);
    FSmallest = {Outer.right - Outer.left, Outer.bottom - Outer.top};
    SetWindowPos(Window(), nullptr, (GetSystemMetrics(SM_CXSCREEN) - FSmallest.cx) / 2,
                 (GetSystemMetrics(SM_CYSCREEN) - FSmallest.cy) / 2, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    Notify(CDN_INITDONE);
    Notify(CDN_FOLDERCHANGE);
    Notify(CDN_SELCHANGE);
}

bool TFileDialog::Started(bool)
{
    return false;
}

void TFileDialog::ShowTexts()
{
    SetWindowTextA(Window(), FData.lpstrTitle ? FData.lpstrTitle : FSaves ? "Save As" : "Open");
    if (FSaves) {
        SetText(stc4, "Save &in:");
        SetText(IDOK, "&Save");
    }
    for (const auto& [Id, Shown] :
         {std::pair{int{chx1}, !Has(OFN_HIDEREADONLY)}, {pshHelp, Has(OFN_SHOWHELP)}}) {
        Enable(Id, Shown);
        Show(Id, Shown);
    }
    Check(chx1, Has(OFN_READONLY));
    if (!Has(OFN_ENABLESIZING))
        SetWindowLongA(Window(), GWL_STYLE,
                       static_cast<LONG>(GetWindowLongA(Window(), GWL_STYLE) & ~LONG{WS_THICKFRAME}));
}

void TFileDialog::ShowFilters()
{
    for (const TFileFilter& Filter : FFilters)
        AddString(cmb1, Filter.Name);
    if (FFilters.empty())
        return;
    const auto Last = static_cast<DWORD>(FFilters.size());
    const DWORD Index = std::clamp(FData.nFilterIndex, DWORD{1}, Last) - 1;
    Send(cmb1, CB_SETCURSEL, Index);
    FPatterns = FFilters[Index].Patterns;
}

void TFileDialog::MakeParts()
{
    FView = CreateShellView(Window(), ShellList, Has(OFN_ALLOWMULTISELECT));
    RECT Rect;
    GetWindowRect(Item(lst1), &Rect);
    MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&Rect), 2);
    SetWindowPos(FView, Item(cmb2), Rect.left, Rect.top, Rect.right - Rect.left, Rect.bottom - Rect.top,
                 SWP_NOACTIVATE);
    SendMessageA(FView, WM_SETFONT, static_cast<WPARAM>(SendMessageA(Window(), WM_GETFONT, 0, 0)), FALSE);
    MakeToolBars();
    if (!Has(OFN_ENABLESIZING))
        return;
    const int Size = GetSystemMetrics(SM_CXVSCROLL);
    RECT Client;
    GetClientRect(Window(), &Client);
    CreateWindowExA(0, "ScrollBar", "",
                    WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_GROUP | SBS_SIZEGRIP |
                        SBS_SIZEBOXBOTTOMRIGHTALIGN,
                    Client.right - Size, Client.bottom - Size, Size, Size, Window(),
                    reinterpret_cast<HMENU>(static_cast<INT_PTR>(GripId)), nullptr, nullptr);
}

void TFileDialog::MakeToolBars()
{
    const auto Button = [](int Command, const char* Text) {
        TBBUTTON Data{};
        Data.iBitmap = I_IMAGENONE;
        Data.idCommand = Command;
        Data.fsState = TBSTATE_ENABLED;
        Data.fsStyle = BTNS_BUTTON | BTNS_AUTOSIZE;
        Data.iString = reinterpret_cast<INT_PTR>(Text);
        return Data;
    };
    const auto Fill = [](HWND Bar, std::initializer_list<TBBUTTON> Buttons) {
        SendMessageA(Bar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
        SendMessageA(Bar, TB_ADDBUTTONSA, Buttons.size(), reinterpret_cast<LPARAM>(Buttons.begin()));
    };
    RECT Rect;
    GetWindowRect(Item(stc1), &Rect);
    MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&Rect), 2);
    RECT Places; // it begins where they end
    GetWindowRect(Item(cmb2), &Places);
    MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&Places), 2);
    OffsetRect(&Rect, Places.right - Rect.left, 0);
    const HWND Bar =
        CreateWindowExA(0, TOOLBARCLASSNAMEA, "",
                        WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_GROUP | TBSTYLE_FLAT |
                            TBSTYLE_TRANSPARENT | TBSTYLE_TOOLTIPS | CCS_NODIVIDER | CCS_NORESIZE | CCS_TOP,
                        Rect.left, Rect.top, Rect.right - Rect.left, Rect.bottom - Rect.top, Window(),
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(FolderBar)), nullptr, nullptr);
    SendMessageA(Bar, WM_SETFONT, static_cast<WPARAM>(SendMessageA(Window(), WM_GETFONT, 0, 0)), FALSE);
    Fill(Bar, {Button(UpFolder, "Up"), Button(NewFolder, "New Folder")});
    Fill(Item(PlacesBar), {Button(HomeFolder, "Home"), Button(RootFolder, "Root")});
}

// The help button and the read-only box need a line of their own.
void TFileDialog::FitHeight()
{
    const bool Closed = Has(OFN_HIDEREADONLY) && !Has(OFN_SHOWHELP);
    RECT Inner{0, 0, FileTemplate.Width, Closed ? ClosedHeight : OpenHeight};
    MapDialogRect(Window(), &Inner);
    FSize = {Inner.right, FSize.cy};
    AdjustWindowRectEx(&Inner, static_cast<DWORD>(GetWindowLongA(Window(), GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongA(Window(), GWL_EXSTYLE)));
    SetWindowPos(Window(), nullptr, 0, 0, Inner.right - Inner.left, Inner.bottom - Inner.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    RECT Client, Grip;
    GetClientRect(Window(), &Client);
    FSize = {Client.right, Client.bottom};
    if (const HWND Corner = Item(GripId)) {
        GetClientRect(Corner, &Grip);
        SetWindowPos(Corner, nullptr, Client.right - Grip.right, Client.bottom - Grip.bottom, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

// The hook procedure of an explorer-style dialog belongs to a child of the dialog.
void TFileDialog::MakeHookWindow()
{
    if (!Has(OFN_EXPLORER) || !Has(OFN_ENABLEHOOK))
        return;
    struct {
        DLGTEMPLATE Dialog;
        WORD Menu, ClassName, Title;
    } Template{};
    Template.Dialog.style = WS_CHILD | WS_CLIPSIBLINGS | DS_CONTROL | DS_3DLOOK;
    FHookWindow = CreateDialogIndirectParamA(FData.hInstance, &Template.Dialog, Window(),
                                             reinterpret_cast<DLGPROC>(FData.lpfnHook),
                                             reinterpret_cast<LPARAM>(&FData));
    if (FHookWindow)
        ShowWindow(FHookWindow, SW_SHOW);
}

void TFileDialog::Arrange()
{
    RECT Client;
    GetClientRect(Window(), &Client);
    if (!FSize.cx || !FSmallest.cx || IsIconic(Window()))
        return;
    const SIZE Change{Client.right - FSize.cx, Client.bottom - FSize.cy};
    FSize = {Client.right, Client.bottom};
    for (const auto& Each : Followers) {
        const HWND Control = Item(Each.Id);
        RECT Rect;
        if (!Control || !GetWindowRect(Control, &Rect))
            continue;
        MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&Rect), 2);
        SetWindowPos(Control, nullptr, Rect.left + Each.MovesRight * Change.cx,
                     Rect.top + Each.MovesDown * Change.cy, Rect.right - Rect.left + Each.Widens * Change.cx,
                     Rect.bottom - Rect.top + Each.Heightens * Change.cy, SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void TFileDialog::Limit(MINMAXINFO& Info) const
{
    if (FSmallest.cx)
        Info.ptMinTrackSize = {FSmallest.cx, FSmallest.cy};
}

bool TFileDialog::Command(int Id, int Code)
{
    switch (Id) {
    case IDOK:
        Accept();
        return true;
    case IDCANCEL:
        End(false);
        return true;
    case pshHelp:
        Notify(CDN_HELP);
        TellOwner(HELPMSGSTRINGA, reinterpret_cast<WPARAM>(Window()), reinterpret_cast<LPARAM>(&FData));
        return true;
    case cmb1:
        if (Code == CBN_SELENDOK)
            ChangeFilter();
        return true;
    case cmb2:
        if (Code == CBN_SELENDOK)
            PlaceChosen();
        return true;
    case UpFolder:
        GoTo(FolderOfPath(FFolder));
        return true;
    case NewFolder:
        MakeFolder();
        return true;
    case HomeFolder:
        GoTo(HomePath());
        return true;
    case RootFolder:
        GoTo("/");
        return true;
    default:
        return false;
    }
}

INT_PTR TFileDialog::Message(UINT Message, WPARAM WParam, LPARAM LParam)
{
    LRESULT Result = 0;
    if (Message >= CDM_FIRST && Message <= CDM_LAST)
        return AnswerQuestion(Message, WParam, LParam, Result) && Answer(Result);
    switch (Message) {
    case WM_NOTIFY: {
        const auto& Header = Structure<NMHDR>(LParam);
        if (GetParent(Header.hwndFrom) != FView)
            return FALSE;
        if (Header.code == static_cast<UINT>(LVN_ITEMCHANGED))
            SelectionChanged();
        else if (Header.code == static_cast<UINT>(NM_DBLCLK) || Header.code == static_cast<UINT>(NM_RETURN))
            OpenChosen();
        return TRUE;
    }
    case WM_DRAWITEM:
        DrawPlace(Structure<DRAWITEMSTRUCT>(LParam));
        return TRUE;
    case WM_SIZE:
        Arrange();
        return FALSE;
    case WM_GETMINMAXINFO:
        Limit(Structure<MINMAXINFO>(LParam));
        return FALSE;
    default:
        return TStandardDialog::Message(Message, WParam, LParam);
    }
}

LRESULT TFileDialog::Notify(UINT Code) const
{
    if (!FHookWindow)
        return 0;
    OFNOTIFYA Data{{Window(), 0, Code}, &FData, nullptr};
    if (Code == CDN_FILEOK)
        Data.pszFile = FData.lpstrFile;
    return SendMessageA(FHookWindow, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&Data));
}

bool TFileDialog::Refused() const
{
    if (Has(OFN_EXPLORER))
        return Notify(CDN_FILEOK) != 0;
    static const UINT FileOk = RegisterWindowMessageA(FILEOKSTRINGA);
    return AskHook(FileOk, 0, reinterpret_cast<LPARAM>(&FData)) != 0;
}

INT_PTR TFileDialog::Answer(LRESULT Result) const
{
    SetWindowLongPtrA(Window(), DWLP_MSGRESULT, Result);
    return TRUE;
}

bool TFileDialog::AnswerQuestion(UINT Message, WPARAM WParam, LPARAM LParam, LRESULT& Result)
{
    // Copies as much as fits; the result is the size that would do.
    const auto Give = [&](const std::string& Text) {
        if (LParam && static_cast<int>(WParam) > 0)
            CopyText(Text, reinterpret_cast<LPSTR>(LParam), static_cast<int>(WParam));
        Result = static_cast<LRESULT>(Text.size()) + 1;
        return true;
    };
    switch (Message) {
    case CDM_GETSPEC:
        return Give(Text(cmb13));
    case CDM_GETFILEPATH:
        return Give(CurrentPath());
    case CDM_GETFOLDERPATH:
        return Give(FFolder);
    case CDM_SETCONTROLTEXT:
        SetText(static_cast<int>(WParam), reinterpret_cast<const char*>(LParam));
        return true;
    case CDM_HIDECONTROL:
        Show(static_cast<int>(WParam), false);
        return true;
    case CDM_SETDEFEXT:
        FExtension = LParam ? reinterpret_cast<const char*>(LParam) : "";
        return true;
    default:
        return false;
    }
}
