// New translators as form files have them.
#pragma once

#include <string>
#include <vector>

#include "wizard/ProjectScan.h"

// The properties of a translator, but for its name and its place in the designer.
struct TTranslatorObject {
    std::string ClassName;
    int Locale = 0;
    std::vector<TFormProperty> Before; // "Left" and "Top"
    std::vector<TFormProperty> After;
};

// A form, resource or dialog translator. FileName is that of the translations file.
TTranslatorObject TranslatorObject(const std::string& ClassName, int Locale, const std::string& FileName);

// A button translator that follows Locale with the built-in captions of its language;
// with Locale 0 it is on, and has no captions.
TTranslatorObject ButtonTranslatorObject(int Locale);

// A locale translator that starts with the user's locale and shows OwnLocale, a locale
// value string, when it has no entries for that.
TTranslatorObject LocaleTranslatorObject(const std::string& OwnLocale, const std::string& FileName);

// The object to be added to Root, at a place where the designer shows no other icon.
TFormObject MakeFormObject(TTranslatorObject Object, const std::string& Name, const TFormObject& Root);

// What a descendant's form file says of a translator that its ancestor has.
TFormObject InheritedObject(const TFormObject& Ancestor);

// The first of Names that no component of the form and its ancestors has; the last
// one with a number when all are taken.
std::string FreeName(const TProjectScan& Scan, const TFoundForm& Form, const std::vector<std::string>& Names);
