#include <algorithm>
#include <cstring>
#include <strings.h>

#include "platform/portable/Thread.h"
#include "platform/portable/Window.h"

void RegisterOwnClasses(); // MDICLIENT, dialogs

namespace {

using TClasses = std::vector<std::shared_ptr<TWindowClass>>;

TClasses& Classes()
{
    static auto& All = *new TClasses;
    static bool Filled = false;
    if (!Filled) {
        Filled = true;
        RegisterOwnClasses();
        RegisterBuiltInClasses();
    }
    return All;
}

bool SameName(const TWindowClass& Class, LPCSTR Name)
{
    if (IS_INTRESOURCE(Name))
        return Class.Atom == LOWORD(Name);
    if (Name[0] == '#')
        return Class.Name == Name;
    return strcasecmp(Class.Name.c_str(), Name) == 0;
}

// An application's own class hides a built-in one of the same name.
TClasses::iterator FindIn(TClasses& All, LPCSTR Name)
{
    const auto Match = [&](bool BuiltIn) {
        return std::find_if(All.begin(), All.end(), [&](const auto& Class) {
            return Class->BuiltIn == BuiltIn && SameName(*Class, Name);
        });
    };
    const auto Own = Match(false);
    return Own != All.end() ? Own : Match(true);
}

ATOM AddClass(std::shared_ptr<TWindowClass> Class)
{
    static ATOM Last = 0xC000;
    TStateLock Lock;
    TClasses& All = Classes();
    const auto Found = FindIn(All, Class->Name.c_str());
    if (Found != All.end() && (*Found)->BuiltIn == Class->BuiltIn) {
        SetLastError(ERROR_CLASS_ALREADY_EXISTS);
        return 0;
    }
    Class->Atom = Class->Name == "#32770" ? 32770 : ++Last;
    All.push_back(std::move(Class));
    return All.back()->Atom;
}

void FillInfo(const TWindowClass& Class, WNDCLASSEXA& Info)
{
    Info.style = Class.Style;
    Info.lpfnWndProc = Class.Proc;
    Info.cbClsExtra = static_cast<int>(Class.Extra.size());
    Info.cbWndExtra = Class.WindowExtra;
    Info.hInstance = Class.BuiltIn ? nullptr : Class.Instance;
    Info.hIcon = Class.Icon;
    Info.hCursor = Class.Cursor;
    Info.hbrBackground = Class.Background;
    Info.lpszMenuName = Class.MenuName.empty() ? nullptr : Class.MenuName.c_str();
    Info.lpszClassName = Class.Name.c_str();
    Info.hIconSm = Class.SmallIcon;
}

} // namespace

std::shared_ptr<TWindowClass> FindWindowClass(LPCSTR Name)
{
    if (!Name)
        return nullptr;
    TStateLock Lock;
    TClasses& All = Classes();
    const auto Found = FindIn(All, Name);
    return Found == All.end() ? nullptr : *Found;
}

void RegisterBuiltInClass(LPCSTR Name, UINT Style, WNDPROC Proc, int WindowExtra, LPCSTR Cursor,
                          HBRUSH Background)
{
    auto Class = std::make_shared<TWindowClass>();
    Class->Name = Name;
    Class->Style = Style | CS_GLOBALCLASS;
    Class->Proc = Proc;
    Class->WindowExtra = WindowExtra;
    Class->Cursor = LoadCursorA(nullptr, Cursor ? Cursor : IDC_ARROW);
    Class->Background = Background;
    Class->BuiltIn = true;
    AddClass(std::move(Class));
}

ATOM RegisterClassExA(const WNDCLASSEXA* Info)
{
    if (!Info || Info->cbSize != sizeof(WNDCLASSEXA) || !Info->lpfnWndProc || !Info->lpszClassName ||
        IS_INTRESOURCE(Info->lpszClassName) || !*Info->lpszClassName || Info->cbClsExtra < 0 ||
        Info->cbWndExtra < 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    auto Class = std::make_shared<TWindowClass>();
    Class->Name = Info->lpszClassName;
    Class->Style = Info->style;
    Class->Proc = Info->lpfnWndProc;
    Class->WindowExtra = Info->cbWndExtra;
    Class->Extra.resize(static_cast<std::size_t>(Info->cbClsExtra));
    Class->Instance = Info->hInstance ? Info->hInstance : GetModuleHandleA(nullptr);
    Class->Icon = Info->hIcon;
    Class->SmallIcon = Info->hIconSm;
    Class->Cursor = Info->hCursor;
    Class->Background = Info->hbrBackground;
    if (Info->lpszMenuName && !IS_INTRESOURCE(Info->lpszMenuName))
        Class->MenuName = Info->lpszMenuName;
    return AddClass(std::move(Class));
}

ATOM RegisterClassA(const WNDCLASSA* Info)
{
    WNDCLASSEXA Wide{};
    Wide.cbSize = sizeof(Wide);
    Wide.style = Info->style;
    Wide.lpfnWndProc = Info->lpfnWndProc;
    Wide.cbClsExtra = Info->cbClsExtra;
    Wide.cbWndExtra = Info->cbWndExtra;
    Wide.hInstance = Info->hInstance;
    Wide.hIcon = Info->hIcon;
    Wide.hCursor = Info->hCursor;
    Wide.hbrBackground = Info->hbrBackground;
    Wide.lpszMenuName = Info->lpszMenuName;
    Wide.lpszClassName = Info->lpszClassName;
    return RegisterClassExA(&Wide);
}

BOOL UnregisterClassA(LPCSTR Name, HINSTANCE)
{
    TStateLock Lock;
    TClasses& All = Classes();
    const auto Found = FindIn(All, Name);
    if (Found == All.end() || (*Found)->BuiltIn) {
        SetLastError(ERROR_CLASS_DOES_NOT_EXIST);
        return FALSE;
    }
    if ((*Found)->Windows > 0) {
        SetLastError(ERROR_CLASS_HAS_WINDOWS);
        return FALSE;
    }
    All.erase(Found);
    return TRUE;
}

BOOL GetClassInfoExA(HINSTANCE, LPCSTR Name, WNDCLASSEXA* Info)
{
    const auto Class = FindWindowClass(Name);
    if (!Class || !Info) {
        SetLastError(ERROR_CLASS_DOES_NOT_EXIST);
        return FALSE;
    }
    FillInfo(*Class, *Info);
    return Class->Atom;
}

BOOL GetClassInfoA(HINSTANCE Instance, LPCSTR Name, WNDCLASSA* Info)
{
    WNDCLASSEXA Wide{};
    const BOOL Result = GetClassInfoExA(Instance, Name, &Wide);
    if (Result)
        *Info = {Wide.style, Wide.lpfnWndProc, Wide.cbClsExtra,    Wide.cbWndExtra,   Wide.hInstance,
                 Wide.hIcon, Wide.hCursor,     Wide.hbrBackground, Wide.lpszMenuName, Wide.lpszClassName};
    return Result;
}

int GetClassNameA(HWND Handle, LPSTR Name, int Size)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    return Window ? CopyText(Window->Class->Name, Name, Size) : 0;
}

namespace {

// The pointer-sized values of a class; null for an index that is none of them.
ULONG_PTR ReadClass(const TWindowClass& Class, int Index)
{
    switch (Index) {
    case GCLP_WNDPROC:
        return reinterpret_cast<ULONG_PTR>(Class.Proc);
    case GCLP_HBRBACKGROUND:
        return reinterpret_cast<ULONG_PTR>(Class.Background);
    case GCLP_HCURSOR:
        return reinterpret_cast<ULONG_PTR>(Class.Cursor);
    case GCLP_HICON:
        return reinterpret_cast<ULONG_PTR>(Class.Icon);
    case GCLP_HICONSM:
        return reinterpret_cast<ULONG_PTR>(Class.SmallIcon);
    case GCLP_HMODULE:
        return reinterpret_cast<ULONG_PTR>(Class.Instance);
    case GCL_STYLE:
        return Class.Style;
    case GCL_CBWNDEXTRA:
        return static_cast<ULONG_PTR>(Class.WindowExtra);
    case GCL_CBCLSEXTRA:
        return Class.Extra.size();
    case GCW_ATOM:
        return Class.Atom;
    default:
        break;
    }
    ULONG_PTR Value = 0;
    if (Index >= 0 && static_cast<std::size_t>(Index) + sizeof(Value) <= Class.Extra.size())
        std::memcpy(&Value, Class.Extra.data() + Index, sizeof(Value));
    else
        SetLastError(ERROR_INVALID_INDEX);
    return Value;
}

void WriteClass(TWindowClass& Class, int Index, LONG_PTR Value)
{
    switch (Index) {
    case GCLP_WNDPROC:
        Class.Proc = reinterpret_cast<WNDPROC>(Value);
        break;
    case GCLP_HBRBACKGROUND:
        Class.Background = reinterpret_cast<HBRUSH>(Value);
        break;
    case GCLP_HCURSOR:
        Class.Cursor = reinterpret_cast<HCURSOR>(Value);
        break;
    case GCLP_HICON:
        Class.Icon = reinterpret_cast<HICON>(Value);
        break;
    case GCLP_HICONSM:
        Class.SmallIcon = reinterpret_cast<HICON>(Value);
        break;
    case GCLP_HMODULE:
        Class.Instance = reinterpret_cast<HINSTANCE>(Value);
        break;
    case GCL_STYLE:
        Class.Style = static_cast<UINT>(Value);
        break;
    case GCL_CBWNDEXTRA:
        Class.WindowExtra = static_cast<int>(Value);
        break;
    default:
        if (Index >= 0 && static_cast<std::size_t>(Index) + sizeof(Value) <= Class.Extra.size())
            std::memcpy(Class.Extra.data() + Index, &Value, sizeof(Value));
    }
}

} // namespace

ULONG_PTR GetClassLongPtrA(HWND Handle, int Index)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    return Window ? ReadClass(*Window->Class, Index) : 0;
}

ULONG_PTR SetClassLongPtrA(HWND Handle, int Index, LONG_PTR Value)
{
    TStateLock Lock;
    TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return 0;
    const ULONG_PTR Old = ReadClass(*Window->Class, Index);
    WriteClass(*Window->Class, Index, Value);
    return Old;
}

DWORD GetClassLongA(HWND Window, int Index)
{
    return static_cast<DWORD>(GetClassLongPtrA(Window, Index));
}

DWORD SetClassLongA(HWND Window, int Index, LONG Value)
{
    return static_cast<DWORD>(SetClassLongPtrA(Window, Index, Value));
}
