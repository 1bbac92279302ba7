#include "framework/forms/Control.h"

#include "framework/forms/Form.h"
#include "framework/forms/Menus.h"
#include "framework/forms/WinControl.h"
#include "framework/rtl/Filer.h"
#include "framework/rtl/SysUtils.h"

namespace {

constexpr const char* ExplicitNames[] = {"ExplicitLeft", "ExplicitTop", "ExplicitWidth", "ExplicitHeight"};

bool IsRowAlign(TAlign Align)
{
    return Align == alTop || Align == alBottom;
}

bool IsColumnAlign(TAlign Align)
{
    return Align == alLeft || Align == alRight;
}

} // namespace

const TMetaClass& TControl::MetaClass()
{
    static const TMetaClass Class(
        "TControl", &TComponent::MetaClass(), nullptr,
        {
            OBX_ROW(TControl, AlignWithMargins).Default(false),
            OBX_ROW(TControl, Left),
            OBX_ROW(TControl, Top),
            OBX_ROW(TControl, Width),
            OBX_ROW(TControl, Height),
            OBX_ROW(TControl, Cursor).Default(crDefault),
            OBX_ROW(TControl, Hint).Stored<&TControl::IsHintStored>(),
            OBX_ROW(TControl, HelpType).Default(htContext),
            OBX_ROW(TControl, HelpKeyword).Stored<&TControl::IsHelpContextStored>(),
            OBX_ROW(TControl, HelpContext).Default(0).Stored<&TControl::IsHelpContextStored>(),
            OBX_ROW(TControl, Margins),
        });
    return Class;
}

TControl::TControl(TComponent* Owner)
    : TComponent(Owner), FControlStyle{csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks},
      FFont(std::make_unique<TFont>()), FConstraints(std::make_unique<TSizeConstraints>(this)),
      FMargins(std::make_unique<TMargins>(this))
{
    FFont->OnChange = {this, &TControl::FontChanged};
    FConstraints->OnChange = {this, &TControl::ConstraintsChanged};
}

TControl::~TControl()
{
    SetStateFlag(csDestroying, true);
    ForgetControl(this);
    FActionLink.reset();
    if (FParent)
        FParent->RemoveControl(this);
}

void TControl::SetParent(TWinControl* Value)
{
    if (Value == FParent)
        return;
    if (static_cast<TControl*>(Value) == this)
        throw EInvalidOperation(SControlParentSetToSelf);
    SetParentControl(Value);
}

void TControl::SetParentControl(TWinControl* AParent)
{
    if (FParent)
        FParent->RemoveControl(this);
    if (AParent)
        AParent->InsertControl(this);
    UpdateAnchorRules();
}

void TControl::SetLeft(int Value)
{
    SetBounds(Value, FTop, FWidth, FHeight);
}

void TControl::SetTop(int Value)
{
    SetBounds(FLeft, Value, FWidth, FHeight);
}

void TControl::SetWidth(int Value)
{
    SetBounds(FLeft, FTop, Value, FHeight);
}

void TControl::SetHeight(int Value)
{
    SetBounds(FLeft, FTop, FWidth, Value);
}

void TControl::SetBounds(int ALeft, int ATop, int AWidth, int AHeight)
{
    if (!CheckNewSize(AWidth, AHeight) ||
        (ALeft == FLeft && ATop == FTop && AWidth == FWidth && AHeight == FHeight))
        return;
    const bool Sized = AWidth != FWidth || AHeight != FHeight;
    InvalidateControl(FVisible, false);
    FLeft = ALeft;
    FTop = ATop;
    FWidth = AWidth;
    FHeight = AHeight;
    UpdateAnchorRules();
    Invalidate();
    RequestAlign();
    if (Sized && !IsLoading())
        Resize();
}

void TControl::SetBoundsRect(const TRect& Value)
{
    SetBounds(static_cast<int>(Value.left), static_cast<int>(Value.top), RectWidth(Value), RectHeight(Value));
}

TRect TControl::ClientRect() const
{
    return Rect(0, 0, FWidth, FHeight);
}

int TControl::ClientWidth() const
{
    return static_cast<int>(ClientRect().right);
}

void TControl::SetClientWidth(int Value)
{
    SetBounds(FLeft, FTop, FWidth - ClientWidth() + Value, FHeight);
}

int TControl::ClientHeight() const
{
    return static_cast<int>(ClientRect().bottom);
}

void TControl::SetClientHeight(int Value)
{
    SetBounds(FLeft, FTop, FWidth, FHeight - ClientHeight() + Value);
}

TPoint TControl::ClientOrigin() const
{
    return ClientToScreen(Point(0, 0));
}

TPoint TControl::ClientToScreen(const TPoint& Value) const
{
    if (const auto* const Window = dynamic_cast<const TWinControl*>(this);
        Window && Window->HandleAllocated()) {
        TPoint Result = Value;
        ::ClientToScreen(Window->WindowHandle(), &Result);
        return Result;
    }
    const TPoint Inner = Point(static_cast<int>(Value.x) + FLeft, static_cast<int>(Value.y) + FTop);
    return FParent ? FParent->ClientToScreen(Inner) : Inner;
}

TPoint TControl::ScreenToClient(const TPoint& Value) const
{
    const TPoint Origin = ClientOrigin();
    return {Value.x - Origin.x, Value.y - Origin.y};
}

void TControl::SetCursor(TCursor Value)
{
    if (FCursor == Value)
        return;
    FCursor = Value;
    Perform(CM_CURSORCHANGED);
}

void TControl::SetHint(const std::string& Value)
{
    FHint = Value;
}

// Naming a page turns the kind of help to the one that is named.
void TControl::SetHelpKeyword(const std::string& Value)
{
    // The first keyword decides the kind of help, a changed one does not.
    if (!IsLoading() && Value.empty() != FHelpKeyword.empty())
        FHelpType = Value.empty() ? htContext : htKeyword;
    FHelpKeyword = Value;
}

void TControl::SetHelpContext(THelpContext Value)
{
    if (!IsLoading())
        FHelpType = htContext;
    FHelpContext = Value;
}

void TControl::SetAlign(TAlign Value)
{
    if (FAlign == Value)
        return;
    const TAlign Old = FAlign;
    FAlign = Value;
    SetAnchors(AlignAnchors[Value]);
    if (IsLoading())
        return;
    if ((IsRowAlign(Old) && IsColumnAlign(Value)) || (IsColumnAlign(Old) && IsRowAlign(Value)))
        SetBounds(FLeft, FTop, FHeight, FWidth);
    else
        AdjustSize();
    RequestAlign();
}

void TControl::SetAnchors(TAnchors Value)
{
    if (FAnchors == Value)
        return;
    FAnchors = Value;
    UpdateAnchorRules();
}

bool TControl::IsAnchorsStored() const
{
    return FAnchors != AlignAnchors[FAlign];
}

// What the anchors keep: with both sides the size, with the far side alone the
// place, with neither the middle, each for the parent's size of now.
void TControl::UpdateAnchorRules()
{
    if (FAnchorMove || IsLoading())
        return;
    if (FAnchors == TAnchors{akLeft, akTop} || !FParent) {
        FOriginalParentSize = {};
        return;
    }
    const auto Rule = [](bool Near, bool Far, int Place, int Size) {
        if (Far)
            return Near ? Size : Place;
        return Place + Size / 2;
    };
    FAnchorRules.x = Rule(FAnchors.Contains(akLeft), FAnchors.Contains(akRight), FLeft, FWidth);
    FAnchorRules.y = Rule(FAnchors.Contains(akTop), FAnchors.Contains(akBottom), FTop, FHeight);
    const TRect Inside = FParent->ClientRect();
    FOriginalParentSize = {Inside.right, Inside.bottom};
}

void TControl::SetAutoSize(bool Value)
{
    if (FAutoSize == Value)
        return;
    FAutoSize = Value;
    if (Value)
        AdjustSize();
}

void TControl::AdjustSize()
{
    if (!IsLoading())
        SetBounds(FLeft, FTop, FWidth, FHeight);
}

bool TControl::CanAutoSize(int&, int&)
{
    return true;
}

bool TControl::CanResize(int& NewWidth, int& NewHeight)
{
    bool Resize = true;
    if (OnCanResize)
        OnCanResize(this, NewWidth, NewHeight, Resize);
    return Resize;
}

void TControl::ConstrainedResize(int& MinWidth, int& MinHeight, int& MaxWidth, int& MaxHeight)
{
    if (OnConstrainedResize)
        OnConstrainedResize(this, MinWidth, MinHeight, MaxWidth, MaxHeight);
}

void TControl::ConstrainSize(int& NewWidth, int& NewHeight)
{
    int MinWidth = FConstraints->MinWidth();
    int MinHeight = FConstraints->MinHeight();
    int MaxWidth = FConstraints->MaxWidth();
    int MaxHeight = FConstraints->MaxHeight();
    ConstrainedResize(MinWidth, MinHeight, MaxWidth, MaxHeight);
    const auto Limit = [](int& Size, int Min, int Max) {
        if (Max > 0 && Size > Max)
            Size = Max;
        else if (Min > 0 && Size < Min)
            Size = Min;
    };
    Limit(NewWidth, MinWidth, MaxWidth);
    Limit(NewHeight, MinHeight, MaxHeight);
}

// A control measures itself only while its parent has a window: reading and
// changing a form that is not shown changes no size.
bool TControl::CheckNewSize(int& NewWidth, int& NewHeight)
{
    int W = NewWidth;
    int H = NewHeight;
    if (!IsLoading()) {
        const bool Measurable = FParent ? FParent->HandleAllocated() : HasWindow();
        if (FAutoSize && !FAutoSizing && Measurable) {
            FAutoSizing = true;
            const bool Fits = CanAutoSize(W, H);
            FAutoSizing = false;
            if (!Fits)
                return false;
        }
        if (!CanResize(W, H))
            return false;
        ConstrainSize(W, H);
    }
    NewWidth = W;
    NewHeight = H;
    return true;
}

bool TControl::HasWindow() const
{
    const auto* const Window = dynamic_cast<const TWinControl*>(this);
    return Window && Window->HandleAllocated();
}

void TControl::ConstraintsChanged(TObject*)
{
    AdjustSize();
}

void TControl::MarginsChanged(const TMargins* Sender)
{
    if (Sender == FMargins.get())
        RequestAlign();
    else if (auto* const Container = dynamic_cast<TWinControl*>(this))
        Container->Realign();
}

void TControl::Resize()
{
    if (OnResize)
        OnResize(this);
}

void TControl::RequestAlign()
{
    if (FParent)
        FParent->AlignControl(this);
}

void TControl::SetName(const std::string& Value)
{
    const std::string Old = Name();
    const bool Follows = HasStyle(csSetCaption) && !IsLoading() && Text() == Old;
    inherited::SetName(Value);
    if (Follows)
        SetText(Value);
}

void TControl::Loaded()
{
    // While it was being read it could not yet know whether it follows its parent.
    if (FParent)
        for (const UINT Change : {CM_PARENTCOLORCHANGED, CM_PARENTFONTCHANGED, CM_PARENTSHOWHINTCHANGED,
                                  CM_PARENTBIDIMODECHANGED})
            Perform(Change);
    inherited::Loaded();
    if (Action())
        ActionChange(Action(), true);
    UpdateAnchorRules();
}

void TControl::Notification(TComponent* Component, TOperation Operation)
{
    inherited::Notification(Component, Operation);
    if (Operation != opRemove)
        return;
    if (Component == FPopupMenu)
        FPopupMenu = nullptr;
    if (Component == FCustomHint)
        FCustomHint = nullptr;
    if (FActionLink && Component == Action())
        SetAction(nullptr);
}

TComponent* TControl::GetParentComponent() const
{
    return FParent;
}

void TControl::SetParentComponent(TComponent* Value)
{
    if (auto* const Container = dynamic_cast<TWinControl*>(Value))
        SetParent(Container);
}

void TControl::DefineProperties(TFiler& Filer)
{
    TPersistent::DefineProperties(Filer);
    for (size_t Index = 0; Index < 4; ++Index)
        Filer.DefineProperty(
            ExplicitNames[Index],
            [this, Index](TReader& Reader) {
                FExplicit.Value[Index] = static_cast<int>(Reader.ReadInteger());
                FExplicit.Has[Index] = true;
            },
            [this, Index](TWriter& Writer) { Writer.WriteInteger(FExplicit.Value[Index]); },
            FExplicit.Has[Index]);
}
