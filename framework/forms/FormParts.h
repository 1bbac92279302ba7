// The components of a form as members of its class.
#pragma once

#include <string>

#include "framework/rtl/Component.h"
#include "framework/rtl/Exceptions.h"

// Sets Part to the component of the form with that name. EComponentError when
// the form file has none, or one of another class. For Loaded.
template<class T>
void FindPart(const TComponent& Form, const std::string& Name, T*& Part)
{
    Part = dynamic_cast<T*>(Form.FindComponent(Name));
    if (!Part)
        throw EComponentError(Form.ClassName() + " has no " + T::MetaClass().ClassName() + " " + Name);
}
