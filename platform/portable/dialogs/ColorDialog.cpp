// The colour dialog: basic and custom colours, and a half to the right, opened on
// request, in which a colour is mixed.
#include <algorithm>

#include "platform/portable/Control.h"
#include "platform/portable/dialogs/ColorModel.h"
#include "platform/portable/dialogs/StandardDialog.h"

namespace {

constexpr int Columns = 8;
constexpr int BasicRows = 6;
constexpr int CustomRows = 2;
constexpr int CustomCount = Columns * CustomRows;
constexpr short ClosedWidth = 152; // dialog units

// Red, green and blue in the order in which they are written.
constexpr COLORREF BasicPalette[BasicRows * Columns] = {
    0xFF8080, 0xFFFF80, 0x80FF80, 0x00FF80, 0x80FFFF, 0x0080FF, 0xFF80C0, 0xFF80FF, 0xFF0000, 0xFFFF00,
    0x80FF00, 0x00FF40, 0x00FFFF, 0x0080C0, 0x8080C0, 0xFF00FF, 0x804040, 0xFF8040, 0x00FF00, 0x008080,
    0x004080, 0x8080FF, 0x800040, 0xFF0080, 0x800000, 0xFF8000, 0x008000, 0x008040, 0x0000FF, 0x0000A0,
    0x800080, 0x8000FF, 0x400000, 0x804000, 0x004000, 0x004040, 0x000080, 0x000040, 0x400040, 0x400080,
    0x000000, 0x808000, 0x808040, 0x808080, 0x408080, 0xC0C0C0, 0x400040, 0xFFFFFF};

COLORREF BasicColor(int Index)
{
    const COLORREF Value = BasicPalette[Index];
    return RGB(Value >> 16, Value >> 8, Value);
}

class TColorDialog final : public TStandardDialog {
public:
    explicit TColorDialog(CHOOSECOLORA& Data)
        : TStandardDialog(ColorTemplate, Data.Flags & CC_ENABLEHOOK ? Data.lpfnHook : nullptr, &Data),
          FData(Data), FColor(Data.Flags & CC_RGBINIT ? Data.rgbResult : RGB(0, 0, 0))
    {
        if (Data.lpCustColors)
            std::copy_n(Data.lpCustColors, CustomCount, FCustom);
    }

protected:
    void Init() override;
    bool Started(bool HookAnswer) override;
    bool Command(int Id, int Code) override;
    INT_PTR Message(UINT Message, WPARAM WParam, LPARAM LParam) override;

private:
    void SetWidth(short Units) const;
    void OpenRightHalf();
    void SetColor(COLORREF Color);
    void SetHls(const THls& Hls);
    void ShowNumbers();
    void NumberTyped(int Id);
    void AddToCustom();
    void Accept();
    bool Press(POINT Point);
    RECT AreaOf(int Id) const;
    void Paint() const;
    void PaintCells(HDC Dc, int Id, int Rows) const;
    void PaintMixer(HDC Dc) const;

    CHOOSECOLORA& FData;
    COLORREF FColor;
    THls FHls;
    COLORREF FCustom[CustomCount] = {};
    int FNextCustom = 0; // the field that "Add" fills
    bool FQuiet = false; // the dialog itself writes the numbers
};

void Fill(HDC Dc, const RECT& Rect, COLORREF Color)
{
    const HBRUSH Brush = CreateSolidBrush(Color);
    FillRect(Dc, &Rect, Brush);
    DeleteObject(Brush);
}

RECT CellOf(const RECT& Area, int Rows, int Index)
{
    constexpr int Gap = 3;
    const int Width = (Area.right - Area.left) / Columns, Height = (Area.bottom - Area.top) / Rows;
    const int Left = Area.left + Index % Columns * Width, Top = Area.top + Index / Columns * Height;
    return {Left + Gap, Top + Gap, Left + Width - Gap, Top + Height - Gap};
}

void TColorDialog::Init()
{
    Show(pshHelp, (FData.Flags & CC_SHOWHELP) != 0);
    if (FData.Flags & CC_FULLOPEN)
        OpenRightHalf();
    else
        SetWidth(ClosedWidth);
    if (FData.Flags & (CC_PREVENTFULLOPEN | CC_FULLOPEN))
        Enable(DefineColors, false);
}

bool TColorDialog::Started(bool HookAnswer)
{
    SetColor(FColor);
    return HookAnswer;
}

void TColorDialog::SetWidth(short Units) const
{
    RECT Inner{0, 0, Units, ColorTemplate.Height};
    MapDialogRect(Window(), &Inner);
    AdjustWindowRectEx(&Inner, static_cast<DWORD>(GetWindowLongA(Window(), GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongA(Window(), GWL_EXSTYLE)));
    SetWindowPos(Window(), nullptr, 0, 0, Inner.right - Inner.left, Inner.bottom - Inner.top,
                 SWP_NOMOVE | SWP_NOZORDER);
}

void TColorDialog::OpenRightHalf()
{
    for (const TItemRow& Row : ColorTemplate.Items)
        if (Row.Left >= ClosedWidth || Row.Id == ColorField)
            Show(Row.Id, true);
    Enable(DefineColors, false);
}

void TColorDialog::SetColor(COLORREF Color)
{
    FColor = Color & 0xFFFFFF;
    FHls = ToHls(FColor);
    ShowNumbers();
}

void TColorDialog::SetHls(const THls& Hls)
{
    FHls = Hls;
    FColor = ToColor(Hls);
    ShowNumbers();
}

void TColorDialog::ShowNumbers()
{
    const struct {
        int Id, Value;
    } Numbers[] = {{HueEdit, FHls.Hue},
                   {SatEdit, FHls.Sat},
                   {LumEdit, FHls.Lum},
                   {RedEdit, GetRValue(FColor)},
                   {GreenEdit, GetGValue(FColor)},
                   {BlueEdit, GetBValue(FColor)}};
    FQuiet = true;
    for (const auto& Number : Numbers)
        if (Text(Number.Id) != std::to_string(Number.Value)) // keeps the caret of what is being typed
            SetDlgItemInt(Window(), Number.Id, static_cast<UINT>(Number.Value), FALSE);
    FQuiet = false;
    InvalidateRect(Window(), nullptr, FALSE);
}

void TColorDialog::NumberTyped(int Id)
{
    const auto Value = [&](int Edit, int Most) {
        return static_cast<int>(
            std::min(GetDlgItemInt(Window(), Edit, nullptr, FALSE), static_cast<UINT>(Most)));
    };
    if (Id >= RedEdit)
        SetColor(RGB(Value(RedEdit, 255), Value(GreenEdit, 255), Value(BlueEdit, 255)));
    else
        SetHls({Value(HueEdit, THls::Range - 1), Value(LumEdit, THls::Range), Value(SatEdit, THls::Range)});
}

void TColorDialog::AddToCustom()
{
    FCustom[FNextCustom] = FColor;
    FNextCustom = (FNextCustom + 1) % CustomCount;
    InvalidateRect(Window(), nullptr, FALSE);
}

// The hook procedure may keep the dialog open.
void TColorDialog::Accept()
{
    const COLORREF Before = FData.rgbResult;
    FData.rgbResult = FColor;
    if (AskHook(RegisterWindowMessageA(COLOROKSTRINGA), 0, reinterpret_cast<LPARAM>(&FData))) {
        FData.rgbResult = Before;
        return;
    }
    End(true);
}

bool TColorDialog::Command(int Id, int Code)
{
    switch (Id) {
    case IDOK:
    case IDCANCEL:
        if (FData.lpCustColors)
            std::copy_n(FCustom, CustomCount, FData.lpCustColors);
        if (Id == IDOK)
            Accept();
        else
            End(false);
        return true;
    case DefineColors:
        SetWidth(ColorTemplate.Width);
        OpenRightHalf();
        SetFocus(Item(RedEdit));
        return true;
    case AddColor:
        AddToCustom();
        return true;
    case pshHelp:
        TellOwner(HELPMSGSTRINGA, reinterpret_cast<WPARAM>(Window()), reinterpret_cast<LPARAM>(&FData));
        return true;
    default:
        if (Id < HueEdit || Id > BlueEdit)
            return false;
        if (Code == EN_UPDATE && !FQuiet)
            NumberTyped(Id);
        return true;
    }
}

RECT TColorDialog::AreaOf(int Id) const
{
    RECT Rect;
    GetClientRect(Item(Id), &Rect);
    MapWindowPoints(Item(Id), Window(), reinterpret_cast<POINT*>(&Rect), 2);
    return Rect;
}

// The mouse is pressed, or moved while pressed; whether that chose a colour.
bool TColorDialog::Press(POINT Point)
{
    for (const auto& [Id, Rows] : {std::pair{int{BasicColors}, BasicRows}, {int{CustomColors}, CustomRows}}) {
        const RECT Area = AreaOf(Id);
        for (int Index = 0; Index < Rows * Columns; ++Index) {
            const RECT Cell = CellOf(Area, Rows, Index);
            if (!PtInRect(&Cell, Point))
                continue;
            if (Id == CustomColors)
                FNextCustom = Index;
            SetColor(Id == BasicColors ? BasicColor(Index) : FCustom[Index]);
            return true;
        }
    }
    const auto Share = [](int At, int From, int To, int Range) {
        return std::clamp((At - From) * Range / std::max(To - From, 1), 0, Range);
    };
    const RECT Field = AreaOf(ColorField), Strip = AreaOf(LumField);
    const bool Open = IsWindowVisible(Item(ColorField)) != 0;
    if (Open && PtInRect(&Field, Point)) {
        SetHls({Share(Point.x, Field.left, Field.right, THls::Range - 1), FHls.Lum,
                THls::Range - Share(Point.y, Field.top, Field.bottom, THls::Range)});
        return true;
    }
    if (!Open || !PtInRect(&Strip, Point))
        return false;
    SetHls({FHls.Hue, THls::Range - Share(Point.y, Strip.top, Strip.bottom, THls::Range), FHls.Sat});
    return true;
}

void TColorDialog::PaintCells(HDC Dc, int Id, int Rows) const
{
    const RECT Area = AreaOf(Id);
    for (int Index = 0; Index < Rows * Columns; ++Index) {
        RECT Cell = CellOf(Area, Rows, Index);
        const COLORREF Color = Id == BasicColors ? BasicColor(Index) : FCustom[Index];
        Fill(Dc, Cell, Color);
        DrawEdge(Dc, &Cell, EDGE_SUNKEN, BF_RECT);
        InflateRect(&Cell, 2, 2);
        if (Id == BasicColors ? Color == FColor : Index == FNextCustom)
            FrameRect(Dc, &Cell, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    }
}

void TColorDialog::PaintMixer(HDC Dc) const
{
    constexpr int Step = 4; // pixels of one colour
    constexpr int Range = THls::Range;
    const RECT Field = AreaOf(ColorField), Strip = AreaOf(LumField);
    const int Height = std::max(Field.bottom - Field.top, 1), Width = std::max(Field.right - Field.left, 1);
    for (int Top = Field.top; Top < Field.bottom; Top += Step) {
        const int Level = Range - (Top - Field.top) * Range / Height;
        for (int Left = Field.left; Left < Field.right; Left += Step) {
            const int Hue = (Left - Field.left) * (Range - 1) / Width;
            const RECT Cell{Left, Top, std::min(Left + Step, Field.right),
                            std::min(Top + Step, Field.bottom)};
            Fill(Dc, Cell, ToColor({Hue, Range / 2, Level}));
        }
        Fill(Dc, {Strip.left, Top, Strip.right, std::min(Top + Step, Strip.bottom)},
             ToColor({FHls.Hue, Level, FHls.Sat}));
    }
    const int X = Field.left + FHls.Hue * Width / Range, Y = Field.top + (Range - FHls.Sat) * Height / Range;
    const RECT Mark{X - 4, Y - 4, X + 5, Y + 5};
    FrameRect(Dc, &Mark, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    const int Lum = Strip.top + (Range - FHls.Lum) * Height / Range;
    Fill(Dc, {Strip.left, Lum - 1, Strip.right, Lum + 1}, RGB(128, 128, 128));
    Fill(Dc, AreaOf(ResultField), FColor);
}

void TColorDialog::Paint() const
{
    PAINTSTRUCT Data;
    const HDC Dc = BeginPaint(Window(), &Data);
    PaintCells(Dc, BasicColors, BasicRows);
    PaintCells(Dc, CustomColors, CustomRows);
    if (IsWindowVisible(Item(ColorField)))
        PaintMixer(Dc);
    EndPaint(Window(), &Data);
}

INT_PTR TColorDialog::Message(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case WM_PAINT:
        Paint();
        return TRUE;
    case WM_CTLCOLORSTATIC: // the areas show what the dialog painted
        switch (GetDlgCtrlID(reinterpret_cast<HWND>(LParam))) {
        case BasicColors:
        case CustomColors:
        case ColorField:
        case LumField:
        case ResultField:
            return reinterpret_cast<INT_PTR>(GetStockObject(NULL_BRUSH));
        default:
            return FALSE;
        }
    case WM_LBUTTONDOWN:
        return Press(PointOf(LParam));
    case WM_MOUSEMOVE:
        return (WParam & MK_LBUTTON) && Press(PointOf(LParam));
    default:
        static const UINT SetRgb = RegisterWindowMessageA(SETRGBSTRINGA);
        if (Message != SetRgb)
            return TStandardDialog::Message(Message, WParam, LParam);
        SetColor(static_cast<COLORREF>(LParam));
        return TRUE;
    }
}

} // namespace

BOOL ChooseColorA(CHOOSECOLORA* Choose)
{
    DialogError(0);
    if (!Choose)
        return DialogError(CDERR_INITIALIZATION);
    if (Choose->lStructSize != sizeof(CHOOSECOLORA))
        return DialogError(CDERR_STRUCTSIZE);
    if ((Choose->Flags & CC_ENABLEHOOK) && !Choose->lpfnHook)
        return DialogError(CDERR_NOHOOK);
    if (Choose->Flags & (CC_ENABLETEMPLATE | CC_ENABLETEMPLATEHANDLE))
        return DialogError(CDERR_NOTEMPLATE);
    return TColorDialog(*Choose).Run(Choose->hwndOwner);
}
