// A form in design mode: shows it in a window and turns what the user does there into
// changes of its model.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "designer/FormModel.h"
#include "designer/SurfaceDrag.h"
#include "framework/forms/Forms.h"

// A form is shown in its own window, a frame or data module in one made for it. The
// controls themselves get neither mouse nor keys: the program hands all messages to
// HandleMessage first.
//
//     click              selects; with Shift adds or removes; places a component
//     drag               moves, in steps of the grid; at a handle sizes; on the form selects
//                        what is inside the frame
//     double click       the component editor
//     right button       OnContextMenu
//     Ctrl, Shift+arrow  moves and sizes by a pixel
//     Delete, Tab, Esc   deletes; selects the next component; gives up a drag, or selects
//                        the container
class TDesignSurface : public TObject {
public:
    explicit TDesignSurface(TFormModel& Model);
    ~TDesignSurface() override;

    // At a place on the screen where the window is not over the designer's own.
    void Show(const TPoint& Place);
    // Again, where the window was.
    void ShowAgain() { Show(FPlace); }
    // The window goes; the model's controls stay.
    void Hide();
    bool IsShown() const { return WindowHandle() != nullptr; }
    // Brings marks to where the components are now.
    void Refresh();
    HWND WindowHandle() const;

    // True when the message was meant for a window of the form and must go no further.
    bool HandleMessage(const MSG& Message);

    // The class to place with the next click; null for none. OnPlaced tells that it is
    // none again.
    const TMetaClass* Placing = nullptr;
    std::function<void()> OnPlaced;
    std::function<void(const TPoint& ScreenPoint)> OnContextMenu;
    // The user wants the form closed; the message at hand must be done with first.
    std::function<void()> OnClose;
    // Keys that mean nothing here, such as the short cuts of a menu.
    std::function<void(const MSG&)> OnKey;

private:
    bool IsOurs(HWND Window) const;
    bool MouseMessage(const MSG& Message);
    void ButtonDown(const MSG& Message);
    void BeginMoving(const TPoint& ScreenPoint);
    void DragTo(const TPoint& ScreenPoint);
    void EndDrag();
    void EndLasso();
    void CancelDrag();
    void PlaceAt(TComponent& Target, const TPoint& ScreenPoint);
    void GiveUpPlacing();
    void EditComponent();
    void KeyDown(const MSG& Message);
    bool ArrowKey(WPARAM Key);
    void SelectNext(int Step);
    TComponent* HitComponent(const MSG& Message) const;
    TMark* HitMark(HWND Window) const;
    static bool IsTabClick(TComponent* Component, const TPoint& ScreenPoint);
    void ShowIcons();
    void ShowHandles();
    void PaintGrid(TObject* Sender);
    void CloseQuery(TObject* Sender, bool& CanClose);
    TForm* MakeHost();
    TWinControl* Area() const;

    TFormModel& FModel;
    std::unique_ptr<TForm> FHost; // of frames and data modules
    std::vector<std::unique_ptr<TIconMark>> FIcons;
    std::vector<std::unique_ptr<THandleMark>> FHandles;
    TSurfaceDrag FDrag;
    std::unique_ptr<TLasso> FLasso;
    TPoint FPlace{}; // of the window
};
