#include "framework/forms/Pictures.h"

#include <vector>

#include "framework/forms/DibFile.h"
#include "framework/rtl/Filer.h"
#include "framework/rtl/Streams.h"
#include "framework/rtl/SysUtils.h"

namespace {

struct TFormat {
    std::string Extension;
    std::string ClassName;
    TPicture::TGraphicFactory Factory;
};

template<class T>
std::unique_ptr<TGraphic> Make()
{
    return std::make_unique<T>();
}

std::vector<TFormat>& Formats()
{
    static std::vector<TFormat> List = {{".bmp", "TBitmap", Make<TBitmap>},
                                        {".ico", "TIcon", Make<TIcon>},
                                        {".wmf", "TMetafile", Make<TMetafile>},
                                        {".emf", "TMetafile", Make<TMetafile>}};
    return List;
}

std::unique_ptr<TGraphic> MakeGraphic(const std::string& ClassName)
{
    for (const TFormat& Format : Formats())
        if (SameText(Format.ClassName, ClassName))
            return Format.Factory();
    return std::make_unique<TUnknownGraphic>(ClassName);
}

std::string GraphicClassName(const TGraphic& Graphic)
{
    const auto* const Unknown = dynamic_cast<const TUnknownGraphic*>(&Graphic);
    return Unknown ? Unknown->GraphicClass() : Graphic.ClassName();
}

std::unique_ptr<TGraphic> Copy(const TGraphic& Source)
{
    std::unique_ptr<TGraphic> Result = MakeGraphic(GraphicClassName(Source));
    Result->Assign(&Source);
    return Result;
}

} // namespace

const TMetaClass& TGraphic::MetaClass()
{
    static const TMetaClass Class("TGraphic", &TPersistent::MetaClass(), nullptr);
    return Class;
}

void TGraphic::LoadFromFile(const std::string& FileName)
{
    TMemoryStream Stream;
    Stream.LoadFromFile(FileName);
    Stream.SetPosition(0);
    LoadFromStream(Stream);
}

void TGraphic::SaveToFile(const std::string& FileName) const
{
    TMemoryStream Stream;
    SaveToStream(Stream);
    Stream.SaveToFile(FileName);
}

void TGraphic::DefineProperties(TFiler& Filer)
{
    Filer.DefineBinaryProperty(
        "Data", [this](TStream& Stream) { ReadData(Stream); }, [this](TStream& Stream) { WriteData(Stream); },
        !Empty());
}

void TGraphic::SetTransparent(bool Value)
{
    if (FTransparent == Value)
        return;
    FTransparent = Value;
    Changed();
}

void TGraphic::Changed()
{
    if (OnChange)
        OnChange(this);
}

const TMetaClass& TKeptGraphic::MetaClass()
{
    static const TMetaClass Class("TKeptGraphic", &TGraphic::MetaClass(), nullptr);
    return Class;
}

void TKeptGraphic::Assign(const TPersistent* Source)
{
    const auto* const Other = dynamic_cast<const TKeptGraphic*>(Source);
    if (Source && !Other)
        return inherited::Assign(Source);
    FBytes = Other ? Other->FBytes : std::string();
    Changed();
}

void TKeptGraphic::LoadFromStream(TStream& Stream)
{
    FBytes = Stream.ReadRest();
    Changed();
}

void TKeptGraphic::SaveToStream(TStream& Stream) const
{
    Stream.WriteBytes(FBytes);
}

const TMetaClass& TIcon::MetaClass()
{
    static const TMetaClass Class("TIcon", &TKeptGraphic::MetaClass(), nullptr);
    return Class;
}

TIcon::~TIcon()
{
    if (FHandle)
        DestroyIcon(FHandle);
}

int TIcon::Width() const
{
    TDibSize Size;
    return ReadIconFileSize(FBytes, Size) ? Size.Width : FHandle ? GetSystemMetrics(SM_CXICON) : 0;
}

int TIcon::Height() const
{
    TDibSize Size;
    return ReadIconFileSize(FBytes, Size) ? Size.Height : FHandle ? GetSystemMetrics(SM_CYICON) : 0;
}

HICON TIcon::Handle()
{
    if (!FHandle && !FBytes.empty())
        FHandle = IconFromFile(FBytes);
    return FHandle;
}

void TIcon::SetHandle(HICON Value)
{
    FBytes.clear();
    Changed();
    FHandle = Value;
}

// Only new bytes come here: the handle made of the old ones is out of date.
void TIcon::Changed()
{
    if (FHandle)
        DestroyIcon(FHandle);
    FHandle = nullptr;
    inherited::Changed();
}

void TIcon::Draw(TCanvas& Canvas, const TRect& Rect)
{
    if (Handle())
        DrawIconEx(Canvas.Handle(), static_cast<int>(Rect.left), static_cast<int>(Rect.top), FHandle,
                   RectWidth(Rect), RectHeight(Rect), 0, nullptr, DI_NORMAL);
}

const TMetaClass& TMetafile::MetaClass()
{
    static const TMetaClass Class("TMetafile", &TKeptGraphic::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TUnknownGraphic::MetaClass()
{
    static const TMetaClass Class("TUnknownGraphic", &TKeptGraphic::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TPicture::MetaClass()
{
    static const TMetaClass Class("TPicture", &TPersistent::MetaClass(), nullptr);
    return Class;
}

TPicture::~TPicture() = default;

void TPicture::RegisterFileFormat(const std::string& Extension, const std::string& ClassName,
                                  TGraphicFactory Factory)
{
    Formats().push_back({Extension, ClassName, Factory});
}

void TPicture::Assign(const TPersistent* Source)
{
    if (!Source)
        return SetGraphic(nullptr);
    const TGraphic* Graphic = nullptr;
    if (const auto* const Picture = dynamic_cast<const TPicture*>(Source))
        Graphic = Picture->FGraphic.get();
    else if (const auto* const Other = dynamic_cast<const TGraphic*>(Source))
        Graphic = Other;
    else
        return inherited::Assign(Source);
    SetGraphic(Graphic ? Copy(*Graphic) : nullptr);
}

void TPicture::SetGraphic(std::unique_ptr<TGraphic> Value)
{
    FGraphic = std::move(Value);
    if (FGraphic)
        FGraphic->OnChange = {this, &TPicture::GraphicChanged};
    Changed();
}

TBitmap* TPicture::Bitmap()
{
    if (!dynamic_cast<TBitmap*>(FGraphic.get()))
        SetGraphic(std::make_unique<TBitmap>());
    return static_cast<TBitmap*>(FGraphic.get());
}

TIcon* TPicture::Icon()
{
    if (!dynamic_cast<TIcon*>(FGraphic.get()))
        SetGraphic(std::make_unique<TIcon>());
    return static_cast<TIcon*>(FGraphic.get());
}

void TPicture::LoadFromFile(const std::string& FileName)
{
    const std::string Extension = ExtractFileExt(FileName);
    for (const TFormat& Format : Formats())
        if (SameText(Format.Extension, Extension)) {
            std::unique_ptr<TGraphic> Graphic = Format.Factory();
            Graphic->LoadFromFile(FileName);
            return SetGraphic(std::move(Graphic));
        }
    throw EInvalidGraphic(Format(SUnknownExtension, {Extension}));
}

void TPicture::SaveToFile(const std::string& FileName) const
{
    if (FGraphic)
        FGraphic->SaveToFile(FileName);
}

void TPicture::DefineProperties(TFiler& Filer)
{
    Filer.DefineBinaryProperty(
        "Data", [this](TStream& Stream) { ReadData(Stream); }, [this](TStream& Stream) { WriteData(Stream); },
        FGraphic && (!FGraphic->Empty()));
}

void TPicture::ReadData(TStream& Stream)
{
    unsigned char Length = 0;
    Stream.ReadBuffer(&Length, 1);
    std::string ClassName(Length, '\0');
    Stream.ReadBuffer(ClassName.data(), Length);
    std::unique_ptr<TGraphic> Graphic = MakeGraphic(ClassName);
    Graphic->ReadData(Stream);
    SetGraphic(std::move(Graphic));
}

void TPicture::WriteData(TStream& Stream) const
{
    const std::string ClassName = GraphicClassName(*FGraphic).substr(0, 255);
    const auto Length = static_cast<unsigned char>(ClassName.size());
    Stream.WriteBuffer(&Length, 1);
    Stream.WriteBytes(ClassName);
    FGraphic->WriteData(Stream);
}

void TPicture::GraphicChanged(TObject*)
{
    Changed();
}

void TPicture::Changed()
{
    if (OnChange)
        OnChange(this);
}
