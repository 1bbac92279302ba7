#include "Qct/DialogFonts.h"

#include <algorithm>
#include <cstring>

#include "framework/rtl/Utf8.h"

namespace {

bool Describe(HFONT Font, LOGFONTA& Description)
{
    Description = {};
    return Font && GetObjectA(Font, sizeof Description, &Description) != 0;
}

bool IsSame(HFONT A, HFONT B)
{
    LOGFONTA OfA, OfB;
    if (!Describe(A, OfA) || !Describe(B, OfB))
        return false;
    const std::string NameOfA = OfA.lfFaceName;
    const std::string NameOfB = OfB.lfFaceName;
    return std::memcmp(&OfA, &OfB, offsetof(LOGFONTA, lfFaceName)) == 0 && NameOfA == NameOfB;
}

} // namespace

std::string GetFontName(HFONT Font)
{
    LOGFONTA Description;
    return Describe(Font, Description) ? Description.lfFaceName : "System";
}

uint8_t GetFontCharset(HFONT Font)
{
    LOGFONTA Description;
    return Describe(Font, Description) ? Description.lfCharSet : DEFAULT_CHARSET;
}

HFONT SetFontName(HFONT Font, const std::string& Name)
{
    LOGFONTA Description;
    if (!Describe(Font, Description))
        return Font;
    const std::string_view Fitting = CutAtCharacter(Name, LF_FACESIZE - 1);
    std::memset(Description.lfFaceName, 0, LF_FACESIZE);
    std::copy(Fitting.begin(), Fitting.end(), Description.lfFaceName);
    return CreateFontIndirectA(&Description);
}

HFONT SetFontCharset(HFONT Font, uint8_t Charset)
{
    LOGFONTA Description;
    if (!Describe(Font, Description))
        return Font;
    Description.lfCharSet = Charset;
    return CreateFontIndirectA(&Description);
}

void SetFontOfChildren(HWND FirstChild, HFONT Font)
{
    for (HWND Each = FirstChild; Each; Each = GetWindow(Each, GW_HWNDNEXT)) {
        SendMessageA(Each, WM_SETFONT, reinterpret_cast<WPARAM>(Font), 0);
        SetFontOfChildren(GetWindow(Each, GW_CHILD), Font);
    }
}

TDialogFonts::~TDialogFonts()
{
    for (const auto& [Dialog, Font] : FFonts)
        DeleteObject(Font);
}

HFONT TDialogFonts::Keep(HWND Dialog, HFONT Made)
{
    Release();
    for (const auto& [Owner, Font] : FFonts)
        if (Owner == Dialog && IsSame(Font, Made)) {
            DeleteObject(Made);
            return Font;
        }
    FFonts.emplace_back(Dialog, Made);
    return Made;
}

void TDialogFonts::Release()
{
    std::erase_if(FFonts,
                  [](const auto& Each) { return !IsWindow(Each.first) && DeleteObject(Each.second); });
}
