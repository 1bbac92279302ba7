// Form files that are compiled into the program.
#pragma once

#include <string>
#include <string_view>

#include "framework/rtl/Component.h"

// Text is a form file, text or binary, that objects of the class start from; it
// is not copied and must live as long as the program.
void RegisterFormResource(const std::string& ClassName, std::string_view Text);

// The form file of the class; null if there is none.
const std::string_view* FindFormResource(const std::string& ClassName);

// Reads the form file of a class into Root.
using TFormLoader = void (*)(TComponent& Root, const std::string& ClassName);
void SetFormLoader(TFormLoader Value);

// Reads the form files of Instance's class and of its ancestors below
// RootAncestor into Instance, the ancestors' first. False when there was none.
bool InitInheritedComponent(TComponent& Instance, const TMetaClass& RootAncestor);
