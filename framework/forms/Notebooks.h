// Containers that show one of several pages, and the tabs to choose it by.
#pragma once

#include "framework/forms/CustomControl.h"
#include "framework/forms/ItemStrings.h"

OBX_EVENT(TPageChangeEvent, TObject*, int, bool&)

// A page of a notebook. Form files nest it in its notebook; its caption is its
// line in the notebook's list of pages.
class TPage : public TCustomControl {
    OBX_CLASS(TCustomControl)
public:
    explicit TPage(TComponent* Owner);

protected:
    void Paint() override;
};

// Pages without tabs: the program chooses the page.
class TNotebook : public TCustomControl {
    OBX_CLASS(TCustomControl)
public:
    explicit TNotebook(TComponent* Owner);
    ~TNotebook() override;

    // Published. The captions; a line added here makes a page.
    TStrings* Pages() const;
    void SetPages(TStrings* Value) { Pages()->Assign(Value); }
    int PageIndex() const { return FPageIndex; }
    void SetPageIndex(int Value);
    std::string ActivePage() const;
    // Letter case ignored; EStringListError when there is no such page.
    void SetActivePage(const std::string& Value);
    TWinControl* Page(int Index) const { return FPages[static_cast<size_t>(Index)]; }

    TNotifyEvent OnPageChanged;

    void GetChildren(const std::function<void(TComponent*)>& Visit, TComponent* Root) override;
    void Notification(TComponent* Component, TOperation Operation) override;
    void Loaded() override;

protected:
    class TPageList;

    void Dispatch(TMessage& Message) override;
    virtual TWinControl* NewPage() { return new TPage(this); }
    virtual void PagesChanged() {}
    void ShowPage();

private:
    friend class TPageList;

    std::unique_ptr<TPageList> FList;
    std::vector<TWinControl*> FPages;
    int FPageIndex = 0;
};

class TTabPage : public TPage {
    OBX_CLASS(TPage)
public:
    using TPage::TPage;
};

// A notebook with a row of tabs above its pages.
class TTabbedNotebook : public TNotebook {
    OBX_CLASS(TNotebook)
public:
    explicit TTabbedNotebook(TComponent* Owner);

    TFont* TabFont() const { return FTabFont.get(); }
    void SetTabFont(TFont* Value) { FTabFont->Assign(Value); }
    OBX_PROPERTY(int, TabsPerRow, 3)

public:
    TPageChangeEvent OnChange;

protected:
    void AdjustClientRect(TRect& Rect) const override;
    void Paint() override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    TWinControl* NewPage() override { return new TTabPage(this); }
    void PagesChanged() override { Invalidate(); }

private:
    int TabHeight() const;
    TRect TabRect(int Index) const;

    std::unique_ptr<TFont> FTabFont;
};

OBX_ENUM(TTabStyle, tsStandard, tsOwnerDraw)
OBX_EVENT(TTabChangeEvent, TObject*, int, bool&)

// A row of tabs at the bottom of what it belongs to.
class TTabSet : public TCustomControl, public TItemsClient {
    OBX_CLASS(TCustomControl)
public:
    explicit TTabSet(TComponent* Owner);
    ~TTabSet() override;

    // Published.
    OBX_PROPERTY(bool, AutoScroll, true)
    OBX_PROPERTY(TColor, BackgroundColor, clBtnFace)
    OBX_PROPERTY(bool, DitherBackground, true)
    OBX_PROPERTY(int, EndMargin, 5)
    OBX_PROPERTY(TColor, SelectedColor, clBtnFace)
    OBX_PROPERTY(int, StartMargin, 5)
    OBX_PROPERTY(TTabStyle, Style, tsStandard)
    OBX_PROPERTY(int, TabHeight, 20)
    OBX_PROPERTY(TColor, UnselectedColor, clWindow)
public:
    // The chosen tab; -1 for none. A change clicks, whoever makes it.
    int TabIndex() const { return FTabIndex; }
    void SetTabIndex(int Value);
    TStrings* Tabs() const { return FTabs.get(); }
    void SetTabs(TStrings* Value) { FTabs->Assign(Value); }

    TTabChangeEvent OnChange;

    void Loaded() override;

protected:
    void Paint() override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;

    void ItemInserted(int Index) override;
    void ItemDeleted(int Index) override;
    void ItemChanged(int) override { Invalidate(); }
    void ItemsReordered() override { Invalidate(); }

private:
    TRect TabRect(int Index) const;

    std::unique_ptr<TItemStrings> FTabs;
    int FTabIndex = -1;
};

OBX_EVENT(TSectionEvent, TObject*, int, int)

// A row of headings whose widths the user drags.
class THeader : public TCustomControl, public TItemsClient {
    OBX_CLASS(TCustomControl)
public:
    explicit THeader(TComponent* Owner);
    ~THeader() override;

    // Published.
    OBX_PROPERTY(bool, AllowResize, true)
    OBX_PROPERTY(TBorderStyle, BorderStyle, bsSingle)
public:
    TStrings* Sections() const { return FSections.get(); }
    void SetSections(TStrings* Value) { FSections->Assign(Value); }
    // Pixels.
    int SectionWidth(int Index) const { return FWidths[static_cast<size_t>(Index)]; }
    void SetSectionWidth(int Index, int Value);

    TSectionEvent OnSized;
    TSectionEvent OnSizing;

protected:
    void Paint() override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void MouseMove(TShiftState Shift, int X, int Y) override;
    void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y) override;

    void ItemInserted(int Index) override;
    void ItemDeleted(int Index) override;
    void ItemChanged(int) override { Invalidate(); }
    void ItemsReordered() override { Invalidate(); }

private:
    int SectionEndingAt(int X) const;

    std::unique_ptr<TItemStrings> FSections;
    std::vector<int> FWidths;
    int FDragged = -1;
};
