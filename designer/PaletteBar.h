// The palette: a tab for each page, and a button for each class that can be placed.
#pragma once

#include <functional>
#include <vector>

#include "framework/forms/GlyphButtons.h"
#include "framework/forms/PageControls.h"
#include "framework/forms/Panels.h"

// Fills a tab control, and the panel inside it, with what packages registered. The
// buttons stand in as many rows as the width asks for, on all pages alike.
class TPaletteBar : public TObject {
public:
    TPaletteBar(TTabControl& Tabs, TPanel& Panel);

    // After packages came or went.
    void Rebuild();
    // Presses the arrow: nothing is to be placed.
    void Release();

    // The class that the user chose to place; null for the arrow.
    std::function<void(const TMetaClass*)> OnChoose;

private:
    struct TChoice {
        TSpeedButton* Control;
        const TMetaClass* Class;
    };

    void ShowPage();
    void AddButton(const TMetaClass* Class);
    void Arrange();
    int RowsOf(const std::vector<const TMetaClass*>& Classes) const;
    int WidthOf(const TMetaClass* Class) const;
    void TabChange(TObject* Sender);
    void PanelResize(TObject* Sender);
    void ButtonClick(TObject* Sender);

    TTabControl& FTabs;
    TPanel& FPanel;
    std::vector<TChoice> FButtons; // the first is the arrow
};
