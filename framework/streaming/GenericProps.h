// Properties for classes that the program does not have, made from the values
// that a form file gives them.
#pragma once

#include <string>
#include <string_view>

#include "framework/rtl/Persistent.h"
#include "framework/rtl/Strings.h"
#include "framework/streaming/FormValue.h"

// A value that is kept as the file has it.
class TFormValueHolder : public TPersistent {
    OBX_CLASS(TPersistent)
public:
    explicit TFormValueHolder(TFormValue AValue) : Value(std::move(AValue)) {}
    TFormValue Value;
};

// The texts of a list that is a property's own value, `Cells = (...)`, as
// against `Items.Strings = (...)`. Each text is a line; numbers between them are
// kept where they are.
class TFormListTexts : public TStringList {
    OBX_CLASS(TStringList)
public:
    explicit TFormListTexts(TFormValue List);
    // The list with the texts that the lines have now.
    TFormValue Value() const;
    void DefineProperties(TFiler&) override {}

private:
    TFormValue FList;
};

// Gives Instance the property Path with a kind that follows from Value. The
// names before the last one become sub-objects; `Items.Strings` becomes a string
// list under Items. A property that is there already is replaced.
void AddGenericProperty(TPersistent& Instance, std::string_view Path, const TFormValue& Value);
