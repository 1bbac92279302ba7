#include "framework/forms/ButtonRow.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "framework/forms/Form.h"
#include "framework/forms/Screen.h"

namespace {

// Pixels beside, and above and below, the caption of a button that is larger than
// the least.
constexpr int PaddingAcross = 16;
constexpr int PaddingDown = 8;

using TRow = std::vector<TRowButton*>;

TRow RowOf(const TForm& Form)
{
    TRow Row;
    for (int Index = 0; Index < Form.ComponentCount(); ++Index)
        if (auto* const Button = dynamic_cast<TRowButton*>(Form.Components(Index)))
            Row.push_back(Button);
    return Row;
}

TDialogUnits UnitsOf(TForm& Form)
{
    TScreenCanvas Canvas;
    Canvas.Font()->Assign(Form.Font());
    return TDialogUnits(Canvas);
}

TPoint SizeFor(TRowButton& Button)
{
    TScreenCanvas Canvas;
    Canvas.Font()->Assign(Button.Font());
    TRect Area{};
    const UINT Reading = Button.UseRightToLeftReading() ? DT_RTLREADING : 0;
    Canvas.DrawText(Button.Caption(), Area, DT_CALCRECT | DT_LEFT | DT_SINGLELINE | Reading);
    return {RectWidth(Area) + PaddingAcross, RectHeight(Area) + PaddingDown};
}

int BottomOf(const TRow& Row)
{
    int Result = 0;
    for (const TRowButton* const Button : Row)
        Result = std::max(Result, Button->Top() + Button->Height());
    return Result;
}

// Where something of one size in the range stands that becomes as large as another;
// what was in the middle stays there.
int PlaceOfLarger(int Place, int Size, int Larger, LONG From, LONG To)
{
    const auto Middle = static_cast<int>(From + To);
    return std::abs(2 * Place + Size - Middle) <= 1 ? (Middle - Larger) / 2 : Place;
}

void Enlarge(TForm& Form, int Across, int Down)
{
    const TRect Area = Screen->WorkAreaRect();
    const int Width = Form.Width() + Across;
    const int Height = Form.Height() + Down;
    Form.SetBounds(PlaceOfLarger(Form.Left(), Form.Width(), Width, Area.left, Area.right),
                   PlaceOfLarger(Form.Top(), Form.Height(), Height, Area.top, Area.bottom), Width, Height);
    if (!Form.UseRightToLeftAlignment())
        return;
    for (int Index = 0; Index < Form.ControlCount(); ++Index) {
        TControl& Control = *Form.Controls(Index);
        Control.SetLeft(Control.Left() + Across);
    }
}

void Place(TForm& Form)
{
    const TRow Row = RowOf(Form);
    const TDialogUnits Units = UnitsOf(Form);
    const int Spacing = Units.X(RowButtonSpacing);
    int Width = -Spacing;
    for (const TRowButton* const Button : Row)
        Width += Button->Width() + Spacing;
    if (const int Missing = Width + 2 * Units.X(RowMargin) - Form.ClientWidth(); Missing > 0)
        Enlarge(Form, Missing, 0);
    int Left = (Form.ClientWidth() - Width) / 2;
    for (TRowButton* const Button : Row) {
        Button->SetLeft(Form.UseRightToLeftAlignment() ? Form.ClientWidth() - Left - Button->Width() : Left);
        Left += Button->Width() + Spacing;
    }
}

} // namespace

TRowButton::TRowButton(TForm* Form, const TDialogUnits& Units, const std::string& Name,
                       const std::string& Caption, int Top)
    : TButton(Form)
{
    SetName(Name);
    SetCaption(Caption);
    SetBounds(0, Top, Units.X(RowButtonWidth), Units.Y(RowButtonHeight));
    SetParent(Form);
    Fit();
}

void TRowButton::Dispatch(TMessage& Message)
{
    TButton::Dispatch(Message);
    if ((Message.Msg == CM_TEXTCHANGED || Message.Msg == CM_FONTCHANGED) && Parent() && Parent() == Owner())
        Fit();
}

void TRowButton::Fit()
{
    const TPoint Size = SizeFor(*this);
    if (Size.x <= Width() && Size.y <= Height())
        return;
    auto& Form = static_cast<TForm&>(*Owner());
    const int Bottom = BottomOf(RowOf(Form));
    SetBounds(Left(), Top(), std::max(static_cast<int>(Size.x), Width()),
              std::max(static_cast<int>(Size.y), Height()));
    if (const int Down = BottomOf(RowOf(Form)) - Bottom; Down > 0)
        Enlarge(Form, 0, Down);
    Place(Form);
}

void LayOutButtonRow(TForm& Form)
{
    int Widest = 0;
    for (const TRowButton* const Button : RowOf(Form))
        Widest = std::max(Widest, Button->Width());
    for (TRowButton* const Button : RowOf(Form))
        Button->SetWidth(Widest);
    Place(Form);
}
