// The small windows that a designed form carries: handles around what is selected, and
// icons for components that are not seen.
#pragma once

#include <memory>
#include <vector>

#include "framework/forms/CustomControl.h"

// The places of handles, clockwise from the top left corner.
enum class THandlePlace { TopLeft, Top, TopRight, Right, BottomRight, Bottom, BottomLeft, Left };

// How a handle that is dragged changes the edges of its component.
struct THandleEffect {
    bool Left, Top, Right, Bottom;
};
THandleEffect EffectOf(THandlePlace Place);

// Above its siblings in a window that is not its own parent control: the form does not
// know it.
class TMark : public TCustomControl {
public:
    TMark(HWND Window, TComponent& Component);

    TComponent& Component() const { return FComponent; }
    void ShowAt(const TRect& Place);

private:
    TComponent& FComponent;
};

class THandleMark : public TMark {
public:
    static constexpr int Size = 7;

    // Fixed handles only show that the component is selected.
    THandleMark(HWND Window, TComponent& Component, THandlePlace Place, bool IsFixed);

    THandlePlace Place() const { return FPlace; }
    bool IsFixed() const { return FIsFixed; }
    // Beside the edge of a component that stands at Box.
    void ShowAround(const TRect& Box);

protected:
    void Paint() override;

private:
    THandlePlace FPlace;
    bool FIsFixed;
};

class TIconMark : public TMark {
public:
    TIconMark(HWND Window, TComponent& Component);

    bool IsSelected() const { return FIsSelected; }
    void SetSelected(bool Value);
    // At the component's DesignLeft and DesignTop, its name below.
    void ShowAtDesignPlace();

protected:
    void Paint() override;

private:
    bool FIsSelected = false;
};

// The frame that is drawn around components to select them all. Points are on the screen.
class TLasso {
public:
    TLasso(HWND Window, TComponent& Form, const TPoint& Start);

    void To(const TPoint& Point);
    // In the window's client area; empty before the first To.
    const TRect& Box() const { return FBox; }

private:
    HWND FWindow;
    TPoint FStart;
    TRect FBox{};
    std::vector<std::unique_ptr<TMark>> FSides;
};
