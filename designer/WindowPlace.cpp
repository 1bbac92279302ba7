#include "designer/WindowPlace.h"

#include "framework/rtl/RegistryIni.h"

namespace {

constexpr const char* Key = "Software\\Quillmark";
constexpr const char* Section = "Designer";

} // namespace

void RestoreWindowPlace(TForm& Form)
{
    const TRegIniFile Settings(Key);
    const auto Read = [&](const char* Name, int Present) {
        return Settings.ReadInteger(Section, Name, Present);
    };
    Form.SetBounds(Read("Left", Form.Left()), Read("Top", Form.Top()), Read("Width", Form.Width()),
                   Read("Height", Form.Height()));
    Form.MakeFullyVisible();
    if (Settings.ReadBool(Section, "Maximized", false))
        Form.SetWindowState(wsMaximized);
}

void KeepWindowPlace(TForm& Form)
{
    WINDOWPLACEMENT Placement{};
    Placement.length = sizeof Placement;
    if (!GetWindowPlacement(Form.Handle(), &Placement))
        return;
    TRegIniFile Settings(Key);
    const RECT& Normal = Placement.rcNormalPosition;
    const std::pair<const char*, LONG> Values[] = {{"Left", Normal.left},
                                                   {"Top", Normal.top},
                                                   {"Width", Normal.right - Normal.left},
                                                   {"Height", Normal.bottom - Normal.top}};
    for (const auto& [Name, Value] : Values)
        Settings.WriteInteger(Section, Name, static_cast<int>(Value));
    Settings.WriteBool(Section, "Maximized", Form.WindowState() == wsMaximized);
}
