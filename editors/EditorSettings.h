// What an editor remembers for the user, in the registry.
#pragma once

#include <string>
#include <vector>

#include "framework/forms/Form.h"
#include "framework/rtl/RegistryIni.h"

// The values of one editor, in its section below Software\Quillmark of the current
// user. Reading never fails; writing throws as TRegIniFile.
class TEditorSettings {
public:
    explicit TEditorSettings(std::string Section) : FSection(std::move(Section)) {}

    bool Flag(const std::string& Name, bool Default);
    int Number(const std::string& Name, int Default);
    std::string Text(const std::string& Name, const std::string& Default = "");
    void SetFlag(const std::string& Name, bool Value);
    void SetNumber(const std::string& Name, int Value);
    void SetText(const std::string& Name, const std::string& Value);

    // Values named by NameFormat with the numbers 0, 1, 2...; they end before the
    // first empty one. SetTexts blanks those that are left over of a longer list.
    std::vector<std::string> Texts(const std::string& NameFormat);
    void SetTexts(const std::string& NameFormat, const std::vector<std::string>& Values);

    // The place and size of the window, or that it fills the screen. A form that was
    // never saved keeps its own; one whose place is off the screen is moved onto it.
    void RestorePlace(TForm& Form);
    void SavePlace(TForm& Form);

private:
    TRegIniFile FFile{"Software\\Quillmark"};
    std::string FSection;
};
