#include "designer/SurfaceMarks.h"

#include <algorithm>

#include "designer/FormModel.h"

namespace {

constexpr int NameHeight = 15;

// "TFormTranslator" -> "FT"
std::string Initials(const std::string& ClassName)
{
    std::string Result;
    for (size_t I = ClassName.starts_with('T') ? 1 : 0; I < ClassName.size() && Result.size() < 3; ++I)
        if (ClassName[I] >= 'A' && ClassName[I] <= 'Z')
            Result += ClassName[I];
    return Result.empty() ? "?" : Result;
}

} // namespace

THandleEffect EffectOf(THandlePlace Place)
{
    static constexpr THandleEffect Effects[] = {
        {true, true, false, false},  {false, true, false, false}, {false, true, true, false},
        {false, false, true, false}, {false, false, true, true},  {false, false, false, true},
        {true, false, false, true},  {true, false, false, false},
    };
    return Effects[static_cast<size_t>(Place)];
}

TMark::TMark(HWND Window, TComponent& Component) : TCustomControl(nullptr), FComponent(Component)
{
    SetParentWindow(Window);
}

void TMark::ShowAt(const TRect& Place)
{
    SetBounds(Place.left, Place.top, RectWidth(Place), RectHeight(Place));
    UpdateControlState();
    SetWindowPos(Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

THandleMark::THandleMark(HWND Window, TComponent& Component, THandlePlace Place, bool IsFixed)
    : TMark(Window, Component), FPlace(Place), FIsFixed(IsFixed)
{
}

void THandleMark::ShowAround(const TRect& Box)
{
    const THandleEffect Effect = EffectOf(FPlace);
    const auto Along = [](int From, int To, bool First, bool Last) {
        return (First ? From : Last ? To : (From + To) / 2) - Size / 2;
    };
    ShowAt(Bounds(Along(Box.left, Box.right - 1, Effect.Left, Effect.Right),
                  Along(Box.top, Box.bottom - 1, Effect.Top, Effect.Bottom), Size, Size));
}

void THandleMark::Paint()
{
    Canvas()->Brush()->SetColor(FIsFixed ? clGray : clNavy);
    Canvas()->Pen()->SetColor(clWhite);
    Canvas()->Rectangle(ClientRect());
}

TIconMark::TIconMark(HWND Window, TComponent& Component) : TMark(Window, Component) {}

void TIconMark::SetSelected(bool Value)
{
    if (FIsSelected == Value)
        return;
    FIsSelected = Value;
    Invalidate();
}

void TIconMark::ShowAtDesignPlace()
{
    const int Needed = Canvas()->TextWidth(Component().Name()) + 4;
    const int Wide = std::max(TFormModel::IconSize, Needed);
    ShowAt(Bounds(Component().DesignLeft - (Wide - TFormModel::IconSize) / 2, Component().DesignTop, Wide,
                  TFormModel::IconSize + NameHeight));
}

void TIconMark::Paint()
{
    TCanvas& Paper = *Canvas();
    Paper.Brush()->SetColor(FIsSelected ? clHighlight : clBtnFace);
    Paper.FillRect(ClientRect());
    Paper.Font()->SetColor(FIsSelected ? clHighlightText : clBtnText);
    TRect Name = Rect(0, TFormModel::IconSize, Width(), Height());
    Paper.DrawText(Component().Name(), Name, DT_CENTER | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    TRect Box = Bounds((Width() - TFormModel::IconSize) / 2, 0, TFormModel::IconSize, TFormModel::IconSize);
    Paper.Brush()->SetColor(clInfoBk);
    Paper.Pen()->SetColor(clGray);
    Paper.Rectangle(Box);
    Paper.Font()->SetColor(clNavy);
    Paper.DrawText(Initials(Component().ClassName()), Box, DT_CENTER | DT_SINGLELINE | DT_VCENTER);
}

TLasso::TLasso(HWND Window, TComponent& Form, const TPoint& Start) : FWindow(Window), FStart(Start)
{
    for (int Side = 0; Side < 4; ++Side) {
        FSides.push_back(std::make_unique<TMark>(Window, Form));
        FSides.back()->SetColor(clGray);
    }
}

void TLasso::To(const TPoint& Point)
{
    TPoint From = FStart, Here = Point;
    ::ScreenToClient(FWindow, &From);
    ::ScreenToClient(FWindow, &Here);
    FBox = Rect(std::min(From.x, Here.x), std::min(From.y, Here.y), std::max(From.x, Here.x) + 1,
                std::max(From.y, Here.y) + 1);
    FSides[0]->ShowAt(Rect(FBox.left, FBox.top, FBox.right, FBox.top + 1));
    FSides[1]->ShowAt(Rect(FBox.left, FBox.bottom - 1, FBox.right, FBox.bottom));
    FSides[2]->ShowAt(Rect(FBox.left, FBox.top, FBox.left + 1, FBox.bottom));
    FSides[3]->ShowAt(Rect(FBox.right - 1, FBox.top, FBox.right, FBox.bottom));
}
