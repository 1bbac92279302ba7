// Where windows come from and where they end.
#pragma once

#include <functional>
#include <memory>

#include "platform/portable/Window.h"

// Puts a new window into the table and gives it its handle; null when full.
TWindow* AddWindow(std::unique_ptr<TWindow> Window);

// Takes the window out of the table and the tree and frees it. Sends nothing.
void RemoveWindow(HWND Window);

// The same for all windows of a thread that ends.
void RemoveWindowsOf(const TThread& Thread);

// The parent of windows that only receive messages (HWND_MESSAGE).
TWindow& MessageRoot();

// Visits all windows. The visitor may change no window's existence.
void ForEachWindow(const std::function<void(TWindow&)>& Visit);

// Handles of the children, topmost first.
std::vector<HWND> ChildrenOf(const TWindow& Window);

// Moves a window among its siblings: to the front, the back, or right behind
// After. Children of the desktop keep topmost windows above the others.
enum class TPlace { Front, Back, Behind };
void PlaceWindow(TWindow& Window, TPlace Place, HWND After = nullptr);

// Links a window below another parent, in front of its siblings or behind.
void LinkWindow(TWindow& Window, TWindow& Parent, TPlace Place);
