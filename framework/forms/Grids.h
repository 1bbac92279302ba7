// Tables of cells.
#pragma once

#include <map>

#include "framework/forms/CustomControl.h"
#include "framework/forms/Edits.h"

OBX_ENUM(TGridOption, goFixedVertLine, goFixedHorzLine, goVertLine, goHorzLine, goRangeSelect,
         goDrawFocusSelected, goRowSizing, goColSizing, goRowMoving, goColMoving, goEditing, goTabs,
         goRowSelect, goAlwaysShowEditor, goThumbTracking, goFixedColClick, goFixedRowClick, goFixedHotTrack)
OBX_SET(TGridOptions, TGridOption)
OBX_ENUM(TGridDrawStateFlag, gdSelected, gdFocused, gdFixed)
using TGridDrawState = TSet<TGridDrawStateFlag>;

OBX_EVENT(TDrawCellEvent, TObject*, int, int, TRect, TGridDrawState)
OBX_EVENT(TSelectCellEvent, TObject*, int, int, bool&)
OBX_EVENT(TGetEditEvent, TObject*, int, int, std::string&)
OBX_EVENT(TSetEditEvent, TObject*, int, int, const std::string&)
OBX_EVENT(TMovedEvent, TObject*, int, int)

// Columns and rows are counted from 0, the fixed ones included. The program, or
// a descendant, says what is in the cells; they are not edited in place.
class TDrawGrid : public TCustomControl {
    OBX_CLASS(TCustomControl)
public:
    explicit TDrawGrid(TComponent* Owner);

    // The chosen cell.
    int Col() const { return FCol; }
    void SetCol(int Value) { SelectCell(Value, FRow); }
    int Row() const { return FRow; }
    void SetRow(int Value) { SelectCell(FCol, Value); }
    // The first cell in view that is not fixed.
    int LeftCol() const { return FLeftCol; }
    int TopRow() const { return FTopRow; }
    // Pixels.
    int ColWidths(int Index) const;
    void SetColWidths(int Index, int Value);
    int RowHeights(int Index) const;
    void SetRowHeights(int Index, int Value);
    // Client coordinates; empty when the cell is out of view.
    TRect CellRect(int ACol, int ARow) const;
    // False outside the cells.
    bool MouseToCell(int X, int Y, int& ACol, int& ARow) const;

    // Published.
    TBorderStyle BorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle Value);
    int ColCount() const { return FColCount; }
    void SetColCount(int Value);
    int RowCount() const { return FRowCount; }
    void SetRowCount(int Value);
    int FixedCols() const { return FFixedCols; }
    void SetFixedCols(int Value);
    int FixedRows() const { return FFixedRows; }
    void SetFixedRows(int Value);
    // Setting a default forgets the single widths or heights.
    int DefaultColWidth() const { return FDefaultColWidth; }
    void SetDefaultColWidth(int Value);
    int DefaultRowHeight() const { return FDefaultRowHeight; }
    void SetDefaultRowHeight(int Value);
    OBX_PROPERTY(bool, DefaultDrawing, true)
    OBX_PROPERTY(TColor, FixedColor, clBtnFace)
    OBX_PROPERTY(int, GridLineWidth, 1)
    OBX_PROPERTY(TGridOptions, Options,
                 (TGridOptions{goFixedVertLine, goFixedHorzLine, goVertLine, goHorzLine, goRangeSelect}))
public:
    TScrollStyle ScrollBars() const { return FScrollBars; }
    void SetScrollBars(TScrollStyle Value);

    TMovedEvent OnColumnMoved;
    TDrawCellEvent OnDrawCell;
    TGetEditEvent OnGetEditMask;
    TGetEditEvent OnGetEditText;
    TMovedEvent OnRowMoved;
    TSelectCellEvent OnSelectCell;
    TSetEditEvent OnSetEditText;
    TNotifyEvent OnTopLeftChanged;

    void DefineProperties(TFiler& Filer) override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void Dispatch(TMessage& Message) override;
    void KeyDown(uint16_t& Key, TShiftState Shift) override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void Paint() override;
    virtual void DrawCell(int ACol, int ARow, const TRect& Area, TGridDrawState State);
    // Called when columns or rows are taken away.
    virtual void SizeChanged() {}

private:
    void PaintCell(int ACol, int ARow, const TRect& Area);
    void SelectCell(int ACol, int ARow);
    void ScrollIntoView();
    void ShowScrollRange();
    void Scroll(const TMessage& Message, bool Vertical);
    void SetTopLeft(int ACol, int ARow);
    // Where column or row Index begins; -1 when it is scrolled away.
    int ColLeft(int Index) const;
    int RowTop(int Index) const;

    TBorderStyle FBorderStyle = bsSingle;
    int FColCount = 5;
    int FRowCount = 5;
    int FFixedCols = 1;
    int FFixedRows = 1;
    int FDefaultColWidth = 64;
    int FDefaultRowHeight = 24;
    TScrollStyle FScrollBars = ssBoth;
    int FCol = 1;
    int FRow = 1;
    int FLeftCol = 1;
    int FTopRow = 1;
    std::map<int, int> FColWidths; // those that differ from the default
    std::map<int, int> FRowHeights;
};

// A grid that keeps a text for each cell.
class TStringGrid : public TDrawGrid {
    OBX_CLASS(TDrawGrid)
public:
    explicit TStringGrid(TComponent* Owner);

    const std::string& Cells(int ACol, int ARow) const;
    void SetCells(int ACol, int ARow, const std::string& Value);

protected:
    void DrawCell(int ACol, int ARow, const TRect& Area, TGridDrawState State) override;
    void SizeChanged() override;

private:
    std::map<std::pair<int, int>, std::string> FCells; // by row, then column
};
