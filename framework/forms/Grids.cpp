#include "framework/forms/Grids.h"

#include <algorithm>

#include "framework/forms/ControlRows.h"
#include "framework/rtl/Filer.h"

namespace {

void ReadSizes(TReader& Reader, std::map<int, int>& Sizes, int Default)
{
    Sizes.clear();
    Reader.ReadListBegin();
    for (int I = 0; !Reader.EndOfList(); ++I)
        if (const auto Size = static_cast<int>(Reader.ReadInteger()); Size != Default)
            Sizes[I] = Size;
    Reader.ReadListEnd();
}

void WriteSizes(TWriter& Writer, const std::map<int, int>& Sizes, int Count, int Default)
{
    Writer.WriteListBegin();
    for (int I = 0; I < Count; ++I) {
        const auto Found = Sizes.find(I);
        Writer.WriteInteger(Found == Sizes.end() ? Default : Found->second);
    }
    Writer.WriteListEnd();
}

int SizeOf(const std::map<int, int>& Sizes, int Index, int Default)
{
    const auto Found = Sizes.find(Index);
    return Found == Sizes.end() ? Default : Found->second;
}

template<class TPublisher>
ControlRows::TRows GridRows()
{
    using namespace ControlRows;
    TRows Result = Joined(
        Look(), Drag(), Mouse(), Wheel(), Focus(true), Bevel(), ControlRows::Ctl3D(), Buffer(),
        OBX_ROW(TPublisher, ParentColor).Default(false), OBX_ROW(TPublisher, BorderStyle).Default(bsSingle),
        OBX_ROW(TPublisher, ColCount).Default(5), OBX_ROW(TPublisher, DefaultColWidth).Default(64),
        OBX_ROW(TPublisher, DefaultDrawing).Default(true), OBX_ROW(TPublisher, DefaultRowHeight).Default(24),
        OBX_ROW(TPublisher, FixedColor).Default(clBtnFace), OBX_ROW(TPublisher, FixedCols).Default(1),
        OBX_ROW(TPublisher, FixedRows).Default(1), OBX_ROW(TPublisher, GridLineWidth).Default(1),
        OBX_ROW(TPublisher, Options)
            .Default(TGridOptions{goFixedVertLine, goFixedHorzLine, goVertLine, goHorzLine, goRangeSelect}));
    return Joined(
        std::move(Result), OBX_ROW(TPublisher, RowCount).Default(5),
        OBX_ROW(TPublisher, ScrollBars).Default(ssBoth), Prop<&TPublisher::OnColumnMoved>("OnColumnMoved"),
        Prop<&TPublisher::OnDrawCell>("OnDrawCell"), Prop<&TPublisher::OnGetEditMask>("OnGetEditMask"),
        Prop<&TPublisher::OnGetEditText>("OnGetEditText"), Prop<&TPublisher::OnRowMoved>("OnRowMoved"),
        Prop<&TPublisher::OnSelectCell>("OnSelectCell"), Prop<&TPublisher::OnSetEditText>("OnSetEditText"),
        Prop<&TPublisher::OnTopLeftChanged>("OnTopLeftChanged"));
}

} // namespace

const TMetaClass& TDrawGrid::MetaClass()
{
    static const TMetaClass Class("TDrawGrid", &TCustomControl::MetaClass(), CreateComponent<TDrawGrid>,
                                  ControlRows::Sorted(GridRows<TDrawGrid>()));
    return Class;
}

const TMetaClass& TStringGrid::MetaClass()
{
    static const TMetaClass Class("TStringGrid", &TDrawGrid::MetaClass(), CreateComponent<TStringGrid>);
    return Class;
}

TDrawGrid::TDrawGrid(TComponent* Owner) : TCustomControl(Owner)
{
    FControlStyle = {csCaptureMouse, csOpaque, csDoubleClicks, csClickEvents};
    SetBounds(0, 0, 320, 120);
    SetTabStop(true);
    SetParentColor(false);
}

int TDrawGrid::ColWidths(int Index) const
{
    return SizeOf(FColWidths, Index, FDefaultColWidth);
}

void TDrawGrid::SetColWidths(int Index, int Value)
{
    FColWidths[Index] = Value;
    Invalidate();
}

int TDrawGrid::RowHeights(int Index) const
{
    return SizeOf(FRowHeights, Index, FDefaultRowHeight);
}

void TDrawGrid::SetRowHeights(int Index, int Value)
{
    FRowHeights[Index] = Value;
    Invalidate();
}

int TDrawGrid::ColLeft(int Index) const
{
    if (Index >= FFixedCols && Index < FLeftCol)
        return -1;
    int X = 0;
    for (int I = 0; I < Index; ++I)
        if (I < FFixedCols || I >= FLeftCol)
            X += ColWidths(I) + FGridLineWidth;
    return X;
}

int TDrawGrid::RowTop(int Index) const
{
    if (Index >= FFixedRows && Index < FTopRow)
        return -1;
    int Y = 0;
    for (int I = 0; I < Index; ++I)
        if (I < FFixedRows || I >= FTopRow)
            Y += RowHeights(I) + FGridLineWidth;
    return Y;
}

TRect TDrawGrid::CellRect(int ACol, int ARow) const
{
    const int X = ColLeft(ACol);
    const int Y = RowTop(ARow);
    return X < 0 || Y < 0 ? TRect{} : Bounds(X, Y, ColWidths(ACol), RowHeights(ARow));
}

bool TDrawGrid::MouseToCell(int X, int Y, int& ACol, int& ARow) const
{
    const auto Find = [](int At, int Count, auto Start, auto Size) {
        for (int I = 0; I < Count; ++I) {
            const int Begin = Start(I);
            if (Begin >= 0 && At >= Begin && At < Begin + Size(I))
                return I;
        }
        return -1;
    };
    ACol = Find(
        X, FColCount, [this](int I) { return ColLeft(I); }, [this](int I) { return ColWidths(I); });
    ARow = Find(
        Y, FRowCount, [this](int I) { return RowTop(I); }, [this](int I) { return RowHeights(I); });
    return ACol >= 0 && ARow >= 0;
}

void TDrawGrid::SetBorderStyle(TBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    RecreateWnd();
}

// A form file names counts and fixed counts one after the other: while it is read
// they need not fit together.
void TDrawGrid::SetColCount(int Value)
{
    FColCount = std::max(Value, 1);
    if (!IsLoading())
        FFixedCols = std::min(FFixedCols, FColCount - 1);
    FCol = std::min(FCol, FColCount - 1);
    SizeChanged();
    SetTopLeft(FLeftCol, FTopRow);
}

void TDrawGrid::SetRowCount(int Value)
{
    FRowCount = std::max(Value, 1);
    if (!IsLoading())
        FFixedRows = std::min(FFixedRows, FRowCount - 1);
    FRow = std::min(FRow, FRowCount - 1);
    SizeChanged();
    SetTopLeft(FLeftCol, FTopRow);
}

void TDrawGrid::SetFixedCols(int Value)
{
    FFixedCols = IsLoading() ? std::max(Value, 0) : std::clamp(Value, 0, FColCount - 1);
    FCol = std::min(std::max(FCol, FFixedCols), std::max(FColCount - 1, FFixedCols));
    FLeftCol = FFixedCols;
    Invalidate();
}

void TDrawGrid::SetFixedRows(int Value)
{
    FFixedRows = IsLoading() ? std::max(Value, 0) : std::clamp(Value, 0, FRowCount - 1);
    FRow = std::min(std::max(FRow, FFixedRows), std::max(FRowCount - 1, FFixedRows));
    FTopRow = FFixedRows;
    Invalidate();
}

void TDrawGrid::SetDefaultColWidth(int Value)
{
    FDefaultColWidth = Value;
    FColWidths.clear();
    Invalidate();
}

void TDrawGrid::SetDefaultRowHeight(int Value)
{
    FDefaultRowHeight = Value;
    FRowHeights.clear();
    Invalidate();
}

void TDrawGrid::SetScrollBars(TScrollStyle Value)
{
    if (FScrollBars == Value)
        return;
    FScrollBars = Value;
    RecreateWnd();
}

void TDrawGrid::DefineProperties(TFiler& Filer)
{
    TCustomControl::DefineProperties(Filer);
    Filer.DefineProperty(
        "ColWidths", [this](TReader& Reader) { ReadSizes(Reader, FColWidths, FDefaultColWidth); },
        [this](TWriter& Writer) { WriteSizes(Writer, FColWidths, FColCount, FDefaultColWidth); },
        !FColWidths.empty());
    Filer.DefineProperty(
        "RowHeights", [this](TReader& Reader) { ReadSizes(Reader, FRowHeights, FDefaultRowHeight); },
        [this](TWriter& Writer) { WriteSizes(Writer, FRowHeights, FRowCount, FDefaultRowHeight); },
        !FRowHeights.empty());
}

void TDrawGrid::CreateParams(TCreateParams& Params)
{
    static constexpr DWORD Bars[] = {0, WS_HSCROLL, WS_VSCROLL, WS_HSCROLL | WS_VSCROLL};
    TCustomControl::CreateParams(Params);
    Params.Style |= Bars[FScrollBars];
    if (FBorderStyle == bsSingle && Ctl3D())
        Params.ExStyle |= WS_EX_CLIENTEDGE;
    else if (FBorderStyle == bsSingle)
        Params.Style |= WS_BORDER;
}

void TDrawGrid::CreateWnd()
{
    TCustomControl::CreateWnd();
    ShowScrollRange();
}

// A bar is there while not all cells fit.
void TDrawGrid::ShowScrollRange()
{
    if (!HandleAllocated())
        return;
    const auto Show = [this](int Bar, int First, int Last, int At, int Needed, int Room) {
        SCROLLINFO Info{};
        Info.cbSize = sizeof Info;
        Info.fMask = SIF_RANGE | SIF_POS;
        Info.nMin = First;
        Info.nMax = Needed > Room || At > First ? Last : First;
        Info.nPos = At;
        SetScrollInfo(WindowHandle(), Bar, &Info, TRUE);
    };
    int NeededWidth = 0;
    int NeededHeight = 0;
    for (int I = 0; I < FColCount; ++I)
        NeededWidth += ColWidths(I) + FGridLineWidth;
    for (int I = 0; I < FRowCount; ++I)
        NeededHeight += RowHeights(I) + FGridLineWidth;
    if (FScrollBars == ssHorizontal || FScrollBars == ssBoth)
        Show(SB_HORZ, FFixedCols, FColCount - 1, FLeftCol, NeededWidth, Width() - 4);
    if (FScrollBars == ssVertical || FScrollBars == ssBoth)
        Show(SB_VERT, FFixedRows, FRowCount - 1, FTopRow, NeededHeight, Height() - 4);
}

void TDrawGrid::SetTopLeft(int ACol, int ARow)
{
    const int NewLeft = std::max(FFixedCols, std::min(ACol, FColCount - 1));
    const int NewTop = std::max(FFixedRows, std::min(ARow, FRowCount - 1));
    const bool Moved = NewLeft != FLeftCol || NewTop != FTopRow;
    FLeftCol = NewLeft;
    FTopRow = NewTop;
    ShowScrollRange();
    Invalidate();
    if (Moved && !IsLoading() && OnTopLeftChanged)
        OnTopLeftChanged(this);
}

void TDrawGrid::SelectCell(int ACol, int ARow)
{
    ACol = std::clamp(ACol, std::min(FFixedCols, FColCount - 1), FColCount - 1);
    ARow = std::clamp(ARow, std::min(FFixedRows, FRowCount - 1), FRowCount - 1);
    bool CanSelect = true;
    if (OnSelectCell && (ACol != FCol || ARow != FRow))
        OnSelectCell(this, ACol, ARow, CanSelect);
    if (!CanSelect)
        return;
    FCol = ACol;
    FRow = ARow;
    ScrollIntoView();
    Invalidate();
}

void TDrawGrid::ScrollIntoView()
{
    if (!HandleAllocated())
        return;
    int NewLeft = std::min(FLeftCol, FCol);
    int NewTop = std::min(FTopRow, FRow);
    int Right = 0;
    for (int I = 0; I < FFixedCols; ++I)
        Right += ColWidths(I) + FGridLineWidth;
    int Bottom = 0;
    for (int I = 0; I < FFixedRows; ++I)
        Bottom += RowHeights(I) + FGridLineWidth;
    for (int I = NewLeft; I <= FCol; ++I)
        Right += ColWidths(I) + FGridLineWidth;
    for (int I = NewTop; I <= FRow; ++I)
        Bottom += RowHeights(I) + FGridLineWidth;
    while (Right > ClientWidth() && NewLeft < FCol)
        Right -= ColWidths(NewLeft++) + FGridLineWidth;
    while (Bottom > ClientHeight() && NewTop < FRow)
        Bottom -= RowHeights(NewTop++) + FGridLineWidth;
    SetTopLeft(NewLeft, NewTop);
}

void TDrawGrid::Scroll(const TMessage& Message, bool Vertical)
{
    int At = Vertical ? FTopRow : FLeftCol;
    switch (Message.Id()) {
    case SB_LINEUP:
        --At;
        break;
    case SB_LINEDOWN:
        ++At;
        break;
    case SB_PAGEUP:
        At -= 5;
        break;
    case SB_PAGEDOWN:
        At += 5;
        break;
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
        At = Message.Code();
        break;
    default:
        return;
    }
    SetTopLeft(Vertical ? FLeftCol : At, Vertical ? At : FTopRow);
}

void TDrawGrid::Dispatch(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_GETDLGCODE:
        Message.Result = DLGC_WANTARROWS | (FOptions.Contains(goTabs) ? DLGC_WANTTAB : 0);
        return;
    case WM_VSCROLL:
    case WM_HSCROLL:
        Scroll(Message, Message.Msg == WM_VSCROLL);
        return;
    case WM_SIZE:
        TCustomControl::Dispatch(Message);
        ShowScrollRange();
        return;
    default:
        TCustomControl::Dispatch(Message);
    }
}

void TDrawGrid::KeyDown(uint16_t& Key, TShiftState Shift)
{
    TCustomControl::KeyDown(Key, Shift);
    switch (Key) {
    case VK_LEFT:
        SelectCell(FCol - 1, FRow);
        break;
    case VK_RIGHT:
        SelectCell(FCol + 1, FRow);
        break;
    case VK_UP:
        SelectCell(FCol, FRow - 1);
        break;
    case VK_DOWN:
        SelectCell(FCol, FRow + 1);
        break;
    case VK_HOME:
        SelectCell(FFixedCols, FRow);
        break;
    case VK_END:
        SelectCell(FColCount - 1, FRow);
        break;
    default:
        break;
    }
}

void TDrawGrid::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    if (CanFocus())
        SetFocus();
    int ACol = 0;
    int ARow = 0;
    if (Button == mbLeft && MouseToCell(X, Y, ACol, ARow) && ACol >= FFixedCols && ARow >= FFixedRows)
        SelectCell(ACol, ARow);
    TCustomControl::MouseDown(Button, Shift, X, Y);
}

void TDrawGrid::DrawCell(int ACol, int ARow, const TRect& Area, TGridDrawState State)
{
    if (OnDrawCell)
        OnDrawCell(this, ACol, ARow, Area, State);
}

void TDrawGrid::PaintCell(int ACol, int ARow, const TRect& Area)
{
    TCanvas& Target = *Canvas();
    TGridDrawState State;
    if (ACol < FFixedCols || ARow < FFixedRows)
        State.Include(gdFixed);
    else if (ARow == FRow && (ACol == FCol || FOptions.Contains(goRowSelect)))
        State.Include(gdSelected);
    Target.Font()->Assign(Font());
    Target.Brush()->SetStyle(bsSolid);
    Target.Brush()->SetColor(State.Contains(gdFixed) ? FFixedColor : Color());
    const bool Marked = State.Contains(gdSelected) && FDefaultDrawing;
    if (Marked) {
        Target.Brush()->SetColor(clHighlight);
        Target.Font()->SetColor(clHighlightText);
    }
    if (FDefaultDrawing)
        Target.FillRect(Area);
    DrawCell(ACol, ARow, Area, State);
    if (!State.Contains(gdFixed) || FGridLineWidth == 0)
        return;
    TRect Edge = Area;
    DrawEdge(Target.Handle(), &Edge, BDR_RAISEDINNER, BF_LEFT | BF_TOP);
}

void TDrawGrid::Paint()
{
    TCanvas& Target = *Canvas();
    const TRect Client = ClientRect();
    Target.Brush()->SetStyle(bsSolid);
    Target.Brush()->SetColor(Color());
    Target.FillRect(Client);
    for (int ARow = 0; ARow < FRowCount; ++ARow) {
        const int Y = RowTop(ARow);
        if (Y >= Client.bottom)
            break;
        if (Y < 0)
            continue;
        for (int ACol = 0; ACol < FColCount; ++ACol) {
            const int X = ColLeft(ACol);
            if (X >= Client.right)
                break;
            if (X < 0)
                continue;
            const TRect Area = Bounds(X, Y, ColWidths(ACol), RowHeights(ARow));
            PaintCell(ACol, ARow, Area);
            const bool IsFixed = ACol < FFixedCols || ARow < FFixedRows;
            Target.Brush()->SetStyle(bsSolid);
            Target.Brush()->SetColor(IsFixed ? clBtnShadow : clSilver);
            if (FOptions.Contains(IsFixed ? goFixedVertLine : goVertLine))
                Target.FillRect(
                    {Area.right, Area.top, Area.right + FGridLineWidth, Area.bottom + FGridLineWidth});
            if (FOptions.Contains(IsFixed ? goFixedHorzLine : goHorzLine))
                Target.FillRect(
                    {Area.left, Area.bottom, Area.right + FGridLineWidth, Area.bottom + FGridLineWidth});
        }
    }
}

TStringGrid::TStringGrid(TComponent* Owner) : TDrawGrid(Owner) {}

const std::string& TStringGrid::Cells(int ACol, int ARow) const
{
    static const std::string Nothing;
    const auto Found = FCells.find({ARow, ACol});
    return Found == FCells.end() ? Nothing : Found->second;
}

void TStringGrid::SetCells(int ACol, int ARow, const std::string& Value)
{
    if (Value.empty())
        FCells.erase({ARow, ACol});
    else
        FCells[{ARow, ACol}] = Value;
    Invalidate();
}

void TStringGrid::SizeChanged()
{
    std::erase_if(FCells, [this](const auto& Cell) {
        return Cell.first.first >= RowCount() || Cell.first.second >= ColCount();
    });
}

void TStringGrid::DrawCell(int ACol, int ARow, const TRect& Area, TGridDrawState State)
{
    if (DefaultDrawing()) {
        TRect Text{Area.left + 2, Area.top + 2, Area.right, Area.bottom};
        Canvas()->Brush()->SetStyle(bsClear);
        Canvas()->DrawText(Cells(ACol, ARow), Text, DrawTextBiDiModeFlags(DT_NOPREFIX));
    }
    TDrawGrid::DrawCell(ACol, ARow, Area, State);
}
