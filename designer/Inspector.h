// The list of published properties, or of events, of what is selected: a row for each,
// with its value to be edited in place.
#pragma once

#include <functional>
#include <list>
#include <set>

#include "designer/FormModel.h"
#include "framework/design/PropertyEditor.h"
#include "framework/forms/ComboBoxes.h"
#include "framework/forms/Grids.h"
#include "framework/forms/PushButtons.h"

// Enter, or leaving the row, takes a value; Esc puts the present one back, as does a
// value that is refused, after OnError was told. A double click on a name opens and
// closes its parts ("+"); on a value it calls the property editor's Edit, as does the
// ellipsis.
class TInspector : public TDrawGrid {
public:
    explicit TInspector(TComponent* Owner);
    ~TInspector() override;

    // Null shows nothing.
    void SetModel(TFormModel* Model);
    bool Events() const { return FEvents; }
    void SetEvents(bool Value);
    // Takes the value that is being typed.
    void Commit();
    // Shows what is selected with its present values.
    void Refresh();

    // The row of a property that is shown, parts as "Font.Name"; -1 for none.
    int RowOf(const std::string& Path) const;
    int Rows() const { return static_cast<int>(FRows.size()); }
    std::string NameAt(int Row) const;
    std::string ValueAt(int Row) const;
    void Expand(int Row);
    // What the user does in a row.
    void Enter(int Row, const std::string& Value);
    void Press(int Row);

    TEdit* Editor() const { return FEdit; }
    TComboBox* List() const { return FList; }
    TButton* Ellipsis() const { return FEllipsis; }

    std::function<void(const std::string& Message)> OnError;

protected:
    void CreateWnd() override;
    void DrawCell(int ACol, int ARow, const TRect& Area, TGridDrawState State) override;
    void KeyDown(uint16_t& Key, TShiftState Shift) override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void Dispatch(TMessage& Message) override;

private:
    struct TRow {
        TPropertyEditor* Editor;
        std::string Path;
        int Level;
    };

    void Rebuild();
    void AddRows(const TPropertyEditors& Editors, const std::string& Prefix, int Level);
    bool IsExpandable(const TRow& Row) const;
    bool IsReadOnly(const TRow& Row) const;
    void ShowRow();
    void ShowChoices(const std::vector<std::string>& Values);
    void PlaceEditors();
    // Runs what may change everything, and shows the outcome.
    void Guard(const std::function<void()>& Act);
    void MoveTo(int Row);
    void EditKeyDown(TObject* Sender, uint16_t& Key, TShiftState Shift);
    void EditExit(TObject* Sender);
    void EditDblClick(TObject* Sender);
    void EditMouseDown(TObject* Sender, TMouseButton Button, TShiftState Shift, int X, int Y);
    void ListSelect(TObject* Sender);
    void EllipsisClick(TObject* Sender);
    void CellSelected(TObject* Sender, int ACol, int ARow, bool& CanSelect);
    void Scrolled(TObject* Sender);

    TFormModel* FModel = nullptr;
    bool FEvents = false;
    std::list<TPropertyEditors> FOwned; // its items stay where they are
    std::vector<TRow> FRows;
    std::set<std::string> FExpanded; // paths
    TEdit* FEdit;
    TComboBox* FList;
    TButton* FEllipsis;
    int FShownRow = -1;  // the one whose value they hold: the grid's may be another already
    LONG FClickTime = 0; // of the last click on the grid
    bool FBusy = false;
    bool FStale = false;
    bool FShowing = false;
};
