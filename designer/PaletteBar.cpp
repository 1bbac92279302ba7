#include "designer/PaletteBar.h"

#include <algorithm>

#include "framework/design/Palette.h"
#include "framework/forms/Canvas.h"

namespace {

constexpr int RowHeight = 22;
constexpr int Gap = 2;

// "TButton" -> "Button"
std::string CaptionOf(const TMetaClass* Class)
{
    return Class ? Class->ClassName().substr(1) : "Select";
}

// Where pieces stand that fill row after row.
class TFlow {
public:
    explicit TFlow(int Width) : FWidth(Width) {}

    TRect Next(int Width)
    {
        if (FLeft > Gap && FLeft + Width + Gap > FWidth) {
            FLeft = Gap;
            ++FRow;
        }
        const TRect Result = Bounds(FLeft, Gap + FRow * RowHeight, Width, RowHeight);
        FLeft += Width;
        return Result;
    }
    int Rows() const { return FRow + 1; }

private:
    int FWidth;
    int FLeft = Gap;
    int FRow = 0;
};

} // namespace

TPaletteBar::TPaletteBar(TTabControl& Tabs, TPanel& Panel) : FTabs(Tabs), FPanel(Panel)
{
    FTabs.OnChange = {this, &TPaletteBar::TabChange};
    FPanel.OnResize = {this, &TPaletteBar::PanelResize};
}

void TPaletteBar::Rebuild()
{
    const int Present = FTabs.TabIndex();
    FTabs.Tabs()->Clear();
    for (const TPalettePage& Page : PalettePages())
        FTabs.Tabs()->Add(Page.Name);
    FTabs.SetTabIndex(std::clamp(Present, 0, std::max(FTabs.Tabs()->Count() - 1, 0)));
    ShowPage();
}

void TPaletteBar::ShowPage()
{
    for (const TChoice& Each : FButtons)
        delete Each.Control;
    FButtons.clear();
    AddButton(nullptr);
    const auto Page = static_cast<size_t>(std::max(FTabs.TabIndex(), 0));
    if (Page < PalettePages().size())
        for (const TMetaClass* const Class : PalettePages()[Page].Classes)
            AddButton(Class);
    Arrange();
    Release();
}

void TPaletteBar::AddButton(const TMetaClass* Class)
{
    auto* const Button = new TSpeedButton(&FPanel);
    Button->SetFlat(true);
    Button->SetGroupIndex(1);
    Button->SetCaption(CaptionOf(Class));
    Button->SetHint(CaptionOf(Class));
    Button->SetShowHint(true);
    Button->SetTag(static_cast<int>(FButtons.size()));
    Button->OnClick = {this, &TPaletteBar::ButtonClick};
    Button->SetParent(&FPanel);
    FButtons.push_back({Button, Class});
}

int TPaletteBar::WidthOf(const TMetaClass* Class) const
{
    TScreenCanvas Canvas;
    Canvas.Font()->Assign(FPanel.Font());
    return Canvas.TextWidth(CaptionOf(Class)) + 12;
}

int TPaletteBar::RowsOf(const std::vector<const TMetaClass*>& Classes) const
{
    TFlow Flow(FPanel.ClientWidth());
    Flow.Next(WidthOf(nullptr));
    for (const TMetaClass* const Class : Classes)
        Flow.Next(WidthOf(Class));
    return Flow.Rows();
}

void TPaletteBar::Arrange()
{
    TFlow Flow(FPanel.ClientWidth());
    for (const TChoice& Each : FButtons) {
        const TRect Place = Flow.Next(WidthOf(Each.Class));
        Each.Control->SetBounds(Place.left, Place.top, RectWidth(Place), RectHeight(Place));
    }
    int Rows = 1;
    for (const TPalettePage& Page : PalettePages())
        Rows = std::max(Rows, RowsOf(Page.Classes));
    const int Needed = Rows * RowHeight + 2 * Gap;
    if (Needed != FPanel.Height())
        FTabs.SetHeight(FTabs.Height() - FPanel.Height() + Needed);
}

void TPaletteBar::Release()
{
    if (!FButtons.empty())
        FButtons.front().Control->SetDown(true);
    if (OnChoose)
        OnChoose(nullptr);
}

void TPaletteBar::TabChange(TObject*)
{
    ShowPage();
}

void TPaletteBar::PanelResize(TObject*)
{
    Arrange();
}

void TPaletteBar::ButtonClick(TObject* Sender)
{
    if (OnChoose)
        OnChoose(FButtons[static_cast<size_t>(static_cast<TSpeedButton*>(Sender)->Tag())].Class);
}
