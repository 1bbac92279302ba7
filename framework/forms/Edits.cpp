#include "framework/forms/Edits.h"

#include "framework/forms/EditRows.h"
#include "framework/forms/MemoLines.h"

const TMetaClass& TCustomEdit::MetaClass()
{
    static const TMetaClass Class("TCustomEdit", &TWinControl::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TEdit::MetaClass()
{
    static const TMetaClass Class("TEdit", &TCustomEdit::MetaClass(), CreateComponent<TEdit>,
                                  ControlRows::Sorted(ControlRows::SingleLineRows<TEdit>()));
    return Class;
}

const TMetaClass& TButtonedEdit::MetaClass()
{
    static const TMetaClass Class(
        "TButtonedEdit", &TCustomEdit::MetaClass(), CreateComponent<TButtonedEdit>,
        ControlRows::Sorted(ControlRows::SingleLineRows<TButtonedEdit>(),
                            Prop<&TButtonedEdit::OnLeftButtonClick>("OnLeftButtonClick"),
                            Prop<&TButtonedEdit::OnRightButtonClick>("OnRightButtonClick")));
    return Class;
}

TCustomEdit::TCustomEdit(TComponent* Owner) : TWinControl(Owner)
{
    FControlStyle = {csClickEvents, csSetCaption, csDoubleClicks, csFixedHeight, csFramed};
    SetBounds(0, 0, 121, 21);
    SetTabStop(true);
    SetParentColor(false);
    TWinControl::SetAutoSize(true);
}

void TCustomEdit::SelectAll()
{
    SendMessageA(Handle(), EM_SETSEL, 0, -1);
}

void TCustomEdit::ClearSelection()
{
    SendMessageA(Handle(), WM_CLEAR, 0, 0);
}

void TCustomEdit::CopyToClipboard()
{
    SendMessageA(Handle(), WM_COPY, 0, 0);
}

void TCustomEdit::CutToClipboard()
{
    SendMessageA(Handle(), WM_CUT, 0, 0);
}

void TCustomEdit::PasteFromClipboard()
{
    SendMessageA(Handle(), WM_PASTE, 0, 0);
}

void TCustomEdit::Undo()
{
    SendMessageA(Handle(), WM_UNDO, 0, 0);
}

int TCustomEdit::SelStart()
{
    DWORD Start = 0;
    SendMessageA(Handle(), EM_GETSEL, reinterpret_cast<WPARAM>(&Start), 0);
    return static_cast<int>(Start);
}

void TCustomEdit::SetSelStart(int Value)
{
    SendMessageA(Handle(), EM_SETSEL, static_cast<WPARAM>(Value), Value);
}

int TCustomEdit::SelLength()
{
    DWORD Start = 0;
    DWORD End = 0;
    SendMessageA(Handle(), EM_GETSEL, reinterpret_cast<WPARAM>(&Start), reinterpret_cast<LPARAM>(&End));
    return static_cast<int>(End - Start);
}

void TCustomEdit::SetSelLength(int Value)
{
    const int Start = SelStart();
    SendMessageA(Handle(), EM_SETSEL, static_cast<WPARAM>(Start), Start + Value);
}

void TCustomEdit::SetSelText(const std::string& Value)
{
    SendMessageA(Handle(), EM_REPLACESEL, 0, reinterpret_cast<LPARAM>(Value.c_str()));
}

bool TCustomEdit::Modified() const
{
    return HandleAllocated() ? SendMessageA(WindowHandle(), EM_GETMODIFY, 0, 0) != 0 : FModified;
}

void TCustomEdit::SetModified(bool Value)
{
    FModified = Value;
    if (HandleAllocated())
        SendMessageA(WindowHandle(), EM_SETMODIFY, Value, 0);
}

void TCustomEdit::SetAlignment(TAlignment Value)
{
    if (FAlignment == Value)
        return;
    FAlignment = Value;
    RecreateWnd();
}

void TCustomEdit::SetAutoSize(bool Value)
{
    if (AutoSize() == Value)
        return;
    if (Value)
        FControlStyle.Include(csFixedHeight);
    else
        FControlStyle.Exclude(csFixedHeight);
    TWinControl::SetAutoSize(Value);
    AdjustHeight();
}

void TCustomEdit::SetBorderStyle(TBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    AdjustHeight();
    RecreateWnd();
}

void TCustomEdit::SetCharCase(TEditCharCase Value)
{
    if (FCharCase == Value)
        return;
    FCharCase = Value;
    RecreateWnd();
}

void TCustomEdit::SetHideSelection(bool Value)
{
    if (FHideSelection == Value)
        return;
    FHideSelection = Value;
    RecreateWnd();
}

void TCustomEdit::SetMaxLength(int Value)
{
    FMaxLength = Value;
    if (HandleAllocated())
        SendMessageA(WindowHandle(), EM_LIMITTEXT, static_cast<WPARAM>(Value), 0);
}

void TCustomEdit::SetNumbersOnly(bool Value)
{
    if (FNumbersOnly == Value)
        return;
    FNumbersOnly = Value;
    RecreateWnd();
}

void TCustomEdit::SetOEMConvert(bool Value)
{
    if (FOEMConvert == Value)
        return;
    FOEMConvert = Value;
    RecreateWnd();
}

void TCustomEdit::SetPasswordChar(char16_t Value)
{
    if (FPasswordChar == Value)
        return;
    FPasswordChar = Value;
    RecreateWnd();
}

void TCustomEdit::SetReadOnly(bool Value)
{
    FReadOnly = Value;
    if (HandleAllocated())
        SendMessageA(WindowHandle(), EM_SETREADONLY, Value, 0);
}

void TCustomEdit::SetTextHint(const std::string& Value)
{
    if (FTextHint == Value)
        return;
    FTextHint = Value;
    if (HandleAllocated())
        SendMessageA(WindowHandle(), EM_SETCUEBANNER, 0,
                     reinterpret_cast<LPARAM>(Utf8ToUtf16(FTextHint).c_str()));
}

void TCustomEdit::CreateParams(TCreateParams& Params)
{
    static constexpr DWORD Alignments[] = {ES_LEFT, ES_RIGHT, ES_CENTER};
    static constexpr DWORD Cases[] = {0, ES_UPPERCASE, ES_LOWERCASE};
    TWinControl::CreateParams(Params);
    CreateSubClass(Params, "EDIT");
    Params.Style |= ES_AUTOHSCROLL | ES_AUTOVSCROLL | Alignments[FAlignment] | Cases[FCharCase];
    if (FBorderStyle == bsSingle && Ctl3D())
        Params.ExStyle |= WS_EX_CLIENTEDGE;
    else if (FBorderStyle == bsSingle)
        Params.Style |= WS_BORDER;
    if (FPasswordChar != 0 && !IsMultiLine())
        Params.Style |= ES_PASSWORD;
    if (FReadOnly)
        Params.Style |= ES_READONLY;
    if (!FHideSelection)
        Params.Style |= ES_NOHIDESEL;
    if (FOEMConvert)
        Params.Style |= ES_OEMCONVERT;
    if (FNumbersOnly)
        Params.Style |= ES_NUMBER;
}

void TCustomEdit::CreateWnd()
{
    FCreatingWnd = true;
    TWinControl::CreateWnd();
    FCreatingWnd = false;
    SendMessageA(WindowHandle(), EM_LIMITTEXT, static_cast<WPARAM>(FMaxLength), 0);
    if (FPasswordChar != 0)
        SendMessageA(WindowHandle(), EM_SETPASSWORDCHAR, FPasswordChar, 0);
    if (!FTextHint.empty())
        SendMessageA(WindowHandle(), EM_SETCUEBANNER, 0,
                     reinterpret_cast<LPARAM>(Utf8ToUtf16(FTextHint).c_str()));
    SetModified(FModified);
}

void TCustomEdit::DestroyWnd()
{
    FModified = Modified();
    TWinControl::DestroyWnd();
}

void TCustomEdit::AdjustHeight()
{
    if (!AutoSize() || IsMultiLine() || IsLoading() || !HandleAllocated())
        return;
    TScreenCanvas Canvas;
    Canvas.Font()->Assign(Font());
    const int Border = FBorderStyle == bsNone ? 0 : Ctl3D() ? 8 : 6;
    SetHeight(Canvas.TextHeight("Wg") + Border);
}

void TCustomEdit::Change()
{
    if (OnChange)
        OnChange(this);
}

void TCustomEdit::Dispatch(TMessage& Message)
{
    switch (Message.Msg) {
    case CN_COMMAND:
        if (Message.Code() == EN_CHANGE && !FCreatingWnd)
            Change();
        return;
    case CM_TEXTCHANGED:
        TWinControl::Dispatch(Message);
        // The window tells by itself unless it has several lines.
        if (!IsLoading() && (!HandleAllocated() || IsMultiLine()))
            Change();
        return;
    case CM_FONTCHANGED:
        TWinControl::Dispatch(Message);
        AdjustHeight();
        return;
    case CM_ENTER:
        if (AutoSelect() && !IsMultiLine() && HandleAllocated())
            SelectAll();
        TWinControl::Dispatch(Message);
        return;
    default:
        TWinControl::Dispatch(Message);
    }
}

const TMetaClass& TCustomMemo::MetaClass()
{
    static const TMetaClass Class("TCustomMemo", &TCustomEdit::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TMemo::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TMemo", &TCustomMemo::MetaClass(), CreateComponent<TMemo>,
        Sorted(EditRows<TMemo>(), OBX_ROW(TMemo, Lines), OBX_ROW(TMemo, ScrollBars).Default(ssNone),
               OBX_ROW(TMemo, WantReturns).Default(true), OBX_ROW(TMemo, WantTabs).Default(false),
               OBX_ROW(TMemo, WordWrap).Default(true)));
    return Class;
}

TCustomMemo::TCustomMemo(TComponent* Owner) : TCustomEdit(Owner), FLines(std::make_unique<TMemoLines>(*this))
{
    SetAutoSize(false);
    SetBounds(0, 0, 185, 89);
}

TCustomMemo::~TCustomMemo() = default;

TStrings* TCustomMemo::Lines() const
{
    return FLines.get();
}

void TCustomMemo::SetScrollBars(TScrollStyle Value)
{
    if (FScrollBars == Value)
        return;
    FScrollBars = Value;
    RecreateWnd();
}

void TCustomMemo::SetWordWrap(bool Value)
{
    if (FWordWrap == Value)
        return;
    FWordWrap = Value;
    RecreateWnd();
}

void TCustomMemo::CreateParams(TCreateParams& Params)
{
    static constexpr DWORD Bars[] = {0, WS_HSCROLL, WS_VSCROLL, WS_HSCROLL | WS_VSCROLL};
    TCustomEdit::CreateParams(Params);
    if (FWordWrap)
        Params.Style &= ~static_cast<DWORD>(ES_AUTOHSCROLL);
    Params.Style |= ES_MULTILINE | Bars[FScrollBars];
    if (WantReturns())
        Params.Style |= ES_WANTRETURN;
}

void TCustomMemo::Dispatch(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_GETDLGCODE:
        TCustomEdit::Dispatch(Message);
        if (WantTabs())
            Message.Result |= DLGC_WANTTAB;
        else
            Message.Result &= ~static_cast<LRESULT>(DLGC_WANTTAB);
        if (!WantReturns())
            Message.Result &= ~static_cast<LRESULT>(DLGC_WANTALLKEYS);
        return;
    case CM_TEXTCHANGED:
    case WM_SETTEXT:
        FLines->TextChanged();
        break;
    case CN_COMMAND:
        if (Message.Code() == EN_CHANGE)
            FLines->TextChanged();
        break;
    default:
        break;
    }
    TCustomEdit::Dispatch(Message);
}
