#include "framework/forms/DialogUnits.h"

TDialogUnits::TDialogUnits(TCanvas& Canvas)
{
    const std::string Letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    const TSize Size = Canvas.TextExtent(Letters);
    FWidth = static_cast<int>(Size.cx) / static_cast<int>(Letters.size());
    FHeight = static_cast<int>(Size.cy);
}
