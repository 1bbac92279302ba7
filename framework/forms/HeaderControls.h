// A row of headings whose widths the user can change.
#pragma once

#include "framework/forms/CommonControls.h"
#include "framework/forms/CustomControl.h"
#include "framework/rtl/Collection.h"

class TCustomHeaderControl;
class THeaderSection;

OBX_ENUM(THeaderSectionStyle, hsText, hsOwnerDraw)
OBX_ENUM(THeaderStyle, hsButtons, hsFlat)
OBX_ENUM(TSectionTrackState, tsTrackBegin, tsTrackMove, tsTrackEnd)

OBX_EVENT(TDrawSectionEvent, TObject*, THeaderSection*, const TRect&, bool)
OBX_EVENT(TSectionNotifyEvent, TObject*, THeaderSection*)
OBX_EVENT(TSectionTrackEvent, TObject*, THeaderSection*, int, TSectionTrackState)
OBX_EVENT(TSectionDragEvent, TObject*, THeaderSection*, THeaderSection*, bool&)

class THeaderSection : public TCollectionItem {
    OBX_CLASS(TCollectionItem)
public:
    using TCollectionItem::TCollectionItem;
    std::string DisplayName() const override { return FText.empty() ? ClassName() : FText; }

    // Published.
    OBX_PROPERTY(TAlignment, Alignment, taLeftJustify)
    OBX_PROPERTY(bool, AllowClick, true)
    OBX_PROPERTY(bool, AutoSize, false)
    OBX_PROPERTY(TBiDiMode, BiDiMode, bdLeftToRight)
    OBX_PROPERTY(bool, FixedWidth, false)
    OBX_PROPERTY(TImageIndex, ImageIndex, -1)
    OBX_PROPERTY(int, MaxWidth, 10000)
    OBX_PROPERTY(int, MinWidth, 0)
    OBX_PROPERTY(bool, ParentBiDiMode, true)
    OBX_PROPERTY(THeaderSectionStyle, Style, hsText)
    OBX_PROPERTY(std::string, Text, {})
    // Pixels.
    OBX_PROPERTY(int, Width, 50)
public:
    bool IsBiDiModeStored() const { return !FParentBiDiMode; }

private:
    friend class TCustomHeaderControl;
};

class THeaderSections : public TCollection {
    OBX_CLASS(TCollection)
public:
    explicit THeaderSections(TCustomHeaderControl* Header);
    THeaderSection* Items(int Index) const { return static_cast<THeaderSection*>(TCollection::Items(Index)); }
    THeaderSection* Add() { return static_cast<THeaderSection*>(TCollection::Add()); }

protected:
    void Update(TCollectionItem* Item) override;

private:
    TCustomHeaderControl* FHeader;
};

class TCustomHeaderControl : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TCustomHeaderControl(TComponent* Owner);
    ~TCustomHeaderControl() override;

    TCanvas* Canvas() { return FCanvas.get(); }

    // Published by header controls.
    THeaderSections* Sections() const { return const_cast<THeaderSections*>(&FSections); }
    void SetSections(THeaderSections* Value) { FSections.Assign(Value); }
    OBX_PROPERTY(bool, DragReorder, false)
    OBX_PROPERTY(bool, FullDrag, true)
    OBX_PROPERTY(bool, HotTrack, false)
    OBX_PROPERTY(bool, NoSizing, false)
    OBX_PROPERTY(THeaderStyle, Style, hsButtons)
public:
    TCustomImageList* Images() const { return FImages; }
    void SetImages(TCustomImageList* Value);
    TDrawSectionEvent OnDrawSection;
    TSectionNotifyEvent OnSectionClick;
    TSectionDragEvent OnSectionDrag;
    TNotifyEvent OnSectionEndDrag;
    TSectionNotifyEvent OnSectionResize;
    TSectionTrackEvent OnSectionTrack;

    void Notification(TComponent* Component, TOperation Operation) override;

protected:
    friend class THeaderSections;
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void Dispatch(TMessage& Message) override;
    void PropertyChanged() override { RecreateWnd(); }

private:
    void RebuildSections();
    void UpdateSection(int Index);
    void SetSection(UINT Message, int Index);
    void Notify(const NMHEADERA& Notice);

    THeaderSections FSections;
    std::unique_ptr<TControlCanvas> FCanvas;
    TCustomImageList* FImages = nullptr;
};

class THeaderControl : public TCustomHeaderControl {
    OBX_CLASS(TCustomHeaderControl)
public:
    using TCustomHeaderControl::TCustomHeaderControl;
};

void RegisterHeaderControlClasses();
