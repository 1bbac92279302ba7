// Small services for strings of UTF-8. Case is changed for the letters A to Z
// only: the length of a text must not change.
#include <algorithm>
#include <cstring>
#include <string>

#include "platform/portable/Window.h"
#include "platform/portable/winbase.h"

namespace {

char Upper(char Each)
{
    return Each >= 'a' && Each <= 'z' ? static_cast<char>(Each - 32) : Each;
}

char Lower(char Each)
{
    return Each >= 'A' && Each <= 'Z' ? static_cast<char>(Each + 32) : Each;
}

// A text, or one character in the place of the pointer.
LPSTR Change(LPSTR Text, char (*By)(char))
{
    if (IS_INTRESOURCE(Text))
        return reinterpret_cast<LPSTR>(
            static_cast<ULONG_PTR>(static_cast<BYTE>(By(static_cast<char>(LOWORD(Text))))));
    std::transform(Text, Text + std::strlen(Text), Text, By);
    return Text;
}

bool Continues(char Byte)
{
    return (static_cast<BYTE>(Byte) & 0xC0) == 0x80;
}

} // namespace

LPSTR CharUpperA(LPSTR Text)
{
    return Change(Text, Upper);
}

LPSTR CharLowerA(LPSTR Text)
{
    return Change(Text, Lower);
}

DWORD CharUpperBuffA(LPSTR Text, DWORD Count)
{
    std::transform(Text, Text + Count, Text, Upper);
    return Count;
}

DWORD CharLowerBuffA(LPSTR Text, DWORD Count)
{
    std::transform(Text, Text + Count, Text, Lower);
    return Count;
}

LPSTR CharNextA(LPCSTR Text)
{
    if (*Text)
        do
            ++Text;
        while (Continues(*Text));
    return const_cast<LPSTR>(Text);
}

LPSTR CharPrevA(LPCSTR Start, LPCSTR Text)
{
    while (Text > Start && Continues(*--Text)) {
    }
    return const_cast<LPSTR>(Text);
}

int lstrlenA(LPCSTR Text)
{
    return Text ? static_cast<int>(std::strlen(Text)) : 0;
}

LPSTR lstrcpyA(LPSTR To, LPCSTR From)
{
    return std::strcpy(To, From);
}

LPSTR lstrcpynA(LPSTR To, LPCSTR From, int Size)
{
    CopyText(From, To, Size);
    return To;
}
