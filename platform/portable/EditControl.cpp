#include <unicode/uchar.h>

#include <algorithm>
#include <cstring>
#include <optional>
#include <utility>
#include <vector>

#include "platform/portable/Control.h"

// Text fields of one or many lines, and the rich edit classes without their
// formatting. Positions count UTF-16 units, lengths of whole texts bytes.
namespace {
constexpr int Margin = 2;
constexpr std::size_t NoLimit = 0x7FFFFFFE;
constexpr std::size_t FirstLimit = 30000;

class TEdit : public TSystemControl {
public:
    using TSystemControl::TSystemControl;
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override;

protected:
    void Paint(HDC Dc) override;
    void FontChanged() override { FLines.clear(); }
    virtual std::size_t InitialLimit() const { return FirstLimit; }

private:
    enum class TNotice { Silent, Update };

    // What was typed without a break is undone at once: Inserted units at At go,
    // and Removed comes back.
    struct TUndo {
        std::size_t At, Inserted;
        std::u16string Removed;
    };

    bool Multiline() const { return (Style() & ES_MULTILINE) != 0; }
    bool ReadOnly() const { return (Style() & ES_READONLY) != 0; }
    std::size_t First() const { return std::min(FStart, FEnd); }
    std::size_t Last() const { return std::max(FStart, FEnd); }

    std::optional<LRESULT> HandleText(UINT Message, WPARAM WParam, LPARAM LParam);
    std::optional<LRESULT> HandleSelection(UINT Message, WPARAM WParam, LPARAM LParam);
    std::optional<LRESULT> HandleLines(UINT Message, WPARAM WParam, LPARAM LParam);
    std::optional<LRESULT> HandleOptions(UINT Message, WPARAM WParam, LPARAM LParam);
    std::optional<LRESULT> HandleInput(UINT Message, WPARAM WParam, LPARAM LParam);
    std::optional<LRESULT> HandleRich(UINT Message, WPARAM WParam, LPARAM LParam);

    void SetText(const std::string& Value);
    std::u16string Fold(std::u16string Text) const;
    void Replace(const std::u16string& Text, bool CanUndo, TNotice Notice);
    void Remember(std::size_t Room);
    bool Undo();
    void Changed();
    void Copy() const;
    void Paste();
    bool InCombo(UINT Message, WPARAM WParam, LPARAM LParam) const;
    bool InDialog() const;
    bool Edits(WPARAM Key);
    std::size_t NextWord(std::size_t At);
    std::size_t WordBefore(std::size_t At);
    void MoveLines(std::ptrdiff_t Count);
    void Select(std::size_t Start, std::size_t End);
    void TypeCharacter(WPARAM Character);
    void Key(WPARAM Key);
    void MoveCaret(std::size_t To);
    std::size_t StepFrom(std::size_t At, int By) const;
    std::size_t PositionAt(POINT Point);
    LRESULT CopyText(int Size, LPSTR Buffer, std::size_t From, std::size_t To) const;
    LRESULT GetLine(int Line, LPSTR Buffer);
    const std::vector<std::size_t>& Lines();
    void WrapLine(std::size_t From, std::size_t To, int Width);
    std::size_t LineOf(std::size_t At);
    std::size_t LineStart(std::size_t Line) { return Lines()[std::min(Line, Lines().size() - 1)]; }
    std::size_t LineEnd(std::size_t Line);
    std::string Shown(const std::u16string& Text) const;
    void PaintLine(HDC Dc, std::size_t Line, const RECT& Rect, UINT Format);

    std::u16string FText;
    std::size_t FStart = 0; // where a selection began
    std::size_t FEnd = 0;   // the caret
    std::size_t FLimit = FirstLimit;
    std::optional<TUndo> FUndo;
    std::vector<std::size_t> FLines; // first unit of each line; empty: to be made
    std::string FPending;            // bytes of a character that is being typed
    std::string FCue;
    std::size_t FTop = 0;
    DWORD FEvents = 0;
    char16_t FPassword = 0;
    bool FModified = false;
    bool FSelecting = false;
};

LRESULT TEdit::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    if (Message == WM_CREATE) {
        const auto& Create = Structure<CREATESTRUCTA>(LParam);
        FLimit = InitialLimit();
        if (Style() & ES_PASSWORD)
            FPassword = u'*';
        FText = Fold(Widen(Create.lpszName ? Create.lpszName : ""));
        return 0;
    }
    using THandler = std::optional<LRESULT> (TEdit::*)(UINT, WPARAM, LPARAM);
    for (const THandler Handler : {&TEdit::HandleText, &TEdit::HandleSelection, &TEdit::HandleLines,
                                   &TEdit::HandleOptions, &TEdit::HandleInput, &TEdit::HandleRich})
        if (const auto Result = (this->*Handler)(Message, WParam, LParam))
            return *Result;
    return TSystemControl::Handle(Message, WParam, LParam);
}

std::optional<LRESULT> TEdit::HandleText(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case WM_SETTEXT:
        SetText(LParam ? reinterpret_cast<LPCSTR>(LParam) : "");
        return TRUE;
    case WM_GETTEXT:
        return CopyText(static_cast<int>(WParam), reinterpret_cast<LPSTR>(LParam), 0, FText.size());
    case WM_GETTEXTLENGTH:
        return static_cast<LRESULT>(Narrow(FText).size());
    case EM_REPLACESEL:
        Replace(Fold(Widen(LParam ? reinterpret_cast<LPCSTR>(LParam) : "")), WParam != 0, TNotice::Update);
        return TRUE;
    case WM_UNDO:
    case EM_UNDO:
        return !ReadOnly() && Undo();
    case EM_CANUNDO:
        return FUndo.has_value();
    case EM_EMPTYUNDOBUFFER:
        FUndo.reset();
        return 0;
    case WM_CLEAR:
        if (!ReadOnly())
            Replace({}, true, TNotice::Update);
        return 0;
    case WM_CUT:
        if (ReadOnly() || FPassword)
            return 0;
        Copy();
        if (First() != Last())
            Replace({}, true, TNotice::Update);
        return 0;
    case WM_COPY:
        Copy();
        return 0;
    case WM_PASTE:
        Paste();
        return 0;
    default:
        return std::nullopt;
    }
}

std::optional<LRESULT> TEdit::HandleSelection(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case EM_SETSEL: {
        const int Start = static_cast<int>(WParam), End = static_cast<int>(LParam);
        if (Start < 0)
            Select(FEnd, FEnd);
        else
            Select(static_cast<std::size_t>(Start), End < 0 ? FText.size() : static_cast<std::size_t>(End));
        return TRUE;
    }
    case EM_GETSEL:
        if (WParam)
            *reinterpret_cast<DWORD*>(WParam) = static_cast<DWORD>(First());
        if (LParam)
            *reinterpret_cast<DWORD*>(LParam) = static_cast<DWORD>(Last());
        return Last() > 0xFFFF ? -1 : static_cast<LRESULT>(First() | Last() << 16);
    case EM_SCROLLCARET:
        return TRUE;
    default:
        return std::nullopt;
    }
}

std::optional<LRESULT> TEdit::HandleLines(UINT Message, WPARAM WParam, LPARAM LParam)
{
    const int Number = static_cast<int>(WParam);
    switch (Message) {
    case EM_GETLINECOUNT:
        return static_cast<LRESULT>(Lines().size());
    case EM_GETLINE:
        return GetLine(Multiline() ? Number : 0, reinterpret_cast<LPSTR>(LParam));
    case EM_LINEINDEX:
        if (Number >= static_cast<int>(Lines().size()))
            return -1;
        return static_cast<LRESULT>(LineStart(Number < 0 ? LineOf(FEnd) : static_cast<std::size_t>(Number)));
    case EM_LINEFROMCHAR:
    case EM_EXLINEFROMCHAR: {
        const int At = Message == EM_LINEFROMCHAR ? Number : static_cast<int>(LParam);
        return static_cast<LRESULT>(LineOf(At < 0 ? First() : static_cast<std::size_t>(At)));
    }
    case EM_LINELENGTH: {
        if (Number < 0) { // what the selected lines hold besides the selection
            const std::size_t From = LineOf(First()), To = LineOf(Last());
            return static_cast<LRESULT>(First() - LineStart(From) + LineEnd(To) -
                                        std::min(Last(), LineEnd(To)));
        }
        const std::size_t Line = Multiline() ? LineOf(static_cast<std::size_t>(Number)) : 0;
        return static_cast<LRESULT>(LineEnd(Line) - LineStart(Line));
    }
    case EM_GETFIRSTVISIBLELINE:
        return static_cast<LRESULT>(FTop);
    case EM_LINESCROLL: {
        const auto Top = static_cast<LPARAM>(FTop) + LParam;
        FTop = static_cast<std::size_t>(std::clamp<LPARAM>(Top, 0, static_cast<LPARAM>(Lines().size()) - 1));
        Invalidate();
        return TRUE;
    }
    case WM_SIZE:
        FLines.clear();
        return 0;
    default:
        return std::nullopt;
    }
}

std::optional<LRESULT> TEdit::HandleOptions(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case WM_GETDLGCODE:
        return DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS | (Multiline() ? DLGC_WANTALLKEYS : 0) |
               (LParam && InCombo(Message, WParam, LParam) ? DLGC_WANTMESSAGE : 0);
    case EM_SETLIMITTEXT:
        FLimit = WParam ? WParam : NoLimit;
        return 0;
    case EM_GETLIMITTEXT:
        return static_cast<LRESULT>(FLimit);
    case EM_SETMODIFY:
        FModified = WParam != 0;
        return 0;
    case EM_GETMODIFY:
        return FModified;
    case EM_SETREADONLY:
        SetWindowLongA(Window(), GWL_STYLE,
                       static_cast<LONG>(WParam ? Style() | ES_READONLY : Style() & ~DWORD{ES_READONLY}));
        Invalidate();
        return TRUE;
    case EM_SETPASSWORDCHAR:
        FPassword = static_cast<char16_t>(WParam);
        SetWindowLongA(Window(), GWL_STYLE,
                       static_cast<LONG>(WParam ? Style() | ES_PASSWORD : Style() & ~DWORD{ES_PASSWORD}));
        Invalidate();
        return 0;
    case EM_GETPASSWORDCHAR:
        return FPassword;
    case EM_GETRECT:
        Structure<RECT>(LParam) = ClientRect();
        return 0;
    case EM_SETCUEBANNER:
        FCue = LParam ? Narrow(reinterpret_cast<const char16_t*>(LParam)) : "";
        Invalidate();
        return TRUE;
    default:
        return std::nullopt;
    }
}

std::optional<LRESULT> TEdit::HandleInput(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case WM_CHAR:
        if (!InCombo(Message, WParam, LParam))
            TypeCharacter(WParam);
        return TRUE;
    case WM_KEYDOWN:
        if (!InCombo(Message, WParam, LParam))
            Key(WParam);
        return TRUE;
    case WM_SYSKEYDOWN:
        return InCombo(Message, WParam, LParam) ? std::optional<LRESULT>(0) : std::nullopt;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        TSystemControl::Handle(Message, WParam, LParam);
        Command(Message == WM_SETFOCUS ? EN_SETFOCUS : EN_KILLFOCUS);
        return 0;
    case WM_LBUTTONDOWN: {
        FSelecting = true;
        SetCapture(Window());
        const std::size_t At = PositionAt(PointOf(LParam));
        Select(WParam & MK_SHIFT ? FStart : At, At);
        if (!Focused())
            SetFocus(Window());
        return TRUE;
    }
    case WM_MOUSEMOVE:
        if (FSelecting)
            Select(FStart, PositionAt(PointOf(LParam)));
        return 0;
    case WM_LBUTTONUP:
        if (std::exchange(FSelecting, false))
            ReleaseCapture();
        return TRUE;
    case WM_LBUTTONDBLCLK:
        Select(0, FText.size());
        return TRUE;
    default:
        return std::nullopt;
    }
}

std::optional<LRESULT> TEdit::HandleRich(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case EM_EXGETSEL:
        Structure<CHARRANGE>(LParam) = {static_cast<LONG>(First()), static_cast<LONG>(Last())};
        return 0;
    case EM_EXSETSEL: {
        const auto& Range = Structure<CHARRANGE>(LParam);
        HandleSelection(EM_SETSEL, static_cast<WPARAM>(Range.cpMin), Range.cpMax);
        return static_cast<LRESULT>(FEnd);
    }
    case EM_EXLIMITTEXT:
        FLimit = LParam ? static_cast<std::size_t>(LParam) : NoLimit;
        return 0;
    case EM_SETEVENTMASK:
        return static_cast<LRESULT>(std::exchange(FEvents, static_cast<DWORD>(LParam)));
    case EM_GETEVENTMASK:
        return FEvents;
    case EM_GETSELTEXT: {
        const std::string Part = Narrow(FText.substr(First(), Last() - First()));
        std::memcpy(reinterpret_cast<LPSTR>(LParam), Part.c_str(), Part.size() + 1);
        return static_cast<LRESULT>(Part.size());
    }
    case EM_GETTEXTRANGE: {
        const auto& Range = Structure<TEXTRANGEA>(LParam);
        const auto Limit = static_cast<LONG>(FText.size());
        const LONG From = std::clamp(Range.chrg.cpMin, 0, Limit);
        const LONG To = Range.chrg.cpMax < 0 ? Limit : std::clamp(Range.chrg.cpMax, From, Limit);
        const std::string Part =
            Narrow(FText.substr(static_cast<std::size_t>(From), static_cast<std::size_t>(To - From)));
        std::memcpy(Range.lpstrText, Part.c_str(), Part.size() + 1);
        return static_cast<LRESULT>(Part.size());
    }
    default:
        (void)WParam;
        return std::nullopt;
    }
}

void TEdit::SetText(const std::string& Value)
{
    FText = Fold(Widen(Value));
    FStart = FEnd = FTop = 0;
    FLines.clear();
    FUndo.reset();
    FModified = false;
    FPending.clear();
    if (TWindow* const Known = WindowOf(Window()))
        Known->Text = Narrow(FText);
    Invalidate();
    if (!Multiline())
        Changed();
}

std::u16string TEdit::Fold(std::u16string Text) const
{
    if (!(Style() & (ES_UPPERCASE | ES_LOWERCASE)))
        return Text;
    // Unit by unit, so that positions stay.
    const auto Change = (Style() & ES_UPPERCASE) ? u_toupper : u_tolower;
    for (char16_t& Unit : Text)
        Unit = static_cast<char16_t>(Change(Unit));
    return Text;
}

// Puts Text in the place of the selection, as much of it as the limit allows.
void TEdit::Replace(const std::u16string& Text, bool CanUndo, TNotice Notice)
{
    const std::size_t Kept = FText.size() - (Last() - First());
    std::size_t Room = Kept < FLimit ? std::min(Text.size(), FLimit - Kept) : 0;
    if (Room > 0 && Room < Text.size() && Text[Room] >= 0xDC00 && Text[Room] < 0xE000)
        --Room; // both halves of a character or none
    FModified = true;
    const std::size_t At = First();
    if (Room < Text.size()) {
        Command(EN_MAXTEXT);
        if (!Alive())
            return;
    }
    if (Room == 0 && Last() == At)
        return;
    if (CanUndo)
        Remember(Room);
    else
        FUndo.reset();
    FText.replace(At, Last() - At, Text, 0, Room);
    FStart = FEnd = At + Room;
    FLines.clear();
    if (TWindow* const Known = WindowOf(Window()))
        Known->Text = Narrow(FText);
    Invalidate();
    if (Notice == TNotice::Update)
        Changed();
}

void TEdit::Remember(std::size_t Room)
{
    const std::u16string Removed = FText.substr(First(), Last() - First());
    if (!FUndo)
        FUndo = TUndo{First(), 0, {}};
    if (!Removed.empty()) {
        const bool Deleting = FUndo->Inserted == 0 && !FUndo->Removed.empty();
        if (Deleting && First() == FUndo->At)
            FUndo->Removed += Removed;
        else if (Deleting && Last() == FUndo->At)
            FUndo->Removed.insert(0, Removed);
        else
            FUndo->Removed = Removed;
        FUndo->At = First();
        FUndo->Inserted = 0;
    }
    if (Room == 0)
        return;
    const bool Continues =
        First() == FUndo->At || (FUndo->Inserted && First() == FUndo->At + FUndo->Inserted);
    if (!Continues)
        FUndo = TUndo{First(), 0, {}};
    FUndo->Inserted += Room;
}

// Undoing again brings back what was undone.
bool TEdit::Undo()
{
    if (!FUndo)
        return false;
    const TUndo Back = *std::exchange(FUndo, std::nullopt);
    FUndo = TUndo{Back.At, Back.Removed.size(), FText.substr(Back.At, Back.Inserted)};
    FText.replace(Back.At, Back.Inserted, Back.Removed);
    FStart = Back.At;
    FEnd = Back.At + Back.Removed.size();
    FLines.clear();
    if (TWindow* const Known = WindowOf(Window()))
        Known->Text = Narrow(FText);
    Invalidate();
    Changed();
    return true;
}

// The selection goes to the clipboard; that of a password stays.
void TEdit::Copy() const
{
    if (First() == Last() || FPassword || !OpenClipboard(Window()))
        return;
    EmptyClipboard();
    const std::u16string Part = FText.substr(First(), Last() - First());
    const std::string Bytes = Narrow(Part);
    const auto Put = [](UINT Format, const void* Data, std::size_t Size) {
        const HGLOBAL Block = GlobalAlloc(GMEM_MOVEABLE, Size);
        std::memcpy(GlobalLock(Block), Data, Size);
        GlobalUnlock(Block);
        SetClipboardData(Format, Block);
    };
    Put(CF_UNICODETEXT, Part.c_str(), (Part.size() + 1) * sizeof(char16_t));
    Put(CF_TEXT, Bytes.c_str(), Bytes.size() + 1);
    CloseClipboard();
}

void TEdit::Paste()
{
    if (ReadOnly() || !OpenClipboard(Window()))
        return;
    std::u16string Text;
    if (const HANDLE Wide = GetClipboardData(CF_UNICODETEXT)) {
        const auto* const Units = static_cast<const char16_t*>(GlobalLock(Wide));
        const std::size_t Most = GlobalSize(Wide) / sizeof(char16_t);
        Text.assign(Units, std::find(Units, Units + Most, u'\0'));
        GlobalUnlock(Wide);
    } else if (const HANDLE Plain = GetClipboardData(CF_TEXT)) {
        const auto* const Bytes = static_cast<const char*>(GlobalLock(Plain));
        Text = Widen(std::string(Bytes, std::find(Bytes, Bytes + GlobalSize(Plain), '\0')));
        GlobalUnlock(Plain);
    }
    CloseClipboard();
    if (!Multiline())
        Text.resize(std::min(Text.find(u"\r\n"), Text.size()));
    if (!Text.empty())
        Replace(Fold(std::move(Text)), true, TNotice::Update);
}

void TEdit::Changed()
{
    Command(EN_UPDATE);
    if (Alive())
        Command(EN_CHANGE);
}

void TEdit::Select(std::size_t Start, std::size_t End)
{
    FStart = std::min(Start, FText.size());
    FEnd = std::min(End, FText.size());
    Invalidate();
}

std::size_t TEdit::StepFrom(std::size_t At, int By) const
{
    const auto Low = [&](std::size_t Index) {
        return Index < FText.size() && FText[Index] >= 0xDC00 && FText[Index] < 0xE000;
    };
    const auto Pair = [&](std::size_t Index) {
        return Index + 1 < FText.size() && FText[Index] == u'\r' && FText[Index + 1] == u'\n';
    };
    if (By < 0)
        return At == 0 ? 0 : (Low(At - 1) && At > 1) || (At > 1 && Pair(At - 2)) ? At - 2 : At - 1;
    return At >= FText.size() ? FText.size() : Low(At + 1) || Pair(At) ? At + 2 : At + 1;
}

// The field of a combo box leaves the keys that move through the list to it, and
// those that end a list that is dropped.
bool TEdit::InCombo(UINT Message, WPARAM WParam, LPARAM LParam) const
{
    const HWND Combo = GetParent(Window());
    char Class[16] = "";
    if (!GetClassNameA(Combo, Class, sizeof Class) || !SameText(Class, "ComboBox"))
        return false;
    if (Message == WM_KEYDOWN || Message == WM_SYSKEYDOWN) {
        const bool Moves = WParam == VK_UP || WParam == VK_DOWN;
        const bool Pages = WParam == VK_PRIOR || WParam == VK_NEXT || WParam == VK_F4;
        if (!Moves && (Message == WM_SYSKEYDOWN || !Pages))
            return false;
        SendMessageA(Combo, Message, WParam, LParam);
        return true;
    }
    if ((WParam != VK_RETURN && WParam != VK_ESCAPE) || !SendMessageA(Combo, CB_GETDROPPEDSTATE, 0, 0))
        return false;
    if (Message == WM_CHAR)
        SendMessageA(Combo, WM_KEYDOWN, WParam, LParam);
    return true;
}

// Where the tab key goes on to the next control.
bool TEdit::InDialog() const
{
    char Class[8] = "";
    return GetClassNameA(GetParent(Window()), Class, sizeof Class) && SameText(Class, "#32770");
}

// The keys of the clipboard, as they are typed.
bool TEdit::Edits(WPARAM Key)
{
    constexpr struct {
        char Key;
        UINT Message;
    } Keys[] = {{'C', WM_COPY}, {'V', WM_PASTE}, {'X', WM_CUT}, {'Z', WM_UNDO}};
    for (const auto& Each : Keys)
        if (static_cast<int>(Key) == Each.Key - 'A' + 1) {
            SendMessageA(Window(), Each.Message, 0, 0);
            return true;
        }
    return false;
}

// A character arrives byte by byte.
void TEdit::TypeCharacter(WPARAM Character)
{
    if (Character == '\t' && InDialog() && !(GetKeyState(VK_CONTROL) & 0x8000))
        return;
    constexpr WPARAM WordBack = 0x7F; // what Ctrl with the back space key types
    if (Edits(Character) || ReadOnly() || Character == WordBack)
        return;
    if (Character == VK_BACK) {
        if (First() == Last())
            FStart = StepFrom(FEnd, -1);
        if (First() != Last())
            Replace({}, true, TNotice::Update);
        return;
    }
    if (Character == '\r' || Character == '\n') {
        if (Multiline() && (Character == '\r' || !(GetKeyState(VK_CONTROL) & 0x8000)))
            Replace(u"\r\n", true, TNotice::Update);
        return;
    }
    if (Character < ' ' && !(Character == '\t' && Multiline()))
        return;
    if ((Style() & ES_NUMBER) && (Character < '0' || Character > '9'))
        return;
    FPending += static_cast<char>(Character);
    const auto Lead = static_cast<unsigned char>(FPending[0]);
    const std::size_t Needed = Lead < 0x80 ? 1 : Lead < 0xE0 ? 2 : Lead < 0xF0 ? 3 : 4;
    if (FPending.size() >= Needed)
        Replace(Fold(Widen(std::exchange(FPending, {}))), true, TNotice::Update);
}

void TEdit::MoveCaret(std::size_t To)
{
    Select(GetKeyState(VK_SHIFT) & 0x8000 ? FStart : To, To);
}

std::size_t TEdit::NextWord(std::size_t At)
{
    if (FPassword)
        return FText.size();
    const std::size_t End = LineEnd(LineOf(At));
    if (At >= End)
        return StepFrom(At, 1);
    while (At < End && FText[At] != u' ')
        ++At;
    while (At < End && FText[At] == u' ')
        ++At;
    return At;
}

std::size_t TEdit::WordBefore(std::size_t At)
{
    if (FPassword)
        return 0;
    const std::size_t Start = LineStart(LineOf(At));
    if (At <= Start)
        return StepFrom(At, -1);
    while (At > Start && FText[At - 1] == u' ')
        --At;
    while (At > Start && FText[At - 1] != u' ')
        --At;
    return At;
}

// The caret goes up or down and stays in its column where the line is long enough.
void TEdit::MoveLines(std::ptrdiff_t Count)
{
    const std::size_t Line = LineOf(FEnd), Column = FEnd - LineStart(Line);
    const auto Last = static_cast<std::ptrdiff_t>(Lines().size()) - 1;
    const auto Target = static_cast<std::size_t>(
        std::clamp<std::ptrdiff_t>(static_cast<std::ptrdiff_t>(Line) + Count, 0, Last));
    if (Target != Line)
        MoveCaret(std::min(LineStart(Target) + Column, LineEnd(Target)));
}

void TEdit::Key(WPARAM Key)
{
    const bool Shift = (GetKeyState(VK_SHIFT) & 0x8000) != 0,
               Control = (GetKeyState(VK_CONTROL) & 0x8000) != 0;
    const std::size_t Line = LineOf(FEnd);
    const auto Page =
        static_cast<std::ptrdiff_t>(std::max<int>(1, ClientRect().bottom / std::max(1, LineHeight())));
    switch (Key) {
    case VK_LEFT:
        return MoveCaret(Control ? WordBefore(FEnd) : StepFrom(FEnd, -1));
    case VK_RIGHT:
        return MoveCaret(Control ? NextWord(FEnd) : StepFrom(FEnd, 1));
    case VK_HOME:
        return MoveCaret(Control ? 0 : LineStart(Line));
    case VK_END:
        return MoveCaret(Control ? FText.size() : LineEnd(Line));
    case VK_UP:
        return Multiline() ? MoveLines(-1) : MoveCaret(StepFrom(FEnd, -1));
    case VK_DOWN:
        return Multiline() ? MoveLines(1) : MoveCaret(StepFrom(FEnd, 1));
    case VK_PRIOR:
        return MoveLines(-Page);
    case VK_NEXT:
        return MoveLines(Page);
    case VK_TAB:
        if (Multiline() && InDialog() && !Control)
            SendMessageA(GetParent(Window()), WM_NEXTDLGCTL, Shift, 0);
        return;
    case VK_INSERT:
        if (Control != Shift)
            SendMessageA(Window(), Shift ? WM_PASTE : WM_COPY, 0, 0);
        return;
    case VK_DELETE:
        if (ReadOnly() || (Shift && Control))
            return;
        if (First() != Last() && Shift)
            return static_cast<void>(SendMessageA(Window(), WM_CUT, 0, 0));
        if (First() == Last())
            FEnd = Shift ? StepFrom(FEnd, -1) : Control ? LineEnd(Line) : StepFrom(FEnd, 1);
        if (First() != Last())
            Replace({}, true, TNotice::Update);
        return;
    default:
        return;
    }
}

LRESULT TEdit::CopyText(int Size, LPSTR Buffer, std::size_t From, std::size_t To) const
{
    return Buffer ? ::CopyText(Narrow(FText.substr(From, To - From)), Buffer, Size) : 0;
}

// The first word of the buffer says how many bytes it takes; no final zero.
LRESULT TEdit::GetLine(int Line, LPSTR Buffer)
{
    if (Line < 0 || Line >= static_cast<int>(Lines().size()))
        return 0;
    WORD Size;
    std::memcpy(&Size, Buffer, sizeof Size);
    const auto Number = static_cast<std::size_t>(Line);
    const std::string Part = Narrow(FText.substr(LineStart(Number), LineEnd(Number) - LineStart(Number)));
    std::size_t Bytes = std::min<std::size_t>(Part.size(), Size);
    while (Bytes < Part.size() && Bytes > 0 && (static_cast<unsigned char>(Part[Bytes]) & 0xC0) == 0x80)
        --Bytes;
    std::memcpy(Buffer, Part.data(), Bytes);
    if (Bytes < Size)
        Buffer[Bytes] = '\0';
    return static_cast<LRESULT>(Bytes);
}

const std::vector<std::size_t>& TEdit::Lines()
{
    if (!FLines.empty())
        return FLines;
    FLines.push_back(0);
    if (!Multiline())
        return FLines;
    const bool Wraps = !(Style() & (ES_AUTOHSCROLL | WS_HSCROLL)) && !FText.empty();
    const int Width = ClientRect().right - 2 * Margin;
    std::size_t From = 0;
    for (;;) {
        const std::size_t To = FText.find(u"\r\n", From);
        if (Wraps)
            WrapLine(From, std::min(To, FText.size()), Width);
        if (To == FText.npos)
            break;
        From = To + 2;
        FLines.push_back(From);
    }
    return FLines;
}

// Breaks behind spaces where one is, else inside the word.
void TEdit::WrapLine(std::size_t From, std::size_t To, int Width)
{
    while (From < To && Width > 0 && WidthOf(Narrow(FText.substr(From, To - From))) > Width) {
        std::size_t Fit = From + 1, Break = 0;
        for (std::size_t At = From + 1; At <= To; At = std::max(StepFrom(At, 1), At + 1)) {
            if (WidthOf(Narrow(FText.substr(From, At - From))) > Width)
                break;
            Fit = At;
            if (FText[At - 1] == u' ')
                Break = At;
            if (At == To)
                break;
        }
        while (Fit < To && FText[Fit] == u' ')
            Break = ++Fit;
        From = Break ? Break : Fit;
        if (From < To)
            FLines.push_back(From);
    }
}

std::size_t TEdit::LineOf(std::size_t At)
{
    const auto& All = Lines();
    return static_cast<std::size_t>(std::upper_bound(All.begin(), All.end(), At) - All.begin()) - 1;
}

std::size_t TEdit::LineEnd(std::size_t Line)
{
    const auto& All = Lines();
    if (Line + 1 >= All.size())
        return FText.size();
    const std::size_t Next = All[Line + 1];
    const bool Hard = Next >= 2 && FText[Next - 1] == u'\n' && FText[Next - 2] == u'\r';
    return Hard ? Next - 2 : Next;
}

std::string TEdit::Shown(const std::u16string& Text) const
{
    return Narrow(FPassword ? std::u16string(Text.size(), FPassword) : Text);
}

std::size_t TEdit::PositionAt(POINT Point)
{
    const int Row = std::max(0, (Point.y - 1) / std::max(1, LineHeight()));
    const std::size_t Line = std::min(FTop + static_cast<std::size_t>(Row), Lines().size() - 1);
    std::size_t At = LineStart(Line);
    while (At < LineEnd(Line)) {
        const std::size_t Next = StepFrom(At, 1);
        if (WidthOf(Shown(FText.substr(LineStart(Line), Next - LineStart(Line)))) > Point.x - Margin)
            break;
        At = Next;
    }
    return At;
}

void TEdit::Paint(HDC Dc)
{
    const RECT Rect = ClientRect();
    const bool Dull = ReadOnly() || !Enabled();
    FillRect(Dc, &Rect, ParentColors(Dc, Dull ? WM_CTLCOLORSTATIC : WM_CTLCOLOREDIT));
    SetBkMode(Dc, TRANSPARENT);
    UINT Format = DT_NOPREFIX | DT_SINGLELINE | DT_EXPANDTABS;
    Format |= Style() & ES_CENTER ? DT_CENTER : Style() & ES_RIGHT ? DT_RIGHT : 0;
    if (!Enabled() || (FText.empty() && !FCue.empty()))
        SetTextColor(Dc, GetSysColor(COLOR_GRAYTEXT));
    const int Height = LineHeight();
    RECT Row = {Margin, 1, Rect.right - Margin, 1 + Height};
    if (FText.empty() && !FCue.empty() && !Focused())
        return DrawItemText(Dc, FCue, Row, Format);
    for (std::size_t Line = FTop; Line < Lines().size() && Row.top < Rect.bottom; ++Line) {
        PaintLine(Dc, Line, Row, Format);
        OffsetRect(&Row, 0, Height);
    }
}

void TEdit::PaintLine(HDC Dc, std::size_t Line, const RECT& Rect, UINT Format)
{
    const std::size_t Start = LineStart(Line), End = LineEnd(Line);
    const std::u16string All = FText.substr(Start, End - Start);
    RECT Place = Rect;
    if (!Multiline() && Focused() && !(TextFlags(Format) & (DT_RIGHT | DT_CENTER))) {
        // The caret stays in view.
        const int Before = WidthOf(Shown(All.substr(0, FEnd - Start)));
        Place.left -= std::max(0, Before - (Rect.right - Rect.left - 1));
    }
    DrawItemText(Dc, Shown(All), Place, Format);
    const std::size_t From = std::clamp(First(), Start, End), To = std::clamp(Last(), Start, End);
    if (!Focused() && !(Style() & ES_NOHIDESEL))
        return;
    if (TextFlags(Format) & (DT_RIGHT | DT_CENTER | DT_RTLREADING))
        return;
    const int Left = Place.left + WidthOf(Shown(All.substr(0, From - Start)));
    if (From < To) {
        RECT Mark = {Left, Rect.top, Left + WidthOf(Shown(All.substr(From - Start, To - From))), Rect.bottom};
        FillRect(Dc, &Mark, GetSysColorBrush(COLOR_HIGHLIGHT));
        const COLORREF Old = SetTextColor(Dc, GetSysColor(COLOR_HIGHLIGHTTEXT));
        DrawItemText(Dc, Shown(All.substr(From - Start, To - From)), Mark, Format);
        SetTextColor(Dc, Old);
    } else if (Focused() && LineOf(FEnd) == Line) {
        const RECT Caret = {Left, Rect.top, Left + 1, Rect.bottom};
        FillRect(Dc, &Caret, GetSysColorBrush(COLOR_WINDOWTEXT));
    }
}

class TRichEdit final : public TEdit {
public:
    using TEdit::TEdit;

protected:
    std::size_t InitialLimit() const override { return 0x7FFF; }
};
} // namespace

void RegisterSystemEdits()
{
    RegisterControl<TEdit>("Edit", CS_DBLCLKS | CS_PARENTDC, IDC_IBEAM);
    for (const char* const Name : {"RICHEDIT", "RichEdit20A", "RichEdit20W", "RICHEDIT50W"})
        RegisterControl<TRichEdit>(Name, CS_DBLCLKS, IDC_IBEAM);
}
