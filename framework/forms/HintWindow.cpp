#include "framework/forms/HintWindow.h"

#include <algorithm>

#include "framework/forms/Screen.h"

namespace {

constexpr int Margin = 3; // pixels around the text

} // namespace

const TMetaClass& THintWindow::MetaClass()
{
    static const TMetaClass Class("THintWindow", &TCustomControl::MetaClass(), nullptr);
    return Class;
}

THintWindow::THintWindow(TComponent* Owner) : TCustomControl(Owner)
{
    SetColor(clInfoBk);
    Canvas()->Font()->Assign(Screen->HintFont());
    Canvas()->Font()->SetColor(clInfoText);
}

void THintWindow::CreateParams(TCreateParams& Params)
{
    inherited::CreateParams(Params);
    Params.Style = WS_POPUP | WS_BORDER;
    Params.WindowClass.style |= CS_SAVEBITS;
    Params.ExStyle = WS_EX_TOOLWINDOW | WS_EX_TOPMOST;
}

UINT THintWindow::TextFlags() const
{
    return DrawTextBiDiModeFlags(DT_LEFT | DT_WORDBREAK | DT_NOPREFIX);
}

TRect THintWindow::CalcHintRect(int MaxWidth, const std::string& Text)
{
    TScreenCanvas Measuring;
    Measuring.Font()->Assign(Screen->HintFont());
    TRect Result{0, 0, MaxWidth, 0};
    Measuring.DrawText(Text, Result, TextFlags() | DT_CALCRECT);
    Result.right += 2 * Margin + 2; // and the border
    Result.bottom += 2 * Margin + 1;
    return Result;
}

void THintWindow::ActivateHint(TRect Rect, const std::string& Text)
{
    const TRect Area = Screen->WorkAreaRect();
    const int Width = Rect.right - Rect.left;
    const int Height = Rect.bottom - Rect.top;
    const int Left = std::max(Area.left, std::min(Rect.left, Area.right - Width));
    const int Top = std::max(Area.top, std::min(Rect.top, Area.bottom - Height));
    SetCaption(Text);
    SetBounds(Left, Top, Width, Height);
    SetWindowPos(Handle(), HWND_TOPMOST, Left, Top, Width, Height, SWP_SHOWWINDOW | SWP_NOACTIVATE);
    Invalidate();
    Update();
}

// The mouse is not over the hint but over what is below.
void THintWindow::Dispatch(TMessage& Message)
{
    if (Message.Msg == WM_NCHITTEST)
        Message.Result = HTTRANSPARENT;
    else if (Message.Msg == WM_MOUSEACTIVATE)
        Message.Result = MA_NOACTIVATE;
    else
        inherited::Dispatch(Message);
}

void THintWindow::Paint()
{
    TRect Area = ClientRect();
    Canvas()->Font()->Assign(Screen->HintFont());
    Canvas()->Font()->SetColor(clInfoText);
    Canvas()->Brush()->SetColor(Color());
    Canvas()->FillRect(Area);
    InflateRect(&Area, -Margin, -Margin);
    Canvas()->DrawText(Caption(), Area, TextFlags());
}
