#include "framework/forms/HeaderControls.h"

namespace {

using namespace ControlRows;

// Notifications come in either character width, twenty apart.
constexpr int WideOffset = 20;

bool IsCode(const NMHDR& Header, UINT Narrow)
{
    const int Code = static_cast<int>(Header.code);
    return Code == static_cast<int>(Narrow) || Code == static_cast<int>(Narrow) - WideOffset;
}

TRows HeaderRows()
{
    return Sorted(
        Base(), Drag(), Mouse(), Focus(false), Buffer(), Resize(), OBX_ROW(TControl, Align).Default(alTop),
        OBX_ROW(TWinControl, BorderWidth).Default(0),
        OBX_ROW(TControl, Font).Stored<&TControl::IsFontStored>(),
        OBX_ROW(TControl, ParentFont).Default(true), OBX_ROW(THeaderControl, DragReorder).Default(false),
        OBX_ROW(THeaderControl, FullDrag).Default(true), OBX_ROW(THeaderControl, HotTrack).Default(false),
        OBX_ROW(THeaderControl, Images), OBX_ROW(THeaderControl, NoSizing).Default(false),
        OBX_ROW(THeaderControl, Sections), OBX_ROW(THeaderControl, Style).Default(hsButtons),
        Prop<&THeaderControl::OnDrawSection>("OnDrawSection"),
        Prop<&THeaderControl::OnSectionClick>("OnSectionClick"),
        Prop<&THeaderControl::OnSectionDrag>("OnSectionDrag"),
        Prop<&THeaderControl::OnSectionEndDrag>("OnSectionEndDrag"),
        Prop<&THeaderControl::OnSectionResize>("OnSectionResize"),
        Prop<&THeaderControl::OnSectionTrack>("OnSectionTrack"));
}

} // namespace

const TMetaClass& THeaderSection::MetaClass()
{
    static const TMetaClass Class(
        "THeaderSection", &TCollectionItem::MetaClass(), nullptr,
        {
            OBX_ROW(THeaderSection, Alignment).Default(taLeftJustify),
            OBX_ROW(THeaderSection, AllowClick).Default(true),
            OBX_ROW(THeaderSection, AutoSize).Default(false),
            OBX_ROW(THeaderSection, BiDiMode).Stored<&THeaderSection::IsBiDiModeStored>(),
            OBX_ROW(THeaderSection, FixedWidth).Default(false),
            OBX_ROW(THeaderSection, ImageIndex),
            OBX_ROW(THeaderSection, MaxWidth).Default(10000),
            OBX_ROW(THeaderSection, MinWidth).Default(0),
            OBX_ROW(THeaderSection, ParentBiDiMode).Default(true),
            OBX_ROW(THeaderSection, Style).Default(hsText),
            OBX_ROW(THeaderSection, Text),
            OBX_ROW(THeaderSection, Width),
        });
    return Class;
}

const TMetaClass& THeaderSections::MetaClass()
{
    static const TMetaClass Class("THeaderSections", &TCollection::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TCustomHeaderControl::MetaClass()
{
    static const TMetaClass Class("TCustomHeaderControl", &TWinControl::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& THeaderControl::MetaClass()
{
    static const TMetaClass Class("THeaderControl", &TCustomHeaderControl::MetaClass(),
                                  CreateComponent<THeaderControl>, HeaderRows());
    return Class;
}

THeaderSections::THeaderSections(TCustomHeaderControl* Header)
    : TCollection(Header, THeaderSection::MetaClass(), CreateItem<THeaderSection>), FHeader(Header)
{
}

void THeaderSections::Update(TCollectionItem* Item)
{
    if (Item)
        FHeader->UpdateSection(Item->Index());
    else
        FHeader->RebuildSections();
}

TCustomHeaderControl::TCustomHeaderControl(TComponent* Owner)
    : TWinControl(Owner), FSections(this), FCanvas(std::make_unique<TControlCanvas>(this))
{
    FControlStyle = {};
    SetBounds(0, 0, 250, 17);
    SetAlign(alTop);
}

TCustomHeaderControl::~TCustomHeaderControl()
{
    SetStateFlag(csDestroying, true);
}

void TCustomHeaderControl::Notification(TComponent* Component, TOperation Operation)
{
    TWinControl::Notification(Component, Operation);
    if (Operation == opRemove && Component == FImages)
        SetImages(nullptr);
}

void TCustomHeaderControl::SetImages(TCustomImageList* Value)
{
    FImages = Value;
    if (Value)
        Value->FreeNotification(this);
    if (HandleAllocated() && !HasState(csDestroying))
        SendMessageA(Handle(), HDM_SETIMAGELIST, 0, Param(ImagesHandle(FImages)));
}

void TCustomHeaderControl::CreateParams(TCreateParams& Params)
{
    InitCommonControl(ICC_LISTVIEW_CLASSES);
    TWinControl::CreateParams(Params);
    CreateSubClass(Params, WC_HEADERA);
    Params.Style |= HDS_HORZ | (FStyle == hsButtons ? HDS_BUTTONS : 0u) | (FDragReorder ? HDS_DRAGDROP : 0u) |
                    (FFullDrag ? HDS_FULLDRAG : 0u) | (FHotTrack ? HDS_HOTTRACK : 0u);
}

void TCustomHeaderControl::CreateWnd()
{
    TWinControl::CreateWnd();
    if (FImages)
        SendMessageA(Handle(), HDM_SETIMAGELIST, 0, Param(FImages->Handle()));
    RebuildSections();
}

void TCustomHeaderControl::SetSection(UINT Message, int Index)
{
    static constexpr int Formats[] = {HDF_LEFT, HDF_RIGHT, HDF_CENTER};
    const THeaderSection& Section = *FSections.Items(Index);
    HDITEMA Item{};
    Item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
    Item.cxy = Section.Width();
    Item.pszText = TextParam(Section.Text());
    Item.fmt = Formats[Section.Alignment()] | (Section.Style() == hsOwnerDraw ? HDF_OWNERDRAW : HDF_STRING);
    if (FImages && Section.ImageIndex() >= 0) {
        Item.mask |= HDI_IMAGE;
        Item.fmt |= HDF_IMAGE;
        Item.iImage = Section.ImageIndex();
    }
    SendMessageA(Handle(), Message, static_cast<WPARAM>(Index), Param(&Item));
}

void TCustomHeaderControl::RebuildSections()
{
    if (!HandleAllocated() || HasState(csDestroying))
        return;
    while (SendMessageA(Handle(), HDM_GETITEMCOUNT, 0, 0) > 0)
        SendMessageA(Handle(), HDM_DELETEITEM, 0, 0);
    for (int I = 0; I < FSections.Count(); ++I)
        SetSection(HDM_INSERTITEMA, I);
}

void TCustomHeaderControl::UpdateSection(int Index)
{
    if (HandleAllocated() && !HasState(csDestroying))
        SetSection(HDM_SETITEMA, Index);
}

void TCustomHeaderControl::Notify(const NMHEADERA& Notice)
{
    if (Notice.iItem < 0 || Notice.iItem >= FSections.Count())
        return;
    THeaderSection* const Section = FSections.Items(Notice.iItem);
    if (IsCode(Notice.hdr, static_cast<UINT>(HDN_ITEMCLICK)) && Section->AllowClick() && OnSectionClick) {
        OnSectionClick(this, Section);
    } else if (IsCode(Notice.hdr, static_cast<UINT>(HDN_ENDTRACK)) && Notice.pitem) {
        Section->FWidth = Notice.pitem->cxy;
        if (OnSectionTrack)
            OnSectionTrack(this, Section, Section->FWidth, tsTrackEnd);
        if (OnSectionResize)
            OnSectionResize(this, Section);
    }
}

void TCustomHeaderControl::Dispatch(TMessage& Message)
{
    if (Message.Msg == CN_NOTIFY) {
        Notify(*reinterpret_cast<const NMHEADERA*>(Message.LParam));
        return;
    }
    if (Message.Msg == CN_DRAWITEM) {
        const auto& Item = *reinterpret_cast<const DRAWITEMSTRUCT*>(Message.LParam);
        const int Index = static_cast<int>(Item.itemID);
        if (OnDrawSection && Index >= 0 && Index < FSections.Count()) {
            FCanvas->SetHandle(Item.hDC);
            OnDrawSection(this, FSections.Items(Index), Item.rcItem, (Item.itemState & ODS_SELECTED) != 0);
            FCanvas->SetHandle(nullptr);
        }
        Message.Result = 1;
        return;
    }
    TWinControl::Dispatch(Message);
}

void RegisterHeaderControlClasses()
{
    RegisterClass(THeaderControl::MetaClass());
}
