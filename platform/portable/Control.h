// Base of the built-in controls. A control class derives from TSystemControl, answers
// its messages in Handle and leaves the rest to the base; RegisterControl makes
// it a window class. Its object lives as long as a message is being handled,
// even when a notification destroys the window: check Alive() after notifying.
#pragma once

#include <memory>
#include <string>

#include "platform/portable/Window.h"
#include "platform/portable/commctrl.h"

class TSystemControl {
public:
    explicit TSystemControl(HWND Handle) : FWindow(Handle) {}
    TSystemControl(const TSystemControl&) = delete;
    TSystemControl& operator=(const TSystemControl&) = delete;
    virtual ~TSystemControl() = default;
    virtual LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam);

protected:
    HWND Window() const { return FWindow; }
    bool Alive() const { return IsWindow(FWindow) != 0; }
    DWORD Style() const { return static_cast<DWORD>(GetWindowLongA(FWindow, GWL_STYLE)); }
    DWORD ExStyle() const { return static_cast<DWORD>(GetWindowLongA(FWindow, GWL_EXSTYLE)); }
    bool Enabled() const { return IsWindowEnabled(FWindow) != 0; }
    bool Focused() const { return FFocused; }
    bool RightToLeft() const { return (ExStyle() & (WS_EX_RTLREADING | WS_EX_LAYOUTRTL)) != 0; }
    HFONT Font() const { return FFont; }
    RECT ClientRect() const;
    std::string Text() const;
    int Id() const { return GetDlgCtrlID(FWindow); }

    // Draws everything inside the client area.
    virtual void Paint(HDC) {}
    virtual void FontChanged() {}

    LRESULT Default(UINT Message, WPARAM WParam, LPARAM LParam)
    {
        return DefWindowProcA(FWindow, Message, WParam, LParam);
    }
    void Invalidate() { InvalidateRect(FWindow, nullptr, TRUE); }
    // WM_SETREDRAW of the controls that stay visible or hidden with it.
    LRESULT SetRedraw(bool On);
    // WM_COMMAND and WM_NOTIFY to the parent.
    LRESULT Command(int Code);
    LRESULT Notify(UINT Code);
    LRESULT NotifyWith(NMHDR& Header, UINT Code);
    // Asks the parent for the colours (WM_CTLCOLOR...); the brush belongs to it.
    HBRUSH ParentColors(HDC Dc, UINT Message) const;
    // Alignment and reading order of a text that is left aligned by itself.
    UINT TextFlags(UINT Format) const;
    void DrawItemText(HDC Dc, const std::string& Text, RECT Rect, UINT Format) const;
    int LineHeight() const;
    int WidthOf(const std::string& Text) const;
    int MnemonicWidthOf(const std::string& Text) const;

private:
    HWND FWindow;
    HFONT FFont = nullptr;
    bool FFocused = false;
};

// A context with the control's font for measuring, released in the end.
class TMeasure {
public:
    TMeasure(HWND Window, HFONT Font);
    ~TMeasure();
    TMeasure(const TMeasure&) = delete;
    TMeasure& operator=(const TMeasure&) = delete;
    operator HDC() const { return FDc; }

private:
    HWND FWindow;
    HDC FDc;
    HGDIOBJ FOld;
};

template<class T>
struct TControlHolder final : TSystemControlState {
    explicit TControlHolder(HWND Handle) : Control(std::make_shared<T>(Handle)) {}
    std::shared_ptr<T> Control;
};

template<class T>
LRESULT CALLBACK ControlProc(HWND Handle, UINT Message, WPARAM WParam, LPARAM LParam)
{
    if (Message == WM_NCCREATE) {
        if (TWindow* const Window = WindowOf(Handle))
            Window->State = std::make_unique<TControlHolder<T>>(Handle);
    }
    auto* const Holder = StateOf<TControlHolder<T>>(Handle);
    if (!Holder)
        return DefWindowProcA(Handle, Message, WParam, LParam);
    const std::shared_ptr<T> Control = Holder->Control;
    const LRESULT Result = Control->Handle(Message, WParam, LParam);
    if (Message == WM_NCDESTROY)
        if (TWindow* const Window = WindowOf(Handle))
            Window->State.reset();
    return Result;
}

template<class T>
void RegisterControl(LPCSTR Name, UINT ClassStyle = CS_DBLCLKS, LPCSTR Cursor = nullptr)
{
    RegisterBuiltInClass(Name, ClassStyle | CS_GLOBALCLASS, ControlProc<T>, sizeof(void*), Cursor);
}

// The structure that a message parameter points at.
template<class T>
T& Structure(LPARAM LParam)
{
    return *reinterpret_cast<T*>(LParam);
}

inline POINT PointOf(LPARAM LParam)
{
    return {static_cast<short>(LOWORD(LParam)), static_cast<short>(HIWORD(LParam))};
}

// UTF-8 and UTF-16, the units in which the edit control counts.
std::u16string Widen(const std::string& Text);
std::string Narrow(const std::u16string& Text);

// Orders texts as lists sort them: without case, then by bytes.
bool SortsBefore(const std::string& First, const std::string& Second);
bool StartsWithText(const std::string& Text, const std::string& Start);
bool SameText(const std::string& First, const std::string& Second);

void RegisterSystemButtons();
void RegisterSystemStatics();
void RegisterSystemEdits();
void RegisterSystemListBoxes();
void RegisterSystemComboBoxes();
void RegisterSystemComboBoxesEx();
void RegisterSystemScrollBars();
void RegisterSystemStatusBars();
void RegisterSystemTabs();
void RegisterSystemHeaders();
void RegisterSystemListViews();
void RegisterSystemTreeViews();
void RegisterSystemToolBars();
void RegisterSystemProgressBars();
void RegisterSystemTrackBars();
void RegisterSystemUpDowns();
void RegisterSystemDates();
void RegisterShellViews();
