// Bars of bands, one above or beside the other; each holds one control.
#pragma once

#include "framework/forms/ToolBars.h"

class TCoolBar;

OBX_ENUM(TCoolBandMaximize, bmNone, bmClick, bmDblClick)

class TCoolBand : public TCollectionItem {
    OBX_CLASS(TCollectionItem)
public:
    using TCollectionItem::TCollectionItem;

    // Published.
    TBitmap* Bitmap() const { return const_cast<TBitmap*>(&FBitmap); }
    void SetBitmap(TBitmap* Value) { FBitmap.Assign(Value); }
    OBX_PROPERTY(TBorderStyle, BorderStyle, bsNone)
    OBX_PROPERTY(bool, Break, true)
    OBX_PROPERTY(TColor, Color, clBtnFace)
    OBX_PROPERTY(bool, FixedBackground, true)
    OBX_PROPERTY(bool, FixedSize, false)
    OBX_PROPERTY(bool, HorizontalOnly, false)
    OBX_PROPERTY(TImageIndex, ImageIndex, -1)
    OBX_PROPERTY(int, MinHeight, 25)
    OBX_PROPERTY(int, MinWidth, 0)
    OBX_PROPERTY(bool, ParentColor, true)
    OBX_PROPERTY(bool, ParentBitmap, true)
    OBX_PROPERTY(std::string, Text, {})
    OBX_PROPERTY(bool, Visible, true)
    OBX_PROPERTY(int, Width, 40)
public:
    TWinControl* Control() const { return FControl; }
    void SetControl(TWinControl* Value);

private:
    friend class TCoolBar;
    TBitmap FBitmap;
    TWinControl* FControl = nullptr;
};

class TCoolBands : public TCollection {
    OBX_CLASS(TCollection)
public:
    explicit TCoolBands(TCoolBar* CoolBar);
    TCoolBand* Items(int Index) const { return static_cast<TCoolBand*>(TCollection::Items(Index)); }
    TCoolBand* Add() { return static_cast<TCoolBand*>(TCollection::Add()); }

protected:
    void Update(TCollectionItem* Item) override;

private:
    TCoolBar* FCoolBar;
};

class TCoolBar : public TToolWindow {
    OBX_CLASS(TToolWindow)
public:
    explicit TCoolBar(TComponent* Owner);
    ~TCoolBar() override;

    // Published.
    OBX_PROPERTY(TCoolBandMaximize, BandMaximize, bmClick)
    OBX_PROPERTY(bool, FixedSize, false)
    OBX_PROPERTY(bool, FixedOrder, false)
    OBX_PROPERTY(bool, ShowText, true)
    OBX_PROPERTY(bool, Vertical, false)
    OBX_PROPERTY(TBorderStyle, BandBorderStyle, bsSingle)
public:
    TCoolBands* Bands() const { return const_cast<TCoolBands*>(&FBands); }
    void SetBands(TCoolBands* Value) { FBands.Assign(Value); }
    TBitmap* Bitmap() const { return const_cast<TBitmap*>(&FBitmap); }
    void SetBitmap(TBitmap* Value) { FBitmap.Assign(Value); }
    TCustomImageList* Images() const { return FImages; }
    void SetImages(TCustomImageList* Value);
    TNotifyEvent OnChange;

    void Notification(TComponent* Component, TOperation Operation) override;

protected:
    friend class TCoolBands;
    void AlignControls(TControl* AControl, TRect& Rect) override;
    bool CanAutoSize(int& NewWidth, int& NewHeight) override;
    void PaintWindow(HDC Dc) override;
    void PropertyChanged() override;

private:
    // Where each band lies in the client area; hidden ones are empty.
    std::vector<TRect> BandPlaces() const;
    int TextWidth(const TCoolBand& Band) const;
    void BandsChanged();

    TCoolBands FBands;
    TBitmap FBitmap;
    TCustomImageList* FImages = nullptr;
};

void RegisterCoolBarClasses();
