// Typing, selecting, undoing and the clipboard in fields of text.
#include "tests/ControlScripts.h"

namespace {

struct Edits : TControlScripts {
    std::string Note(UINT Message, WPARAM WParam) const override
    {
        return Message == WM_COMMAND && HIWORD(WParam) == EN_MAXTEXT ? "full" : "";
    }
    static WPARAM Digit(char Text) { return static_cast<WPARAM>(Text - '0'); }
    void Do(char Letter, const std::string& Argument) override
    {
        if (PressArrow(Letter))
            return;
        switch (Letter) {
        case 'c': // a character; with Ctrl its control character
            for (const char Each : Argument)
                Type(Ctrl ? static_cast<char>(Each - 'a' + 1) : Each);
            return;
        case '/':
            return Type('\r');
        case 'b':
            return Type(Ctrl ? '\x7f' : '\b');
        case 'D':
            return Press(VK_DELETE);
        case 'I':
            return Press(VK_INSERT);
        case 'z':
            Send(EM_UNDO);
            return;
        case 'x':
            Send(WM_CUT);
            return;
        case 'y':
            Send(WM_COPY);
            return;
        case 'v':
            Send(WM_PASTE);
            return;
        case 'w':
            Send(WM_CLEAR);
            return;
        case 's':
            Send(EM_SETSEL, Digit(Argument[0]), static_cast<LPARAM>(Digit(Argument[1])));
            return;
        case 'm':
            Send(EM_LIMITTEXT, Digit(Argument[0]));
            return;
        case 't': // by program
            SendText(EM_REPLACESEL, TRUE, Argument);
            return;
        default:
            ADD_FAILURE() << Letter;
        }
    }
    // The text with the selection in braces, or the caret as a bar; "_" for a
    // blank and "/" for a line end.
    std::string Outcome() const override
    {
        char Text[100] = "";
        GetWindowTextA(Control, Text, sizeof Text);
        DWORD From = 0, To = 0, At = 0; // in units of UTF-16
        Send(EM_GETSEL, reinterpret_cast<WPARAM>(&From), reinterpret_cast<LPARAM>(&To));
        std::string Result;
        for (const char* Each = Text;; ++Each) {
            const bool Inside = (static_cast<unsigned char>(*Each) & 0xC0) == 0x80;
            if (!Inside && At == From)
                Result += From == To ? "|" : "{";
            if (!Inside && At == To && From != To)
                Result += "}";
            if (!*Each)
                return Result;
            if (!Inside)
                At += static_cast<unsigned char>(*Each) >= 0xF0 ? 2 : 1;
            if (*Each != '\r')
                Result += *Each == ' ' ? '_' : *Each == '\n' ? '/' : *Each;
        }
    }
};

} // namespace

// What was typed in one go is undone in one go, a second undo brings it back, and
// no step goes beyond the limit or into a read-only text.
TEST_F(Edits, TypeSelectAndUndo)
{
    const struct {
        const char* Name;
        const char* Text;
        DWORD Style;
        const char* Script;
    } Cases[] = {
        {"words", "one two  three", 0,
         "Cr=one_|two__three Cr=one_two__|three Cr=one_two__three| Cl=one_two__|three "
         "Sl=one_two_{_}three Sl=one_two{__}three l=one_tw|o__three r=one_two|__three "
         "Sh={one_two}__three SCe=one_two{__three} Cl=one_two__|three SCl=one_{two__}three "
         "e=one_two__three| Sh={one_two__three} r=o|ne_two__three"},
        {"arrows in one line", "abc", 0, "r=a|bc d=ab|c u=a|bc Sd=a{b}c"},
        {"undo of typing", "", 0, "ca=a| cb=ab| cc=abc| z=| z={abc} cd=d| b=| z={d}"},
        {"undo of deleting", "abcd", 0, "e=abcd| b=abc| b=ab| z=ab{cd} z=ab| s11=a|b D=a| D=a| z=a{bcd}"},
        {"deleting", "one two", 0,
         "e=one_two| Cb=one_two| s33=one|_two CD=one| z=one{_two} s33=one|_two SD=on|_two"},
        {"read only", "one two", ES_READONLY,
         "s03={one}_two x={one}_two v={one}_two w={one}_two ca={one}_two b={one}_two "
         "D={one}_two tq=q|_two"},
        {"password", "secret", ES_PASSWORD, "Cr=secret| Cl=|secret x=|secret"},
        {"limit", "", 0,
         "m4=| ca=a| cb=ab| cc=abc| cd=abcd| ce=abcd|full s14=a{bcd} t\xC3\xA4!=a\xC3\xA4!| "
         "e=a\xC3\xA4!| tx=a\xC3\xA4!x| m2=a\xC3\xA4!x| cx=a\xC3\xA4!x|full"},
        {"upper case", "", ES_UPPERCASE, "ca=A| t\xC3\xA4\xD1\x8F=A\xC3\x84\xD0\xAF|"},
        {"digits", "", ES_NUMBER, "c1=1| ca=1| c2=12|"},
        {"lines", "one\r\ntwo three\r\n\r\nx", ES_MULTILINE,
         "d=one/|two_three//x e=one/two_three|//x d=one/two_three/|/x d=one/two_three//|x "
         "d=one/two_three//|x u=one/two_three/|/x u=one/|two_three//x h=one/|two_three//x "
         "Ce=one/two_three//x| Ch=|one/two_three//x Sd={one/}two_three//x"},
        {"words in lines", "one\r\ntwo\r\n\r\nx", ES_MULTILINE,
         "Cr=one|/two//x Cr=one/|two//x Cr=one/two|//x Cr=one/two/|/x Cl=one/two|//x "
         "Cl=one/|two//x"},
        {"line ends", "ab\r\ncd", ES_MULTILINE | ES_WANTRETURN,
         "e=ab|/cd D=ab|cd z=ab{/}cd s11=a|b/cd /=a/|b/cd z=a|b/cd h=|ab/cd b=|ab/cd"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        const DWORD Scrolls = ES_AUTOHSCROLL | (Case.Style & ES_MULTILINE ? ES_AUTOVSCROLL : 0);
        Make("Edit", Case.Text, Case.Style | Scrolls, 200, 60);
        Send(EM_SETSEL, 0, 0);
        EXPECT_EQ(Play(Case.Script), Case.Script);
    }
}

TEST_F(Edits, CutCopyAndPaste)
{
    const struct {
        const char* Name;
        const char* Text;
        DWORD Style;
        const char* Script;
    } Cases[] = {
        {"messages", "one two", 0,
         "s03={one}_two x=|_two e=_two| v=_twoone| v=_twooneone| z=_two| s13=_{tw}o y=_{tw}o "
         "e=_two| v=_twotw| s01={_}twotw w=|twotw z={_}twotw"},
        {"letters with Ctrl", "one two", 0,
         "s03={one}_two Ccc={one}_two e=one_two| Ccv=one_twoone| s12=o{n}e_twoone "
         "Ccx=o|e_twoone Ccz=o{n}e_twoone"},
        {"insert and delete", "one two", 0,
         "s03={one}_two CI={one}_two e=one_two| SI=one_twoone| s12=o{n}e_twoone SD=o|e_twoone "
         "SI=on|e_twoone"},
        {"characters beyond one byte", "", 0,
         "t\xF0\x9F\x98\x80\xC3\xA4=\xF0\x9F\x98\x80\xC3\xA4| s03={\xF0\x9F\x98\x80\xC3\xA4} "
         "x=| v=\xF0\x9F\x98\x80\xC3\xA4| v=\xF0\x9F\x98\x80\xC3\xA4\xF0\x9F\x98\x80\xC3\xA4|"},
        {"nothing chosen", "one", 0, "s03={one} y={one} e=one| y=one| v=oneone|"},
        {"into a read-only text", "one", ES_READONLY, "s02={on}e y={on}e e=one| v=one|"},
        {"lines", "a\r\nb", ES_MULTILINE, "s04={a/b} x=| v=a/b| v=a/ba/b|"},
        {"more than the limit", "one two", 0,
         "s03={one}_two y={one}_two m8={one}_two e=one_two| v=one_twoo|full"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        Make("Edit", Case.Text, Case.Style | ES_AUTOHSCROLL, 200, 60);
        EXPECT_EQ(Play(Case.Script), Case.Script);
    }
}

// A field of one line takes the first line only.
TEST_F(Edits, PasteOneLineIntoOneLine)
{
    Make("Edit", "first\r\nsecond", ES_MULTILINE | ES_AUTOHSCROLL, 200, 60);
    Send(EM_SETSEL, 0, -1);
    Send(WM_COPY);
    DestroyWindow(Control);
    Make("Edit", "", ES_AUTOHSCROLL, 200, 20);
    const char* const Script = "v=first|";
    EXPECT_EQ(Play(Script), Script);
}
