// Tabs: a row of them alone, and pages that they switch between.
#pragma once

#include "framework/forms/CommonControls.h"
#include "framework/forms/CustomControl.h"
#include "framework/rtl/Strings.h"

class TPageControl;
class TTabSheet;

OBX_ENUM(TTabPosition, tpTop, tpBottom, tpLeft, tpRight)
// Published as "TTabStyle".
enum TTabControlStyle : int { tsTabs, tsButtons, tsFlatButtons };
inline const TTypeInfo& TypeInfoFor(TTypeTag<TTabControlStyle>)
{
    static const TTypeInfo Info = TTypeInfo::Enumeration("TTabStyle", "tsTabs, tsButtons, tsFlatButtons");
    return Info;
}

OBX_EVENT(TTabChangingEvent, TObject*, bool&)
OBX_EVENT(TDrawTabEvent, TObject*, int, const TRect&, bool)
OBX_EVENT(TTabGetImageEvent, TObject*, int, int&)

// The texts, the chosen tab and the pictures are kept without a window too.
class TCustomTabControl : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TCustomTabControl(TComponent* Owner);
    ~TCustomTabControl() override;

    TCanvas* Canvas() { return FCanvas.get(); }
    // Where the tabs leave room.
    TRect DisplayRect() const;

    // Published by those that want it. The chosen tab; -1 for none.
    virtual int TabIndex() const { return FTabIndex; }
    virtual void SetTabIndex(int Value);
    TStrings* Tabs() const;
    void SetTabs(TStrings* Value) { Tabs()->Assign(Value); }
    bool HotTrack() const { return FHotTrack; }
    void SetHotTrack(bool Value) { SetStyleFlag(FHotTrack, Value); }
    TCustomImageList* Images() const { return FImages; }
    void SetImages(TCustomImageList* Value);
    bool MultiLine() const { return FMultiLine; }
    void SetMultiLine(bool Value) { SetStyleFlag(FMultiLine, Value); }
    bool MultiSelect() const { return FMultiSelect; }
    void SetMultiSelect(bool Value) { SetStyleFlag(FMultiSelect, Value); }
    bool OwnerDraw() const { return FOwnerDraw; }
    void SetOwnerDraw(bool Value) { SetStyleFlag(FOwnerDraw, Value); }
    bool RaggedRight() const { return FRaggedRight; }
    void SetRaggedRight(bool Value) { SetStyleFlag(FRaggedRight, Value); }
    bool ScrollOpposite() const { return FScrollOpposite; }
    void SetScrollOpposite(bool Value) { SetStyleFlag(FScrollOpposite, Value); }
    TTabControlStyle Style() const { return FStyle; }
    void SetStyle(TTabControlStyle Value);
    // Pixels; 0 for as much as the texts need.
    int16_t TabHeight() const { return FTabHeight; }
    void SetTabHeight(int16_t Value);
    TTabPosition TabPosition() const { return FTabPosition; }
    void SetTabPosition(TTabPosition Value);
    int16_t TabWidth() const { return FTabWidth; }
    void SetTabWidth(int16_t Value);

    TNotifyEvent OnChange;
    TTabChangingEvent OnChanging;
    TDrawTabEvent OnDrawTab;
    TTabGetImageEvent OnGetImageIndex;

    void Notification(TComponent* Component, TOperation Operation) override;

protected:
    class TTabStrings;

    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void Dispatch(TMessage& Message) override;
    void AdjustClientRect(TRect& Rect) const override;
    virtual bool CanChange();
    virtual void Change();
    virtual void DrawTab(int Index, const TRect& Rect, bool Active);
    virtual int GetImageIndex(int Index);
    // The window was told of another tab by the user.
    virtual void TabSelected(int Index);
    void UpdateTab(int Index);
    void RebuildTabs();
    void ShowTabIndex();

    std::unique_ptr<TTabStrings> FTabs;
    int FTabIndex = -1;

private:
    void SetStyleFlag(bool& Flag, bool Value);
    void UpdateTabSize();

    std::unique_ptr<TControlCanvas> FCanvas;
    TCustomImageList* FImages = nullptr;
    bool FHotTrack = false;
    bool FMultiLine = false;
    bool FMultiSelect = false;
    bool FOwnerDraw = false;
    bool FRaggedRight = false;
    bool FScrollOpposite = false;
    TTabControlStyle FStyle = tsTabs;
    int16_t FTabHeight = 0;
    int16_t FTabWidth = 0;
    TTabPosition FTabPosition = tpTop;
};

class TTabControl : public TCustomTabControl {
    OBX_CLASS(TCustomTabControl)
public:
    using TCustomTabControl::TCustomTabControl;
};

// Pages, of which one is shown. The pages are the controls inside; their order
// is that of the tabs.
class TPageControl : public TCustomTabControl {
    OBX_CLASS(TCustomTabControl)
public:
    explicit TPageControl(TComponent* Owner);
    ~TPageControl() override;

    int PageCount() const { return static_cast<int>(FPages.size()); }
    TTabSheet* Pages(int Index) const;
    int ActivePageIndex() const;
    void SetActivePageIndex(int Value);
    TTabSheet* FindNextPage(TTabSheet* CurPage, bool GoForward, bool CheckTabVisible) const;
    void SelectNextPage(bool GoForward, bool CheckTabVisible = true);

    // Published.
    TTabSheet* ActivePage() const { return FActivePage; }
    void SetActivePage(TTabSheet* Value);
    int TabIndex() const override;
    void SetTabIndex(int Value) override;

    void Loaded() override;
    void GetChildren(const std::function<void(TComponent*)>& Visit, TComponent* Root) override;
    void SetChildOrder(TComponent* Child, int Order) override;
    // The pages stay where they are.
    void FlipChildren(bool AllLevels) override;

protected:
    friend class TTabSheet;
    void Dispatch(TMessage& Message) override;
    int GetImageIndex(int Index) override;
    void TabSelected(int Index) override;
    void ShowControl(TControl* AControl) override;

private:
    TTabSheet* PageOfTab(int Index) const;
    void GiveRoom(TTabSheet& Page);
    void InsertPage(TTabSheet* Page);
    void RemovePage(TTabSheet* Page);
    void MovePage(TTabSheet* Page, int Index);
    // Makes the tabs agree with the pages.
    void PagesChanged();
    void PageChanged(TTabSheet* Page);
    void ChangeActivePage(TTabSheet* Page);

    std::vector<TTabSheet*> FPages;
    TTabSheet* FActivePage = nullptr;
};

// One page. Its caption is the text of its tab.
class TTabSheet : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TTabSheet(TComponent* Owner);
    ~TTabSheet() override;

    TPageControl* PageControl() const { return FPageControl; }
    void SetPageControl(TPageControl* Value);
    // The position of the page's tab; -1 while it is hidden.
    int TabIndex() const;

    // Published.
    bool Highlighted() const { return FHighlighted; }
    void SetHighlighted(bool Value) { FHighlighted = Value; }
    TImageIndex ImageIndex() const { return FImageIndex; }
    void SetImageIndex(TImageIndex Value);
    int PageIndex() const;
    void SetPageIndex(int Value);
    bool TabVisible() const { return FTabVisible; }
    void SetTabVisible(bool Value);
    TNotifyEvent OnHide;
    TNotifyEvent OnShow;

protected:
    friend class TPageControl;
    void CreateParams(TCreateParams& Params) override;
    void Dispatch(TMessage& Message) override;
    void SetParentControl(TWinControl* AParent) override;

private:
    TPageControl* FPageControl = nullptr;
    bool FHighlighted = false;
    TImageIndex FImageIndex = 0;
    bool FTabVisible = true;
};

void RegisterPageControlClasses();
