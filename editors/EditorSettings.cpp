#include "editors/EditorSettings.h"

#include <cstdio>

#include "framework/forms/Screen.h"
#include "framework/rtl/FormatText.h"

namespace {

constexpr char PlaceName[] = "WindowPlace";
constexpr char Maximized[] = "Maximized";

} // namespace

bool TEditorSettings::Flag(const std::string& Name, bool Default)
{
    return FFile.ReadBool(FSection, Name, Default);
}

int TEditorSettings::Number(const std::string& Name, int Default)
{
    return FFile.ReadInteger(FSection, Name, Default);
}

std::string TEditorSettings::Text(const std::string& Name, const std::string& Default)
{
    return FFile.ReadString(FSection, Name, Default);
}

void TEditorSettings::SetFlag(const std::string& Name, bool Value)
{
    FFile.WriteBool(FSection, Name, Value);
}

void TEditorSettings::SetNumber(const std::string& Name, int Value)
{
    FFile.WriteInteger(FSection, Name, Value);
}

void TEditorSettings::SetText(const std::string& Name, const std::string& Value)
{
    FFile.WriteString(FSection, Name, Value);
}

std::vector<std::string> TEditorSettings::Texts(const std::string& NameFormat)
{
    std::vector<std::string> Result;
    for (;;) {
        std::string Value = Text(Format(NameFormat, {std::to_string(Result.size())}));
        if (Value.empty())
            return Result;
        Result.push_back(std::move(Value));
    }
}

void TEditorSettings::SetTexts(const std::string& NameFormat, const std::vector<std::string>& Values)
{
    const auto Name = [&](size_t Index) { return Format(NameFormat, {std::to_string(Index)}); };
    for (size_t I = 0; I < Values.size(); ++I)
        SetText(Name(I), Values[I]);
    for (size_t I = Values.size(); !Text(Name(I)).empty(); ++I)
        SetText(Name(I), "");
}

void TEditorSettings::RestorePlace(TForm& Form)
{
    const std::string Value = Text(PlaceName);
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    // NOLINTNEXTLINE(cert-err34-c): a number out of range is brought into it below.
    if (std::sscanf(Value.c_str(), "%d,%d,%d,%d", &Left, &Top, &Width, &Height) == 4) {
        Form.SetPosition(poDesigned);
        Form.SetBounds(Left, Top, Width, Height);
        Form.MakeFullyVisible();
    }
    if (Value.ends_with(Maximized))
        Form.SetWindowState(wsMaximized);
}

void TEditorSettings::SavePlace(TForm& Form)
{
    // The place of a window that fills the screen is where it returns to.
    WINDOWPLACEMENT Placement{};
    Placement.length = sizeof Placement;
    if (!GetWindowPlacement(Form.Handle(), &Placement))
        return;
    const RECT& Place = Placement.rcNormalPosition;
    SetText(PlaceName, Format("%d,%d,%d,%d%s",
                              {Place.left, Place.top, Place.right - Place.left, Place.bottom - Place.top,
                               Form.WindowState() == wsMaximized ? std::string(" ") + Maximized : ""}));
}
