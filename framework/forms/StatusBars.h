// The bar of panels at the bottom of a form.
#pragma once

#include "framework/forms/CommonControls.h"
#include "framework/forms/CustomControl.h"
#include "framework/rtl/Collection.h"

class TCustomStatusBar;
class TStatusPanel;

OBX_ENUM(TStatusPanelStyle, psText, psOwnerDraw)
OBX_ENUM(TStatusPanelBevel, pbNone, pbLowered, pbRaised)

OBX_EVENT(TDrawPanelEvent, TObject*, TStatusPanel*, const TRect&)

class TStatusPanel : public TCollectionItem {
    OBX_CLASS(TCollectionItem)
public:
    using TCollectionItem::TCollectionItem;

    std::string DisplayName() const override { return FText.empty() ? ClassName() : FText; }

    // Published.
    OBX_PROPERTY(TAlignment, Alignment, taLeftJustify)
    OBX_PROPERTY(TStatusPanelBevel, Bevel, pbLowered)
    OBX_PROPERTY(TBiDiMode, BiDiMode, bdLeftToRight)
    OBX_PROPERTY(bool, ParentBiDiMode, true)
    OBX_PROPERTY(TStatusPanelStyle, Style, psText)
    OBX_PROPERTY(std::string, Text, {})
    // Pixels; the last panel takes what is left.
    OBX_PROPERTY(int, Width, 50)
public:
    bool IsBiDiModeStored() const { return !FParentBiDiMode; }
};

class TStatusPanels : public TCollection {
    OBX_CLASS(TCollection)
public:
    explicit TStatusPanels(TCustomStatusBar* StatusBar);
    TStatusPanel* Items(int Index) const { return static_cast<TStatusPanel*>(TCollection::Items(Index)); }
    TStatusPanel* Add() { return static_cast<TStatusPanel*>(TCollection::Add()); }

protected:
    void Update(TCollectionItem* Item) override;

private:
    TCustomStatusBar* FStatusBar;
};

class TCustomStatusBar : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TCustomStatusBar(TComponent* Owner);
    ~TCustomStatusBar() override;

    TCanvas* Canvas() { return FCanvas.get(); }

    // Published by status bars.
    OBX_PROPERTY(bool, AutoHint, false)
public:
    TStatusPanels* Panels() const { return const_cast<TStatusPanels*>(&FPanels); }
    void SetPanels(TStatusPanels* Value) { FPanels.Assign(Value); }
    // SimpleText instead of the panels.
    bool SimplePanel() const { return FSimplePanel; }
    void SetSimplePanel(bool Value);
    const std::string& SimpleText() const { return FSimpleText; }
    void SetSimpleText(const std::string& Value);
    bool SizeGrip() const { return FSizeGrip; }
    void SetSizeGrip(bool Value);
    bool UseSystemFont() const { return FUseSystemFont; }
    void SetUseSystemFont(bool Value) { FUseSystemFont = Value; }
    TNotifyEvent OnHint;
    TDrawPanelEvent OnDrawPanel;

protected:
    friend class TStatusPanels;
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void Dispatch(TMessage& Message) override;
    virtual void DrawPanel(TStatusPanel* Panel, const TRect& Rect);

private:
    void UpdatePanels();
    void UpdatePanel(int Index);
    void ShowText(const std::string& Text, int Part, TAlignment Alignment, TStatusPanelBevel Bevel,
                  bool OwnerDraw);
    void ShowSimpleText();

    TStatusPanels FPanels;
    std::unique_ptr<TControlCanvas> FCanvas;
    std::string FSimpleText;
    bool FSimplePanel = false;
    bool FSizeGrip = true;
    bool FUseSystemFont = true;
};

class TStatusBar : public TCustomStatusBar {
    OBX_CLASS(TCustomStatusBar)
public:
    using TCustomStatusBar::TCustomStatusBar;
};

void RegisterStatusBarClasses();
