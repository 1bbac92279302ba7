// Find-as-you-type for a list box: characters typed quickly one after the other go
// to the next item that begins with them, else to one that contains them; letter
// case is ignored.
#pragma once

#include <string>

#include "framework/forms/ListBoxes.h"
#include "framework/rtl/Persistent.h"

class TListSearch : public TObject {
    OBX_CLASS(TObject)
public:
    // Takes over the list's OnKeyPress; the list must live at least as long.
    explicit TListSearch(TListBox& List);

private:
    void KeyPress(TObject* Sender, char& Key);
    void Choose(int Index);
    int Find(const std::string& Text, int Start) const;

    TListBox& FList;
    std::string FTyped;
    DWORD FLastKey = 0;
};
