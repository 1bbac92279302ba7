// Bitmaps, icons and other pictures that form files carry.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "framework/forms/Canvas.h"

class TStream;

OBX_ENUM(TTransparentMode, tmAuto, tmFixed)

// A picture of any kind. As a property it is streamed as the binary property
// "Data".
class TGraphic : public TPersistent {
    OBX_CLASS(TPersistent)
public:
    virtual bool Empty() const = 0;
    // Pixels; 0 when unknown.
    virtual int Width() const = 0;
    virtual int Height() const = 0;
    virtual void Draw(TCanvas& Canvas, const TRect& Rect) = 0;

    // The file format of the kind, from the stream's position to its end.
    // EInvalidGraphic when the bytes are not that.
    virtual void LoadFromStream(TStream& Stream) = 0;
    virtual void SaveToStream(TStream& Stream) const = 0;
    void LoadFromFile(const std::string& FileName);
    void SaveToFile(const std::string& FileName) const;

    // The bytes of the property "Data"; kinds differ in what comes before the file.
    virtual void ReadData(TStream& Stream) { LoadFromStream(Stream); }
    virtual void WriteData(TStream& Stream) const { SaveToStream(Stream); }
    void DefineProperties(TFiler& Filer) override;

    bool Transparent() const { return FTransparent; }
    void SetTransparent(bool Value);

    TNotifyEvent OnChange;

protected:
    virtual void Changed();

private:
    bool FTransparent = false;
};

// Keeps the bytes that it was loaded from and gives the same back, whatever
// their format; draws those that are device-independent bitmaps.
class TBitmap : public TGraphic {
    OBX_CLASS(TGraphic)
public:
    TBitmap();
    ~TBitmap() override;

    void Assign(const TPersistent* Source) override;
    bool Empty() const override { return FBytes.empty() && FWidth == 0; }
    int Width() const override { return FWidth; }
    int Height() const override { return FHeight; }
    // Makes a bitmap of that size and keeps what fits.
    void SetSize(int NewWidth, int NewHeight);
    void Draw(TCanvas& Canvas, const TRect& Rect) override;
    void LoadFromStream(TStream& Stream) override;
    void SaveToStream(TStream& Stream) const override;
    void ReadData(TStream& Stream) override;
    void WriteData(TStream& Stream) const override;

    // The system's bitmap, made on demand; belongs to the TBitmap. Null when the
    // bytes are of a format that cannot be drawn.
    HBITMAP Handle();
    // The bitmap becomes this object's.
    void SetHandle(HBITMAP Value);
    // Draws into the bitmap.
    TCanvas* Canvas();
    TColor TransparentColor();

private:
    class TBitmapCanvas;
    void SetBytes(std::string Value);
    void FreeHandle();
    void FreeCanvas();
    void DrawTransparent(TCanvas& Canvas, int X, int Y);
    void CanvasChanged(TObject* Sender);

    std::string FBytes; // a .bmp file, or whatever was loaded; empty when drawn into
    int FWidth = 0;
    int FHeight = 0;
    bool FHasLength = true; // the property's data begin with their length
    HBITMAP FHandle = nullptr;
    std::unique_ptr<TBitmapCanvas> FCanvas;
};

// Kinds that are only kept and shown by others.
class TKeptGraphic : public TGraphic {
    OBX_CLASS(TGraphic)
public:
    void Assign(const TPersistent* Source) override;
    bool Empty() const override { return FBytes.empty(); }
    int Width() const override { return 0; }
    int Height() const override { return 0; }
    void Draw(TCanvas&, const TRect&) override {}
    void LoadFromStream(TStream& Stream) override;
    void SaveToStream(TStream& Stream) const override;
    const std::string& Bytes() const { return FBytes; }

protected:
    std::string FBytes;
};

class TIcon : public TKeptGraphic {
    OBX_CLASS(TKeptGraphic)
public:
    TIcon() = default;
    ~TIcon() override;

    bool Empty() const override { return FBytes.empty() && !FHandle; }
    // The size of the first image.
    int Width() const override;
    int Height() const override;
    void Draw(TCanvas& Canvas, const TRect& Rect) override;

    // Null while empty. A handle that was set becomes this object's.
    HICON Handle();
    void SetHandle(HICON Value);

protected:
    void Changed() override;

private:
    HICON FHandle = nullptr;
};

class TMetafile : public TKeptGraphic {
    OBX_CLASS(TKeptGraphic)
};

// A picture whose class the program does not have.
class TUnknownGraphic : public TKeptGraphic {
    OBX_CLASS(TKeptGraphic)
public:
    explicit TUnknownGraphic(std::string GraphicClass) : FGraphicClass(std::move(GraphicClass)) {}
    const std::string& GraphicClass() const { return FGraphicClass; }

private:
    std::string FGraphicClass;
};

// Holds a graphic of any kind. The binary property "Data" begins with the
// length and the characters of the graphic's class name.
class TPicture : public TPersistent {
    OBX_CLASS(TPersistent)
public:
    TPicture() = default;
    ~TPicture() override;

    // Takes a picture or a graphic; null empties it.
    void Assign(const TPersistent* Source) override;
    TGraphic* Graphic() const { return FGraphic.get(); }
    void SetGraphic(std::unique_ptr<TGraphic> Value);
    // The graphic as a bitmap or icon; another kind is replaced by an empty one.
    TBitmap* Bitmap();
    TIcon* Icon();
    int Width() const { return FGraphic ? FGraphic->Width() : 0; }
    int Height() const { return FGraphic ? FGraphic->Height() : 0; }
    // By the file name's extension: .bmp, .ico, .wmf, .emf and registered ones;
    // EInvalidGraphic "Unknown picture file extension (.x)" otherwise.
    void LoadFromFile(const std::string& FileName);
    void SaveToFile(const std::string& FileName) const;
    void DefineProperties(TFiler& Filer) override;

    // Makes graphics of the class known to pictures.
    using TGraphicFactory = std::unique_ptr<TGraphic> (*)();
    static void RegisterFileFormat(const std::string& Extension, const std::string& ClassName,
                                   TGraphicFactory Factory);

    TNotifyEvent OnChange;

private:
    void ReadData(TStream& Stream);
    void WriteData(TStream& Stream) const;
    void GraphicChanged(TObject* Sender);
    void Changed();

    std::unique_ptr<TGraphic> FGraphic;
};
