#include "framework/forms/Notebooks.h"

#include <algorithm>

#include "framework/forms/ControlRows.h"
#include "framework/rtl/SysUtils.h"

namespace {

// How near to a section's edge the mouse takes hold of it, in pixels.
constexpr int GripWidth = 3;
constexpr int FirstSectionWidth = 50;

TSize TextSize(const TFont* Font, const std::string& Text)
{
    TScreenCanvas Canvas;
    Canvas.Font()->Assign(Font);
    return Canvas.TextExtent(Text);
}

} // namespace

// The captions of the pages. A line of its own makes a page; a page that a form
// file brings makes a line.
class TNotebook::TPageList : public TStrings {
public:
    explicit TPageList(TNotebook& Notebook) : FNotebook(Notebook) {}

    TPersistent* GetOwner() const override { return &FNotebook; }
    int Count() const override { return static_cast<int>(FNotebook.FPages.size()); }
    const std::string& Get(int Index) const override
    {
        FText = PageAt(Index)->Caption();
        return FText;
    }
    TObject* Objects(int Index) const override { return PageAt(Index); }
    void Put(int Index, const std::string& S) override
    {
        PageAt(Index)->SetCaption(S);
        FNotebook.PagesChanged();
    }
    void PutObject(int, TObject*) override {}
    void Insert(int Index, const std::string& S, TObject*) override
    {
        if (Index < 0 || Index > Count())
            RaiseIndexError(Index);
        TWinControl* const Page = FNotebook.NewPage();
        Page->SetCaption(S);
        Page->SetParent(&FNotebook);
        auto& Pages = FNotebook.FPages;
        Pages.erase(std::find(Pages.begin(), Pages.end(), Page));
        Pages.insert(Pages.begin() + Index, Page);
        FNotebook.ShowPage();
    }
    void Delete(int Index) override { delete PageAt(Index); }
    void Clear() override
    {
        while (Count() > 0)
            Delete(Count() - 1);
    }

private:
    TWinControl* PageAt(int Index) const
    {
        if (Index < 0 || Index >= Count())
            RaiseIndexError(Index);
        return FNotebook.FPages[static_cast<size_t>(Index)];
    }

    TNotebook& FNotebook;
    mutable std::string FText;
};

const TMetaClass& TPage::MetaClass()
{
    static const TMetaClass Class("TPage", &TCustomControl::MetaClass(), CreateComponent<TPage>,
                                  {
                                      OBX_ROW(TPage, Caption).Stored<&TPage::IsCaptionStored>(),
                                      OBX_ROW(TPage, Height).Stored(false),
                                      OBX_ROW(TPage, Width).Stored(false),
                                  });
    return Class;
}

const TMetaClass& TNotebook::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class("TNotebook", &TCustomControl::MetaClass(), CreateComponent<TNotebook>,
                                  Sorted(Look(), Drag(), Mouse(), Focus(false), ControlRows::Ctl3D(),
                                         OBX_ROW(TNotebook, PageIndex).Default(0),
                                         Prop<&TNotebook::Pages, &TNotebook::SetPages>("Pages").Stored(false),
                                         Prop<&TNotebook::OnPageChanged>("OnPageChanged")));
    return Class;
}

const TMetaClass& TTabPage::MetaClass()
{
    static const TMetaClass Class("TTabPage", &TPage::MetaClass(), CreateComponent<TTabPage>);
    return Class;
}

const TMetaClass& TTabbedNotebook::MetaClass()
{
    static const TMetaClass Class("TTabbedNotebook", &TNotebook::MetaClass(),
                                  CreateComponent<TTabbedNotebook>,
                                  {
                                      OBX_ROW(TTabbedNotebook, TabFont),
                                      OBX_ROW(TTabbedNotebook, TabsPerRow).Default(3),
                                      Prop<&TTabbedNotebook::OnChange>("OnChange"),
                                  });
    return Class;
}

const TMetaClass& TTabSet::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TTabSet", &TCustomControl::MetaClass(), CreateComponent<TTabSet>,
        Sorted(Base(), Drag(), Mouse(), Focus(false), OBX_ROW(TTabSet, Font).Stored<&TTabSet::IsFontStored>(),
               OBX_ROW(TTabSet, ParentFont).Default(true), OBX_ROW(TTabSet, AutoScroll).Default(true),
               OBX_ROW(TTabSet, BackgroundColor).Default(clBtnFace),
               OBX_ROW(TTabSet, DitherBackground).Default(true), OBX_ROW(TTabSet, EndMargin).Default(5),
               OBX_ROW(TTabSet, SelectedColor).Default(clBtnFace), OBX_ROW(TTabSet, StartMargin).Default(5),
               OBX_ROW(TTabSet, Style).Default(tsStandard), OBX_ROW(TTabSet, TabHeight).Default(20),
               OBX_ROW(TTabSet, Tabs), OBX_ROW(TTabSet, TabIndex).Default(-1),
               OBX_ROW(TTabSet, UnselectedColor).Default(clWindow), Prop<&TTabSet::OnChange>("OnChange")));
    return Class;
}

const TMetaClass& THeader::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "THeader", &TCustomControl::MetaClass(), CreateComponent<THeader>,
        Sorted(Base(), Focus(false), OBX_ROW(THeader, Font).Stored<&THeader::IsFontStored>(),
               OBX_ROW(THeader, ParentFont).Default(true), OBX_ROW(THeader, AllowResize).Default(true),
               OBX_ROW(THeader, BorderStyle).Default(bsSingle), OBX_ROW(THeader, Sections),
               Prop<&THeader::OnSized>("OnSized"), Prop<&THeader::OnSizing>("OnSizing")));
    return Class;
}

TPage::TPage(TComponent* Owner) : TCustomControl(Owner)
{
    FControlStyle.Include(csAcceptsControls);
    FControlStyle.Include(csNoDesignVisible);
    SetVisible(false);
    SetAlign(alClient);
}

void TPage::Paint()
{
    Canvas()->Brush()->SetColor(Color());
    Canvas()->FillRect(ClientRect());
}

TNotebook::TNotebook(TComponent* Owner) : TCustomControl(Owner), FList(std::make_unique<TPageList>(*this))
{
    FControlStyle.Include(csAcceptsControls);
    SetBounds(0, 0, 150, 150);
}

TNotebook::~TNotebook()
{
    FList->Clear();
}

TStrings* TNotebook::Pages() const
{
    return FList.get();
}

void TNotebook::SetPageIndex(int Value)
{
    if (IsLoading()) {
        FPageIndex = Value;
        return;
    }
    if (Value < 0 || Value >= static_cast<int>(FPages.size()) || Value == FPageIndex)
        return;
    FPageIndex = Value;
    ShowPage();
    if (OnPageChanged)
        OnPageChanged(this);
}

std::string TNotebook::ActivePage() const
{
    const bool Known = FPageIndex >= 0 && FPageIndex < FList->Count();
    return Known ? FList->Get(FPageIndex) : std::string();
}

void TNotebook::SetActivePage(const std::string& Value)
{
    const int Index = FList->IndexOf(Value);
    if (Index < 0)
        throw EStringListError(Format(SPageNotFound, {Value}));
    SetPageIndex(Index);
}

void TNotebook::ShowPage()
{
    for (size_t I = 0; I < FPages.size(); ++I)
        FPages[I]->SetVisible(static_cast<int>(I) == FPageIndex);
    PagesChanged();
}

void TNotebook::GetChildren(const std::function<void(TComponent*)>& Visit, TComponent*)
{
    for (TWinControl* const Page : FPages)
        Visit(Page);
}

void TNotebook::Notification(TComponent* Component, TOperation Operation)
{
    TCustomControl::Notification(Component, Operation);
    if (Operation != opRemove)
        return;
    const auto Found = std::find(FPages.begin(), FPages.end(), Component);
    if (Found == FPages.end())
        return;
    FPages.erase(Found);
    if (!IsLoading())
        FPageIndex = std::clamp(FPageIndex, 0, std::max(0, FList->Count() - 1));
}

void TNotebook::Loaded()
{
    TCustomControl::Loaded();
    FPageIndex = std::clamp(FPageIndex, 0, std::max(0, FList->Count() - 1));
    ShowPage();
}

void TNotebook::Dispatch(TMessage& Message)
{
    TCustomControl::Dispatch(Message);
    if (Message.Msg != CM_CONTROLLISTCHANGE)
        return;
    auto* const Page = dynamic_cast<TPage*>(reinterpret_cast<TControl*>(Message.WParam));
    if (!Page)
        return;
    const auto Found = std::find(FPages.begin(), FPages.end(), Page);
    if (Message.LParam != 0 && Found == FPages.end()) {
        Page->FreeNotification(this);
        FPages.push_back(Page);
    } else if (Message.LParam == 0 && Found != FPages.end()) {
        FPages.erase(Found);
    }
}

TTabbedNotebook::TTabbedNotebook(TComponent* Owner) : TNotebook(Owner), FTabFont(std::make_unique<TFont>())
{
    SetBounds(0, 0, 300, 250);
}

int TTabbedNotebook::TabHeight() const
{
    return static_cast<int>(TextSize(FTabFont.get(), "0").cy) + 8;
}

TRect TTabbedNotebook::TabRect(int Index) const
{
    const int PerRow = std::max(TabsPerRow(), 1);
    const int TabWidth = (Width() - 4) / PerRow;
    return Bounds(2 + Index % PerRow * TabWidth, Index / PerRow * TabHeight(), TabWidth, TabHeight());
}

void TTabbedNotebook::AdjustClientRect(TRect& Rect) const
{
    TNotebook::AdjustClientRect(Rect);
    const int PerRow = std::max(TabsPerRow(), 1);
    const int Rows = (Pages()->Count() + PerRow - 1) / PerRow;
    Rect.top += Rows * TabHeight();
    InflateRect(&Rect, -3, -3);
}

void TTabbedNotebook::Paint()
{
    TRect Area = ClientRect();
    Area.top = Pages()->Count() == 0 ? 0 : TabRect(Pages()->Count() - 1).bottom - 1;
    DrawEdge(Canvas()->Handle(), &Area, EDGE_RAISED, BF_RECT);
    Canvas()->Font()->Assign(FTabFont.get());
    for (int I = 0; I < Pages()->Count(); ++I) {
        TRect Tab = TabRect(I);
        if (I != PageIndex())
            Tab.top += 2;
        DrawEdge(Canvas()->Handle(), &Tab, EDGE_RAISED, BF_LEFT | BF_TOP | BF_RIGHT);
        Canvas()->Brush()->SetStyle(bsClear);
        Canvas()->DrawText(Pages()->Get(I), Tab, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    }
}

void TTabbedNotebook::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    TNotebook::MouseDown(Button, Shift, X, Y);
    for (int I = 0; I < Pages()->Count(); ++I) {
        const TRect Tab = TabRect(I);
        bool AllowChange = true;
        if (Button != mbLeft || !PtInRect(&Tab, {X, Y}) || I == PageIndex())
            continue;
        if (OnChange)
            OnChange(this, I, AllowChange);
        if (AllowChange)
            SetPageIndex(I);
        return;
    }
}

TTabSet::TTabSet(TComponent* Owner)
    : TCustomControl(Owner), FTabs(std::make_unique<TItemStrings>(*this, *this))
{
    FControlStyle = {csCaptureMouse, csDoubleClicks, csOpaque};
    SetBounds(0, 0, 185, 21);
}

TTabSet::~TTabSet() = default;

void TTabSet::Loaded()
{
    TCustomControl::Loaded();
    FTabIndex = std::min(FTabIndex, FTabs->Count() - 1);
}

void TTabSet::SetTabIndex(int Value)
{
    if (IsLoading()) {
        FTabIndex = Value;
        return;
    }
    Value = std::clamp(Value, -1, FTabs->Count() - 1);
    if (Value == FTabIndex)
        return;
    bool AllowChange = true;
    if (OnChange)
        OnChange(this, Value, AllowChange);
    if (!AllowChange)
        return;
    FTabIndex = Value;
    Invalidate();
    Click();
}

void TTabSet::ItemInserted(int Index)
{
    if (!IsLoading() && (FTabIndex >= Index || FTabIndex < 0))
        ++FTabIndex;
    Invalidate();
}

void TTabSet::ItemDeleted(int Index)
{
    if (!IsLoading() && FTabIndex >= Index && FTabIndex >= FTabs->Count())
        --FTabIndex;
    Invalidate();
}

TRect TTabSet::TabRect(int Index) const
{
    int Left = StartMargin();
    for (int I = 0; I < Index; ++I)
        Left += static_cast<int>(TextSize(Font(), FTabs->Get(I)).cx) + 16;
    return Bounds(Left, 0, static_cast<int>(TextSize(Font(), FTabs->Get(Index)).cx) + 16, TabHeight());
}

void TTabSet::Paint()
{
    TCanvas& Target = *Canvas();
    Target.Brush()->SetColor(BackgroundColor());
    Target.FillRect(ClientRect());
    Target.Pen()->SetColor(clWindowFrame);
    Target.MoveTo(0, 0);
    Target.LineTo(Width(), 0);
    Target.Font()->Assign(Font());
    for (int I = 0; I < FTabs->Count(); ++I) {
        TRect Tab = TabRect(I);
        const TPoint Outline[] = {{Tab.left, 0},
                                  {Tab.left + 5, Tab.bottom - 1},
                                  {Tab.right - 1, Tab.bottom - 1},
                                  {Tab.right + 4, 0}};
        Target.Brush()->SetStyle(bsSolid);
        Target.Brush()->SetColor(I == FTabIndex ? SelectedColor() : UnselectedColor());
        Target.Polygon(Outline, 4);
        Target.Brush()->SetStyle(bsClear);
        OffsetRect(&Tab, 2, 0);
        Target.DrawText(FTabs->Get(I), Tab, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    }
}

void TTabSet::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    TCustomControl::MouseDown(Button, Shift, X, Y);
    for (int I = 0; Button == mbLeft && I < FTabs->Count(); ++I) {
        const TRect Tab = TabRect(I);
        if (PtInRect(&Tab, {X, Y}))
            SetTabIndex(I);
    }
}

THeader::THeader(TComponent* Owner)
    : TCustomControl(Owner), FSections(std::make_unique<TItemStrings>(*this, *this))
{
    FControlStyle.Include(csOpaque);
    SetBounds(0, 0, 250, 25);
}

THeader::~THeader() = default;

void THeader::SetSectionWidth(int Index, int Value)
{
    FSections->Get(Index);
    FWidths[static_cast<size_t>(Index)] = std::max(Value, 0);
    Invalidate();
}

void THeader::ItemInserted(int Index)
{
    FWidths.insert(FWidths.begin() + Index, FirstSectionWidth);
    Invalidate();
}

void THeader::ItemDeleted(int Index)
{
    FWidths.erase(FWidths.begin() + Index);
    Invalidate();
}

void THeader::Paint()
{
    int Left = 0;
    Canvas()->Font()->Assign(Font());
    Canvas()->Brush()->SetStyle(bsSolid);
    Canvas()->Brush()->SetColor(clBtnFace);
    Canvas()->FillRect(ClientRect());
    Canvas()->Brush()->SetStyle(bsClear);
    for (int I = 0; I < FSections->Count(); ++I) {
        const bool IsLast = I + 1 == FSections->Count();
        TRect Area{Left, 0, IsLast ? Width() : Left + SectionWidth(I), Height()};
        Left += SectionWidth(I);
        DrawEdge(Canvas()->Handle(), &Area, BDR_RAISEDINNER, BF_RECT);
        Area.left += 3;
        Canvas()->DrawText(FSections->Get(I), Area, DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    }
}

// The section whose right edge is near X; -1 for none.
int THeader::SectionEndingAt(int X) const
{
    int Edge = 0;
    for (int I = 0; I < FSections->Count(); ++I) {
        Edge += SectionWidth(I);
        if (std::abs(Edge - X) <= GripWidth)
            return I;
    }
    return -1;
}

void THeader::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    TCustomControl::MouseDown(Button, Shift, X, Y);
    if (Button == mbLeft && AllowResize())
        FDragged = SectionEndingAt(X);
}

void THeader::MouseMove(TShiftState Shift, int X, int Y)
{
    TCustomControl::MouseMove(Shift, X, Y);
    if (FDragged < 0 || FDragged >= FSections->Count())
        return;
    int Left = 0;
    for (int I = 0; I < FDragged; ++I)
        Left += SectionWidth(I);
    SetSectionWidth(FDragged, X - Left);
    if (OnSizing)
        OnSizing(this, FDragged, SectionWidth(FDragged));
}

void THeader::MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    TCustomControl::MouseUp(Button, Shift, X, Y);
    if (FDragged >= 0 && FDragged < FSections->Count() && OnSized)
        OnSized(this, FDragged, SectionWidth(FDragged));
    FDragged = -1;
}
