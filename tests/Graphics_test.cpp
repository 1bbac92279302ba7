#include "framework/forms/Graphics.h"

#include <gtest/gtest.h>

#include "framework/forms/Application.h"
#include "framework/rtl/Streams.h"
#include "framework/rtl/SysUtils.h"

namespace {

struct TGraphics : testing::Test {
    TApplicationScope Scope;
};

std::string Bytes(std::initializer_list<int> Values)
{
    std::string Result;
    for (const int Value : Values)
        Result += static_cast<char>(Value);
    return Result;
}

// A 2 by 1 bitmap of 24 bits: a red pixel, then a blue one.
std::string SmallBitmap()
{
    return Bytes({'B', 'M', 62, 0, 0, 0, 0, 0,  0, 0, 54, 0, 0, 0, 40,  0,   0, 0, 2, 0, 0,
                  0,   1,   0,  0, 0, 1, 0, 24, 0, 0, 0,  0, 0, 0, 8,   0,   0, 0, 0, 0, 0,
                  0,   0,   0,  0, 0, 0, 0, 0,  0, 0, 0,  0, 0, 0, 255, 255, 0, 0, 0, 0});
}

std::string Written(const TGraphic& Graphic)
{
    TMemoryStream Stream;
    Graphic.WriteData(Stream);
    return Stream.Bytes();
}

} // namespace

// A colour whose second name is written changes every form file it is in.
TEST_F(TGraphics, NamesColoursCursorsAndCharsets)
{
    const struct {
        const TIntegerIdents& Idents;
        int Value;
        const char* Read;
        const char* Written;
    } Cases[] = {
        {ColorIdents, clRed, "clred", "clRed"},
        {ColorIdents, clSilver, "clLtGray", "clSilver"},
        {ColorIdents, clBtnFace, "cl3DFace", "clBtnFace"},
        {ColorIdents, clNone, "clNone", "clNone"},
        {CursorIdents, crHourGlass, "crHourGlass", "crHourGlass"},
        {CursorIdents, crSizeAll, "crSize", "crSizeAll"},
        {CharsetIdents, RUSSIAN_CHARSET, "RUSSIAN_CHARSET", "RUSSIAN_CHARSET"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Read);
        int Value = 12345;
        ASSERT_TRUE(Case.Idents.IdentToInt(Case.Read, Value));
        EXPECT_EQ(Value, Case.Value);
        std::string Ident;
        ASSERT_TRUE(Case.Idents.IntToIdent(Case.Value, Ident));
        EXPECT_EQ(Ident, Case.Written);
    }
    int Value = 7;
    EXPECT_FALSE(IdentToColor("clNobody", Value));
    EXPECT_EQ(Value, 7);
    EXPECT_EQ(ColorToString(static_cast<TColor>(0x123456)), "$00123456");
    EXPECT_EQ(StringToColor("$FF00000F"), clBtnFace);
    EXPECT_THROW(StringToColor("red?"), EConvertError);
}

TEST_F(TGraphics, FontSizeAndHeightAreOneValue)
{
    TFont Font;
    Font.SetPixelsPerInch(96);
    EXPECT_EQ(Font.Size(), 8);
    const struct {
        int Size;
        int Height;
    } Cases[] = {{8, -11}, {10, -13}, {12, -16}, {24, -32}};
    for (const auto& Case : Cases) {
        Font.SetSize(Case.Size);
        EXPECT_EQ(Font.Height(), Case.Height);
        EXPECT_EQ(Font.Size(), Case.Size);
    }
}

// The canvas kept a font's handle that the change had destroyed.
TEST_F(TGraphics, CanvasFollowsItsFont)
{
    TScreenCanvas Canvas;
    Canvas.Font()->SetName("Arial");
    Canvas.Font()->SetSize(8);
    const int Small = Canvas.TextWidth("Hello");
    Canvas.Font()->SetSize(24);
    const int Large = Canvas.TextWidth("Hello");
    EXPECT_GT(Small, 0);
    EXPECT_GT(Large, 2 * Small);
    EXPECT_EQ(Canvas.TextWidth(""), 0);
}

TEST_F(TGraphics, FontsThatAreAlikeShareAHandle)
{
    TFont A;
    TFont B;
    EXPECT_EQ(A.Handle(), B.Handle());
    B.SetStyle({fsBold});
    EXPECT_NE(A.Handle(), B.Handle());
    B.Assign(&A);
    EXPECT_EQ(A.Handle(), B.Handle());
}

// Form files hold bitmaps of formats that nobody here can draw; they must come
// out as they went in.
TEST_F(TGraphics, BitmapKeepsItsBytes)
{
    const std::string File = SmallBitmap();
    const struct {
        const char* Name;
        std::string Data;
        int Width;
        bool Drawable;
    } Cases[] = {
        {"length and file", Bytes({62, 0, 0, 0}) + File, 2, true},
        {"file alone", File, 2, true},
        {"another format", Bytes({4, 0, 0, 0}) + "\x89PNG", 0, false},
        {"cut off", File.substr(0, 56), 2, false},
        {"empty", Bytes({0, 0, 0, 0}), 0, false},
        {"absurd width", File.substr(0, 18) + Bytes({255, 255, 255, 127}) + File.substr(22), 0, false},
        {"pixels beyond the end", File.substr(0, 10) + Bytes({255, 255, 255, 255}) + File.substr(14), 2,
         false},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        TBitmap Bitmap;
        TMemoryStream Stream(Case.Data);
        Bitmap.ReadData(Stream);
        EXPECT_EQ(Written(Bitmap), Case.Data);
        EXPECT_EQ(Bitmap.Width(), Case.Width);
        EXPECT_EQ(Bitmap.Handle() != nullptr, Case.Drawable);
    }
}

TEST_F(TGraphics, BitmapShowsItsPixelsAndWhatIsDrawn)
{
    TBitmap Bitmap;
    TMemoryStream Stream(SmallBitmap());
    Bitmap.LoadFromStream(Stream);
    EXPECT_EQ(Bitmap.Canvas()->Pixels(0, 0), clRed);
    EXPECT_EQ(Bitmap.Canvas()->Pixels(1, 0), clBlue);
    Bitmap.Canvas()->SetPixels(0, 0, clLime);

    TMemoryStream Saved;
    Bitmap.SaveToStream(Saved);
    TBitmap Again;
    Saved.SetPosition(0);
    Again.LoadFromStream(Saved);
    EXPECT_EQ(Again.Canvas()->Pixels(0, 0), clLime);
    EXPECT_EQ(Again.Canvas()->Pixels(1, 0), clBlue);

    TMemoryStream Text("no bitmap");
    EXPECT_THROW(Again.LoadFromStream(Text), EInvalidGraphic);
}

TEST_F(TGraphics, PictureKeepsGraphicsOfUnknownClasses)
{
    TPicture Picture;
    TPicture Copy;
    auto Graphic = std::make_unique<TUnknownGraphic>("TPngImage");
    TMemoryStream Stream("png bytes");
    Graphic->LoadFromStream(Stream);
    Picture.SetGraphic(std::move(Graphic));
    Copy.Assign(&Picture);
    const auto* const Kept = dynamic_cast<TUnknownGraphic*>(Copy.Graphic());
    ASSERT_NE(Kept, nullptr);
    EXPECT_EQ(Kept->GraphicClass(), "TPngImage");
    EXPECT_EQ(Kept->Bytes(), "png bytes");
    EXPECT_EQ(Copy.Bitmap()->Width(), 0);
    EXPECT_EQ(Picture.Graphic()->ClassName(), "TUnknownGraphic");
}
