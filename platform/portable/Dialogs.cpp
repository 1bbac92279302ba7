// Dialog windows: made from templates, run modally or not.
#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "platform/portable/Lifetime.h"
#include "platform/portable/MdiState.h"
#include "platform/portable/Thread.h"

void RegisterOwnClasses();

namespace {

struct TDialog : TSystemControlState {
    DLGPROC Proc = nullptr;
    bool Ended = false;
    INT_PTR Result = 0;
    UINT DefaultId = 0;
    HFONT OwnFont = nullptr;
    int BaseX = 6; // average width and height of the font's characters
    int BaseY = 13;

    ~TDialog() override
    {
        if (OwnFont)
            DeleteObject(OwnFont);
    }
};

DLGPROC ProcOf(HWND Dialog)
{
    return reinterpret_cast<DLGPROC>(GetWindowLongPtrA(Dialog, DWLP_DLGPROC));
}

// Reads the words of a dialog template.
class TTemplateReader {
public:
    explicit TTemplateReader(const void* Data) : FAt(static_cast<const BYTE*>(Data)) {}

    template<typename TValue>
    TValue Read()
    {
        TValue Value;
        std::memcpy(&Value, FAt, sizeof(Value));
        FAt += sizeof(Value);
        return Value;
    }
    void Align() { FAt += (4 - reinterpret_cast<std::uintptr_t>(FAt) % 4) % 4; }
    void Skip(std::size_t Count) { FAt += Count; }

    // A text in UTF-16, or "#" and a number after the mark 0xFFFF.
    std::string Name()
    {
        WORD First = Read<WORD>();
        if (First == 0xFFFF)
            return "#" + std::to_string(Read<WORD>());
        std::string Text;
        for (; First; First = Read<WORD>())
            AppendCharacter(Text, First);
        return Text;
    }

private:
    void AppendCharacter(std::string& Text, WORD First)
    {
        std::uint32_t Code = First;
        if (First >= 0xD800 && First < 0xDC00)
            Code = 0x10000 + ((static_cast<std::uint32_t>(First) & 0x3FF) << 10) + (Read<WORD>() & 0x3FF);
        const auto Add = [&](std::uint32_t Byte) { Text += static_cast<char>(Byte); };
        if (Code < 0x80) {
            Add(Code);
        } else if (Code < 0x800) {
            Add(0xC0 | Code >> 6);
            Add(0x80 | (Code & 0x3F));
        } else if (Code < 0x10000) {
            Add(0xE0 | Code >> 12);
            Add(0x80 | (Code >> 6 & 0x3F));
            Add(0x80 | (Code & 0x3F));
        } else {
            Add(0xF0 | Code >> 18);
            Add(0x80 | (Code >> 12 & 0x3F));
            Add(0x80 | (Code >> 6 & 0x3F));
            Add(0x80 | (Code & 0x3F));
        }
    }

    const BYTE* FAt;
};

struct TBox {
    DWORD Style = 0;
    DWORD ExStyle = 0;
    int X = 0, Y = 0, Width = 0, Height = 0; // dialog units
};

struct TDialogData {
    bool Extended = false;
    TBox Box;
    WORD Count = 0;
    std::string ClassName, Title, Face;
    int PointSize = 0;
    int Weight = 400;
    bool Italic = false;
    BYTE CharSet = 1;
};

TBox ReadBox(TTemplateReader& Reader, bool Extended, WORD* Count)
{
    TBox Box;
    if (Extended) {
        Reader.Skip(4); // help id
        Box.ExStyle = Reader.Read<DWORD>();
        Box.Style = Reader.Read<DWORD>();
    } else {
        Box.Style = Reader.Read<DWORD>();
        Box.ExStyle = Reader.Read<DWORD>();
    }
    if (Count)
        *Count = Reader.Read<WORD>();
    for (int* const Field : {&Box.X, &Box.Y, &Box.Width, &Box.Height})
        *Field = Reader.Read<short>();
    return Box;
}

TDialogData ReadDialog(TTemplateReader& Reader, const void* Template)
{
    TDialogData Data;
    WORD Marks[2];
    std::memcpy(Marks, Template, sizeof(Marks));
    Data.Extended = Marks[0] == 1 && Marks[1] == 0xFFFF;
    if (Data.Extended)
        Reader.Skip(4);
    Data.Box = ReadBox(Reader, Data.Extended, &Data.Count);
    Reader.Name(); // menu
    Data.ClassName = Reader.Name();
    Data.Title = Reader.Name();
    if (Data.Box.Style & DS_SETFONT) {
        Data.PointSize = Reader.Read<WORD>();
        if (Data.Extended) {
            Data.Weight = Reader.Read<WORD>();
            Data.Italic = Reader.Read<BYTE>() != 0;
            Data.CharSet = Reader.Read<BYTE>();
        }
        Data.Face = Reader.Name();
    }
    return Data;
}

void MakeFont(TDialog& State, const TDialogData& Data)
{
    LOGFONTA Font{};
    Font.lfHeight = -MulDiv(Data.PointSize, 96, 72);
    Font.lfWeight = Data.Weight;
    Font.lfItalic = Data.Italic;
    Font.lfCharSet = Data.CharSet;
    CopyText(Data.Face, Font.lfFaceName, LF_FACESIZE);
    State.OwnFont = CreateFontIndirectA(&Font);
    const HDC Dc = GetDC(nullptr);
    const HGDIOBJ Old = SelectObject(Dc, State.OwnFont);
    TEXTMETRICA Metrics{};
    SIZE Size{};
    constexpr char Letters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    if (GetTextMetricsA(Dc, &Metrics) && GetTextExtentPoint32A(Dc, Letters, 52, &Size)) {
        State.BaseX = (Size.cx / 26 + 1) / 2;
        State.BaseY = Metrics.tmHeight;
    }
    SelectObject(Dc, Old);
    ReleaseDC(nullptr, Dc);
}

RECT Pixels(const TDialog& State, const TBox& Box)
{
    const int X = MulDiv(Box.X, State.BaseX, 4);
    const int Y = MulDiv(Box.Y, State.BaseY, 8);
    return {X, Y, X + MulDiv(Box.Width, State.BaseX, 4), Y + MulDiv(Box.Height, State.BaseY, 8)};
}

LPCSTR PredefinedClass(const std::string& Name)
{
    constexpr const char* Classes[] = {"Button", "Edit", "Static", "ListBox", "ScrollBar", "ComboBox"};
    constexpr int First = 128;
    if (Name.size() < 2 || Name[0] != '#')
        return Name.c_str();
    const int Number = std::stoi(Name.substr(1)) - First;
    return Number >= 0 && Number < 6 ? Classes[Number] : Name.c_str();
}

bool CreateItems(HWND Dialog, TTemplateReader& Reader, const TDialogData& Data, HINSTANCE Instance)
{
    for (WORD Index = 0; Index < Data.Count; ++Index) {
        Reader.Align();
        const TBox Box = ReadBox(Reader, Data.Extended, nullptr);
        const auto Id = Data.Extended ? Reader.Read<DWORD>() : Reader.Read<WORD>();
        const std::string ClassName = Reader.Name();
        const std::string Text = Reader.Name();
        const WORD Extra = Reader.Read<WORD>();
        Reader.Skip(Extra);
        TDialog* const State = StateOf<TDialog>(Dialog);
        if (!State)
            return false;
        const RECT Rect = Pixels(*State, Box);
        const HWND Item = CreateWindowExA(
            Box.ExStyle | WS_EX_NOPARENTNOTIFY, PredefinedClass(ClassName), Text.c_str(),
            Box.Style | WS_CHILD, Rect.left, Rect.top, Rect.right - Rect.left, Rect.bottom - Rect.top, Dialog,
            reinterpret_cast<HMENU>(static_cast<UINT_PTR>(Id)), Instance, nullptr);
        if (!Item) {
            if (Data.Box.Style & DS_NOFAILCREATE)
                continue;
            return false;
        }
        if (State->OwnFont)
            SendMessageA(Item, WM_SETFONT, reinterpret_cast<WPARAM>(State->OwnFont), FALSE);
        if (SendMessageA(Item, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON)
            State->DefaultId = Id;
    }
    return true;
}

RECT OuterRect(const TDialog& State, const TDialogData& Data, HWND Owner)
{
    RECT Rect = Pixels(State, Data.Box);
    AdjustWindowRectEx(&Rect, Data.Box.Style, FALSE, Data.Box.ExStyle);
    const int Width = Rect.right - Rect.left;
    const int Height = Rect.bottom - Rect.top;
    POINT Corner{MulDiv(Data.Box.X, State.BaseX, 4), MulDiv(Data.Box.Y, State.BaseY, 8)};
    if (Data.Box.Style & DS_CENTER) {
        Corner = {(GetSystemMetrics(SM_CXSCREEN) - Width) / 2, (GetSystemMetrics(SM_CYSCREEN) - Height) / 2};
    } else if (Owner && !(Data.Box.Style & (WS_CHILD | DS_ABSALIGN))) {
        ClientToScreen(Owner, &Corner);
    }
    return {Corner.x, Corner.y, Corner.x + Width, Corner.y + Height};
}

DWORD DialogStyle(const TDialogData& Data)
{
    DWORD Style = Data.Box.Style & ~static_cast<DWORD>(WS_VISIBLE);
    if (Style & DS_CONTROL)
        Style &= ~static_cast<DWORD>(WS_CAPTION | WS_SYSMENU);
    return Style;
}

void GiveFirstFocus(HWND Dialog)
{
    const HWND First = GetNextDlgTabItem(Dialog, nullptr, FALSE);
    if (!First)
        return;
    SetFocus(First);
    if (SendMessageA(First, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL)
        SendMessageA(First, EM_SETSEL, 0, -1);
}

HWND CreateDialogWindow(HINSTANCE Instance, const void* Template, HWND Owner, DLGPROC Proc, LPARAM Param)
{
    TTemplateReader Reader(Template);
    const TDialogData Data = ReadDialog(Reader, Template);
    auto State = std::make_unique<TDialog>();
    State->Proc = Proc;
    if (Data.PointSize && !Data.Face.empty())
        MakeFont(*State, Data);
    DWORD ExStyle = Data.Box.ExStyle;
    if (Data.Box.Style & DS_MODALFRAME)
        ExStyle |= WS_EX_DLGMODALFRAME;
    if ((Data.Box.Style & DS_CONTROL) || !(Data.Box.Style & WS_CHILD))
        ExStyle |= WS_EX_CONTROLPARENT;
    const RECT Rect = OuterRect(*State, Data, Owner);
    const std::string ClassName = Data.ClassName.empty() ? "#32770" : Data.ClassName;
    const HWND Dialog = CreateWindowExA(ExStyle, ClassName.c_str(), Data.Title.c_str(), DialogStyle(Data),
                                        Rect.left, Rect.top, Rect.right - Rect.left, Rect.bottom - Rect.top,
                                        Owner, nullptr, Instance, nullptr);
    if (!Dialog)
        return nullptr;
    const HFONT Font = State->OwnFont;
    WindowOf(Dialog)->State = std::move(State);
    WindowOf(Dialog)->IsDialog = true;
    SetWindowLongPtrA(Dialog, DWLP_DLGPROC, reinterpret_cast<LONG_PTR>(Proc));
    if (Font && Proc)
        SendMessageA(Dialog, WM_SETFONT, reinterpret_cast<WPARAM>(Font), 0);
    if (!IsWindow(Dialog))
        return nullptr;
    WindowOf(Dialog)->Font = Font;
    if (!CreateItems(Dialog, Reader, Data, Instance)) {
        if (IsWindow(Dialog))
            DestroyWindow(Dialog);
        return nullptr;
    }
    const HWND First = GetNextDlgTabItem(Dialog, nullptr, FALSE);
    if (SendMessageA(Dialog, WM_INITDIALOG, reinterpret_cast<WPARAM>(First), Param) && IsWindow(Dialog) &&
        !(Data.Box.Style & DS_CONTROL) && (Data.Box.Style & WS_VISIBLE))
        GiveFirstFocus(Dialog);
    const TDialog* const Kept = StateOf<TDialog>(Dialog);
    if (Kept && (Data.Box.Style & WS_VISIBLE) && !Kept->Ended)
        ShowWindow(Dialog, SW_SHOWNORMAL);
    return IsWindow(Dialog) ? Dialog : nullptr;
}

// Runs until the dialog ends, and tells the owner when nothing is to be done.
void RunModal(HWND Dialog, HWND Owner)
{
    MSG Message;
    for (;;) {
        const TDialog* const State = StateOf<TDialog>(Dialog);
        if (!State || State->Ended)
            return;
        if (!PeekMessageA(&Message, nullptr, 0, 0, PM_NOREMOVE)) {
            if (!(GetWindowLongA(Dialog, GWL_STYLE) & DS_NOIDLEMSG) && Owner)
                SendMessageA(Owner, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(Dialog));
            const TDialog* const Still = StateOf<TDialog>(Dialog);
            if (!Still || Still->Ended)
                return;
        }
        if (!GetMessageA(&Message, nullptr, 0, 0)) {
            PostQuitMessage(static_cast<int>(Message.wParam));
            return;
        }
        if (CallMsgFilterA(&Message, MSGF_DIALOGBOX) || IsDialogMessageA(Dialog, &Message))
            continue;
        TranslateMessage(&Message);
        DispatchMessageA(&Message);
    }
}

void SaveFocus(HWND Dialog)
{
    const HWND Focus = GetFocus();
    TWindow* const Window = WindowOf(Dialog);
    if (Window && Focus && IsChild(Dialog, Focus))
        Window->SavedFocus = Focus;
}

// Being activated gives back the focus that the dialog had; only getting the focus
// itself makes the dialog pass it to its first control. A dialog that has ended
// keeps it.
enum class TRestore { Saved, SavedOrFirst };

void RestoreFocus(HWND Dialog, TRestore Restore)
{
    TWindow* const Window = WindowOf(Dialog);
    const TDialog* const State = StateOf<TDialog>(Dialog);
    if (!Window || Window->Has(WS_MINIMIZE) || (State && State->Ended))
        return;
    if (Window->SavedFocus && IsWindow(Window->SavedFocus))
        SetFocus(Window->SavedFocus);
    else if (Restore == TRestore::SavedOrFirst)
        GiveFirstFocus(Dialog);
    if (TWindow* const Kept = WindowOf(Dialog))
        Kept->SavedFocus = nullptr;
}

LRESULT DefaultId(HWND Dialog)
{
    const TDialog* const State = StateOf<TDialog>(Dialog);
    return State && State->DefaultId ? MAKELRESULT(State->DefaultId, 0x534B) : 0; // DC_HASDEFID
}

LRESULT SetDefaultId(HWND Dialog, UINT Id)
{
    TDialog* const State = StateOf<TDialog>(Dialog);
    if (!State)
        return 0;
    const HWND Old = GetDlgItem(Dialog, static_cast<int>(State->DefaultId));
    const HWND New = GetDlgItem(Dialog, static_cast<int>(Id));
    State->DefaultId = Id;
    if (Old && Old != New && (SendMessageA(Old, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON))
        SendMessageA(Old, BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
    if (New && (SendMessageA(New, WM_GETDLGCODE, 0, 0) & DLGC_UNDEFPUSHBUTTON))
        SendMessageA(New, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
    return TRUE;
}

// A push button with the focus looks like the default button; without one the
// dialog's own does.
void ShowDefault(HWND Dialog, HWND Focus)
{
    const TDialog* const State = StateOf<TDialog>(Dialog);
    const auto CodeOf = [](HWND Button) { return SendMessageA(Button, WM_GETDLGCODE, 0, 0); };
    const auto Draw = [](HWND Button, WPARAM Style) { SendMessageA(Button, BM_SETSTYLE, Style, TRUE); };
    const bool Takes = (CodeOf(Focus) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
    const HWND Own =
        State && State->DefaultId ? GetDlgItem(Dialog, static_cast<int>(State->DefaultId)) : nullptr;
    const HWND Shown = Takes ? Focus : Own;
    std::vector<HWND> Buttons;
    const auto Collect = [](HWND Child, LPARAM List) -> BOOL {
        reinterpret_cast<std::vector<HWND>*>(List)->push_back(Child);
        return TRUE;
    };
    EnumChildWindows(Dialog, Collect, reinterpret_cast<LPARAM>(&Buttons));
    for (const HWND Button : Buttons)
        if (Button != Shown && (CodeOf(Button) & DLGC_DEFPUSHBUTTON))
            Draw(Button, BS_PUSHBUTTON);
    if (Shown && (CodeOf(Shown) & DLGC_UNDEFPUSHBUTTON))
        Draw(Shown, BS_DEFPUSHBUTTON);
}

// In the colour that the dialog procedure gives for it.
LRESULT EraseDialog(HWND Dialog, WPARAM Dc)
{
    const LRESULT Brush = SendMessageA(Dialog, WM_CTLCOLORDLG, Dc, reinterpret_cast<LPARAM>(Dialog));
    RECT Client;
    if (Brush && GetClientRect(Dialog, &Client))
        FillRect(reinterpret_cast<HDC>(Dc), &Client, reinterpret_cast<HBRUSH>(Brush));
    return TRUE;
}

LRESULT DefaultDialogAnswer(HWND Dialog, UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case WM_ACTIVATE:
        if (LOWORD(WParam))
            RestoreFocus(Dialog, TRestore::Saved);
        else
            SaveFocus(Dialog);
        return 0;
    case WM_SETFOCUS:
        RestoreFocus(Dialog, TRestore::SavedOrFirst);
        return 0;
    case WM_NCDESTROY:
        SetWindowLongPtrA(Dialog, DWLP_DLGPROC, 0);
        return DefWindowProcA(Dialog, Message, WParam, LParam);
    case WM_ERASEBKGND:
        return EraseDialog(Dialog, WParam);
    case WM_CLOSE:
        PostMessageA(Dialog, WM_COMMAND, IDCANCEL, reinterpret_cast<LPARAM>(GetDlgItem(Dialog, IDCANCEL)));
        return 0;
    case WM_NEXTDLGCTL: {
        const HWND Next =
            LParam ? reinterpret_cast<HWND>(WParam) : GetNextDlgTabItem(Dialog, GetFocus(), WParam != 0);
        if (!Next)
            return 0;
        SetFocus(Next);
        if (IsWindow(Dialog) && IsWindow(Next))
            ShowDefault(Dialog, Next);
        return 0;
    }
    case WM_GETFONT: {
        const TWindow* const Window = WindowOf(Dialog);
        return Window ? reinterpret_cast<LRESULT>(Window->Font) : 0;
    }
    case DM_GETDEFID:
        return DefaultId(Dialog);
    case DM_SETDEFID:
        return SetDefaultId(Dialog, static_cast<UINT>(WParam));
    default:
        return DefWindowProcA(Dialog, Message, WParam, LParam);
    }
}

// Messages whose answer is what the dialog procedure returns, not what it left
// in DWLP_MSGRESULT.
bool AnswersDirectly(UINT Message)
{
    return (Message >= WM_CTLCOLORMSGBOX && Message <= WM_CTLCOLORSTATIC) || Message == WM_COMPAREITEM ||
           Message == WM_VKEYTOITEM || Message == WM_CHARTOITEM || Message == WM_QUERYDRAGICON ||
           Message == WM_INITDIALOG;
}

} // namespace

LRESULT DefDlgProcA(HWND Dialog, UINT Message, WPARAM WParam, LPARAM LParam)
{
    SetWindowLongPtrA(Dialog, DWLP_MSGRESULT, 0);
    INT_PTR Answer = 0;
    if (const DLGPROC Proc = ProcOf(Dialog))
        Answer = Proc(Dialog, Message, WParam, LParam);
    if (!IsWindow(Dialog))
        return Answer;
    if (AnswersDirectly(Message))
        return Answer || Message == WM_INITDIALOG ? Answer
                                                  : DefaultDialogAnswer(Dialog, Message, WParam, LParam);
    if (!Answer)
        return DefaultDialogAnswer(Dialog, Message, WParam, LParam);
    return GetWindowLongPtrA(Dialog, DWLP_MSGRESULT);
}

void RegisterOwnClasses()
{
    RegisterMdiClass();
    RegisterBuiltInClass("#32770", CS_SAVEBITS | CS_DBLCLKS, DefDlgProcA, DLGWINDOWEXTRA, IDC_ARROW,
                         reinterpret_cast<HBRUSH>(static_cast<LONG_PTR>(COLOR_BTNFACE + 1)));
}

HWND CreateDialogIndirectParamA(HINSTANCE Instance, LPCDLGTEMPLATEA Template, HWND Owner, DLGPROC Proc,
                                LPARAM Param)
{
    return Template ? CreateDialogWindow(Instance, Template, Owner, Proc, Param) : nullptr;
}

INT_PTR DialogBoxIndirectParamA(HINSTANCE Instance, LPCDLGTEMPLATEA Template, HWND Owner, DLGPROC Proc,
                                LPARAM Param)
{
    if (!Template || (Owner && !IsWindow(Owner)))
        return -1;
    const HWND Root = Owner ? GetAncestor(Owner, GA_ROOT) : nullptr;
    const bool WasEnabled = Root && IsWindowEnabled(Root);
    if (WasEnabled)
        EnableWindow(Root, FALSE);
    const HWND Dialog = CreateDialogWindow(Instance, Template, Root, Proc, Param);
    INT_PTR Result = -1;
    if (Dialog) {
        const TDialog* const Before = StateOf<TDialog>(Dialog);
        if (Before && !Before->Ended && !(GetWindowLongA(Dialog, GWL_STYLE) & WS_VISIBLE))
            ShowWindow(Dialog, SW_SHOWNORMAL);
        RunModal(Dialog, Root);
        if (const TDialog* const State = StateOf<TDialog>(Dialog))
            Result = State->Result;
    }
    if (WasEnabled)
        EnableWindow(Root, TRUE);
    if (Dialog && IsWindow(Dialog)) {
        if (Root && GetActiveWindow() == Dialog)
            SetActiveWindow(Root);
        DestroyWindow(Dialog);
    }
    return Result;
}

BOOL EndDialog(HWND Dialog, INT_PTR Result)
{
    TDialog* State = StateOf<TDialog>(Dialog);
    if (!State)
        return FALSE;
    State->Result = Result;
    State->Ended = true;
    if (const HWND Owner = GetWindow(Dialog, GW_OWNER))
        EnableWindow(Owner, TRUE);
    if (IsChild(Dialog, GetFocus()))
        SetFocus(Dialog);
    SetWindowPos(Dialog, nullptr, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
    if (const HWND Owner = GetWindow(Dialog, GW_OWNER); Owner && Dialog == GetActiveWindow())
        SetActiveWindow(Owner);
    PostMessageA(Dialog, WM_NULL, 0, 0);
    return TRUE;
}

BOOL MapDialogRect(HWND Dialog, LPRECT Rect)
{
    const TDialog* const State = StateOf<TDialog>(Dialog);
    if (!State)
        return FALSE;
    *Rect = {MulDiv(Rect->left, State->BaseX, 4), MulDiv(Rect->top, State->BaseY, 8),
             MulDiv(Rect->right, State->BaseX, 4), MulDiv(Rect->bottom, State->BaseY, 8)};
    return TRUE;
}

// Of the system font.
LONG GetDialogBaseUnits()
{
    return MAKELONG(7, 16);
}
