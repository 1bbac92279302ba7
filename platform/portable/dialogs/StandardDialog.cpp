#include "platform/portable/dialogs/StandardDialog.h"

#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/portable/Control.h"

namespace {

constexpr char ObjectProperty[] = "TStandardDialog";

DWORD& LastError()
{
    thread_local DWORD Error = 0;
    return Error;
}

class TTemplateWriter {
public:
    template<typename TValue>
    void Add(TValue Value)
    {
        const std::size_t At = FBytes.size();
        FBytes.resize(At + sizeof Value);
        std::memcpy(&FBytes[At], &Value, sizeof Value);
    }
    void Add(const char* Text)
    {
        for (const char16_t Unit : Widen(Text))
            Add(Unit);
        Add(WORD{0});
    }
    void Box(DWORD Style, DWORD ExStyle)
    {
        Add(DWORD{0}); // help identifier
        Add(ExStyle);
        Add(Style);
    }
    void Align() { FBytes.resize((FBytes.size() + 3) / 4 * 4); }
    const std::vector<BYTE>& Bytes() const { return FBytes; }

private:
    std::vector<BYTE> FBytes;
};

// An extended template, in the dialog font.
std::vector<BYTE> MakeTemplate(const TDialogTemplate& Dialog)
{
    constexpr short PointSize = 8;
    TTemplateWriter Writer;
    Writer.Add(WORD{1});
    Writer.Add(WORD{0xFFFF});
    Writer.Box(Dialog.Style, 0);
    Writer.Add(static_cast<WORD>(Dialog.Items.size()));
    for (const short Value : {short{0}, short{0}, Dialog.Width, Dialog.Height})
        Writer.Add(Value);
    Writer.Add("");
    Writer.Add("");
    Writer.Add(Dialog.Title);
    Writer.Add(PointSize);
    Writer.Add(WORD{FW_NORMAL});
    Writer.Add(BYTE{FALSE});
    Writer.Add(BYTE{DEFAULT_CHARSET});
    Writer.Add("MS Shell Dlg");
    for (const TItemRow& Item : Dialog.Items) {
        Writer.Align();
        Writer.Box(Item.Style, Item.ExStyle);
        for (const short Value : {Item.Left, Item.Top, Item.Width, Item.Height})
            Writer.Add(Value);
        Writer.Add(static_cast<DWORD>(Item.Id));
        Writer.Add(Item.ClassName);
        Writer.Add(Item.Text);
        Writer.Add(WORD{0}); // no data
    }
    return Writer.Bytes();
}

} // namespace

bool DialogError(DWORD Error)
{
    LastError() = Error;
    return false;
}

void DrawListItem(const DRAWITEMSTRUCT& Item, const std::string& Text, int Indent)
{
    const bool Selected = (Item.itemState & ODS_SELECTED) != 0;
    const int Back = Selected ? COLOR_HIGHLIGHT : COLOR_WINDOW;
    const int Front = Item.itemState & ODS_DISABLED ? COLOR_GRAYTEXT
                      : Selected                    ? COLOR_HIGHLIGHTTEXT
                                                    : COLOR_WINDOWTEXT;
    FillRect(Item.hDC, &Item.rcItem, GetSysColorBrush(Back));
    SetTextColor(Item.hDC, GetSysColor(Front));
    SetBkMode(Item.hDC, TRANSPARENT);
    RECT Rect = Item.rcItem;
    Rect.left += Indent;
    DrawTextA(Item.hDC, Text.c_str(), -1, &Rect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}

DWORD CommDlgExtendedError()
{
    return LastError();
}

bool TStandardDialog::Run(HWND Owner)
{
    const std::vector<BYTE> Template = MakeTemplate(FTemplate);
    const INT_PTR Result =
        DialogBoxIndirectParamA(nullptr, reinterpret_cast<LPCDLGTEMPLATEA>(Template.data()), Owner,
                                DialogProc, reinterpret_cast<LPARAM>(this));
    if (Result < 0)
        DialogError(CDERR_DIALOGFAILURE);
    return Result > 0;
}

HWND TStandardDialog::Open(const std::shared_ptr<TStandardDialog>& Dialog, HWND Owner)
{
    const std::vector<BYTE> Template = MakeTemplate(Dialog->FTemplate);
    Dialog->FSelf = Dialog;
    const HWND Window =
        CreateDialogIndirectParamA(nullptr, reinterpret_cast<LPCDLGTEMPLATEA>(Template.data()), Owner,
                                   DialogProc, reinterpret_cast<LPARAM>(Dialog.get()));
    if (!Window) {
        Dialog->FSelf.reset();
        DialogError(CDERR_DIALOGFAILURE);
    }
    return Window;
}

INT_PTR TStandardDialog::DialogProc(HWND Dialog, UINT Message, WPARAM WParam, LPARAM LParam)
{
    if (Message == WM_INITDIALOG) {
        auto* const Object = reinterpret_cast<TStandardDialog*>(LParam);
        Object->FWindow = Dialog;
        SetPropA(Dialog, ObjectProperty, Object);
        return Object->Start(WParam);
    }
    auto* const Object = static_cast<TStandardDialog*>(GetPropA(Dialog, ObjectProperty));
    if (!Object)
        return FALSE;
    const std::shared_ptr<TStandardDialog> Kept = Object->FSelf;
    INT_PTR Answer = 0;
    if (Object->FHook)
        Answer = static_cast<INT_PTR>(Object->FHook(Dialog, Message, WParam, LParam));
    if (Message == WM_NCDESTROY) {
        RemovePropA(Dialog, ObjectProperty);
        Object->FSelf.reset();
        return Answer;
    }
    if (Answer || !IsWindow(Dialog))
        return Answer;
    if (Message == WM_COMMAND)
        return Object->Command(LOWORD(WParam), HIWORD(WParam));
    return Object->Message(Message, WParam, LParam);
}

INT_PTR TStandardDialog::Start(WPARAM WParam)
{
    Init();
    if (!Alive())
        return FALSE;
    const bool Answer = !FHook || FHook(FWindow, WM_INITDIALOG, WParam, reinterpret_cast<LPARAM>(FData)) != 0;
    return Alive() && Started(Answer);
}

INT_PTR TStandardDialog::Message(UINT, WPARAM, LPARAM)
{
    return 0;
}

LRESULT TStandardDialog::TellOwner(LPCSTR Name, WPARAM WParam, LPARAM LParam) const
{
    const HWND Owner = GetWindow(FWindow, GW_OWNER);
    return Owner ? SendMessageA(Owner, RegisterWindowMessageA(Name), WParam, LParam) : 0;
}

std::string TStandardDialog::Text(int Id) const
{
    const LRESULT Length = Send(Id, WM_GETTEXTLENGTH);
    std::string Result(static_cast<std::size_t>(Length) + 1, 0);
    Result.resize(GetDlgItemTextA(FWindow, Id, Result.data(), static_cast<int>(Result.size())));
    return Result;
}

int TStandardDialog::AddString(int Id, const std::string& Text, LPARAM Data) const
{
    const LRESULT Index = Send(Id, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Text.c_str()));
    Send(Id, CB_SETITEMDATA, static_cast<WPARAM>(Index), Data);
    return static_cast<int>(Index);
}

std::string TStandardDialog::ItemText(int Id, int Index) const
{
    const LRESULT Length = Send(Id, CB_GETLBTEXTLEN, static_cast<WPARAM>(Index));
    if (Length < 0)
        return "";
    std::string Result(static_cast<std::size_t>(Length) + 1, 0);
    Send(Id, CB_GETLBTEXT, static_cast<WPARAM>(Index), reinterpret_cast<LPARAM>(Result.data()));
    Result.resize(static_cast<std::size_t>(Length));
    return Result;
}

void TStandardDialog::Tell(const std::string& Text) const
{
    char Title[256];
    GetWindowTextA(FWindow, Title, sizeof Title);
    MessageBoxA(FWindow, Text.c_str(), Title, MB_OK | MB_ICONEXCLAMATION);
}
