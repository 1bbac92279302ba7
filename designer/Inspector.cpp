#include "designer/Inspector.h"

#include <algorithm>

#include "framework/rtl/SysUtils.h"

namespace {

constexpr int RowHeight = 18;
constexpr int StepIn = 12;
constexpr int EllipsisWidth = 18;

} // namespace

TInspector::TInspector(TComponent* Owner)
    : TDrawGrid(Owner), FEdit(new TEdit(this)), FList(new TComboBox(this)), FEllipsis(new TButton(this))
{
    SetOptions({goVertLine, goHorzLine});
    SetScrollBars(ssVertical);
    SetDefaultRowHeight(RowHeight);
    SetFixedRows(0);
    SetFixedCols(0);
    SetColCount(2);
    SetRowCount(1);
    SetDefaultDrawing(false);
    SetColor(clBtnFace);
    OnSelectCell = {this, &TInspector::CellSelected};
    OnTopLeftChanged = {this, &TInspector::Scrolled};
    FEllipsis->SetCaption("...");
    FEllipsis->OnClick = {this, &TInspector::EllipsisClick};
    FEdit->SetBorderStyle(bsNone);
    FEdit->OnKeyDown = {this, &TInspector::EditKeyDown};
    FEdit->OnExit = {this, &TInspector::EditExit};
    FEdit->OnDblClick = {this, &TInspector::EditDblClick};
    FEdit->OnMouseDown = {this, &TInspector::EditMouseDown};
    FList->OnKeyDown = {this, &TInspector::EditKeyDown};
    FList->OnExit = {this, &TInspector::EditExit};
    FList->OnSelect = {this, &TInspector::ListSelect};
    for (TWinControl* const Each : {static_cast<TWinControl*>(FEdit), static_cast<TWinControl*>(FList),
                                    static_cast<TWinControl*>(FEllipsis)}) {
        Each->SetVisible(false);
        Each->SetParent(this);
    }
}

TInspector::~TInspector() = default;

void TInspector::SetModel(TFormModel* Model)
{
    FModel = Model;
    Refresh();
}

void TInspector::SetEvents(bool Value)
{
    Commit();
    FEvents = Value;
    Refresh();
}

void TInspector::CreateWnd()
{
    TDrawGrid::CreateWnd();
    PlaceEditors();
}

void TInspector::Refresh()
{
    if (FBusy)
        FStale = true;
    else
        Rebuild();
}

void TInspector::Rebuild()
{
    FStale = false;
    const std::string Present = Row() < Rows() ? FRows[static_cast<size_t>(Row())].Path : "";
    FRows.clear();
    FOwned.clear();
    if (FModel) {
        std::vector<TPersistent*> Objects(FModel->Selection().begin(), FModel->Selection().end());
        FOwned.push_back(GetPropertyEditors(*FModel, Objects, FEvents));
        AddRows(FOwned.back(), "", 0);
    }
    FShowing = true;
    SetRowCount(std::max(Rows(), 1));
    const int Same = RowOf(Present);
    SetRow(std::max(Same, 0));
    FShowing = false;
    Invalidate();
    ShowRow();
}

void TInspector::AddRows(const TPropertyEditors& Editors, const std::string& Prefix, int Level)
{
    std::vector<TPropertyEditor*> Sorted;
    for (const auto& Each : Editors)
        Sorted.push_back(Each.get());
    std::ranges::stable_sort(Sorted, [](const TPropertyEditor* One, const TPropertyEditor* Other) {
        return CompareText(One->GetName(), Other->GetName()) < 0;
    });
    for (TPropertyEditor* const Each : Sorted) {
        const std::string Path = Prefix + Each->GetName();
        FRows.push_back({Each, Path, Level});
        if (!FExpanded.contains(Path) || !Each->GetAttributes().Contains(paSubProperties))
            continue;
        FOwned.push_back(Each->GetProperties());
        AddRows(FOwned.back(), Path + ".", Level + 1);
    }
}

int TInspector::RowOf(const std::string& Path) const
{
    const auto Found = std::ranges::find(FRows, Path, &TRow::Path);
    return Found == FRows.end() ? -1 : static_cast<int>(Found - FRows.begin());
}

std::string TInspector::NameAt(int Row) const
{
    return FRows[static_cast<size_t>(Row)].Editor->GetName();
}

// Nothing where the selected components differ.
std::string TInspector::ValueAt(int Row) const
{
    const TPropertyEditor& Editor = *FRows[static_cast<size_t>(Row)].Editor;
    return Editor.AllEqual() ? Editor.GetValue() : "";
}

bool TInspector::IsExpandable(const TRow& Row) const
{
    return Row.Editor->GetAttributes().Contains(paSubProperties);
}

bool TInspector::IsReadOnly(const TRow& Row) const
{
    return Row.Editor->GetAttributes().Contains(paReadOnly);
}

void TInspector::Expand(int Row)
{
    const std::string Path = FRows[static_cast<size_t>(Row)].Path;
    if (!IsExpandable(FRows[static_cast<size_t>(Row)]))
        return;
    if (FExpanded.erase(Path) == 0)
        FExpanded.insert(Path);
    Refresh();
}

void TInspector::Guard(const std::function<void()>& Act)
{
    if (FBusy)
        return;
    FBusy = true;
    try {
        Act();
    } catch (const EAbort&) {
    } catch (const Exception& Error) {
        if (OnError)
            OnError(Error.Message());
    }
    FBusy = false;
    if (FStale)
        Rebuild();
    else
        ShowRow();
}

void TInspector::Enter(int Row, const std::string& Value)
{
    if (Row < 0 || Row >= Rows() || Value == ValueAt(Row))
        return;
    Guard([&] { FRows[static_cast<size_t>(Row)].Editor->SetValue(Value); });
}

void TInspector::Press(int Row)
{
    if (Row >= 0 && Row < Rows())
        Guard([&] { FRows[static_cast<size_t>(Row)].Editor->Edit(); });
}

// What stands in the edit, if somebody changed it.
void TInspector::Commit()
{
    if (FBusy || FShowing || FShownRow < 0 || FShownRow >= Rows())
        return;
    if (FEdit->Visible() && !IsReadOnly(FRows[static_cast<size_t>(FShownRow)]))
        Enter(FShownRow, FEdit->Text());
    else if (FList->Visible())
        Enter(FShownRow, FList->Text());
}

// The controls for the value of the row that is chosen.
void TInspector::ShowRow()
{
    if (FShowing)
        return;
    FShowing = true;
    const bool HasRow = FModel && Row() < Rows();
    FShownRow = HasRow ? Row() : -1;
    const TPropertyAttributes Attributes =
        HasRow ? FRows[static_cast<size_t>(Row())].Editor->GetAttributes() : TPropertyAttributes{};
    const bool IsList = Attributes.Contains(paValueList);
    FList->SetVisible(HasRow && IsList);
    FEdit->SetVisible(HasRow && !IsList);
    FEllipsis->SetVisible(HasRow && Attributes.Contains(paDialog));
    if (HasRow && IsList) {
        std::vector<std::string> Values;
        FRows[static_cast<size_t>(Row())].Editor->GetValues(
            [&](const std::string& Each) { Values.push_back(Each); });
        if (Attributes.Contains(paSortList))
            std::ranges::sort(Values);
        ShowChoices(Values);
        FList->SetText(ValueAt(Row()));
    } else if (HasRow) {
        FEdit->SetText(ValueAt(Row()));
        FEdit->SetReadOnly(Attributes.Contains(paReadOnly));
        FEdit->Font()->SetColor(Attributes.Contains(paReadOnly) ? clGrayText : clWindowText);
    }
    PlaceEditors();
    FShowing = false;
}

// Only when they differ: a list that is emptied while the user chooses from it has
// nothing to show as chosen.
void TInspector::ShowChoices(const std::vector<std::string>& Values)
{
    TStringList Lines;
    for (const std::string& Each : Values)
        Lines.Add(Each);
    if (!FList->Items()->Equals(Lines))
        FList->Items()->Assign(&Lines);
}

void TInspector::PlaceEditors()
{
    const int Names = std::max(ClientWidth() * 45 / 100, 40);
    SetColWidths(0, Names);
    SetColWidths(1, std::max(ClientWidth() - Names - 2, 20));
    const TRect Cell = CellRect(1, Row());
    const int Wide = RectWidth(Cell) - (FEllipsis->Visible() ? EllipsisWidth : 0);
    FEdit->SetBounds(Cell.left + 2, Cell.top + 2, Wide - 2, RectHeight(Cell) - 2);
    FList->SetBounds(Cell.left, Cell.top - 1, Wide, RectHeight(Cell));
    FEllipsis->SetBounds(Cell.left + Wide, Cell.top, EllipsisWidth, RectHeight(Cell));
}

void TInspector::DrawCell(int ACol, int ARow, const TRect& Area, TGridDrawState)
{
    TCanvas& Paper = *Canvas();
    const bool IsChosen = ARow == Row();
    Paper.Brush()->SetColor(ACol == 0 ? clBtnFace : clWindow);
    Paper.FillRect(Area);
    if (ARow >= Rows())
        return;
    const TRow& Each = FRows[static_cast<size_t>(ARow)];
    if (ACol == 1) {
        Paper.Font()->SetColor(IsReadOnly(Each) ? clGrayText : clWindowText);
        Paper.TextRect(Area, static_cast<int>(Area.left) + 3, static_cast<int>(Area.top) + 2, ValueAt(ARow));
        return;
    }
    const int Left = static_cast<int>(Area.left) + 3 + Each.Level * StepIn;
    Paper.Font()->SetColor(IsChosen ? clHighlight : clBtnText);
    if (IsExpandable(Each))
        Paper.TextRect(Area, Left, static_cast<int>(Area.top) + 2, FExpanded.contains(Each.Path) ? "-" : "+");
    Paper.TextRect(Area, Left + StepIn, static_cast<int>(Area.top) + 2, Each.Editor->GetName());
}

void TInspector::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    int Column = 0, Line = 0;
    const bool OnSign =
        MouseToCell(X, Y, Column, Line) && Column == 0 && Line < Rows() &&
        (Shift.Contains(ssDouble) || X < (FRows[static_cast<size_t>(Line)].Level + 1) * StepIn + 3);
    TDrawGrid::MouseDown(Button, Shift, X, Y);
    FClickTime = static_cast<LONG>(GetMessageTime());
    if (OnSign)
        Expand(Line);
    else
        MoveTo(Row());
}

void TInspector::KeyDown(uint16_t& Key, TShiftState Shift)
{
    TDrawGrid::KeyDown(Key, Shift);
    ShowRow();
}

void TInspector::Dispatch(TMessage& Message)
{
    TDrawGrid::Dispatch(Message);
    if (Message.Msg == WM_SIZE)
        PlaceEditors();
}

// The row that is left takes its value first.
void TInspector::CellSelected(TObject*, int, int ARow, bool& CanSelect)
{
    CanSelect = ARow < Rows();
    if (FShowing || !CanSelect)
        return;
    Commit();
    CanSelect = ARow < Rows();
}

void TInspector::Scrolled(TObject*)
{
    PlaceEditors();
}

void TInspector::MoveTo(int Row)
{
    Commit();
    if (Row < 0 || Row >= Rows())
        return;
    FShowing = true;
    SetRow(Row);
    FShowing = false;
    ShowRow();
    if (FEdit->Visible() && FEdit->CanFocus()) {
        FEdit->SetFocus();
        FEdit->SelectAll();
    } else if (FList->Visible() && FList->CanFocus()) {
        FList->SetFocus();
    }
}

void TInspector::EditKeyDown(TObject* Sender, uint16_t& Key, TShiftState)
{
    switch (Key) {
    case VK_RETURN:
        Commit();
        break;
    case VK_ESCAPE:
        ShowRow();
        break;
    case VK_UP:
    case VK_DOWN:
        if (Sender == FList)
            return;
        MoveTo(Row() + (Key == VK_UP ? -1 : 1));
        break;
    default:
        return;
    }
    Key = 0;
}

void TInspector::EditExit(TObject*)
{
    Commit();
}

void TInspector::EditDblClick(TObject*)
{
    Press(Row());
}

// The first click of a double click on a value was the grid's.
void TInspector::EditMouseDown(TObject*, TMouseButton Button, TShiftState, int, int)
{
    const LONG Since = static_cast<LONG>(GetMessageTime()) - FClickTime;
    FClickTime = 0;
    if (Button == mbLeft && Since < static_cast<LONG>(GetDoubleClickTime()))
        Press(Row());
}

void TInspector::ListSelect(TObject*)
{
    if (!FShowing)
        Enter(Row(), FList->Items()->Get(FList->ItemIndex()));
}

void TInspector::EllipsisClick(TObject*)
{
    Press(Row());
}
