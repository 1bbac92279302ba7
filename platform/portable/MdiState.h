// What a client window of documents keeps, for the sources that serve it.
#pragma once

#include <string>
#include <vector>

#include "platform/portable/Window.h"

struct TMdiClient : TSystemControlState {
    std::vector<HWND> Documents; // in the order of creation
    HWND Active = nullptr;
    std::string FrameTitle; // of the frame, without a document's
    bool TitleIsShared = false;
    bool ChangesTitle = false; // while it is written from here
    HMENU WindowMenu = nullptr;
    UINT FirstId = 0; // command of the first document in the window menu
    UINT Created = 0;
};

// The state of a client window; null when the window is none.
TMdiClient* MdiClientOf(HWND Client);

// The document windows that exist, in the order of creation.
std::vector<HWND> DocumentsOf(HWND Client);

HWND ActiveDocument(HWND Client);

// Takes the list of documents out of the window menu, or writes it anew: a
// separator and up to nine lines "&1 Title", the active one checked.
void ClearWindowList(HWND Client);
void RefreshWindowList(HWND Client);

// While the active document is maximized the frame's title names it too:
// "Frame - [Document]".
void ShowDocumentInTitle(HWND Client);

void RegisterMdiClass();
