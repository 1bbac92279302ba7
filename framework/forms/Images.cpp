#include "framework/forms/Images.h"

#include <algorithm>

#include "framework/forms/ControlRows.h"

const TMetaClass& TImage::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TImage", &TGraphicControl::MetaClass(), CreateComponent<TImage>,
        Sorted(Base(), Drag(), Mouse(), ControlRows::AutoSize(false), OBX_ROW(TImage, Center).Default(false),
               OBX_ROW(TImage, IncrementalDisplay).Default(false), OBX_ROW(TImage, Picture),
               OBX_ROW(TImage, Proportional).Default(false), OBX_ROW(TImage, Stretch).Default(false),
               OBX_ROW(TImage, Transparent).Default(false)));
    return Class;
}

const TMetaClass& TPaintBox::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class("TPaintBox", &TGraphicControl::MetaClass(), CreateComponent<TPaintBox>,
                                  Sorted(Look(), Drag(), Mouse(), Prop<&TPaintBox::OnPaint>("OnPaint")));
    return Class;
}

TImage::TImage(TComponent* Owner) : TGraphicControl(Owner), FPicture(std::make_unique<TPicture>())
{
    FControlStyle.Include(csReplicatable);
    SetBounds(0, 0, 105, 105);
    FPicture->OnChange = {this, &TImage::PictureChanged};
}

TImage::~TImage() = default;

void TImage::PictureChanged(TObject*)
{
    if (AutoSize() && !IsLoading() && FPicture->Width() > 0 && FPicture->Height() > 0)
        SetBounds(Left(), Top(), FPicture->Width(), FPicture->Height());
    Invalidate();
}

bool TImage::CanAutoSize(int& NewWidth, int& NewHeight)
{
    if (FPicture->Width() <= 0 || FPicture->Height() <= 0)
        return true;
    if (Align() == alNone || Align() == alLeft || Align() == alRight)
        NewWidth = FPicture->Width();
    if (Align() == alNone || Align() == alTop || Align() == alBottom)
        NewHeight = FPicture->Height();
    return true;
}

TRect TImage::DestRect() const
{
    int W = FPicture->Width();
    int H = FPicture->Height();
    const bool TooBig = W > Width() || H > Height();
    if (Proportional() && (Stretch() || TooBig) && W > 0 && H > 0) {
        const double Scale = std::min(static_cast<double>(Width()) / W, static_cast<double>(Height()) / H);
        W = static_cast<int>(W * Scale);
        H = static_cast<int>(H * Scale);
    } else if (Stretch()) {
        W = Width();
        H = Height();
    }
    return Center() ? Bounds((Width() - W) / 2, (Height() - H) / 2, W, H) : Bounds(0, 0, W, H);
}

void TImage::Paint()
{
    if (TGraphic* const Graphic = FPicture->Graphic())
        Graphic->Draw(*Canvas(), DestRect());
}

TPaintBox::TPaintBox(TComponent* Owner) : TGraphicControl(Owner)
{
    FControlStyle.Include(csReplicatable);
    SetBounds(0, 0, 105, 105);
}

void TPaintBox::Paint()
{
    Canvas()->Font()->Assign(Font());
    Canvas()->Brush()->SetColor(Color());
    if (OnPaint)
        OnPaint(this);
}
