#include "framework/forms/ImageLists.h"

#include "framework/rtl/Exceptions.h"
#include "framework/rtl/Filer.h"
#include "framework/rtl/Streams.h"

namespace {

// The bytes of "Bitmap" begin with this header, in the byte order of the
// processor family that form files come from; a .bmp file with all pictures
// follows, and one with their masks when Flags has bit 0.
constexpr size_t HeaderSize = 28;
constexpr int PicturesInRow = 4;

int WordAt(const std::string& Bytes, size_t Offset)
{
    return static_cast<unsigned char>(Bytes[Offset]) | static_cast<unsigned char>(Bytes[Offset + 1]) << 8;
}

uint32_t LongAt(const std::string& Bytes, size_t Offset)
{
    return static_cast<uint32_t>(WordAt(Bytes, Offset)) | static_cast<uint32_t>(WordAt(Bytes, Offset + 2))
                                                              << 16;
}

struct TStoredList {
    int Count = 0;
    int Width = 0;
    int Height = 0;
    std::string Pictures;
    std::string Masks;
};

// The length of the .bmp file at Offset; 0 when there is none.
size_t FileLength(const std::string& Bytes, size_t Offset)
{
    if (Bytes.size() < Offset + 54 || Bytes.compare(Offset, 2, "BM") != 0)
        return 0;
    const size_t Pixels = LongAt(Bytes, Offset + 10);
    const auto Width = static_cast<int32_t>(LongAt(Bytes, Offset + 18));
    const auto Height = static_cast<int32_t>(LongAt(Bytes, Offset + 22));
    const int Bits = WordAt(Bytes, Offset + 28);
    if (Width <= 0 || Width > 0x7FFF || Height <= 0 || Height > 0xFFFFF || Bits == 0 || Bits > 32)
        return 0;
    const size_t Row = (static_cast<size_t>(Width) * static_cast<size_t>(Bits) + 31) / 32 * 4;
    const size_t Length = Pixels + Row * static_cast<size_t>(Height);
    return Length <= Bytes.size() - Offset ? Length : 0;
}

bool Decode(const std::string& Bytes, TStoredList& List)
{
    if (Bytes.size() < HeaderSize || Bytes.compare(0, 2, "IL") != 0)
        return false;
    List.Count = WordAt(Bytes, 4);
    List.Width = WordAt(Bytes, 10);
    List.Height = WordAt(Bytes, 12);
    const size_t Length = FileLength(Bytes, HeaderSize);
    if (Length == 0 || List.Width == 0 || List.Height == 0)
        return false;
    List.Pictures = Bytes.substr(HeaderSize, Length);
    if (WordAt(Bytes, 18) & 1)
        List.Masks = Bytes.substr(HeaderSize + Length, FileLength(Bytes, HeaderSize + Length));
    return true;
}

// A strip of bitmaps copied one picture at a time.
class TStrip {
public:
    explicit TStrip(const std::string& File)
    {
        if (File.empty())
            return;
        TMemoryStream Stream(File);
        FBitmap.LoadFromStream(Stream);
    }

    bool CopyTo(TBitmap& Target, int Index, int Width, int Height)
    {
        if (FBitmap.Empty() || !FBitmap.Handle())
            return false;
        const int InRow = FBitmap.Width() >= PicturesInRow * Width ? FBitmap.Width() / Width : 1;
        const int X = Index % InRow * Width;
        const int Y = Index / InRow * Height;
        if (Y + Height > FBitmap.Height())
            return false;
        Target.SetSize(Width, Height);
        Target.Canvas()->CopyRect(Bounds(0, 0, Width, Height), *FBitmap.Canvas(),
                                  Bounds(X, Y, Width, Height));
        return true;
    }

private:
    TBitmap FBitmap;
};

} // namespace

const TMetaClass& TCustomImageList::MetaClass()
{
    static const TMetaClass Class("TCustomImageList", &TComponent::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TImageList::MetaClass()
{
    static const TMetaClass Class("TImageList", &TCustomImageList::MetaClass(), CreateComponent<TImageList>,
                                  {
                                      OBX_ROW(TImageList, AllocBy).Default(4),
                                      OBX_ROW(TImageList, BlendColor).Default(clNone),
                                      OBX_ROW(TImageList, BkColor).Default(clNone),
                                      OBX_ROW(TImageList, ColorDepth).Default(cdDeviceDependent),
                                      OBX_ROW(TImageList, DrawingStyle).Default(dsNormal),
                                      OBX_ROW(TImageList, Height).Default(16),
                                      OBX_ROW(TImageList, ImageType).Default(itImage),
                                      OBX_ROW(TImageList, Masked).Default(true),
                                      OBX_ROW(TImageList, ShareImages).Default(false),
                                      OBX_ROW(TImageList, Width).Default(16),
                                      Prop<&TImageList::OnChange>("OnChange"),
                                  });
    return Class;
}

TCustomImageList::TCustomImageList(TComponent* Owner) : TComponent(Owner) {}

TCustomImageList::~TCustomImageList()
{
    FreeHandle();
}

void TCustomImageList::DefineProperties(TFiler& Filer)
{
    TComponent::DefineProperties(Filer);
    Filer.DefineBinaryProperty(
        "Bitmap", [this](TStream& Stream) { ReadBitmap(Stream); },
        [this](TStream& Stream) { Stream.WriteBytes(FStored); }, !FStored.empty());
}

void TCustomImageList::ReadBitmap(TStream& Stream)
{
    FreeHandle();
    FStored = Stream.ReadRest();
    Changed();
}

void TCustomImageList::Assign(const TPersistent* Source)
{
    const auto* const List = dynamic_cast<const TCustomImageList*>(Source);
    if (!List) {
        TComponent::Assign(Source);
        return;
    }
    FreeHandle();
    FWidth = List->FWidth;
    FHeight = List->FHeight;
    FStored = List->FStored;
    if (FStored.empty() && List->FHandle)
        FHandle = ImageList_Duplicate(List->FHandle);
    Changed();
}

void TCustomImageList::SetWidth(int Value)
{
    if (FWidth == Value)
        return;
    FWidth = Value;
    FreeHandle();
    Changed();
}

void TCustomImageList::SetHeight(int Value)
{
    if (FHeight == Value)
        return;
    FHeight = Value;
    FreeHandle();
    Changed();
}

HIMAGELIST TCustomImageList::Handle()
{
    if (!FHandle)
        CreateHandle();
    return FHandle;
}

int TCustomImageList::Count()
{
    return ImageList_GetImageCount(Handle());
}

int TCustomImageList::Add(TBitmap* Image, TBitmap* Mask)
{
    const int Index = ImageList_Add(Handle(), Image->Handle(), Mask ? Mask->Handle() : nullptr);
    PicturesChanged();
    return Index;
}

int TCustomImageList::AddMasked(TBitmap* Image, TColor MaskColor)
{
    const int Index = ImageList_AddMasked(Handle(), Image->Handle(), ColorToRGB(MaskColor));
    PicturesChanged();
    return Index;
}

void TCustomImageList::Delete(int Index)
{
    ImageList_Remove(Handle(), Index);
    PicturesChanged();
}

void TCustomImageList::Clear()
{
    ImageList_Remove(Handle(), -1);
    PicturesChanged();
}

void TCustomImageList::Draw(TCanvas* Canvas, int X, int Y, int Index, bool Enabled)
{
    if (Index >= 0 && Index < Count())
        ImageList_Draw(Handle(), Index, Canvas->Handle(), X, Y, Enabled ? ILD_TRANSPARENT : ILD_BLEND50);
}

bool TCustomImageList::GetBitmap(int Index, TBitmap* Image)
{
    if (Index < 0 || Index >= Count())
        return false;
    Image->SetSize(FWidth, FHeight);
    Image->Canvas()->Brush()->SetColor(clBtnFace);
    Image->Canvas()->FillRect(Bounds(0, 0, FWidth, FHeight));
    Draw(Image->Canvas(), 0, 0, Index);
    return true;
}

void TCustomImageList::CreateHandle()
{
    FHandle = ImageList_Create(FWidth, FHeight, ILC_COLOR32 | (FMasked ? ILC_MASK : 0u), FAllocBy, FAllocBy);
    if (FHandle && !FStored.empty())
        AddStored();
}

void TCustomImageList::AddStored()
{
    TStoredList List;
    if (!Decode(FStored, List) || List.Width != FWidth || List.Height != FHeight)
        return;
    try {
        TStrip Pictures(List.Pictures);
        TStrip Masks(List.Masks);
        for (int I = 0; I < List.Count; ++I) {
            TBitmap Picture;
            TBitmap Mask;
            if (!Pictures.CopyTo(Picture, I, FWidth, FHeight))
                return;
            const bool HasMask = Masks.CopyTo(Mask, I, FWidth, FHeight);
            ImageList_Add(FHandle, Picture.Handle(), HasMask ? Mask.Handle() : nullptr);
        }
    } catch (const Exception&) {
        // A kind of bitmap that is only kept.
    }
}

void TCustomImageList::FreeHandle()
{
    if (FHandle)
        ImageList_Destroy(FHandle);
    FHandle = nullptr;
}

void TCustomImageList::PicturesChanged()
{
    FStored.clear();
    Changed();
}

void TCustomImageList::Changed()
{
    if (OnChange && !HasState(csLoading))
        OnChange(this);
}

void TCustomImageList::PropertyChanged()
{
    Changed();
}

void RegisterImageListClasses()
{
    RegisterClass(TImageList::MetaClass());
}
