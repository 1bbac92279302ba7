// Lists of small pictures of one size.
#pragma once

#include <string>
#include <vector>

#include "framework/forms/Pictures.h"

class TCustomImageList;

OBX_ENUM(TDrawingStyle, dsFocus, dsSelected, dsNormal, dsTransparent)
OBX_ENUM(TImageType, itImage, itMask)
OBX_ENUM(TColorDepth, cdDeviceDependent, cd4Bit, cd8Bit, cd16Bit, cd24Bit, cd32Bit)

// A position in an image list; -1 for none.
using TImageIndex = int;

// Form files carry the pictures as the binary property "Bitmap": the bytes are
// kept and written as they were as long as the list is not changed. Kinds that
// cannot be read are kept too, without pictures.
class TCustomImageList : public TComponent {
    OBX_CLASS(TComponent)
public:
    explicit TCustomImageList(TComponent* Owner);
    ~TCustomImageList() override;

    // The system's list, made when first asked for.
    HIMAGELIST Handle();
    bool HandleAllocated() const { return FHandle != nullptr; }
    int Count();
    // Each returns the first new picture's position; -1 when it could not be added.
    int Add(TBitmap* Image, TBitmap* Mask);
    int AddMasked(TBitmap* Image, TColor MaskColor);
    void Delete(int Index);
    void Clear();
    void Draw(TCanvas* Canvas, int X, int Y, int Index, bool Enabled = true);
    // Replaces Image by the picture at Index, on a background of clBtnFace.
    bool GetBitmap(int Index, TBitmap* Image);
    void Assign(const TPersistent* Source) override;
    void DefineProperties(TFiler& Filer) override;

    // Published by image lists.
    OBX_PROPERTY(int, AllocBy, 4)
    OBX_PROPERTY(TColor, BlendColor, clNone)
    OBX_PROPERTY(TColor, BkColor, clNone)
    OBX_PROPERTY(TColorDepth, ColorDepth, cdDeviceDependent)
    OBX_PROPERTY(TDrawingStyle, DrawingStyle, dsNormal)
    OBX_PROPERTY(TImageType, ImageType, itImage)
    OBX_PROPERTY(bool, Masked, true)
    OBX_PROPERTY(bool, ShareImages, false)
public:
    // Pixels. A new size empties a list that has no form file's pictures.
    int Width() const { return FWidth; }
    void SetWidth(int Value);
    int Height() const { return FHeight; }
    void SetHeight(int Value);

    TNotifyEvent OnChange;

protected:
    // Tells OnChange and those who show the pictures.
    virtual void Changed();
    void PropertyChanged() override;

private:
    void ReadBitmap(TStream& Stream);
    void CreateHandle();
    void FreeHandle();
    void AddStored();
    void PicturesChanged();

    std::string FStored; // the form file's bytes; empty after a change
    HIMAGELIST FHandle = nullptr;
    int FWidth = 16;
    int FHeight = 16;
};

class TImageList : public TCustomImageList {
    OBX_CLASS(TCustomImageList)
public:
    explicit TImageList(TComponent* Owner) : TCustomImageList(Owner) {}
};

void RegisterImageListClasses();
