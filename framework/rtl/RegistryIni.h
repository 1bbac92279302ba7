// Settings of a program, kept in the registry and seen as an ini file.
#pragma once

#include <string>

class TStrings;

// The "file" is a key below HKEY_CURRENT_USER, a section is a key in it, and what
// stands in a section are the key's values:
//     TRegIniFile Settings("Software\\Booking");
//     Settings.WriteInteger("Window", "Width", 640);
//     const int Width = Settings.ReadInteger("Window", "Width", 800);
//
// Values are written as text: integers in decimal, booleans as 1 and 0. All texts
// are UTF-8 of any length. Names are compared without case. A section of the name ""
// is the file's key itself, a value of the name "" the one that a key has without
// name. The name of a section holds no "\", and nothing holds a zero character.
//
// Reading never throws and makes no keys: what is missing, or cannot be read, is the
// default. Writing makes the section's key when there is none, and throws
// ERegistryException with the full name of the value when the system refuses it or
// a name is none.
//
// No key is kept open: what another program writes, or removes, is seen at the next
// call. Any thread.
class TRegIniFile {
public:
    // Makes the file's key when there is none. Where that cannot be done, as for a
    // path that begins with "\", reading gives defaults, and the first writing throws.
    explicit TRegIniFile(const std::string& FileName);

    // As it was given: "Software\Booking".
    const std::string& FileName() const { return FFileName; }

    // A number of 32 bits that another program wrote reads as the text of its digits.
    // Data of any other kind that is no text are taken for missing.
    std::string ReadString(const std::string& Section, const std::string& Ident,
                           const std::string& Default) const;
    // Default for a text that is no number (StrToInt tells what is one).
    int ReadInteger(const std::string& Section, const std::string& Ident, int Default) const;
    // True for every number but 0; Default for a text that is no number.
    bool ReadBool(const std::string& Section, const std::string& Ident, bool Default) const;

    void WriteString(const std::string& Section, const std::string& Ident, const std::string& Value);
    void WriteInteger(const std::string& Section, const std::string& Ident, int Value);
    void WriteBool(const std::string& Section, const std::string& Ident, bool Value);

    // Remove a value, and a section with all that is below it; what is not there is
    // passed over. Throw as writing does. The section "" cannot be erased.
    void DeleteKey(const std::string& Section, const std::string& Ident);
    void EraseSection(const std::string& Section);

    // Fill Strings, which is cleared first, in the order that the registry keeps:
    // with the names of a section's values, with those values as lines Name=Value,
    // with the names of the sections.
    void ReadSection(const std::string& Section, TStrings& Strings) const;
    void ReadSectionValues(const std::string& Section, TStrings& Strings) const;
    void ReadSections(TStrings& Strings) const;

    bool SectionExists(const std::string& Section) const;
    // Also true for data that are no text.
    bool ValueExists(const std::string& Section, const std::string& Ident) const;

private:
    // The path below HKEY_CURRENT_USER; empty for a name that no section can have.
    std::string PathOf(const std::string& Section) const;
    [[noreturn]] void RaiseWriteError(const std::string& Section, const std::string& Ident) const;

    std::string FFileName;
};
